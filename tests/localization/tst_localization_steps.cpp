// The steps of a whole run in order, on a machine where programs only are recorded and sleep returns at once.

#include "localization/util_localization_tool.h"
#include "nvx_util/languages.h"
#include "run/run_state.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray whole = "<TS version=\"2.1\" language=\"de\"></TS>";

void protect(const QString &path)
{
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
}

bool isWritable(const QString &path)
{
    return QFile::permissions(path) & QFile::WriteOwner;
}

bool isRunOf(const Nvx::Util::ProgramCall &call, const char *tool)
{
    return QFileInfo(call.program).baseName() == text(tool);
}

} // namespace

class tst_localization_steps : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_test = std::make_unique<TestMachine>();
        m_reporter = std::make_unique<RecordingReporter>();
        m_machine = std::make_unique<RecordingMachine>();
        m_machine->ownFolder = m_test->installDir();
        m_machine->whileRunning = [](const Nvx::Util::ProgramCall &call) {
            writeFile(call.arguments.last(), whole);
        };
        QVERIFY(QDir().mkpath(path("share/pTrans/~cBuild/job")));
        writeFile(path("root/Locale/en-US/client.ts"), whole);
        writeFile(path("root/Locale/en-US/Ribbon2D.xmal"), "<ribbon/>");
        writeFile(path("root/Locale/de-DE/extra.qm"), "compiled");
        writeFile(path("root/Projects/Client/runtime/matprop.mdb"), "<materials/>");
        writeSettings(path("root"));
    }

    void cleanup() { m_test.reset(); }

    void theShareFolderEndsWithASeparator()
    {
        run();
        QCOMPARE(m_reporter->lines.at(0), u"0 "_s + path("root"));
        QCOMPARE(m_reporter->lines.at(1), u"0 "_s + path("share/pTrans/NVX360") + QDir::separator());
    }

    void compiledFilesAreMadeWritableAgainAfterTheCollection()
    {
        const QString compiled = path("root/Locale/de-DE/extra.qm");
        m_machine->whileRunning = [&](const Nvx::Util::ProgramCall &call) {
            if (isRunOf(call, "lupdate"))
                protect(compiled);
        };
        bool writableBeforeTheJob = false;
        m_machine->afterSleep = [&] {
            if (m_machine->sleeps.size() == 1)
                writableBeforeTheJob = isWritable(compiled);
        };
        run();
        QVERIFY(writableBeforeTheJob);
    }

    void theRunPausesForASecondBeforeItAsksForTheJob()
    {
        const QString job = path("share/pTrans/~cBuild/job/NVX360.job");
        bool askedBefore = true;
        m_machine->afterSleep = [&] {
            if (m_machine->sleeps.size() == 1)
                askedBefore = QFile::exists(job);
            else
                answer();
        };
        run();
        QCOMPARE(m_machine->sleeps.size(), 2);
        QCOMPARE(m_machine->sleeps.first(), std::chrono::milliseconds(1000));
        QVERIFY(!askedBefore);
        QVERIFY(QFile::exists(job));
        QVERIFY(QFile::exists(path("root/Locale/collect/enu/client.ts")));
    }

    void compiledFilesAreMadeWritableAgainAfterTheDownload()
    {
        const QString compiled = path("root/Locale/de-DE/extra.qm");
        m_machine->afterSleep = [&] {
            if (m_machine->sleeps.size() == 2) {
                protect(compiled);
                answer();
            }
        };
        QList<bool> writable;
        m_machine->whileRunning = [&](const Nvx::Util::ProgramCall &call) {
            if (isRunOf(call, "lrelease"))
                writable.append(isWritable(compiled));
        };
        run();
        QCOMPARE(writable, QList<bool>(2 * Nvx::Util::targetLanguages.size(), true));
    }

    void eachLocaleHasALineForEachFileThatIsCompiled()
    {
        run();
        QStringList expected;
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages)
            expected << u"0 release client "_s + language.locale << u"0 release config "_s + language.locale;
        expected << u"0 release finishes cool"_s;
        QCOMPARE(m_reporter->lines.filter(u"0 release "_s), expected);

        const qsizetype config = m_reporter->lines.indexOf(u"0 release config fr-FR"_s);
        const QString command = m_reporter->lines.at(config + 1);
        QVERIFY2(command.startsWith(u"0 Command:"_s), qPrintable(command));
        QVERIFY2(command.contains(path("root/Locale/fr-FR/nvxconfig.ts")), qPrintable(command));
    }

    void anUnansweredJobIsDoneAfterItsTimeout()
    {
        run();
        const QStringList lines = m_reporter->lines;
        const qsizetype timeout = lines.indexOf(u"1 timeout"_s);
        QVERIFY(timeout > 0);
        QCOMPARE(lines.at(timeout + 1), u"0 job done"_s);
        QVERIFY(lines.at(timeout + 2).startsWith(u"0 download"_s));
        QVERIFY(lines.contains(u"0 Ribbon2D copied cool"_s));
    }

    void theLogEndsWithTheCountsOfEachLanguage()
    {
        const auto answerOf = [](const QByteArray &type, const QByteArray &language) {
            return "<TS version=\"2.1\" language=\"" + language +
                   "\"><context><name>A</name><message><source>a</source><translation>b</translation></"
                   "message>"
                   "<message><source>c</source><translation type=\"" +
                   type + "\">d</translation></message></context></TS>";
        };
        m_machine->afterSleep = [&] {
            if (m_machine->sleeps.size() != 2)
                return;
            writeFile(path("share/pTrans/NVX360/deu/client.ts"), answerOf("unfinished", "de_DE"));
            writeFile(path("share/pTrans/NVX360/deu/matprop.ts"), answerOf("vanished", "de_DE"));
            writeFile(path("share/pTrans/NVX360/fra/client.ts"), answerOf("", "de_DE"));
            answer();
        };
        run();
        const qsizetype end = m_reporter->lines.indexOf(u"0 Ribbon2D copied cool"_s);
        QStringList expected = {u"0 de-DE: 2 texts finished, 1 open; 0 files refused"_s,
                                u"0 fr-FR: 0 texts finished, 0 open; 1 files refused"_s};
        QCOMPARE(m_reporter->lines.mid(end + 1, 2), expected);
        QCOMPARE(m_reporter->lines.size(), end + 1 + qsizetype(Nvx::Util::targetLanguages.size()));
    }

    void withoutAFolderOfToolsNothingIsUpdatedOrCompiled()
    {
        writeFile(path("NVX/localization.xml"), "<localization><root>" + path("root").toUtf8() +
                                                    "</root>"
                                                    "</localization>");
        run();
        QVERIFY(m_machine->calls.isEmpty());
        QCOMPARE(m_reporter->lines.at(2), u"1 localization.xml has no full path of a folder with lupdate and "
                                          "lrelease; nothing is updated or compiled"_s);
        QVERIFY(m_reporter->lines.contains(u"0 tr1 finishes cool"_s));
        QVERIFY(m_reporter->lines.contains(u"0 release client de-DE"_s));
    }

    void aStepThatFailsIsLoggedToo()
    {
        m_machine->programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 3, {}};
        QVERIFY(QFile::remove(path("root/Projects/Client/runtime/matprop.mdb")));
        run();
        QStringList cool;
        for (const QString &line : std::as_const(m_reporter->lines))
            if (line.endsWith(u" cool"_s))
                cool.append(line);
        QCOMPARE(cool,
                 QStringList({u"0 tr1 finishes cool"_s, u"0 tr2 finishes cool"_s, u"0 mat finishes cool"_s,
                              u"0 job file cool"_s, u"0 cbuild finishes cool"_s, u"0 release finishes cool"_s,
                              u"0 Ribbon2D copied cool"_s}));
        QCOMPARE(m_reporter->lines.count(u"3 Output:"_s),
                 2 + 2 * qsizetype(Nvx::Util::targetLanguages.size()));
        QCOMPARE(m_reporter->lines.filter(u"1 "_s + path("root/Projects/Client/runtime/matprop.mdb")).size(),
                 1);
    }

    void materialNamesWithPluralFormsAreKeptAndTheLogNamesTheCopy()
    {
        const QByteArray plural = "<TS><context><name>Clt::Material</name><message numerus=\"yes\"><source>a"
                                  "</source></message></context></TS>";
        const QString names = path("root/Locale/en-US/matprop.ts");
        writeFile(names, plural);
        run();
        const qsizetype done = m_reporter->lines.indexOf(u"0 mat finishes cool"_s);
        QCOMPARE(m_reporter->lines.value(done - 1),
                 u"1 Parts of the file were dropped; the previous file is kept as %1.before"_s.arg(names));
        QCOMPARE(readFile(names + u".before"_s), plural);
    }

    void withoutARootFolderEveryStepFailsAndTheNextFollows()
    {
        writeSettings(path("no root"));
        const QString translated = path("share/pTrans/NVX360/deu/client.ts");
        writeFile(translated, whole);
        run();
        QCOMPARE(m_reporter->lines, linesWithoutARoot());
        QCOMPARE(m_machine->calls.size(), 0);
        QCOMPARE(readFile(translated), whole);
        QVERIFY(!QFile::exists(path("no root")));
        QVERIFY(!QFile::exists(native("/Locale")));
        QCOMPARE(namesIn(path("share/pTrans/~cBuild/job")), QStringList());
        QCOMPARE(namesIn(path("share/pTrans/NVX360")), QStringList(u"deu"_s));
    }

