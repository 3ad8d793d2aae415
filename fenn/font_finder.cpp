#include "fenn/font_finder.h"

#include <cstdlib>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

#include <fontconfig/fontconfig.h>

namespace fenn {
namespace {

// Reading the whole configuration of a desktop takes longer than everything else up to the first text, so a
// family that is there by its own name, or by that of its twin, is found with these few lines. For whatever
// they do not answer the whole configuration is read.
constexpr char SHORT_CONFIG[] = "<fontconfig>"
                                "<dir>/usr/share/fonts</dir><dir>/usr/local/share/fonts</dir>"
                                "<dir prefix=\"xdg\">fonts</dir><dir>~/.fonts</dir>"
                                "<cachedir>/var/cache/fontconfig</cachedir>"
                                "<cachedir prefix=\"xdg\">fontconfig</cachedir>"
                                "</fontconfig>";

// Families that are seldom installed, and those of the same widths, best first.
struct Twins {
    const char* family;
    const char* names[4];
};
constexpr Twins twins[] = {
    {"arial", {"Arial", "Liberation Sans", "Arimo", nullptr}},
    {"helvetica", {"Helvetica", "Liberation Sans", "Arimo", nullptr}},
    {"times new roman", {"Times New Roman", "Liberation Serif", "Tinos", nullptr}},
    {"courier new", {"Courier New", "Liberation Mono", "Cousine", nullptr}},
};

struct ConfigEnd {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
struct PatternEnd {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
struct SetEnd {
    void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};
using Config = std::unique_ptr<FcConfig, ConfigEnd>;
using Pattern = std::unique_ptr<FcPattern, PatternEnd>;
using FontSet = std::unique_ptr<FcFontSet, SetEnd>;

const FcChar8* fc(const char* text) { return reinterpret_cast<const FcChar8*>(text); }

bool is_same(const char* a, const char* b) { return FcStrCmpIgnoreCase(fc(a), fc(b)) == 0; }

// Where the environment names a configuration, that one alone says which fonts there are.
bool is_configured_apart() {
    for (const char* name : {"FONTCONFIG_FILE", "FONTCONFIG_PATH", "FONTCONFIG_SYSROOT"})
        if (std::getenv(name)) return true;
    return false;
}

// The whole configuration, read when it is needed.
struct Finder {
    Config config{FcInitLoadConfigAndFonts()};
    std::map<Wanted, FontSet> orders; // fallback faces, best first
};

Finder* only = nullptr;

// fontconfig links its data by offsets, which a search for leaked memory does not follow: so it is freed at
// the end. A text written still later reads it anew.
struct FinderEnd {
    ~FinderEnd() {
        delete only;
        only = nullptr;
    }
} finder_end;

Finder& finder() {
    if (only && !only->config) delete std::exchange(only, nullptr); // memory may be there now
    if (!only) only = new Finder;
    return *only;
}

Pattern make_pattern(const Wanted& wanted, const char* family) {
    Pattern pattern(FcPatternCreate());
    if (!pattern) return pattern;
    FcPatternAddString(pattern.get(), FC_FAMILY, fc(family));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, wanted.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT, wanted.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    return pattern;
}

// A family that nobody knows is shown like Arial.
Pattern whole_pattern(FcConfig* config, const Wanted& wanted) {
    Pattern pattern = make_pattern(wanted, wanted.family.c_str());
    if (!pattern) return pattern;
    FcPatternAddString(pattern.get(), FC_FAMILY, fc("Arial"));
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

bool get_bool(FcPattern* found, const char* property) {
    FcBool value = FcFalse;
    return FcPatternGetBool(found, property, 0, &value) == FcResultMatch && value;
}

int get_integer(FcPattern* found, const char* property, int otherwise) {
    int value = otherwise;
    FcPatternGetInteger(found, property, 0, &value);
    return value;
}

bool is_usable(FcPattern* found) { return get_bool(found, FC_SCALABLE) && !get_bool(found, FC_COLOR); }

FontFile file_of(FcPattern* found, const Wanted& wanted) {
    FcChar8* path = nullptr;
    FontFile file;
    if (FcPatternGetString(found, FC_FILE, 0, &path) != FcResultMatch) return file;
    file.path = reinterpret_cast<const char*>(path);
    file.index = get_integer(found, FC_INDEX, 0);
    file.embolden = wanted.bold && get_integer(found, FC_WEIGHT, FC_WEIGHT_REGULAR) < FC_WEIGHT_DEMIBOLD;
    file.slant = wanted.italic && get_integer(found, FC_SLANT, FC_SLANT_ROMAN) == FC_SLANT_ROMAN;
    return file;
}

bool is_family(FcPattern* found, const char* family) {
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(found, FC_FAMILY, i, &name) == FcResultMatch; ++i)
        if (is_same(reinterpret_cast<const char*>(name), family)) return true;
    return false;
}

FontFile find_by_name(FcConfig* config, const Wanted& wanted, const char* family) {
    Pattern pattern = make_pattern(wanted, family);
    if (!pattern) return {};
    FcDefaultSubstitute(pattern.get());
    FcResult result;
    const Pattern found(FcFontMatch(config, pattern.get(), &result));
    return found && is_family(found.get(), family) && is_usable(found.get()) ? file_of(found.get(), wanted)
                                                                             : FontFile();
}

// The short configuration goes again at once: it holds more memory than all else that text needs.
FontFile find_short(const Wanted& wanted) {
    const Config owner(FcConfigCreate());
    FcConfig* const config = owner.get();
    if (!config || !FcConfigParseAndLoadFromMemory(config, fc(SHORT_CONFIG), FcFalse) ||
        !FcConfigBuildFonts(config))
        return {};
    for (const Twins& row : twins) {
        if (!is_same(row.family, wanted.family.c_str())) continue;
        FontFile file;
        for (int i = 0; row.names[i] && file.path.empty(); ++i)
            file = find_by_name(config, wanted, row.names[i]);
        return file;
    }
    return find_by_name(config, wanted, wanted.family.c_str());
}

FcFontSet* fallback_order(const Wanted& wanted) {
    Finder& all = finder();
    if (!all.config) return nullptr;
    constexpr std::size_t MANY = 32;
    if (all.orders.size() >= MANY && !all.orders.count(wanted)) all.orders.clear();
    FontSet& order = all.orders[wanted];
    if (!order) {
        const Pattern pattern = whole_pattern(all.config.get(), wanted);
        FcResult result;
        if (pattern) order.reset(FcFontSort(all.config.get(), pattern.get(), FcTrue, nullptr, &result));
    }
    return order.get();
}

bool has_all(FcPattern* font, const std::vector<char32_t>& codes) {
    FcCharSet* set = nullptr;
    if (FcPatternGetCharSet(font, FC_CHARSET, 0, &set) != FcResultMatch) return false;
    for (char32_t code : codes)
        if (!FcCharSetHasChar(set, code)) return false;
    return true;
}

} // namespace

bool Wanted::operator<(const Wanted& other) const {
    return std::tie(family, bold, italic) < std::tie(other.family, other.bold, other.italic);
}

FontFile find_font(const Wanted& wanted) {
    if (!is_configured_apart()) {
        const FontFile file = find_short(wanted);
        if (!file.path.empty()) return file;
    }
    const FcFontSet* const order = fallback_order(wanted);
    for (int i = 0; order && i < order->nfont; ++i)
        if (is_usable(order->fonts[i])) return file_of(order->fonts[i], wanted);
    return {};
}

FontFile find_fallback(const Wanted& wanted, const std::vector<char32_t>& codes) {
    const FcFontSet* const order = fallback_order(wanted);
    for (int i = 0; order && i < order->nfont; ++i)
        if (is_usable(order->fonts[i]) && has_all(order->fonts[i], codes))
            return file_of(order->fonts[i], wanted);
    return {};
}

} // namespace fenn
