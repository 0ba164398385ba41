#include "message_table_check/exchange.h"

#include "message_table_check/translation_document.h"
#include "nvx_util/regular_file.h"
#include "nvx_util/whole_file.h"
#include "translation/error_translation_table.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;
using Nvx::Util::Result;
using Translation::TranslationContext;
using Translation::TranslationMessage;
using Translation::TranslationMessages;
using Translation::TranslationTable;

namespace TableCheck {

namespace {

QString typeOf(TranslationString::State state)
{
    switch (state) {
    case TranslationString::State::Unfinished:
        return u"unfinished"_s;
    case TranslationString::State::Obsolete:
        return u"obsolete"_s;
    case TranslationString::State::Finished:
        break;
    }
    return {};
}

/// The messages of a context, in which edited strings replace what they find.
class EditedContext
{
public:
    explicit EditedContext(const TranslationContext *context)
    {
        if (!context)
            return;
        m_messages = context->messages();
        for (std::size_t at = 0; at < m_messages.size(); ++at)
            m_places[identity(m_messages[at].source, m_messages[at].comment)].append(at);
    }

    void takeOver(const TranslationString &string, TakenOver &counts);
    const TranslationMessages &messages() const { return m_messages; }

private:
    static QString identity(const QString &source, const QString &comment)
    {
        return QString::number(source.size()) + u' ' + source + comment;
    }

    /// The message that the string is; null if there is none. No other string is that message.
    TranslationMessage *taken(const TranslationString &string);
    void add(const TranslationString &string);

    TranslationMessages m_messages;
    QHash<QString, QList<std::size_t>> m_places; // of the messages that no string has been found for
};

// Some tools write the obsolete strings last, so one is preferably found again as an obsolete one.
TranslationMessage *EditedContext::taken(const TranslationString &string)
{
    const auto places = m_places.find(identity(string.source, string.comment));
    if (places == m_places.end() || places->isEmpty())
        return nullptr;
    const bool isObsolete = string.state == TranslationString::State::Obsolete;
    const auto alike = std::find_if(places->begin(), places->end(), [&](std::size_t place) {
        return (m_messages[place].type == typeOf(TranslationString::State::Obsolete)) == isObsolete;
    });
    const qsizetype chosen = alike == places->end() ? 0 : alike - places->begin();
    return &m_messages[places->takeAt(chosen)];
}

void EditedContext::takeOver(const TranslationString &string, TakenOver &counts)
{
    TranslationMessage *message = taken(string);
    if (!message) {
        add(string);
        ++counts.added;
        return;
    }
    const TranslationMessage before = *message;
    const QString translation = string.translations.value(0);
    const bool wouldEmptyIt = translation.isEmpty() && !message->translation.isEmpty();
    if (!wouldEmptyIt)
        message->translation = translation;
    message->type = typeOf(wouldEmptyIt && string.state == TranslationString::State::Finished
                               ? TranslationString::State::Unfinished
                               : string.state);
    if (message->translation != before.translation || message->type != before.type)
        ++counts.changed;
}

// Like every new string, one without a translation is its own.
void EditedContext::add(const TranslationString &string)
{
    const QString translation = string.translations.value(0);
    const bool isMissing = translation.isEmpty() && string.state == TranslationString::State::Unfinished;
    m_messages.push_back({.source = string.source,
                          .translation = isMissing ? string.source : translation,
                          .type = typeOf(string.state),
                          .comment = string.comment});
}

const TranslationContext *contextIn(const TranslationTable &table, const QString &name)
{
    const auto found = table.contexts().find(name);
    return found == table.contexts().end() ? nullptr : &found->second;
}

bool isXliffName(const QString &fileName)
{
    return fileName.endsWith(u".xlf"_s, Qt::CaseInsensitive) ||
           fileName.endsWith(u".xliff"_s, Qt::CaseInsensitive);
}

Failure fileFailure(const QString &fileName, const QString &reason)
{
    return Failure{u"%1: %2"_s.arg(fileName, reason)};
}

Result<TranslationDocument> readDocument(const QString &fileName)
{
    Nvx::Util::RegularFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return fileFailure(fileName, file.errorString());
    Result<TranslationDocument> document = readTranslationDocument(file);
    if (!document)
        return fileFailure(fileName, document.error());
    return document;
}

Result<QByteArray> converted(const QString &from, const QString &to)
{
    if (isXliffName(to)) {
        const Result<TranslationDocument> document = readDocument(from);
        if (!document)
            return Failure{document.error()};
        Result<QByteArray> xliff = xliffOf(*document, QFileInfo(from).fileName());
        return xliff ? xliff : fileFailure(from, xliff.error());
    }
    Nvx::Util::RegularFile file(from);
    if (!file.open(QIODevice::ReadOnly))
        return fileFailure(from, file.errorString());
    Result<QByteArray> contents = translationFileForQt6(file);
    return contents ? contents : fileFailure(from, contents.error());
}

/// The table of a translation file; an empty one if there is no file.
Result<TranslationTable> tableOf(const QString &fileName, const QString &language)
{
    TranslationTable table;
    if (!QFile::exists(fileName)) {
        table.setVersion(u"2.1"_s);
        table.setLanguage(language);
        return table;
    }
    const Result<TranslationDocument> document = readDocument(fileName);
    if (!document)
        return Failure{document.error()};
    if (!table.load(fileName))
        return fileFailure(fileName, table.errorString());
    return table;
}

} // namespace

TakenOver takeOver(TranslationTable &table, const TranslationStrings &edited)
{
    TakenOver counts;
    std::map<QString, EditedContext> contexts;
    for (const TranslationString &string : edited) {
        const auto [context, isNew] = contexts.try_emplace(string.context, contextIn(table, string.context));
        context->second.takeOver(string, counts);
    }
    for (const auto &[name, edits] : contexts) {
        TranslationContext context(name);
        for (const TranslationMessage &message : edits.messages())
            context.append(message);
        table.setContext(std::move(context));
    }
    return counts;
}

Outcome convertForQt6(const QString &from, const QString &to)
{
    const Result<QByteArray> contents = converted(from, to);
    if (!contents)
        return Failure{contents.error()};
    if (!Nvx::Util::replaceWholeFile(to, *contents))
        return fileFailure(to, u"could not be written"_s);
    return Done();
}

Result<TakenOver> takeBack(const QString &edited, const QString &translationFile)
{
    const Result<TranslationDocument> document = readDocument(edited);
    if (!document)
        return Failure{document.error()};
    Result<TranslationTable> table = tableOf(translationFile, document->language);
    if (!table)
        return Failure{table.error()};
    TranslationTable changed = *std::move(table);
    const TakenOver counts = takeOver(changed, document->strings);
    if (!changed.save(translationFile))
        return fileFailure(translationFile, u"could not be written"_s);
    return counts;
}

} // namespace TableCheck
