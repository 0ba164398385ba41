#include "clt_message_enumerations.h"
#include "support/recorded_assertions.h"
#include "support/test_class.h"

#include <QTest>

using Clt::Answer;
using Clt::Answers;
using Clt::MessageState;
using Clt::Severity;

namespace {

const QStringList oneFailure{QStringLiteral("false in clt_message")};

QStringList failures(int count)
{
    return QStringList(count, oneFailure.first());
}

} // namespace

class tst_message_enumerations : public QObject
{
    Q_OBJECT

private slots:
    void severitiesHaveNames_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::newRow("0") << 0 << QStringLiteral("Information");
        QTest::newRow("1") << 1 << QStringLiteral("Warning");
        QTest::newRow("2") << 2 << QStringLiteral("Critical");
        QTest::newRow("3") << 3 << QStringLiteral("Status");
        QTest::newRow("4") << 4 << QStringLiteral("Question");
    }

    void severitiesHaveNames()
    {
        QFETCH(const int, value);
        QFETCH(const QString, name);
        const RecordedAssertions failed;
        QCOMPARE(Clt::severityToText(static_cast<Severity>(value)), name);
        QCOMPARE(static_cast<int>(Clt::textToSeverity(name)), value);
        QCOMPARE(failed.list(), QStringList());
    }

    void otherSeveritiesAreUnknown_data()
    {
        QTest::addColumn<int>("value");
        QTest::newRow("-1") << -1;
        QTest::newRow("5") << 5;
        QTest::newRow("the largest") << std::numeric_limits<int>::max();
    }

    void otherSeveritiesAreUnknown()
    {
        QFETCH(const int, value);
        const RecordedAssertions failed;
        QCOMPARE(Clt::severityToText(static_cast<Severity>(value)), QStringLiteral("Unknown"));
        QCOMPARE(failed.list(), oneFailure);
    }

    void otherTextsReadAsInformation_data() { unknownTexts(); }

    void otherTextsReadAsInformation()
    {
        QFETCH(const QString, text);
        const RecordedAssertions failed;
        QCOMPARE(Clt::textToSeverity(text), Severity::Information);
        QCOMPARE(failed.list(), oneFailure);
    }

    void statesHaveNames_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::newRow("0") << 0 << QStringLiteral("InSync");
        QTest::newRow("1") << 1 << QStringLiteral("New");
        QTest::newRow("2") << 2 << QStringLiteral("Obsolete");
    }

    void statesHaveNames()
    {
        QFETCH(const int, value);
        QFETCH(const QString, name);
        const RecordedAssertions failed;
        QCOMPARE(Clt::stateToText(static_cast<MessageState>(value)), name);
        QCOMPARE(static_cast<int>(Clt::textToState(name)), value);
        QCOMPARE(failed.list(), QStringList());
    }

    void otherStatesAreUnknown()
    {
        const RecordedAssertions failed;
        QCOMPARE(Clt::stateToText(static_cast<MessageState>(3)), QStringLiteral("Unknown"));
        QCOMPARE(Clt::stateToText(static_cast<MessageState>(-1)), QStringLiteral("Unknown"));
        QCOMPARE(failed.list(), failures(2));
    }

    void otherTextsReadAsInSync_data() { unknownTexts(); }

    void otherTextsReadAsInSync()
    {
        QFETCH(const QString, text);
        const RecordedAssertions failed;
        QCOMPARE(Clt::textToState(text), MessageState::InSync);
        QCOMPARE(failed.list(), oneFailure);
    }

    void answersHaveNamesAndMessageBoxValues_data()
    {
        QTest::addColumn<quint32>("value");
        QTest::addColumn<QString>("name");
        QTest::newRow("NoAnswer") << 0u << QStringLiteral("NoAnswer");
        QTest::newRow("Ok") << 0x400u << QStringLiteral("Ok");
        QTest::newRow("Yes") << 0x4000u << QStringLiteral("Yes");
        QTest::newRow("No") << 0x10000u << QStringLiteral("No");
        QTest::newRow("Abort") << 0x40000u << QStringLiteral("Abort");
        QTest::newRow("Cancel") << 0x400000u << QStringLiteral("Cancel");
        QTest::newRow("Discard") << 0x800000u << QStringLiteral("Discard");
    }

    void answersHaveNamesAndMessageBoxValues()
    {
        QFETCH(const quint32, value);
        QFETCH(const QString, name);
        const RecordedAssertions failed;
        QCOMPARE(Clt::answerToText(static_cast<Answer>(value)), name);
        QCOMPARE(static_cast<quint32>(Clt::textToAnswer(name)), value);
        QCOMPARE(failed.list(), QStringList());
    }

    void otherAnswersAreUnknown_data()
    {
        QTest::addColumn<quint32>("value");
        QTest::newRow("a set of two") << 0x4400u;
        QTest::newRow("a button that messages do not offer") << 0x800u;
        QTest::newRow("1") << 1u;
    }

    void otherAnswersAreUnknown()
    {
        QFETCH(const quint32, value);
        const RecordedAssertions failed;
        QCOMPARE(Clt::answerToText(static_cast<Answer>(value)), QStringLiteral("Unknown"));
        QCOMPARE(failed.list(), oneFailure);
    }

    void otherTextsReadAsNoAnswer_data() { unknownTexts(); }

    void otherTextsReadAsNoAnswer()
    {
        QFETCH(const QString, text);
        const RecordedAssertions failed;
        QCOMPARE(Clt::textToAnswer(text), Answer::NoAnswer);
        QCOMPARE(failed.list(), oneFailure);
    }

    void setsOfAnswersAreNamedInOneOrder_data()
    {
        QTest::addColumn<quint32>("set");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << 0u << QString();
        QTest::newRow("Ok and No") << (0x400u | 0x10000u) << QStringLiteral("Ok, No");
        QTest::newRow("all") << 0xC54400u << QStringLiteral("Ok, Yes, No, Abort, Cancel, Discard");
        QTest::newRow("Discard and Abort") << 0x840000u << QStringLiteral("Abort, Discard");
        QTest::newRow("flags that are no answers are passed over") << 0x401u << QStringLiteral("Ok");
        QTest::newRow("only such flags") << 0x1u << QString();
    }

    void setsOfAnswersAreNamedInOneOrder()
    {
        QFETCH(const quint32, set);
        QFETCH(const QString, text);
        const RecordedAssertions failed;
        QCOMPARE(Clt::answersToText(Answers(QFlag(set))), text);
        QCOMPARE(failed.list(), QStringList());
    }

    void namesReadAsASet_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<quint32>("set");
        QTest::addColumn<int>("failed");
        QTest::newRow("one") << QStringLiteral("Ok") << 0x400u << 0;
        QTest::newRow("Yes and No") << QStringLiteral("Yes, No") << 0x14000u << 0;
        QTest::newRow("any order") << QStringLiteral("No, Yes") << 0x14000u << 0;
        QTest::newRow("twice the same") << QStringLiteral("No, No") << 0x10000u << 0;
        QTest::newRow("NoAnswer adds nothing") << QStringLiteral("NoAnswer, Ok") << 0x400u << 0;
        QTest::newRow("the empty text is one unknown name") << QString() << 0u << 1;
        QTest::newRow("an unknown name adds nothing") << QStringLiteral("Yes, Maybe, No") << 0x14000u << 1;
        QTest::newRow("an empty part is an unknown name") << QStringLiteral("Yes, , No") << 0x14000u << 1;
        QTest::newRow("a comma alone separates nothing") << QStringLiteral("Yes,No") << 0u << 1;
        QTest::newRow("Unknown is no name") << QStringLiteral("Unknown") << 0u << 1;
    }

    void namesReadAsASet()
    {
        QFETCH(const QString, text);
        QFETCH(const quint32, set);
        QFETCH(const int, failed);
        const RecordedAssertions recorded;
        QCOMPARE(static_cast<quint32>(Clt::textToAnswers(text).toInt()), set);
        QCOMPARE(recorded.list(), failures(failed));
    }

    void answerExpressionsLoseTheirPrefixes_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("text");
        QTest::newRow("with a class")
            << QStringLiteral("QMessageBox::Yes|QMessageBox::No") << QStringLiteral("Yes, No");
        QTest::newRow("blanks around the bar") << QStringLiteral("Yes | No") << QStringLiteral("Yes, No");
        QTest::newRow("tab and line feed") << QStringLiteral("\tYes\n|\nNo ") << QStringLiteral("Yes, No");
        QTest::newRow("two prefixes") << QStringLiteral("Clt::Answer::Yes") << QStringLiteral("Yes");
        QTest::newRow("a prefix without a name") << QStringLiteral("::Yes") << QStringLiteral("Yes");
        QTest::newRow("nothing after the prefix") << QStringLiteral("Clt::") << QString();
        QTest::newRow("blanks inside stay") << QStringLiteral("Clt:: Yes") << QStringLiteral(" Yes");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("an empty part") << QStringLiteral("Yes||No") << QStringLiteral("Yes, , No");
        QTest::newRow("unknown names pass") << QStringLiteral("X::Maybe|No") << QStringLiteral("Maybe, No");
    }

    void answerExpressionsLoseTheirPrefixes()
    {
        QFETCH(const QString, expression);
        QFETCH(const QString, text);
        QCOMPARE(Clt::answerExpressionToText(expression), text);
    }

    void questionsShowTheirAnswers_data()
    {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("shown");
        QTest::newRow("with its mark") << QStringLiteral("Save?") << QStringLiteral("Save? Yes, No; No");
        QTest::newRow("without") << QStringLiteral("Save") << QStringLiteral("Save? Yes, No; No");
        QTest::newRow("a blank after the mark")
            << QStringLiteral("Save? ") << QStringLiteral("Save? ? Yes, No; No");
        QTest::newRow("another script's mark")
            << QStringLiteral("保存？") << QStringLiteral("保存？? Yes, No; No");
        QTest::newRow("no text") << QString() << QStringLiteral("? Yes, No; No");
        QTest::newRow("a placeholder stays")
            << QStringLiteral("Save %1?") << QStringLiteral("Save %1? Yes, No; No");
    }

    void questionsShowTheirAnswers()
    {
        QFETCH(const QString, question);
        QFETCH(const QString, shown);
        QCOMPARE(Clt::questionDisplayText(question, Answer::Yes | Answer::No, Answer::No), shown);
        QCOMPARE(
            Clt::questionDisplayText(question, u"QMessageBox::Yes | QMessageBox::No", u"QMessageBox::No"),
            shown);
    }

    void questionWithoutAnswersKeepsItsSeparators()
    {
        QCOMPARE(Clt::questionDisplayText(QStringLiteral("Save?"), Answers(), Answer::NoAnswer),
                 QStringLiteral("Save? ; NoAnswer"));
        QCOMPARE(Clt::questionDisplayText(QStringLiteral("Save?"), u"", u"NoAnswer"),
                 QStringLiteral("Save? ; NoAnswer"));
    }

private:
    static void unknownTexts()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("Unknown") << QStringLiteral("Unknown");
        QTest::newRow("small letters") << QStringLiteral("warning");
        QTest::newRow("blanks around") << QStringLiteral(" New ");
        QTest::newRow("a number") << QStringLiteral("1");
    }
};

NVX_GUILESS_TEST(tst_message_enumerations)
#include "tst_message_enumerations.moc"
