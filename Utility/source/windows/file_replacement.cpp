#include "platform.h"
#include "windows/security.h"

#include <io.h>

namespace Nvx::Util::Platform {

namespace {

constexpr DWORD keptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                 FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

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

void copyRights(const QString &from, const QString &to)
{
    const Handle source = openEntry(from, READ_CONTROL | FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    const Handle target = openEntry(to, READ_CONTROL | WRITE_DAC | WRITE_OWNER | FILE_WRITE_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    if (!source || !target)
        return;
    FILE_BASIC_INFO times = {};
    if (GetFileInformationByHandleEx(source.get(), FileBasicInfo, &times, sizeof times)) {
        FILE_BASIC_INFO kept = {}; // 0 leaves a time as it is
        kept.CreationTime = times.CreationTime;
        kept.FileAttributes = times.FileAttributes & keptAttributes;
        if (kept.FileAttributes == 0)
            kept.FileAttributes = FILE_ATTRIBUTE_NORMAL;
        SetFileInformationByHandle(target.get(), FileBasicInfo, &kept, sizeof kept);
    }
    if (const Descriptor descriptor = descriptorOf(source.get()))
        applyDescriptor(target.get(), descriptor.get());
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
