#pragma once

#include "run/run_state.h"
#include "run/step_context.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_machine.h"

/// What a step receives in a test: a recording machine and reporter, and a run whose install dir is a new
/// folder.
class SetupFixture
{
public:
    SetupFixture()
    {
        using namespace Qt::Literals::StringLiterals;
        machine.ownFolder = test.installDir();
        state.installDir = test.installDir();
        state.modeWords = QStringList{u"Install"_s, u"UnInstall"_s, u"Found "_s, u" Success"_s, u" Failed"_s};
    }

    Nvx::Run::StepContext context() { return {machine, reporter, state}; }

    /// A path below the install dir, written with "/".
    QString installed(const char *name) const
    {
        return test.path(QString::fromLatin1("NVX/") + QString::fromUtf8(name));
    }

    TestMachine test;
    RecordingMachine machine;
    RecordingReporter reporter;
    Nvx::Run::RunState state;
};
