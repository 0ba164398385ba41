#pragma once

#include "nvx_util/machine.h"

#include <memory>

namespace Nvx::Util {

namespace Platform {
class RunLock;
}

/// The machine that this process runs on; most operations only call the functions of Platform. The message
/// boxes need an application object with a user interface.
class NativeMachine : public Machine
{
public:
    QString commandLine() const override;
    QString executableFolder() const override;
    bool setProcessVariable(const QByteArray &name, const QByteArray &value) override;
    Turn waitForTurn(std::chrono::milliseconds timeout) override;
    ProgramResult run(const ProgramCall &call) override;
    bool startDetached(const QString &program, const QStringList &arguments, int waitMs) override;
    std::shared_ptr<void> holdLogoff(const QString &title, const QString &reason) override;
    void sleep(std::chrono::milliseconds duration) override;
    ProcessTable &processes() override;
    ServiceControl &services() override;
    QString commonDesktopFolder() const override;
    void notifyAssociationsChanged() override;
    qint32 createShellLink(const ShellLink &link) override;
    void tell(BoxKind kind, const QString &title, const QString &text) override;
    BoxAnswer ask(BoxKind kind, const QString &title, const QString &text) override;

private:
    std::shared_ptr<Platform::RunLock> m_runLock;
};

} // namespace Nvx::Util
