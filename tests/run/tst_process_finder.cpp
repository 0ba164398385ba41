#include "run/process_finder.h"
#include "run/run_state.h"
#include "run/step_context.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Kind = RecordingProcesses::Kind;

class tst_process_finder : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_machine = std::make_unique<RecordingMachine>();
        m_reporter = std::make_unique<RecordingReporter>();
    }

    void everyMatchIsListedInTheMachinesOrder()
    {
        for (const char *path : {"C:\\b\\Beta.exe", "C:\\x\\other.exe", "C:\\a\\alpha.EXE", "D:\\BETA.EXE"})
            running().add(text(path));
        QCOMPARE(find(OnMatch::List), QStringList({text("Second"), text("First"), text("Second")}));
        QVERIFY(running().ended.isEmpty());
        QVERIFY(m_reporter->lines.isEmpty());
    }

    void theWholeFileNameMustMatch()
    {
        for (const char *path : {"C:\\ALPHA.EXE.EXE", "C:\\MYALPHA.EXE", "C:\\ALPHA", "C:\\ALPHA.EXE\\x.exe"})
            running().add(text(path));
        QCOMPARE(find(OnMatch::List), QStringList());
    }

    void theFilterMustOccurInTheUpperCasePath_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<int>("matches");
        QTest::newRow("none") << QString() << 3;
        QTest::newRow("digits") << text("2017") << 1;
        QTest::newRow("upper case") << text("NVX 2016") << 1;
        QTest::newRow("lower case never matches") << text("nvx") << 0;
        QTest::newRow("in the file name too") << text("ALPHA") << 3;
    }

    void theFilterMustOccurInTheUpperCasePath()
    {
        QFETCH(QString, filter);
        for (const char *path : {"C:\\nvx 2017\\alpha.exe", "C:\\nvx 2016\\alpha.exe", "C:\\alpha.exe"})
            running().add(text(path));
        QTEST(int(find(OnMatch::List, filter).size()), "matches");
    }

    void endingEndsEveryMatchLogsEachAndAnswersNothing()
    {
        for (const char *path : {"C:\\alpha.exe", "C:\\other.exe", "C:\\beta.exe"})
            running().add(text(path));
        QCOMPARE(find(OnMatch::Terminate), QStringList());
        QCOMPARE(running().ended, QStringList({text("C:\\alpha.exe"), text("C:\\beta.exe")}));
        QCOMPARE(m_reporter->lines, QStringList({text("0 First terminated"), text("0 Second terminated")}));
    }

    void aProcessThatCannotBeOpenedIsPassedOver()
    {
        running().add(text("C:\\alpha.exe"), Kind::Closed);
        running().add(text("C:\\beta.exe"));
        QCOMPARE(find(OnMatch::List), QStringList(text("Second")));
        find(OnMatch::Terminate);
        QCOMPARE(m_reporter->lines, QStringList(text("0 Second terminated")));
    }

    void aProcessThatEndsBeforeItIsEndedIsLoggedAndTheNextIsEndedAllTheSame()
    {
        running().add(text("C:\\alpha.exe"), Kind::EndsMeanwhile);
        running().add(text("C:\\beta.exe"));
        find(OnMatch::Terminate);
        QCOMPARE(m_reporter->lines,
                 QStringList({text("0 First was not terminated"), text("0 Second terminated")}));
    }

    void aProcessWithoutANameMatchesNothing()
    {
        running().list.append({text("<unknown>"), text("<unknown>")});
        QCOMPARE(find(OnMatch::List), QStringList());
    }

    void processesBeyond1024AreNotSeen()
    {
        for (int i = 0; i < 1023; ++i)
            running().add(text("C:\\other.exe"));
        running().add(text("C:\\alpha.exe"));
        running().add(text("C:\\beta.exe"));
        QCOMPARE(find(OnMatch::List), QStringList(text("First")));
        QCOMPARE(running().limits, QList<int>{1024});
    }

    void aMachineThatTellsNoProcessesHasNone() { QCOMPARE(find(OnMatch::List), QStringList()); }

private:
    RecordingProcesses &running() { return m_machine->running; }

    QStringList find(OnMatch onMatch, const QString &filter = QString())
    {
        const StepContext context{*m_machine, *m_reporter, m_state};
        return findProcesses(context, {text("ALPHA.EXE"), text("BETA.EXE")}, {text("First"), text("Second")},
                             onMatch, filter);
    }

    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_process_finder)
#include "tst_process_finder.moc"
