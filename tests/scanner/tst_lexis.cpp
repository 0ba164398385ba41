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
void addElementColumns()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<QByteArray>("after");
}

void addElement(const char *name, const char *before, const char *element, const char *after)
{
    QTest::newRow(name) << QByteArray(before) << QByteArray(element) << QByteArray(after);
}

// Checks that the function finds the end of the row's element from its beginning.
void checkElementEnd(const std::function<std::size_t(std::string_view, std::size_t)> &endOf)
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, element);
    QFETCH(const QByteArray, after);
    const std::string text = (before + element + after).toStdString();
    const auto begin = static_cast<std::size_t>(before.size());
    const std::size_t end = begin + static_cast<std::size_t>(element.size());
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
        addElementColumns();
        addElement("line feed", "", "\\\n", "a");
        addElement("line feed after a word", "abc", "\\\n", "a");
        addElement("carriage return and line feed", "", "\\\r\n", "a");
        addElement("at the end of the text", "abc", "\\\n", "");
        addElement("carriage return at the end of the text", "abc", "\\\r\n", "");
        addElement("only a backslash", "", "", "\\");
        addElement("a backslash at the end of the text", "abc", "", "\\");
        addElement("a backslash and a letter", "", "", "\\n\n");
        addElement("a backslash, a letter and a line feed", "", "", "\\r\n");
        addElement("only a carriage return", "", "", "\\\ra\n");
        addElement("a carriage return at the end of the text", "", "", "\\\r");
        addElement("a line feed without backslash", "", "", "\n\n");
    }

    void lineContinuationsAreABackslashAndALineEnd()
    {
        checkElementEnd([](std::string_view text, std::size_t begin) {
            return begin + Lexis::continuationLength(text, begin);
        });
    }

    void wordsEndBeforeTheNextOtherByte_data()
    {
        addElementColumns();
        addElement("at a blank", "", "name_1", " x");
        addElement("at the end of the text", "x ", "name", "");
        addElement("after a continuation within", "", "na\\\nme", ";");
        addElement("after a continuation with a carriage return", "", "na\\\r\nme", ";");
        addElement("after two continuations in a row", "", "na\\\n\\\r\nme", ";");
        addElement("after several separate continuations", "", "n\\\na\\\nme", "\\\n;");
        addElement("before a continuation without a word byte after it", "", "name", "\\\n;");
        addElement("before a continuation with a blank after it", "", "name", "\\\n x");
        addElement("before a continuation at the end of the text", "", "name", "\\\n");
        addElement("before a backslash", "", "name", "\\x");
        addElement("before a backslash at the end of the text", "", "name", "\\");
        addElement("before a line feed", "", "name", "\nx");
        addElement("at a position without a word", "x", "", ";x");
    }

    void wordsEndBeforeTheNextOtherByte() { checkElementEnd(Lexis::wordEnd); }

    void wordsBeginAfterTheLastOtherByte_data()
    {
        addElementColumns();
        addElement("at the start of the text", "", "name", " x");
        addElement("after a blank", "x ", "name", "");
        addElement("before a continuation within", "x ", "na\\\nme", ";");
        addElement("before a continuation within, at the start of the text", "", "na\\\nme", ";");
        addElement("before a continuation with a carriage return", "x ", "na\\\r\nme", ";");
        addElement("before one with a carriage return, at the start of the text", "", "n\\\r\nme", ";");
        addElement("before two continuations in a row", "x ", "na\\\r\n\\\nme", ";");
        addElement("before several separate continuations", "x ", "n\\\na\\\nme", ";");
        addElement("after a line feed without backslash", "x\n", "name", ";");
        addElement("after a line end without backslash", "x\r\n", "name", ";");
        addElement("after a letter, no backslash, and a line feed", "\\xr\n", "name", ";");
        addElement("after a backslash within the line", "x\\y\n", "name", ";");
        addElement("after a backslash and a blank", "x\\ \n", "name", ";");
        addElement("after a backslash and a sign", "x\\;", "name", ";");
        addElement("after a backslash, a carriage return and a sign", "x\\\r;", "name", ";");
        addElement("after a continuation without a word byte before it", ";\\\n", "name", ";");
        addElement("after a continuation with a blank before it", "x \\\r\n", "name", ";");
        addElement("after a continuation at the start of the text", "\\\n", "name", ";");
        addElement("after a line end at the start of the text", "\r\n", "name", ";");
        addElement("after a line feed at the start of the text", "\n", "name", ";");
        addElement("at a position after no word", "x;", "", ";x");
    }

    void wordsBeginAfterTheLastOtherByte()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, element);
        QFETCH(const QByteArray, after);
        const auto begin = static_cast<std::size_t>(before.size());
        const std::size_t end = begin + static_cast<std::size_t>(element.size());
        const std::string text = (before + element + after).toStdString();
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
        addElementColumns();
        addElement("no separator", "", "12", ";");
        addElement("one", "", "1'000", ";");
        addElement("two, and a suffix", "", "1'000'000u", ";");
        addElement("between single digits", "x ", "1'2'3", "'");
        addElement("at the end of the text", "", "1'2", "");
        addElement("hexadecimal digits", "", "0xFF'FF", ",");
        addElement("a quote without a digit after it", "", "1", "';'");
        addElement("a quote, a sign and a digit", "", "1", "';2");
        addElement("a quote at the end of the text", "", "1", "'");
        addElement("two quotes", "", "1", "''2");
        addElement("another sign before a digit", "", "1", ".2");
    }

    void numbersHaveSeparators() { checkElementEnd(Lexis::numberEnd); }

    void commentsEnd_data()
    {
        addElementColumns();
        addElement("with the line", "x ", "// a", "\nb");
        addElement("with the line when empty", "", "//", "\nb");
        addElement("before a carriage return's line feed", "", "// a\r", "\nb");
        addElement("with the text", "", "// a", "");
        addElement("with the text when empty", "", "//", "");
        addElement("with the line after a continuation", "", "// a\\\nb", "\nc");
        addElement("with the line after a continuation with a carriage return", "", "// a\\\r\nb", "\nc");
        addElement("with the line after an empty one with a continuation", "", "//\\\nb", "\nc");
        addElement("with the text after a continuation", "", "// a\\\n", "");
        addElement("with a line that ends with a backslash and a letter", "", "// a\\s", "\nb");
        addElement("with a line that ends with a carriage return and a letter", "", "// \\\rx", "\nb");
        addElement("at an asterisk and a slash", "x", "/* a\n // b */", "c */");
        addElement("at an asterisk and a slash when empty", "", "/**/", "*/");
        addElement("with the text if unclosed", "", "/* a\nb", "");
        addElement("with the text at an asterisk", "", "/* a*", "");
    }

    void commentsEnd()
    {
        checkElementEnd([](std::string_view text, std::size_t begin) {
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
        QTest::newRow("at another sign before a slash") << QByteArray("*/");
    }

    void noCommentBegins()
    {
        QFETCH(const QByteArray, text);
        withEveryTail(text.toStdString(),
                      [](std::string_view view) { QVERIFY(!Lexis::commentEnd(view, 0)); });
    }

    void blanksCommentsAndContinuationsAreSkipped_data()
    {
        addElementColumns();
        addElement("at a position without any", "", "", "a");
        addElement("blanks", "a", " \t\r\n\v\f", "b");
        addElement("a comment to the end of the line", "", "// a\n ", "b");
        addElement("adjacent comments", "", "/* a *//* b */ /* c */", "d");
        addElement("continuations", "a", " \\\n\\\r\n ", "b");
        addElement("not a slash", "", " ", "/ a");
        addElement("not a backslash", "", " ", "\\a");
        addElement("not a slash at the end of the text", "", " ", "/");
        addElement("not a backslash at the end of the text", "", " ", "\\");
        addElement("to the end of the text", "a", " // b", "");
    }

    void blanksCommentsAndContinuationsAreSkipped() { checkElementEnd(Lexis::skipBlanksAndComments); }

    void characterLiteralsEnd_data()
    {
        addElementColumns();
        addElement("at their quote", "x", "'a'", ";'");
        addElement("after a suffix", "", "'a'_b", ";'");
        addElement("before a digit", "", "'a'", "1");
        addElement("after a quote with a backslash", "", "'\\''", "'");
        addElement("after two backslashes", "", "'\\\\'", "'");
        addElement("after a continuation", "", "'a\\\r\nb'", "'");
        addElement("with the line if unclosed", "", "'a", "\nb'");
        addElement("with the text if unclosed", "", "'a", "");
        addElement("with the text after a backslash", "", "'a\\", "");
    }

    void characterLiteralsEnd() { checkElementEnd(Lexis::characterLiteralEnd); }

    void singleQuotesBelongToNumbersOrLiterals_data()
    {
        addElementColumns();
        addElement("a number's separator", "1", "'000'000", ";");
        addElement("a number's separator after a letter", "x = 0xF", "'F", "'");
        addElement("a number's separator after a continuation", "1\\\n0", "'0", ";");
        addElement("a literal at the start of the text", "", "'a'", ";'");
        addElement("a literal after a blank", "1 ", "'a'", ";'");
        addElement("a literal after its prefix", "L", "'a'", ";'");
        addElement("a literal after a prefix with a digit", "u8", "'a'", ";'");
        addElement("a literal after a number and a continuation", "1\\\n", "'2'", ";'");
        addElement("a literal after a number and a sign", "1+", "'a'", ";'");
        addElement("a literal after a number, without a digit in it", "1", "'{'", ";'");
        addElement("a quote after a number, at the end of the text", "1", "'", "");
        addElement("a quote and a digit at the end of the text", "1", "'0", "");
    }

    void singleQuotesBelongToNumbersOrLiterals()
    {
        checkElementEnd(
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
        addElementColumns();
        addElement("with the line", "", " A", "\nB");
        addElement("with the text", "", " A", "");
        addElement("after a continuation", "", " A \\\nB", "\nC");
        addElement("after a continuation with a carriage return", "", " A \\\r\nB", "\nC");
        addElement("with the line after a backslash within it", "", " \\ A", "\nB");
        addElement("with the line, at a string after a backslash", "", " \\\"/*\"", "\n*/");
        addElement("with the line, at a backslash after a continuation", "", " \\\n\\A", "\nB");
        addElement("after a comment", "", " A /* b\nc */ D", "\nE");
        addElement("with a comment that ends with the line", "", " A // b", "\nC");
        addElement("with a slash", "", " A /", "\nC");
        addElement("with a slash before a quote", "", " A /\"b\\\nc\"", "\nC");
        addElement("after a string with a continuation", "", " \"a\\\nb\"", "\nC");
        addElement("with a string of the start of a comment", "", " \"/*\"", "\n*/");
        addElement("with a character that is a quote", "", " '\"'", "\n\"");
        addElement("with an unclosed string", "", " \"a", "\nB\"");
        addElement("with an unclosed character", "", " don't", "\nB'");
        addElement("after a raw string", "", " R\"(a\nb)\"", "\nC");
        addElement("after a raw string at the start", "", "R\"(a\nb)\"", "\nC");
        addElement("after a raw string with prefix", "", " u8R\"x(a\n)\")x\"", "\nC");
        addElement("with a word that ends with a raw string prefix", "", " xR\"(a", "\nb)\"");
        addElement("with a separator of digits", "", " 1'000", "\n'");
        addElement("with a suffix before a string", "", " \"a\"R\"(b\"", "\nc)\"");
        addElement("with a suffix before a string after a character", "", " 'a'R\"(b\"", "\nc)\"");
        addElement("with a number of separators before a string", "", " 1'R\"(b\"", "\nc)\"");
    }

    void directivesEnd() { checkElementEnd(Lexis::directiveEnd); }

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
