#include "cfg_utilities/flag_file.h"
#include "support/full_disk.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using namespace Nvx::Engine;
using namespace Qt::Literals::StringLiterals;

class tst_engine_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void anIncompleteMarkerFileReturnsFalse_data()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::newRow("no space") << qint64(0);
        QTest::newRow("space for half a line end") << qint64(1);
    }

    void anIncompleteMarkerFileReturnsFalse()
    {
        QFETCH(const qint64, freeBytes);
        const TestFolder folder;
        const FullDisk disk(freeBytes);
        QVERIFY(!createFlagFile(folder.path(u"NVX_flags.txt"_s)));
    }
};

NVX_GUILESS_TEST(tst_engine_full_disk)
#include "tst_engine_full_disk.moc"
