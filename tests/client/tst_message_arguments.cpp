#include "clt_message_arguments.h"
#include "support/test_class.h"

#include <QTest>

class tst_message_arguments : public QObject
{
    Q_OBJECT

private slots:
    void distinctPlaceholdersAreCounted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("empty text") << QString() << 0;
        QTest::newRow("none") << QStringLiteral("No server") << 0;
        QTest::newRow("one") << QStringLiteral("Server %1") << 1;
        QTest::newRow("one of them twice") << QStringLiteral("%1 and %2 and %1") << 2;
        QTest::newRow("the same twice") << QStringLiteral("%1%1") << 1;
        QTest::newRow("ten is one of its own") << QStringLiteral("%10") << 1;
        QTest::newRow("nine") << QStringLiteral("%9") << 1;
        QTest::newRow("ten and one") << QStringLiteral("%10 %1") << 2;
        QTest::newRow("zero counts") << QStringLiteral("%0") << 1;
        QTest::newRow("leading zero is another text") << QStringLiteral("%01 %1") << 2;
        QTest::newRow("any number of digits") << QStringLiteral("%12345678901234567890") << 1;
        QTest::newRow("percent alone") << QStringLiteral("100 %") << 0;
        QTest::newRow("percent and letter") << QStringLiteral("%n %L1") << 0;
        QTest::newRow("two percents before the digit") << QStringLiteral("%%1") << 1;
        QTest::newRow("percent between digits") << QStringLiteral("%1%2%") << 2;
        QTest::newRow("other scripts' digits are none") << QStringLiteral("%١") << 0;
    }

    void distinctPlaceholdersAreCounted()
    {
        QFETCH(const QString, text);
        QFETCH(const int, count);
        QCOMPARE(Clt::argumentCount(text), count);
    }

    void placeholdersAreFilled_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("filled");
        const QStringList one{QStringLiteral("a")};
        const QStringList two{QStringLiteral("a"), QStringLiteral("b")};
        QTest::newRow("no arguments") << QStringLiteral("x %1") << QStringList() << QStringLiteral("x %1");
        QTest::newRow("too few arguments fill nothing")
            << QStringLiteral("%1 %2") << one << QStringLiteral("%1 %2");
        QTest::newRow("in order") << QStringLiteral("%1 %2") << two << QStringLiteral("a b");
        QTest::newRow("reversed") << QStringLiteral("%2 %1") << two << QStringLiteral("b a");
        QTest::newRow("repeated") << QStringLiteral("%1 %1") << one << QStringLiteral("a a");
        QTest::newRow("more arguments than placeholders")
            << QStringLiteral("x %1") << two << QStringLiteral("x a");
        QTest::newRow("the second argument alone") << QStringLiteral("x %2") << two << QStringLiteral("x b");
        QTest::newRow("the second placeholder with one argument")
            << QStringLiteral("x %2") << one << QStringLiteral("x %2");
        QTest::newRow("no placeholder") << QStringLiteral("x") << two << QStringLiteral("x");
        QTest::newRow("one stands in ten") << QStringLiteral("%10") << one << QStringLiteral("a");
        QTest::newRow("an argument's own placeholder is filled in its turn")
            << QStringLiteral("%1") << QStringList{QStringLiteral("<%2>"), QStringLiteral("b")}
            << QStringLiteral("<b>");
        QTest::newRow("an empty argument")
            << QStringLiteral("[%1]") << QStringList{QString()} << QStringLiteral("[]");
        QTest::newRow("a zero is the lowest and takes the first argument")
            << QStringLiteral("%0 %1") << two << QStringLiteral("a %1");
    }

    void placeholdersAreFilled()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, arguments);
        QFETCH(const QString, filled);
        QCOMPARE(Clt::applyArguments(text, arguments), filled);
    }

    void tenArgumentsFillTenPlaceholders()
    {
        QStringList arguments;
        for (char16_t letter = u'a'; letter <= u'j'; ++letter)
            arguments += QString(QChar(letter));
        QCOMPARE(Clt::applyArguments(QStringLiteral("%1%2%3%4%5%6%7%8%9%10"), arguments),
                 QStringLiteral("abcdefghij"));
    }
};

NVX_GUILESS_TEST(tst_message_arguments)
#include "tst_message_arguments.moc"
