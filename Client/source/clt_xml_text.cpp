#include "clt_xml_text.h"

#include <QChar>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

bool isXmlCharacter(char16_t unit)
{
    if (unit < u' ')
        return unit == u'\t' || unit == u'\n' || unit == u'\r';
    return unit < 0xFFFE;
}

} // namespace

bool canRead(const QXmlStreamReader &xml)
{
    return !xml.hasError() && !xml.atEnd();
}

bool isXmlText(QStringView text)
{
    for (const char16_t *unit = text.utf16(), *end = unit + text.size(); unit != end; ++unit) {
        if (QChar::isSurrogate(*unit)) {
            if (!QChar::isHighSurrogate(*unit) || unit + 1 == end || !QChar::isLowSurrogate(unit[1]))
                return false;
            ++unit;
        } else if (!isXmlCharacter(*unit)) {
            return false;
        }
    }
    return true;
}

void writeXmlCharacters(QXmlStreamWriter &xml, const QString &text)
{
    qsizetype begin = 0;
    for (qsizetype end = text.indexOf(u'\r'); end >= 0; end = text.indexOf(u'\r', begin)) {
        xml.writeCharacters(text.sliced(begin, end - begin));
        xml.writeEntityReference(u"#13"_s);
        begin = end + 1;
    }
    xml.writeCharacters(begin == 0 ? text : text.sliced(begin));
}

} // namespace Clt
