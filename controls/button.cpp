#include <brask/buttons.h>

#include <algorithm>
#include <cstring>

#include "controls/button_geometry.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/faces.h"
#include "foundation/surfaces.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

namespace {

// The selected look of every button is red, whatever its colour.
Colors highlight() { return Colors(230, 100, 100); }
Colors highlight_down() { return Colors(190, 60, 60); }
Colors down(const Colors& color) { return Colors(color.R - 40, color.G - 40, color.B - 40); }

// The faces that a button owns: copying, changing and freeing go through all of them alike.
constexpr DWORD* Buttons::*OWN_FACES[] = {&Buttons::Own_Normal_Off, &Buttons::Own_Normal_On,
                                          &Buttons::Own_Select_Off, &Buttons::Own_Select_On};

void share_faces(const Buttons& button) {
    for (auto face : OWN_FACES)
        faces::share(button.*face);
}

void drop_faces(Buttons& button) {
    for (auto face : OWN_FACES)
        button.*face = faces::drop(button.*face);
}

// Both faces of one look, for an up and a down button; false: memory was short for one.
bool remake(const Buttons& button, DWORD*& off, DWORD*& on, const Colors& color_off, const Colors& color_on) {
    off = faces::drop(off);
    on = faces::drop(on);
    off = faces::ask(button, color_off);
    on = faces::ask(button, color_on);
    return off && on;
}

// Chooses between the host's surfaces and generated faces, and makes those that changed. `wnd` is the
// argument of Init. False: memory was short for one.
bool choose_surfaces(Buttons& b, HWND wnd) {
    bool whole = true;
    const Anew anew = surfaces_anew(b, wnd);
    const auto outgrown = [&b](DWORD* off, DWORD* on) {
        return faces::outgrown(off, b) || faces::outgrown(on, b);
    };
    if (b.Graph_Normal && anew.normal)
        b.Image_Normal = b.Image_Normal_Off = b.Image_Normal_On = b.Graph_Normal;
    if (b.Graph_Select && anew.select)
        b.Image_Select = b.Image_Select_Off = b.Image_Select_On = b.Graph_Select;
    if (!b.Graph_Normal && (anew.normal || recolored(b) || outgrown(b.Own_Normal_Off, b.Own_Normal_On))) {
        whole = remake(b, b.Own_Normal_Off, b.Own_Normal_On, b.Color, down(b.Color));
        b.Image_Normal_Off = b.Own_Normal_Off;
        b.Image_Normal_On = b.Own_Normal_On;
    }
    if (!b.Graph_Select && (anew.select || outgrown(b.Own_Select_Off, b.Own_Select_On))) {
        whole = remake(b, b.Own_Select_Off, b.Own_Select_On, highlight(), highlight_down()) && whole;
        b.Image_Select_Off = b.Own_Select_Off;
        b.Image_Select_On = b.Own_Select_On;
    }
    return whole;
}

using Fill = void (Tools::*)(int, int, int, int);

Fill lamp_fill(const Buttons& button) {
    constexpr Fill COLORS[] = {&Tools::Fill_Grey, &Tools::Fill_Green, &Tools::Fill_Blue, &Tools::Fill_Yellow,
                               &Tools::Fill_Red};
    if (!(button.Flag & BUTTON_LAMP_COLOR))
        return button.Lamp_Color ? &Tools::Fill_Yellow : &Tools::Fill_Grey;
    return COLORS[std::min(button.Lamp_Color, 4u)];
}

void paint_lamp(Buttons& button) {
    if (!(button.Flag & BUTTON_LAMP)) return;
    const Button_Lamp lamp = button_lamp(button);
    (button.*lamp_fill(button))(lamp.fill.x1, lamp.fill.x2, lamp.fill.y1, lamp.fill.y2);
    button.Cadre(button.Flag, 1, lamp.bevel, lamp.frame.x1, lamp.frame.x2, lamp.frame.y1, lamp.frame.y2);
}

void write_label(Buttons& button, DWORD flags) {
    if (!button.W_Name) return;
    const Button_Label at = button_label(button);
    button.Text(button.W_Name, flags, at.x, at.y, at.dx, at.dy, button.Border, 0);
}

// A down button always has a white label, an up one never.
void paint_label(Buttons& button) {
    write_label(button, button.Cur_Value ? button.Flag | TEXT_WHITE : button.Flag & ~TEXT_WHITE);
}

void paint_frame(Buttons& button) {
    const Area whole = whole_area(button);
    if (button.Flag & GRAPH_OUTLINE)
        button.Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
    else
        button.Cadre(button.Flag, button.Cur_Value, button_bevel(button), whole.x1, whole.x2, whole.y1,
                     whole.y2);
}

void paint_face(Buttons& button, bool selected) {
    const Area whole = whole_area(button);
    const DWORD* image = selected ? button.Image_Select : button.Image_Normal;
    button.Fill_Select(selected, reinterpret_cast<const char*>(image), button.Flag,
                       Px(button_bevel(button)) + 1, whole.x1, whole.x2, whole.y1, whole.y2);
}

void paint_look(Buttons& button, bool selected) {
    paint_face(button, selected);
    paint_lamp(button);
    paint_label(button);
}

} // namespace

