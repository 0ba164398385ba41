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

class tst_archive_components : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_done.clear();
        // What is done, in order: each removal as "remove PATH", each program with its arguments.
        m_fixture->machine.whileRunning = [this](const ProgramCall &call) {
            if (call.program == text("cmd.exe")) {
                const QString commandLine = QString::fromUtf8(readFile(call.arguments.last()));
                m_done << text("remove ") + commandLine.section(QLatin1Char('"'), 1, 1);
            } else {
                m_done << call.program + QLatin1Char(' ') + call.arguments.join(QLatin1Char(' '));
            }
        };
    }

    void tutorialsAreUnpackedIntoAnEmptiedFolder()
    {
        QCOMPARE(components().installTutorials(RunMode::Install), 0);
        const QString tutorials = Nvx::Util::System::getTutorialsDirPath();
        QCOMPARE(m_done, QStringList({text("remove ") + tutorials,
                                      sevenZip(installed("en-US/Examples.7z"), tutorials)}));
        QCOMPARE(m_fixture->machine.calls.last().timeoutMs, 30000);
        QCOMPARE(m_fixture->machine.calls.last().workFolder, m_fixture->state.installDir);
        QCOMPARE(titles(),
                 QStringList({text("progress 0 Install Tutorials"), text("0 Installing Tutorials")}));
    }

    void inEveryOtherModeTheTutorialsAreOnlyRemoved_data() { otherModes(); }
    void inEveryOtherModeTheTutorialsAreOnlyRemoved()
    {
        QFETCH(int, mode);
        QFETCH(QString, word);
        components().installTutorials(static_cast<RunMode>(mode));
        QCOMPARE(m_done, QStringList{text("remove ") + Nvx::Util::System::getTutorialsDirPath()});
        QCOMPARE(titles(), QStringList{text("progress 0 %1 Tutorials").arg(word)});
    }

    void pythonIsUnpackedOverWhatIsLeftOfIt()
    {
        writeFile(installed("Python/Ostrade/NVX/old.pyc"));
        writeFile(installed("Python/Ostrade/NVX/own.py"));
        QCOMPARE(components().installPython(RunMode::Install), 0);
        QCOMPARE(m_done, QStringList({text("remove ") + installed("Python/DLLs"),
                                      text("remove ") + installed("Python/Lib"),
                                      sevenZip(installed("Python/python26_x64.7z"), installed("Python"))}));
        QCOMPARE(m_fixture->machine.calls.last().timeoutMs, -1);
        QVERIFY(!QFile::exists(installed("Python/Ostrade/NVX/old.pyc")));
        QVERIFY(QFile::exists(installed("Python/Ostrade/NVX/own.py")));
        QCOMPARE(titles(), QStringList({text("progress 0 Install Python (locally for NVX)"),
                                        text("0 Installing Python")}));
    }

    void anUninstallRemovesPythonWhole()
    {
        components().installPython(RunMode::Uninstall);
        QCOMPARE(m_done, QStringList({text("remove ") + installed("Python/DLLs"),
                                      text("remove ") + installed("Python/Lib"),
                                      text("remove ") + installed("Python")}));
        QCOMPARE(titles(), QStringList{text("progress 0 UnInstall Python (locally for NVX)")});
    }

    void inAnyModeTheCompiledFilesOfPythonGo()
    {
        writeFile(installed("Python/Ostrade/NVX/old.pyc"));
        components().installPython(RunMode::StopServices);
        QCOMPARE(m_done, QStringList({text("remove ") + installed("Python/DLLs"),
                                      text("remove ") + installed("Python/Lib")}));
        QVERIFY(!QFile::exists(installed("Python/Ostrade/NVX/old.pyc")));
    }

    void theMertleServerIsUnpackedOverItsOwnFolder()
    {
        setTranslators(text("C:\\Translators"));
        QCOMPARE(components().installMertleServer(RunMode::Install), 0);
        const QString mertle = joinPath(text("C:\\Translators"), text("NVX_MertleServer"));
        QCOMPARE(m_done, QStringList{sevenZip(joinPath(mertle, text("NVX_MertleServer.7z")), mertle)});
        QCOMPARE(m_fixture->machine.calls.last().timeoutMs, -1);
        QCOMPARE(titles(),
                 QStringList({text("progress 0 Install Mertle Server"), text("0 Installing Mertle Server")}));
    }

    void anUninstallRemovesTheMertleServer()
    {
        setTranslators(text("C:\\Translators"));
        components().installMertleServer(RunMode::Uninstall);
        QCOMPARE(m_done,
                 QStringList{text("remove ") + joinPath(text("C:\\Translators"), text("NVX_MertleServer"))});
    }

    void withOtherModesTheMertleServerStays()
    {
        setTranslators(text("C:\\Translators"));
        components().installMertleServer(RunMode::StopServices);
        QVERIFY(m_done.isEmpty());
        QCOMPARE(titles(), QStringList{text("progress 0 Found  Mertle Server")});
    }

    void withoutATranslatorsFolderNothingIsTouched_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("word");
        QTest::newRow("install") << int(RunMode::Install) << text("Install");
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << text("UnInstall");
    }

    void withoutATranslatorsFolderNothingIsTouched()
    {
        QFETCH(int, mode);
        QFETCH(QString, word);
        QCOMPARE(components().installMertleServer(static_cast<RunMode>(mode)), 0);
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("progress 0 %1 Mertle Server").arg(word),
                              text("0 There is no translators folder, the Mertle Server is left alone")}));
    }

private:
    void otherModes()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("word");
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << text("UnInstall");
        QTest::newRow("stop services") << int(RunMode::StopServices) << text("Found ");
    }

    ArchiveComponents components() { return ArchiveComponents(m_fixture->context()); }

    QString installed(const char *name) const { return joinPath(m_fixture->state.installDir, text(name)); }

    QString sevenZip(const QString &archive, const QString &folder) const
    {
        return installed("7z.exe") + text(" x ") + archive + text(" -y -o") + folder;
    }

    // The lines that are not those of the command runner.
    QStringList titles() const
    {
        QStringList lines;
        for (const QString &line : m_fixture->reporter.lines) {
            if (line.startsWith(text("progress")) || line.startsWith(text("0 Installing")))
                lines << line;
        }
        return lines;
    }

    static void setTranslators(const QString &folder)
    {
        Nvx::Util::RegistryKey(text("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"))
            .setText(text("Folder"), folder);
    }

    std::unique_ptr<SetupFixture> m_fixture;
    QStringList m_done;
};

NVX_GUILESS_TEST(tst_archive_components)
#include "tst_archive_components.moc"
