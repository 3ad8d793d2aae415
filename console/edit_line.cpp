#include <brask/texts.h>

#include <cstdarg>
#include <cwchar>

#include <brask/fenn.h>
#include <brask/platform.h>

#include "console/clipboard_text.h"
#include "console/edit_steps.h"
#include "console/formatted.h"
#include "console/geometry.h"
#include "console/store.h"
#include "foundation/checks.h"
#include "foundation/trace.h"
#include "text/printable.h"

using namespace brask;

namespace {

// A host may have overwritten the line up to its last character.
void end_line(Texts& console) { console.Edit_Line[LINE_ROOM - 1] = 0; }

void report_change(Texts& console) {
    if (console.Flag & TEXTS_REPORT_KEYS) console.flag_read |= TEXTS_CHANGED;
}

bool reading(const Texts& console) { return (console.flag_read & TEXTS_READING) != 0; }

// Why a key is not taken at all; null: it is.
const char* refusal(const Texts& console, int key) {
    if (too_small(console)) return "<0";
    if (key == 0) return "! key";
    if (!reading(console)) return "! flag_read";
    if (console.Flag & OUTIL_DISABLE) return "OUTIL_DISABLE";
    if (console.Flag & OUTIL_INVISIBLE) return "OUTIL_INVISIBLE";
    return nullptr;
}

// The line is emptied as far as that and given its first text, if any; what waited for the host is dropped.
// The caret goes behind the text, but stays for a host that begins anew after each reported edit.
template <typename Char>
void begin_reading(Texts& console, std::size_t emptied, const Char* format, std::va_list args) {
    const bool again = console.Flag & TEXTS_REPORT_KEYS && reading(console);
    std::wmemset(console.Edit_Line, 0, emptied);
    end_line(console);
    console.Hist_Pos = 0;
    console.flag_read = TEXTS_READING;
    if (format) std::wcscpy(console.Edit_Line, Formatted(format, args).text);
    if (!again) console.Edit_Pos = edit_length(console);
}

// The line that waits for the host, and whether there is one. A completed line ends reading.
bool collect(Texts& console) {
    if (console.flag_read < TEXTS_ENTERED) return false;
    const bool entered = console.flag_read & TEXTS_ENTERED;
    console.flag_read = entered ? 0 : static_cast<signed char>(console.flag_read & TEXTS_READING);
    end_line(console);
    return true;
}

} // namespace

// --- Beginning ---

void Texts::Read(const char* format, ...) {
    Trace trace("Texts::Read", *this);
    check_first_use(*this, "Text::Read");
    if (too_small(*this)) return trace.out("<0");
    std::va_list args;
    va_start(args, format);
    begin_reading(*this, EDIT_FRONT, format, args); // the back half keeps what it holds, unseen
    va_end(args);
    Draw();
    trace.out("done0");
}

void Texts::Read(const wchar_t* format, ...) {
    Trace trace("Texts::Read", *this);
    check_first_use(*this, "Text::Read");
    if (too_small(*this)) return trace.out("<0");
    std::va_list args;
    va_start(args, format);
    begin_reading(*this, LINE_ROOM, format, args);
    va_end(args);
    Draw();
    trace.out("done0");
}

void Texts::Read(std::nullptr_t) { Read(static_cast<const wchar_t*>(nullptr)); }

// --- Keys ---

void Texts::Input(int key) {
    Trace trace("Texts::Input", *this);
    check_first_use(*this, "Text::Input");
    if (const char* way = refusal(*this, key)) return trace.out(way);
    end_line(*this);
    trace.out(Take(key));
}

const char* Texts::Take(int key) {
    const Edit_Action action = edit_action(key);
    switch (action) {
    case Edit_Action::end:
    case Edit_Action::home:
    case Edit_Action::left:
    case Edit_Action::right:
        Edit_Pos = moved_caret(action, Edit_Pos, edit_length(*this));
        Echo();
        break;
    case Edit_Action::backspace:
        erase_before(*this);
        Echo_Change();
        break;
    case Edit_Action::del:
        erase_behind(*this);
        Echo_Change();
        break;
    case Edit_Action::older:
        report_change(*this); // before anything is known to change
        if (recall_older(*this)) Echo();
        break;
    case Edit_Action::newer:
        report_change(*this);
        recall_newer(*this);
        Echo();
        break;
    case Edit_Action::enter: Enter(); break;
    case Edit_Action::escape: Give_Up(); break;
    case Edit_Action::paste: Paste(); break;
    case Edit_Action::point: return Type(L'.');
    case Edit_Action::type: return Type(static_cast<wchar_t>(key & 0xFFFF));
    case Edit_Action::control: return "key < 32";
    case Edit_Action::shift_bit: return "key == 256";
    }
    return "done";
}

// Codes that name no character come here too: a function key types what its number stands for.
const char* Texts::Type(wchar_t character) {
    if (!text::printable(static_cast<char32_t>(character))) return "! iswprint";
    if (!passes_filters(Flag, character)) return "not valid";
    if (insert(*this, character)) Echo_Change();
    return "done";
}

// Reading goes on until the host collects the line; nothing is repainted.
void Texts::Enter() {
    const auto length = static_cast<std::size_t>(edit_length(*this));
    if (!(Flag & TEXTS_FIELD)) Put_Line(&Texts::Lines, &Texts::Scroll_1, 1, Edit_Line, length);
    Put_Line(&Texts::History, &Texts::Scroll_2, 1, Edit_Line, length);
    flag_read |= TEXTS_ENTERED;
    Cursor_V.Cur_Value = 0;
}

void Texts::Give_Up() {
    flag_read = 0;
    if (has_sliders(*this)) Rescale_Cursor();
    Draw();
}

// Every character comes in as if it were typed, line breaks and other controls too. One with the code of this
// very key is left out.
void Texts::Paste() {
    static bool pasting;
    if (pasting) return;
    if (IsClipboardFormatAvailable(CF_TEXT)) {
        const Clipboard_Text clipboard(Wnd);
        if (!clipboard.readable()) return;
        pasting = true;
        clipboard.each_unit([this](int unit) { Input(unit); });
        pasting = false;
    }
    report_change(*this);
}

void Texts::Echo() { Read_Echo(Edit_Line, Edit_Pos); }

void Texts::Echo_Change() {
    Echo();
    report_change(*this);
}

// --- The end ---

char* Texts::Update() {
    Trace trace("Texts::Update", *this);
    if (too_small(*this)) return trace.out("<0", static_cast<char*>(nullptr));
    return collect(*this) ? Wchar_2_Char(Edit_Line) : nullptr;
}

void* Texts::Update(char wide) {
    if (!wide) return Update();
    Trace trace("Texts::Update", *this);
    if (too_small(*this)) return trace.out("<0", static_cast<void*>(nullptr));
    return collect(*this) ? Edit_Line : nullptr;
}
