// Whatever a custom_dirs.dat holds: a removal keeps exactly the lines of others, byte for byte, removing
// twice is the same as once, and so is installing. After an install a removal leaves what it would have left
// without, and at most the empty line that came with ours.

#include "cad/nx/nx_custom_dirs.h"

#include <cstdlib>

namespace {

const QString installDir = QStringLiteral("C:\\NVX");
const QString line = customDirsLine(installDir, QStringLiteral("NX\\10.0"));

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray expectedRemoval(QByteArray rest)
{
    QByteArray kept;
    while (!rest.isEmpty()) {
        const qsizetype newLine = rest.indexOf('\n');
        const QByteArray first = newLine < 0 ? rest : rest.left(newLine + 1);
        rest.remove(0, first.size());
        if (!first.toLower().contains("c:\\nvx"))
            kept += first;
    }
    return kept;
}

QByteArray installed(const QByteArray &contents)
{
    return holdsCustomDirsLine(contents, line) ? contents : contents + line.toLatin1();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const QByteArray removed = withoutCustomDirsLines(contents, installDir);
    require(removed == expectedRemoval(contents));
    require(withoutCustomDirsLines(removed, installDir) == removed);

    require(holdsCustomDirsLine(contents, line) == contents.toLower().contains(line.toLatin1().toLower()));
    const QByteArray once = installed(contents);
    require(holdsCustomDirsLine(once, line));
    const QByteArray both = withoutCustomDirsLines(once, installDir);
    require(both == removed || both == removed + "\r\n");
    return 0;
}
