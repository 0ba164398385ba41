#include "nvx_util/own_process.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcessEnvironment>

#include <array>

#include <windows.h>

namespace Nvx::Util {

namespace {

// QCoreApplication::applicationDirPath needs an application object.
QString ownFolder()
{
    std::array<wchar_t, 32768> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QFileInfo(QString::fromWCharArray(path.data(), static_cast<qsizetype>(length))).absolutePath();
}

} // namespace

// Before main, the loader has already loaded the libraries that the executable and Qt are linked with. It
// looks for each in the executable's folder first, which only administrators can write, then in System32. All
// of them are in one of the two, so the folders that follow, the working folder and the path, are not
// reached. Libraries that are loaded later, by name or with a plug-in, may be missing.
void trustOwnFolderOnly()
{
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    SetDllDirectoryW(L""); // for the programs that this one starts: not the working folder

    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString &name : names) {
        if (isVariableOfQt(name))
            qunsetenv(name.toLocal8Bit().constData());
    }
    QCoreApplication::setLibraryPaths({ownFolder()});
}

} // namespace Nvx::Util
