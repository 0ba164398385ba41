#include "scanner/string_literal.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_string_literal : public QObject
{
    Q_OBJECT

private slots:
    void escapesAreDecoded_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *source, const char *text) {
            QTest::newRow(source) << QByteArray(source) << QString::fromUtf8(text);
        };
        row("\"\\a\\b\\f\\n\\r\\t\\v\"", "\a\b\f\n\r\t\v");
        row("\"\\\\\\\"\\'\\?\"", "\\\"'?");
        row("\"\\q\\w\\-\\8\\9\"", "qw-89");

        // Octal: at most three digits.
        row("\"\\1\"", "\x01");
        row("\"\\7\\108\"", "\a\b8");
        row("\"\\1018\"", "A8");
        row("\"\\1011\"", "A1");
        row("\"\\o{101}\\o{7}\"", "A\a");
        row("\"\\o101\"", "o101");
        row("\"\\o{18}\"", "o{18}");

        // Hexadecimal: any number of digits.
        row("\"\\x41\"", "A");
        row("\"\\x0000041\"", "A");
        row("\"\\x4a\\x4F\\x6f\\x49\"", "JOoI");
        row("\"\\x9/\\x9:\\x9@\\x9G\\x9`\\x9g\"", "\t/\t:\t@\tG\t`\tg");
        row("\"\\xa\\xA\\xc3\\xbf\"", "\n\nÿ");
        row("\"\\x{41}\\x{4a}2\"", "AJ2");
        row("\"\\x41}\\u0041}\\101}\"", "A}A}A}");
        row("\"\\x{}\\x{4g}\\x{41\"", "x{}x{4g}x{41");
        row("\"\\x\"", "x");

        // Unicode characters: four or eight digits, or any number of them in braces.
        row("\"\\u0041\\u00412\\u41\"", "AA2A");
        row("\"\\U00000041\\U000000412\"", "AA2");
        row("\"\\u{41}\\u{1F600}\\U{41}\"", "A😀A");
        row("\"\\u\\U\\u{}\"", "uUu{}");
        row("\"ä\\u00e4ö\"", "ääö");
        row("\"\\U00010000\\U0010FFFF\"", "\U00010000\U0010FFFF");
        row("\"\\U00110000\\UFFFFFFFF\"", "\uFFFD\uFFFD");
    }

    void escapesAreDecoded()
    {
        QFETCH(const QByteArray, source);
        QTEST(decoded(source), "text");
    }

    void numbersInWideLiteralsAreCodeUnits_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        QTest::newRow("a unit between bytes") << QByteArray("L\"ä\\x42ö\"") << u"äBö"_s;
        QTest::newRow("two units of one character") << QByteArray("L\"\\xd83d\\xde00\"") << u"😀"_s;
        QTest::newRow("the last unit of 16 bits")
            << QByteArray("L\"\\xffff\"") << QString(QChar(char16_t(0xFFFF)));
        QTest::newRow("the last character") << QByteArray("U\"\\x10FFFF\"") << u"\U0010FFFF"_s;
        QTest::newRow("after the last character") << QByteArray("U\"\\x110000\"") << u"\uFFFD"_s;
        QTest::newRow("a number that overflows") << QByteArray("L\"\\x100000041\"") << u"\uFFFD"_s;
    }

    void numbersInWideLiteralsAreCodeUnits()
    {
        QFETCH(const QByteArray, source);
        QTEST(decoded(source), "text");
    }

    // A number that overflows stays at its maximum, so its lowest byte is 0xFF.
    void numbersOfBytesAreTruncatedToTheirLowestByte_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("text");
        QTest::newRow("two bytes") << QByteArray("\"\\x141\"") << u"A"_s;
        QTest::newRow("the last digits that fit") << QByteArray("\"\\x7FFFFF41\"") << u"A"_s;
        QTest::newRow("the last number") << QByteArray("\"\\x7FFFFFF1\"") << u"ñ"_s;
        QTest::newRow("after the last number") << QByteArray("\"\\x80000001\"") << u"ÿ"_s;
        QTest::newRow("far after the last number") << QByteArray("\"\\x100000041\"") << u"ÿ"_s;
    }

    void numbersOfBytesAreTruncatedToTheirLowestByte()
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
        QTest::newRow("neighbours") << QByteArray("\"a\" /* x */ \"b\"\n// y\n\"c\"") << u"abc"_s;
        QTest::newRow("text after the literal") << QByteArray("\"a\", \"b\"") << u"a"_s;
        QTest::newRow("the bytes of one character") << QByteArray("\"\\xc3\" \"\\xb6\"") << u"ö"_s;
        QTest::newRow("raw next to escaped") << QByteArray("R\"(\\n\")\" \"\\\"\"") << u"\\n\"\""_s;
        QTest::newRow("line ends in a raw one")
            << QByteArray("R\"(\r\na\r\nb\rc\n\r\n)\"") << u"\na\nb\rc\n\n"_s;
        QTest::newRow("a carriage return at the end of a raw one") << QByteArray("R\"(a\r)\"") << u"a\r"_s;
        QTest::newRow("line continuations") << QByteArray("\"a\\\nb\\\r\nc\"") << u"abc"_s;
        QTest::newRow("a backslash at the end of the file") << QByteArray("\"a\\") << u"a"_s;
        QTest::newRow("unclosed on its line") << QByteArray("\"a\nb \"c\"") << u"a"_s;
        QTest::newRow("an unclosed raw one") << QByteArray("R\"(a") << u"a"_s;
        QTest::newRow("unclosed at the end of the file") << QByteArray("\"a") << u"a"_s;
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
