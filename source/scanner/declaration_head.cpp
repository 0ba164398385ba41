#include "scanner/declaration_head.h"

#include "scanner/declaration_keyword.h"
#include "scanner/source_lexis.h"

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
    begin(Kind::Unknown, Previous::Nothing);
    m_enclosingClass = enclosingClass;
    m_partBegin = nullptr;
    m_stage = Stage::Names;
    m_requiresExpression = false;
    m_groupDepth = 0;
    m_angleDepth = 0;
}

void DeclarationHead::blockClosed()
{
    // One among parameters or arguments, a value made there say, ends nothing.
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
        return takeWord(token.text());
    case TokenKind::LeftParen:
        return openParenthesis();
    case TokenKind::DoubleColon:
        return takeDoubleColon();
    case TokenKind::Colon:
        return takeColon();
    case TokenKind::Other:
        return Lexis::isWordByte(token.text().front()) ? takeWord(token.text()) : takeSymbol(token.text());
    case TokenKind::String:
        if (m_previous == Previous::Extern)
            return begin(Kind::Linkage, Previous::Specifier);
        break;
    default:
        break;
    }
    m_previous = Previous::Other;
}

// Only a group's depth counts, except that a parameter list does not begin with a declarator: what seemed
// one is the parentheses around a function that returns a pointer to a function.
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

// A name remains the previous one behind its template arguments.
void DeclarationHead::takeInAngle(const Tokenizer &token)
{
    if (isOpening(token)) {
        ++m_angleGroupDepth;
    } else if (isClosing(token)) {
        m_angleGroupDepth -= m_angleGroupDepth > 0 ? 1 : 0;
    } else if (m_angleGroupDepth == 0 && token.text() == "<") {
        // The second half of a shift takes back what the first half was taken for.
        const bool shift = *(token.text().data() - 1) == '<';
        m_angleDepth += shift ? -1U : 1U;
    } else if (m_angleGroupDepth == 0 && token.text() == ">") {
        --m_angleDepth;
    }
}

// An operator's name reaches to its parameter list; that of the call operator holds parentheses itself.
void DeclarationHead::takeInOperator(const Tokenizer &token)
{
    if (token.kind() == TokenKind::LeftParen && m_previous == Previous::Other) {
        const char *const end = token.text().data();
        m_stage = Stage::Names;
        takeName({m_partBegin, static_cast<std::size_t>(end - m_partBegin)});
        openParenthesis();
    } else {
        m_previous = Previous::Other;
    }
}

void DeclarationHead::takeWord(std::string_view word)
{
    // What goes on behind a block does so with a sign; a word begins a declaration, whatever stood before.
    if (m_previous == Previous::CloseBlock && m_stage != Stage::TrailingClause)
        reset(m_enclosingClass);
    if (m_stage == Stage::Bases || m_stage == Stage::Initialiser)
        return;
    switch (keywordOf(word)) {
    case Keyword::None:
        return takeName(word);
    case Keyword::Access:
        m_previous = Previous::AccessSpecifier;
        return;
    case Keyword::Catch:
        return m_kind == Kind::Unknown && m_names == 0 ? begin(Kind::CatchBlock, Previous::Specifier)
                                                       : takeName(word);
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
        return takeOperator(word);
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

void DeclarationHead::takeOperator(std::string_view word)
{
    if (m_stage != Stage::Names)
        return takeName(word);
    m_partBegin = word.data();
    m_stage = Stage::Operator;
    m_previous = Previous::OperatorWord;
}

// A new declaration seems to begin, whatever stood before: a macro without a semicolon, say.
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

void DeclarationHead::takeName(std::string_view word)
{
    if (m_partBegin)
        word = {m_partBegin, static_cast<std::size_t>(word.data() + word.size() - m_partBegin)};
    m_partBegin = nullptr;
    m_previous = Previous::Name;
    // Of several words behind "namespace" the first is its name, the others are macros.
    if (m_kind == Kind::Namespace && m_name.count() > 0 && !m_joins)
        return;
    if (!m_joins) {
        m_name.clear();
        ++m_names;
    }
    m_joins = false;
    m_name.append(word);
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

    const bool behindFunction = m_stage == Stage::Names || m_stage == Stage::TrailingClause;
    m_previous = Previous::Other;
    if (m_kind == Kind::Function && behindFunction)
        m_stage = Stage::MemberList;
    else if (m_kind == Kind::Class)
        m_stage = Stage::Bases;
    else if (m_kind == Kind::Unknown && m_stage == Stage::Names)
        reset(m_enclosingClass);
}

void DeclarationHead::takeSymbol(std::string_view symbol)
{
    const bool behindName = m_previous == Previous::Name || m_previous == Previous::Template;
    if (symbol == "~" && m_stage == Stage::Names) {
        m_partBegin = symbol.data();
        return;
    }
    if (symbol == "<" && behindName && m_stage != Stage::Initialiser && m_stage != Stage::Bases) {
        m_angleDepth = 1;
        m_angleGroupDepth = 0;
        return;
    }
    // Brackets, those of an attribute say, may stand between a function's name and its parameters.
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

// Whether the parentheses behind the name are a parameter list. They may as well be those of a macro before
// or behind the name that counts.
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
        const bool special = last.front() == '~' || last.substr(0, 8) == "operator";
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
