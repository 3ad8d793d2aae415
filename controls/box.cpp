#include <brask/boxs.h>

#include <cstring>

#include "controls/box_geometry.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/faces.h"
#include "foundation/trace.h"
#include "foundation/track.h"

using namespace brask;

namespace {

// No field can change the colour of the selected look.
Colors highlight() { return Colors(230, 100, 100); }

// At the top, unless the host says otherwise.
void paint_title(Boxs& box) {
    if (!box.W_Name) return;
    const DWORD placed = box.Flag & (TEXT_MIDDLE | TEXT_BOTTOM);
    box.Text(box.W_Name, placed ? box.Flag : box.Flag | TEXT_TOP, box.Pos_X, box.Pos_Y, box.Dim_X, box.Dim_Y,
             box.Border, 0);
}

// The face covers the title, which is written again.
void paint_face(Boxs& box, bool selected) {
    const Box_Face face = box_face(box);
    const DWORD* image = selected ? box.Image_Select : box.Image_Normal;
    box.Fill_Select(selected, reinterpret_cast<const char*>(image), box.Flag, face.inset, face.area.x1,
                    face.area.x2, face.area.y1, face.area.y2);
    paint_title(box);
}

// Chooses between the host's surfaces and generated faces, and makes those that changed. `wnd` is the
// argument of Init. False: memory was short for one.
bool choose_surfaces(Boxs& box, HWND wnd) {
    bool whole = true;
    const Anew anew = surfaces_anew(box, wnd);
    if (box.Graph_Normal && anew.normal) box.Image_Normal = box.Graph_Normal;
    if (box.Graph_Select && anew.select) box.Image_Select = box.Graph_Select;
    if (!box.Graph_Normal && (anew.normal || recolored(box) || faces::outgrown(box.Box_Normal, box))) {
        box.Box_Normal = faces::drop(box.Box_Normal);
        box.Image_Normal = box.Box_Normal = faces::ask(box, box.Color);
        whole = box.Box_Normal != nullptr;
    }
    if (!box.Graph_Select && (anew.select || faces::outgrown(box.Box_Select, box))) {
        box.Box_Select = faces::drop(box.Box_Select);
        box.Image_Select = box.Box_Select = faces::ask(box, highlight());
        whole = whole && box.Box_Select;
    }
    return whole;
}

} // namespace

Boxs::Boxs() {
    Trace trace("Boxs::Boxs");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}

Boxs::Boxs(const Boxs& other)
    : Tools(other), select(other.select), Box_Slot_A(other.Box_Slot_A), Box_Slot_B(other.Box_Slot_B),
      Box_Normal(other.Box_Normal), Box_Select(other.Box_Select) {
    faces::share(Box_Normal);
    faces::share(Box_Select);
}

Boxs& Boxs::operator=(const Boxs& other) {
    faces::share(other.Box_Normal);
    faces::share(other.Box_Select);
    faces::drop(Box_Normal);
    faces::drop(Box_Select);
    Tools::operator=(other);
    select = other.select;
    Box_Slot_A = other.Box_Slot_A;
    Box_Slot_B = other.Box_Slot_B;
    Box_Normal = other.Box_Normal;
    Box_Select = other.Box_Select;
    return *this;
}

Boxs::~Boxs() {
    Trace trace("Boxs::~Boxs");
    Box_Normal = faces::drop(Box_Normal);
    Box_Select = faces::drop(Box_Select);
}

void Boxs::Init(HWND wnd) {
    Trace trace("Boxs::Init", *this);
    test |= TEST_INIT;
    if (wnd) Wnd = wnd;
    if (too_small(*this)) return trace.out("<0");
    if (missing_window(*this, "Boxs::Init")) return trace.out("!wnd");
    select = TRACK_NONE;
    default_color(*this);
    set_region(*this);
    if (Flag & OUTIL_EMPTY) {
        remember_shape(*this);
        return trace.out("OUTIL_EMPTY");
    }
    const bool whole = choose_surfaces(*this, wnd);
    remember_shape(*this);
    if (!whole) forget_shape(*this);
    remember_surfaces(*this);
}

void Boxs::Draw() {
    Trace trace("Boxs::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Box::Draw");
    if (too_small(*this)) return trace.out("<0");
    const Area whole = whole_area(*this);
    if (Flag & GRAPH_OUTLINE) {
        Cadre_Outline(whole.x1, whole.x2, whole.y1, whole.y2);
        paint_title(*this);
        return trace.out("GRAPH_OUTLINE");
    }
    const bool raised = (Flag & BOX_RAISED) != 0;
    if (!(Flag & OUTIL_NO_FRAME))
        Cadre(Flag, !raised, bevel_width(*this), whole.x1, whole.x2, whole.y1, whole.y2);
    if (Flag & BOX_INSET) {
        // Turned the other way than the bevel, so that both make a groove or a ridge; its dark line stays
        // whatever the flags say.
        const Area frame = box_inner_frame(*this);
        Cadre(1, Flag & BOX_RAISED, bevel_width(*this), frame.x1, frame.x2, frame.y1, frame.y2);
    }
    paint_title(*this);
    if (Flag & OUTIL_EMPTY) return trace.out("OUTIL_EMPTY");
    select = TRACK_NONE;
    Select(0);
}

int Boxs::Select(int mode) {
    Trace trace("Boxs::Select", *this);
    check_first_use(*this, "Box::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    const bool in = PtInRect(&Region, read_pointer(*this, "Boxs::Select"));
    if (event_of(mode) == KEY_QUERY) return in ? trace.out("KEY_QUERY:1", 1) : trace.out("KEY_QUERY:0", 0);
    if (Flag & OUTIL_DISABLE) {
        if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE:0", 0);
        paint_face(*this, false);
        return trace.out("OUTIL_DISABLE:0", 0);
    }
    if (faceless(*this))
        return in ? trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE:1", 1)
                  : trace.out("OUTIL_INVISIBLE|OUTIL_EMPTY:0", 0);
    const Track step = track(select, in);
    select = step.next;
    if (step.repaint) paint_face(*this, in);
    return in ? trace.out("1", 1) : trace.out("0", 0);
}

int Boxs::Read() {
    Trace trace("Boxs::Read", *this);
    check_first_use(*this, "Box::Read");
    return trace.out(too_small(*this) ? "<0" : "", 0);
}

void Boxs::Adjust() {
    Trace trace("Boxs::Adjust", *this);
    check_first_use(*this, "Box::Adjust");
    if (too_small(*this)) return trace.out("<0");
    select = TRACK_NONE;
    Select(0);
}

// Leaves `select` as it is: under a resting pointer the box does not light up again.
void Boxs::Deselect() {
    Trace trace("Boxs::Deselect", *this);
    if (!test) return trace.out("! this->test");
    if (too_small(*this)) return trace.out("< 0");
    if (faceless(*this)) return trace.out("OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    if (select == TRACK_NONE || select == TRACK_OUTSIDE) return trace.out("select == 0");
    paint_face(*this, false);
}
