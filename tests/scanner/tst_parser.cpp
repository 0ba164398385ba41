#include "scanner/parser.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

QStringList traceOf(std::string_view text)
{
    QStringList lines;
    Parser parser(text, [&lines](const QString &line) { lines.append(line); });
    static_cast<void>(parser.parse());
    return lines;
}

} // namespace

class tst_parser : public QObject
{
    Q_OBJECT

private slots:
    void namespacesScopesAndKeysAreTraced()
    {
        QCOMPARE(traceOf("using namespace A::B;\n"
                         "namespace N {\n"
                         "void C::f()\n"
                         "{ if (x) { }\n"
                         "REPORT_ERROR(\"Tag\"); }\n"
                         "// REPORT_ERROR\n"
                         "}\n"),
                 QStringList({u"using A::B"_s, u"namespace N"_s, u"LeftBrace N depth=1"_s,
                              u"LeftBrace N::C::f depth=2"_s, u"LeftBrace N::C::f depth=3"_s,
                              u"RightBrace N::C::f depth=2"_s, u"Key N::C::f Tag 5"_s,
                              u"RightBrace N depth=1"_s, u"RightBrace  depth=0"_s}));
    }

    void enumerationsAndLinkageHaveNoScope_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("enumeration") << QByteArray("enum E");
        QTest::newRow("enumeration after a macro") << QByteArray("enum EXPORT(x) E");
        QTest::newRow("enumeration that is a class") << QByteArray("enum class E : int");
        QTest::newRow("enumeration that is a structure") << QByteArray("enum struct E");
        QTest::newRow("linkage") << QByteArray("extern \"C\"");
    }

    void enumerationsAndLinkageHaveNoScope()
    {
        QFETCH(const QByteArray, head);
        QCOMPARE(traceOf((head + " { } // REPORT_ERROR").toStdString()),
                 QStringList({u"LeftBrace  depth=1"_s, u"RightBrace  depth=0"_s}));
    }

    void unexpectedTokensAreTraced_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("brace") << QByteArray("\n} // REPORT_ERROR") << u"UNKNOWN TOKEN RightBrace 2"_s;
        QTest::newRow("macro without call") << QByteArray("REPORT_ERROR ;") << u"UNKNOWN TOKEN Semicolon 1"_s;
        QTest::newRow("else") << QByteArray("#else\n// REPORT_ERROR") << u"UNKNOWN TOKEN Other 1"_s;
        QTest::newRow("short question")
            << QByteArray("void f() { ASK_QUESTION(\"A\", Yes); }") << u"UNKNOWN TOKEN RightParen 1"_s;
    }

    void unexpectedTokensAreTraced()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, line);
        const std::string source = text.toStdString();
        QVERIFY2(traceOf(source).contains(line), qPrintable(traceOf(source).join(u'\n')));
    }

    void usingDirectivesGiveTheUsedNamespaces()
    {
        Parser parser("using namespace A;\nnamespace N { using namespace B :: C; using D::e; }\n"
                      "void f() { using namespace E; REPORT_ERROR(\"Tag\"); }");
        QVERIFY(parser.parse());
        QCOMPARE(parser.usedNamespaces(), (std::vector<QString>{u"A"_s, u"B::C"_s}));
    }

    void errorNamesTheLine()
    {
        Parser parser("\n\nvoid f() { REPORT_ERROR(\"\\v\"); }");
        const Nvx::Util::Outcome parsed = parser.parse();
        QVERIFY(!parsed);
        QCOMPARE(parsed.error(), u"Tag with a character that XML cannot represent (line 3)"_s);
    }

    void errorInAContextNamesTheLine()
    {
        Parser parser("void f\xEF\xBF\xBE() {\nREPORT_ERROR(\"Tag\"); }");
        const Nvx::Util::Outcome parsed = parser.parse();
        QVERIFY(!parsed);
        QCOMPARE(parsed.error(), u"Context with a character that XML cannot represent (line 2)"_s);
    }

    void textAfterTheLastMacroNameIsNotRead()
    {
        Parser parser("using namespace A; void f() { REPORT_ERROR(\"Tag\"); } using namespace B;");
        QVERIFY(parser.parse());
        QCOMPARE(parser.usedNamespaces(), std::vector<QString>{u"A"_s});
    }

    void questionsWithinQuestionsAreReadToADepthOfSixteen()
    {
        std::string text = "x";
        for (int i = 0; i < 17; ++i)
            text = "ASK_QUESTION(\"A\", Yes, " + text + ")";
        Parser parser(text);
        QVERIFY(parser.parse());
        QCOMPARE(parser.calls().size(), std::size_t(16));
    }

    // The time grows linearly with the number of nested conditionals and scopes.
    void deepNestingIsReadInLinearTime()
    {
        std::string text;
        for (int i = 0; i < 100'000; ++i)
            text += "namespace a { class B {\n#if X\n";
        text += "void f() { ASK_QUESTION(\"A\", Yes, No); }";
        Parser parser(text);
        QVERIFY(parser.parse());
        QCOMPARE(parser.calls().size(), std::size_t(1));
    }

    // The time also grows linearly with the length of words and the number of calls.
    void longWordsAndManyCallsAreReadInLinearTime_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("calls");
        const QByteArray call = "REPORT_ERROR(\"A\");";
        QTest::newRow("one word") << QByteArray("REPORT_").repeated(300'000) + ";" + call << 1;
        QTest::newRow("one word with continuations")
            << QByteArray("REPORT_\\\n").repeated(300'000) + ";" + call << 1;
        QTest::newRow("literal prefixes") << QByteArray("R\"").repeated(300'000) + "\n" + call << 1;
        QTest::newRow("unclosed raw strings") << QByteArray("R\"x(").repeated(300'000) << 0;
        QTest::newRow("blanks before number signs")
            << QByteArray("      #").repeated(300'000) + "\n" + call << 1;
        QTest::newRow("calls deep in namespaces")
            << QByteArray("namespace a {").repeated(10'000) + "void f() {" + call.repeated(100'000)
            << 100'000;
        QTest::newRow("questions in questions")
            << QByteArray("ASK_QUESTION(\"A\",").repeated(100'000) + call << 1;
    }

    void longWordsAndManyCallsAreReadInLinearTime()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, calls);
        Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
        QVERIFY(parser.parse());
        QCOMPARE(parser.calls().size(), static_cast<std::size_t>(calls));
    }
};

NVX_GUILESS_TEST(tst_parser)

#include "tst_parser.moc"
