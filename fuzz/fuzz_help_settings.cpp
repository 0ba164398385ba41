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

void check(const QByteArray &document)
{
    const std::optional<HelpSettings> online = settingsIn(document, HelpPlace::Online);
    const std::optional<HelpSettings> installed = settingsIn(document, HelpPlace::Installed);
    if (online.has_value() != installed.has_value())
        std::abort();
    if (online && (!online->suffix.isEmpty() || !online->url.endsWith(u'/')))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    check(input);
    // Where a document is read on and taken.
    check("<help_ids><help_url " + input + "/></help_ids>");
    check("<help_ids><help_url online_prefix='" + input + "'/></help_ids>");
    check("<help_ids>" + input + "<help_url/></help_ids>");
    return 0;
}
