#pragma once

#include <string_view>

class QString;

namespace Scan {

/// The text of one string literal or several adjacent ones: their contents with escape sequences decoded,
/// without line continuations, prefixes and suffixes. The source is UTF-8. Line ends in a raw string become
/// single line feeds. Bytes written as numbers are read in the 8-bit code page if they are not UTF-8.
QString decodeLiterals(std::string_view source);

} // namespace Scan
