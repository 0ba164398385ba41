#pragma once

#include <QString>

/// A literal of a test as a text.
inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}
