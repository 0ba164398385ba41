#pragma once

#include "catalogue.h"

// How each language writes its texts. A check holds when every form of the translation keeps to the
// typography of the locale ("de-DE"). A form that is the source's own text is a name or a code word and is
// not looked at. No check holds for a locale whose typography is not known.

using TypographyCheck = bool (*)(const Entry &, const QString &locale);

/// Quotations and names of buttons stand between the language's own marks, which come in pairs on one line.
/// An apostrophe is "'".
bool usesOwnQuotes(const Entry &entry, const QString &locale);

/// Blanks stand where the language puts them: around punctuation, parentheses and quotation marks, and in
/// Chinese and Japanese between the two scripts.
bool spacesAsItsLanguage(const Entry &entry, const QString &locale);

/// Punctuation is of the text's script: full-width in Chinese, "、" and "。" in Japanese, and neither
/// elsewhere.
bool usesOwnPunctuation(const Entry &entry, const QString &locale);

/// A dash between blanks is the language's. Where the source has " - ", which separates the parts of a log
/// line, it stays.
bool usesOwnDash(const Entry &entry, const QString &locale);

/// The texts for which a check does not hold, as "context: source".
QStringList offenders(const QList<Entry> &entries, const QString &locale, TypographyCheck check);
