#include "cad/nx/nx_custom_dirs.h"
#include "cad/nx/nx_launcher.h"
#include "launcher_fixture.h"
#include "nvx_util/code_page.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;

namespace {

// The places of the versions among those that the search looks for.
enum Version : size_t
{
    V9_5 = 3,
    V9_5_0 = 4,
    V10_0 = 5,
    V11_0 = 7
};

const QByteArray foreign = "C:\\Siemens\\gr\xf6\xdf"
                           "er\r\n";

} // namespace

class tst_nx_launcher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LauncherFixture>();
        m_fixture->tick(Launcher::Nx);
    }
    void cleanup() { m_fixture.reset(); }

    void anInstallAddsTheLineAndKeepsABackup()
    {
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign + line("\\NX10"));
        QCOMPARE(readFile(backup("NX 10")), foreign);
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({text("progress 0 UGNX"),
                              text("0 Copying %1 to %2").arg(menu("NX 10"), backup("NX 10")),
                              text("0 Checking") + menu("NX 10"), text("0 Creating") + menu("NX 10")}));
    }

    void whatACrashHasLeftGoes_data()
    {
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("at an install") << RunMode::Install;
        QTest::newRow("at a removal") << RunMode::Uninstall;
    }

    void whatACrashHasLeftGoes()
    {
        QFETCH(RunMode, mode);
        find(V10_0, "NX 10", foreign + line("\\NX10"));
        writeFile(backup("NX 10"), foreign);
        for (const QString &file : {menu("NX 10"), backup("NX 10")})
            writeFile(file + text(".nvxpart"), "half");
        step(mode);
        QCOMPARE(namesIn(QFileInfo(menu("NX 10")).path()),
                 QStringList({text("custom_dirs.dat"), text("custom_dirs.dat.bak")}));
    }

    void nx11HasNoSubFolder()
    {
        find(V11_0, "NX 11", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 11")), foreign + line(""));
    }

    void aSecondInstallFindsTheLineAndKeepsTheFirstBackup()
    {
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        m_fixture->takeLines();
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign + line("\\NX10"));
        QCOMPARE(readFile(backup("NX 10")), foreign);
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({text("progress 0 UGNX"), text("0 Checking") + menu("NX 10")}));
    }

    void oneInstallDirUnderTwoVersionsGetsTheLineOnce()
    {
        find(V9_5, "NX 9", foreign);
        find(V9_5_0, "NX 9", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 9")), foreign + line("\\NX9"));
        QCOMPARE(m_fixture->takeLines().last(), text("0 Checking") + menu("NX 9"));
    }

    void aMissingFileIsMade()
    {
        find(V11_0, "NX 11", foreign);
        QVERIFY(QFile::remove(menu("NX 11")));
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 11")), line(""));
        QVERIFY(!QFile::exists(backup("NX 11")));
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({text("progress 0 UGNX"),
                              text("0 Copying %1 to %2").arg(menu("NX 11"), backup("NX 11")),
                              text("0 Creating") + menu("NX 11")}));
    }

    void aMissingFolderIsPassedOver()
    {
        m_fixture->packages.nxInstallDirs[V11_0] = m_fixture->test.path(text("nowhere"));
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->test.path(text("nowhere"))));
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({text("progress 0 UGNX"),
                              text("0 Copying %1 to %2").arg(menu("nowhere"), backup("nowhere")),
                              text("0 Creating") + menu("nowhere")}));
        QCOMPARE(diagnostics.list(), QStringList{text("Unable to write ") + menu("nowhere")});
        step(RunMode::Uninstall);
        QCOMPARE(m_fixture->takeLines(), QStringList{text("progress 0 UGNX")});
    }

    void anEmptyFileHasAnEmptyBackup()
    {
        find(V11_0, "NX 11", QByteArray());
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 11")), line(""));
        QVERIFY(QFile::exists(backup("NX 11")));
        QCOMPARE(readFile(backup("NX 11")), QByteArray());
    }

    void aRemovalTakesTheLinesAndLeavesTheBackup_data() { addRemovingModes(); }

    void aRemovalTakesTheLinesAndLeavesTheBackup()
    {
        QFETCH(const RunMode, mode);
        find(V10_0, "NX 10", foreign);
        find(V11_0, "NX 11", foreign);
        step(RunMode::Install);
        m_fixture->takeLines();
        step(mode);
        QCOMPARE(m_fixture->takeLines(), QStringList{text("progress 0 UGNX")});
        for (const char *nx : {"NX 10", "NX 11"}) {
            QCOMPARE(readFile(menu(nx)), foreign + "\r\n");
            QCOMPARE(readFile(backup(nx)), foreign);
        }
    }

    void aRemovalTakesEveryLineBelowTheInstallDirInAnyCase()
    {
        m_fixture->state.installDir = text("C:\\Prog\\NVX");
        find(V10_0, "NX 10", foreign + "c:\\prog\\nvx\\other\r\n" + foreign);
        step(RunMode::Uninstall);
        QCOMPARE(readFile(menu("NX 10")), foreign + foreign);
    }

    void aRemovalMakesNoFile()
    {
        find(V10_0, "NX 10", foreign);
        QVERIFY(QFile::remove(menu("NX 10")));
        step(RunMode::Uninstall);
        QVERIFY(!QFile::exists(menu("NX 10")));
    }

    void anInstallDirWithAnUmlautIsWrittenInTheCodePage()
    {
        m_fixture->state.installDir = text("C:\\Größe");
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign + line("\\NX10"));
        step(RunMode::Uninstall);
        QCOMPARE(readFile(menu("NX 10")), foreign + "\r\n");
    }

    void anInstallFolderThatTheCodePageCannotWriteIsLogged()
    {
        m_fixture->state.installDir = text("C:\\") + QChar(0xD800);
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign);
        QCOMPARE(m_fixture->takeLines().last(),
                 text("1 The system's code page cannot write the name of the install folder, the launcher is "
                      "not entered into ") +
                     menu("NX 10"));
    }

    void aFolderInTheFilesPlaceIsPassedOver()
    {
        find(V10_0, "NX 10", foreign);
        QVERIFY(QFile::remove(menu("NX 10")));
        QVERIFY(QDir().mkpath(menu("NX 10")));
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        step(RunMode::Uninstall);
        QVERIFY(QFileInfo(menu("NX 10")).isDir());
        QVERIFY(!QFile::exists(backup("NX 10")));
        QVERIFY(m_fixture->takeLines().filter(QRegularExpression(text("^1 "))).isEmpty());
        // For its backup, for the line, and at the removal.
        QCOMPARE(diagnostics.list(), QStringList(3, text("Unable to read ") + menu("NX 10")));
    }

    void withoutItsBoxNothingHappens()
    {
        find(V10_0, "NX 10", foreign);
        m_fixture->boxes.setFound(Launcher::Nx, false);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign);
        QVERIFY(m_fixture->takeLines().isEmpty());
    }

