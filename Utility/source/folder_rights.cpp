#include "nvx_util/folder_rights.h"

#include "platform.h"

#include <QDir>

using Nvx::Util::Platform::EntryRights;
using Nvx::Util::Platform::NewRights;

namespace Nvx::Util {

namespace {

bool areReserved(const EntryRights &rights)
{
    return rights.isAdministrators && !rights.othersMayWrite;
}

void resetContents(const QString &folder)
{
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QFileInfoList entries = QDir(folder).entryInfoList(all);
    for (const QFileInfo &entry : entries) {
        const QString path = QDir::toNativeSeparators(entry.filePath());
        const std::optional<EntryRights> rights = Platform::rightsOf(path);
        if (!rights || rights->isLink)
            continue;
        if (!areReserved(*rights))
            Platform::setRights(path, NewRights::Inherited);
        if (rights->isFolder)
            resetContents(path);
    }
}

} // namespace

bool reserveForAdministrators(const QString &folder)
{
    const std::optional<EntryRights> before = Platform::rightsOf(folder);
    if (!before || before->isLink || QDir(folder).isRoot())
        return false;
    // The folder first, so that nobody can add anything to it while its contents are reset.
    if (!areReserved(*before) && !Platform::setRights(folder, NewRights::Reserved))
        return false;
    // The contents too if the folder was reserved before: a run that was ended may have reset only some of
    // them.
    resetContents(folder);
    const std::optional<EntryRights> after = Platform::rightsOf(folder);
    return after && areReserved(*after);
}

bool takeOverFolders(const QString &path, int levels)
{
    const QString parent = QFileInfo(path).path();
    if (levels > 1 && !takeOverFolders(parent, levels - 1))
        return false;
    const std::optional<EntryRights> rights = Platform::rightsOf(path);
    if (!rights)
        return true;
    if (rights->isLink)
        return false;
    return rights->isAdministrators || Platform::setRights(path, NewRights::Inherited);
}

void inheritRights(const QString &folder)
{
    Platform::setRights(folder, NewRights::Inherited);
}

} // namespace Nvx::Util
