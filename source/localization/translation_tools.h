#pragma once

#include "run/command_runner.h"
#include "run/step_context.h"

#include <QString>

namespace Localization {

/// Qt's translation tools lupdate and lrelease. Each run is a separate process and is terminated after
/// timeLimitMs; its command and output are logged. The file that it writes is replaced whole, and unchanged
/// if the tool fails. Failures are logged.
class TranslationTools
{
public:
    static constexpr int timeLimitMs = 30000;

    /// Uses the tools in the folder, whose path is absolute. Otherwise no tool is run: others could have put
    /// a program with its name into a folder that is searched.
    TranslationTools(const Nvx::Run::StepContext &context, const QString &toolsFolder);

    /// False if the folder of the tools is not known.
    bool hasTools() const;

    /// Updates the translation file from the sources of a qmake project. True on success.
    bool update(const QString &project, const QString &translations);

    /// Compiles a translation file. True on success.
    bool release(const QString &translations, const QString &compiled);

private:
    QString find(const QString &name) const;
    bool copy(const QString &source, const QString &target);
    bool run(const QString &tool, const QStringList &arguments, const QString &workFolder);

    Nvx::Run::StepContext m_context;
    Nvx::Run::CommandRunner m_runner;
    QString m_toolsFolder;
};

} // namespace Localization
