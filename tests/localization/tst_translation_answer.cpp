#include "localization/translation_answer.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Localization;
using State = TranslatedString::State;

namespace {

QByteArray file(const QByteArray &messages, const QByteArray &language = "de_DE")
{
    return "<?xml version=\"1.0\"?><!DOCTYPE TS><TS version=\"2.1\" language=\"" + language +
           "\"><context><name>Window</name>" + messages + "</context></TS>";
}

QByteArray message(const QByteArray &source, const QByteArray &translation, const QByteArray &type = {})
{
    const QByteArray attribute = type.isEmpty() ? type : " type=\"" + type + "\"";
    return "<message><location filename=\"a.cpp\" line=\"1\"/><source>" + source + "</source><translation" +
           attribute + ">" + translation + "</translation></message>";
}

QByteArray plural(const QByteArray &source, const QByteArray &first, const QByteArray &second)
{
    return "<message numerus=\"yes\"><source>" + source + "</source><translation><numerusform>" + first +
           "</numerusform><numerusform>" + second + "</numerusform></translation></message>";
}

Translations read(const QByteArray &bytes)
{
    auto translations = readTranslations(bytes);
    return translations ? *std::move(translations) : Translations();
}

QString reasonFor(const QByteArray &answer, const QByteArray &earlier = {}, const QByteArray &english = {})
{
    return reasonToRefuse(read(answer),
                          {.locale = u"de-DE"_s, .earlier = read(earlier), .english = read(english)});
}

} // namespace

