#include "nvx_util/process_table.h"
#include "platform.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

namespace {

// A zombie, which has ended but whose parent has not waited for it, is not running.
bool isRunning(qint64 process)
{
    QFile file(u"/proc/%1/stat"_s.arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.readAll(); // "NUMBER (NAME) STATE ..."
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

QString commandLine()
{
    QFile file(u"/proc/self/cmdline"_s);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QByteArray arguments = file.readAll();
    arguments.replace('\0', ' ');
    return QString::fromLocal8Bit(arguments).trimmed();
}

QString systemProgram(const QString & /*fileName*/)
{
    return QString();
}

void setArguments(QProcess &process, const ProgramCall &call)
{
    process.setArguments(call.arguments);
}

void setEnd(const QProcess &process, ProgramResult &result)
{
    // For a program that crashed, Qt returns the number of the signal.
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    result.outcome = crashed ? ProgramResult::Outcome::Crashed : ProgramResult::Outcome::Exited;
    result.exitCode = crashed ? 128 + process.exitCode() : process.exitCode();
}

std::unique_ptr<ProgramTree> programTree(QProcess &process)
{
    class SingleProgram final : public ProgramTree
    {
    public:
        explicit SingleProgram(QProcess &program)
            : m_program(program)
        {
        }
        void run() override {}
        void terminate() override { m_program.kill(); }

    private:
        QProcess &m_program;
    };
    return std::make_unique<SingleProgram>(process);
}

void waitForEnd(qint64 process, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (isRunning(process) && !deadline.hasExpired())
        QThread::msleep(20);
}

namespace {

// The programs that the product looks for are Windows programs; no process here may be mistaken for one.
class NoProcesses final : public ProcessTable
{
public:
    QList<ProcessId> ids(int /*atMost*/) override { return {}; }
    std::unique_ptr<OpenedProcess> open(ProcessId /*id*/) override { return nullptr; }
};

} // namespace

ProcessTable &processes()
{
    static NoProcesses table;
    return table;
}

} // namespace Nvx::Util::Platform
