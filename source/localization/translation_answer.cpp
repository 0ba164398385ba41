#include "localization/translation_answer.h"

#include "nvx_util/whole_file.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <optional>
#include <set>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace Localization {

namespace {

using State = TranslatedString::State;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TranslationAnswer)
};

class TranslationsReader
{
public:
    explicit TranslationsReader(const QByteArray &bytes)
        : m_xml(bytes)
    {
    }

    Nvx::Util::Result<Translations> read()
    {
        // Entities may be short names of very long texts. No tool for translations writes them.
        while (!m_xml.atEnd() && !m_xml.isStartElement()) {
            m_xml.readNext();
            if (m_xml.isDTD() && !m_xml.entityDeclarations().isEmpty())
                m_xml.raiseError(u"Entities are not supported"_s);
        }
        if (m_xml.isStartElement() && m_xml.name() != "TS"_L1)
            m_xml.raiseError(u"No document element \"TS\""_s);
        m_translations.language = m_xml.attributes().value("language"_L1).toString();
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "context"_L1)
                readContext();
            else
                m_xml.skipCurrentElement();
        }
        while (!m_xml.atEnd())
            m_xml.readNext();
        if (m_xml.hasError())
            return Nvx::Util::Failure{u"%1 (line %2)"_s.arg(m_xml.errorString()).arg(m_xml.lineNumber())};
        return std::move(m_translations);
    }

private:
    void readContext()
    {
        QString name;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "name"_L1)
                name = text();
            else if (m_xml.name() == "message"_L1)
                readMessage(name);
            else
                m_xml.skipCurrentElement();
        }
    }

    void readMessage(const QString &context)
    {
        TranslatedString string{.context = context};
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "source"_L1)
                string.source = text();
            else if (m_xml.name() == "comment"_L1)
                string.comment = text();
            else if (m_xml.name() == "translation"_L1)
                readTranslation(string);
            else
                m_xml.skipCurrentElement();
        }
        m_translations.strings.append(std::move(string));
    }

    void readTranslation(TranslatedString &string)
    {
        const QString type = m_xml.attributes().value("type"_L1).toString();
        QString single;
        bool isComplete = true;
        while (!m_xml.atEnd()) {
            m_xml.readNext();
            if (m_xml.isEndElement())
                break;
            if (m_xml.isCharacters()) {
                single += m_xml.text();
            } else if (m_xml.isStartElement()) {
                string.isPlural = string.isPlural || m_xml.name() == "numerusform"_L1;
                const QString form = text(); // a plural form or a shorter variant
                isComplete = isComplete && !form.isEmpty();
                string.translations.append(form);
            }
        }
        if (string.translations.isEmpty())
            string.translations.append(single);
        string.translations.removeAll(QString());
        if (type == "obsolete"_L1 || type == "vanished"_L1)
            string.state = State::Gone;
        else if (type != "unfinished"_L1 && isComplete && !string.translations.isEmpty())
            string.state = State::Finished;
    }

    QString text() { return m_xml.readElementText(QXmlStreamReader::IncludeChildElements); }

    QXmlStreamReader m_xml;
    Translations m_translations;
};

// What identifies a string.
using StringKey = std::tuple<QString, QString, QString>;

StringKey keyOf(const TranslatedString &string)
{
    return {string.context, string.source, string.comment};
}

bool isForLocale(const QString &language, const QString &locale)
{
    return language.isEmpty() || QLocale(language).name() == QLocale(locale).name();
}

// The strings that have left the sources are no loss.
qsizetype finishedIn(const Translations &translations, const Translations &english)
{
    if (english.strings.isEmpty())
        return translations.count(State::Finished);
    std::set<StringKey> wanted;
    for (const TranslatedString &string : english.strings) {
        if (string.state != State::Gone)
            wanted.insert(keyOf(string));
    }
    return std::ranges::count_if(translations.strings, [&wanted](const TranslatedString &string) {
        return string.state == State::Finished && wanted.contains(keyOf(string));
    });
}

// A plural form may spell its number out.
bool hasPlacesOf(const TranslatedString &string, const QString &translation)
{
    QStringList expected = placesIn(string.source);
    QStringList found = placesIn(translation);
    if (string.isPlural) {
        expected.removeAll(u"%n"_s);
        found.removeAll(u"%n"_s);
    }
    return found == expected;
}

} // namespace

qsizetype Translations::count(TranslatedString::State state) const
{
    return std::ranges::count(strings, state, &TranslatedString::state);
}

Nvx::Util::Result<Translations> readTranslations(const QByteArray &bytes)
{
    return TranslationsReader(bytes).read();
}

Translations translationsIn(const QString &fileName)
{
    const std::optional<QByteArray> bytes = Nvx::Util::readWholeFile(fileName);
    Nvx::Util::Result<Translations> translations = readTranslations(bytes.value_or(QByteArray()));
    return translations ? *std::move(translations) : Translations();
}

QString reasonToRefuse(const Translations &answer, const AnswerContext &context)
{
    if (!isForLocale(answer.language, context.locale))
        return Texts::tr("it is for the language %1").arg(answer.language);
    for (const TranslatedString &string : answer.strings) {
        if (string.state == State::Gone)
            continue;
        for (const QString &translation : string.translations) {
            if (!hasPlacesOf(string, translation))
                return Texts::tr("the values such as %1 differ between \"%2\" and its translation \"%3\"")
                    .arg(u"%1"_s, string.source, translation);
        }
    }
    const qsizetype before = finishedIn(context.earlier, context.english);
    const qsizetype now = finishedIn(answer, context.english);
    if (now < before)
        return Texts::tr("it has %1 finished texts, and the existing file has %2")
            .arg(QString::number(now), QString::number(before));
    return {};
}

QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(u"%L?([0-9]{1,2}|n)"_s);
    QSet<QString> places;
    for (auto found = place.globalMatch(text); found.hasNext();)
        places.insert(u'%' + found.next().captured(1));
    QStringList sorted(places.begin(), places.end());
    sorted.sort();
    return sorted;
}

} // namespace Localization
