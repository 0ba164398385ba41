// Tests the checks of typography and terms with correct and with faulty texts.

#include "glossary.h"
#include "support/test_class.h"
#include "typography.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

Entry entryOf(const QString &source, const QStringList &translations)
{
    return {u"Context"_s, source, QString(), translations, EntryState::Finished};
}

void addLanguageRow(const char *name, TypographyCheck check, const char *locale, const char *translation,
                    bool holds)
{
    QTest::newRow(name) << check << QString::fromLatin1(locale) << QString::fromUtf8(translation) << holds;
}

Glossary glossaryOf(const QByteArray &text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return readGlossary(buffer);
}

} // namespace

Q_DECLARE_METATYPE(TypographyCheck)

class tst_proofreading : public QObject
{
    Q_OBJECT

private slots:
    void quotationMarksFollowTheLanguage_data();
    void quotationMarksFollowTheLanguage() { compareWithTheRow(); }
    void blanksFollowTheLanguage_data();
    void blanksFollowTheLanguage() { compareWithTheRow(); }
    void punctuationAndDashesFollowTheLanguage_data();
    void punctuationAndDashesFollowTheLanguage() { compareWithTheRow(); }
    void aDashBetweenPartsOfALogLineIsUnchanged();
    void aTranslationThatEqualsItsSourceIsNotChecked();
    void everyCheckFailsForALanguageWithoutTypography();
    void everyPluralFormIsChecked();

    void aTextWithATermContainsItsTranslation_data();
    void aTextWithATermContainsItsTranslation();
    void anExceptionHoldsForItsTextAndLanguageOnly();
    void anUnusedTermIsReported();
    void aTermWithoutATranslationIsReported();
    void anUnneededExceptionIsReported_data();
    void anUnneededExceptionIsReported();
    void aFaultyGlossaryLineIsReported_data();
    void aFaultyGlossaryLineIsReported();

private:
    static void addTypographyColumns();
    static void compareWithTheRow();
};

void tst_proofreading::addTypographyColumns()
{
    QTest::addColumn<TypographyCheck>("check");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("holds");
}

void tst_proofreading::compareWithTheRow()
{
    QFETCH(TypographyCheck, check);
    QFETCH(QString, locale);
    QFETCH(QString, translation);
    QTEST(check(entryOf(u"source"_s, {translation}), locale), "holds");
}

void tst_proofreading::quotationMarksFollowTheLanguage_data()
{
    addTypographyColumns();
    const auto add = [](const char *name, const char *locale, const char *translation, bool holds) {
        addLanguageRow(name, usesOwnQuotes, locale, translation, holds);
    };
    add("German", "de-DE", "„%1“ und „%2“", true);
    add("French", "fr-FR", "«\u00a0%1\u00a0»", true);
    add("Italian", "it-IT", "“%1”", true);
    add("Japanese", "ja-JP", "「%1」 [はい]", true);
    add("Korean", "ko-KR", "“%1” [예]", true);
    add("Russian", "ru-RU", "«%1»", true);
    add("simplified Chinese", "zh-CN", "“%1”", true);
    add("traditional Chinese", "zh-TW", "「%1」 [是]", true);
    add("typewriter quotes", "it-IT", "\"%1\"", false);
    add("single typewriter quotes", "ko-KR", "'%1'을", false);
    add("quotes of another language", "de-DE", "«%1»", false);
    add("English quotes in German", "de-DE", "“%1”", false);
    add("turned round", "ru-RU", "»%1«", false);
    add("not closed", "de-DE", "„%1", false);
    add("not opened", "fr-FR", "%1\u00a0»", false);
    add("closed by another pair", "ja-JP", "「はい]", false);
    add("closed on the next line", "de-DE", "„%1\nund“", false);
    add("brackets where they are not quotes", "de-DE", "[Ja]", false);
    add("an apostrophe", "fr-FR", "Impossible d'analyser l'%1", true);
    add("a curly apostrophe", "fr-FR", "rien n’est traduit", false);
    add("an apostrophe before a word", "de-DE", "so 'ne Datei", false);
    add("an apostrophe after a word", "it-IT", "un po' di", false);
}

