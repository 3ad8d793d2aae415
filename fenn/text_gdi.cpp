#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "fenn/painter.h"
#include "fenn/system_text.h"
#include "fenn/text_codes.h"
#include "fenn/text_run.h"
#include "text/unicode.h"

// Text in the system's fonts, written by GDI into the window's back buffer. What GDI has no glyph for is
// shown as a box with its code.
namespace fenn {
namespace {

constexpr std::size_t MANY_FONTS = 64;
constexpr std::size_t MANY_TEXTS = 2048;
constexpr std::size_t LONG_TEXT = 512;

struct DescriptionOrder {
    bool operator()(const LOGFONTW& a, const LOGFONTW& b) const { return std::memcmp(&a, &b, sizeof a) < 0; }
};

struct Measured {
    int width;
    bool has_boxes;
};

// What is known of a font. Handles come again for other fonts, so it goes by the description.
struct GdiFont {
    Font boxes; // its size, and the boxes that stand for missing characters
    std::map<std::wstring, Measured> texts;
    std::map<char32_t, bool> missing;
};

// A part of a text that is written in one go.
struct Part {
    const wchar_t* text;
    int length;
    bool is_boxes;
};

void lay_out_boxes(Font& font, const wchar_t* text, Run& run) {
    while (const char32_t code = text::next(text))
        append(font, HEX_BOX | code, run);
}

constexpr FontKind boxes_kind{lay_out_boxes, nullptr};

// A context for measuring, with a small picture for trials.
class Bench {
  public:
    static constexpr int SIZE = 96;

    Bench() : dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = SIZE;
        info.bmiHeader.biHeight = -SIZE;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        SelectObject(dc, CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels = static_cast<const DWORD*>(bits);
    }

    std::vector<DWORD> trial(const wchar_t* text, int length) const {
        PatBlt(dc, 0, 0, SIZE, SIZE, WHITENESS);
        SetBkMode(dc, TRANSPARENT);
        ExtTextOutW(dc, SIZE / 4, 0, 0, nullptr, text, static_cast<UINT>(length), nullptr);
        GdiFlush();
        return pixels ? std::vector<DWORD>(pixels, pixels + SIZE * SIZE) : std::vector<DWORD>();
    }

    HDC dc;

