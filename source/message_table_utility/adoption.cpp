#include "message_table_utility/adoption.h"

#include "translation/error_translation_table.h"

#include <QHash>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace MessageWindow {

namespace {

constexpr double leastSimilarity = 0.5;
constexpr std::size_t maximumCandidates = 50;

/// How often each pair of neighbouring letters occurs.
QHash<std::pair<QChar, QChar>, int> letterPairs(const QString &text)
{
    QHash<std::pair<QChar, QChar>, int> pairs;
    for (qsizetype at = 0; at + 1 < text.size(); ++at)
        ++pairs[{text.at(at).toLower(), text.at(at + 1).toLower()}];
    return pairs;
}

/// How well the obsolete message suits the new one: 2 for the same tag.
double suitability(const Clt::Message &message, const Clt::Message &obsolete)
{
    if (message.key().tag == obsolete.key().tag)
        return 2;
    const QString &text = message.sourceText().isEmpty() ? message.key().tag : message.sourceText();
    return std::max(similarity(message.key().tag, obsolete.key().tag),
                    similarity(text, obsolete.sourceText()));
}

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
    const auto pairs = letterPairs(one);
    const auto otherPairs = letterPairs(other);
    const qsizetype all = std::max<qsizetype>(one.size() - 1, 0) + std::max<qsizetype>(other.size() - 1, 0);
    if (all == 0)
        return one.compare(other, Qt::CaseInsensitive) == 0 && !one.isEmpty() ? 1 : 0;
    int common = 0;
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair)
        common += std::min(pair.value(), otherPairs.value(pair.key()));
    return 2.0 * common / static_cast<double>(all);
}

Keys adoptionCandidates(const Clt::MessageTable &table, const Clt::MessageKey &key)
{
    const auto found = table.messages().find(key);
    if (found == table.end())
        return {};
    std::vector<std::pair<double, Clt::MessageKey>> candidates;
    for (const auto &[otherKey, other] : table) {
        if (other.state() != Clt::MessageState::Obsolete || otherKey == key)
            continue;
        const double suits = suitability(found->second, other);
        if (suits >= leastSimilarity)
            candidates.emplace_back(suits, otherKey);
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const auto &left, const auto &right) { return left.first > right.first; });
    candidates.resize(std::min(candidates.size(), maximumCandidates));
    Keys keys;
    for (const auto &[suits, candidate] : candidates)
        keys.push_back(candidate);
    return keys;
}

MessageChanges adoption(const Clt::MessageTable &table, const Clt::MessageKey &key,
                        const Clt::MessageKey &adopted)
{
    const auto found = table.messages().find(key);
    const auto other = table.messages().find(adopted);
    if (found == table.end() || other == table.end() || key == adopted)
        return {};
    Clt::Message after = found->second;
    after.setSeverity(other->second.severity());
    for (const Field field : fields)
        setField(after, field, fieldOf(other->second, field));
    after.setSolution(other->second.solution());
    after.setState(Clt::MessageState::InSync);
    return {{found->second, after}, {other->second, std::nullopt}};
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
