#pragma once

#include <QString>
#include <QStringList>

namespace Nvx::Util {

/// The folders, the interface language and the environment of the machine that the product is installed on.
/// Every folder is answered with native separators and without a trailing one; none is created here unless
/// the operation says so. The Velmora folders:
///
///     per-user data      %APPDATA%\Velmora\NVX 2017
///     all-users data     %ProgramData%\Velmora\SUB-PATH
///     tutorials          %PUBLIC%\Documents\Velmora\NVX 2017\Tutorials
///     flags              the all-users data folder of "NVX 2017"
///
/// Where there is no Windows, the folders lie below the folder that the environment variable NVX_MACHINE
/// names, by default "velmora" in the user's data folder.
class System
{
public:
    /// The folder that holds the running executable.
    static QString getCurrentExePath();

    /// The product's per-user data folder.
    static QString getUserDataPath();

    /// The all-users data folder of the maker's product or component subPath, such as "NVX 2017".
    static QString getProgramDataPath(const QString &subPath);

    /// The process's current working folder.
    static QString getWorkingDirPath();

    /// The folder into which the tutorials are unpacked.
    static QString getTutorialsDirPath();

    /// The folder of the product's marker files.
    static QString getFlagsDirPath();

    /// Creates a folder with its parents. True when it exists afterwards.
    static bool makePath(const QString &path);

    /// The supported interface languages, in the order in which they are offered to the user.
    static QStringList validLocales();

    /// Remembers the user's interface language, a code such as "de-DE". A machine that refuses is not told.
    static void setLocale(const QString &code);

    /// The remembered interface language; when there is none, the system's if it is supported, else "en-US".
    static QString getLocale();

    /// The value of a variable of the process's environment, empty if unset.
    static QString getEnv(const QString &name);

    /// The Program Files folder as the registry records it: the one of 32-bit programs when thirtyTwoBit is
    /// true, else the machine's own. Empty when none is recorded.
    static QString getProgramFilesPathFromRegistry(bool thirtyTwoBit);
};

/// A locale that the system names "de_DE" with a hyphen, "de-DE", when it is one of System::validLocales,
/// else "en-US".
QString supportedLocale(QString systemName);

/// That of the system's own locale.
QString supportedSystemLocale();

/// folder and relativePath (written with "/") joined by one native separator, with native separators
/// throughout: joinPath("C:\NVX", "en-US/Examples.7z") is "C:\NVX\en-US\Examples.7z" on Windows.
QString joinPath(const QString &folder, const QString &relativePath);

} // namespace Nvx::Util
