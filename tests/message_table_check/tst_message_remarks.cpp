#include "message_checks/message_remarks.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Checks::Remarks;
using Checks::Rule;
using Clt::Severity;

namespace {

/// The remarks as "RULE: TEXT", joined by "; ".
QString shown(const Remarks &remarks)
{
    QStringList texts;
    for (const Checks::Remark &remark : remarks)
        texts.append(u"%1: %2"_s.arg(Checks::ruleName(remark.rule), remark.text()));
    return texts.join(u"; "_s);
}

Clt::Message messageOf(Severity severity, const QString &title, const QString &text, const QString &action)
{
    Clt::Message message;
    message.setKey({u"Tag"_s, u"Flow::Solver"_s, u"client"_s});
    message.setSeverity(severity);
    message.setTitle(title);
    message.setText(text);
    message.setAction(action);
    return message;
}

} // namespace

class tst_message_remarks : public QObject
{
    Q_OBJECT

private slots:
    void everyRuleIsFoundByItsName()
    {
        QVERIFY(Checks::allRules().size() >= 11);
        for (const Rule rule : Checks::allRules()) {
            QCOMPARE(Checks::ruleNamed(Checks::ruleName(rule)), std::optional(rule));
            QVERIFY(!Checks::ruleDescription(rule).isEmpty());
        }
        QVERIFY(!Checks::ruleNamed(u"none"));
    }

    void messageIsChecked_data()
    {
        QTest::addColumn<Severity>("severity");
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, Severity severity, const QStringList &fields,
                            const QString &expected = QString()) {
            QTest::newRow(name) << severity << fields << expected;
        };
        row("complete critical message", Severity::Critical, {u"Title"_s, u"Text %1."_s, u"Act on %2."_s});
        row("complete question", Severity::Question, {u"Title"_s, u"Really?"_s, QString()});
        row("complete warning", Severity::Warning, {QString(), u"%2 of %1"_s, QString()});
        row("empty critical message", Severity::Critical, {QString(), QString(), QString()},
            u"incomplete: Title: missing; incomplete: Text: missing; incomplete: Action: missing"_s);
        row("question without a title", Severity::Question, {QString(), u"Really?"_s, QString()},
            u"incomplete: Title: missing"_s);
        row("status without a text", Severity::Status, {QString(), QString(), QString()},
            u"incomplete: Text: missing"_s);
        row("title and action of a warning", Severity::Warning, {u"T"_s, u"Text"_s, u"A"_s},
            u"unsaved: Title: not saved with this severity; unsaved: Action: not saved with this severity"_s);
        row("letter outside ASCII", Severity::Warning, {QString(), u"Gr\u00f6\u00dfe"_s, QString()},
            u"look-up: Text: no translation is found, because \u00f6 is not ASCII"_s);
        row("first character outside ASCII", Severity::Warning, {QString(), u"a"_s + QChar(0x80), QString()},
            u"look-up: Text: no translation is found, because U+0080 is not ASCII"_s);
        row("surrogate pair", Severity::Warning, {QString(), u"a\U0001F600"_s, QString()},
            u"look-up: Text: no translation is found, because \U0001F600 is not ASCII"_s);
        row("control character", Severity::Warning, {QString(), u"a\u001bb"_s, QString()},
            u"character: Text: the file cannot store the character U+001B"_s);
        row("blanks at the ends", Severity::Warning, {QString(), u" a\n"_s, QString()},
            u"blank: Text: begins with a blank; blank: Text: ends with a blank"_s);
        row("skipped place", Severity::Warning, {QString(), u"%1 and %3"_s, QString()},
            u"place: Text: %3 is used, but %2 is not"_s);
        row("skipped first place", Severity::Warning, {QString(), u"%2"_s, QString()},
            u"place: Text: %2 is used, but %1 is not"_s);
        row("place skipped by text and action", Severity::Critical, {u"T"_s, u"%1"_s, u"%3"_s},
            u"place: Action: %3 is used, but %2 is not"_s);
        row("action fills the gap of the text", Severity::Critical, {u"T"_s, u"%1 and %3"_s, u"%2"_s});
        row("place in a title", Severity::Question, {u"About %1"_s, u"%1?"_s, QString()},
            u"place: Title: %1 is not filled in"_s);
        row("place beyond nine", Severity::Warning, {QString(), u"%1%2%3%4%5%6%7%8%9%10"_s, QString()},
            u"place: Text: %10 is not filled in"_s);
        row("place zero", Severity::Warning, {QString(), u"%0 %1"_s, QString()},
            u"place: Text: %0 is not filled in"_s);
        row("percent sign", Severity::Warning, {QString(), u"100 % of %1"_s, QString()});
    }

    void messageIsChecked()
    {
        QFETCH(const Severity, severity);
        QFETCH(const QStringList, fields);
        const Clt::Message message = messageOf(severity, fields.at(0), fields.at(1), fields.at(2));
        QTEST(shown(Checks::remarksOn(message)), "expected");
    }

    void contextOutsideAsciiIsFound()
    {
        Clt::Message message = messageOf(Severity::Warning, QString(), u"Text"_s, QString());
        message.setKey({u"Tag"_s, u"Str\u00f6mung::run"_s, u"client"_s});
        QCOMPARE(shown(Checks::remarksOn(message)),
                 u"look-up: Context: no translation is found, because \u00f6 is not ASCII"_s);
    }

    void translationIsCompared_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("translation");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QString &source, const QString &translation,
                            const QString &expected = QString()) {
            QTest::newRow(name) << source << translation << expected;
        };
        row("same places in another order", u"%1 of %2"_s, u"%2: %1"_s);
        row("place repeated", u"%1"_s, u"%1 %1"_s);
        row("place in the form of the language", u"%1"_s, u"%L1"_s);
        row("place missing", u"%1 of %2"_s, u"%1"_s, u"place: %2 is missing"_s);
        row("place added", u"%1"_s, u"%1 %3"_s, u"place: the source has no %3"_s);
        row("accelerator on another letter", u"&Open"_s, u"\u00d6&ffnen"_s);
        row("accelerator in parentheses", u"&File"_s, u"\u30d5\u30a1\u30a4\u30eb(&F)"_s);
        row("accelerator missing", u"&Open"_s, u"\u00d6ffnen"_s,
            u"accelerator: the accelerator is missing"_s);
        row("accelerator added", u"Open"_s, u"&\u00d6ffnen"_s,
            u"accelerator: the source has no accelerator"_s);
        row("ampersands that are no accelerators", u"A & B && C"_s, u"A und B"_s);
        row("ampersand at the end", u"A&"_s, u"A"_s);
        row("same blanks", u" a: "_s, u" b: "_s);
        row("other blanks at the begin", u"a"_s, u" b"_s,
            u"blank: begins with different blanks than the source"_s);
        row("another blank before the same one at the end", u"a \n"_s, u"b\n"_s,
            u"blank: ends with different blanks than the source"_s);
        row("other blanks at the end", u"a "_s, u"b\n"_s,
            u"blank: ends with different blanks than the source"_s);
    }

    void translationIsCompared()
    {
        QFETCH(const QString, source);
        QFETCH(const QString, translation);
        QTEST(shown(Checks::remarksOnTranslation(source, translation)), "expected");
    }
};

NVX_GUILESS_TEST(tst_message_remarks)
#include "tst_message_remarks.moc"
