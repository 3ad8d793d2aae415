#ifndef FOUNDATION_FACES_H
#define FOUNDATION_FACES_H

#include <cstdint>

#include <brask/tools.h>

namespace brask {

// Generated faces: surfaces that know their size, have counted owners, and are shared by all controls that
// want the same pixels. Two hundred equal buttons have four of them in all, which the processor's caches
// keep. They are given by their pixels, a block from malloc.

// Everything that decides the pixels of a face.
struct Look {
    int width, height; // at least 1
    int inset;         // width of the margin, which is never shown; at least 0
    DWORD color;       // surface word
    bool flat;
    int room = 0; // least number of pixels in the block; those after the picture have the face's colour
};

// The look that a control would give to a face of this colour.
Look look_of(const Tools& control, const Colors& color);

// 256 MB, several times the largest screen: no surface has more pixels.
inline constexpr std::int64_t MOST_PIXELS = 1 << 26;
// A block for so many pixels from malloc; null when memory fails, for less than one pixel, and for more than
// any screen has.
DWORD* surface_block(int width, int height);
// The pixels of a look, as a block of their own, not counted; null when memory fails.
DWORD* paint_look(const Look& look);

namespace faces {

// The face that the control needs in this colour: an equal one that others own
// already, or a new one. Null when memory fails. Traced as the painting of a face.
DWORD* ask(const Tools& control, const Colors& color);

// The face as one that may also be read as a surface of the control's size, whatever comes of that: another
// face, which the caller owns in place of this one. This one itself where it will do, and without memory.
DWORD* with_room(DWORD* face, const Tools& control);

// One owner more, for a control that was copied.
void share(const DWORD* face);
// One owner less; the last one frees it. Null, for `face = drop(face)`.
DWORD* drop(DWORD* face);

// Is this a face of another size than the control has now, without room for that? Such a face must not be
// read.
bool outgrown(const void* image, const Tools& control);

} // namespace faces

} // namespace brask

#endif
