#include "scanner/parser.h"

#include "clt_xml_text.h"

#include <QStringList>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

// The maximum nesting of questions within the arguments of questions.
constexpr std::size_t maximumQuestions = 16;

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString joined(std::string_view source)
{
    return toText(joinTokens(source));
}

} // namespace

Parser::Parser(std::string_view text, Trace trace)
    : m_tokenizer(text)
    , m_trace(std::move(trace))
    , m_scopes(1)
{
}

const Nvx::Util::Outcome &Parser::parse()
{
    while (m_outcome) {
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
    return m_outcome;
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
        // Whatever the argument is, the tag is the last string, even if that is before the call.
        addCall(family, m_tokenizer.string(), m_state.macroLine);
        return;
    case CallFamily::Question:
    case CallFamily::QuestionWithArguments:
        if (!isString || m_state.questions.size() == maximumQuestions)
            return;
        m_state.questions.emplace_back(family, m_state.macroLine, m_tokenizer);
        return;
    }
}

// A token that ends a question's call also belongs to the call around it.
void Parser::takeQuestionToken()
{
    const QuestionCall::Progress progress = m_state.questions.back().take(m_tokenizer);
    if (progress == QuestionCall::Progress::Continues)
        return;
    const QuestionCall question = m_state.questions.back();
    m_state.questions.pop_back();
    if (!m_state.questions.empty())
        takeQuestionToken();

    const bool ended = progress == QuestionCall::Progress::Ends;
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

// A tag or context that the message table cannot hold is an error, so that its message is not lost silently.
void Parser::addCall(CallFamily family, const QString &tag, int line)
{
    const QString context = m_state.inFunction ? currentContext() : QString();
    if (!Clt::isXmlText(tag))
        return fail(u"Tag with a character that XML cannot represent"_s, line);
    if (!m_contextIsXml)
        return fail(u"Context with a character that XML cannot represent"_s, line);
    m_calls.push_back({.family = family, .tag = tag, .context = context, .line = line});
    if (m_trace)
        m_trace(u"Key %1 %2 %3"_s.arg(context, tag, QString::number(line)));
}

void Parser::fail(const QString &message, int line)
{
    m_outcome = Nvx::Util::Failure{u"%1 (line %2)"_s.arg(message, QString::number(line))};
}

// The last part of a function's qualified name is the function, the one before it the class; the parts before
// these are omitted.
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
    return names.join(u"::"_s);
}

// Cached, because the calls of one function follow each other.
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
    return names.join(u"::"_s);
}

void Parser::traceName(TokenKind kind, const QString &name) const
{
    if (m_trace)
        m_trace(u"%1 %2"_s.arg(displayName(kind), name));
}

void Parser::traceBrace() const
{
    if (!m_trace)
        return;
    std::uint32_t depth = m_state.blockDepth - (m_state.inFunction ? 1 : 0);
    for (std::uint32_t index = m_state.scope; index != 0; index = m_scopes[index].outer)
        ++depth;
    m_trace(u"%1 %2 depth=%3"_s.arg(displayName(m_tokenizer.kind()), contextOf(m_state.scope),
                                    QString::number(depth)));
}

void Parser::traceUnknown()
{
    if (m_trace)
        m_trace(u"%1 %2 %3"_s.arg(u"UNKNOWN TOKEN"_s, displayName(m_tokenizer.kind()),
                                  QString::number(m_tokenizer.line())));
}

} // namespace Scan
