#include "clt_xml_text.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QXmlStreamWriter>

namespace Error {

namespace {

constexpr int indentation = 3;

/// The number of code units at that place that XML carries or refuses together: two for a surrogate pair.
qsizetype characterLength(QStringView text, qsizetype at)
{
    const bool pair =
        text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return pair ? 2 : 1;
}

// A NUL is none for the readers even so; the writer's error tells of it.
bool needsElement(QStringView character)
{
    return !character.at(0).isNull() && !Clt::isXmlText(character);
}

/// The text with its unspeakable characters as elements. Text, if only an empty one, is written on either
/// side of them, so that the writer does not take them for a level to indent.
void writeCharacters(QXmlStreamWriter &xml, const QString &text)
{
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text.size();) {
        const QStringView character = QStringView(text).sliced(at, characterLength(text, at));
        if (needsElement(character)) {
            Clt::writeXmlCharacters(xml, text.sliced(begin, at - begin));
            xml.writeEmptyElement(QStringLiteral("byte"));
            xml.writeAttribute(QStringLiteral("value"),
                               u'x' + QString::number(character.at(0).unicode(), 16));
            begin = at + character.size();
        }
        at += character.size();
    }
    Clt::writeXmlCharacters(xml, text.sliced(begin));
}

void writeTextElement(QXmlStreamWriter &xml, const QString &name, const QString &text)
{
    xml.writeStartElement(name);
    writeCharacters(xml, text);
    xml.writeEndElement();
}

void writeMessage(QXmlStreamWriter &xml, const TranslationMessage &message)
{
    xml.writeStartElement(QStringLiteral("message"));
    writeTextElement(xml, QStringLiteral("source"), message.source);
    xml.writeStartElement(QStringLiteral("translation"));
    xml.writeAttribute(QStringLiteral("type"), message.type);
    writeCharacters(xml, message.translation);
    xml.writeEndElement();
    if (!message.comment.isEmpty())
        writeTextElement(xml, QStringLiteral("comment"), message.comment);
    xml.writeEndElement();
}

void writeContext(QXmlStreamWriter &xml, const TranslationContext &context)
{
    xml.writeStartElement(QStringLiteral("context"));
    writeTextElement(xml, QStringLiteral("name"), context.name());
    for (const TranslationMessage &message : context.messages())
        writeMessage(xml, message);
    xml.writeEndElement();
}

} // namespace

bool writeTranslationTable(QIODevice &device, const TranslationTable &table)
{
    QXmlStreamWriter xml(&device);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(indentation);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE TS>"));
    xml.writeStartElement(QStringLiteral("TS"));
    xml.writeAttribute(QStringLiteral("version"), table.version());
    xml.writeAttribute(QStringLiteral("language"), table.language());
    writeTextElement(xml, QStringLiteral("defaultcodec"), table.defaultCodec());
    for (const auto &[name, context] : table.contexts())
        writeContext(xml, context);
    xml.writeEndDocument();
    return !xml.hasError();
}

} // namespace Error
