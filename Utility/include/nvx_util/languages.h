#pragma once

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <array>

namespace Nvx::Util {

/// A language of the product. Columns with a default are optional.
struct Language
{
    QLatin1StringView locale;          ///< as in options and in the names of folders, such as "de-DE"
    const char *name;                  ///< in English; the welcome page shows the translation
    QLatin1StringView translatorsCode; ///< three letters, used on the translators' share
    QLatin1StringView installerName;   ///< the name of the language in NSIS
    QLatin1StringView helpCode = QLatin1StringView("ENU"); ///< the language of the help for its users
    /// Fonts for characters that the interface's font lacks, in order of preference. Chinese characters have
    /// different shapes in Japan, Korea, China and Taiwan, so these languages must name their fonts: for
    /// Windows 8 and later, for Windows 7, and last for Linux.
    std::array<QLatin1StringView, 3> fonts = {};
    int optionPlace = 0;      ///< place in the list of locales that the option "-L" accepts, from 1
    int translationPlace = 0; ///< place in the order in which the translations are made, from 1
};

/// All languages, in the order in which the welcome page offers them. The first one is the language of the
/// sources, which has no place in the other two orders. tools/languages.py reads this table for the scripts.
inline constexpr std::array languages = [] {
    using namespace Qt::Literals::StringLiterals;
    return std::array{
        Language{
            .locale = "en-US"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "English"),
            .translatorsCode = "enu"_L1,
            .installerName = "English"_L1,
        },
        Language{
            .locale = "zh-CN"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "Chinese (Simplified)"),
            .translatorsCode = "chs"_L1,
            .installerName = "SimpChinese"_L1,
            .fonts = {"Microsoft YaHei UI"_L1, "Microsoft YaHei"_L1, "Noto Sans CJK SC"_L1},
            .optionPlace = 4,
            .translationPlace = 5,
        },
        Language{
            .locale = "zh-TW"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "Chinese (Traditional)"),
            .translatorsCode = "cht"_L1,
            .installerName = "TradChinese"_L1,
            .fonts = {"Microsoft JhengHei UI"_L1, "Microsoft JhengHei"_L1, "Noto Sans CJK TC"_L1},
            .optionPlace = 5,
            .translationPlace = 6,
        },
        Language{
            .locale = "de-DE"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "German"),
            .translatorsCode = "deu"_L1,
            .installerName = "German"_L1,
            .helpCode = "DEU"_L1,
            .optionPlace = 1,
            .translationPlace = 1,
        },
        Language{
            .locale = "fr-FR"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "French"),
            .translatorsCode = "fra"_L1,
            .installerName = "French"_L1,
            .optionPlace = 2,
            .translationPlace = 2,
        },
        Language{
            .locale = "ja-JP"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "Japanese"),
            .translatorsCode = "jpn"_L1,
            .installerName = "Japanese"_L1,
            .helpCode = "JPN"_L1,
            .fonts = {"Yu Gothic UI"_L1, "Meiryo UI"_L1, "Noto Sans CJK JP"_L1},
            .optionPlace = 3,
            .translationPlace = 4,
        },
        Language{
            .locale = "it-IT"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "Italian"),
            .translatorsCode = "ita"_L1,
            .installerName = "Italian"_L1,
            .optionPlace = 6,
            .translationPlace = 3,
        },
        Language{
            .locale = "ko-KR"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "Korean"),
            .translatorsCode = "kor"_L1,
            .installerName = "Korean"_L1,
            .fonts = {"Malgun Gothic"_L1, "Noto Sans CJK KR"_L1},
            .optionPlace = 7,
            .translationPlace = 7,
        },
        Language{
            .locale = "ru-RU"_L1,
            .name = QT_TRANSLATE_NOOP("WelcomePage", "Russian"),
            .translatorsCode = "rus"_L1,
            .installerName = "Russian"_L1,
            .optionPlace = 8,
            .translationPlace = 8,
        },
    };
}();

inline constexpr const Language &sourceLanguage = languages.front();

/// The languages that the sources are translated into, in the order of one of the columns with places.
constexpr auto translatedLanguages(int Language::*place)
{
    std::array<Language, languages.size() - 1> translated;
    std::ranges::copy(languages.begin() + 1, languages.end(), translated.begin());
    std::ranges::sort(translated, {}, place);
    return translated;
}

/// The languages that the sources are translated into, in the order in which the translations are made.
inline constexpr auto targetLanguages = translatedLanguages(&Language::translationPlace);

/// The language of a locale spelled as in the table, or null.
inline const Language *languageOf(const QString &locale)
{
    const auto *found = std::ranges::find(languages, locale, &Language::locale);
    return found == languages.end() ? nullptr : &*found;
}

} // namespace Nvx::Util
