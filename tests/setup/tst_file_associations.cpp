#include "nvx_util/code_page.h"
#include "setup/association_scripts.h"
#include "setup/file_associations.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;

namespace {

QByteArray asFile(const QStringList &lines)
{
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
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
        m_fixture->state.installDirEscaped = text("C:\\\\NVX");
        m_script = m_fixture->installed("FileAssociations.reg");
        m_fixture->machine.whileRunning = [this](const ProgramCall &call) {
            m_imported << readFile(call.arguments.last());
        };
    }

    void anInstallRemovesTheTypesAndThenCreatesThem()
    {
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_imported, QList<QByteArray>({asFile(removal()), asFile(creation())}));
    }

    void inEveryOtherModeTheTypesAreOnlyRemoved_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
        QTest::newRow("stop services") << int(RunMode::StopServices);
        QTest::newRow("none given") << int(RunMode::NotGiven);
    }

    void inEveryOtherModeTheTypesAreOnlyRemoved()
    {
        QFETCH(int, mode);
        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        QCOMPARE(m_imported, QList<QByteArray>{asFile(removal())});
    }

    void theRegistryEditorOfTheSystemImportsSilently()
    {
        run(RunMode::Install);
        QCOMPARE(m_fixture->machine.calls.size(), 2);
        for (const ProgramCall &call : std::as_const(m_fixture->machine.calls)) {
            QVERIFY(call.place == ProgramCall::Place::SystemFolder);
            QCOMPARE(call.program, text("regedit"));
            QCOMPARE(call.arguments, QStringList({text("-s"), m_script}));
            QCOMPARE(call.workFolder, m_fixture->state.installDir);
            QCOMPARE(call.timeoutMs, 30000);
        }
    }

    void theScriptAndItsImportsAreLogged()
    {
        run(RunMode::Install);
        const QStringList import = {text("0 Command:regedit -s ") + m_script,
                                    text("0 WorkDir:") + m_fixture->state.installDir, text("0 Output:")};
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("progress 0 Create file associations"), text("0 ") + m_script}) + import +
                     import);
    }

    void theScriptIsThereOnlyWhileItIsImported()
    {
        run(RunMode::Install);
        QVERIFY(!QFile::exists(m_script));
    }

    void anOldScriptIsNeverImported_data()
    {
        QTest::addColumn<bool>("writeProtected");
        QTest::newRow("usual") << false;
        QTest::newRow("write-protected") << true;
    }

    void anOldScriptIsNeverImported()
    {
        QFETCH(bool, writeProtected);
        writeFile(m_script, "somebody else's");
        if (writeProtected)
            QFile::setPermissions(m_script, QFile::ReadOwner);
        run(RunMode::Uninstall);
        QCOMPARE(m_imported, QList<QByteArray>{asFile(removal())});
        QVERIFY(!QFile::exists(m_script));
    }

    void aScriptThatCannotBeCreatedIsNotLoggedAndNothingIsImported()
    {
        const RecordedDiagnostics diagnostics;
        QVERIFY(QDir().mkpath(m_script)); // a folder is in its place
        QCOMPARE(run(RunMode::Install), 0);
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({text("progress 0 Create file associations"), text("0 ") + m_script}));
        QCOMPARE(diagnostics.list(), QStringList(2, text("Unable to create ") + m_script));
        QVERIFY(QDir(m_script).exists());
    }

    void aMissingRegistryEditorStopsNothing()
    {
        m_fixture->machine.programResult = {ProgramResult::Outcome::NotStarted, 0, {}};
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_fixture->reporter.lines.filter(text("-2   The program could not be started.")).size(), 2);
        QVERIFY(!QFile::exists(m_script));
    }

    void umlautsArriveInTheCodePage()
    {
        const QString folder = text("C:\\\\größe");
        m_fixture->state.installDirEscaped = folder;
        run(RunMode::Install);
        QCOMPARE(m_imported.size(), 2);
        QCOMPARE(m_imported.last().count(Nvx::Util::toAnsi(folder).value_or("")), 6);
    }

    void aFolderThatTheCodePageCannotWriteIsNotWrittenWrong()
    {
        m_fixture->state.installDirEscaped = text("C:\\\\") + QChar(0xD800);
        QCOMPARE(run(RunMode::Install), 0);
        QCOMPARE(m_imported, QList<QByteArray>{asFile(removal())});
        QCOMPARE(m_fixture->reporter.lines.last(),
                 text("1 The system's code page cannot write the folder, no files are associated with the "
                      "product: ") +
                     m_fixture->state.installDir);
    }

    void anInstallDirLeftUnknownIsNotWritten()
    {
        m_fixture->state.installDirEscaped.clear();
        run(RunMode::Install);
        QCOMPARE(m_imported, QList<QByteArray>{asFile(removal())});
        QCOMPARE(m_fixture->reporter.lines.last(),
                 text("1 The install folder is not known, no files are associated"));
    }

private:
    int run(RunMode mode) { return createFileAssociations(m_fixture->context(), mode); }

    static AssociationNames names() { return associationNamesOf(text("2017")); }
    static QStringList removal() { return removalScript(names()); }
    QStringList creation() const { return creationScript(names(), m_fixture->state.installDirEscaped); }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_script;
    QList<QByteArray> m_imported;
};

NVX_GUILESS_TEST(tst_file_associations)
#include "tst_file_associations.moc"
