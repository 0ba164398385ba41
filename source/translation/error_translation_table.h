#pragma once

#include "translation/translation_index.h"
#include "translation/translation_message.h"

#include <QSet>
#include <QString>

#include <map>

class QFile;

namespace Error {

/// The strings that are translated under one name, in the order of the file, equal ones included.
class TranslationContext
{
public:
    explicit TranslationContext(const QString &name = QString())
        : m_name(name)
    {
    }

    const QString &name() const { return m_name; }
    const TranslationMessages &messages() const { return m_messages; }

    /// True when a message has exactly that source text.
    bool contains(const QString &source) const { return m_index.contains(m_messages, source); }

    void append(const TranslationMessage &message);

    /// Appends an unfinished message, its own source for a translation, unless one has that source text. True
    /// when it was appended.
    bool addMissing(const QString &source);

    /// Gives every message with one of those source texts the type.
    void setType(const QSet<QString> &sources, const QString &type);

private:
    QString m_name;
    TranslationMessages m_messages;
    SourceIndex m_index;
};

/// A translation file for one language (translation/translation_table_xml.h).
class TranslationTable
{
public:
    using Contexts = std::map<QString, TranslationContext>;

    /// The contexts by their names, in the order of the names' UTF-16 code units.
    const Contexts &contexts() const { return m_contexts; }

    /// Stores the context under its name, in place of one that is there.
    void setContext(TranslationContext context);

    const QString &version() const { return m_version; }
    void setVersion(const QString &version) { m_version = version; }

    const QString &language() const { return m_language; }
    void setLanguage(const QString &language) { m_language = language; }

    const QString &defaultCodec() const { return m_defaultCodec; }
    void setDefaultCodec(const QString &codec) { m_defaultCodec = codec; }

    /// The context of that name, made when there is none. It is found at once when it belongs just before the
    /// hint or is the hint.
    Contexts::iterator contextNamed(const QString &name, Contexts::const_iterator hint);

    /// True when the context of that name has a message with exactly that source text.
    bool contains(const QString &contextName, const QString &source) const;

    /// Appends an unfinished message, its own source for a translation, to the context, which is made when
    /// there is none. A string that is there already is added again.
    void addString(const QString &contextName, const QString &source);

    /// Gives every message of the context with one of those source texts the type, such as "obsolete".
    void setType(const QString &contextName, const QSet<QString> &sources, const QString &type);

    /// Reads a file into the table; a context in it takes the place of one of its name. False, with
    /// errorString() set, when the file cannot be opened or is no well-formed XML; what stands before the
    /// error is taken.
    bool load(const QString &fileName);

    /// The same from a file that is not open yet.
    bool load(QFile &file);

    /// Why the last load failed: the system's words for a file that cannot be opened, "ERROR at line LINE"
    /// for one that is not well formed. Empty after a load that did not fail.
    const QString &errorString() const { return m_errorString; }

    /// Replaces the file by one of this table, whole or not at all; a file that has these bytes already is
    /// not touched. If it is the file that was loaded last, and not all of that could be read as a
    /// translation file, its bytes are first kept as NAME.damaged beside it; if it has plural forms or length
    /// variants, as NAME.before (translation/translation_kept_file.h). False when the file or such a copy
    /// cannot be written; the old file is then as it was.
    bool save(const QString &fileName);

    /// The copy with the plural forms and length variants that the last save kept; empty when there were
    /// none.
    const QString &keptFile() const { return m_keptFile; }

    /// The file from which the table was read last if it has forms that the table does not hold, else empty.
    void setFileWithForms(const QString &fileName) { m_fileWithForms = fileName; }

private:
    QString m_version;
    QString m_language;
    QString m_defaultCodec;
    Contexts m_contexts;
    QString m_errorString;
    QString m_damagedFile; // the file loaded last if saving over it would lose bytes of it, else empty
    QString m_fileWithForms;
    QString m_keptFile;
};

} // namespace Error
