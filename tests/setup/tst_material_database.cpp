#include "nvx_util/system.h"
#include "setup/material_database.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString checking = u"progress 0 Checking material database"_s;

} // namespace

class tst_material_database : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_fixture->test.unsetVariable("OSTRADE2016DIR");
        // The step uses the program's folder, not the install dir.
        m_fixture->state.installDir = m_fixture->test.path(u"elsewhere"_s);
        m_sharedData = Nvx::Util::System::getProgramDataPath(u"NVX 2017"_s);
        m_shipped = joinPath(m_fixture->machine.ownFolder, u"matprop.mdb"_s);
        m_working = joinPath(m_sharedData, u"matprop.nvxmdb"_s);
        m_previous = joinPath(m_sharedData, u"Materials 2016.nvxmdb"_s);
        writeFile(m_shipped, "shipped");
    }

    void aFirstInstallCopiesTheShippedDatabase()
    {
        QVERIFY(!QDir(m_sharedData).exists());
        QCOMPARE(check(RunMode::Install), 0);
        QCOMPARE(readFile(m_working), QByteArray("shipped"));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, u"0 Copy: %1 to: %2"_s.arg(m_shipped, m_working)}));
        QCOMPARE(filesOfSharedData(), QStringList{u"matprop.nvxmdb"_s});
        QVERIFY(m_fixture->machine.sleeps.isEmpty());
    }

    void anExistingDatabaseIsNotChanged_data()
    {
        QTest::addColumn<QByteArray>("users");
        QTest::addColumn<bool>("isProtected");
        QTest::newRow("with materials of the user") << QByteArray("shipped, and mine") << false;
        QTest::newRow("empty") << QByteArray("") << false;
        QTest::newRow("write-protected") << QByteArray("mine") << true;
    }

    void anExistingDatabaseIsNotChanged()
    {
        QFETCH(QByteArray, users);
        QFETCH(bool, isProtected);
        writeFile(m_working, users);
        if (isProtected)
            QVERIFY(QFile::setPermissions(m_working, QFile::ReadOwner | QFile::ReadUser));
        check(RunMode::Install);
        QVERIFY(QFile::exists(m_working));
        QCOMPARE(readFile(m_working), users);
        QCOMPARE(m_fixture->reporter.lines, QStringList{checking});
    }

    void anUnfinishedCopyIsRemoved_data()
    {
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("install") << RunMode::Install;
        QTest::newRow("uninstall") << RunMode::Uninstall;
    }

    void anUnfinishedCopyIsRemoved()
    {
        QFETCH(RunMode, mode);
        writeFile(m_working, "mine");
        writeFile(m_working + u".nvxpart"_s, "half");
        writeFile(m_previous + u".nvxpart"_s, "half");
        writeFile(joinPath(m_sharedData, u"mine.nvxpart"_s), "mine");
        check(mode);
        QStringList remaining{u"mine.nvxpart"_s};
        if (mode == RunMode::Install)
            remaining << u"matprop.nvxmdb"_s;
        remaining.sort();
        QCOMPARE(filesOfSharedData(), remaining);
    }

    void aSecondInstallCopiesNothing()
    {
        check(RunMode::Install);
        writeFile(m_shipped, "shipped again");
        m_fixture->reporter.lines.clear();
        check(RunMode::Install);
        QCOMPARE(readFile(m_working), QByteArray("shipped"));
        QCOMPARE(m_fixture->reporter.lines, QStringList{checking});
    }

    void aDatabaseThatAppearsLateIsCopied_data()
    {
        QTest::addColumn<int>("sleeps");
        QTest::newRow("after 10 ms") << 1;
        QTest::newRow("after 20 ms") << 2;
        QTest::newRow("after 40 ms") << 4;
    }

    void aDatabaseThatAppearsLateIsCopied()
    {
        QFETCH(int, sleeps);
        QVERIFY(QFile::remove(m_shipped));
        m_fixture->machine.afterSleep = [&] {
            if (m_fixture->machine.sleeps.size() == sleeps)
                writeFile(m_shipped, "late");
        };
        check(RunMode::Install);
        QCOMPARE(m_fixture->machine.sleeps, QList<std::chrono::milliseconds>(sleeps, 10ms));
        QCOMPARE(readFile(m_working), QByteArray("late"));
    }

    void aDatabaseThatNeverAppearsIsReported()
    {
        QVERIFY(QFile::remove(m_shipped));
        QCOMPARE(check(RunMode::Install), 0);
        QCOMPARE(m_fixture->machine.sleeps, QList<std::chrono::milliseconds>(4, 10ms));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, u"progress 0 Installation error matprop.mdb does not exist?"_s,
                              u"0 Installation error: %1 does not exist."_s.arg(m_shipped)}));
        QVERIFY(!QFile::exists(m_working));
    }

    void theUsersDatabaseStaysWhenTheShippedOneIsMissing()
    {
        QVERIFY(QFile::remove(m_shipped));
        writeFile(m_working, "mine");
        check(RunMode::Install);
        QCOMPARE(readFile(m_working), QByteArray("mine"));
    }

    void thePreviousReleasesDatabaseIsCopied()
    {
        writeFile(previousFolderFile(), "of 2016");
        m_fixture->test.setVariable("OSTRADE2016DIR", m_fixture->test.path(u"NVX 2016"_s));
        check(RunMode::Install);
        QCOMPARE(readFile(m_previous), QByteArray("of 2016"));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, u"0 Copy: %1 to: %2"_s.arg(m_shipped, m_working)}));
    }

    void thePreviousReleasesDatabaseIsCopiedEvenIfTheShippedOneIsMissing()
    {
        QVERIFY(QFile::remove(m_shipped));
        writeFile(previousFolderFile(), "of 2016");
        m_fixture->test.setVariable("OSTRADE2016DIR", m_fixture->test.path(u"NVX 2016"_s));
        check(RunMode::Install);
        QCOMPARE(readFile(m_previous), QByteArray("of 2016"));
    }

    void aCopyOfThePreviousReleaseIsNeverReplaced()
    {
        writeFile(m_previous, "mine of 2016");
        writeFile(previousFolderFile(), "newer");
        m_fixture->test.setVariable("OSTRADE2016DIR", m_fixture->test.path(u"NVX 2016"_s));
        check(RunMode::Install);
        QCOMPARE(readFile(m_previous), QByteArray("mine of 2016"));
    }

    void withoutAPreviousReleaseOnlyTheShippedDatabaseIsCopied_data()
    {
        QTest::addColumn<bool>("isSet");
        QTest::addColumn<QString>("folder");
        QTest::newRow("not set") << false << QString();
        QTest::newRow("empty") << true << u""_s;
        QTest::newRow("a missing folder") << true << u"/nowhere/at all"_s;
        QTest::newRow("a folder without a database") << true << QDir::tempPath();
    }

    void withoutAPreviousReleaseOnlyTheShippedDatabaseIsCopied()
    {
        QFETCH(bool, isSet);
        QFETCH(QString, folder);
        if (isSet)
            m_fixture->test.setVariable("OSTRADE2016DIR", folder);
        check(RunMode::Install);
        QCOMPARE(filesOfSharedData(), QStringList{u"matprop.nvxmdb"_s});
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, u"0 Copy: %1 to: %2"_s.arg(m_shipped, m_working)}));
    }

    void aCopyThatFailsLeavesNoFileAndIsADiagnosticWarning()
    {
        writeFile(m_sharedData); // a file has the folder's name
        const RecordedDiagnostics diagnostics;
        QCOMPARE(check(RunMode::Install), 0);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, u"0 Copy: %1 to: %2"_s.arg(m_shipped, m_working)}));
        QCOMPARE(readFile(m_sharedData), QByteArray(""));
        QCOMPARE(diagnostics.list(), QStringList{u"Unable to copy %1 to %2"_s.arg(m_shipped, m_working)});
    }

    void anUninstallRemovesTheDatabaseInTheSharedFolder()
    {
        const QString leftover = joinPath(m_fixture->machine.ownFolder, u"matprop.new"_s);
        const QString named = joinPath(m_fixture->machine.ownFolder, u"matprop.nvxmdb"_s);
        writeFile(leftover, "old");
        writeFile(named, "another");
        writeFile(m_working, "mine");
        writeFile(m_previous, "mine of 2016");
        QVERIFY(QFile::setPermissions(m_working, QFile::ReadOwner | QFile::ReadUser));
        QCOMPARE(check(RunMode::Uninstall), 0);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, u"0 Remove: "_s + leftover, u"0 Remove: "_s + named}));
        QVERIFY(!QFile::exists(leftover));
        QVERIFY(!QFile::exists(m_working));
        QCOMPARE(readFile(named), QByteArray("another"));
        QCOMPARE(readFile(m_previous), QByteArray("mine of 2016"));
        QCOMPARE(readFile(m_shipped), QByteArray("shipped"));
    }

    void anUninstallWithoutADatabaseLogsTheSame()
    {
        check(RunMode::Uninstall);
        QCOMPARE(m_fixture->reporter.lines.size(), 3);
    }

    void inOtherModesOnlyTheProgressLineIsShown_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("stop services") << int(RunMode::StopServices);
        QTest::newRow("localisation") << int(RunMode::Localization);
        QTest::newRow("not given") << int(RunMode::NotGiven);
    }

    void inOtherModesOnlyTheProgressLineIsShown()
    {
        QFETCH(int, mode);
        writeFile(m_working, "mine");
        check(static_cast<RunMode>(mode));
        QCOMPARE(m_fixture->reporter.lines, QStringList{checking});
        QCOMPARE(readFile(m_working), QByteArray("mine"));
        QCOMPARE(filesOfSharedData(), QStringList{u"matprop.nvxmdb"_s});
    }

private:
    int check(RunMode mode) { return MaterialDatabase(m_fixture->context()).check(mode); }

    QString previousFolderFile() const { return m_fixture->test.path(u"NVX 2016/matprop.mdb"_s); }

    QStringList filesOfSharedData() const
    {
        return QDir(m_sharedData).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    }

    std::unique_ptr<SetupFixture> m_fixture;
    QString m_sharedData;
    QString m_shipped;
    QString m_working;
    QString m_previous;
};

NVX_GUILESS_TEST(tst_material_database)
#include "tst_material_database.moc"
