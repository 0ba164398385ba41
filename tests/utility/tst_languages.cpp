#include "nvx_util/languages.h"
#include "support/test_class.h"

#include <QTest>

#include <span>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::Language;

Q_DECLARE_METATYPE(int Language::*)
Q_DECLARE_METATYPE(QLatin1StringView Language::*)

namespace {

QString shown(const Language &language)
{
    QStringList fonts;
    for (const QLatin1StringView font : language.fonts)
        fonts.append(font);
    fonts.removeAll(QString());
    return QStringList({language.locale, QString::fromLatin1(language.name), language.translatorsCode,
                        language.installerName, language.helpCode, fonts.join(u", "_s),
                        QString::number(language.optionPlace), QString::number(language.translationPlace)})
        .join(u" | "_s);
}

QString localesIn(std::span<const Language> languages)
{
    QStringList locales;
    for (const Language &language : languages)
        locales.append(language.locale);
    return locales.join(u' ');
}

} // namespace

class tst_languages : public QObject
{
    Q_OBJECT

private slots:
    void eachLanguageHasItsRow()
    {
        QStringList rows;
        for (const Language &language : Nvx::Util::languages)
            rows.append(shown(language));
        QCOMPARE(rows, QStringList({
                           u"en-US | English | enu | English | ENU |  | 0 | 0"_s,
                           u"zh-CN | Chinese (Simplified) | chs | SimpChinese | ENU | "
                           u"Microsoft YaHei UI, Microsoft YaHei, Noto Sans CJK SC | 4 | 5"_s,
                           u"zh-TW | Chinese (Traditional) | cht | TradChinese | ENU | "
                           u"Microsoft JhengHei UI, Microsoft JhengHei, Noto Sans CJK TC | 5 | 6"_s,
                           u"de-DE | German | deu | German | DEU |  | 1 | 1"_s,
                           u"fr-FR | French | fra | French | ENU |  | 2 | 2"_s,
                           u"ja-JP | Japanese | jpn | Japanese | JPN | "
                           u"Yu Gothic UI, Meiryo UI, Noto Sans CJK JP | 3 | 4"_s,
                           u"it-IT | Italian | ita | Italian | ENU |  | 6 | 3"_s,
                           u"ko-KR | Korean | kor | Korean | ENU | "
                           u"Malgun Gothic, Noto Sans CJK KR | 7 | 7"_s,
                           u"ru-RU | Russian | rus | Russian | ENU |  | 8 | 8"_s,
                       }));
    }

    // A new language comes after these.
    void languagesHaveThreeOrders()
    {
        QCOMPARE(localesIn(std::span(Nvx::Util::languages).first<9>()),
                 u"en-US zh-CN zh-TW de-DE fr-FR ja-JP it-IT ko-KR ru-RU"_s);
        const auto options = Nvx::Util::translatedLanguages(&Language::optionPlace);
        QCOMPARE(localesIn(std::span(options).first<8>()),
                 u"de-DE fr-FR ja-JP zh-CN zh-TW it-IT ko-KR ru-RU"_s);
        QCOMPARE(localesIn(std::span(Nvx::Util::targetLanguages).first<8>()),
                 u"de-DE fr-FR it-IT ja-JP zh-CN zh-TW ko-KR ru-RU"_s);
    }

    void placesAreNumberedWithoutAGap_data()
    {
        QTest::addColumn<int Language::*>("place");
        QTest::newRow("option") << &Language::optionPlace;
        QTest::newRow("translation") << &Language::translationPlace;
    }

    void placesAreNumberedWithoutAGap()
    {
        QFETCH(int Language::*, place);
        int expected = 0;
        for (const Language &language : Nvx::Util::translatedLanguages(place))
            QCOMPARE(language.*place, ++expected);
    }

    void localesAndCodesAreUnique_data()
    {
        QTest::addColumn<QLatin1StringView Language::*>("column");
        QTest::newRow("locale") << &Language::locale;
        QTest::newRow("translators' code") << &Language::translatorsCode;
        QTest::newRow("installer's name") << &Language::installerName;
    }

    void localesAndCodesAreUnique()
    {
        QFETCH(QLatin1StringView Language::*, column);
        QStringList values;
        for (const Language &language : Nvx::Util::languages)
            values.append(language.*column);
        QCOMPARE(values.removeDuplicates(), 0);
    }

    void aLanguageIsFoundByItsLocaleAlone()
    {
        QCOMPARE(Nvx::Util::languageOf(u"ko-KR"_s)->translatorsCode, "kor"_L1);
        for (const QString &other : {u"ko-kr"_s, u"ko"_s, u"sv-SE"_s, QString()})
            QVERIFY2(!Nvx::Util::languageOf(other), qPrintable(other));
    }
};

NVX_GUILESS_TEST(tst_languages)
#include "tst_languages.moc"
