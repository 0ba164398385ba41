// Files that do not behave like ordinary ones.

#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"
#include "support/odd_files.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

int flushedFolders = 0;

} // namespace

// Called instead of the C library's.
extern "C" int fsync(int descriptor)
{
    struct stat flushed = {};
    if (fstat(descriptor, &flushed) == 0 && S_ISDIR(flushed.st_mode))
        ++flushedFolders;
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

class tst_whole_file_odd : public QObject
{
    Q_OBJECT

private slots:
    void copyOfAnUnreadableFileLeavesNothing_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("reading fails") << breakingFile();
        QTest::newRow("shorter than its size") << boastingFile();
    }

    void copyOfAnUnreadableFileLeavesNothing()
    {
        QFETCH(const QString, source);
        const TestFolder folder;
        QVERIFY(QFileInfo::exists(source));
        QVERIFY(!Nvx::Util::copyToFreeName(source, folder.path(u"copy"_s)));
        QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void danglingLinkIsNotReplacedByACopy()
    {
        const TestFolder folder;
        const QString source = folder.path(u"source"_s);
        const QString target = folder.path(u"target"_s);
        QVERIFY(writeBytes(source, "new"));
        QVERIFY(QFile::link(folder.path(u"nowhere"_s), target));
        QVERIFY(!Nvx::Util::copyToFreeName(source, target));
        QVERIFY(QFileInfo(target).isSymLink());
        QVERIFY(!QFile::exists(target + u".nvxpart"_s));
        QVERIFY(!QFile::exists(folder.path(u"nowhere"_s)));
    }

    void whatIsNoRegularFileIsNeitherReadNorReplaced_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("a device without an end") << endlessFile();
        QTest::newRow("a device without contents") << u"/dev/null"_s;
        QTest::newRow("a pipe that nobody writes to") << QString();
        QTest::newRow("a folder") << u"/proc"_s;
    }

    void whatIsNoRegularFileIsNeitherReadNorReplaced()
    {
        QFETCH(const QString, target);
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        if (target.isEmpty())
            QCOMPARE(waitingPipe(fileName), fileName);
        else
            QVERIFY(QFile::link(target, fileName));
        QVERIFY(!Nvx::Util::readWholeFile(fileName));
        QVERIFY(!Nvx::Util::replaceWholeFile(fileName, "new"));
        QVERIFY(!Nvx::Util::copyToFreeName(fileName, folder.path(u"copy"_s)));
        QCOMPARE(QFileInfo(fileName).symLinkTarget(), target);
        QVERIFY(!QFileInfo(fileName).isFile());
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList(u"file"_s));
    }

    void linkStaysALinkWhenItsFileIsReplaced_data()
    {
        QTest::addColumn<int>("links");
        QTest::addColumn<QByteArray>("old");
        QTest::newRow("a link") << 1 << QByteArray("old");
        QTest::newRow("a link to a link to a link") << 3 << QByteArray("old");
        QTest::newRow("a link to a missing file") << 2 << QByteArray();
    }

    void linkStaysALinkWhenItsFileIsReplaced()
    {
        QFETCH(const int, links);
        QFETCH(const QByteArray, old);
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(old.isEmpty() || writeBytes(fileName, old));
        QString link = fileName;
        for (int number = 0; number < links; ++number) {
            QVERIFY(QFile::link(link, link + u"+"_s));
            link += u'+';
        }
        QVERIFY(Nvx::Util::replaceWholeFile(link, "new"));
        QCOMPARE(fileBytes(fileName), QByteArray("new"));
        QVERIFY(!QFileInfo(fileName).isSymLink());
        for (; link != fileName; link.chop(1))
            QVERIFY(QFileInfo(link).isSymLink());
    }

    void cyclicLinksAreNotReplaced()
    {
        const TestFolder folder;
        const QString first = folder.path(u"first"_s);
        const QString second = folder.path(u"second"_s);
        QVERIFY(QFile::link(second, first));
        QVERIFY(QFile::link(first, second));
        QVERIFY(!Nvx::Util::replaceWholeFile(first, "new"));
        QVERIFY(QFileInfo(first).isSymLink());
        QVERIFY(QFileInfo(second).isSymLink());
    }

    void newNameIsFlushedToTheDisk()
    {
        const TestFolder folder;
        flushedFolders = 0;
        QVERIFY(Nvx::Util::replaceWholeFile(folder.path(u"file"_s), "new"));
        QCOMPARE(flushedFolders, 1);
        QVERIFY(Nvx::Util::copyToFreeName(folder.path(u"file"_s), folder.path(u"copy"_s)));
        QCOMPARE(flushedFolders, 2);
    }

    void ownerAndModeArePreserved()
    {
        const TestFolder folder;
        const QByteArray fileName = QFile::encodeName(folder.path(u"file"_s));
        QVERIFY(writeBytes(folder.path(u"file"_s), "old"));
        constexpr uid_t other = 65534;
        const bool isAdministrator = chown(fileName.constData(), other, other) == 0;
        QCOMPARE(chmod(fileName.constData(), 02764), 0);
        QVERIFY(Nvx::Util::replaceWholeFile(folder.path(u"file"_s), "new"));
        struct stat found = {};
        QCOMPARE(stat(fileName.constData(), &found), 0);
        QCOMPARE(found.st_mode & 07777, mode_t{02764});
        QCOMPARE(found.st_uid, isAdministrator ? other : geteuid());
        QCOMPARE(found.st_gid, isAdministrator ? other : getegid());
    }

    void fileShorterThanItsReportedSizeDoesNotCountAsEqual()
    {
        const std::optional<QByteArray> line = fileBytes(boastingFile());
        const qint64 claimed = QFileInfo(boastingFile()).size();
        QVERIFY(line && line->size() < claimed);
        // If the contents counted as equal this would succeed; the file cannot be written.
        QVERIFY(!Nvx::Util::replaceWholeFile(boastingFile(), line->leftJustified(claimed, 'x')));
        QCOMPARE(fileBytes(boastingFile()), line);
    }
};

NVX_GUILESS_TEST(tst_whole_file_odd)
#include "tst_whole_file_odd.moc"
