#include "log_summary/report.h"
#include "support/test_class.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using namespace LogSummary;

namespace {

Run run(Verdict verdict)
{
    return {.mode = RunMode::Install,
            .isSilent = true,
            .language = u"ja-JP"_s,
            .started = u"2026-11-21T15:09:47"_s,
            .ended = u"2026-11-21T15:10:15"_s,
            .verdict = verdict,
            .reason = {},
            .failedSteps = {},
            .failedStepCount = 0};
}

Machine failedMachine()
{
    Run failed = run(Verdict::Failed);
    failed.failedSteps = {{.kind = FailedStep::Kind::Program,
                           .number = -2,
                           .text = u"the program could not be started"_s,
                           .step = u"チュートリアル"_s,
                           .command = u"7z.exe x a"_s,
                           .output = {u"one"_s, u"two\u001B[2J"_s},
                           .time = u"2026-11-21T15:09:50"_s},
                          {.kind = FailedStep::Kind::Line, .number = 1, .text = u"Unable to create a"_s}};
    failed.failedStepCount = 3;
    return {.name = u"PC-2"_s, .file = u"reports/PC-2.log"_s, .run = failed};
}

QString textOf(const Machine &machine, ReportFormat format = ReportFormat::Text)
{
    return QString::fromUtf8(machineReport(machine, format, true));
}

} // namespace

class tst_log_report : public QObject
{
    Q_OBJECT

private slots:
    void eachMachineIsOneLine()
    {
        QCOMPARE(textOf({.name = u"PC-1"_s, .file = u"PC-1.log"_s, .run = run(Verdict::Ok)}),
                 u"ok          install    ja-JP  2026-11-21 15:09:47  PC-1\n"_s);
        QCOMPARE(textOf(failedMachine()),
                 u"failed      install    ja-JP  2026-11-21 15:09:47  PC-2  3 failures, first: "
                 "チュートリアル: the program could not be started\n"_s);
        Run waiting = run(Verdict::Waiting);
        waiting.reason = u"a CAD system is running"_s;
        QCOMPARE(textOf({.name = u"PC-3"_s, .file = u"PC-3.log"_s, .run = waiting}),
                 u"waiting     install    ja-JP  2026-11-21 15:09:47  PC-3  a CAD system is running\n"_s);
        QCOMPARE(textOf({.name = u"PC-4"_s, .file = u"PC-4.log"_s, .problem = u"the log is empty"_s}),
                 u"unreadable  -          -      -                    PC-4  the log is empty\n"_s);
    }

    void detailsAreBelowTheLine()
    {
        QCOMPARE(textOf(failedMachine(), ReportFormat::Details).section(u'\n', 1),
                 u"    -2  チュートリアル: the program could not be started\n"
                 "        7z.exe x a\n"
                 "        one\n"
                 "        two\uFFFD[2J\n"
                 "    1  Unable to create a\n"
                 "    and 1 more\n"_s);
    }

    void controlCharactersStayInOneLine()
    {
        const QString text = textOf({.name = u"PC\n5"_s, .file = u"a"_s, .problem = u"a\rb"_s});
        QCOMPARE(text.count(u'\n'), 1);
        QVERIFY(text.contains(u"PC\uFFFD5  a\uFFFDb"_s));
    }

    void jsonHasEveryField()
    {
        const Machine unreadable{.name = u"PC-4"_s, .file = u"PC-4.log"_s, .problem = u"empty"_s};
        const QByteArray report =
            reportStart(ReportFormat::Json) + machineReport(failedMachine(), ReportFormat::Json, true) +
            machineReport(unreadable, ReportFormat::Json, false) + reportEnd(ReportFormat::Json);
        const QJsonDocument document = QJsonDocument::fromJson(report);
        QVERIFY(document.isObject());
        QCOMPARE(document[u"program"], QJsonValue(u"NVXLogSummary"_s));
        const QJsonArray machines = document[u"machines"].toArray();
        QCOMPARE(machines.size(), 2);
        QJsonObject machine = machines.at(0).toObject();
        const QJsonArray failures = machine.take(u"failedSteps"_s).toArray();
        const QJsonObject expected{{u"machine"_s, u"PC-2"_s},
                                   {u"file"_s, u"reports/PC-2.log"_s},
                                   {u"verdict"_s, u"failed"_s},
                                   {u"reason"_s, QJsonValue()},
                                   {u"mode"_s, u"install"_s},
                                   {u"silent"_s, true},
                                   {u"language"_s, u"ja-JP"_s},
                                   {u"started"_s, u"2026-11-21T15:09:47"_s},
                                   {u"ended"_s, u"2026-11-21T15:10:15"_s},
                                   {u"failedStepCount"_s, 3}};
        QCOMPARE(machine, expected);
        const QJsonObject failure{{u"kind"_s, u"program"_s},
                                  {u"number"_s, -2},
                                  {u"text"_s, u"the program could not be started"_s},
                                  {u"step"_s, u"チュートリアル"_s},
                                  {u"command"_s, u"7z.exe x a"_s},
                                  {u"output"_s, QJsonArray{u"one"_s, u"two\u001B[2J"_s}},
                                  {u"time"_s, u"2026-11-21T15:09:50"_s}};
        QCOMPARE(failures.at(0).toObject(), failure);
        QCOMPARE(machines.at(1)[u"verdict"], QJsonValue(u"unreadable"_s));
        QCOMPARE(machines.at(1)[u"reason"], QJsonValue(u"empty"_s));
        QVERIFY(machines.at(1)[u"mode"].isNull());
    }

    void jsonWithoutMachinesIsWellFormed()
    {
        const QByteArray report = reportStart(ReportFormat::Json) + reportEnd(ReportFormat::Json);
        QVERIFY(QJsonDocument::fromJson(report)[u"machines"].isArray());
    }
};

NVX_GUILESS_TEST(tst_log_report)

#include "tst_log_report.moc"
