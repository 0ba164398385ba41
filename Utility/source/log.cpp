#include "nvx_util/log.h"

namespace Nvx::Util {

Log::Log(const QString &path)
    : m_file(path)
{
}

bool Log::open(bool append)
{
    const QIODevice::OpenMode place = append ? QIODevice::Append : QIODevice::Truncate;
    return m_file.open(QIODevice::WriteOnly | QIODevice::Text | place);
}

void Log::append(const QString &text)
{
    if (!m_file.isOpen())
        return;
    QString line = text;
    // On Windows the file puts a carriage return before each "\n".
    line.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    m_file.write((line + QLatin1Char('\n')).toUtf8());
    m_file.flush();
}

void Log::close()
{
    m_file.close();
}

} // namespace Nvx::Util
