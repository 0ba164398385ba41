#pragma once

#include <QByteArray>

#include <string_view>

class QString;

namespace Scan {

/// The text of bytes that are UTF-8 or in the 8-bit code page. If the bytes are not UTF-8 and the code page
/// is, they are read as Windows-1252.
QString decodeEightBit(const QByteArray &bytes);

/// A source file's text in UTF-8, without a byte order mark. Bytes that are not UTF-8 are read by
/// decodeEightBit, unless there is a byte order mark: then each invalid byte becomes a replacement character.
QByteArray toSourceText(const QByteArray &fileContents);

} // namespace Scan
