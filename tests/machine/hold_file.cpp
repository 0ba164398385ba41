// Keeps a file open so that no other program can open it: hold_file FILE MARK
//
// Creates the file MARK once FILE is open, and ends when MARK has been deleted, after two minutes at the
// latest. Exits with 1 if FILE cannot be opened, 2 for wrong arguments.

#include <windows.h>

int wmain(int argc, wchar_t **argv)
{
    if (argc != 3)
        return 2;
    const HANDLE held =
        CreateFileW(argv[1], GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (held == INVALID_HANDLE_VALUE)
        return 1;
    CloseHandle(CreateFileW(argv[2], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    for (int waits = 0; waits < 1200 && GetFileAttributesW(argv[2]) != INVALID_FILE_ATTRIBUTES; ++waits)
        Sleep(100);
    CloseHandle(held);
    return 0;
}
