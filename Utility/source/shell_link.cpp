#include "nvx_util/shell_link.h"

namespace Nvx::Util {

QString tooLongTextOf(const ShellLink &link)
{
    for (const QString &text :
         {link.target, link.linkPath, link.description, link.workFolder, link.iconPath, link.arguments}) {
        if (text.size() >= shellLinkTextCapacity)
            return text;
    }
    return QString();
}

} // namespace Nvx::Util
