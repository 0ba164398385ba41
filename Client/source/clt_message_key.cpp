#include "clt_message_key.h"

#include <QHash>
#include <QList>
#include <QVarLengthArray>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

constexpr QStringView separator = u"::";

} // namespace

QString MessageKey::displayText() const
{
    return u'(' + process + u", "_s + context + u", "_s + tag + u')';
}

bool MessageKey::hasFullContext() const
{
    return QStringView(context).split(separator).size() == 3;
}

MessageKey MessageKey::withShortenedContext() const
{
    const qsizetype first = context.indexOf(separator);
    if (first < 0 || context.indexOf(separator, first + separator.size()) < 0)
        return *this;
    return {tag, context.mid(first + separator.size()), process};
}

bool operator==(const MessageKey &left, const MessageKey &right)
{
    return left.process == right.process && left.context == right.context && left.tag == right.tag;
}

std::strong_ordering operator<=>(const MessageKey &left, const MessageKey &right)
{
    if (const int order = left.process.compare(right.process))
        return order <=> 0;
    if (const int order = left.context.compare(right.context))
        return order <=> 0;
    return left.tag.compare(right.tag) <=> 0;
}

// Builds the display text on the stack, because sets of keys hash each key many times.
std::size_t qHash(const MessageKey &key, std::size_t seed)
{
    QVarLengthArray<QChar, 256> text;
    const auto append = [&text](QStringView part) { text.append(part.data(), part.size()); };
    append(u"(");
    append(key.process);
    append(u", ");
    append(key.context);
    append(u", ");
    append(key.tag);
    append(u")");
    return ::qHash(QStringView(text.constData(), text.size()), seed);
}

} // namespace Clt