private:
    QString path(const char *name) const { return m_test->path(text(name)); }

    void writeSettings(const QString &root)
    {
        const QString xml = u"<localization><root>%1</root><share>%2</share><qtTools>%3</qtTools>"
                            "</localization>"_s.arg(root, path("share"), path("tools"));
        writeFile(path("NVX/localization.xml"), xml.toUtf8());
    }

    void answer() { writeFile(path("share/pTrans/~cBuild/job/NVX360.done")); }

    void run()
    {
        RunState state;
        util::util_localization_tool({*m_machine, *m_reporter, state}).runScript();
    }

    /// The log of a run without a root folder. Paths below the root then start with a separator.
    QStringList linesWithoutARoot() const
    {
        const QString locale = QDir::toNativeSeparators(u"/Locale/"_s);
        const QString share = path("share/pTrans/NVX360") + QDir::separator();
        QStringList prepared = {u"1 Permission fails:"_s + locale + u"en-US"_s};
        QStringList collected = {u"1 Permission fails:"_s + locale + native("collect/enu")};
        QStringList uploaded;
        QStringList downloaded;
        QStringList released;
        QStringList copied;
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages) {
            const QString there = share + language.translatorsCode;
            prepared << u"1 Permission fails:"_s + locale + language.locale;
            collected << u"1 Permission fails:"_s + locale + native("collect/") + language.translatorsCode;
            uploaded << u"0 upload "_s + there << u"1 upload fails "_s + there;
            downloaded << u"0 download"_s + there << u"1 download fails "_s + there;
            released << u"0 release client "_s + language.locale << u"0 release config "_s + language.locale;
            copied << u"1 Copy fails:"_s + locale + language.locale + native("/Ribbon2D.xmal");
        }
        uploaded << u"0 upload "_s + share + u"enu"_s << u"1 upload fails "_s + share + u"enu"_s;
        QStringList lines = {u"0 "_s, u"0 "_s + share,
                             u"1 No source folder was found; nothing is translated"_s};
        lines += prepared;
        lines << u"0 0 texts to translate in 0 files"_s << u"0 tr1 finishes cool"_s
              << u"0 tr2 finishes cool"_s << u"1 Permission fails:"_s + locale + native("en-US/matprop.ts")
              << u"0 mat finishes cool"_s;
        lines += collected + prepared;
        lines << u"1 can't write "_s + path("share/pTrans/~cBuild/job/NVX360.job");
        lines += uploaded;
        lines << u"1 timeout"_s << u"0 job done"_s;
        lines += downloaded;
        lines << u"0 cbuild finishes cool"_s;
        lines += prepared + released;
        lines << u"0 release finishes cool"_s;
        lines += copied;
        lines << u"0 Ribbon2D copied cool"_s;
        return lines;
    }

    static QString native(const char *name) { return QDir::toNativeSeparators(text(name)); }

    std::unique_ptr<TestMachine> m_test;
    std::unique_ptr<RecordingReporter> m_reporter;
    std::unique_ptr<RecordingMachine> m_machine;
};

NVX_GUILESS_TEST(tst_localization_steps)
#include "tst_localization_steps.moc"
