#include <brask/texts.h>

#include <algorithm>
#include <cwchar>

#include <brask/fenn.h>
#include <brask/fonts.h>

#include "console/geometry.h"
#include "console/store.h"
#include "foundation/bracket.h"
#include "foundation/marks.h"
#include "foundation/palette.h"
#include "foundation/track.h"

using namespace brask;

namespace {

constexpr unsigned long CARET_YELLOW = 0xFFFF;
constexpr int GAP = 3; // from the bevel to the text

// Where the shown text starts: the first place from which on all up to the caret fits into `room`. What is
// behind the caret is `tail` wide and may run out of the strip. Widths fall from place to place.
int first_shown(HFONT font, const wchar_t* text, int length, int tail, int room) {
    const auto fits = [&](int start) { return Px(Zeb_Font_Size_String(font, text + start)) - tail <= room; };
    if (fits(0)) return 0;
    int low = 0, high = length; // what does not fit, and what is taken for fitting
    while (high - low > 1) {
        const int middle = low + (high - low) / 2;
        (fits(middle) ? high : low) = middle;
    }
    return high;
}

int width_between(HFONT font, const wchar_t* text, int start, int end) {
    if (end <= start) return 0;
    wchar_t part[LINE_ROOM] = {};
    std::wcsncat(part, text + start, static_cast<std::size_t>(end - start));
    return Zeb_Font_Size_String(font, part);
}

void draw_caret(int x, int bottom, int top) {
    Zeb_color(CARET_YELLOW);
    for (Px at : {Px(x), Px(x) + 1}) {
        move2s(at, bottom);
        draw2s(at, top, 0);
    }
}

} // namespace

// Measured is the text itself even where it is not shown, so that with TEXTS_PASSWORD caret and scrolling may
// disagree: required so. Marks are not obeyed here but written like any character.
void Texts::Read_Echo(const wchar_t* text, int pos) {
    if (Flag & OUTIL_INVISIBLE) return;
    const HFONT font = Zeb_Create_Font(Wnd, Font_Name, "bold", "r", Font_Size);
    const Px b = bevel_width(*this), left = Read_X1, right = Read_X2, bottom = Read_Y1, top = Read_Y2;
    Fill_Select(select == TRACK_INSIDE, nullptr, Flag, b + 1, left, right, bottom, top);
    Setup setup(Wnd, "Texts::Read_Echo");
    const Area clip = clipped(*this, {left + b, right - b, bottom + b, top - b});
    Zeb_set_clip(clip.x1, clip.y1, Px(clip.x2) - clip.x1, Px(clip.y2) - clip.y1);

    wchar_t line[LINE_ROOM] = {};
    std::wcsncat(line, text, LINE_ROOM - 1);
    const int length = static_cast<int>(std::wcslen(line));
    pos = std::clamp(pos, 0, length);
    const int tail = pos < length ? Zeb_Font_Size_String(font, line + pos) : 0;
    const int start = first_shown(font, line, length, tail, right - 4 * b - left);
    if (Flag & TEXTS_PASSWORD) std::fill_n(line, length, L'#');
    const Px writing = left + GAP + b;
    if (select == TRACK_INSIDE)
        draw_caret(writing + width_between(font, line, start, pos), bottom + 2 + b, top - b - 2);
    Zeb_Font_Color(WORD_BLACK, 0);
    Zeb_Font_Write(font, writing, bottom + b, line + start);
    Zeb_reset_clip();
}
