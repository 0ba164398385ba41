#include "nvx_util/system.h"
#include "platform.h"
#include "unix/machine_folder.h"

#include <QStandardPaths>

namespace Nvx::Util::Platform {

QString machineFolder()
{
    return qEnvironmentVariable("NVX_MACHINE");
}

namespace {

QString below(const QString &name)
{
    const QString machine = machineFolder();
    if (!machine.isEmpty())
        return joinPath(machine, name);
    const QString userData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return joinPath(userData, QStringLiteral("velmora/") + name);
}

} // namespace

QString userDataRoot()
{
    return below(QStringLiteral("AppData"));
}

QString allUsersDataRoot()
{
    return below(QStringLiteral("ProgramData"));
}

QString publicDocumentsRoot()
{
    return below(QStringLiteral("Public/Documents"));
}

} // namespace Nvx::Util::Platform
