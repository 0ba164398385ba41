// Whatever command an uninstall entry holds, it is left alone or keeps its beginning up to the separator
// behind the first "/LANG", and then names the language.

#include "setup/uninstall_command.h"

#include <algorithm>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QString command =
        QString::fromUtf8(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    const QString locale = QStringLiteral("ja-JP");
    const std::optional<QString> rewritten = uninstallCommandIn(command, locale);
    const qsizetype option = command.indexOf(QStringLiteral("/LANG"));
    if (rewritten.has_value() != (option > 0))
        std::abort();
    if (rewritten && *rewritten != command.left(std::min(command.size(), option + 6)) + locale)
        std::abort();
    return 0;
}
