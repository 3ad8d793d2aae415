// Starts with the installed libraries, asks them who they are, and paints without a desktop.
#include <brask/boxs.h>
#include <brask/fenn_host.h>
#include <brask/library.h>

#include <algorithm>
#include <cstdio>

int main() {
    WNDCLASSEXW kind = {};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = DefWindowProcW;
    kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    kind.lpszClassName = L"version";
    RegisterClassExW(&kind);
    HWND wnd = CreateWindowExW(0, kind.lpszClassName, L"", WS_POPUP, 0, 0, 40, 30, nullptr, nullptr, nullptr,
                               nullptr);
    Boxs box;
    box.Dim_X = 40;
    box.Dim_Y = 30;
    box.Color = Colors(1, 2, 3);
    box.Init(wnd);
    box.Clear();
    int width = 0, height = 0;
    const DWORD* pixels = Fenn_Pixels(wnd, &width, &height);
    const bool painted = pixels && std::min(width, height) == 30 && pixels[0] == 0x010203;
    const char* line = Get_Version_Tools("27.0");
    std::printf("%s\n%d passed, %d failed\n", line ? line : "another version", painted && line,
                !(painted && line));
    return painted && line ? 0 : 1;
}
