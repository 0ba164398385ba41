#pragma once

#include <QString>
#include <QStringView>

class QXmlStreamWriter;

namespace Clt {

/// True when an XML 1.0 document can carry every character of the text: no control character other than tab,
/// line feed and carriage return, no half of a surrogate pair, not U+FFFE or U+FFFF.
bool isXmlText(QStringView text);

/// Writes the text, its carriage returns as character references, since a reader takes bare ones for line
/// feeds. After a character that XML cannot carry the writer has an error.
void writeXmlCharacters(QXmlStreamWriter &xml, const QString &text);

/// Writes an element that holds the text alone, in the same way.
void writeXmlTextElement(QXmlStreamWriter &xml, const QString &name, const QString &text);

} // namespace Clt
