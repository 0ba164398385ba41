#include "log_summary/log_line.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using namespace LogSummary;

namespace {

QByteArrayList linesOf(const QByteArray &bytes, qsizetype pieceSize)
{
    QByteArrayList lines;
    LineSplitter splitter([&lines](QByteArrayView line) { lines.append(line.toByteArray()); });
    for (qsizetype i = 0; i < bytes.size(); i += pieceSize)
        splitter.add(QByteArrayView(bytes).sliced(i).first(std::min(pieceSize, bytes.size() - i)));
    splitter.finish();
    return lines;
}

} // namespace

class tst_log_lines : public QObject
{
    Q_OBJECT

private slots:
    void aDatedLineHasANumberAndAText_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<qint64>("number");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char *name, const char *line, qint64 number, const char *text) {
            QTest::newRow(name) << QByteArray(line) << number << QByteArray(text);
        };
        row("ordinary", "Sat Nov 21 15:09:47 2026    0 Output:", 0, "Output:");
        row("first blank of the text", "Sat Nov 21 15:09:47 2026    0  output:", 0, " output:");
        row("day of one digit", "Sun Nov 1 15:09:47 2026   10 a", 10, "a");
        row("day after two blanks", "Sun Nov  1 15:09:47 2026   -2 a", -2, "a");
        row("code of Windows", "Sat Nov 21 15:09:47 2026 -1073741515 a", -1073741515, "a");
        row("no text", "Sat Nov 21 15:09:47 2026    0 ", 0, "");
        row("trimmed", "Sat Nov 21 15:09:47 2026    0", 0, "");
    }

    void aDatedLineHasANumberAndAText()
    {
        QFETCH(const QByteArray, line);
        const LogLine read = readLogLine(line);
        QVERIFY(read.isDated);
        QTEST(read.number, "number");
        QTEST(read.text.toByteArray(), "text");
    }

    void anotherLineIsAllText_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("processors") << QByteArray("Processors: 1, Cores per processor: 2");
        QTest::newRow("cut in the date") << QByteArray("Sat Nov 21 15:09:4");
        QTest::newRow("cut before the number") << QByteArray("Sat Nov 21 15:09:47 2026   ");
        QTest::newRow("no number") << QByteArray("Sat Nov 21 15:09:47 2026    x a");
        QTest::newRow("number beyond 64 bits")
            << QByteArray("Sat Nov 21 15:09:47 2026 99999999999999999999 a");
        QTest::newRow("letters after the number") << QByteArray("Sat Nov 21 15:09:47 2026    0a b");
        QTest::newRow("day of three digits") << QByteArray("Sat Nov 211 15:09:47 2026    0 a");
        QTest::newRow("date of another form") << QByteArray("2026-11-21 15:09:47    0 a");
    }

    void anotherLineIsAllText()
    {
        QFETCH(const QByteArray, line);
        const LogLine read = readLogLine(line);
        QVERIFY(!read.isDated);
        QCOMPARE(read.text.toByteArray(), line);
    }

    void aDateBecomesATimeWithoutAZone()
    {
        QCOMPARE(isoTime("Sat Nov 21 15:09:47 2026"), u"2026-11-21T15:09:47"_s);
        QCOMPARE(isoTime("Sun Mar  1 00:00:00 2026"), u"2026-03-01T00:00:00"_s);
        QCOMPARE(isoTime("Sat Xyz 21 15:09:47 2026"), QString());
        QCOMPARE(isoTime("Sat Nov 31 15:09:47 2026"), QString());
        QCOMPARE(isoTime("Sat Nov 21 25:09:47 2026"), QString());
        QCOMPARE(isoTime(""), QString());
    }

    void linesAreSplitWhereverThePiecesEnd()
    {
        const QByteArrayList expected{"one", "", "two", "three"};
        for (qsizetype size = 1; size < 20; ++size) {
            QCOMPARE(linesOf("one\n\ntwo\nthree", size), expected);
            QCOMPARE(linesOf("one\r\n\r\ntwo\r\nthree\r\n", size), expected);
        }
    }

    void ofALongLineOnlyTheBeginningIsPassedOn()
    {
        const qsizetype limit = LineSplitter::maxLineBytes;
        for (const qsizetype length : {limit - 1, limit, limit + 1, limit + 2, 3 * limit}) {
            const QByteArray line(length, 'x');
            const QByteArrayList expected{line.first(std::min(length, limit)), "y"};
            for (const qsizetype size : {qsizetype(100), limit, 4 * limit}) {
                QCOMPARE(linesOf(line + "\ny", size), expected);
                QCOMPARE(linesOf(line + "\r\ny", size), expected);
            }
        }
    }
};

NVX_GUILESS_TEST(tst_log_lines)

#include "tst_log_lines.moc"
