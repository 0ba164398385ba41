#pragma once

#include <QString>

#include <compare>
#include <cstddef>

namespace Clt {

/// The identity of a message: where in the product's sources it is raised. Texts are compared by their UTF-16
/// code units, case-sensitively and independently of the locale.
struct MessageKey
{
    QString tag;     ///< the identifier written as the first argument of the reporting macro
    QString context; ///< namespace, class and function joined by "::"; also the translation context
    QString process; ///< the program or module that raises the message

    /// "(process, context, tag)": process first, the reverse of the declaration.
    QString displayText() const;

    /// True when splitting the context on "::", empty parts kept, yields exactly three parts.
    bool hasFullContext() const;

    /// The key without the first part of its context if that has three parts or more (A::B::C becomes B::C),
    /// otherwise the key itself.
    MessageKey withShortenedContext() const;
};

/// Compares process, context and tag, in this order.
bool operator==(const MessageKey &left, const MessageKey &right);

/// Orders by process, then context, then tag.
std::strong_ordering operator<=>(const MessageKey &left, const MessageKey &right);

/// The hash of the display text, the same as of any other string.
std::size_t qHash(const MessageKey &key, std::size_t seed = 0);

} // namespace Clt
