#pragma once

#include "nvx_util/result.h"
#include "translation/translation_message.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QIODevice;

namespace Translation {
class TranslationTable;
}

namespace Materials {

/// The context of the material names in a translation table.
QString materialContext();

/// The type of a name that is no longer in the database.
QString obsoleteType();

/// The names with their translations, in the order of the table.
const Translation::TranslationMessages &materialMessages(const Translation::TranslationTable &table);

/// The material names in a table, including obsolete ones.
QSet<QString> namesIn(const Translation::TranslationTable &table);

/// How the names in a database differ from those in a table.
struct NameDifference
{
    QStringList added;      ///< only in the database; sorted by UTF-16 code units
    QSet<QString> obsolete; ///< only in the table
};

NameDifference differenceOf(const QSet<QString> &inDatabase, const QSet<QString> &inTable);

/// The result of a synchronisation; duplicates count once.
struct NameCounts
{
    qsizetype found = 0;    ///< names in the database
    qsizetype added = 0;    ///< names that were not in the table
    qsizetype obsolete = 0; ///< names that are only in the table, including those that were obsolete before

    /// The number that is reported as existing. It is deliberately too low by the obsolete names, and may be
    /// negative.
    qsizetype existing() const { return found - obsolete - added; }
};

struct NameSynchronization
{
    NameCounts counts;
    QStringList added;      ///< the names, sorted
    bool isChanged = false; ///< whether the table was changed
};

/// Synchronises a table with the names of a database. New names are added in their order, unfinished, each as
/// its own translation. Names that are not in the database become obsolete and keep their translation. An
/// obsolete name that is in the database again stays obsolete.
NameSynchronization synchronizeNames(Translation::TranslationTable &table, const QStringList &databaseNames);

/// Reads a translation file from the open device. Fails, with a text for the user, if it is not well formed
/// or not a translation file.
Nvx::Util::Result<Translation::TranslationTable> readTable(QIODevice &device);

/// The update of a translation file.
struct NameUpdate
{
    NameCounts counts;
    QString note; ///< what else the log should say; usually empty
};

/// Synchronises a translation file with a database. The file is replaced whole or not at all, and created if
/// it does not exist. A file that is not a complete translation file is left unchanged. The error is "FILE:
/// REASON", for the log.
Nvx::Util::Result<NameUpdate> updateTranslationFile(const QString &databaseFile,
                                                    const QString &translationFile);

} // namespace Materials
