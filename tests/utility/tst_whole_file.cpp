#include "nvx_util/whole_file.h"
#include "platform.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::readWholeFile;
using Nvx::Util::replaceWholeFile;

class tst_whole_file : public QObject
{
    Q_OBJECT

private slots:
    void wholeFileIsRead_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("every line end") << QByteArray("a\nb\r\nc\r");
        QTest::newRow("a NUL") << QByteArray("a\0b", 3);
        QTest::newRow("megabytes") << QByteArray(3 << 20, 'x') + 'a';
    }

    void wholeFileIsRead()
    {
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(u"Größe 保存.txt"_s);
        QVERIFY(writeBytes(fileName, contents));
        QCOMPARE(readWholeFile(fileName), std::optional(contents));
    }

    void unreadableFileHasNoContents_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("a missing file") << u"missing/file"_s;
        QTest::newRow("a folder") << QDir::tempPath();
        // This file, where it exists, can be opened but not read.
        QTest::newRow("a file that fails") << u"/proc/self/mem"_s;
    }

    void unreadableFileHasNoContents()
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
        QTest::newRow("equally long") << QByteArray("old") << QByteArray("new");
        QTest::newRow("empty") << QByteArray("old") << QByteArray();
        QTest::newRow("was empty") << QByteArray() << QByteArray("new");
        QTest::newRow("line ends are preserved") << QByteArray("old") << QByteArray("a\nb\r\nc\r");
        QTest::newRow("a NUL") << QByteArray("old") << QByteArray("a\0b", 3);
        QTest::newRow("differs after a megabyte")
            << QByteArray(1 << 20, 'x') + 'a' << QByteArray(1 << 20, 'x') + 'b';
    }

    void contentsAreTheBytes()
    {
        QFETCH(const QByteArray, old);
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(u"Größe 保存.txt"_s);
        QVERIFY(writeBytes(fileName, old));
        QVERIFY(replaceWholeFile(fileName, contents));
        QCOMPARE(fileBytes(fileName), contents);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }

    void missingFileIsCreated()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"new"_s);
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
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(writeBytes(fileName, contents));
        const QDateTime old(QDate(2001, 2, 3), QTime(4, 5, 6));
        QVERIFY(setChangeTime(fileName, old));
        QVERIFY(replaceWholeFile(fileName, contents));
        QCOMPARE(QFileInfo(fileName).lastModified(), old);
    }

    void missingFolderFails()
    {
        const TestFolder folder;
        QVERIFY(!replaceWholeFile(folder.path(u"missing/file"_s), "x"));
        QVERIFY(!QFile::exists(folder.path(u"missing"_s)));
    }

    void folderCannotBeReplaced()
    {
        const TestFolder folder;
        QVERIFY(!replaceWholeFile(folder.path(), "x"));
        QVERIFY(QFileInfo(folder.path()).isDir());
    }

    void emptyNameFails() { QVERIFY(!replaceWholeFile(QString(), "x")); }

    void permissionsArePreserved()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(writeBytes(fileName, "old"));
        QVERIFY(QFile::setPermissions(fileName, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
        const QFile::Permissions before = QFile::permissions(fileName);
        QVERIFY(replaceWholeFile(fileName, "new"));
        QCOMPARE(QFile::permissions(fileName), before);
    }

    void leftoverOfACrashIsRemoved_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("the file is replaced") << QByteArray("new");
        QTest::newRow("the file already has these bytes") << QByteArray("old");
    }

    void leftoverOfACrashIsRemoved()
    {
        QFETCH(const QByteArray, contents);
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(writeBytes(fileName, "old"));
        QVERIFY(writeBytes(fileName + u".nvxpart"_s, "longer than what is to be written"));
        QVERIFY(replaceWholeFile(fileName, contents));
        QCOMPARE(fileBytes(fileName), contents);
        QCOMPARE(namesIn(folder.path()), QStringList(u"file"_s));
    }

    void otherProgramsTemporaryFilesStay()
    {
        const TestFolder folder;
        const QStringList names{u"file.aBcDeF"_s, u"file.backup"_s, u"file.part"_s, u"other.nvxpart"_s};
        for (const QString &name : names)
            QVERIFY(writeBytes(folder.path(name), "mine"));
        QVERIFY(replaceWholeFile(folder.path(u"file"_s), "new"));
        QCOMPARE(namesIn(folder.path()), QStringList(u"file"_s) + names);
    }

    void fileThatAnotherProcessIsWritingStays()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(writeBytes(fileName, "old"));
        QFile part(fileName + u".nvxpart"_s);
        QVERIFY(part.open(QIODevice::WriteOnly));
        const auto claim = Nvx::Util::Platform::claimFile(part.fileName());
        QVERIFY(!replaceWholeFile(fileName, "new"));
        Nvx::Util::removeUnfinished(fileName);
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
        QVERIFY(QFile::exists(part.fileName()));
    }

    void onlyTheLeftoverIsRemoved()
    {
        const TestFolder folder;
        const QStringList others{u"fil.nvxpart"_s, u"file"_s, u"file.nvxparts"_s, u"file.part"_s};
        for (const QString &name : others + QStringList(u"file.nvxpart"_s))
            QVERIFY(writeBytes(folder.path(name), "x"));
        Nvx::Util::removeUnfinished(folder.path(u"file"_s));
        QCOMPARE(namesIn(folder.path()), others);
    }
};

NVX_GUILESS_TEST(tst_whole_file)
#include "tst_whole_file.moc"
