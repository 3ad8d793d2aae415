#ifndef FENN_FONT_FACES_H
#define FENN_FONT_FACES_H

#include <cstdint>

#include <ft2build.h>
#include FT_FREETYPE_H

#include "fenn/font_finder.h"
#include "fenn/text_run.h"

// Opened faces, by number; a number stays good for the life of the process. Files of the system with
// FreeType.
namespace fenn {

constexpr int NO_FACE = -1;

// The face for a family; NO_FACE: the system has no font at all.
int open_font(const Wanted& wanted);
// A face that has this character, and the one before it too when that is not 0. NO_FACE: none has.
int open_fallback(const Wanted& wanted, char32_t code, char32_t before);

bool face_has(int face, char32_t code);
std::uint32_t face_glyph(int face, char32_t code); // 0: it has none
// The face for measuring and shaping at a size.
FT_Face face_at(int face, int em);
// A glyph's coverage and advance, whole pixels; `ascent` rows stand above the baseline.
void draw_face_glyph(int face, int em, int ascent, std::uint32_t glyph, Glyph& out);

// Lines as the desktop's other half measures them: the room that the face claims above and below.
struct LineSize {
    int em, ascent, height;
};
LineSize line_size(int face, int log_height);

} // namespace fenn

#endif
