#include "support/full_disk.h"
#include "support/test_class.h"
#include "utility_fixture.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_message_table_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void tableRemainsUnsavedAndTheFileUnchanged()
    {
        UtilityFixture f;
        QVERIFY(tableOf(5000).save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.chooseProjectOf(oneMessageSource);
        f.window.synchronize();
        QVERIFY(f.window.hasUnsavedChanges());
        const std::optional<QByteArray> before = fileBytes(f.otherFile);
        {
            const FullDisk disk;
            QVERIFY(!f.window.save());
        }
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QVERIFY(f.dialogs.warnings.first().text.startsWith(u"Could not save %1\n"_s.arg(f.otherFile)));
        QCOMPARE(fileBytes(f.otherFile), before);
        QVERIFY(f.window.hasUnsavedChanges());
        QVERIFY(f.isEnabled("actionSave"));
        QCOMPARE(f.rowCount(), 5001);

        QVERIFY(f.window.save());
        QVERIFY(fileBytes(f.otherFile) != before);
    }

    void translationFileIsUnchanged()
    {
        UtilityFixture f;
        QVERIFY(tableOf(5000).save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        const QByteArray before = "<TS/>";
        QVERIFY(writeBytes(f.translationFile, before));
        f.dialogs.fileToChoose = f.translationFile;
        {
            const FullDisk disk;
            f.window.updateTranslation();
        }
        QCOMPARE(f.status(), u"Could not save %1"_s.arg(f.translationFile));
        QCOMPARE(fileBytes(f.translationFile), before);
    }
};

NVX_TEST(tst_message_table_full_disk)
#include "tst_message_table_full_disk.moc"
