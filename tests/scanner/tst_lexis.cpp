#include "scanner/lexis.h"
#include "support/test_class.h"

#include <QTest>

#include <functional>

using namespace Scan;

namespace {

// Bytes in memory after the text, which must not affect the result.
constexpr std::string_view tails[] = {"",   "a", "0", "_",  "\n", "\r\n", "\\\n", "\n\n", "'", "\"",
                                      "'a", "/", "*", "*/", "//", "(",    ")",    "\"(",  " "};

// Checks the text as part of each longer text, and alone.
void withEveryTail(std::string_view text, const std::function<void(std::string_view)> &check)
{
    for (const std::string_view tail : tails) {
        const std::string longer = std::string(text) + std::string(tail);
        check(std::string_view(longer).substr(0, text.size()));
        if (QTest::currentTestFailed())
            return;
    }
}

// Rows of an element between two texts.
void addTakenColumns()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("taken");
    QTest::addColumn<QByteArray>("after");
}

void addTaken(const char *name, const char *before, const char *taken, const char *after)
{
    QTest::newRow(name) << QByteArray(before) << QByteArray(taken) << QByteArray(after);
}

// Checks that the function finds the end of the row's element from its beginning.
void checkTaken(const std::function<std::size_t(std::string_view, std::size_t)> &endOf)
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, taken);
    QFETCH(const QByteArray, after);
    const std::string text = (before + taken + after).toStdString();
    const auto begin = static_cast<std::size_t>(before.size());
    const std::size_t end = begin + static_cast<std::size_t>(taken.size());
    withEveryTail(text, [&](std::string_view view) { QCOMPARE(endOf(view, begin), end); });
}

} // namespace

/// The lexical rules one by one. The bytes in memory after a text never affect the result.
class tst_lexis : public QObject
{
    Q_OBJECT

private slots:
    void lineContinuationsAreABackslashAndALineEnd_data()
    {
        addTakenColumns();
        addTaken("line feed", "", "\\\n", "a");
        addTaken("line feed after a word", "abc", "\\\n", "a");
        addTaken("carriage return and line feed", "", "\\\r\n", "a");
        addTaken("at the end of the text", "abc", "\\\n", "");
        addTaken("carriage return at the end of the text", "abc", "\\\r\n", "");
        addTaken("only a backslash", "", "", "\\");
        addTaken("a backslash at the end of the text", "abc", "", "\\");
        addTaken("a backslash and a letter", "", "", "\\n\n");
        addTaken("a backslash, a letter and a line feed", "", "", "\\r\n");
        addTaken("only a carriage return", "", "", "\\\ra\n");
        addTaken("a carriage return at the end of the text", "", "", "\\\r");
        addTaken("a line feed without backslash", "", "", "\n\n");
    }

    void lineContinuationsAreABackslashAndALineEnd()
    {
        checkTaken([](std::string_view text, std::size_t begin) {
            return begin + Lexis::continuationLength(text, begin);
        });
    }

    void wordsEndBeforeTheNextOtherByte_data()
    {
        addTakenColumns();
        addTaken("at a blank", "", "name_1", " x");
        addTaken("at the end of the text", "x ", "name", "");
        addTaken("after a continuation within", "", "na\\\nme", ";");
        addTaken("after a continuation with a carriage return", "", "na\\\r\nme", ";");
        addTaken("after two continuations in a row", "", "na\\\n\\\r\nme", ";");
        addTaken("after several separate continuations", "", "n\\\na\\\nme", "\\\n;");
        addTaken("before a continuation without a word byte after it", "", "name", "\\\n;");
        addTaken("before a continuation with a blank after it", "", "name", "\\\n x");
        addTaken("before a continuation at the end of the text", "", "name", "\\\n");
        addTaken("before a backslash", "", "name", "\\x");
        addTaken("before a backslash at the end of the text", "", "name", "\\");
        addTaken("before a line feed", "", "name", "\nx");
        addTaken("at a position without a word", "x", "", ";x");
    }

    void wordsEndBeforeTheNextOtherByte() { checkTaken(Lexis::wordEnd); }

