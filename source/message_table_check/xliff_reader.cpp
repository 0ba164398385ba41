#include "message_table_check/xliff_reader.h"

#include "clt_xml_text.h"
#include "message_table_check/translation_document.h"

#include <QXmlStreamReader>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace TableCheck {

namespace {

/// Reads trans-units, and remembers in which groups they are.
class XliffReader
{
public:
    XliffReader(QXmlStreamReader &xml, TranslationDocument &document)
        : m_xml(xml)
        , m_document(document)
    {
    }

    void read();

private:
    struct Group
    {
        QString context;
        bool hasForms = false;
    };

    void enterGroup();
    void readUnit();
    void readUnitChild(TranslationString &string);
    void readTarget(TranslationString &string);

    QXmlStreamReader &m_xml;
    TranslationDocument &m_document;
    std::vector<Group> m_groups{Group()};
    bool m_isApproved = false;
    bool m_isDisapproved = false;
};

// Groups may be nested as deeply as the document likes, so this is a loop.
void XliffReader::read()
{
    while (Clt::canRead(m_xml)) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        const QStringView name = m_xml.name();
        if (token == QXmlStreamReader::EndElement) {
            if (name == u"xliff")
                return;
            if (name == u"group" && m_groups.size() > 1)
                m_groups.pop_back();
        } else if (token == QXmlStreamReader::StartElement) {
            if (name == u"group")
                enterGroup();
            else if (name == u"trans-unit")
                readUnit();
            else if (name == u"file" && m_document.language.isEmpty())
                m_document.language =
                    m_xml.attributes().value("target-language"_L1).toString().replace(u'-', u'_');
        }
    }
}

void XliffReader::enterGroup()
{
    Group group = m_groups.back();
    const QXmlStreamAttributes attributes = m_xml.attributes();
    const QStringView kind = attributes.value("restype"_L1);
    if (kind == u"x-trolltech-linguist-context")
        group.context = attributes.value("resname"_L1).toString();
    else if (kind == u"x-gettext-plurals")
        group.hasForms = true;
    m_groups.push_back(group);
}

void XliffReader::readUnit()
{
    TranslationString string;
    string.line = m_xml.lineNumber();
    string.context = m_groups.back().context;
    string.hasForms = m_groups.back().hasForms;
    string.translations = QStringList(QString());
    const QXmlStreamAttributes attributes = m_xml.attributes();
    m_isApproved = attributes.value("approved"_L1) == u"yes";
    m_isDisapproved = attributes.value("approved"_L1) == u"no";
    const bool isObsolete = attributes.value("translate"_L1) == u"no";
    string.state = m_isApproved ? TranslationString::State::Finished : TranslationString::State::Unfinished;
    while (Clt::canRead(m_xml)) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::StartElement)
            readUnitChild(string);
    }
    if (isObsolete)
        string.state = TranslationString::State::Obsolete;
    if (!m_xml.hasError())
        m_document.strings.push_back(std::move(string));
}

void XliffReader::readUnitChild(TranslationString &string)
{
    const QStringView name = m_xml.name();
    if (name == u"source") {
        string.source = m_xml.readElementText(QXmlStreamReader::IncludeChildElements);
    } else if (name == u"target") {
        readTarget(string);
    } else if (name == u"context-group") {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == u"context" &&
                m_xml.attributes().value("context-type"_L1) == u"x-gettext-msgctxt")
                string.comment = m_xml.readElementText(QXmlStreamReader::IncludeChildElements);
            else
                m_xml.skipCurrentElement();
        }
    } else {
        m_xml.skipCurrentElement();
    }
}

void XliffReader::readTarget(TranslationString &string)
{
    const QString state = m_xml.attributes().value("state"_L1).toString();
    const bool isDone = state == "translated"_L1 || state == "final"_L1 || state == "signed-off"_L1;
    if (isDone && !m_isDisapproved)
        string.state = TranslationString::State::Finished;
    string.translations = QStringList(m_xml.readElementText(QXmlStreamReader::IncludeChildElements));
}

} // namespace

void readXliff(QXmlStreamReader &xml, TranslationDocument &document)
{
    XliffReader(xml, document).read();
}

} // namespace TableCheck
