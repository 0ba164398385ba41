#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace Nvx::Cad {

/// Searches for a string, ignoring case, in 8-bit text of another program, which is normally in the system's
/// ANSI code page. Bytes that are not valid in it do no harm. A string that the code page cannot encode is
/// never found.
class CaselessSearch
{
public:
    explicit CaselessSearch(const QString &text);

    bool isFoundIn(QByteArrayView bytes) const;

private:
    QString m_text;
    std::optional<QByteArray> m_encoded; ///< m_text in the code page
    bool m_isAscii;
};

} // namespace Nvx::Cad
