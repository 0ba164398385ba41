#include "nvx_util/code_page.h"

#include <QStringEncoder>

namespace Nvx::Util {

// 8-bit text is UTF-8 here; only unpaired surrogates cannot be encoded.
std::optional<QByteArray> toAnsi(const QString &text)
{
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    QByteArray bytes = encoder.encode(text);
    if (encoder.hasError())
        return std::nullopt;
    return bytes;
}

std::optional<QByteArray> toOem(const QString &text)
{
    return toAnsi(text);
}

QString fromOem(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes);
}

} // namespace Nvx::Util
