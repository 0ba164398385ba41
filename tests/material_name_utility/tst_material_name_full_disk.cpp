#include "materials/many_names.h"
#include "name_utility_fixture.h"
#include "support/full_disk.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_material_name_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void tableRemainsUnsavedAndTheFileUnchanged()
    {
        NameUtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        f.writeDatabase(manyNames(5000));
        f.window.synchronize(f.databaseFile);
        const std::optional<QByteArray> before = fileBytes(f.tableFile);
        {
            const FullDisk disk;
            QVERIFY(!f.window.save());
        }
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QVERIFY(f.dialogs.warnings.first().text.startsWith(u"Could not save %1\n"_s.arg(f.tableFile)));
        QCOMPARE(fileBytes(f.tableFile), before);
        QVERIFY(f.window.hasUnsavedChanges());
        QVERIFY(f.isEnabled("actionSave"));
        QCOMPARE(f.rowCount(), 5003);

        QVERIFY(f.window.save());
        QVERIFY(fileBytes(f.tableFile) != before);
    }
};

NVX_TEST(tst_material_name_full_disk)
#include "tst_material_name_full_disk.moc"
