#include "error_translation_table.h"

#include "error_translation_table_xml.h"
#include "nvx_util/whole_file.h"

#include <QBuffer>
#include <QFile>

#include <utility>

namespace Error {

void TranslationContext::append(const TranslationMessage &message)
{
    m_messages.push_back(message);
    m_sources.insert(message.source);
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

const TranslationContext *TranslationTable::context(const QString &name) const
{
    const auto found = m_contexts.find(name);
    return found == m_contexts.end() ? nullptr : &found->second;
}

bool TranslationTable::contains(const QString &contextName, const QString &source) const
{
    const TranslationContext *found = context(contextName);
    return found && found->contains(source);
}

const TranslationContext &TranslationTable::addString(const QString &contextName, const QString &source)
{
    TranslationContext &context = m_contexts.try_emplace(contextName, contextName).first->second;
    context.append({source, source, QStringLiteral("unfinished"), QString()});
    return context;
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
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        m_errorString = file.errorString();
    else
        m_errorString = readTranslationTable(file, *this);
    return m_errorString.isEmpty();
}

bool TranslationTable::save(const QString &fileName) const
{
    QBuffer contents;
    return contents.open(QIODevice::WriteOnly | QIODevice::Text) && writeTranslationTable(contents, *this) &&
           Nvx::Util::replaceWholeFile(fileName, contents.data());
}

} // namespace Error
