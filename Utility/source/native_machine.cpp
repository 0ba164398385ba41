#include "nvx_util/native_machine.h"

#include "nvx_util/system.h"
#include "platform.h"

#include <QMessageBox>
#include <QProcess>

#include <thread>

namespace Nvx::Util {

namespace {

// Appends what the program has written so far, up to the limit. Everything is read, because a program blocks
// when its pipe is full.
void takeOutput(QProcess &process, qsizetype limit, QByteArray &output)
{
    const QByteArray written = process.readAll();
    if (limit < 0)
        output += written;
    else if (output.size() < limit)
        output += written.left(limit - output.size());
}

void waitForEnd(QProcess &process, Platform::ProgramTree &tree, int timeoutMs, ProgramResult &result)
{
    process.waitForFinished(timeoutMs);
    if (process.error() == QProcess::FailedToStart) {
        result.outcome = ProgramResult::Outcome::NotStarted;
    } else if (process.state() != QProcess::NotRunning) {
        tree.terminate();
        process.waitForFinished(5000);
        result.outcome = ProgramResult::Outcome::TimedOut;
    } else {
        Platform::setEnd(process, result);
    }
}

QMessageBox::Icon iconOf(BoxKind kind)
{
    switch (kind) {
    case BoxKind::Warning:
        return QMessageBox::Warning;
    case BoxKind::Critical:
        return QMessageBox::Critical;
    case BoxKind::Question:
        return QMessageBox::Question;
    case BoxKind::Information:
        break;
    }
    return QMessageBox::Information;
}

} // namespace

QString NativeMachine::commandLine() const
{
    return Platform::commandLine();
}

QString NativeMachine::executableFolder() const
{
    return System::getCurrentExePath();
}

bool NativeMachine::setProcessVariable(const QByteArray &name, const QByteArray &value)
{
    return qputenv(name.constData(), value);
}

Turn NativeMachine::waitForTurn(std::chrono::milliseconds timeout)
{
    if (!m_runLock)
        m_runLock = Platform::runLock();
    return m_runLock->wait(timeout);
}

ProgramResult NativeMachine::run(const ProgramCall &call)
{
    const QString program =
        call.place == ProgramCall::Place::SystemFolder ? Platform::systemProgram(call.program) : call.program;
    ProgramResult result;
    if (program.isEmpty())
        return result;

    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(call.workFolder);
    process.setProgram(program);
    Platform::setArguments(process, call);
    const auto take = [&] { takeOutput(process, call.outputLimit, result.output); };
    QObject::connect(&process, &QProcess::readyRead, &process, take);

    const std::unique_ptr<Platform::ProgramTree> tree = Platform::programTree(process);
    process.start(QIODevice::ReadWrite);
    tree->run();
    process.closeWriteChannel(); // a program that waits for input reads the end of the file at once
    waitForEnd(process, *tree, call.timeoutMs, result);
    if (result.outcome != ProgramResult::Outcome::NotStarted)
        take();
    return result;
}

bool NativeMachine::startDetached(const QString &program, const QStringList &arguments, int waitMs)
{
    qint64 process = 0;
    if (!QProcess::startDetached(program, arguments, QString(), &process))
        return false;
    if (waitMs > 0)
        Platform::waitForEnd(process, waitMs);
    return true;
}

std::shared_ptr<void> NativeMachine::holdLogoff(const QString &title, const QString &reason)
{
    return Platform::holdLogoff(title, reason);
}

void NativeMachine::sleep(std::chrono::milliseconds duration)
{
    std::this_thread::sleep_for(duration);
}

ProcessTable &NativeMachine::processes()
{
    return Platform::processes();
}

ServiceControl &NativeMachine::services()
{
    return Platform::services();
}

QString NativeMachine::commonDesktopFolder() const
{
    return Platform::commonDesktopFolder();
}

void NativeMachine::notifyAssociationsChanged()
{
    Platform::notifyAssociationsChanged();
}

qint32 NativeMachine::createShellLink(const ShellLink &link)
{
    return Platform::createShellLink(link);
}

void NativeMachine::tell(BoxKind kind, const QString &title, const QString &text)
{
    QMessageBox(iconOf(kind), title, text, QMessageBox::Ok).exec();
}

BoxAnswer NativeMachine::ask(BoxKind kind, const QString &title, const QString &text)
{
    QMessageBox box(iconOf(kind), title, text, QMessageBox::Yes | QMessageBox::No);
    if (kind != BoxKind::Question)
        box.setDefaultButton(QMessageBox::Yes);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    default:
        return BoxAnswer::Dismissed;
    }
}

} // namespace Nvx::Util