private:
    void step(RunMode mode)
    {
        installNXLauncher(m_fixture->context(), m_fixture->packages, m_fixture->boxes, mode);
    }

    // Lets a version of NX be found in the folder, with this custom_dirs.dat.
    void find(Version version, const char *folder, const QByteArray &contents)
    {
        static const QMap<Version, QString> names{
            {V9_5, text("9.5")}, {V9_5_0, text("9.5.0")}, {V10_0, text("10.0")}, {V11_0, text("11.0")}};
        m_fixture->packages.nxInstallDirs.at(version) = m_fixture->test.path(text(folder));
        m_fixture->packages.nxKeys.at(version) =
            text("HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\") + names.value(version);
        writeFile(menu(folder), contents);
    }

    QString menu(const char *folder) const
    {
        return joinPath(m_fixture->test.path(text(folder)), text("UGII/MENUS/custom_dirs.dat"));
    }

    QString backup(const char *folder) const { return menu(folder) + text(".bak"); }

    QByteArray line(const char *subFolder) const
    {
        return Nvx::Util::toAnsi(text("\r\n") + m_fixture->state.installDir + text("\\Launchers\\UGNX") +
                                 text(subFolder) + text("\r\n"))
            .value();
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_nx_launcher)
#include "tst_nx_launcher.moc"
