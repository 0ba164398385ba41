#include "message_table_check/exchange.h"
#include "message_table_check/translation_document.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Result;
using TableCheck::TranslationDocument;
using TableCheck::TranslationString;
using State = TableCheck::TranslationString::State;

namespace {

Result<TranslationDocument> read(QByteArray bytes)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    return TableCheck::readTranslationDocument(device);
}

Result<QByteArray> forQt6(QByteArray bytes)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    return TableCheck::translationFileForQt6(device);
}

QString nameOf(State state)
{
    if (state == State::Finished)
        return u"finished"_s;
    return state == State::Obsolete ? u"obsolete"_s : u"unfinished"_s;
}

/// The strings as "CONTEXT|SOURCE|TRANSLATION|STATE|COMMENT".
QStringList shown(const TranslationDocument &document)
{
    QStringList lines;
    for (const TranslationString &string : document.strings)
        lines.append(QStringList{string.context, string.source, string.translations.value(0),
                                 nameOf(string.state), string.comment}
                         .join(u'|'));
    return lines;
}

TranslationString stringOf(const QString &source, const QString &translation, State state,
                           const QString &comment = QString())
{
    TranslationString string;
    string.context = u"A"_s;
    string.source = source;
    string.translations = QStringList(translation);
    string.state = state;
    string.comment = comment;
    return string;
}

/// A table with these messages in the context "A".
Translation::TranslationTable tableOf(const Translation::TranslationMessages &messages)
{
    Translation::TranslationContext context(u"A"_s);
    for (const Translation::TranslationMessage &message : messages)
        context.append(message);
    Translation::TranslationTable table;
    table.setContext(context);
    return table;
}

/// The messages of the context "A" as "SOURCE|TRANSLATION|TYPE|COMMENT".
QStringList shown(const Translation::TranslationTable &table)
{
    QStringList lines;
    for (const Translation::TranslationMessage &message : table.contexts().at(u"A"_s).messages())
        lines.append(
            QStringList{message.source, message.translation, message.type, message.comment}.join(u'|'));
    return lines;
}

} // namespace

class tst_exchange : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheCodecIsLeftOut();
    void fileThatIsNoTranslationIsNotConverted_data();
    void fileThatIsNoTranslationIsNotConverted();
    void documentWithALargeEntityManyTimesIsRefused();
    void xliffHasEverythingOfAString();
    void xliffIsWrittenInItsOrder();
    void deeplyNestedElementsAreRead();
    void commentsOfATranslationFileAreRead();
    void xliffRefusesCharactersThatItCannotHold();
    void xliffOfOtherToolsIsRead_data();
    void xliffOfOtherToolsIsRead();
    void xliffGroupEndsAtItsEndTag();
    void languageOfXliffIsThatOfItsFirstFile();
    void documentWithFormsIsRefused_data();
    void documentWithFormsIsRefused();
    void editedStringsAreTakenOver_data();
    void editedStringsAreTakenOver();
    void repeatedSourcesAreToldApartByTheirState();
    void fileIsUntouchedIfTakingBackFails_data();
    void fileIsUntouchedIfTakingBackFails();
    void conversionNamesTheFileThatFails();
};

void tst_exchange::onlyTheCodecIsLeftOut()
{
    const QByteArray begin = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE TS>\n"
                             "<TS version=\"2.1\" language=\"de_DE\">";
    const QByteArray end =
        "\n   <context>\n      <name>A</name>\n      <!-- stays -->\n"
        "      <message numerus=\"yes\"><location filename=\"a.cpp\" line=\"1\"></location>"
        "<source>%n &lt;b&gt;&#13;\n</source><translation type=\"\"><numerusform>x</numerusform>"
        "</translation><translatorcomment>c</translatorcomment></message>\n   </context>\n</TS>";
    const Result<QByteArray> converted = forQt6(begin + "\n   <defaultcodec>UTF-8</defaultcodec>" + end);
    QVERIFY(converted);
    QCOMPARE(converted->trimmed(), begin + end);
}

void tst_exchange::fileThatIsNoTranslationIsNotConverted_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("error");
    QTest::newRow("message table") << QByteArray("<messageTable/>") << u"not a translation file"_s;
    QTest::newRow("not well formed") << QByteArray("<TS>\n<context></TS>")
                                     << u"line 2: Opening and ending tag mismatch."_s;
}

void tst_exchange::fileThatIsNoTranslationIsNotConverted()
{
    QFETCH(const QByteArray, document);
    const Result<QByteArray> converted = forQt6(document);
    QVERIFY(!converted);
    QTEST(converted.error(), "error");
}

