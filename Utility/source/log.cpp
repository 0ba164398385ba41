#include "nvx_util/log.h"

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

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
    line.replace("\r\n"_L1, "\n"_L1);
    // Another run may have added lines. On Windows a file opened for appending is not moved to its end for
    // that, and the file's size, which Qt would have to ask for, costs more than the rest of the line.
    lseek64(m_file.handle(), 0, SEEK_END);
    m_file.write((line + u'\n').toUtf8());
    m_file.flush();
}

void Log::close()
{
    m_file.close();
}

} // namespace Nvx::Util
