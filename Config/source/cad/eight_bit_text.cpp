#include "cad/eight_bit_text.h"

#include "nvx_util/code_page.h"

#include <algorithm>

namespace Nvx::Cad {

namespace {

constexpr char lowered(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

bool isAsciiFoundIn(QByteArrayView bytes, QByteArrayView text)
{
    const auto isSame = [](char one, char other) { return lowered(one) == lowered(other); };
    return text.isEmpty() ||
           std::search(bytes.begin(), bytes.end(), text.begin(), text.end(), isSame) != bytes.end();
}

} // namespace

CaselessSearch::CaselessSearch(const QString &text)
    : m_text(text)
    , m_encoded(Util::toAnsi(text))
    , m_isAscii(
          std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; }))
{
}

bool CaselessSearch::isFoundIn(QByteArrayView bytes) const
{
    if (!m_encoded)
        return false;
    if (m_isAscii)
        return isAsciiFoundIn(bytes, *m_encoded);
    // The bytes are searched too: after an invalid byte, decoding could swallow the first character of a
    // match.
    return bytes.indexOf(*m_encoded) >= 0 ||
           QString::fromLocal8Bit(bytes).contains(m_text, Qt::CaseInsensitive);
}

} // namespace Nvx::Cad
