#include "cad/nx/nx_custom_dirs.h"

#include "cad/foreign_file.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

QString nxSubFolder(const QString &registryKey)
{
    struct Choice
    {
        QLatin1String version;
        QLatin1String subFolder;
    };
    static constexpr Choice choices[] = {
        {"8.0"_L1, "\\NX8"_L1}, {"8.5"_L1, "\\NX8"_L1},   {"9.0"_L1, "\\NX9"_L1},
        {"9.5"_L1, "\\NX9"_L1}, {"10.0"_L1, "\\NX10"_L1}, {"10.5"_L1, "\\NX10"_L1},
    };
    QLatin1String subFolder;
    for (const Choice &choice : choices) {
        if (registryKey.contains(choice.version))
            subFolder = choice.subFolder;
    }
    return subFolder;
}

QString customDirsLine(const QString &installDir, const QString &registryKey)
{
    return u"\r\n"_s + installDir + u"\\Launchers\\UGNX"_s + nxSubFolder(registryKey) + u"\r\n"_s;
}

bool holdsCustomDirsLine(const QByteArray &contents, const QString &line)
{
    return CaselessSearch(line).isFoundIn(contents);
}

QByteArray withoutCustomDirsLines(const QByteArray &contents, const QString &installDir)
{
    const CaselessSearch ours(installDir);
    const QByteArrayView all(contents);
    QByteArray preserved;
    preserved.reserve(contents.size());
    for (qsizetype start = 0; start < all.size();) {
        const qsizetype newLine = all.indexOf('\n', start);
        const qsizetype end = newLine < 0 ? all.size() : newLine + 1;
        const QByteArrayView line = all.sliced(start, end - start);
        if (!ours.isFoundIn(line))
            preserved += line;
        start = end;
    }
    return preserved;
}

} // namespace Nvx::Cad
