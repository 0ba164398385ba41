#include "windows/open_entry.h"

#include <aclapi.h>
#include <array>
#include <cstddef>
#include <sddl.h>
#include <string_view>

namespace Nvx::Util::Platform {

namespace {

constexpr SECURITY_INFORMATION ownerGroupAndRights =
    OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;

std::wstring textOf(PSID account)
{
    LPWSTR text = nullptr;
    if (!account || !ConvertSidToStringSidW(account, &text))
        return std::wstring();
    const Descriptor memory(text);
    return text;
}

std::wstring readAccountOfThisProcess()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return std::wstring();
    const Handle opened(token);
    alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> buffer;
    DWORD size = 0;
    if (!GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()), &size))
        return std::wstring();
    return textOf(reinterpret_cast<const TOKEN_USER *>(buffer.data())->User.Sid);
}

// The rights to change an entry, or what a folder contains.
constexpr DWORD writing = FILE_WRITE_DATA | FILE_APPEND_DATA | FILE_WRITE_EA | FILE_WRITE_ATTRIBUTES |
                          FILE_DELETE_CHILD | DELETE | WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;

bool allowsOthersToWrite(const ACE_HEADER &entry, const std::wstring &ownAccount)
{
    const auto &allowed = reinterpret_cast<const ACCESS_ALLOWED_ACE &>(entry);
    if (entry.AceType == ACCESS_DENIED_ACE_TYPE || !(allowed.Mask & writing))
        return false;
    if (entry.AceType != ACCESS_ALLOWED_ACE_TYPE)
        return true; // of a kind that is not used for files
    DWORD *account = const_cast<DWORD *>(&allowed.SidStart);
    const std::wstring text = textOf(account);
    return text != L"S-1-3-0" && text != L"S-1-3-4" && !isAdministratorsAccount(text, ownAccount);
}

} // namespace

const std::wstring &accountOfThisProcess()
{
    static const std::wstring account = readAccountOfThisProcess();
    return account;
}

Handle openEntry(const std::wstring &path, DWORD access, DWORD sharing)
{
    const HANDLE entry = CreateFileW(path.c_str(), access, sharing, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    return Handle(entry == INVALID_HANDLE_VALUE ? nullptr : entry);
}

bool leadsElsewhere(HANDLE entry)
{
    FILE_ATTRIBUTE_TAG_INFO found = {};
    return GetFileInformationByHandleEx(entry, FileAttributeTagInfo, &found, sizeof found) &&
           (found.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) &&
           IsReparseTagNameSurrogate(found.ReparseTag);
}

std::wstring finalPathOf(HANDLE entry)
{
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetFinalPathNameByHandleW(entry, path.data(), static_cast<DWORD>(path.size()), 0);
    if (length > path.size()) {
        path.resize(length);
        length = GetFinalPathNameByHandleW(entry, path.data(), length, 0);
    }
    path.resize(length);
    if (path.starts_with(L"\\\\?\\UNC\\"))
        return L"\\\\" + path.substr(8);
    return path.starts_with(L"\\\\?\\") ? path.substr(4) : path;
}

std::wstring followedPathOf(const std::wstring &path)
{
    const HANDLE entry = CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return entry == INVALID_HANDLE_VALUE ? std::wstring() : finalPathOf(Handle(entry).get());
}

bool isIn(std::wstring_view path, std::wstring_view folder)
{
    const std::wstring_view parent = path.substr(0, path.rfind(L'\\'));
    if (folder.ends_with(L'\\'))
        folder.remove_suffix(1);
    return CompareStringOrdinal(parent.data(), static_cast<int>(parent.size()), folder.data(),
                                static_cast<int>(folder.size()), TRUE) == CSTR_EQUAL;
}

Descriptor descriptorOf(HANDLE entry)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(entry, SE_FILE_OBJECT, ownerGroupAndRights, nullptr, nullptr, nullptr, nullptr,
                        &descriptor) != ERROR_SUCCESS)
        return Descriptor();
    return Descriptor(descriptor);
}

Descriptor administratorsDescriptor(Readers readers)
{
    // Owner and group are the administrators (BA). Full rights for the system (SY) and them, reading and
    // running for users (BU), all handed down to files and folders (OICI). P keeps what would be inherited
    // out.
    const wchar_t *text = L"O:BAG:BAD:AI";
    if (readers == Readers::None)
        text = L"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)";
    else if (readers == Readers::Users)
        text = L"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;0x1200a9;;;BU)";
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &descriptor, nullptr);
    return Descriptor(descriptor);
}

