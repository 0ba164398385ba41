#include "message_table_check/translation_strings.h"

#include "clt_xml_text.h"

#include <QXmlStreamReader>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace TableCheck {

namespace {

/// The character of a "byte" element; empty if its number is not that of a UTF-16 code unit.
QString byteCharacter(const QXmlStreamReader &xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    const QStringView value = attributes.value("value"_L1);
    const bool isHexadecimal = value.startsWith(u'x');
    const ushort number = isHexadecimal ? value.sliced(1).toUShort(nullptr, 16) : value.toUShort();
    return number == 0 ? QString() : QString(QChar(number));
}

/// The contents of an element: its own text, and that of each child other than "byte".
struct Contents
{
    QString text;
    QStringList children;
};

// A plural form may consist of length variants, so children are read in the same way, but no deeper: their
// texts are one list.
void readContents(QXmlStreamReader &xml, Contents &contents, int depth)
{
    constexpr int maximumDepth = 2;
    while (Clt::canRead(xml)) {
        switch (xml.readNext()) {
        case QXmlStreamReader::Characters:
            contents.text += xml.text();
            break;
        case QXmlStreamReader::StartElement:
            if (xml.name() == u"byte") {
                contents.text += byteCharacter(xml);
                xml.skipCurrentElement();
            } else if (depth < maximumDepth) {
                Contents child;
                readContents(xml, child, depth + 1);
                contents.children += child.children.isEmpty() ? QStringList(child.text) : child.children;
            } else {
                xml.skipCurrentElement();
            }
            break;
        case QXmlStreamReader::EndElement:
            return;
        default:
            break;
        }
    }
}

QString readText(QXmlStreamReader &xml)
{
    Contents contents;
    readContents(xml, contents, 0);
    return contents.text;
}

TranslationString::State stateOf(QStringView type)
{
    if (type == u"unfinished")
        return TranslationString::State::Unfinished;
    if (type == u"obsolete" || type == u"vanished")
        return TranslationString::State::Obsolete;
    return TranslationString::State::Finished;
}

void readTranslation(QXmlStreamReader &xml, TranslationString &string)
{
    string.state = stateOf(xml.attributes().value("type"_L1));
    Contents contents;
    readContents(xml, contents, 0);
    string.hasForms = string.hasForms || !contents.children.isEmpty();
    string.translations = string.hasForms ? contents.children : QStringList(contents.text);
}

/// Calls the function at the start tag of each child of an element; it reads the child to its end. Then the
/// reader is at the element's end tag, unless the document is not well formed.
template<typename ReadChild>
void readChildren(QXmlStreamReader &xml, ReadChild readChild)
{
    while (Clt::canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            return;
        if (token == QXmlStreamReader::StartElement)
            readChild();
    }
}

/// The string is complete if the reader is then at its end tag.
TranslationString readString(QXmlStreamReader &xml)
{
    TranslationString string;
    string.line = xml.lineNumber();
    string.hasForms = xml.attributes().value("numerus"_L1) == u"yes";
    readChildren(xml, [&] {
        if (xml.name() == u"source")
            string.source = readText(xml);
        else if (xml.name() == u"comment")
            string.comment = readText(xml);
        else if (xml.name() == u"translation")
            readTranslation(xml, string);
        else
            xml.skipCurrentElement();
    });
    return string;
}

void readContext(QXmlStreamReader &xml, TranslationStrings &strings)
{
    const std::size_t first = strings.size();
    QString name;
    readChildren(xml, [&] {
        if (xml.name() == u"name") {
            name = readText(xml);
        } else if (xml.name() == u"message") {
            TranslationString string = readString(xml);
            if (!xml.hasError())
                strings.push_back(std::move(string));
        } else {
            xml.skipCurrentElement();
        }
    });
    // A context's name need not be its first element.
    for (std::size_t at = first; at < strings.size(); ++at)
        strings[at].context = name;
}

} // namespace

TranslationStrings readTranslationStrings(QXmlStreamReader &xml)
{
    TranslationStrings strings;
    readChildren(xml, [&] {
        if (xml.name() == u"context")
            readContext(xml, strings);
        else
            xml.skipCurrentElement();
    });
    return strings;
}

} // namespace TableCheck
