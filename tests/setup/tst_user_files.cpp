#include "nvx_util/system.h"
#include "setup/setup_fixture.h"
#include "setup/user_files.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using Nvx::Util::ProgramCall;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

class tst_user_files : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_removedFolders.clear();
        m_fixture->machine.ownFolder = m_fixture->test.path(u"program"_s);
        m_sharedData = System::getProgramDataPath(u"NVX 2017"_s);
        m_fixture->machine.whileRunning = [this](const ProgramCall &call) {
            const QString commandLine = QString::fromUtf8(readFile(call.arguments.last()));
            m_removedFolders << commandLine.section(u'"', 1, 1);
        };
    }

    void oldFilesAreRemovedInOrder()
    {
        writeFile(installed("a.new"));
        writeFile(installed("plugins/Reports/report.pyc"));
        writeFile(joinPath(m_sharedData, u"old.dat"_s));
        files().removeOldFiles();
        QCOMPARE(m_removedFolders, QStringList{joinPath(m_fixture->machine.ownFolder, u"Launchers"_s)});
        QCOMPARE(
            reported(),
            QStringList({u"0 Removing:"_s + m_fixture->state.installDir + u"/a.new"_s, u"0 Command:cmd.exe"_s,
                         u"0 Remove: "_s + m_sharedData + u"*.dat"_s,
                         u"0 Removing:"_s + m_sharedData + u"/old.dat"_s, u"0 Remove: Report .pyc files"_s,
                         u"0 Removing:"_s + installed("plugins/Reports") + u"/report.pyc"_s}));
    }

    void onlyMatchingFilesAreRemoved_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("stays");
        const auto row = [](const char *name, const char *file, bool stays) {
            QTest::newRow(name) << text(file) << stays;
        };
        row("a leftover of an update", "NVX/matprop.new", false);
        row("a leftover in upper case", "NVX/MATPROP.NEW", false);
        row("the pattern within the name", "NVX/A.NEW.TXT", false);
        row("another ending", "NVX/renewal.txt", true);
        row("systeminfo2012.xml", "NVX/systeminfo2012.xml", true);
        row("the log", "NVX/NVXConfig.log", true);
        row("a leftover in a sub-folder", "NVX/en-US/matprop.new", true);
        row("a report's compiled file", "NVX/plugins/Reports/a.pyc", false);
        row("a report", "NVX/plugins/Reports/a.py", true);
        row("a compiled file elsewhere", "NVX/plugins/a.pyc", true);
        row("a shared .dat file", "ProgramData/Velmora/NVX 2017/a.dat", false);
        row("the material database", "ProgramData/Velmora/NVX 2017/matprop.nvxmdb", true);
        row("the previous release's material database", "ProgramData/Velmora/NVX 2017/Materials 2016.nvxmdb",
            true);
        row("a shared .dat file in a sub-folder", "ProgramData/Velmora/NVX 2017/HPCAnalyze/a.dat", true);
    }

    void onlyMatchingFilesAreRemoved()
    {
        QFETCH(QString, file);
        writeFile(m_fixture->test.path(file));
        files().removeOldFiles();
        files().removeLog();
        QTEST(QFile::exists(m_fixture->test.path(file)), "stays");
    }

    void missingFoldersAreNoError()
    {
        files().removeOldFiles();
        QCOMPARE(reported(), QStringList({u"0 Command:cmd.exe"_s, u"0 Remove: "_s + m_sharedData + u"*.dat"_s,
                                          u"0 Remove: Report .pyc files"_s}));
    }

    void theSorvaneFolderAndTheUsersSettingsAreRemoved()
    {
        for (const char *name : {"qat.st", "ribbon2D.st", "flagset.usr", "own.st"})
            writeFile(joinPath(System::getUserDataPath(), text(name)));
        files().resetSorvane(RunMode::Install);
        const QString folder = joinPath(m_sharedData, u"Sorvane"_s);
        QCOMPARE(m_removedFolders, QStringList{folder});
        QCOMPARE(reported(), QStringList({u"0 Remove: "_s + folder, u"0 Command:cmd.exe"_s,
                                          u"progress 0 Install Sorvane"_s}));
        QCOMPARE(QDir(System::getUserDataPath()).entryList(QDir::Files), QStringList{u"own.st"_s});
    }

    void theModeOnlyChangesTheProgressLine_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("line");
        QTest::newRow("install") << int(RunMode::Install) << u"progress 0 Install Sorvane"_s;
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << u"progress 0 UnInstall Sorvane"_s;
        QTest::newRow("stop services") << int(RunMode::StopServices) << u"progress 0 Found  Sorvane"_s;
        QTest::newRow("localisation") << int(RunMode::Localization) << u"progress 0  Success Sorvane"_s;
    }

    void theModeOnlyChangesTheProgressLine()
    {
        QFETCH(int, mode);
        QFETCH(QString, line);
        writeFile(joinPath(System::getUserDataPath(), u"qat.st"_s));
        files().resetSorvane(static_cast<RunMode>(mode));
        QCOMPARE(m_removedFolders.size(), 1);
        QCOMPARE(reported().last(), line);
        QVERIFY(!QFile::exists(joinPath(System::getUserDataPath(), u"qat.st"_s)));
    }

    void missingUserFilesAreNoError()
    {
        files().resetSorvane(RunMode::Install);
        QCOMPARE(reported().last(), u"progress 0 Install Sorvane"_s);
    }

private:
    UserFiles files() { return UserFiles(m_fixture->context()); }

    QString installed(const char *name) const { return m_fixture->test.path(u"NVX/"_s + text(name)); }

    // The reported lines; of an external program only that it was run.
    QStringList reported() const
    {
        QStringList lines;
        for (const QString &line : std::as_const(m_fixture->reporter.lines)) {
            if (line.startsWith(u"0 Command:cmd.exe"_s))
                lines << u"0 Command:cmd.exe"_s;
            else if (!line.startsWith(u"0  output:"_s))
                lines << line;
        }
        return lines;
    }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_sharedData;
    QStringList m_removedFolders;
};

NVX_GUILESS_TEST(tst_user_files)
#include "tst_user_files.moc"
