#include "scanner/tokenizer.h"
#include "scanner/wide_scan.h"
#include "support/test_class.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

struct Seen
{
    TokenKind kind = TokenKind::Other;
    std::string text;
    int line = 0;
};

std::vector<Seen> tokens(std::string_view text)
{
    std::vector<Seen> seen;
    Tokenizer tokenizer(text);
    do {
        tokenizer.next();
        seen.push_back({tokenizer.kind(), std::string(tokenizer.text()), tokenizer.line()});
    } while (tokenizer.kind() != TokenKind::EndOfFile);
    return seen;
}

QString kindsOf(std::string_view text)
{
    QStringList names;
    for (const Seen &token : tokens(text))
        names.append(displayName(token.kind));
    return names.join(u' ');
}

} // namespace

class tst_tokenizer : public QObject
{
    Q_OBJECT

private slots:
    void kindsHaveTheirNumbersAndNames_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("name");
        const char *const names[] = {"Other",
                                     "EOF",
                                     "namespace",
                                     "using",
                                     "ReportError",
                                     "ReportErrorWithArg",
                                     "ReportErrorWithArgs",
                                     "UNKNOWN",
                                     "UNKNOWN",
                                     "UNKNOWN",
                                     "UNKNOWN",
                                     "UNKNOWN",
                                     "UNKNOWN",
                                     "Identifier",
                                     "String",
                                     "LeftBrace",
                                     "RightBrace",
                                     "LeftParen",
                                     "RightParen",
                                     "Semicolon",
                                     "Colon",
                                     "DoubleColon"};
        for (std::size_t number = 0; number < std::size(names); ++number)
            QTest::addRow("%d %s", int(number), names[number])
                << int(number) << QString::fromLatin1(names[number]);
    }

    void kindsHaveTheirNumbersAndNames()
    {
        QFETCH(const int, number);
        QTEST(displayName(static_cast<TokenKind>(number)), "name");
    }

    void wordsAreClassifiedExactly_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("kind");
        const std::pair<const char *, int> words[] = {
            {"class", 0},
            {"enum", 0},
            {"for", 0},
            {"struct", 0},
            {"while", 0},
            {"namespace", 2},
            {"using", 3},
            {"REPORT_ERROR", 4},
            {"REPORT_ERROR_NOOP", 4},
            {"REPORT_ERROR_WITH_ARG", 5},
            {"REPORT_ERROR_WITH_ARGS", 6},
            {"REPORT_MESSAGE", 7},
            {"REPORT_MESSAGE_NOOP", 7},
            {"REPORT_MESSAGE_WITH_ARG", 8},
            {"REPORT_MESSAGE_WITH_ARGS", 9},
            {"ASK_QUESTION", 10},
            {"ASK_QUESTION_NOOP", 10},
            {"ASK_QUESTION_WITH_ARG", 11},
            {"ASK_QUESTION_WITH_ARGS", 12},
            {"Namespace", 13},
            {"NAMESPACE", 13},
            {"usings", 13},
            {"union", 13},
            {"report_error", 13},
            {"REPORT_ERROR_WITH_NOOP", 13},
            {"REPORT", 13},
            {"ASK_QUESTIONS", 13},
            {"REPORT_ERROR_WITH_ARGS_NOOP", 13},
            {"_class", 13},
            {"x", 13},
        };
        for (const auto &[word, kind] : words)
            QTest::newRow(word) << QByteArray(word) << kind;
    }

    void wordsAreClassifiedExactly()
    {
        QFETCH(const QByteArray, word);
        QFETCH(const int, kind);
        QCOMPARE(static_cast<int>(classifyWord(word.toStdString())), kind);
        const std::string text = word.toStdString();
        QCOMPARE(static_cast<int>(tokens(text).front().kind), kind);
    }

    void punctuationHasItsKinds()
    {
        QCOMPARE(kindsOf("{ } ( ) ; : :: ::: , -> 12 'c' a"),
                 u"LeftBrace RightBrace LeftParen RightParen Semicolon Colon DoubleColon DoubleColon "
                 "Colon Other Other Other Other Identifier EOF"_s);
    }

    void commentsAndOtherDirectivesAreNotTokens()
    {
        QCOMPARE(kindsOf("/* a */ // b\n#define c d\n#include <e>\n\\\n"), u"EOF"_s);
    }

    void conditionalDirectivesAreTokens_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("directive");
        QTest::newRow("if") << QByteArray("#if A") << int(Directive::If);
        QTest::newRow("ifdef") << QByteArray("# ifdef A") << int(Directive::If);
        QTest::newRow("ifndef") << QByteArray("  #\tifndef A // {") << int(Directive::If);
        QTest::newRow("elif") << QByteArray("#elif A") << int(Directive::Else);
        QTest::newRow("elifdef") << QByteArray("#elifdef A") << int(Directive::Else);
        QTest::newRow("else") << QByteArray("/* c */ #else") << int(Directive::Else);
        QTest::newRow("endif") << QByteArray("#endif") << int(Directive::EndIf);
    }

    void conditionalDirectivesAreTokens()
    {
        QFETCH(const QByteArray, line);
        QFETCH(const int, directive);
        const std::string text = line.toStdString() + "\nx";
        Tokenizer tokenizer(text);
        tokenizer.next();
        QCOMPARE(int(tokenizer.directive()), directive);
        QCOMPARE(tokenizer.kind(), TokenKind::Other);
        tokenizer.next();
        QCOMPARE(tokenizer.kind(), TokenKind::Identifier);
        QCOMPARE(int(tokenizer.directive()), int(Directive::None));
    }

    void incompleteTextsAreReadToTheirEnd_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("kinds");
        QTest::newRow("a slash between words") << QByteArray("a / b") << u"Identifier Other Identifier EOF"_s;
        QTest::newRow("a slash") << QByteArray("a /") << u"Identifier Other EOF"_s;
        QTest::newRow("a slash after a string")
            << QByteArray("\"a\" / b") << u"String Other Identifier EOF"_s;
        QTest::newRow("a string after a word that is not a prefix")
            << QByteArray("\"a\" tr\"b\"") << u"String Identifier String EOF"_s;
        QTest::newRow("a number sign") << QByteArray("a\n#") << u"Identifier EOF"_s;
        QTest::newRow("a number sign and blanks") << QByteArray("a\n# \t") << u"Identifier EOF"_s;
        QTest::newRow("a directive") << QByteArray("a\n#define B c") << u"Identifier EOF"_s;
        QTest::newRow("a directive with a slash") << QByteArray("a\n#define B /") << u"Identifier EOF"_s;
        QTest::newRow("a directive with a final backslash")
            << QByteArray("a\n#define B \\") << u"Identifier EOF"_s;
        QTest::newRow("a minus sign") << QByteArray("a -") << u"Identifier Other EOF"_s;
    }

    void incompleteTextsAreReadToTheirEnd()
    {
        QFETCH(const QByteArray, text);
        QTEST(kindsOf({text.constData(), static_cast<std::size_t>(text.size())}), "kinds");
    }

    void literalsAreDecoded_data()
    {
        QTest::addColumn<QByteArray>("literal");
        QTest::addColumn<QString>("text");
        QTest::newRow("a character beyond 16 bits")
            << QByteArray("\"\\U0001F600\"") << QString::fromUtf8("\xF0\x9F\x98\x80");
        QTest::newRow("a number that is not a character") << QByteArray("\"a\\U00110000b\"")
                                                          << QString::fromUtf8("a\xEF\xBF\xBD"
                                                                               "b");
        QTest::newRow("a number with too many digits")
            << QByteArray("L\"a\\x100000041\"") << QString::fromUtf8("a\xEF\xBF\xBD");
        QTest::newRow("braces") << QByteArray("\"\\u{41}b\"") << u"Ab"_s;
        QTest::newRow("unclosed braces") << QByteArray("\"\\u{41\"") << u"u{41"_s;
        QTest::newRow("empty braces") << QByteArray("\"\\u{}\"") << u"u{}"_s;
        QTest::newRow("braces around letters") << QByteArray("\"\\u{4g}\"") << u"u{4g}"_s;
        QTest::newRow("a backslash at the end of the text") << QByteArray("\"a\\") << u"a"_s;
    }

    void literalsAreDecoded()
    {
        QFETCH(const QByteArray, literal);
        Tokenizer tokenizer({literal.constData(), static_cast<std::size_t>(literal.size())});
        tokenizer.next();
        QCOMPARE(tokenizer.kind(), TokenKind::String);
        QTEST(tokenizer.string(), "text");
    }

    void joinedTokensOmitDirectivesAndComments()
    {
        QCOMPARE(joinTokens("Clt :: Yes /* or */\n#if A\n| const No\n#endif\n"),
                 std::string("Clt::Yes|const No"));
    }

    void lastIdentifierAndLastStringAreSeparate()
    {
        Tokenizer tokenizer("name \"text\" ( other ) \"more\" ;");
        QCOMPARE(tokenizer.identifier(), std::string_view());
        QCOMPARE(tokenizer.string(), QString());
        for (int i = 0; i < 3; ++i)
            tokenizer.next();
        QCOMPARE(tokenizer.identifier(), std::string_view("name"));
        QCOMPARE(tokenizer.string(), u"text"_s);
        for (int i = 0; i < 4; ++i)
            tokenizer.next();
        QCOMPARE(tokenizer.kind(), TokenKind::Semicolon);
        QCOMPARE(tokenizer.identifier(), std::string_view("other"));
        QCOMPARE(tokenizer.string(), u"more"_s);
    }

    void lastStringIsAlsoFoundInBodies()
    {
        Tokenizer tokenizer("log(\"text\" /* and */ u8R\"(raw)\"); REPORT_ERROR_WITH_ARG(x)");
        tokenizer.nextInBody();
        QCOMPARE(tokenizer.kind(), TokenKind::ReportErrorWithArg);
        QCOMPARE(tokenizer.string(), u"textraw"_s);
    }

    void tokensHaveTheirLines()
    {
        const std::vector<Seen> seen = tokens("a\n/* \n */ b \\\n c\r\nR\"(\n)\" d\n\n#if X\n e");
        std::vector<int> lines;
        for (const Seen &token : seen)
            lines.push_back(token.line);
        QCOMPARE(lines, (std::vector<int>{1, 3, 4, 5, 6, 8, 9, 9}));
    }

    void inBodiesOnlyBracesMacrosAndConditionalsAreTokens()
    {
        Tokenizer tokenizer(
            "a(b; c \"d{\" 'e' 1'2 { REPORT_ERROR } // {\n#if f\n#define g {\nMY_REPORT_ERROR / h /*{*/ }");
        QStringList names;
        do {
            tokenizer.nextInBody();
            names.append(displayName(tokenizer.kind()));
        } while (tokenizer.kind() != TokenKind::EndOfFile);
        QCOMPARE(names.join(u' '), u"LeftBrace ReportError RightBrace Other RightBrace EOF"_s);
    }

    void macroAheadUntilTheLastMacro()
    {
        Tokenizer tokenizer("a REPORT_ERROR b");
        QVERIFY(tokenizer.macroAhead());
        tokenizer.next();
        QVERIFY(tokenizer.macroAhead());
        tokenizer.next();
        QVERIFY(!tokenizer.macroAhead());
    }

    void macroNamesAreFoundAtEveryPosition()
    {
        const char *const names[] = {"REPORT_ERROR", "ASK_QUESTION_WITH_ARGS", "REPORT_MESSAGE_NOOP"};
        for (const char *name : names) {
            for (std::size_t before = 0; before < 70; ++before) {
                for (const std::size_t after : {0U, 1U, 15U, 16U, 17U, 40U}) {
                    const std::string text = std::string(before, ' ') + name + std::string(after, ';');
                    QVERIFY2(namesMacro(text), text.c_str());
                    QVERIFY2(!namesMacro('x' + text.substr(before)), text.c_str());
                }
            }
        }
    }

    void textsWithoutMacroNamesAreRecognised()
    {
        for (const char *text : {"", "R", "_", "K_", "T_", "REPORT_", "ASK_", "REPORT_ERRO", "EPORT_ERROR",
                                 "SK_QUESTION", "QT_REPORT_ERROR", "\\", "A\\\nB"})
            QVERIFY2(!namesMacro(text), text);
    }

    void macroNamesAreFoundWithAContinuationAtEveryPosition()
    {
        const std::string name = "REPORT_ERROR";
        for (std::size_t at = 1; at < name.size(); ++at) {
            const std::string text = std::string(name).insert(at, "\\\n");
            QVERIFY2(namesMacro(text), text.c_str());
            QVERIFY2(!namesMacro('x' + text), text.c_str());
        }
    }

    // The byte in memory before the text does not change that.
    void continuationBeforeAMacroNameIsNotPartOfIt()
    {
        const std::string text = "x\\\nREPORT_ERROR";
        const MacroFinder::Macro macro = MacroFinder(std::string_view(text).substr(1)).next(0);
        QCOMPARE(macro.kind, TokenKind::ReportError);
        QCOMPARE(macro.begin, std::size_t(2));
        QCOMPARE(macro.end, text.size() - 1);
    }

    void wideSearchesFindWhatPlainSearchesFind()
    {
        const std::string pattern = "a{*/\nT_x\"K_\\*/}'#/ Ta_K ";
        for (std::size_t length = 0; length < 80; ++length) {
            std::string longer;
            while (longer.size() < length)
                longer += longer.size() % 7 == 3 ? std::string(11, 'b') : pattern;
            // The byte after the text would complete a hint.
            longer.resize(length);
            longer += '_';
            const std::string_view text(longer.data(), length);
            for (std::size_t from = 0; from <= length; ++from) {
                const std::size_t lineFeed = text.find('\n', from);
                QCOMPARE(Wide::findLineFeed(text, from), std::min(lineFeed, length));
                const std::size_t commentEnd = text.find("*/", from);
                QCOMPARE(Wide::findCommentEnd(text, from),
                         commentEnd == std::string::npos ? length : commentEnd + 2);
                const std::size_t bodyByte = text.find_first_of("{}\"'/#", from);
                QCOMPARE(Wide::findBodyByte(text, from, length), std::min(bodyByte, length));
                const std::size_t limit = (from + length) / 2;
                QCOMPARE(Wide::findBodyByte(text, from, limit), std::min(bodyByte, limit));
                const std::size_t hint =
                    std::min({text.find("T_", from), text.find("K_", from), text.find('\\', from), length});
                QCOMPARE(Wide::findMacroHint(text, from), hint);
            }
            QCOMPARE(Wide::countLineFeeds(text), std::size_t(std::count(text.begin(), text.end(), '\n')));
        }
    }
};

NVX_GUILESS_TEST(tst_tokenizer)

#include "tst_tokenizer.moc"
