// Any file of settings is either taken, the same way each time and for both places, or not.

#include "help/help_settings.h"

#include <QBuffer>

#include <cstdlib>

namespace {

std::optional<HelpSettings> settingsIn(QByteArray document, HelpPlace place)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return readHelpSettings(buffer, place, {QStringLiteral("C:\\Shared"), QStringLiteral("ENU")});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray document(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const std::optional<HelpSettings> online = settingsIn(document, HelpPlace::Online);
    const std::optional<HelpSettings> installed = settingsIn(document, HelpPlace::Installed);
    if (online.has_value() != installed.has_value())
        std::abort();
    if (online && (!online->suffix.isEmpty() || !online->url.endsWith(u'/')))
        std::abort();
    return 0;
}
