#include "nvx_util/registry.h"

#include "nvx_util/registry_key.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

void Registry::readKelvaneTranslatorsFolder(wchar_t *buffer, std::size_t capacity)
{
    if (capacity == 0)
        return;
    buffer[0] = L'\0';

    const RegistryKey translators(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"_s);
    const QString folder = translators.text(u"Folder"_s).value_or(QString());
    if (static_cast<std::size_t>(folder.size()) >= capacity)
        return;
    const auto length = folder.toWCharArray(buffer);
    buffer[length] = L'\0';
}

} // namespace Nvx::Util
