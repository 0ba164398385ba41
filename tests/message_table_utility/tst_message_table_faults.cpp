// Faulty files, and places that cannot be read or written.

#include "support/processor_time.h"
#include "support/shown_progress.h"
#include "support/test_class.h"
#include "utility_fixture.h"
#include "window/faulty_files.h"

#include <QDir>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

using namespace std::chrono_literals;

namespace {

void writeLargeTable(const QString &fileName, qint64 bytes)
{
    const QByteArray text(400, 'x');
    writeLargeFile(fileName, "<messageTable>\n",
                   "<message severity=\"Warning\"><key><process>client</process><context>C</context><tag>T"
                   "</tag></key><text>" +
                       text + "</text></message>\n",
                   "</messageTable>\n", bytes);
}

// Expects that the window still has and shows the fixture's table.
void expectOldTable(UtilityFixture &f)
{
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(f.window.messages().size(), std::size_t(UtilityFixture::tableRows().size()));
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

constexpr qint64 largeFile = 200'000'000;

} // namespace

class tst_message_table_faults : public QObject
{
    Q_OBJECT

private slots:
    void faultyFileIsReportedAndTheTableRemains_data();
    void faultyFileIsReportedAndTheTableRemains();
    void truncatedFileIsReportedWithItsLine();
    void folderIsReported();
    void missingFileIsReported();
    void largeFileThatIsNoTableIsRejectedQuickly();
    void loadingALargeFileIsCancelled();
    void closingDuringLoadingCancelsIt();
    void tableRemainsIfItCannotBeSaved_data();
    void tableRemainsIfItCannotBeSaved();
    void protectedFileIsReplacedOnlyWithPermission();
    void fileNamesInOtherScriptsWork();
};

void tst_message_table_faults::faultyFileIsReportedAndTheTableRemains_data()
{
    addFaultyFileRows("messageTable", "<message severity=\"Warning\"><key><tag>T</tag></key></message>");
}

void tst_message_table_faults::faultyFileIsReportedAndTheTableRemains()
{
    QFETCH(QByteArray, bytes);
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.otherFile, bytes));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Open Message Table"_s);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        u"Could not load message table\n\n%1\nLine 1: "_s.arg(f.otherFile)));
    expectOldTable(f);
    QCOMPARE(fileBytes(f.otherFile), bytes);
}

void tst_message_table_faults::truncatedFileIsReportedWithItsLine()
{
    UtilityFixture f;
    const QByteArray whole = *fileLines(f.tableFile);
    QVERIFY(writeBytes(f.otherFile, whole.left(whole.size() / 2)));
    const qsizetype line = whole.left(whole.size() / 2).count('\n') + 1;
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY2(f.dialogs.warnings.first().text.contains(u"\nLine %1: "_s.arg(line)),
             qPrintable(f.dialogs.warnings.first().text));
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_message_table_faults::folderIsReported()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(!f.window.openFile(f.folder.path()));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    expectOldTable(f);
}

void tst_message_table_faults::missingFileIsReported()
{
    UtilityFixture f;
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        u"Could not load message table\n\n%1\n"_s.arg(f.otherFile)));
}

void tst_message_table_faults::largeFileThatIsNoTableIsRejectedQuickly()
{
    UtilityFixture f;
    QVERIFY(writeNuls(f.otherFile, largeFile));
    const std::chrono::milliseconds before = processorTime();
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(processorTime() - before < 2s * sanitizerFactor);
    QCOMPARE(f.dialogs.warnings.size(), 1);
}

void tst_message_table_faults::loadingALargeFileIsCancelled()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    writeLargeTable(f.otherFile, largeFile);
    const ProgressCanceller canceller;
    const std::chrono::milliseconds before = processorTime();
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(processorTime() - before < 2s * sanitizerFactor);
    QCOMPARE(canceller.label, u"Loading message table \"%1\"..."_s.arg(f.otherFile));
    QVERIFY(f.dialogs.warnings.isEmpty());
    expectOldTable(f);
}

void tst_message_table_faults::closingDuringLoadingCancelsIt()
{
    UtilityFixture f;
    f.window.show();
    writeLargeTable(f.otherFile, largeFile / 10);
    QTimer::singleShot(1, &f.window, [&f] { f.window.close(); });
    QVERIFY(!f.window.openFile(f.otherFile));
    QTRY_VERIFY(!f.window.isVisible());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_faults::tableRemainsIfItCannotBeSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << u"no such folder/errors.xml"_s;
    QTest::newRow("folder instead of the file") << u"project"_s;
}

void tst_message_table_faults::tableRemainsIfItCannotBeSaved()
{
    QFETCH(QString, name);
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.chooseProjectOf(oneMessageSource);
    f.window.synchronize();
    QVERIFY(f.window.hasUnsavedChanges());
    const QStringList before = f.shownRows();

    f.dialogs.fileToChoose = f.folder.path(name);
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Save Message Table"_s);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(u"Could not save %1\n"_s.arg(f.dialogs.fileToChoose)));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(f.shownRows(), before);
    QVERIFY(f.window.save());
    QVERIFY(f.window.openFile(f.tableFile));
    QCOMPARE(f.shownRows(), before);
}

void tst_message_table_faults::protectedFileIsReplacedOnlyWithPermission()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    const QByteArray before = "old contents";
    QVERIFY(writeBytes(f.otherFile, before));
    QVERIFY(QFile::setPermissions(f.otherFile, QFile::ReadOwner | QFile::ReadUser));
    const bool mayWrite = QFileInfo(f.otherFile).isWritable(); // root may write every file
    f.dialogs.fileToChoose = f.otherFile;
    QCOMPARE(f.window.saveAs(), mayWrite);
    QCOMPARE(f.dialogs.warnings.size(), mayWrite ? 0 : 1);
    QCOMPARE(fileBytes(f.otherFile) == before, !mayWrite);
    QCOMPARE(f.window.fileName(), mayWrite ? f.otherFile : f.tableFile);
}

void tst_message_table_faults::fileNamesInOtherScriptsWork()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.folder.path(u"größe 100% メッセージ %1.xml"_s);
    QVERIFY(f.window.saveAs());
    QCOMPARE(f.status(), u"Table saved as "_s + f.dialogs.fileToChoose);
    f.window.newTable();
    QVERIFY(f.window.openFile(f.dialogs.fileToChoose));
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

NVX_TEST(tst_message_table_faults)
#include "tst_message_table_faults.moc"
