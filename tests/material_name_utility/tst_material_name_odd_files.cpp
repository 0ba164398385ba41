// Files that fail when they are read, and files that cannot be opened.

#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"
#include "name_utility_fixture.h"
#include "support/odd_files.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_material_name_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void unreadableDatabaseIsReportedAndTheTableRemains_data() { addUnreadableFileRows(); }

    void unreadableDatabaseIsReportedAndTheTableRemains()
    {
        QFETCH(const QString, file);
        NameUtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        f.window.synchronize(file);
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QCOMPARE(f.dialogs.warnings.first().text, u"Cannot read material database"_s);
        QCOMPARE(f.status(), file + u": "_s + errorOf(file));
        QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
        QVERIFY(!f.window.hasUnsavedChanges());
    }

    void unreadableTableIsReportedAndTheOldOneRemains_data() { addUnreadableFileRows(); }

    void unreadableTableIsReportedAndTheOldOneRemains()
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

    void unreadableDatabaseIsAnError_data() { addUnreadableFileRows(); }

    void unreadableDatabaseIsAnError()
    {
        QFETCH(const QString, file);
        const auto names = Materials::readMaterialNames(file);
        QVERIFY(!names);
        QCOMPARE(names.error(), errorOf(file));
    }

    void translationFileThatFailsWhenReadIsNotUpdated()
    {
        NameUtilityFixture f;
        const QString table = f.folder.path(u"broken.ts"_s);
        QVERIFY(linkTo(breakingFile(), table));
        const auto update = Materials::updateTranslationFile(f.databaseFile, table);
        QVERIFY(!update);
        QVERIFY2(update.error().contains(errorOf(breakingFile())), qPrintable(update.error()));
        QVERIFY(QFileInfo(table).isSymLink());
    }
};

NVX_TEST(tst_material_name_odd_files)
#include "tst_material_name_odd_files.moc"
