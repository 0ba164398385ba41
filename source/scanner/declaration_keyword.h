#pragma once

#include <cstdint>
#include <string_view>

namespace Scan {

/// The meaning of a word that is not a name in a declaration.
enum class Keyword : std::uint8_t
{
    None,
    Access, ///< with a colon after it, ends the declaration before it
    Catch,
    ClassKey,
    Enum,
    Extern,
    Namespace,
    Operator,
    Requires,
    Specifier, ///< comes before or after names, with or without parentheses of its own
    Template,
    Using
};

/// The meaning of the word; None for a name.
Keyword keywordOf(std::string_view word);

} // namespace Scan
