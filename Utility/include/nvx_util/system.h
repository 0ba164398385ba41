#pragma once

#include <QString>
#include <QStringList>

#include <cstddef>

namespace Nvx::Util {

/// The folders, the interface language and the environment of the machine that the product is installed on.
/// Folders have native separators and no trailing one, and are not created unless the comment says so. The
/// Velmora folders:
///
///     per-user data      %APPDATA%\Velmora\NVX 2017
///     all-users data     %ProgramData%\Velmora\SUB-PATH
///     tutorials          %PUBLIC%\Documents\Velmora\NVX 2017\Tutorials
///     flags              the all-users data folder of "NVX 2017"
///
/// On other systems than Windows they are below the folder given by the environment variable NVX_MACHINE, by
/// default "velmora" in the user's data folder.
class System
{
public:
    /// The folder of the running executable.
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

    /// Creates a folder with its parents. True if it exists afterwards.
    static bool makePath(const QString &path);

    /// The locales of the table of languages (languages.h), in its order.
    static QStringList validLocales();

    /// Stores the user's interface language, a locale such as "de-DE". A failure is ignored.
    static void setLocale(const QString &code);

    /// The stored interface language, which need not be a supported one; if none is stored, or something that
    /// is no locale's name, the system's if it is supported, else "en-US".
    static QString getLocale();

    /// The value of a variable of the process's environment; empty if unset.
    static QString getEnv(const QString &name);

    /// The Program Files folder from the registry: for 32-bit programs if thirtyTwoBit is true, else for
    /// 64-bit programs. Empty if it is not in the registry.
    static QString getProgramFilesPathFromRegistry(bool thirtyTwoBit);
};

/// Whether a text can be the name of a locale: letters, digits and hyphens. The name becomes that of a
/// folder, and whoever can write it in the registry must not lead a program to another place.
bool isLocaleName(const QString &text);

/// The locale for a system's name such as "de_DE": "de-DE" if it is in System::validLocales, else "en-US".
QString supportedLocale(QString systemName);

/// The same for the system's locale.
QString supportedSystemLocale();

/// Joins folder and relativePath, which contains "/", with native separators, exactly one between them:
/// joinPath("C:\NVX", "en-US/Examples.7z") is "C:\NVX\en-US\Examples.7z" on Windows.
QString joinPath(const QString &folder, const QString &relativePath);

/// True if the process's standard output is a terminal, where a line can be overwritten.
bool isStandardOutputTerminal();

/// What the maker's products store in the registry for each other.
class Registry
{
public:
    /// Writes the folder of the product's translators into the buffer of capacity characters, with a
    /// terminating zero. The string is empty if no folder is stored or if it does not fit.
    static void readKelvaneTranslatorsFolder(wchar_t *buffer, std::size_t capacity);
};

} // namespace Nvx::Util
