#include "nvx_util/own_process.h"

#include "platform.h"

namespace Nvx::Util {

void trustOwnFolderOnly() {}

void trustSystemsFoldersOnly() {}

namespace Platform {

std::shared_ptr<RunLock> runLock()
{
    class NoLock final : public RunLock
    {
    public:
        Turn wait(std::chrono::milliseconds /*timeout*/) override { return Turn::Ours; }
    };
    return std::make_shared<NoLock>();
}

std::shared_ptr<void> holdLogoff(const QString & /*title*/, const QString & /*reason*/)
{
    return nullptr;
}

} // namespace Platform

} // namespace Nvx::Util
