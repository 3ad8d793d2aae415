#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "fenn/builtin_font.h"
#include "fenn/font_faces.h"
#include "fenn/painter.h"
#include "fenn/system_text.h"
#include "fenn/text_codes.h"
#include "fenn/text_run.h"
#include "fenn/text_shaping.h"
#include "platform/portable/surface.h"
#include "text/unicode.h"

// Text in the system's fonts where FreeType renders it.
namespace fenn {
namespace {

constexpr std::size_t MANY_FONTS = 64;

struct SystemKey {
    Wanted wanted;
    LONG height;

    bool operator<(const SystemKey& other) const {
        return std::tie(height, wanted) < std::tie(other.height, other.wanted);
    }
};

// Handles that were asked for lately. None is ever given twice, so that they need not be looked up.
struct Recent {
    HFONT handle;
    Font* font;
};

struct Fonts {
    std::map<SystemKey, ShapedFont> known;
    Recent recent[16] = {};
};

Fonts& fonts() {
    // Never destroyed: text may still be written while a host's own statics go.
    static Fonts& all = *new Fonts;
    return all;
}

Wanted wanted_of(const LOGFONTW& description) {
    wchar_t name[33] = {};
    std::copy_n(description.lfFaceName, 32, name);
    Wanted wanted;
    wanted.family = name[0] ? text::to_utf8(name) : "arial";
    wanted.bold = description.lfWeight >= 600;
    wanted.italic = description.lfItalic != 0;
    return wanted;
}

Font& make_font(const LOGFONTW& description) {
    Fonts& all = fonts();
    const SystemKey key{wanted_of(description), description.lfHeight};
    const auto known = all.known.find(key);
    if (known != all.known.end()) return known->second.font;
    const int face = open_font(key.wanted);
    if (face == NO_FACE) return builtin_font(description);
    if (all.known.size() >= MANY_FONTS) {
        all.known.clear();
        std::fill(std::begin(all.recent), std::end(all.recent), Recent{});
    }
    const LineSize size = line_size(face, description.lfHeight);
    ShapedFont made;
    made.font = {&shaped_kind, next_font_id(), size.em, size.height, size.ascent, 0};
    made.wanted = key.wanted;
    made.face = face;
    return (all.known[key] = std::move(made)).font;
}

Font& font_for(HFONT handle) {
    constexpr unsigned kind_bits = 4; // the same in all of them
    Recent& recent = fonts().recent[(reinterpret_cast<std::uintptr_t>(handle) >> kind_bits) % 16];
    if (recent.font && recent.handle == handle) return *recent.font;
    Font& font = make_font(describe_font(handle)); // may forget what is recent
    recent = {handle, &font};
    return font;
}

} // namespace

LOGFONTW describe_font(HFONT font) {
    const LOGFONTW* const description = platform::font_description(font);
    return description ? *description : default_font();
}

namespace system_text {

int height(HFONT font) { return font_for(font).height; }

int width(HFONT font, const wchar_t* text) { return run_width(font_for(font), text); }

int write(HFONT font, int x, int y, const wchar_t* text, std::uint32_t color) {
    return run_write(font_for(font), x, y, text, pixel_of(color));
}

} // namespace system_text
} // namespace fenn
