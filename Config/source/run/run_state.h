#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the run is for. The numbers are those of the mode words.
enum class RunMode : qint32
{
    Install = 0,
    Uninstall = 1,
    StopServices = 2,
    Localization = 3,
    NotGiven = 4 ///< no option said; the wizard takes it for Install
};

/// What the whole run knows. The engine fills it at start-up, the steps read it.
struct RunState
{
    bool runComplete = false; ///< the installation run is over
    QStringList modeWords;    ///< "Install", "UnInstall", "Found ", " Success", " Failed", untranslated
    RunMode runMode = RunMode::NotGiven;
    bool silent = false;       ///< "-S" was given
    bool registry64 = false;   ///< the registry has a 32-bit part beside its own
    QString locale;            ///< interface language, such as "de-DE"
    QString installDir;        ///< folder of the running executable, native separators, no trailing one
    QString installDirEscaped; ///< installDir with every "\" doubled
    QString currentLocale;     ///< the language that the pages are in
    QString commonDesktop;     ///< desktop folder of all users, empty if there is none
    bool cadSearchSuppressed = false; ///< CAD systems are not searched for
    QStringList pendingNotes;         ///< lines told first when the installation run starts

    /// The word for a mode in the language in force now; empty while the words are not set.
    QString modeWord(RunMode mode) const { return word(static_cast<int>(mode)); }

    /// The word that begins a line about something found, its blank included.
    QString foundWord() const { return word(2); }

    /// The words behind what was done, " Success" and " Failed", likewise.
    QString successWord() const { return word(3); }
    QString failureWord() const { return word(4); }

private:
    QString word(int index) const
    {
        return QCoreApplication::translate("cfg_utilitys", modeWords.value(index).toLatin1().constData());
    }
};
