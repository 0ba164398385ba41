#pragma once

#include "service/service_controller.h"

inline const QString serverServiceName = QStringLiteral("NVX 2017 Server");

/// The service of the product's server, "NVXServer.exe".
class NvxService : public ServiceController
{
public:
    explicit NvxService(Nvx::Util::Machine &machine)
        : ServiceController(machine, serverServiceName)
    {
    }
};
