#pragma once

#include <QByteArray>

#include <string_view>

class QString;

namespace Scan {

/// Text of bytes that are UTF-8 or else in the 8-bit code page. Where that code page is UTF-8 itself, which
/// the bytes are then not, Windows-1252 stands in for it.
QString decodeEightBit(const QByteArray &bytes);

/// A source file's text in UTF-8, without a byte order mark. What is not UTF-8 is read as decodeEightBit
/// does, unless a byte order mark says that it ought to be: then each wrong byte is a replacement character.
QByteArray toSourceText(const QByteArray &fileContents);

} // namespace Scan
