#pragma once

#include "scanner/token_kind.h"

#include <QString>

#include <cstddef>
#include <cstdint>

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

} // namespace Scan
