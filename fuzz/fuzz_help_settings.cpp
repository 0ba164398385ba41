// Any settings file is valid for both places or for neither.

#include "help/help_settings.h"

#include <QBuffer>

#include <cstdlib>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

namespace {

Nvx::Util::Result<HelpSettings> settingsIn(QByteArray document, HelpPlace place)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return readHelpSettings(buffer, place, {u"C:\\Shared"_s, u"ENU"_s});
}

void check(const QByteArray &document)
{
    const Nvx::Util::Result<HelpSettings> online = settingsIn(document, HelpPlace::Online);
    const Nvx::Util::Result<HelpSettings> installed = settingsIn(document, HelpPlace::Installed);
    if (bool(online) != bool(installed))
        std::abort();
    if (online && (!online->suffix.isEmpty() || !online->url.endsWith(u'/')))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    check(input);
    // Documents that are valid apart from the input.
    check("<help_ids><help_url " + input + "/></help_ids>");
    check("<help_ids><help_url online_prefix='" + input + "'/></help_ids>");
    check("<help_ids>" + input + "<help_url/></help_ids>");
    return 0;
}
