#include "nvx_util/cpu_info.h"
#include "nvx_util/log.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>
#include <QThread>

using namespace Qt::Literals::StringLiterals;
using namespace Nvx::Util;

class tst_cpu_info : public QObject
{
    Q_OBJECT

private slots:
    void countsAreNeverLessThanOne_data()
    {
        QTest::addColumn<int>("packages");
        QTest::addColumn<int>("cores");
        QTest::addColumn<int>("expectedProcessors");
        QTest::addColumn<int>("expectedCores");
        QTest::newRow("one processor of eight cores") << 1 << 8 << 1 << 8;
        QTest::newRow("two processors share their cores") << 2 << 8 << 2 << 4;
        QTest::newRow("unequal processors are rounded down") << 2 << 7 << 2 << 3;
        QTest::newRow("no package was counted") << 0 << 4 << 1 << 4;
        QTest::newRow("nothing was counted") << 0 << 0 << 1 << 1;
        QTest::newRow("fewer cores than packages") << 4 << 2 << 4 << 1;
        QTest::newRow("negative counts") << -1 << -8 << 1 << 1;
    }

    void countsAreNeverLessThanOne()
    {
        QFETCH(int, packages);
        QFETCH(int, cores);
        const ProcessorCounts counts = countProcessors(packages, cores, true);
        QTEST(counts.processors, "expectedProcessors");
        QTEST(counts.coresPerProcessor, "expectedCores");
        QVERIFY(counts.hyperThreading);
    }

    void theCountsOfThisMachineFitItsThreads()
    {
        const TestFolder folder;
        Log log(folder.path(u"a.log"_s));
        QVERIFY(log.open(true));
        const CpuInfo info(log, folder.path());
        QVERIFY(info.processorCount() >= 1);
        QVERIFY(info.coresPerProcessor() >= 1);
        const int cores = info.processorCount() * info.coresPerProcessor();
        const int threads = QThread::idealThreadCount();
        QVERIFY2(cores <= threads, qPrintable(u"%1 cores, %2 threads"_s.arg(cores).arg(threads)));
        QCOMPARE(readFile(folder.path(u"a.log"_s)), QByteArray());
    }
};

NVX_GUILESS_TEST(tst_cpu_info)
#include "tst_cpu_info.moc"
