#pragma once

#include "cfg_utilities/cfg_utilitys.h"
#include "support/recording_machine.h"
#include "support/test_machine.h"

#include <memory>

/// An engine on a recording machine whose folders lie in a fresh test folder.
class EngineFixture
{
public:
    EngineFixture() { machine.ownFolder = test.installDir(); }

    /// Starts the engine with these options behind the program's name.
    cfg_utilitys &start(const QString &options = QString())
    {
        engine.reset();
        machine.ownCommandLine = QStringLiteral("NVXConfig.exe ") + options;
        engine = std::make_unique<cfg_utilitys>(machine);
        return *engine;
    }

    /// The lines of the log so far.
    QStringList lines() const { return logLines(test.path(QStringLiteral("NVX/NVXConfig.log"))); }

    /// A path below the install dir, named with "/".
    QString installed(const char *name) const
    {
        return test.path(QStringLiteral("NVX/") + QString::fromUtf8(name));
    }

    TestMachine test;
    RecordingMachine machine;
    std::unique_ptr<cfg_utilitys> engine;
};
