#include <brask/texts.h>

#include <algorithm>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include <brask/fenn.h>
#include <brask/fonts.h>

#include "console/formatted.h"
#include "console/geometry.h"
#include "console/store.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/compound.h"
#include "foundation/layout.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

// The last font measured, for all consoles: many share one.
struct Metrics {
    HFONT font;
    int width, height;
};
Metrics last_measured = {};

// Of the console's own font, whose weight and slant the marks decide.
Metrics metrics_of(const Texts& console) {
    const HFONT font = Zeb_Create_Font(console.Wnd, console.Font_Name, "medium", "r", console.Font_Size);
    if (font && font == last_measured.font) return last_measured;
    Setup setup(console.Wnd, "Texts::Init");
    const int height = Zeb_Font_Size_Height(font);
    const Metrics measured = {font, Zeb_Font_Size_String(font, L"H"), height};
    if (measured.height && measured.width) last_measured = measured; // else memory was short
    return measured;
}

// The front half alone: required so. What stands behind it stays behind its terminator.
void clear_front(Texts& console) { std::fill_n(console.Edit_Line, EDIT_FRONT, L'\0'); }

void rewind(Sliders& slider) {
    slider.Cur_Value = 0;
    slider.Draw();
}

// The way out of an operation that adds to the log, before anything is done; null to go on. One that comes
// before Init does not even warn.
const char* refuses(Texts& console, const char* type, const void* format) {
    if (!console.test) return "! test";
    check_first_use(console, type);
    if (too_small(console)) return "<0";
    return format ? nullptr : "! format";
}

} // namespace

Texts::Texts() {
    Trace trace("Texts::Texts");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}
Texts::Texts(const Texts& other) = default;
Texts& Texts::operator=(const Texts& other) = default;
Texts::~Texts() {
    Trace trace("Texts::~Texts");
    Free_Stores();
}

void Texts::Free_Stores() {
    Lines = free_store(Lines, LOG_ROOM);
    std::free(Line_Width);
    Line_Width = nullptr;
    History = free_store(History, HISTORY_ROOM);
}

// The window is asked for before the size, unlike elsewhere.
void Texts::Init(HWND wnd) {
    Trace trace("Texts::Init", *this);
    test |= TEST_INIT;
    if (wnd) Wnd = wnd;
    if (missing_window(*this, "Texts::Init")) return trace.out("!wnd");
    if (too_small(*this)) return trace.out("<0");
    default_color(*this);
    set_region(*this);
    if (!flag_read) clear_front(*this);
    const Metrics metrics = metrics_of(*this);
    Font_Dim_Y = metrics.height;
    Font_Dim_X = metrics.width;
    const Area strip = strip_area(*this);
    Read_X1 = strip.x1;
    Read_X2 = strip.x2;
    Read_Y1 = strip.y1;
    Read_Y2 = strip.y2;
    if (!(Flag & TEXTS_CURSOR_V)) clear_part(Cursor_V);
    if (!(Flag & TEXTS_CURSOR_H)) clear_part(Cursor_H);
    if (has_sliders(*this)) Rescale_Cursor();
    trace.out("done");
}

void Texts::Cleanup() {
    Trace trace("Texts::Cleanup", *this);
    check_first_use(*this, "Text::Cleanup");
    if (too_small(*this)) return trace.out("<0");
    Free_Stores();
    clear_front(*this);
    if (has_sliders(*this)) Rescale_Cursor();
    flag_read = 0;
    trace.out("done");
}

// --- Writing ---

// Copied first: without memory a store stays as it is.
bool Texts::Put_Line(wchar_t** Texts::*store, void (Texts::*scroll)(int), int n, const wchar_t* text,
                     std::size_t length) {
    wchar_t* line = copy_line(text, length);
    if (line) (this->*scroll)(n);
    if (line && this->*store) {
        (this->*store)[0] = line;
        return true;
    }
    std::free(line);
    return false;
}

// Each piece between line feeds becomes a line, an empty one too. The first takes the place that `n` makes.
void Texts::Store(const wchar_t* text, int n) {
    for (;; n = 1) {
        const std::size_t length = std::wcscspn(text, L"\n");
        if (!Put_Line(&Texts::Lines, &Texts::Scroll_1, n, text, length) || !text[length]) return;
        text += length + 1;
    }
}

// The order is required: the repaint, still as scrolled before, measures the lines on which the sliders rest;
// and these go back to the newest line without a further repaint of the log.
const char* Texts::Put(const wchar_t* text, int n) {
    if (Flag & OUTIL_DISABLE) return "OUTIL_DISABLE"; // the format has been printed all the same
    Store(text, n);
    Paint_Inside();
    if (has_sliders(*this)) Rescale_Cursor();
    if (Flag & TEXTS_CURSOR_V) rewind(Cursor_V);
    if (Flag & TEXTS_CURSOR_H) rewind(Cursor_H);
    return "done";
}

void Texts::Write(const char* format, ...) {
    Trace trace("Texts::Write", *this);
    if (const char* way = refuses(*this, "Text::Write", format)) return trace.out(way);
    std::va_list args;
    va_start(args, format);
    const Formatted formatted(format, args);
    va_end(args);
    trace.out(Put(formatted.text, 1));
}

void Texts::Write(const wchar_t* format, ...) {
    Trace trace("Texts::Write", *this);
    if (const char* way = refuses(*this, "Text::Write", format)) return trace.out(way);
    std::va_list args;
    va_start(args, format);
    const Formatted formatted(format, args);
    va_end(args);
    trace.out(Put(formatted.text, 1));
}

// No trace: a progress message would flood it.
void Texts::OverWrite(const char* format, ...) {
    if (refuses(*this, "Text::OverWrite", format)) return;
    std::va_list args;
    va_start(args, format);
    const Formatted formatted(format, args);
    va_end(args);
    Put(formatted.text, 0);
}

void Texts::OverWrite(const wchar_t* format, ...) {
    if (refuses(*this, "Text::OverWrite", format)) return;
    std::va_list args;
    va_start(args, format);
    const Formatted formatted(format, args);
    va_end(args);
    Put(formatted.text, 0);
}
