#pragma once

#include <QString>

/// A UTF-8 literal as a string.
inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}
