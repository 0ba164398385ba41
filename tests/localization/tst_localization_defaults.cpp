// The folders of the tool without a settings file. The folders of a Windows machine are simulated by relative
// names in the test's folder.

#include "localization/util_localization_tool.h"
#include "nvx_util/registry_key.h"
#include "run/run_state.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QDir>
#include <QTest>

#include <memory>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_localization_defaults : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_test = std::make_unique<TestMachine>();
        QVERIFY(QDir().mkpath(m_test->path(u"work"_s)));
        QVERIFY(QDir().mkpath(m_test->path(u"programs"_s)));
        QVERIFY(QDir::setCurrent(m_test->path(u"work"_s)));
        Nvx::Util::RegistryKey windows(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion"_s);
        QVERIFY(windows.setText(u"ProgramFilesDir"_s, m_test->path(u"programs"_s)));
    }

    void cleanup()
    {
        QVERIFY(QDir::setCurrent(QDir::tempPath()));
        m_test.reset();
    }

    void withoutSettingsTheRootIsTheProgramFilesFolderAndThereIsNoShare()
    {
        QCOMPARE(foldersOfARun(), QStringList({u"0 "_s + m_test->path(u"programs"_s), u"0 "_s}));
    }

    void theFolderOfTheBuildMachineComesFirst()
    {
        const QString build = u"C:\\build\\NVX2017"_s;
        QVERIFY(QDir().mkdir(build));
        QCOMPARE(foldersOfARun().first(), u"0 "_s + build);
    }

    void settingsWithoutARootHaveNoRoot()
    {
        writeFile(m_test->path(u"NVX/localization.xml"_s), "<localization/>");
        QCOMPARE(foldersOfARun(), QStringList({u"0 "_s, u"0 "_s}));
    }

private:
    /// The first two lines of a run, each of which ends with a folder.
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