void tst_exchange::documentWithALargeEntityManyTimesIsRefused()
{
    const QByteArray document = "<!DOCTYPE TS [<!ENTITY e \"" + QByteArray(4000, 'A') +
                                "\">]>\n<TS><context><message>\n<source>" +
                                QByteArray("&e;").repeated(50'000) + "</source></message></context></TS>";
    const Result<QByteArray> converted = forQt6(document);
    QVERIFY(!converted);
    QVERIFY2(converted.error().startsWith(u"line 3: "_s), qPrintable(converted.error()));
    const Result<TranslationDocument> strings = read(document);
    QVERIFY(!strings);
    QVERIFY2(strings.error().startsWith(u"line 3: "_s), qPrintable(strings.error()));
}

void tst_exchange::xliffHasEverythingOfAString()
{
    TranslationDocument document;
    document.language = u"de_DE"_s;
    document.strings = {stringOf(u"a\r\n "_s, u"<\u00e4>"_s, State::Finished, u"title"_s),
                        stringOf(u"b"_s, QString(), State::Unfinished),
                        stringOf(u"c"_s, u"C"_s, State::Obsolete)};
    const Result<QByteArray> xliff = TableCheck::xliffOf(document, u"client_de.ts"_s);
    QVERIFY(xliff);
    const Result<TranslationDocument> again = read(*xliff);
    QVERIFY(again);
    QCOMPARE(shown(*again), shown(document));
    QCOMPARE(again->language, u"de_DE"_s);
    QVERIFY(xliff->contains("<file original=\"client_de.ts\""));
}

void tst_exchange::xliffIsWrittenInItsOrder()
{
    TranslationDocument document;
    document.language = u"de_DE"_s;
    document.strings = {stringOf(u"a "_s, u"A "_s, State::Finished, u"title"_s),
                        stringOf(u"b"_s, QString(), State::Unfinished)};
    document.strings.back().context = u"B"_s;
    const Result<QByteArray> xliff = TableCheck::xliffOf(document, u"client_de.ts"_s);
    QVERIFY(xliff);
    QCOMPARE(*xliff, QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<xliff version="1.2" xmlns="urn:oasis:names:tc:xliff:document:1.2">
    <file original="client_de.ts" datatype="plaintext" source-language="en" target-language="de-DE">
        <body>
            <group restype="x-trolltech-linguist-context" resname="A">
                <trans-unit id="_msg1" approved="yes">
                    <source xml:space="preserve">a </source>
                    <target xml:space="preserve">A </target>
                    <context-group>
                        <context context-type="x-gettext-msgctxt">title</context>
                    </context-group>
                </trans-unit>
            </group>
            <group restype="x-trolltech-linguist-context" resname="B">
                <trans-unit id="_msg2">
                    <source xml:space="preserve">b</source>
                    <target xml:space="preserve"></target>
                </trans-unit>
            </group>
        </body>
    </file>
</xliff>
)"));
    const Result<TranslationDocument> again = read(*xliff);
    QVERIFY(again);
    QCOMPARE(shown(*again), shown(document));
}

void tst_exchange::deeplyNestedElementsAreRead()
{
    constexpr int depth = 200'000;
    const Result<TranslationDocument> document =
        read("<TS><context><name>A</name><message><source>a</source><comment>title" +
             QByteArray("<x>").repeated(depth) + QByteArray("</x>").repeated(depth) +
             "</comment><translation>b</translation></message></context></TS>");
    QVERIFY(document);
    QCOMPARE(shown(*document), QStringList(u"A|a|b|finished|title"_s));
}

void tst_exchange::commentsOfATranslationFileAreRead()
{
    const Result<TranslationDocument> document =
        read("<TS><context><name>A</name><message><source>a</source><comment>title</comment>"
             "<translation>b</translation></message></context></TS>");
    QVERIFY(document);
    QCOMPARE(shown(*document), QStringList(u"A|a|b|finished|title"_s));
}

void tst_exchange::xliffRefusesCharactersThatItCannotHold()
{
    TranslationDocument document;
    document.strings = {stringOf(u"a"_s, u"\033"_s, State::Finished)};
    document.strings.front().line = 7;
    const Result<QByteArray> xliff = TableCheck::xliffOf(document, u"a.ts"_s);
    QVERIFY(!xliff);
    QCOMPARE(xliff.error(), u"line 7: XLIFF cannot represent a character of this string"_s);
}

void tst_exchange::xliffOfOtherToolsIsRead_data()
{
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *attributes, const char *target, const char *expected) {
        const QByteArray start = QByteArray("<trans-unit id=\"1\" ") + attributes + "><source>s</source>";
        QTest::newRow(name) << start + target + "</trans-unit>" << QString::fromLatin1(expected);
    };
    row("approved", "approved=\"yes\"", "<target>t</target>", "A|s|t|finished|");
    row("neither approved nor with a state", "", "<target>t</target>", "A|s|t|unfinished|");
    row("translated", "", "<target state=\"translated\">t</target>", "A|s|t|finished|");
    row("signed off", "", "<target state=\"signed-off\">t</target>", "A|s|t|finished|");
    row("translated but disapproved", "approved=\"no\"", "<target state=\"translated\">t</target>",
        "A|s|t|unfinished|");
    row("to be reviewed", "", "<target state=\"needs-review-translation\">t</target>", "A|s|t|unfinished|");
    row("without a target", "", "", "A|s||unfinished|");
    row("not to be translated", "translate=\"no\" approved=\"yes\"", "<target>t</target>", "A|s|t|obsolete|");
    row("inline elements", "", "<target>t<g id=\"1\">u</g>v</target>", "A|s|tuv|unfinished|");
    row("alternative translation", "",
        "<target>t</target><alt-trans><source>x</source><target>y</target></alt-trans>", "A|s|t|unfinished|");
    row("comment", "",
        "<target>t</target><context-group><context context-type=\"linenumber\">3</context>"
        "<context context-type=\"x-gettext-msgctxt\">c</context></context-group>",
        "A|s|t|unfinished|c");
}

