// The whole road on this machine: the real lupdate and lrelease, and a worker at the other end of the share.

#include "localization/util_localization_tool.h"
#include "nvx_util/languages.h"
#include "nvx_util/native_machine.h"
#include "run/run_state.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QDirIterator>
#include <QProcess>
#include <QTest>
#include <QTranslator>

#include <memory>

using util::util_localization_tool;

namespace {

/// This machine, but the executable lies in a folder of the test, and time passes at once.
class QuickMachine : public Nvx::Util::NativeMachine
{
public:
    QString folder;
    std::function<void()> whileSleeping;

    QString executableFolder() const override { return folder; }
    void sleep(std::chrono::milliseconds) override
    {
        if (whileSleeping)
            whileSleeping();
    }
};

void copyFolder(const QString &from, const QString &to)
{
    QVERIFY(QDir().mkpath(to));
    const QFileInfoList entries = QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isDir())
            copyFolder(entry.filePath(), target);
        else
            QVERIFY(QFile::copy(entry.filePath(), target));
    }
}

} // namespace

class tst_localization_tool : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_test = std::make_unique<TestMachine>();
        m_machine = std::make_unique<QuickMachine>();
        m_machine->folder = m_test->installDir();
        m_reporter = std::make_unique<RecordingReporter>();
        m_state = RunState();
        m_state.installDir = m_test->installDir();
        copyFolder(text(SAMPLE_FOLDER "/Projects"), root("Projects"));
        copyFolder(text(SAMPLE_FOLDER "/Locale"), root("Locale"));
        QVERIFY(QDir().mkpath(share("~cBuild/job")));
        writeSettings(text(TOOLS_FOLDER));
    }

    void sourcesGoInAndEveryLanguageComesOut()
    {
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages) {
            const QString locale = language.locale;
            const QString code = language.translatorsCode;
            QTranslator client;
            QVERIFY(client.load(root("Locale/") + locale + text("/client.qm")));
            QCOMPARE(client.translate("StudyWindow", "Solve"), text("[%1] Solve").arg(code));
            QCOMPARE(client.translate("StudyWindow", "Study %1"),
                     text("[%2] Study %1").arg(text("%1"), code));
            QTranslator config;
            QVERIFY(config.load(root("Locale/") + locale + text("/nvxconfig.qm")));
            QCOMPARE(config.translate("SetUp", "The product has been set up"),
                     text("[%1] The product has been set up").arg(code));
            QCOMPARE(readFile(root("Locale/") + locale + text("/Ribbon2D.xmal")),
                     readFile(root("Locale/en-US/Ribbon2D.xmal")));
        }
        QCOMPARE(mileStones(),
                 QStringList({text("tr1 finishes cool"), text("tr2 finishes cool"), text("mat finishes cool"),
                              text("job file cool"), text("job done"), text("cbuild finishes cool"),
                              text("release finishes cool"), text("Ribbon2D copied cool")}));
        QCOMPARE(levels(), QString());
    }

    void theLogBeginsWithTheFoldersAndThenTheSources()
    {
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        const QStringList lines = m_reporter->lines.mid(0, 6);
        QCOMPARE(lines,
                 QStringList({text("0 ") + root(""), text("0 ") + share("NVX360") + QDir::separator(),
                              text("0 ") + root("Projects/Client/study_window.cpp: 3 texts to translate"),
                              text("0 ") + root("Projects/Client/study_window.ui: 2 texts to translate"),
                              text("0 ") + root("Projects/Config/set_up.cpp: 1 texts to translate"),
                              text("0 6 texts to translate in 3 files")}));
    }

    void aSecondRunGivesTheSameFiles()
    {
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        const QMap<QString, QByteArray> first = localeFiles();
        QVERIFY(first.size() > 40);
        tool()->runScript();
        const QMap<QString, QByteArray> second = localeFiles();
        QCOMPARE(second.keys(), first.keys());
        for (const QString &name : first.keys())
            QVERIFY2(second.value(name) == first.value(name), qPrintable(name));
    }

    void aDamagedFileFromTheShareIsLeftOutAndTheGoodOneIsCompiled()
    {
        writeFile(root("Locale/deu-good.txt"));
        const QByteArray good = "<TS version=\"2.1\" language=\"de_DE\"><context><name>StudyWindow</name>"
                                "<message><source>Solve</source><translation>Berechnen</translation>"
                                "</message></context></TS>";
        writeFile(root("Locale/de-DE/client.ts"), good);
        m_machine->whileSleeping = [this] { work({text("--damage"), text("deu/client.ts")}); };
        tool()->runScript();
        QCOMPARE(readFile(root("Locale/de-DE/client.ts")), good);
        QVERIFY(m_reporter->lines.contains(text("1 download fails ") + share("NVX360/deu/client.ts")));
        QTranslator client;
        QVERIFY(client.load(root("Locale/de-DE/client.qm")));
        QCOMPARE(client.translate("StudyWindow", "Solve"), text("Berechnen"));
    }

    void materialsThatAreNoXmlLeaveTheirTranslationsAlone()
    {
        const QByteArray earlier = "<TS version=\"2.1\"></TS>";
        writeFile(root("Locale/en-US/matprop.ts"), earlier);
        writeFile(root("Projects/Client/runtime/matprop.mdb"), "no XML");
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        QCOMPARE(readFile(root("Locale/en-US/matprop.ts")), earlier);
        const qsizetype done = m_reporter->lines.indexOf(text("0 mat finishes cool"));
        QVERIFY(m_reporter->lines.value(done - 1).startsWith(text("1 ") +
                                                             root("Projects/Client/runtime/matprop.mdb")));
        QVERIFY(mileStones().contains(text("Ribbon2D copied cool")));
    }

    void aShareThatGoesAwayInTheMiddleCostsTheWaitAndNothingElse()
    {
        m_machine->whileSleeping = [this] { QDir(share("")).removeRecursively(); };
        writeFile(root("Locale/de-DE/client.ts"), "<TS version=\"2.1\" language=\"de_DE\"></TS>");
        tool()->runScript();
        QVERIFY(m_reporter->lines.contains(text("1 timeout")));
        QVERIFY(mileStones().contains(text("Ribbon2D copied cool")));
        QVERIFY(QFile::exists(root("Locale/de-DE/client.qm")));
    }

    void missingToolsAreLoggedAndTheRunGoesOn()
    {
        writeSettings(m_test->path(text("no tools")));
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        QVERIFY(m_reporter->lines.filter(text("The program could not be started.")).size() >= 2);
        QVERIFY(mileStones().contains(text("tr1 finishes cool")));
        QVERIFY(mileStones().contains(text("Ribbon2D copied cool")));
    }

    void damagedSettingsTouchNothing()
    {
        writeFile(m_test->installDir() + text("/localization.xml"), "<localization><root>");
        const QMap<QString, QByteArray> before = localeFiles();
        tool()->runScript();
        QCOMPARE(localeFiles(), before);
        QCOMPARE(m_reporter->lines.first(),
                 text("1 %1 is damaged").arg(m_test->path(text("NVX/localization.xml"))));
        QVERIFY(m_reporter->lines.contains(text("1 There is no folder of sources, nothing is translated")));
        QCOMPARE(m_reporter->lines.last(), text("0 Ribbon2D copied cool"));
    }

    void aRootFolderThatIsNotThereTouchesNothing()
    {
        QVERIFY(QDir(root("")).removeRecursively());
        tool()->runScript();
        QVERIFY(!QFile::exists(root("")));
        QVERIFY(m_reporter->lines.contains(text("1 There is no folder of sources, nothing is translated")));
        QCOMPARE(m_reporter->lines.last(), text("0 Ribbon2D copied cool"));
    }

