#include "scanner/macro_finder.h"

#include "scanner/lexis.h"
#include "scanner/wide_scan.h"

#include <algorithm>

namespace Scan {

namespace {

// The texts of which a hint must be the last byte, without the underscore after it.
constexpr std::string_view beginnings[] = {"REPORT", "ASK"};

bool endsBeginning(std::string_view text, std::size_t hint)
{
    return std::ranges::any_of(beginnings,
                               [beforeUnderscore = text.substr(0, hint + 1)](std::string_view beginning) {
                                   return beforeUnderscore.ends_with(beginning);
                               });
}

// A macro name may be split by a line continuation anywhere, so that no part of it can be searched for.
bool continuesWord(std::string_view text, std::size_t backslash)
{
    return backslash > 0 && Lexis::isWordByte(text[backslash - 1]) &&
           Lexis::continuationLength(text, backslash) != 0;
}

} // namespace

MacroFinder::MacroFinder(std::string_view text)
    : m_text(text)
{
    search(0);
}

void MacroFinder::search(std::size_t from)
{
    for (std::size_t at = Wide::findMacroHint(m_text, from); at < m_text.size();
         at = Wide::findMacroHint(m_text, at + 1)) {
        if (at < m_examined)
            continue;
        const bool hit = m_text[at] == '\\' ? continuesWord(m_text, at) : endsBeginning(m_text, at);
        if (hit && takeWordAround(at) && m_macro.begin >= from)
            return;
    }
    m_macro = {TokenKind::EndOfFile, m_text.size(), m_text.size()};
}

bool MacroFinder::takeWordAround(std::size_t at)
{
    const std::size_t begin = Lexis::wordBegin(m_text, at, m_examined);
    const std::size_t end = Lexis::wordEnd(m_text, begin);
    m_examined = end;
    const std::string_view word = m_text.substr(begin, end - begin);
    const TokenKind kind = Lexis::isBroken(word) ? classifyWord(Lexis::spelling(word)) : classifyWord(word);
    if (!isMacro(kind))
        return false;
    m_macro = {kind, begin, end};
    return true;
}

bool namesMacro(std::string_view text)
{
    return isMacro(MacroFinder(text).next(0).kind);
}

} // namespace Scan
