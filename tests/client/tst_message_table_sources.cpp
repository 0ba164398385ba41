// A document is read by one of two XML sources. Both must read the same.

#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "clt_plain_xml_source.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/recorded_assertions.h"
#include "support/test_class.h"

#include <QBuffer>
#include <QDebug>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using Read = Clt::TableReading (*)(QIODevice &, Clt::MessageTable &);

/// All that can be seen of reading the bytes.
QStringList readingOf(const QByteArray &bytes, Read read)
{
    QBuffer device;
    device.setData(bytes);
    if (!device.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("cannot open a buffer");
    const RecordedAssertions failed;
    Clt::MessageTable table;
    const Clt::TableReading reading = read(device, table);
    QStringList lines{u"%1 %2 %3"_s.arg(reading.succeeded).arg(reading.errorLine).arg(reading.error)};
    lines += reading.leftovers.texts(1000);
    lines += failed.list();
    for (const auto &[key, message] : table) {
        lines += u"%1 %2 %3 %4 %5 %6 %7"_s.arg(key.displayText(), Clt::severityToText(message.severity()),
                                               Clt::stateToText(message.state()),
                                               QString::number(message.solution()), message.sourceTitle(),
                                               message.sourceText(), message.sourceAction());
    }
    return lines;
}

void compare(const QByteArray &bytes)
{
    const QStringList read = readingOf(bytes, Clt::readMessageTable);
    const QStringList readWithQt = readingOf(bytes, Clt::readMessageTableWithQt);
    if (read != readWithQt)
        qInfo().noquote() << bytes;
    QCOMPARE(read.join(u'\n'), readWithQt.join(u'\n'));
}

/// True if the document is not left to Qt's reader.
bool isPlain(const QByteArray &bytes)
{
    QBuffer device;
    device.setData(bytes);
    if (!device.open(QIODevice::ReadOnly))
        qFatal("cannot open a buffer");
    Clt::PlainXmlSource source(device);
    while (source.next() != Clt::XmlSource::Token::End) {
    }
    return source.isComplete();
}

QByteArray tableWith(const QByteArray &message)
{
    return "<messageTable>\n<message severity=\"Status\">" + message + "</message>\n</messageTable>\n";
}

} // namespace

