#include "scanner/source_parser.h"

#include "clt_xml_text.h"

#include <QStringList>

#include <utility>

namespace Scan {

namespace {

// Questions within the arguments of questions, deeper than anybody writes them.
constexpr std::size_t deepestQuestion = 16;

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString joined(std::string_view source)
{
    return toText(joinTokens(source));
}

} // namespace

QString SourceError::text() const
{
    return QStringLiteral("%1 (line %2)").arg(message, QString::number(line));
}

Parser::Parser(std::string_view text, Trace trace)
    : m_tokenizer(text)
    , m_trace(std::move(trace))
    , m_scopes(1)
{
}

std::optional<SourceError> Parser::parse()
{
    while (!m_error) {
        const bool inCall = m_state.step != Step::None || !m_state.questions.empty();
        if (!inCall && !m_tokenizer.macroAhead())
            break;
        if (m_state.blockDepth > 0 && !inCall)
            m_tokenizer.nextInBody();
        else
            m_tokenizer.next();
        if (m_tokenizer.kind() == TokenKind::EndOfFile)
            break;
        takeToken();
    }
    return m_error;
}

void Parser::takeToken()
{
    if (m_tokenizer.directive() != Directive::None)
        return takeDirective(m_tokenizer.directive());

    if (!m_state.questions.empty())
        takeQuestionToken();
    if (m_state.step != Step::None)
        takeMacroStep();
    if (isMacro(m_tokenizer.kind())) {
        m_state.step = Step::Name;
        m_state.macro = m_tokenizer.kind();
        m_state.macroLine = m_tokenizer.line();
    }

    if (m_tokenizer.kind() == TokenKind::LeftBrace)
        takeLeftBrace();
    else if (m_tokenizer.kind() == TokenKind::RightBrace)
        takeRightBrace();
    else if (m_state.blockDepth == 0)
        takeDeclarationToken();
}

void Parser::takeDirective(Directive directive)
{
    if (directive == Directive::If) {
        m_conditionals.push_back({m_state, std::nullopt});
        return;
    }
    if (m_conditionals.empty())
        return traceUnknown();

    Conditional &conditional = m_conditionals.back();
    if (directive == Directive::Else) {
        if (!conditional.afterFirstBranch)
            conditional.afterFirstBranch = std::move(m_state);
        m_state = conditional.before;
        return;
    }
    if (conditional.afterFirstBranch)
        m_state = std::move(*conditional.afterFirstBranch);
    m_conditionals.pop_back();
}

void Parser::takeMacroStep()
{
    if (m_state.step == Step::Parenthesis) {
        m_state.step = Step::None;
        takeFirstArgument();
    } else if (m_tokenizer.kind() == TokenKind::LeftParen) {
        m_state.step = Step::Parenthesis;
    } else {
        m_state.step = Step::None;
        traceUnknown();
    }
}

// The token is the first of the first argument.
void Parser::takeFirstArgument()
{
    const bool isString = m_tokenizer.kind() == TokenKind::String;
    const CallFamily family = familyOf(m_state.macro);
    switch (family) {
    case CallFamily::Error:
    case CallFamily::Message:
        if (isString)
            addCall(family, m_tokenizer.string(), m_state.macroLine);
        return;
    case CallFamily::ErrorWithArguments:
    case CallFamily::MessageWithArguments:
        // Whatever the argument is, the last string is taken for the tag, also one that stands before the
        // call.
        addCall(family, m_tokenizer.string(), m_state.macroLine);
        return;
    case CallFamily::Question:
    case CallFamily::QuestionWithArguments:
        if (!isString || m_state.questions.size() == deepestQuestion)
            return;
        m_state.questions.emplace_back(family, m_state.macroLine, m_tokenizer);
        return;
    }
}

// A token that ends a question's call is one of the call around it as well.
void Parser::takeQuestionToken()
{
    const QuestionCall::Outcome outcome = m_state.questions.back().take(m_tokenizer);
    if (outcome == QuestionCall::Outcome::GoesOn)
        return;
    const QuestionCall question = m_state.questions.back();
    m_state.questions.pop_back();
    if (!m_state.questions.empty())
        takeQuestionToken();

    const bool ended = outcome == QuestionCall::Outcome::Ends;
    if (const std::optional<QString> tag = ended ? question.tag() : std::nullopt)
        addCall(question.family(), *tag, question.line());
    else
        traceUnknown();
}

void Parser::takeDeclarationToken()
{
    if (m_tokenizer.kind() != TokenKind::Semicolon)
        return m_state.head.take(m_tokenizer);
    if (m_state.head.isUsingNamespace()) {
        m_usedNamespaces.push_back(textOf(m_state.head.name()));
        traceName(TokenKind::Using, m_usedNamespaces.back());
    }
    resetHead();
}

void Parser::takeLeftBrace()
{
    if (m_state.blockDepth > 0) {
        ++m_state.blockDepth;
        return traceBrace();
    }
    switch (m_state.head.braceMeaning()) {
    case BraceMeaning::Namespace:
        openScope(ScopeKind::Namespace, m_state.head.name());
        traceName(TokenKind::Namespace, textOf(scope().name));
        break;
    case BraceMeaning::Class:
        openScope(ScopeKind::Class, m_state.head.name());
        break;
    case BraceMeaning::Transparent:
        openScope(ScopeKind::Transparent, {});
        break;
    case BraceMeaning::Function:
        openFunction(m_state.head.name());
        break;
    case BraceMeaning::CatchBlock:
        openFunction(QualifiedName(m_scopes[m_state.lastFunction].name));
        break;
    case BraceMeaning::Block:
        m_state.blockDepth = 1;
        break;
    }
    traceBrace();
}

void Parser::takeRightBrace()
{
    if (m_state.blockDepth > 1) {
        --m_state.blockDepth;
    } else if (m_state.blockDepth == 1) {
        m_state.blockDepth = 0;
        if (m_state.inFunction) {
            m_state.lastFunction = m_state.scope;
            closeScope();
        } else {
            m_state.head.blockClosed();
        }
    } else if (m_state.scope != 0) {
        closeScope();
    } else {
        traceUnknown();
        resetHead();
    }
    traceBrace();
}

void Parser::openScope(ScopeKind kind, const QualifiedName &name)
{
    m_scopes.push_back({kind, m_state.scope, name});
    m_state.scope = static_cast<std::uint32_t>(m_scopes.size() - 1);
    resetHead();
}

void Parser::openFunction(const QualifiedName &name)
{
    openScope(ScopeKind::Function, name);
    m_state.blockDepth = 1;
    m_state.inFunction = true;
}

void Parser::closeScope()
{
    m_state.inFunction = false;
    m_state.scope = scope().outer;
    resetHead();
}

void Parser::resetHead()
{
    m_state.head.reset(scope().kind == ScopeKind::Class ? scope().name.last() : std::string_view());
}

// A tag that the message table cannot hold must not be lost unseen.
void Parser::addCall(CallFamily family, const QString &tag, int line)
{
    const QString context = m_state.inFunction ? currentContext() : QString();
    if (!Clt::isXmlText(tag)) {
        m_error = SourceError{QStringLiteral("Tag with a character that XML cannot carry"), line};
        return;
    }
    if (!m_contextIsXml) {
        m_error = SourceError{QStringLiteral("Context with a character that XML cannot carry"), line};
        return;
    }
    m_calls.push_back({family, tag, context, line});
    if (m_trace)
        m_trace(QStringLiteral("Key %1 %2 %3").arg(context, tag, QString::number(line)));
}

// Of a function's qualified name the last name is the function and the one before it the class; names before
// those are left out.
QString Parser::contextOf(std::uint32_t scope) const
{
    QStringList names;
    for (std::uint32_t index = scope; index != 0; index = m_scopes[index].outer) {
        const QualifiedName &name = m_scopes[index].name;
        const bool isFunction = m_scopes[index].kind == ScopeKind::Function;
        const std::size_t first = isFunction && name.count() > 2 ? name.count() - 2 : 0;
        for (std::size_t part = name.count(); part > first; --part)
            names.prepend(joined(name[part - 1]));
    }
    return names.join(QStringLiteral("::"));
}

// The calls of one function follow each other.
const QString &Parser::currentContext()
{
    if (m_contextScope != m_state.scope) {
        m_contextScope = m_state.scope;
        m_context = contextOf(m_state.scope);
        m_contextIsXml = Clt::isXmlText(m_context);
    }
    return m_context;
}

QString Parser::textOf(const QualifiedName &name)
{
    QStringList names;
    for (std::size_t part = 0; part < name.count(); ++part)
        names.append(joined(name[part]));
    return names.join(QStringLiteral("::"));
}

void Parser::traceName(TokenKind kind, const QString &name) const
{
    if (m_trace)
        m_trace(QStringLiteral("%1 %2").arg(displayName(kind), name));
}

void Parser::traceBrace() const
{
    if (!m_trace)
        return;
    std::uint32_t depth = m_state.blockDepth - (m_state.inFunction ? 1 : 0);
    for (std::uint32_t index = m_state.scope; index != 0; index = m_scopes[index].outer)
        ++depth;
    m_trace(QStringLiteral("%1 %2 depth=%3")
                .arg(displayName(m_tokenizer.kind()), contextOf(m_state.scope), QString::number(depth)));
}

void Parser::traceUnknown()
{
    if (m_trace)
        m_trace(QStringLiteral("%1 %2 %3")
                    .arg(QStringLiteral("UNKNOWN TOKEN"), displayName(m_tokenizer.kind()),
                         QString::number(m_tokenizer.line())));
}

} // namespace Scan
