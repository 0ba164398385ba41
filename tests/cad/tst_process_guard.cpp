#include "cad/process_guard.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Kind = RecordingProcesses::Kind;
using Nvx::Util::Answer;
using Nvx::Util::BoxKind;

Q_DECLARE_METATYPE(Nvx::Util::Answer)

namespace {

const char *const monitor = "C:\\Velmora\\NVX 2017\\NVXMonitor.exe";

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

    void theQuestionsNameWhatRuns_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("cad");
        QTest::addColumn<QString>("product");
        QTest::newRow("one") << QStringList(text("A b"))
                             << text("A b is running, and should be stopped before the NVX launcher add-in "
                                     "can be configured.\n\nClick Yes to continue after the process is "
                                     "stopped.\nClick No to continue without stopping the process.")
                             << text("A b is running, and should be stopped before continuing.\n\nClick Yes "
                                     "to continue after the process is stopped.\nClick No to continue "
                                     "without stopping the process.");
        const QString several = text("Click Yes to continue after the processes are stopped.\nClick No to "
                                     "continue without stopping the processes.");
        QTest::newRow("two") << QStringList({text("A"), text("A")})
                             << text("A,A are running, and should be stopped before the NVX launcher add-in "
                                     "can be configured.\n\n") +
                                    several
                             << text("A,A are running, and should be stopped before continuing.\n\n") +
                                    several;
        QTest::newRow("three") << QStringList({text("A"), text("B"), text("C")})
                               << text("A,B,C are running, and should be stopped before the NVX launcher "
                                       "add-in can be configured.\n\n") +
                                      several
                               << text("A,B,C are running, and should be stopped before continuing.\n\n") +
                                      several;
    }

    void theQuestionsNameWhatRuns()
    {
        QFETCH(QStringList, names);
        QTEST(runningCadQuestion(names), "cad");
        QTEST(runningProductQuestion(names), "product");
    }

    void withoutACadSystemNothingIsAsked()
    {
        running().add(text("C:\\explorer.exe"));
        running().add(text(monitor));
        QVERIFY(!guardAgainstRunningCad(context()));
        QVERIFY(m_machine->boxes.isEmpty());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theCadQuestionNamesEveryProcessInTheMachinesOrder()
    {
        for (const char *path :
             {"C:\\SW\\sldworks.exe", "C:\\x.exe", "C:\\SW\\SLDWORKS.exe", "C:\\PTC\\xtop.exe"})
            running().add(text(path));
        guardAgainstRunningCad(context());
        QCOMPARE(m_machine->boxes.size(), 1);
        QCOMPARE(m_machine->boxes.first().title, text("CAD Launcher Installation"));
        QCOMPARE(m_machine->boxes.first().text,
                 runningCadQuestion({text("SolidWorks"), text("SolidWorks"), text("Wildfire")}));
        QVERIFY(m_machine->boxes.first().kind == BoxKind::Question);
    }

    void everyCadSystemHasItsName_data()
    {
        QTest::addColumn<QString>("displayName");
        QTest::newRow("xtop.exe") << text("Wildfire");
        QTest::newRow("sldworks.exe") << text("SolidWorks");
        QTest::newRow("SpaceClaim.exe") << text("Spaceclaim");
        QTest::newRow("Brevant.exe") << text("Brevant");
        QTest::newRow("SolidDesigner.exe") << text("SolidDesigner");
        QTest::newRow("Edge.exe") << text("SolidEdge");
    }

    void everyCadSystemHasItsName()
    {
        QFETCH(QString, displayName);
        running().add(text("C:\\cad\\") + text(QTest::currentDataTag()));
        guardAgainstRunningCad(context());
        QCOMPARE(m_machine->boxes.size(), 1);
        QCOMPARE(m_machine->boxes.first().text, runningCadQuestion({displayName}));
        QCOMPARE(m_reporter->lines, QStringList(text("0 %1 terminated").arg(displayName)));
    }

    void eachAnswerToTheCadQuestion_data() { addAnswers(); }

    // The question is asked in silent runs too.
    void eachAnswerToTheCadQuestion()
    {
        QFETCH(bool, silent);
        QFETCH(Answer, answer);
        m_state.silent = silent;
        m_machine->answer = answer;
        running().add(text("C:\\xtop.exe"));
        running().add(text("C:\\edge.exe"), Kind::EndsMeanwhile);
        running().add(text(monitor));
        const bool cancelled = guardAgainstRunningCad(context());
        QCOMPARE(m_machine->boxes.size(), 1);
        QTEST(cancelled, "cancelled");
        if (answer == Answer::Yes) {
            QCOMPARE(running().ended, QStringList(text("C:\\xtop.exe")));
            QCOMPARE(m_reporter->lines,
                     QStringList({text("0 Wildfire terminated"), text("0 SolidEdge was not terminated")}));
        } else {
            QVERIFY(running().ended.isEmpty());
            QVERIFY(m_reporter->lines.isEmpty());
        }
    }

    void whatStartsWhileTheQuestionIsOpenIsEndedToo()
    {
        running().add(text("C:\\xtop.exe"));
        m_machine->whileAsking = [this] { running().add(text("C:\\brevant.exe")); };
        guardAgainstRunningCad(context());
        QCOMPARE(running().ended, QStringList({text("C:\\xtop.exe"), text("C:\\brevant.exe")}));
        QCOMPARE(m_machine->boxes.size(), 1);
    }

    void whatEndsWhileTheQuestionIsOpenIsNotMentioned()
    {
        running().add(text("C:\\xtop.exe"));
        m_machine->whileAsking = [this] { running().list.clear(); };
        guardAgainstRunningCad(context());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theProductGuardSaysHowItWasCalled_data()
    {
        QTest::addColumn<bool>("silent");
        QTest::addColumn<bool>("terminate");
        QTest::addColumn<QString>("line");
        QTest::newRow("asking") << false << false
                                << text("0 CheckForRunningOstrade: silent=off terminate=off");
        QTest::newRow("silent") << true << false << text("0 CheckForRunningOstrade: silent=on terminate=off");
        QTest::newRow("ending") << false << true << text("0 CheckForRunningOstrade: silent=off terminate=on");
        QTest::newRow("both") << true << true << text("0 CheckForRunningOstrade: silent=on terminate=on");
    }

    void theProductGuardSaysHowItWasCalled()
    {
        QFETCH(bool, silent);
        QFETCH(bool, terminate);
        QFETCH(QString, line);
        m_state.silent = silent;
        QVERIFY(!guardAgainstRunningProduct(context(), terminate ? OnMatch::Terminate : OnMatch::List));
        QCOMPARE(m_reporter->lines, QStringList(line));
    }

    void programsOfAnotherReleaseDoNotCount()
    {
        running().add(text("C:\\Velmora\\NVX 2016\\NVXSolver.exe"));
        running().add(text("C:\\Velmora\\NVX 2017\\NVXConfig.exe"));
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::List));
        QVERIFY(m_machine->boxes.isEmpty());
        QVERIFY(running().ended.isEmpty());
    }

    void aSilentRunEndsTheProductWithoutAQuestion()
    {
        m_state.silent = true;
        running().add(text(monitor));
        running().add(text("C:\\Velmora\\NVX 2016\\NVXMonitor.exe"));
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::List));
        QVERIFY(m_machine->boxes.isEmpty());
        QCOMPARE(running().ended, QStringList(text(monitor)));
        QCOMPARE(m_reporter->lines.last(), text("0 NVX 2017 Job Monitor terminated"));
    }

    void programsToBeEndedAreEndedWithoutAQuestion()
    {
        running().add(text(monitor));
        QVERIFY(!guardAgainstRunningProduct(context(), OnMatch::Terminate));
        QVERIFY(m_machine->boxes.isEmpty());
        QCOMPARE(running().ended, QStringList(text(monitor)));
    }

    void theProductQuestionNamesItsPrograms()
    {
        for (const char *name : {"nvx.exe", "NVXSolver.exe", "nvxserver.EXE", "NVXMonitor.exe"})
            running().add(text("C:\\NVX 2017\\") + text(name));
        guardAgainstRunningProduct(context(), OnMatch::List);
        QCOMPARE(m_machine->boxes.size(), 1);
        QCOMPARE(m_machine->boxes.first().title, text("Velmora NVX Installation"));
        QCOMPARE(m_machine->boxes.first().text,
                 runningProductQuestion({text("Velmora NVX"), text("NVXSolver"), text("NVXServer"),
                                         text("NVX 2017 Job Monitor")}));
        QVERIFY(m_machine->boxes.first().kind == BoxKind::Question);
    }

    void eachAnswerToTheProductQuestion_data() { addAnswers(); }

    void eachAnswerToTheProductQuestion()
    {
        QFETCH(bool, silent);
        QFETCH(Answer, answer);
        m_state.silent = silent;
        m_machine->answer = answer;
        running().add(text(monitor));
        const bool cancelled = guardAgainstRunningProduct(context(), OnMatch::List);
        QCOMPARE(m_machine->boxes.size(), silent ? 0 : 1);
        QCOMPARE(cancelled, !silent && answer == Answer::Dismissed);
        QCOMPARE(running().ended.size(), silent || answer == Answer::Yes ? 1 : 0);
    }

private:
    static void addAnswers()
    {
        QTest::addColumn<bool>("silent");
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<bool>("cancelled");
        QTest::newRow("yes") << false << Answer::Yes << false;
        QTest::newRow("no") << false << Answer::No << false;
        QTest::newRow("dismissed") << false << Answer::Dismissed << true;
        QTest::newRow("silent, yes") << true << Answer::Yes << false;
        QTest::newRow("silent, no") << true << Answer::No << false;
        QTest::newRow("silent, dismissed") << true << Answer::Dismissed << true;
    }

    RecordingProcesses &running() { return m_machine->running; }
    StepContext context() { return {*m_machine, *m_reporter, m_state}; }

    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_process_guard)
#include "tst_process_guard.moc"
