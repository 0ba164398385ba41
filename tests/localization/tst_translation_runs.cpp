// The runs of lupdate and lrelease: which program is started, and how its output file is used.

#include "localization/translation_tools.h"
#include "run/run_state.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using Outcome = ProgramResult::Outcome;
using Localization::TranslationTools;

namespace {

/// What a successful tool writes to its output file.
void writeTarget(const ProgramCall &call)
{
    writeFile(call.arguments.last(), "new");
}

} // namespace

class tst_translation_runs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_machine = std::make_unique<RecordingMachine>();
        m_machine->ownFolder = m_folder->path();
        m_reporter = std::make_unique<RecordingReporter>();
        writeFile(path("client.ts"), "old");
        writeFile(path("client.qm"), "old");
    }

    void anUpdateRunsInTheProjectsFolderForUpToThirtySeconds()
    {
        m_machine->whileRunning = writeTarget;
        QVERIFY(tools().update(path("a b/client.pro"), path("client.ts")));
        QCOMPARE(m_machine->calls.size(), 1);
        const ProgramCall call = m_machine->calls.first();
        QCOMPARE(call.workFolder, path("a b"));
        QCOMPARE(call.timeoutMs, 30000);
        QCOMPARE(call.arguments, QStringList({path("a b/client.pro"), u"-ts"_s, path("client.new.ts")}));
        QCOMPARE(readFile(path("client.ts")), QByteArray("new"));
        QVERIFY(!QFile::exists(path("client.new.ts")));
    }

    void anUpdateStartsFromTheExistingFile()
    {
        QByteArray before;
        m_machine->whileRunning = [&](const ProgramCall &call) { before = readFile(call.arguments.last()); };
        QVERIFY(tools().update(path("client.pro"), path("client.ts")));
        QCOMPARE(before, QByteArray("old"));
    }

    void aReleaseIsASeparateRunOfUpToThirtySeconds()
    {
        m_machine->whileRunning = writeTarget;
        QVERIFY(tools().release(path("client.ts"), path("client.qm")));
        QCOMPARE(m_machine->calls.size(), 1);
        QCOMPARE(m_machine->calls.first().timeoutMs, 30000);
        QCOMPARE(m_machine->calls.first().arguments,
                 QStringList({path("client.ts"), u"-qm"_s, path("client.new.qm")}));
        QCOMPARE(readFile(path("client.qm")), QByteArray("new"));
        QVERIFY(!QFile::exists(path("client.new.qm")));
    }

    void aToolThatFailsLeavesTheFileUnchanged_data()
    {
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<bool>("writes");
        QTest::newRow("missing") << Outcome::NotStarted << 0 << false;
        QTest::newRow("exit code 1") << Outcome::Exited << 1 << true;
        QTest::newRow("terminated at the time-out") << Outcome::TimedOut << 0 << true;
        QTest::newRow("crashes") << Outcome::Crashed << 139 << true;
    }

    void aToolThatFailsLeavesTheFileUnchanged()
    {
        QFETCH(const Outcome, outcome);
        QFETCH(const int, exitCode);
        QFETCH(const bool, writes);
        m_machine->programResult = {outcome, exitCode, {}};
        if (writes)
            m_machine->whileRunning = writeTarget;
        QVERIFY(!tools().update(path("client.pro"), path("client.ts")));
        QVERIFY(!tools().release(path("client.ts"), path("client.qm")));
        QCOMPARE(readFile(path("client.ts")), QByteArray("old"));
        QCOMPARE(readFile(path("client.qm")), QByteArray("old"));
        QVERIFY(!QFile::exists(path("client.new.ts")));
        QVERIFY(!QFile::exists(path("client.new.qm")));
    }

    void aReleaseThatWritesNothingFails()
    {
        writeFile(path("client.new.qm"), "left over by a run that was cut off");
        QVERIFY(!tools().release(path("client.ts"), path("client.qm")));
        QCOMPARE(readFile(path("client.qm")), QByteArray("old"));
    }

    void aProtectedFileIsReplaced()
    {
        QVERIFY(QFile::setPermissions(path("client.qm"), QFile::ReadOwner | QFile::ReadUser));
        m_machine->whileRunning = writeTarget;
        QVERIFY(tools().release(path("client.ts"), path("client.qm")));
        QCOMPARE(readFile(path("client.qm")), QByteArray("new"));
    }

    void theToolsInTheGivenFolderAreUsed()
    {
        putTool("tools/" LRELEASE_NAME);
        tools().release(path("client.ts"), path("client.qm"));
        QCOMPARE(m_machine->calls.first().program, path("tools/" LRELEASE_NAME));
    }

    void withoutAFullPathOfAFolderNoToolIsRun_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("no folder") << QString();
        QTest::newRow("a folder relative to the current one") << u"tools"_s;
    }

    void withoutAFullPathOfAFolderNoToolIsRun()
    {
        QFETCH(const QString, folder);
        putTool(LRELEASE_NAME);
        putTool("path/" LRELEASE_NAME);
        putTool("tools/" LRELEASE_NAME);
        const QString before = QDir::currentPath();
        const QByteArray pathBefore = qgetenv("PATH");
        QVERIFY(QDir::setCurrent(m_folder->path()));
        qputenv("PATH", QFile::encodeName(path("path")));
        TranslationTools tools(context(), folder);
        const bool ran = tools.hasTools() || tools.update(path("client.pro"), path("client.ts")) ||
                         tools.release(path("client.ts"), path("client.qm"));
        qputenv("PATH", pathBefore);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(!ran);
        QVERIFY(m_machine->calls.isEmpty());
        QCOMPARE(readFile(path("client.ts")), QByteArray("old"));
    }

    void aToolThatIsMissingInTheFolderIsNotSearchedElsewhere()
    {
        putTool(LRELEASE_NAME);
        putTool("path/" LRELEASE_NAME);
        const QByteArray before = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(path("path")));
        tools().release(path("client.ts"), path("client.qm"));
        qputenv("PATH", before);
        QCOMPARE(m_machine->calls.first().program, path("tools/lrelease"));
    }

private:
    QString path(const char *name) const { return m_folder->path(text(name)); }
    StepContext context() { return {*m_machine, *m_reporter, m_state}; }
    TranslationTools tools() { return {context(), path("tools")}; }

    void putTool(const char *name) const
    {
        writeFile(path(name), "#!/bin/sh\n");
        QFile::setPermissions(path(name), QFile::permissions(path(name)) | QFile::ExeOwner | QFile::ExeUser);
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_translation_runs)
#include "tst_translation_runs.moc"
