#pragma once

#include <QColor>

class QPalette;

namespace Window {

/// How a row is set apart from the others.
enum class RowMark
{
    None,
    New,
    Obsolete
};

/// The background of a marked row, to be read with the palette's text colour on light and dark palettes: a
/// tint of the base colour. The base colour itself for no mark.
QColor markColor(const QPalette &palette, RowMark mark);

} // namespace Window
