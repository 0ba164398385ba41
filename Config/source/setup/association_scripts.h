#pragma once

#include <QString>
#include <QStringList>

namespace Nvx::Setup {

/// The names of the product's file types in the registry.
struct AssociationNames
{
    QString programId;   ///< such as "NVX2017"; a type's class is the program id followed by the extension
    QString description; ///< shown to the user, such as "NVX 2017"
};

/// The names in one release of the product, such as "2017".
AssociationNames associationNamesOf(const QString &release);

/// The lines of the registry script that removes the product's file types, with the user's choice of program
/// and recent documents. Types that the product does not open keep theirs: for templates only the product's
/// class is removed, for packages nothing is.
QStringList removalScript(const AssociationNames &names);

/// The lines of the registry script that gives each file type its icon and, if the product opens it, an open
/// command with the main program in the install dir. In installDirEscaped every "\" is doubled.
QStringList creationScript(const AssociationNames &names, const QString &installDirEscaped);

} // namespace Nvx::Setup
