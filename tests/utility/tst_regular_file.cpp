#include "nvx_util/regular_file.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::FileContents;
using Nvx::Util::readRegularFile;

class tst_regular_file : public QObject
{
    Q_OBJECT

private slots:
    void aFileUpToTheLimitIsRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("one") << QByteArray("a");
        QTest::newRow("all that are allowed") << QByteArray(1'000'000, 'x');
    }

    void aFileUpToTheLimitIsRead()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(writeBytes(m_folder.path(u"größe.bin"_s), bytes));
        const FileContents contents = readRegularFile(m_folder.path(u"größe.bin"_s), 1'000'000);
        QVERIFY(contents.wasOpened);
        QCOMPARE(contents.problem, QString());
        QVERIFY(contents.bytes == bytes);
    }

    void aLargerFileIsNotRead()
    {
        QVERIFY(writeBytes(m_folder.path(u"large"_s), QByteArray(2 * 1024 * 1024 + 1, 'x')));
        const FileContents contents = readRegularFile(m_folder.path(u"large"_s), qint64{2} * 1024 * 1024);
        QVERIFY(!contents.bytes);
        QVERIFY(!contents.wasOpened);
        QCOMPARE(contents.problem, u"the file is larger than 2 MiB"_s);
    }

    void foldersAndMissingFilesAreNotRead()
    {
        QCOMPARE(readRegularFile(m_folder.path(), 10).problem, u"it is not a regular file"_s);
        QCOMPARE(readRegularFile(m_folder.path(u"no"_s), 10).problem, u"the file does not exist"_s);
        QCOMPARE(readRegularFile(m_folder.path(u"no/file"_s), 10).problem, u"the file does not exist"_s);
        QCOMPARE(readRegularFile(QString(), 10).problem, u"the file does not exist"_s);
    }

private:
    TestFolder m_folder;
};

NVX_GUILESS_TEST(tst_regular_file)

#include "tst_regular_file.moc"
