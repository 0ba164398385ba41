#pragma once

#include "cfg_utilities/cfg_utilitys.h"
#include "support/recording_machine.h"
#include "support/test_machine.h"

#include <memory>

/// An engine on a recording machine whose folders are in a new test folder.
class EngineFixture
{
public:
    EngineFixture() { machine.ownFolder = test.installDir(); }

    /// Starts the engine with these options after the program's name.
    cfg_utilitys &start(const QString &options = QString())
    {
        using namespace Qt::Literals::StringLiterals;
        engine.reset();
        machine.ownCommandLine = u"NVXConfig.exe "_s + options;
        engine = std::make_unique<cfg_utilitys>(machine);
        return *engine;
    }

    /// The lines of the log so far.
    QStringList lines() const { return logLines(installed("NVXConfig.log")); }

    /// A path below the install dir, written with "/".
    QString installed(const char *name) const
    {
        return test.path(QString::fromLatin1("NVX/") + QString::fromUtf8(name));
    }

    TestMachine test;
    RecordingMachine machine;
    std::unique_ptr<cfg_utilitys> engine;
};
