#include "scanner/lexis.h"
#include "support/test_class.h"

#include <QTest>

using namespace Scan;

namespace {

// Bytes in memory after the text, which must not affect the result.
constexpr std::string_view tails[] = {"",  "a", "0",   "_", "\n", "\\\n",    "\"",  "\"\"",
                                      "(", ")", ")\"", " ", "a(", "a(b)a\"", "R\"("};

struct Expected
{
    const char *name;
    const char *prefix;
    const char *quoted; ///< the literal from its quote on, with its suffix
    const char *after;
    const char *content;
};

constexpr Expected ordinaryLiterals[] = {
    {"empty", "", "\"\"", "", ""},
    {"with text after it", "", "\"a\"", "; \"b\"", "a"},
    {"with a suffix", "", "\"a\"_b", ";", "a"},
    {"with a suffix at the end of the text", "", "\"a\"b1", "", "a"},
    {"with a digit after it", "", "\"a\"", "1", "a"},
    {"with a quote after a backslash", "", "\"a\\\"b\"", "\"", "a\\\"b"},
    {"with two backslashes at the end", "", "\"a\\\\\"", "\"", "a\\\\"},
    {"with a continuation", "", "\"a\\\nb\"", "\"", "a\\\nb"},
    {"with a continuation with a carriage return", "", "\"a\\\r\nb\"", "\"", "a\\\r\nb"},
    {"with a single quote", "", "\"a'b\"", "'", "a'b"},
    {"unclosed on its line", "", "\"a", "\nb\"", "a"},
    {"unclosed", "", "\"a", "", "a"},
    {"unclosed after a backslash", "", "\"a\\", "", "a\\"},
    {"unclosed and empty", "", "\"", "", ""},
    {"of wide characters", "L", "\"(a)\"", "", "(a)"},
    {"after a word that is not a prefix", "xR", "\"(\"", ")\"", "("},
    {"raw prefix without a parenthesis", "R", "\"a\"", "(\"", "a"},
    {"raw prefix at the end of the text", "R", "\"", "", ""},
    {"raw prefix, and a text that ends before a parenthesis", "R", "\"a", "", "a"},
    {"raw prefix, and a blank before the parenthesis", "R", "\" (a) \"", ")\"", " (a) "},
    {"raw prefix, and a line feed before the parenthesis", "R", "\"", "\n(a)\"", ""},
    {"raw prefix, and a closing parenthesis before the other", "R", "\")(a)\"", ")\"", ")(a)"},
    {"raw prefix, and a backslash before the parenthesis", "R", "\"\\(a)\\\"\"", "", "\\(a)\\\""},
    {"raw prefix, and a quote before the parenthesis", "R", "\"\"", "(a)\"\"", ""},
    {"raw prefix, and a delimiter of seventeen letters", "R", "\"abcdefghijklmnopq(a\"",
     ")abcdefghijklmnopq\"", "abcdefghijklmnopq(a"},
};

constexpr Expected rawLiterals[] = {
    {"without delimiter", "R", "\"(a)\"", ")\"", "a"},
    {"empty", "R", "\"()\"", ")\"", ""},
    {"with a suffix", "R", "\"(a)\"_b", ";", "a"},
    {"with quotes, backslashes, parentheses and line ends", "LR", "\"(a\"b\\(c)\n)\"", ")\"", "a\"b\\(c)\n"},
    {"with a delimiter", "u8R", "\"x(a)\"b)x\"", ")x\"", "a)\"b"},
    {"with a delimiter of the letter q", "R", "\"q(a)\"b)q\"", "", "a)\"b"},
    {"with a delimiter of sixteen letters", "R", "\"abcdefghijklmnop(a\")abcdefghijklmnop\"", "", "a\""},
    {"with a delimiter of signs", "R", "\"*/(a)*)*/\"", "", "a)*"},
    {"with another delimiter of that length", "R", "\"xy(a)xz\")xy\"", "", "a)xz\""},
    {"with the delimiter and no quote", "R", "\"x(a)xb)x\"", "", "a)xb"},
    {"with adjacent parentheses", "R", "\"(a))\"", "", "a)"},
    {"unclosed", "R", "\"x(a)y\"\n", "", "a)y\"\n"},
    {"unclosed and empty", "R", "\"x(", "", ""},
    {"unclosed without the quote", "R", "\"x(a)x", "", "a)x"},
    {"unclosed without the delimiter", "R", "\"x(a)", "", "a)"},
};

void addRows(const Expected *begin, const Expected *end)
{
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<QByteArray>("quoted");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QByteArray>("content");
    for (const Expected *row = begin; row != end; ++row)
        QTest::newRow(row->name) << QByteArray(row->prefix) << QByteArray(row->quoted)
                                 << QByteArray(row->after) << QByteArray(row->content);
}

void checkRow(Lexis::Literal::Form form)
{
    QFETCH(const QByteArray, prefix);
    QFETCH(const QByteArray, quoted);
    QFETCH(const QByteArray, after);
    QFETCH(const QByteArray, content);
    const std::string text = "f(" + (prefix + quoted + after).toStdString();
    const auto quote = static_cast<std::size_t>(2 + prefix.size());
    for (const std::string_view tail : tails) {
        const std::string longer = text + std::string(tail);
        const Lexis::Literal literal =
            Lexis::literalAt(std::string_view(longer).substr(0, text.size()), prefix.toStdString(), quote);
        QCOMPARE(QByteArray(literal.content.data(), static_cast<qsizetype>(literal.content.size())), content);
        QCOMPARE(literal.end, quote + static_cast<std::size_t>(quoted.size()));
        QCOMPARE(static_cast<int>(literal.form), static_cast<int>(form));
    }
}

} // namespace

