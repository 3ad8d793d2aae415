#include "fenn/font_faces.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <new>
#include <tuple>
#include <vector>

#include FT_OUTLINE_H
#include FT_SYNTHESIS_H
#include FT_TRUETYPE_TABLES_H

namespace fenn {
namespace {

constexpr std::size_t MANY = 8192; // answers that are kept
constexpr int MAX_EM = 512;        // pixels; larger letters are no use in a window

struct Face {
    FontFile file;
    FT_Face ft; // null: the file could not be opened
    int em;
};

struct CodeKey {
    Wanted wanted;
    char32_t code, before;

    bool operator<(const CodeKey& other) const {
        return std::tie(code, before, wanted) < std::tie(other.code, other.before, other.wanted);
    }
};

struct Faces {
    FT_Library library = nullptr;
    std::vector<Face> opened;
    std::map<Wanted, int> fonts;
    std::map<CodeKey, int> fallbacks;

    Faces() {
        if (FT_Init_FreeType(&library)) library = nullptr;
    }
};

Faces& faces() {
    // Never destroyed: text may still be written while a host's own statics go.
    static Faces& all = *new Faces;
    return all;
}

bool is_same(const FontFile& a, const FontFile& b) {
    return a.path == b.path && a.index == b.index && a.embolden == b.embolden && a.slant == b.slant;
}

// An answer that only memory was short for must not be kept.
void need_memory(FT_Error error) {
    if (error == FT_Err_Out_Of_Memory) throw std::bad_alloc();
}

int open_file(const FontFile& file) {
    Faces& all = faces();
    if (file.path.empty() || !all.library) return NO_FACE;
    for (std::size_t i = 0; i < all.opened.size(); ++i)
        if (is_same(all.opened[i].file, file)) return all.opened[i].ft ? static_cast<int>(i) : NO_FACE;
    all.opened.push_back({file, nullptr, 0});
    FT_Face& ft = all.opened.back().ft;
    const FT_Error error = FT_New_Face(all.library, file.path.c_str(), file.index, &ft);
    if (error) ft = nullptr;
    if (error == FT_Err_Out_Of_Memory) all.opened.pop_back();
    need_memory(error);
    return ft ? static_cast<int>(all.opened.size()) - 1 : NO_FACE;
}

// The letters' size from the line's, and back.
int scale(int value, int by, int over) {
    return static_cast<int>((std::int64_t{value} * by + over / 2) / over);
}

void copy_bitmap(const FT_Bitmap& bitmap, Coverage& shape) {
    shape.width = static_cast<int>(bitmap.width);
    shape.height = static_cast<int>(bitmap.rows);
    shape.bytes.resize(static_cast<std::size_t>(shape.width) * shape.height);
    for (int y = 0; y < shape.height; ++y)
        std::copy_n(bitmap.buffer + std::ptrdiff_t{y} * bitmap.pitch, shape.width,
                    shape.bytes.data() + std::ptrdiff_t{y} * shape.width);
}

} // namespace

int open_font(const Wanted& wanted) {
    Faces& all = faces();
    const auto known = all.fonts.find(wanted);
    if (known != all.fonts.end()) return known->second;
    if (all.fonts.size() >= MANY) all.fonts.clear();
    return all.fonts[wanted] = open_file(find_font(wanted));
}

int open_fallback(const Wanted& wanted, char32_t code, char32_t before) {
    Faces& all = faces();
    const CodeKey key{wanted, code, before};
    const auto known = all.fallbacks.find(key);
    if (known != all.fallbacks.end()) return known->second;
    if (all.fallbacks.size() >= MANY) all.fallbacks.clear();
    std::vector<char32_t> codes{code};
    if (before) codes.push_back(before);
    int face = open_file(find_fallback(wanted, codes));
    // The list of a face's characters may promise more than the face keeps.
    if (face != NO_FACE && !face_has(face, code)) face = NO_FACE;
    return all.fallbacks[key] = face;
}

std::uint32_t face_glyph(int face, char32_t code) {
    return FT_Get_Char_Index(faces().opened[static_cast<std::size_t>(face)].ft, code);
}

bool face_has(int face, char32_t code) { return face_glyph(face, code) != 0; }

FT_Face face_at(int face, int em) {
    Face& opened = faces().opened[static_cast<std::size_t>(face)];
    if (opened.em != em && !FT_Set_Pixel_Sizes(opened.ft, 0, static_cast<FT_UInt>(em))) opened.em = em;
    return opened.ft;
}

void draw_face_glyph(int face, int em, int ascent, std::uint32_t glyph, Glyph& out) {
    const FT_Face ft = face_at(face, em);
    const FontFile& file = faces().opened[static_cast<std::size_t>(face)].file;
    FT_Error error = FT_Load_Glyph(ft, glyph, FT_LOAD_DEFAULT);
    need_memory(error);
    if (error) return;
    out.advance = static_cast<int>((ft->glyph->advance.x + 32) >> 6);
    if (file.embolden) FT_GlyphSlot_Embolden(ft->glyph);
    if (file.slant) FT_GlyphSlot_Oblique(ft->glyph);
    error = FT_Render_Glyph(ft->glyph, FT_RENDER_MODE_NORMAL);
    need_memory(error);
    if (error) return;
    if (ft->glyph->bitmap.pixel_mode != FT_PIXEL_MODE_GRAY) return;
    copy_bitmap(ft->glyph->bitmap, out.shape);
    out.shape.left = ft->glyph->bitmap_left;
    out.shape.top = ascent - ft->glyph->bitmap_top;
}

LineSize line_size(int face, int log_height) {
    const FT_Face ft = faces().opened[static_cast<std::size_t>(face)].ft;
    const auto os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(ft, FT_SFNT_OS2));
    const bool claims = os2 && os2->usWinAscent + os2->usWinDescent > 0;
    const int above = claims ? os2->usWinAscent : ft->ascender;
    const int below = claims ? os2->usWinDescent : -ft->descender;
    const int units = std::max<int>(ft->units_per_EM, 1);
    const int wanted = static_cast<int>(std::clamp<std::int64_t>(std::int64_t{log_height}, -MAX_EM, MAX_EM));
    int em = wanted < 0 ? -wanted : scale(wanted, units, std::max(above + below, 1));
    if (log_height == 0) em = 16;
    em = std::clamp(em, 1, MAX_EM);
    const int ascent = scale(above, em, units);
    return {em, ascent, std::max(ascent + scale(below, em, units), 1)};
}

} // namespace fenn
