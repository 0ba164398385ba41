#include "reserved_folder.h"

#include "windows/open_entry.h"

#include <vector>

using namespace Nvx::Util::Platform;

namespace {

constexpr int maximumLinks = 40;
constexpr DWORD look = READ_CONTROL | FILE_READ_ATTRIBUTES;
constexpr DWORD change = look | WRITE_DAC | WRITE_OWNER;

bool isReserved(HANDLE entry)
{
    const Descriptor descriptor = descriptorOf(entry);
    return isOwnedByAdministrators(entry) && descriptor &&
           !mayOthersWrite(descriptor.get(), accountOfThisProcess());
}

/// Gives what a folder contains the folder's owner and rights. What cannot be opened stays as it is.
void resetContents(const std::wstring &folder, PSECURITY_DESCRIPTOR inherited)
{
    const std::wstring place = followedPathOf(folder);
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::wstring name = found.cFileName;
        const std::wstring path = folder + L'\\' + name;
        const bool isInside = name != L"." && name != L"..";
        const Handle entry = isInside ? openEntry(path, change, shareAll) : nullptr;
        if (!entry || leadsElsewhere(entry.get()) || !isIn(finalPathOf(entry.get()), place))
            continue;
        if (!isReserved(entry.get()))
            applyDescriptor(entry.get(), inherited);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            resetContents(path, inherited);
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

/// Makes an existing folder an administrators' one, with what it contains. A link to it is followed.
DWORD takeOver(const std::wstring &folder, PSECURITY_DESCRIPTOR reserved)
{
    const HANDLE handle = CreateFileW(folder.c_str(), change, shareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError();
    const Handle entry(handle);
    BY_HANDLE_FILE_INFORMATION found = {};
    if (!GetFileInformationByHandle(handle, &found) || !(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
        return ERROR_DIRECTORY;
    const Descriptor inherited = administratorsDescriptor(Readers::AsInherited);
    // The folder first, so that nobody can add anything to it while its contents are reset.
    if (!inherited || (!isReserved(handle) && !applyDescriptor(handle, reserved)))
        return ERROR_ACCESS_DENIED;
    resetContents(folder, inherited.get());
    return ERROR_SUCCESS;
}

/// The drive or share and the folders on the way, with the folder itself.
std::vector<std::wstring> wayTo(const std::wstring &folder)
{
    std::size_t at = folder.find(L'\\');
    if (folder.starts_with(L"\\\\"))
        at = folder.find(L'\\', folder.find(L'\\', 2) + 1);
    std::vector<std::wstring> way = {folder.substr(0, at) + L'\\'};
    while (at != std::wstring::npos && at + 1 < folder.size()) {
        at = folder.find(L'\\', at + 1);
        way.push_back(folder.substr(0, at));
    }
    return way;
}

/// The folders on a way that have been looked at. While they are open, nobody can move or replace them.
class HeldWay
{
public:
    /// Goes down to a folder and makes what is missing with these rights. Returns an error as reserveFolder.
    DWORD goTo(const std::wstring &folder, PSECURITY_DESCRIPTOR reserved)
    {
        SECURITY_ATTRIBUTES attributes = {sizeof attributes, reserved, FALSE};
        m_place.clear();
        m_hasLinks = false;
        for (const std::wstring &path : wayTo(folder)) {
            m_isNew = !m_place.empty() && CreateDirectoryW(path.c_str(), &attributes);
            if (!m_place.empty() && !m_isNew && GetLastError() != ERROR_ALREADY_EXISTS)
                return GetLastError();
            const DWORD error = hold(path);
            if (error != ERROR_SUCCESS)
                return error;
        }
        return ERROR_SUCCESS;
    }

    /// Where the last folder is, if there were links on the last way; else empty.
    std::wstring target() const { return m_hasLinks ? m_place : std::wstring(); }
    /// Whether the last folder was made.
    bool isNew() const { return m_isNew; }

private:
    DWORD hold(const std::wstring &path)
    {
        // Without a right to its contents, a folder that is open can be renamed all the same.
        Handle entry = openEntry(path, look | FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE);
        if (!entry)
            return GetLastError();
        const std::wstring place = finalPathOf(entry.get());
        const bool isLink = leadsElsewhere(entry.get()) || (!m_place.empty() && !isIn(place, m_place));
        if (isLink && !isOwnedByAdministrators(entry.get()))
            return ERROR_ACCESS_DENIED;
        m_hasLinks = m_hasLinks || isLink;
        m_place = isLink ? followedPathOf(path) : place;
        m_held.push_back(std::move(entry));
        return ERROR_SUCCESS;
    }

    std::vector<Handle> m_held;
    std::wstring m_place;
    bool m_hasLinks = false;
    bool m_isNew = false;
};

} // namespace

DWORD reserveFolder(const std::wstring &folder)
{
    const FilePrivileges privileges;
    const Descriptor reserved = administratorsDescriptor(Readers::Users);
    if (!reserved || wayTo(folder).size() == 1)
        return ERROR_INVALID_PARAMETER;
    HeldWay way;
    std::wstring next = folder;
    // The way to which the links on a way lead is looked at like the way itself.
    for (int links = 0; !next.empty() && links < maximumLinks; ++links) {
        const DWORD error = way.goTo(next, reserved.get());
        if (error != ERROR_SUCCESS)
            return error;
        next = way.target();
    }
    return way.isNew() ? ERROR_SUCCESS : takeOver(folder, reserved.get());
}
