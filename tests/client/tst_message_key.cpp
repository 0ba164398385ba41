#include "clt_message_key.h"
#include "support/test_class.h"

#include <QHash>
#include <QTest>

using Clt::MessageKey;

namespace {

/// A key as it is shown: process, context, tag.
MessageKey keyOf(const char *process, const char *context, const char *tag)
{
    return {QString::fromUtf8(tag), QString::fromUtf8(context), QString::fromUtf8(process)};
}

} // namespace

class tst_message_key : public QObject
{
    Q_OBJECT

private slots:
    void fieldsAreDeclaredTagFirst()
    {
        const MessageKey key{QStringLiteral("t"), QStringLiteral("c"), QStringLiteral("p")};
        QCOMPARE(key.tag, QStringLiteral("t"));
        QCOMPARE(key.context, QStringLiteral("c"));
        QCOMPARE(key.process, QStringLiteral("p"));
    }

    void displayTextShowsProcessContextTag()
    {
        QCOMPARE(keyOf("client", "A::B::c", "TAG").displayText(), QStringLiteral("(client, A::B::c, TAG)"));
    }

    void displayTextOfAnEmptyKeyKeepsTheCommas()
    {
        QCOMPARE(MessageKey().displayText(), QStringLiteral("(, , )"));
    }

    void displayTextTakesPercentSignsAsTheyAre()
    {
        QCOMPARE(keyOf("%2", "%3", "%1").displayText(), QStringLiteral("(%2, %3, %1)"));
    }

    void keysAreEqualWhenAllFieldsAre_data()
    {
        QTest::addColumn<MessageKey>("other");
        QTest::addColumn<bool>("equal");
        QTest::newRow("same") << keyOf("p", "c", "t") << true;
        QTest::newRow("another process") << keyOf("q", "c", "t") << false;
        QTest::newRow("another context") << keyOf("p", "d", "t") << false;
        QTest::newRow("another tag") << keyOf("p", "c", "u") << false;
        QTest::newRow("another case") << keyOf("P", "c", "t") << false;
        QTest::newRow("fields exchanged") << keyOf("t", "c", "p") << false;
    }

    void keysAreEqualWhenAllFieldsAre()
    {
        QFETCH(const MessageKey, other);
        QFETCH(const bool, equal);
        QCOMPARE(keyOf("p", "c", "t") == other, equal);
        QCOMPARE(keyOf("p", "c", "t") != other, !equal);
    }

    void firstFieldThatDiffersDecidesTheOrder_data()
    {
        QTest::addColumn<MessageKey>("before");
        QTest::addColumn<MessageKey>("after");
        QTest::newRow("process before all") << keyOf("A", "z", "z") << keyOf("B", "a", "a");
        QTest::newRow("context before tag") << keyOf("p", "A", "z") << keyOf("p", "B", "a");
        QTest::newRow("tag last") << keyOf("p", "c", "a") << keyOf("p", "c", "b");
        QTest::newRow("capitals first") << keyOf("p", "c", "Z") << keyOf("p", "c", "a");
        QTest::newRow("a prefix first") << keyOf("p", "c", "a") << keyOf("p", "c", "aa");
        QTest::newRow("empty first") << keyOf("p", "c", "") << keyOf("p", "c", "a");
        QTest::newRow("no locale: z before a-umlaut") << keyOf("p", "c", "z") << keyOf("p", "c", "ä");
        // U+1D11E starts with the code unit D834, below FF21.
        QTest::newRow("code units, not code points") << keyOf("p", "c", "𝄞") << keyOf("p", "c", "Ａ");
    }

    void firstFieldThatDiffersDecidesTheOrder()
    {
        QFETCH(const MessageKey, before);
        QFETCH(const MessageKey, after);
        QVERIFY(before < after);
        QVERIFY(!(after < before));
        QVERIFY(!(before < before));
    }

    void hashIsThatOfTheDisplayText_data()
    {
        QTest::addColumn<MessageKey>("key");
        QTest::newRow("plain") << keyOf("client", "A::B::c", "TAG");
        QTest::newRow("empty") << MessageKey();
        QTest::newRow("longer than any usual key")
            << MessageKey{QString(2000, u't'), QString(3000, u'c'), QString(500, u'ä')};
    }

    void hashIsThatOfTheDisplayText()
    {
        QFETCH(const MessageKey, key);
        QCOMPARE(qHash(key), ::qHash(key.displayText()));
        QCOMPARE(qHash(key, 42), ::qHash(key.displayText(), 42));
    }

    void contextIsFullWithThreeParts_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<bool>("full");
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("one part") << QStringLiteral("A") << false;
        QTest::newRow("two parts") << QStringLiteral("A::B") << false;
        QTest::newRow("three parts") << QStringLiteral("A::B::C") << true;
        QTest::newRow("four parts") << QStringLiteral("A::B::C::D") << false;
        QTest::newRow("three empty parts") << QStringLiteral("::::") << true;
        QTest::newRow("empty last part") << QStringLiteral("A::B::") << true;
        QTest::newRow("empty first part") << QStringLiteral("::A::B") << true;
        QTest::newRow("single colons part nothing") << QStringLiteral("A:B:C") << false;
        QTest::newRow("three colons are a separator and a colon") << QStringLiteral("A:::B::C") << true;
    }

    void contextIsFullWithThreeParts()
    {
        QFETCH(const QString, context);
        QFETCH(const bool, full);
        QCOMPARE(MessageKey({QString(), context, QString()}).hasFullContext(), full);
    }

    void shorteningDropsTheFirstOfThreeOrMoreParts_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("shortened");
        QTest::newRow("three parts") << QStringLiteral("A::B::C") << QStringLiteral("B::C");
        QTest::newRow("four parts") << QStringLiteral("A::B::C::D") << QStringLiteral("B::C::D");
        QTest::newRow("two parts stay") << QStringLiteral("Y::Z") << QStringLiteral("Y::Z");
        QTest::newRow("one part stays") << QStringLiteral("Z") << QStringLiteral("Z");
        QTest::newRow("empty stays") << QString() << QString();
        QTest::newRow("empty first part") << QStringLiteral("::B::C") << QStringLiteral("B::C");
        QTest::newRow("empty other parts") << QStringLiteral("A::::") << QStringLiteral("::");
        QTest::newRow("third colon goes with the rest")
            << QStringLiteral("A:::B::C") << QStringLiteral(":B::C");
    }

    void shorteningDropsTheFirstOfThreeOrMoreParts()
    {
        QFETCH(const QString, context);
        QFETCH(const QString, shortened);
        const MessageKey key =
            MessageKey{QStringLiteral("t"), context, QStringLiteral("p")}.withShortenedContext();
        QCOMPARE(key.context, shortened);
        QCOMPARE(key.tag, QStringLiteral("t"));
        QCOMPARE(key.process, QStringLiteral("p"));
    }
};

NVX_GUILESS_TEST(tst_message_key)
#include "tst_message_key.moc"
