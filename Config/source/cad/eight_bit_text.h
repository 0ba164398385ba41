#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Looks for a text, without case, in 8-bit text of somebody else's, which is in the system's ANSI code page
/// or in none. Bytes that are no text there are not in the way. A text that the code page cannot write is
/// found nowhere.
class CaselessSearch
{
public:
    explicit CaselessSearch(const QString &text);

    bool isFoundIn(QByteArrayView bytes) const;

private:
    QString m_text;
    std::optional<QByteArray> m_written; ///< the text in the code page
    bool m_isAscii;
};
