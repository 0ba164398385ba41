#include "nvx_util/system.h"
#include "platform.h"

#include <QDir>

#include <windows.h>

#include <knownfolders.h>
#include <objbase.h>
#include <shlobj.h>

namespace Nvx::Util::Platform {

namespace {

// The folder as the process's environment has it, which installers and tests redirect; without it, as the
// shell knows it.
QString folder(const char *variable, const KNOWNFOLDERID &id)
{
    QString path = qEnvironmentVariable(variable);
    if (path.isEmpty()) {
        PWSTR known = nullptr;
        if (SUCCEEDED(SHGetKnownFolderPath(id, 0, nullptr, &known)))
            path = QString::fromWCharArray(known);
        CoTaskMemFree(known);
    }
    return QDir::toNativeSeparators(path);
}

} // namespace

QString userDataRoot()
{
    return folder("APPDATA", FOLDERID_RoamingAppData);
}

QString allUsersDataRoot()
{
    return folder("ProgramData", FOLDERID_ProgramData);
}

QString publicDocumentsRoot()
{
    return joinPath(folder("PUBLIC", FOLDERID_Public), QStringLiteral("Documents"));
}

} // namespace Nvx::Util::Platform
