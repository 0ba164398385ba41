#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

class QIODevice;

namespace Clt {

class Leftovers;

/// A well-formed XML document, one token at a time. Prefixes of elements are left out.
class XmlSource
{
public:
    enum class Token
    {
        None, ///< before the first token
        StartElement,
        EndElement,
        Text,    ///< a piece of an element's text, or white space between elements
        Comment, ///< or a processing instruction
        End      ///< the end of the document, or an error
    };

    struct Attribute
    {
        std::string_view name; ///< with its prefix
        QString value;
    };

    XmlSource() = default;
    XmlSource(const XmlSource &) = delete;
    XmlSource &operator=(const XmlSource &) = delete;
    virtual ~XmlSource() = default;

    /// Reads the next token. After Token::End there are no others.
    virtual Token next() = 0;

    Token token() const { return m_token; }
    bool isStartElement() const { return m_token == Token::StartElement; }

    /// The name of the element that starts or ends, in UTF-8; valid until the next token.
    std::string_view name() const { return m_name; }

    /// The attributes of the element that starts; valid until the next token.
    const std::vector<Attribute> &attributes() const { return m_attributes; }

    /// The value of an attribute of the element that starts; empty if it has none.
    QString attribute(std::string_view name) const;

    /// The text of a token of that kind.
    virtual QString text() const = 0;
    virtual bool isWhiteSpace() const = 0;

    /// How many elements are open, including one that starts.
    qint64 depth() const { return m_depth; }

    /// Where the token ends, for lineOf().
    virtual qint64 place() const = 0;
    virtual qint64 lineOf(qint64 place) const = 0;
    qint64 line() const { return lineOf(place()); }

    /// Makes the next token the end, with this error.
    virtual void raiseError(const QString &text) = 0;

    /// True if the source leaves documents with anything unusual, such as this one, to another source. The
    /// next token is then the end.
    virtual bool declines() { return false; }

protected:
    Token m_token = Token::None;
    std::string_view m_name;
    std::vector<Attribute> m_attributes;
    qint64 m_depth = 0;
};

/// Limits what an entity of a document may expand to, so that all references in it together make about a
/// million characters at most, or 16 each. Looks through the rest of the random-access device, which is the
/// document's, and returns to where it was. Returns the line of an element with so many attributes that
/// reading it would take minutes, which is an error; 0 if there is none.
qint64 limitExpansion(QXmlStreamReader &xml, QIODevice &device);

/// The text of that error, for the user.
QString tooManyAttributes();

/// A document read with Qt's reader.
class QtXmlSource : public XmlSource
{
public:
    /// The reader must outlive the source. If it is at a start element already, so is the source.
    explicit QtXmlSource(QXmlStreamReader &xml);

    Token next() override;
    QString text() const override { return m_xml.text().toString(); }
    bool isWhiteSpace() const override;
    qint64 place() const override { return m_xml.lineNumber(); }
    qint64 lineOf(qint64 place) const override { return place; }
    void raiseError(const QString &text) override { m_xml.raiseError(text); }

private:
    Token take(QXmlStreamReader::TokenType type);
    void takeElement();
    void countCharacters(qint64 characters);

    QXmlStreamReader &m_xml;
    QByteArray m_utf8Name;
    std::vector<QByteArray> m_attributeNames;
    qint64 m_characters = 0;
};

/// The text of the element that starts, which is read to its end. An element within it is an error; a comment
/// is left over.
QString readElementText(XmlSource &xml, Leftovers &leftovers);

/// Reads the element that starts to its end.
void skipElement(XmlSource &xml);

/// Leaves each child of an element that another one of the same name replaces.
class RepeatedChildren
{
public:
    /// The leftovers must outlive it.
    explicit RepeatedChildren(Leftovers &leftovers)
        : m_leftovers(leftovers)
    {
    }

    /// The source is at the start of a child of that number, from 0.
    void begin(const XmlSource &xml, std::size_t number);

private:
    static constexpr std::size_t maximum = 6;

    Leftovers &m_leftovers;
    std::array<qint64, maximum> m_places{}; // of the last child of each number, plus one; 0 for none
};

/// "<NAME>" for the element that starts.
QString startTag(const XmlSource &xml);

/// Adds what is at the source's current token to the leftovers.
void leave(const XmlSource &xml, Leftovers &leftovers, const QString &what);

/// Leaves an attribute of the element that starts.
void leaveAttribute(const XmlSource &xml, Leftovers &leftovers, const XmlSource::Attribute &attribute);

/// Leaves all attributes of the element that starts.
void leaveAttributes(const XmlSource &xml, Leftovers &leftovers);

/// Leaves a comment, or text between elements. White space and other tokens are nothing that gets lost.
void leaveText(const XmlSource &xml, Leftovers &leftovers);

} // namespace Clt
