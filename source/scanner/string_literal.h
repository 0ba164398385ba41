#pragma once

#include <string_view>

class QString;

namespace Scan {

/// The text of one string literal or several adjacent ones: their contents with escape sequences decoded and
/// line continuations dropped, prefixes and suffixes left out. The source is UTF-8. Line ends within a raw
/// string are single line feeds. Bytes written by number that are no UTF-8 together are read in the 8-bit
/// code page.
QString decodeLiterals(std::string_view source);

} // namespace Scan
