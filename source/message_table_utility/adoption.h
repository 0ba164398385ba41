#pragma once

#include "message_table_utility/message_change.h"

#include <optional>

namespace Translation {
class TranslationTable;
}

namespace MessageWindow {

// A renamed function or a moved class makes its messages obsolete and new under another key. Their texts, and
// the translations of these, need not be written again.

/// The obsolete messages whose texts a new message may adopt: those with the same tag, then those whose tag
/// or text is similar to its tag or text, the most similar first.
Keys adoptionCandidates(const Clt::MessageTable &table, const Clt::MessageKey &key);

/// A message that adopts the severity, the texts and the solution of another one, which is removed.
struct Adoption
{
    Clt::Message before;
    Clt::Message after; ///< reviewed
    Clt::Message removed;
};

/// The adoption by a message of the table; none unless the table has both messages.
std::optional<Adoption> adoption(const Clt::MessageTable &table, const Clt::MessageKey &key,
                                 const Clt::MessageKey &adopted);

/// How alike two strings are, ignoring case: from 0, without a common pair of letters, to 1, with the same.
double similarity(const QString &one, const QString &other);

/// The number of untranslated strings, unfinished and equal to their source, whose source has a finished
/// translation in another context.
int adoptableTranslations(const Translation::TranslationTable &table);

/// Gives these strings that translation; they stay unfinished.
void adoptTranslations(Translation::TranslationTable &table);

} // namespace MessageWindow
