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

class tst_user_files : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_removedFolders.clear();
        m_fixture->machine.ownFolder = m_fixture->test.path(text("program"));
        m_sharedData = System::getProgramDataPath(text("NVX 2017"));
        m_fixture->machine.whileRunning = [this](const ProgramCall &call) {
            const QString commandLine = QString::fromUtf8(readFile(call.arguments.last()));
            m_removedFolders << commandLine.section(QLatin1Char('"'), 1, 1);
        };
    }

    void oldFilesAreRemovedInOrder()
    {
        writeFile(installed("a.new"));
        writeFile(installed("plugins/Reports/report.pyc"));
        writeFile(joinPath(m_sharedData, text("old.dat")));
        files().removeOldFiles();
        QCOMPARE(m_removedFolders, QStringList{joinPath(m_fixture->machine.ownFolder, text("Launchers"))});
        QCOMPARE(told(),
                 QStringList({text("0 Removing:") + m_fixture->state.installDir + text("/a.new"),
                              text("0 Command:cmd.exe"), text("0 Remove: ") + m_sharedData + text("*.dat"),
                              text("0 Removing:") + m_sharedData + text("/old.dat"),
                              text("0 Remove: Report .pyc files"),
                              text("0 Removing:") + installed("plugins/Reports") + text("/report.pyc")}));
    }

    void onlyFilesThatMatchGo_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("stays");
        const auto row = [](const char *name, const char *file, bool stays) {
            QTest::newRow(name) << text(file) << stays;
        };
        row("a leftover of an update", "NVX/matprop.new", false);
        row("in capitals", "NVX/MATPROP.NEW", false);
        row("the pattern within the name", "NVX/A.NEW.TXT", false);
        row("no such ending", "NVX/renewal.txt", true);
        row("the system's description", "NVX/systeminfo2012.xml", true);
        row("the log", "NVX/NVXConfig.log", true);
        row("a leftover in a sub-folder", "NVX/en-US/matprop.new", true);
        row("a report's compiled file", "NVX/plugins/Reports/a.pyc", false);
        row("a report", "NVX/plugins/Reports/a.py", true);
        row("a compiled file elsewhere", "NVX/plugins/a.pyc", true);
        row("shared values", "ProgramData/Velmora/NVX 2017/a.dat", false);
        row("the material database", "ProgramData/Velmora/NVX 2017/matprop.nvxmdb", true);
        row("that of the previous release", "ProgramData/Velmora/NVX 2017/Materials 2016.nvxmdb", true);
        row("values in a sub-folder", "ProgramData/Velmora/NVX 2017/HPCAnalyze/a.dat", true);
    }

    void onlyFilesThatMatchGo()
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
        QCOMPARE(told(),
                 QStringList({text("0 Command:cmd.exe"), text("0 Remove: ") + m_sharedData + text("*.dat"),
                              text("0 Remove: Report .pyc files")}));
    }

    void theSorvaneFolderAndTheUsersSettingsGo()
    {
        for (const char *name : {"qat.st", "ribbon2D.st", "flagset.usr", "own.st"})
            writeFile(joinPath(System::getUserDataPath(), text(name)));
        files().resetSorvane(RunMode::Install);
        const QString folder = joinPath(m_sharedData, text("Sorvane"));
        QCOMPARE(m_removedFolders, QStringList{folder});
        QCOMPARE(told(), QStringList({text("0 Remove: ") + folder, text("0 Command:cmd.exe"),
                                      text("progress 0 Install Sorvane")}));
        QCOMPARE(QDir(System::getUserDataPath()).entryList(QDir::Files), QStringList{text("own.st")});
    }

    void theModeOnlyNamesTheStatusLine_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("line");
        QTest::newRow("install") << int(RunMode::Install) << text("progress 0 Install Sorvane");
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << text("progress 0 UnInstall Sorvane");
        QTest::newRow("stop services") << int(RunMode::StopServices) << text("progress 0 Found  Sorvane");
        QTest::newRow("localisation") << int(RunMode::Localization) << text("progress 0  Success Sorvane");
    }

    void theModeOnlyNamesTheStatusLine()
    {
        QFETCH(int, mode);
        QFETCH(QString, line);
        writeFile(joinPath(System::getUserDataPath(), text("qat.st")));
        files().resetSorvane(static_cast<RunMode>(mode));
        QCOMPARE(m_removedFolders.size(), 1);
        QCOMPARE(told().last(), line);
        QVERIFY(!QFile::exists(joinPath(System::getUserDataPath(), text("qat.st"))));
    }

    void missingUserFilesAreNoError()
    {
        files().resetSorvane(RunMode::Install);
        QCOMPARE(told().last(), text("progress 0 Install Sorvane"));
    }

private:
    UserFiles files() { return UserFiles(m_fixture->context()); }

    QString installed(const char *name) const { return m_fixture->test.path(text("NVX/") + text(name)); }

    // What was reported, of external programs only that one ran.
    QStringList told() const
    {
        QStringList lines;
        for (const QString &line : std::as_const(m_fixture->reporter.lines)) {
            if (line.startsWith(text("0 Command:cmd.exe")))
                lines << text("0 Command:cmd.exe");
            else if (!line.startsWith(text("0  output:")))
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
