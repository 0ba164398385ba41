#include "error_translation_table.h"

#include "error_translation_table_xml.h"
#include "nvx_util/whole_file.h"

#include <QBuffer>
#include <QFile>

#include <utility>

namespace Error {

namespace {

TranslationMessage unfinished(const QString &source)
{
    return {source, source, QStringLiteral("unfinished"), QString()};
}

} // namespace

void TranslationContext::append(const TranslationMessage &message)
{
    m_index.add(m_messages, message.source);
    m_messages.push_back(message);
}

bool TranslationContext::addMissing(const QString &source)
{
    if (!m_index.add(m_messages, source))
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
