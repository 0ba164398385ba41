// Closes a program's message box as its close button does: close_message_box TITLE MARK
//
// Waits up to four minutes for a window with that title, creates the file MARK when it appears, and closes it
// once MARK has been deleted. Exits with 1 if no such window appeared, 2 if it did not close, 3 for wrong
// arguments.

#include <array>
#include <string>

#include <windows.h>

namespace {

struct Search
{
    std::wstring title;
    HWND found;
};

BOOL CALLBACK compareTitle(HWND window, LPARAM parameter)
{
    auto &search = *reinterpret_cast<Search *>(parameter);
    std::array<wchar_t, 256> title{};
    GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    if (!IsWindowVisible(window) || search.title != title.data())
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND windowWithTitle(const std::wstring &title)
{
    Search search{title, nullptr};
    EnumWindows(compareTitle, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

int wmain(int argc, wchar_t **argv)
{
    if (argc != 3)
        return 3;
    HWND messageBox = nullptr;
    for (int waits = 0; waits < 2400 && !messageBox; ++waits) {
        Sleep(100);
        messageBox = windowWithTitle(argv[1]);
    }
    if (!messageBox)
        return 1;
    CloseHandle(CreateFileW(argv[2], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    for (int waits = 0; waits < 1200 && GetFileAttributesW(argv[2]) != INVALID_FILE_ATTRIBUTES; ++waits)
        Sleep(50);
    for (int tries = 0; tries < 100 && IsWindow(messageBox); ++tries) {
        PostMessageW(messageBox, WM_CLOSE, 0, 0);
        Sleep(100);
    }
    return IsWindow(messageBox) ? 2 : 0;
}
