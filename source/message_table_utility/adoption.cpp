#include "message_table_utility/adoption.h"

#include "translation/error_translation_table.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace MessageWindow {

namespace {

constexpr double leastSimilarity = 0.5;
constexpr std::size_t maximumCandidates = 50;

/// The pairs of neighbouring letters of a text, ignoring case, and how often each occurs: an open hash table,
/// because it is compared with every obsolete message.
class LetterPairs
{
public:
    explicit LetterPairs(const QString &text)
        : m_text(text)
    {
        while (m_slots.size() < static_cast<std::size_t>(2 * text.size()))
            m_slots.resize(2 * m_slots.size());
        forEachPair(text, [this](quint32 pair) {
            Slot &slot = slotOf(pair);
            slot.pair = pair;
            ++slot.count;
        });
    }

    /// See similarity().
    double similarityTo(const QString &other)
    {
        const qsizetype all =
            std::max<qsizetype>(m_text.size() - 1, 0) + std::max<qsizetype>(other.size() - 1, 0);
        if (all == 0)
            return m_text.compare(other, Qt::CaseInsensitive) == 0 && !other.isEmpty() ? 1 : 0;
        m_found.clear();
        forEachPair(other, [this](quint32 pair) {
            Slot &slot = slotOf(pair);
            if (slot.count > 0) {
                --slot.count;
                m_found.push_back(&slot);
            }
        });
        for (Slot *slot : m_found)
            ++slot->count;
        return 2.0 * static_cast<double>(m_found.size()) / static_cast<double>(all);
    }

private:
    struct Slot
    {
        quint32 pair = 0; // no pair, because no text contains a null character
        int count = 0;
    };

    static quint32 lower(QChar letter)
    {
        const char16_t code = letter.unicode();
        if (code < 0x80)
            return code >= u'A' && code <= u'Z' ? code + (u'a' - u'A') : code;
        return letter.toLower().unicode();
    }

    template<typename Visit>
    static void forEachPair(const QString &text, Visit visit)
    {
        quint32 first = text.isEmpty() ? 0 : lower(text.front());
        for (qsizetype at = 1; at < text.size(); ++at) {
            const quint32 second = lower(text.at(at));
            visit(first << 16U | second);
            first = second;
        }
    }

    /// The slot of the pair, or the empty one for it.
    Slot &slotOf(quint32 pair)
    {
        constexpr quint32 spread = 0x9e3779b1;
        std::size_t at = (pair * spread >> 16U) % m_slots.size();
        while (m_slots[at].pair != pair && m_slots[at].pair != 0)
            at = (at + 1) % m_slots.size();
        return m_slots[at];
    }

    QString m_text;
    std::vector<Slot> m_slots = std::vector<Slot>(16);
    std::vector<Slot *> m_found;
};

/// A message whose texts may be adopted.
struct Candidate
{
    double suitability;
    int number;
    const Clt::MessageKey *key;
};

/// How well the obsolete message suits the new one: 2 for the same tag.
class Suitability
{
public:
    explicit Suitability(const Clt::Message &message)
        : m_tag(message.key().tag)
        , m_tagPairs(m_tag)
        , m_textPairs(message.sourceText().isEmpty() ? m_tag : message.sourceText())
    {
    }

    double of(const Clt::Message &obsolete)
    {
        if (m_tag == obsolete.key().tag)
            return 2;
        return std::max(m_tagPairs.similarityTo(obsolete.key().tag),
                        m_textPairs.similarityTo(obsolete.sourceText()));
    }

private:
    QString m_tag;
    LetterPairs m_tagPairs;
    LetterPairs m_textPairs;
};

bool isUntranslated(const Translation::TranslationMessage &message)
{
    return message.type == "unfinished"_L1 && message.translation == message.source;
}

/// The first finished translation of each source.
QHash<QString, QString> finishedTranslations(const Translation::TranslationTable &table)
{
    QHash<QString, QString> translations;
    for (const auto &[name, context] : table.contexts()) {
        for (const Translation::TranslationMessage &message : context.messages()) {
            if (message.type.isEmpty() && !message.translation.isEmpty() &&
                !translations.contains(message.source))
                translations.insert(message.source, message.translation);
        }
    }
    return translations;
}

} // namespace

double similarity(const QString &one, const QString &other)
{
    return LetterPairs(one).similarityTo(other);
}

Keys adoptionCandidates(const Clt::MessageTable &table, const Clt::MessageKey &key)
{
    const auto found = table.messages().find(key);
    if (found == table.end())
        return {};
    Suitability suitability(found->second);
    std::vector<Candidate> candidates;
    for (const auto &[otherKey, other] : table) {
        if (other.state() != Clt::MessageState::Obsolete || otherKey == key)
            continue;
        const double suits = suitability.of(other);
        if (suits >= leastSimilarity)
            candidates.push_back({suits, static_cast<int>(candidates.size()), &otherKey});
    }
    const auto end =
        candidates.begin() + static_cast<std::ptrdiff_t>(std::min(candidates.size(), maximumCandidates));
    std::partial_sort(
        candidates.begin(), end, candidates.end(), [](const Candidate &left, const Candidate &right) {
            return std::tie(right.suitability, left.number) < std::tie(left.suitability, right.number);
        });
    Keys keys;
    std::transform(candidates.begin(), end, std::back_inserter(keys),
                   [](const Candidate &candidate) { return *candidate.key; });
    return keys;
}

std::optional<Adoption> adoption(const Clt::MessageTable &table, const Clt::MessageKey &key,
                                 const Clt::MessageKey &adopted)
{
    const auto found = table.messages().find(key);
    const auto other = table.messages().find(adopted);
    if (found == table.end() || other == table.end() || key == adopted)
        return std::nullopt;
    Clt::Message after = found->second;
    setValues(after, valuesOf(other->second));
    after.setSolution(other->second.solution());
    after.setState(Clt::MessageState::InSync);
    return Adoption{found->second, after, other->second};
}

int adoptableTranslations(const Translation::TranslationTable &table)
{
    const QHash<QString, QString> finished = finishedTranslations(table);
    int count = 0;
    for (const auto &[name, context] : table.contexts()) {
        count += static_cast<int>(
            std::count_if(context.messages().begin(), context.messages().end(), [&](const auto &message) {
                return isUntranslated(message) && finished.contains(message.source);
            }));
    }
    return count;
}

void adoptTranslations(Translation::TranslationTable &table)
{
    const QHash<QString, QString> finished = finishedTranslations(table);
    std::vector<Translation::TranslationContext> changed;
    for (const auto &[name, context] : table.contexts()) {
        Translation::TranslationContext adopting(name);
        for (Translation::TranslationMessage message : context.messages()) {
            if (isUntranslated(message) && finished.contains(message.source))
                message.translation = finished.value(message.source);
            adopting.append(message);
        }
        changed.push_back(std::move(adopting));
    }
    for (Translation::TranslationContext &context : changed)
        table.setContext(std::move(context));
}

} // namespace MessageWindow
