#pragma once

#include <QString>

#include <array>

namespace util {

/// A language of the product: its locale code, which names its folder, and the code of three letters that the
/// translators use.
struct Language
{
    QLatin1String locale;
    QLatin1String code;
};

/// The language of the sources.
inline constexpr Language sourceLanguage = {QLatin1String("en-US"), QLatin1String("enu")};

/// The languages translated into.
inline constexpr std::array<Language, 8> targetLanguages = {{
    {QLatin1String("de-DE"), QLatin1String("deu")},
    {QLatin1String("fr-FR"), QLatin1String("fra")},
    {QLatin1String("it-IT"), QLatin1String("ita")},
    {QLatin1String("ja-JP"), QLatin1String("jpn")},
    {QLatin1String("zh-CN"), QLatin1String("chs")},
    {QLatin1String("zh-TW"), QLatin1String("cht")},
    {QLatin1String("ko-KR"), QLatin1String("kor")},
    {QLatin1String("ru-RU"), QLatin1String("rus")},
}};

} // namespace util
