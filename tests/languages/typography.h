#pragma once

#include "catalogue.h"

// The typography of each language. A text passes a check if every form of its translation follows the
// typography of the locale ("de-DE"). A form that equals the source is a name or a code word and is not
// checked. Every check fails for a locale whose typography is not known.

using TypographyCheck = bool (*)(const Entry &, const QString &locale);

/// Quotations and names of buttons are enclosed in the language's marks, which are paired within a line. An
/// apostrophe is "'".
bool usesOwnQuotes(const Entry &entry, const QString &locale);

/// Blanks around punctuation, parentheses and quotation marks follow the language, in Chinese and Japanese
/// also those between the two scripts.
bool usesOwnSpacing(const Entry &entry, const QString &locale);

/// Punctuation follows the script: full-width in Chinese, "、" and "。" in Japanese, and neither
/// elsewhere.
bool usesOwnPunctuation(const Entry &entry, const QString &locale);

/// A dash between blanks is that of the language. A source's " - ", which separates the parts of a log line,
/// is preserved.
bool usesOwnDash(const Entry &entry, const QString &locale);

/// The texts that fail a check, as "context: source".
QStringList failingTexts(const QList<Entry> &entries, const QString &locale, TypographyCheck check);
