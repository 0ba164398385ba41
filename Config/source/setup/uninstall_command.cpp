#include "setup/uninstall_command.h"

std::optional<QString> uninstallCommandIn(const QString &command, const QString &locale)
{
    const QLatin1String option("/LANG");
    const qsizetype position = command.indexOf(option);
    if (position <= 0)
        return std::nullopt;
    return command.left(position + option.size() + 1) + locale;
}
