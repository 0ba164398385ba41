#pragma once

#include "translation/translation_message.h"

#include <QSet>
#include <QString>
#include <QStringList>

class QIODevice;

namespace Error {
class TranslationTable;
}

namespace mat {

/// The context under which a translation table holds the names of materials.
QString materialContext();

/// The type of a name that the database does not have any more.
QString obsoleteType();

/// The names with their translations, in the order of the table.
const Error::TranslationMessages &materialMessages(const Error::TranslationTable &table);

/// The names that a table holds, obsolete ones included.
QSet<QString> heldNames(const Error::TranslationTable &table);

/// How the names in a database differ from those that a table holds.
struct NameDifference
{
    QStringList added;      ///< of the database alone, sorted by their UTF-16 code units
    QSet<QString> obsolete; ///< of the table alone
};

NameDifference differenceOf(const QSet<QString> &database, const QSet<QString> &held);

/// What a synchronisation found, equal names counted once.
struct NameCounts
{
    qsizetype found = 0;    ///< names in the database
    qsizetype added = 0;    ///< names that the table did not hold
    qsizetype obsolete = 0; ///< names that the table alone holds, those obsolete before included

    /// What is reported as existing. It is deliberately too low by the obsolete names, and may be negative.
    qsizetype existing() const { return found - obsolete - added; }
};

struct NameSynchronization
{
    NameCounts counts;
    QStringList added;      ///< the names, sorted
    bool isChanged = false; ///< whether the table is another one now
};

/// Brings a table in step with the names of a database. New names are added in their order, each unfinished
/// and with itself for a translation; those that the database does not have become obsolete, with the
/// translation kept. A name that was obsolete and is in the database again stays as it is.
NameSynchronization synchronizeNames(Error::TranslationTable &table, const QStringList &databaseNames);

/// Reads the translation file on the open device into an empty table. Empty when it is one, else why not, for
/// the user; the table is then of no use.
QString readTable(QIODevice &device, Error::TranslationTable &table);

/// How the update of a translation file ended.
struct TableUpdate
{
    enum class Outcome
    {
        Updated,
        DatabaseNotRead,
        TableNotRead,
        TableNotSaved
    };

    Outcome outcome = Outcome::Updated;
    NameCounts counts; ///< when it was updated
    QString error;     ///< else the file and what is wrong with it, for the log
    QString note;      ///< when it was updated: what the log should say besides; usually empty
};

/// Brings a translation file in step with a database, whole or not at all. A translation file that does not
/// exist is made; one that cannot be read as such to its end is left as it is.
TableUpdate updateTranslationFile(const QString &databaseFile, const QString &translationFile);

} // namespace mat
