// Whatever command an uninstall entry holds, it is left alone or keeps its beginning up to the separator
// behind the first "/LANG", and then names the language. The low bytes stand for pieces of the option, so
// that commands with it are common.

#include "setup/uninstall_command.h"

#include <QStringList>

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static const QStringList pieces = {QStringLiteral("/LANG"), QStringLiteral("/LANG="),
                                       QStringLiteral("/LAN"), QStringLiteral("G"), QStringLiteral("/lang=")};
    QString command;
    for (std::size_t i = 0; i < size; ++i)
        command += bytes[i] < pieces.size() ? pieces.at(bytes[i])
                                            : QString(QLatin1Char(static_cast<char>(bytes[i])));

    const QString locale = QStringLiteral("ja-JP");
    const std::optional<QString> rewritten = uninstallCommandIn(command, locale);
    const qsizetype option = command.indexOf(QStringLiteral("/LANG"));
    if (rewritten.has_value() != (option > 0))
        std::abort();
    if (rewritten && *rewritten != command.left(std::min(command.size(), option + 6)) + locale)
        std::abort();
    return 0;
}
