#include "translation/error_translation_table.h"

#include "nvx_util/whole_file.h"
#include "translation/translation_kept_file.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace Error {

namespace {

TranslationMessage unfinished(const QString &source)
{
    return {source, source, QStringLiteral("unfinished"), QString()};
}

/// Whether both name one file that is there, however they are spelled.
bool isSameFile(const QString &one, const QString &other)
{
    return QFile::exists(one) && QFile::exists(other) && QFileInfo(one) == QFileInfo(other);
}

bool keepDamaged(const QString &fileName)
{
    const std::optional<QByteArray> contents = Nvx::Util::readWholeFile(fileName);
    return contents && Nvx::Util::replaceWholeFile(fileName + QStringLiteral(".damaged"), *contents);
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
    return load(file);
}

bool TranslationTable::load(QFile &file)
{
    TranslationReading reading;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        reading.error = file.errorString();
    else
        reading = readTranslationTable(file, *this);
    m_errorString = reading.error;
    m_damagedFile = reading.error.isEmpty() && reading.foundRoot ? QString() : file.fileName();
    return m_errorString.isEmpty();
}

bool TranslationTable::save(const QString &fileName)
{
    m_keptFile.clear();
    QBuffer contents;
    if (!contents.open(QIODevice::WriteOnly | QIODevice::Text) || !writeTranslationTable(contents, *this))
        return false;
    if (isSameFile(fileName, m_damagedFile) && !keepDamaged(fileName))
        return false;
    std::optional<QString> kept = QString();
    if (isSameFile(fileName, m_fileWithForms))
        kept = keepEarlierFile(fileName);
    if (!kept || !Nvx::Util::replaceWholeFile(fileName, contents.data()))
        return false;
    m_keptFile = *kept;
    // Also when the files were gone until now.
    for (QString *replaced : {&m_damagedFile, &m_fileWithForms}) {
        if (isSameFile(fileName, *replaced))
            replaced->clear();
    }
    return true;
}

} // namespace Error
