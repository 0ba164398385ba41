#include "clt_message.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_message_arguments : public QObject
{
    Q_OBJECT

private slots:
    void distinctPlaceholdersAreCounted_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("empty text") << QString() << 0;
        QTest::newRow("no placeholder") << u"No server"_s << 0;
        QTest::newRow("one") << u"Server %1"_s << 1;
        QTest::newRow("two, one of them twice") << u"%1 and %2 and %1"_s << 2;
        QTest::newRow("the same twice") << u"%1%1"_s << 1;
        QTest::newRow("ten is one placeholder") << u"%10"_s << 1;
        QTest::newRow("nine") << u"%9"_s << 1;
        QTest::newRow("ten and one") << u"%10 %1"_s << 2;
        QTest::newRow("zero counts") << u"%0"_s << 1;
        QTest::newRow("a leading zero is a different placeholder") << u"%01 %1"_s << 2;
        QTest::newRow("any number of digits") << u"%12345678901234567890"_s << 1;
        QTest::newRow("only a percent sign") << u"100 %"_s << 0;
        QTest::newRow("percent and letter") << u"%n %L1"_s << 0;
        QTest::newRow("two percents before the digit") << u"%%1"_s << 1;
        QTest::newRow("percent between digits") << u"%1%2%"_s << 2;
        QTest::newRow("digits of other scripts do not count") << u"%١"_s << 0;
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
        const QStringList one{u"a"_s};
        const QStringList two{u"a"_s, u"b"_s};
        QTest::newRow("no arguments") << u"x %1"_s << QStringList() << u"x %1"_s;
        QTest::newRow("too few arguments") << u"%1 %2"_s << one << u"%1 %2"_s;
        QTest::newRow("in order") << u"%1 %2"_s << two << u"a b"_s;
        QTest::newRow("reversed") << u"%2 %1"_s << two << u"b a"_s;
        QTest::newRow("repeated") << u"%1 %1"_s << one << u"a a"_s;
        QTest::newRow("more arguments than placeholders") << u"x %1"_s << two << u"x a"_s;
        QTest::newRow("only the second placeholder") << u"x %2"_s << two << u"x b"_s;
        QTest::newRow("the second placeholder with one argument") << u"x %2"_s << one << u"x %2"_s;
        QTest::newRow("no placeholder") << u"x"_s << two << u"x"_s;
        QTest::newRow("ten contains one") << u"%10"_s << one << u"a"_s;
        QTest::newRow("a placeholder in an argument is filled by a later one")
            << u"%1"_s << QStringList{u"<%2>"_s, u"b"_s} << u"<b>"_s;
        QTest::newRow("an empty argument") << u"[%1]"_s << QStringList{QString()} << u"[]"_s;
        QTest::newRow("zero is the lowest and gets the first argument") << u"%0 %1"_s << two << u"a %1"_s;
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
        QCOMPARE(Clt::applyArguments(u"%1%2%3%4%5%6%7%8%9%10"_s, arguments), u"abcdefghij"_s);
    }
};

NVX_GUILESS_TEST(tst_message_arguments)
#include "tst_message_arguments.moc"
