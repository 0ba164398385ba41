// Where the tool works when nobody has set it up. The folders of a Windows machine are names below the test's
// own folder here.

#include "localization/util_localization_tool.h"
#include "nvx_util/registry_key.h"
#include "run/run_state.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QDir>
#include <QTest>

#include <memory>

class tst_localization_defaults : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_test = std::make_unique<TestMachine>();
        QVERIFY(QDir().mkpath(m_test->path(text("work"))));
        QVERIFY(QDir().mkpath(m_test->path(text("programs"))));
        QVERIFY(QDir::setCurrent(m_test->path(text("work"))));
        Nvx::Util::RegistryKey windows(
            text("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion"));
        QVERIFY(windows.setText(text("ProgramFilesDir"), m_test->path(text("programs"))));
    }

    void cleanup()
    {
        QVERIFY(QDir::setCurrent(QDir::tempPath()));
        m_test.reset();
    }

    void withoutSettingsTheRootIsTheProgramFilesFolderAndThereIsNoShare()
    {
        QCOMPARE(foldersOfARun(), QStringList({text("0 ") + m_test->path(text("programs")), text("0 ")}));
    }

    void theFolderOfTheBuildMachineComesFirst()
    {
        const QString build = text("C:\\build\\NVX2017");
        QVERIFY(QDir().mkdir(build));
        QCOMPARE(foldersOfARun().first(), text("0 ") + build);
    }

    void settingsWithoutARootNameNone()
    {
        writeFile(m_test->path(text("NVX/localization.xml")), "<localization/>");
        QCOMPARE(foldersOfARun(), QStringList({text("0 "), text("0 ")}));
    }

private:
    /// The first two lines of a run, which end with a folder each.
    QStringList foldersOfARun()
    {
        RecordingMachine machine;
        machine.ownFolder = m_test->installDir();
        RecordingReporter reporter;
        RunState state;
        util::util_localization_tool({machine, reporter, state}).runScript();
        return reporter.lines.mid(0, 2);
    }

    std::unique_ptr<TestMachine> m_test;
};

NVX_GUILESS_TEST(tst_localization_defaults)
#include "tst_localization_defaults.moc"
