#include "cad/nx/nx_custom_dirs.h"

#include "cad/eight_bit_text.h"

#include <QLatin1String>

QString nxSubFolder(const QString &registryKey)
{
    struct Choice
    {
        QLatin1String version;
        QLatin1String subFolder;
    };
    static constexpr Choice choices[] = {
        {QLatin1String("8.0"), QLatin1String("\\NX8")},   {QLatin1String("8.5"), QLatin1String("\\NX8")},
        {QLatin1String("9.0"), QLatin1String("\\NX9")},   {QLatin1String("9.5"), QLatin1String("\\NX9")},
        {QLatin1String("10.0"), QLatin1String("\\NX10")}, {QLatin1String("10.5"), QLatin1String("\\NX10")},
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
    return QStringLiteral("\r\n") + installDir + QStringLiteral("\\Launchers\\UGNX") +
           nxSubFolder(registryKey) + QStringLiteral("\r\n");
}

bool holdsCustomDirsLine(const QByteArray &contents, const QString &line)
{
    return CaselessSearch(line).isFoundIn(contents);
}

QByteArray withoutCustomDirsLines(const QByteArray &contents, const QString &installDir)
{
    const CaselessSearch ours(installDir);
    const QByteArrayView all(contents);
    QByteArray kept;
    kept.reserve(contents.size());
    for (qsizetype start = 0; start < all.size();) {
        const qsizetype newLine = all.indexOf('\n', start);
        const qsizetype end = newLine < 0 ? all.size() : newLine + 1;
        const QByteArrayView line = all.sliced(start, end - start);
        if (!ours.isFoundIn(line))
            kept += line;
        start = end;
    }
    return kept;
}
