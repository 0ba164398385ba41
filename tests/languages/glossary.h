#pragma once

#include "catalogue.h"

#include <QRegularExpression>

/// One term of the texts, and how each language translates it.
struct Term
{
    QString name;                                   ///< the pattern as it is written
    QRegularExpression source;                      ///< whole words of the English text
    QMap<QString, QRegularExpression> translations; ///< by locale, as "de-DE"
    QMap<QString, QStringList> exceptions;          ///< texts that go without, by locale
};

struct Glossary
{
    QList<Term> terms;
    QStringList faults; ///< lines that could not be read, as "line 7: what is wrong"
};

/// Reads a glossary; the file "glossary.txt" describes its lines.
Glossary readGlossary(QIODevice &device);

/// The texts that hold a term but not its translation, as "context: source [term]". Texts that are excepted,
/// and terms without a translation into the locale, are passed over.
QStringList otherwiseTranslated(const Glossary &glossary, const QList<Entry> &entries, const QString &locale);

/// The terms that no text holds.
QStringList unusedTerms(const Glossary &glossary, const QList<Entry> &entries);

/// The terms that lack a translation into one of the locales, as "de-DE [term]".
QStringList untranslatedTerms(const Glossary &glossary, const QStringList &locales);

/// The exceptions of the locale whose text is gone, lacks the term, or has the translation after all, as
/// "text [term]".
QStringList needlessExceptions(const Glossary &glossary, const QList<Entry> &entries, const QString &locale);
