#include "cad/creo/creo_launcher.h"
#include "cad/creo/creo_names.h"
#include "launcher_fixture.h"
#include "nvx_util/code_page.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

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
        m_fixture->tick(Launcher::Creo);
    }
    void cleanup() { m_fixture.reset(); }

    void oldCopiesAreSweptInEveryMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("word");
        QTest::newRow("install") << int(RunMode::Install) << text("Install");
        QTest::newRow("uninstall") << int(RunMode::Uninstall) << text("UnInstall");
    }

    void oldCopiesAreSweptInEveryMode()
    {
        QFETCH(const int, mode);
        QFETCH(const QString, word);
        m_fixture->boxes.setFound(Launcher::Creo, false);
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

    void anInstallEntersTheLauncherBeforeTheOthers()
    {
        find(2, foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + foreign);
        QCOMPARE(m_fixture->takeLines(),
                 sweepLines(text("Install")) +
                     QStringList({text("progress 0 ProE Creo"), text("0 Removing Ostrade from:") + protk(2),
                                  text("0 Writing ") + protk(2), text("0 Writing ") + protk(2)}));
    }

    void everyReleaseIsClearedBeforeAnyIsWritten()
    {
        for (int release = 1; release <= 3; ++release)
            find(release, foreign);
        step(RunMode::Install);
        const QStringList lines = m_fixture->takeLines().mid(4);
        QCOMPARE(lines,
                 QStringList({text("0 Removing Ostrade from:") + protk(1), text("0 Writing ") + protk(1),
                              text("0 Removing Ostrade from:") + protk(2), text("0 Writing ") + protk(2),
                              text("0 Removing Ostrade from:") + protk(3), text("0 Writing ") + protk(3),
                              text("0 Writing ") + protk(1), text("0 Writing ") + protk(2),
                              text("0 Writing ") + protk(3)}));
        for (int release = 1; release <= 3; ++release)
            QCOMPARE(readFile(protk(release)), entry(release) + foreign);
    }

    void creo3AloneHasItsFileWithoutAShipCode()
    {
        find(3, foreign);
        QVERIFY(protk(3).endsWith(QDir::toNativeSeparators(text("Common Files/text/protk.dat"))));
        step(RunMode::Install);
        QVERIFY(readFile(protk(3)).contains("Creo3\\NVX_2017_Creo30.dll\r\n"));
    }

    void aMissingFileIsMadeOnInstall()
    {
        find(2, foreign);
        QVERIFY(QFile::remove(protk(2)));
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2));
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList({text("progress 0 ProE Creo"), text("0 Creating  ") + protk(2),
                              text("0 Writing ") + protk(2)}));
    }

    void aMissingFileIsNotMadeOnRemoval()
    {
        find(2, foreign);
        QVERIFY(QFile::remove(protk(2)));
        step(RunMode::Uninstall);
        QVERIFY(!QFile::exists(protk(2)));
        QCOMPARE(m_fixture->takeLines().mid(3), QStringList{text("progress 0 ProE Creo")});
    }

    void aMissingFolderIsPassedOver()
    {
        m_fixture->packages.creoInstallDirs[2] = m_fixture->test.path(text("nowhere/Parametric"));
        m_fixture->packages.creoShipCodes[2] = text("M010");
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->test.path(text("nowhere"))));
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList({text("progress 0 ProE Creo"), text("0 Creating  ") + protk(2),
                              text("0 Writing ") + protk(2)}));
        QCOMPARE(diagnostics.list(), QStringList{text("Unable to write ") + protk(2)});
    }

    void aReleaseThatWasNotFoundIsNotLookedFor()
    {
        m_fixture->packages.creoShipCodes[2] = text("M010");
        step(RunMode::Install);
        QCOMPARE(m_fixture->takeLines(),
                 sweepLines(text("Install")) + QStringList{text("progress 0 ProE Creo")});
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
        find(2, foreign + ansi(creoEntry(text("D:\\old"), text("D:\\old"), 2)) + foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + foreign + foreign);
    }

    void aRemovalTakesTheEntryAndLeavesTheOthers_data() { addRemovingModes(); }

    void aRemovalTakesTheEntryAndLeavesTheOthers()
    {
        QFETCH(const RunMode, mode);
        find(2, foreign);
        step(RunMode::Install);
        m_fixture->takeLines();
        step(mode);
        QCOMPARE(readFile(protk(2)), foreign);
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList({text("progress 0 ProE Creo"), text("0 Removing Ostrade from:") + protk(2),
                              text("0 Writing ") + protk(2)}));
    }

    void aMarkerAtTheVeryStartCountsAsMissing()
    {
        find(2, "$OSTRADE2017\r\n" + foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), entry(2) + "$OSTRADE2017\r\n" + foreign);
    }

    void aMarkerFurtherInKeepsTheFileAsItIs()
    {
        const QByteArray contents = foreign + "text_dir $OSTRADE2017\\Text\r\nend\r\n";
        find(2, contents);
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), contents);
        QCOMPARE(m_fixture->takeLines().last(), text("0 Ostrade 2017 already exists, do nothing"));
    }

    void anInstallFolderWithAnUmlautIsWrittenInTheCodePage()
    {
        m_fixture->state.installDir = text("C:\\Größe");
        find(2, foreign);
        step(RunMode::Install);
        QVERIFY(readFile(protk(2)).contains("text_dir " + ansi(text("C:\\Größe")) + "\\Text\r\n"));
        step(RunMode::Uninstall);
        QCOMPARE(readFile(protk(2)), foreign);
    }

    void anInstallFolderThatTheCodePageCannotWriteIsLogged()
    {
        m_fixture->state.installDir = text("C:\\") + QChar(0xD800);
        find(2, foreign + entry(2));
        step(RunMode::Install);
        QCOMPARE(readFile(protk(2)), foreign);
        QCOMPARE(m_fixture->takeLines().last(),
                 text("1 The system's code page cannot write the name of the install folder, the launcher is "
                      "not entered into ") +
                     protk(2));
    }

    void aFolderInTheFilesPlaceIsPassedOver()
    {
        find(2, foreign);
        QVERIFY(QFile::remove(protk(2)));
        QVERIFY(QDir().mkpath(protk(2)));
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        QVERIFY(QFileInfo(protk(2)).isDir());
        QCOMPARE(m_fixture->takeLines().mid(3),
                 QStringList({text("progress 0 ProE Creo"), text("0 Removing Ostrade from:") + protk(2)}));
        QCOMPARE(diagnostics.list(), QStringList(2, text("Unable to read ") + protk(2)));
    }

    void whatACrashHasLeftGoes()
    {
        find(2, foreign);
        writeFile(protk(2) + text(".nvxpart"), "half");
        step(RunMode::Uninstall);
        QCOMPARE(namesIn(QFileInfo(protk(2)).path()), QStringList{text("protk.dat")});
        QVERIFY(QFile::rename(protk(2), protk(2) + text(".nvxpart"))); // it was to be made
        step(RunMode::Uninstall);
        QCOMPARE(namesIn(QFileInfo(protk(2)).path()), QStringList());
    }

    void noOtherFileIsLeftBesideIt()
    {
        find(2, foreign);
        step(RunMode::Install);
        step(RunMode::Uninstall);
        QCOMPARE(QFileInfo(protk(2)).dir().entryList(QDir::Files | QDir::Hidden),
                 QStringList{text("protk.dat")});
    }

private:
    void step(RunMode mode)
    {
        installCreoLauncher(m_fixture->context(), m_fixture->packages, m_fixture->boxes, mode);
    }

    // Lets a release of Creo be found, with this protk.dat.
    void find(int release, const QByteArray &contents)
    {
        const auto place = static_cast<size_t>(release);
        m_fixture->packages.creoInstallDirs.at(place) =
            m_fixture->test.path(text("Creo %1.0/Parametric").arg(release));
        m_fixture->packages.creoShipCodes.at(place) = text("M010");
        writeFile(protk(release), contents);
    }

    QString protk(int release) const
    {
        const auto place = static_cast<size_t>(release);
        return protkPath(m_fixture->packages.creoInstallDirs.at(place),
                         m_fixture->packages.creoShipCodes.at(place), release);
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
            lines << text("0 %1 Creo Remove:%2").arg(word, m_fixture->installed(name));
        return lines;
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_creo_launcher)
#include "tst_creo_launcher.moc"
