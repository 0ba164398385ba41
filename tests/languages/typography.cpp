#include "typography.h"

#include "catalogue_checks.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Marks
{
    const char *locale;
    const char *quotes; ///< opening and closing marks alternately
    const char *dash;
};

// The brackets enclose names of buttons.
const Marks marks[] = {
    {"de-DE", "„“", "–"},   {"fr-FR", "«»", "-"}, {"it-IT", "“”", "-"}, {"ja-JP", "「」[]", "-"},
    {"ko-KR", "“”[]", "-"}, {"ru-RU", "«»", "—"}, {"zh-CN", "“”", "-"}, {"zh-TW", "「」[]", "-"},
};

// A pattern that matches nowhere in the texts of the locales: those named, or after "not " all others. "\h"
// is a blank of any width within a line.
struct Fault
{
    const char *locales;
    const char *pattern;
};

// Kana and Chinese characters; \p{Han} would also include their punctuation.
const char *const ideographs = "[\\x{3041}-\\x{30FA}\\x{30FC}-\\x{30FF}\\x{3400}-\\x{9FFF}々]";

const Fault spacingFaults[] = {
    // No blank after punctuation, a blank inside parentheses, two blanks.
    {"not ", "[:;!?,][^\\s»“”」)]|[(\\[]\\h|\\S\\h\\h+\\S"},
    // A blank before punctuation; a no-break space.
    {"not fr-FR", "\\h[:;!?,)\\]]|[\\x{A0}\\x{202F}]"},
    // Double punctuation and guillemets without a no-break space, or with a narrow one.
    {"fr-FR", "(?<!\\x{A0})[:;!?»]|«(?!\\x{A0})|\\h[,)]|\\x{202F}"},
    // No blank before a parenthesis; in Korean, a blank.
    {"not ko-KR zh-CN zh-TW", "[^\\s„«“]\\("},
    {"ko-KR", "\\h\\("},
    // Blanks next to full-width punctuation.
    {"ja-JP zh-CN zh-TW", "\\h[，。：；？！）、]|[，。：；？！（、]\\h+\\S"},
    // No blank between the two scripts.
    {"ja-JP zh-CN zh-TW", "IDEOGRAPHS[A-Za-z0-9%]|[A-Za-z0-9]IDEOGRAPHS"},
};

const Fault punctuationFaults[] = {
    {"not ja-JP zh-CN zh-TW", "[\\x{3000}-\\x{303F}\\x{FF00}-\\x{FFEF}]"},
    {"ja-JP", "[\\x{FF01}-\\x{FF5E}]|(?<=IDEOGRAPHS)[,.;](?!\\.\\.)"},
    {"zh-CN zh-TW", "[,:;?!()]|(?<=IDEOGRAPHS)\\.(?!\\.\\.)"},
};

const Marks *marksOf(const QString &locale)
{
    const auto *found = std::find_if(std::begin(marks), std::end(marks),
                                     [&](const Marks &row) { return locale == QLatin1String(row.locale); });
    return found == std::end(marks) ? nullptr : found;
}

template<typename Property>
bool everyFormKeeps(const Entry &entry, const QString &locale, Property property)
{
    const Marks *own = marksOf(locale);
    return own &&
           std::all_of(entry.translations.cbegin(), entry.translations.cend(), [&](const QString &form) {
               return form == entry.source || property(withoutAccessKeys(form), *own);
           });
}

bool appliesTo(const Fault &fault, const char *locale)
{
    const std::string_view locales = fault.locales;
    return locales.starts_with("not ") != (locales.find(locale) != std::string_view::npos);
}

// The patterns of a table that apply to each locale.
template<std::size_t Count>
QMap<QString, QList<QRegularExpression>> patternsByLocale(const Fault (&faults)[Count])
{
    QMap<QString, QList<QRegularExpression>> patterns;
    for (const Fault &fault : faults) {
        QString pattern = QString::fromUtf8(fault.pattern);
        pattern.replace("IDEOGRAPHS"_L1, QString::fromUtf8(ideographs));
        for (const Marks &language : marks) {
            if (appliesTo(fault, language.locale))
                patterns[QString::fromLatin1(language.locale)].append(QRegularExpression(pattern));
        }
    }
    return patterns;
}

bool matchesNone(const QList<QRegularExpression> &patterns, const QString &text)
{
    return std::none_of(patterns.cbegin(), patterns.cend(),
                        [&](const QRegularExpression &pattern) { return text.contains(pattern); });
}

bool isApostrophe(const QString &text, qsizetype at)
{
    return at > 0 && at + 1 < text.size() && text[at - 1].isLetter() &&
           (text[at + 1].isLetter() || text[at + 1] == u'%');
}

// Checks the marks of a line in order: each is one of the language's opening marks or closes the previous
// one.
bool pairsQuotes(const QString &line, const QString &own)
{
    static const QString all = u"\"'`´„“”‟‚‘’‛«»‹›「」『』《》〝〞＂＇[]"_s;
    QChar awaited;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar mark = line[at];
        if (!all.contains(mark) || (mark == u'\'' && isApostrophe(line, at)))
            continue;
        const qsizetype place = own.indexOf(mark);
        if (awaited.isNull() ? (place < 0 || place % 2 != 0) : mark != awaited)
            return false;
        awaited = awaited.isNull() ? own[place + 1] : QChar();
    }
    return awaited.isNull();
}

} // namespace

bool usesOwnQuotes(const Entry &entry, const QString &locale)
{
    return everyFormKeeps(entry, locale, [](const QString &text, const Marks &own) {
        const QStringList lines = text.split(u'\n');
        return std::all_of(lines.cbegin(), lines.cend(), [&](const QString &line) {
            return pairsQuotes(line, QString::fromUtf8(own.quotes));
        });
    });
}

bool usesOwnSpacing(const Entry &entry, const QString &locale)
{
    static const auto patterns = patternsByLocale(spacingFaults);
    return everyFormKeeps(entry, locale, [&](const QString &text, const Marks & /*own*/) {
        return matchesNone(patterns.value(locale), text);
    });
}

bool usesOwnPunctuation(const Entry &entry, const QString &locale)
{
    static const auto patterns = patternsByLocale(punctuationFaults);
    return everyFormKeeps(entry, locale, [&](const QString &text, const Marks & /*own*/) {
        return matchesNone(patterns.value(locale), text);
    });
}

bool usesOwnDash(const Entry &entry, const QString &locale)
{
    static const QRegularExpression dash(u"(?<=\\h)[-–—](?=\\h)"_s);
    const bool separatesParts = entry.source.contains(" - "_L1);
    return everyFormKeeps(entry, locale, [&](const QString &text, const Marks &own) {
        const QString expected = separatesParts ? u"-"_s : QString::fromUtf8(own.dash);
        auto dashes = dash.globalMatch(text);
        while (dashes.hasNext()) {
            if (dashes.next().captured() != expected)
                return false;
        }
        return true;
    });
}

QStringList failingTexts(const QList<Entry> &entries, const QString &locale, TypographyCheck check)
{
    QStringList names;
    for (const Entry &entry : entries) {
        if (!check(entry, locale))
            names.append(nameOf(entry));
    }
    return names;
}
