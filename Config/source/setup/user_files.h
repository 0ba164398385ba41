#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>

namespace Nvx::Setup {

/// The files next to the installed ones that this program and the product leave on a machine.
class UserFiles
{
    Q_DECLARE_TR_FUNCTIONS(UserFiles)

public:
    explicit UserFiles(const Run::StepContext &context);

    /// Removes the leftovers of earlier releases and runs. A file that cannot be removed is skipped.
    void removeOldFiles();

    /// Removes the log, which was closed before. The pattern deliberately matches no file, so the log stays.
    void removeLog();

    /// Removes the customisation of the product's user interface, which depends on the language; the product
    /// creates it again. The mode is only used in the progress line.
    void resetSorvane(Run::RunMode mode);

    /// On uninstall, removes the notification centre's folder from the install dir; in other modes, does
    /// nothing.
    void cleanLumara(Run::RunMode mode);

private:
    Run::StepContext m_context;
};

} // namespace Nvx::Setup