void tst_exchange::xliffOfOtherToolsIsRead()
{
    QFETCH(const QByteArray, unit);
    const Result<TranslationDocument> document =
        read("<xliff version=\"1.2\"><file target-language=\"de-DE\"><body>"
             "<group restype=\"x-trolltech-linguist-context\" resname=\"A\"><group>" +
             unit + "</group></group></body></file></xliff>");
    QVERIFY2(document, qPrintable(document.error()));
    QTEST(shown(*document).join(u'\n'), "expected");
}

void tst_exchange::xliffGroupEndsAtItsEndTag()
{
    const QByteArray unit = "<trans-unit><source>s</source><target>t</target></trans-unit>";
    const Result<TranslationDocument> document =
        read("<xliff><group restype=\"x-trolltech-linguist-context\" resname=\"A\">"
             "<group restype=\"x-gettext-plurals\"/>" +
             unit + "</group>" + unit + "</xliff>");
    QVERIFY2(document, qPrintable(document.error()));
    QCOMPARE(shown(*document), QStringList({u"A|s|t|unfinished|"_s, u"|s|t|unfinished|"_s}));
}

void tst_exchange::languageOfXliffIsThatOfItsFirstFile()
{
    const Result<TranslationDocument> document =
        read("<xliff target-language=\"ja-JP\"><file target-language=\"de-DE\"/>"
             "<file target-language=\"fr-FR\"/></xliff>");
    QVERIFY2(document, qPrintable(document.error()));
    QCOMPARE(document->language, u"de_DE"_s);
}

void tst_exchange::documentWithFormsIsRefused_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("plural forms in a translation file")
        << QByteArray("<TS><context><name>A</name>\n<message numerus=\"yes\"><source>s</source><translation>"
                      "<numerusform>a</numerusform></translation></message></context></TS>");
    QTest::newRow("length variants in a translation file")
        << QByteArray("<TS><context><name>A</name>\n<message><source>s</source><translation>"
                      "<lengthvariant>a</lengthvariant></translation></message></context></TS>");
    QTest::newRow("plural forms in XLIFF")
        << QByteArray("<xliff><group restype=\"x-gettext-plurals\">\n<trans-unit><source>s</source>"
                      "<target>t</target></trans-unit></group></xliff>");
}

void tst_exchange::documentWithFormsIsRefused()
{
    QFETCH(const QByteArray, document);
    const Result<TranslationDocument> result = read(document);
    QVERIFY(!result);
    QCOMPARE(result.error(), u"line 2: plural forms and length variants would be lost"_s);
}

void tst_exchange::editedStringsAreTakenOver_data()
{
    QTest::addColumn<TableCheck::TranslationStrings>("edited");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QList<int>>("counts"); // changed, added
    const auto row = [](const char *name, const TableCheck::TranslationStrings &edited,
                        const QStringList &expected,
                        const QList<int> &counts) { QTest::newRow(name) << edited << expected << counts; };
    const QStringList before{u"a|a|unfinished|"_s, u"b|B||note"_s};
    row("nothing", {}, before, {0, 0});
    row("finished", {stringOf(u"a"_s, u"A"_s, State::Finished)}, {u"a|A||"_s, before.at(1)}, {1, 0});
    row("unchanged", {stringOf(u"b"_s, u"B"_s, State::Finished, u"note"_s)}, before, {0, 0});
    row("obsolete", {stringOf(u"a"_s, u"a"_s, State::Obsolete)}, {u"a|a|obsolete|"_s, before.at(1)}, {1, 0});
    row("another comment", {stringOf(u"b"_s, u"X"_s, State::Finished)}, before + QStringList(u"b|X||"_s),
        {0, 1});
    row("finished without a translation", {stringOf(u"b"_s, QString(), State::Finished, u"note"_s)},
        {before.at(0), u"b|B|unfinished|note"_s}, {1, 0});
    row("new without a translation", {stringOf(u"n"_s, QString(), State::Unfinished)},
        before + QStringList(u"n|n|unfinished|"_s), {0, 1});
    row("twice", {stringOf(u"a"_s, u"1"_s, State::Finished), stringOf(u"a"_s, u"2"_s, State::Finished)},
        {u"a|1||"_s, before.at(1), u"a|2||"_s}, {1, 1});
}

