#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QXmlStreamReader;

namespace TableCheck {

/// A string of a translation file with everything that translators' tools store about it.
struct TranslationString
{
    enum class State
    {
        Finished,
        Unfinished,
        Obsolete
    };

    QString context;
    QString source;
    QString comment;
    QStringList translations; ///< one, or the plural forms or length variants
    State state = State::Finished;
    bool hasForms = false; ///< true if the translations are plural forms or length variants
    qint64 line = 0;       ///< of the start tag of its element, counted from 1
};

using TranslationStrings = std::vector<TranslationString>;

/// Reads the strings of the "TS" element at whose start tag the reader is, to its end. Unlike
/// Translation::readTranslationTable it also returns plural forms, and every context of the file. If the
/// document is not well formed, the strings that were complete before the error are returned.
TranslationStrings readTranslationStrings(QXmlStreamReader &xml);

} // namespace TableCheck
