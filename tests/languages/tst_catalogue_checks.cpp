// Tests the checks of the catalogues with correct and with faulty entries.

#include "catalogue_checks.h"
#include "support/test_class.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using Check = bool (*)(const Entry &);

Entry entryOf(const QString &source, const QStringList &translations, EntryState state = EntryState::Finished)
{
    return {u"Context"_s, source, QString(), translations, state};
}

void addRow(const char *name, Check check, const char *source, const char *translation, bool holds)
{
    QTest::newRow(name) << check << QString::fromUtf8(source) << QString::fromUtf8(translation) << holds;
}

std::optional<Catalogue> read(const QByteArray &text)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return readCatalogue(buffer);
}

QByteArray catalogueOf(const QByteArray &message)
{
    return "<!DOCTYPE TS><TS version=\"2.1\" language=\"de_DE\"><context><name>Page</name>" + message +
           "</context></TS>";
}

} // namespace

Q_DECLARE_METATYPE(Check)

class tst_catalogue_checks : public QObject
{
    Q_OBJECT

private slots:
    void everyCheckAcceptsCorrectAndRejectsFaultyTexts_data();
    void everyCheckAcceptsCorrectAndRejectsFaultyTexts();
    void aTextIsTranslatedWhenItIsFinished();
    void aTextWithoutAnyFormIsNotTranslated();
    void aTextFailsIfOneOfItsPluralFormsFails();
    void aFailingTextIsReportedByContextAndSource();
    void textsDifferByContextSourceOrComment();

    void allPartsOfAMessageAreRead();
    void everyPluralFormIsRead();
    void theStateIsRead_data();
    void theStateIsRead();
    void aFileThatIsNoCatalogueIsRejected_data();
    void aFileThatIsNoCatalogueIsRejected();
    void theListNamesTheFoldersOfEachCatalogue();
};

void tst_catalogue_checks::everyCheckAcceptsCorrectAndRejectsFaultyTexts_data()
{
    QTest::addColumn<Check>("check");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("holds");

    addRow("translated", isTranslated, "Yes", "Ja", true);
    addRow("not translated", isTranslated, "Yes", "", false);
    addRow("translated by a blank", isTranslated, "Yes", " ", false);
    addRow("a blank by a blank", isTranslated, " ", " ", true);
    addRow("a blank not translated", isTranslated, " ", "", false);

    addRow("placeholders in another order", keepsPlaceholders, "%1 to %2", "nach %2 von %1", true);
    addRow("a placeholder lost", keepsPlaceholders, "%1 to %2", "nach %2", false);
    addRow("a placeholder added", keepsPlaceholders, "to %1", "nach %1 %2", false);
    addRow("a placeholder broken by a blank", keepsPlaceholders, "to %1", "nach % 1", false);
    addRow("another number", keepsPlaceholders, "to %1", "nach %11", false);
    addRow("the locale's digits lost", keepsPlaceholders, "%L1 rows", "%1 Zeilen", false);
    addRow("the plural's number lost", keepsPlaceholders, "%n rows", "Zeilen", false);
    addRow("a variable between per cent signs", keepsPlaceholders, "in %temp%x", "aus %temp%x", true);

    addRow("outer blanks kept", keepsOuterBlanks, " Tutorials ", " der Tutorials ", true);
    addRow("a leading blank lost", keepsOuterBlanks, " Tutorials", "Tutorials", false);
    addRow("a leading blank added", keepsOuterBlanks, "Tutorials", " Tutorials", false);
    addRow("a trailing blank lost", keepsOuterBlanks, "Found ", "Gefunden:", false);
    addRow("a trailing blank doubled", keepsOuterBlanks, "Found ", "Gefunden:  ", false);
    addRow("a line feed for a blank", keepsOuterBlanks, "Found ", "Gefunden:\n", false);
    addRow("a wide blank for a blank", keepsOuterBlanks, "Found ", "検出\u3000", false);
    addRow("nothing but blanks", keepsOuterBlanks, "  ", "  ", true);
    addRow("fewer blanks", keepsOuterBlanks, "  ", " ", false);

    addRow("line feeds kept", keepsLineFeeds, "a\n\nb\n", "x\n\ny\n", true);
    addRow("a line feed lost", keepsLineFeeds, "a\n\nb\n", "x\ny\n", false);
    addRow("a line feed added", keepsLineFeeds, "a b", "x\ny", false);

    addRow("a product's name kept", keepsProductNames, "NVX launchers", "NVX-Startprogramme", true);
    addRow("a product's name lost", keepsProductNames, "NVX launchers", "Startprogramme", false);
    addRow("a product's name translated", keepsProductNames, "Mertle Server", "Mertle-Dienst", false);
    addRow("another product", keepsProductNames, "NVX2 folder", "NVX-Ordner", false);
    addRow("one of two products lost", keepsProductNames, "NVX and NVX2", "NVX2", false);

    addRow("options kept", keepsOptions, "Use\n-I Install\n-U Remove", "So\n-I Neu\n-U Weg", true);
    addRow("options exchanged", keepsOptions, "Use\n-I Install\n-U Remove", "So\n-U Weg\n-I Neu", false);
    addRow("an option changed", keepsOptions, "-Lxxx Language", "-Lyyy Sprache", false);
    addRow("an option lost", keepsOptions, "Use\n-I Install", "So\nNeu", false);
    addRow("a dash added", keepsOptions, "Use", "-Use", false);

    addRow("an ellipsis kept", keepsEllipses, "Open...", "Öffnen...", true);
    addRow("an ellipsis lost", keepsEllipses, "Open...", "Öffnen", false);
    addRow("an ellipsis added", keepsEllipses, "Open", "Öffnen...", false);
    addRow("an ellipsis of one character", keepsEllipses, "Open...", "Öffnen…", false);
    addRow("an ellipsis of one character added", keepsEllipses, "Open", "Öffnen…", false);
    addRow("four dots", keepsEllipses, "Open...", "Öffnen....", false);
    addRow("two dots", keepsEllipses, "Open...", "Öffnen..", false);
    addRow("full-width dots", keepsEllipses, "Open...", "打开。。。", false);
    addRow("one dot is no ellipsis", keepsEllipses, "No. 1", "N. 1.", true);
}

