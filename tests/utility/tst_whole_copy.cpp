#include "nvx_util/whole_file.h"
#include "platform.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::copyToFreeName;

class tst_whole_copy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_source = m_folder->path(u"Werkstoffe 材料.mdb"_s);
        m_target = m_folder->path(u"größe 材料.nvxmdb"_s);
    }

    void copyHasTheBytes_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("a few") << QByteArray("a\r\n\0b", 5);
        QTest::newRow("one chunk") << QByteArray(64 * 1024, 'x');
        QTest::newRow("one chunk and a byte") << QByteArray(64 * 1024, 'x') + 'y';
        QTest::newRow("many") << QByteArray(300 * 1000, 'x') + 'y';
    }

    void copyHasTheBytes()
    {
        QFETCH(const QByteArray, contents);
        QVERIFY(writeBytes(m_source, contents));
        QVERIFY(copyToFreeName(m_source, m_target));
        QCOMPARE(fileBytes(m_target), contents);
        QCOMPARE(fileBytes(m_source), contents);
        QCOMPARE(namesIn(m_folder->path()).size(), 2);
    }

    void aNewFileHasTheBytesAndAnExistingOneIsNotReplaced()
    {
        QVERIFY(Nvx::Util::createWholeFile(m_target, "new"));
        QVERIFY(!Nvx::Util::createWholeFile(m_target, "newer"));
        QCOMPARE(fileBytes(m_target), QByteArray("new"));
        QCOMPARE(namesIn(m_folder->path()).size(), 1);
    }

    void copyOfAWriteProtectedFileCanBeWritten()
    {
        QVERIFY(writeBytes(m_source, "materials"));
        QVERIFY(QFile::setPermissions(m_source, QFile::ReadOwner | QFile::ReadUser));
        QVERIFY(copyToFreeName(m_source, m_target));
        QVERIFY(QFile::permissions(m_target).testFlag(QFile::WriteOwner));
    }

    void existingFileStays()
    {
        QVERIFY(writeBytes(m_source, "new"));
        QVERIFY(writeBytes(m_target, "mine"));
        QVERIFY(!copyToFreeName(m_source, m_target));
        QCOMPARE(fileBytes(m_target), QByteArray("mine"));
        QCOMPARE(namesIn(m_folder->path()).size(), 2);
    }

    void fileCreatedDuringTheCopyStays()
    {
        QVERIFY(writeBytes(m_source, "new"));
        QVERIFY(writeBytes(m_target, "mine"));
        QVERIFY(!Nvx::Util::Platform::renameToFreeName(m_source, m_target));
        QCOMPARE(fileBytes(m_source), QByteArray("new"));
        QCOMPARE(fileBytes(m_target), QByteArray("mine"));
    }

    void existingFolderStays()
    {
        QVERIFY(writeBytes(m_source, "new"));
        QVERIFY(QDir().mkdir(m_target));
        QVERIFY(!copyToFreeName(m_source, m_target));
        QVERIFY(QFileInfo(m_target).isDir());
        QCOMPARE(namesIn(m_folder->path()).size(), 2);
    }

    void missingSourceLeavesNothing()
    {
        QVERIFY(!copyToFreeName(m_source, m_target));
        QCOMPARE(namesIn(m_folder->path()), QStringList());
    }

    void folderInTheSourcesPlaceLeavesNothing()
    {
        QVERIFY(QDir().mkdir(m_source));
        QVERIFY(!copyToFreeName(m_source, m_target));
        QCOMPARE(namesIn(m_folder->path()), QStringList(QFileInfo(m_source).fileName()));
    }

    void missingFolderFails()
    {
        QVERIFY(writeBytes(m_source, "new"));
        QVERIFY(!copyToFreeName(m_source, m_folder->path(u"missing/file"_s)));
        QVERIFY(!QFile::exists(m_folder->path(u"missing"_s)));
    }

    void leftoverOfAnEarlierCopyIsReplaced()
    {
        QVERIFY(writeBytes(m_source, "new"));
        QVERIFY(writeBytes(m_target + u".nvxpart"_s, "longer than what is to be copied"));
        QVERIFY(copyToFreeName(m_source, m_target));
        QCOMPARE(fileBytes(m_target), QByteArray("new"));
        QCOMPARE(namesIn(m_folder->path()).size(), 2);
    }

    void pathsOfMoreThan260CharactersAreTaken()
    {
        QString folder = m_folder->path();
        for (int i = 0; i < 6; ++i)
            folder += QDir::separator() + QString(45, u'd');
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(writeBytes(m_source, "new"));
        QVERIFY(copyToFreeName(m_source, folder + QDir::separator() + u"file"_s));
        QCOMPARE(fileBytes(folder + QDir::separator() + u"file"_s), QByteArray("new"));
    }

private:
    std::unique_ptr<TestFolder> m_folder;
    QString m_source;
    QString m_target;
};

NVX_GUILESS_TEST(tst_whole_copy)
#include "tst_whole_copy.moc"
