#include "platform.h"
#include "windows/file_rights.h"

#include <io.h>

namespace Nvx::Util::Platform {

namespace {

constexpr DWORD renamePauseMs = 50;
constexpr int renameTries = 11; // half a second

// A virus scanner opens a file as soon as it has been written, and closes it soon. While a file is open, its
// replacement is reported as denied.
bool mayPass(DWORD error)
{
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED || error == ERROR_LOCK_VIOLATION;
}

bool rename(const QString &from, const QString &to, DWORD options)
{
    const std::wstring oldName = longPath(from);
    const std::wstring newName = longPath(to);
    for (int tries = 1;; ++tries) {
        if (MoveFileExW(oldName.c_str(), newName.c_str(), MOVEFILE_WRITE_THROUGH | options))
            return true;
        if (tries == renameTries || !mayPass(GetLastError()))
            return false;
        Sleep(renamePauseMs);
    }
}

} // namespace

std::shared_ptr<void> claimFile(const QString & /*path*/)
{
    return std::make_shared<bool>(true);
}

bool flushToDisk(int descriptor)
{
    return _commit(descriptor) == 0;
}

bool renameToFreeName(const QString &from, const QString &to)
{
    return rename(from, to, 0);
}

bool renameOver(const QString &from, const QString &to)
{
    return rename(from, to, MOVEFILE_REPLACE_EXISTING);
}

} // namespace Nvx::Util::Platform
