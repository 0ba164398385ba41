#pragma once

#include "catalogue.h"

// What must hold for a text of a catalogue, whatever the language. Of a text with plural forms it must hold
// for each form.

/// Released by a translator, and no form is left empty. A text of nothing but blanks is translated by blanks.
bool isTranslated(const Entry &entry);

/// The translation has the source's placeholders, "%1" to "%99", "%L1" to "%L99" and "%n", and no others.
bool keepsPlaceholders(const Entry &entry);

/// The white space at the beginning and at the end is the source's: texts are put together.
bool keepsOuterBlanks(const Entry &entry);

/// As many line feeds as the source.
bool keepsLineFeeds(const Entry &entry);

/// The names of products stay as they are.
bool keepsProductNames(const Entry &entry);

/// A line that begins with an option of the command line ("-I Install mode") still begins with that option.
bool keepsOptions(const Entry &entry);

/// As many ellipses as the source, each written as three dots; every language of the interface does so.
bool keepsEllipses(const Entry &entry);

/// The text without the marks of its access keys, "&" and "(&C)".
QString withoutAccessKeys(QString text);

/// How a message names a text: "context: source".
QString nameOf(const Entry &entry);

/// The texts for which a check does not hold, as "context: source".
QStringList offenders(const QList<Entry> &entries, bool (*check)(const Entry &));

/// The texts of the reference that the entries lack, as "context: source". Texts with the same source are
/// different when their contexts or comments are.
QStringList missingFrom(const QList<Entry> &entries, const QList<Entry> &reference);
