#pragma once

#include "run/reporter.h"

#include <QString>
#include <QStringList>

namespace Localization {

/// The folder "Locale" below the root: a folder for each locale, and "collect" with the copies for the
/// translators, in a folder for each of their codes.
class LocaleFolders
{
public:
    /// If root is empty, every operation fails and touches nothing: a path without a root would start at the
    /// top of the current drive.
    LocaleFolders(const QString &root, Nvx::Run::Reporter &reporter);

    bool hasRoot() const { return m_hasRoot; }

    /// The folder of a locale.
    QString folder(const QString &locale) const;

    /// The folder with the translators' copies of a language, given by its code.
    QString collected(const QString &code) const;

    /// Creates the missing folders of the languages, and removes the write protection of the compiled files
    /// in them. Logs each folder that cannot be created and each file that stays protected.
    void prepare();

    /// Copies the files of every language that are for the translators into its folder below "collect", and
    /// deletes copies of files that no longer exist. Logs what cannot be changed.
    void collect();

private:
    void collect(const QString &source, const QString &target);
    bool make(const QString &folder);

    bool m_hasRoot;
    QString m_folder;
    Nvx::Run::Reporter &m_reporter;
};

/// The patterns of the files for the translators.
QStringList collectedFiles();

/// The sorted names of the files in a folder that match one of the patterns.
QStringList matchingFiles(const QString &folder, const QStringList &patterns);

/// Removes the write protection of a file. True if the file can be written to or does not exist.
bool makeWritable(const QString &path);

/// Replaces a file, even a write-protected one, with a copy of another. The folder must exist. False if that
/// fails; the target is then unchanged.
bool copyWhole(const QString &source, const QString &target);

} // namespace Localization
