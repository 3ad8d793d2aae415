// Texts with marks through the whole library: nothing is painted outside of the rectangle that they are
// clipped to, and writing them again paints the same.

#include <algorithm>

#include <brask/tools.h>

#include "real_window.h"
#include "wide_text.h"

namespace {

void write(Tools& control, const Writing& to) {
    control.Text(to.text.c_str(), to.flag, to.x, to.y, to.dx, to.dy, to.border, to.color);
}

// One axis of the rectangle that a text may touch: where the control and its border leave room, and where its
// own clip does, if it has one.
struct Room {
    long long low, high;
};
Room room(int at, int size, int border, int clip, int clip_size) {
    const long long low = std::max(static_cast<long long>(at) + border, static_cast<long long>(clip));
    const long long inner_end = static_cast<long long>(at) - border + size + 1;
    if (!clip_size) return {low, low + size - 2LL * border + 1};
    return {low, std::min(static_cast<long long>(clip) + clip_size, inner_end)};
}

// Where sums leave the integers they wrap, and no rule says where the text is.
bool is_sane(const Writing& to, const Tools& control) {
    for (int value : {to.x, to.y, to.dx, to.dy, to.border, control.Clip_X, control.Clip_Y, control.Clip_Dim_X,
                      control.Clip_Dim_Y})
        if (value > 1000000 || value < -1000000) return false;
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const RealWindow window(240, 160);
    Input input(data, size);
    Fenn_Builtin_Font(input.one_in(2));
    Tools control;
    control.Wnd = window.wnd;
    const Writing to = writing(input, control, input.one_in(16) ? 3000 : 60);
    window.clear();
    const std::vector<DWORD> blank = window.pixels();
    write(control, to);
    const std::vector<DWORD> once = window.pixels();
    window.clear();
    write(control, to);
    expect(window.pixels() == once, "the same text gives the same picture");
    if (!is_sane(to, control)) return 0;
    const Room across = room(to.x, to.dx, to.border, control.Clip_X, control.Clip_Dim_X);
    const Room up = room(to.y, to.dy, to.border, control.Clip_Y, control.Clip_Dim_Y);
    expect(!window.differs_outside(blank, once, across.low, up.low, across.high, up.high),
           "a text stays inside of its clip");
    return 0;
}
