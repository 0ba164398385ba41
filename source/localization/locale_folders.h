#pragma once

#include "run/reporter.h"

#include <QString>
#include <QStringList>

namespace util {

/// The folder "Locale" below the root: one folder per locale, and "collect" with what is handed to the
/// translators, one folder per code of three letters.
class LocaleFolders
{
public:
    /// Without a root every operation fails and touches nothing: a path without one would start at the top of
    /// the current drive.
    LocaleFolders(const QString &root, Reporter &reporter);

    bool hasRoot() const { return m_hasRoot; }

    /// The folder of a locale.
    QString folder(const QString &locale) const;

    /// The folder of what is handed to the translators in the language of a code.
    QString collected(const QString &code) const;

    /// Makes the folder of every language when it is missing, and lets its compiled files be replaced. Logs
    /// each folder that cannot be made and each file that stays protected.
    void prepare();

    /// Puts a copy of every file of every language that is to be handed on into its folder below "collect",
    /// and takes out those that are gone. Logs what cannot be changed.
    void collect();

private:
    void collect(const QString &source, const QString &target);
    bool make(const QString &folder);

    bool m_hasRoot;
    QString m_folder;
    Reporter &m_reporter;
};

/// The patterns of the files that are handed to the translators.
QStringList filesHandedOn();

/// The names of the files in a folder that match one of the patterns, in order.
QStringList matchingFiles(const QString &folder, const QStringList &patterns);

/// Takes the write protection from a file. True when the file may be written to, or is not there.
bool makeWritable(const QString &path);

/// Replaces a file, write-protected or not, by a copy of another, whole. The folder must exist. False when
/// that failed; the target is then as it was.
bool copyWhole(const QString &source, const QString &target);

} // namespace util
