#ifndef FENN_TEXT_SHAPING_H
#define FENN_TEXT_SHAPING_H

#include "fenn/font_finder.h"
#include "fenn/text_run.h"

// Layout in the system's faces: a short way for text of one glyph a character, shaping for the rest.
namespace fenn {

// A font of the system's; `font` is its first member, from which the rest is found again.
struct ShapedFont {
    Font font;
    Wanted wanted;
    int face; // the first one to be asked for a glyph
};

extern const FontKind shaped_kind;

// A glyph's number is made of its face and its place in that.
constexpr std::uint64_t glyph_number(int face, std::uint32_t glyph) {
    return static_cast<std::uint64_t>(face) << 32 | glyph;
}

} // namespace fenn

#endif
