#include "cad/creo/creo_names.h"

#include "nvx_util/product.h"

#include <QDir>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

QString creoLauncherLibrary(int release)
{
    return creoLauncherName + QString::number(release) + u"0.dll"_s;
}

QString protkPath(const QString &creoInstallDir, const QString &shipCode, int release)
{
    QString path = creoInstallDir;
    path.replace("Parametric"_L1, "Common Files"_L1);
    const QChar separator = QDir::separator();
    if (release < 3) // release 3 has no folder for the ship code
        path += separator + shipCode;
    return path + separator + u"text"_s + separator + u"protk.dat"_s;
}

QString creoEntry(const QString &programFolder, const QString &installDir, int release)
{
    const QString library = programFolder + u"\\Launchers\\ProEngineer-Wildfire\\Creo"_s +
                            QString::number(release) + u'\\' + creoLauncherLibrary(release);
    const QStringList lines{
        u"name "_s + Product::fullName,
        u"startup DLL"_s,
        u"exec_file "_s + library,
        u"text_dir "_s + installDir + u"\\Text"_s,
        u"revision 20"_s,
        u"end"_s,
    };
    const QString lineEnd = u"\r\n"_s;
    return lines.join(lineEnd) + lineEnd;
}

} // namespace Nvx::Cad
