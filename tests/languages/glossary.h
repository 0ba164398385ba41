#pragma once

#include "catalogue.h"

#include <QRegularExpression>

/// A term of the interface's texts, and its translation into each language.
struct Term
{
    QString name;                                   ///< the pattern as written
    QRegularExpression source;                      ///< matches whole words of the English text
    QMap<QString, QRegularExpression> translations; ///< by locale, such as "de-DE"
    QMap<QString, QStringList> exceptions; ///< texts that need not contain the translation, by locale
};

struct Glossary
{
    QList<Term> terms;
    QStringList faults; ///< invalid lines, as "line 7: what is wrong"
};

/// Reads a glossary; the file "glossary.txt" describes its lines.
Glossary readGlossary(QIODevice &device);

/// The texts that contain a term but not its translation, as "context: source [term]". Skips exceptions, and
/// terms without a translation into the locale.
QStringList textsWithoutTheirTerms(const Glossary &glossary, const QList<Entry> &entries,
                                   const QString &locale);

/// The terms that no text contains.
QStringList unusedTerms(const Glossary &glossary, const QList<Entry> &entries);

/// The terms that lack a translation into one of the locales, as "de-DE [term]".
QStringList untranslatedTerms(const Glossary &glossary, const QStringList &locales);

/// The unneeded exceptions of the locale, as "text [term]": the text no longer exists, does not contain the
/// term, or contains the translation.
QStringList unneededExceptions(const Glossary &glossary, const QList<Entry> &entries, const QString &locale);
