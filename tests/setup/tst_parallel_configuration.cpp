#include "nvx_util/cpu_info.h"
#include "nvx_util/processor_counts.h"
#include "nvx_util/system.h"
#include "setup/parallel_configuration.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using Nvx::Util::CpuInfo;
using Nvx::Util::joinPath;
using Nvx::Util::ProcessorCounts;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

namespace {

CpuInfo processors(qint32 count, qint32 cores, bool hyperThreading)
{
    return CpuInfo(
        ProcessorCounts{.processors = count, .coresPerProcessor = cores, .hyperThreading = hyperThreading});
}

} // namespace

class tst_parallel_configuration : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_sharedData = Nvx::Util::System::getProgramDataPath(u"NVX 2017"_s);
        m_file = joinPath(m_sharedData, u"NVX2_config.nvxcfg"_s);
        m_analysisFolder = joinPath(m_sharedData, u"HPCAnalyze"_s);
    }

    void mpiIsNegativeWithHyperThreading_data()
    {
        QTest::addColumn<bool>("hyperThreading");
        QTest::addColumn<QString>("mpi");
        QTest::newRow("off") << false << u"8"_s;
        QTest::newRow("on") << true << u"-8"_s;
    }

    void mpiIsNegativeWithHyperThreading()
    {
        QFETCH(bool, hyperThreading);
        QFETCH(QString, mpi);
        run(RunMode::Install, processors(2, 8, hyperThreading));
        QCOMPARE(written(),
                 u"ExePath = %1\nAnalyzePath = %2\nNumberOfThreads = 8\nMpi = %3\nSocketsPerNode = 2\n"_s.arg(
                     joinPath(m_fixture->machine.ownFolder, u"NVX2_share"_s), m_analysisFolder, mpi));
    }

    void bothResultsAreLogged()
    {
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"0 Created NVX2 default configuration: "_s + m_file,
                              u"0 Created NVX2 analyze folder: "_s + m_analysisFolder}));
        QVERIFY(QDir(m_analysisFolder).exists());
    }

    void everyInstallSizesTheFileAgain()
    {
        run(RunMode::Install, processors(1, 4, false));
        run(RunMode::Install, processors(1, 16, false));
        QVERIFY(written().contains(u"NumberOfThreads = 16\n"_s));
        QVERIFY(!written().contains(u"NumberOfThreads = 4\n"_s));
        QCOMPARE(m_fixture->reporter.lines.last(), u"0 Created NVX2 analyze folder: "_s + m_analysisFolder);
    }

    void inOtherModesNothingIsWrittenOrLogged_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
        QTest::newRow("stop services") << int(RunMode::StopServices);
    }

    void inOtherModesNothingIsWrittenOrLogged()
    {
        QFETCH(int, mode);
        run(static_cast<RunMode>(mode), processors(1, 4, false));
        QVERIFY(m_fixture->reporter.lines.isEmpty());
        QVERIFY(!QDir(m_sharedData).exists());
    }

    void anUnfinishedFileIsRemovedInEveryMode_data()
    {
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("install") << RunMode::Install;
        QTest::newRow("uninstall") << RunMode::Uninstall;
    }

    void anUnfinishedFileIsRemovedInEveryMode()
    {
        QFETCH(RunMode, mode);
        writeFile(m_file + u".nvxpart"_s, "half");
        run(mode, processors(1, 4, false));
        QVERIFY(!QFile::exists(m_file + u".nvxpart"_s));
        QCOMPARE(QFile::exists(m_file), mode == RunMode::Install);
    }

    void theFolderIsCreatedEvenIfTheFileCannotBeSaved()
    {
        QVERIFY(QDir().mkpath(m_file)); // a folder has that name
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"1 Unable to create NVX2 default configuration: "_s + m_file,
                              u"0 Created NVX2 analyze folder: "_s + m_analysisFolder}));
    }

    void theFileIsSavedEvenIfTheFolderCannotBeCreated()
    {
        writeFile(m_analysisFolder); // a file has that name
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"0 Created NVX2 default configuration: "_s + m_file,
                              u"1 Unable to create NVX2 analyze folder: "_s + m_analysisFolder}));
    }

    void aFolderThatTheCodePageCannotWriteIsNotWritten()
    {
        m_fixture->machine.ownFolder = m_fixture->test.installDir() + QChar(0xD800);
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines.first(),
                 u"1 Unable to create NVX2 default configuration: "_s + m_file);
        QVERIFY(!QFile::exists(m_file));
    }

private:
    void run(RunMode mode, const CpuInfo &cpuInfo)
    {
        createParallelConfiguration(m_fixture->context(), mode, cpuInfo);
    }

    QString written() const { return QString::fromUtf8(readFile(m_file)).remove(u'\r'); }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_sharedData;
    QString m_file;
    QString m_analysisFolder;
};

NVX_GUILESS_TEST(tst_parallel_configuration)
#include "tst_parallel_configuration.moc"
