#pragma once

// Open files and folders: where they are, who owns them, and their access rights. Without Qt: the set-up task
// links it too.

#include <memory>
#include <string>
#include <string_view>

#include <windows.h>

namespace Nvx::Util::Platform {

struct CloseHandleOf
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

/// An open handle; null if it could not be opened.
using Handle = std::unique_ptr<void, CloseHandleOf>;

/// Others may do whatever they like with an open file.
constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Opens an existing file or folder, for a link the link itself.
Handle openEntry(const std::wstring &path, DWORD access, DWORD sharing);

/// Whether an open entry is a link or junction. Reparse points of other kinds, such as compressed or cloud
/// files, lead nowhere else. The handle needs FILE_READ_ATTRIBUTES.
bool leadsElsewhere(HANDLE entry);

/// Where an open entry is, as the system reports it, without "\\?\"; empty if it cannot tell.
std::wstring finalPathOf(HANDLE entry);

/// The same for a path, after its own link, if it is one, has been followed.
std::wstring followedPathOf(const std::wstring &path);

/// Whether a path is directly in a folder. Upper and lower case are the same.
bool isIn(std::wstring_view path, std::wstring_view folder);

struct FreeLocalMemory
{
    void operator()(void *memory) const { LocalFree(memory); }
};

/// Memory of the system with a security descriptor; null if there is none.
using Descriptor = std::unique_ptr<void, FreeLocalMemory>;

/// The owner, group and access rights of an open entry. The handle needs READ_CONTROL.
Descriptor descriptorOf(HANDLE entry);

/// Who may read what administrators own.
enum class Readers
{
    None,       ///< only administrators and the system
    Users,      ///< all users; they may also run programs
    AsInherited ///< whoever may do so by the rights of the folder
};

/// Access rights: the system and administrators may do everything, others read at most; nothing is inherited,
/// and what is created in a folder with these rights inherits them. AsInherited: what is inherited, and
/// nothing else. The owner is the administrators' group.
Descriptor administratorsDescriptor(Readers readers);

/// Whether an account, by the text form of its identifier, is the system's or administrators' own: the
/// system, the installer of the operating system, the administrators' group, an administrators' group or the
/// built-in administrator of a domain, or the user of this process.
bool isAdministratorsAccount(std::wstring_view account, std::wstring_view ownAccount);

/// The user of this process, in the text form of its identifier.
const std::wstring &accountOfThisProcess();

/// Whether the owner of an open entry is such an account. The handle needs READ_CONTROL.
bool isOwnedByAdministrators(HANDLE entry);

/// Whether anyone but administrators may write, remove or take over the entry with this descriptor, or what
/// is created in it. The creator and the owner of an entry do not count.
bool mayOthersWrite(PSECURITY_DESCRIPTOR descriptor, const std::wstring &ownAccount);

/// Sets the access rights of an open entry as in the descriptor, and its owner as far as the process may.
/// What an entry inherits from its folder is computed again. The handle needs READ_CONTROL, WRITE_DAC and
/// WRITE_OWNER.
bool applyDescriptor(HANDLE entry, PSECURITY_DESCRIPTOR descriptor);

/// Lets an administrator's process open, and set the owner of, entries of other users while it exists.
class FilePrivileges
{
public:
    FilePrivileges();
    FilePrivileges(const FilePrivileges &) = delete;
    FilePrivileges &operator=(const FilePrivileges &) = delete;
    ~FilePrivileges();

private:
    struct State;
    std::unique_ptr<State> m_before;
};

} // namespace Nvx::Util::Platform
