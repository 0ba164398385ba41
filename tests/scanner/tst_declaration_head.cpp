#include "scanner/parser.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

// The contexts of the calls in a text in which CALL is replaced by a call; an empty context is "none".
QStringList contextsOf(QByteArray text)
{
    text.replace("CALL", "REPORT_ERROR(\"Tag\");");
    Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
    QStringList contexts;
    if (!parser.parse())
        return {u"an error"_s};
    for (const Call &call : parser.calls())
        contexts.append(call.context.isEmpty() ? u"none"_s : call.context);
    return contexts;
}

void addColumns()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("contexts");
}

void addRow(const char *name, const QByteArray &text, const char *contexts)
{
    QTest::newRow(name) << text << QString::fromLatin1(contexts);
}

void verifyContexts()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, contexts);
    QCOMPARE(contextsOf(text).join(u' '), contexts);
}

} // namespace

/// What the brace after a declaration's head opens, as seen in the contexts of the calls in it.
class tst_declaration_head : public QObject
{
    Q_OBJECT

private slots:
    void functionsAreNamed_data()
    {
        addColumns();
        addRow("returning a pointer to a member", "int C::*f() { CALL }", "f");
        addRow("returning a reference to an array", "int (&f(int a))[3] { CALL }", "f");
        addRow("returning a reference to a function", "void (&C::f(int a))(int) { CALL }", "C::f");
        addRow("qualified as global", "int *::f() { CALL }", "f");
        addRow("qualified as global after a macro", "Q_DECLARE(A) int *::f() { CALL }", "f");
        addRow("returning a pointer after a macro", "Q_DECLARE(A)\nint *f() { CALL }", "f");
        addRow("returning a class", "auto f() -> struct S { CALL }", "f");
        addRow("returning an enumeration", "auto f() -> enum E { CALL }", "f");
        addRow("call operator after a sign", "struct S { int &operator()(int a) { CALL } };",
               "S::operator()");
        addRow("conversion after a macro", "struct S { Q_DISABLE(S) operator bool() { CALL } };",
               "S::operator bool");
        addRow("destructor before a macro", "C::~C() EXCEPT(true) { CALL }", "C::~C");
        addRow("named with a keyword of C++, in C", "void catch(int a) { CALL }", "catch");
        addRow("with a default argument that calls", "void f(int a = [] { CALL }()) { CALL }", "none f");
        addRow("without a type, after macros", "TAGS REPORT_ERROR_NOOP(\"A\") main() { CALL }", "none main");
        addRow("in a namespace of many names", "namespace a::b::c::d::e::f::g::h::i::j { void k() { CALL } }",
               "c::d::e::f::g::h::i::j::k");
    }

    void functionsAreNamed() { verifyContexts(); }

    // A block among the parameters does not end the head.
    void blocksAmongParametersDoNotEndTheHead_data()
    {
        addColumns();
        addRow("default argument of a method", "struct S { void f(A a = {}) const { CALL } };", "S::f");
        addRow("default argument before a macro", "void f(A a = {}) NOEXCEPT { CALL }", "f");
        addRow("default argument before a macro with arguments", "void f(A a = A{}) EXCEPT(true) { CALL }",
               "f");
        addRow("default argument before a trailing type", "auto f(A a = {}) -> decltype(a) { CALL }", "f");
        addRow("default argument of a constructor", "C::C(A a = {}) noexcept : m(1), ::B{} { CALL }", "C::C");
        addRow("lambda as a default argument", "void f(A a = [] { }) noexcept { CALL }", "f");
        addRow("exception specification", "struct S { void f() noexcept(noexcept(T{})) override { CALL } };",
               "S::f");
        addRow("alignment of a class", "struct alignas(T{}) S { void f() { CALL } };", "S::f");
        addRow("parameter of a template", "template <int N = int{}> struct S { void f() { CALL } };", "S::f");
        addRow("argument of a template", "template <> void f<int{}>() { CALL }", "f");
        addRow("parameter of a requires-expression",
               "template <class T> void f() requires requires(decltype(T{}) t) { t.x; } { CALL }", "f");
    }

    void blocksAmongParametersDoNotEndTheHead() { verifyContexts(); }

    void templateArgumentsAreSkipped_data()
    {
        addColumns();
        addRow("comparison in parentheses", "template <> void f<(3 > 2)>() { CALL }", "f");
        addRow("shift", "template <> void f<1 << 3>() { CALL }", "f");
        addRow("shift of a template's member", "template <> void f<A<int>::x << 3>() { CALL }", "f");
        addRow("stray parenthesis", "template <class T)> void f() { CALL }", "f");
        addRow("member template", "void A<T>::template f<int>() { CALL }", "A::f");
        addRow("requires-expression after the parameters",
               "template <class T> void f(T t) requires requires { t.x; } { CALL }", "f");
        addRow("requires-expression before another requirement",
               "template <class T> requires requires(T t) { t.x; } && A<T> void f(T) { CALL }", "f");
        addRow("constructor with a requirement", "C::C(T t) requires A<T> : m{1} { CALL }", "C::C");
        addRow("constructor with a requires-expression",
               "C::C(T t) requires requires { t.x; } : m(1) { CALL }", "C::C");
    }

