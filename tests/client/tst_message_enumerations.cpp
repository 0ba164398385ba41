#include "clt_message_enumerations.h"
#include "support/recorded_assertions.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Clt::Answer;
using Clt::Answers;
using Clt::MessageState;
using Clt::Severity;

namespace {

const QStringList oneFailure{u"false in clt_message"_s};

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
        QTest::newRow("0") << 0 << u"Information"_s;
        QTest::newRow("1") << 1 << u"Warning"_s;
        QTest::newRow("2") << 2 << u"Critical"_s;
        QTest::newRow("3") << 3 << u"Status"_s;
        QTest::newRow("4") << 4 << u"Question"_s;
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
        QCOMPARE(Clt::severityToText(static_cast<Severity>(value)), u"Unknown"_s);
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
        QTest::newRow("0") << 0 << u"InSync"_s;
        QTest::newRow("1") << 1 << u"New"_s;
        QTest::newRow("2") << 2 << u"Obsolete"_s;
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
        QCOMPARE(Clt::stateToText(static_cast<MessageState>(3)), u"Unknown"_s);
        QCOMPARE(Clt::stateToText(static_cast<MessageState>(-1)), u"Unknown"_s);
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
        QTest::newRow("NoAnswer") << 0u << u"NoAnswer"_s;
        QTest::newRow("Ok") << 0x400u << u"Ok"_s;
        QTest::newRow("Yes") << 0x4000u << u"Yes"_s;
        QTest::newRow("No") << 0x10000u << u"No"_s;
        QTest::newRow("Abort") << 0x40000u << u"Abort"_s;
        QTest::newRow("Cancel") << 0x400000u << u"Cancel"_s;
        QTest::newRow("Discard") << 0x800000u << u"Discard"_s;
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
        QCOMPARE(Clt::answerToText(static_cast<Answer>(value)), u"Unknown"_s);
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
        QTest::newRow("Ok and No") << (0x400u | 0x10000u) << u"Ok, No"_s;
        QTest::newRow("all") << 0xC54400u << u"Ok, Yes, No, Abort, Cancel, Discard"_s;
        QTest::newRow("Discard and Abort") << 0x840000u << u"Abort, Discard"_s;
        QTest::newRow("flags that are not answers are skipped") << 0x401u << u"Ok"_s;
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

    void namesAreReadAsASet_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<quint32>("set");
        QTest::addColumn<int>("failed");
        QTest::newRow("one") << u"Ok"_s << 0x400u << 0;
        QTest::newRow("Yes and No") << u"Yes, No"_s << 0x14000u << 0;
        QTest::newRow("any order") << u"No, Yes"_s << 0x14000u << 0;
        QTest::newRow("twice the same") << u"No, No"_s << 0x10000u << 0;
        QTest::newRow("NoAnswer has no effect") << u"NoAnswer, Ok"_s << 0x400u << 0;
        QTest::newRow("the empty text is one unknown name") << QString() << 0u << 1;
        QTest::newRow("an unknown name is skipped") << u"Yes, Maybe, No"_s << 0x14000u << 1;
        QTest::newRow("an empty part is an unknown name") << u"Yes, , No"_s << 0x14000u << 1;
        QTest::newRow("a comma without a blank is not a separator") << u"Yes,No"_s << 0u << 1;
        QTest::newRow("Unknown is not a name") << u"Unknown"_s << 0u << 1;
    }

    void namesAreReadAsASet()
    {
        QFETCH(const QString, text);
        QFETCH(const quint32, set);
        QFETCH(const int, failed);
        const RecordedAssertions recorded;
        QCOMPARE(static_cast<quint32>(Clt::textToAnswers(text).toInt()), set);
        QCOMPARE(recorded.list(), failures(failed));
    }

    void prefixesInAnswerExpressionsAreDropped_data()
    {
        QTest::addColumn<QString>("expression");
        QTest::addColumn<QString>("text");
        QTest::newRow("with a class") << u"QMessageBox::Yes|QMessageBox::No"_s << u"Yes, No"_s;
        QTest::newRow("blanks around the bar") << u"Yes | No"_s << u"Yes, No"_s;
        QTest::newRow("tab and line feed") << u"\tYes\n|\nNo "_s << u"Yes, No"_s;
        QTest::newRow("two prefixes") << u"Clt::Answer::Yes"_s << u"Yes"_s;
        QTest::newRow("an empty prefix") << u"::Yes"_s << u"Yes"_s;
        QTest::newRow("a prefix and no name") << u"Clt::"_s << QString();
        QTest::newRow("blanks inside are preserved") << u"Clt:: Yes"_s << u" Yes"_s;
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("an empty part") << u"Yes||No"_s << u"Yes, , No"_s;
        QTest::newRow("unknown names are accepted") << u"X::Maybe|No"_s << u"Maybe, No"_s;
    }

    void prefixesInAnswerExpressionsAreDropped()
    {
        QFETCH(const QString, expression);
        QFETCH(const QString, text);
        QCOMPARE(Clt::answerExpressionToText(expression), text);
    }

    void questionsShowTheirAnswers_data()
    {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("shown");
        QTest::newRow("with a question mark") << u"Save?"_s << u"Save? Yes, No; No"_s;
        QTest::newRow("without a question mark") << u"Save"_s << u"Save? Yes, No; No"_s;
        QTest::newRow("a blank after the mark") << u"Save? "_s << u"Save? ? Yes, No; No"_s;
        QTest::newRow("a question mark of another script") << u"保存？"_s << u"保存？? Yes, No; No"_s;
        QTest::newRow("no text") << QString() << u"? Yes, No; No"_s;
        QTest::newRow("with a placeholder") << u"Save %1?"_s << u"Save %1? Yes, No; No"_s;
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
        QCOMPARE(Clt::questionDisplayText(u"Save?"_s, Answers(), Answer::NoAnswer), u"Save? ; NoAnswer"_s);
        QCOMPARE(Clt::questionDisplayText(u"Save?"_s, u"", u"NoAnswer"), u"Save? ; NoAnswer"_s);
    }

private:
    static void unknownTexts()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("Unknown") << u"Unknown"_s;
        QTest::newRow("small letters") << u"warning"_s;
        QTest::newRow("blanks around") << u" New "_s;
        QTest::newRow("a number") << u"1"_s;
    }
};

NVX_GUILESS_TEST(tst_message_enumerations)
#include "tst_message_enumerations.moc"
