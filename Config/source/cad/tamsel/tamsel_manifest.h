#pragma once

#include <QByteArray>
#include <QString>

namespace Nvx::Cad {

inline const QString tamselManifestName = QStringLiteral("NVX_2017.Addin");

/// The bytes of the manifest that makes Tamsel load the launcher below the install dir: UTF-8 that declares
/// itself UTF-16, cut to as many bytes as the text has characters. Deliberately: all launchers of this
/// release ship that way. The path is not escaped.
QByteArray tamselManifest(const QString &installDir);

} // namespace Nvx::Cad
