// Whole runs on a full disk: they reach their end and leave no file of another program incomplete, and a
// later run with enough space has the usual result.

#include "cad/creo/protk_file.h"
#include "engine/engine_fixture.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/recorded_diagnostics.h"
#include "support/small_disk.h"
#include "support/text.h"

#include <QDirIterator>
#include <QGuiApplication>
#include <QTest>

#include <cstdio>

using Nvx::Util::joinPath;
using Nvx::Util::ProgramCall;
using Nvx::Util::ProgramResult;
using Nvx::Util::RegistryKey;
using namespace Nvx::Engine;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int notRun = 77; // the exit code that ctest reports as a skipped test
constexpr qint64 diskPages = 256;
constexpr qint64 maxFreePages = 40; // more than a run needs

const QByteArray foreignEntries = QByteArray("name Other\r\nexec_file C:\\gr\xf6\xdf"
                                             "er.dll\r\nend\r\n")
                                      .repeated(300);
const QByteArray foreignDirs = QByteArray("C:\\Siemens\\gr\xf6\xdf"
                                          "er\r\n")
                                   .repeated(300);
const QByteArray shippedDatabase(3 * SmallDisk::page, 'm');

using Files = QMap<QString, QByteArray>;

/// The disk that is full.
enum class Full
{
    DataDisk,
    WholeDisk
};

/// A machine with a small disk. Its programs change the disk as the real ones do.
class SmallMachine
{
public:
    explicit SmallMachine(Full full)
        : m_folder(fixture.test.path(u"disk"_s))
    {
        QDir().mkpath(m_folder);
        disk = std::make_unique<SmallDisk>(m_folder, diskPages);
        fixture.test.setVariable("NVX_MACHINE", m_folder);
        fixture.test.unsetVariable("OSTRADE2016DIR");
        fixture.machine.desktop = joinPath(m_folder, u"Desktop"_s);
        installDir = full == Full::WholeDisk ? joinPath(m_folder, u"NVX"_s) : fixture.test.installDir();
        fixture.machine.ownFolder = installDir;
        fixture.machine.whileRunning = [this](const ProgramCall &call) { act(call); };
        for (const char *name : {"NVXSolver.exe", "NVXServer.exe"})
            writeFile(joinPath(installDir, text(name)));
        writeFile(joinPath(installDir, u"matprop.mdb"_s), shippedDatabase);
        writeFile(joinPath(installDir, u"en-US/matprop.mdb"_s), shippedDatabase);
        putCadSystems();
    }

    void run(const char *mode)
    {
        badPrograms.clear();
        const RecordedDiagnostics recorded;
        cfg_utilitys &engine = fixture.start(text(mode) + u" -S -Len-US"_s);
        engine.searchCADPackages();
        engine.ProcessInstallation();
        if (engine.state().runMode == RunMode::Uninstall)
            engine.removeOldFiles(OldFiles::Remove);
        isComplete = engine.state().runComplete;
        fixture.engine.reset();
        diagnostics = recorded.list();
    }

    /// The log of all runs.
    QStringList lines() const { return logLines(joinPath(installDir, u"NVXConfig.log"_s)); }

    /// All files except the log and the one that fills the disk, by their path in the test's folder.
    Files files() const
    {
        Files found;
        for (const QString &top : {m_folder, installDir}) {
            QDirIterator entries(top, QDir::Files | QDir::Hidden | QDir::System,
                                 QDirIterator::Subdirectories);
            while (entries.hasNext()) {
                const QString path = entries.next();
                if (!path.endsWith(u"/filler"_s) && !path.endsWith(u"/NVXConfig.log"_s))
                    found.insert(path.mid(fixture.test.path({}).size()), shownAs(readFile(path)));
            }
        }
        return found;
    }

    EngineFixture fixture;
    std::unique_ptr<SmallDisk> disk;
    QString installDir;
    QString protk;
    QString menu;
    bool isComplete = false;
    /// Free the disk while the server registers itself.
    bool freesDiskDuringRun = false;
    /// Incomplete files that were executed.
    QStringList badPrograms;
    /// The diagnostic warnings of the last run.
    QStringList diagnostics;

private:
    void putCadSystems()
    {
        const QString creo = joinPath(m_folder, u"PTC/Creo 3.0/Parametric"_s);
        protk = Nvx::Cad::protkPath(creo, QString(), 3);
        writeFile(protk, foreignEntries);
        const QString software = u"HKEY_LOCAL_MACHINE\\Software\\"_s;
        RegistryKey(software + u"PTC\\Creo Parametric\\3.0\\F000"_s).setText(u"InstallDir"_s, creo);
        const QString nx = joinPath(m_folder, u"NX 11.0"_s);
        menu = joinPath(nx, u"UGII/MENUS/custom_dirs.dat"_s);
        writeFile(menu, foreignDirs);
        RegistryKey(software + u"Unigraphics Solutions\\NX\\11.0"_s).setText(u"UGII_BASE_DIR"_s, nx);
    }

