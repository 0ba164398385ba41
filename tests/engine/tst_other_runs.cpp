#include "engine/engine_fixture.h"
#include "support/test_class.h"

#include <QTest>

using Nvx::Util::Turn;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class tst_other_runs : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<EngineFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void aRunThatIsAloneWaitsForNothing()
    {
        m_fixture->start(u"-I -S"_s);
        QCOMPARE(m_fixture->machine.turnTimeouts, QList<std::chrono::milliseconds>{0ms});
        QVERIFY(m_fixture->lines().at(3).startsWith(u"   0 Command Line:"_s));
        QVERIFY(m_fixture->machine.boxes.isEmpty());
    }

    void whetherARunHasWaitedIsLoggedAfterTheBanner_data()
    {
        QTest::addColumn<QList<Turn>>("turns");
        QTest::addColumn<QString>("line");
        QTest::newRow("the other run has ended")
            << QList{Turn::OtherRuns, Turn::Ours}
            << u"   0 Another run was in progress; this one has waited for its end"_s;
        QTest::newRow("the other run has not ended")
            << QList{Turn::OtherRuns, Turn::OtherRuns}
            << u"   1 Another run has been in progress for 10 minutes; this one no longer waits for its "
               "end"_s;
        QTest::newRow("other runs cannot be detected")
            << QList{Turn::Unknown}
            << u"   1 Unable to check whether another run is in progress; a program without administrator "
               "rights may have prevented it"_s;
    }

    void whetherARunHasWaitedIsLoggedAfterTheBanner()
    {
        QFETCH(const QList<Turn>, turns);
        m_fixture->machine.turns = turns;
        m_fixture->start(u"-I -S"_s);
        QVERIFY(m_fixture->lines().at(2).startsWith(u"   0 Program startup"_s));
        QTEST(m_fixture->lines().at(3), "line");
        QVERIFY(m_fixture->lines().at(4).startsWith(u"   0 Command Line:"_s));
        QList<std::chrono::milliseconds> timeouts{0ms, 10min};
        QCOMPARE(m_fixture->machine.turnTimeouts, timeouts.first(turns.size()));
    }

    void theLogIsOpenedAfterTheOtherRunHasEnded()
    {
        const QString log = m_fixture->installed("NVXConfig.log");
        m_fixture->machine.turns = {Turn::OtherRuns, Turn::Ours};
        bool isThere = true;
        m_fixture->machine.whileTelling = [&] { isThere = QFile::exists(log); };
        m_fixture->start(u"-I"_s);
        QVERIFY(!isThere);
        QVERIFY(QFile::exists(log));
    }

    void onlyARunWithWindowsSaysThatItWaits_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<qsizetype>("boxes");
        QTest::newRow("no mode") << QString() << qsizetype(1);
        QTest::newRow("silent") << u"-U -S"_s << qsizetype(0);
    }

    void onlyARunWithWindowsSaysThatItWaits()
    {
        QFETCH(const QString, options);
        m_fixture->machine.turns = {Turn::OtherRuns, Turn::Ours};
        m_fixture->start(options);
        QTEST(m_fixture->machine.boxes.size(), "boxes");
        for (const RecordingMachine::Box &box : std::as_const(m_fixture->machine.boxes)) {
            QCOMPARE(box.title, u"NVX Configuration Utility"_s);
            QCOMPARE(box.text,
                     u"Another run of this program is in progress on this machine. This one continues when "
                     "that has ended, after 10 minutes at the latest."_s);
        }
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_other_runs)
#include "tst_other_runs.moc"
