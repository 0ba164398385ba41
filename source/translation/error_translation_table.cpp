#include "translation/error_translation_table.h"

#include "nvx_util/regular_file.h"
#include "nvx_util/whole_file.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>
#include <QFile>

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

TranslationContext::TranslationContext(const QString &name, TranslationMessages messages)
    : m_name(name)
    , m_messages(std::move(messages))
{
    m_sources.reserve(static_cast<qsizetype>(m_messages.size()));
    for (const TranslationMessage &message : m_messages)
        m_sources.insert(message.source);
}

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
    Nvx::Util::RegularFile file(fileName);
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
    QBuffer contents;
    if (!contents.open(QIODevice::WriteOnly | QIODevice::Text) || !writeTranslationTable(contents, *this))
        return false;
    if (Clt::isSameFile(fileName, m_damagedFile) && !saveDamaged(fileName))
        return false;
    if (!m_file.replace(fileName, contents.data()))
        return false;
    // Checked only now, because the file may not have existed before.
    if (Clt::isSameFile(fileName, m_damagedFile))
        m_damagedFile.clear();
    return true;
}

} // namespace Translation
