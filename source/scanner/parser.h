#pragma once

#include "nvx_util/result.h"
#include "scanner/call.h"
#include "scanner/declaration_head.h"
#include "scanner/tokenizer.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace Scan {

/// Walks over the tokens of one source text and finds the calls of the reporting macros.
///
/// All branches of a conditional directive are read. Each branch starts with the scopes that were open before
/// the first branch; the text after the conditional continues with the scopes at the end of the first branch.
class Parser
{
public:
    /// Receives trace lines such as "namespace NAME" and "LeftBrace CONTEXT depth=2".
    using Trace = std::function<void(const QString &)>;

    /// The text is UTF-8 without a byte order mark, and must outlive the parser.
    explicit Parser(std::string_view text, Trace trace = {});

    /// Reads the text to its last macro name. Stops at the first error, "MESSAGE (line LINE)".
    const Nvx::Util::Outcome &parse();

    /// The calls, in the order of the text; after an error those before it.
    const std::vector<Call> &calls() const { return m_calls; }

    /// The namespaces of the using-directives outside of functions in the part of the text that was read.
    const std::vector<QString> &usedNamespaces() const { return m_usedNamespaces; }

private:
    enum class ScopeKind : std::uint8_t
    {
        Global,
        Namespace,
        Class,
        Transparent,
        Function
    };

    // The scopes form a tree, so that a branch of a conditional can return to an earlier one.
    struct Scope
    {
        ScopeKind kind = ScopeKind::Global;
        std::uint32_t outer = 0;
        QualifiedName name;
    };

    // The part of a macro call that was read last.
    enum class Step : std::uint8_t
    {
        None,
        Name,
        Parenthesis
    };

    // The state that each branch of a conditional directive has its own copy of.
    struct State
    {
        std::uint32_t scope = 0;
        std::uint32_t blockDepth = 0; // of braces in a function's body or a block; 0 among declarations
        bool inFunction = false;
        std::uint32_t lastFunction = 0; // the scope of the last function that ended
        DeclarationHead head;
        Step step = Step::None;
        TokenKind macro = TokenKind::Other;
        int macroLine = 0;
        std::vector<QuestionCall> questions; // open calls, each within the arguments of the previous one
    };

    struct Conditional
    {
        State before;
        std::optional<State> afterFirstBranch;
    };

    void takeToken();
    void takeDirective(Directive directive);
    void takeMacroStep();
    void takeFirstArgument();
    void takeQuestionToken();
    void takeDeclarationToken();
    void takeLeftBrace();
    void takeRightBrace();
    void openScope(ScopeKind kind, const QualifiedName &name);
    void openFunction(const QualifiedName &name);
    void closeScope();
    void resetHead();
    const Scope &scope() const { return m_scopes[m_state.scope]; }

    void addCall(CallFamily family, const QString &tag, int line);
    void fail(const QString &message, int line);
    QString contextOf(std::uint32_t scope) const;
    const QString &currentContext();
    static QString textOf(const QualifiedName &name);
    void traceName(TokenKind kind, const QString &name) const;
    void traceBrace() const;
    void traceUnknown();

    Tokenizer m_tokenizer;
    Trace m_trace;
    State m_state;
    std::vector<Scope> m_scopes;
    std::uint32_t m_contextScope = 0; // the scope of m_context
    QString m_context;
    bool m_contextIsXml = true;
    std::vector<Conditional> m_conditionals;
    std::vector<Call> m_calls;
    std::vector<QString> m_usedNamespaces;
    Nvx::Util::Outcome m_outcome = Nvx::Util::Done();
};

} // namespace Scan
