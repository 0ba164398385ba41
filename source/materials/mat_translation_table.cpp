#include "materials/mat_translation_table.h"

#include "clt_leftovers.h"
#include "materials/mat_material_name.h"
#include "nvx_util/regular_file.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Failure;
using Nvx::Util::Result;
using Translation::TranslationMessage;
using Translation::TranslationMessages;
using Translation::TranslationTable;

namespace Materials {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MaterialTranslationTable)
};

bool wouldChangeType(const TranslationTable &table, const QSet<QString> &obsolete)
{
    const TranslationMessages &messages = materialMessages(table);
    return std::any_of(messages.begin(), messages.end(), [&obsolete](const TranslationMessage &message) {
        return message.type != obsoleteType() && obsolete.contains(message.source);
    });
}

/// The table of the file; an empty one if there is no file.
Result<TranslationTable> readTableFile(const QString &fileName)
{
    Nvx::Util::RegularFile file(fileName);
    if (!file.exists())
        return TranslationTable();
    if (!file.open(QIODevice::ReadOnly))
        return Failure{file.errorString()};
    Result<TranslationTable> table = readTable(file);
    if (file.error() != QFileDevice::NoError)
        return Failure{file.errorString()};
    return table;
}

Failure failureOf(const QString &fileName, const QString &reason)
{
    return {u"%1: %2"_s.arg(fileName, reason)};
}

} // namespace

QString materialContext()
{
    return u"Clt::Material"_s;
}

QString obsoleteType()
{
    return u"obsolete"_s;
}

const TranslationMessages &materialMessages(const TranslationTable &table)
{
    static const TranslationMessages none;
    const auto found = table.contexts().find(materialContext());
    return found == table.contexts().end() ? none : found->second.messages();
}

QSet<QString> namesIn(const TranslationTable &table)
{
    const TranslationMessages &messages = materialMessages(table);
    QSet<QString> names;
    names.reserve(static_cast<qsizetype>(messages.size()));
    for (const TranslationMessage &message : messages)
        names.insert(message.source);
    return names;
}

NameDifference differenceOf(const QSet<QString> &inDatabase, const QSet<QString> &inTable)
{
    NameDifference difference;
    for (const QString &name : inDatabase) {
        if (!inTable.contains(name))
            difference.added.append(name);
    }
    difference.added.sort();
    for (const QString &name : inTable) {
        if (!inDatabase.contains(name))
            difference.obsolete.insert(name);
    }
    return difference;
}

NameSynchronization synchronizeNames(TranslationTable &table, const QStringList &databaseNames)
{
    const QSet<QString> inDatabase(databaseNames.begin(), databaseNames.end());
    const NameDifference difference = differenceOf(inDatabase, namesIn(table));

    NameSynchronization result;
    result.counts = {
        .found = inDatabase.size(), .added = difference.added.size(), .obsolete = difference.obsolete.size()};
    result.added = difference.added;
    result.isChanged = !difference.added.isEmpty() || wouldChangeType(table, difference.obsolete);
    for (const QString &name : difference.added)
        table.addString(materialContext(), name);
    table.setType(materialContext(), difference.obsolete, obsoleteType());
    return result;
}

Result<TranslationTable> readTable(QIODevice &device)
{
    using Translation::TranslationRoot;
    TranslationTable table;
    const Result<TranslationRoot> root = Translation::readTranslationTable(device, table);
    if (!root)
        return Failure{root.error()};
    if (*root == TranslationRoot::Missing)
        return Failure{Texts::tr("It is not a translation file")};
    return table;
}

Result<NameUpdate> updateTranslationFile(const QString &databaseFile, const QString &translationFile)
{
    const Result<QStringList> names = readMaterialNames(databaseFile);
    if (!names)
        return failureOf(databaseFile, names.error());

    Result<TranslationTable> read = readTableFile(translationFile);
    if (!read)
        return failureOf(translationFile, read.error());
    TranslationTable table = *std::move(read);

    NameUpdate update;
    update.counts = synchronizeNames(table, *names).counts;
    if (!table.save(translationFile))
        return failureOf(translationFile, Texts::tr("It cannot be written"));
    if (!table.backupFile().isEmpty())
        update.note = Clt::backupText(table.backupFile());
    return update;
}

} // namespace Materials
