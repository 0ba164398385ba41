#include "nvx_util/process_table.h"

#include "platform.h"

#include <array>
#include <vector>

#include <windows.h>

#include <psapi.h>

namespace Nvx::Util::Platform {

namespace {

constexpr DWORD rights = PROCESS_QUERY_INFORMATION | PROCESS_VM_READ | PROCESS_TERMINATE;
static_assert(rights == 0x411);

class WindowsProcess final : public OpenedProcess
{
public:
    explicit WindowsProcess(HANDLE process)
        : m_process(process)
    {
    }
    ~WindowsProcess() override { CloseHandle(m_process); }

    // Its executable is the first module. False if no module can be read.
    bool findExecutable()
    {
        DWORD needed = 0;
        return EnumProcessModules(m_process, &m_executable, sizeof(m_executable), &needed) != 0;
    }

    QString baseName() const override { return ask(GetModuleBaseNameW); }
    QString path() const override { return ask(GetModuleFileNameExW); }
    bool terminate() override { return TerminateProcess(m_process, static_cast<UINT>(-1)) != 0; }

private:
    using NameCall = DWORD(WINAPI *)(HANDLE, HMODULE, LPWSTR, DWORD);

    QString ask(NameCall call) const
    {
        std::array<wchar_t, MAX_PATH> buffer{L"<unknown>"};
        call(m_process, m_executable, buffer.data(), static_cast<DWORD>(buffer.size()));
        buffer.back() = L'\0';
        return QString::fromWCharArray(buffer.data());
    }

    HANDLE m_process;
    HMODULE m_executable = nullptr;
};

class WindowsProcesses final : public ProcessTable
{
public:
    QList<ProcessId> ids(int atMost) override
    {
        std::vector<DWORD> table(static_cast<std::size_t>(atMost));
        DWORD used = 0;
        if (!EnumProcesses(table.data(), static_cast<DWORD>(table.size() * sizeof(DWORD)), &used))
            return {};
        table.resize(used / sizeof(DWORD));
        return QList<ProcessId>(table.begin(), table.end());
    }

    std::unique_ptr<OpenedProcess> open(ProcessId id) override
    {
        const HANDLE handle = OpenProcess(rights, FALSE, id);
        if (!handle)
            return nullptr;
        auto process = std::make_unique<WindowsProcess>(handle);
        return process->findExecutable() ? std::move(process) : nullptr;
    }
};

} // namespace

ProcessTable &processes()
{
    static WindowsProcesses table;
    return table;
}

} // namespace Nvx::Util::Platform