  private:
    const DWORD* pixels = nullptr;
};

const Bench& bench() {
    // Never destroyed: text may still be written while a host's own statics go.
    static const Bench& only = *new Bench;
    return only;
}

HFONT real_font(HFONT font) {
    static const HFONT arial = [] {
        const LOGFONTW description = default_font();
        return CreateFontIndirectW(&description);
    }();
    LOGFONTW description;
    return font && GetObjectW(font, sizeof description, &description) ? font : arial;
}

GdiFont make_font() {
    TEXTMETRICW metrics{};
    GetTextMetricsW(bench().dc, &metrics);
    GdiFont made;
    made.boxes = {&boxes_kind,
                  next_font_id(),
                  static_cast<int>(metrics.tmHeight - metrics.tmInternalLeading),
                  static_cast<int>(metrics.tmHeight),
                  static_cast<int>(metrics.tmAscent),
                  0};
    return made;
}

// Also selects the font for measuring.
GdiFont& known_font(HFONT font) {
    static auto& fonts = *new std::map<LOGFONTW, GdiFont, DescriptionOrder>;
    SelectObject(bench().dc, font);
    const LOGFONTW description = describe_font(font);
    const auto at = fonts.find(description);
    if (at != fonts.end()) return at->second;
    if (fonts.size() >= MANY_FONTS) fonts.clear();
    return fonts[description] = make_font();
}

bool is_blank(char32_t code) {
    WORD type = 0;
    const auto unit = static_cast<wchar_t>(code);
    return code < 0x10000 && GetStringTypeW(CT_CTYPE1, &unit, 1, &type) && (type & C1_SPACE);
}

// GDI looks into other fonts for what this one lacks, and does not tell with what success: a trial does, as
// what no font has looks like any other character of that kind.
bool shows_nothing_own(const wchar_t* text, int length) {
    static const wchar_t nothing[] = L"\u0378";
    static const wchar_t nothing_far[] = L"\U0010FFFD";
    const std::vector<DWORD> seen = bench().trial(text, length);
    const std::vector<DWORD> blank = bench().trial(L" ", 1);
    return seen == blank || seen == bench().trial(nothing, 1) || seen == bench().trial(nothing_far, 2);
}

bool is_missing(GdiFont& font, char32_t code, const wchar_t* text, int length) {
    if (is_control(code)) return !is_blank_control(code);
    if (is_invisible(code) || is_blank(code)) return false;
    WORD index = 0;
    if (length == 1 && GetGlyphIndicesW(bench().dc, text, 1, &index, GGI_MARK_NONEXISTING_GLYPHS) == 1 &&
        index != 0xFFFF)
        return false;
    const auto known = font.missing.find(code);
    if (known != font.missing.end()) return known->second;
    if (font.missing.size() >= MANY_TEXTS) font.missing.clear();
    return font.missing[code] = shows_nothing_own(text, length);
}

std::vector<Part> parts_of(GdiFont& font, const wchar_t* text) {
    std::vector<Part> parts;
    while (*text) {
        const wchar_t* const from = text;
        const char32_t code = text::next(text);
        const int length = static_cast<int>(text - from);
        const bool is_box = is_missing(font, code, from, length);
        if (parts.empty() || parts.back().is_boxes != is_box) parts.push_back({from, 0, is_box});
        parts.back().length += length;
    }
    return parts;
}

int part_width(GdiFont& font, const Part& part) {
    if (part.is_boxes) return run_width(font.boxes, std::wstring(part.text, part.length).c_str());
    SIZE size{};
    GetTextExtentPoint32W(bench().dc, part.text, part.length, &size);
    return size.cx;
}

// Blanks in place of the controls that stand for them.
std::wstring cleaned(const wchar_t* text) {
    std::wstring clean(text);
    for (wchar_t& unit : clean)
        if (is_blank_control(unit)) unit = L' ';
    return clean;
}

Measured measure(GdiFont& font, const std::wstring& text) {
    const auto known = font.texts.find(text);
    if (known != font.texts.end()) return known->second;
    Measured result{0, false};
    for (const Part& part : parts_of(font, text.c_str())) {
        result.width += part_width(font, part);
        result.has_boxes |= part.is_boxes;
    }
    if (text.size() > LONG_TEXT) return result;
    if (font.texts.size() >= MANY_TEXTS) font.texts.clear();
    return font.texts[text] = result;
}

// The first letter that has a direction gives that of the whole.
bool is_right_to_left(const std::wstring& text) {
    for (const wchar_t unit : text) {
        WORD type = 0;
        GetStringTypeW(CT_CTYPE2, &unit, 1, &type);
        if (type == C2_LEFTTORIGHT || type == C2_RIGHTTOLEFT) return type == C2_RIGHTTOLEFT;
    }
    return false;
}

// The context as text wants it, Y downward; put back at the end.
class TextContext {
  public:
    TextContext(HDC context, HFONT font, COLORREF color, bool right_to_left)
        : dc(context), saved(SaveDC(context)) {
        if (GetGraphicsMode(dc) == GM_ADVANCED) ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
        SetMapMode(dc, MM_TEXT);
        SetWindowOrgEx(dc, 0, 0, nullptr);
        SetViewportOrgEx(dc, 0, 0, nullptr);
        SelectObject(dc, font);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, color);
        SetTextAlign(dc, TA_LEFT | TA_TOP | (right_to_left ? TA_RTLREADING : 0));
    }
    ~TextContext() { RestoreDC(dc, saved); }
    TextContext(const TextContext&) = delete;
    TextContext& operator=(const TextContext&) = delete;

  private:
    HDC dc;
    int saved;
};

void write_parts(GdiFont& font, const Bracket& target, int x, int y, const std::wstring& text,
                 std::uint32_t color) {
    const int top = flip(target.canvas, y) - (font.boxes.height - 1);
    for (const Part& part : parts_of(font, text.c_str())) {
        if (part.is_boxes)
            run_write(font.boxes, x, y, std::wstring(part.text, part.length).c_str(), pixel_of(color));
        else
            TextOutW(target.dc, x, top, part.text, part.length);
        x += part_width(font, part);
    }
}

} // namespace

LOGFONTW describe_font(HFONT font) {
    LOGFONTW description{};
    return font && GetObjectW(font, sizeof description, &description) ? description : default_font();
}

namespace system_text {

int height(HFONT font) { return known_font(real_font(font)).boxes.height; }

int width(HFONT font, const wchar_t* text) {
    return measure(known_font(real_font(font)), cleaned(text)).width;
}

int write(HFONT handle, int x, int y, const wchar_t* text, std::uint32_t color) {
    const HFONT real = real_font(handle);
    GdiFont& font = known_font(real);
    const std::wstring clean = cleaned(text);
    const Measured measured = measure(font, clean);
    const Bracket* const target = bracket();
    if (!target) return measured.width;
    const TextContext context(target->dc, real, color & 0xFFFFFF, is_right_to_left(clean));
    const int left = limit(x), bottom = limit(y);
    if (measured.has_boxes)
        write_parts(font, *target, left, bottom, clean, color);
    else
        TextOutW(target->dc, left, flip(target->canvas, bottom) - (font.boxes.height - 1), clean.c_str(),
                 static_cast<int>(clean.size()));
    return measured.width;
}

} // namespace system_text
} // namespace fenn
