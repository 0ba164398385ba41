#pragma once

#include "nvx_util/result.h"

#include <QString>
#include <QStringList>

class QIODevice;

namespace Materials {

// A material database is an XML document. A material is an element "material" at any depth; its names are the
// texts of the elements "name" at any depth within it. Materials may be nested.

/// Reads the names from the open device: unchanged, in the order of the database, including duplicates and
/// empty names. The error text is for the user.
Nvx::Util::Result<QStringList> readMaterialNames(QIODevice &device);

/// The same from a file.
Nvx::Util::Result<QStringList> readMaterialNames(const QString &fileName);

} // namespace Materials
