// Scripts that another program reads with an administrator's rights, while somebody tries to put their own in
// their place.

#include "run/command_runner.h"
#include "setup/file_associations.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"

#include <QTest>

using Nvx::Util::ProgramCall;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Tries to remove, replace and overwrite the script of each program that is started, and counts what
/// succeeds.
class Intruder
{
public:
    explicit Intruder(SetupFixture &fixture)
    {
        fixture.machine.whileRunning = [this](const ProgramCall &call) {
            const QString script = call.arguments.last();
            m_scripts += QFile::exists(script) ? 1 : 0;
            m_successes += writeBytes(script, "mine") ? 1 : 0;
            m_successes += QFile::rename(script, script + u".away"_s) ? 1 : 0;
            m_successes += QFile::remove(script) ? 1 : 0;
        };
    }

    int scripts() const { return m_scripts; }
    int successes() const { return m_successes; }

private:
    int m_scripts = 0;
    int m_successes = 0;
};

} // namespace

class tst_scripts_held : public QObject
{
    Q_OBJECT

private slots:
    void batchFileCannotBeChangedWhileItRuns()
    {
        SetupFixture fixture;
        const Intruder intruder(fixture);
        CommandRunner(fixture.context()).removeDirectory(u"C:\\a"_s);
        QCOMPARE(intruder.scripts(), 1);
        QCOMPARE(intruder.successes(), 0);
        QVERIFY(!QFile::exists(fixture.state.installDir + u"work.bat"_s));
    }

    void registryScriptCannotBeChangedWhileItIsImported()
    {
        SetupFixture fixture;
        fixture.state.installDirEscaped = u"C:\\\\NVX"_s;
        const Intruder intruder(fixture);
        Nvx::Setup::createFileAssociations(fixture.context(), RunMode::Install);
        QCOMPARE(intruder.scripts(), 2);
        QCOMPARE(intruder.successes(), 0);
        QVERIFY(!QFile::exists(fixture.installed("FileAssociations.reg")));
    }
};

NVX_GUILESS_TEST(tst_scripts_held)
#include "tst_scripts_held.moc"
