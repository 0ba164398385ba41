#pragma once

#include "catalogue.h"

// Checks for a text of a catalogue in any language. A text with plural forms must pass in each form.

/// It is finished and no form is empty. A text that consists of blanks is translated by blanks.
bool isTranslated(const Entry &entry);

/// The translation has the source's placeholders, "%1" to "%99", "%L1" to "%L99" and "%n", and no others.
bool keepsPlaceholders(const Entry &entry);

/// The white space at the beginning and at the end is that of the source, because texts are concatenated.
bool keepsOuterBlanks(const Entry &entry);

/// It has as many line feeds as the source.
bool keepsLineFeeds(const Entry &entry);

/// The names of products are unchanged.
bool keepsProductNames(const Entry &entry);

/// A line that begins with an option of the command line ("-I Install mode") still begins with that option.
bool keepsOptions(const Entry &entry);

/// It has as many ellipses as the source, each written as three dots; every language of the interface does
/// so.
bool keepsEllipses(const Entry &entry);

/// The text without the markers of its access keys, "&" and "(&C)".
QString withoutAccessKeys(QString text);

/// The name of a text in messages: "context: source".
QString nameOf(const Entry &entry);

/// The texts that fail a check, as "context: source".
QStringList failingTexts(const QList<Entry> &entries, bool (*check)(const Entry &));

/// The texts of the reference that are not among the entries, as "context: source". Texts differ if their
/// contexts, sources or comments differ.
QStringList missingFrom(const QList<Entry> &entries, const QList<Entry> &reference);
