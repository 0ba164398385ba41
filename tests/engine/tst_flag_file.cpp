#include "cfg_utilities/flag_file.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QBuffer>
#include <QTest>

using namespace Nvx::Engine;
using namespace Qt::Literals::StringLiterals;

class tst_flag_file : public QObject
{
    Q_OBJECT

private slots:
    void pathsOfDevicesCannotBeFolders_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("expected");
        QTest::newRow("on a drive") << u"C:\\Temp"_s << true;
        QTest::newRow("on a share") << u"\\\\server\\share\\pipe"_s << true;
        QTest::newRow("a short name") << u"pipe"_s << true;
        QTest::newRow("empty") << QString() << true;
        QTest::newRow("a device") << u"\\\\.\\C:"_s << false;
        QTest::newRow("a long path") << u"\\\\?\\C:\\Temp"_s << false;
        QTest::newRow("pipes") << u"\\\\.\\pipe\\x"_s << false;
        QTest::newRow("pipes of a server") << u"\\\\server\\Pipe"_s << false;
        QTest::newRow("with slashes") << u"//./pipe"_s << false;
    }

    void pathsOfDevicesCannotBeFolders()
    {
        QFETCH(const QString, path);
        QTEST(canBeFolder(path), "expected");
    }

    void onlyWhiteSpaceCountsAsUnchanged_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("unchanged");
        QTest::newRow("no bytes") << QByteArray() << true;
        QTest::newRow("an empty line") << QByteArray("\r\n") << true;
        QTest::newRow("blanks and tabs") << QByteArray("  \t \n \r\n") << true;
        QTest::newRow("text") << QByteArray("on") << false;
        QTest::newRow("text after much white space") << QByteArray(100000, ' ') + "x" << false;
        QTest::newRow("much white space") << QByteArray(100000, '\n') << true;
        QTest::newRow("a zero byte") << QByteArray(1, '\0') << false;
        QTest::newRow("a byte order mark") << QByteArray("\xEF\xBB\xBF") << false;
    }

    void onlyWhiteSpaceCountsAsUnchanged()
    {
        QFETCH(QByteArray, contents);
        QBuffer buffer(&contents);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QTEST(holdsOnlyWhiteSpace(buffer), "unchanged");
        const TestFolder folder;
        const QString path = folder.path(u"NVX_flags.txt"_s);
        writeFile(path, contents);
        QTEST(isUnchangedFlagFile(path), "unchanged");
    }

    void aDeviceThatCannotBeReadCountsAsChanged()
    {
        QBuffer closed;
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::read (QBuffer): device not open");
        QVERIFY(!holdsOnlyWhiteSpace(closed));
    }

    void aFileThatCannotBeOpenedCountsAsChanged()
    {
        const TestFolder folder;
        const QString path = folder.path(u"NVX_flags.txt"_s);
        QVERIFY(QDir().mkdir(path)); // it exists but cannot be read as a file
        QVERIFY(!isUnchangedFlagFile(path));
    }

    void aNewFileContainsAnEmptyLine()
    {
        const TestFolder folder;
        const QString path = folder.path(u"NVX_flags.txt"_s);
        QVERIFY(createFlagFile(path));
        QCOMPARE(readFile(path), QByteArray("\r\n"));
        QVERIFY(isUnchangedFlagFile(path));
    }

    void anExistingFileIsNotReplaced()
    {
        const TestFolder folder;
        const QString path = folder.path(u"NVX_flags.txt"_s);
        writeFile(path, "on");
        QVERIFY(!createFlagFile(path));
        QCOMPARE(readFile(path), QByteArray("on"));
    }

    void aMissingFileCountsAsUnchanged()
    {
        const TestFolder folder;
        QVERIFY(isUnchangedFlagFile(folder.path(u"NVX_flags.txt"_s)));
    }
};

NVX_GUILESS_TEST(tst_flag_file)
#include "tst_flag_file.moc"
