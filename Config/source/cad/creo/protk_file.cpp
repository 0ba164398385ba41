#include "cad/creo/protk_file.h"

#include "cad/creo/creo_names.h"
#include "cad/eight_bit_text.h"

namespace Nvx::Cad {

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
