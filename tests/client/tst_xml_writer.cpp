#include "clt_xml_text.h"
#include "clt_xml_writer.h"
#include "support/random_text.h"
#include "support/test_class.h"

#include <QTest>
#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

using Clt::XmlWriter;

namespace {

QByteArray elementWith(QStringView text, XmlWriter::Unrepresentable unrepresentable)
{
    XmlWriter xml(unrepresentable);
    xml.textElement("a", text);
    const QByteArray document = xml.takeDocument();
    const qsizetype begin = document.indexOf("<a>") + 3;
    return xml.hasError() ? "error" : document.sliced(begin, document.size() - begin - 5);
}

} // namespace

class tst_xml_writer : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatQtWrites()
    {
        for (quint32 seed = 0; seed < 200; ++seed) {
            RandomText random(seed);
            QByteArray expected;
            QXmlStreamWriter qt(&expected);
            qt.setAutoFormatting(true);
            qt.setAutoFormattingIndent(3);
            XmlWriter ours;
            qt.writeStartDocument();
            qt.writeStartElement(u"root"_s);
            ours.startElement("root");
            for (quint32 child = random.below(4); child > 0; --child) {
                const QString value = random.text();
                const QString text = random.text();
                qt.writeStartElement(u"child"_s);
                qt.writeAttribute(u"a"_s, value);
                ours.startElement("child");
                ours.attribute("a", value);
                qt.writeStartElement(u"text"_s);
                qt.writeAttribute(u"b"_s, text);
                Clt::writeXmlCharacters(qt, value);
                qt.writeEndElement();
                ours.textElement("text", "b", text, value);
                qt.writeStartElement(u"empty"_s);
                qt.writeEndElement();
                ours.startElement("empty");
                ours.endElement();
                qt.writeEndElement();
                ours.endElement();
            }
            qt.writeEndDocument();
            ours.endElement();
            QVERIFY(!ours.hasError());
            QCOMPARE(ours.takeDocument(), expected);
        }
    }

    void charactersAreWrittenOrAnError_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("strict");
        QTest::addColumn<QByteArray>("lenient");
        const auto row = [](const char *name, const QString &text, const char *strict, const char *lenient) {
            QTest::newRow(name) << text << QByteArray(strict) << QByteArray(lenient);
        };
        row("empty", QString(), "", "");
        row("markup", u"<a href=\"b\">'&'"_s, "&lt;a href=&quot;b&quot;&gt;'&amp;'",
            "&lt;a href=&quot;b&quot;&gt;'&amp;'");
        row("white space", u" \t\n\r "_s, " \t\n&#13; ", " \t\n&#13; ");
        row("two, three and four bytes", u"é空𝄞"_s, "é空𝄞", "é空𝄞");
        row("escape", u"a\x1b"_s, "error", "a<byte value=\"x1b\"/>");
        row("U+FFFF", QString(QChar(0xffff)), "error", "<byte value=\"xffff\"/>");
        row("high surrogate at the end", QString(QChar(0xd834)), "error", "<byte value=\"xd834\"/>");
        row("low surrogate first", QString(QChar(0xdd1e)) + u'a', "error", "<byte value=\"xdd1e\"/>a");
        row("NUL", QString(QChar(u'\0')), "error", "error");
    }

    void charactersAreWrittenOrAnError()
    {
        QFETCH(const QString, text);
        QTEST(elementWith(text, XmlWriter::Unrepresentable::Error), "strict");
        QTEST(elementWith(text, XmlWriter::Unrepresentable::ByteElement), "lenient");
    }

    void longTextsOfReferencesFit()
    {
        const QString text(100'000, u'"');
        QCOMPARE(elementWith(text, XmlWriter::Unrepresentable::Error),
                 QByteArray("&quot;").repeated(100'000));
    }
};

NVX_GUILESS_TEST(tst_xml_writer)
#include "tst_xml_writer.moc"
