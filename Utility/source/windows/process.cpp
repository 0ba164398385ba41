#include "nvx_util/system.h"
#include "platform.h"

#include <QFileInfo>
#include <QProcess>

#include <windows.h>

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
    process.setNativeArguments(u"%1 \"\"%2\"\""_s.arg(call.arguments.first(), call.arguments.last()));
}

// Qt treats every code with the highest bit set as a crash, including COM results. The code itself names the
// cause.
void setEnd(const QProcess &process, ProgramResult &result)
{
    result.outcome = ProgramResult::Outcome::Exited;
    result.exitCode = process.exitCode();
}

void waitForEnd(qint64 process, int timeoutMs)
{
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (!handle)
        return;
    WaitForSingleObject(handle, static_cast<DWORD>(timeoutMs));
    CloseHandle(handle);
}

} // namespace Nvx::Util::Platform
