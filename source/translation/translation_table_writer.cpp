#include "clt_xml_text.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

namespace Translation {

namespace {

constexpr int indentation = 3;

/// The number of code units of the character at that position: two for a surrogate pair.
qsizetype characterLength(QStringView text, qsizetype at)
{
    const bool isPair =
        text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return isPair ? 2 : 1;
}

// The readers do not accept a NUL in such an element either, so it is left to the writer, which reports an
// error.
bool needsElement(QStringView character)
{
    return !character.at(0).isNull() && !Clt::isXmlText(character);
}

/// Writes a string, with "byte" elements for the characters that XML cannot represent. Text, even if it is
/// empty, is written before and after each element, so that the writer does not indent it.
void writeCharacters(QXmlStreamWriter &xml, const QString &text)
{
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text.size();) {
        const QStringView character = QStringView(text).sliced(at, characterLength(text, at));
        if (needsElement(character)) {
            Clt::writeXmlCharacters(xml, text.sliced(begin, at - begin));
            xml.writeEmptyElement(u"byte"_s);
            xml.writeAttribute(u"value"_s, u'x' + QString::number(character.at(0).unicode(), 16));
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
    xml.writeStartElement(u"message"_s);
    writeTextElement(xml, u"source"_s, message.source);
    xml.writeStartElement(u"translation"_s);
    xml.writeAttribute(u"type"_s, message.type);
    writeCharacters(xml, message.translation);
    xml.writeEndElement();
    if (!message.comment.isEmpty())
        writeTextElement(xml, u"comment"_s, message.comment);
    xml.writeEndElement();
}

void writeContext(QXmlStreamWriter &xml, const TranslationContext &context)
{
    xml.writeStartElement(u"context"_s);
    writeTextElement(xml, u"name"_s, context.name());
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
    xml.writeDTD(u"<!DOCTYPE TS>"_s);
    xml.writeStartElement(u"TS"_s);
    xml.writeAttribute(u"version"_s, table.version());
    xml.writeAttribute(u"language"_s, table.language());
    writeTextElement(xml, u"defaultcodec"_s, table.defaultCodec());
    for (const auto &[name, context] : table.contexts())
        writeContext(xml, context);
    xml.writeEndDocument();
    return !xml.hasError();
}

} // namespace Translation