    void wordsBeginAfterTheLastOtherByte_data()
    {
        addTakenColumns();
        addTaken("at the start of the text", "", "name", " x");
        addTaken("after a blank", "x ", "name", "");
        addTaken("before a continuation within", "x ", "na\\\nme", ";");
        addTaken("before a continuation within, at the start of the text", "", "na\\\nme", ";");
        addTaken("before a continuation with a carriage return", "x ", "na\\\r\nme", ";");
        addTaken("before one with a carriage return, at the start of the text", "", "n\\\r\nme", ";");
        addTaken("before two continuations in a row", "x ", "na\\\r\n\\\nme", ";");
        addTaken("before several separate continuations", "x ", "n\\\na\\\nme", ";");
        addTaken("after a line feed without backslash", "x\n", "name", ";");
        addTaken("after a line end without backslash", "x\r\n", "name", ";");
        addTaken("after a letter, no backslash, and a line feed", "\\xr\n", "name", ";");
        addTaken("after a backslash within the line", "x\\y\n", "name", ";");
        addTaken("after a backslash and a blank", "x\\ \n", "name", ";");
        addTaken("after a backslash and a sign", "x\\;", "name", ";");
        addTaken("after a backslash, a carriage return and a sign", "x\\\r;", "name", ";");
        addTaken("after a continuation without a word byte before it", ";\\\n", "name", ";");
        addTaken("after a continuation with a blank before it", "x \\\r\n", "name", ";");
        addTaken("after a continuation at the start of the text", "\\\n", "name", ";");
        addTaken("after a line end at the start of the text", "\r\n", "name", ";");
        addTaken("after a line feed at the start of the text", "\n", "name", ";");
        addTaken("at a position after no word", "x;", "", ";x");
    }

