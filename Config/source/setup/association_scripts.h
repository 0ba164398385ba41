#pragma once

#include <QString>
#include <QStringList>

/// What the product's file types are called in the registry.
struct AssociationNames
{
    QString programId;   ///< such as "NVX2017"; the class of a type is this followed by the extension
    QString description; ///< what people read, such as "NVX 2017"
};

/// The names in one release of the product, such as "2017".
AssociationNames associationNamesOf(const QString &release);

/// The lines of the registry script that takes the product's file types away, and with them what the user has
/// chosen and opened. The types that the product does not open itself keep theirs: of the templates only the
/// product's class goes, and of the packages nothing.
QStringList removalScript(const AssociationNames &names);

/// The lines of the registry script that binds the file types to the icons and, those which the product opens
/// itself, to the main program in the install dir, which is handed over with every "\" doubled.
QStringList creationScript(const AssociationNames &names, const QString &installDirEscaped);
