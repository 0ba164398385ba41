#include "nvx_util/cpu_info.h"
#include "nvx_util/log.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "unix/topology.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::countProcessors;
using Nvx::Util::CpuInfo;
using Nvx::Util::Log;
using Nvx::Util::Platform::readTopology;

namespace {

struct LogicalProcessor
{
    int package;
    int core;
};

void describe(const TestFolder &folder, const QList<LogicalProcessor> &processors)
{
    for (qsizetype i = 0; i < processors.size(); ++i) {
        const QString topology = folder.path(u"cpu%1/topology/"_s.arg(i));
        writeFile(topology + u"physical_package_id"_s, QByteArray::number(processors[i].package) + '\n');
        writeFile(topology + u"core_id"_s, QByteArray::number(processors[i].core) + '\n');
    }
}

} // namespace

class tst_topology : public QObject
{
    Q_OBJECT

private slots:
    void coresAndThreadsAreDistinguished()
    {
        const TestFolder folder;
        describe(folder, {{0, 0}, {0, 1}, {0, 0}, {0, 1}});
        const auto counts = readTopology(folder.path());
        QVERIFY(counts);
        QCOMPARE(counts->processors, 1);
        QCOMPARE(counts->coresPerProcessor, 2);
        QVERIFY(counts->hyperThreading);
    }

    void theProbeReadsTheTopologyOfThisMachine()
    {
        const TestFolder folder;
        Log log(folder.path(u"a.log"_s));
        const CpuInfo probed(log, folder.path());
        const auto counts = readTopology(u"/sys/devices/system/cpu"_s).value_or(countProcessors(0, 0, false));
        QCOMPARE(probed.processorCount(), counts.processors);
        QCOMPARE(probed.coresPerProcessor(), counts.coresPerProcessor);
    }

    void theSameCoreNumberInTwoPackagesIsTwoCores()
    {
        const TestFolder folder;
        describe(folder, {{0, 0}, {0, 1}, {1, 0}, {1, 1}});
        const auto counts = readTopology(folder.path());
        QVERIFY(counts);
        QCOMPARE(counts->processors, 2);
        QCOMPARE(counts->coresPerProcessor, 2);
        QVERIFY(!counts->hyperThreading);
    }

    void processorsThatAreSwitchedOffDoNotCount()
    {
        const TestFolder folder;
        describe(folder, {{0, 0}, {0, 1}});
        QVERIFY(QDir().mkpath(folder.path(u"cpu2"_s)));
        writeFile(folder.path(u"cpu3/topology/physical_package_id"_s), "0\n");
        QVERIFY(QDir().mkpath(folder.path(u"cpufreq/topology"_s)));
        const auto counts = readTopology(folder.path());
        QVERIFY(counts);
        QCOMPARE(counts->coresPerProcessor, 2);
    }

    void aFolderWithoutProcessorsHasNoResult()
    {
        const TestFolder folder;
        writeFile(folder.path(u"cpu0/topology/physical_package_id"_s), "many\n");
        writeFile(folder.path(u"cpu0/topology/core_id"_s), "0\n");
        QVERIFY(!readTopology(folder.path()));
        QVERIFY(!readTopology(folder.path(u"missing"_s)));
    }
};

NVX_GUILESS_TEST(tst_topology)
#include "tst_topology.moc"
