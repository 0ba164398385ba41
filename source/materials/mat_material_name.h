#pragma once

#include <QString>
#include <QStringList>

class QIODevice;

namespace mat {

// A material database is an XML document. A material is an element "material", wherever it stands; what it
// holds in elements "name", at any depth, are its names. Materials within a material have names of their own.

/// What reading a database gave.
struct MaterialNames
{
    QStringList names; ///< as they stand, in the order of the database, equal ones and empty ones included
    QString error;     ///< why it could not be read, for the user; there are no names then. Else empty
};

/// Reads the database on the open device.
MaterialNames readMaterialNames(QIODevice &device);

/// The same from a file.
MaterialNames readMaterialNames(const QString &fileName);

} // namespace mat
