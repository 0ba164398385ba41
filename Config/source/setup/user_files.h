#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>

/// What the program's runs and the product's work leave behind besides the installed files.
class UserFiles
{
    Q_DECLARE_TR_FUNCTIONS(UserFiles)

public:
    explicit UserFiles(const StepContext &context);

    /// Removes the files that earlier releases and earlier runs have left. What cannot be removed stays.
    void removeOldFiles();

    /// Removes the log of the run. The log is closed by then, so nothing is told.
    void removeLog();

    /// Removes the customisation of the product's user interface, which depends on the language; the product
    /// makes it anew. The mode only names the status line.
    void resetSorvane(RunMode mode);

private:
    StepContext m_context;
};
