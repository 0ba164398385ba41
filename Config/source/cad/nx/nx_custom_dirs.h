#pragma once

#include <QByteArray>
#include <QString>

// The bytes of custom_dirs.dat, the file in which NX finds folders of add-ins, one a line. The lines of
// others are in any encoding.

/// The folder of the launcher below "Launchers\UGNX" for the NX that this registry key belongs to, with a "\"
/// before it; empty for one without.
QString nxSubFolder(const QString &registryKey);

/// What is added to the file for the NX of this registry key: the launcher's folder between two line ends.
QString customDirsLine(const QString &installDir, const QString &registryKey);

/// True when the file has the line, line ends included, compared without case.
bool holdsCustomDirsLine(const QByteArray &contents, const QString &line);

/// The file without the lines that name the install dir in any case, also as a part of other names. The other
/// lines are as they were, byte for byte; the empty line that was added with ours is one of them.
QByteArray withoutCustomDirsLines(const QByteArray &contents, const QString &installDir);
