#pragma once

#include <QString>

#include <cstddef>

namespace Clt {

/// The identity of a message: where in the product's sources it is raised. Texts compare by their UTF-16 code
/// units, with case and without regard to the locale.
struct MessageKey
{
    QString tag;     ///< the identifier written as the first argument of the reporting macro
    QString context; ///< namespace, class and function joined by "::"; also the translation context
    QString process; ///< the program or module that raises the message

    /// "(process, context, tag)": process first, the reverse of the declaration.
    QString displayText() const;

    /// True when splitting the context on "::", empty parts kept, yields exactly three parts.
    bool hasFullContext() const;

    /// The key with the first part of its context dropped when that has three parts or more (A::B::C becomes
    /// B::C), else the key itself.
    MessageKey withShortenedContext() const;
};

/// Equal when process, context and tag all are.
bool operator==(const MessageKey &left, const MessageKey &right);
inline bool operator!=(const MessageKey &left, const MessageKey &right)
{
    return !(left == right);
}

/// By process, then context, then tag.
bool operator<(const MessageKey &left, const MessageKey &right);

/// The hash of the display text, as of any other text.
std::size_t qHash(const MessageKey &key, std::size_t seed = 0);

} // namespace Clt
