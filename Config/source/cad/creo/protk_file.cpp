#include "cad/creo/protk_file.h"

#include "cad/foreign_file.h"
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

namespace {

constexpr QByteArrayView entryEnd = "end\r\n";
constexpr QByteArrayView legacyMarker = "$OSTRADE2017";
constexpr qsizetype shortestEntry = 5;

bool isPreserved(QByteArrayView piece)
{
    static const CaselessSearch ours(creoLauncherName);
    // Characters, not bytes: in the code pages of Japanese and Chinese most characters take two bytes.
    return QString::fromLocal8Bit(piece).trimmed().size() >= shortestEntry && !ours.isFoundIn(piece);
}

} // namespace

QByteArray withoutLauncherEntries(const QByteArray &contents)
{
    const QByteArrayView all(contents);
    QByteArray preserved;
    preserved.reserve(contents.size() + entryEnd.size());
    for (qsizetype start = 0; start < all.size();) {
        const qsizetype found = all.indexOf(entryEnd, start);
        const qsizetype pieceEnd = found < 0 ? all.size() : found;
        const QByteArrayView piece = all.sliced(start, pieceEnd - start);
        if (isPreserved(piece)) {
            preserved += piece;
            preserved += entryEnd;
        }
        start = pieceEnd + entryEnd.size();
    }
    return preserved;
}

std::optional<QByteArray> withLauncherEntry(const QByteArray &contents, const QByteArray &entry)
{
    // Deliberately a test of the position, not of the presence.
    if (contents.indexOf(legacyMarker) >= 1)
        return std::nullopt;
    return entry + contents;
}

} // namespace Nvx::Cad
