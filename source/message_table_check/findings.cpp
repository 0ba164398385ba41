#include "message_table_check/findings.h"

#include "clt_leftovers.h"
#include "clt_message_table.h"
#include "clt_message_xml.h"
#include "clt_xml_source.h"
#include "clt_xml_text.h"
#include "message_checks/message_remarks.h"
#include "message_table_check/translation_strings.h"
#include "nvx_util/regular_file.h"

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Checks::Rule;
using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace TableCheck {

namespace {

/// The text on one line, without characters that a terminal would interpret or XML cannot represent.
QString onOneLine(QString text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair =
            Clt::isXmlText(QStringView(text).sliced(at, std::min<qsizetype>(2, text.size() - at))) &&
            text.at(at).isHighSurrogate();
        if (isPair)
            ++at;
        else if (text.at(at).isSpace())
            text[at] = u' ';
        else if (!text.at(at).isPrint())
            text[at] = QChar::ReplacementCharacter;
    }
    return text;
}

/// Adds the findings on one message or string to a report.
class Entry
{
public:
    Entry(FileReport &report, qint64 line, QString name)
        : m_report(report)
        , m_line(line)
        , m_name(std::move(name))
    {
        ++m_report.entries;
    }

    void add(Rule rule, const QString &text)
    {
        m_report.findings.push_back({m_line, rule, onOneLine(u"%1: %2"_s.arg(m_name, text))});
        const qsizetype before = m_rules.size();
        m_rules.insert(static_cast<int>(rule));
        if (m_rules.size() > before)
            ++m_report.entriesWith[rule];
    }

    void add(const Checks::Remarks &remarks)
    {
        for (const Checks::Remark &remark : remarks) {
            if (remark.rule != Rule::Unsaved) // the reader reports these with their lines
                add(remark.rule, remark.text());
        }
    }

private:
    FileReport &m_report;
    qint64 m_line;
    QString m_name;
    QSet<int> m_rules;
};

/// Checks the messages of a table one after the other.
class TableChecker
{
public:
    explicit TableChecker(FileReport &report)
        : m_report(report)
    {
    }

    void checkTable(QXmlStreamReader &xml);

private:
    void check(const Clt::Message &message, qint64 line);
    void report(const Clt::Leftovers &leftovers);

    FileReport &m_report;
    std::map<Clt::MessageKey, qint64> m_lines; // of the keys so far
};

// Finds the messages as Clt::readMessageTableBody does.
void TableChecker::checkTable(QXmlStreamReader &xml)
{
    Clt::QtXmlSource source(xml);
    while (source.next() != Clt::XmlSource::Token::End &&
           source.token() != Clt::XmlSource::Token::EndElement) {
        Clt::Leftovers leftovers;
        const qint64 line = source.line();
        std::optional<Clt::Message> message;
        if (!source.isStartElement())
            Clt::leaveText(source, leftovers);
        else if (source.name() == "message")
            message = Clt::readMessage(source, leftovers);
        else
            Clt::leave(source, leftovers, Clt::startTag(source));
        if (message)
            check(*message, line);
        report(leftovers);
    }
}

// What is lost when the table is saved.
void TableChecker::report(const Clt::Leftovers &leftovers)
{
    for (const Clt::Leftover &leftover : leftovers.listed()) {
        m_report.findings.push_back(
            {leftover.line, Rule::Unsaved, onOneLine(u"%1 is not kept"_s.arg(leftover.what))});
        ++m_report.entriesWith[Rule::Unsaved];
    }
}

void TableChecker::check(const Clt::Message &message, qint64 line)
{
    Entry entry(m_report, line, message.key().displayText());
    const auto [place, isFirst] = m_lines.try_emplace(message.key(), line);
    if (!isFirst)
        entry.add(Rule::Duplicate, u"the key is in line %1 already"_s.arg(place->second));
    if (message.state() == Clt::MessageState::Obsolete) {
        // Its texts are not shown any more.
        entry.add(Rule::Obsolete, u"no longer found in the sources"_s);
        return;
    }
    if (message.state() == Clt::MessageState::New)
        entry.add(Rule::New, u"not reviewed yet"_s);
    entry.add(Checks::remarksOn(message));
}

void checkString(FileReport &report, const TranslationString &string)
{
    Entry entry(report, string.line, Checks::stringName(string.context, string.source));
    if (string.state == TranslationString::State::Obsolete) {
        entry.add(Rule::Obsolete, u"no longer used"_s);
        return;
    }
    const bool isEmpty = std::all_of(string.translations.begin(), string.translations.end(),
                                     [](const QString &translation) { return translation.isEmpty(); });
    if (string.state == TranslationString::State::Unfinished)
        entry.add(Rule::Unfinished, u"not translated yet"_s);
    else if (isEmpty)
        entry.add(Rule::Unfinished, u"the translation is empty"_s);
    for (const QString &translation : string.translations) {
        if (!translation.isEmpty())
            entry.add(Checks::remarksOnTranslation(string.source, translation));
    }
}

} // namespace

// As in the readers of the two files, the element may be at any depth.
Result<FileReport> checkDocument(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    if (const qint64 line = Clt::limitExpansion(xml, device))
        return Failure{u"line %1: %2"_s.arg(QString::number(line), Clt::tooManyAttributes())};
    FileReport report;
    TableChecker tableChecker(report);
    bool isKnown = false;
    while (Clt::canRead(xml)) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"messageTable") {
            tableChecker.checkTable(xml);
            isKnown = true;
        } else if (xml.name() == u"TS") {
            report.kind = FileKind::TranslationFile;
            for (const TranslationString &string : readTranslationStrings(xml))
                checkString(report, string);
            isKnown = true;
        }
    }
    if (xml.hasError())
        return Failure{u"line %1: %2"_s.arg(QString::number(xml.lineNumber()), xml.errorString())};
    if (!isKnown)
        return Failure{u"neither a message table nor a translation file"_s};
    std::stable_sort(report.findings.begin(), report.findings.end(),
                     [](const Finding &left, const Finding &right) { return left.line < right.line; });
    return report;
}

Result<FileReport> checkFile(const QString &fileName)
{
    Nvx::Util::RegularFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{file.errorString()};
    Result<FileReport> report = checkDocument(file);
    if (!report)
        return report;
    FileReport named = *std::move(report);
    named.file = fileName;
    return named;
}

} // namespace TableCheck
