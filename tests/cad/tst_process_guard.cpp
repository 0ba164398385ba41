#include "cad/process_guard.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

using Kind = RecordingProcesses::Kind;
using Nvx::Util::BoxAnswer;
using Nvx::Util::BoxKind;

Q_DECLARE_METATYPE(Nvx::Util::BoxAnswer)

namespace {

const QString monitor = u"C:\\Velmora\\NVX 2017\\NVXMonitor.exe"_s;

} // namespace

class tst_process_guard : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_machine = std::make_unique<RecordingMachine>();
        m_reporter = std::make_unique<RecordingReporter>();
        m_state = RunState();
    }

    void theQuestionsNameTheRunningPrograms_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("cad");
        QTest::addColumn<QString>("product");
        QTest::newRow("one") << QStringList(u"A b"_s)
                             << u"A b is running, and should be stopped before the NVX launcher add-in "
                                "can be configured.\n\nClick Yes to continue after the process is "
                                "stopped.\nClick No to continue without stopping the process."_s
                             << u"A b is running, and should be stopped before continuing.\n\nClick Yes "
                                "to continue after the process is stopped.\nClick No to continue "
                                "without stopping the process."_s;
        const QString several = u"Click Yes to continue after the processes are stopped.\nClick No to "
                                "continue without stopping the processes."_s;
        QTest::newRow("two") << QStringList({u"A"_s, u"A"_s})
                             << u"A,A are running, and should be stopped before the NVX launcher add-in "
                                "can be configured.\n\n"_s +
                                    several
                             << u"A,A are running, and should be stopped before continuing.\n\n"_s + several;
        QTest::newRow("three") << QStringList({u"A"_s, u"B"_s, u"C"_s})
                               << u"A,B,C are running, and should be stopped before the NVX launcher "
                                  "add-in can be configured.\n\n"_s +
                                      several
                               << u"A,B,C are running, and should be stopped before continuing.\n\n"_s +
                                      several;
    }

    void theQuestionsNameTheRunningPrograms()
    {
        QFETCH(QStringList, names);
        QTEST(runningCadQuestion(names), "cad");
        QTEST(runningProductQuestion(names), "product");
    }

    void withoutARunningCadSystemThereIsNoQuestion()
    {
        running().add(u"C:\\explorer.exe"_s);
        running().add(monitor);
        QVERIFY(!guardAgainstRunningCad(context()));
        QVERIFY(m_machine->boxes.isEmpty());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theCadQuestionNamesEveryProcessInTheMachinesOrder()
    {
        for (const char *path :
             {"C:\\SW\\sldworks.exe", "C:\\x.exe", "C:\\SW\\SLDWORKS.exe", "C:\\PTC\\xtop.exe"})
            running().add(QString::fromUtf8(path));
        guardAgainstRunningCad(context());
        QCOMPARE(m_machine->boxes.size(), 1);
        QCOMPARE(m_machine->boxes.first().title, u"CAD Launcher Installation"_s);
        QCOMPARE(m_machine->boxes.first().text,
                 runningCadQuestion({u"SolidWorks"_s, u"SolidWorks"_s, u"Wildfire"_s}));
        QVERIFY(m_machine->boxes.first().kind == BoxKind::Question);
    }

    void everyCadProgramHasItsDisplayName_data()
    {
        QTest::addColumn<QString>("displayName");
        QTest::newRow("xtop.exe") << u"Wildfire"_s;
        QTest::newRow("sldworks.exe") << u"SolidWorks"_s;
        QTest::newRow("SpaceClaim.exe") << u"Spaceclaim"_s;
        QTest::newRow("Brevant.exe") << u"Brevant"_s;
        QTest::newRow("SolidDesigner.exe") << u"SolidDesigner"_s;
        QTest::newRow("Edge.exe") << u"SolidEdge"_s;
    }

    void everyCadProgramHasItsDisplayName()
    {
        QFETCH(QString, displayName);
        running().add(u"C:\\cad\\"_s + QString::fromUtf8(QTest::currentDataTag()));
        guardAgainstRunningCad(context());
        QCOMPARE(m_machine->boxes.size(), 1);
        QCOMPARE(m_machine->boxes.first().text, runningCadQuestion({displayName}));
        QCOMPARE(m_reporter->lines, QStringList(u"0 %1 terminated"_s.arg(displayName)));
    }

    void theAnswerToTheCadQuestionDecides_data() { addAnswers(); }

    // The question is asked in silent runs too.
    void theAnswerToTheCadQuestionDecides()
    {
        QFETCH(bool, silent);
        QFETCH(BoxAnswer, answer);
        m_state.silent = silent;
        m_machine->answer = answer;
        running().add(u"C:\\xtop.exe"_s);
        running().add(u"C:\\edge.exe"_s, Kind::EndsMeanwhile);
        running().add(monitor);
        const bool cancelled = guardAgainstRunningCad(context());
        QCOMPARE(m_machine->boxes.size(), 1);
        QTEST(cancelled, "cancelled");
        if (answer == BoxAnswer::Yes) {
            QCOMPARE(running().ended, QStringList(u"C:\\xtop.exe"_s));
            QCOMPARE(m_reporter->lines,
                     QStringList({u"0 Wildfire terminated"_s, u"0 SolidEdge was not terminated"_s}));
        } else {
            QVERIFY(running().ended.isEmpty());
            QVERIFY(m_reporter->lines.isEmpty());
        }
    }

    void aProgramStartedWhileTheQuestionIsOpenIsEndedToo()
    {
        running().add(u"C:\\xtop.exe"_s);
        m_machine->whileAsking = [this] { running().add(u"C:\\brevant.exe"_s); };
        guardAgainstRunningCad(context());
        QCOMPARE(running().ended, QStringList({u"C:\\xtop.exe"_s, u"C:\\brevant.exe"_s}));
        QCOMPARE(m_machine->boxes.size(), 1);
    }

    void aProgramThatEndsWhileTheQuestionIsOpenIsNotLogged()
    {
        running().add(u"C:\\xtop.exe"_s);
        m_machine->whileAsking = [this] { running().list.clear(); };
        guardAgainstRunningCad(context());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theProductGuardLogsHowItWasCalled_data()
    {
        QTest::addColumn<bool>("silent");
        QTest::addColumn<bool>("terminate");
        QTest::addColumn<QString>("line");
        QTest::newRow("asking") << false << false << u"0 CheckForRunningOstrade: silent=off terminate=off"_s;
        QTest::newRow("silent") << true << false << u"0 CheckForRunningOstrade: silent=on terminate=off"_s;
        QTest::newRow("ending") << false << true << u"0 CheckForRunningOstrade: silent=off terminate=on"_s;
        QTest::newRow("both") << true << true << u"0 CheckForRunningOstrade: silent=on terminate=on"_s;
    }

    void theProductGuardLogsHowItWasCalled()
    {
        QFETCH(bool, silent);
        QFETCH(bool, terminate);
        QFETCH(QString, line);
        m_state.silent = silent;
        QVERIFY(!guardAgainstRunningProduct(context(), terminate ? OnMatch::Terminate : OnMatch::List));
        QCOMPARE(m_reporter->lines, QStringList(line));
    }

    void programsOfAnotherReleaseAreIgnored()
    {
        running().add(u"C:\\Velmora\\NVX 2016\\NVXSolver.exe"_s);
        running().add(u"C:\\Velmora\\NVX 2017\\NVXConfig.exe"_s);
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::List));
        QVERIFY(m_machine->boxes.isEmpty());
        QVERIFY(running().ended.isEmpty());
    }

    void aSilentRunEndsTheProductWithoutAQuestion()
    {
        m_state.silent = true;
        running().add(monitor);
        running().add(u"C:\\Velmora\\NVX 2016\\NVXMonitor.exe"_s);
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::List));
        QVERIFY(m_machine->boxes.isEmpty());
        QCOMPARE(running().ended, QStringList(monitor));
        QCOMPARE(m_reporter->lines.last(), u"0 NVX 2017 Job Monitor terminated"_s);
    }

    void onMatchTerminateEndsThemWithoutAQuestion()
    {
        running().add(monitor);
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::Terminate));
        QVERIFY(m_machine->boxes.isEmpty());
        QCOMPARE(running().ended, QStringList(monitor));
    }

    void theProductQuestionNamesTheRunningPrograms()
    {
        for (const char *name : {"nvx.exe", "NVXSolver.exe", "nvxserver.EXE", "NVXMonitor.exe"})
            running().add(u"C:\\NVX 2017\\"_s + QString::fromUtf8(name));
        guardAgainstRunningProduct(context(), OnMatch::List);
        QCOMPARE(m_machine->boxes.size(), 1);
        QCOMPARE(m_machine->boxes.first().title, u"Velmora NVX Installation"_s);
        QCOMPARE(m_machine->boxes.first().text,
                 runningProductQuestion(
                     {u"Velmora NVX"_s, u"NVXSolver"_s, u"NVXServer"_s, u"NVX 2017 Job Monitor"_s}));
        QVERIFY(m_machine->boxes.first().kind == BoxKind::Question);
    }

    void theAnswerToTheProductQuestionDecides_data() { addAnswers(); }

    void theAnswerToTheProductQuestionDecides()
    {
        QFETCH(bool, silent);
        QFETCH(BoxAnswer, answer);
        m_state.silent = silent;
        m_machine->answer = answer;
        running().add(monitor);
        const bool cancelled = guardAgainstRunningProduct(context(), OnMatch::List);
        QCOMPARE(m_machine->boxes.size(), silent ? 0 : 1);
        QCOMPARE(cancelled, !silent && answer == BoxAnswer::Dismissed);
        QCOMPARE(running().ended.size(), silent || answer == BoxAnswer::Yes ? 1 : 0);
    }

private:
    static void addAnswers()
    {
        QTest::addColumn<bool>("silent");
        QTest::addColumn<BoxAnswer>("answer");
        QTest::addColumn<bool>("cancelled");
        QTest::newRow("yes") << false << BoxAnswer::Yes << false;
        QTest::newRow("no") << false << BoxAnswer::No << false;
        QTest::newRow("dismissed") << false << BoxAnswer::Dismissed << true;
        QTest::newRow("silent, yes") << true << BoxAnswer::Yes << false;
        QTest::newRow("silent, no") << true << BoxAnswer::No << false;
        QTest::newRow("silent, dismissed") << true << BoxAnswer::Dismissed << true;
    }

    RecordingProcesses &running() { return m_machine->running; }
    StepContext context() { return {*m_machine, *m_reporter, m_state}; }

    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_process_guard)
#include "tst_process_guard.moc"
