#include <brask/tools.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "foundation/faces.h"
#include "foundation/surfaces.h"
#include "foundation/trace.h"

using namespace brask;

// The surfaces that a host paints in, and the colour that everything starts from.

unsigned int Tools::Color_Get() const { return static_cast<unsigned int>(Color.get()); }
void Tools::Color_Set(unsigned char r, unsigned char g, unsigned char b) { Color = Colors(r, g, b); }
void Tools::Color_Set(unsigned int word) { Color.set(word); }
void Tools::Color_Set(Colors color) { Color.set(color); }

int Tools::Alloc_Graph_Normal(unsigned long word) {
    return Host_Surfaces::allocate(*this, &Tools::Graph_Normal, word);
}

int Tools::Alloc_Graph_Select(unsigned long word) {
    return Host_Surfaces::allocate(*this, &Tools::Graph_Select, word);
}

// Reported like the faces that controls share, see faces::ask.
DWORD* Tools::Inside_3D(Colors color) {
    Trace trace("Tools::Inside_3D", *this);
    const Look look = look_of(*this, color);
    return trace.out(look.flat ? "no 3D" : "", paint_look(look));
}

namespace brask {

int Host_Surfaces::allocate(Tools& control, DWORD* Tools::*field, unsigned long word) {
    DWORD* old = control.*field;
    control.*field = nullptr;
    // A block that serves both looks lives on in the other one.
    const bool freed = old && old != control.Graph_Normal && old != control.Graph_Select;
    if (freed) release(control, old);
    const std::int64_t count = std::int64_t{control.Dim_X} * control.Dim_Y;
    if (count >= 1) {
        control.*field = surface_block(control.Dim_X, control.Dim_Y);
        if (control.*field) std::fill_n(control.*field, count, static_cast<DWORD>(word));
    }
    if (freed) renew_views(control, old);
    if (count < 1 || control.*field) return 1;
    Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in new", __LINE__, "tools");
    return 0;
}

void Host_Surfaces::release(Tools& control, DWORD* block) {
    if (control.Old_Graph_Normal == block) {
        control.Gone_Normal = block;
        control.Old_Graph_Normal = nullptr;
    }
    if (control.Old_Graph_Select == block) {
        control.Gone_Select = block;
        control.Old_Graph_Select = nullptr;
    }
    std::free(block);
}

void Host_Surfaces::renew_views(Tools& control, DWORD* block) {
    if (control.Image_Normal == block) control.Image_Normal = control.Graph_Normal;
    if (control.Image_Select == block) control.Image_Select = control.Graph_Select;
}

DWORD* Host_Surfaces::normal_view(const Tools& control, DWORD* view) {
    return view && view == control.Gone_Normal ? control.Graph_Normal : view;
}

DWORD* Host_Surfaces::select_view(const Tools& control, DWORD* view) {
    return view && view == control.Gone_Select ? control.Graph_Select : view;
}

void Host_Surfaces::settle(Tools& control) { control.Gone_Normal = control.Gone_Select = nullptr; }

} // namespace brask
