#include "cad/cad_detectors.h"

void detectSpaceClaim(const Detection &detection)
{
    bool &found = detection.packages().spaceClaimFound;
    found = !detection.registry
                 .valuesBelow(QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Classes\\SpaceClaim.Location"))
                 .isEmpty();
    detection.setBox(Launcher::SpaceClaim, found, QStringLiteral("SpaceClaim "));
    detection.logFound(QStringLiteral("Spaceclaim=%1").arg(found ? 1 : 0));
}
