#include "translation/error_translation_table.h"

#include "nvx_util/whole_file.h"
#include "translation/translation_backup.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace Translation {

namespace {

TranslationMessage unfinished(const QString &source)
{
    return {.source = source, .translation = source, .type = u"unfinished"_s, .comment = QString()};
}

/// True if both paths, however they are spelled, name the same existing file.
bool isSameFile(const QString &one, const QString &other)
{
    return QFile::exists(one) && QFile::exists(other) && QFileInfo(one) == QFileInfo(other);
}

bool saveDamaged(const QString &fileName)
{
    const std::optional<QByteArray> contents = Nvx::Util::readWholeFile(fileName);
    return contents && Nvx::Util::replaceWholeFile(fileName + u".damaged"_s, *contents);
}

Result<TranslationRoot> readFile(QFile &file, TranslationTable &table)
{
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return Failure{file.errorString()};
    return readTranslationTable(file, table);
}

} // namespace

void TranslationContext::append(const TranslationMessage &message)
{
    m_sources.insert(message.source);
    m_messages.push_back(message);
}

bool TranslationContext::addMissing(const QString &source)
{
    const qsizetype sizeBefore = m_sources.size();
    m_sources.insert(source);
    if (m_sources.size() == sizeBefore)
        return false;
    m_messages.push_back(unfinished(source));
    return true;
}

void TranslationContext::setType(const QSet<QString> &sources, const QString &type)
{
    for (TranslationMessage &message : m_messages) {
        if (sources.contains(message.source))
            message.type = type;
    }
}

void TranslationTable::setContext(TranslationContext context)
{
    const QString name = context.name();
    m_contexts.insert_or_assign(name, std::move(context));
}

TranslationTable::Contexts::iterator TranslationTable::contextNamed(const QString &name,
                                                                    Contexts::const_iterator hint)
{
    return m_contexts.try_emplace(hint, name, name);
}

bool TranslationTable::contains(const QString &contextName, const QString &source) const
{
    const auto found = m_contexts.find(contextName);
    return found != m_contexts.end() && found->second.contains(source);
}

void TranslationTable::addString(const QString &contextName, const QString &source)
{
    contextNamed(contextName, m_contexts.end())->second.append(unfinished(source));
}

void TranslationTable::setType(const QString &contextName, const QSet<QString> &sources, const QString &type)
{
    const auto found = m_contexts.find(contextName);
    if (found != m_contexts.end())
        found->second.setType(sources, type);
}

bool TranslationTable::load(const QString &fileName)
{
    QFile file(fileName);
    return load(file);
}

bool TranslationTable::load(QFile &file)
{
    const Result<TranslationRoot> root = readFile(file, *this);
    m_errorString = root.error();
    const bool isWhole = root && *root == TranslationRoot::Found;
    m_damagedFile = isWhole ? QString() : file.fileName();
    return bool(root);
}

bool TranslationTable::save(const QString &fileName)
{
    m_backupFile.clear();
    QBuffer contents;
    if (!contents.open(QIODevice::WriteOnly | QIODevice::Text) || !writeTranslationTable(contents, *this))
        return false;
    if (isSameFile(fileName, m_damagedFile) && !saveDamaged(fileName))
        return false;
    std::optional<QString> backup = QString();
    if (isSameFile(fileName, m_fileWithForms))
        backup = backUpFile(fileName);
    if (!backup || !Nvx::Util::replaceWholeFile(fileName, contents.data()))
        return false;
    m_backupFile = *backup;
    // Checked only now, because the file may not have existed before.
    for (QString *replaced : {&m_damagedFile, &m_fileWithForms}) {
        if (isSameFile(fileName, *replaced))
            replaced->clear();
    }
    return true;
}

} // namespace Translation
