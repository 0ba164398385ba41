#pragma once

#include "scanner/call.h"
#include "scanner/source_tokenizer.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Scan {

/// Reads the arguments of a call that asks a question, up to its closing parenthesis.
class QuestionCall
{
public:
    enum class Outcome
    {
        GoesOn,
        Ends,  ///< with the token, a closing parenthesis
        Breaks ///< the block around the call ends, with the token, before the call does
    };

    /// The tokenizer stands on the question's text; line is the call's.
    QuestionCall(CallFamily family, int line, const Tokenizer &token);

    CallFamily family() const { return m_family; }
    int line() const { return m_line; }

    /// Reads the token behind those read before.
    Outcome take(const Tokenizer &token);

    /// The tag of a call that has ended: the question as it is displayed, with its answers and the default
    /// answer. Nothing when these are missing.
    std::optional<QString> tag() const;

private:
    void endArgument(const Tokenizer &token);

    CallFamily m_family;
    int m_line;
    std::string_view m_question; // its literals
    std::size_t m_argumentBegin; // of the argument being read
    std::uint32_t m_parentheses = 1;
    std::uint32_t m_braces = 0;
    std::uint32_t m_arguments = 0;           // those that have ended
    std::array<std::string_view, 2> m_first; // the second and third argument
    std::array<std::string_view, 2> m_last;  // the last but one and the last
};

} // namespace Scan
