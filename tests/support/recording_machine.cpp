#include "support/recording_machine.h"

bool RecordingMachine::setProcessVariable(const QByteArray &name, const QByteArray &value)
{
    processVariables.append({name, value});
    return true;
}

Nvx::Util::Turn RecordingMachine::waitForTurn(std::chrono::milliseconds timeout)
{
    turnTimeouts.append(timeout);
    return turns.isEmpty() ? Nvx::Util::Turn::Ours : turns.takeFirst();
}

Nvx::Util::ProgramResult RecordingMachine::run(const Nvx::Util::ProgramCall &call)
{
    calls.append(call);
    if (whileRunning)
        whileRunning(call);
    return programResult;
}

bool RecordingMachine::startDetached(const QString &program, const QStringList &arguments, int waitMs)
{
    starts.append({program, arguments, waitMs});
    return true;
}

void RecordingMachine::notifyAssociationsChanged()
{
    ++associationNotices;
    if (whenNotified)
        whenNotified();
}

qint32 RecordingMachine::createShellLink(const Nvx::Util::ShellLink &link)
{
    shellLinks.append(link);
    return shellLinkResult;
}

void RecordingMachine::tell(Nvx::Util::BoxKind kind, const QString &title, const QString &text)
{
    boxes.append({kind, title, text});
    if (whileTelling)
        whileTelling();
}

Nvx::Util::BoxAnswer RecordingMachine::ask(Nvx::Util::BoxKind kind, const QString &title, const QString &text)
{
    boxes.append({kind, title, text});
    if (whileAsking)
        whileAsking();
    return answer;
}

std::shared_ptr<void> RecordingMachine::holdLogoff(const QString &title, const QString &reason)
{
    logoffReasons.append(title + QStringLiteral(": ") + reason);
    ++logoffHolds;
    return std::shared_ptr<void>(&logoffHolds, [](void *holds) { --*static_cast<int *>(holds); });
}

void RecordingMachine::sleep(std::chrono::milliseconds duration)
{
    sleeps.append(duration);
    if (afterSleep)
        afterSleep();
}
