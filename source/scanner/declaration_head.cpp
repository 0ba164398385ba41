#include "scanner/declaration_head.h"

#include "scanner/declaration_keyword.h"
#include "scanner/lexis.h"

#include <algorithm>

namespace Scan {

namespace {

bool isOpening(const Tokenizer &token)
{
    return token.kind() == TokenKind::LeftParen || token.text() == "[";
}

bool isClosing(const Tokenizer &token)
{
    return token.kind() == TokenKind::RightParen || token.text() == "]";
}

} // namespace

void QualifiedName::append(std::string_view part)
{
    if (m_count == m_parts.size()) {
        std::move(m_parts.begin() + 1, m_parts.end(), m_parts.begin());
        --m_count;
    }
    m_parts[m_count++] = part;
}

void DeclarationHead::reset(std::string_view enclosingClass)
{
    begin(Kind::Unknown, Previous::None);
    m_enclosingClass = enclosingClass;
    m_partBegin.reset();
    m_stage = Stage::Names;
    m_requiresExpression = false;
    m_groupDepth = 0;
    m_angleDepth = 0;
}

void DeclarationHead::blockClosed()
{
    // A block among parameters or arguments, such as a value with braces, does not affect the head.
    if (m_groupDepth > 0 || m_angleDepth > 0)
        return;
    m_previous = Previous::CloseBlock;
    m_requiresExpression = false;
}

BraceMeaning DeclarationHead::braceMeaning() const
{
    if (m_groupDepth > 0 || m_requiresExpression || m_stage == Stage::Initialiser ||
        m_stage == Stage::Operator || (m_stage == Stage::MemberList && m_previous == Previous::Name))
        return BraceMeaning::Block;
    switch (m_kind) {
    case Kind::Namespace:
        return BraceMeaning::Namespace;
    case Kind::Class:
        return BraceMeaning::Class;
    case Kind::Linkage:
        return BraceMeaning::Transparent;
    case Kind::Function:
        return BraceMeaning::Function;
    case Kind::CatchBlock:
        return BraceMeaning::CatchBlock;
    case Kind::Unknown:
        return m_names == 1 && m_name.count() == 1 ? BraceMeaning::Transparent : BraceMeaning::Block;
    case Kind::Enumeration:
    case Kind::UsingNamespace:
        break;
    }
    return BraceMeaning::Block;
}

void DeclarationHead::take(const Tokenizer &token)
{
    if (m_stage == Stage::Operator)
        return takeInOperator(token);
    if (m_angleDepth > 0)
        return takeInAngle(token);
    if (m_groupDepth > 0)
        return takeInGroup(token);

    switch (token.kind()) {
    case TokenKind::Namespace:
    case TokenKind::Using:
    case TokenKind::Identifier:
        return takeWord(token);
    case TokenKind::LeftParen:
        return openParenthesis();
    case TokenKind::DoubleColon:
        return takeDoubleColon();
    case TokenKind::Colon:
        return takeColon();
    case TokenKind::Other:
        return Lexis::isWordByte(token.text().front()) ? takeWord(token) : takeSymbol(token);
    case TokenKind::String:
        if (m_previous == Previous::Extern)
            return begin(Kind::Linkage, Previous::Specifier);
        break;
    default:
        break;
    }
    m_previous = Previous::Other;
}

// Within a group only its depth matters, with one exception: a parameter list does not begin with "*" or "&".
// Parentheses that do are those around a function that returns a pointer to a function.
void DeclarationHead::takeInGroup(const Tokenizer &token)
{
    const bool isFirstParameter = m_previous == Previous::OpenParameters;
    if (isFirstParameter || m_previous == Previous::OpenGroup)
        m_previous = Previous::Other;
    if (isOpening(token)) {
        ++m_groupDepth;
    } else if (isClosing(token)) {
        --m_groupDepth;
    } else if (isFirstParameter && (token.text() == "*" || token.text() == "&")) {
        m_groupDepth = 0;
        m_kind = Kind::Unknown;
    }
}

// After its template arguments a name is still the previous token.
void DeclarationHead::takeInAngle(const Tokenizer &token)
{
    if (isOpening(token)) {
        ++m_angleGroupDepth;
    } else if (isClosing(token)) {
        m_angleGroupDepth -= m_angleGroupDepth > 0 ? 1 : 0;
    } else if (m_angleGroupDepth == 0 && token.text() == "<") {
        // The first half of a shift counted as an opening bracket; the second half undoes that.
        m_angleDepth += token.follows('<') ? -1U : 1U;
    } else if (m_angleGroupDepth == 0 && token.text() == ">") {
        --m_angleDepth;
    }
}

// An operator's name ends at its parameter list. The name of the call operator contains parentheses.
void DeclarationHead::takeInOperator(const Tokenizer &token)
{
    if (token.kind() == TokenKind::LeftParen && m_previous == Previous::Other) {
        m_stage = Stage::Names;
        appendName(token.between(*m_partBegin, token.begin()));
        openParenthesis();
    } else {
        m_previous = Previous::Other;
    }
}

void DeclarationHead::takeWord(const Tokenizer &token)
{
    // A head continues after a block with a sign; a word there begins a new declaration.
    if (m_previous == Previous::CloseBlock && m_stage != Stage::TrailingClause)
        reset(m_enclosingClass);
    if (m_stage == Stage::Bases || m_stage == Stage::Initialiser)
        return;
    switch (keywordOf(token.text())) {
    case Keyword::None:
        return takeName(token);
    case Keyword::Access:
        m_previous = Previous::AccessSpecifier;
        return;
    case Keyword::Catch:
        return m_kind == Kind::Unknown && m_names == 0 ? begin(Kind::CatchBlock, Previous::Specifier)
                                                       : takeName(token);
    case Keyword::ClassKey:
        return takeClassKey();
    case Keyword::Enum:
        if (m_stage == Stage::Names)
            begin(Kind::Enumeration, Previous::Specifier);
        return;
    case Keyword::Extern:
        m_previous = Previous::Extern;
        return;
    case Keyword::Namespace:
        return begin(m_previous == Previous::Using ? Kind::UsingNamespace : Kind::Namespace,
                     Previous::Specifier);
    case Keyword::Operator:
        return takeOperator(token);
    case Keyword::Requires:
        return takeRequires();
    case Keyword::Specifier:
        m_previous = Previous::Specifier;
        return;
    case Keyword::Template:
        return takeTemplate();
    case Keyword::Using:
        return begin(Kind::Unknown, Previous::Using);
    }
}

void DeclarationHead::takeOperator(const Tokenizer &token)
{
    if (m_stage != Stage::Names)
        return takeName(token);
    m_partBegin = token.begin();
    m_stage = Stage::Operator;
    m_previous = Previous::OperatorWord;
}

// Begins a declaration. The tokens before it may be, for example, a macro without a semicolon.
void DeclarationHead::begin(Kind kind, Previous previous)
{
    m_kind = kind;
    m_previous = previous;
    m_name.clear();
    m_names = 0;
    m_joins = false;
}

void DeclarationHead::takeClassKey()
{
    if (m_stage != Stage::Names)
        return;
    const bool ofEnumeration = m_kind == Kind::Enumeration && m_names == 0;
    begin(ofEnumeration ? Kind::Enumeration : Kind::Class, Previous::Specifier);
}

void DeclarationHead::takeTemplate()
{
    if (m_previous != Previous::DoubleColon && m_stage == Stage::Names)
        begin(Kind::Unknown, Previous::Template);
}

void DeclarationHead::takeRequires()
{
    if (m_previous == Previous::Requires)
        m_requiresExpression = true;
    if (m_kind == Kind::Function && m_stage == Stage::Names)
        m_stage = Stage::TrailingClause;
    m_previous = Previous::Requires;
}

void DeclarationHead::takeName(const Tokenizer &token)
{
    appendName(token.between(m_partBegin.value_or(token.begin()), token.end()));
}

void DeclarationHead::appendName(std::string_view name)
{
    m_partBegin.reset();
    m_previous = Previous::Name;
    // The first of several words after "namespace" is the name; the others are macros.
    if (m_kind == Kind::Namespace && m_name.count() > 0 && !m_joins)
        return;
    if (!m_joins) {
        m_name.clear();
        ++m_names;
    }
    m_joins = false;
    m_name.append(name);
}

void DeclarationHead::takeDoubleColon()
{
    if (m_stage == Stage::Bases)
        return;
    if (m_previous != Previous::Name) {
        m_name.clear();
        ++m_names;
    }
    m_joins = true;
    m_previous = Previous::DoubleColon;
}

void DeclarationHead::takeColon()
{
    if (m_previous == Previous::AccessSpecifier)
        return reset(m_enclosingClass);

    const bool afterParameters = m_stage == Stage::Names || m_stage == Stage::TrailingClause;
    m_previous = Previous::Other;
    if (m_kind == Kind::Function && afterParameters)
        m_stage = Stage::MemberList;
    else if (m_kind == Kind::Class)
        m_stage = Stage::Bases;
    else if (m_kind == Kind::Unknown && m_stage == Stage::Names)
        reset(m_enclosingClass);
}

void DeclarationHead::takeSymbol(const Tokenizer &token)
{
    const std::string_view symbol = token.text();
    const bool afterName = m_previous == Previous::Name || m_previous == Previous::Template;
    if (symbol == "~" && m_stage == Stage::Names) {
        m_partBegin = token.begin();
        return;
    }
    if (symbol == "<" && afterName && m_stage != Stage::Initialiser && m_stage != Stage::Bases) {
        m_angleDepth = 1;
        m_angleGroupDepth = 0;
        return;
    }
    // There may be brackets, for example of an attribute, between a function's name and its parameters.
    if (symbol == "[") {
        m_groupDepth = 1;
        return;
    }
    if (symbol == "=" && m_stage == Stage::Names)
        m_stage = Stage::Initialiser;
    else if (symbol == "->" && m_stage == Stage::Names && m_kind == Kind::Function)
        m_stage = Stage::TrailingClause;
    m_joins = false;
    m_previous = Previous::Other;
}

void DeclarationHead::openParenthesis()
{
    if (m_previous == Previous::Name && m_stage == Stage::Names && namesFunction()) {
        m_function = m_name;
        m_kind = Kind::Function;
        m_previous = Previous::OpenParameters;
    } else {
        m_previous = Previous::OpenGroup;
    }
    m_names = 0;
    m_groupDepth = 1;
}

// True when the parentheses after the name are a parameter list, not those of a macro before or after the
// declared name.
bool DeclarationHead::namesFunction() const
{
    switch (m_kind) {
    case Kind::Unknown:
    case Kind::Linkage:
        return true;
    case Kind::Class:
    case Kind::Enumeration:
        return m_names >= 2;
    case Kind::Function: {
        const std::string_view last = m_name.last();
        const bool special = last.starts_with('~') || last.starts_with("operator");
        return m_names >= 2 || m_name.count() >= 2 || special || last == m_enclosingClass;
    }
    case Kind::Namespace:
    case Kind::UsingNamespace:
    case Kind::CatchBlock:
        break;
    }
    return false;
}

} // namespace Scan
