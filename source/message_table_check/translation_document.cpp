#include "message_table_check/translation_document.h"

#include "clt_xml_source.h"
#include "clt_xml_text.h"
#include "message_table_check/xliff_reader.h"

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace TableCheck {

namespace {

const QString unknownDocument = u"neither a translation file nor XLIFF"_s;

Failure xmlFailure(const QXmlStreamReader &xml)
{
    return Failure{u"line %1: %2"_s.arg(QString::number(xml.lineNumber()), xml.errorString())};
}

Failure stringFailure(const TranslationString &string, const QString &text)
{
    return Failure{u"line %1: %2"_s.arg(QString::number(string.line), text)};
}

/// Reads to the next start element with one of the names, at any depth.
bool readTo(QXmlStreamReader &xml, std::initializer_list<QStringView> names)
{
    while (Clt::canRead(xml)) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            std::find(names.begin(), names.end(), xml.name()) != names.end())
            return true;
    }
    return false;
}

/// Copies a document token by token. White space is held back until the next token, so that what is before an
/// element that is left out can be left out with it.
class Copy
{
public:
    explicit Copy(QIODevice &device)
        : m_writer(&device)
    {
    }

    void add(const QXmlStreamReader &xml)
    {
        if (xml.isCharacters() && !xml.isCDATA()) {
            m_text += xml.text();
            return;
        }
        Clt::writeXmlCharacters(m_writer, std::exchange(m_text, {}));
        m_writer.writeCurrentToken(xml);
        if (xml.isDTD())
            m_writer.writeCharacters(u"\n"_s); // white space outside the root is not reported
    }

    void leaveOut(QXmlStreamReader &xml)
    {
        xml.skipCurrentElement();
        m_text.clear();
    }

private:
    QXmlStreamWriter m_writer;
    QString m_text;
};

/// Writes the strings of a document as trans-units.
class XliffWriter
{
public:
    explicit XliffWriter(QIODevice &device)
        : m_xml(&device)
    {
        m_xml.setAutoFormatting(true);
    }

    bool write(const TranslationDocument &document, const QString &original);

private:
    void startFile(const QString &language, const QString &original);
    void writeString(const TranslationString &string);
    void writeText(const QString &element, const QString &text);

    QXmlStreamWriter m_xml;
    int m_number = 0;
};

bool XliffWriter::write(const TranslationDocument &document, const QString &original)
{
    m_xml.writeStartDocument();
    startFile(document.language, original);
    const QString *context = nullptr;
    for (const TranslationString &string : document.strings) {
        if (!context || *context != string.context) {
            if (context)
                m_xml.writeEndElement();
            context = &string.context;
            m_xml.writeStartElement(u"group"_s);
            m_xml.writeAttribute(u"restype"_s, u"x-trolltech-linguist-context"_s);
            m_xml.writeAttribute(u"resname"_s, string.context);
        }
        writeString(string);
    }
    m_xml.writeEndDocument();
    return !m_xml.hasError();
}

void XliffWriter::startFile(const QString &language, const QString &original)
{
    m_xml.writeStartElement(u"xliff"_s);
    m_xml.writeAttribute(u"version"_s, u"1.2"_s);
    m_xml.writeDefaultNamespace(u"urn:oasis:names:tc:xliff:document:1.2"_s);
    m_xml.writeStartElement(u"file"_s);
    m_xml.writeAttribute(u"original"_s, original);
    m_xml.writeAttribute(u"datatype"_s, u"plaintext"_s);
    m_xml.writeAttribute(u"source-language"_s, u"en"_s);
    if (!language.isEmpty())
        m_xml.writeAttribute(u"target-language"_s, QString(language).replace(u'_', u'-'));
    m_xml.writeStartElement(u"body"_s);
}

void XliffWriter::writeText(const QString &element, const QString &text)
{
    m_xml.writeStartElement(element);
    m_xml.writeAttribute(u"xml:space"_s, u"preserve"_s);
    Clt::writeXmlCharacters(m_xml, text);
    m_xml.writeEndElement();
}

void XliffWriter::writeString(const TranslationString &string)
{
    m_xml.writeStartElement(u"trans-unit"_s);
    // With other ids, lconvert gives the strings ids of their own.
    m_xml.writeAttribute(u"id"_s, u"_msg%1"_s.arg(++m_number));
    if (string.state == TranslationString::State::Obsolete)
        m_xml.writeAttribute(u"translate"_s, u"no"_s);
    else if (string.state == TranslationString::State::Finished)
        m_xml.writeAttribute(u"approved"_s, u"yes"_s);
    writeText(u"source"_s, string.source);
    writeText(u"target"_s, string.translations.value(0));
    if (!string.comment.isEmpty()) {
        m_xml.writeStartElement(u"context-group"_s);
        m_xml.writeStartElement(u"context"_s);
        m_xml.writeAttribute(u"context-type"_s, u"x-gettext-msgctxt"_s);
        Clt::writeXmlCharacters(m_xml, string.comment);
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

bool isXml(const TranslationString &string)
{
    return Clt::isXmlText(string.context) && Clt::isXmlText(string.source) &&
           Clt::isXmlText(string.comment) && Clt::isXmlText(string.translations.value(0));
}

} // namespace

Result<TranslationDocument> readTranslationDocument(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    if (const qint64 line = Clt::limitExpansion(xml, device))
        return Failure{u"line %1: %2"_s.arg(QString::number(line), Clt::tooManyAttributes())};
    TranslationDocument document;
    bool isKnown = false;
    while (readTo(xml, {u"TS", u"xliff"})) {
        isKnown = true;
        if (xml.name() == u"TS") {
            document.language = xml.attributes().value("language"_L1).toString();
            for (TranslationString &string : readTranslationStrings(xml))
                document.strings.push_back(std::move(string));
        } else {
            readXliff(xml, document);
        }
    }
    if (xml.hasError())
        return xmlFailure(xml);
    if (!isKnown)
        return Failure{unknownDocument};
    const auto forms = std::find_if(document.strings.begin(), document.strings.end(),
                                    [](const TranslationString &string) { return string.hasForms; });
    if (forms != document.strings.end())
        return stringFailure(*forms, u"plural forms and length variants would be lost"_s);
    return document;
}

Result<QByteArray> translationFileForQt6(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    if (const qint64 line = Clt::limitExpansion(xml, device))
        return Failure{u"line %1: %2"_s.arg(QString::number(line), Clt::tooManyAttributes())};
    QBuffer contents;
    contents.open(QIODevice::WriteOnly);
    Copy copy(contents);
    bool isKnown = false;
    while (Clt::canRead(xml)) {
        xml.readNext();
        isKnown = isKnown || (xml.isStartElement() && xml.name() == u"TS");
        if (xml.isStartElement() && xml.name() == u"defaultcodec")
            copy.leaveOut(xml);
        else if (!xml.hasError())
            copy.add(xml);
    }
    if (xml.hasError())
        return xmlFailure(xml);
    if (!isKnown)
        return Failure{u"not a translation file"_s};
    return contents.data();
}

Result<QByteArray> xliffOf(const TranslationDocument &document, const QString &original)
{
    for (const TranslationString &string : document.strings) {
        if (!isXml(string))
            return stringFailure(string, u"XLIFF cannot represent a character of this string"_s);
    }
    QBuffer contents;
    contents.open(QIODevice::WriteOnly);
    if (!XliffWriter(contents).write(document, original))
        return Failure{u"XLIFF cannot represent the file's name"_s};
    return contents.data();
}

} // namespace TableCheck
