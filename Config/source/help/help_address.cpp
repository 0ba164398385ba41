#include "help/help_address.h"

QString helpLanguage(const QString &locale)
{
    if (locale == QLatin1String("de-DE"))
        return QStringLiteral("DEU");
    if (locale == QLatin1String("ja-JP"))
        return QStringLiteral("JPN");
    return QStringLiteral("ENU");
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
