#include "foundation/compound.h"

#include <cstdlib>

#include <brask/fonts.h>
#include <brask/pointer.h>

#include "foundation/bracket.h"

namespace brask {

void put(Tools& part, const Place& place) {
    part.Pos_X = place.x;
    part.Pos_Y = place.y;
    part.Dim_X = place.width;
    part.Dim_Y = place.height;
}

void lend_clip(const Tools& whole, Tools& part) {
    part.Clip_X = whole.Clip_X;
    part.Clip_Y = whole.Clip_Y;
    part.Clip_Dim_X = whole.Clip_Dim_X;
    part.Clip_Dim_Y = whole.Clip_Dim_Y;
}

void lend_color(const Tools& whole, Tools& part) { part.Color = whole.Color; }

void lend_font(const Tools& whole, Tools& part) {
    part.Font_Name = whole.Font_Name;
    part.Font_Weight = whole.Font_Weight;
    part.Font_Size = whole.Font_Size;
}

void lend_whole_font(const Tools& whole, Tools& part) {
    lend_font(whole, part);
    part.Font_Slant = whole.Font_Slant;
}

void lend_name(const Tools& whole, Tools& part) {
    if (whole.W_Name)
        part.Name_Set(L"%ls", whole.W_Name);
    else
        part.Name_Set(nullptr);
}

void lay_around(const Tools& whole, Tools& frame) {
    put(frame, {whole.Pos_X, whole.Pos_Y, whole.Dim_X, whole.Dim_Y});
    lend_color(whole, frame);
    lend_font(whole, frame);
}

void release_base(Tools& part) {
    std::free(part.W_Name);
    if (part.Graph_Normal != part.Graph_Select) std::free(part.Graph_Normal);
    std::free(part.Graph_Select);
}

bool any_button_down() { return getbutton(4) || getbutton(2) || getbutton(1); }

int length_or(int length, int standard) {
    if (!length) return standard;
    return length < 0 ? -Px(length) : Px(length);
}

int bevel_size(const Tools& control) { return length_or(control.Border, BORDER); }

HFONT font_of(const Tools& control) {
    return Zeb_Create_Font(control.Wnd, control.Font_Name, control.Font_Weight, control.Font_Slant,
                           control.Font_Size);
}

int font_height(const Tools& control, const char* tag) {
    const HFONT font = font_of(control);
    Setup setup(control.Wnd, tag);
    return Zeb_Font_Size_Height(font);
}

void remember_size(Tools& control) {
    control.Old_Dim_X = control.Dim_X;
    control.Old_Dim_Y = control.Dim_Y;
    control.Old_Border = control.Border;
}

} // namespace brask
