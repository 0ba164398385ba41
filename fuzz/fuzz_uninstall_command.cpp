// Any command of an uninstall entry is left alone, or keeps its beginning up to the separator after the first
// "/LANG" and then names the language. The lowest bytes encode pieces of the option, to make commands with it
// frequent.

#include "setup/product_values.h"

#include <QStringList>

#include <algorithm>
#include <cstdlib>

using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static const QStringList pieces = {u"/LANG"_s, u"/LANG="_s, u"/LAN"_s, u"G"_s, u"/lang="_s};
    QString command;
    for (std::size_t i = 0; i < size; ++i)
        command += bytes[i] < pieces.size() ? pieces.at(bytes[i])
                                            : QString(QLatin1Char(static_cast<char>(bytes[i])));

    const QString locale = u"ja-JP"_s;
    const std::optional<QString> rewritten = uninstallCommandIn(command, locale);
    const qsizetype option = command.indexOf(u"/LANG"_s);
    if (rewritten.has_value() != (option > 0))
        std::abort();
    if (rewritten && *rewritten != command.left(std::min(command.size(), option + 6)) + locale)
        std::abort();
    return 0;
}
