#include "recorder_state.h"

// Bracket, state, shapes and pointer.

namespace recorder {

void inside(const char* operation) {
    if (!state().open) breach(std::string(operation) + " outside of Zeb_setup and Zeb_release");
}

Picture* picture() { return state().blind ? nullptr : state().picture; }

static std::string points(int count, const int* xs, const int* ys) {
    std::string list;
    for (int i = 0; i < count; ++i)
        list += " (" + std::to_string(xs[i]) + ", " + std::to_string(ys[i]) + ")";
    return list;
}

// Reads every word that the call may copy, so that a surface too small for what is said of it is found out.
static void read_through(const char* pixels, int source_x, int source_y, int width, int height,
                         int image_width, int image_height) {
    const auto* words = reinterpret_cast<const volatile DWORD*>(pixels);
    for (long long row = source_y < 0 ? 0 : source_y;
         row < image_height && row < (long long)source_y + height; ++row)
        for (long long column = source_x < 0 ? 0 : source_x;
             column < image_width && column < (long long)source_x + width; ++column)
            static_cast<void>(words[row * image_width + column]);
}

} // namespace recorder

using namespace recorder;

void Zeb_setup(HWND wnd, const char* tag) {
    if (state().open) breach("Zeb_setup inside of another");
    if (state().measuring) breach("Zeb_setup between Zeb_GetDC and Zeb_ReleaseDC");
    if (state().stepped_out && std::string(tag) != "Icon_Read") breach("Zeb_release with the clip left set");
    state().stepped_out = false;
    note(kDraw, "Zeb_setup(" + named(wnd) + ", \"" + (tag ? tag : "(null)") + "\")");
    state().open = true;
    state().clipped = false;
    state().blind = !wnd;
    Zeb_DC = context();
    if (picture()) picture()->unclip();
}

void Zeb_release() {
    inside("Zeb_release");
    note(kDraw, "Zeb_release()");
    state().stepped_out = state().clipped;
    state().open = false;
    Zeb_DC = nullptr;
}

int Zeb_test() { return state().open; }

HDC Zeb_GetDC(HWND wnd, const char* tag) {
    if (state().open) breach("Zeb_GetDC inside of a bracket");
    if (state().measuring) breach("Zeb_GetDC twice");
    state().measuring = true;
    note(kService, "Zeb_GetDC(" + named(wnd) + ", \"" + (tag ? tag : "(null)") + "\")");
    return context();
}

void Zeb_ReleaseDC(HWND wnd, HDC dc) {
    if (!state().measuring) breach("Zeb_ReleaseDC without Zeb_GetDC");
    state().measuring = false;
    note(kService, "Zeb_ReleaseDC(" + named(wnd) + ", " + named(dc) + ")");
}

void Zeb_color(unsigned long word) {
    inside("Zeb_color");
    Current_Color = static_cast<DWORD>(word);
    call(kDraw, "Zeb_color(0x%X)", static_cast<unsigned>(word));
    if (picture()) picture()->color(static_cast<DWORD>(word));
}

void Zeb_set_clip(int x, int y, int width, int height) {
    inside("Zeb_set_clip");
    state().clipped = true;
    call(kDraw, "Zeb_set_clip(%d, %d, %d, %d)", x, y, width, height);
    if (picture()) picture()->clip(x, y, width, height);
}

void Zeb_reset_clip() {
    inside("Zeb_reset_clip");
    if (!state().clipped) breach("Zeb_reset_clip without a clip");
    state().clipped = false;
    note(kDraw, "Zeb_reset_clip()");
    if (picture()) picture()->unclip();
}

void move2s(unsigned int x, unsigned int y) {
    inside("move2s");
    call(kDraw, "move2s(%d, %d)", static_cast<int>(x), static_cast<int>(y));
    if (picture()) picture()->move(static_cast<int>(x), static_cast<int>(y));
}

void draw2s(unsigned int x, unsigned int y, int mode) {
    inside("draw2s");
    call(kDraw, "draw2s(%d, %d, %d)", static_cast<int>(x), static_cast<int>(y), mode);
    if (picture()) picture()->line_to(static_cast<int>(x), static_cast<int>(y));
}

void draw_rectangle(int left, int top, int right, int bottom) {
    inside("draw_rectangle");
    call(kDraw, "draw_rectangle(%d, %d, %d, %d)", left, top, right, bottom);
    if (picture()) picture()->frame(left, top, right, bottom);
}

void draw_fill_rectangle(int left, int top, int right, int bottom) {
    inside("draw_fill_rectangle");
    call(kDraw, "draw_fill_rectangle(%d, %d, %d, %d)", left, top, right, bottom);
    if (picture()) picture()->fill(left, top, right, bottom);
}

void draw_polygon(int count, const int* xs, const int* ys) {
    inside("draw_polygon");
    note(kDraw, "draw_polygon(" + std::to_string(count) + points(count, xs, ys) + ")");
    if (!picture() || count < 1) return;
    picture()->move(xs[0], ys[0]);
    for (int i = 1; i < count; ++i)
        picture()->line_to(xs[i], ys[i]);
}

void draw_fill_polygon(int count, const int* xs, const int* ys) {
    inside("draw_fill_polygon");
    note(kDraw, "draw_fill_polygon(" + std::to_string(count) + points(count, xs, ys) + ")");
    if (picture()) picture()->polygon(count, xs, ys);
}

void draw_image(const char* pixels, int x, int y, int source_x, int source_y, int width, int height,
                int image_width, int image_height, unsigned int background) {
    inside("draw_image");
    call(kDraw, "draw_image(%s, %d, %d, %d, %d, %d, %d, %d, %d, 0x%X)", named(pixels).c_str(), x, y, source_x,
         source_y, width, height, image_width, image_height, background);
    if (!pixels) return breach("draw_image without a surface");
    read_through(pixels, source_x, source_y, width, height, image_width, image_height);
    if (picture())
        picture()->image(reinterpret_cast<const std::uint32_t*>(pixels), x, y, source_x, source_y, width,
                         height, image_width, image_height);
}

POINT read_curs(int* x, int* y) {
    inside("read_curs");
    note(kDraw, "read_curs()");
    *x = state().pointer.x;
    *y = state().pointer.y;
    return state().pointer;
}

POINT read_curs(unsigned short* x, unsigned short* y) {
    int wide_x, wide_y;
    const POINT point = read_curs(&wide_x, &wide_y);
    *x = static_cast<unsigned short>(wide_x);
    *y = static_cast<unsigned short>(wide_y);
    return point;
}

void set_curs(int x, int y) {
    call(kService, "set_curs(%d, %d)", x, y);
    state().pointer = {x, state().client_height - 1 - y};
}
