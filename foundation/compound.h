#ifndef FOUNDATION_COMPOUND_H
#define FOUNDATION_COMPOUND_H

#include <cstring>

#include <brask/tools.h>

#include "foundation/pixels.h"

namespace brask {

// What controls made of other controls do alike with these.

// A place inside a control.
struct Place {
    int x, y, width, height;
};
void put(Tools& part, const Place& place);
// What a part has from its whole: the clip rectangle, the colour, the font apart from its slant.
void lend_clip(const Tools& whole, Tools& part);
void lend_color(const Tools& whole, Tools& part);
void lend_font(const Tools& whole, Tools& part);
void lend_whole_font(const Tools& whole, Tools& part);
// The name, as text whatever it holds; or none.
void lend_name(const Tools& whole, Tools& part);
// What a frame has that stands around the whole: its place, colour and font apart from its slant.
void lay_around(const Tools& whole, Tools& frame);

// Back to all zeros, as a part is before its first use, with what the base owned released. No trace.
void release_base(Tools& part);
template <typename Part>
void clear_part(Part& part) {
    release_base(part);
    std::memset(static_cast<void*>(&part), 0, sizeof part);
}

// Is a part that has the pointer being dragged?
bool any_button_down();

// Names a part by a text that may hold anything: it is the format itself, without arguments, so that a
// conversion in it prints nothing.
int set_plain_name(Tools& part, const wchar_t* text);

// The bevel's width, without its sign.
int bevel_size(const Tools& control);
// A length that a host may leave to the library: without its sign, or the standard one when it is 0.
int length_or(int length, int standard);

// The control's font, to be asked for before a bracket; and its height. `tag` names the operation.
HFONT font_of(const Tools& control);
int font_height(const Tools& control, const char* tag);

// What the next Init compares with.
void remember_size(Tools& control);

} // namespace brask

#endif
