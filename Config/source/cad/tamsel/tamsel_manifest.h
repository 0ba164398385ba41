#pragma once

#include <QByteArray>
#include <QString>

inline const QString tamselManifestName = QStringLiteral("NVX_2017.Addin");

/// The bytes of the manifest that tells Tamsel of the launcher below the install dir: a text in UTF-8 that
/// declares itself to be UTF-16, cut to as many bytes as it has characters. Deliberately: that is what the
/// launchers of this release are delivered with. The path is not escaped.
QByteArray tamselManifest(const QString &installDir);
