#include "nvx_util/system.h"

#include "platform.h"

#include <QDir>

#include <windows.h>

#include <knownfolders.h>
#include <objbase.h>
#include <shlobj.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace Platform {

namespace {

// The folder from the process's environment, which tests redirect, else from the shell. A program with an
// administrator's rights first calls trustSystemsFoldersOnly.
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
    return joinPath(folder("PUBLIC", FOLDERID_Public), u"Documents"_s);
}

} // namespace Platform

// Only a console has a mode; the null device, which the run-time library treats as a terminal, does not.
bool isStandardOutputTerminal()
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0;
}

} // namespace Nvx::Util
