#include "scanner/source_lexis.h"
#include "support/test_class.h"

#include <QTest>

#include <functional>

using namespace Scan;

namespace {

// What may stand in memory behind a text; none of it may change what is made of the text.
constexpr std::string_view tails[] = {"",   "a", "0", "_",  "\n", "\r\n", "\\\n", "\n\n", "'", "\"",
                                      "'a", "/", "*", "*/", "//", "(",    ")",    "\"(",  " "};

// The text as a view of a longer one, and on its own.
void withEveryTail(std::string_view text, const std::function<void(std::string_view)> &check)
{
    for (const std::string_view tail : tails) {
        const std::string longer = std::string(text) + std::string(tail);
        check(std::string_view(longer).substr(0, text.size()));
        if (QTest::currentTestFailed())
            return;
    }
}

// Rows of something that stands between two texts, and is to be taken whole.
void addTakenColumns()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("taken");
    QTest::addColumn<QByteArray>("behind");
}

void addTaken(const char *name, const char *before, const char *taken, const char *behind)
{
    QTest::newRow(name) << QByteArray(before) << QByteArray(taken) << QByteArray(behind);
}

// The end that the function finds from the beginning of what is to be taken, in a row of those columns.
void checkTaken(const std::function<std::size_t(std::string_view, std::size_t)> &endOf)
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, taken);
    QFETCH(const QByteArray, behind);
    const std::string text = (before + taken + behind).toStdString();
    const auto begin = static_cast<std::size_t>(before.size());
    const std::size_t end = begin + static_cast<std::size_t>(taken.size());
    withEveryTail(text, [&](std::string_view view) { QCOMPARE(endOf(view, begin), end); });
}

} // namespace

/// The lexical rules one by one. A text never goes on behind its end, whatever stands there in memory.
class tst_lexis : public QObject
{
    Q_OBJECT

private slots:
    void lineContinuationsAreABackslashAndALineEnd_data()
    {
        addTakenColumns();
        addTaken("line feed", "", "\\\n", "a");
        addTaken("line feed behind a word", "abc", "\\\n", "a");
        addTaken("carriage return and line feed", "", "\\\r\n", "a");
        addTaken("at the end of the text", "abc", "\\\n", "");
        addTaken("carriage return at the end of the text", "abc", "\\\r\n", "");
        addTaken("a backslash alone", "", "", "\\");
        addTaken("a backslash at the end of the text", "abc", "", "\\");
        addTaken("a backslash and a letter", "", "", "\\n\n");
        addTaken("a backslash, a letter and a line feed", "", "", "\\r\n");
        addTaken("a carriage return alone", "", "", "\\\ra\n");
        addTaken("a carriage return at the end of the text", "", "", "\\\r");
        addTaken("a line feed without backslash", "", "", "\n\n");
    }

    void lineContinuationsAreABackslashAndALineEnd()
    {
        checkTaken([](std::string_view text, std::size_t begin) {
            return begin + Lexis::continuationLength(text, begin);
        });
    }

    void wordsEndWhereNoWordByteFollows_data()
    {
        addTakenColumns();
        addTaken("at a blank", "", "name_1", " x");
        addTaken("at the end of the text", "x ", "name", "");
        addTaken("behind a continuation within", "", "na\\\nme", ";");
        addTaken("behind a continuation with a carriage return", "", "na\\\r\nme", ";");
        addTaken("behind two continuations in a row", "", "na\\\n\\\r\nme", ";");
        addTaken("behind continuations here and there", "", "n\\\na\\\nme", "\\\n;");
        addTaken("before a continuation that no word byte follows", "", "name", "\\\n;");
        addTaken("before a continuation that a blank follows", "", "name", "\\\n x");
        addTaken("before a continuation at the end of the text", "", "name", "\\\n");
        addTaken("before a backslash", "", "name", "\\x");
        addTaken("before a backslash at the end of the text", "", "name", "\\");
        addTaken("before a line feed", "", "name", "\nx");
        addTaken("where none begins", "x", "", ";x");
    }

