#include "nvx_util/log.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using Nvx::Util::Log;

namespace {

QByteArray withoutReturns(QByteArray bytes)
{
    return bytes.replace("\r\n", "\n");
}

} // namespace

class tst_log : public QObject
{
    Q_OBJECT

private slots:
    void aLineIsOnTheDiskAsSoonAsItIsAppended()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.log"));
        Log log(path);
        QVERIFY(log.open(true));
        log.append(QStringLiteral("first"));
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("first\n"));
    }

    void textIsWrittenInUtf8()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.log"));
        Log log(path);
        QVERIFY(log.open(true));
        log.append(QStringLiteral("Größe 日本"));
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("Gr\xC3\xB6\xC3\x9F"
                                                            "e \xE6\x97\xA5\xE6\x9C\xAC\n"));
    }

    void lineBreaksOfATextAreThoseOfTheMachineWhicheverItHas()
    {
        const TestFolder folder;
        const QString one = folder.path(QStringLiteral("one.log"));
        const QString other = folder.path(QStringLiteral("other.log"));
        for (const auto &[path, text] : {std::pair(one, QStringLiteral("first\nsecond\n\n")),
                                         std::pair(other, QStringLiteral("first\r\nsecond\r\n\r\n"))}) {
            Log log(path);
            QVERIFY(log.open(true));
            log.append(text);
        }
        QCOMPARE(withoutReturns(readFile(one)), QByteArray("first\nsecond\n\n\n"));
        QCOMPARE(readFile(other), readFile(one));
    }

    void openingToAppendKeepsWhatIsThere()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.log"));
        writeFile(path, "old\n");
        Log log(path);
        QVERIFY(log.open(true));
        log.append(QStringLiteral("new"));
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("old\nnew\n"));
    }

    void openingAnewDropsWhatIsThere()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.log"));
        writeFile(path, "old\n");
        Log log(path);
        QVERIFY(log.open(false));
        log.append(QStringLiteral("new"));
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("new\n"));
    }

    void aLogThatCannotBeOpenedDropsItsLines()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.log"));
        QVERIFY(QDir().mkdir(path)); // a folder of that name is in the way
        Log log(path);
        QVERIFY(!log.open(true));
        log.append(QStringLiteral("dropped"));
        QVERIFY(QDir(path).isEmpty());
    }

    void aClosedLogDropsItsLines()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.log"));
        Log log(path);
        QVERIFY(log.open(true));
        log.append(QStringLiteral("kept"));
        log.close();
        log.append(QStringLiteral("dropped"));
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("kept\n"));
    }
};

NVX_GUILESS_TEST(tst_log)
#include "tst_log.moc"
