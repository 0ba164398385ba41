#include "clt_xml_text.h"
#include "nvx_util/assertion.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QFileDevice>
#include <QXmlStreamReader>

#include <optional>
#include <utility>

namespace Error {

namespace {

constexpr const char *unit = "error_translation_table";

/// The character that a "byte" element stands for; empty when its number is none of a UTF-16 code unit.
QString byteCharacter(const QXmlStreamReader &xml)
{
    const auto attributes = xml.attributes();
    const QStringView value = attributes.value(QLatin1String("value"));
    const bool hexadecimal = value.startsWith(u'x');
    const ushort number = hexadecimal ? value.sliced(1).toUShort(nullptr, 16) : value.toUShort();
    return number == 0 ? QString() : QString(QChar(number));
}

struct ElementText
{
    QString text;
    bool skippedElement = false; ///< whether there were elements within it
};

/// The text of the element on which the reader stands, to its end, without that of elements within it. The
/// white space that sets such elements apart is no text.
ElementText readElement(QXmlStreamReader &xml)
{
    QString text;
    bool skippedElement = false;
    while (Clt::canRead(xml)) {
        switch (xml.readNext()) {
        case QXmlStreamReader::Characters:
            text += xml.text();
            break;
        case QXmlStreamReader::StartElement:
            if (xml.name() == u"byte")
                text += byteCharacter(xml);
            else
                skippedElement = true;
            xml.skipCurrentElement();
            break;
        case QXmlStreamReader::EndElement:
            if (skippedElement && QStringView(text).trimmed().isEmpty())
                text.clear();
            return {text, skippedElement};
        default:
            break;
        }
    }
    return {text, skippedElement};
}

QString readText(QXmlStreamReader &xml)
{
    return readElement(xml).text;
}

void readMessageChild(QXmlStreamReader &xml, TranslationMessage &message, TranslationReading &reading)
{
    const QStringView name = xml.name();
    if (name == u"source") {
        message.source = readText(xml);
    } else if (name == u"translation") {
        message.type = xml.attributes().value(QLatin1String("type")).toString();
        const ElementText translation = readElement(xml);
        message.translation = translation.text;
        // Each form is an element of its own.
        reading.hasForms = reading.hasForms || translation.skippedElement;
    } else if (name == u"comment") {
        message.comment = readText(xml);
    } else {
        xml.skipCurrentElement();
    }
}

/// Nothing when the document ends or breaks within the message.
std::optional<TranslationMessage> readMessage(QXmlStreamReader &xml, TranslationReading &reading)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"message", unit);
    if (xml.attributes().value(QLatin1String("numerus")) == u"yes")
        reading.hasForms = true;
    TranslationMessage message;
    while (Clt::canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return message;
        if (token == QXmlStreamReader::StartElement)
            readMessageChild(xml, message, reading);
    }
    return std::nullopt;
}

// A context's name need not be its first element.
TranslationContext named(const QString &name, const TranslationMessages &messages)
{
    TranslationContext context(name);
    for (const TranslationMessage &message : messages)
        context.append(message);
    return context;
}

/// Nothing when the document ends or breaks within the context before its first message was complete.
std::optional<TranslationContext> readContext(QXmlStreamReader &xml, TranslationReading &reading)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"context", unit);
    QString name;
    TranslationMessages messages;
    while (Clt::canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return named(name, messages);
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            name = readText(xml);
        } else if (xml.name() == u"message") {
            if (const std::optional<TranslationMessage> message = readMessage(xml, reading))
                messages.push_back(*message);
        } else {
            xml.skipCurrentElement();
        }
    }
    if (messages.empty())
        return std::nullopt;
    return named(name, messages);
}

void readRootChild(QXmlStreamReader &xml, TranslationTable &table, TranslationReading &reading)
{
    if (xml.name() == u"context") {
        if (std::optional<TranslationContext> context = readContext(xml, reading))
            table.setContext(std::move(*context));
    } else if (xml.name() == u"defaultcodec") {
        table.setDefaultCodec(readText(xml));
    } else {
        xml.skipCurrentElement();
    }
}

void readRoot(QXmlStreamReader &xml, TranslationTable &table, TranslationReading &reading)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == u"TS", unit);
    const QXmlStreamAttributes attributes = xml.attributes();
    table.setVersion(attributes.value(QLatin1String("version")).toString());
    table.setLanguage(attributes.value(QLatin1String("language")).toString());
    while (Clt::canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return;
        if (token == QXmlStreamReader::StartElement)
            readRootChild(xml, table, reading);
    }
}

} // namespace

TranslationReading readTranslationTable(QIODevice &device, TranslationTable &table)
{
    TranslationReading reading;
    QXmlStreamReader xml(&device);
    while (Clt::canRead(xml)) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"TS")
            continue;
        readRoot(xml, table, reading);
        reading.foundRoot = true;
    }
    if (xml.hasError())
        reading.error =
            QStringLiteral("%1 at line %2").arg(xml.errorString(), QString::number(xml.lineNumber()));
    const auto *file = qobject_cast<QFileDevice *>(&device);
    table.setFileWithForms(reading.hasForms && file ? file->fileName() : QString());
    return reading;
}

} // namespace Error
