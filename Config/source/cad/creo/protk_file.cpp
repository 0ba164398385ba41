#include "cad/creo/protk_file.h"

#include "cad/creo/creo_names.h"
#include "cad/eight_bit_text.h"

namespace {

constexpr QByteArrayView entryEnd = "end\r\n";
constexpr QByteArrayView legacyMarker = "$OSTRADE2017";
constexpr qsizetype shortestEntry = 5;

bool isKept(QByteArrayView piece)
{
    static const CaselessSearch ours(creoLauncherName);
    // Characters, not bytes: a code page of Japanese or Chinese writes most characters in two.
    return QString::fromLocal8Bit(piece).trimmed().size() >= shortestEntry && !ours.isFoundIn(piece);
}

} // namespace

QByteArray withoutLauncherEntries(const QByteArray &contents)
{
    const QByteArrayView all(contents);
    QByteArray kept;
    kept.reserve(contents.size() + entryEnd.size());
    for (qsizetype start = 0; start < all.size();) {
        const qsizetype found = all.indexOf(entryEnd, start);
        const qsizetype pieceEnd = found < 0 ? all.size() : found;
        const QByteArrayView piece = all.sliced(start, pieceEnd - start);
        if (isKept(piece)) {
            kept += piece;
            kept += entryEnd;
        }
        start = pieceEnd + entryEnd.size();
    }
    return kept;
}

std::optional<QByteArray> withLauncherEntry(const QByteArray &contents, const QByteArray &entry)
{
    // The place decides, not whether it is there.
    if (contents.indexOf(legacyMarker) >= 1)
        return std::nullopt;
    return entry + contents;
}
