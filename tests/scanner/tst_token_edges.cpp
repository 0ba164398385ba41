#include "scanner/tokenizer.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

QString asText(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

// One line per token: its kind, text and position, and the last string.
QString described(std::string_view text, void (Tokenizer::*next)())
{
    QString lines;
    Tokenizer tokenizer(text);
    do {
        (tokenizer.*next)();
        lines += u"%1 %2 at %3 line %4 directive %5 last string %6\n"_s.arg(
            QString::number(int(tokenizer.kind())), asText(tokenizer.text()),
            QString::number(tokenizer.begin()), QString::number(tokenizer.line()),
            QString::number(int(tokenizer.directive())), tokenizer.string());
    } while (tokenizer.kind() != TokenKind::EndOfFile);
    return lines;
}

QStringList textsOf(const QByteArray &text, void (Tokenizer::*next)())
{
    QStringList texts;
    Tokenizer tokenizer({text.constData(), static_cast<std::size_t>(text.size())});
    for ((tokenizer.*next)(); tokenizer.kind() != TokenKind::EndOfFile; (tokenizer.*next)())
        texts.append(displayName(tokenizer.kind()) + u' ' + asText(tokenizer.text()));
    return texts;
}

QStringList listOf(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

} // namespace

/// The boundaries between tokens, and the end of the text.
class tst_token_edges : public QObject
{
    Q_OBJECT

private slots:
    void adjacentTokensAreSeparated_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("tokens");
        const auto row = [](const char *text, std::initializer_list<const char *> tokens) {
            // QtTest prints a name up to its first line break.
            const QByteArray name = QByteArray(text).replace('\r', "\\r").replace('\n', "\\n");
            QTest::newRow(name.constData()) << QByteArray(text) << listOf(tokens);
        };
        row("::a", {"DoubleColon ::", "Identifier a"});
        row("a::", {"Identifier a", "DoubleColon ::"});
        row(":::", {"DoubleColon ::", "Colon :"});
        row("->a", {"Other ->", "Identifier a"});
        row("-a>", {"Other -", "Identifier a", "Other >"});
        row("{}", {"LeftBrace {", "RightBrace }"});
        row("(;)", {"LeftParen (", "Semicolon ;", "RightParen )"});
        row("'a'b", {"Other 'a'b"});
        row("1a\"b\"", {"Other 1a", "String \"b\""});
        row("L\"a\"L", {"String L\"a\"L"});
        row("a # b", {"Identifier a", "Identifier b"});
        row("name\\\nspace", {"namespace name\\\nspace"});
        row("name\\\r\nspaces", {"Identifier name\\\r\nspaces"});
        row("\"a\" R\"(\")\" ;", {"String \"a\" R\"(\")\"", "Semicolon ;"});
        row("\"a\" LR\"x()\")x\" 'b'", {"String \"a\" LR\"x()\")x\"", "Other 'b'"});
        row("\"a\" /* \" */ \"b\" /* \" */ c", {"String \"a\" /* \" */ \"b\"", "Identifier c"});
        row("\"a\"\n#if b\n\"c\"", {"String \"a\"", "Other #if b", "String \"c\""});
    }

    void adjacentTokensAreSeparated()
    {
        QFETCH(const QByteArray, text);
        QTEST(textsOf(text, &Tokenizer::next), "tokens");
    }

    void adjacentTokensInBodiesAreSeparated_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("tokens");
        const auto row = [](const char *text, std::initializer_list<const char *> tokens) {
            QTest::newRow(text) << QByteArray(text) << listOf(tokens);
        };
        row("{}{{", {"LeftBrace {", "RightBrace }", "LeftBrace {", "LeftBrace {"});
        row("}{", {"RightBrace }", "LeftBrace {"});
        row("{\"}\"}'{'}", {"LeftBrace {", "RightBrace }", "RightBrace }"});
        row("a /{", {"LeftBrace {"});
        row("a /\"{\"", {});
        row("a /'{'", {});
        row("a/}/{", {"RightBrace }", "LeftBrace {"});
        row("#{", {});
        row("a #{", {"LeftBrace {"});
        row("{ # }", {"LeftBrace {", "RightBrace }"});
        row("a ##{", {"LeftBrace {"});
        row("{REPORT_ERROR}", {"LeftBrace {", "ReportError REPORT_ERROR", "RightBrace }"});
        row("\"a\" R\"(\")\" {", {"LeftBrace {"});
    }

    void adjacentTokensInBodiesAreSeparated()
    {
        QFETCH(const QByteArray, text);
        QTEST(textsOf(text, &Tokenizer::nextInBody), "tokens");
    }

    void lastStringOfABodyBeginsWithItsPrefixOrItsQuote_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("literals");
        QTest::addColumn<QString>("string");
        const auto row = [](const char *text, const char *literals, const char *string) {
            QTest::newRow(text) << QByteArray(text) << QByteArray(literals) << QString::fromUtf8(string);
        };
        row("f(\"a\");", "\"a\"", "a");
        row("f(L\"a\");", "L\"a\"", "a");
        row("f\"a\";", "\"a\"", "a");
        row("xL\"\\xC3\\xBC\";", "\"\\xC3\\xBC\"", "ü");
        row("xR\"(a\";", "\"(a\"", "(a");
        row("\"a\", \"b\" \"c\", d;", "\"b\" \"c\"", "bc");
        row("\"a\" // \"\n u\"b\" /* \" */;", "\"a\" // \"\n u\"b\"", "ab");
    }

    void lastStringOfABodyBeginsWithItsPrefixOrItsQuote()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, literals);
        Tokenizer tokenizer({text.constData(), static_cast<std::size_t>(text.size())});
        tokenizer.nextInBody();
        QCOMPARE(tokenizer.kind(), TokenKind::EndOfFile);
        QCOMPARE(asText(tokenizer.literals()), QString::fromUtf8(literals));
        QTEST(tokenizer.string(), "string");
    }

    // The arguments of a call are tokenized a second time, as part of a larger text.
    void bytesAfterTheTextAreNotRead()
    {
        const std::string_view samples[] = {
            "a :: b: -> c - 12'3 'c'd \"e\\\"f\"g L\"h\" R\"i(j)i\" \"k\" u8 R",
            "/* a */ b // c \\\n d\n e / f",
            "#if a /* b */ \\\n c\n# \t\n#else // d\n#endif",
            "{ REPORT_ERROR(\"a\") } ASK_\\\nQUESTION ASK_\\\r\nQUESTION_NOOP 1'a\\",
            "\"\\x41\\u{42}\\U00000043\\o{104}\\1051\\n\\\r\n\\",
        };
        for (const std::string_view sample : samples) {
            for (std::size_t size = 0; size <= sample.size(); ++size) {
                for (const char after : std::string_view("\"':/*\\\n\r #{}()>aR1_")) {
                    const std::string alone(sample.substr(0, size));
                    const std::string larger = alone + std::string(3, after);
                    const std::string_view text(larger.data(), size);
                    QCOMPARE(described(text, &Tokenizer::next), described(alone, &Tokenizer::next));
                    QCOMPARE(described(text, &Tokenizer::nextInBody),
                             described(alone, &Tokenizer::nextInBody));
                }
            }
        }
    }

    void joinedTokensKeepContinuationsOnlyInStrings()
    {
        QCOMPARE(joinTokens("a\\\nb :\\\n: c"), std::string("ab::c"));
        QCOMPARE(joinTokens("\"a\\\nb\""), std::string("\"a\\\nb\""));
        QCOMPARE(joinTokens("a R\"(\\\n)\""), std::string("a R\"(\\\n)\""));
        QCOMPARE(joinTokens("a\\\nb R\"(\\\n)\" c"), std::string("ab R\"(\\\n)\"c"));
    }
};

NVX_GUILESS_TEST(tst_token_edges)
#include "tst_token_edges.moc"
