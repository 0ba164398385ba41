#include "run/output_lines.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray numberedLines(int count)
{
    QByteArray output;
    for (int i = 1; i <= count; ++i)
        output += QByteArray::number(i) + "\n";
    return output;
}

QStringList numbers(int count)
{
    QStringList lines;
    for (int i = 1; i <= count; ++i)
        lines << QString::number(i);
    return lines;
}

QString xs(int count)
{
    return QString(count, u'x');
}

} // namespace

class tst_output_lines : public QObject
{
    Q_OBJECT

private slots:
    void theFirst21LinesAreReturned_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("no output") << QByteArray() << QStringList();
        QTest::newRow("one line without a line end") << QByteArray("one") << QStringList{u"one"_s};
        QTest::newRow("blanks and line ends are trimmed")
            << QByteArray("  one \t\r\n") << QStringList{u"one"_s};
        QTest::newRow("all of 21 lines") << numberedLines(21) << numbers(21);
        QTest::newRow("the first 21 of 40 lines") << numberedLines(40) << numbers(21);
        QTest::newRow("empty lines count but are left out")
            << QByteArray("\n\n\n") + numberedLines(40) << numbers(18);
        QTest::newRow("only empty lines") << QByteArray(30, '\n') << QStringList();
        QTest::newRow("255 bytes are one line") << QByteArray(255, 'x') << QStringList{xs(255)};
        QTest::newRow("254 bytes and the line end are one piece")
            << QByteArray(254, 'x') + "\nnext" << QStringList{xs(254), u"next"_s};
        QTest::newRow("256 bytes are two pieces") << QByteArray(256, 'x') << QStringList{xs(255), xs(1)};
        QTest::newRow("1,000 bytes are four pieces") << QByteArray(1000, 'x') + '\n'
                                                     << QStringList{xs(255), xs(255), xs(255), xs(235)};
        QTest::newRow("pieces count towards the 21")
            << QByteArray(255 * 20, 'x') + "\nlast\nmore"
            << QStringList(20, xs(255)); // the line end is the 21st piece
        QTest::newRow("a carriage return within a line stays")
            << QByteArray("10%\r20%\n") << QStringList{u"10%\r20%"_s};
    }

    void theFirst21LinesAreReturned()
    {
        QFETCH(QByteArray, output);
        QTEST(outputLines(output), "expected");
    }

    void bytesThatAreInvalidInTheCodePageDoNotEndALine()
    {
        const QStringList lines = outputLines(QByteArray("a\xFF\xFEz\nnext\n"));
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines.first().startsWith(u'a') && lines.first().endsWith(u'z'));
        QCOMPARE(lines.last(), u"next"_s);
    }

    void aZeroByteDoesNotEndALine()
    {
        const QStringList lines = outputLines(QByteArray("a\0b\n", 4));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines.first().size(), 3);
    }
};

NVX_GUILESS_TEST(tst_output_lines)
#include "tst_output_lines.moc"
