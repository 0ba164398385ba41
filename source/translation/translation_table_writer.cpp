#include "clt_xml_writer.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QIODevice>

namespace Translation {

namespace {

using Clt::XmlWriter;

void writeMessage(XmlWriter &xml, const TranslationMessage &message)
{
    xml.startElement("message");
    xml.textElement("source", message.source);
    xml.textElement("translation", "type", message.type, message.translation);
    if (!message.comment.isEmpty())
        xml.textElement("comment", message.comment);
    xml.endElement();
}

void writeContext(XmlWriter &xml, const TranslationContext &context)
{
    xml.startElement("context");
    xml.textElement("name", context.name());
    for (const TranslationMessage &message : context.messages())
        writeMessage(xml, message);
    xml.endElement();
}

} // namespace

// The readers do not accept a NUL in a "byte" element either, so it is an error.
bool writeTranslationTable(QIODevice &device, const TranslationTable &table)
{
    XmlWriter xml(XmlWriter::Unrepresentable::ByteElement);
    xml.writeLine("<!DOCTYPE TS>");
    xml.startElement("TS");
    xml.attribute("version", table.version());
    xml.attribute("language", table.language());
    xml.textElement("defaultcodec", table.defaultCodec());
    for (const auto &[name, context] : table.contexts())
        writeContext(xml, context);
    xml.endElement();
    const QByteArray document = xml.takeDocument();
    return !xml.hasError() && device.write(document) == document.size();
}

} // namespace Translation