void tst_proofreading::blanksFollowTheLanguage_data()
{
    addTypographyColumns();
    const auto add = [](const char *name, const char *locale, const char *translation, bool holds) {
        addLanguageRow(name, usesOwnSpacing, locale, translation, holds);
    };
    add("French, no-break", "fr-FR", "«\u00a0%1\u00a0»\u00a0; oui\u00a0? non\u00a0!\nAh\u00a0: ", true);
    add("French, a plain blank", "fr-FR", "Ligne %1 : %2", false);
    add("French, no blank", "fr-FR", "Vraiment?", false);
    add("French, a narrow blank", "fr-FR", "Vraiment\u202f?", false);
    add("French, a narrow blank between words", "fr-FR", "%1\u202fms", false);
    add("French, plain blanks in guillemets", "fr-FR", "« %1 »", false);
    add("French, a blank before a comma", "fr-FR", "oui , non", false);
    add("French, a unit", "fr-FR", "%1\u00a0ms", true);
    add("German, no blank before a colon", "de-DE", "Zeile: 1", true);
    add("German, a blank before a colon", "de-DE", "Zeile : 1", false);
    add("German, a no-break blank", "de-DE", "10\u00a0ms", false);
    add("no blank after a colon", "ru-RU", "Копирование:%1", false);
    add("a colon at the end", "ru-RU", "Копирование:", true);
    add("two blanks between words", "it-IT", "due  spazi", false);
    add("outer blanks", "it-IT", "  Copia  ", true);
    add("a blank inside parentheses", "it-IT", "( predefinita)", false);
    add("a blank before a parenthesis", "de-DE", "Modus (Standard)", true);
    add("no blank before a parenthesis", "de-DE", "Modus(Standard)", false);
    add("Korean, no blank before a parenthesis", "ko-KR", "모드(기본값)", true);
    add("Korean, a blank before a parenthesis", "ko-KR", "모드 (기본값)", false);
    add("Japanese, a blank before a parenthesis", "ja-JP", "モード (既定)", true);
    add("Japanese, an access key", "ja-JP", "コピー(&C)", true);
    add("Japanese, a blank after a full stop", "ja-JP", "です。 はい", false);
    add("two scripts apart", "zh-CN", "找到 %1 个 NVX 文件", true);
    add("a placeholder beside an ideograph", "zh-TW", "找到%1 個", false);
    add("a word beside a kana", "ja-JP", "NVXの構成", false);
    add("full-width punctuation beside a word", "zh-CN", "%1：Python（NVX）", true);
    add("full-width punctuation after a placeholder", "zh-CN", "配置 %1 %2。", true);
    add("a Japanese comma after a placeholder", "ja-JP", "数: %1、%2", true);
    add("a bracket beside a placeholder", "zh-TW", "表「%1」...", true);
    add("a blank beside full-width punctuation", "zh-CN", "语言： %1", false);
    add("a full-width colon before the outer blank", "zh-CN", "语言： ", true);
}

