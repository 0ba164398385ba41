#pragma once

#include "scanner/source_tokenizer.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace Scan {

/// Names joined by "::", as they stand in a source text. Of more than eight the last eight are kept.
class QualifiedName
{
public:
    void clear() { m_count = 0; }
    void append(std::string_view part);

    std::size_t count() const { return m_count; }
    std::string_view operator[](std::size_t index) const { return m_parts[index]; }
    std::string_view last() const { return m_count == 0 ? std::string_view() : m_parts[m_count - 1]; }

private:
    std::array<std::string_view, 8> m_parts;
    std::uint8_t m_count = 0;
};

/// What the brace behind a declaration's head opens.
enum class BraceMeaning
{
    Namespace,
    Class,
    Transparent, ///< linkage such as extern "C", or a macro's name alone: declarations, no scope of their own
    Function,
    CatchBlock, ///< of a function whose body is a try block
    Block       ///< an enumeration, an initialiser: no declarations; the head goes on behind it
};

/// Reads the tokens of a declaration up to the brace that opens its body or the semicolon that ends it, and
/// says what the brace means. Decides by the tokens alone, as no types are known; what it cannot make out is
/// a Block.
class DeclarationHead
{
public:
    /// Begins a new declaration, in the class of that name or, if empty, in none.
    void reset(std::string_view enclosingClass);

    /// Reads the tokenizer's token, any but a brace, a semicolon outside of parentheses or a directive.
    void take(const Tokenizer &token);

    /// What a left brace means here.
    BraceMeaning braceMeaning() const;

    /// A Block that stands in the head has ended.
    void blockClosed();

    /// The name of the namespace, class or function, or of the namespace of a using-directive.
    const QualifiedName &name() const { return m_kind == Kind::Function ? m_function : m_name; }

    bool isUsingNamespace() const { return m_kind == Kind::UsingNamespace; }

private:
    enum class Kind : std::uint8_t
    {
        Unknown,
        Namespace,
        UsingNamespace,
        Class,
        Enumeration,
        Linkage,
        Function,
        CatchBlock
    };

    // Where the head is.
    enum class Stage : std::uint8_t
    {
        Names,
        Operator,       // in an operator's name
        Bases,          // behind the colon of a class
        Initialiser,    // behind an equals sign
        MemberList,     // in a constructor's list of initialised members
        TrailingClause, // behind the arrow or a requires-clause of a function
    };

    enum class Previous : std::uint8_t
    {
        Nothing,
        Name,
        DoubleColon,
        Specifier,
        AccessSpecifier,
        Template,
        Extern,
        Requires,
        Using,
        OpenGroup,
        OpenParameters,
        CloseBlock,
        OperatorWord,
        Other
    };

    void takeInGroup(const Tokenizer &token);
    void takeInAngle(const Tokenizer &token);
    void takeInOperator(const Tokenizer &token);
    void takeWord(std::string_view word);
    void takeOperator(std::string_view word);
    void takeClassKey();
    void takeTemplate();
    void takeRequires();
    void begin(Kind kind, Previous previous);
    void takeName(std::string_view word);
    void takeDoubleColon();
    void takeColon();
    void takeSymbol(std::string_view symbol);
    void openParenthesis();
    bool namesFunction() const;

    QualifiedName m_name;     // being read, or read last
    QualifiedName m_function; // of Kind::Function
    std::string_view m_enclosingClass;
    const char *m_partBegin = nullptr; // of a destructor's or operator's name
    bool m_joins = false;              // the next name is part of the one before
    Kind m_kind = Kind::Unknown;
    Stage m_stage = Stage::Names;
    Previous m_previous = Previous::Nothing;
    bool m_requiresExpression = false;
    std::uint32_t m_names = 0; // separate ones, since the beginning, a class-key or a group
    std::uint32_t m_groupDepth = 0;
    std::uint32_t m_angleDepth = 0;
    std::uint32_t m_angleGroupDepth = 0;
};

} // namespace Scan
