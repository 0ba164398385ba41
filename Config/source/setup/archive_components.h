#pragma once

#include "run/command_runner.h"
#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>

namespace Nvx::Setup {

/// The components that the product ships as 7-Zip archives. Each operation is a step of the installation run:
/// it takes the run mode and always returns 0.
class ArchiveComponents
{
    Q_DECLARE_TR_FUNCTIONS(ArchiveComponents)

public:
    explicit ArchiveComponents(const Run::StepContext &context);

    /// Removes the tutorials folder; on install, unpacks the tutorials into it.
    int installTutorials(Run::RunMode mode);

    /// Removes the unpacked files of the product's private Python; on install, unpacks it again. On
    /// uninstall, removes the whole Python folder.
    int installPython(Run::RunMode mode);

    /// On install, unpacks the translation server over the folder that contains its archive; on uninstall,
    /// removes that folder. Does nothing on a machine without a translators folder.
    int installMertleServer(Run::RunMode mode);

private:
    void unpackTutorials(const QString &tutorials);
    void unpack(const QString &archive, const QString &folder, int timeoutMs);

    Run::StepContext m_context;
    Run::CommandRunner m_runner;
};

} // namespace Nvx::Setup
