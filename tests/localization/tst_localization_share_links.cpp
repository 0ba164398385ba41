// Links that others have put on the share, to files of the machine that the tool runs on.

#include "localization/translation_job.h"
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

} // namespace

class tst_localization_share_links : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_reporter = std::make_unique<RecordingReporter>();
        writeFile(path("root/Locale/en-US/client.ts"), whole);
        writeFile(path("root/Locale/collect/deu/client.ts"), whole);
        writeFile(path("root/Locale/de-DE/client.ts"), whole);
        writeFile(path("elsewhere/secret.csv"), "secret");
        writeFile(path("elsewhere/client.ts"), "untouched");
        QVERIFY(QDir().mkpath(path("share/pTrans/~cBuild/job")));
        QVERIFY(QDir().mkpath(path("share/pTrans/NVX360/deu")));
    }

    void aLinkedFileIsNotDownloaded()
    {
        const QString link = path("share/pTrans/NVX360/deu/words.csv");
        QVERIFY(QFile::link(path("elsewhere/secret.csv"), link));
        job().download();
        QVERIFY(!QFile::exists(path("root/Locale/de-DE/words.csv")));
        QVERIFY(m_reporter->lines.contains(notFollowed(link)));
        QVERIFY(m_reporter->lines.contains(u"1 download fails "_s + link));
    }

    void anUploadDoesNotWriteThroughALinkedFile()
    {
        const QString link = path("share/pTrans/NVX360/deu/client.ts");
        QVERIFY(QFile::link(path("elsewhere/client.ts"), link));
        job().upload();
        QCOMPARE(readFile(path("elsewhere/client.ts")), QByteArray("untouched"));
        QVERIFY(m_reporter->lines.contains(notFollowed(link)));
        QVERIFY(m_reporter->lines.contains(u"1 upload fails "_s + link));
    }

    void anUploadDoesNotCreateTheTargetOfALink()
    {
        QVERIFY(QFile::link(path("elsewhere/new.ts"), path("share/pTrans/NVX360/deu/client.ts")));
        job().upload();
        QVERIFY(!QFile::exists(path("elsewhere/new.ts")));
    }

    void anUploadDeletesALinkAndNotItsTarget()
    {
        const QString target = path("elsewhere/gone.ts");
        writeFile(target, "untouched");
        QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::ReadUser));
        QVERIFY(QFile::link(target, path("share/pTrans/NVX360/deu/gone.ts")));
        job().upload();
        QVERIFY(!QFileInfo(path("share/pTrans/NVX360/deu/gone.ts")).isSymbolicLink());
        QCOMPARE(readFile(target), QByteArray("untouched"));
        QVERIFY(!QFileInfo(target).permissions().testFlag(QFile::WriteOwner));
    }

    void linkedFoldersAreNotUsed_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("of a language") << u"share/pTrans/NVX360/deu"_s;
        QTest::newRow("of the languages") << u"share/pTrans/NVX360"_s;
        QTest::newRow("of both sides") << u"share/pTrans"_s;
    }

    void linkedFoldersAreNotUsed()
    {
        QFETCH(const QString, folder);
        QVERIFY(QDir().mkpath(path("share/pTrans/NVX360/deu")));
        writeFile(path("share/pTrans/NVX360/deu/words.csv"), "words");
        const QString link = m_folder->path(folder);
        QVERIFY(QDir().rename(link, path("elsewhere/folder")));
        QVERIFY(QFile::link(path("elsewhere/folder"), link));
        job().upload();
        job().download();
        QVERIFY(m_reporter->lines.contains(notFollowed(link)));
        QVERIFY(!QFile::exists(path("root/Locale/de-DE/words.csv")));
        QCOMPARE(readFile(path("share/pTrans/NVX360/deu/client.ts")), QByteArray());
    }

    void aLinkedJobFileOrFolderIsNotUsed_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("the job file") << u"share/pTrans/~cBuild/job/NVX360.job"_s;
        QTest::newRow("its folder") << u"share/pTrans/~cBuild/job"_s;
        QTest::newRow("the folder of the builds") << u"share/pTrans/~cBuild"_s;
    }

    void aLinkedJobFileOrFolderIsNotUsed()
    {
        QFETCH(const QString, name);
        const QString job = path("share/pTrans/~cBuild/job/NVX360.job");
        writeFile(job, "an earlier one");
        const QString link = m_folder->path(name);
        QVERIFY(QDir().rename(link, path("elsewhere/target")));
        QVERIFY(QFile::link(path("elsewhere/target"), link));
        this->job().writeJobFile();
        QCOMPARE(m_reporter->lines, QStringList({notFollowed(link), u"1 can't open "_s + job}));
        QCOMPARE(readFile(job), QByteArray("an earlier one"));
    }

    void theShareItselfMayBeALink()
    {
        QVERIFY(QDir().rename(path("share"), path("real share")));
        QVERIFY(QFile::link(path("real share"), path("share")));
        job().writeJobFile();
        job().upload();
        writeFile(path("share/pTrans/NVX360/deu/words.csv"), "words");
        job().download();
        QCOMPARE(readFile(path("root/Locale/de-DE/words.csv")), QByteArray("words"));
        QVERIFY(m_reporter->lines.contains(u"0 job file cool"_s));
        QCOMPARE(readFile(path("share/pTrans/NVX360/deu/client.ts")), whole);
    }

private:
    QString path(const char *name) const { return m_folder->path(text(name)); }

    static QString notFollowed(const QString &link)
    {
        return u"1 %1 is a link, which is not followed"_s.arg(link);
    }

    TranslationJob job()
    {
        return {LocaleFolders(path("root"), *m_reporter),
                path("share/pTrans/NVX360"),
                path("share/pTrans/~cBuild/job"),
                {u"*.ts"_s, u"*.csv"_s},
                *m_reporter,
                [](std::chrono::milliseconds) {}};
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<RecordingReporter> m_reporter;
};

NVX_GUILESS_TEST(tst_localization_share_links)
#include "tst_localization_share_links.moc"
