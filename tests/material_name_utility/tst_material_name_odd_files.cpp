// Files that break when they are read, and files that cannot be opened.

#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"
#include "name_utility_fixture.h"
#include "support/odd_files.h"
#include "support/test_class.h"

#include <QTest>

class tst_material_name_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void databaseThatCannotBeReadIsReportedAndTheTableKept_data() { addFiles(); }

    void databaseThatCannotBeReadIsReportedAndTheTableKept()
    {
        QFETCH(const QString, file);
        NameUtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        f.window.synchronize(file);
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QCOMPARE(f.dialogs.warnings.first().text, QStringLiteral("Cannot read material database"));
        QCOMPARE(f.status(), file + QStringLiteral(": ") + errorOf(file));
        QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
        QVERIFY(!f.window.hasUnsavedChanges());
    }

    void tableThatCannotBeReadIsReportedAndTheOldOneKept_data() { addFiles(); }

    void tableThatCannotBeReadIsReportedAndTheOldOneKept()
    {
        QFETCH(const QString, file);
        NameUtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        QVERIFY(!f.window.openFile(file));
        QCOMPARE(f.dialogs.warnings.size(), 1);
        const QString warning = f.dialogs.warnings.first().text;
        QVERIFY2(warning.endsWith(file + u'\n' + errorOf(file)), qPrintable(warning));
        QCOMPARE(f.window.fileName(), f.tableFile);
        QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    }

    void namesOfADatabaseThatCannotBeReadAreNone_data() { addFiles(); }

    void namesOfADatabaseThatCannotBeReadAreNone()
    {
        QFETCH(const QString, file);
        const mat::MaterialNames read = mat::readMaterialNames(file);
        QCOMPARE(read.names, QStringList());
        QCOMPARE(read.error, errorOf(file));
    }

    void translationFileThatBreaksIsNotUpdated()
    {
        NameUtilityFixture f;
        const QString table = f.folder.path(QStringLiteral("broken.ts"));
        QVERIFY(linkTo(breakingFile(), table));
        const mat::TableUpdate update = mat::updateTranslationFile(f.databaseFile, table);
        QVERIFY(update.outcome != mat::TableUpdate::Outcome::Updated);
        QVERIFY2(update.error.contains(errorOf(breakingFile())), qPrintable(update.error));
        QVERIFY(QFileInfo(table).isSymLink());
    }

private:
    static void addFiles()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("it cannot be opened") << closedFile();
        QTest::newRow("it breaks when it is read") << breakingFile();
    }
};

NVX_TEST(tst_material_name_odd_files)
#include "tst_material_name_odd_files.moc"
