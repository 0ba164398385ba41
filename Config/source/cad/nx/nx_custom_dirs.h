#pragma once

#include <QByteArray>
#include <QString>

// The bytes of custom_dirs.dat, the file that lists the folders of NX's add-ins, one per line. Lines of other
// programs may be in any encoding.

namespace Nvx::Cad {

/// The launcher's folder below "Launchers\UGNX" for the NX of this registry key, with a leading "\"; empty if
/// that NX has none.
QString nxSubFolder(const QString &registryKey);

/// What is added to the file for the NX of this registry key: the launcher's folder between two line ends.
QString customDirsLine(const QString &installDir, const QString &registryKey);

/// True if the file contains the line including its line ends, in upper or lower case.
bool holdsCustomDirsLine(const QByteArray &contents, const QString &line);

/// The file without the lines that contain the install dir, in upper or lower case, also as part of another
/// path. The other lines are preserved byte for byte, among them the empty line that was added with ours.
QByteArray withoutCustomDirsLines(const QByteArray &contents, const QString &installDir);

} // namespace Nvx::Cad
