#include "popup/popup_window.h"

#include <cstdlib>
#include <cwchar>

#include <brask/fenn.h>
#include <brask/pointer.h>

#include "foundation/bracket.h"
#include "foundation/compound.h"
#include "foundation/popup_controls.h"
#include "text/format.h"

namespace brask {

Popup_State Popup = {nullptr, nullptr, nullptr, 0, 0xAAAAAA, "", 0};

bool begins_like(const wchar_t* text, const wchar_t* word) {
    const auto folded = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c; };
    for (int i = 0; i < 5; i++) {
        if (folded(text[i]) != folded(word[i])) return false;
    }
    return true;
}

namespace {

constexpr char TAG[] = "PopUp_Query -> Dialog_Popup_Proc";
constexpr int MARGIN = 6, GAP = 3; // between an edge and a control, between two buttons
constexpr int BUTTON_HEIGHT = 26, TEXT_FOOT = 38, HELP_WIDTH = 100;

bool has_help() { return Popup.help_topic[0] != 0; }

// --- Layout ---

void set_look(Tools& control, const Place& place, DWORD flag) {
    put(control, place);
    control.Flag = flag;
    control.Border = 1;
}

void set_font(Tools& control) {
    control.Font_Name = "Arial";
    control.Font_Weight = "bold";
    control.Font_Size = 11;
}

void lay_ground(HWND wnd, int w, int h) {
    set_look(Popup_Box, {0, 0, w - 1, h - 1}, OUTIL_DISABLE | OUTIL_FLAT);
    Popup_Box.Color_Set(Popup.color);
    Popup_Box.Init(wnd);
}

void lay_button(Buttons& button, HWND wnd, const Place& place, const wchar_t* word, bool yellow) {
    button.Name_Set(L"%.1023ls", word);
    button.Color = yellow ? Colors(200, 200, 100) : Colors(170, 170, 170);
    set_look(button, place, 0);
    set_font(button);
    button.Init(wnd);
}

void lay_answers(HWND wnd, int w) {
    Popup.count = 0;
    while (Popup.count < POPUP_BUTTONS && Popup.labels[Popup.count])
        Popup.count++;
    if (Popup.count == 0) return;
    const int width = (w - GAP * (Popup.count + 3)) / Popup.count;
    for (int i = 0; i < Popup.count; i++) {
        const wchar_t* word = Popup.labels[i];
        const bool declines = begins_like(word, L"cancel") || begins_like(word, L"abort");
        lay_button(Popup_Buttons[i], wnd, {MARGIN + i * (width + GAP), MARGIN, width, BUTTON_HEIGHT}, word,
                   declines);
    }
}

// The room of the message is kept to 16 bits.
void lay_message(HWND wnd, int w, int h) {
    if (Popup.title)
        Popup_Text.Name_Set(L"%.1023ls", Popup.title);
    else
        Popup_Text.Name_Set(nullptr);
    const int beside = has_help() ? HELP_WIDTH + 3 * MARGIN : 2 * MARGIN;
    set_look(
        Popup_Text,
        {MARGIN, TEXT_FOOT, static_cast<short>(w - beside), static_cast<short>(h - TEXT_FOOT - MARGIN - 1)},
        TEXTS_CURSOR_V);
    set_font(Popup_Text);
    Popup_Text.Init(wnd);
}

void lay_help(HWND wnd) {
    if (!has_help()) return;
    lay_button(Popup_Help, wnd, {Popup_Text.Dim_X + 2 * MARGIN, TEXT_FOOT, HELP_WIDTH, Popup_Text.Dim_Y},
               L"Help", true);
}

void Dialog_Popup_Draw() {
    Popup_Box.Draw();
    Popup_Text.Draw();
    if (has_help()) Popup_Help.Draw();
    for (int i = 0; i < Popup.count; i++)
        Popup_Buttons[i].Draw();
}

void Dialog_Popup_Layout(HWND wnd, int w, int h) {
    lay_ground(wnd, w, h);
    lay_answers(wnd, w);
    lay_message(wnd, w, h);
    lay_help(wnd);
    Dialog_Popup_Draw();
}

// --- The message ---

constexpr std::size_t LONGEST = 1024; // what one Write carries, with the terminator

// The text is a format without arguments.
void write_piece(const wchar_t* text) {
    wchar_t printed[LONGEST];
    text::format_bare(printed, LONGEST, text);
    Popup_Text.Write(L"%ls", printed);
}

// Each line by itself, cut off in the caller's text. Empty lines vanish.
void write_lines(wchar_t* text) {
    for (text += std::wcsspn(text, L"\n"); *text; text += std::wcsspn(text, L"\n")) {
        wchar_t* const piece = text;
        text += std::wcscspn(text, L"\n");
        if (*text) *text++ = 0;
        write_piece(piece);
    }
}

void Dialog_Popup_Text() {
    Popup_Text.Cleanup();
    if (!Popup.body)
        write_piece(L"");
    else if (std::wcslen(Popup.body) <= LONGEST)
        write_piece(Popup.body);
    else
        write_lines(Popup.body);
    Popup_Text.Write(""); // keeps the text clear of the foot
}

// --- The pointer ---

int held_buttons() { return (getbutton(1) ? 16 : 0) | (getbutton(4) ? 32 : 0) | (getbutton(2) ? 64 : 0); }

// Everything that the controls read comes from this.
void hand_on_position(HWND wnd, LPARAM lparam) {
    Setup setup(wnd, TAG);
    set_curs(LOWORD(lparam), HIWORD(lparam));
}

void Dialog_Popup_Move(int event) {
    Popup_Text.Select(event, 0, 0);
    for (int i = 0; i < Popup.count; i++)
        Popup_Buttons[i].Select(event);
    if (has_help()) Popup_Help.Select(event);
}

// 1: an answer was pressed, and the window ends.
int Dialog_Popup_Click(HWND wnd, int event) {
    if (event == 0) return 0;
    if (has_help() && Popup_Help.Select(event))
        ShellExecuteA(nullptr, "open", Popup.help_topic, nullptr, nullptr, SW_SHOWNORMAL);
    for (int i = 0; i < Popup.count; i++) {
        if (!Popup_Buttons[i].Select(event)) continue;
        EndDialog(wnd, i);
        return 1;
    }
    Popup_Text.Select(event, 0, 0);
    return 0;
}

// --- Messages ---

void on_begin(HWND wnd) {
    RECT client;
    GetClientRect(wnd, &client);
    Dialog_Popup_Layout(wnd, client.right, client.bottom);
    Dialog_Popup_Text();
    SetWindowPos(wnd, HWND_TOPMOST, 0, 0, 1, 1, SWP_NOSIZE | SWP_NOMOVE);
}

void on_paint(HWND wnd) {
    PAINTSTRUCT paint;
    BeginPaint(wnd, &paint);
    Dialog_Popup_Draw();
    EndPaint(wnd, &paint);
}

void on_move(HWND wnd, LPARAM lparam) {
    hand_on_position(wnd, lparam);
    const int held = held_buttons();
    Dialog_Popup_Move(held ? held + 1 : 0);
}

int on_press(HWND wnd, LPARAM lparam) {
    hand_on_position(wnd, lparam);
    return Dialog_Popup_Click(wnd, 2 + held_buttons());
}

void on_release(HWND wnd, LPARAM lparam) {
    hand_on_position(wnd, lparam);
    Dialog_Popup_Click(wnd, held_buttons());
}

void on_wheel(HWND wnd, WPARAM wparam) {
    constexpr int NOTCH = 120;
    Popup.wheel += static_cast<short>(HIWORD(wparam));
    if (std::abs(Popup.wheel) < NOTCH) return;
    {
        Setup setup(wnd, TAG);
        int x, y;
        read_curs(&x, &y);
    }
    const int notches = Popup.wheel / NOTCH;
    if (Popup_Text.Select(KEY_QUERY, 0, 0)) Popup_Text.Scroll(-notches);
    Popup.wheel -= notches * NOTCH;
}

} // namespace

INT_PTR CALLBACK Dialog_Popup_Proc(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_INITDIALOG: on_begin(wnd); return 0;
    case WM_SIZE: Dialog_Popup_Layout(wnd, LOWORD(lparam), HIWORD(lparam)); return 0;
    case WM_PAINT: on_paint(wnd); return 0;
    case WM_CLOSE: EndDialog(wnd, -1); return 0;
    case WM_MOUSEMOVE: on_move(wnd, lparam); return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN: return on_press(wnd, lparam);
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP: on_release(wnd, lparam); return 0;
    case WM_MOUSEWHEEL: on_wheel(wnd, wparam); return 0;
    default: return 0;
    }
}

} // namespace brask
