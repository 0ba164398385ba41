#include "nvx_util/process_table.h"

#include "platform.h"

namespace Nvx::Util::Platform {

namespace {

// The programs that are looked for do not run here, and nothing that does may be taken for one of them.
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
