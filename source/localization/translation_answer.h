#pragma once

#include "nvx_util/result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace Localization {

/// A string of a translation file.
struct TranslatedString
{
    enum class State
    {
        Open,
        Finished, ///< translated, and not marked as unfinished
        Gone      ///< no longer in the sources
    };

    QString context = {};
    QString source = {};
    QString comment = {};
    QStringList translations = {}; ///< one, or the plural forms; those that are not empty
    bool isPlural = false;
    State state = State::Open;
};

/// A translation file in the format of Qt Linguist.
struct Translations
{
    QString language = {}; ///< as written; may be empty
    QList<TranslatedString> strings = {};

    qsizetype count(TranslatedString::State state) const;
};

/// Reads a translation file. Fails, with the line, if it is not well-formed XML with the document element
/// "TS", or declares entities.
Nvx::Util::Result<Translations> readTranslations(const QByteArray &bytes);

/// Reads a translation file of that name; empty if that fails.
Translations translationsIn(const QString &fileName);

/// The files that an answer of the translators is compared with. Empty ones compare with nothing.
struct AnswerContext
{
    QString locale = {};       ///< of the language that was asked for, such as "de-DE"
    Translations earlier = {}; ///< the file that the answer would replace
    Translations english = {}; ///< the sources' own file
};

/// Why the answer must not replace the earlier file, as text for the user; empty if it may. It must be for
/// the language, or name none; must have at least as many finished strings as the earlier file, of which
/// those count that the English file still contains; and a translation must have the same places, such as %1,
/// as its source.
QString reasonToRefuse(const Translations &answer, const AnswerContext &context);

/// The places of a text: "%1" to "%99", and "%n" for a number, also with an "L" after the percent sign.
/// Sorted, each once.
QStringList placesIn(const QString &text);

} // namespace Localization
