#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

#include "fenn/font_gdi.h"
#include "fenn/painter.h"
#include "fenn/system_text.h"
#include "fenn/text_codes.h"
#include "fenn/text_run.h"
#include "text/unicode.h"

// Text in the system's fonts, written by GDI into the window's back buffer. What no font has is shown as a
// box with its code.
namespace fenn {
namespace {

constexpr std::size_t MANY_TEXTS = 2048;
constexpr std::size_t LONG_TEXT = 512;
constexpr int MOST_AT_ONCE = 4096; // GDI refuses texts of more than twice that

// A part of a text in one font; null: boxes.
struct Part {
    const wchar_t* text;
    int length;
    HFONT font;
};

WORD type_of(DWORD kind, wchar_t unit) {
    WORD type = 0;
    GetStringTypeW(kind, &unit, 1, &type);
    return type;
}

// Blanks, digits and points go with what they follow.
bool is_neutral(char32_t code) {
    constexpr WORD LETTER = C1_UPPER | C1_LOWER | C1_ALPHA;
    return code < 0x10000 && !(type_of(CT_CTYPE1, static_cast<wchar_t>(code)) & LETTER);
}

void add(std::vector<Part>& parts, const Part& part) {
    if (!parts.empty() && parts.back().font == part.font && parts.back().length < MOST_AT_ONCE)
        parts.back().length += part.length;
    else
        parts.push_back(part);
}

// A sign that sits on a letter takes it along into a font that has both.
void take_letter_along(std::vector<Part>& parts, HFONT font) {
    Part& last = parts.back();
    const wchar_t* const letter = last.text + last.length - 1;
    if (!last.font || last.font == font || !font_has(font, letter, 1)) return;
    if (--last.length == 0) parts.pop_back();
    add(parts, {letter, 1, font});
}

// Another font keeps the neutral signs that follow, so that a sentence stays together.
bool is_carried(const std::vector<Part>& parts, const GdiFont& font, char32_t code, const wchar_t* units,
                int length) {
    if (parts.empty() || parts.back().font == font.own) return false;
    if (is_invisible(code)) return true;
    return parts.back().font && is_neutral(code) && font_has(parts.back().font, units, length);
}

std::vector<Part> parts_of(GdiFont& font, const wchar_t* text) {
    std::vector<Part> parts;
    while (*text) {
        const wchar_t* const from = text;
        const char32_t code = text::next(text);
        const int length = static_cast<int>(text - from);
        const bool carried = is_carried(parts, font, code, from, length);
        const HFONT shown_by = carried ? parts.back().font : font.font_for(code, from, length);
        if (!parts.empty() && shown_by && is_combining(code)) take_letter_along(parts, shown_by);
        add(parts, {from, length, shown_by});
    }
    return parts;
}

int part_width(GdiFont& font, const Part& part) {
    if (!part.font) return run_width(font.boxes, std::wstring(part.text, part.length).c_str());
    SIZE size{};
    SelectObject(measuring_context(), part.font);
    GetTextExtentPoint32W(measuring_context(), part.text, part.length, &size);
    return size.cx;
}

// A plain blank for the controls that stand for one, and for the blanks that the font lacks.
std::wstring cleaned(const GdiFont& font, const wchar_t* text) {
    std::wstring clean(text);
    for (wchar_t& unit : clean) {
        const bool is_odd_blank = unit > 0x7F && type_of(CT_CTYPE1, unit) & C1_SPACE;
        if (is_blank_control(unit) || (is_odd_blank && !font_has(font.own, &unit, 1))) unit = L' ';
    }
    return clean;
}

// The first letter that has a direction gives that of the whole.
bool is_right_to_left(const std::wstring& text) {
    for (const wchar_t unit : text) {
        const WORD type = type_of(CT_CTYPE2, unit);
        if (type == C2_LEFTTORIGHT || type == C2_RIGHTTOLEFT) return type == C2_RIGHTTOLEFT;
    }
    return false;
}

// How far the pen moves at each character of a simple text, told when it is written: smoothed letters may
// want to move it otherwise than they were measured. Shaped text is left to GDI.
std::vector<int> steps_of(const Part& part) {
    const bool is_shaped =
        std::any_of(part.text, part.text + part.length, [](wchar_t unit) { return !is_simple(unit); });
    std::vector<int> steps(is_shaped ? 0 : static_cast<std::size_t>(part.length));
    SIZE size;
    SelectObject(measuring_context(), part.font);
    if (steps.empty() ||
        !GetTextExtentExPointW(measuring_context(), part.text, part.length, 0, nullptr, steps.data(), &size))
        return {};
    std::adjacent_difference(steps.begin(), steps.end(), steps.begin());
    return steps;
}

const Measured& measure(GdiFont& font, const wchar_t* text) {
    static Measured& long_one = *new Measured;
    std::wstring key = text;
    const auto known = font.texts.find(key);
    if (known != font.texts.end()) return known->second;
    Measured fresh;
    fresh.clean = cleaned(font, text);
    fresh.right_to_left = is_right_to_left(fresh.clean);
    const std::vector<Part> parts = parts_of(font, fresh.clean.c_str());
    for (const Part& part : parts)
        fresh.width += part_width(font, part);
    fresh.is_plain = parts.size() == 1 && parts[0].font == font.own;
    if (fresh.is_plain)
        fresh.steps = steps_of({fresh.clean.c_str(), static_cast<int>(fresh.clean.size()), font.own});
    if (key.size() > LONG_TEXT) return long_one = std::move(fresh);
    if (font.texts.size() >= MANY_TEXTS) font.texts.clear();
    return font.texts[std::move(key)] = std::move(fresh);
}

// The context as text wants it, Y downward; put back at the end.
class TextContext {
  public:
    TextContext(HDC context, COLORREF color, bool right_to_left) : dc(context), saved(SaveDC(context)) {
        if (GetGraphicsMode(dc) == GM_ADVANCED) ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
        SetMapMode(dc, MM_TEXT);
        SetWindowOrgEx(dc, 0, 0, nullptr);
        SetViewportOrgEx(dc, 0, 0, nullptr);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, color);
        SetTextAlign(dc, TA_LEFT | TA_BASELINE | (right_to_left ? TA_RTLREADING : 0));
    }
    ~TextContext() { RestoreDC(dc, saved); }
    TextContext(const TextContext&) = delete;
    TextContext& operator=(const TextContext&) = delete;

