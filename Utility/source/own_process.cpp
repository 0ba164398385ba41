#include "nvx_util/own_process.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

bool isVariableOfQt(QStringView name)
{
    // They contain no path and name no plug-in, and administrators collect diagnostic messages with them.
    // QT_LOGGING_CONF, the path of a file with rules, does not belong here.
    for (const QLatin1StringView kept : {"QT_FORCE_STDERR_LOGGING"_L1, "QT_LOGGING_RULES"_L1}) {
        if (name.compare(kept, Qt::CaseInsensitive) == 0)
            return false;
    }
    const auto prefixes = {"QT_"_L1, "QML"_L1};
    return std::any_of(prefixes.begin(), prefixes.end(), [&](QLatin1StringView prefix) {
        return name.startsWith(prefix, Qt::CaseInsensitive);
    });
}

} // namespace Nvx::Util