/// String literals and their prefixes. The bytes in memory after a text never affect the result.
class tst_lexis_literals : public QObject
{
    Q_OBJECT

private slots:
    void ordinaryLiteralsAreReadToTheirEnd_data()
    {
        addRows(std::begin(ordinaryLiterals), std::end(ordinaryLiterals));
    }

    void ordinaryLiteralsAreReadToTheirEnd() { checkRow(Lexis::Literal::Form::Ordinary); }

    void rawLiteralsAreReadToTheirEnd_data() { addRows(std::begin(rawLiterals), std::end(rawLiterals)); }

    void rawLiteralsAreReadToTheirEnd() { checkRow(Lexis::Literal::Form::Raw); }

    void prefixesDetermineTheUnits_data()
    {
        QTest::addColumn<QByteArray>("prefix");
        QTest::addColumn<bool>("isPrefix");
        QTest::addColumn<bool>("wide");
        for (const char *prefix : {"R", "u8", "u8R"})
            QTest::newRow(prefix) << QByteArray(prefix) << true << false;
        for (const char *prefix : {"L", "u", "U", "LR", "uR", "UR"})
            QTest::newRow(prefix) << QByteArray(prefix) << true << true;
        QTest::newRow("none") << QByteArray() << false << false;
        for (const char *word : {"l", "RL", "Lu", "u9", "U8", "u8L", "u8RR", "LL", "tr"})
            QTest::newRow(word) << QByteArray(word) << false << false;
    }

    void prefixesDetermineTheUnits()
    {
        QFETCH(const QByteArray, prefix);
        QFETCH(const bool, wide);
        const std::string word = prefix.toStdString();
        QTEST(Lexis::isLiteralPrefix(word), "isPrefix");
        const Lexis::Literal literal = Lexis::literalAt(word + "\"(a)\"", word, word.size());
        QCOMPARE(literal.units == Lexis::Literal::Units::Wide, wide);
    }

    void literalsBeginWithAQuoteOrAPrefix_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("length"); // of the prefix; negative if there is no literal
        QTest::newRow("a quote") << QByteArray("\"a\"") << 0;
        QTest::newRow("a prefix of one letter") << QByteArray("L\"a\"") << 1;
        QTest::newRow("a prefix of two") << QByteArray("u8\"a\"") << 2;
        QTest::newRow("a prefix of three") << QByteArray("u8R\"(a)\"") << 3;
        QTest::newRow("a word that is not a prefix") << QByteArray("x\"a\"") << -1;
        QTest::newRow("a longer word") << QByteArray("u8RL\"a\"") << -1;
        QTest::newRow("a word") << QByteArray("abc") << -1;
        QTest::newRow("a prefix at the end of the text") << QByteArray("u8") << -1;
        QTest::newRow("a long prefix at the end of the text") << QByteArray("u8R") << -1;
        QTest::newRow("a sign") << QByteArray(",\"a\"") << -1;
        QTest::newRow("a prefix and a blank") << QByteArray("L \"a\"") << -1;
        QTest::newRow("the end of the text") << QByteArray() << -1;
    }

    void literalsBeginWithAQuoteOrAPrefix()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, length);
        const std::string whole = "f(" + text.toStdString();
        for (const std::string_view tail : tails) {
            const std::string longer = whole + std::string(tail);
            const auto quote = Lexis::literalQuote(std::string_view(longer).substr(0, whole.size()), 2);
            QCOMPARE(quote ? static_cast<int>(*quote) - 2 : -1, length);
        }
    }
};

NVX_GUILESS_TEST(tst_lexis_literals)

#include "tst_lexis_literals.moc"
