#pragma once

#include "scanner/token_kind.h"

#include <cstddef>
#include <string_view>

namespace Scan {

/// Finds the names of the reporting macros anywhere in a text, also in comments and literals. A file
/// without calls is recognised as fast as it can be read, and the tokenizer can skip to the next name.
class MacroFinder
{
public:
    struct Macro
    {
        TokenKind kind = TokenKind::EndOfFile;
        std::size_t begin = 0; ///< the text's size if there is no macro name
        std::size_t end = 0;
    };

    /// The text must outlive the finder.
    explicit MacroFinder(std::string_view text);

    /// The first macro name that begins at or after from. A series of calls with increasing positions reads
    /// the text once.
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
    std::size_t m_examined = 0; ///< the end of the last word examined, so that no word is examined twice
};

/// True when the text contains the name of a reporting macro.
bool namesMacro(std::string_view text);

} // namespace Scan
