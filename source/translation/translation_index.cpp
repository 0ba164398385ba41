#include "translation/translation_index.h"

#include <QHash>

#include <utility>

namespace Translation {

namespace {

constexpr std::size_t fewestSlots = 16;

quint32 hashOf(const QString &text)
{
    return static_cast<quint32>(qHash(text));
}

} // namespace

bool SourceIndex::contains(const TranslationMessages &messages, const QString &source) const
{
    return !m_slots.empty() && m_slots[slotOf(messages, source, hashOf(source))].position != 0;
}

bool SourceIndex::add(const TranslationMessages &messages, const QString &source)
{
    if (2 * m_taken >= m_slots.size())
        grow();
    const quint32 hash = hashOf(source);
    Slot &slot = m_slots[slotOf(messages, source, hash)];
    if (slot.position != 0)
        return false;
    slot = {hash, static_cast<quint32>(messages.size() + 1)};
    ++m_taken;
    return true;
}

/// The slot of the source text, or the free one where it belongs.
std::size_t SourceIndex::slotOf(const TranslationMessages &messages, const QString &source,
                                quint32 hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    while (m_slots[at].position != 0 &&
           (m_slots[at].hash != hash || messages[m_slots[at].position - 1].source != source))
        at = (at + 1) & mask;
    return at;
}

void SourceIndex::grow()
{
    const std::vector<Slot> old = std::exchange(m_slots, {});
    m_slots.resize(old.empty() ? fewestSlots : 2 * old.size());
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot &slot : old) {
        if (slot.position == 0)
            continue;
        std::size_t at = slot.hash & mask;
        while (m_slots[at].position != 0)
            at = (at + 1) & mask;
        m_slots[at] = slot;
    }
}

} // namespace Translation
