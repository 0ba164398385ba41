#include "platform.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

namespace Nvx::Util::Platform {

namespace {

// One that has ended yet still has to be taken note of by its parent is not running.
bool isRunning(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.readAll(); // "NUMBER (NAME) STATE ..."
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

QString commandLine()
{
    QFile file(QStringLiteral("/proc/self/cmdline"));
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
    // Of a program that crashed Qt reports the number of the signal.
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    result.outcome = crashed ? ProgramResult::Outcome::Crashed : ProgramResult::Outcome::Exited;
    result.exitCode = crashed ? 128 + process.exitCode() : process.exitCode();
}

void waitForEnd(qint64 process, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (isRunning(process) && !deadline.hasExpired())
        QThread::msleep(20);
}

} // namespace Nvx::Util::Platform
