#pragma once

#include "run/command_runner.h"
#include "run/step_context.h"

#include <QString>

namespace util {

/// The toolkit's translation tools lupdate and lrelease. Each run is a process of its own and is ended after
/// timeLimitMs; its command and output are logged. The file it makes is replaced whole, and stays as it was
/// when the tool fails. What fails is logged.
class TranslationTools
{
public:
    static constexpr int timeLimitMs = 30000;

    /// The tools are those of the folder; without one, those beside the executable, then those in the PATH.
    TranslationTools(const StepContext &context, const QString &toolsFolder);

    /// Brings the translation file in step with the sources of a qmake project. True when it is.
    bool update(const QString &project, const QString &translations);

    /// Compiles a translation file. True when the compiled file is there.
    bool release(const QString &translations, const QString &compiled);

private:
    QString find(const QString &name) const;
    bool copy(const QString &source, const QString &target);
    bool run(const QString &tool, const QStringList &arguments, const QString &workFolder);

    StepContext m_context;
    CommandRunner m_runner;
    QString m_toolsFolder;
};

} // namespace util
