#include "nvx_util/whole_file.h"
#include "platform.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTest>

using Nvx::Util::readWholeFile;
using Nvx::Util::replaceWholeFile;

namespace {

QStringList namesIn(const TestFolder &folder)
{
    return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

} // namespace

class tst_whole_file : public QObject
{
    Q_OBJECT

private slots:
    void allOfAFileIsRead_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("every line end") << QByteArray("a\nb\r\nc\r");
        QTest::newRow("a NUL") << QByteArray("a\0b", 3);
        QTest::newRow("megabytes") << QByteArray(3 << 20, 'x') + 'a';
    }

    void allOfAFileIsRead()
    {
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("Größe 保存.txt"));
        QVERIFY(writeBytes(fileName, contents));
        QCOMPARE(readWholeFile(fileName), std::optional(contents));
    }

    void whatCannotBeReadGivesNothing_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("a missing file") << QStringLiteral("missing/file");
        QTest::newRow("a folder") << QDir::tempPath();
        // Opens and does not read, where there is such a file.
        QTest::newRow("a file that fails") << QStringLiteral("/proc/self/mem");
    }

    void whatCannotBeReadGivesNothing()
    {
        QFETCH(const QString, fileName);
        QVERIFY(!readWholeFile(fileName));
    }

    void contentsAreTheBytes_data()
    {
        QTest::addColumn<QByteArray>("old");
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("longer") << QByteArray("old") << QByteArray("longer than that");
        QTest::newRow("shorter") << QByteArray("longer than that") << QByteArray("new");
        QTest::newRow("as long") << QByteArray("old") << QByteArray("new");
        QTest::newRow("empty") << QByteArray("old") << QByteArray();
        QTest::newRow("was empty") << QByteArray() << QByteArray("new");
        QTest::newRow("line ends stay") << QByteArray("old") << QByteArray("a\nb\r\nc\r");
        QTest::newRow("a NUL") << QByteArray("old") << QByteArray("a\0b", 3);
        QTest::newRow("differs after a megabyte")
            << QByteArray(1 << 20, 'x') + 'a' << QByteArray(1 << 20, 'x') + 'b';
    }

    void contentsAreTheBytes()
    {
        QFETCH(const QByteArray, old);
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("Größe 保存.txt"));
        QVERIFY(writeBytes(fileName, old));
        QVERIFY(replaceWholeFile(fileName, contents));
        QCOMPARE(fileBytes(fileName), contents);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }

    void missingFileIsMade()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("new"));
        QVERIFY(replaceWholeFile(fileName, "x"));
        QCOMPARE(fileBytes(fileName), QByteArray("x"));
    }

    void sameBytesLeaveTheTimeStamp_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("a few") << QByteArray("same");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("many") << QByteArray(3 * 64 * 1024, 'x');
    }

    void sameBytesLeaveTheTimeStamp()
    {
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(writeBytes(fileName, contents));
        const QDateTime old(QDate(2001, 2, 3), QTime(4, 5, 6));
        {
            QFile file(fileName);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(old, QFileDevice::FileModificationTime));
        }
        QVERIFY(replaceWholeFile(fileName, contents));
        QCOMPARE(QFileInfo(fileName).lastModified(), old);
    }

    void missingFolderFails()
    {
        const TestFolder folder;
        QVERIFY(!replaceWholeFile(folder.path(QStringLiteral("missing/file")), "x"));
        QVERIFY(!QFile::exists(folder.path(QStringLiteral("missing"))));
    }

    void folderOfThatNameFails()
    {
        const TestFolder folder;
        QVERIFY(!replaceWholeFile(folder.path(), "x"));
        QVERIFY(QFileInfo(folder.path()).isDir());
    }

    void emptyNameFails() { QVERIFY(!replaceWholeFile(QString(), "x")); }

    void permissionsAreKept()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(writeBytes(fileName, "old"));
        QVERIFY(QFile::setPermissions(fileName, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        const QFile::Permissions before = QFile::permissions(fileName);
        QVERIFY(replaceWholeFile(fileName, "new"));
        QCOMPARE(QFile::permissions(fileName), before);
    }

    void whatACrashHasLeftGoes_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("the file is replaced") << QByteArray("new");
        QTest::newRow("the file has these bytes already") << QByteArray("old");
    }

    void whatACrashHasLeftGoes()
    {
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(writeBytes(fileName, "old"));
        QVERIFY(writeBytes(fileName + QStringLiteral(".nvxpart"), "longer than what is to be written"));
        QVERIFY(replaceWholeFile(fileName, contents));
        QCOMPARE(fileBytes(fileName), contents);
        QCOMPARE(namesIn(folder), QStringList(QStringLiteral("file")));
    }

    void filesOfOthersWithSuchNamesStay()
    {
        const TestFolder folder;
        const QStringList names{QStringLiteral("file.aBcDeF"), QStringLiteral("file.backup"),
                                QStringLiteral("file.part"), QStringLiteral("other.nvxpart")};
        for (const QString &name : names)
            QVERIFY(writeBytes(folder.path(name), "mine"));
        QVERIFY(replaceWholeFile(folder.path(QStringLiteral("file")), "new"));
        QCOMPARE(namesIn(folder), QStringList(QStringLiteral("file")) + names);
    }

    void whatAnotherProcessIsWritingStays()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(writeBytes(fileName, "old"));
        QFile part(fileName + QStringLiteral(".nvxpart"));
        QVERIFY(part.open(QIODevice::WriteOnly));
        const auto claim = Nvx::Util::Platform::claimFile(part.fileName());
        QVERIFY(!replaceWholeFile(fileName, "new"));
        Nvx::Util::removeUnfinished(fileName);
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
        QVERIFY(QFile::exists(part.fileName()));
    }

    void whatIsUnfinishedIsRemovedAndNothingElse()
    {
        const TestFolder folder;
        const QStringList others{QStringLiteral("fil.nvxpart"), QStringLiteral("file"),
                                 QStringLiteral("file.nvxparts"), QStringLiteral("file.part")};
        for (const QString &name : others + QStringList(QStringLiteral("file.nvxpart")))
            QVERIFY(writeBytes(folder.path(name), "x"));
        Nvx::Util::removeUnfinished(folder.path(QStringLiteral("file")));
        QCOMPARE(namesIn(folder), others);
    }
};

NVX_GUILESS_TEST(tst_whole_file)
#include "tst_whole_file.moc"
