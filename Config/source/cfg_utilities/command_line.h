#pragma once

#include "run/run_state.h"

#include <QString>

#include <functional>

namespace Nvx::Engine {

/// What the options of the command line say about the run.
struct RunOptions
{
    Run::RunMode runMode = Run::RunMode::NotGiven;
    bool silent = false;
    QString locale;
    bool abandoned = false; ///< the user answered No at an unknown option; the rest was not read
};

/// Reads the options in the command line of the process, which begins with the program path. It is split at
/// blanks; quotes have no meaning. An option is recognised by its first letters, in upper case. Of two modes
/// the later one counts. The locale is systemLocale unless an option sets it. For each unknown option, except
/// as the first token, continueAfterUnknownOption is called; if it returns false, reading ends: the mode and
/// the locale keep the values read so far, but the run is not silent.
RunOptions readRunOptions(const QString &commandLine, const QString &systemLocale,
                          const std::function<bool()> &continueAfterUnknownOption);

/// The locale selected by the text after "-L". This is the text itself, spelled as it was given, if it occurs
/// anywhere in "DE-DE,FR-FR,...", the list of the translated languages, in any case; an empty text does. For
/// any other text it is "en-US".
QString localeOfOption(const QString &text);

/// The text of the message box for an unknown option.
QString runOptionsUsage();

/// Whether a run with this command line shows windows: not if it is silent, stops the services or updates the
/// translations.
bool showsWindows(const QString &commandLine);

} // namespace Nvx::Engine
