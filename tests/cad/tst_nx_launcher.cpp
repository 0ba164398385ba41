#include "cad/nx/nx.h"
#include "cad/nx/nx_custom_dirs.h"
#include "cad/nx/nx_versions.h"
#include "launcher_fixture.h"
#include "nvx_util/code_page.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

using Nvx::Util::joinPath;

namespace {

// Indexes in nxVersions.
enum Version : int
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
        m_fixture->check(Launcher::Nx);
    }
    void cleanup() { m_fixture.reset(); }

    void anInstallAddsTheLineAndMakesABackup()
    {
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign + line("\\NX10"));
        QCOMPARE(readFile(backup("NX 10")), foreign);
        QCOMPARE(
            m_fixture->takeLines(),
            QStringList({u"progress 0 UGNX"_s, u"0 Copying %1 to %2"_s.arg(menu("NX 10"), backup("NX 10")),
                         u"0 Checking"_s + menu("NX 10"), u"0 Creating"_s + menu("NX 10")}));
    }

    void leftoversOfACrashAreRemoved_data()
    {
        QTest::addColumn<RunMode>("mode");
        QTest::newRow("at an install") << RunMode::Install;
        QTest::newRow("at a removal") << RunMode::Uninstall;
    }

    void leftoversOfACrashAreRemoved()
    {
        QFETCH(RunMode, mode);
        find(V10_0, "NX 10", foreign + line("\\NX10"));
        writeFile(backup("NX 10"), foreign);
        for (const QString &file : {menu("NX 10"), backup("NX 10")})
            writeFile(file + u".nvxpart"_s, "half");
        step(mode);
        QCOMPARE(namesIn(QFileInfo(menu("NX 10")).path()),
                 QStringList({u"custom_dirs.dat"_s, u"custom_dirs.dat.bak"_s}));
    }

    void nx11HasNoSubFolder()
    {
        find(V11_0, "NX 11", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 11")), foreign + line(""));
    }

    void aSecondInstallFindsTheLineAndPreservesTheBackup()
    {
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        m_fixture->takeLines();
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign + line("\\NX10"));
        QCOMPARE(readFile(backup("NX 10")), foreign);
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({u"progress 0 UGNX"_s, u"0 Checking"_s + menu("NX 10")}));
    }

    void oneInstallDirUnderTwoVersionsGetsTheLineOnce()
    {
        find(V9_5, "NX 9", foreign);
        find(V9_5_0, "NX 9", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 9")), foreign + line("\\NX9"));
        QCOMPARE(m_fixture->takeLines().last(), u"0 Checking"_s + menu("NX 9"));
    }

    void anInstallCreatesAMissingFile()
    {
        find(V11_0, "NX 11", foreign);
        QVERIFY(QFile::remove(menu("NX 11")));
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 11")), line(""));
        QVERIFY(!QFile::exists(backup("NX 11")));
        QCOMPARE(
            m_fixture->takeLines(),
            QStringList({u"progress 0 UGNX"_s, u"0 Copying %1 to %2"_s.arg(menu("NX 11"), backup("NX 11")),
                         u"0 Creating"_s + menu("NX 11")}));
    }

    void aMissingFolderIsSkipped()
    {
        m_fixture->packages.nxInstalls = {{V11_0, m_fixture->test.path(u"nowhere"_s), keyOf(V11_0)}};
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->test.path(u"nowhere"_s)));
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({u"progress 0 UGNX"_s,
                              u"0 Copying %1 to %2"_s.arg(menu("nowhere"), backup("nowhere")),
                              u"0 Creating"_s + menu("nowhere")}));
        QCOMPARE(diagnostics.list(), QStringList{u"Unable to write "_s + menu("nowhere")});
        step(RunMode::Uninstall);
        QCOMPARE(m_fixture->takeLines(), QStringList{u"progress 0 UGNX"_s});
    }

    void anEmptyFileHasAnEmptyBackup()
    {
        find(V11_0, "NX 11", QByteArray());
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 11")), line(""));
        QVERIFY(QFile::exists(backup("NX 11")));
        QCOMPARE(readFile(backup("NX 11")), QByteArray());
    }

    void aRemovalDropsTheLineAndPreservesTheBackup_data() { addRemovingModes(); }

    void aRemovalDropsTheLineAndPreservesTheBackup()
    {
        QFETCH(const RunMode, mode);
        find(V10_0, "NX 10", foreign);
        find(V11_0, "NX 11", foreign);
        step(RunMode::Install);
        m_fixture->takeLines();
        step(mode);
        QCOMPARE(m_fixture->takeLines(), QStringList{u"progress 0 UGNX"_s});
        for (const char *nx : {"NX 10", "NX 11"}) {
            QCOMPARE(readFile(menu(nx)), foreign + "\r\n");
            QCOMPARE(readFile(backup(nx)), foreign);
        }
    }

    void aRemovalDropsEveryLineBelowTheInstallDirInAnyCase()
    {
        m_fixture->state.installDir = u"C:\\Prog\\NVX"_s;
        find(V10_0, "NX 10", foreign + "c:\\prog\\nvx\\other\r\n" + foreign);
        step(RunMode::Uninstall);
        QCOMPARE(readFile(menu("NX 10")), foreign + foreign);
    }

    void aRemovalCreatesNoFile()
    {
        find(V10_0, "NX 10", foreign);
        QVERIFY(QFile::remove(menu("NX 10")));
        step(RunMode::Uninstall);
        QVERIFY(!QFile::exists(menu("NX 10")));
    }

    void anInstallDirWithAnUmlautIsWrittenInTheCodePage()
    {
        m_fixture->state.installDir = u"C:\\Größe"_s;
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign + line("\\NX10"));
        step(RunMode::Uninstall);
        QCOMPARE(readFile(menu("NX 10")), foreign + "\r\n");
    }

    void anInstallDirThatTheCodePageCannotEncodeIsLogged()
    {
        m_fixture->state.installDir = u"C:\\"_s + QChar(0xD800);
        find(V10_0, "NX 10", foreign);
        step(RunMode::Install);
        QCOMPARE(readFile(menu("NX 10")), foreign);
        QCOMPARE(m_fixture->takeLines().last(),
                 u"1 The install folder's path cannot be written in the system's code page; the launcher is "
                 "not added to "_s +
                     menu("NX 10"));
    }

    void aFolderWithTheNameOfTheFileIsSkipped()
    {
        find(V10_0, "NX 10", foreign);
        QVERIFY(QFile::remove(menu("NX 10")));
        QVERIFY(QDir().mkpath(menu("NX 10")));
        const RecordedDiagnostics diagnostics;
        step(RunMode::Install);
        step(RunMode::Uninstall);
        QVERIFY(QFileInfo(menu("NX 10")).isDir());
        QVERIFY(!QFile::exists(backup("NX 10")));
        QVERIFY(m_fixture->takeLines().filter(QRegularExpression(u"^1 "_s)).isEmpty());
        // For the backup, for the line, and for the removal.
        QCOMPARE(diagnostics.list(), QStringList(3, u"Unable to read "_s + menu("NX 10")));
    }

private:
    void step(RunMode mode) { installNxLauncher(m_fixture->step(mode)); }

    // Adds a version of NX in the folder, with this custom_dirs.dat, to those found.
    void find(Version version, const char *folder, const QByteArray &contents)
    {
        m_fixture->packages.nxInstalls.append(
            {version, m_fixture->test.path(QString::fromUtf8(folder)), keyOf(version)});
        writeFile(menu(folder), contents);
    }

    static QString keyOf(Version version)
    {
        return u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\"_s +
               nxVersions[static_cast<size_t>(version)];
    }

    QString menu(const char *folder) const
    {
        return joinPath(m_fixture->test.path(QString::fromUtf8(folder)), u"UGII/MENUS/custom_dirs.dat"_s);
    }

    QString backup(const char *folder) const { return menu(folder) + u".bak"_s; }

    QByteArray line(const char *subFolder) const
    {
        return Nvx::Util::toAnsi(u"\r\n"_s + m_fixture->state.installDir + u"\\Launchers\\UGNX"_s +
                                 QString::fromUtf8(subFolder) + u"\r\n"_s)
            .value();
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_nx_launcher)
#include "tst_nx_launcher.moc"
