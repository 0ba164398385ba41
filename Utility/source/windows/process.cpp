#include "nvx_util/process_table.h"
#include "nvx_util/system.h"
#include "platform.h"

#include <QFileInfo>
#include <QProcess>

#include <array>
#include <vector>

#include <windows.h>

#include <psapi.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

namespace {

QString folderOf(UINT(WINAPI *ask)(LPWSTR, UINT))
{
    wchar_t buffer[MAX_PATH] = {};
    const UINT length = ask(buffer, MAX_PATH);
    return length < MAX_PATH ? QString::fromWCharArray(buffer, static_cast<qsizetype>(length)) : QString();
}

} // namespace

QString commandLine()
{
    return QString::fromWCharArray(GetCommandLineW());
}

QString systemProgram(const QString &fileName)
{
    const QString exeName = fileName.contains(u'.') ? fileName : fileName + u".exe"_s;
    // Most programs are in the System32 folder; the Registry Editor is in the Windows folder.
    for (const QString &folder : {folderOf(GetSystemDirectoryW), folderOf(GetSystemWindowsDirectoryW)}) {
        const QString program = joinPath(folder, exeName);
        if (!folder.isEmpty() && QFileInfo(program).isFile())
            return program;
    }
    return QString();
}

void setArguments(QProcess &process, const ProgramCall &call)
{
    if (call.quoting == ProgramCall::Quoting::Arguments) {
        process.setArguments(call.arguments);
        return;
    }
    // The interpreter drops the outer quotes if the text between them contains "(", "&" or similar
    // characters, as "C:\Program Files (x86)" does. A second pair protects the path.
    const QString options = call.arguments.first(call.arguments.size() - 1).join(u' ');
    process.setNativeArguments(u"%1 \"\"%2\"\""_s.arg(options, call.arguments.last()));
}

// Qt treats every code with the highest bit set as a crash, including COM results. The code itself names the
// cause.
void setEnd(const QProcess &process, ProgramResult &result)
{
    result.outcome = ProgramResult::Outcome::Exited;
    result.exitCode = process.exitCode();
}

namespace {

// A job that ends all its processes when its handle is closed, also by the end of this process. The program
// starts suspended, so that it is in the job before it can start others, which are then in the job too.
class Job final : public ProgramTree
{
public:
    explicit Job(QProcess &process)
        : m_process(process)
        , m_job(CreateJobObjectW(nullptr, nullptr))
    {
        setLimits(JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE);
        process.setCreateProcessArgumentsModifier([this](QProcess::CreateProcessArguments *arguments) {
            arguments->flags |= CREATE_SUSPENDED;
            m_program = arguments->processInformation;
        });
    }

    ~Job() override
    {
        setLimits(0);
        CloseHandle(m_job);
    }

    void run() override
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        // If it fails, as in a job of an older Windows, the program runs without one.
        AssignProcessToJobObject(m_job, m_program->hProcess);
        ResumeThread(m_program->hThread);
    }

    void terminate() override
    {
        TerminateJobObject(m_job, 1);
        m_process.kill();
    }

private:
    void setLimits(DWORD flags)
    {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = flags;
        SetInformationJobObject(m_job, JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    }

    QProcess &m_process;
    HANDLE m_job;
    PROCESS_INFORMATION *m_program = nullptr; // of the process, and only valid while it runs
};

} // namespace

std::unique_ptr<ProgramTree> programTree(QProcess &process)
{
    return std::make_unique<Job>(process);
}

void waitForEnd(qint64 process, int timeoutMs)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (!handle)
        return;
    WaitForSingleObject(handle, static_cast<DWORD>(timeoutMs));
    CloseHandle(handle);
}

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
