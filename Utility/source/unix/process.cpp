#include "platform.h"

#include <QFile>
#include <QProcess>

namespace Nvx::Util::Platform {

QString commandLine()
{
    QFile file(QStringLiteral("/proc/self/cmdline"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QByteArray arguments = file.readAll();
    arguments.replace('\0', ' ');
    return QString::fromLocal8Bit(arguments).trimmed();
}

QString systemProgram(const QString & /*fileName*/)
{
    return QString();
}

void setArguments(QProcess &process, const ProgramCall &call)
{
    process.setArguments(call.arguments);
}

} // namespace Nvx::Util::Platform
