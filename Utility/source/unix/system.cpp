#include "nvx_util/system.h"

#include "platform.h"
#include "unix/machine_folder.h"

#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace Platform {

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
    return joinPath(userData, u"velmora/"_s + name);
}

} // namespace

QString userDataRoot()
{
    return below(u"AppData"_s);
}

QString allUsersDataRoot()
{
    return below(u"ProgramData"_s);
}

QString publicDocumentsRoot()
{
    return below(u"Public/Documents"_s);
}

} // namespace Platform

bool isStandardOutputTerminal()
{
    return isatty(STDOUT_FILENO) != 0;
}

} // namespace Nvx::Util
