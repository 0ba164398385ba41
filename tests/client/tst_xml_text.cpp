#include "clt_xml_text.h"
#include "support/test_class.h"

#include <QTest>
#include <QXmlStreamWriter>

class tst_xml_text : public QObject
{
    Q_OBJECT

private slots:
    void xmlCarriesMostCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("carried");
        const auto row = [](const char *name, const QString &text, bool carried) {
            QTest::newRow(name) << text << carried;
        };
        row("no text", QString(), true);
        row("white space", QStringLiteral("\t\n\r "), true);
        row("the zero character", QString(QChar(0)), false);
        row("before the tab", QStringLiteral("\x08"), false);
        row("vertical tab", QStringLiteral("\v"), false);
        row("form feed", QStringLiteral("\f"), false);
        row("behind the carriage return", QStringLiteral("\x0e"), false);
        row("before the blank", QStringLiteral("\x1f"), false);
        row("delete", QStringLiteral("\x7f"), true);
        row("before the surrogates", QString(QChar(0xD7FF)), true);
        row("a pair", QStringLiteral("a\U0001F600b"), true);
        row("the last pair", QStringLiteral("\U0010FFFD"), true);
        row("behind the surrogates", QString(QChar(0xE000)), true);
        row("a first half at the end", QStringLiteral("a") + QChar(0xD83D), false);
        row("a first half before a letter", QString(QChar(0xD83D)) + QLatin1Char('a'), false);
        row("two first halves", QString(2, QChar(0xD83D)), false);
        row("a second half", QString(QChar(0xDE00)), false);
        row("two second halves", QString(2, QChar(0xDE00)), false);
        row("the last that counts", QString(QChar(0xFFFD)), true);
        row("U+FFFE", QString(QChar(0xFFFE)), false);
        row("U+FFFF", QString(QChar(0xFFFF)), false);
        row("the first character alone is wrong", QStringLiteral("\x01 text"), false);
    }

    void xmlCarriesMostCharacters()
    {
        QFETCH(const QString, text);
        QTEST(Clt::isXmlText(text), "carried");
    }

    void aPairThatIsCutIsNotCarried()
    {
        const QString pair = QStringLiteral("\U0001F600");
        QVERIFY(Clt::isXmlText(pair));
        QVERIFY(!Clt::isXmlText(QStringView(pair).first(1)));
    }

    void carriageReturnsAreWrittenAsReferences_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("no text") << QString() << QByteArray("<a></a>");
        QTest::newRow("none") << QStringLiteral("x\ny") << QByteArray("<a>x\ny</a>");
        QTest::newRow("at the start") << QStringLiteral("\rx") << QByteArray("<a>&#13;x</a>");
        QTest::newRow("at the end") << QStringLiteral("x\r") << QByteArray("<a>x&#13;</a>");
        QTest::newRow("several") << QStringLiteral("x\r\ny\r\rz")
                                 << QByteArray("<a>x&#13;\ny&#13;&#13;z</a>");
        QTest::newRow("characters of XML")
            << QStringLiteral("<&>\r") << QByteArray("<a>&lt;&amp;&gt;&#13;</a>");
    }

    void carriageReturnsAreWrittenAsReferences()
    {
        QFETCH(const QString, text);
        QByteArray written;
        QXmlStreamWriter xml(&written);
        Clt::writeXmlTextElement(xml, QStringLiteral("a"), text);
        QTEST(written, "written");
    }
};

NVX_GUILESS_TEST(tst_xml_text)
#include "tst_xml_text.moc"