    void templateArgumentsAreSkipped() { verifyContexts(); }

    void classesAreNamed_data()
    {
        addColumns();
        addRow("with a base qualified as global", "struct S : public ::QDialog { void f() { CALL } };",
               "S::f");
        addRow("with a second base qualified as global", "struct S : A, ::N::B { void f() { CALL } };",
               "S::f");
        addRow("with a base of a template of a global", "struct S : A<::B> { void f() { CALL } };", "S::f");
        addRow("after a macro", "Q_MACRO struct EXPORT(x) S { void f() { CALL } };", "S::f");
        addRow("after a macro and alignment", "struct Q_A EXPORT alignas(8) S { void f() { CALL } };",
               "S::f");
    }

    void classesAreNamed() { verifyContexts(); }

    // An incomplete declaration must not affect the name of the next one.
    void declarationsDoNotAffectTheNext_data()
    {
        addColumns();
        addRow("operator in a using-declaration", "struct S : B { using B::operator=; S() { CALL } };",
               "S::S");
        addRow("operator in a using-declaration before a macro's block",
               "using B::operator=; BEGIN_GROUP { void f() { CALL } }", "f");
        addRow("bit-field whose width is a comparison",
               "struct S { int a : N < 4 ? 1 : 2; void f() { CALL } };", "S::f");
        addRow("unclosed parenthesis", "void f(int a; void g() { CALL }", "g");
        addRow("unclosed parenthesis in a comparison", "int a : b < (c; template <class T> void f() { CALL }",
               "f");
        addRow("incomplete requires-expression", "template <class T> requires requires; void f() { CALL }",
               "f");
        addRow("label of a macro before a macro's block",
               "struct S { MY_SLOTS: BEGIN_GROUP { void f() { CALL } } };", "S::f");
    }

    void declarationsDoNotAffectTheNext() { verifyContexts(); }

    void initialisersAreNotFunctions_data()
    {
        addColumns();
        addRow("of a table named by a macro", "static Tag TABLE(errors)[] = { CALL };", "none");
        addRow("lambda", "Foo foo{[] { foreach (a, b) { CALL } }};", "none");
        addRow("lambda after a name", "Foo foo{a, [] { foreach (b, c) { CALL } }};", "none");
        addRow("lambda in the second branch of a conditional expression",
               "Foo foo = a ? B{} : C{d, [] { foreach (e, f) { CALL } }};", "none");
        addRow("of a variable with an assembler name", "Tag tag asm(\"tag\"){CALL};", "none");
    }

    void initialisersAreNotFunctions() { verifyContexts(); }

    void accessSpecifiersEndAMacro_data()
    {
        addColumns();
        for (const char *specifier :
             {"public", "protected", "private", "signals", "Q_SIGNALS", "private slots", "public Q_SLOTS"})
            addRow(specifier, QByteArray("struct S { MACRO(x) ") + specifier + ": void f() { CALL } };",
                   "S::f");
    }

    void accessSpecifiersEndAMacro() { verifyContexts(); }

    void attributesAfterATypeAreNotTheFunction_data()
    {
        addColumns();
        for (const char *attribute : {"__attribute__((cold))", "__declspec(noinline)", "alignas(8)"})
            addRow(attribute, QByteArray("int ") + attribute + " f() { CALL }", "f");
    }

    void attributesAfterATypeAreNotTheFunction() { verifyContexts(); }

    void macrosAfterASpecifierAreNotTheFunction_data()
    {
        addColumns();
        for (const char *specifier : {"const", "volatile", "noexcept", "override", "final"})
            addRow(specifier, QByteArray("struct S { void f() ") + specifier + " EXCEPT(true) { CALL } };",
                   "S::f");
    }

    void macrosAfterASpecifierAreNotTheFunction() { verifyContexts(); }

    // A macro's name without parameters opens a group of declarations. A specifier is not a name.
    void macrosAfterASpecifierOpenAGroup_data()
    {
        addColumns();
        for (const char *specifier : {"constexpr", "constinit", "explicit", "friend", "inline", "mutable",
                                      "static", "typedef", "virtual"})
            addRow(specifier, QByteArray(specifier) + " BEGIN_GROUP { void f() { CALL } }", "f");
        addRow("linkage after a macro", "Q_MACRO extern \"C\" { void f() { CALL } }", "f");
        addRow("constructor with a condition", "BEGIN_S { explicit(true) S(int a) { CALL } }", "S");
    }

    void macrosAfterASpecifierOpenAGroup() { verifyContexts(); }

    // They occur after a surplus closing brace.
    void statementsAmongDeclarationsAreNotFunctions_data()
    {
        addColumns();
        for (const char *statement : {"if (a)", "for (int a : b)", "while (a)", "switch (a)"})
            addRow(statement, QByteArray("void f() { } } ") + statement + " { CALL } void g() { CALL }",
                   "none g");
        addRow("assertion without semicolon", "static_assert(sizeof(int) == 4) main() { CALL }", "main");
    }

    void statementsAmongDeclarationsAreNotFunctions() { verifyContexts(); }
};

NVX_GUILESS_TEST(tst_declaration_head)

#include "tst_declaration_head.moc"
