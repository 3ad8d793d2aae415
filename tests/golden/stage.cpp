#include "stage.h"

#include <brask/boxs.h>
#include <brask/fenn.h>
#include <brask/fenn_host.h>

namespace {

const wchar_t CLASS[] = L"golden stage";

void register_class() {
    static bool done = false;
    if (done) return;
    WNDCLASSEXW known = {};
    known.cbSize = sizeof known;
    known.lpfnWndProc = DefWindowProcW;
    known.hInstance = GetModuleHandleW(nullptr);
    known.lpszClassName = CLASS;
    RegisterClassExW(&known);
    done = true;
}

} // namespace

Stage::Stage(int width, int height) : height(height) {
    register_class();
    Fenn_Builtin_Font(1);
    wnd = CreateWindowExW(0, CLASS, L"", WS_POPUP, 0, 0, width, height, nullptr, nullptr,
                          GetModuleHandleW(nullptr), nullptr);
    point_away();
    Boxs ground;
    ground.Color = Colors(192, 192, 192);
    place(ground, 0, 0, width, height);
    ground.Init(wnd);
    ground.Clear();
}

Stage::~Stage() {
    DestroyWindow(wnd);
    Fenn_Builtin_Font(0);
}

void Stage::point(int x, int y) {
    Zeb_setup(wnd, "Stage");
    set_curs(x, height - 1 - y);
    Zeb_release();
}

void Stage::point_away() { point(-1000, -1000); }

wchar_t* Stage::installation() {
    static wchar_t folder[] = L"" INSTALLATION;
    return folder;
}

void Stage::place(Tools& control, int x, int y, int width, int height, DWORD flags, const wchar_t* name) {
    control.Pos_X = x;
    control.Pos_Y = y;
    control.Dim_X = width;
    control.Dim_Y = height;
    control.Flag = flags;
    if (name) control.Name_Set(L"%ls", name);
}
