// A marker file counts as unchanged exactly when trimming leaves nothing of it, however it is read.

#include "cfg_utilities/flag_file.h"

#include <QBuffer>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    QByteArray contents(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    // Blanks in front bring the interesting bytes to the border between two reads.
    if (size > 0)
        contents.prepend(QByteArray(4096 - (bytes[0] % 8), ' '));
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    if (holdsOnlyWhiteSpace(buffer) != contents.trimmed().isEmpty())
        std::abort();
    return 0;
}
