#pragma once

#include <QString>

/// The folders of the CAD systems that do not depend on where these are installed.
struct SharedFolders
{
    /// The shared application data, by the name of old and by that of today. Tamsel looks below both.
    QString applicationDataOfOld = QStringLiteral("C:\\Documents and Settings\\All Users\\Application Data");
    QString applicationData = QStringLiteral("C:\\Users\\All Users");

    /// The folder of the product's add-in among those of SpaceClaim.
    QString spaceClaimAddin = QStringLiteral("C:\\ProgramData\\SpaceClaim\\Addins\\NVX_2017_SpaceClaim");
};
