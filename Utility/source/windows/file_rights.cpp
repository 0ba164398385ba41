#include "windows/file_rights.h"

#include "platform.h"

#include <QDir>

#include <aclapi.h>
#include <array>
#include <cstddef>
#include <sddl.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

namespace {

constexpr SECURITY_INFORMATION ownerGroupAndRights =
    OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

constexpr DWORD keptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                 FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

QString textOf(PSID account)
{
    LPWSTR text = nullptr;
    if (!account || !ConvertSidToStringSidW(account, &text))
        return QString();
    const Descriptor memory(text);
    return QString::fromWCharArray(text);
}

QString readAccountOfThisProcess()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return QString();
    const Handle opened(token);
    alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> buffer;
    DWORD size = 0;
    if (!GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()), &size))
        return QString();
    return textOf(reinterpret_cast<const TOKEN_USER *>(buffer.data())->User.Sid);
}

const QString &accountOfThisProcess()
{
    static const QString account = readAccountOfThisProcess();
    return account;
}

// The rights to change an entry, or what a folder contains.
constexpr DWORD writing = FILE_WRITE_DATA | FILE_APPEND_DATA | FILE_WRITE_EA | FILE_WRITE_ATTRIBUTES |
                          FILE_DELETE_CHILD | DELETE | WRITE_DAC | WRITE_OWNER | GENERIC_WRITE | GENERIC_ALL;

bool allowsOthersToWrite(const ACE_HEADER &entry, const QString &ownAccount)
{
    const auto &allowed = reinterpret_cast<const ACCESS_ALLOWED_ACE &>(entry);
    if (entry.AceType == ACCESS_DENIED_ACE_TYPE || !(allowed.Mask & writing))
        return false;
    if (entry.AceType != ACCESS_ALLOWED_ACE_TYPE)
        return true; // of a kind that is not used for files
    DWORD *account = const_cast<DWORD *>(&allowed.SidStart);
    const QString text = textOf(account);
    return text != "S-1-3-0"_L1 && text != "S-1-3-4"_L1 && !isAdministratorsAccount(text, ownAccount);
}

} // namespace

std::wstring longPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(path));
    const bool isLong = native.size() >= MAX_PATH && !native.startsWith("\\\\"_L1);
    return (isLong ? u"\\\\?\\"_s + native : native).toStdWString();
}

Handle openEntry(const QString &path, DWORD access, DWORD sharing)
{
    const HANDLE entry = CreateFileW(longPath(path).c_str(), access, sharing, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    return Handle(entry == INVALID_HANDLE_VALUE ? nullptr : entry);
}

Handle openWithPrivileges(const QString &path, DWORD access, DWORD sharing)
{
    Handle entry = openEntry(path, access, sharing);
    if (entry || GetLastError() != ERROR_ACCESS_DENIED)
        return entry;
    const FilePrivileges privileges;
    return openEntry(path, access, sharing);
}

bool leadsElsewhere(HANDLE entry)
{
    FILE_ATTRIBUTE_TAG_INFO found = {};
    return GetFileInformationByHandleEx(entry, FileAttributeTagInfo, &found, sizeof found) &&
           (found.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) &&
           IsReparseTagNameSurrogate(found.ReparseTag);
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

bool isAdministratorsAccount(const QString &account, const QString &ownAccount)
{
    const auto system = "S-1-5-18"_L1;
    const auto administrators = "S-1-5-32-544"_L1;
    const auto trustedInstaller = "S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464"_L1;
    if (account.isEmpty())
        return false;
    if (account == system || account == administrators || account == trustedInstaller ||
        account == ownAccount)
        return true;
    // The built-in administrator, and the groups of administrators of a domain and of a forest.
    return account.startsWith("S-1-5-21-"_L1) &&
           (account.endsWith("-500"_L1) || account.endsWith("-512"_L1) || account.endsWith("-519"_L1));
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

bool mayOthersWrite(PSECURITY_DESCRIPTOR descriptor, const QString &ownAccount)
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

std::optional<EntryRights> rightsOf(const QString &path)
{
    const Handle entry = openWithPrivileges(path, READ_CONTROL | FILE_READ_ATTRIBUTES, shareAll);
    FILE_ATTRIBUTE_TAG_INFO attributes = {};
    if (!entry ||
        !GetFileInformationByHandleEx(entry.get(), FileAttributeTagInfo, &attributes, sizeof attributes))
        return std::nullopt;
    const Descriptor descriptor = descriptorOf(entry.get());
    return EntryRights{.isLink = leadsElsewhere(entry.get()),
                       .isFolder = (attributes.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                       .isAdministrators = isOwnedByAdministrators(entry.get()),
                       .othersMayWrite =
                           !descriptor || mayOthersWrite(descriptor.get(), accountOfThisProcess())};
}

bool setRights(const QString &path, NewRights rights)
{
    const Handle entry = openWithPrivileges(path, READ_CONTROL | WRITE_DAC | WRITE_OWNER, shareAll);
    const Descriptor descriptor =
        administratorsDescriptor(rights == NewRights::Reserved ? Readers::Users : Readers::AsInherited);
    return entry && descriptor && applyDescriptor(entry.get(), descriptor.get());
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

void copyRights(const QString &from, const QString &to)
{
    const Handle source = openEntry(from, READ_CONTROL | FILE_READ_ATTRIBUTES, shareAll);
    const Handle target =
        openEntry(to, READ_CONTROL | WRITE_DAC | WRITE_OWNER | FILE_WRITE_ATTRIBUTES, shareAll);
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

} // namespace Nvx::Util::Platform
