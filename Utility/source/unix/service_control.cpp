#include "nvx_util/service_control.h"

#include "platform.h"

namespace Nvx::Util::Platform {

namespace {

// There is no service control manager.
class NoServices final : public ServiceControl
{
public:
    ServiceState state(const QString & /*name*/) const override { return ServiceState::NotInstalled; }
    QString description(const QString & /*name*/) const override { return QString(); }
    bool start(const QString & /*name*/) override { return false; }
    ServiceStop stop(const QString & /*name*/, std::chrono::milliseconds /*timeout*/) override
    {
        return ServiceStop::Refused;
    }
    bool remove(const QString & /*name*/) override { return false; }
};

} // namespace

ServiceControl &services()
{
    static NoServices services;
    return services;
}

} // namespace Nvx::Util::Platform
