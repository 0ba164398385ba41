// The external input of the localisation tool: its settings, sources, forms and the translators' files.

#include "localization/job_file.h"
#include "localization/localization_settings.h"
#include "localization/translatable_texts.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const auto settings = Localization::readLocalizationSettings(input);
    const bool whole = Localization::isWholeTranslationFile(input);
    const int calls = Localization::countTranslatableCalls(input);
    const int strings = Localization::countTranslatableStrings(input);
    // No document is both, and every call or string is at least as long as its marker.
    if ((settings && whole) || calls < 0 || strings < 0 || calls * 3 > input.size() ||
        strings * 9 > input.size())
        std::abort();
    return 0;
}
