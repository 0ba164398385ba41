#include "scanner/project_properties.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

// A part of an expression: text, or what stands in the parentheses of $(...), @(...) or %(...).
struct Part
{
    QChar mark; // of a reference; null for text
    QString text;
};

qsizetype closingParenthesis(const QString &text, qsizetype open)
{
    int depth = 0;
    for (qsizetype at = open; at < text.size(); ++at) {
        if (text.at(at) == u'(')
            ++depth;
        else if (text.at(at) == u')' && --depth == 0)
            return at;
    }
    return -1;
}

bool isReference(const QString &text, qsizetype at)
{
    return at + 1 < text.size() && text.at(at + 1) == u'(' && u"$@%"_s.contains(text.at(at));
}

bool hasReference(const QString &text)
{
    return text.contains("$("_L1) || text.contains("@("_L1) || text.contains("%("_L1);
}

// An unclosed reference, and what follows it, is text.
QList<Part> partsOf(const QString &expression)
{
    QList<Part> parts;
    qsizetype begin = 0;
    for (qsizetype at = 0; at < expression.size(); ++at) {
        if (!isReference(expression, at))
            continue;
        const qsizetype close = closingParenthesis(expression, at + 1);
        if (close < 0)
            break;
        if (at > begin)
            parts.append({QChar(), expression.mid(begin, at - begin)});
        parts.append({expression.at(at), expression.mid(at + 2, close - at - 2).trimmed()});
        begin = close + 1;
        at = close;
    }
    if (begin < expression.size())
        parts.append({QChar(), expression.mid(begin)});
    return parts;
}

bool isPropertyName(const QString &text)
{
    static const QRegularExpression name(u"\\A[A-Za-z_][A-Za-z0-9_-]*\\z"_s);
    return name.match(text).hasMatch();
}

// True for conditions such as '$(NAME)' == '', with or without the first quotes.
bool isDefault(const QString &name, const QString &condition)
{
    QString packed = condition;
    packed.removeIf([](QChar character) { return character.isSpace(); });
    const QString reference = u"$(%1)"_s.arg(name);
    return packed.compare(u"'%1'==''"_s.arg(reference), Qt::CaseInsensitive) == 0 ||
           packed.compare(reference + u"==''"_s, Qt::CaseInsensitive) == 0;
}

void addOnce(ProjectTexts &texts, const ProjectText &added)
{
    const bool known = std::ranges::any_of(texts, [&added](const ProjectText &text) {
        return text.text == added.text && text.problem == added.problem;
    });
    if (!known)
        texts.append(added);
}

std::optional<ushort> hexadecimal(QStringView digits)
{
    bool valid = false;
    const ushort value = digits.size() == 2 ? digits.toUShort(&valid, 16) : ushort(0);
    return valid && digits[0] != u'+' && digits[0] != u'-' ? std::optional(value) : std::nullopt;
}

} // namespace

void ProjectProperties::reserve(const QString &name, const QString &value)
{
    m_reserved.insert(name.toLower(), value);
}

void ProjectProperties::addValue(const QString &name, const QString &value)
{
    addOnce(m_values[name.toLower()], {.text = value});
}

void ProjectProperties::assign(const QString &name, const QString &expression, const QString &condition,
                               bool isConditional)
{
    const QString key = name.toLower();
    const auto before = m_values.constFind(key);
    const bool hasValue =
        before != m_values.cend() && std::ranges::any_of(*before, [](const ProjectText &value) {
            return !value.text.isEmpty() || !value.problem.isEmpty();
        });
    if (isDefault(name, condition) && hasValue)
        return;
    ProjectTexts values = isConditional && hasValue ? *before : ProjectTexts();
    for (const ProjectText &value : expand(expression, key))
        addOnce(values, value);
    if (values.size() > maximumValues)
        values = {{.text = {}, .problem = u"the property \"%1\" has too many values"_s.arg(name)}};
    m_values.insert(key, values);
}

ProjectTexts ProjectProperties::valuesOf(const QString &reference, const QString &assigned) const
{
    if (!isPropertyName(reference))
        return {{.text = {}, .problem = u"the property function $(%1) is not evaluated"_s.arg(reference)}};
    const QString key = reference.toLower();
    if (const auto reserved = m_reserved.constFind(key); reserved != m_reserved.cend())
        return {{.text = *reserved}};
    if (const auto known = m_values.constFind(key); known != m_values.cend())
        return *known;
    if (key == assigned) // a list that begins with its earlier value
        return {{.text = {}}};
    return {{.text = {}, .problem = u"the property \"%1\" is not defined"_s.arg(reference)}};
}

ProjectTexts ProjectProperties::expand(const QString &expression)
{
    return expand(expression, QString());
}

ProjectTexts ProjectProperties::expand(const QString &expression, const QString &assigned)
{
    if (!hasReference(expression))
        return {{.text = expression}};
    ProjectTexts texts{{.text = {}}};
    for (const Part &part : partsOf(expression)) {
        ProjectTexts values{{.text = part.text}};
        if (part.mark == u'$')
            values = valuesOf(part.text, assigned);
        else if (!part.mark.isNull())
            values = {{.text = {}, .problem = u"%1(%2) is not evaluated"_s.arg(part.mark).arg(part.text)}};

        ProjectTexts longer;
        for (const ProjectText &text : std::as_const(texts)) {
            for (const ProjectText &value : std::as_const(values)) {
                m_left -= text.text.size() + value.text.size();
                if (m_left < 0 || text.text.size() + value.text.size() > maximumLength)
                    return {{.text = {}, .problem = u"the values of its properties are too long"_s}};
                addOnce(longer, {.text = text.text + value.text,
                                 .problem = text.problem.isEmpty() ? value.problem : text.problem});
            }
        }
        if (longer.size() > maximumValues)
            return {{.text = {}, .problem = u"its properties have too many values"_s}};
        texts = std::move(longer);
    }
    return texts;
}

QStringList listEntries(const QString &list)
{
    QStringList entries;
    if (!list.contains(u';')) {
        if (const QString entry = list.trimmed(); !entry.isEmpty())
            entries.append(entry);
        return entries;
    }
    qsizetype begin = 0;
    const auto take = [&](qsizetype end) {
        if (QString entry = list.mid(begin, end - begin).trimmed(); !entry.isEmpty())
            entries.append(std::move(entry));
        begin = end + 1;
    };
    bool mayClose =
        true; // false after an unclosed parenthesis, so that the search for its end is not repeated
    for (qsizetype at = 0; at < list.size(); ++at) {
        if (list.at(at) == u';') {
            take(at);
        } else if (mayClose && isReference(list, at)) {
            const qsizetype close = closingParenthesis(list, at + 1);
            mayClose = close >= 0;
            at = mayClose ? close : at;
        }
    }
    take(list.size());
    return entries;
}

QString unescaped(const QString &text)
{
    if (!text.contains(u'%'))
        return text;
    QString plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const auto code =
            text.at(at) == u'%' ? hexadecimal(QStringView(text).sliced(at + 1).left(2)) : std::nullopt;
        if (code && *code != u'*' && *code != u'?') {
            plain += QChar(*code);
            at += 2;
        } else {
            plain += text.at(at);
        }
    }
    return plain;
}

} // namespace Scan
