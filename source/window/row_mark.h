#pragma once

#include <QColor>

class QPalette;

namespace Window {

/// How a row differs from the others.
enum class RowMark
{
    None,
    New,
    Obsolete
};

/// The background of a marked row: the palette's base colour, tinted so weakly that the palette's text colour
/// is readable on it on light and dark palettes. The base colour itself for RowMark::None.
QColor markColor(const QPalette &palette, RowMark mark);

} // namespace Window
