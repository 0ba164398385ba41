#include "support/test_class.h"
#include "window/marked_rows.h"

#include <QPalette>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

using Window::RowMark;

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// As defined by accessibility guidelines: 1 for equal colours, 21 for black on white.
double contrast(const QColor &first, const QColor &second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

int distance(const QColor &first, const QColor &second)
{
    return std::abs(first.red() - second.red()) + std::abs(first.green() - second.green()) +
           std::abs(first.blue() - second.blue());
}

// True if the colour is 28 % tint and 72 % base.
bool isTinted(const QColor &color, const QColor &base, const QColor &tint)
{
    constexpr double tolerance = 0.0005;
    const auto agrees = [](double part, double of, double with) {
        return std::abs(part - (0.72 * of + 0.28 * with)) < tolerance;
    };
    return agrees(color.redF(), base.redF(), tint.redF()) &&
           agrees(color.greenF(), base.greenF(), tint.greenF()) &&
           agrees(color.blueF(), base.blueF(), tint.blueF());
}

QPalette paletteOf(const QColor &base, const QColor &text)
{
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    return palette;
}

void addPaletteRows()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << paletteOf(Qt::white, Qt::black);
    QTest::newRow("light grey") << paletteOf(QColor(0xef, 0xef, 0xef), QColor(0x20, 0x20, 0x20));
    QTest::newRow("dark") << paletteOf(QColor(0x20, 0x20, 0x20), QColor(0xf0, 0xf0, 0xf0));
    QTest::newRow("black") << paletteOf(Qt::black, Qt::white);
}

} // namespace

class tst_row_mark : public QObject
{
    Q_OBJECT

private slots:
    void textIsReadableOnEveryMark_data() { addPaletteRows(); }
    void textIsReadableOnEveryMark()
    {
        constexpr double strictestGuideline = 7;
        QFETCH(QPalette, palette);
        for (const RowMark mark : {RowMark::None, RowMark::New, RowMark::Obsolete})
            QVERIFY(contrast(palette.color(QPalette::Text), markColor(palette, mark)) >= strictestGuideline);
    }

    void newRowsAreTintedGreenAndObsoleteOnesOrange_data() { addPaletteRows(); }
    void newRowsAreTintedGreenAndObsoleteOnesOrange()
    {
        QFETCH(QPalette, palette);
        const QColor base = palette.color(QPalette::Base);
        QVERIFY(isTinted(markColor(palette, RowMark::New), base, QColor(u"#2ea043"_s)));
        QVERIFY(isTinted(markColor(palette, RowMark::Obsolete), base, QColor(u"#d97a06"_s)));
    }

    void marksDifferVisibly_data() { addPaletteRows(); }
    void marksDifferVisibly()
    {
        constexpr int visible = 40;
        QFETCH(QPalette, palette);
        const QColor none = markColor(palette, RowMark::None);
        const QColor fresh = markColor(palette, RowMark::New);
        const QColor obsolete = markColor(palette, RowMark::Obsolete);
        QCOMPARE(none, palette.color(QPalette::Base));
        QVERIFY(distance(fresh, none) >= visible);
        QVERIFY(distance(obsolete, none) >= visible);
        QVERIFY(distance(fresh, obsolete) >= visible);
    }
};

NVX_GUILESS_TEST(tst_row_mark)
#include "tst_row_mark.moc"
