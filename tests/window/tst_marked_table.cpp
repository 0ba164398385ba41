#include "support/test_class.h"
#include "window/marked_table_view.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

using Window::MarkedRows;
using Window::MarkedTableView;
using Window::RowMark;

namespace {

const QStringList headings{QStringLiteral("Name"), QStringLiteral("State")};

MarkedRows sampleRows()
{
    MarkedRows rows(2);
    rows.add({QStringLiteral("b"), QStringLiteral("New")}, RowMark::New);
    rows.add({QStringLiteral("c"), QStringLiteral("InSync")}, RowMark::None);
    rows.add({QStringLiteral("a"), QStringLiteral("Obsolete")}, RowMark::Obsolete);
    return rows;
}

// The first column as it is shown, "b c a".
QString shown(const MarkedTableView &view)
{
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts.append(view.model()->index(row, 0).data().toString());
    return texts.join(u' ');
}

QString selected(const MarkedTableView &view)
{
    QStringList texts;
    const QModelIndexList rows = view.selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        texts.append(row.data().toString());
    texts.sort();
    return texts.join(u' ');
}

void clickHeading(MarkedTableView &view, int column)
{
    QHeaderView *header = view.horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/// A view that is shown with the sample rows.
class ShownView : public MarkedTableView
{
public:
    ShownView()
        : MarkedTableView(headings)
    {
        showRows(sampleRows());
        show();
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("the view is not shown");
    }
};

} // namespace

class tst_marked_table : public QObject
{
    Q_OBJECT

private slots:
    void rowsAreShownInNaturalOrder()
    {
        const ShownView view;
        QCOMPARE(shown(view), QStringLiteral("b c a"));
        QCOMPARE(view.model()->columnCount(), 2);
        QCOMPARE(view.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("State"));
    }

    void cellsAreNotEditable()
    {
        ShownView view;
        QCOMPARE(view.editTriggers(), QAbstractItemView::NoEditTriggers);
        QVERIFY(!(view.model()->index(0, 0).flags() & Qt::ItemIsEditable));
    }

