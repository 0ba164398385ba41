#include "clt_message_key.h"
#include "support/test_class.h"

#include <QHash>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Clt::MessageKey;

namespace {

/// A key from its parts in the order in which they are shown.
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
        const MessageKey key{u"t"_s, u"c"_s, u"p"_s};
        QCOMPARE(key.tag, u"t"_s);
        QCOMPARE(key.context, u"c"_s);
        QCOMPARE(key.process, u"p"_s);
    }

    void displayTextShowsProcessContextTag()
    {
        QCOMPARE(keyOf("client", "A::B::c", "TAG").displayText(), u"(client, A::B::c, TAG)"_s);
    }

    void displayTextOfAnEmptyKeyKeepsTheCommas() { QCOMPARE(MessageKey().displayText(), u"(, , )"_s); }

    void displayTextLeavesPercentSignsUnchanged()
    {
        QCOMPARE(keyOf("%2", "%3", "%1").displayText(), u"(%2, %3, %1)"_s);
    }

    void keysAreEqualWhenAllFieldsAre_data()
    {
        QTest::addColumn<MessageKey>("other");
        QTest::addColumn<bool>("equal");
        QTest::newRow("same") << keyOf("p", "c", "t") << true;
        QTest::newRow("another process") << keyOf("q", "c", "t") << false;
        QTest::newRow("another context") << keyOf("p", "d", "t") << false;
        QTest::newRow("another tag") << keyOf("p", "c", "u") << false;
        QTest::newRow("other capitals") << keyOf("P", "c", "t") << false;
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
        QTest::newRow("independent of the locale: z before a-umlaut")
            << keyOf("p", "c", "z") << keyOf("p", "c", "ä");
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
        QTest::newRow("one part") << u"A"_s << false;
        QTest::newRow("two parts") << u"A::B"_s << false;
        QTest::newRow("three parts") << u"A::B::C"_s << true;
        QTest::newRow("four parts") << u"A::B::C::D"_s << false;
        QTest::newRow("three empty parts") << u"::::"_s << true;
        QTest::newRow("empty last part") << u"A::B::"_s << true;
        QTest::newRow("empty first part") << u"::A::B"_s << true;
        QTest::newRow("single colons are not separators") << u"A:B:C"_s << false;
        QTest::newRow("three colons are a separator and a colon") << u"A:::B::C"_s << true;
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
        QTest::newRow("three parts") << u"A::B::C"_s << u"B::C"_s;
        QTest::newRow("four parts") << u"A::B::C::D"_s << u"B::C::D"_s;
        QTest::newRow("two parts are not shortened") << u"Y::Z"_s << u"Y::Z"_s;
        QTest::newRow("one part is not shortened") << u"Z"_s << u"Z"_s;
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("empty first part") << u"::B::C"_s << u"B::C"_s;
        QTest::newRow("empty other parts") << u"A::::"_s << u"::"_s;
        QTest::newRow("a third colon belongs to the rest") << u"A:::B::C"_s << u":B::C"_s;
    }

    void shorteningDropsTheFirstOfThreeOrMoreParts()
    {
        QFETCH(const QString, context);
        QFETCH(const QString, shortened);
        const MessageKey key = MessageKey{u"t"_s, context, u"p"_s}.withShortenedContext();
        QCOMPARE(key.context, shortened);
        QCOMPARE(key.tag, u"t"_s);
        QCOMPARE(key.process, u"p"_s);
    }
};

NVX_GUILESS_TEST(tst_message_key)
#include "tst_message_key.moc"
