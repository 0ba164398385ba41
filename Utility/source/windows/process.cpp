#include "nvx_util/system.h"
#include "platform.h"

#include <QFileInfo>
#include <QProcess>

#include <windows.h>

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
    const QString exeName =
        fileName.contains(QLatin1Char('.')) ? fileName : fileName + QStringLiteral(".exe");
    // Most programs lie in the System32 folder, the Registry Editor in the Windows folder.
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
    // The interpreter takes away the outermost quotes when the text between them holds "(", "&" and the like,
    // as "C:\Program Files (x86)" does; a second pair keeps the path whole in every case.
    process.setNativeArguments(
        QStringLiteral("%1 \"\"%2\"\"").arg(call.arguments.first(), call.arguments.last()));
}

// Qt takes every code with the highest bit for a crash, results of COM included. The code says what happened.
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
