#pragma once

#include "message_table_check/translation_strings.h"
#include "nvx_util/result.h"

#include <QString>

namespace Translation {
class TranslationTable;
}

namespace TableCheck {

/// How many strings of a table changed, and how many were added.
struct TakenOver
{
    int changed = 0;
    int added = 0;
};

/// Takes the translations and states of edited strings over into a table. A string is the first
/// one of the table with the same context, source and comment that no earlier string is, preferably one that
/// is obsolete like it. Strings that the table does not have are added. A translation is never replaced by an
/// empty one: the string then becomes unfinished.
TakenOver takeOver(Translation::TranslationTable &table, const TranslationStrings &edited);

/// Writes the translation file `from` for today's tools: as XLIFF if the name of the other file ends in
/// ".xlf" or ".xliff", otherwise as a translation file that Qt 6 accepts. The error names the file.
Nvx::Util::Outcome convertForQt6(const QString &from, const QString &to);

/// Takes the translations of the edited file, in either of these forms, over into the translation file, which
/// is created if it does not exist. If it fails, the file is unchanged; the error names the file.
Nvx::Util::Result<TakenOver> takeBack(const QString &edited, const QString &translationFile);

} // namespace TableCheck
