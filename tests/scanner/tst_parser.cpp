#include "scanner/source_parser.h"
#include "support/test_class.h"

#include <QTest>

using namespace Scan;

namespace {

QStringList traceOf(std::string_view text)
{
    QStringList lines;
    Parser parser(text, [&lines](const QString &line) { lines.append(line); });
    parser.parse();
    return lines;
}

} // namespace

class tst_parser : public QObject
{
    Q_OBJECT

private slots:
    void tracesNamespacesScopesAndKeys()
    {
        QCOMPARE(
            traceOf("using namespace A::B;\n"
                    "namespace N {\n"
                    "void C::f()\n"
                    "{ if (x) { }\n"
                    "REPORT_ERROR(\"Tag\"); }\n"
                    "// REPORT_ERROR\n"
                    "}\n"),
            QStringList({QStringLiteral("using A::B"), QStringLiteral("namespace N"),
                         QStringLiteral("LeftBrace N depth=1"), QStringLiteral("LeftBrace N::C::f depth=2"),
                         QStringLiteral("LeftBrace N::C::f depth=3"),
                         QStringLiteral("RightBrace N::C::f depth=2"), QStringLiteral("Key N::C::f Tag 5"),
                         QStringLiteral("RightBrace N depth=1"), QStringLiteral("RightBrace  depth=0")}));
    }

    void enumerationsAndLinkageAreNoScopes_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::newRow("enumeration") << QByteArray("enum E");
        QTest::newRow("enumeration behind a macro") << QByteArray("enum EXPORT(x) E");
        QTest::newRow("enumeration that is a class") << QByteArray("enum class E : int");
        QTest::newRow("enumeration that is a structure") << QByteArray("enum struct E");
        QTest::newRow("linkage") << QByteArray("extern \"C\"");
    }

    void enumerationsAndLinkageAreNoScopes()
    {
        QFETCH(const QByteArray, head);
        QCOMPARE(traceOf((head + " { } // REPORT_ERROR").toStdString()),
                 QStringList({QStringLiteral("LeftBrace  depth=1"), QStringLiteral("RightBrace  depth=0")}));
    }

    void tracesTokensThatItDoesNotExpect_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("brace") << QByteArray("\n} // REPORT_ERROR")
                               << QStringLiteral("UNKNOWN TOKEN RightBrace 2");
        QTest::newRow("macro without call")
            << QByteArray("REPORT_ERROR ;") << QStringLiteral("UNKNOWN TOKEN Semicolon 1");
        QTest::newRow("else") << QByteArray("#else\n// REPORT_ERROR")
                              << QStringLiteral("UNKNOWN TOKEN Other 1");
        QTest::newRow("short question") << QByteArray("void f() { ASK_QUESTION(\"A\", Yes); }")
                                        << QStringLiteral("UNKNOWN TOKEN RightParen 1");
    }

    void tracesTokensThatItDoesNotExpect()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, line);
        const std::string source = text.toStdString();
        QVERIFY2(traceOf(source).contains(line), qPrintable(traceOf(source).join(u'\n')));
    }

    void usedNamespacesAreTaken()
    {
        Parser parser("using namespace A;\nnamespace N { using namespace B :: C; using D::e; }\n"
                      "void f() { using namespace E; REPORT_ERROR(\"Tag\"); }");
        QVERIFY(!parser.parse());
        QCOMPARE(parser.usedNamespaces(),
                 (std::vector<QString>{QStringLiteral("A"), QStringLiteral("B::C")}));
    }

    void errorNamesTheLine()
    {
        Parser parser("\n\nvoid f() { REPORT_ERROR(\"\\v\"); }");
        const auto error = parser.parse();
        QVERIFY(error);
        QCOMPARE(error->line, 3);
        QCOMPARE(error->text(), QStringLiteral("Tag with a character that XML cannot carry (line 3)"));
    }

    void errorInAContextNamesTheLine()
    {
        Parser parser("void f\xEF\xBF\xBE() {\nREPORT_ERROR(\"Tag\"); }");
        const auto error = parser.parse();
        QVERIFY(error);
        QCOMPARE(error->text(), QStringLiteral("Context with a character that XML cannot carry (line 2)"));
    }

    void readsOnlyAsFarAsThereAreMacroNames()
    {
        Parser parser("using namespace A; void f() { REPORT_ERROR(\"Tag\"); } using namespace B;");
        QVERIFY(!parser.parse());
        QCOMPARE(parser.usedNamespaces(), std::vector<QString>{QStringLiteral("A")});
    }

    void questionsWithinQuestionsAreReadSixteenDeep()
    {
        std::string text = "x";
        for (int i = 0; i < 17; ++i)
            text = "ASK_QUESTION(\"A\", Yes, " + text + ")";
        Parser parser(text);
        QVERIFY(!parser.parse());
        QCOMPARE(parser.calls().size(), std::size_t(16));
    }

    // Conditionals and scopes without end must not cost more than their number.
    void deepNestingIsReadInTimeThatGrowsWithIt()
    {
        std::string text;
        for (int i = 0; i < 100'000; ++i)
            text += "namespace a { class B {\n#if X\n";
        text += "void f() { ASK_QUESTION(\"A\", Yes, No); }";
        Parser parser(text);
        QVERIFY(!parser.parse());
        QCOMPARE(parser.calls().size(), std::size_t(1));
    }

    // Nor may words and calls without end.
    void longWordsAndManyCallsAreReadInTimeThatGrowsWithThem_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("calls");
        const QByteArray call = "REPORT_ERROR(\"A\");";
        QTest::newRow("one word") << QByteArray("REPORT_").repeated(300'000) + ";" + call << 1;
        QTest::newRow("one broken word") << QByteArray("REPORT_\\\n").repeated(300'000) + ";" + call << 1;
        QTest::newRow("prefixes") << QByteArray("R\"").repeated(300'000) + "\n" + call << 1;
        QTest::newRow("raw strings that do not end") << QByteArray("R\"x(").repeated(300'000) << 0;
        QTest::newRow("blanks before number signs")
            << QByteArray("      #").repeated(300'000) + "\n" + call << 1;
        QTest::newRow("calls deep in namespaces")
            << QByteArray("namespace a {").repeated(10'000) + "void f() {" + call.repeated(100'000)
            << 100'000;
        QTest::newRow("questions in questions")
            << QByteArray("ASK_QUESTION(\"A\",").repeated(100'000) + call << 1;
    }

    void longWordsAndManyCallsAreReadInTimeThatGrowsWithThem()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, calls);
        Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
        QVERIFY(!parser.parse());
        QCOMPARE(parser.calls().size(), static_cast<std::size_t>(calls));
    }
};

NVX_GUILESS_TEST(tst_parser)

#include "tst_parser.moc"
