#pragma once

#include "nvx_util/product.h"
#include "service/service_controller.h"

/// The service of the product's server, "NVXServer.exe".
class NvxService : public Nvx::Service::ServiceController
{
public:
    explicit NvxService(Nvx::Util::Machine &machine)
        : ServiceController(machine, Nvx::Product::serverService)
    {
    }
};