class tst_message_table_sources : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseReadsTheSame_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void everyCaseReadsTheSame()
    {
        QFETCH(const QString, folder);
        const QByteArray bytes = fileBytes(folder + u"/input.xml"_s).value_or("missing");
        compare(bytes);
        // Cut short and with a byte changed, at many places.
        const qsizetype step = qMax<qsizetype>(1, bytes.size() / 15);
        for (qsizetype at = 0; at < bytes.size(); at += step) {
            compare(bytes.first(at));
            for (const char byte : {'<', '>', '&', ' ', '/', '"', 'x', '\r', '\0', '\xC3'})
                compare(QByteArray(bytes).replace(at, 1, QByteArray(1, byte)));
        }
    }

    void documentsReadTheSame_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<bool>("plain");
        const auto row = [](const char *name, const QByteArray &document, bool plain) {
            QTest::newRow(name) << document << plain;
        };
        row("what we write", tableWith("<key>\n<tag>A</tag>\n</key><text>a</text>"), true);
        row("references", tableWith("<text>&lt;&gt;&amp;&quot;&apos;&#13;&#x1F600;</text>"), true);
        row("unknown reference", tableWith("<text>&nbsp;</text>"), false);
        row("number of no character", tableWith("<text>&#0;</text>"), false);
        row("number of a surrogate", tableWith("<text>&#xD800;</text>"), false);
        row("number of a control character", tableWith("<text>&#27;</text>"), false);
        row("number beyond Unicode", tableWith("<text>&#x110000;</text>"), false);
        row("reference without an end", tableWith("<text>a & b</text>"), false);
        row("umlauts", tableWith("<text>Größe 𝄞</text>"), true);
        row("byte order mark in a text", tableWith("<text>\xEF\xBB\xBFx</text>"), true);
        row("truncated UTF-8", tableWith("<text>\xC3</text>"), false);
        row("surrogate in UTF-8", tableWith("<text>\xED\xA0\x80</text>"), false);
        row("U+FFFF", tableWith("<text>\xEF\xBF\xBF</text>"), false);
        row("control character", tableWith("<text>\x01</text>"), false);
        row("line ends of Windows", tableWith("<text>a\r\nb</text>").replace("\n", "\r\n"), false);
        row("line ends of Windows only", tableWith("\r\n<text>a\r\n\r\nb</text>\r\n"), true);
        row("carriage return", tableWith("<text>a\rb</text>"), false);
        row("end of a CDATA section", tableWith("<text>]]></text>"), false);
        row("greater than", tableWith("<text>a -> b</text>"), true);
        row("comment", tableWith("<!-- < & > - --><text>a</text>"), true);
        row("comment with two hyphens", tableWith("<!-- -- -->"), false);
        row("comment that ends with three hyphens", tableWith("<!-- --->"), false);
        row("shortest comment", tableWith("<!---->"), true);
        row("comment without an end", tableWith("<!-->"), false);
        row("CDATA section", tableWith("<text><![CDATA[a]]></text>"), false);
        row("instruction", tableWith("<?a b?>"), false);
        row("prefix", tableWith("<a:text xmlns:a=\"b\">a</a:text>"), false);
        row("attribute in single quotes", tableWith("<text a='\"'>a</text>"), true);
        row("attribute with markup", tableWith("<text a=\"&lt;>\">a</text>"), false);
        row("attribute with a reference", tableWith("<text a=\"&lt;&#10;ö\">a</text>"), true);
        row("attribute over two lines", tableWith("<text a=\"b\nc\">a</text>"), false);
        row("attribute twice", tableWith("<text a=\"\" a=\"\">a</text>"), false);
        row("attributes without a blank", tableWith("<text a=\"\"b=\"\">a</text>"), false);
        row("attribute without a value", tableWith("<text a>a</text>"), false);
        row("blanks in tags", tableWith("<text\n a=\"b\" \n>a</text\n>"), true);
        row("blank before a name", tableWith("< text>a</text>"), false);
        row("empty elements", tableWith("<key/><text />"), true);
        row("wrong end", tableWith("<text>a</texts>"), false);
        row("too short an end", tableWith("<text>a</tex>"), false);
        row("document type", "<!DOCTYPE messageTable>" + tableWith(""), true);
        row("document type twice", "<!DOCTYPE a><!DOCTYPE a>" + tableWith(""), false);
        row("document type with entities", "<!DOCTYPE a [<!ENTITY b \"c\">]>" + tableWith("&b;"), false);
        row("byte order mark", "\xEF\xBB\xBF" + tableWith(""), true);
        row("declaration", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + tableWith(""), true);
        row("blank before the declaration", " <?xml version=\"1.0\" encoding=\"UTF-8\"?>" + tableWith(""),
            false);
        row("other encoding",
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + tableWith("<text>\xD6</text>"), false);
        row("schema without its prefix", "<messageTable xsi:schemaLocation=\"a\"/>", false);
        row("prefix of XML for the schema",
            "<messageTable xmlns:xsi=\"http://www.w3.org/XML/1998/namespace\"/>", false);
        row("two roots", tableWith("") + tableWith(""), false);
        row("text after the root", tableWith("") + "a", false);
        row("comment after the root", tableWith("") + "<!-- a -->\n", true);
        row("nothing but white space", "\n", false);
        row("nothing but a comment", "<!-- a -->", false);
        row("conflict in a comment", tableWith("<!--\n<<<<<<< ours\n-->"), false);
        row("deeply nested", tableWith(QByteArray("<a>").repeated(300) + QByteArray("</a>").repeated(300)),
            false);
    }

    void documentsReadTheSame()
    {
        QFETCH(const QByteArray, document);
        compare(document);
        QTEST(isPlain(document), "plain");
    }

    void documentsThatTakeTooMuchAreRefused_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<qint64>("line"); // 0 if it is read
        const QByteArray entity = "<!DOCTYPE a [<!ENTITY e \"" + QByteArray(4000, 'A') + "\">]>\n";
        const auto textOf = [](qsizetype references) {
            return tableWith("\n<text>" + QByteArray("&e;").repeated(references) + "</text>");
        };
        QTest::newRow("large entity, many times") << entity + textOf(200'000) << qint64(4);
        QTest::newRow("large entity, in each of many messages")
            << entity + "<messageTable>\n" +
                   QByteArray("<message severity=\"Status\"><text>&e;</text></message>\n").repeated(20'000) +
                   "</messageTable>\n"
            << qint64(3);
        QTest::newRow("large entity, some times") << entity + textOf(100) << qint64(0);
        QTest::newRow("short entity, many times")
            << "<!DOCTYPE a [<!ENTITY e \"Product\">]>\n" + textOf(60'000) << qint64(0);
        QByteArray attributes;
        for (int number = 0; number < 20'000; ++number)
            attributes += " a" + QByteArray::number(number) + "=\"\"";
        QTest::newRow("too many attributes") << tableWith("\n<text" + attributes + "/>") << qint64(3);
    }

    void documentsThatTakeTooMuchAreRefused()
    {
        QFETCH(const QByteArray, document);
        QBuffer device;
        device.setData(document);
        QVERIFY(device.open(QIODevice::ReadOnly | QIODevice::Text));
        Clt::MessageTable table;
        const Clt::TableReading reading = Clt::readMessageTable(device, table);
        QTEST(reading.errorLine, "line");
        QCOMPARE(reading.succeeded, reading.errorLine == 0);
        qsizetype characters = 0;
        for (const auto &[key, message] : table)
            characters += message.text().size();
        QVERIFY(characters <= document.size() + 1024 * 1024);
    }
};

NVX_GUILESS_TEST(tst_message_table_sources)
#include "tst_message_table_sources.moc"