void tst_catalogue_checks::everyCheckAcceptsCorrectAndRejectsFaultyTexts()
{
    QFETCH(Check, check);
    QFETCH(QString, source);
    QFETCH(QString, translation);
    QTEST(check(entryOf(source, {translation})), "holds");
}

void tst_catalogue_checks::aTextIsTranslatedWhenItIsFinished()
{
    const QStringList translations{u"Ja"_s};
    QVERIFY(isTranslated(entryOf(u"Yes"_s, translations, EntryState::Finished)));
    QVERIFY(!isTranslated(entryOf(u"Yes"_s, translations, EntryState::Unfinished)));
    QVERIFY(!isTranslated(entryOf(u"Yes"_s, translations, EntryState::Obsolete)));
}

void tst_catalogue_checks::aTextWithoutAnyFormIsNotTranslated()
{
    QVERIFY(!isTranslated(entryOf(u"%n rows"_s, {})));
}

void tst_catalogue_checks::aTextFailsIfOneOfItsPluralFormsFails()
{
    const Entry empty = entryOf(u"%n rows"_s, {u"%n Zeile"_s, QString()});
    QVERIFY(!isTranslated(empty));
    QVERIFY(!keepsPlaceholders(empty));
    const Entry blank = entryOf(u"%n rows"_s, {u"%n Zeile"_s, u"%n Zeilen "_s});
    QVERIFY(keepsPlaceholders(blank));
    QVERIFY(!keepsOuterBlanks(blank));
}

void tst_catalogue_checks::aFailingTextIsReportedByContextAndSource()
{
    const QList<Entry> entries{entryOf(u"Yes"_s, {u"Ja"_s}), entryOf(u"No"_s, {QString()})};
    QCOMPARE(failingTexts(entries, isTranslated), QStringList{u"Context: No"_s});
}