class tst_translation_answer : public QObject
{
    Q_OBJECT

private slots:
    void aFileIsReadIfItIsACompleteTranslationFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("whole");
        QTest::newRow("whole") << QByteArray("<?xml version=\"1.0\"?><!DOCTYPE TS><TS version=\"2.1\"></TS>")
                               << true;
        QTest::newRow("with contexts") << QByteArray("<TS><context><name>A</name></context></TS>\n") << true;
        QTest::newRow("no bytes") << QByteArray() << false;
        QTest::newRow("cut off") << QByteArray("<TS><context><name>A</name>") << false;
        QTest::newRow("another document") << QByteArray("<html></html>") << false;
        QTest::newRow("elements crossed") << QByteArray("<TS><a><b></a></b></TS>") << false;
        QTest::newRow("text after the end") << QByteArray("<TS></TS>\nmore") << false;
        QTest::newRow("invalid UTF-8") << QByteArray("<TS>\xff\xfe</TS>") << false;
        QTest::newRow("entities") << QByteArray(
                                         "<!DOCTYPE TS [<!ENTITY a \"text\">]><TS version=\"2.1\"></TS>")
                                  << false;
    }

    void aFileIsReadIfItIsACompleteTranslationFile()
    {
        QFETCH(const QByteArray, bytes);
        QTEST(bool(readTranslations(bytes)), "whole");
    }

    void theErrorNamesTheLine()
    {
        QVERIFY(readTranslations("<TS>\n<context>\n</TS>").error().endsWith(u"(line 3)"_s));
    }

    void aStringIsFinishedIfItIsTranslatedAndNotMarked_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<State>("state");
        QTest::newRow("translated") << message("Open", "Auf") << State::Finished;
        QTest::newRow("an empty type") << QByteArray("<message><source>A</source><translation type=\"\">B"
                                                     "</translation></message>")
                                       << State::Finished;
        QTest::newRow("unfinished") << message("Open", "Auf", "unfinished") << State::Open;
        QTest::newRow("without a text") << message("Open", "") << State::Open;
        QTest::newRow("without a translation")
            << QByteArray("<message><source>A</source></message>") << State::Open;
        QTest::newRow("vanished") << message("Open", "Auf", "vanished") << State::Gone;
        QTest::newRow("obsolete") << message("Open", "Auf", "obsolete") << State::Gone;
        QTest::newRow("plural forms") << plural("%n files", "%n Datei", "%n Dateien") << State::Finished;
        QTest::newRow("a plural form is missing") << plural("%n files", "%n Datei", "") << State::Open;
        QTest::newRow("variants of different lengths")
            << message("Open", "<lengthvariant>Auf</lengthvariant><lengthvariant>A</lengthvariant>")
            << State::Finished;
    }

    void aStringIsFinishedIfItIsTranslatedAndNotMarked()
    {
        QFETCH(const QByteArray, message);
        const Translations translations = read(file(message));
        QCOMPARE(translations.strings.size(), 1);
        QTEST(translations.strings.first().state, "state");
    }

    void anAnswerMustBeForItsLanguage_data()
    {
        QTest::addColumn<QByteArray>("language");
        QTest::addColumn<bool>("refused");
        QTest::newRow("the locale") << QByteArray("de_DE") << false;
        QTest::newRow("the locale with a hyphen") << QByteArray("de-DE") << false;
        QTest::newRow("the language alone") << QByteArray("de") << false;
        QTest::newRow("none") << QByteArray() << false;
        QTest::newRow("another language") << QByteArray("fr_FR") << true;
        QTest::newRow("another country") << QByteArray("de_AT") << true;
        QTest::newRow("English") << QByteArray("en_US") << true;
        QTest::newRow("not a language") << QByteArray("german") << true;
    }

    void anAnswerMustBeForItsLanguage()
    {
        QFETCH(const QByteArray, language);
        const QString reason = reasonFor(file(message("Open", "Auf"), language));
        QTEST(!reason.isEmpty(), "refused");
        if (!reason.isEmpty())
            QCOMPARE(reason, u"it is for the language "_s + QString::fromUtf8(language));
    }

    void theChineseLanguagesAreTwo()
    {
        const Translations simplified = read(file(message("Open", "x"), "zh_CN"));
        QVERIFY(reasonToRefuse(simplified, {.locale = u"zh-CN"_s}).isEmpty());
        QVERIFY(!reasonToRefuse(simplified, {.locale = u"zh-TW"_s}).isEmpty());
        const Translations traditional = read(file(message("Open", "x"), "zh-Hant"));
        QVERIFY(reasonToRefuse(traditional, {.locale = u"zh-TW"_s}).isEmpty());
        QVERIFY(!reasonToRefuse(traditional, {.locale = u"zh-CN"_s}).isEmpty());
    }

    void anAnswerMustHaveTheFinishedStringsOfTheEarlierFile_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QByteArray>("earlier");
        QTest::addColumn<QByteArray>("english");
        QTest::addColumn<bool>("refused");
        const QByteArray open = message("Open", "Auf");
        const QByteArray close = message("Close", "Zu");
        const QByteArray both = file(open + close);
        QTest::newRow("no earlier file") << both << QByteArray() << QByteArray() << false;
        QTest::newRow("the same") << both << both << both << false;
        QTest::newRow("one more") << both << file(open) << QByteArray() << false;
        QTest::newRow("one less") << file(open) << both << QByteArray() << true;
        QTest::newRow("one less that is still in the sources") << file(open) << both << both << true;
        QTest::newRow("one less that has left the sources") << file(open) << both << file(open) << false;
        QTest::newRow("one less that is gone from the sources")
            << file(open) << both << file(open + message("Close", "", "vanished")) << false;
        QTest::newRow("one is open again")
            << file(open + message("Close", "Zu", "unfinished")) << both << both << true;
        QTest::newRow("others that the sources do not have")
            << file(open + message("New", "Neu")) << both << both << true;
        QTest::newRow("no strings") << file("") << both << both << true;
    }

    void anAnswerMustHaveTheFinishedStringsOfTheEarlierFile()
    {
        QFETCH(const QByteArray, answer);
        QFETCH(const QByteArray, earlier);
        QFETCH(const QByteArray, english);
        const QString reason = reasonFor(answer, earlier, english);
        QTEST(!reason.isEmpty(), "refused");
        if (!reason.isEmpty())
            QVERIFY2(reason.endsWith(u"finished texts, and the existing file has 2"_s), qPrintable(reason));
    }

    void aTranslationMustHaveThePlacesOfItsSource_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("refused");
        QTest::newRow("the same") << message("%1 of %2", "%1 von %2") << false;
        QTest::newRow("in another order") << message("%1 of %2", "%2: %1") << false;
        QTest::newRow("one twice") << message("Save %1", "%1: %1 speichern") << false;
        QTest::newRow("one is missing") << message("%1 of %2", "von %1") << true;
        QTest::newRow("another number") << message("Save %1", "%2 speichern") << true;
        QTest::newRow("one too many") << message("Save", "%1 speichern") << true;
        QTest::newRow("in the form of the country") << message("%1 files", "%L1 Dateien") << false;
        QTest::newRow("a percentage") << message("100 %", "100%") << false;
        QTest::newRow("in a plural form") << plural("%n of %1", "eine von %1", "%n von %1") << false;
        QTest::newRow("missing in a plural form") << plural("%n of %1", "eine", "%n von %1") << true;
        QTest::newRow("unfinished") << message("Save %1", "speichern", "unfinished") << true;
        QTest::newRow("no longer in the sources") << message("Save %1", "speichern", "vanished") << false;
        QTest::newRow("not translated") << message("Save %1", "", "unfinished") << false;
    }

    void aTranslationMustHaveThePlacesOfItsSource()
    {
        QFETCH(const QByteArray, message);
        QTEST(!reasonFor(file(message)).isEmpty(), "refused");
    }

    void theReasonShowsTheTextWithOtherPlaces()
    {
        QCOMPARE(reasonFor(file(message("Save %1", "%2 speichern"))),
                 u"the values such as %1 differ between \"Save %1\" and its translation \"%2 speichern\""_s);
    }

    void placesAreSortedAndEachOnce()
    {
        QCOMPARE(placesIn(u"%2 %n %1 %L2 %10 100% %%3 %x"_s),
                 QStringList({u"%1"_s, u"%10"_s, u"%2"_s, u"%3"_s, u"%n"_s}));
    }
};

NVX_GUILESS_TEST(tst_translation_answer)
#include "tst_translation_answer.moc"
