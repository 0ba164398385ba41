// Files that cannot be read completely, and files whose write protection cannot be removed.

#include "localization/locale_folders.h"
#include "localization/translation_job.h"
#include "localization/translation_tools.h"
#include "localization/util_localization_tool.h"
#include "run/run_state.h"
#include "support/odd_files.h"
#include "support/recording_machine.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Localization::LocaleFolders;

namespace {

const QByteArray whole = "<TS version=\"2.1\" language=\"de\"></TS>";

} // namespace

class tst_localization_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_test = std::make_unique<TestMachine>();
        m_reporter = std::make_unique<RecordingReporter>();
        m_machine = std::make_unique<RecordingMachine>();
        m_machine->ownFolder = m_test->installDir();
        QVERIFY(QDir().mkpath(path("root/Locale/de-DE")));
        QVERIFY(QDir().mkpath(path("share/job")));
    }

    void anUnreadableFileIsNotCopied_data() { addUnreadableFileRows(); }

    void anUnreadableFileIsNotCopied()
    {
        QFETCH(const QString, file);
        writeFile(path("target"), "old");
        QVERIFY(!Localization::copyWhole(file, path("target")));
        QCOMPARE(readFile(path("target")), QByteArray("old"));
    }

    void aFileWhoseProtectionStaysIsNotReplaced()
    {
        writeFile(path("source"), "new");
        QVERIFY(linkTo(protectedFile(), path("target")));
        QVERIFY(!Localization::makeWritable(path("target")));
        QVERIFY(!Localization::copyWhole(path("source"), path("target")));
    }

    void aCompiledFileWhoseProtectionStaysIsLogged()
    {
        const QString compiled = path("root/Locale/de-DE/client.qm");
        QVERIFY(linkTo(protectedFile(), compiled));
        LocaleFolders(path("root"), *m_reporter).prepare();
        QCOMPARE(m_reporter->lines, QStringList(u"1 Permission fails:"_s + compiled));
    }

    void anObsoleteCopyThatCannotBeDeletedIsLogged()
    {
        const QString earlier = path("root/Locale/collect/deu/gone.ts");
        QVERIFY(QDir().mkpath(QFileInfo(earlier).path()));
        QVERIFY(linkTo(protectedFile(), earlier));
        LocaleFolders(path("root"), *m_reporter).collect();
        QCOMPARE(m_reporter->lines, QStringList(u"1 Permission fails:"_s + earlier));
        QVERIFY(QFile::exists(earlier));
    }

    void aLinkedDoneFileIsRemovedAndNotItsTarget()
    {
        const QString done = path("share/job/NVX360.done");
        writeFile(path("target"), "untouched");
        QVERIFY(linkTo(path("target"), done));
        job().writeJobFile();
        QCOMPARE(m_reporter->lines, QStringList{u"0 job file cool"_s});
        QVERIFY(!QFileInfo(done).isSymbolicLink());
        QCOMPARE(readFile(path("target")), QByteArray("untouched"));
    }

    void aLanguageWithoutAFolderOnTheShareIsLoggedAndTheOthersAreUploaded()
    {
        writeFile(path("share/NVX360/deu"), "a file in the folder's place");
        writeFile(path("root/Locale/collect/deu/client.ts"), whole);
        writeFile(path("root/Locale/collect/fra/client.ts"), whole);
        job().upload();
        QVERIFY(m_reporter->lines.contains(u"1 %1 not available"_s.arg(path("share/NVX360/deu"))));
        QCOMPARE(readFile(path("share/NVX360/fra/client.ts")), whole);
    }

    void anUnreadableTranslationIsNotDownloaded_data() { addUnreadableFileRows(); }

    void anUnreadableTranslationIsNotDownloaded()
    {
        QFETCH(const QString, file);
        writeFile(path("root/Locale/de-DE/words.csv"), "old");
        const QString answered = path("share/NVX360/deu/words.csv");
        QVERIFY(QDir().mkpath(QFileInfo(answered).path()));
        QVERIFY(linkTo(file, answered));
        job().download();
        QVERIFY(m_reporter->lines.contains(u"1 download fails "_s + answered));
        QCOMPARE(readFile(path("root/Locale/de-DE/words.csv")), QByteArray("old"));
    }

    void aTranslationIsNotDownloadedToAFileWhoseProtectionStays()
    {
        writeFile(path("share/NVX360/deu/client.ts"), whole);
        QVERIFY(linkTo(protectedFile(), path("root/Locale/de-DE/client.ts")));
        job().download();
        QVERIFY(m_reporter->lines.contains(u"1 download fails "_s + path("share/NVX360/deu/client.ts")));
    }

    void translationsThatCannotBeReadAreNotUpdated()
    {
        QVERIFY(linkTo(breakingFile(), path("client.ts")));
        QVERIFY(!tools().update(path("client.pro"), path("client.ts")));
        QVERIFY(m_machine->calls.isEmpty());
        QCOMPARE(m_reporter->lines, QStringList(u"1 Permission fails:"_s + path("client.new.ts")));
    }

    void aFileWhoseProtectionStaysIsNotReplacedByTheOutputOfATool()
    {
        m_machine->whileRunning = [](const Nvx::Util::ProgramCall &call) {
            writeFile(call.arguments.last(), "new");
        };
        QVERIFY(linkTo(protectedFile(), path("client.qm")));
        QVERIFY(!tools().release(path("client.ts"), path("client.qm")));
        QVERIFY(!QFile::exists(path("client.new.qm")));

        QVERIFY(linkTo(protectedFile(), path("client.ts")));
        QVERIFY(!tools().update(path("client.pro"), path("client.ts")));
        QVERIFY(!QFile::exists(path("client.new.ts")));
        QCOMPARE(m_machine->calls.size(), 2);
        QCOMPARE(m_reporter->lines.filter(u"1 "_s),
                 QStringList({u"1 Permission fails:"_s + path("client.qm"),
                              u"1 Permission fails:"_s + path("client.ts")}));
    }

    void aRibbonThatCannotBeCopiedIsLoggedForEachLanguage()
    {
        writeFile(path("NVX/localization.xml"),
                  "<localization><root>" + path("root").toUtf8() + "</root></localization>");
        writeFile(path("root/Projects/form.ui"), "<ui/>");
        QVERIFY(linkTo(closedFile(), path("root/Projects/closed.cpp")));
        const QString german = path("root/Locale/de-DE/Ribbon2D.xmal");
        const QString french = path("root/Locale/fr-FR/Ribbon2D.xmal");
        QVERIFY(linkTo(protectedFile(), german));
        util::util_localization_tool(context()).runScript();
        QVERIFY(m_reporter->lines.contains(u"1 Permission fails:"_s + german));
        QVERIFY(m_reporter->lines.contains(u"1 Copy fails:"_s + french));
        QVERIFY(m_reporter->lines.contains(
            u"0 %1: 0 texts to translate"_s.arg(path("root/Projects/closed.cpp"))));
    }

private:
    QString path(const char *name) const { return m_test->path(text(name)); }
    StepContext context() { return {*m_machine, *m_reporter, m_state}; }
    Localization::TranslationTools tools() { return {context(), path("tools")}; }

    Localization::TranslationJob job()
    {
        return {LocaleFolders(path("root"), *m_reporter),
                path("share/NVX360"),
                path("share/job"),
                {u"*.ts"_s, u"*.csv"_s},
                *m_reporter,
                [](std::chrono::milliseconds) {}};
    }

    std::unique_ptr<TestMachine> m_test;
    std::unique_ptr<RecordingReporter> m_reporter;
    std::unique_ptr<RecordingMachine> m_machine;
    RunState m_state;
};

NVX_GUILESS_TEST(tst_localization_odd_files)
#include "tst_localization_odd_files.moc"
