#ifndef FOUNDATION_PALETTE_H
#define FOUNDATION_PALETTE_H

namespace brask {

// The words that controls of all kinds are painted in, red in the low byte.

inline constexpr unsigned long WORD_BLACK = 1; // 0 would stand for the default
inline constexpr unsigned long WORD_WHITE = 0xFFFFFF;
inline constexpr unsigned long WORD_LIGHT = 0xD8D8D8;     // lit edges
inline constexpr unsigned long WORD_GREY = 0xAAAAAA;      // of a control without a colour of its own
inline constexpr unsigned long WORD_SHADOW = 0x6E6E6E;    // shaded edges, arrows, thumbs
inline constexpr unsigned long WORD_OUTLINE = 0xE64040;   // the outline look, and what is locked
inline constexpr unsigned long WORD_HIGHLIGHT = 0x6464E6; // the selected look of what has no surface

} // namespace brask

#endif
