#pragma once

#include "scanner/source_token.h"

#include <cstddef>
#include <string_view>

namespace Scan {

/// Finds the names of the reporting macros in a text, wherever they stand, comments and literals included:
/// what tells a file without any at the speed of reading it, and how far the tokenizer need not look.
class MacroFinder
{
public:
    struct Macro
    {
        TokenKind kind = TokenKind::EndOfFile;
        std::size_t begin = 0; ///< the text's size when there is no macro name
        std::size_t end = 0;
    };

    /// The text stays where it is while the finder lives.
    explicit MacroFinder(std::string_view text);

    /// The first macro name that begins at or after from. Calls with rising positions cost one pass over the
    /// text together.
    const Macro &next(std::size_t from)
    {
        if (m_macro.begin < from)
            search(from);
        return m_macro;
    }

private:
    void search(std::size_t from);
    bool takeWordAround(std::size_t at);

    std::string_view m_text;
    Macro m_macro;
    std::size_t m_examined = 0; ///< the end of the last word looked at, so that none is looked at twice
};

/// True when the text names a reporting macro anywhere.
bool namesMacro(std::string_view text);

} // namespace Scan
