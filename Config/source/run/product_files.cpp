#include "run/product_files.h"

#include "nvx_util/folder_rights.h"
#include "nvx_util/trusted_files.h"
#include "run/diagnostics.h"
#include "run/reporter.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace Nvx::Run {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ProductFiles)
};

// QFileInfo reports a link as missing if its target is missing, and treats every path with a shortcut's
// suffix as a link, even if no such file exists. So a link is looked up in its folder's listing.
bool fileExists(const QString &path)
{
    const QFileInfo entry(path);
    if (entry.exists() || !entry.isSymLink())
        return entry.exists();
    QDirIterator entries(entry.path(), QDir::AllEntries | QDir::System | QDir::Hidden);
    while (entries.hasNext()) {
        entries.next();
        if (entries.fileName().compare(entry.fileName(), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

bool isTrustedWay(Reporter &reporter, const Util::HeldWay &way, const QString &path)
{
    const std::optional<QString> planted = way.plantedPoint();
    if (planted)
        reporter.log(LogLevel::failure,
                     Messages::tr("%1 does not belong to administrators and may lead elsewhere; this is left "
                                  "unchanged: %2")
                         .arg(*planted, path));
    return !planted;
}

bool reserveFolder(Reporter &reporter, const QString &folder)
{
    const bool isReserved = Util::reserveForAdministrators(folder);
    if (!isReserved)
        reporter.log(
            LogLevel::failure,
            Messages::tr("Unable to limit write access to this folder to administrators: %1").arg(folder));
    return isReserved;
}

bool takeOverFolders(Reporter &reporter, const QString &folder, int levels)
{
    const bool isTakenOver = Util::takeOverFolders(folder, levels);
    if (!isTakenOver)
        reporter.log(
            LogLevel::failure,
            Messages::tr("Unable to take this folder over from the user who created it: %1").arg(folder));
    return isTakenOver;
}

bool removeProductFile(const QString &path)
{
    if (!fileExists(path))
        return true;
    const auto way = Util::HeldWay::toFolder(QFileInfo(path).path());
    if (const std::optional<QString> planted = way.plantedPoint()) {
        qCWarning(diagnostics, "%ls may lead elsewhere; not removed: %ls", qUtf16Printable(*planted),
                  qUtf16Printable(path));
        return false;
    }
    QFile file(path);
    if (!file.remove()) {
        file.setPermissions(file.permissions() | QFile::WriteOwner | QFile::WriteUser);
        file.remove();
    }
    // The system may report a removal as done although the disk then refuses it, or another program has the
    // file open.
    return !fileExists(path);
}

bool replaceProductFile(const QString &source, const QString &target)
{
    return removeProductFile(target) && QFile::copy(source, target);
}

} // namespace Nvx::Run