    void markedRowsHaveAToolTip()
    {
        ShownView view;
        view.rowsModel().setMarkToolTip(RowMark::New, QStringLiteral("is new"));
        view.rowsModel().setMarkToolTip(RowMark::Obsolete, QStringLiteral("is gone"));
        const auto toolTip = [&view](int row) {
            return view.model()->index(row, 1).data(Qt::ToolTipRole).toString();
        };
        QCOMPARE(toolTip(0), QStringLiteral("is new"));
        QCOMPARE(toolTip(1), QString());
        QCOMPARE(toolTip(2), QStringLiteral("is gone"));
        QCOMPARE(view.model()->index(2, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("is gone"));
    }

    void wordForTheMarkStandsAtTheEndOfTheFirstCell()
    {
        ShownView view;
        view.setColumnWidth(0, 200);
        const QModelIndex marked = view.model()->index(2, 0);
        const QRect cell = view.visualRect(marked);
        const QRect end = cell.adjusted(cell.width() / 2, 0, 0, 0).translated(view.viewport()->pos());
        const auto image = [&view, &end] { return view.grab(end).toImage(); };
        const QImage before = image();
        view.rowsModel().setMarkWord(RowMark::Obsolete, QStringLiteral("gone"));
        QCOMPARE(view.model()->index(2, 1).data(Window::MarkedTableModel::markWordRole), QVariant());
        QCOMPARE(view.model()->index(1, 0).data(Window::MarkedTableModel::markWordRole), QVariant());
        QVERIFY(image() != before);
        QCOMPARE(marked.data().toString(), QStringLiteral("a"));

        const QImage withWord = image();
        view.selectRow(2);
        QVERIFY(image() != withWord);
        view.clearSelection();
        view.setCurrentIndex(QModelIndex());
        QCOMPARE(image(), withWord);
    }

    void markedRowsArePaintedOnTheirColour()
    {
        ShownView view;
        const QImage image = view.grab().toImage();
        for (int row = 0; row < 3; ++row) {
            const QRect cell = view.visualRect(view.model()->index(row, 1));
            const QPoint place = view.viewport()->mapTo(&view, cell.bottomRight() - QPoint(2, 2));
            const auto mark = view.rowsModel().rows().mark(row);
            QCOMPARE(image.pixelColor(place).rgb(), markColor(view.palette(), mark).rgb());
        }
    }

    void whatIsNoCellHasNoText()
    {
        MarkedTableView view(headings);
        view.showRows(sampleRows());
        const QAbstractItemModel &model = *view.model();
        QVERIFY(!model.data(QModelIndex()).isValid());
        const QModelIndex cell = model.index(0, 0);
        QCOMPARE(model.rowCount(cell), 0);
        QCOMPARE(model.columnCount(cell), 0);
    }

    void orderOrFilterThatIsInForceResetsNothing()
    {
        MarkedTableView view(headings);
        view.showRows(sampleRows());
        Window::MarkedTableModel &model = view.rowsModel();
        model.sort(0, Qt::DescendingOrder);
        model.setFilter(QStringLiteral("n"));
        const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.sort(0, Qt::DescendingOrder);
        model.setFilter(QStringLiteral("n"));
        QCOMPARE(resets.size(), 0);
        model.sort(0, Qt::AscendingOrder);
        model.setFilter(QString());
        QCOMPARE(resets.size(), 2);
    }

    void clicksSortAndReturnToNaturalOrder()
    {
        ShownView view;
        clickHeading(view, 0);
        QCOMPARE(shown(view), QStringLiteral("a b c"));
        clickHeading(view, 0);
        QCOMPARE(shown(view), QStringLiteral("c b a"));
        clickHeading(view, 0);
        QCOMPARE(shown(view), QStringLiteral("b c a"));
        clickHeading(view, 1);
        QCOMPARE(shown(view), QStringLiteral("c b a"));
    }

    void filterNarrowsTheRows()
    {
        ShownView view;
        view.setFilter(QStringLiteral("S"));
        QCOMPARE(shown(view), QStringLiteral("c a"));
        view.setFilter(QStringLiteral("sync"));
        QCOMPARE(shown(view), QStringLiteral("c"));
        view.setFilter(QStringLiteral("no such text"));
        QCOMPARE(shown(view), QString());
        view.setFilter(QString());
        QCOMPARE(shown(view), QStringLiteral("b c a"));
    }

    void filterAndSortingGoTogether()
    {
        ShownView view;
        view.setFilter(QStringLiteral("s"));
        clickHeading(view, 0);
        QCOMPARE(shown(view), QStringLiteral("a c"));
        view.setFilter(QString());
        QCOMPARE(shown(view), QStringLiteral("a b c"));
        view.showRows(sampleRows());
        QCOMPARE(shown(view), QStringLiteral("a b c"));
    }

    void selectionStaysWithItsRows()
    {
        ShownView view;
        view.selectRow(1);
        clickHeading(view, 0);
        QCOMPARE(selected(view), QStringLiteral("c"));
        QCOMPARE(view.currentIndex().row(), 2);
        view.setFilter(QStringLiteral("sync"));
        QCOMPARE(selected(view), QStringLiteral("c"));
        view.selectAll();
        view.setFilter(QString());
        QCOMPARE(selected(view), QStringLiteral("c"));
        view.selectAll();
        clickHeading(view, 0);
        QCOMPARE(selected(view), QStringLiteral("a b c"));
    }

    void otherRowsAreNotSelected()
    {
        ShownView view;
        view.selectAll();
        view.showRows(sampleRows());
        QCOMPARE(selected(view), QString());
    }

    void selectedRowsAreCopied()
    {
        ShownView view;
        view.selectRow(2);
        view.selectionModel()->select(view.model()->index(0, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("b\tNew\na\tObsolete\n"));
    }

    void copyingNothingKeepsTheClipboard()
    {
        ShownView view;
        QGuiApplication::clipboard()->setText(QStringLiteral("before"));
        view.copySelectedRows();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }

    void contextMenuCopiesToo()
    {
        const ShownView view;
        QCOMPARE(view.contextMenuPolicy(), Qt::ActionsContextMenu);
        QCOMPARE(view.actions().size(), 1);
        QCOMPARE(view.actions().first()->objectName(), QStringLiteral("actionCopy"));
    }
};

NVX_TEST(tst_marked_table)
#include "tst_marked_table.moc"
