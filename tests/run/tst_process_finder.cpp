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
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

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
        QCOMPARE(find(OnMatch::List), QStringList({u"Second"_s, u"First"_s, u"Second"_s}));
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
        QTest::newRow("empty") << QString() << 3;
        QTest::newRow("digits") << u"2017"_s << 1;
        QTest::newRow("upper case") << u"NVX 2016"_s << 1;
        QTest::newRow("a filter in lower case never matches") << u"nvx"_s << 0;
        QTest::newRow("a part of the file name") << u"ALPHA"_s << 3;
    }

    void theFilterMustOccurInTheUpperCasePath()
    {
        QFETCH(QString, filter);
        for (const char *path : {"C:\\nvx 2017\\alpha.exe", "C:\\nvx 2016\\alpha.exe", "C:\\alpha.exe"})
            running().add(text(path));
        QTEST(int(find(OnMatch::List, filter).size()), "matches");
    }

    void endingLogsEachProcessAndReturnsAnEmptyList()
    {
        for (const char *path : {"C:\\alpha.exe", "C:\\other.exe", "C:\\beta.exe"})
            running().add(text(path));
        QCOMPARE(find(OnMatch::Terminate), QStringList());
        QCOMPARE(running().ended, QStringList({u"C:\\alpha.exe"_s, u"C:\\beta.exe"_s}));
        QCOMPARE(m_reporter->lines, QStringList({u"0 First terminated"_s, u"0 Second terminated"_s}));
    }

    void aProcessThatCannotBeOpenedIsSkipped()
    {
        running().add(u"C:\\alpha.exe"_s, Kind::Closed);
        running().add(u"C:\\beta.exe"_s);
        QCOMPARE(find(OnMatch::List), QStringList(u"Second"_s));
        find(OnMatch::Terminate);
        QCOMPARE(m_reporter->lines, QStringList(u"0 Second terminated"_s));
    }

    void aProcessThatEndsByItselfIsLoggedAndTheNextOneIsEnded()
    {
        running().add(u"C:\\alpha.exe"_s, Kind::EndsMeanwhile);
        running().add(u"C:\\beta.exe"_s);
        find(OnMatch::Terminate);
        QCOMPARE(m_reporter->lines, QStringList({u"0 First was not terminated"_s, u"0 Second terminated"_s}));
    }

    void aProcessWithoutANameMatchesNothing()
    {
        running().list.append({u"<unknown>"_s, u"<unknown>"_s});
        QCOMPARE(find(OnMatch::List), QStringList());
    }

    void onlyTheFirst1024ProcessesAreExamined()
    {
        for (int i = 0; i < 1023; ++i)
            running().add(u"C:\\other.exe"_s);
        running().add(u"C:\\alpha.exe"_s);
        running().add(u"C:\\beta.exe"_s);
        QCOMPARE(find(OnMatch::List), QStringList(u"First"_s));
        QCOMPARE(running().limits, QList<int>{1024});
    }

    void aMachineWithoutAProcessListHasNoMatch() { QCOMPARE(find(OnMatch::List), QStringList()); }

private:
    RecordingProcesses &running() { return m_machine->running; }

    QStringList find(OnMatch onMatch, const QString &filter = QString())
    {
        const StepContext context{*m_machine, *m_reporter, m_state};
        return findProcesses(context, {u"ALPHA.EXE"_s, u"BETA.EXE"_s}, {u"First"_s, u"Second"_s}, onMatch,
                             filter);
    }

    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_process_finder)
#include "tst_process_finder.moc"
