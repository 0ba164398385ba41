#pragma once

#include <cstdint>
#include <string_view>

namespace Scan {

/// What a word that is no name does in a declaration.
enum class Keyword : std::uint8_t
{
    None,
    Access, ///< with a colon behind it, ends what stands before
    Catch,
    ClassKey,
    Enum,
    Extern,
    Namespace,
    Operator,
    Requires,
    Specifier, ///< stands before or behind names, with parentheses of its own or without
    Template,
    Using
};

/// What the word does; None for a name.
Keyword keywordOf(std::string_view word);

} // namespace Scan
