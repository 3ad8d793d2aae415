#include "fenn/text_shaping.h"

#include <memory>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <raqm.h>

#include "fenn/font_faces.h"
#include "fenn/painter.h"
#include "fenn/text_codes.h"
#include "text/unicode.h"

namespace fenn {
namespace {

// The shaping library is opened when the first text needs it: most programs never do, and it brings a dozen
// others along.
struct Shaper {
    decltype(&raqm_create) create;
    decltype(&raqm_destroy) destroy;
    decltype(&raqm_set_text) set_text;
    decltype(&raqm_set_par_direction) set_par_direction;
    decltype(&raqm_set_freetype_face_range) set_freetype_face_range;
    decltype(&raqm_set_freetype_load_flags) set_freetype_load_flags;
    decltype(&raqm_layout) layout;
    decltype(&raqm_get_glyphs) get_glyphs;
    bool is_there;

    Shaper() {
        void* const library = dlopen("libraqm.so.0", RTLD_NOW | RTLD_LOCAL);
        is_there = library && find(library, "raqm_create", create) &&
                   find(library, "raqm_destroy", destroy) && find(library, "raqm_set_text", set_text) &&
                   find(library, "raqm_set_par_direction", set_par_direction) &&
                   find(library, "raqm_set_freetype_face_range", set_freetype_face_range) &&
                   find(library, "raqm_set_freetype_load_flags", set_freetype_load_flags) &&
                   find(library, "raqm_layout", layout) && find(library, "raqm_get_glyphs", get_glyphs);
    }

    template <class Function>
    static bool find(void* library, const char* name, Function& function) {
        function = reinterpret_cast<Function>(dlsym(library, name));
        return function != nullptr;
    }
};

const Shaper& shaper() {
    static const Shaper only;
    return only;
}

// One character and the face that shows it.
struct Item {
    char32_t code;
    int face; // NO_FACE: its code is shown instead
};

ShapedFont& shaped(Font& font) { return reinterpret_cast<ShapedFont&>(font); }

int face_for(const ShapedFont& font, char32_t code) {
    if (is_control(code)) return NO_FACE;
    return face_has(font.face, code) ? font.face : open_fallback(font.wanted, code, 0);
}

// What sits on a character is taken from the same face, and if that lacks it, both from one that has both.
void place_on_last(const ShapedFont& font, char32_t code, std::vector<Item>& items) {
    Item& base = items.back();
    if (base.face != NO_FACE && (is_invisible(code) || face_has(base.face, code))) {
        items.push_back({code, base.face});
        return;
    }
    const int both = is_invisible(code) ? NO_FACE : open_fallback(font.wanted, code, base.code);
    if (both != NO_FACE) base.face = both;
    items.push_back({code, both != NO_FACE || is_invisible(code) ? both : face_for(font, code)});
}

std::vector<Item> itemise(const ShapedFont& font, const wchar_t* text) {
    std::vector<Item> items;
    while (char32_t code = text::next(text)) {
        if (is_blank_control(code)) code = U' ';
        if (!items.empty() && (is_combining(code) || is_invisible(code)))
            place_on_last(font, code, items);
        else
            items.push_back({code, is_invisible(code) ? font.face : face_for(font, code)});
    }
    return items;
}

void append_item(Font& font, const Item& item, Run& run) {
    const bool is_missing = item.face == NO_FACE;
    append(font, is_missing ? HEX_BOX | item.code : glyph_number(item.face, face_glyph(item.face, item.code)),
           run);
}

bool is_simple_text(const wchar_t* text) {
    while (const char32_t code = text::next(text))
        if (!is_simple(code)) return false;
    return true;
}

void layout_simple(Font& font, const wchar_t* text, Run& run) {
    while (char32_t code = text::next(text)) {
        if (is_invisible(code)) continue;
        if (is_blank_control(code)) code = U' ';
        append_item(font, {code, face_for(shaped(font), code)}, run);
    }
}

// Pixels from 64ths.
int whole(std::int64_t value) { return limit((value + 32) >> 6); }

void place_shaped(Font& font, const std::vector<Item>& items, const raqm_glyph_t* glyphs, std::size_t count,
                  Run& run) {
    std::int64_t pen = 0; // 64ths of a pixel
    std::size_t last_box = items.size();
    for (std::size_t i = 0; i < count; ++i) {
        const raqm_glyph_t& glyph = glyphs[i];
        const Item& item = items[glyph.cluster];
        if (item.face == NO_FACE || (glyph.index == 0 && !is_invisible(item.code))) {
            if (last_box == glyph.cluster) continue;
            last_box = glyph.cluster;
            run.width = whole(pen);
            append(font, HEX_BOX | item.code, run);
            pen = std::int64_t{run.width} * 64;
            continue;
        }
        run.glyphs.push_back(
            {glyph_number(item.face, glyph.index), whole(pen + glyph.x_offset), -whole(glyph.y_offset)});
        pen += glyph.x_advance;
    }
    run.width = whole(pen);
}

// Pictographs join into one picture; those that are missing are shown one by one.
char32_t code_to_shape(const Item& item) {
    const bool is_pictograph = item.code >= 0x1F000 && item.code < 0x20000;
    return item.face == NO_FACE && is_pictograph ? 0xFFFD : item.code;
}

bool shape(const Shaper& with, raqm_t* job, Font& font, const std::vector<Item>& items, Run& run) {
    std::u32string codes;
    for (const Item& item : items)
        codes += code_to_shape(item);
    const auto first = reinterpret_cast<const std::uint32_t*>(codes.data());
    if (!with.set_text(job, first, codes.size()) || !with.set_par_direction(job, RAQM_DIRECTION_DEFAULT) ||
        !with.set_freetype_load_flags(job, FT_LOAD_DEFAULT))
        return false;
    for (std::size_t i = 0, end; i < items.size(); i = end) {
        for (end = i + 1; end < items.size() && items[end].face == items[i].face;)
            ++end;
        const int face = items[i].face == NO_FACE ? shaped(font).face : items[i].face;
        if (!with.set_freetype_face_range(job, face_at(face, font.em), i, end - i)) return false;
    }
    std::size_t count = 0;
    const raqm_glyph_t* const glyphs = with.layout(job) ? with.get_glyphs(job, &count) : nullptr;
    if (glyphs) place_shaped(font, items, glyphs, count, run);
    return glyphs != nullptr;
}

bool layout_shaped(Font& font, const wchar_t* text, Run& run) {
    const Shaper& with = shaper();
    if (!with.is_there) return false;
    const std::vector<Item> items = itemise(shaped(font), text);
    const std::unique_ptr<raqm_t, decltype(with.destroy)> job(with.create(), with.destroy);
    return job && shape(with, job.get(), font, items, run);
}

void layout(Font& font, const wchar_t* text, Run& run) {
    if (is_simple_text(text) || !layout_shaped(font, text, run)) layout_simple(font, text, run);
}

void draw(Font& font, std::uint64_t glyph, Glyph& out) {
    draw_face_glyph(static_cast<int>(glyph >> 32), font.em, font.ascent, static_cast<std::uint32_t>(glyph),
                    out);
}

} // namespace

const FontKind shaped_kind{layout, draw};

} // namespace fenn
