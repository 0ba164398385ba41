#include "localization/translation_job.h"
#include "nvx_util/languages.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using Localization::LocaleFolders;
using Localization::TranslationJob;

namespace {

const QByteArray whole = "<TS version=\"2.1\" language=\"de\"></TS>";

const QByteArray finished = "<TS version=\"2.1\" language=\"de_DE\"><context><name>A</name><message>"
                            "<source>Solve %1</source><translation>%1 lösen</translation></message>"
                            "</context></TS>";

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

} // namespace

class tst_translation_job : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_reporter = std::make_unique<RecordingReporter>();
        m_pauses.clear();
        m_afterPause = nullptr;
        QVERIFY(QDir().mkpath(path("share/pTrans/~cBuild/job")));
        writeFile(path("root/Locale/en-US/client.ts"), whole);
        writeFile(path("root/Locale/en-US/nvxconfig.ts"), whole);
        for (const char *locale : {"de-DE", "fr-FR", "it-IT", "ja-JP", "zh-CN", "zh-TW", "ko-KR", "ru-RU"})
            QVERIFY(QDir().mkpath(path("root/Locale/") + text(locale)));
    }

    void theJobFileHasALineForEachSource()
    {
        QCOMPARE(Localization::jobFile({u"client.ts"_s, text("prüfung.ts")}),
                 QByteArray("enu\\client.ts\nenu\\prüfung.ts\n"));
        QCOMPARE(Localization::jobFile({}), QByteArray());
    }

    void theJobFileListsTheExistingEnglishSources()
    {
        job()->writeJobFile();
        QCOMPARE(readFile(path("share/pTrans/~cBuild/job/NVX360.job")),
                 QByteArray("enu\\client.ts\nenu\\nvxconfig.ts\n"));
        QCOMPARE(m_reporter->lines, QStringList{u"0 job file cool"_s});
    }

    void aNewRequestRemovesTheEarlierDoneFile()
    {
        const QString done = path("share/pTrans/~cBuild/job/NVX360.done");
        writeFile(done);
        job()->writeJobFile();
        QVERIFY(!QFile::exists(done));
    }

    void aDoneFileThatCannotBeRemovedIsLogged()
    {
        const QString done = path("share/pTrans/~cBuild/job/NVX360.done");
        QVERIFY(QDir().mkpath(done)); // QFile::remove does not remove a folder
        job()->writeJobFile();
        QCOMPARE(m_reporter->lines, QStringList({u"1 can't remove"_s + done,
                                                 u"1 "_s + done + u" still exist"_s, u"0 job file cool"_s}));
    }

    void withoutAJobFolderTheJobFileCannotBeOpened()
    {
        QVERIFY(QDir(path("share")).removeRecursively());
        job()->writeJobFile();
        QCOMPARE(m_reporter->lines,
                 QStringList{u"1 can't open "_s + path("share/pTrans/~cBuild/job/NVX360.job")});
    }

    void aJobFileThatCannotBeOpenedIsLogged()
    {
        const QString blocked = path("share/pTrans/~cBuild/job/NVX360.job");
        QVERIFY(QDir().mkpath(blocked));
        job()->writeJobFile();
        QCOMPARE(m_reporter->lines, QStringList{u"1 can't open "_s + blocked});
    }

    void aJobFileThatCannotBeWrittenIsLogged()
    {
        const QString part = path("share/pTrans/~cBuild/job/NVX360.job.nvxpart");
        QVERIFY(QDir().mkpath(part)); // blocks the unfinished file
        job()->writeJobFile();
        QCOMPARE(m_reporter->lines,
                 QStringList{u"1 can't write "_s + path("share/pTrans/~cBuild/job/NVX360.job")});
    }

    void theCollectedFilesOfEveryLanguageAreUploadedTheSourcesLast()
    {
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages)
            QVERIFY(QDir().mkpath(path("root/Locale/collect/") + language.translatorsCode));
        writeFile(path("root/Locale/collect/enu/client.ts"), "english");
        writeFile(path("root/Locale/collect/kor/client.ts"), "korean");
        job()->upload();
        QCOMPARE(readFile(path("share/pTrans/NVX360/enu/client.ts")), QByteArray("english"));
        QCOMPARE(readFile(path("share/pTrans/NVX360/kor/client.ts")), QByteArray("korean"));
        QStringList expected;
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages)
            expected.append(u"0 upload "_s + path("share/pTrans/NVX360/") + language.translatorsCode);
        expected.append(u"0 upload "_s + path("share/pTrans/NVX360/enu"));
        QCOMPARE(m_reporter->lines, expected);
    }

    void anUploadDeletesOnlyFilesThatAreNoLongerCollected()
    {
        writeFile(path("root/Locale/collect/deu/client.ts"), "new");
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), "old");
        writeFile(path("share/pTrans/NVX360/deu/gone.ts"), "old");
        writeFile(path("share/pTrans/NVX360/deu/notes.txt"), "the translators' own");
        job()->upload();
        QCOMPARE(readFile(path("share/pTrans/NVX360/deu/client.ts")), QByteArray("new"));
        QVERIFY(!QFile::exists(path("share/pTrans/NVX360/deu/gone.ts")));
        QVERIFY(QFile::exists(path("share/pTrans/NVX360/deu/notes.txt")));
    }

    void theFilesOfALanguageThatWasNotCollectedStayOnTheShare()
    {
        writeFile(path("root/Locale/collect/deu/client.ts"), "german");
        writeFile(path("share/pTrans/NVX360/fra/client.ts"), "french");
        job()->upload();
        QVERIFY(m_reporter->lines.contains(u"1 upload fails "_s + path("share/pTrans/NVX360/fra")));
        QVERIFY(!m_reporter->lines.contains(u"1 upload fails "_s + path("share/pTrans/NVX360/deu")));
        QCOMPARE(readFile(path("share/pTrans/NVX360/fra/client.ts")), QByteArray("french"));
        QVERIFY(!QFile::exists(path("share/pTrans/NVX360/ita")));
    }

    void aFailedUploadIsLoggedAndTheOthersContinue()
    {
        writeFile(path("root/Locale/collect/deu/a.ts"), "a");
        writeFile(path("root/Locale/collect/deu/b.ts"), "b");
        QVERIFY(QDir().mkpath(path("share/pTrans/NVX360/deu/a.ts")));
        job()->upload();
        QVERIFY(m_reporter->lines.contains(u"1 upload fails "_s + path("share/pTrans/NVX360/deu/a.ts")));
        QCOMPARE(readFile(path("share/pTrans/NVX360/deu/b.ts")), QByteArray("b"));
    }

    void withoutAShareNothingIsUploadedOrCreated()
    {
        QVERIFY(QDir(path("share")).removeRecursively());
        writeFile(path("root/Locale/collect/deu/a.ts"), "a");
        job()->upload();
        QCOMPARE(m_reporter->lines, QStringList{u"1 "_s + path("share/pTrans/NVX360 not available")});
        QVERIFY(!QFile::exists(path("share")));
    }

    void anExistingDoneFileEndsTheWaitAtOnce()
    {
        writeFile(path("share/pTrans/~cBuild/job/NVX360.done"));
        job()->waitUntilDone();
        QCOMPARE(m_pauses, QList<std::chrono::milliseconds>());
        QCOMPARE(m_reporter->lines, QStringList());
    }

    void theDoneFileIsPolledEveryTenSeconds()
    {
        m_afterPause = [this](qsizetype count) {
            if (count == 3)
                writeFile(path("share/pTrans/~cBuild/job/NVX360.done"));
        };
        job()->waitUntilDone();
        QCOMPARE(m_pauses, QList<std::chrono::milliseconds>(3, std::chrono::seconds(10)));
        QCOMPARE(m_reporter->lines, QStringList());
    }

    void theDoneFileCountsInTheLastPoll()
    {
        m_afterPause = [this](qsizetype count) {
            if (count == 200)
                writeFile(path("share/pTrans/~cBuild/job/NVX360.done"));
        };
        job()->waitUntilDone();
        QCOMPARE(m_pauses.size(), 200);
        QCOMPARE(m_reporter->lines, QStringList());
    }

    void afterMoreThanTwoHundredPollsTheWaitTimesOut()
    {
        job()->waitUntilDone();
        QCOMPARE(m_pauses.size(), 200);
        std::chrono::milliseconds waited(0);
        for (const auto pause : std::as_const(m_pauses))
            waited += pause;
        QCOMPARE(waited.count(), 2'000'000); // 33 minutes and 20 seconds
        QCOMPARE(m_reporter->lines, QStringList{u"1 timeout"_s});
    }

    void aDoneFileOnAShareThatComesBackEndsTheWait()
    {
        m_afterPause = [this](qsizetype count) {
            if (count == 2)
                QVERIFY(QDir(path("share")).removeRecursively());
            if (count == 5)
                writeFile(path("share/pTrans/~cBuild/job/NVX360.done"));
        };
        job()->waitUntilDone();
        QCOMPARE(m_pauses.size(), 5);
    }

    void matchingFilesAreDownloadedToTheLocaleFolders()
    {
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), whole);
        writeFile(path("share/pTrans/NVX360/deu/menu.xaml"), "menu");
        writeFile(path("share/pTrans/NVX360/deu/words.csv"), "words");
        writeFile(path("share/pTrans/NVX360/deu/client.qm"), "compiled");
        writeFile(path("share/pTrans/NVX360/enu/client.ts"), "<TS>changed</TS>");
        job()->download();
        QCOMPARE(readFile(path("root/Locale/de-DE/client.ts")), whole);
        QCOMPARE(readFile(path("root/Locale/de-DE/menu.xaml")), QByteArray("menu"));
        QCOMPARE(readFile(path("root/Locale/de-DE/words.csv")), QByteArray("words"));
        QVERIFY(!QFile::exists(path("root/Locale/de-DE/client.qm")));
        QCOMPARE(readFile(path("root/Locale/en-US/client.ts")), whole);
    }

    void aDamagedTranslationFileDoesNotReplaceAGoodOne_data()
    {
        QTest::addColumn<QByteArray>("damaged");
        QTest::newRow("cut off") << whole.left(20);
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("not a translation file") << QByteArray("<html/>");
    }

    void aDamagedTranslationFileDoesNotReplaceAGoodOne()
    {
        QFETCH(const QByteArray, damaged);
        writeFile(path("root/Locale/de-DE/client.ts"), whole);
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), damaged);
        writeFile(path("share/pTrans/NVX360/deu/matprop.ts"), whole);
        job()->download();
        QCOMPARE(readFile(path("root/Locale/de-DE/client.ts")), whole);
        QCOMPARE(readFile(path("root/Locale/de-DE/matprop.ts")), whole);
        QVERIFY(
            m_reporter->lines.contains(u"1 download fails "_s + path("share/pTrans/NVX360/deu/client.ts")));
    }

    void aRefusedAnswerLeavesTheExistingFile_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("for another language") << QByteArray(finished).replace("de_DE", "fr_FR");
        QTest::newRow("fewer finished texts")
            << QByteArray(finished).replace("<translation>", "<translation type=\"unfinished\">");
        QTest::newRow("other places") << QByteArray(finished).replace("%1 lösen", "lösen");
    }

    void aRefusedAnswerLeavesTheExistingFile()
    {
        QFETCH(const QByteArray, answer);
        QVERIFY(answer != finished);
        const QString target = path("root/Locale/de-DE/client.ts");
        const QString source = path("share/pTrans/NVX360/deu/client.ts");
        writeFile(target, finished);
        writeFile(source, answer);
        const auto refusing = job();
        refusing->download();
        QCOMPARE(readFile(target), finished);
        const qsizetype failed = m_reporter->lines.indexOf(u"1 download fails "_s + source);
        QVERIFY(failed > 0);
        QVERIFY(m_reporter->lines.at(failed - 1).startsWith(u"1 %1 is refused: "_s.arg(source)));
        QCOMPARE(refusing->refusedFiles(u"de-DE"_s), 1);
        QCOMPARE(refusing->refusedFiles(u"fr-FR"_s), 0);
        writeFile(source, finished);
        refusing->download();
        QCOMPARE(refusing->refusedFiles(u"de-DE"_s), 0);
    }

    void theFileThatIsThereAlreadyIsNotRefused()
    {
        const QByteArray odd = QByteArray(finished).replace("%1 lösen", "lösen");
        writeFile(path("root/Locale/de-DE/client.ts"), odd);
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), odd);
        job()->download();
        QVERIFY(
            !m_reporter->lines.contains(u"1 download fails "_s + path("share/pTrans/NVX360/deu/client.ts")));
    }

    void aTextThatLeftTheEnglishFileMayBeMissing()
    {
        writeFile(path("root/Locale/en-US/client.ts"),
                  "<TS version=\"2.1\"><context><name>A</name><message><source>Other</source>"
                  "<translation type=\"unfinished\"/></message></context></TS>");
        writeFile(path("root/Locale/de-DE/client.ts"), finished);
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), whole);
        job()->download();
        QCOMPARE(readFile(path("root/Locale/de-DE/client.ts")), whole);
    }

    void aFileOfMoreThanTheLimitIsNotDownloaded()
    {
        const QString large = path("share/pTrans/NVX360/deu/words.csv");
        writeFile(large, "words");
        QVERIFY(QFile::resize(large, qint64{64} * 1024 * 1024 + 1));
        job()->download();
        QVERIFY(!QFile::exists(path("root/Locale/de-DE/words.csv")));
        QVERIFY(m_reporter->lines.contains(u"1 %1 is refused: the file is larger than 64 MiB"_s.arg(large)));
    }

    void onlyTheFirstFilesOfALanguageAreDownloaded()
    {
        for (int file = 0; file < 201; ++file)
            writeFile(path("share/pTrans/NVX360/deu/") + u"%1.csv"_s.arg(file, 3, 10, QChar(u'0')), "words");
        job()->download();
        QVERIFY(QFile::exists(path("root/Locale/de-DE/199.csv")));
        QVERIFY(!QFile::exists(path("root/Locale/de-DE/200.csv")));
        QVERIFY(
            m_reporter->lines.contains(u"1 %1 has more than 200 files; the others are not downloaded"_s.arg(
                path("share/pTrans/NVX360/deu"))));
    }

    void aProtectedFileIsReplaced()
    {
        const QString target = path("root/Locale/de-DE/client.ts");
        writeFile(target, "old");
        QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::ReadUser));
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), whole);
        job()->download();
        QCOMPARE(readFile(target), whole);
    }

    void aLanguageMissingOnTheShareIsLogged()
    {
        writeFile(path("share/pTrans/NVX360/deu/client.ts"), whole);
        job()->download();
        QCOMPARE(m_reporter->lines.first(), u"0 download"_s + path("share/pTrans/NVX360/deu"));
        QCOMPARE(m_reporter->lines.size(), 1 + 2 * (qsizetype(Nvx::Util::targetLanguages.size()) - 1));
        QCOMPARE(m_reporter->lines.at(2), u"1 download fails "_s + path("share/pTrans/NVX360/fra"));
    }

    void withoutANamedShareEveryStepFailsAndTouchesNothing()
    {
        const auto nowhere = std::make_unique<TranslationJob>(LocaleFolders(path("root"), *m_reporter),
                                                              QString(), QString(), QStringList{u"*.ts"_s},
                                                              *m_reporter, [](std::chrono::milliseconds) {});
        nowhere->writeJobFile();
        nowhere->upload();
        nowhere->waitUntilDone();
        nowhere->download();
        QCOMPARE(m_reporter->lines.first(), u"1 can't open "_s + native(u"/NVX360.job"_s));
        QCOMPARE(m_reporter->lines.at(1), u"1  not available"_s);
        QCOMPARE(m_reporter->lines.at(2), u"1 timeout"_s);
        QCOMPARE(readFile(path("root/Locale/en-US/client.ts")), whole);
    }

private:
    QString path(const char *name) const { return m_folder->path(text(name)); }

    std::unique_ptr<TranslationJob> job()
    {
        return std::make_unique<TranslationJob>(LocaleFolders(path("root"), *m_reporter),
                                                path("share/pTrans/NVX360"), path("share/pTrans/~cBuild/job"),
                                                QStringList{u"*.ts"_s, u"*.xaml"_s, u"*.csv"_s}, *m_reporter,
                                                [this](std::chrono::milliseconds pause) {
                                                    m_pauses.append(pause);
                                                    if (m_afterPause)
                                                        m_afterPause(m_pauses.size());
                                                });
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<RecordingReporter> m_reporter;
    QList<std::chrono::milliseconds> m_pauses;
    std::function<void(qsizetype)> m_afterPause;
};

NVX_GUILESS_TEST(tst_translation_job)
#include "tst_translation_job.moc"
