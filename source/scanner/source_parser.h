#pragma once

#include "scanner/call.h"
#include "scanner/declaration_head.h"
#include "scanner/question_call.h"
#include "scanner/source_tokenizer.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace Scan {

/// Why a source text cannot be scanned.
struct SourceError
{
    QString message;
    int line = 0;

    /// "MESSAGE (line LINE)".
    QString text() const;
};

/// Walks the tokens of one source text and finds the calls of the reporting macros.
///
/// All branches of a conditional directive are read; each begins with the scopes that were open before the
/// first, and behind the conditional the scopes are those at the end of the first.
class Parser
{
public:
    /// Receives trace lines such as "namespace NAME" and "LeftBrace CONTEXT depth=2".
    using Trace = std::function<void(const QString &)>;

    /// The text, UTF-8 without a byte order mark, stays where it is while the parser lives.
    explicit Parser(std::string_view text, Trace trace = {});

    /// Reads the text as far as there are macro names in it. Nothing when it succeeds; at the first error
    /// it stops.
    std::optional<SourceError> parse();

    /// The calls, in the order of the text.
    const std::vector<Call> &calls() const { return m_calls; }

    /// The namespaces named in using-directives outside of functions, as far as the text was read.
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

    // Scopes are kept in a tree, so that a branch of a conditional can go back to an earlier one.
    struct Scope
    {
        ScopeKind kind = ScopeKind::Global;
        std::uint32_t outer = 0;
        QualifiedName name;
    };

    // Where the parser is in a macro call.
    enum class Step : std::uint8_t
    {
        None,
        Name,
        Parenthesis
    };

    // All that a conditional directive's branches have a version of each.
    struct State
    {
        std::uint32_t scope = 0;
        std::uint32_t blockDepth = 0; // braces within a function's body or a block; 0 among declarations
        bool inFunction = false;
        std::uint32_t lastFunction = 0; // the scope of the last one that ended
        DeclarationHead head;
        Step step = Step::None;
        TokenKind macro = TokenKind::Other;
        int macroLine = 0;
        std::vector<QuestionCall> questions; // open ones, each within the arguments of the one before
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
    std::uint32_t m_contextScope = 0; // the one whose context is m_context
    QString m_context;
    bool m_contextIsXml = true;
    std::vector<Conditional> m_conditionals;
    std::vector<Call> m_calls;
    std::vector<QString> m_usedNamespaces;
    std::optional<SourceError> m_error;
};

} // namespace Scan
