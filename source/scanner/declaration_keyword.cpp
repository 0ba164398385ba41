#include "scanner/declaration_keyword.h"

#include "scanner/word_table.h"

namespace Scan {

namespace {

// Keywords of statements are listed only if they occur in declarations.
constexpr WordTable keywords(std::array<std::pair<std::string_view, Keyword>, 45>{{
    {"Q_SIGNALS", Keyword::Access},
    {"Q_SLOTS", Keyword::Access},
    {"__attribute__", Keyword::Specifier},
    {"__declspec", Keyword::Specifier},
    {"alignas", Keyword::Specifier},
    {"asm", Keyword::Specifier},
    {"catch", Keyword::Catch},
    {"class", Keyword::ClassKey},
    {"const", Keyword::Specifier},
    {"consteval", Keyword::Specifier},
    {"constexpr", Keyword::Specifier},
    {"constinit", Keyword::Specifier},
    {"decltype", Keyword::Specifier},
    {"enum", Keyword::Enum},
    {"explicit", Keyword::Specifier},
    {"extern", Keyword::Extern},
    {"final", Keyword::Specifier},
    {"for", Keyword::Specifier},
    {"friend", Keyword::Specifier},
    {"if", Keyword::Specifier},
    {"inline", Keyword::Specifier},
    {"mutable", Keyword::Specifier},
    {"namespace", Keyword::Namespace},
    {"noexcept", Keyword::Specifier},
    {"operator", Keyword::Operator},
    {"override", Keyword::Specifier},
    {"private", Keyword::Access},
    {"protected", Keyword::Access},
    {"public", Keyword::Access},
    {"requires", Keyword::Requires},
    {"signals", Keyword::Access},
    {"slots", Keyword::Access},
    {"static", Keyword::Specifier},
    {"static_assert", Keyword::Specifier},
    {"struct", Keyword::ClassKey},
    {"switch", Keyword::Specifier},
    {"template", Keyword::Template},
    {"throw", Keyword::Specifier},
    {"try", Keyword::Specifier},
    {"typedef", Keyword::Specifier},
    {"union", Keyword::ClassKey},
    {"using", Keyword::Using},
    {"virtual", Keyword::Specifier},
    {"volatile", Keyword::Specifier},
    {"while", Keyword::Specifier},
}});

} // namespace

Keyword keywordOf(std::string_view word)
{
    return keywords.find(word, Keyword::None);
}

} // namespace Scan
