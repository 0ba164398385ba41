#include "windows/security.h"

#include <QDir>

#include <aclapi.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

namespace {

constexpr SECURITY_INFORMATION ownerGroupAndRights =
    OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;

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

Descriptor descriptorOf(HANDLE entry)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(entry, SE_FILE_OBJECT, ownerGroupAndRights, nullptr, nullptr, nullptr, nullptr,
                        &descriptor) != ERROR_SUCCESS)
        return Descriptor();
    return Descriptor(descriptor);
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
        !GetSecurityDescriptorGroup(descriptor, &group, &isDefault) || !isPresent)
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