    void wordsEndWhereNoWordByteFollows() { checkTaken(Lexis::wordEnd); }

    void wordsBeginBehindWhatIsNoWordByte_data()
    {
        addTakenColumns();
        addTaken("at the start of the text", "", "name", " x");
        addTaken("behind a blank", "x ", "name", "");
        addTaken("before a continuation within", "x ", "na\\\nme", ";");
        addTaken("before a continuation within, at the start of the text", "", "na\\\nme", ";");
        addTaken("before a continuation with a carriage return", "x ", "na\\\r\nme", ";");
        addTaken("before one with a carriage return, at the start of the text", "", "n\\\r\nme", ";");
        addTaken("before two continuations in a row", "x ", "na\\\r\n\\\nme", ";");
        addTaken("before continuations here and there", "x ", "n\\\na\\\nme", ";");
        addTaken("behind a line feed without backslash", "x\n", "name", ";");
        addTaken("behind a line end without backslash", "x\r\n", "name", ";");
        addTaken("behind a letter, no backslash, and a line feed", "\\xr\n", "name", ";");
        addTaken("behind a backslash that is not at the line's end", "x\\y\n", "name", ";");
        addTaken("behind a backslash and a blank", "x\\ \n", "name", ";");
        addTaken("behind a backslash and a sign", "x\\;", "name", ";");
        addTaken("behind a backslash, a carriage return and a sign", "x\\\r;", "name", ";");
        addTaken("behind a continuation that no word byte precedes", ";\\\n", "name", ";");
        addTaken("behind a continuation that a blank precedes", "x \\\r\n", "name", ";");
        addTaken("behind a continuation at the start of the text", "\\\n", "name", ";");
        addTaken("behind a line end at the start of the text", "\r\n", "name", ";");
        addTaken("behind a line feed at the start of the text", "\n", "name", ";");
        addTaken("where none ends", "x;", "", ";x");
    }

