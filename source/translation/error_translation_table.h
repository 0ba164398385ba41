#pragma once

#include "clt_leftovers.h"
#include "translation/translation_message.h"

#include <QSet>
#include <QString>

#include <map>

class QFile;

namespace Translation {

/// The strings of one context in the order of the file, including duplicates.
class TranslationContext
{
public:
    explicit TranslationContext(const QString &name = QString())
        : m_name(name)
    {
    }
    TranslationContext(const QString &name, TranslationMessages messages);

    const QString &name() const { return m_name; }
    const TranslationMessages &messages() const { return m_messages; }

    /// True if a message has exactly that source text.
    bool contains(const QString &source) const { return m_sources.contains(source); }

    void append(const TranslationMessage &message);

    /// Appends an unfinished message that is its own translation, unless a message has that source text
    /// already. True if it was appended.
    bool addMissing(const QString &source);

    /// Sets the type of every message with one of those source texts.
    void setType(const QSet<QString> &sources, const QString &type);

private:
    QString m_name;
    TranslationMessages m_messages;
    QSet<QString> m_sources;
};

/// A translation file for one language (translation/translation_table_xml.h).
class TranslationTable
{
public:
    using Contexts = std::map<QString, TranslationContext>;

    /// The contexts by their names, in the order of the names' UTF-16 code units.
    const Contexts &contexts() const { return m_contexts; }

    /// Adds the context. Replaces one with the same name.
    void setContext(TranslationContext context);

    const QString &version() const { return m_version; }
    void setVersion(const QString &version) { m_version = version; }

    const QString &language() const { return m_language; }
    void setLanguage(const QString &language) { m_language = language; }

    const QString &defaultCodec() const { return m_defaultCodec; }
    void setDefaultCodec(const QString &codec) { m_defaultCodec = codec; }

    /// The context with that name, created if necessary. The search takes constant time if the context is the
    /// hint or belongs immediately before it.
    Contexts::iterator contextNamed(const QString &name, Contexts::const_iterator hint);

    /// True if the context with that name has a message with exactly that source text.
    bool contains(const QString &contextName, const QString &source) const;

    /// Appends an unfinished message that is its own translation to the context, which is created if
    /// necessary. Does not look for an existing message with that source text.
    void addString(const QString &contextName, const QString &source);

    /// Sets the type, such as "obsolete", of every message in the context with one of those source texts.
    void setType(const QString &contextName, const QSet<QString> &sources, const QString &type);

    /// Reads a file into the table; its contexts replace those with the same name. Returns false and sets
    /// errorString() if the file cannot be opened or is not well formed. The table then has the messages that
    /// were complete before the error.
    bool load(const QString &fileName);

    /// The same with a file that has not been opened yet.
    bool load(QFile &file);

    /// The error of the last load: the system's text if the file could not be opened, "ERROR at line LINE" if
    /// it was not well formed. Empty after a successful load.
    const QString &errorString() const { return m_errorString; }

    /// Writes the table to the file, which is replaced whole or not at all; a file that already has these
    /// bytes is not touched. If it is the file that was loaded last, and it was damaged or not a translation
    /// file, its bytes are first saved next to it as NAME.damaged; if something was left over from it, as
    /// NAME.before (Clt::backUpFile). Returns false, with the old file unchanged, if the file or such a copy
    /// cannot be written.
    bool save(const QString &fileName);

    /// The copy that the last save made of a file with something left over; empty if it made none.
    const QString &backupFile() const { return m_file.copy(); }

    /// What was left over from the file that the table was read from; nothing after it was replaced.
    const Clt::Leftovers &leftovers() const { return m_file.leftovers(); }

    /// The file that the table was read from, and what was left over from it, for save().
    void setFile(const QString &fileName, const Clt::Leftovers &leftovers)
    {
        m_file.set(fileName, leftovers);
    }

private:
    QString m_version;
    QString m_language;
    QString m_defaultCodec;
    Contexts m_contexts;
    QString m_errorString;
    QString m_damagedFile; // the file loaded last, if the table does not hold all of it; otherwise empty
    Clt::FileLeftovers m_file;
};

} // namespace Translation
