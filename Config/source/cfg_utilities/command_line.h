#pragma once

#include "run/run_state.h"

#include <QString>

#include <functional>

/// What the command line says about the run.
struct CommandLineReading
{
    RunMode runMode = RunMode::NotGiven;
    bool silent = false;
    QString locale;
    bool abandoned = false; ///< the user said No at an unknown option; nothing after it was read
};

/// Reads the whole command line of the process, program path first. It is split at blanks, quotes have no
/// meaning, options are told by how they begin, with case, and the later of two modes wins. The locale stays
/// systemLocale unless an option sets it. For each unknown option other than the first token,
/// goOnAfterUnknownOption is called; if it returns false, the reading is abandoned: the mode and the locale
/// stay as they were read, but the run is not silent.
CommandLineReading readCommandLine(const QString &commandLine, const QString &systemLocale,
                                   const std::function<bool()> &goOnAfterUnknownOption);

/// The locale selected by the text after "-L". This is the text itself, spelled as it was given, if it occurs
/// anywhere in "DE-DE,FR-FR,...", the list of the translated languages, in any case; an empty text does. For
/// any other text it is "en-US".
QString localeOfOption(const QString &text);

/// The text of the box that an unknown option brings up.
QString usageText();
