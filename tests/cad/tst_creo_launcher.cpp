#include "cad/creo/creo.h"
#include "cad/creo/protk_file.h"
#include "launcher_fixture.h"
#include "nvx_util/code_page.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray foreign = "name Other\r\nstartup DLL\r\nexec_file C:\\gr\xf6\xdf"
                           "er.dll\r\nend\r\n";

} // namespace

class tst_creo_launcher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LauncherFixture>();
        m_fixture->check(Launcher::Creo);
    }
    void cleanup() { m_fixture.reset(); }

    void oldCopiesAreRemovedInEveryMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("word");
        QTest::newRow("install") << int(RunMode::Install) << u"Install"_s;
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << u"UnInstall"_s;
    }

    void oldCopiesAreRemovedInEveryMode()
    {
        QFETCH(const int, mode);
        QFETCH(const QString, word);
        m_fixture->checkBoxes.setFound(Launcher::Creo, false);
        writeFile(m_fixture->installed("NVX_2017_Creo10.dll"));
        writeFile(m_fixture->installed("NVX_2017_Creo30.dll"));
        QFile::setPermissions(m_fixture->installed("NVX_2017_Creo30.dll"), QFile::ReadOwner);
        writeFile(m_fixture->installed("NVX_2017_Creo40.dll"));
        find(2, foreign);

        step(static_cast<RunMode>(mode));
        QCOMPARE(m_fixture->takeLines(), sweepLines(word));
        QVERIFY(!QFile::exists(m_fixture->installed("NVX_2017_Creo10.dll")));
        QVERIFY(!QFile::exists(m_fixture->installed("NVX_2017_Creo30.dll")));
        QVERIFY(QFile::exists(m_fixture->installed("NVX_2017_Creo40.dll")));
        QCOMPARE(readFile(protk(2)), foreign);
    }

    void anInstallAddsTheEntryBeforeTheOthers()
    {
        find(2, foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + foreign);
        QCOMPARE(m_fixture->takeLines(),
                 sweepLines(u"Install"_s) +
                     QStringList({u"progress 0 ProE Creo"_s, u"0 Removing Ostrade from:"_s + protk(2),
                                  u"0 Writing "_s + protk(2), u"0 Writing "_s + protk(2)}));
    }

    void everyReleaseIsClearedBeforeAnyIsWritten()
    {
        for (int release = 1; release <= 3; ++release)
            find(release, foreign);
        step(RunMode::Install);
        const QStringList lines = m_fixture->takeLines().mid(4);
        QCOMPARE(lines, QStringList({u"0 Removing Ostrade from:"_s + protk(1), u"0 Writing "_s + protk(1),
                                     u"0 Removing Ostrade from:"_s + protk(2), u"0 Writing "_s + protk(2),
                                     u"0 Removing Ostrade from:"_s + protk(3), u"0 Writing "_s + protk(3),
                                     u"0 Writing "_s + protk(1), u"0 Writing "_s + protk(2),
                                     u"0 Writing "_s + protk(3)}));
        for (int release = 1; release <= 3; ++release)
            QCOMPARE(readFile(protk(release)), entry(release) + foreign);
    }

    void thePathForCreo3HasNoShipCode()
    {
        find(3, foreign);
        QVERIFY(protk(3).endsWith(QDir::toNativeSeparators(u"Common Files/text/protk.dat"_s)));
        step(RunMode::Install);
        QVERIFY(readFile(protk(3)).contains("Creo3\\NVX_2017_Creo30.dll\r\n"));
    }

    void anInstallCreatesAMissingFile()
    {
        find(2, foreign);
        QVERIFY(QFile::remove(protk(2)));
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2));
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList(
                     {u"progress 0 ProE Creo"_s, u"0 Creating  "_s + protk(2), u"0 Writing "_s + protk(2)}));
    }

    void aRemovalCreatesNoFile()
    {
        find(2, foreign);
        QVERIFY(QFile::remove(protk(2)));
        step(RunMode::Uninstall);
        QVERIFY(!QFile::exists(protk(2)));
        QCOMPARE(m_fixture->takeLines().mid(3), QStringList{u"progress 0 ProE Creo"_s});
    }

    void aMissingFolderIsSkipped()
    {
        m_fixture->packages.creoInstalls = {{2, m_fixture->test.path(u"nowhere/Parametric"_s), u"M010"_s}};
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->test.path(u"nowhere"_s)));
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList(
                     {u"progress 0 ProE Creo"_s, u"0 Creating  "_s + protk(2), u"0 Writing "_s + protk(2)}));
        QCOMPARE(diagnostics.list(), QStringList{u"Unable to write "_s + protk(2)});
    }

    void aReleaseThatWasNotFoundIsSkipped()
    {
        m_fixture->packages.creoInstalls = {{2, QString(), u"M010"_s}};
        step(RunMode::Install);
        QCOMPARE(m_fixture->takeLines(), sweepLines(u"Install"_s) + QStringList{u"progress 0 ProE Creo"_s});
    }

    void aSecondInstallChangesNothing()
    {
        find(2, foreign);
        step(RunMode::Install);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + foreign);
    }

    void anEarlierInstallFromAnotherFolderIsReplaced()
    {
        find(2, foreign + ansi(creoEntry(u"D:\\old"_s, u"D:\\old"_s, 2)) + foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + foreign + foreign);
    }

    void aRemovalDropsTheEntryAndPreservesTheOthers_data() { addRemovingModes(); }

    void aRemovalDropsTheEntryAndPreservesTheOthers()
    {
        QFETCH(const RunMode, mode);
        find(2, foreign);
        step(RunMode::Install);
        m_fixture->takeLines();
        step(mode);
        QCOMPARE(readFile(protk(2)), foreign);
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList({u"progress 0 ProE Creo"_s, u"0 Removing Ostrade from:"_s + protk(2),
                              u"0 Writing "_s + protk(2)}));
    }

    void aMarkerAtTheVeryStartCountsAsMissing()
    {
        find(2, "$OSTRADE2017\r\n" + foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + "$OSTRADE2017\r\n" + foreign);
    }

    void aMarkerInsideTheFilePreventsAnyChange()
    {
        const QByteArray contents = foreign + "text_dir $OSTRADE2017\\Text\r\nend\r\n";
        find(2, contents);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), contents);
        QCOMPARE(m_fixture->takeLines().last(), u"0 Ostrade 2017 already exists, do nothing"_s);
    }

    void anInstallDirWithAnUmlautIsWrittenInTheCodePage()
    {
        m_fixture->state.installDir = u"C:\\Größe"_s;
        find(2, foreign);
        step(RunMode::Install);
        QVERIFY(readFile(protk(2)).contains("text_dir " + ansi(u"C:\\Größe"_s) + "\\Text\r\n"));
        step(RunMode::Uninstall);
        QCOMPARE(readFile(protk(2)), foreign);
    }

    void anInstallDirThatTheCodePageCannotEncodeIsLogged()
    {
        m_fixture->state.installDir = u"C:\\"_s + QChar(0xD800);
        find(2, foreign + entry(2));
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), foreign);
        QCOMPARE(m_fixture->takeLines().last(),
                 u"1 The install folder's path cannot be written in the system's code page; the launcher is "
                 "not added to "_s +
                     protk(2));
    }

    void aFolderWithTheNameOfTheFileIsSkipped()
    {
        find(2, foreign);
        QVERIFY(QFile::remove(protk(2)));
        QVERIFY(QDir().mkpath(protk(2)));
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        QVERIFY(QFileInfo(protk(2)).isDir());
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList({u"progress 0 ProE Creo"_s, u"0 Removing Ostrade from:"_s + protk(2)}));
        QCOMPARE(diagnostics.list(), QStringList(2, u"Unable to read "_s + protk(2)));
    }

    void leftoversOfACrashAreRemoved()
    {
        find(2, foreign);
        writeFile(protk(2) + u".nvxpart"_s, "half");
        step(RunMode::Uninstall);
        QCOMPARE(namesIn(QFileInfo(protk(2)).path()), QStringList{u"protk.dat"_s});
        QVERIFY(
            QFile::rename(protk(2), protk(2) + u".nvxpart"_s)); // as after a crash while the file was created
        step(RunMode::Uninstall);
        QCOMPARE(namesIn(QFileInfo(protk(2)).path()), QStringList());
    }

    void noOtherFileIsLeftNextToIt()
    {
        find(2, foreign);
        step(RunMode::Install);
        step(RunMode::Uninstall);
        QCOMPARE(QFileInfo(protk(2)).dir().entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"protk.dat"_s});
    }

private:
    void step(RunMode mode) { installCreoLauncher(m_fixture->step(mode)); }

    // Adds a release of Creo with this protk.dat to those found.
    void find(int release, const QByteArray &contents)
    {
        m_fixture->packages.creoInstalls.append(
            {release, m_fixture->test.path(u"Creo %1.0/Parametric"_s.arg(release)), u"M010"_s});
        writeFile(protk(release), contents);
    }

    QString protk(int release) const
    {
        const CreoInstall install = m_fixture->packages.creoInstall(release);
        return protkPath(install.installDir, install.shipCode, release);
    }

    static QByteArray ansi(const QString &string) { return Nvx::Util::toAnsi(string).value(); }

    QByteArray entry(int release) const
    {
        return ansi(creoEntry(m_fixture->test.installDir(), m_fixture->test.installDir(), release));
    }

    QStringList sweepLines(const QString &word) const
    {
        QStringList lines;
        for (const char *name : {"NVX_2017_Creo10.dll", "NVX_2017_Creo20.dll", "NVX_2017_Creo30.dll"})
            lines << u"0 %1 Creo Remove:%2"_s.arg(word, m_fixture->installed(name));
        return lines;
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_creo_launcher)
#include "tst_creo_launcher.moc"
