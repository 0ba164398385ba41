#include "cfg_utilities/flag_file.h"
#include "support/full_disk.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

class tst_engine_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void aMarkerFileThatIsNotWholeIsTold_data()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::newRow("nothing is free") << qint64(0);
        QTest::newRow("room for half a line end") << qint64(1);
    }

    void aMarkerFileThatIsNotWholeIsTold()
    {
        QFETCH(const qint64, freeBytes);
        const TestFolder folder;
        const FullDisk disk(freeBytes);
        QVERIFY(!createFlagFile(folder.path(QStringLiteral("NVX_flags.txt"))));
    }
};

NVX_GUILESS_TEST(tst_engine_full_disk)
#include "tst_engine_full_disk.moc"
