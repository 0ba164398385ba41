#include "material_name_utility/material_rows.h"

#include "materials/mat_translation_table.h"
#include "translation/error_translation_table.h"

#include <algorithm>
#include <vector>

namespace MaterialWindow {

namespace {

using Translation::TranslationMessage;
using Translation::TranslationMessages;

std::vector<const TranslationMessage *> inNameOrder(const TranslationMessages &messages)
{
    std::vector<const TranslationMessage *> ordered;
    ordered.reserve(messages.size());
    for (const TranslationMessage &message : messages)
        ordered.push_back(&message);
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const TranslationMessage *left, const TranslationMessage *right) {
                         return left->source < right->source;
                     });
    return ordered;
}

Window::RowMark markOf(const TranslationMessage &message, const QSet<QString> &newNames)
{
    if (message.type == Materials::obsoleteType())
        return Window::RowMark::Obsolete;
    return newNames.contains(message.source) ? Window::RowMark::New : Window::RowMark::None;
}

} // namespace

Window::MarkedRows materialRows(const Translation::TranslationTable &table, const QSet<QString> &newNames)
{
    constexpr int columns = 2;
    Window::MarkedRows rows(columns);
    const TranslationMessages &messages = Materials::materialMessages(table);
    rows.reserve(messages.size());
    for (const TranslationMessage *message : inNameOrder(messages))
        rows.add({message->source, message->translation}, markOf(*message, newNames));
    return rows;
}

} // namespace MaterialWindow
