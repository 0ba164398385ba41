#include "message_table_check/arguments.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Checks::Rule;
using Nvx::Util::Result;
using TableCheck::Arguments;

namespace {

Result<Arguments> read(const QString &words)
{
    return TableCheck::readArguments(u"MessageTableCheck "_s.append(words).split(u' ', Qt::SkipEmptyParts));
}

} // namespace

class tst_check_arguments : public QObject
{
    Q_OBJECT

private slots:
    void filesAloneAreCheckedForEverything()
    {
        const Result<Arguments> arguments = read(u"errors.xml client_de.ts"_s);
        QVERIFY(arguments);
        QCOMPARE(arguments->task, Arguments::Task::Check);
        QCOMPARE(arguments->files, (QStringList{u"errors.xml"_s, u"client_de.ts"_s}));
        QCOMPARE(arguments->rules.size(), Checks::allRules().size());
        QCOMPARE(arguments->format, TableCheck::ReportFormat::Text);
        QVERIFY(arguments->reportFile.isEmpty());
        QVERIFY(!arguments->showsStatus);
    }

    void rulesAreChosen()
    {
        const Result<Arguments> only = read(u"--only new,obsolete --only place a.xml"_s);
        QVERIFY(only);
        QCOMPARE(only->rules, (std::set<Rule>{Rule::New, Rule::Obsolete, Rule::Place}));
        const Result<Arguments> without = read(u"--without unfinished a.xml"_s);
        QVERIFY(without);
        QCOMPARE(without->rules.size(), Checks::allRules().size() - 1);
        QVERIFY(!without->rules.contains(Rule::Unfinished));
        const Result<Arguments> both = read(u"--only new,obsolete --without new a.xml"_s);
        QVERIFY(both);
        QCOMPARE(both->rules, std::set<Rule>{Rule::Obsolete});
    }

    void allowancesAreRead()
    {
        const Result<Arguments> arguments = read(u"--allow unfinished=10% --allow new=3 a.xml"_s);
        QVERIFY(arguments);
        QCOMPARE(arguments->allowances.size(), std::size_t(2));
        QCOMPARE(arguments->allowances.at(Rule::Unfinished).number, 10);
        QVERIFY(arguments->allowances.at(Rule::Unfinished).isPercentage);
        QCOMPARE(arguments->allowances.at(Rule::New).number, 3);
        QVERIFY(!arguments->allowances.at(Rule::New).isPercentage);
    }

    void reportIsChosen()
    {
        const Result<Arguments> sarif = read(u"--format sarif -o out.sarif --status a.xml"_s);
        QVERIFY(sarif);
        QCOMPARE(sarif->format, TableCheck::ReportFormat::Sarif);
        QCOMPARE(sarif->reportFile, u"out.sarif"_s);
        QVERIFY(sarif->showsStatus);
        const Result<Arguments> junit = read(u"--format junit --output out.xml a.xml"_s);
        QVERIFY(junit);
        QCOMPARE(junit->format, TableCheck::ReportFormat::JUnit);
        QCOMPARE(junit->reportFile, u"out.xml"_s);
    }

    void wrongArgumentsAreExplained_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const QString &words, const QString &error) {
            QTest::newRow(name) << words << error;
        };
        row("no file", QString(), u"No file is given."_s);
        row("conversion of one file", u"--for-qt6 a.ts"_s, u"A conversion needs two files, IN and OUT."_s);
        row("conversion of three files", u"--from-qt6 a.ts b.ts c.ts"_s,
            u"A conversion needs two files, IN and OUT."_s);
        row("both conversions", u"--for-qt6 --from-qt6 a.ts b.ts"_s,
            u"--for-qt6 and --from-qt6 exclude each other."_s);
        row("unknown option", u"--strict a.xml"_s, u"Unknown option 'strict'."_s);
        row("unknown rule", u"--only new,old a.xml"_s, u"There is no rule 'old'."_s);
        row("unknown rule left out", u"--without old a.xml"_s, u"There is no rule 'old'."_s);
        row("unknown format", u"--format html a.xml"_s, u"There is no format 'html'."_s);
        row("allowance without a limit", u"--allow new a.xml"_s, u"'new' is not RULE=LIMIT."_s);
        row("allowance without a rule", u"--allow =1 a.xml"_s, u"There is no rule ''."_s);
        row("allowance of an unknown rule", u"--allow old=1 a.xml"_s, u"There is no rule 'old'."_s);
        row("allowance that is no number", u"--allow new=few a.xml"_s, u"'few' is not a limit."_s);
        row("negative allowance", u"--allow new=-1 a.xml"_s, u"'-1' is not a limit."_s);
    }

    void wrongArgumentsAreExplained()
    {
        QFETCH(const QString, words);
        const Result<Arguments> arguments = read(words);
        QVERIFY(!arguments);
        QTEST(arguments.error(), "error");
    }

    void conversionTakesTwoFiles()
    {
        const Result<Arguments> there = read(u"--for-qt6 client_de.ts qt6.ts"_s);
        QVERIFY(there);
        QCOMPARE(there->task, Arguments::Task::ConvertForQt6);
        QCOMPARE(there->files, (QStringList{u"client_de.ts"_s, u"qt6.ts"_s}));
        const Result<Arguments> back = read(u"--from-qt6 qt6.ts client_de.ts"_s);
        QVERIFY(back);
        QCOMPARE(back->task, Arguments::Task::TakeBack);
    }

    void helpNeedsNoFile()
    {
        const Result<Arguments> arguments = read(u"--help"_s);
        QVERIFY(arguments);
        QCOMPARE(arguments->task, Arguments::Task::Help);
    }

    void helpListsTheRules()
    {
        const QString help = TableCheck::helpText();
        for (const Rule rule : Checks::allRules())
            QVERIFY(help.contains(u"\n  %1 "_s.arg(Checks::ruleName(rule))));
    }
};

NVX_GUILESS_TEST(tst_check_arguments)
#include "tst_check_arguments.moc"
