#pragma once

#include "scanner/source_token.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace Scan {

/// The families of calls whose keys are collected apart.
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
    QString context; ///< the namespaces, classes and function around it; empty outside of functions
    int line = 0;
};

} // namespace Scan
