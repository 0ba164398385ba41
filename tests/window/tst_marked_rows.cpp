#include "support/test_class.h"
#include "window/marked_rows.h"

#include <QTest>

using Window::MarkedRows;
using Window::RowMark;

namespace {

MarkedRows sampleRows()
{
    MarkedRows rows(2);
    rows.add({QStringLiteral("client"), QStringLiteral("MeshIsEmpty")}, RowMark::None);
    rows.add({QStringLiteral("client"), QStringLiteral("größe")}, RowMark::New);
    rows.add({QStringLiteral("Solver"), QStringLiteral("apple")}, RowMark::Obsolete);
    rows.add({QStringLiteral("client"), QStringLiteral("メッシュ")}, RowMark::None);
    return rows;
}

} // namespace

class tst_marked_rows : public QObject
{
    Q_OBJECT

private slots:
    void rowsKeepTheirTextsAndMarks()
    {
        const MarkedRows rows = sampleRows();
        QCOMPARE(rows.columns(), 2);
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows.text(2, 0), QStringLiteral("Solver"));
        QCOMPARE(rows.text(2, 1), QStringLiteral("apple"));
        QCOMPARE(rows.mark(1), RowMark::New);
        QCOMPARE(rows.mark(2), RowMark::Obsolete);
    }

    void filterFindsTextInAnyColumn_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<std::vector<bool>>("with");
        const auto row = [](const char *name, const char *filter, const std::vector<bool> &with) {
            QTest::newRow(name) << QString::fromUtf8(filter) << with;
        };
        row("no filter", "", {true, true, true, true});
        row("first column", "client", {true, true, false, true});
        row("second column", "Empty", {true, false, false, false});
        row("other case", "mESHISeMPTY", {true, false, false, false});
        row("other case in the rows", "solver", {false, false, true, false});
        row("umlaut in other case", "GRÖSSE", {false, false, false, false});
        row("umlaut", "GRÖß", {false, true, false, false});
        row("Japanese", "ッシ", {false, false, false, true});
        row("across columns", "clientMesh", {false, false, false, false});
        row("pattern characters stand for themselves", "M*", {false, false, false, false});
    }
    void filterFindsTextInAnyColumn()
    {
        QFETCH(QString, filter);
        QTEST(rowsWith(sampleRows(), filter), "with");
    }

    void equalNeighboursAreFoundAlike()
    {
        const QString shared = QStringLiteral("shared");
        MarkedRows rows(1);
        rows.add({shared}, RowMark::None);
        rows.add({shared}, RowMark::None);
        rows.add({QStringLiteral("other")}, RowMark::None);
        rows.add({shared}, RowMark::None);
        QCOMPARE(rowsWith(rows, QStringLiteral("SHA")), (std::vector<bool>{true, true, false, true}));
    }

    void textThatIsPartOfItsNeighbourIsNotTakenForIt()
    {
        const QString whole = QStringLiteral("context");
        MarkedRows rows(1);
        rows.add({whole}, RowMark::None);
        rows.add({QString::fromRawData(whole.constData(), 3)}, RowMark::None);
        QCOMPARE(rowsWith(rows, QStringLiteral("text")), (std::vector<bool>{true, false}));
    }

    void rowsAreSorted_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<Qt::SortOrder>("order");
        QTest::addColumn<std::vector<int>>("sorted");
        QTest::newRow("natural") << -1 << Qt::AscendingOrder << std::vector<int>{0, 1, 2, 3};
        QTest::newRow("natural, whatever the order")
            << -1 << Qt::DescendingOrder << std::vector<int>{0, 1, 2, 3};
        QTest::newRow("up, equal ones as they were")
            << 0 << Qt::AscendingOrder << std::vector<int>{0, 1, 3, 2};
        QTest::newRow("down, equal ones as they were")
            << 0 << Qt::DescendingOrder << std::vector<int>{2, 0, 1, 3};
        QTest::newRow("without case") << 1 << Qt::AscendingOrder << std::vector<int>{2, 1, 0, 3};
        QTest::newRow("the column behind the last")
            << 2 << Qt::AscendingOrder << std::vector<int>{0, 1, 2, 3};
        QTest::newRow("no such column") << 7 << Qt::AscendingOrder << std::vector<int>{0, 1, 2, 3};
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
