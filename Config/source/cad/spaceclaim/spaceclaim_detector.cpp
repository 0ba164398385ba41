#include "cad/detection.h"
#include "cad/spaceclaim/spaceclaim.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Cad {

std::optional<QString> detectSpaceClaim(Detection &detection)
{
    const QString key = u"HKEY_LOCAL_MACHINE\\Software\\Classes\\SpaceClaim.Location"_s;
    const bool found = !detection.registry.valuesBelow(key).isEmpty();
    detection.packages.spaceClaimFound = found;
    detection.logFound(u"Spaceclaim=%1"_s.arg(found ? 1 : 0));
    if (!found)
        return std::nullopt;
    return u"SpaceClaim "_s;
}

} // namespace Nvx::Cad
