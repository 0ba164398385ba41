#include "materials/mat_translation_table.h"

#include "materials/mat_material_name.h"
#include "translation/error_translation_table.h"
#include "translation/translation_kept_file.h"
#include "translation/translation_table_xml.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

using Error::TranslationMessage;
using Error::TranslationTable;

namespace mat {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MaterialTranslationTable)
};

bool wouldChangeType(const TranslationTable &table, const QSet<QString> &obsolete)
{
    const Error::TranslationMessages &messages = materialMessages(table);
    return std::any_of(messages.begin(), messages.end(), [&obsolete](const TranslationMessage &message) {
        return message.type != obsoleteType() && obsolete.contains(message.source);
    });
}

/// Why the file could not be read into the table; empty when it was, or when there is none.
QString readTableFile(const QString &fileName, TranslationTable &table)
{
    QFile file(fileName);
    if (!file.exists())
        return QString();
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const QString error = readTable(file, table);
    return file.error() == QFileDevice::NoError ? error : file.errorString();
}

QString fileAndError(const QString &fileName, const QString &error)
{
    return QStringLiteral("%1: %2").arg(fileName, error);
}

} // namespace

QString materialContext()
{
    return QStringLiteral("Clt::Material");
}

QString obsoleteType()
{
    return QStringLiteral("obsolete");
}

const Error::TranslationMessages &materialMessages(const TranslationTable &table)
{
    static const Error::TranslationMessages none;
    const auto found = table.contexts().find(materialContext());
    return found == table.contexts().end() ? none : found->second.messages();
}

QSet<QString> heldNames(const TranslationTable &table)
{
    const Error::TranslationMessages &messages = materialMessages(table);
    QSet<QString> names;
    names.reserve(static_cast<qsizetype>(messages.size()));
    for (const TranslationMessage &message : messages)
        names.insert(message.source);
    return names;
}

NameDifference differenceOf(const QSet<QString> &database, const QSet<QString> &held)
{
    NameDifference difference;
    for (const QString &name : database) {
        if (!held.contains(name))
            difference.added.append(name);
    }
    difference.added.sort();
    for (const QString &name : held) {
        if (!database.contains(name))
            difference.obsolete.insert(name);
    }
    return difference;
}

NameSynchronization synchronizeNames(TranslationTable &table, const QStringList &databaseNames)
{
    const QSet<QString> database(databaseNames.begin(), databaseNames.end());
    const NameDifference difference = differenceOf(database, heldNames(table));

    NameSynchronization result;
    result.counts = {database.size(), difference.added.size(), difference.obsolete.size()};
    result.added = difference.added;
    result.isChanged = !difference.added.isEmpty() || wouldChangeType(table, difference.obsolete);
    for (const QString &name : difference.added)
        table.addString(materialContext(), name);
    table.setType(materialContext(), difference.obsolete, obsoleteType());
    return result;
}

QString readTable(QIODevice &device, TranslationTable &table)
{
    const Error::TranslationReading reading = Error::readTranslationTable(device, table);
    if (reading.error.isEmpty() && !reading.foundRoot)
        return Texts::tr("It is not a translation file");
    return reading.error;
}

TableUpdate updateTranslationFile(const QString &databaseFile, const QString &translationFile)
{
    const MaterialNames database = readMaterialNames(databaseFile);
    if (!database.error.isEmpty())
        return {TableUpdate::Outcome::DatabaseNotRead, {}, fileAndError(databaseFile, database.error), {}};

    TranslationTable table;
    const QString error = readTableFile(translationFile, table);
    if (!error.isEmpty())
        return {TableUpdate::Outcome::TableNotRead, {}, fileAndError(translationFile, error), {}};

    const NameCounts counts = synchronizeNames(table, database.names).counts;
    if (!table.save(translationFile))
        return {TableUpdate::Outcome::TableNotSaved,
                {},
                fileAndError(translationFile, Texts::tr("It cannot be written")),
                {}};
    TableUpdate update = {TableUpdate::Outcome::Updated, counts, {}, {}};
    if (!table.keptFile().isEmpty())
        update.note = Error::keptFileText(table.keptFile());
    return update;
}

} // namespace mat
