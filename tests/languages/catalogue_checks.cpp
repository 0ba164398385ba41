#include "catalogue_checks.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

template<typename Property>
bool everyFormKeeps(const Entry &entry, Property property)
{
    const auto expected = property(entry.source);
    return std::all_of(entry.translations.cbegin(), entry.translations.cend(),
                       [&](const QString &form) { return property(form) == expected; });
}

QSet<QString> matchesIn(const QString &text, const QRegularExpression &pattern)
{
    QSet<QString> found;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext())
        found.insert(matches.next().captured());
    return found;
}

QSet<QString> placeholdersOf(const QString &text)
{
    static const QRegularExpression placeholder(u"%(?:L?[1-9][0-9]?|n)"_s);
    return matchesIn(text, placeholder);
}

std::pair<QString, QString> outerBlanksOf(const QString &text)
{
    const auto isInk = [](QChar character) { return !character.isSpace(); };
    const auto first = std::find_if(text.cbegin(), text.cend(), isInk);
    if (first == text.cend())
        return {text, QString()};
    const auto last = std::find_if(text.crbegin(), text.crend(), isInk);
    return {text.left(first - text.cbegin()), text.right(last - text.crbegin())};
}

QSet<QString> productNamesIn(const QString &text)
{
    static const QRegularExpression name(u"NVX2|NVX|Velmora|Mertle Server|Python"_s);
    return matchesIn(text, name);
}

// For each line, the option that it begins with, or an empty string.
QStringList optionsOf(const QString &text)
{
    QStringList options;
    const QStringList lines = text.split(u'\n');
    for (const QString &line : lines) {
        const bool isOption = line.startsWith(u'-');
        options.append(isOption ? line.section(u' ', 0, 0) : QString());
    }
    return options;
}

QStringList keyOf(const Entry &entry)
{
    return {entry.context, entry.source, entry.comment};
}

} // namespace

bool isTranslated(const Entry &entry)
{
    if (entry.state != EntryState::Finished || entry.translations.isEmpty())
        return false;
    const bool isBlank = entry.source.trimmed().isEmpty();
    return std::all_of(entry.translations.cbegin(), entry.translations.cend(), [&](const QString &form) {
        return isBlank ? !form.isEmpty() : !form.trimmed().isEmpty();
    });
}

bool keepsPlaceholders(const Entry &entry)
{
    return everyFormKeeps(entry, placeholdersOf);
}

bool keepsOuterBlanks(const Entry &entry)
{
    return everyFormKeeps(entry, outerBlanksOf);
}

bool keepsLineFeeds(const Entry &entry)
{
    return everyFormKeeps(entry, [](const QString &text) { return text.count(u'\n'); });
}

bool keepsProductNames(const Entry &entry)
{
    return everyFormKeeps(entry, productNamesIn);
}

bool keepsOptions(const Entry &entry)
{
    return everyFormKeeps(entry, optionsOf);
}

bool keepsEllipses(const Entry &entry)
{
    // Two or more consecutive dots, and the characters for an ellipsis.
    static const QRegularExpression ellipsis(u"[.。・]{2,}|…|⋯"_s);
    const auto ellipsesOf = [](const QString &text) {
        QStringList found;
        auto matches = ellipsis.globalMatch(text);
        while (matches.hasNext())
            found.append(matches.next().captured());
        return found;
    };
    return everyFormKeeps(entry, ellipsesOf);
}

QString withoutAccessKeys(QString text)
{
    static const QRegularExpression accessKey(u"\\(&.\\)|&"_s);
    return text.remove(accessKey);
}

QString nameOf(const Entry &entry)
{
    return entry.context + u": "_s + entry.source;
}

QStringList failingTexts(const QList<Entry> &entries, bool (*check)(const Entry &))
{
    QStringList names;
    for (const Entry &entry : entries) {
        if (!check(entry))
            names.append(nameOf(entry));
    }
    return names;
}

QStringList missingFrom(const QList<Entry> &entries, const QList<Entry> &reference)
{
    QSet<QStringList> present;
    for (const Entry &entry : entries)
        present.insert(keyOf(entry));
    QStringList names;
    for (const Entry &entry : reference) {
        if (!present.contains(keyOf(entry)))
            names.append(nameOf(entry));
    }
    return names;
}
