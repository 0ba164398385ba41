#pragma once

#include "run/run_state.h"
#include "run/step_context.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_machine.h"

/// What a step is handed in a test: a recording machine and reporter, and a run whose install dir is a fresh
/// folder.
class SetupFixture
{
public:
    SetupFixture()
    {
        machine.ownFolder = test.installDir();
        state.installDir = test.installDir();
        state.modeWords =
            QStringList{QStringLiteral("Install"), QStringLiteral("UnInstall"), QStringLiteral("Found "),
                        QStringLiteral(" Success"), QStringLiteral(" Failed")};
    }

    StepContext context() { return {machine, reporter, state}; }

    /// A path below the install dir, named with "/".
    QString installed(const char *name) const
    {
        return test.path(QStringLiteral("NVX/") + QString::fromUtf8(name));
    }

    TestMachine test;
    RecordingMachine machine;
    RecordingReporter reporter;
    RunState state;
};
