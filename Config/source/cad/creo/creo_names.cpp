#include "cad/creo/creo_names.h"

#include "nvx_util/product.h"

#include <QDir>
#include <QStringList>

QString creoLauncherLibrary(int release)
{
    return creoLauncherName + QString::number(release) + QStringLiteral("0.dll");
}

QString protkPath(const QString &creoInstallDir, const QString &shipCode, int release)
{
    QString path = creoInstallDir;
    path.replace(QLatin1String("Parametric"), QLatin1String("Common Files"));
    const QChar separator = QDir::separator();
    if (release < 3) // which has done away with the folder
        path += separator + shipCode;
    return path + separator + QStringLiteral("text") + separator + QStringLiteral("protk.dat");
}

QString creoEntry(const QString &programFolder, const QString &installDir, int release)
{
    const QString library = programFolder + QStringLiteral("\\Launchers\\ProEngineer-Wildfire\\Creo") +
                            QString::number(release) + QLatin1Char('\\') + creoLauncherLibrary(release);
    const QStringList lines{
        QStringLiteral("name ") + Nvx::Product::fullName,
        QStringLiteral("startup DLL"),
        QStringLiteral("exec_file ") + library,
        QStringLiteral("text_dir ") + installDir + QStringLiteral("\\Text"),
        QStringLiteral("revision 20"),
        QStringLiteral("end"),
    };
    const QString lineEnd = QStringLiteral("\r\n");
    return lines.join(lineEnd) + lineEnd;
}
