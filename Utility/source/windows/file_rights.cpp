#include "windows/file_rights.h"

#include "platform.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

namespace {

constexpr DWORD keptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                 FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

} // namespace

std::wstring longPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(path));
    const bool isLong = native.size() >= MAX_PATH && !native.startsWith("\\\\"_L1);
    return (isLong ? u"\\\\?\\"_s + native : native).toStdWString();
}

Handle openEntry(const QString &path, DWORD access, DWORD sharing)
{
    return openEntry(longPath(path), access, sharing);
}

Handle openWithPrivileges(const QString &path, DWORD access, DWORD sharing)
{
    Handle entry = openEntry(path, access, sharing);
    if (entry || GetLastError() != ERROR_ACCESS_DENIED)
        return entry;
    const FilePrivileges privileges;
    return openEntry(path, access, sharing);
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
