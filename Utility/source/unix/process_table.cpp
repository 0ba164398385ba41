#include "nvx_util/process_table.h"

#include "platform.h"

namespace Nvx::Util::Platform {

namespace {

// The programs that the product looks for are Windows programs; no process here may be mistaken for one.
class NoProcesses final : public ProcessTable
{
public:
    QList<ProcessId> ids(int /*atMost*/) override { return {}; }
    std::unique_ptr<OpenedProcess> open(ProcessId /*id*/) override { return nullptr; }
};

} // namespace

ProcessTable &processes()
{
    static NoProcesses table;
    return table;
}

} // namespace Nvx::Util::Platform