    void wordsBeginBehindWhatIsNoWordByte()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, taken);
        QFETCH(const QByteArray, behind);
        const auto begin = static_cast<std::size_t>(before.size());
        const std::size_t end = begin + static_cast<std::size_t>(taken.size());
        const std::string text = (before + taken + behind).toStdString();
        QCOMPARE(Lexis::wordBegin(text, end, 0), begin);
        // Nor do they begin elsewhere because other words stand before them, below the floor.
        const std::string further = "x y" + text;
        QCOMPARE(Lexis::wordBegin(further, end + 3, 3), begin + 3);
    }

    void wordsBeginNoSoonerThanTheFloor_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("floor");
        QTest::addColumn<int>("begin");
        QTest::newRow("within the word") << QByteArray("name") << 2 << 2;
        QTest::newRow("at its end") << QByteArray("name") << 4 << 4;
        QTest::newRow("before a continuation") << QByteArray("na\\\nme") << 2 << 4;
        QTest::newRow("within a continuation") << QByteArray("na\\\nme") << 3 << 4;
        QTest::newRow("behind a continuation") << QByteArray("na\\\nme") << 4 << 4;
        QTest::newRow("a byte before a continuation") << QByteArray("na\\\nme") << 1 << 1;
        QTest::newRow("before one with a carriage return") << QByteArray("na\\\r\nme") << 2 << 5;
        QTest::newRow("within one with a carriage return") << QByteArray("na\\\r\nme") << 3 << 5;
        QTest::newRow("at its line feed") << QByteArray("na\\\r\nme") << 4 << 5;
        QTest::newRow("a byte before it") << QByteArray("na\\\r\nme") << 1 << 1;
    }

    void wordsBeginNoSoonerThanTheFloor()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, floor);
        QFETCH(const int, begin);
        const std::string word = text.toStdString();
        QCOMPARE(Lexis::wordBegin(word, word.size(), std::size_t(floor)), std::size_t(begin));
    }

    void wordsAreSpelledWithoutTheirContinuations()
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
        addTaken("with the line behind a continuation", "", "// a\\\nb", "\nc");
        addTaken("with the line behind a continuation with a carriage return", "", "// a\\\r\nb", "\nc");
        addTaken("with the line behind an empty one with a continuation", "", "//\\\nb", "\nc");
        addTaken("with the text behind a continuation", "", "// a\\\n", "");
        addTaken("with a line whose last letter but one is a backslash", "", "// a\\s", "\nb");
        addTaken("with a line whose last but one is a carriage return", "", "// \\\rx", "\nb");
        addTaken("at an asterisk and a slash", "x", "/* a\n // b */", "c */");
        addTaken("at an asterisk and a slash, though empty", "", "/**/", "*/");
        addTaken("with the text when nothing closes them", "", "/* a\nb", "");
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
        QTest::newRow("at a slash alone") << QByteArray("/");
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
        addTaken("nothing", "", "", "a");
        addTaken("blanks", "a", " \t\r\n\v\f", "b");
        addTaken("a comment to the end of the line", "", "// a\n ", "b");
        addTaken("comments one behind the other", "", "/* a *//* b */ /* c */", "d");
        addTaken("continuations", "a", " \\\n\\\r\n ", "b");
        addTaken("no slash", "", " ", "/ a");
        addTaken("no backslash", "", " ", "\\a");
        addTaken("no slash at the end of the text", "", " ", "/");
        addTaken("no backslash at the end of the text", "", " ", "\\");
        addTaken("to the end of the text", "a", " // b", "");
    }

    void blanksCommentsAndContinuationsAreSkipped() { checkTaken(Lexis::skipBlanksAndComments); }

    void characterLiteralsEnd_data()
    {
        addTakenColumns();
        addTaken("at their quote", "x", "'a'", ";'");
        addTaken("behind a suffix", "", "'a'_b", ";'");
        addTaken("before a digit", "", "'a'", "1");
        addTaken("behind a quote with a backslash", "", "'\\''", "'");
        addTaken("behind two backslashes", "", "'\\\\'", "'");
        addTaken("behind a continuation", "", "'a\\\r\nb'", "'");
        addTaken("with the line when nothing closes them", "", "'a", "\nb'");
        addTaken("with the text when nothing closes them", "", "'a", "");
        addTaken("with the text behind a backslash", "", "'a\\", "");
    }

    void characterLiteralsEnd() { checkTaken(Lexis::characterLiteralEnd); }

    void singleQuotesBelongToNumbersOrLiterals_data()
    {
        addTakenColumns();
        addTaken("a number's separator", "1", "'000'000", ";");
        addTaken("a number's separator behind a letter", "x = 0xF", "'F", "'");
        addTaken("a number's separator behind a continuation", "1\\\n0", "'0", ";");
        addTaken("a literal at the start of the text", "", "'a'", ";'");
        addTaken("a literal behind a blank", "1 ", "'a'", ";'");
        addTaken("a literal behind its prefix", "L", "'a'", ";'");
        addTaken("a literal behind a prefix with a digit", "u8", "'a'", ";'");
        addTaken("a literal behind a number and a continuation", "1\\\n", "'2'", ";'");
        addTaken("a literal behind a number and a sign", "1+", "'a'", ";'");
        addTaken("a literal behind a number, as no digit follows", "1", "'{'", ";'");
        addTaken("a quote behind a number, at the end of the text", "1", "'", "");
        addTaken("a quote and a digit at the end of the text", "1", "'0", "");
    }

    void singleQuotesBelongToNumbersOrLiterals()
    {
        checkTaken(
            [](std::string_view text, std::size_t quote) { return Lexis::singleQuoteEnd(text, quote, 0); });
    }

    void theFloorTellsWhatANumberIs()
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
        addTaken("behind a continuation", "", " A \\\nB", "\nC");
        addTaken("behind a continuation with a carriage return", "", " A \\\r\nB", "\nC");
        addTaken("with the line, whatever a backslash stands in", "", " \\ A", "\nB");
        addTaken("with the line, at a string behind a backslash", "", " \\\"/*\"", "\n*/");
        addTaken("with the line, at a backslash behind a continuation", "", " \\\n\\A", "\nB");
        addTaken("behind a comment", "", " A /* b\nc */ D", "\nE");
        addTaken("with a comment that ends with the line", "", " A // b", "\nC");
        addTaken("with a slash", "", " A /", "\nC");
        addTaken("with a slash before a quote", "", " A /\"b\\\nc\"", "\nC");
        addTaken("behind a string with a continuation", "", " \"a\\\nb\"", "\nC");
        addTaken("with a string of what opens a comment", "", " \"/*\"", "\n*/");
        addTaken("with a character of what opens a string", "", " '\"'", "\n\"");
        addTaken("with a string that is not closed", "", " \"a", "\nB\"");
        addTaken("with a character that is not closed", "", " don't", "\nB'");
        addTaken("behind a raw string", "", " R\"(a\nb)\"", "\nC");
        addTaken("behind a raw string at once", "", "R\"(a\nb)\"", "\nC");
        addTaken("behind a raw string with prefix", "", " u8R\"x(a\n)\")x\"", "\nC");
        addTaken("with a word that ends as the prefix of a raw string", "", " xR\"(a", "\nb)\"");
        addTaken("with a separator of digits", "", " 1'000", "\n'");
        addTaken("with a suffix before a string", "", " \"a\"R\"(b\"", "\nc)\"");
        addTaken("with a suffix before a string behind a character", "", " 'a'R\"(b\"", "\nc)\"");
        addTaken("with a number of separators before a string", "", " 1'R\"(b\"", "\nc)\"");
    }

    void directivesEnd() { checkTaken(Lexis::directiveEnd); }

    void directivesBeginTheirLine_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<bool>("begins");
        QTest::newRow("at the start of the text") << QByteArray() << true;
        QTest::newRow("behind blanks at the start of the text") << QByteArray(" \t") << true;
        QTest::newRow("behind one blank at the start of the text") << QByteArray(" ") << true;
        QTest::newRow("at the start of a line") << QByteArray("a\n") << true;
        QTest::newRow("at the start of the second line") << QByteArray("\n") << true;
        QTest::newRow("behind blanks on a line") << QByteArray("a\n\t ") << true;
        QTest::newRow("behind a comment") << QByteArray("/* a */") << true;
        QTest::newRow("behind a comment and blanks") << QByteArray("/* a */ ") << true;
        QTest::newRow("behind the end of a comment alone") << QByteArray("*/") << true;
        QTest::newRow("behind a word") << QByteArray("a") << false;
        QTest::newRow("behind a word and blanks") << QByteArray("a\nb ") << false;
        QTest::newRow("behind a slash at the start of the text") << QByteArray("/") << false;
        QTest::newRow("behind a slash") << QByteArray("a/") << false;
        QTest::newRow("behind an asterisk") << QByteArray("a**") << false;
        QTest::newRow("behind an asterisk and a letter") << QByteArray("*a") << false;
    }

    void directivesBeginTheirLine()
    {
        QFETCH(const QByteArray, before);
        // Whatever stands in memory before the text.
        for (const char head : {'x', ' ', '\n', '*', '/'}) {
            const std::string text = head + before.toStdString() + "#if\n";
            QTEST(Lexis::beginsLine(std::string_view(text).substr(1), std::size_t(before.size())), "begins");
        }
    }
};

NVX_GUILESS_TEST(tst_lexis)

#include "tst_lexis.moc"
