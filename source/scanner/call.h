#pragma once

#include "scanner/token_kind.h"
#include "scanner/tokenizer.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Scan {

/// The families of calls. The keys of each family are collected separately.
enum class CallFamily : std::uint8_t
{
    Error,
    ErrorWithArguments,
    Message,
    MessageWithArguments,
    Question,
    QuestionWithArguments
};
constexpr std::size_t callFamilyCount = 6;

/// The family of a macro's kind.
CallFamily familyOf(TokenKind macro);

/// A call of a reporting macro.
struct Call
{
    CallFamily family = CallFamily::Error;
    QString tag;
    QString context; ///< the enclosing namespaces, classes and function; empty outside of functions
    int line = 0;
};

/// Reads the arguments of a call that asks a question, up to its closing parenthesis.
class QuestionCall
{
public:
    enum class Progress
    {
        Continues,
        Ends,  ///< the token is the call's closing parenthesis
        Breaks ///< the token ends the block around the call, which is not closed
    };

    /// The token is the question's string; line is the line of the call.
    QuestionCall(CallFamily family, int line, const Tokenizer &token);

    CallFamily family() const { return m_family; }
    int line() const { return m_line; }

    /// Reads the next token.
    Progress take(const Tokenizer &token);

    /// The tag of a call that has ended: the question as it is displayed, with its answers and the default
    /// answer; nullopt if these are missing.
    std::optional<QString> tag() const;

private:
    void endArgument(const Tokenizer &token);

    CallFamily m_family;
    int m_line;
    std::string_view m_question; // its string literals
    std::size_t m_argumentBegin; // of the current argument
    std::uint32_t m_parentheses = 1;
    std::uint32_t m_braces = 0;
    std::uint32_t m_arguments = 0;           // that have ended
    std::array<std::string_view, 2> m_first; // the second and third argument
    std::array<std::string_view, 2> m_last;  // the last two arguments
};

} // namespace Scan
