// Faulty files, and places that cannot be read or written.

#include "name_utility_fixture.h"
#include "support/processor_time.h"
#include "support/test_class.h"
#include "window/faulty_files.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

void addFaultyTableRows()
{
    addFaultyFileRows("TS",
                      "<material><name>Air</name></material><context><name>Clt::Material</name></context>");
}

} // namespace

class tst_material_name_faults : public QObject
{
    Q_OBJECT

private slots:
    void faultyDatabaseIsReportedAndTheTableRemains_data() { addFaultyTableRows(); }
    void faultyDatabaseIsReportedAndTheTableRemains();
    void databaseThatCannotBeOpenedIsReported_data();
    void databaseThatCannotBeOpenedIsReported();
    void unreadableDatabaseStartsNoTable();
    void faultyTableIsReportedAndTheOldOneRemains_data() { addFaultyTableRows(); }
    void faultyTableIsReportedAndTheOldOneRemains();
    void databaseCannotBeOpenedAsATable();
    void largeFileThatIsNoDatabaseIsRejectedQuickly();
    void tableRemainsIfItCannotBeSaved_data();
    void tableRemainsIfItCannotBeSaved();
    void protectedFileIsReplacedOnlyWithPermission();
    void fileNamesInOtherScriptsWork();
};

void tst_material_name_faults::faultyDatabaseIsReportedAndTheTableRemains()
{
    QFETCH(const QByteArray, bytes);
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    QVERIFY(writeBytes(f.databaseFile, bytes));
    f.dialogs.fileToChoose = f.databaseFile;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Load Material Database"_s);
    QCOMPARE(f.dialogs.warnings.first().text, u"Cannot read material database"_s);
    QVERIFY2(f.status().startsWith(f.databaseFile + u": "_s), qPrintable(f.status()));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(!f.isEnabled("actionSave"));
    QCOMPARE(fileBytes(f.databaseFile), bytes);
    QCOMPARE(f.window.databaseFile(), f.databaseFile);
}

void tst_material_name_faults::databaseThatCannotBeOpenedIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << u"missing.mdb"_s;
    QTest::newRow("folder") << u"folder.mdb"_s;
}

void tst_material_name_faults::databaseThatCannotBeOpenedIsReported()
{
    QFETCH(const QString, name);
    NameUtilityFixture f;
    QVERIFY(QDir().mkdir(f.folder.path(u"folder.mdb"_s)));
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.folder.path(name));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().text, u"Cannot read material database"_s);
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

void tst_material_name_faults::unreadableDatabaseStartsNoTable()
{
    NameUtilityFixture f;
    f.window.synchronize(f.folder.path(u"missing.mdb"_s));
    QVERIFY(!f.isEnabled("actionSave"));
    QVERIFY(!f.isEnabled("actionSaveAs"));
}

void tst_material_name_faults::faultyTableIsReportedAndTheOldOneRemains()
{
    QFETCH(const QByteArray, bytes);
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.otherFile, bytes));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        u"Could not load translation table\n\n%1\n"_s.arg(f.otherFile)));
    QVERIFY(f.dialogs.warnings.first().text.endsWith(u" at line 1"_s));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(fileBytes(f.otherFile), bytes);
}

// Saving would overwrite the database with a translation file.
void tst_material_name_faults::databaseCannotBeOpenedAsATable()
{
    NameUtilityFixture f;
    QVERIFY(!f.window.openFile(f.databaseFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(f.dialogs.warnings.first().text.endsWith(u"It is not a translation file"_s));
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_material_name_faults::largeFileThatIsNoDatabaseIsRejectedQuickly()
{
    constexpr qint64 largeFile = 200'000'000;
    NameUtilityFixture f;
    QVERIFY(writeNuls(f.databaseFile, largeFile));
    const auto before = processorTime();
    f.window.synchronize(f.databaseFile);
    QVERIFY(processorTime() - before < std::chrono::seconds(2) * sanitizerFactor);
    QCOMPARE(f.dialogs.warnings.size(), 1);
}

void tst_material_name_faults::tableRemainsIfItCannotBeSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing folder") << u"no such folder/matprop.ts"_s;
    QTest::newRow("folder instead of the file") << u"folder"_s;
}

void tst_material_name_faults::tableRemainsIfItCannotBeSaved()
{
    QFETCH(const QString, name);
    NameUtilityFixture f;
    QVERIFY(QDir().mkdir(f.folder.path(u"folder"_s)));
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    const QStringList before = f.shownRows();

    f.dialogs.fileToChoose = f.folder.path(name);
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Save Translation Table"_s);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(u"Could not save %1\n"_s.arg(f.dialogs.fileToChoose)));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QCOMPARE(f.window.fileName(), f.tableFile);
    QCOMPARE(f.shownRows(), before);
    QVERIFY(f.window.save());
    QVERIFY(!f.window.hasUnsavedChanges());
}

void tst_material_name_faults::protectedFileIsReplacedOnlyWithPermission()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    const std::optional<QByteArray> before = fileBytes(f.tableFile);
    QVERIFY(QFile::setPermissions(f.tableFile, QFile::ReadOwner | QFile::ReadUser));
    const bool mayWrite = QFileInfo(f.tableFile).isWritable(); // root may write every file
    QCOMPARE(f.window.save(), mayWrite);
    QCOMPARE(f.dialogs.warnings.size(), mayWrite ? 0 : 1);
    QCOMPARE(fileBytes(f.tableFile) == before, !mayWrite);
    QCOMPARE(f.window.hasUnsavedChanges(), !mayWrite);
}

void tst_material_name_faults::fileNamesInOtherScriptsWork()
{
    NameUtilityFixture f;
    const QString database = f.folder.path(u"größe 100% 材料 %1.mdb"_s);
    QVERIFY(writeBytes(database, databaseOf({u"空気 <&>"_s})));
    f.window.synchronize(database);
    QVERIFY(f.dialogs.warnings.isEmpty());
    f.dialogs.fileToChoose = f.folder.path(u"größe 100% 材料 %1.ts"_s);
    QVERIFY(f.window.saveAs());
    QCOMPARE(f.status(), u"Saved translation table as "_s + f.dialogs.fileToChoose);
    f.window.newTable();
    QVERIFY(f.window.openFile(f.dialogs.fileToChoose));
    QCOMPARE(f.shownRows(), QStringList(u"空気 <&>|空気 <&>"_s));
}

NVX_TEST(tst_material_name_faults)
#include "tst_material_name_faults.moc"