    // Replaces the name of the test's folder, which differs in each test.
    QByteArray shownAs(QByteArray contents) const
    {
        return contents.replace(fixture.test.path({}).toUtf8(), "TEST/");
    }

    void act(const ProgramCall &call)
    {
        bool isDone = true;
        if (call.program.endsWith(u"7z.exe"_s))
            isDone = unpack(call.arguments.last().mid(2));
        else if (call.program == u"cmd.exe"_s)
            isDone = removeFolder(call.arguments.last());
        else if (call.program == u"regedit"_s)
            isDone = import(call.arguments.last());
        else if (call.program.endsWith(u"NVXServer.exe"_s))
            registerServer();
        fixture.machine.programResult = {ProgramResult::Outcome::Exited, isDone ? 0 : 8, {}};
    }

    void registerServer()
    {
        fixture.machine.service.current = Nvx::Util::ServiceState::Stopped;
        if (freesDiskDuringRun)
            disk->makeRoom();
    }

    // Like the unpacker, it continues with the next file if one does not fit.
    static bool unpack(const QString &folder)
    {
        bool isDone = true;
        for (const char *name : {"one.txt", "sub/two.txt"}) {
            const QString path = joinPath(folder, text(name));
            QDir().mkpath(QFileInfo(path).path());
            QFile file(path);
            const QByteArray contents(SmallDisk::page + 1, 'u');
            isDone = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() &&
                     file.flush() && isDone;
        }
        return isDone;
    }

    bool removeFolder(const QString &batchFile)
    {
        static const QRegularExpression command(u"^rmdir /s /q \"([^\"]+)\"$"_s);
        const QString batch = QString::fromUtf8(readFile(batchFile));
        const QRegularExpressionMatch match = command.match(batch);
        if (!match.hasMatch()) {
            badPrograms << u"batch file: "_s + batch;
            return false;
        }
        return QDir(match.captured(1)).removeRecursively();
    }

    bool import(const QString &script)
    {
        const QByteArray bytes = readFile(script);
        const bool isWhole = bytes.startsWith("Windows Registry Editor") &&
                             (bytes.endsWith("nvxpkg.ico\\\"\"\n") || bytes.endsWith("NVX2017.tpl]\n"));
        if (!isWhole)
            badPrograms << u"script: "_s + QString::fromUtf8(bytes);
        return isWhole;
    }

    QString m_folder;
};

/// Every number of free pages from zero to maxFreePages.
void addRows()
{
    QTest::addColumn<Full>("full");
    QTest::addColumn<qint64>("pages");
    for (qint64 pages = 0; pages <= maxFreePages; ++pages) {
        QTest::addRow("the disk of the data, %lld pages", pages) << Full::DataDisk << pages;
        QTest::addRow("the whole disk, %lld pages", pages) << Full::WholeDisk << pages;
    }
}

/// The paths of the files that are in one set only or differ.
QStringList differences(const Files &left, const Files &right)
{
    QSet<QString> paths;
    for (const Files &files : {left, right}) {
        for (auto file = files.begin(); file != files.end(); ++file) {
            if (!left.contains(file.key()) || !right.contains(file.key()) ||
                left.value(file.key()) != right.value(file.key()))
                paths.insert(file.key());
        }
    }
    return paths.values();
}

QStringList unfinished(const Files &files)
{
    return files.keys().filter(QRegularExpression(u"part$|\\.reg$|work\\.bat$|qt_temp"_s));
}

} // namespace

