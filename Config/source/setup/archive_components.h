#pragma once

#include "run/command_runner.h"
#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>

/// The components that the product brings as 7-Zip archives. Each operation is a step of the installation
/// run: it takes the run mode and always returns 0.
class ArchiveComponents
{
    Q_DECLARE_TR_FUNCTIONS(ArchiveComponents)

public:
    explicit ArchiveComponents(const StepContext &context);

    /// Empties the tutorials folder, and on install unpacks the tutorials into it.
    int installTutorials(RunMode mode);

    /// Removes what was unpacked of the product's private Python, and on install unpacks it; an uninstall
    /// removes the Python folder whole.
    int installPython(RunMode mode);

    /// Unpacks the translation server over the folder that holds its archive, or removes that folder. Nothing
    /// is touched when the machine has no translators folder.
    int installMertleServer(RunMode mode);

private:
    void unpack(const QString &archive, const QString &folder, int timeoutMs);

    StepContext m_context;
    CommandRunner m_runner;
};
