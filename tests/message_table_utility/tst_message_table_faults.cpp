// Files that are not as they should be, and places that are not.

#include "support/processor_time.h"
#include "support/shown_progress.h"
#include "support/test_class.h"
#include "utility_fixture.h"

#include <QDir>
#include <QTest>
#include <QTimer>

using namespace std::chrono_literals;

namespace {

// A large table file: the same message with another tag, again and again.
void writeLargeTable(const QString &fileName, qint64 bytes)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    file.write("<messageTable>\n");
    const QByteArray text(400, 'x');
    for (int number = 0; file.pos() < bytes; ++number)
        file.write("<message severity=\"Warning\"><key><process>client</process><context>C</context><tag>T" +
                   QByteArray::number(number) + "</tag></key><text>" + text + "</text></message>\n");
    file.write("</messageTable>\n");
}

// The fixture's table is still the window's, and what is shown of it.
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
    void badFileIsReportedAndTheTableKept_data();
    void badFileIsReportedAndTheTableKept();
    void truncatedFileIsReportedWithItsLine();
    void folderIsNoTable();
    void missingFileIsReported();
    void largeFileThatIsNoTableIsRefusedAtOnce();
    void loadingOfALargeFileIsCancelled();
    void closingDuringLoadingEndsIt();
    void savingWhereOneMayNotWriteLosesNothing_data();
    void savingWhereOneMayNotWriteLosesNothing();
    void aProtectedFileIsReplacedByThoseOnlyWhoMay();
    void namesOfFilesInOtherScriptsAreFine();
};

void tst_message_table_faults::badFileIsReportedAndTheTableKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("not a table\n");
    QTest::newRow("bytes") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("truncated in a tag") << QByteArray("<messageTable><message sev");
    QTest::newRow("truncated between messages")
        << QByteArray("<messageTable><message severity=\"Warning\"><key><tag>T</tag></key></message>");
    QTest::newRow("wrong nesting") << QByteArray("<messageTable><message></messageTable></message>");
    QTest::newRow("two documents") << QByteArray("<messageTable/><messageTable/>");
    QTest::newRow("an entity that grows for ever")
        << QByteArray("<!DOCTYPE t [<!ENTITY a \"&b;&b;\"><!ENTITY b \"&a;&a;\">]><messageTable>&a;"
                      "</messageTable>");
}

void tst_message_table_faults::badFileIsReportedAndTheTableKept()
{
    QFETCH(QByteArray, bytes);
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.otherFile, bytes));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Open Message Table"));
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        QStringLiteral("Could not load message table\n\n%1\nLine 1: ").arg(f.otherFile)));
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
    QVERIFY2(f.dialogs.warnings.first().text.contains(QStringLiteral("\nLine %1: ").arg(line)),
             qPrintable(f.dialogs.warnings.first().text));
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_message_table_faults::folderIsNoTable()
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
        QStringLiteral("Could not load message table\n\n%1\n").arg(f.otherFile)));
}

void tst_message_table_faults::largeFileThatIsNoTableIsRefusedAtOnce()
{
    UtilityFixture f;
    QFile file(f.otherFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(largeFile));
    file.close();
    const std::chrono::milliseconds before = processorTime();
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(processorTime() - before < 2s);
    QCOMPARE(f.dialogs.warnings.size(), 1);
}

void tst_message_table_faults::loadingOfALargeFileIsCancelled()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    writeLargeTable(f.otherFile, largeFile);
    const ProgressCanceller canceller;
    const std::chrono::milliseconds before = processorTime();
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(processorTime() - before < 2s);
    QCOMPARE(canceller.label, QStringLiteral("Loading message table \"%1\"...").arg(f.otherFile));
    QVERIFY(f.dialogs.warnings.isEmpty());
    expectOldTable(f);
}

void tst_message_table_faults::closingDuringLoadingEndsIt()
{
    UtilityFixture f;
    f.window.show();
    writeLargeTable(f.otherFile, largeFile / 10);
    QTimer::singleShot(1, &f.window, [&f] { f.window.close(); });
    QVERIFY(!f.window.openFile(f.otherFile));
    QTRY_VERIFY(!f.window.isVisible());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_faults::savingWhereOneMayNotWriteLosesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder that is not there") << QStringLiteral("no such folder/errors.xml");
    QTest::newRow("a folder in place of the file") << QStringLiteral("project");
}

void tst_message_table_faults::savingWhereOneMayNotWriteLosesNothing()
{
    QFETCH(QString, name);
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.writeSource(QStringLiteral("a.cpp"), "void f() { REPORT_ERROR(\"One\"); }");
    f.chooseProject({QStringLiteral("a.cpp")});
    f.window.synchronize();
    QVERIFY(f.window.hasUnsavedChanges());
    const QStringList before = f.shownRows();

    f.dialogs.fileToChoose = f.folder.path(name);
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Save Message Table"));
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        QStringLiteral("Could not save %1\n").arg(f.dialogs.fileToChoose)));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(f.shownRows(), before);
    QVERIFY(f.window.save());
    QVERIFY(f.window.openFile(f.tableFile));
    QCOMPARE(f.shownRows(), before);
}

void tst_message_table_faults::aProtectedFileIsReplacedByThoseOnlyWhoMay()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    const QByteArray before = "somebody else's";
    QVERIFY(writeBytes(f.otherFile, before));
    QVERIFY(QFile::setPermissions(f.otherFile, QFile::ReadOwner | QFile::ReadUser));
    const bool mayWrite = QFileInfo(f.otherFile).isWritable(); // the superuser writes every file
    f.dialogs.fileToChoose = f.otherFile;
    QCOMPARE(f.window.saveAs(), mayWrite);
    QCOMPARE(f.dialogs.warnings.size(), mayWrite ? 0 : 1);
    QCOMPARE(fileBytes(f.otherFile) == before, !mayWrite);
    QCOMPARE(f.window.fileName(), mayWrite ? f.otherFile : f.tableFile);
}

void tst_message_table_faults::namesOfFilesInOtherScriptsAreFine()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("größe 100% メッセージ %1.xml"));
    QVERIFY(f.window.saveAs());
    QCOMPARE(f.status(), QStringLiteral("Table saved as ") + f.dialogs.fileToChoose);
    f.window.newTable();
    QVERIFY(f.window.openFile(f.dialogs.fileToChoose));
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

NVX_TEST(tst_message_table_faults)
#include "tst_message_table_faults.moc"
