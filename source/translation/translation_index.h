#pragma once

#include "translation/translation_message.h"

#include <cstddef>

namespace Translation {

/// Tells which source texts a list of messages has: a hash table of eight bytes a slot that refers to the
/// list it is used with. A translation file has thousands of contexts with a few strings each, for which sets
/// of texts would take more time to reach in memory than the strings themselves.
class SourceIndex
{
public:
    /// True when one of the messages, all of which were added, has that source text.
    bool contains(const TranslationMessages &messages, const QString &source) const;

    /// Enters the source text of the message that is to be appended to the messages. False when one of them
    /// has it already.
    bool add(const TranslationMessages &messages, const QString &source);

private:
    struct Slot
    {
        quint32 hash = 0;
        quint32 position = 0; ///< that of the message, counted from 1; 0 in a free slot
    };

    std::size_t slotOf(const TranslationMessages &messages, const QString &source, quint32 hash) const;
    void grow();

    std::vector<Slot> m_slots; // empty, or a power of two, at most half of them taken
    std::size_t m_taken = 0;
};

} // namespace Translation
