#pragma once

#include <QString>
#include <QStringView>

class QXmlStreamReader;
class QXmlStreamWriter;

namespace Clt {

/// True while the reader has more to give: it is not at the end of its document, and neither that nor its
/// device has failed. (To the reader itself a device that failed is not at its end; it would be asked again
/// for ever.)
bool canRead(const QXmlStreamReader &xml);

/// True when an XML 1.0 document can carry every character of the text: no control character other than tab,
/// line feed and carriage return, no half of a surrogate pair, not U+FFFE or U+FFFF.
bool isXmlText(QStringView text);

/// Writes the text, its carriage returns as character references, since a reader takes bare ones for line
/// feeds. After a character that XML cannot carry the writer has an error.
void writeXmlCharacters(QXmlStreamWriter &xml, const QString &text);

/// Writes an element that holds the text alone, in the same way.
void writeXmlTextElement(QXmlStreamWriter &xml, const QString &name, const QString &text);

} // namespace Clt
