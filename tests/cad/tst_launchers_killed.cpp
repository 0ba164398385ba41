// The steps that rewrite files of CAD systems, killed while they do so.

#include "cad/creo/creo_launcher.h"
#include "cad/creo/creo_names.h"
#include "cad/nx/nx_custom_dirs.h"
#include "cad/nx/nx_launcher.h"
#include "launcher_fixture.h"
#include "nvx_util/code_page.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

namespace {

constexpr int kills = 25;
const QString creoOption = QStringLiteral("--creo");
const QString nxOption = QStringLiteral("--nx");
const QString installDir = QStringLiteral("C:\\NVX");
const QString key = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\11.0");

// The CAD systems of a folder that are at work in this test.
struct Places
{
    explicit Places(const QString &folder)
    {
        packages.creoInstallDirs[3] = folder;
        packages.nxInstallDirs[7] = folder;
        packages.nxKeys[7] = key;
        protk = protkPath(folder, QString(), 3);
        menu = QDir(folder).filePath(QStringLiteral("UGII/MENUS/custom_dirs.dat"));
    }

    CadPackages packages;
    QString protk;
    QString menu;
};

/// Installs and removes again and again until somebody kills this program.
int configureForever(const QString &option, const QString &folder)
{
    const Places places(folder);
    RecordingMachine machine;
    machine.ownFolder = installDir;
    RecordingReporter reporter;
    RunState state;
    state.installDir = installDir;
    UnshownLauncherBoxes boxes;
    boxes.setFound(Launcher::Creo, true);
    boxes.setFound(Launcher::Nx, true);
    for (;;) {
        for (const RunMode mode : {RunMode::Install, RunMode::Uninstall}) {
            if (option == creoOption)
                installCreoLauncher({machine, reporter, state}, places.packages, boxes, mode);
            else
                installNXLauncher({machine, reporter, state}, places.packages, boxes, mode);
            reporter.lines.clear();
        }
    }
}

// Starts such a program, kills it a while after it has rewritten the file, another one each time, and does so
// often.
template<typename Check>
void killOften(const QString &option, const QString &folder, const QString &file, Check check)
{
    for (int kill = 0; kill < kills; ++kill) {
        const QDateTime before = QFileInfo(file).lastModified();
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {option, folder});
        QVERIFY2(program.waitForStarted(), qPrintable(program.errorString()));
        QVERIFY(QTest::qWaitFor([&] { return QFileInfo(file).lastModified() != before; }, 20'000));
        QVERIFY(!program.waitForFinished(7 * kill % 50));
        program.kill();
        QVERIFY(program.waitForFinished());
        check();
        if (QTest::currentTestFailed())
            return;
    }
}

const QByteArray foreign = QByteArray("name Other\r\nexec_file C:\\gr\xf6\xdf"
                                      "er.dll\r\nend\r\n")
                               .repeated(40000);

} // namespace

class tst_launchers_killed : public QObject
{
    Q_OBJECT

private slots:
    void protkIsTheOldFileOrTheNew()
    {
        const TestFolder folder;
        const Places places(folder.path());
        writeFile(places.protk, foreign);
        const QByteArray entered = Nvx::Util::toAnsi(creoEntry(installDir, installDir, 3)).value() + foreign;
        killOften(creoOption, folder.path(), places.protk, [&] {
            const QByteArray left = readFile(places.protk);
            QVERIFY(left == foreign || left == entered);
        });
    }

    void customDirsIsTheOldFileOrTheNewAndItsBackupTheFirst()
    {
        const TestFolder folder;
        const Places places(folder.path());
        writeFile(places.menu, foreign);
        const QString line = customDirsLine(installDir, key);
        killOften(nxOption, folder.path(), places.menu, [&] {
            // Each removal leaves an empty line.
            const QByteArray left = readFile(places.menu);
            QVERIFY(left.startsWith(foreign));
            const QByteArray rest = left.mid(foreign.size());
            const QByteArray emptyLines = withoutCustomDirsLines(rest, installDir);
            QCOMPARE(emptyLines, QByteArray("\r\n").repeated(static_cast<int>(emptyLines.size()) / 2));
            QVERIFY(rest == emptyLines || rest == emptyLines.chopped(2) + line.toLatin1());
            const QString backup = places.menu + QStringLiteral(".bak");
            QVERIFY(!QFile::exists(backup) || readFile(backup) == foreign);
        });
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == creoOption || arguments.value(1) == nxOption)
        return configureForever(arguments.value(1), arguments.value(2));
    tst_launchers_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_launchers_killed.moc"
