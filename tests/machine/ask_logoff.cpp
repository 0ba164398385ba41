// Asks a program's window whether the user may sign out, as Windows does: ask_logoff TITLE
//
// Exits with 0 if the window refuses, 1 if there is no window with that title, 2 if it agrees or does not
// answer, 3 for wrong arguments.

#include <windows.h>

int wmain(int argc, wchar_t **argv)
{
    if (argc != 2)
        return 3;
    const HWND window = FindWindowW(L"Velmora NVX 2017 Configuration", argv[1]);
    if (!window)
        return 1;
    DWORD_PTR agrees = TRUE;
    if (!SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, static_cast<LPARAM>(ENDSESSION_LOGOFF),
                             SMTO_ABORTIFHUNG, 30000, &agrees))
        return 2;
    return agrees ? 2 : 0;
}