bool isAdministratorsAccount(std::wstring_view account, std::wstring_view ownAccount)
{
    constexpr std::wstring_view system = L"S-1-5-18";
    constexpr std::wstring_view administrators = L"S-1-5-32-544";
    constexpr std::wstring_view trustedInstaller =
        L"S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464";
    if (account.empty())
        return false;
    if (account == system || account == administrators || account == trustedInstaller ||
        account == ownAccount)
        return true;
    // The built-in administrator, and the groups of administrators of a domain and of a forest.
    return account.starts_with(L"S-1-5-21-") &&
           (account.ends_with(L"-500") || account.ends_with(L"-512") || account.ends_with(L"-519"));
}

bool isOwnedByAdministrators(HANDLE entry)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(entry, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                        &descriptor) != ERROR_SUCCESS)
        return false;
    const Descriptor memory(descriptor);
    return isAdministratorsAccount(textOf(owner), accountOfThisProcess());
}

bool mayOthersWrite(PSECURITY_DESCRIPTOR descriptor, const std::wstring &ownAccount)
{
    BOOL isPresent = FALSE;
    BOOL isDefault = FALSE;
    PACL rights = nullptr;
    if (!GetSecurityDescriptorDacl(descriptor, &isPresent, &rights, &isDefault) || !isPresent || !rights)
        return true; // everyone may do everything
    for (DWORD index = 0; index < rights->AceCount; ++index) {
        void *entry = nullptr;
        if (!GetAce(rights, index, &entry) ||
            allowsOthersToWrite(*static_cast<const ACE_HEADER *>(entry), ownAccount))
            return true;
    }
    return false;
}

bool applyDescriptor(HANDLE entry, PSECURITY_DESCRIPTOR descriptor)
{
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    BOOL isPresent = FALSE;
    BOOL isDefault = FALSE;
    PACL rights = nullptr;
    PSID owner = nullptr;
    PSID group = nullptr;
    if (!GetSecurityDescriptorControl(descriptor, &control, &revision) ||
        !GetSecurityDescriptorDacl(descriptor, &isPresent, &rights, &isDefault) ||
        !GetSecurityDescriptorOwner(descriptor, &owner, &isDefault) ||
        !GetSecurityDescriptorGroup(descriptor, &group, &isDefault) || !isPresent || !rights)
        return false;
    const SECURITY_INFORMATION inheritance = control & SE_DACL_PROTECTED
                                                 ? PROTECTED_DACL_SECURITY_INFORMATION
                                                 : UNPROTECTED_DACL_SECURITY_INFORMATION;
    // One after the other, because a process without the privileges may set the rights of its own file only.
    const FilePrivileges privileges;
    if (owner)
        SetSecurityInfo(entry, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, owner, nullptr, nullptr, nullptr);
    if (group)
        SetSecurityInfo(entry, SE_FILE_OBJECT, GROUP_SECURITY_INFORMATION, nullptr, group, nullptr, nullptr);
    return SetSecurityInfo(entry, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inheritance, nullptr, nullptr,
                           rights, nullptr) == ERROR_SUCCESS;
}

struct FilePrivileges::State
{
    Handle token;
    struct
    {
        DWORD count;
        LUID_AND_ATTRIBUTES privileges[3];
    } before;
};

FilePrivileges::FilePrivileges()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token))
        return;
    m_before = std::make_unique<State>();
    m_before->token.reset(token);
    decltype(State::before) wanted = {};
    for (const wchar_t *name : {SE_BACKUP_NAME, SE_RESTORE_NAME, SE_TAKE_OWNERSHIP_NAME}) {
        LUID_AND_ATTRIBUTES &privilege = wanted.privileges[wanted.count];
        privilege.Attributes = SE_PRIVILEGE_ENABLED;
        if (LookupPrivilegeValueW(nullptr, name, &privilege.Luid))
            ++wanted.count;
    }
    DWORD size = sizeof wanted;
    AdjustTokenPrivileges(token, FALSE, reinterpret_cast<PTOKEN_PRIVILEGES>(&wanted), size,
                          reinterpret_cast<PTOKEN_PRIVILEGES>(&m_before->before), &size);
}

FilePrivileges::~FilePrivileges()
{
    if (m_before)
        AdjustTokenPrivileges(m_before->token.get(), FALSE,
                              reinterpret_cast<PTOKEN_PRIVILEGES>(&m_before->before), 0, nullptr, nullptr);
}

} // namespace Nvx::Util::Platform
