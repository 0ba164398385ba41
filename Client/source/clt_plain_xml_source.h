#pragma once

#include "clt_xml_source.h"

#include <QByteArray>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

class QIODevice;

namespace Clt {

/// A document as programs write it: UTF-8, no prefixes of elements, no entities other than the five of XML,
/// no processing instructions, no CDATA sections. Such a document is read several times as fast as with Qt's
/// reader. Any other document, including one that is not well formed, is declined, and must be read again
/// with another source.
class PlainXmlSource : public XmlSource
{
public:
    /// Reads from a random-access device, at its position. The device must outlive the source.
    explicit PlainXmlSource(QIODevice &device);

    Token next() override;
    QString text() const override;
    bool isWhiteSpace() const override;
    qint64 place() const override { return m_at - m_bytes.constData(); }
    qint64 lineOf(qint64 place) const override;
    void raiseError(const QString &) override { m_isDeclined = true; }
    bool declines() override { return m_isDeclined = true; }

    /// At the end: true if the document was read to its end, false if it was declined.
    bool isComplete() const { return !m_isDeclined && m_at == m_end; }

private:
    Token take();
    Token decline();

    bool readMore();
    const char *find(const char *from, char wanted);
    bool startsWith(std::string_view text);

    bool skipDeclaration();
    Token takeOutsideRoot();
    Token takeText();
    Token takeStartTag();
    Token takeEndTag();
    Token takeComment();
    bool skipDocumentType();

    bool readAttributes(const char *at, const char *end);
    bool addAttribute(std::string_view name, std::string_view value);
    bool hasAttribute(std::string_view name) const;

    QString sharedText(std::string_view text) const;

    // Short texts, each in the place that its bytes lead to: most documents repeat them, and share them then.
    struct RecentText
    {
        std::string_view bytes;
        QString text;
    };
    static constexpr std::size_t recentTexts = 64;
    mutable std::array<RecentText, recentTexts> m_recent;

    QIODevice &m_device;
    QByteArray m_bytes;  // the whole document, as far as it was read
    const char *m_at;    // the end of the token
    const char *m_end;   // of what was read
    const char *m_limit; // of the document
    bool m_isDeclined = false;
    bool m_isEmptyElement = false; // its end is the next token
    bool m_hasRoot = false;
    bool m_hasDocumentType = false;
    std::vector<std::string_view> m_open; // the names of the open elements
    std::string_view m_text;
    bool m_isAscii = false; // the text, without references and carriage returns
    QString m_decoded;      // the text, otherwise
    mutable qint64 m_countedPlace = 0;
    mutable qint64 m_countedLine = 1;
};

} // namespace Clt
