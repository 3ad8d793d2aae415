#include "panel.h"

namespace {

constexpr int margin = 8, heading = 30;

} // namespace

Panel::Panel(const wchar_t* title) {
    box.Flag = OUTIL_DISABLE | OUTIL_FLAT | BOX_RAISED;
    box.Font_Weight = "bold";
    box.Name_Set(L"%ls", title);
}

Area Panel::place(HWND wnd, const Area& area) {
    area.give(box);
    box.Init(wnd);
    Area inner = area.inset(margin);
    inner.cut_top(heading - margin);
    return inner;
}
