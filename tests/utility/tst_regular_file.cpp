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

    void aFileIsPassedOnInPieces()
    {
        QByteArray bytes(5'000'000, 'x');
        bytes[2'000'000] = 'y';
        QVERIFY(writeBytes(m_folder.path(u"pieces"_s), bytes));
        QByteArray passed;
        int pieces = 0;
        const QString problem =
            readRegularFile(m_folder.path(u"pieces"_s), bytes.size(), [&](QByteArrayView piece) {
                passed += piece;
                ++pieces;
            });
        QCOMPARE(problem, QString());
        QVERIFY(passed == bytes);
        QCOMPARE(pieces, 5);
    }

    void nothingOfAnotherFileIsPassedOn()
    {
        QVERIFY(writeBytes(m_folder.path(u"three"_s), "abc"));
        const auto fail = [](QByteArrayView) { QFAIL("a piece was passed on"); };
        QCOMPARE(readRegularFile(m_folder.path(u"three"_s), 2, fail), u"the file is larger than 0 MiB"_s);
        QCOMPARE(readRegularFile(m_folder.path(), 10, fail), u"it is not a regular file"_s);
        QCOMPARE(readRegularFile(m_folder.path(u"no"_s), 10, fail), u"the file does not exist"_s);
    }

private:
    TestFolder m_folder;
};

NVX_GUILESS_TEST(tst_regular_file)

#include "tst_regular_file.moc"
