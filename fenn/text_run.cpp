#include "fenn/text_run.h"

#include <algorithm>
#include <cwchar>
#include <unordered_map>
#include <utility>

#include "fenn/builtin_font.h"
#include "fenn/painter.h"
#include "raster/images.h"

namespace fenn {
namespace {

constexpr std::size_t GLYPH_LIMIT = 1u << 20;
constexpr std::size_t RUN_LIMIT = 1u << 20;     // of each of the two ages
constexpr std::size_t LONG_TEXT = 512;          // units; longer ones are kept only until the next one
constexpr std::size_t LARGE_PICTURE = 1u << 16; // bytes; larger runs are painted glyph by glyph

using GlyphMap = std::unordered_map<std::uint64_t, Glyph>;
using RunMap = std::unordered_map<std::uint64_t, Run>;

// Runs come in two ages: when the young ones fill their part, the old ones go and the young ones grow old; an
// old one that is used again is young again.
struct Caches {
    GlyphMap glyphs;
    std::size_t glyph_bytes = 0;
    RunMap young, old;
    std::size_t young_bytes = 0, old_bytes = 0;
    Run long_run;
    Run* recent[2] = {}; // among the young, the last one first: a label asks for the same two again and again
};

Caches& caches() {
    // Never destroyed: text may still be written while a host's own statics go.
    static Caches& all = *new Caches;
    return all;
}

std::uint64_t mix(std::uint64_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
    return hash ^ hash >> 29;
}

std::size_t size_of(const Glyph& glyph) { return sizeof glyph + glyph.shape.bytes.size() + 32; }

std::size_t size_of(const Run& run) {
    return sizeof run + run.text.size() * sizeof(wchar_t) + run.glyphs.capacity() * sizeof(Placed) +
           run.picture.eights.capacity() * sizeof(raster::Eight) + 32;
}

void make_room_for_runs(Caches& all) {
    if (all.young_bytes < RUN_LIMIT) return;
    all.old = std::move(all.young);
    all.young = RunMap();
    all.recent[0] = all.recent[1] = nullptr;
    all.old_bytes = std::exchange(all.young_bytes, 0);
}

void lay_out(Font& font, const wchar_t* text, std::size_t length, Run& run) {
    run = Run();
    run.text.assign(text, length);
    font.kind->layout(font, text, run);
    run.glyphs.shrink_to_fit();
    run.font = font.id; // at last: without memory it is nobody's
}

bool is_of(const Run& run, const Font& font, const wchar_t* text, std::size_t length) {
    return run.font == font.id && run.text.size() == length && !std::wmemcmp(run.text.data(), text, length);
}

struct Key {
    std::uint64_t hash;
    std::size_t length;
};

Key key_of(const Font& font, const wchar_t* text) {
    const wchar_t* at = text;
    std::uint64_t hash = mix(0, font.id);
    for (; *at; ++at)
        hash = mix(hash, static_cast<std::uint32_t>(*at));
    return {hash, static_cast<std::size_t>(at - text)};
}

Run* find_recent(Caches& all, const Font& font, const wchar_t* text) {
    for (Run*& run : all.recent) {
        if (!run || run->font != font.id || run->text[0] != *text) continue;
        if (std::wcscmp(run->text.c_str(), text) != 0) continue;
        std::swap(run, all.recent[0]);
        return all.recent[0];
    }
    return nullptr;
}

Run& remember(Caches& all, Run& run) {
    all.recent[1] = all.recent[0];
    return *(all.recent[0] = &run);
}

Run& find_run(Font& font, const wchar_t* text) {
    Caches& all = caches();
    if (Run* const run = find_recent(all, font, text)) return *run;
    const Key key = key_of(font, text);
    if (key.length > LONG_TEXT) {
        if (!is_of(all.long_run, font, text, key.length)) lay_out(font, text, key.length, all.long_run);
        return all.long_run;
    }
    const auto young = all.young.find(key.hash);
    if (young != all.young.end() && is_of(young->second, font, text, key.length))
        return remember(all, young->second);
    make_room_for_runs(all);
    auto node = all.old.extract(key.hash);
    Run fresh;
    const bool is_known = node && is_of(node.mapped(), font, text, key.length);
    if (node) all.old_bytes -= size_of(node.mapped());
    if (is_known)
        fresh = std::move(node.mapped());
    else
        lay_out(font, text, key.length, fresh);
    Run& run = all.young[key.hash];
    if (run.font) all.young_bytes -= size_of(run);
    run = std::move(fresh);
    all.young_bytes += size_of(run);
    return remember(all, run);
}

// Both let a part of the ground through; together they let through what neither covers.
std::uint8_t join(std::uint8_t a, std::uint8_t b) {
    return static_cast<std::uint8_t>(a + b - (a * b + 127) / 255);
}

void add(const Coverage& shape, int x, int y, Coverage& picture) {
    const int left = x + shape.left - picture.left;
    const int top = y + shape.top - picture.top;
    for (int row = 0; row < shape.height; ++row) {
        const std::uint8_t* const from = shape.bytes.data() + std::ptrdiff_t{row} * shape.width;
        std::uint8_t* const to = picture.bytes.data() + std::ptrdiff_t{top + row} * picture.width + left;
        for (int i = 0; i < shape.width; ++i)
            to[i] = join(to[i], from[i]);
    }
}

void frame_in(const Coverage& shape, int x, int y, raster::Rect& box) {
    if (shape.bytes.empty()) return;
    box.left = std::min(box.left, x + shape.left);
    box.top = std::min(box.top, y + shape.top);
    box.right = std::max(box.right, x + shape.left + shape.width);
    box.bottom = std::max(box.bottom, y + shape.top + shape.height);
}

// Makes one picture of the run's glyphs, unless it would be large.
bool compose(Font& font, Run& run) {
    if (std::int64_t{run.width} * font.height > std::int64_t{4 * LARGE_PICTURE}) return false;
    constexpr int remote = 1 << 28; // beyond any glyph
    raster::Rect box{remote, remote, -remote, -remote};
    for (const Placed& placed : run.glyphs)
        frame_in(find_glyph(font, placed.glyph).shape, placed.x, placed.y, box);
    if (box.left < box.right) {
        const std::size_t width = static_cast<std::size_t>(box.right - box.left);
        const std::size_t height = static_cast<std::size_t>(box.bottom - box.top);
        if (width * height > LARGE_PICTURE) return false;
        Coverage picture{box.left, box.top, static_cast<int>(width), static_cast<int>(height), {}};
        picture.bytes.assign(width * height, 0);
        for (const Placed& placed : run.glyphs)
            add(find_glyph(font, placed.glyph).shape, placed.x, placed.y, picture);
        run.left = picture.left;
        run.top = picture.top;
        run.picture = raster::make_ink(picture.bytes.data(), picture.width, picture.height, picture.width);
    }
    run.glyphs = {};
    return run.painted = true;
}

void paint(const Bracket& target, const Coverage& shape, int x, int y, std::uint32_t color) {
    const int left = x + shape.left;
    const int top = y + shape.top;
    const raster::Rect& clip = target.clip;
    if (left >= clip.right || top >= clip.bottom || left + shape.width <= clip.left ||
        top + shape.height <= clip.top)
        return;
    raster::mask(target.canvas, clip, {left, top}, shape.bytes.data(), shape.width, shape.height, shape.width,
                 color);
    changed({left, top, left + shape.width, top + shape.height});
}

// Glyphs far out of the clip are not even rendered.
void paint_glyphs(const Bracket& target, Font& font, const Run& run, int x, int y, std::uint32_t color) {
    const int reach = 4 * std::max(font.em, font.height);
    for (const Placed& placed : run.glyphs) {
        const int pen = x + placed.x;
        if (pen < target.clip.left - reach || pen > target.clip.right + reach) continue;
        paint(target, find_glyph(font, placed.glyph).shape, pen, y + placed.y, color);
    }
}

} // namespace

std::uint32_t next_font_id() {
    static std::uint32_t last = 0;
    return ++last;
}

const Glyph& find_glyph(Font& font, std::uint64_t glyph) {
    Caches& all = caches();
    const std::uint64_t key = mix(mix(0, font.id), glyph);
    const auto at = all.glyphs.find(key);
    if (at != all.glyphs.end()) return at->second;
    if (all.glyph_bytes > GLYPH_LIMIT) {
        all.glyphs = GlyphMap();
        all.glyph_bytes = 0;
    }
    Glyph fresh;
    if (glyph & HEX_BOX)
        draw_hex_box(static_cast<char32_t>(glyph & 0x1FFFFF), font.em, font.ascent, fresh);
    else
        font.kind->draw(font, glyph, fresh);
    Glyph& kept = all.glyphs[key] = std::move(fresh);
    all.glyph_bytes += size_of(kept);
    return kept;
}

void append(Font& font, std::uint64_t glyph, Run& run) {
    const int advance = find_glyph(font, glyph).advance;
    run.glyphs.push_back({glyph, run.width, 0});
    run.width = limit(std::int64_t{run.width} + advance);
}

int run_width(Font& font, const wchar_t* text) {
    if (!*text || text[1]) return find_run(font, text).width;
    if (font.lone != *text) {
        font.lone_width = find_run(font, text).width;
        font.lone = *text;
    }
    return font.lone_width;
}

int run_write(Font& font, int x, int y, const wchar_t* text, std::uint32_t color) {
    Run& run = find_run(font, text);
    const Bracket* const target = bracket();
    if (!target) return run.width;
    const int left = limit(x);
    const int top = limit(std::int64_t{flip(target->canvas, y)} - (font.height - 1));
    if (!run.painted) {
        const std::size_t before = size_of(run);
        if (!compose(font, run)) {
            paint_glyphs(*target, font, run, left, top, color);
            return run.width;
        }
        if (&run != &caches().long_run) caches().young_bytes += size_of(run) - before;
    }
    if (run.picture.eights.empty()) return run.width;
    const raster::Point to{limit(std::int64_t{left} + run.left), limit(std::int64_t{top} + run.top)};
    raster::paint_ink(target->canvas, target->clip, to, run.picture, color);
    changed({to.x, to.y, to.x + run.picture.width, to.y + run.picture.height});
    return run.width;
}

std::size_t text_cache_bytes() {
    const Caches& all = caches();
    return all.glyph_bytes + all.young_bytes + all.old_bytes;
}

void text_cache_clear() { caches() = Caches(); }

} // namespace fenn
