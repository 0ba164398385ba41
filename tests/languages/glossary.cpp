#include "glossary.h"

#include "catalogue_checks.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QRegularExpression patternOf(const QString &text)
{
    return QRegularExpression(text, QRegularExpression::CaseInsensitiveOption |
                                        QRegularExpression::UseUnicodePropertiesOption);
}

bool isLocale(const QString &text)
{
    static const QRegularExpression locale(u"^[a-z]{2}-[A-Z]{2}$"_s);
    return locale.match(text).hasMatch();
}

// Reads the lines of a glossary one by one into the last term; returns what is wrong with a line.
class GlossaryReader
{
public:
    QString readLine(const QString &line)
    {
        if (line.isEmpty() || line.startsWith(u'#'))
            return {};
        if (line.startsWith(u'[') && line.endsWith(u']'))
            return beginTerm(line.mid(1, line.size() - 2));
        if (m_terms.isEmpty())
            return u"there is no term yet"_s;
        if (line.startsWith("except "_L1))
            return addException(line.mid(7));
        return addTranslation(line);
    }

    const QList<Term> &terms() const { return m_terms; }

private:
    QString beginTerm(const QString &name)
    {
        const QRegularExpression source = patternOf(u"\\b(?:%1)\\b"_s.arg(name));
        if (name.isEmpty() || !source.isValid())
            return u"not a pattern"_s;
        m_terms.append({name, source, {}, {}});
        return {};
    }

    QString addTranslation(const QString &line)
    {
        const QString locale = line.section(" = "_L1, 0, 0);
        const QString text = line.section(" = "_L1, 1);
        if (!isLocale(locale) || m_terms.last().translations.contains(locale))
            return u"not a new locale"_s;
        const QRegularExpression translation = patternOf(text);
        if (text.isEmpty() || !translation.isValid())
            return u"not a pattern"_s;
        m_terms.last().translations.insert(locale, translation);
        return {};
    }

    QString addException(const QString &rest)
    {
        const QString locale = rest.section(": "_L1, 0, 0);
        const qsizetype end = rest.lastIndexOf(" = "_L1);
        if (!isLocale(locale) || end < locale.size() + 2 || rest.mid(end + 3).trimmed().isEmpty())
            return u"not a locale, a text and a reason"_s;
        QString text = rest.mid(locale.size() + 2, end - locale.size() - 2);
        text.replace("\\n"_L1, "\n"_L1);
        m_terms.last().exceptions[locale].append(text);
        return {};
    }

    QList<Term> m_terms;
};

bool holdsTranslation(const Entry &entry, const QRegularExpression &translation)
{
    return std::all_of(entry.translations.cbegin(), entry.translations.cend(),
                       [&](const QString &form) { return withoutAccessKeys(form).contains(translation); });
}

bool lacksTranslation(const Term &term, const Entry &entry, const QString &locale)
{
    return term.translations.contains(locale) && entry.source.contains(term.source) &&
           !holdsTranslation(entry, term.translations.value(locale));
}

QString inBrackets(const QString &text, const Term &term)
{
    return u"%1 [%2]"_s.arg(text, term.name);
}

} // namespace

Glossary readGlossary(QIODevice &device)
{
    GlossaryReader reader;
    QStringList faults;
    for (int number = 1; !device.atEnd(); ++number) {
        QString line = QString::fromUtf8(device.readLine());
        while (line.endsWith(u'\n') || line.endsWith(u'\r'))
            line.chop(1);
        const QString fault = reader.readLine(line);
        if (!fault.isEmpty())
            faults.append(u"line %1: %2"_s.arg(number).arg(fault));
    }
    return {reader.terms(), faults};
}

QStringList textsWithoutTheirTerms(const Glossary &glossary, const QList<Entry> &entries,
                                   const QString &locale)
{
    QStringList names;
    for (const Term &term : glossary.terms) {
        for (const Entry &entry : entries) {
            if (lacksTranslation(term, entry, locale) &&
                !term.exceptions.value(locale).contains(entry.source))
                names.append(inBrackets(nameOf(entry), term));
        }
    }
    return names;
}

QStringList unusedTerms(const Glossary &glossary, const QList<Entry> &entries)
{
    QStringList names;
    for (const Term &term : glossary.terms) {
        if (std::none_of(entries.cbegin(), entries.cend(),
                         [&](const Entry &entry) { return entry.source.contains(term.source); }))
            names.append(term.name);
    }
    return names;
}

QStringList untranslatedTerms(const Glossary &glossary, const QStringList &locales)
{
    QStringList names;
    for (const Term &term : glossary.terms) {
        for (const QString &locale : locales) {
            if (!term.translations.contains(locale))
                names.append(inBrackets(locale, term));
        }
    }
    return names;
}

QStringList unneededExceptions(const Glossary &glossary, const QList<Entry> &entries, const QString &locale)
{
    QStringList names;
    for (const Term &term : glossary.terms) {
        const QStringList texts = term.exceptions.value(locale);
        for (const QString &text : texts) {
            if (std::none_of(entries.cbegin(), entries.cend(), [&](const Entry &entry) {
                    return entry.source == text && lacksTranslation(term, entry, locale);
                }))
                names.append(inBrackets(text, term));
        }
    }
    return names;
}
