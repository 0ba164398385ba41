#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Nvx::Run {

/// What the run is for. The numbers are the positions of the mode words.
enum class RunMode : qint32
{
    Install = 0,
    Uninstall = 1,
    StopServices = 2,
    Localization = 3,
    NotGiven = 4 ///< no option sets a mode; the wizard treats it as Install
};

/// The state of the run. The engine fills it at start-up, the steps read it.
struct RunState
{
    bool runComplete = false; ///< the installation run has ended
    QStringList modeWords;    ///< "Install", "UnInstall", "Found ", " Success", " Failed", untranslated
    RunMode runMode = RunMode::NotGiven;
    bool silent = false;       ///< "-S" was given
    bool registry64 = false;   ///< the registry has a 32-bit part next to the 64-bit one
    QString locale;            ///< interface language, such as "de-DE"
    QString installDir;        ///< folder of the running executable, native separators, no trailing one
    QString installDirEscaped; ///< installDir with every "\" doubled
    QString currentLocale;     ///< language of the pages
    QString commonDesktop;     ///< desktop folder of all users; empty if there is none
    bool cadSearchSuppressed = false; ///< do not search for CAD systems
    QStringList pendingNotes;         ///< lines that are logged first when the installation run starts

    /// The word for a mode in the current language; empty if the words are not set.
    QString modeWord(RunMode mode) const { return word(static_cast<int>(mode)); }

    /// The word that begins a line about something found, with its trailing blank.
    QString foundWord() const { return word(2); }

    // The words that end a line about an action, with their leading blank.
    QString successWord() const { return word(3); }
    QString failureWord() const { return word(4); }

private:
    QString word(int index) const
    {
        return QCoreApplication::translate("cfg_utilitys", modeWords.value(index).toLatin1().constData());
    }
};

} // namespace Nvx::Run
