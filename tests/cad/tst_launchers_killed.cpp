// Steps that are killed while they rewrite files of CAD systems.

#include "cad/creo/creo.h"
#include "cad/creo/protk_file.h"
#include "cad/nx/nx.h"
#include "cad/nx/nx_custom_dirs.h"
#include "launcher_fixture.h"
#include "nvx_util/code_page.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kills = 25;
const QString creoOption = u"--creo"_s;
const QString nxOption = u"--nx"_s;
const QString installDir = u"C:\\NVX"_s;
const QString key = u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\11.0"_s;

// One folder that serves as the install dir of both CAD systems.
struct Places
{
    explicit Places(const QString &folder)
    {
        packages.creoInstalls = {{3, folder, QString()}};
        packages.nxInstalls = {{7, folder, key}};
        protk = protkPath(folder, QString(), 3);
        menu = QDir(folder).filePath(u"UGII/MENUS/custom_dirs.dat"_s);
    }

    CadPackages packages;
    QString protk;
    QString menu;
};

/// Installs and removes in a loop until this program is killed.
int configureForever(const QString &option, const QString &folder)
{
    const Places places(folder);
    RecordingMachine machine;
    machine.ownFolder = installDir;
    RecordingReporter reporter;
    RunState state;
    state.installDir = installDir;
    UnshownCheckBoxes checkBoxes;
    const SharedFolders folders;
    checkBoxes.setFound(Launcher::Creo, true);
    checkBoxes.setFound(Launcher::Nx, true);
    for (;;) {
        for (const RunMode mode : {RunMode::Install, RunMode::Uninstall}) {
            const LauncherStep step{{machine, reporter, state}, places.packages, checkBoxes, folders, mode};
            if (option == creoOption)
                installCreoLauncher(step);
            else
                installNxLauncher(step);
            reporter.lines.clear();
        }
    }
}

// Starts this program with the option, kills it some time after it has rewritten the file, and checks what is
// left. The time is different in each round.
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

    void customDirsIsTheOldFileOrTheNewAndItsBackupTheOriginal()
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
            const QString backup = places.menu + u".bak"_s;
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
