// The service of the product's server.

#include "cfg_utilities/cfg_utilitys.h"
#include "service/server_service.h"

int cfg_utilitys::installServer()
{
    return static_cast<int>(ServerService(context(), m_service).install());
}

int cfg_utilitys::uninstallServer()
{
    ServerService(context(), m_service).uninstall();
    return 0;
}

int cfg_utilitys::stopServices(RunMode mode)
{
    uninstallServer();
    if (mode == RunMode::Install)
        installServer();
    return 0;
}
