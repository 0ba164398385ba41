// The steps that make the product known to the machine and to its users.

#include "cfg_utilities/cfg_utilitys.h"
#include "setup/file_associations.h"
#include "setup/lumara.h"
#include "setup/product_registry.h"
#include "setup/shortcuts.h"
#include "setup/viewer_configuration.h"

int cfg_utilitys::createFileAssociations(RunMode mode)
{
    return ::createFileAssociations(context(), mode);
}

int cfg_utilitys::updateRegistry(RunMode mode)
{
    return ::updateRegistry(context(), mode);
}

int cfg_utilitys::configureViewer(RunMode mode)
{
    return ::configureViewer(context(), mode);
}

int cfg_utilitys::createShortcuts(RunMode mode)
{
    return ::createShortcuts(context(), mode);
}

int cfg_utilitys::createShortcut(const QString &target, const QString &linkPath, const QString &description,
                                 const QString &iconPath, const QString &arguments)
{
    return ::createShortcut(context(), target, linkPath, description, iconPath, arguments);
}

void cfg_utilitys::cleanLumara(RunMode mode)
{
    ::cleanLumara(context(), mode);
}
