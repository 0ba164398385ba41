#include "nvx_util/code_page.h"

#include <windows.h>

namespace Nvx::Util {

namespace {

std::optional<QByteArray> toCodePage(UINT codePage, const QString &text)
{
    if (text.isEmpty())
        return QByteArray();

    // The machine's code page may be UTF-8, which accepts neither the "no best fit" flag nor the report of a
    // default character; only unpaired surrogates cannot be encoded in it.
    const bool isUtf8 = codePage == CP_UTF8;
    const DWORD flags = isUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
    BOOL usedDefault = FALSE;
    BOOL *const reported = isUtf8 ? nullptr : &usedDefault;

    const auto *wide = reinterpret_cast<const wchar_t *>(text.utf16());
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(codePage, flags, wide, length, nullptr, 0, nullptr, reported);
    if (size <= 0 || usedDefault)
        return std::nullopt;
    QByteArray bytes(size, Qt::Uninitialized);
    WideCharToMultiByte(codePage, flags, wide, length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

} // namespace

std::optional<QByteArray> toAnsi(const QString &text)
{
    return toCodePage(GetACP(), text);
}

std::optional<QByteArray> toOem(const QString &text)
{
    return toCodePage(GetOEMCP(), text);
}

QString fromOem(const QByteArray &bytes)
{
    const int length = static_cast<int>(bytes.size());
    const int size = MultiByteToWideChar(CP_OEMCP, 0, bytes.constData(), length, nullptr, 0);
    if (size <= 0)
        return QString();
    QString text(size, Qt::Uninitialized);
    MultiByteToWideChar(CP_OEMCP, 0, bytes.constData(), length, reinterpret_cast<wchar_t *>(text.data()),
                        size);
    return text;
}

} // namespace Nvx::Util
