// A long scan: its progress, and how it is cancelled.

#include "support/shown_progress.h"
#include "support/test_class.h"
#include "utility_fixture.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int manyFiles = 2000;

} // namespace

class tst_message_table_scan : public QObject
{
    Q_OBJECT

private slots:
    void progressNamesTheProject();
    void cancelledScanPreservesTheTable();
    void closingDuringAScanCancelsIt();
    void closingDuringAScanAsksAboutUnsavedChanges();
};

void tst_message_table_scan::progressNamesTheProject()
{
    UtilityFixture f;
    f.window.newTable();
    f.chooseLargeProject(manyFiles);
    QString title;
    QString label;
    QString status;
    const UntilTrue look([&] {
        if (const QProgressDialog *progress = shownProgress()) {
            title = progress->windowTitle();
            label = progress->labelText();
            status = f.status();
        }
        return !title.isEmpty();
    });
    f.action("actionSynchronize")->trigger();
    QCOMPARE(title, u"Parsing"_s);
    QCOMPARE(label, u"Parsing source files from %1"_s.arg(f.projectFile));
    QVERIFY2(status.startsWith(u"Found "_s) && status.endsWith(u" keys"_s), qPrintable(status));
    QVERIFY(!shownProgress());
    QCOMPARE(f.shownRows(), QStringList(u"client|f|One|New"_s));
}

void tst_message_table_scan::cancelledScanPreservesTheTable()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.chooseLargeProject(manyFiles);
    const ProgressCanceller canceller;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(canceller.title, u"Parsing"_s);
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QCOMPARE(f.window.messages().size(), std::size_t(3));
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(!f.window.isBusy());
    QCOMPARE(f.status(), u"Synchronization cancelled; the table is unchanged"_s);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_scan::closingDuringAScanCancelsIt()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    f.chooseLargeProject(manyFiles);
    const UntilTrue close([&] { return f.window.isBusy() && !f.window.close(); });
    f.action("actionSynchronize")->trigger();
    QVERIFY(close.isDone());
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QTRY_VERIFY(!f.window.isVisible());
    QVERIFY(f.dialogs.unsavedQuestions.isEmpty());
}

void tst_message_table_scan::closingDuringAScanAsksAboutUnsavedChanges()
{
    UtilityFixture f;
    f.window.newTable();
    f.window.show();
    f.chooseProjectOf(oneMessageSource);
    f.action("actionSynchronize")->trigger();
    QVERIFY(f.window.hasUnsavedChanges());

    f.chooseLargeProject(manyFiles);
    const UntilTrue close([&] { return f.window.isBusy() && !f.window.close(); });
    f.action("actionSynchronize")->trigger();
    QVERIFY(close.isDone());
    QTRY_COMPARE(f.dialogs.unsavedQuestions.size(), 1);
    QVERIFY(f.window.isVisible());
    QCOMPARE(f.shownRows(), QStringList(u"client|f|One|New"_s));
}

NVX_TEST(tst_message_table_scan)
#include "tst_message_table_scan.moc"