class tst_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const Full full : {Full::DataDisk, Full::WholeDisk}) {
            SmallMachine machine(full);
            QVERIFY(machine.disk->isMounted());
            machine.run("-I");
            m_installed.insert(full, machine.files());
            machine.run("-U");
            m_removed.insert(full, machine.files());
        }
    }

    void installReachesItsEnd_data() { addRows(); }

    void installReachesItsEnd()
    {
        QFETCH(Full, full);
        QFETCH(qint64, pages);
        SmallMachine machine(full);
        const Files before = machine.files();
        QVERIFY(machine.disk->leave(pages));
        machine.run("-I");
        checkWhole(machine, before, m_installed.value(full));
        if (full == Full::DataDisk)
            checkReported(machine, m_installed.value(full));

        machine.disk->makeRoom();
        machine.run("-I");
        QCOMPARE(differences(machine.files(), m_installed.value(full)), QStringList());
    }

    void removalReachesItsEnd_data() { addRows(); }

    void removalReachesItsEnd()
    {
        QFETCH(Full, full);
        QFETCH(qint64, pages);
        SmallMachine machine(full);
        machine.run("-I");
        QVERIFY(machine.disk->leave(pages));
        machine.run("-U");
        checkWhole(machine, m_installed.value(full), m_removed.value(full));
        if (full == Full::DataDisk)
            checkReported(machine, m_removed.value(full));

        machine.disk->makeRoom();
        machine.run("-U");
        QCOMPARE(differences(machine.files(), m_removed.value(full)), QStringList());
    }

    void logOnADiskFreedDuringTheRunIsComplete()
    {
        SmallMachine machine(Full::WholeDisk);
        QVERIFY(machine.disk->leave(0));
        machine.freesDiskDuringRun = true;
        machine.run("-I");
        const QStringList lines = machine.lines();
        QCOMPARE(lines.filter(QRegularExpression(u"^! (?!Processors: )"_s)), QStringList());
        QCOMPARE(lines.first(), u"   0 "_s);
        const QString tutorials = Nvx::Util::System::getTutorialsDirPath();
        QVERIFY(lines.contains(u"   1 Unable to create %1work.bat; this folder is not removed: %2"_s.arg(
            machine.installDir, tutorials)));
        QCOMPARE(lines.last(), u"   0 The installation or update is complete. Click finish to continue."_s);
    }

    // The tests are meaningful only if the space was too small in some rows and sufficient in others.
    void cleanupTestCase()
    {
        QVERIFY(m_disturbed > 0);
        QVERIFY(m_undisturbed > 0);
    }

private:
    // The run has ended, and each file shared with other programs is as before or as after a run with enough
    // space.
    void checkWhole(const SmallMachine &machine, const Files &before, const Files &after)
    {
        QVERIFY(machine.isComplete);
        QCOMPARE(machine.badPrograms, QStringList());
        const Files files = machine.files();
        QCOMPARE(unfinished(files), QStringList());
        for (const char *ending : {"/protk.dat", "/custom_dirs.dat", "/custom_dirs.dat.bak",
                                   "/matprop.nvxmdb", "/NVX2_config.nvxcfg"}) {
            for (auto file = files.begin(); file != files.end(); ++file) {
                if (file.key().endsWith(text(ending)))
                    QVERIFY2(file.value() == before.value(file.key()) ||
                                 file.value() == after.value(file.key()),
                             qPrintable(file.key()));
            }
        }
        for (const QString &path : {machine.protk, machine.menu})
            QVERIFY2(QFile::exists(path), qPrintable(path));
        ++(files == after ? m_undisturbed : m_disturbed);
    }

    // The log, on a disk with free space, is complete; the diagnostic output names every file of a CAD system
    // that could not be written.
    static void checkReported(const SmallMachine &machine, const Files &after)
    {
        const QStringList lines = machine.lines();
        QCOMPARE(lines.filter(u"The installation or update is complete."_s).isEmpty(), false);
        const Files files = machine.files();
        for (const QString &path : {machine.protk, machine.menu}) {
            const QString key = path.mid(machine.fixture.test.path({}).size());
            QCOMPARE(machine.diagnostics.contains(u"Unable to write "_s + path),
                     files.value(key) != after.value(key));
        }
    }

    QMap<Full, Files> m_installed;
    QMap<Full, Files> m_removed;
    int m_disturbed = 0;
    int m_undisturbed = 0;
};

int main(int argc, char *argv[])
{
    if (!SmallDisk::arePermitted()) {
        std::puts("Not run: this process may not mount a file system.");
        return notRun;
    }
    const QGuiApplication application(argc, argv);
    tst_full_disk test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_full_disk.moc"