    void wordsBeginAfterTheLastOtherByte()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, taken);
        QFETCH(const QByteArray, after);
        const auto begin = static_cast<std::size_t>(before.size());
        const std::size_t end = begin + static_cast<std::size_t>(taken.size());
        const std::string text = (before + taken + after).toStdString();
        QCOMPARE(Lexis::wordBegin(text, end, 0), begin);
        // Words before the floor do not change that.
        const std::string further = "x y" + text;
        QCOMPARE(Lexis::wordBegin(further, end + 3, 3), begin + 3);
    }

    void wordsNeverBeginBeforeTheFloor_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("floor");
        QTest::addColumn<int>("begin");
        QTest::newRow("within the word") << QByteArray("name") << 2 << 2;
        QTest::newRow("at its end") << QByteArray("name") << 4 << 4;
        QTest::newRow("before a continuation") << QByteArray("na\\\nme") << 2 << 4;
        QTest::newRow("within a continuation") << QByteArray("na\\\nme") << 3 << 4;
        QTest::newRow("after a continuation") << QByteArray("na\\\nme") << 4 << 4;
        QTest::newRow("a byte before a continuation") << QByteArray("na\\\nme") << 1 << 1;
        QTest::newRow("before one with a carriage return") << QByteArray("na\\\r\nme") << 2 << 5;
        QTest::newRow("within one with a carriage return") << QByteArray("na\\\r\nme") << 3 << 5;
        QTest::newRow("at its line feed") << QByteArray("na\\\r\nme") << 4 << 5;
        QTest::newRow("a byte before it") << QByteArray("na\\\r\nme") << 1 << 1;
    }

    void wordsNeverBeginBeforeTheFloor()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, floor);
        QFETCH(const int, begin);
        const std::string word = text.toStdString();
        QCOMPARE(Lexis::wordBegin(word, word.size(), std::size_t(floor)), std::size_t(begin));
    }

    void spellingOmitsContinuations()
    {
        QCOMPARE(Lexis::spelling("name"), std::string("name"));
        QCOMPARE(Lexis::spelling("n\\\na\\\r\n\\\nme"), std::string("name"));
        QCOMPARE(Lexis::spelling(""), std::string());
    }

    void numbersHaveSeparators_data()
    {
        addTakenColumns();
        addTaken("no separator", "", "12", ";");
        addTaken("one", "", "1'000", ";");
        addTaken("two, and a suffix", "", "1'000'000u", ";");
        addTaken("between single digits", "x ", "1'2'3", "'");
        addTaken("at the end of the text", "", "1'2", "");
        addTaken("hexadecimal digits", "", "0xFF'FF", ",");
        addTaken("a quote that no digit follows", "", "1", "';'");
        addTaken("a quote that only the next but one follows", "", "1", "';2");
        addTaken("a quote at the end of the text", "", "1", "'");
        addTaken("two quotes", "", "1", "''2");
        addTaken("something else before a digit", "", "1", ".2");
    }

    void numbersHaveSeparators() { checkTaken(Lexis::numberEnd); }

    void commentsEnd_data()
    {
        addTakenColumns();
        addTaken("with the line", "x ", "// a", "\nb");
        addTaken("with the line, though empty", "", "//", "\nb");
        addTaken("before a carriage return's line feed", "", "// a\r", "\nb");
        addTaken("with the text", "", "// a", "");
        addTaken("with the text, though empty", "", "//", "");
        addTaken("with the line after a continuation", "", "// a\\\nb", "\nc");
        addTaken("with the line after a continuation with a carriage return", "", "// a\\\r\nb", "\nc");
        addTaken("with the line after an empty one with a continuation", "", "//\\\nb", "\nc");
        addTaken("with the text after a continuation", "", "// a\\\n", "");
        addTaken("with a line whose last letter but one is a backslash", "", "// a\\s", "\nb");
        addTaken("with a line whose last but one is a carriage return", "", "// \\\rx", "\nb");
        addTaken("at an asterisk and a slash", "x", "/* a\n // b */", "c */");
        addTaken("at an asterisk and a slash, though empty", "", "/**/", "*/");
        addTaken("with the text if unclosed", "", "/* a\nb", "");
        addTaken("with the text at an asterisk", "", "/* a*", "");
    }

    void commentsEnd()
    {
        checkTaken([](std::string_view text, std::size_t begin) {
            return Lexis::commentEnd(text, begin).value_or(std::string_view::npos);
        });
    }

    void noCommentBegins_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("at only a slash") << QByteArray("/");
        QTest::newRow("at a slash before a word") << QByteArray("/a");
        QTest::newRow("at a slash before a blank") << QByteArray("/ /");
        QTest::newRow("a byte before a comment") << QByteArray("a// b");
        QTest::newRow("a byte before a slash and an asterisk") << QByteArray("*/* b */");
        QTest::newRow("at another sign and a slash") << QByteArray("*/");
    }

    void noCommentBegins()
    {
        QFETCH(const QByteArray, text);
        withEveryTail(text.toStdString(),
                      [](std::string_view view) { QVERIFY(!Lexis::commentEnd(view, 0)); });
    }

    void blanksCommentsAndContinuationsAreSkipped_data()
    {
        addTakenColumns();
        addTaken("at a position without any", "", "", "a");
        addTaken("blanks", "a", " \t\r\n\v\f", "b");
        addTaken("a comment to the end of the line", "", "// a\n ", "b");
        addTaken("adjacent comments", "", "/* a *//* b */ /* c */", "d");
        addTaken("continuations", "a", " \\\n\\\r\n ", "b");
        addTaken("not a slash", "", " ", "/ a");
        addTaken("not a backslash", "", " ", "\\a");
        addTaken("not a slash at the end of the text", "", " ", "/");
        addTaken("not a backslash at the end of the text", "", " ", "\\");
        addTaken("to the end of the text", "a", " // b", "");
    }

    void blanksCommentsAndContinuationsAreSkipped() { checkTaken(Lexis::skipBlanksAndComments); }

    void characterLiteralsEnd_data()
    {
        addTakenColumns();
        addTaken("at their quote", "x", "'a'", ";'");
        addTaken("after a suffix", "", "'a'_b", ";'");
        addTaken("before a digit", "", "'a'", "1");
        addTaken("after a quote with a backslash", "", "'\\''", "'");
        addTaken("after two backslashes", "", "'\\\\'", "'");
        addTaken("after a continuation", "", "'a\\\r\nb'", "'");
        addTaken("with the line if unclosed", "", "'a", "\nb'");
        addTaken("with the text if unclosed", "", "'a", "");
        addTaken("with the text after a backslash", "", "'a\\", "");
    }

    void characterLiteralsEnd() { checkTaken(Lexis::characterLiteralEnd); }

    void singleQuotesBelongToNumbersOrLiterals_data()
    {
        addTakenColumns();
        addTaken("a number's separator", "1", "'000'000", ";");
        addTaken("a number's separator after a letter", "x = 0xF", "'F", "'");
        addTaken("a number's separator after a continuation", "1\\\n0", "'0", ";");
        addTaken("a literal at the start of the text", "", "'a'", ";'");
        addTaken("a literal after a blank", "1 ", "'a'", ";'");
        addTaken("a literal after its prefix", "L", "'a'", ";'");
        addTaken("a literal after a prefix with a digit", "u8", "'a'", ";'");
        addTaken("a literal after a number and a continuation", "1\\\n", "'2'", ";'");
        addTaken("a literal after a number and a sign", "1+", "'a'", ";'");
        addTaken("a literal after a number, without a digit in it", "1", "'{'", ";'");
        addTaken("a quote after a number, at the end of the text", "1", "'", "");
        addTaken("a quote and a digit at the end of the text", "1", "'0", "");
    }

    void singleQuotesBelongToNumbersOrLiterals()
    {
        checkTaken(
            [](std::string_view text, std::size_t quote) { return Lexis::singleQuoteEnd(text, quote, 0); });
    }

    void theFloorLimitsTheNumberBeforeAQuote()
    {
        QCOMPARE(Lexis::singleQuoteEnd("12'a';'", 2, 0), std::size_t(4));
        QCOMPARE(Lexis::singleQuoteEnd("12'a';'", 2, 2), std::size_t(5));
        QCOMPARE(Lexis::singleQuoteEnd("x2'a';'", 2, 0), std::size_t(5));
        QCOMPARE(Lexis::singleQuoteEnd("x2'a';'", 2, 1), std::size_t(4));
    }

    void directivesEnd_data()
    {
        addTakenColumns();
        addTaken("with the line", "", " A", "\nB");
        addTaken("with the text", "", " A", "");
        addTaken("after a continuation", "", " A \\\nB", "\nC");
        addTaken("after a continuation with a carriage return", "", " A \\\r\nB", "\nC");
        addTaken("with the line after a backslash within it", "", " \\ A", "\nB");
        addTaken("with the line, at a string after a backslash", "", " \\\"/*\"", "\n*/");
        addTaken("with the line, at a backslash after a continuation", "", " \\\n\\A", "\nB");
        addTaken("after a comment", "", " A /* b\nc */ D", "\nE");
        addTaken("with a comment that ends with the line", "", " A // b", "\nC");
        addTaken("with a slash", "", " A /", "\nC");
        addTaken("with a slash before a quote", "", " A /\"b\\\nc\"", "\nC");
        addTaken("after a string with a continuation", "", " \"a\\\nb\"", "\nC");
        addTaken("with a string of the start of a comment", "", " \"/*\"", "\n*/");
        addTaken("with a character that is a quote", "", " '\"'", "\n\"");
        addTaken("with an unclosed string", "", " \"a", "\nB\"");
        addTaken("with an unclosed character", "", " don't", "\nB'");
        addTaken("after a raw string", "", " R\"(a\nb)\"", "\nC");
        addTaken("after a raw string at the start", "", "R\"(a\nb)\"", "\nC");
        addTaken("after a raw string with prefix", "", " u8R\"x(a\n)\")x\"", "\nC");
        addTaken("with a word that ends with a raw string prefix", "", " xR\"(a", "\nb)\"");
        addTaken("with a separator of digits", "", " 1'000", "\n'");
        addTaken("with a suffix before a string", "", " \"a\"R\"(b\"", "\nc)\"");
        addTaken("with a suffix before a string after a character", "", " 'a'R\"(b\"", "\nc)\"");
        addTaken("with a number of separators before a string", "", " 1'R\"(b\"", "\nc)\"");
    }

    void directivesEnd() { checkTaken(Lexis::directiveEnd); }

    void directivesAreFirstOnTheirLine_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<bool>("begins");
        QTest::newRow("at the start of the text") << QByteArray() << true;
        QTest::newRow("after blanks at the start of the text") << QByteArray(" \t") << true;
        QTest::newRow("after one blank at the start of the text") << QByteArray(" ") << true;
        QTest::newRow("at the start of a line") << QByteArray("a\n") << true;
        QTest::newRow("at the start of the second line") << QByteArray("\n") << true;
        QTest::newRow("after blanks on a line") << QByteArray("a\n\t ") << true;
        QTest::newRow("after a comment") << QByteArray("/* a */") << true;
        QTest::newRow("after a comment and blanks") << QByteArray("/* a */ ") << true;
        QTest::newRow("after only the end of a comment") << QByteArray("*/") << true;
        QTest::newRow("after a word") << QByteArray("a") << false;
        QTest::newRow("after a word and blanks") << QByteArray("a\nb ") << false;
        QTest::newRow("after a slash at the start of the text") << QByteArray("/") << false;
        QTest::newRow("after a slash") << QByteArray("a/") << false;
        QTest::newRow("after an asterisk") << QByteArray("a**") << false;
        QTest::newRow("after an asterisk and a letter") << QByteArray("*a") << false;
    }

    void directivesAreFirstOnTheirLine()
    {
        QFETCH(const QByteArray, before);
        // Bytes in memory before the text do not change that.
        for (const char head : {'x', ' ', '\n', '*', '/'}) {
            const std::string text = head + before.toStdString() + "#if\n";
            QTEST(Lexis::beginsLine(std::string_view(text).substr(1), std::size_t(before.size())), "begins");
        }
    }
};

NVX_GUILESS_TEST(tst_lexis)

#include "tst_lexis.moc"
