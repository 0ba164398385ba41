#include "nvx_util/cpu_info.h"
#include "nvx_util/system.h"
#include "setup/parallel_configuration.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::CpuInfo;
using Nvx::Util::joinPath;
using Nvx::Util::ProcessorCounts;

namespace {

CpuInfo processors(qint32 count, qint32 cores, bool hyperThreading)
{
    ProcessorCounts counts;
    counts.processors = count;
    counts.coresPerProcessor = cores;
    counts.hyperThreading = hyperThreading;
    return CpuInfo(counts);
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
        m_sharedData = Nvx::Util::System::getProgramDataPath(text("NVX 2017"));
        m_file = joinPath(m_sharedData, text("NVX2_config.nvxcfg"));
        m_analysisFolder = joinPath(m_sharedData, text("HPCAnalyze"));
    }

    void theSignOfMpiTellsOfHyperThreading_data()
    {
        QTest::addColumn<bool>("hyperThreading");
        QTest::addColumn<QString>("mpi");
        QTest::newRow("off") << false << text("8");
        QTest::newRow("on") << true << text("-8");
    }

    void theSignOfMpiTellsOfHyperThreading()
    {
        QFETCH(bool, hyperThreading);
        QFETCH(QString, mpi);
        run(RunMode::Install, processors(2, 8, hyperThreading));
        QCOMPARE(written(),
                 text("ExePath = %1\nAnalyzePath = %2\nNumberOfThreads = 8\nMpi = %3\nSocketsPerNode = 2\n")
                     .arg(joinPath(m_fixture->machine.ownFolder, text("NVX2_share")), m_analysisFolder, mpi));
    }

    void bothResultsAreLogged()
    {
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("0 Created NVX2 default configuration: ") + m_file,
                              text("0 Created NVX2 analyze folder: ") + m_analysisFolder}));
        QVERIFY(QDir(m_analysisFolder).exists());
    }

    void everyInstallSizesTheFileAnew()
    {
        run(RunMode::Install, processors(1, 4, false));
        run(RunMode::Install, processors(1, 16, false));
        QVERIFY(written().contains(text("NumberOfThreads = 16\n")));
        QVERIFY(!written().contains(text("NumberOfThreads = 4\n")));
        QCOMPARE(m_fixture->reporter.lines.last(),
                 text("0 Created NVX2 analyze folder: ") + m_analysisFolder);
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

    void whatACrashHasLeftGoesInEveryMode_data()
    {
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("install") << RunMode::Install;
        QTest::newRow("uninstall") << RunMode::Uninstall;
    }

    void whatACrashHasLeftGoesInEveryMode()
    {
        QFETCH(RunMode, mode);
        writeFile(m_file + text(".nvxpart"), "half");
        run(mode, processors(1, 4, false));
        QVERIFY(!QFile::exists(m_file + text(".nvxpart")));
        QCOMPARE(QFile::exists(m_file), mode == RunMode::Install);
    }

    void aFileThatCannotBeSavedDoesNotKeepTheFolderFromBeingMade()
    {
        QVERIFY(QDir().mkpath(m_file)); // a folder of that name is in the way
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("1 Unable to create NVX2 default configuration: ") + m_file,
                              text("0 Created NVX2 analyze folder: ") + m_analysisFolder}));
    }

    void aFolderThatCannotBeMadeDoesNotKeepTheFileFromBeingSaved()
    {
        writeFile(m_analysisFolder); // a file of that name is in the way
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("0 Created NVX2 default configuration: ") + m_file,
                              text("1 Unable to create NVX2 analyze folder: ") + m_analysisFolder}));
    }

    void aFolderThatTheCodePageCannotWriteIsNotWrittenWrong()
    {
        m_fixture->machine.ownFolder = m_fixture->test.installDir() + QChar(0xD800);
        run(RunMode::Install, processors(1, 4, false));
        QCOMPARE(m_fixture->reporter.lines.first(),
                 text("1 Unable to create NVX2 default configuration: ") + m_file);
        QVERIFY(!QFile::exists(m_file));
    }

private:
    void run(RunMode mode, const CpuInfo &cpuInfo)
    {
        createParallelConfiguration(m_fixture->context(), mode, cpuInfo);
    }

    QString written() const { return QString::fromUtf8(readFile(m_file)).remove(QLatin1Char('\r')); }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_sharedData;
    QString m_file;
    QString m_analysisFolder;
};

NVX_GUILESS_TEST(tst_parallel_configuration)
#include "tst_parallel_configuration.moc"
