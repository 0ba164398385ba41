#pragma once

#include "nvx_util/machine.h"
#include "nvx_util/shell_link.h"
#include "support/recording_processes.h"
#include "support/recording_services.h"

#include <QList>
#include <QPair>

#include <functional>

/// A machine that records all requests and returns what the test sets.
class RecordingMachine : public Nvx::Util::Machine
{
public:
    /// A message box that was shown.
    struct Box
    {
        Nvx::Util::BoxKind kind;
        QString title;
        QString text;
    };

    /// A program that was started and not waited for.
    struct Start
    {
        QString program;
        QStringList arguments;
        int waitMs;
    };

    // What it returns.
    QList<Nvx::Util::Turn> turns; ///< one for each request, then Ours
    QString ownCommandLine = QStringLiteral("NVXConfig.exe");
    QString ownFolder;
    QString desktop = QStringLiteral("C:\\Users\\Public\\Desktop");
    Nvx::Util::ProgramResult programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 0, {}};
    qint32 shellLinkResult = 0;
    Nvx::Util::BoxAnswer answer = Nvx::Util::BoxAnswer::Yes;

    /// Called while a program is supposed to run.
    std::function<void(const Nvx::Util::ProgramCall &)> whileRunning;

    /// Called while a message box without a question is open.
    std::function<void()> whileTelling;

    /// Called while a question is open.
    std::function<void()> whileAsking;

    /// Called when the shell is notified of changed associations.
    std::function<void()> whenNotified;

    /// The running processes.
    RecordingProcesses running;

    /// The service.
    RecordingServices service;

    // The requests.
    QList<std::chrono::milliseconds> turnTimeouts;
    QList<Nvx::Util::ProgramCall> calls;
    QList<Start> starts;
    QList<Box> boxes;
    QList<QPair<QByteArray, QByteArray>> processVariables;
    int associationNotices = 0;
    QList<Nvx::Util::ShellLink> shellLinks;
    QList<std::chrono::milliseconds> sleeps;
    QStringList logoffReasons;
    int logoffHolds = 0; ///< at present

    /// Called after each sleep, which takes no time.
    std::function<void()> afterSleep;

    QString commandLine() const override { return ownCommandLine; }
    QString executableFolder() const override { return ownFolder; }
    bool setProcessVariable(const QByteArray &name, const QByteArray &value) override;
    Nvx::Util::Turn waitForTurn(std::chrono::milliseconds timeout) override;
    Nvx::Util::ProgramResult run(const Nvx::Util::ProgramCall &call) override;
    bool startDetached(const QString &program, const QStringList &arguments, int waitMs) override;
    std::shared_ptr<void> holdLogoff(const QString &title, const QString &reason) override;
    void sleep(std::chrono::milliseconds duration) override;
    Nvx::Util::ProcessTable &processes() override { return running; }
    Nvx::Util::ServiceControl &services() override { return service; }
    QString commonDesktopFolder() const override { return desktop; }
    void notifyAssociationsChanged() override;
    qint32 createShellLink(const Nvx::Util::ShellLink &link) override;
    void tell(Nvx::Util::BoxKind kind, const QString &title, const QString &text) override;
    Nvx::Util::BoxAnswer ask(Nvx::Util::BoxKind kind, const QString &title, const QString &text) override;
};