void tst_exchange::editedStringsAreTakenOver()
{
    QFETCH(const TableCheck::TranslationStrings, edited);
    Translation::TranslationTable table =
        tableOf({{u"a"_s, u"a"_s, u"unfinished"_s, QString()}, {u"b"_s, u"B"_s, QString(), u"note"_s}});
    const TableCheck::TakenOver counts = TableCheck::takeOver(table, edited);
    QTEST(shown(table), "expected");
    QTEST((QList<int>{counts.changed, counts.added}), "counts");
}

void tst_exchange::repeatedSourcesAreToldApartByTheirState()
{
    Translation::TranslationTable table = tableOf({{u"a"_s, u"old"_s, u"obsolete"_s, QString()},
                                                   {u"a"_s, u"one"_s, QString(), QString()},
                                                   {u"a"_s, u"two"_s, QString(), QString()}});
    const QStringList before = shown(table);
    const TableCheck::TakenOver counts = TableCheck::takeOver(
        table, {stringOf(u"a"_s, u"one"_s, State::Finished), stringOf(u"a"_s, u"two"_s, State::Finished),
                stringOf(u"a"_s, u"old"_s, State::Obsolete)});
    QCOMPARE(shown(table), before);
    QCOMPARE(counts.changed + counts.added, 0);
}

void tst_exchange::fileIsUntouchedIfTakingBackFails_data()
{
    QTest::addColumn<QByteArray>("edited");
    QTest::addColumn<QByteArray>("ours");
    const QByteArray good = "<TS><context><name>A</name><message><source>a</source><translation>x"
                            "</translation></message></context></TS>";
    const QByteArray plural = "<TS><context><name>A</name><message numerus=\"yes\"><source>a</source>"
                              "<translation/></message></context></TS>";
    QTest::newRow("edited file is damaged") << good.chopped(1) << good;
    QTest::newRow("our file is damaged") << good << good.chopped(1);
    QTest::newRow("edited file has plural forms") << plural << good;
    QTest::newRow("our file has plural forms") << good << plural;
    QTest::newRow("our file is a message table") << good << QByteArray("<messageTable/>");
}

void tst_exchange::fileIsUntouchedIfTakingBackFails()
{
    QFETCH(const QByteArray, edited);
    QFETCH(const QByteArray, ours);
    const TestFolder folder;
    const QString from = folder.path(u"edited.ts"_s);
    const QString to = folder.path(u"ours.ts"_s);
    QVERIFY(writeBytes(from, edited) && writeBytes(to, ours));
    const Result<TableCheck::TakenOver> taken = TableCheck::takeBack(from, to);
    QVERIFY(!taken);
    QVERIFY2(taken.error().startsWith(folder.path()), qPrintable(taken.error()));
    QCOMPARE(readFile(to), ours);
    QCOMPARE(namesIn(folder.path()).size(), 2);
}

void tst_exchange::conversionNamesTheFileThatFails()
{
    const TestFolder folder;
    const QString from = folder.path(u"ours.ts"_s);
    QVERIFY(TableCheck::convertForQt6(from, folder.path(u"a.ts"_s)).error().startsWith(from));
    QVERIFY(TableCheck::convertForQt6(from, folder.path(u"a.xlf"_s)).error().startsWith(from));
    QVERIFY(writeBytes(from, "<TS>"));
    QVERIFY(TableCheck::convertForQt6(from, folder.path(u"a.ts"_s)).error().startsWith(from));
    QVERIFY(writeBytes(from, "<TS/>"));
    QVERIFY(TableCheck::convertForQt6(from, folder.path(u"a.ts"_s)));
    const QString to = folder.path(u"missing/a.XLIFF"_s);
    QCOMPARE(TableCheck::convertForQt6(from, to).error(), to + u": could not be written"_s);
    QVERIFY(TableCheck::convertForQt6(from, folder.path(u"a.XLIFF"_s)));
    QVERIFY(readFile(folder.path(u"a.XLIFF"_s)).contains("<xliff "));
}

NVX_GUILESS_TEST(tst_exchange)
#include "tst_exchange.moc"
