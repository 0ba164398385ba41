#include "help/help_address.h"

#include "nvx_util/languages.h"

namespace Nvx::Help {

QString helpLanguage(const QString &locale)
{
    const Util::Language *language = Util::languageOf(locale);
    return language ? language->helpCode : Util::sourceLanguage.helpCode;
}

QString topicAddress(const HelpSettings &settings, const QString &contextId)
{
    return settings.prefix + settings.url + settings.direct + contextId + settings.suffix;
}

QString searchAddress(const HelpSettings &settings, HelpPlace place, const QString &text)
{
    const QString address = settings.prefix + settings.url + settings.search + text;
    return place == HelpPlace::Online ? address + settings.suffix : address;
}

} // namespace Nvx::Help
