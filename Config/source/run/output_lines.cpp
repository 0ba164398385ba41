#include "run/output_lines.h"

#include "nvx_util/code_page.h"

#include <algorithm>

namespace Nvx::Run {

QStringList outputLines(const QByteArray &output)
{
    QStringList lines;
    qsizetype start = 0;
    for (int read = 0; read < maxOutputLines && start < output.size(); ++read) {
        const qsizetype newLine = output.indexOf('\n', start);
        const qsizetype lineEnd = newLine < 0 ? output.size() : newLine + 1;
        const qsizetype end = std::min(lineEnd, start + maxOutputLineBytes);
        const QString line = Util::fromOem(output.mid(start, end - start)).trimmed();
        if (!line.isEmpty())
            lines.append(line);
        start = end;
    }
    return lines;
}

} // namespace Nvx::Run
