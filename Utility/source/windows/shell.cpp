#include "platform.h"

#include <windows.h>

#include <shlobj.h>

namespace Nvx::Util::Platform {

QString commonDesktopFolder()
{
    wchar_t buffer[MAX_PATH] = {};
    if (!SHGetSpecialFolderPathW(nullptr, buffer, CSIDL_COMMON_DESKTOPDIRECTORY, FALSE))
        return QString();
    return QString::fromWCharArray(buffer);
}

void notifyAssociationsChanged()
{
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

} // namespace Nvx::Util::Platform
