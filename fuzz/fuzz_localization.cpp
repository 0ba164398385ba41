// The external input of the localisation tool: its settings, sources, forms and the translators' files.

#include "localization/localization_settings.h"
#include "localization/translatable_texts.h"
#include "localization/translation_answer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const auto settings = Localization::readLocalizationSettings(input);
    const auto translations = Localization::readTranslations(input);
    const int calls = Localization::countTranslatableCalls(input);
    const int strings = Localization::countTranslatableStrings(input);
    // No document is both, and every call or string is at least as long as its marker.
    if ((settings && translations) || calls < 0 || strings < 0 || calls * 3 > input.size() ||
        strings * 9 > input.size())
        std::abort();
    // A file without other places than its sources may replace itself.
    if (translations) {
        const QString reason = Localization::reasonToRefuse(
            *translations,
            {.locale = translations->language, .earlier = *translations, .english = *translations});
        const auto samePlaces = [](const Localization::TranslatedString &string) {
            return std::ranges::all_of(string.translations, [&string](const QString &translation) {
                return Localization::placesIn(translation) == Localization::placesIn(string.source);
            });
        };
        if (!reason.isEmpty() && std::ranges::all_of(translations->strings, samePlaces))
            std::abort();
    }
    return 0;
}
