#pragma once

#include "scanner/tokenizer.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Scan {

/// Names joined by "::", as written in a source text. Holds the last eight of them.
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

/// What the brace after a declaration's head opens.
enum class BraceMeaning
{
    Namespace,
    Class,
    Transparent, ///< linkage such as extern "C", or only a macro's name: declarations without a scope of
                 ///< their own
    Function,
    CatchBlock, ///< of a function whose body is a try block
    Block       ///< an enumeration, an initialiser: no declarations; the head continues after it
};

/// Reads the tokens of a declaration up to the brace that opens its body or the semicolon that ends it, and
/// determines what the brace means. It has only the tokens, not the types; a brace that it cannot identify is
/// a Block.
class DeclarationHead
{
public:
    /// Begins a new declaration, in the class of that name, or outside of classes if the name is empty.
    void reset(std::string_view enclosingClass);

    /// Reads the current token, which is not a brace, a semicolon outside of parentheses or a directive.
    void take(const Tokenizer &token);

    /// What a left brace at this point opens.
    BraceMeaning braceMeaning() const;

    /// A Block within the head has ended.
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

    // The part of the head that is being read.
    enum class Stage : std::uint8_t
    {
        Names,
        Operator,       // an operator's name
        Bases,          // after the colon of a class
        Initialiser,    // after an equals sign
        MemberList,     // a constructor's member initialisers
        TrailingClause, // after the arrow or requires-clause of a function
    };

    enum class Previous : std::uint8_t
    {
        None,
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
    void takeWord(const Tokenizer &token);
    void takeOperator(const Tokenizer &token);
    void takeClassKey();
    void takeTemplate();
    void takeRequires();
    void begin(Kind kind, Previous previous);
    void takeName(const Tokenizer &token);
    void appendName(std::string_view name);
    void takeDoubleColon();
    void takeColon();
    void takeSymbol(const Tokenizer &token);
    void openParenthesis();
    bool namesFunction() const;

    QualifiedName m_name;     // the current or last one
    QualifiedName m_function; // of Kind::Function
    std::string_view m_enclosingClass;
    std::optional<std::size_t> m_partBegin; // the position of a destructor's or operator's name
    bool m_joins = false;                   // the next name continues the previous one
    Kind m_kind = Kind::Unknown;
    Stage m_stage = Stage::Names;
    Previous m_previous = Previous::None;
    bool m_requiresExpression = false;
    std::uint32_t m_names = 0; // separate ones since the beginning, a class-key or a group
    std::uint32_t m_groupDepth = 0;
    std::uint32_t m_angleDepth = 0;
    std::uint32_t m_angleGroupDepth = 0;
};

} // namespace Scan