void tst_proofreading::punctuationAndDashesFollowTheLanguage_data()
{
    addTypographyColumns();
    addLanguageRow("Chinese", usesOwnPunctuation, "zh-CN", "是，否：%1（无）。是否？\n正在...", true);
    addLanguageRow("Chinese, an access key", usesOwnPunctuation, "zh-TW", "複製(&C)", true);
    addLanguageRow("Chinese, a half-width colon", usesOwnPunctuation, "zh-CN", "语言:", false);
    addLanguageRow("Chinese, half-width parentheses", usesOwnPunctuation, "zh-TW", "篩選 (Ctrl+F)", false);
    addLanguageRow("Chinese, a half-width full stop", usesOwnPunctuation, "zh-TW", "不存在.", false);
    addLanguageRow("Chinese, a file's suffix", usesOwnPunctuation, "zh-CN", "报告的 .pyc 文件", true);
    addLanguageRow("Japanese", usesOwnPunctuation, "ja-JP", "新規: %1、既存 (%2)。保存しますか?", true);
    addLanguageRow("Japanese, a half-width comma", usesOwnPunctuation, "ja-JP", "新規, 既存", false);
    addLanguageRow("Japanese, a half-width full stop", usesOwnPunctuation, "ja-JP", "です.", false);
    addLanguageRow("Japanese, a full-width colon", usesOwnPunctuation, "ja-JP", "新規：", false);
    addLanguageRow("Korean, a full-width full stop", usesOwnPunctuation, "ko-KR", "없습니다。", false);
    addLanguageRow("Russian, a full-width colon", usesOwnPunctuation, "ru-RU", "Язык：", false);

    addLanguageRow("German dash", usesOwnDash, "de-DE", "Creo – Entfernen", true);
    addLanguageRow("German, a hyphen as dash", usesOwnDash, "de-DE", "Creo - Entfernen", false);
    addLanguageRow("a hyphen inside a word", usesOwnDash, "de-DE", "Add-In", true);
    addLanguageRow("Russian dash", usesOwnDash, "ru-RU", " — успешно", true);
    addLanguageRow("Russian, a short dash", usesOwnDash, "ru-RU", " – успешно", false);
    addLanguageRow("French, one good and one bad", usesOwnDash, "fr-FR", " - échec – oui", false);
}

void tst_proofreading::aDashBetweenPartsOfALogLineIsUnchanged()
{
    const QString line = u"Program startup - empty"_s;
    QVERIFY(usesOwnDash(entryOf(line, {QString::fromUtf8("Programmstart - leer")}), u"de-DE"_s));
    QVERIFY(!usesOwnDash(entryOf(line, {QString::fromUtf8("Programmstart – leer")}), u"de-DE"_s));
}

void tst_proofreading::aTranslationThatEqualsItsSourceIsNotChecked()
{
    const QString code = u"zorv :"_s;
    QVERIFY(usesOwnSpacing(entryOf(code, {code}), u"de-DE"_s));
    QVERIFY(!usesOwnSpacing(entryOf(u"zorv:"_s, {code}), u"de-DE"_s));
}

void tst_proofreading::everyCheckFailsForALanguageWithoutTypography()
{
    const Entry entry = entryOf(u"Yes"_s, {u"Sim"_s});
    for (const TypographyCheck check : {usesOwnQuotes, usesOwnSpacing, usesOwnPunctuation, usesOwnDash})
        QVERIFY(!check(entry, u"pt-PT"_s));
}

void tst_proofreading::everyPluralFormIsChecked()
{
    const Entry entry = entryOf(u"%n rows"_s, {u"%n Zeile"_s, u"%n \"Zeilen\""_s});
    QCOMPARE(failingTexts({entry}, u"de-DE"_s, usesOwnQuotes), QStringList{u"Context: %n rows"_s});
}

void tst_proofreading::aTextWithATermContainsItsTranslation_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("holds");
    const auto add = [](const char *name, const char *source, const char *translation, bool holds) {
        QTest::newRow(name) << QString::fromUtf8(source) << QString::fromUtf8(translation) << holds;
    };
    add("the translation", "Open folder", "Ordner öffnen", true);
    add("in another case", "The Folder", "Zielordner", true);
    add("another form of the word", "Two folders", "Zwei Verzeichnisse", false);
    add("another word", "Open folder", "Verzeichnis öffnen", false);
    add("no term", "Open", "Öffnen", true);
    add("the term inside a word", "Subfolder", "Unterverzeichnis", true);
    add("an access key in the word", "&Open folder", "O&rdner öffnen", true);
}

void tst_proofreading::aTextWithATermContainsItsTranslation()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    const Glossary glossary = glossaryOf("# terms\n\n[folders?]\nde-DE = ordner|mappe\r\n");
    QCOMPARE(glossary.faults, QStringList());
    const Entry entry = entryOf(source, {translation});
    const QStringList failing = textsWithoutTheirTerms(glossary, {entry}, u"de-DE"_s);
    QTEST(failing.isEmpty(), "holds");
    QVERIFY(failing.isEmpty() || failing.first() == u"Context: %1 [folders?]"_s.arg(source));
}

