// Files that are not as they should be, and places that are not.

#include "name_utility_fixture.h"
#include "support/test_class.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

namespace {

void addDamagedFileRows()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("not a table\n");
    QTest::newRow("bytes") << QByteArray("\0\1\0\0Standard Jet DB\0", 20);
    QTest::newRow("truncated in a tag") << QByteArray("<TS><context><na");
    QTest::newRow("truncated between elements") << QByteArray(
        "<TS><material><name>Air</name></material><context><name>Clt::Material</name></context>");
    QTest::newRow("wrong nesting") << QByteArray("<TS><material></TS></material>");
    QTest::newRow("two documents") << QByteArray("<TS/><TS/>");
    QTest::newRow("an entity that grows for ever")
        << QByteArray("<!DOCTYPE t [<!ENTITY a \"&b;&b;\"><!ENTITY b \"&a;&a;\">]><TS>&a;</TS>");
}

} // namespace

class tst_material_name_faults : public QObject
{
    Q_OBJECT

private slots:
    void badDatabaseIsReportedAndTheTableKept_data() { addDamagedFileRows(); }
    void badDatabaseIsReportedAndTheTableKept();
    void databaseThatCannotBeOpenedIsReported_data();
    void databaseThatCannotBeOpenedIsReported();
    void badDatabaseBeginsNoTable();
    void badTableIsReportedAndTheTableKept_data() { addDamagedFileRows(); }
    void badTableIsReportedAndTheTableKept();
    void databaseIsNotOpenedAsATable();
    void largeFileThatIsNoDatabaseIsRefusedAtOnce();
    void savingWhereOneMayNotWriteLosesNothing_data();
    void savingWhereOneMayNotWriteLosesNothing();
    void aProtectedFileIsReplacedByThoseOnlyWhoMay();
    void namesOfFilesInOtherScriptsAreFine();
};

void tst_material_name_faults::badDatabaseIsReportedAndTheTableKept()
{
    QFETCH(const QByteArray, bytes);
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    QVERIFY(writeBytes(f.databaseFile, bytes));
    f.dialogs.fileToChoose = f.databaseFile;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Load Material Database"));
    QCOMPARE(f.dialogs.warnings.first().text, QStringLiteral("Cannot read material database"));
    QVERIFY2(f.status().startsWith(f.databaseFile + QStringLiteral(": ")), qPrintable(f.status()));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(!f.isEnabled("actionSave"));
    QCOMPARE(fileBytes(f.databaseFile), bytes);
    QCOMPARE(f.window.databaseFile(), f.databaseFile);
}

void tst_material_name_faults::databaseThatCannotBeOpenedIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("not there") << QStringLiteral("missing.mdb");
    QTest::newRow("a folder") << QStringLiteral("folder.mdb");
}

void tst_material_name_faults::databaseThatCannotBeOpenedIsReported()
{
    QFETCH(const QString, name);
    NameUtilityFixture f;
    QVERIFY(QDir().mkdir(f.folder.path(QStringLiteral("folder.mdb"))));
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.folder.path(name));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().text, QStringLiteral("Cannot read material database"));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

void tst_material_name_faults::badDatabaseBeginsNoTable()
{
    NameUtilityFixture f;
    f.window.synchronize(f.folder.path(QStringLiteral("missing.mdb")));
    QVERIFY(!f.isEnabled("actionSave"));
    QVERIFY(!f.isEnabled("actionSaveAs"));
}

void tst_material_name_faults::badTableIsReportedAndTheTableKept()
{
    QFETCH(const QByteArray, bytes);
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.otherFile, bytes));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        QStringLiteral("Could not load translation table\n\n%1\n").arg(f.otherFile)));
    QVERIFY(f.dialogs.warnings.first().text.endsWith(QStringLiteral(" at line 1")));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(fileBytes(f.otherFile), bytes);
}

// It would be written over as a translation file.
void tst_material_name_faults::databaseIsNotOpenedAsATable()
{
    NameUtilityFixture f;
    QVERIFY(!f.window.openFile(f.databaseFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(f.dialogs.warnings.first().text.endsWith(QStringLiteral("It is not a translation file")));
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_material_name_faults::largeFileThatIsNoDatabaseIsRefusedAtOnce()
{
    constexpr qint64 largeFile = 200'000'000;
    NameUtilityFixture f;
    QFile file(f.databaseFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(largeFile));
    file.close();
    QElapsedTimer timer;
    timer.start();
    f.window.synchronize(f.databaseFile);
    QVERIFY(timer.elapsed() < 2000);
    QCOMPARE(f.dialogs.warnings.size(), 1);
}

void tst_material_name_faults::savingWhereOneMayNotWriteLosesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder that is not there") << QStringLiteral("no such folder/matprop.ts");
    QTest::newRow("a folder in place of the file") << QStringLiteral("folder");
}

void tst_material_name_faults::savingWhereOneMayNotWriteLosesNothing()
{
    QFETCH(const QString, name);
    NameUtilityFixture f;
    QVERIFY(QDir().mkdir(f.folder.path(QStringLiteral("folder"))));
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    const QStringList before = f.shownRows();

    f.dialogs.fileToChoose = f.folder.path(name);
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Save Translation Table"));
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        QStringLiteral("Could not save %1\n").arg(f.dialogs.fileToChoose)));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(f.shownRows(), before);
    QVERIFY(f.window.save());
    QVERIFY(!f.window.hasUnsavedChanges());
}

void tst_material_name_faults::aProtectedFileIsReplacedByThoseOnlyWhoMay()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    const std::optional<QByteArray> before = fileBytes(f.tableFile);
    QVERIFY(QFile::setPermissions(f.tableFile, QFile::ReadOwner | QFile::ReadUser));
    const bool mayWrite = QFileInfo(f.tableFile).isWritable(); // the superuser writes every file
    QCOMPARE(f.window.save(), mayWrite);
    QCOMPARE(f.dialogs.warnings.size(), mayWrite ? 0 : 1);
    QCOMPARE(fileBytes(f.tableFile) == before, !mayWrite);
    QCOMPARE(f.window.hasUnsavedChanges(), !mayWrite);
}

void tst_material_name_faults::namesOfFilesInOtherScriptsAreFine()
{
    NameUtilityFixture f;
    const QString database = f.folder.path(QStringLiteral("größe 100% 材料 %1.mdb"));
    QVERIFY(writeBytes(database, databaseOf({QStringLiteral("空気 <&>")})));
    f.window.synchronize(database);
    QVERIFY(f.dialogs.warnings.isEmpty());
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("größe 100% 材料 %1.ts"));
    QVERIFY(f.window.saveAs());
    QCOMPARE(f.status(), QStringLiteral("Saved translation table as ") + f.dialogs.fileToChoose);
    f.window.newTable();
    QVERIFY(f.window.openFile(f.dialogs.fileToChoose));
    QCOMPARE(f.shownRows(), QStringList(QStringLiteral("空気 <&>|空気 <&>")));
}

NVX_TEST(tst_material_name_faults)
#include "tst_material_name_faults.moc"
