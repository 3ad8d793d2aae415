#include "fenn/font_gdi.h"

#include <algorithm>
#include <cstring>

#include "fenn/system_text.h"
#include "fenn/text_codes.h"
#include "text/unicode.h"

namespace fenn {
namespace {

constexpr std::size_t MANY_FONTS = 64;
constexpr std::size_t MANY_CODES = 4096;

// Looked into before all others, and the only ones for characters beyond the first 65536.
const wchar_t* const preferred[] = {
    L"Segoe UI",  L"Segoe UI Symbol", L"Segoe UI Emoji", L"Nirmala UI",       L"Microsoft YaHei",
    L"Yu Gothic", L"Malgun Gothic",   L"DejaVu Sans",    L"Noto Sans CJK JP", L"Noto Sans Arabic"};

// A small picture for measuring and trials. It is of the back buffers' kind: letters have other widths on
// another.
class Trial {
  public:
    static constexpr int SIZE = 96;

    Trial() : dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = SIZE;
        info.bmiHeader.biHeight = -SIZE;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        SelectObject(dc, CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        SetBkMode(dc, TRANSPARENT);
        pixels = static_cast<const DWORD*>(bits);
    }

    HDC context() const { return dc; }

    std::vector<DWORD> picture(HFONT font, const wchar_t* units, int length) const {
        SelectObject(dc, font);
        PatBlt(dc, 0, 0, SIZE, SIZE, WHITENESS);
        ExtTextOutW(dc, SIZE / 4, 0, 0, nullptr, units, static_cast<UINT>(length), nullptr);
        GdiFlush();
        return pixels ? std::vector<DWORD>(pixels, pixels + SIZE * SIZE) : std::vector<DWORD>();
    }

  private:
    HDC dc;
    const DWORD* pixels = nullptr;
};

const Trial& trial() {
    // Never destroyed: text may still be written while a host's own statics go.
    static const Trial& only = *new Trial;
    return only;
}

// GDI looks into other fonts for what this one lacks, and does not tell with what success: a trial does, as
// what no font has looks like any other character of that kind.
bool shows_something(HFONT font, const wchar_t* units, int length) {
    const std::vector<DWORD> seen = trial().picture(font, units, length);
    return seen != trial().picture(font, L" ", 1) && seen != trial().picture(font, L"\u0378", 1) &&
           seen != trial().picture(font, L"\U0010FFFD", 2);
}

// The characters of an installed family.
struct Family {
    std::wstring name;
    std::vector<WCRANGE> ranges;

