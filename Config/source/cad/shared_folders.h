#pragma once

#include <QString>

namespace Nvx::Cad {

/// Folders of CAD systems that do not depend on where these are installed.
struct SharedFolders
{
    /// The shared application data by its former name and by its present one. Tamsel looks below both.
    QString formerApplicationData = QStringLiteral("C:\\Documents and Settings\\All Users\\Application Data");
    QString applicationData = QStringLiteral("C:\\Users\\All Users");

    /// The folder of the product's add-in for SpaceClaim.
    QString spaceClaimAddin = QStringLiteral("C:\\ProgramData\\SpaceClaim\\Addins\\NVX_2017_SpaceClaim");
};

} // namespace Nvx::Cad
