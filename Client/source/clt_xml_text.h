#pragma once

#include <QString>
#include <QStringView>

class QXmlStreamReader;
class QXmlStreamWriter;

namespace Clt {

/// True while the reader is before the end of its document, and neither the document nor its device has
/// failed. (atEnd() alone is false after a device has failed, so a loop on it would never end.)
bool canRead(const QXmlStreamReader &xml);

/// True when an XML 1.0 document can represent every character of the text: no control character other than
/// tab, line feed and carriage return, no half of a surrogate pair, not U+FFFE or U+FFFF.
bool isXmlText(QStringView text);

/// True for the white space of XML.
inline bool isXmlSpace(QChar character)
{
    return character == u' ' || character == u'\n' || character == u'\t' || character == u'\r';
}

/// Writes the text, with its carriage returns as character references, because a reader treats others as line
/// feeds. A character that XML cannot represent puts the writer into its error state.
void writeXmlCharacters(QXmlStreamWriter &xml, const QString &text);

} // namespace Clt
