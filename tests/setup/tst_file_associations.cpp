#include "nvx_util/code_page.h"
#include "setup/association_scripts.h"
#include "setup/file_associations.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray scriptOf(const QStringList &lines)
{
    return (lines.join(u'\n') + u'\n').toUtf8();
}

} // namespace

class tst_file_associations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_imported.clear();
        m_fixture->state.installDirEscaped = u"C:\\\\NVX"_s;
        m_script = m_fixture->installed("FileAssociations.reg");
        m_fixture->machine.whileRunning = [this](const ProgramCall &call) {
            m_imported << readFile(call.arguments.last());
        };
    }

    void anInstallRemovesTheTypesAndThenCreatesThem()
    {
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_imported, QList<QByteArray>({scriptOf(removal()), scriptOf(creation())}));
    }

    void inEveryOtherModeTheTypesAreOnlyRemoved_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
        QTest::newRow("stop services") << int(RunMode::StopServices);
        QTest::newRow("no mode") << int(RunMode::NotGiven);
    }

    void inEveryOtherModeTheTypesAreOnlyRemoved()
    {
        QFETCH(int, mode);
        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        QCOMPARE(m_imported, QList<QByteArray>{scriptOf(removal())});
    }

    void theSystemsRegistryEditorImportsSilently()
    {
        run(RunMode::Install);
        QCOMPARE(m_fixture->machine.calls.size(), 2);
        for (const ProgramCall &call : std::as_const(m_fixture->machine.calls)) {
            QVERIFY(call.place == ProgramCall::Place::SystemFolder);
            QCOMPARE(call.program, u"regedit"_s);
            QCOMPARE(call.arguments, QStringList({u"-s"_s, m_script}));
            QCOMPARE(call.workFolder, m_fixture->state.installDir);
            QCOMPARE(call.timeoutMs, 30000);
        }
    }

    void theScriptAndItsImportsAreLogged()
    {
        run(RunMode::Install);
        const QStringList import = {u"0 Command:regedit -s "_s + m_script,
                                    u"0 WorkDir:"_s + m_fixture->state.installDir, u"0 Output:"_s};
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"progress 0 Create file associations"_s, u"0 "_s + m_script}) + import +
                     import);
    }

    void theScriptIsRemovedAfterTheImport()
    {
        run(RunMode::Install);
        QVERIFY(!QFile::exists(m_script));
    }

    void anExistingScriptIsNeverImported_data()
    {
        QTest::addColumn<bool>("writeProtected");
        QTest::newRow("writable") << false;
        QTest::newRow("write-protected") << true;
    }

    void anExistingScriptIsNeverImported()
    {
        QFETCH(bool, writeProtected);
        writeFile(m_script, "foreign");
        if (writeProtected)
            QFile::setPermissions(m_script, QFile::ReadOwner);
        run(RunMode::Uninstall);
        QCOMPARE(m_imported, QList<QByteArray>{scriptOf(removal())});
        QVERIFY(!QFile::exists(m_script));
    }

    void aScriptThatCannotBeCreatedIsADiagnosticWarning()
    {
        const RecordedDiagnostics diagnostics;
        QVERIFY(QDir().mkpath(m_script)); // a folder has its name
        QCOMPARE(run(RunMode::Install), 0);
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({u"progress 0 Create file associations"_s, u"0 "_s + m_script}));
        QCOMPARE(diagnostics.list(), QStringList(2, u"Unable to create "_s + m_script));
        QVERIFY(QDir(m_script).exists());
    }

    void aMissingRegistryEditorDoesNotStopTheStep()
    {
        m_fixture->machine.programResult = {ProgramResult::Outcome::NotStarted, 0, {}};
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_fixture->reporter.lines.filter(u"-2   The program could not be started."_s).size(), 2);
        QVERIFY(!QFile::exists(m_script));
    }

    void scriptsAreWrittenInTheSystemsCodePage()
    {
        const QString folder = u"C:\\\\größe"_s;
        m_fixture->state.installDirEscaped = folder;
        run(RunMode::Install);
        QCOMPARE(m_imported.size(), 2);
        QCOMPARE(m_imported.last().count(Nvx::Util::toAnsi(folder).value_or("")), 6);
    }

    void aFolderThatTheCodePageCannotWriteIsNotImported()
    {
        m_fixture->state.installDirEscaped = u"C:\\\\"_s + QChar(0xD800);
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_imported, QList<QByteArray>{scriptOf(removal())});
        QCOMPARE(m_fixture->reporter.lines.last(),
                 u"1 The folder's path cannot be written in the system's code page; no files are associated "
                 "with the product: "_s +
                     m_fixture->state.installDir);
    }

    void withoutAnInstallDirOnlyTheRemovalIsImported()
    {
        m_fixture->state.installDirEscaped.clear();
        run(RunMode::Install);
        QCOMPARE(m_imported, QList<QByteArray>{scriptOf(removal())});
        QCOMPARE(m_fixture->reporter.lines.last(),
                 u"1 The install folder is unknown; no files are associated"_s);
    }

private:
    int run(RunMode mode) { return createFileAssociations(m_fixture->context(), mode); }

    static AssociationNames names() { return associationNamesOf(u"2017"_s); }
    static QStringList removal() { return removalScript(names()); }
    QStringList creation() const { return creationScript(names(), m_fixture->state.installDirEscaped); }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_script;
    QList<QByteArray> m_imported;
};

NVX_GUILESS_TEST(tst_file_associations)
#include "tst_file_associations.moc"
