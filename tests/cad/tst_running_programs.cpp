// The process table and the guards, tested with real processes. The test sets the user's replies.

#include "cad/process_guard.h"
#include "nvx_util/native_machine.h"
#include "nvx_util/process_table.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "support/checkout.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

using Nvx::Util::BoxAnswer;
using Nvx::Util::BoxKind;

namespace {

// The real machine, except that questions are answered at once.
class AnsweringMachine : public Nvx::Util::NativeMachine
{
public:
    BoxAnswer answer = BoxAnswer::Yes;
    QStringList questions;
    std::function<void()> whileAsking;

    BoxAnswer ask(BoxKind, const QString &, const QString &question) override
    {
        questions << question;
        if (whileAsking)
            whileAsking();
        return answer;
    }
};

// A copy of the sample program, which runs during the lifetime of the object.
class RunningProgram
{
public:
    explicit RunningProgram(const QString &path)
        : m_path(path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile::copy(inCheckout(GUARDED_PROGRAM), path);
        m_process.start(path, QStringList());
        m_started = QTest::qWaitFor([this] { return QFile::exists(m_path + u".running"_s); }, 30000);
    }
    ~RunningProgram()
    {
        if (!isRunning())
            return;
        QFile stop(m_path + u".stop"_s);
        if (!stop.open(QIODevice::WriteOnly) || !m_process.waitForFinished(10000))
            m_process.kill();
    }

    bool hasStarted() const { return m_started; }
    bool isRunning() const { return m_process.state() == QProcess::Running; }

    // Waits for the program to be ended by another process. Returns the exit code, std::nullopt if it still
    // runs.
    std::optional<int> ended()
    {
        if (isRunning() && !m_process.waitForFinished(10000))
            return std::nullopt;
        return m_process.exitCode();
    }

    // Asks it to exit, and waits until it has.
    bool stop()
    {
        QFile file(m_path + u".stop"_s);
        return file.open(QIODevice::WriteOnly) && m_process.waitForFinished(10000);
    }

private:
    QString m_path;
    QProcess m_process;
    bool m_started = false;
};

} // namespace

class tst_running_programs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_machine = std::make_unique<AnsweringMachine>();
        m_reporter = std::make_unique<RecordingReporter>();
        m_state = RunState();
    }

    void aRunningProgramIsListedByItsFileNameAndItsFullPath()
    {
        const QString path = m_folder->path(u"größe 日本/SldWorks.exe"_s);
        const RunningProgram program(path);
        QVERIFY(program.hasStarted());
        Nvx::Util::ProcessTable &processes = m_machine->processes();
        QStringList found;
        const QList<Nvx::Util::ProcessId> ids = processes.ids(1024);
        for (const Nvx::Util::ProcessId id : ids) {
            const auto process = processes.open(id);
            if (process && process->baseName() == u"SldWorks.exe"_s)
                found << process->path();
        }
        QCOMPARE(found.size(), 1);
        QCOMPARE(QFileInfo(found.first()).canonicalFilePath(), QFileInfo(path).canonicalFilePath());
    }

    void aProcessWhoseNamesCannotBeReadIsUnknown()
    {
        RunningProgram program(m_folder->path(u"xtop.exe"_s));
        QVERIFY(program.hasStarted());
        Nvx::Util::ProcessTable &processes = m_machine->processes();
        std::unique_ptr<Nvx::Util::OpenedProcess> found;
        const QList<Nvx::Util::ProcessId> ids = processes.ids(1024);
        for (const Nvx::Util::ProcessId id : ids) {
            auto process = processes.open(id);
            if (process && process->baseName() == u"xtop.exe"_s)
                found = std::move(process);
        }
        QVERIFY(found);
        // The names of a process that has ended cannot be read.
        QVERIFY(program.stop());
        QCOMPARE(found->baseName(), u"<unknown>"_s);
        QCOMPARE(found->path(), u"<unknown>"_s);
    }

    void noMoreIdsAreListedThanAskedFor()
    {
        const QList<Nvx::Util::ProcessId> all = m_machine->processes().ids(1024);
        QVERIFY(all.size() > 2);
        QCOMPARE(m_machine->processes().ids(2), all.mid(0, 2));
    }

    void aMissingProcessCannotBeOpened() { QVERIFY(!m_machine->processes().open(0xfffffff0)); }

    void aProgramThatEndsWhileTheQuestionIsOpenIsNotLogged()
    {
        RunningProgram program(m_folder->path(u"xtop.exe"_s));
        QVERIFY(program.hasStarted());
        m_machine->whileAsking = [&program] { program.stop(); };
        QVERIFY(!guardAgainstRunningCad(context()));
        QCOMPARE(m_machine->questions.size(), 1);
        QVERIFY(program.ended() == std::optional<int>(0));
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void yesEndsEveryCadSystemAndNoOtherProgram()
    {
        RunningProgram first(m_folder->path(u"a/xtop.exe"_s));
        RunningProgram second(m_folder->path(u"b/EDGE.exe"_s));
        RunningProgram other(m_folder->path(u"b/SmoothEdge.exe"_s));
        QVERIFY(first.hasStarted() && second.hasStarted() && other.hasStarted());
        QVERIFY(!guardAgainstRunningCad(context()));
        QCOMPARE(m_machine->questions.size(), 1);
        QVERIFY(first.ended() == std::optional<int>(-1));
        QVERIFY(second.ended() == std::optional<int>(-1));
        QVERIFY(other.isRunning());
        m_reporter->lines.sort();
        QCOMPARE(m_reporter->lines, QStringList({u"0 SolidEdge terminated"_s, u"0 Wildfire terminated"_s}));
    }

    void anyOtherAnswerEndsNothing_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("dismissed");
        QTest::newRow("no") << int(BoxAnswer::No) << false;
        QTest::newRow("dismissed") << int(BoxAnswer::Dismissed) << true;
    }

    void anyOtherAnswerEndsNothing()
    {
        QFETCH(int, answer);
        m_machine->answer = static_cast<BoxAnswer>(answer);
        const RunningProgram cad(m_folder->path(u"Brevant.exe"_s));
        const RunningProgram product(m_folder->path(u"NVX 2017/NVXServer.exe"_s));
        QVERIFY(cad.hasStarted() && product.hasStarted());
        QTEST(guardAgainstRunningCad(context()), "dismissed");
        QTEST(guardAgainstRunningProduct(context(), OnMatch::List), "dismissed");
        QCOMPARE(m_machine->questions,
                 QStringList({runningCadQuestion({u"Brevant"_s}), runningProductQuestion({u"NVXServer"_s})}));
        QVERIFY(cad.isRunning() && product.isRunning());
    }

    void aSilentRunEndsTheProductOfThisReleaseOnly()
    {
        m_state.silent = true;
        RunningProgram own(m_folder->path(u"NVX 2017/NVXMonitor.exe"_s));
        RunningProgram older(m_folder->path(u"NVX 2016/NVXMonitor.exe"_s));
        QVERIFY(own.hasStarted() && older.hasStarted());
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::List));
        QVERIFY(own.ended() == std::optional<int>(-1));
        QVERIFY(older.isRunning());
        QVERIFY(m_machine->questions.isEmpty());
        QCOMPARE(m_reporter->lines.last(), u"0 NVX 2017 Job Monitor terminated"_s);
    }

private:
    StepContext context() { return {*m_machine, *m_reporter, m_state}; }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<AnsweringMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_running_programs)
#include "tst_running_programs.moc"