Buttons::Buttons() {
    Trace trace("Buttons::Buttons");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}

Buttons::Buttons(const Buttons& other)
    : Tools(other), Cur_Value(other.Cur_Value), Lamp_Color(other.Lamp_Color), Shown(other.Shown),
      select(other.select), Image_Normal_Off(other.Image_Normal_Off), Image_Normal_On(other.Image_Normal_On),
      Image_Select_Off(other.Image_Select_Off), Image_Select_On(other.Image_Select_On),
      Own_Normal_Off(other.Own_Normal_Off), Own_Normal_On(other.Own_Normal_On),
      Own_Select_Off(other.Own_Select_Off), Own_Select_On(other.Own_Select_On), Old_Value(other.Old_Value) {
    share_faces(*this);
}

Buttons& Buttons::operator=(const Buttons& other) {
    if (this == &other) return *this;
    drop_faces(*this);
    Tools::operator=(other);
    Cur_Value = other.Cur_Value;
    Lamp_Color = other.Lamp_Color;
    Shown = other.Shown;
    select = other.select;
    Image_Normal_Off = other.Image_Normal_Off;
    Image_Normal_On = other.Image_Normal_On;
    Image_Select_Off = other.Image_Select_Off;
    Image_Select_On = other.Image_Select_On;
    for (auto face : OWN_FACES)
        this->*face = other.*face;
    Old_Value = other.Old_Value;
    share_faces(*this);
    return *this;
}

Buttons::~Buttons() {
    Trace trace("Buttons::~Buttons");
    drop_faces(*this);
}

void Buttons::Init(HWND wnd) {
    Trace trace("Buttons::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0"); // the window is not even stored
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Buttons::Init")) return trace.out("!wnd");
    select = TRACK_NONE;
    Old_Value = static_cast<unsigned>(Cur_Value);
    default_color(*this);
    set_region(*this);
    if (Flag & OUTIL_EMPTY) {
        remember_shape(*this);
        return trace.out("OUTIL_EMPTY");
    }
    const bool whole = choose_surfaces(*this, wnd);
    choose_images(*this);
    remember_shape(*this);
    if (!whole) forget_shape(*this);
    remember_surfaces(*this);
}

void Buttons::Draw() {
    Trace trace("Buttons::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Button::Draw");
    if (too_small(*this)) return trace.out("<0");
    Old_Value = static_cast<unsigned>(Cur_Value);
    if (Flag & GRAPH_OUTLINE) {
        paint_frame(*this);
        write_label(*this, Flag); // no lamp, yet the label gives way to it
        return trace.out("GRAPH_OUTLINE");
    }
    if (!(Flag & OUTIL_NO_FRAME)) paint_frame(*this);
    paint_lamp(*this);
    paint_label(*this);
    if (Flag & OUTIL_EMPTY) return trace.out("OUTIL_EMPTY");
    choose_images(*this);
    select = TRACK_NONE;
    Select(0);
}

void Buttons::Adjust() {
    Trace trace("Buttons::Adjust", *this);
    check_first_use(*this, "Button::Adjust");
    if (too_small(*this)) return trace.out("<0");
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    // A change of the lamp's colour leaves no trace in the value.
    if (!(Flag & BUTTON_LAMP) && static_cast<unsigned>(Cur_Value) == Old_Value)
        return trace.out("Cur_Value == Old_Value");
    paint_frame(*this); // OUTIL_NO_FRAME is not asked here, on purpose
    if (!(Flag & GRAPH_OUTLINE)) paint_lamp(*this);
    paint_label(*this);
    Old_Value = static_cast<unsigned>(Cur_Value);
    if (Flag & (OUTIL_EMPTY | GRAPH_OUTLINE)) return trace.out("OUTIL_EMPTY");
    choose_images(*this);
    select = TRACK_NONE;
    Select(0);
}

int Buttons::Select(int mode) {
    Trace trace("Buttons::Select", *this);
    check_first_use(*this, "Button::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const bool in = PtInRect(&Region, read_pointer(*this, "Buttons::Select"));
    if (event_of(mode) == KEY_QUERY) return in ? trace.out("KEY_QUERY:1", 1) : trace.out("KEY_QUERY:0", 0);
    const bool disabled = (Flag & OUTIL_DISABLE) != 0;
    if (faceless(*this))
        return in && !disabled ? trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE:1", 1)
                               : trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE:0", 0);
    if (disabled) {
        paint_face(*this, false); // the lamp is left out here
        paint_label(*this);
        return trace.out("OUTIL_DISABLE:0", 0);
    }
    const Track step = track(select, in);
    if (!step.repaint) return in ? trace.out("select == 1", 1) : trace.out("select == 2:0", 0);
    select = step.next;
    paint_look(*this, in);
    return in ? trace.out("1", 1) : trace.out("0", 0);
}

int Buttons::Read() {
    Trace trace("Buttons::Read", *this);
    check_first_use(*this, "Button::Read");
    return Cur_Value;
}

void Buttons::Deselect() {
    Trace trace("Buttons::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    if (select == TRACK_NONE || select == TRACK_OUTSIDE) return trace.out("select == 0");
    select = TRACK_NONE;
    paint_look(*this, false);
}
