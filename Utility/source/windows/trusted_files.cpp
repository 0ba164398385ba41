#include "platform.h"
#include "windows/file_rights.h"

#include <QDir>

#include <sddl.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

namespace {

constexpr DWORD look = READ_CONTROL | FILE_READ_ATTRIBUTES;

bool isMissing(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME ||
           error == ERROR_BAD_PATHNAME || error == ERROR_BAD_NETPATH || error == ERROR_BAD_NET_NAME;
}

// Without a right to its contents, a folder that is open can be renamed all the same.
constexpr DWORD holdContents = FILE_LIST_DIRECTORY;

bool writeAll(HANDLE file, const QByteArray &contents)
{
    DWORD written = 0;
    return WriteFile(file, contents.constData(), static_cast<DWORD>(contents.size()), &written, nullptr) &&
           written == static_cast<DWORD>(contents.size());
}

bool holds(HANDLE file, const QByteArray &contents)
{
    QByteArray found(contents.size() + 1, '\0');
    DWORD read = 0;
    return ReadFile(file, found.data(), static_cast<DWORD>(found.size()), &read, nullptr) &&
           found.left(static_cast<qsizetype>(read)) == contents;
}

} // namespace

std::optional<FolderLook> lookAtFolder(const QString &path, const QString &finalPathOfParent, Hold hold)
{
    FolderLook found;
    found.point.path = path;
    Handle entry = hold == Hold::Yes
                       ? openWithPrivileges(path, look | holdContents, FILE_SHARE_READ | FILE_SHARE_WRITE)
                       : nullptr;
    found.point.isHeld = entry != nullptr;
    if (!entry)
        entry = openWithPrivileges(path, look, shareAll);
    if (!entry && isMissing(GetLastError()))
        return std::nullopt;
    if (!entry)
        return found;
    const std::wstring finalPath = finalPathOf(entry.get());
    found.finalPath = QString::fromStdWString(finalPath);
    found.point.isLink = leadsElsewhere(entry.get()) ||
                         (!finalPathOfParent.isEmpty() && !isIn(finalPath, finalPathOfParent.toStdWString()));
    if (found.point.isLink)
        found.finalPath = QString::fromStdWString(followedPathOf(longPath(path)));
    found.point.isAdministrators = isOwnedByAdministrators(entry.get());
    found.hold = std::move(entry);
    return found;
}

std::shared_ptr<void> createScriptFile(const QString &path, const QByteArray &contents)
{
    const std::wstring name = longPath(path);
    const Descriptor descriptor = administratorsDescriptor(Readers::None);
    SECURITY_ATTRIBUTES attributes = {sizeof(SECURITY_ATTRIBUTES), descriptor.get(), FALSE};
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &attributes, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return nullptr;
    Handle writer(file);
    const bool isWritten = writeAll(file, contents);
    // A program that opens the file without sharing it for writing, as most do, can only do so when it is no
    // longer open for writing. The second handle keeps it from being removed or renamed until the third one
    // exists, which lets nobody write; what was written in between would be found.
    const Handle bridge = openEntry(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    writer.reset();
    Handle reader = openEntry(path, GENERIC_READ, FILE_SHARE_READ);
    if (isWritten && reader && holds(reader.get(), contents))
        return std::shared_ptr<void>(std::move(reader));
    reader.reset();
    DeleteFileW(name.c_str());
    return nullptr;
}

} // namespace Nvx::Util::Platform
