#ifndef FENN_TEXT_RUN_H
#define FENN_TEXT_RUN_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "raster/ink.h"

// Text that the layer renders itself: runs of glyphs as blocks of coverage, kept while they are in use.
namespace fenn {

struct Font;

// A block of coverage bytes and where it lies from the run's upper left corner, Y downward.
struct Coverage {
    int left = 0, top = 0, width = 0, height = 0;
    std::vector<std::uint8_t> bytes;
};

struct Glyph {
    Coverage shape;
    int advance = 0; // how far the pen moves on
};

// One glyph of a run and where it is put. What the number means is the font's matter, apart from HEX_BOX.
struct Placed {
    std::uint64_t glyph;
    int x, y;
};

// With this bit the rest of the number is a code point to be shown as a box.
constexpr std::uint64_t HEX_BOX = std::uint64_t{1} << 63;

// A text in a font: its width, and either its glyphs or the picture that they make.
struct Run {
    std::uint32_t font = 0;
    std::wstring text;
    int width = 0;
    std::vector<Placed> glyphs;
    bool painted = false;  // `picture` holds everything
    int left = 0, top = 0; // where the picture lies from the run's upper left corner, Y downward
    raster::Ink picture;
};

// How a kind of font does its work.
struct FontKind {
    void (*layout)(Font& font, const wchar_t* text, Run& run); // fills width and glyphs
    void (*draw)(Font& font, std::uint64_t glyph, Glyph& out);
};

// A face at a size.
struct Font {
    const FontKind* kind = nullptr;
    std::uint32_t id = 0; // never given twice
    int em = 16;          // pixels
    int height = 16;      // of a line
    int ascent = 13;      // of it above the baseline
    int style = 0;        // the kind's own matter
    wchar_t lone = 0;     // the one letter measured last, and its width: every label asks for a "W"
    int lone_width = 0;
};

std::uint32_t next_font_id();

// The glyph, from the cache; valid until the next call.
const Glyph& find_glyph(Font& font, std::uint64_t glyph);
// Puts a glyph at the run's end.
void append(Font& font, std::uint64_t glyph, Run& run);

int run_width(Font& font, const wchar_t* text);
// Writes into the open bracket, lower left corner in contract coordinates; gives the width.
int run_write(Font& font, int x, int y, const wchar_t* text, std::uint32_t color);

// What the caches hold at the moment, bytes; it stays below the limit, however much text passes through.
constexpr std::size_t TEXT_CACHE_LIMIT = 4u << 20;
std::size_t text_cache_bytes();
void text_cache_clear();

} // namespace fenn

#endif