    void write(int x, int baseline, const Part& part, const std::vector<int>& steps) const {
        SelectObject(dc, part.font);
        ExtTextOutW(dc, x, baseline, 0, nullptr, part.text, static_cast<UINT>(part.length),
                    steps.empty() ? nullptr : steps.data());
    }

  private:
    HDC dc;
    int saved;
};

// One after the other in reading order.
void write_parts(GdiFont& font, const TextContext& context, int x, int y, int baseline,
                 const std::vector<Part>& parts, std::uint32_t color) {
    for (const Part& part : parts) {
        if (part.font)
            context.write(x, baseline, part, steps_of(part));
        else
            run_write(font.boxes, x, y, std::wstring(part.text, part.length).c_str(), pixel_of(color));
        x += part_width(font, part);
    }
}

} // namespace

namespace system_text {

int height(HFONT font) { return known_font(font).boxes.height; }

int width(HFONT font, const wchar_t* text) { return measure(known_font(font), text).width; }

int write(HFONT handle, int x, int y, const wchar_t* text, std::uint32_t color) {
    GdiFont& font = known_font(handle);
    const Measured& measured = measure(font, text);
    const std::wstring& clean = measured.clean;
    const Bracket* const target = bracket();
    if (!target) return measured.width;
    const TextContext context(target->dc, color & 0xFFFFFF, measured.right_to_left);
    const int left = limit(x), bottom = limit(y);
    const int height = font.boxes.height;
    const int baseline = flip(target->canvas, bottom) - (height - 1) + font.boxes.ascent;
    // Letters may reach out of their line and beyond its ends.
    changed({left - height, baseline - 2 * height, left + measured.width + height, baseline + height});
    if (measured.is_plain) {
        context.write(left, baseline, {clean.c_str(), static_cast<int>(clean.size()), font.own},
                      measured.steps);
    } else {
        std::vector<Part> parts = parts_of(font, clean.c_str());
        if (measured.right_to_left) std::reverse(parts.begin(), parts.end());
        write_parts(font, context, left, bottom, baseline, parts, color);
    }
    return measured.width;
}

} // namespace system_text
} // namespace fenn
