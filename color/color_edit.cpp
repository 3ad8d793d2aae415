#include <brask/color_edit.h>

#include <cstring>

#include "color/parts.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

// Of this class only Draw reports its entry and exit.

namespace {

constexpr int GAP = 2; // between the parts

// One channel from 0 to 255, the others 0.
DWORD level(float column, float step) { return static_cast<DWORD>(cut(column * 255.0f * step)) & 255; }
DWORD red_ramp(float column, float step) { return 0xFF000000 | level(column, step) << 16; }
DWORD green_ramp(float column, float step) { return 0xFF000000 | level(column, step) << 8; }
DWORD blue_ramp(float column, float step) { return 0xFF000000 | level(column, step); }
DWORD light_ramp(float column, float step) { return 0xFF000000 | level(column, step) * 0x10101; }
// From white to red; what is cut is the difference.
DWORD saturation_ramp(float column, float step) {
    return 0xFFFF0000 | (static_cast<DWORD>(cut(255.0f - column * 255.0f * step)) & 255) * 0x101;
}

struct Bar_Look {
    const char* name;
    Ramp ramp;
};
// The bars from the top, with the component that each one shows.
struct Bar {
    Valuators Color_Edit::*bar;
    float Components::*component;
    Bar_Look rgb, hls;
};
constexpr Bar BARS[] = {
    {&Color_Edit::Val_Red_Hue, &Components::first, {"Red", red_ramp}, {"Hue", hue_ramp}},
    {&Color_Edit::Val_Green_Light, &Components::second, {"Green", green_ramp}, {"Light", light_ramp}},
    {&Color_Edit::Val_Blue_Sat, &Components::third, {"Blue", blue_ramp}, {"Saturation", saturation_ramp}},
};
enum { TOP, MIDDLE, BOTTOM };

bool hls(const Color_Edit& editor) { return (editor.Flag & COLOR_HLS) != 0; }

Components components_of(const Color_Edit& editor) {
    return hls(editor) ? hls_of(editor.Cur_Value) : rgb_of(editor.Cur_Value);
}

DWORD word_of(const Color_Edit& editor, const Components& color) {
    return hls(editor) ? word_of_hls(color) : word_of_rgb(color);
}

// --- Placing ---

// What is left for bars and swatch beside the frame, its title and the button; the width is that of the bars.
Place inside_of(const Color_Edit& editor, int font_height) {
    const Px b = bevel_size(editor), x = editor.Pos_X, y = editor.Pos_Y;
    const Px dx = editor.Dim_X, dy = editor.Dim_Y;
    const Px button = editor.Flag & COLOR_MODE_BUTTON ? Px(SPACE) - BUT_DIM - GAP : Px(0);
    if (editor.Border <= 0) return {x, y, dx - 2 * Px(BUT_DIM) - GAP + button, dy};
    const Px title = editor.W_Name ? 3 + Px(font_height) : Px(0);
    return {x + GAP + b, y + GAP + b, dx - 2 * (Px(BUT_DIM) + 3 + b) + button, dy - 2 * b - 4 - title};
}

void place_frame(Color_Edit& editor, HWND wnd) {
    Boxs& frame = editor.Box_Frame;
    lend_name(editor, frame);
    lend_clip(editor, frame);
    lay_around(editor, frame);
    frame.Font_Slant = editor.Font_Slant;
    frame.Border = bevel_size(editor);
    frame.Flag = (editor.Flag & (OUTIL_INVISIBLE | OUTIL_EMPTY | GRAPH_OUTLINE)) | OUTIL_DISABLE | OUTIL_FLAT;
    frame.Init(wnd);
    if (editor.Border <= 0) frame.Flag |= OUTIL_INVISIBLE;
}

void place_swatch(Color_Edit& editor, HWND wnd, const Place& inside) {
    Boxs& swatch = editor.Box_Swatch;
    swatch.Flag = editor.Box_Frame.Flag; // hidden where the frame is
    lend_clip(editor, swatch);
    lend_color(editor, swatch);
    swatch.Border = bevel_size(editor);
    put(swatch, {Px(inside.x) + inside.width + GAP, inside.y, editor.Swatch_Width, inside.height});
    if (!(swatch.Flag & OUTIL_INVISIBLE))
        ready_surface(swatch, editor.Dim_Y != editor.Old_Dim_Y, surface_word(editor.Cur_Value));
    swatch.Init(wnd);
}

void place_button(Color_Edit& editor, HWND wnd, const Place& inside) {
    if (!(editor.Flag & COLOR_MODE_BUTTON)) return;
    Buttons& button = editor.Button_Mode;
    const Boxs& swatch = editor.Box_Swatch;
    button.Flag = editor.Flag | OUTIL_VERTICAL;
    lend_clip(editor, button); // but not the colour: the button is grey
    lend_whole_font(editor, button);
    button.Border = bevel_size(editor);
    put(button, {Px(swatch.Pos_X) + swatch.Dim_X + GAP, inside.y, Px(BUT_DIM) - SPACE, inside.height});
    button.Init(wnd);
    button.Name_Set(hls(editor) ? "HLS" : "RGB");
}

void place_bar(Color_Edit& editor, HWND wnd, const Bar& row, const Place& place) {
    Valuators& bar = editor.*row.bar;
    const Bar_Look& look = hls(editor) ? row.hls : row.rgb;
    bar.Flag = editor.Flag;
    bar.Name_Set(look.name);
    lend_clip(editor, bar);
    lend_color(editor, bar);
    lend_whole_font(editor, bar);
    put(bar, place);
    bar.Border = bevel_size(editor);
    set_range(bar);
    if (!(bar.Flag & OUTIL_INVISIBLE)) lay_ramp(bar, resized(editor), look.ramp);
    bar.Init(wnd);
}

// From the bottom; the top bar takes what the division leaves over.
void place_bars(Color_Edit& editor, HWND wnd, const Place& inside) {
    const Px each = (Px(inside.height) - 4) / 3, y = inside.y;
    const Px second = y + each + GAP, third = y + 2 * each + 2 * GAP;
    place_bar(editor, wnd, BARS[BOTTOM], {inside.x, y, inside.width, each});
    place_bar(editor, wnd, BARS[MIDDLE], {inside.x, second, inside.width, each});
    place_bar(editor, wnd, BARS[TOP], {inside.x, third, inside.width, Px(inside.height) - 2 * each - 4});
}

void draw_parts(Color_Edit& editor) {
    for (const Bar& row : BARS)
        (editor.*row.bar).Draw();
    editor.Box_Swatch.Draw();
    if (editor.Flag & COLOR_MODE_BUTTON) editor.Button_Mode.Draw();
}

} // namespace

