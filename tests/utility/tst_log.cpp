#include "nvx_util/log.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
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
    void aLineIsInTheFileWhenAppendReturns()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        Log log(path);
        QVERIFY(log.open(true));
        log.append(u"first"_s);
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("first\n"));
    }

    void textIsWrittenInUtf8()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        Log log(path);
        QVERIFY(log.open(true));
        log.append(u"Größe 日本"_s);
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("Gr\xC3\xB6\xC3\x9F"
                                                            "e \xE6\x97\xA5\xE6\x9C\xAC\n"));
    }

    void lineBreaksBecomeThoseOfTheSystem()
    {
        const TestFolder folder;
        const QString one = folder.path(u"one.log"_s);
        const QString other = folder.path(u"other.log"_s);
        for (const auto &[path, text] :
             {std::pair(one, u"first\nsecond\n\n"_s), std::pair(other, u"first\r\nsecond\r\n\r\n"_s)}) {
            Log log(path);
            QVERIFY(log.open(true));
            log.append(text);
        }
        QCOMPARE(withoutReturns(readFile(one)), QByteArray("first\nsecond\n\n\n"));
        QCOMPARE(readFile(other), readFile(one));
    }

    void openingToAppendPreservesTheContents()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        writeFile(path, "old\n");
        Log log(path);
        QVERIFY(log.open(true));
        log.append(u"new"_s);
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("old\nnew\n"));
    }

    void linesOfTwoRunsDoNotOverwriteEachOther()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        Log one(path), other(path);
        QVERIFY(one.open(true));
        QVERIFY(other.open(true));
        one.append(u"1, a long line of the one run"_s);
        other.append(u"2"_s);
        one.append(u"3"_s);
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("1, a long line of the one run\n2\n3\n"));
    }

    void openingWithoutAppendDiscardsTheContents()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        writeFile(path, "old\n");
        Log log(path);
        QVERIFY(log.open(false));
        log.append(u"new"_s);
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("new\n"));
    }

    void aLogThatCannotBeOpenedDropsItsLines()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        QVERIFY(QDir().mkdir(path)); // a folder has the name of the log
        Log log(path);
        QVERIFY(!log.open(true));
        log.append(u"dropped"_s);
        QVERIFY(QDir(path).isEmpty());
    }

    void aClosedLogDropsItsLines()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.log"_s);
        Log log(path);
        QVERIFY(log.open(true));
        log.append(u"kept"_s);
        log.close();
        log.append(u"dropped"_s);
        QCOMPARE(withoutReturns(readFile(path)), QByteArray("kept\n"));
    }
};

NVX_GUILESS_TEST(tst_log)
#include "tst_log.moc"
