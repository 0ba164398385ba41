#pragma once

#include <QStringView>

namespace Nvx::Util {

/// Whether Qt reads an environment variable of this name. Such a variable may name a folder of plug-ins, a
/// plug-in or a file of settings, so a process with more rights than its user must not use it. The two
/// variables that only turn diagnostic output on are excepted. Letter case does not matter, as for Windows.
bool isVariableOfQt(QStringView name);

/// Makes this process load libraries and Qt's plug-ins only from its executable's folder and from the
/// operating system's, and removes the variables of Qt from its environment. To be called first in main,
/// before there is an application object. Does nothing on systems other than Windows, where the program has
/// its user's rights and Qt's plug-ins are the distribution's.
void trustOwnFolderOnly();

/// Sets the variables of this process's environment that name folders of Windows, such as APPDATA,
/// ProgramData and PUBLIC, to what the shell and the system report, since a user may set them to any folder;
/// the programs that this one starts get them too. Where the system can (Windows 10 20H2 or newer), it also
/// keeps this process from following junctions that users below an administrator have created. To be called
/// before System is used. Does nothing on systems other than Windows.
void trustSystemsFoldersOnly();

} // namespace Nvx::Util
