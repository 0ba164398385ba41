#include "support/test_class.h"
#include "window/marked_rows.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Window::MarkedRows;
using Window::RowMark;

namespace {

MarkedRows sampleRows()
{
    MarkedRows rows(2);
    rows.add({u"client"_s, u"MeshIsEmpty"_s}, RowMark::None);
    rows.add({u"client"_s, u"größe"_s}, RowMark::New);
    rows.add({u"Solver"_s, u"apple"_s}, RowMark::Obsolete);
    rows.add({u"client"_s, u"メッシュ"_s}, RowMark::None);
    return rows;
}

} // namespace

class tst_marked_rows : public QObject
{
    Q_OBJECT

private slots:
    void rowsHaveTheirTextsAndMarks()
    {
        const MarkedRows rows = sampleRows();
        QCOMPARE(rows.columns(), 2);
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows.text(2, 0), u"Solver"_s);
        QCOMPARE(rows.text(2, 1), u"apple"_s);
        QCOMPARE(rows.mark(1), RowMark::New);
        QCOMPARE(rows.mark(2), RowMark::Obsolete);
    }

    void filterMatchesAnyColumn_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<std::vector<bool>>("matching");
        const auto row = [](const char *name, const char *filter, const std::vector<bool> &matching) {
            QTest::newRow(name) << QString::fromUtf8(filter) << matching;
        };
        row("no filter", "", {true, true, true, true});
        row("first column", "client", {true, true, false, true});
        row("second column", "Empty", {true, false, false, false});
        row("different case", "mESHISeMPTY", {true, false, false, false});
        row("different case in the rows", "solver", {false, false, true, false});
        row("sharp s is not expanded", "GRÖSSE", {false, false, false, false});
        row("umlaut", "GRÖß", {false, true, false, false});
        row("Japanese", "ッシ", {false, false, false, true});
        row("across columns", "clientMesh", {false, false, false, false});
        row("pattern characters are literal", "M*", {false, false, false, false});
    }
    void filterMatchesAnyColumn()
    {
        QFETCH(QString, filter);
        QTEST(matchingRows(sampleRows(), filter), "matching");
    }

    void rowsThatShareATextAllMatch()
    {
        const QString shared = u"shared"_s;
        MarkedRows rows(1);
        rows.add({shared}, RowMark::None);
        rows.add({shared}, RowMark::None);
        rows.add({u"other"_s}, RowMark::None);
        rows.add({shared}, RowMark::None);
        QCOMPARE(matchingRows(rows, u"SHA"_s), (std::vector<bool>{true, true, false, true}));
    }

    void aPrefixOfThePreviousTextIsCompared()
    {
        const QString whole = u"context"_s;
        MarkedRows rows(1);
        rows.add({whole}, RowMark::None);
        rows.add({QString::fromRawData(whole.constData(), 3)}, RowMark::None);
        QCOMPARE(matchingRows(rows, u"text"_s), (std::vector<bool>{true, false}));
    }

    void rowsAreSorted_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<Qt::SortOrder>("order");
        QTest::addColumn<std::vector<int>>("sorted");
        QTest::newRow("natural") << -1 << Qt::AscendingOrder << std::vector<int>{0, 1, 2, 3};
        QTest::newRow("natural, descending") << -1 << Qt::DescendingOrder << std::vector<int>{0, 1, 2, 3};
        QTest::newRow("ascending, stable") << 0 << Qt::AscendingOrder << std::vector<int>{0, 1, 3, 2};
        QTest::newRow("descending, stable") << 0 << Qt::DescendingOrder << std::vector<int>{2, 0, 1, 3};
        QTest::newRow("case-insensitive") << 1 << Qt::AscendingOrder << std::vector<int>{2, 1, 0, 3};
        QTest::newRow("column after the last") << 2 << Qt::AscendingOrder << std::vector<int>{0, 1, 2, 3};
        QTest::newRow("missing column") << 7 << Qt::AscendingOrder << std::vector<int>{0, 1, 2, 3};
    }
    void rowsAreSorted()
    {
        QFETCH(int, column);
        QFETCH(Qt::SortOrder, order);
        QTEST(sortedRows(sampleRows(), column, order), "sorted");
    }
};

NVX_GUILESS_TEST(tst_marked_rows)
#include "tst_marked_rows.moc"
