#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "setup/archive_components.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using Nvx::Util::ProgramCall;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

class tst_archive_components : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_done.clear();
        // The actions in order: a removal as "remove PATH", a program with its arguments.
        m_fixture->machine.whileRunning = [this](const ProgramCall &call) {
            if (call.program == u"cmd.exe"_s) {
                const QString commandLine = QString::fromUtf8(readFile(call.arguments.last()));
                m_done << u"remove "_s + commandLine.section(u'"', 1, 1);
            } else {
                m_done << call.program + u' ' + call.arguments.join(u' ');
            }
        };
    }

    void tutorialsAreUnpackedAfterTheirFolderIsRemoved()
    {
        QCOMPARE(components().installTutorials(RunMode::Install), 0);
        const QString tutorials = Nvx::Util::System::getTutorialsDirPath();
        QCOMPARE(m_done, QStringList({u"remove "_s + tutorials,
                                      sevenZip(installed("en-US/Examples.7z"), tutorials)}));
        QCOMPARE(m_fixture->machine.calls.last().timeoutMs, 30000);
        QCOMPARE(m_fixture->machine.calls.last().workFolder, m_fixture->state.installDir);
        QCOMPARE(titles(), QStringList({u"progress 0 Install Tutorials"_s, u"0 Installing Tutorials"_s}));
    }

    void inEveryOtherModeTheTutorialsAreOnlyRemoved_data() { otherModes(); }
    void inEveryOtherModeTheTutorialsAreOnlyRemoved()
    {
        QFETCH(int, mode);
        QFETCH(QString, word);
        components().installTutorials(static_cast<RunMode>(mode));
        QCOMPARE(m_done, QStringList{u"remove "_s + Nvx::Util::System::getTutorialsDirPath()});
        QCOMPARE(titles(), QStringList{u"progress 0 %1 Tutorials"_s.arg(word)});
    }

    void pythonIsUnpackedAfterItsUnpackedFilesAreRemoved()
    {
        writeFile(installed("Python/Ostrade/NVX/old.pyc"));
        writeFile(installed("Python/Ostrade/NVX/own.py"));
        QCOMPARE(components().installPython(RunMode::Install), 0);
        QCOMPARE(m_done,
                 QStringList({u"remove "_s + installed("Python/DLLs"), u"remove "_s + installed("Python/Lib"),
                              sevenZip(installed("Python/python26_x64.7z"), installed("Python"))}));
        QCOMPARE(m_fixture->machine.calls.last().timeoutMs, -1);
        QVERIFY(!QFile::exists(installed("Python/Ostrade/NVX/old.pyc")));
        QVERIFY(QFile::exists(installed("Python/Ostrade/NVX/own.py")));
        QCOMPARE(titles(),
                 QStringList({u"progress 0 Install Python (locally for NVX)"_s, u"0 Installing Python"_s}));
    }

    void anUninstallRemovesTheWholePythonFolder()
    {
        components().installPython(RunMode::Uninstall);
        QCOMPARE(m_done,
                 QStringList({u"remove "_s + installed("Python/DLLs"), u"remove "_s + installed("Python/Lib"),
                              u"remove "_s + installed("Python")}));
        QCOMPARE(titles(), QStringList{u"progress 0 UnInstall Python (locally for NVX)"_s});
    }

    void everyModeRemovesTheCompiledPythonFiles()
    {
        writeFile(installed("Python/Ostrade/NVX/old.pyc"));
        components().installPython(RunMode::StopServices);
        QCOMPARE(m_done, QStringList({u"remove "_s + installed("Python/DLLs"),
                                      u"remove "_s + installed("Python/Lib")}));
        QVERIFY(!QFile::exists(installed("Python/Ostrade/NVX/old.pyc")));
    }

    void theMertleServerIsUnpackedOverItsOwnFolder()
    {
        setTranslators(u"C:\\Translators"_s);
        QCOMPARE(components().installMertleServer(RunMode::Install), 0);
        const QString mertle = joinPath(u"C:\\Translators"_s, u"NVX_MertleServer"_s);
        QCOMPARE(m_done, QStringList{sevenZip(joinPath(mertle, u"NVX_MertleServer.7z"_s), mertle)});
        QCOMPARE(m_fixture->machine.calls.last().timeoutMs, -1);
        QCOMPARE(titles(),
                 QStringList({u"progress 0 Install Mertle Server"_s, u"0 Installing Mertle Server"_s}));
    }

    void anUninstallRemovesTheMertleServer()
    {
        setTranslators(u"C:\\Translators"_s);
        components().installMertleServer(RunMode::Uninstall);
        QCOMPARE(m_done, QStringList{u"remove "_s + joinPath(u"C:\\Translators"_s, u"NVX_MertleServer"_s)});
    }

    void inOtherModesTheMertleServerStays()
    {
        setTranslators(u"C:\\Translators"_s);
        components().installMertleServer(RunMode::StopServices);
        QVERIFY(m_done.isEmpty());
        QCOMPARE(titles(), QStringList{u"progress 0 Found  Mertle Server"_s});
    }

    void withoutATranslatorsFolderNoProgramIsRun_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("word");
        QTest::newRow("install") << int(RunMode::Install) << u"Install"_s;
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << u"UnInstall"_s;
    }

    void withoutATranslatorsFolderNoProgramIsRun()
    {
        QFETCH(int, mode);
        QFETCH(QString, word);
        QCOMPARE(components().installMertleServer(static_cast<RunMode>(mode)), 0);
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList(
                     {u"progress 0 %1 Mertle Server"_s.arg(word),
                      u"0 No translators folder is set; the Mertle Server is not installed or removed"_s}));
    }

private:
    void otherModes()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("word");
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << u"UnInstall"_s;
        QTest::newRow("stop services") << int(RunMode::StopServices) << u"Found "_s;
    }

    ArchiveComponents components() { return ArchiveComponents(m_fixture->context()); }

    QString installed(const char *name) const { return joinPath(m_fixture->state.installDir, text(name)); }

    QString sevenZip(const QString &archive, const QString &folder) const
    {
        return installed("7z.exe") + u" x "_s + archive + u" -y -o"_s + folder;
    }

    // The lines that the step itself logs.
    QStringList titles() const
    {
        QStringList lines;
        for (const QString &line : m_fixture->reporter.lines) {
            if (line.startsWith(u"progress"_s) || line.startsWith(u"0 Installing"_s))
                lines << line;
        }
        return lines;
    }

    static void setTranslators(const QString &folder)
    {
        Nvx::Util::RegistryKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"_s)
            .setText(u"Folder"_s, folder);
    }

    std::unique_ptr<SetupFixture> m_fixture;
    QStringList m_done;
};

NVX_GUILESS_TEST(tst_archive_components)
#include "tst_archive_components.moc"
