// A whole run on this machine, with the real lupdate and lrelease and a worker at the other end of the share.

#include "localization/util_localization_tool.h"
#include "nvx_util/languages.h"
#include "nvx_util/native_machine.h"
#include "run/run_state.h"
#include "support/checkout.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QDirIterator>
#include <QProcess>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using util::util_localization_tool;

namespace {

/// This machine, except that the executable is in a folder of the test and sleep returns at once.
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
        const QString target = to + u'/' + entry.fileName();
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
        copyFolder(inCheckout(SAMPLE_FOLDER "/Projects"), root("Projects"));
        copyFolder(inCheckout(SAMPLE_FOLDER "/Locale"), root("Locale"));
        QVERIFY(QDir().mkpath(share("~cBuild/job")));
        writeSettings(text(TOOLS_FOLDER));
    }

    void everyLanguageIsTranslatedAndCompiled()
    {
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages) {
            const QString locale = language.locale;
            const QString code = language.translatorsCode;
            QTranslator client;
            QVERIFY(client.load(root("Locale/") + locale + u"/client.qm"_s));
            QCOMPARE(client.translate("StudyWindow", "Solve"), u"[%1] Solve"_s.arg(code));
            QCOMPARE(client.translate("StudyWindow", "Study %1"), u"[%2] Study %1"_s.arg(u"%1"_s, code));
            QTranslator config;
            QVERIFY(config.load(root("Locale/") + locale + u"/nvxconfig.qm"_s));
            QCOMPARE(config.translate("SetUp", "The product has been set up"),
                     u"[%1] The product has been set up"_s.arg(code));
            QCOMPARE(readFile(root("Locale/") + locale + u"/Ribbon2D.xmal"_s),
                     readFile(root("Locale/en-US/Ribbon2D.xmal")));
        }
        QCOMPARE(mileStones(),
                 QStringList({u"tr1 finishes cool"_s, u"tr2 finishes cool"_s, u"mat finishes cool"_s,
                              u"job file cool"_s, u"job done"_s, u"cbuild finishes cool"_s,
                              u"release finishes cool"_s, u"Ribbon2D copied cool"_s}));
        QCOMPARE(levels(), QString());
    }

    void theLogBeginsWithTheFoldersAndThenTheSources()
    {
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        const QStringList lines = m_reporter->lines.mid(0, 6);
        QCOMPARE(lines, QStringList({u"0 "_s + root(""), u"0 "_s + share("NVX360") + QDir::separator(),
                                     u"0 "_s + root("Projects/Client/study_window.cpp: 3 texts to translate"),
                                     u"0 "_s + root("Projects/Client/study_window.ui: 2 texts to translate"),
                                     u"0 "_s + root("Projects/Config/set_up.cpp: 1 texts to translate"),
                                     u"0 6 texts to translate in 3 files"_s}));
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

    void aDamagedFileFromTheShareIsSkippedAndTheExistingOneIsCompiled()
    {
        writeFile(root("Locale/deu-good.txt"));
        const QByteArray good = "<TS version=\"2.1\" language=\"de_DE\"><context><name>StudyWindow</name>"
                                "<message><source>Solve</source><translation>Berechnen</translation>"
                                "</message></context></TS>";
        writeFile(root("Locale/de-DE/client.ts"), good);
        m_machine->whileSleeping = [this] { work({u"--damage"_s, u"deu/client.ts"_s}); };
        tool()->runScript();
        QCOMPARE(readFile(root("Locale/de-DE/client.ts")), good);
        QVERIFY(m_reporter->lines.contains(u"1 download fails "_s + share("NVX360/deu/client.ts")));
        QTranslator client;
        QVERIFY(client.load(root("Locale/de-DE/client.qm")));
        QCOMPARE(client.translate("StudyWindow", "Solve"), u"Berechnen"_s);
    }

    void aMalformedMaterialDatabaseLeavesItsTranslationsUnchanged()
    {
        const QByteArray earlier = "<TS version=\"2.1\"></TS>";
        writeFile(root("Locale/en-US/matprop.ts"), earlier);
        writeFile(root("Projects/Client/runtime/matprop.mdb"), "no XML");
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        QCOMPARE(readFile(root("Locale/en-US/matprop.ts")), earlier);
        const qsizetype done = m_reporter->lines.indexOf(u"0 mat finishes cool"_s);
        QVERIFY(m_reporter->lines.value(done - 1).startsWith(u"1 "_s +
                                                             root("Projects/Client/runtime/matprop.mdb")));
        QVERIFY(mileStones().contains(u"Ribbon2D copied cool"_s));
    }

    void aShareThatDisappearsOnlyCostsTheWaitingTime()
    {
        m_machine->whileSleeping = [this] { QDir(share("")).removeRecursively(); };
        writeFile(root("Locale/de-DE/client.ts"), "<TS version=\"2.1\" language=\"de_DE\"></TS>");
        tool()->runScript();
        QVERIFY(m_reporter->lines.contains(u"1 timeout"_s));
        QVERIFY(mileStones().contains(u"Ribbon2D copied cool"_s));
        QVERIFY(QFile::exists(root("Locale/de-DE/client.qm")));
    }

    void missingToolsAreLoggedAndTheRunContinues()
    {
        writeSettings(m_test->path(u"no tools"_s));
        m_machine->whileSleeping = [this] { work({}); };
        tool()->runScript();
        QVERIFY(m_reporter->lines.filter(u"The program could not be started."_s).size() >= 2);
        QVERIFY(mileStones().contains(u"tr1 finishes cool"_s));
        QVERIFY(mileStones().contains(u"Ribbon2D copied cool"_s));
    }

    void damagedSettingsTouchNothing()
    {
        writeFile(m_test->installDir() + u"/localization.xml"_s, "<localization><root>");
        const QMap<QString, QByteArray> before = localeFiles();
        tool()->runScript();
        QCOMPARE(localeFiles(), before);
        QCOMPARE(m_reporter->lines.first(),
                 u"1 %1 is damaged"_s.arg(m_test->path(u"NVX/localization.xml"_s)));
        QVERIFY(m_reporter->lines.contains(u"1 No source folder was found; nothing is translated"_s));
        QCOMPARE(m_reporter->lines.last(), u"0 Ribbon2D copied cool"_s);
    }

    void aMissingRootFolderTouchesNothing()
    {
        QVERIFY(QDir(root("")).removeRecursively());
        tool()->runScript();
        QVERIFY(!QFile::exists(root("")));
        QVERIFY(m_reporter->lines.contains(u"1 No source folder was found; nothing is translated"_s));
        QCOMPARE(m_reporter->lines.last(), u"0 Ribbon2D copied cool"_s);
    }

private:
    QString root(const char *name) const { return inFolder("Übersetzung a b", name); }
    QString share(const char *name) const { return inFolder("share/pTrans", name); }

    QString inFolder(const char *folder, const char *name) const
    {
        const QString path = m_test->path(text(folder));
        return *name ? path + QDir::toNativeSeparators(u"/"_s + text(name)) : path;
    }

    void writeSettings(const QString &tools)
    {
        const QString xml = u"<localization><root>%1</root><share>%2</share><qtTools>%3</qtTools>"
                            "</localization>"_s.arg(root(""), m_test->path(u"share"_s), tools);
        writeFile(m_test->installDir() + u"/localization.xml"_s, xml.toUtf8());
    }

    std::unique_ptr<util_localization_tool> tool()
    {
        return std::make_unique<util_localization_tool>(StepContext{*m_machine, *m_reporter, m_state});
    }

    /// Lets the worker do the waiting job, if there is one.
    void work(const QStringList &options)
    {
        if (!QFile::exists(share("~cBuild/job/NVX360.job")))
            return;
        const QStringList arguments =
            QStringList{inCheckout(SAMPLE_FOLDER "/translation_worker.py"), m_test->path(u"share"_s),
                        u"--once"_s, u"--settle"_s, u"0"_s} +
            options;
        QCOMPARE(QProcess::execute(u"python3"_s, arguments), 0);
    }

    /// The lines that end in "cool", and the end of the job.
    QStringList mileStones() const
    {
        QStringList found;
        for (const QString &line : m_reporter->lines)
            if (line.endsWith(u" cool"_s) || line == u"0 job done"_s)
                found.append(line.mid(2));
        return found;
    }

    /// The lines whose level is not 0.
    QString levels() const
    {
        QStringList found;
        for (const QString &line : m_reporter->lines)
            if (!line.startsWith(u"0 "_s))
                found.append(line);
        return found.join(u'\n');
    }

    /// The files of the languages, without the copies collected for the next job.
    QMap<QString, QByteArray> localeFiles() const
    {
        QMap<QString, QByteArray> files;
        QDirIterator all(root("Locale"), QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            if (!path.contains(u"/collect/"_s))
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
