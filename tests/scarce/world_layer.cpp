#include <cwchar>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "fenn/text_run.h"
#include "platform/portable/keyboard_state.h"
#include "unit/fenn/scratch.h"

#include "world.h"

namespace world {

static HWND make_window() {
    static const wchar_t CLASS[] = L"scarce";
    WNDCLASSEXW known = {};
    known.cbSize = sizeof known;
    known.lpfnWndProc = DefWindowProcW;
    known.lpszClassName = CLASS;
    RegisterClassExW(&known);
    return CreateWindowExW(0, CLASS, L"", WS_POPUP, 0, 0, WIDTH, HEIGHT, nullptr, nullptr, nullptr, nullptr);
}

HWND window() {
    static const HWND only = make_window();
    return only;
}

void fresh() {
    Fenn_Listen(0x90000021, 0); // what is missing for want of memory
    Fenn_Listen(1, 0);
    fenn::text_cache_clear();
    renew_fonts();
    wipe();
    hold(false);
    point(-1000, -1000);
}

void wipe() {
    Zeb_setup(window(), "wipe");
    Zeb_color(0x808080);
    draw_fill_rectangle(0, HEIGHT - 1, WIDTH, -1);
    Zeb_release();
}

// The pixels.
std::string shown() {
    int width, height;
    const char* const bytes = reinterpret_cast<const char*>(Fenn_Pixels(window(), &width, &height));
    return std::string(bytes, static_cast<std::size_t>(width) * height * sizeof(DWORD));
}

void point(int x, int y) {
    Zeb_setup(window(), "point");
    set_curs(x, HEIGHT - 1 - y);
    Zeb_release();
}

void hold(bool down) { platform::keys_now().set(VK_LBUTTON, down); }

void copy(const wchar_t* text) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, (std::wcslen(text) + 1) * sizeof *text);
    std::wcscpy(static_cast<wchar_t*>(GlobalLock(block)), text);
    GlobalUnlock(block);
    OpenClipboard(window());
    SetClipboardData(CF_UNICODETEXT, block);
    CloseClipboard();
}

std::wstring folder() {
    static const Scratch scratch;
    scratch.make("alpha/deep");
    scratch.make("beta");
    return scratch.path() + L'\\';
}

} // namespace world
