#include "clt_xml_text.h"
#include "support/test_class.h"

#include <QTest>
#include <QXmlStreamWriter>

using namespace Qt::Literals::StringLiterals;

class tst_xml_text : public QObject
{
    Q_OBJECT

private slots:
    void xmlRepresentsMostCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("representable");
        const auto row = [](const char *name, const QString &text, bool representable) {
            QTest::newRow(name) << text << representable;
        };
        row("empty", QString(), true);
        row("white space", u"\t\n\r "_s, true);
        row("the zero character", QString(QChar(0)), false);
        row("before the tab", u"\x08"_s, false);
        row("vertical tab", u"\v"_s, false);
        row("form feed", u"\f"_s, false);
        row("after the carriage return", u"\x0e"_s, false);
        row("before the blank", u"\x1f"_s, false);
        row("delete", u"\x7f"_s, true);
        row("before the surrogates", QString(QChar(0xD7FF)), true);
        row("a pair", u"a\U0001F600b"_s, true);
        row("the last pair", u"\U0010FFFD"_s, true);
        row("after the surrogates", QString(QChar(0xE000)), true);
        row("a high surrogate at the end", u"a"_s + QChar(0xD83D), false);
        row("a high surrogate before a letter", QString(QChar(0xD83D)) + u'a', false);
        row("two high surrogates", QString(2, QChar(0xD83D)), false);
        row("a low surrogate", QString(QChar(0xDE00)), false);
        row("two low surrogates", QString(2, QChar(0xDE00)), false);
        row("the last one of 16 bits", QString(QChar(0xFFFD)), true);
        row("U+FFFE", QString(QChar(0xFFFE)), false);
        row("U+FFFF", QString(QChar(0xFFFF)), false);
        row("only the first character is invalid", u"\x01 text"_s, false);
    }

    void xmlRepresentsMostCharacters()
    {
        QFETCH(const QString, text);
        QTEST(Clt::isXmlText(text), "representable");
    }

    void halfASurrogatePairIsNotRepresentable()
    {
        const QString pair = u"\U0001F600"_s;
        QVERIFY(Clt::isXmlText(pair));
        QVERIFY(!Clt::isXmlText(QStringView(pair).first(1)));
    }

    void carriageReturnsAreWrittenAsReferences_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("empty") << QString() << QByteArray("<a></a>");
        QTest::newRow("none") << u"x\ny"_s << QByteArray("<a>x\ny</a>");
        QTest::newRow("at the start") << u"\rx"_s << QByteArray("<a>&#13;x</a>");
        QTest::newRow("at the end") << u"x\r"_s << QByteArray("<a>x&#13;</a>");
        QTest::newRow("several") << u"x\r\ny\r\rz"_s << QByteArray("<a>x&#13;\ny&#13;&#13;z</a>");
        QTest::newRow("markup characters") << u"<&>\r"_s << QByteArray("<a>&lt;&amp;&gt;&#13;</a>");
    }

    void carriageReturnsAreWrittenAsReferences()
    {
        QFETCH(const QString, text);
        QByteArray written;
        QXmlStreamWriter xml(&written);
        xml.writeStartElement(u"a"_s);
        Clt::writeXmlCharacters(xml, text);
        xml.writeEndElement();
        QTEST(written, "written");
    }
};

NVX_GUILESS_TEST(tst_xml_text)
#include "tst_xml_text.moc"
