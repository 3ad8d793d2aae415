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
    return Host_Surfaces::allocate(*this, Host_Surfaces::NORMAL, word);
}

int Tools::Alloc_Graph_Select(unsigned long word) {
    return Host_Surfaces::allocate(*this, Host_Surfaces::SELECT, word);
}

// Reported like the faces that controls share, see faces::ask.
DWORD* Tools::Inside_3D(Colors color) {
    Trace trace("Tools::Inside_3D", *this);
    const Look look = look_of(*this, color);
    return trace.out(look.flat ? "no 3D" : "", paint_look(look));
}

namespace brask {

using Surfaces = Host_Surfaces;

const Surfaces::Side Surfaces::NORMAL = {&Tools::Graph_Normal, &Tools::Old_Graph_Normal, &Tools::Image_Normal,
                                         &Tools::Made_Normal, &Tools::Gone_Normal};
const Surfaces::Side Surfaces::SELECT = {&Tools::Graph_Select, &Tools::Old_Graph_Select, &Tools::Image_Select,
                                         &Tools::Made_Select, &Tools::Gone_Select};

int Surfaces::allocate(Tools& control, const Side& side, unsigned long word) {
    DWORD* old = control.*side.graph;
    control.*side.graph = nullptr;
    // A block that serves both looks lives on in the other one.
    const bool freed = old && old != control.Graph_Normal && old != control.Graph_Select;
    if (freed) std::free(old);
    const std::int64_t count = std::int64_t{control.Dim_X} * control.Dim_Y;
    DWORD* fresh = count < 1 ? nullptr : surface_block(control.Dim_X, control.Dim_Y);
    if (fresh) std::fill_n(fresh, count, static_cast<DWORD>(word));
    control.*side.graph = fresh;
    control.*side.made = {fresh, control.Dim_X, control.Dim_Y};
    if (freed) forget(control, old);
    if (fresh || count < 1) return 1;
    Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in new", __LINE__, "tools");
    return 0;
}

// Lets nothing name a block that is gone.
void Surfaces::forget(Tools& control, const DWORD* block) {
    for (const Side* side : {&NORMAL, &SELECT}) {
        if (control.*side->image == block) control.*side->image = control.*side->graph;
        if (control.*side->old != block) continue;
        control.*side->old = nullptr;
        control.*side->gone = block;
    }
}

bool Surfaces::outgrown(const void* image, const Tools& control) {
    for (const Side* side : {&NORMAL, &SELECT}) {
        const Tools::Made& made = control.*side->made;
        if (made.Block == image) return made.Dim_X != control.Dim_X || made.Dim_Y != control.Dim_Y;
    }
    return false;
}

DWORD* Surfaces::current(const Tools& control, const Side& side, DWORD* view) {
    return view && view == control.*side.gone ? control.*side.graph : view;
}

void Surfaces::settle(Tools& control) { control.Gone_Normal = control.Gone_Select = nullptr; }

} // namespace brask
