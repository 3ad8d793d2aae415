#include "foundation/layout.h"

#include "foundation/pixels.h"
#include "foundation/surfaces.h"

namespace brask {

void default_color(Tools& control) {
    if (control.Color == Colors()) control.Color = Colors(170, 170, 170);
}

void set_region(Tools& control) {
    const Area area = whole_area(control);
    SetRect(&control.Region, area.x1, area.y1, Px(area.x2) + 1, Px(area.y2) + 1);
}

Anew surfaces_anew(const Tools& control, HWND wnd) {
    const bool reshaped = control.Dim_X != control.Old_Dim_X || control.Dim_Y != control.Old_Dim_Y ||
                          control.Border != control.Old_Border;
    const bool all = wnd || reshaped;
    // A host's surface that was taken away counts as well, even when nothing came in its place: the face it
    // hid is wanted now.
    return {all || control.Graph_Normal != control.Old_Graph_Normal || control.*Host_Surfaces::NORMAL.gone,
            all || control.Graph_Select != control.Old_Graph_Select || control.*Host_Surfaces::SELECT.gone};
}

bool recolored(const Tools& control) { return control.Color_Get() != control.Old_Color; }

void remember_shape(Tools& control) {
    control.Old_Dim_X = control.Dim_X;
    control.Old_Dim_Y = control.Dim_Y;
    control.Old_Border = control.Border;
    control.Old_Color = control.Color_Get();
}

void forget_shape(Tools& control) { control.Old_Dim_X = 0; } // which no control has then

void remember_surfaces(Tools& control) {
    control.Old_Graph_Normal = control.Graph_Normal;
    control.Old_Graph_Select = control.Graph_Select;
    Host_Surfaces::settle(control);
}

Area whole_area(const Tools& control) {
    return {control.Pos_X, Px(control.Pos_X) + control.Dim_X, control.Pos_Y,
            Px(control.Pos_Y) + control.Dim_Y};
}

} // namespace brask
