#include "cad/cad_packages.h"

namespace Nvx::Cad {

CreoInstall CadPackages::creoInstall(int release) const
{
    for (const CreoInstall &install : creoInstalls) {
        if (install.release == release)
            return install;
    }
    return {};
}

QString CadPackages::tamselVersions(TamselEdition edition) const
{
    QString versions;
    for (const TamselInstall &install : tamselInstalls) {
        if (install.edition == edition)
            versions += u' ' + QString::number(install.year);
    }
    return versions;
}

} // namespace Nvx::Cad