void tst_catalogue_checks::textsDifferByContextSourceOrComment()
{
    const Entry entry = entryOf(u"Yes"_s, {u"Ja"_s});
    Entry otherContext = entry;
    otherContext.context = u"Page"_s;
    Entry otherSource = entry;
    otherSource.source = u"No"_s;
    Entry otherComment = entry;
    otherComment.comment = u"in a menu"_s;
    Entry otherTranslation = entry;
    otherTranslation.translations = QStringList{u"Oui"_s};

    const QStringList missing =
        missingFrom({entry}, {otherContext, otherSource, otherComment, otherTranslation});
    QCOMPARE(missing, (QStringList{u"Page: Yes"_s, u"Context: No"_s, u"Context: Yes"_s}));
}

void tst_catalogue_checks::allPartsOfAMessageAreRead()
{
    const auto catalogue =
        read(catalogueOf("<message><location line=\"7\"/><source> A &amp;\n%1 </source>"
                         "<comment>in a menu</comment><translatorcomment>?"
                         "</translatorcomment><translation> B\n%1 </translation></message>"));
    QVERIFY(catalogue);
    QCOMPARE(catalogue->language, u"de_DE"_s);
    QCOMPARE(catalogue->entries.size(), 1);
    const Entry &entry = catalogue->entries.first();
    QCOMPARE(entry.context, u"Page"_s);
    QCOMPARE(entry.source, u" A &\n%1 "_s);
    QCOMPARE(entry.comment, u"in a menu"_s);
    QCOMPARE(entry.translations, QStringList{u" B\n%1 "_s});
}

void tst_catalogue_checks::everyPluralFormIsRead()
{
    const auto catalogue = read(catalogueOf(
        "<message numerus=\"yes\"><source>%n rows</source><translation><numerusform>%n Zeile</numerusform>"
        "<numerusform></numerusform></translation></message>"));
    QVERIFY(catalogue);
    QCOMPARE(catalogue->entries.size(), 1);
    QCOMPARE(catalogue->entries.first().translations, (QStringList{u"%n Zeile"_s, QString()}));
}

void tst_catalogue_checks::theStateIsRead_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<EntryState>("state");
    QTest::newRow("finished") << QByteArray() << EntryState::Finished;
    QTest::newRow("unfinished") << QByteArray(" type=\"unfinished\"") << EntryState::Unfinished;
    QTest::newRow("vanished") << QByteArray(" type=\"vanished\"") << EntryState::Obsolete;
    QTest::newRow("obsolete") << QByteArray(" type=\"obsolete\"") << EntryState::Obsolete;
}

void tst_catalogue_checks::theStateIsRead()
{
    QFETCH(QByteArray, attribute);
    const auto catalogue = read(
        catalogueOf("<message><source>Yes</source><translation" + attribute + ">Ja</translation></message>"));
    QVERIFY(catalogue);
    QCOMPARE(catalogue->entries.size(), 1);
    QTEST(catalogue->entries.first().state, "state");
}

void tst_catalogue_checks::aFileThatIsNoCatalogueIsRejected_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another document") << QByteArray("<html/>");
    QTest::newRow("cut off") << catalogueOf("<message><source>Yes</source>").left(100);
    QTest::newRow("an element inside a text") << catalogueOf("<message><source>a<b/></source></message>");
}

void tst_catalogue_checks::aFileThatIsNoCatalogueIsRejected()
{
    QFETCH(QByteArray, text);
    QVERIFY(!read(text));
}

void tst_catalogue_checks::theListNamesTheFoldersOfEachCatalogue()
{
    QBuffer list;
    list.setData("# tools Nowhere\n\n wizard\tConfig \r\ntools Client  source\n");
    list.open(QIODevice::ReadOnly);
    const QMap<QString, QStringList> expected{{u"wizard"_s, {u"Config"_s}},
                                              {u"tools"_s, {u"Client"_s, u"source"_s}}};
    QCOMPARE(readCatalogueList(list), expected);
}

NVX_GUILESS_TEST(tst_catalogue_checks)
#include "tst_catalogue_checks.moc"
