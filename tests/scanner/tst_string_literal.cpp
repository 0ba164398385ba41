#include "scanner/string_literal.h"
#include "support/test_class.h"

#include <QTest>

class tst_string_literal : public QObject
{
    Q_OBJECT

private slots:
    void escapesStandForCharacters_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *source, const char *text) {
            QTest::newRow(source) << QByteArray(source) << QString::fromUtf8(text);
        };
        row("\"\\a\\b\\f\\n\\r\\t\\v\"", "\a\b\f\n\r\t\v");
        row("\"\\\\\\\"\\'\\?\"", "\\\"'?");
        row("\"\\q\\w\\-\\8\\9\"", "qw-89");

        // Octal: three digits at most.
        row("\"\\1\"", "\x01");
        row("\"\\7\\108\"", "\a\b8");
        row("\"\\1018\"", "A8");
        row("\"\\1011\"", "A1");
        row("\"\\o{101}\\o{7}\"", "A\a");
        row("\"\\o101\"", "o101");
        row("\"\\o{18}\"", "o{18}");

        // Hexadecimal: as many digits as there are.
        row("\"\\x41\"", "A");
        row("\"\\x0000041\"", "A");
        row("\"\\x4a\\x4F\\x6f\\x49\"", "JOoI");
        row("\"\\x9/\\x9:\\x9@\\x9G\\x9`\\x9g\"", "\t/\t:\t@\tG\t`\tg");
        row("\"\\xa\\xA\\xc3\\xbf\"", "\n\nÿ");
        row("\"\\x{41}\\x{4a}2\"", "AJ2");
        row("\"\\x41}\\u0041}\\101}\"", "A}A}A}");
        row("\"\\x{}\\x{4g}\\x{41\"", "x{}x{4g}x{41");
        row("\"\\x\"", "x");

        // Characters of Unicode: four digits, eight, or any number in braces.
        row("\"\\u0041\\u00412\\u41\"", "AA2A");
        row("\"\\U00000041\\U000000412\"", "AA2");
        row("\"\\u{41}\\u{1F600}\\U{41}\"", "A😀A");
        row("\"\\u\\U\\u{}\"", "uUu{}");
        row("\"ä\\u00e4ö\"", "ääö");
        row("\"\\U00010000\\U0010FFFF\"", "\U00010000\U0010FFFF");
        row("\"\\U00110000\\UFFFFFFFF\"", "\uFFFD\uFFFD");
    }

    void escapesStandForCharacters()
    {
        QFETCH(const QByteArray, source);
        QTEST(decoded(source), "text");
    }

    void unitsBeyondAByteCountInWideLiterals_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        QTest::newRow("a unit between bytes") << QByteArray("L\"ä\\x42ö\"") << QStringLiteral("äBö");
        QTest::newRow("two units of one character")
            << QByteArray("L\"\\xd83d\\xde00\"") << QStringLiteral("😀");
        QTest::newRow("the last unit of 16 bits")
            << QByteArray("L\"\\xffff\"") << QString(QChar(char16_t(0xFFFF)));
        QTest::newRow("the last character") << QByteArray("U\"\\x10FFFF\"") << QStringLiteral("\U0010FFFF");
        QTest::newRow("behind the last character")
            << QByteArray("U\"\\x110000\"") << QStringLiteral("\uFFFD");
        QTest::newRow("more than any number holds")
            << QByteArray("L\"\\x100000041\"") << QStringLiteral("\uFFFD");
    }

    void unitsBeyondAByteCountInWideLiterals()
    {
        QFETCH(const QByteArray, source);
        QTEST(decoded(source), "text");
    }

    // A number that no number holds stays at the greatest, so its lowest byte is 0xFF; it does not start
    // anew.
    void ofABytesNumberTheLowestByteCounts_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        QTest::newRow("two bytes") << QByteArray("\"\\x141\"") << QStringLiteral("A");
        QTest::newRow("the last digits that are held")
            << QByteArray("\"\\x7FFFFF41\"") << QStringLiteral("A");
        QTest::newRow("the last number") << QByteArray("\"\\x7FFFFFF1\"") << QStringLiteral("ñ");
        QTest::newRow("behind the last number") << QByteArray("\"\\x80000001\"") << QStringLiteral("ÿ");
        QTest::newRow("far behind it") << QByteArray("\"\\x100000041\"") << QStringLiteral("ÿ");
    }

    void ofABytesNumberTheLowestByteCounts()
    {
        QFETCH(const QByteArray, source);
        QTEST(decoded(source), "text");
    }

    void literalsAreJoined_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << QByteArray("x") << QString();
        QTest::newRow("empty") << QByteArray("\"\"") << QString();
        QTest::newRow("neighbours") << QByteArray("\"a\" /* x */ \"b\"\n// y\n\"c\"")
                                    << QStringLiteral("abc");
        QTest::newRow("what follows is not read") << QByteArray("\"a\", \"b\"") << QStringLiteral("a");
        QTest::newRow("the bytes of one character")
            << QByteArray("\"\\xc3\" \"\\xb6\"") << QStringLiteral("ö");
        QTest::newRow("raw beside escaped")
            << QByteArray("R\"(\\n\")\" \"\\\"\"") << QStringLiteral("\\n\"\"");
        QTest::newRow("line ends in a raw one")
            << QByteArray("R\"(\r\na\r\nb\rc\n\r\n)\"") << QStringLiteral("\na\nb\rc\n\n");
        QTest::newRow("a line end in a raw one's last place")
            << QByteArray("R\"(a\r)\"") << QStringLiteral("a\r");
        QTest::newRow("a line that goes on") << QByteArray("\"a\\\nb\\\r\nc\"") << QStringLiteral("abc");
        QTest::newRow("a backslash at the end of the file") << QByteArray("\"a\\") << QStringLiteral("a");
        QTest::newRow("an open one ends with its line") << QByteArray("\"a\nb \"c\"") << QStringLiteral("a");
        QTest::newRow("a raw one that stays open") << QByteArray("R\"(a") << QStringLiteral("a");
        QTest::newRow("open at the end of the file") << QByteArray("\"a") << QStringLiteral("a");
    }

    void literalsAreJoined()
    {
        QFETCH(const QByteArray, source);
        QTEST(decoded(source), "text");
    }

private:
    static QString decoded(const QByteArray &source)
    {
        return Scan::decodeLiterals({source.constData(), static_cast<std::size_t>(source.size())});
    }
};

NVX_GUILESS_TEST(tst_string_literal)
#include "tst_string_literal.moc"
