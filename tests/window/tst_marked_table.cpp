#include "support/test_class.h"
#include "window/marked_table_view.h"
#include "window_fixture.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Window::MarkedRows;
using Window::MarkedTableView;
using Window::RowMark;

namespace {

const QStringList headings{u"Name"_s, u"State"_s};

MarkedRows sampleRows()
{
    MarkedRows rows(2);
    rows.add({u"b"_s, u"New"_s}, RowMark::New);
    rows.add({u"c"_s, u"InSync"_s}, RowMark::None);
    rows.add({u"a"_s, u"Obsolete"_s}, RowMark::Obsolete);
    return rows;
}

// The first column on the screen, for example "b c a".
QString shown(const MarkedTableView &view)
{
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts.append(cellsOf(*view.model(), row).constFirst());
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

/// A view with the sample rows on the screen.
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
        QCOMPARE(shown(view), u"b c a"_s);
        QCOMPARE(view.model()->columnCount(), 2);
        QCOMPARE(view.model()->headerData(1, Qt::Horizontal).toString(), u"State"_s);
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
        view.rowsModel().setMarkToolTip(RowMark::New, u"is new"_s);
        view.rowsModel().setMarkToolTip(RowMark::Obsolete, u"is gone"_s);
        const auto toolTip = [&view](int row) {
            return view.model()->index(row, 1).data(Qt::ToolTipRole).toString();
        };
        QCOMPARE(toolTip(0), u"is new"_s);
        QCOMPARE(toolTip(1), QString());
        QCOMPARE(toolTip(2), u"is gone"_s);
        QCOMPARE(view.model()->index(2, 0).data(Qt::AccessibleDescriptionRole).toString(), u"is gone"_s);
    }

    void wordForTheMarkIsAtTheEndOfTheFirstCell()
    {
        ShownView view;
        view.setColumnWidth(0, 200);
        const QModelIndex marked = view.model()->index(2, 0);
        const QRect cell = view.visualRect(marked);
        const QRect end = cell.adjusted(cell.width() / 2, 0, 0, 0).translated(view.viewport()->pos());
        const auto image = [&view, &end] { return view.grab(end).toImage(); };
        const QImage before = image();
        view.rowsModel().setMarkWord(RowMark::Obsolete, u"gone"_s);
        QCOMPARE(view.model()->index(2, 1).data(Window::MarkedTableModel::markWordRole), QVariant());
        QCOMPARE(view.model()->index(1, 0).data(Window::MarkedTableModel::markWordRole), QVariant());
        QVERIFY(image() != before);
        QCOMPARE(marked.data().toString(), u"a"_s);

        const QImage withWord = image();
        view.selectRow(2);
        QVERIFY(image() != withWord);
        view.clearSelection();
        view.setCurrentIndex(QModelIndex());
        QCOMPARE(image(), withWord);
    }

    void markedRowsArePaintedInTheirColour()
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

    void invalidIndexHasNoText()
    {
        MarkedTableView view(headings);
        view.showRows(sampleRows());
        const QAbstractItemModel &model = *view.model();
        QVERIFY(!model.data(QModelIndex()).isValid());
        const QModelIndex cell = model.index(0, 0);
        QCOMPARE(model.rowCount(cell), 0);
        QCOMPARE(model.columnCount(cell), 0);
    }

    void settingTheSameOrderOrFilterDoesNotReset()
    {
        MarkedTableView view(headings);
        view.showRows(sampleRows());
        Window::MarkedTableModel &model = view.rowsModel();
        model.sort(0, Qt::DescendingOrder);
        model.setFilter(u"n"_s);
        const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.sort(0, Qt::DescendingOrder);
        model.setFilter(u"n"_s);
        QCOMPARE(resets.size(), 0);
        model.sort(0, Qt::AscendingOrder);
        model.setFilter(QString());
        QCOMPARE(resets.size(), 2);
    }

    void clicksSortAndRestoreTheNaturalOrder()
    {
        ShownView view;
        clickHeading(view, 0);
        QCOMPARE(shown(view), u"a b c"_s);
        clickHeading(view, 0);
        QCOMPARE(shown(view), u"c b a"_s);
        clickHeading(view, 0);
        QCOMPARE(shown(view), u"b c a"_s);
        clickHeading(view, 1);
        QCOMPARE(shown(view), u"c b a"_s);
    }

    void filterHidesOtherRows()
    {
        ShownView view;
        view.setFilter(u"S"_s);
        QCOMPARE(shown(view), u"c a"_s);
        view.setFilter(u"sync"_s);
        QCOMPARE(shown(view), u"c"_s);
        view.setFilter(u"no such text"_s);
        QCOMPARE(shown(view), QString());
        view.setFilter(QString());
        QCOMPARE(shown(view), u"b c a"_s);
    }

    void filteredRowsAreSorted()
    {
        ShownView view;
        view.setFilter(u"s"_s);
        clickHeading(view, 0);
        QCOMPARE(shown(view), u"a c"_s);
        view.setFilter(QString());
        QCOMPARE(shown(view), u"a b c"_s);
        view.showRows(sampleRows());
        QCOMPARE(shown(view), u"a b c"_s);
    }

    void selectionIsPreserved()
    {
        ShownView view;
        view.selectRow(1);
        clickHeading(view, 0);
        QCOMPARE(selected(view), u"c"_s);
        QCOMPARE(view.currentIndex().row(), 2);
        view.setFilter(u"sync"_s);
        QCOMPARE(selected(view), u"c"_s);
        view.selectAll();
        view.setFilter(QString());
        QCOMPARE(selected(view), u"c"_s);
        view.selectAll();
        clickHeading(view, 0);
        QCOMPARE(selected(view), u"a b c"_s);
    }

    void newRowsAreNotSelected()
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
        QCOMPARE(QGuiApplication::clipboard()->text(), u"b\tNew\na\tObsolete\n"_s);
    }

    void copyingWithoutASelectionPreservesTheClipboard()
    {
        ShownView view;
        QGuiApplication::clipboard()->setText(u"before"_s);
        view.copySelectedRows();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"before"_s);
    }

    void contextMenuCopies()
    {
        const ShownView view;
        QCOMPARE(view.contextMenuPolicy(), Qt::ActionsContextMenu);
        QCOMPARE(view.actions().size(), 1);
        QCOMPARE(view.actions().first()->objectName(), u"actionCopy"_s);
    }
};

NVX_TEST(tst_marked_table)
#include "tst_marked_table.moc"
