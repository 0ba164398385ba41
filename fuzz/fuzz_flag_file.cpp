// A marker file counts as unchanged if and only if it is empty after trimming, wherever the blocks end.

#include "cfg_utilities/flag_file.h"

#include <QBuffer>

#include <cstdlib>

using namespace Nvx::Engine;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    QByteArray contents(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    // Leading blanks move the interesting bytes to the border between two blocks.
    if (size > 0)
        contents.prepend(QByteArray(flagFileBlockBytes - (bytes[0] % 8), ' '));
    QBuffer buffer(&contents);
    buffer.open(QIODevice::ReadOnly);
    if (holdsOnlyWhiteSpace(buffer) != contents.trimmed().isEmpty())
        std::abort();
    return 0;
}
