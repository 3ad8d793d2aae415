#include <brask/labels.h>

#include <cstring>

#include <brask/fonts.h>

#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/layout.h"
#include "foundation/trace.h"

using namespace brask;

Labels::Labels() {
    Trace trace("Labels::Labels");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}

Labels::Labels(const Labels&) = default;
Labels& Labels::operator=(const Labels&) = default;

Labels::~Labels() { Trace trace("Labels::~Labels"); }

void Labels::Init(HWND wnd) {
    Trace trace("Labels::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0"); // the window is not even stored
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Labels::Init")) return trace.out("!wnd");
    // Color has no default: black text is the default colour of text.
    if (Color_Alt == Colors()) Color_Alt = Colors(255, 255, 255);
    set_region(*this);
}

void Labels::Draw() {
    Trace trace("Labels::Draw", *this);
    if (Flag & OUTIL_INVISIBLE) return trace.out("OUTIL_INVISIBLE");
    check_first_use(*this, "Labels::Draw");
    if (too_small(*this)) return trace.out("<0");
    if (!W_Name) return trace.out("! Name");
    Text(W_Name, Flag, Pos_X, Pos_Y, Dim_X, Dim_Y, Border, Color_Get());
}

int Labels::Get_X() {
    Trace trace("Labels::Gey_X", *this); // so spelt in the traces
    const HFONT font = Zeb_Create_Font(Wnd, Font_Name, Font_Weight, Font_Slant, Font_Size);
    Setup setup(Wnd, "Tools::Text");
    return W_Name ? Zeb_Font_Size_String(font, W_Name) : 0;
}
