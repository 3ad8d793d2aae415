#include <brask/texts.h>

#include <string>

#include "scenes.h"

namespace {

constexpr int WIDTH = 260, HEIGHT = 150; // of a console; the pictures leave 10 around it

void lay(Stage& stage, Texts& console, DWORD flags, const wchar_t* name = nullptr) {
    console.Font_Size = 9;
    stage.show(console, 10, 10, WIDTH, HEIGHT, flags, name);
}

void log_lines(Texts& console, int count, int width = 0) {
    for (int i = 1; i <= count; i++)
        console.Write(L"line %d %ls", i, std::wstring(static_cast<std::size_t>(width), L'-').c_str());
}

void marks(Stage& stage) {
    Texts console;
    lay(stage, console, 0);
    console.Write(L"plain \x1"
                  L"blue \x2"
                  L"black \x3white");
    console.Write(L"\x4red \x5yellow \x6green\x2 and black");
    console.Write(L"\xF1"
                  L"bold \xF2slanted \xF0"
                  L"medium again");
    console.Write(L"\xF1\x4"
                  L"bold and red \xF2\x1slanted and blue");
    console.Write(L"one\ntwo lines");
    console.Write(L"a low byte is enough: \x0104red");
}

void scripts(Stage& stage) {
    Texts console;
    lay(stage, console, 0);
    console.Write(L"\x0395\x03BB\x03BB\x03AC\x03B4\x03B1 \x0420\x0443\x0441\x0441\x043A\x0438\x0439");
    console.Write(L"e\x0301 combining, \x20AC sign");
}

void sliders(Stage& stage, int lines, int width) {
    Texts console;
    lay(stage, console, TEXTS_CURSOR_V | TEXTS_CURSOR_H);
    log_lines(console, lines, width);
    console.Draw();
}

void scrolled(Stage& stage) {
    Texts console;
    lay(stage, console, TEXTS_CURSOR_V | TEXTS_CURSOR_H, L"Log");
    log_lines(console, 40, 60);
    stage.point(150, 90);
    console.Scroll(-4);
    console.Select(1, 30, 0);
}

// The thumbs are back at the newest line, the text is not.
void written_into_a_scrolled_log(Stage& stage) {
    Texts console;
    lay(stage, console, TEXTS_CURSOR_V);
    log_lines(console, 40);
    console.Center(20);
    console.Write(L"new");
}

void reading(Stage& stage, DWORD flags, const wchar_t* text, bool over, int caret = -1) {
    Texts console;
    lay(stage, console, flags);
    if (!(flags & TEXTS_FIELD)) log_lines(console, 3);
    console.Read(L"%ls", text);
    if (caret >= 0) console.Edit_Pos = caret;
    if (over) stage.point(100, 100);
    console.Select(1);
}

void field(Stage& stage, bool over) {
    Texts console;
    console.Font_Size = 9;
    stage.show(console, 10, 10, 150, 26, TEXTS_FIELD | TEXTS_INTEGER);
    console.Read(L"%d", 12345);
    if (over) stage.point(50, 20);
    console.Select(1);
    console.Input('x'); // refused
    console.Input('6');
}

void reserved(Stage& stage) {
    Texts console;
    lay(stage, console, TEXTS_READ_STRIP | TEXTS_CURSOR_V);
    log_lines(console, 20);
    console.Draw();
}

void looks(Stage& stage, DWORD flags) {
    Texts console;
    lay(stage, console, flags, L"Name");
    console.Write(L"text");
    console.Draw();
}

void bordered(Stage& stage, int border) {
    Texts console;
    console.Border = border;
    lay(stage, console, TEXTS_CURSOR_V | TEXTS_CURSOR_H);
    log_lines(console, 30, 40);
    console.Read(L"typed");
}

// A narrow letter is measured, a wide sign is shown: caret and start go different ways.
void password(Stage& stage, const wchar_t* text, int caret = -1) {
    reading(stage, TEXTS_PASSWORD, text, true, caret);
}

constexpr const wchar_t* LONG_LINE = L"a line that is longer than the strip, so that it scrolls to the caret";

} // namespace

const std::vector<Scene> CONSOLE_SCENES = {
    {"console_marks", 280, 170, marks},
    {"console_scripts", 280, 170, scripts},
    {"console_sliders", 280, 170, [](Stage& s) { sliders(s, 30, 60); }},
    {"console_sliders_idle", 280, 170, [](Stage& s) { sliders(s, 3, 0); }},
    {"console_scrolled", 280, 170, scrolled},
    {"console_written_scrolled", 280, 170, written_into_a_scrolled_log},
    {"console_reading", 280, 170, [](Stage& s) { reading(s, 0, L"typed text", true); }},
    {"console_reading_outside", 280, 170, [](Stage& s) { reading(s, 0, L"typed text", false); }},
    {"console_reading_middle", 280, 170, [](Stage& s) { reading(s, 0, L"typed text", true, 5); }},
    {"console_reading_long", 280, 170, [](Stage& s) { reading(s, 0, LONG_LINE, true); }},
    {"console_reading_long_start", 280, 170, [](Stage& s) { reading(s, 0, LONG_LINE, true, 3); }},
    {"console_password", 280, 170, [](Stage& s) { password(s, L"secret"); }},
    {"console_password_narrow", 280, 170,
     [](Stage& s) { password(s, L"iiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiiii"); }},
    {"console_field", 170, 46, [](Stage& s) { field(s, false); }},
    {"console_field_over", 170, 46, [](Stage& s) { field(s, true); }},
    {"console_strip_reserved", 280, 170, reserved},
    {"console_named", 280, 170, [](Stage& s) { looks(s, 0); }},
    {"console_outline", 280, 170, [](Stage& s) { looks(s, GRAPH_OUTLINE); }},
    {"console_empty", 280, 170, [](Stage& s) { looks(s, OUTIL_EMPTY); }},
    {"console_border_1", 280, 170, [](Stage& s) { bordered(s, 1); }},
    {"console_border_7", 280, 170, [](Stage& s) { bordered(s, 7); }},
};
