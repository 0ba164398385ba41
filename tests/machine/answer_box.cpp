// Closes a box that a program shows, as its close button does: answer_box TITLE MARK
//
// Waits for a window with that title, at the latest for four minutes, makes the file MARK when it is there,
// and closes it as soon as somebody has taken the file away. Answers 1 when none came, 2 when it would not
// close.

#include <array>
#include <string>

#include <windows.h>

namespace {

struct Search
{
    std::wstring title;
    HWND found;
};

BOOL CALLBACK look(HWND window, LPARAM parameter)
{
    auto &search = *reinterpret_cast<Search *>(parameter);
    std::array<wchar_t, 256> title{};
    GetWindowTextW(window, title.data(), static_cast<int>(title.size()));
    if (!IsWindowVisible(window) || search.title != title.data())
        return TRUE;
    search.found = window;
    return FALSE;
}

HWND boxWith(const std::wstring &title)
{
    Search search{title, nullptr};
    EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

int wmain(int argc, wchar_t **argv)
{
    if (argc != 3)
        return 3;
    HWND box = nullptr;
    for (int waits = 0; waits < 2400 && !box; ++waits) {
        Sleep(100);
        box = boxWith(argv[1]);
    }
    if (!box)
        return 1;
    CloseHandle(CreateFileW(argv[2], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    for (int waits = 0; waits < 1200 && GetFileAttributesW(argv[2]) != INVALID_FILE_ATTRIBUTES; ++waits)
        Sleep(50);
    for (int tries = 0; tries < 100 && IsWindow(box); ++tries) {
        PostMessageW(box, WM_CLOSE, 0, 0);
        Sleep(100);
    }
    return IsWindow(box) ? 2 : 0;
}
