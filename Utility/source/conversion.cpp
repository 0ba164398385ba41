#include "nvx_util/conversion.h"

#include <QByteArray>

namespace Nvx::Util {

std::string toStdString(const QString &text)
{
    return text.toLocal8Bit().toStdString();
}

QString toQString(const std::string &bytes)
{
    return QString::fromLocal8Bit(bytes);
}

} // namespace Nvx::Util
