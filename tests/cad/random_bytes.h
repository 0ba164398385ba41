#pragma once

#include "support/random_text.h"

#include <QByteArray>
#include <QList>

/// Up to 23 random pieces from the list, one after the other.
inline QByteArray randomBytes(RandomText &random, const QList<QByteArray> &pieces)
{
    QByteArray bytes;
    for (quint32 count = random.below(24); count > 0; --count)
        bytes += pieces.at(random.below(static_cast<quint32>(pieces.size())));
    return bytes;
}
