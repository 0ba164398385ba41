// For any custom_dirs.dat: a removal preserves exactly the lines of other programs, byte for byte; removing
// or installing twice has the same result as once. A removal after an install has the same result as without
// the install, except for the empty line that may be added with ours.

#include "cad/nx/nx_custom_dirs.h"

#include <cstdlib>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString installDir = u"C:\\NVX"_s;
const QString line = customDirsLine(installDir, u"NX\\10.0"_s);

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray expectedRemoval(QByteArray rest)
{
    QByteArray preserved;
    while (!rest.isEmpty()) {
        const qsizetype newLine = rest.indexOf('\n');
        const QByteArray first = newLine < 0 ? rest : rest.left(newLine + 1);
        rest.remove(0, first.size());
        if (!first.toLower().contains("c:\\nvx"))
            preserved += first;
    }
    return preserved;
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
