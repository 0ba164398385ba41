#include "nvx_util/system.h"
#include "setup/material_database.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using namespace std::chrono_literals;

namespace {

const QString checking = text("progress 0 Checking material database");

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
        // The program's folder is the one that counts, wherever the install dir is.
        m_fixture->state.installDir = m_fixture->test.path(text("elsewhere"));
        m_sharedData = Nvx::Util::System::getProgramDataPath(text("NVX 2017"));
        m_shipped = joinPath(m_fixture->machine.ownFolder, text("matprop.mdb"));
        m_working = joinPath(m_sharedData, text("matprop.nvxmdb"));
        m_previous = joinPath(m_sharedData, text("Materials 2016.nvxmdb"));
        writeFile(m_shipped, "shipped");
    }

    void aFirstInstallCopiesTheShippedDatabase()
    {
        QVERIFY(!QDir(m_sharedData).exists());
        QCOMPARE(check(RunMode::Install), 0);
        QCOMPARE(readFile(m_working), QByteArray("shipped"));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, text("0 Copy: %1 to: %2").arg(m_shipped, m_working)}));
        QCOMPARE(filesOfSharedData(), QStringList{text("matprop.nvxmdb")});
        QVERIFY(m_fixture->machine.sleeps.isEmpty());
    }

    void anExistingDatabaseIsTheUsers_data()
    {
        QTest::addColumn<QByteArray>("users");
        QTest::addColumn<bool>("isProtected");
        QTest::newRow("with their materials") << QByteArray("shipped, and mine") << false;
        QTest::newRow("empty") << QByteArray("") << false;
        QTest::newRow("write-protected") << QByteArray("mine") << true;
    }

    void anExistingDatabaseIsTheUsers()
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

    void aCopyThatWasCutOffGoes_data()
    {
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("at an install") << RunMode::Install;
        QTest::newRow("at a removal") << RunMode::Uninstall;
    }

    void aCopyThatWasCutOffGoes()
    {
        QFETCH(RunMode, mode);
        writeFile(m_working, "mine");
        writeFile(m_working + text(".nvxpart"), "half");
        writeFile(m_previous + text(".nvxpart"), "half");
        writeFile(joinPath(m_sharedData, text("mine.nvxpart")), "mine");
        check(mode);
        QStringList left{text("mine.nvxpart")};
        if (mode == RunMode::Install)
            left << text("matprop.nvxmdb");
        left.sort();
        QCOMPARE(filesOfSharedData(), left);
    }

    void aSecondInstallCopiesNothing()
    {
        check(RunMode::Install);
        writeFile(m_shipped, "shipped anew");
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
                 QStringList({checking, text("progress 0 Installation error matprop.mdb does not exist?"),
                              text("0 Installation error: %1 does not exist.").arg(m_shipped)}));
        QVERIFY(!QFile::exists(m_working));
    }

    void aMissingShippedDatabaseLeavesTheUsers()
    {
        QVERIFY(QFile::remove(m_shipped));
        writeFile(m_working, "mine");
        check(RunMode::Install);
        QCOMPARE(readFile(m_working), QByteArray("mine"));
    }

    void thePreviousReleaseIsCarriedForward()
    {
        writeFile(previousFolderFile(), "of 2016");
        m_fixture->test.setVariable("OSTRADE2016DIR", m_fixture->test.path(text("NVX 2016")));
        check(RunMode::Install);
        QCOMPARE(readFile(m_previous), QByteArray("of 2016"));
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, text("0 Copy: %1 to: %2").arg(m_shipped, m_working)}));
    }

    void itIsCarriedForwardAlsoWhenTheShippedDatabaseIsMissing()
    {
        QVERIFY(QFile::remove(m_shipped));
        writeFile(previousFolderFile(), "of 2016");
        m_fixture->test.setVariable("OSTRADE2016DIR", m_fixture->test.path(text("NVX 2016")));
        check(RunMode::Install);
        QCOMPARE(readFile(m_previous), QByteArray("of 2016"));
    }

    void whatWasCarriedForwardIsNeverReplaced()
    {
        writeFile(m_previous, "mine of 2016");
        writeFile(previousFolderFile(), "newer");
        m_fixture->test.setVariable("OSTRADE2016DIR", m_fixture->test.path(text("NVX 2016")));
        check(RunMode::Install);
        QCOMPARE(readFile(m_previous), QByteArray("mine of 2016"));
    }

    void withoutAPreviousReleaseNothingIsCarriedForward_data()
    {
        QTest::addColumn<bool>("isSet");
        QTest::addColumn<QString>("folder");
        QTest::newRow("not set") << false << QString();
        QTest::newRow("empty") << true << text("");
        QTest::newRow("a folder that is not there") << true << text("/nowhere/at all");
        QTest::newRow("a folder without a database") << true << QDir::tempPath();
    }

    void withoutAPreviousReleaseNothingIsCarriedForward()
    {
        QFETCH(bool, isSet);
        QFETCH(QString, folder);
        if (isSet)
            m_fixture->test.setVariable("OSTRADE2016DIR", folder);
        check(RunMode::Install);
        QCOMPARE(filesOfSharedData(), QStringList{text("matprop.nvxmdb")});
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, text("0 Copy: %1 to: %2").arg(m_shipped, m_working)}));
    }

    void aCopyThatFailsLeavesNothingAndIsNotTold()
    {
        writeFile(m_sharedData); // a file is in the folder's place
        const RecordedDiagnostics diagnostics;
        QCOMPARE(check(RunMode::Install), 0);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, text("0 Copy: %1 to: %2").arg(m_shipped, m_working)}));
        QCOMPARE(readFile(m_sharedData), QByteArray(""));
        QCOMPARE(diagnostics.list(), QStringList{text("Unable to copy %1 to %2").arg(m_shipped, m_working)});
    }

    void anUninstallRemovesTheDatabaseOfTheSharedFolder()
    {
        const QString leftover = joinPath(m_fixture->machine.ownFolder, text("matprop.new"));
        const QString named = joinPath(m_fixture->machine.ownFolder, text("matprop.nvxmdb"));
        writeFile(leftover, "old");
        writeFile(named, "not meant");
        writeFile(m_working, "mine");
        writeFile(m_previous, "mine of 2016");
        QVERIFY(QFile::setPermissions(m_working, QFile::ReadOwner | QFile::ReadUser));
        QCOMPARE(check(RunMode::Uninstall), 0);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList({checking, text("0 Remove: ") + leftover, text("0 Remove: ") + named}));
        QVERIFY(!QFile::exists(leftover));
        QVERIFY(!QFile::exists(m_working));
        QCOMPARE(readFile(named), QByteArray("not meant"));
        QCOMPARE(readFile(m_previous), QByteArray("mine of 2016"));
        QCOMPARE(readFile(m_shipped), QByteArray("shipped"));
    }

    void anUninstallWithoutADatabaseLogsTheSame()
    {
        check(RunMode::Uninstall);
        QCOMPARE(m_fixture->reporter.lines.size(), 3);
    }

    void anyOtherModeOnlyShowsTheStatus_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("stop services") << int(RunMode::StopServices);
        QTest::newRow("localisation") << int(RunMode::Localization);
        QTest::newRow("not given") << int(RunMode::NotGiven);
    }

    void anyOtherModeOnlyShowsTheStatus()
    {
        QFETCH(int, mode);
        writeFile(m_working, "mine");
        check(static_cast<RunMode>(mode));
        QCOMPARE(m_fixture->reporter.lines, QStringList{checking});
        QCOMPARE(readFile(m_working), QByteArray("mine"));
        QCOMPARE(filesOfSharedData(), QStringList{text("matprop.nvxmdb")});
    }

private:
    int check(RunMode mode) { return MaterialDatabase(m_fixture->context()).check(mode); }

    QString previousFolderFile() const { return m_fixture->test.path(text("NVX 2016/matprop.mdb")); }

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