Color_Edit::Color_Edit() { std::memset(static_cast<void*>(this), 0, sizeof *this); }
Color_Edit::Color_Edit(const Color_Edit& other) = default;
Color_Edit& Color_Edit::operator=(const Color_Edit& other) = default;
Color_Edit::~Color_Edit() = default;

void Color_Edit::Init(HWND wnd) {
    test |= TEST_INIT;
    if (too_small(*this)) return; // the window is not even stored
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Color_Edit::Init")) return;
    Old_Value = Cur_Value;
    default_color(*this);
    set_region(*this);
    const int height = font_height(*this, "Color_Edit::Init");
    if (Swatch_Width == 0) Swatch_Width = 2 * Px(BUT_DIM);
    place_frame(*this, wnd);
    const Place inside = inside_of(*this, height);
    place_swatch(*this, wnd, inside);
    place_button(*this, wnd, inside);
    place_bars(*this, wnd, inside);
    remember_size(*this);
}

void Color_Edit::Draw() {
    Trace trace("Color_Edit::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Color_Edit::Draw");
    if (too_small(*this)) return trace.out("<0");
    Old_Value = Cur_Value;
    Box_Frame.Draw();
    if (Flag & GRAPH_OUTLINE) {
        draw_parts(*this); // with the values that the bars have
        return trace.out("GRAPH_OUTLINE");
    }
    const Components color = components_of(*this);
    for (const Bar& row : BARS)
        (this->*row.bar).Cur_Value = color.*row.component;
    draw_parts(*this);
    Update();
    trace.out("done");
}

void Color_Edit::Adjust() {
    check_first_use(*this, "Color_Edit::Adjust");
    if (too_small(*this) || Cur_Value == Old_Value || Flag & OUTIL_DISABLE) return;
    const Components color = components_of(*this);
    for (const Bar& row : BARS) {
        Valuators& bar = this->*row.bar;
        if (color.*row.component == bar.Cur_Value) continue;
        bar.Cur_Value = color.*row.component;
        bar.Adjust();
    }
    Old_Value = Cur_Value;
    Update();
}

void Color_Edit::Update() {
    if (!too_small(*this)) show_swatch(Box_Swatch, Cur_Value);
}

unsigned long Color_Edit::Read() {
    check_first_use(*this, "Color_Edit::Read");
    if (too_small(*this)) return 0;
    Components color = components_of(*this);
    for (const Bar& row : BARS) {
        Valuators& bar = this->*row.bar;
        if (bar.Select(1)) color.*row.component = bar.Read(); // the host's event does not come so far
    }
    return word_of(*this, color);
}

int Color_Edit::Select(int mode) {
    check_first_use(*this, "Color_Edit::Select");
    if (too_small(*this) || Flag & OUTIL_DISABLE) return 0;
    const int event = event_of(mode);
    for (const Bar& row : BARS)
        if ((this->*row.bar).Select(event)) return 1; // the bars below are not asked any more
    if (!(Flag & COLOR_MODE_BUTTON)) return 0;
    if (Button_Mode.Select(event) && event == 2) {
        Flag ^= COLOR_HLS;
        Init(nullptr);
        Draw();
    }
    return 0; // the colour is the same in both modes
}

unsigned long Color_Edit::Scroll(int notches) {
    check_first_use(*this, "Color_Edit::Scroll");
    if (too_small(*this)) return 0;
    Components color = components_of(*this);
    bool moved = false;
    for (const Bar& row : BARS) {
        Valuators& bar = this->*row.bar;
        if (!bar.Select(KEY_QUERY)) continue;
        color.*row.component = bar.Scroll(notches);
        moved = true;
    }
    if (!moved) return Cur_Value;
    Cur_Value = word_of(*this, color);
    Adjust();
    return Cur_Value;
}

void Color_Edit::Deselect() {
    if (!test || too_small(*this) || Flag & (OUTIL_INVISIBLE | OUTIL_EMPTY)) return;
    for (const Bar& row : BARS)
        (this->*row.bar).Deselect();
    if (Flag & COLOR_MODE_BUTTON) Button_Mode.Deselect();
}