private:
    QString root(const char *name) const { return inFolder("Übersetzung a b", name); }
    QString share(const char *name) const { return inFolder("share/pTrans", name); }

    QString inFolder(const char *folder, const char *name) const
    {
        const QString path = m_test->path(text(folder));
        return *name ? path + QDir::toNativeSeparators(text("/") + text(name)) : path;
    }

    void writeSettings(const QString &tools)
    {
        const QString xml = text("<localization><root>%1</root><share>%2</share><qtTools>%3</qtTools>"
                                 "</localization>")
                                .arg(root(""), m_test->path(text("share")), tools);
        writeFile(m_test->installDir() + text("/localization.xml"), xml.toUtf8());
    }

    std::unique_ptr<util_localization_tool> tool()
    {
        return std::make_unique<util_localization_tool>(StepContext{*m_machine, *m_reporter, m_state});
    }

    /// The worker does the job that is waiting, if there is one.
    void work(const QStringList &options)
    {
        if (!QFile::exists(share("~cBuild/job/NVX360.job")))
            return;
        const QStringList arguments =
            QStringList{text(SAMPLE_FOLDER "/translation_worker.py"), m_test->path(text("share")),
                        text("--once"), text("--settle"), text("0")} +
            options;
        QCOMPARE(QProcess::execute(text("python3"), arguments), 0);
    }

    /// The lines that end in "cool", and the end of the job.
    QStringList mileStones() const
    {
        QStringList found;
        for (const QString &line : m_reporter->lines)
            if (line.endsWith(text(" cool")) || line == text("0 job done"))
                found.append(line.mid(2));
        return found;
    }

    /// The lines that are not of level 0.
    QString levels() const
    {
        QStringList found;
        for (const QString &line : m_reporter->lines)
            if (!line.startsWith(text("0 ")))
                found.append(line);
        return found.join(QLatin1Char('\n'));
    }

    /// The files of the languages; what is collected of them for the next job is another matter.
    QMap<QString, QByteArray> localeFiles() const
    {
        QMap<QString, QByteArray> files;
        QDirIterator all(root("Locale"), QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            if (!path.contains(text("/collect/")))
                files.insert(path, readFile(path));
        }
        return files;
    }

    std::unique_ptr<TestMachine> m_test;
    std::unique_ptr<QuickMachine> m_machine;
    std::unique_ptr<RecordingReporter> m_reporter;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_localization_tool)
#include "tst_localization_tool.moc"