void tst_proofreading::anExceptionHoldsForItsTextAndLanguageOnly()
{
    const Glossary glossary = glossaryOf("[folder]\nde-DE = Ordner\nfr-FR = dossier\n"
                                         "except de-DE: folder\\n= 1 = it is a word of its own\n");
    QCOMPARE(glossary.faults, QStringList());
    const Entry excepted = entryOf(u"folder\n= 1"_s, {u"x"_s});
    const Entry other = entryOf(u"folder"_s, {u"x"_s});
    QCOMPARE(textsWithoutTheirTerms(glossary, {excepted, other}, u"de-DE"_s),
             QStringList{u"Context: folder [folder]"_s});
    QCOMPARE(textsWithoutTheirTerms(glossary, {excepted}, u"fr-FR"_s).size(), 1);
}

void tst_proofreading::anUnusedTermIsReported()
{
    const Glossary glossary = glossaryOf("[folder]\n[file]\n");
    QCOMPARE(unusedTerms(glossary, {entryOf(u"A folder"_s, {})}), QStringList{u"file"_s});
}

void tst_proofreading::aTermWithoutATranslationIsReported()
{
    const Glossary glossary = glossaryOf("[folder]\nde-DE = Ordner\n");
    QCOMPARE(untranslatedTerms(glossary, {u"de-DE"_s, u"fr-FR"_s}), QStringList{u"fr-FR [folder]"_s});
}

void tst_proofreading::anUnneededExceptionIsReported_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("needed");
    QTest::newRow("needed") << "Open folder"
                            << "Öffnen" << true;
    QTest::newRow("the text no longer exists") << "Close folder"
                                               << "Zu" << false;
    QTest::newRow("the term is translated") << "Open folder"
                                            << "Ordner öffnen" << false;
}

void tst_proofreading::anUnneededExceptionIsReported()
{
    QFETCH(QString, source);
    QFETCH(QString, translation);
    const Glossary glossary = glossaryOf("[folder]\nde-DE = Ordner\nexcept de-DE: Open folder = why\n");
    const QStringList unneeded = unneededExceptions(glossary, {entryOf(source, {translation})}, u"de-DE"_s);
    QTEST(unneeded.isEmpty(), "needed");
    QVERIFY(unneeded.isEmpty() || unneeded.first() == "Open folder [folder]"_L1);
}

void tst_proofreading::aFaultyGlossaryLineIsReported_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no locale") << QByteArray("Ordner");
    QTest::newRow("a locale with an underscore") << QByteArray("de_DE = Ordner");
    QTest::newRow("the same locale twice") << QByteArray("fr-FR = répertoire");
    QTest::newRow("no translation") << QByteArray("de-DE = ");
    QTest::newRow("an invalid pattern as translation") << QByteArray("de-DE = (Ordner");
    QTest::newRow("an invalid pattern as term") << QByteArray("[(folder]");
    QTest::newRow("an empty term") << QByteArray("[]");
    QTest::newRow("an exception without a reason") << QByteArray("except de-DE: Open folder");
    QTest::newRow("an exception with a blank reason") << QByteArray("except de-DE: Open folder =  ");
    QTest::newRow("an exception without a locale") << QByteArray("except Open folder = why");
}

void tst_proofreading::aFaultyGlossaryLineIsReported()
{
    QFETCH(QByteArray, line);
    const QStringList faults = glossaryOf("[folder]\nfr-FR = dossier\n" + line + "\n").faults;
    QCOMPARE(faults.size(), 1);
    QVERIFY2(faults.first().startsWith("line 3: "_L1), qPrintable(faults.first()));
    QCOMPARE(glossaryOf("de-DE = Ordner\n").faults.size(), 1);
}

NVX_GUILESS_TEST(tst_proofreading)
#include "tst_proofreading.moc"