    bool has(char32_t code) const {
        return std::any_of(ranges.begin(), ranges.end(), [=](const WCRANGE& range) {
            return code >= range.wcLow && code < range.wcLow + char32_t{range.cGlyphs};
        });
    }
};

std::vector<WCRANGE> ranges_of(const std::wstring& name) {
    LOGFONTW description{};
    description.lfCharSet = DEFAULT_CHARSET;
    std::copy_n(name.data(), std::min<std::size_t>(name.size(), LF_FACESIZE - 1), description.lfFaceName);
    const HFONT font = CreateFontIndirectW(&description);
    const HGDIOBJ former = SelectObject(measuring_context(), font);
    std::vector<DWORD> room(GetFontUnicodeRanges(measuring_context(), nullptr) / sizeof(DWORD) + 1);
    const auto set = reinterpret_cast<GLYPHSET*>(room.data());
    std::vector<WCRANGE> ranges;
    if (GetFontUnicodeRanges(measuring_context(), set))
        ranges.assign(set->ranges, set->ranges + set->cRanges);
    SelectObject(measuring_context(), former);
    DeleteObject(font);
    return ranges;
}

int CALLBACK add_name(const LOGFONTW* description, const TEXTMETRICW*, DWORD type, LPARAM names) {
    // Names with an "@" are the same families for vertical text.
    if (!(type & RASTER_FONTTYPE) && description->lfFaceName[0] != L'@')
        reinterpret_cast<std::vector<std::wstring>*>(names)->push_back(description->lfFaceName);
    return 1;
}

std::vector<Family> read_families() {
    std::vector<std::wstring> names;
    LOGFONTW any{};
    any.lfCharSet = DEFAULT_CHARSET;
    EnumFontFamiliesExW(measuring_context(), &any, add_name, reinterpret_cast<LPARAM>(&names), 0);
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    std::vector<Family> families;
    for (const wchar_t* name : preferred)
        if (std::binary_search(names.begin(), names.end(), name)) families.push_back({name, ranges_of(name)});
    for (const std::wstring& name : names)
        families.push_back({name, ranges_of(name)});
    return families;
}

const std::vector<Family>& all_families() {
    static const std::vector<Family>& all = *new std::vector<Family>(read_families());
    return all;
}

bool is_preferred(const std::wstring& family) {
    return std::find(std::begin(preferred), std::end(preferred), family) != std::end(preferred);
}

struct DescriptionOrder {
    bool operator()(const LOGFONTW& a, const LOGFONTW& b) const { return std::memcmp(&a, &b, sizeof a) < 0; }
};

void lay_out_boxes(Font& font, const wchar_t* text, Run& run) {
    while (const char32_t code = text::next(text))
        if (!is_invisible(code)) append(font, HEX_BOX | code, run);
}

constexpr FontKind boxes_kind{lay_out_boxes, nullptr};

} // namespace

HDC measuring_context() { return trial().context(); }

bool font_has(HFONT font, const wchar_t* units, int length) {
    WORD index = 0xFFFF;
    SelectObject(measuring_context(), font);
    return length == 1 &&
           GetGlyphIndicesW(measuring_context(), units, 1, &index, GGI_MARK_NONEXISTING_GLYPHS) == 1 &&
           index != 0xFFFF;
}

GdiFont::GdiFont(const LOGFONTW& from) : own(CreateFontIndirectW(&from)), description(from) {
    TEXTMETRICW metrics{};
    SelectObject(measuring_context(), own);
    GetTextMetricsW(measuring_context(), &metrics);
    boxes = {&boxes_kind,
             next_font_id(),
             static_cast<int>(metrics.tmHeight - metrics.tmInternalLeading),
             static_cast<int>(metrics.tmHeight),
             static_cast<int>(metrics.tmAscent),
             0};
}

GdiFont::~GdiFont() {
    SelectObject(measuring_context(), GetStockObject(SYSTEM_FONT));
    for (const auto& family : families)
        DeleteObject(family.second);
    DeleteObject(own);
}

HFONT GdiFont::family_font(const std::wstring& family) {
    HFONT& font = families[family];
    if (!font) {
        LOGFONTW other = description;
        std::fill(std::begin(other.lfFaceName), std::end(other.lfFaceName), L'\0');
        std::copy_n(family.data(), std::min<std::size_t>(family.size(), LF_FACESIZE - 1), other.lfFaceName);
        other.lfCharSet = DEFAULT_CHARSET;
        font = CreateFontIndirectW(&other);
    }
    return font;
}

HFONT GdiFont::find_other(char32_t code, const wchar_t* units, int length) {
    if (shows_something(own, units, length)) return own;
    for (const Family& family : all_families()) {
        if (length == 1 ? !family.has(code) : !is_preferred(family.name)) continue;
        const HFONT font = family_font(family.name);
        if (shows_something(font, units, length)) return font;
    }
    return nullptr;
}

HFONT GdiFont::font_for(char32_t code, const wchar_t* units, int length) {
    if (is_control(code)) return nullptr;
    if (is_invisible(code)) return length == 1 ? own : nullptr;
    if (font_has(own, units, length)) return own;
    const auto known = others.find(code);
    if (known != others.end()) return known->second;
    if (others.size() >= MANY_CODES) others.clear();
    return others[code] = find_other(code, units, length);
}

GdiFont& known_font(HFONT font) {
    static auto& fonts = *new std::map<LOGFONTW, GdiFont, DescriptionOrder>;
    const LOGFONTW description = describe_font(font);
    const auto at = fonts.find(description);
    if (at != fonts.end()) return at->second;
    if (fonts.size() >= MANY_FONTS) fonts.clear();
    return fonts.try_emplace(description, description).first->second;
}

LOGFONTW describe_font(HFONT font) {
    LOGFONTW description{};
    if (GetObjectType(font) != OBJ_FONT || !GetObjectW(font, sizeof description, &description))
        return default_font();
    // What stands behind the name's end is nobody's.
    const auto end = std::end(description.lfFaceName);
    std::fill(std::find(std::begin(description.lfFaceName), end, L'\0'), end, L'\0');
    return description;
}

} // namespace fenn
