#include "cfg_wizard/progress_list.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Wizard::ProgressList;

namespace {

// The number of text lines of a row.
int linesOf(const ProgressList &list, int row)
{
    const QListWidgetItem *item = list.item(row);
    return list.visualItemRect(item).height() / list.fontMetrics().height();
}

} // namespace

class tst_progress_list : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_list = std::make_unique<ProgressList>();
        m_list->resize(300, 200);
        m_list->show();
        m_list->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_list.get()));
        QGuiApplication::clipboard()->setText(u"from elsewhere"_s);
    }
    void cleanup() { m_list.reset(); }

    void theSelectedRowsAreCopiedInTheirOrder()
    {
        for (const char *row : {"one", "two", "three", "four"})
            m_list->appendRow(text(row));
        for (const int row : {3, 0, 2})
            m_list->item(row)->setSelected(true);
        QTest::keyClick(m_list.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one\nthree\nfour"_s);
    }

    void allRowsCanBeCopiedWithTheKeyboard()
    {
        for (const char *row : {"one", "two"})
            m_list->appendRow(text(row));
        QTest::keyClick(m_list.get(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(m_list.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one\ntwo"_s);
    }

    void aCopiedPathHasNoBreakPlaces()
    {
        const QString path = u"C:\\NVX/en-US\\Examples.7z"_s;
        m_list->appendRow(path);
        m_list->selectAll();
        m_list->copySelectedRows();
        QCOMPARE(QGuiApplication::clipboard()->text(), path);
    }

    void withoutASelectionTheClipboardIsUnchanged()
    {
        m_list->appendRow(u"one"_s);
        m_list->copySelectedRows();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"from elsewhere"_s);
    }

    void newRowsDoNotChangeTheSelection()
    {
        m_list->appendRow(u"one"_s);
        m_list->item(0)->setSelected(true);
        for (int i = 0; i < 50; ++i)
            m_list->appendRow(u"more"_s);
        QVERIFY(m_list->item(0)->isSelected());
        QCOMPARE(m_list->selectedItems().size(), 1);
    }

    void theMenuCopiesTheSelectedRows()
    {
        QCOMPARE(m_list->contextMenuPolicy(), Qt::ActionsContextMenu);
        QCOMPARE(m_list->actions().size(), 2);
        m_list->appendRow(u"one"_s);
        m_list->actions().at(1)->trigger();
        m_list->actions().at(0)->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"one"_s);
    }

    void aLongRowIsWrapped_data()
    {
        QTest::addColumn<QString>("row");
        QTest::addColumn<bool>("wrapped");
        QTest::newRow("short") << u"Install Tutorials"_s << false;
        QTest::newRow("words") << QString(u"a word and "_s).repeated(10) << true;
        QTest::newRow("a path without blanks") << u"C:"_s + QString(u"\\folder"_s).repeated(15) << true;
    }

    void aLongRowIsWrapped()
    {
        QFETCH(QString, row);
        m_list->appendRow(row);
        QTEST(linesOf(*m_list, 0) > 1, "wrapped");
        QCOMPARE(m_list->horizontalScrollBar()->maximum(), 0);
        QVERIFY(m_list->visualItemRect(m_list->item(0)).width() <= m_list->viewport()->width());
    }

    void aWiderListNeedsFewerLines()
    {
        m_list->appendRow(QString(u"a word and "_s).repeated(10));
        QVERIFY(linesOf(*m_list, 0) > 1);
        m_list->resize(2000, 200);
        QTRY_COMPARE(linesOf(*m_list, 0), 1);
    }

private:
    std::unique_ptr<ProgressList> m_list;
};

NVX_TEST(tst_progress_list)
#include "tst_progress_list.moc"
