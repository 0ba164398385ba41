#include "window/row_mark.h"

#include <QPalette>

namespace Window {

namespace {

// The tint is so weak that text is as readable as on the base colour.
QColor tinted(const QColor &base, const QColor &tint)
{
    constexpr float share = 0.28F;
    const auto mixed = [](float of, float with) { return of * (1 - share) + with * share; };
    return QColor::fromRgbF(mixed(base.redF(), tint.redF()), mixed(base.greenF(), tint.greenF()),
                            mixed(base.blueF(), tint.blueF()));
}

} // namespace

QColor markColor(const QPalette &palette, RowMark mark)
{
    const QColor base = palette.color(QPalette::Base);
    switch (mark) {
    case RowMark::New:
        return tinted(base, QColor(0x2e, 0xa0, 0x43));
    case RowMark::Obsolete:
        return tinted(base, QColor(0xd9, 0x7a, 0x06));
    case RowMark::None:
        break;
    }
    return base;
}

} // namespace Window
