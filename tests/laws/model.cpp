#include "model.h"

#include "laws.h"

namespace {

constexpr DWORD kNoFace = OUTIL_EMPTY | OUTIL_INVISIBLE | GRAPH_OUTLINE;

bool small(const Tools& control) { return control.Dim_X < 1 || control.Dim_Y < 1; }

// The check that most operations begin with.
void first_use(const Tools& control, Expected& e) {
    if (control.test & 3) return;
    e.warns = true;
    e.test = 2;
}

// What tracking comes to, for each of the two controls that track.
struct Tags {
    const char *hidden_outside, *still_inside, *still_outside;
};
const Tags kBoxTags = {"OUTIL_INVISIBLE|OUTIL_EMPTY:0", "1", "0"};
const Tags kButtonTags = {"OUTIL_EMPTY|OUTIL_INVISIBLE:0", "select == 1", "select == 2:0"};

void track(const Tools& control, const Tags& tags, int mode, bool inside, Expected& e) {
    if ((mode & 15) == KEY_QUERY) {
        e.answer = inside;
        e.tag = inside ? "KEY_QUERY:1" : "KEY_QUERY:0";
        return;
    }
    if (control.Flag & OUTIL_DISABLE) {
        e.tag = control.Flag & kNoFace ? "OUTIL_EMPTY|OUTIL_INVISIBLE:0" : "OUTIL_DISABLE:0";
        e.must_paint = !(control.Flag & kNoFace);
        return;
    }
    e.answer = inside;
    if (control.Flag & kNoFace) {
        e.tag = inside ? "OUTIL_EMPTY|OUTIL_INVISIBLE:1" : tags.hidden_outside;
        return;
    }
    const int look = inside ? 1 : 2;
    if (e.select == look) {
        e.tag = inside ? tags.still_inside : tags.still_outside;
        return;
    }
    e.select = look;
    e.tag = inside ? "1" : "0";
    e.must_paint = true;
}

// Draw and Adjust end so: the tracking starts anew and paints the look that the pointer asks for.
void repaint(const Tools& control, const Tags& tags, bool inside, Expected& e) {
    e.select = 0;
    track(control, tags, 0, inside, e);
    e.answer = 0;
    e.tag = "";
}

void deselect(const Tools& control, bool resets, Expected& e) {
    if (!control.test)
        e.tag = "! this->test";
    else if (small(control))
        e.tag = "< 0";
    else if (control.Flag & kNoFace)
        e.tag = "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE";
    else if (e.select != 1)
        e.tag = "select == 0";
    else {
        e.must_paint = true;
        if (resets) e.select = 0;
    }
}

void init(const Tools& control, Act act, Expected& e) {
    e.test |= 1;
    if (small(control))
        e.tag = "<0";
    else if (act == Act::Init && !control.Wnd) {
        e.tag = "!wnd";
        e.warns = true;
    } else {
        e.select = 0;
        e.tag = control.Flag & OUTIL_EMPTY ? "OUTIL_EMPTY" : "";
    }
}

// The ways out that Draw, Select, Adjust and Read of a box and a button share; false when the act goes on.
bool stopped(const Tools& control, Expected& e) {
    first_use(control, e);
    if (small(control)) e.tag = "<0";
    return small(control);
}

void draw(const Tools& control, const Tags& tags, bool inside, Expected& e) {
    if (control.Flag & OUTIL_INVISIBLE) {
        e.tag = "OUTIL_INVISIBLE";
        return;
    }
    if (stopped(control, e)) return;
    e.may_paint = true;
    if (control.Flag & GRAPH_OUTLINE)
        e.tag = "GRAPH_OUTLINE";
    else if (control.Flag & OUTIL_EMPTY)
        e.tag = "OUTIL_EMPTY";
    else
        repaint(control, tags, inside, e);
}

} // namespace

Expected expected_of(const Boxs& box, Act act, int mode, POINT pointer) {
    Expected e;
    e.select = box.select;
    e.test = box.test;
    const bool inside = hits(box, pointer);
    if (act == Act::Init || act == Act::InitWindow)
        init(box, act, e);
    else if (act == Act::Draw)
        draw(box, kBoxTags, inside, e);
    else if (act == Act::Deselect)
        deselect(box, false, e);
    else if (!stopped(box, e)) {
        if (act == Act::Select) track(box, kBoxTags, mode, inside, e);
        if (act == Act::Adjust) repaint(box, kBoxTags, inside, e);
    }
    return e;
}

Expected expected_of(const Buttons& button, Act act, int mode, POINT pointer) {
    Expected e;
    e.select = button.select;
    e.test = button.test;
    const bool inside = hits(button, pointer);
    if (act == Act::Init || act == Act::InitWindow)
        init(button, act, e);
    else if (act == Act::Draw)
        draw(button, kButtonTags, inside, e);
    else if (act == Act::Deselect)
        deselect(button, true, e);
    else if (act == Act::Read) {
        first_use(button, e);
        e.answer = button.Cur_Value;
    } else if (!stopped(button, e)) {
        if (act == Act::Select) track(button, kButtonTags, mode, inside, e);
        if (act == Act::Adjust) {
            if (button.Flag & OUTIL_INVISIBLE)
                e.tag = "OUTIL_INVISIBLE";
            else if (!(button.Flag & BUTTON_LAMP) &&
                     static_cast<unsigned>(button.Cur_Value) == button.Old_Value)
                e.tag = "Cur_Value == Old_Value";
            else if (button.Flag & (OUTIL_EMPTY | GRAPH_OUTLINE)) {
                e.tag = "OUTIL_EMPTY";
                e.may_paint = true;
            } else {
                e.may_paint = true;
                repaint(button, kButtonTags, inside, e);
            }
        }
    }
    return e;
}

Expected expected_of(const Labels& label, Act act, int, POINT) {
    Expected e;
    e.test = label.test;
    if (act == Act::Init || act == Act::InitWindow) {
        init(label, act, e);
        if (e.tag == "OUTIL_EMPTY") e.tag = "";
        return e;
    }
    if (label.Flag & OUTIL_INVISIBLE)
        e.tag = "OUTIL_INVISIBLE";
    else if (!stopped(label, e)) {
        e.tag = label.W_Name ? "" : "! Name";
        e.may_paint = label.W_Name;
    }
    return e;
}
