// Owners, links and access rights as other systems than Windows have them. Only an administrator can give a
// file to another user, so some tests are skipped for everyone else.

#include "nvx_util/folder_rights.h"
#include "nvx_util/trusted_files.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace Nvx::Util;

namespace {

constexpr uid_t otherUser = 65534;

/// Gives a file, folder or link to another user; false if this process may not.
bool giveAway(const QString &path)
{
    return lchown(QFile::encodeName(path).constData(), otherUser, otherUser) == 0;
}

struct stat statusOf(const QString &path)
{
    struct stat found = {};
    lstat(QFile::encodeName(path).constData(), &found);
    return found;
}

} // namespace

class tst_unix_rights : public QObject
{
    Q_OBJECT

private slots:
    void linkOnTheWayIsFoundAndItsTargetFollowed()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkpath(folder.path(u"there/below"_s)));
        QVERIFY(QFile::link(folder.path(u"there"_s), folder.path(u"link"_s)));
        QStringList links;
        QStringList paths;
        const auto way = HeldWay::toFolder(folder.path(u"link/below"_s));
        for (const WayPoint &point : way.points()) {
            paths.append(point.path);
            if (point.isLink)
                links.append(point.path);
        }
        QCOMPARE(links, QStringList(folder.path(u"link"_s)));
        QVERIFY(paths.contains(folder.path(u"there/below"_s)));
        QVERIFY(!way.plantedPoint());
    }

    void linkOfAnotherUserIsPlanted()
    {
        const TestFolder folder;
        const QString link = folder.path(u"link"_s);
        QVERIFY(QFile::link(folder.path(), link));
        constexpr uid_t other = 65534;
        if (lchown(QFile::encodeName(link).constData(), other, other) != 0)
            QSKIP("Only an administrator can give a link to another user.");
        QCOMPARE(HeldWay::toFolder(link + u"/below"_s).plantedPoint(), std::optional(link));
        QCOMPARE(HeldWay::toEntry(link).plantedPoint(), std::optional(link));
    }

    void scriptFileIsForItsOwnerOnly()
    {
        const TestFolder folder;
        const ScriptFile script(folder.path(u"script"_s), "echo");
        QVERIFY(script);
        const QFile::Permissions others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(folder.path(u"script"_s)) & others));
    }

    void folderThatOthersMayWriteIsReserved()
    {
        const TestFolder folder;
        const QString file = folder.path(u"open/inner/file"_s);
        writeFile(file, "x");
        const QStringList paths{folder.path(u"open"_s), folder.path(u"open/inner"_s), file};
        for (const QString &path : paths)
            QCOMPARE(chmod(QFile::encodeName(path).constData(), 0777), 0);
        QVERIFY(reserveForAdministrators(paths.first()));
        for (const QString &path : paths)
            QCOMPARE(statusOf(path).st_mode & 07777, mode_t{0755});
        QCOMPARE(fileBytes(file), QByteArray("x"));
    }

    void folderOfAnotherUserIsReserved()
    {
        const TestFolder folder;
        const QString elsewhere = folder.path(u"elsewhere"_s);
        const QString inner = folder.path(u"theirs/inner"_s);
        writeFile(inner + u"/file"_s, "x");
        writeFile(elsewhere, "x");
        QVERIFY(QFile::link(elsewhere, inner + u"/link"_s));
        const QStringList paths{folder.path(u"theirs"_s), inner, inner + u"/file"_s};
        for (const QString &path : paths + QStringList{elsewhere, inner + u"/link"_s}) {
            if (!giveAway(path))
                QSKIP("Only an administrator can give a file to another user.");
        }
        QVERIFY(reserveForAdministrators(folder.path(u"theirs"_s)));
        for (const QString &path : paths)
            QCOMPARE(statusOf(path).st_uid, geteuid());
        // A link stays another user's, so it is recognised, and its target is not touched.
        QCOMPARE(statusOf(inner + u"/link"_s).st_uid, otherUser);
        QCOMPARE(statusOf(elsewhere).st_uid, otherUser);
    }

    void contentsOfAReservedFolderAreResetToo()
    {
        const TestFolder folder;
        const QString file = folder.path(u"closed/file"_s);
        writeFile(file, "x");
        QCOMPARE(chmod(QFile::encodeName(folder.path(u"closed"_s)).constData(), 0755), 0);
        QCOMPARE(chmod(QFile::encodeName(file).constData(), 0666), 0);
        QVERIFY(reserveForAdministrators(folder.path(u"closed"_s)));
        QCOMPARE(statusOf(file).st_mode & 07777, mode_t{0644});
    }

    void wholeDriveIsNotReserved() { QVERIFY(!reserveForAdministrators(u"/"_s)); }

    void linkIsNotReserved()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(folder.path(u"elsewhere"_s)));
        QCOMPARE(chmod(QFile::encodeName(folder.path(u"elsewhere"_s)).constData(), 0777), 0);
        QVERIFY(QFile::link(folder.path(u"elsewhere"_s), folder.path(u"link"_s)));
        QVERIFY(!reserveForAdministrators(folder.path(u"link"_s)));
        QCOMPARE(statusOf(folder.path(u"elsewhere"_s)).st_mode & 07777, mode_t{0777});
    }

    void missingFolderIsNotReserved()
    {
        const TestFolder folder;
        QVERIFY(!reserveForAdministrators(folder.path(u"missing"_s)));
    }

    void lastFoldersOfAPathAreTakenOver()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a/b/c"_s);
        QVERIFY(QDir().mkpath(path));
        for (const QString &theirs : {folder.path(u"a"_s), folder.path(u"a/b"_s), path}) {
            if (!giveAway(theirs))
                QSKIP("Only an administrator can give a folder to another user.");
        }
        QVERIFY(takeOverFolders(path, 2));
        QCOMPARE(statusOf(folder.path(u"a"_s)).st_uid, otherUser);
        QCOMPARE(statusOf(folder.path(u"a/b"_s)).st_uid, geteuid());
        QCOMPARE(statusOf(path).st_uid, geteuid());
    }

    void foldersOfAdministratorsAreNotChanged()
    {
        const TestFolder folder;
        QCOMPARE(chmod(QFile::encodeName(folder.path()).constData(), 0777), 0);
        QVERIFY(takeOverFolders(folder.path(u"missing/below"_s), 3));
        QCOMPARE(statusOf(folder.path()).st_mode & 07777, mode_t{0777});
    }

    void linkIsNotTakenOver()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkpath(folder.path(u"elsewhere/below"_s)));
        QVERIFY(QFile::link(folder.path(u"elsewhere"_s), folder.path(u"link"_s)));
        QVERIFY(!takeOverFolders(folder.path(u"link/below"_s), 2));
        QVERIFY(takeOverFolders(folder.path(u"link/below"_s), 1));
    }
};

NVX_GUILESS_TEST(tst_unix_rights)
#include "tst_unix_rights.moc"
