// Any output of a program gives at most 21 trimmed lines, none of them empty. Bytes after the maximum size of
// 21 pieces change nothing.

#include "run/output_lines.h"

#include <cstdlib>

using namespace Nvx::Run;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray output(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const QStringList lines = outputLines(output);
    if (lines.size() > maxOutputLines)
        std::abort();
    for (const QString &line : lines) {
        if (line.isEmpty() || line != line.trimmed())
            std::abort();
    }
    if (outputLines(output.left(maxOutputLines * maxOutputLineBytes)) != lines)
        std::abort();
    return 0;
}
