#include "strip.h"

#include <cwchar>
#include <string>

#include <brask/keyboard.h>
#include <brask/pointer.h>

namespace {

// The shape buttons: each calls the function that it is named for.
struct Shape {
    const wchar_t* name;
    void (*call)(HWND wnd);
};
const Shape shape_table[] = {
    {L"Arrow", Set_Curs_Arrow}, {L"Cross", Set_Curs_Cross}, {L"Drag", Set_Curs_Drag},
    {L"Reset", Reset_Curs},     {L"Busy", Set_Curs_Wait},   {L"Ready", Reset_Curs_Wait},
};

struct Bit {
    int bit;
    const wchar_t* name;
};
const Bit key_bits[] = {
    {KEY_SHIFT, L"Shift "},       {KEY_CTRL, L"Ctrl "}, {KEY_ALT, L"Alt "},
    {KEY_EXTENDED, L"extended "}, {KEY_PAD, L"pad "},   {KEY_NUM, L"num "},
};

const struct {
    LPCWSTR cursor;
    const wchar_t* name;
} cursor_names[] = {{IDC_ARROW, L"arrow"}, {IDC_CROSS, L"cross"}, {IDC_WAIT, L"busy"}};

const wchar_t* cursor_name(HCURSOR cursor) {
    for (const auto& entry : cursor_names)
        if (cursor == LoadCursorW(nullptr, entry.cursor)) return entry.name;
    return L"another";
}

void show(Boxs& field, const std::wstring& text) {
    if (text == field.Name_Get()) return;
    field.Name_Set(L"%ls", text.c_str());
    field.Adjust();
}

} // namespace

Strip::Strip() : shown(LoadCursorW(nullptr, IDC_ARROW)) {
    panel.Flag = OUTIL_DISABLE | BOX_RAISED | OUTIL_FLAT;
    for (Boxs* field : {&event, &key, &cursor}) {
        field->Flag = OUTIL_DISABLE | OUTIL_FLAT | TEXT_LEFT | TEXT_MIDDLE;
        field->Color.set(235, 235, 225, 0);
    }
    event.Name_Set(L"Event");
    key.Name_Set(L"Key");
    cursor.Name_Set(L"Cursor %ls", cursor_name(shown));
    for (int i = 0; i < shapes; i++)
        button[i].Name_Set(L"%ls", shape_table[i].name);
}

void Strip::layout(HWND wnd, const Area& area) {
    area.give(panel);
    Area inner = area.inset(BORDER + SPACE);
    Area fields = inner.cut_left(inner.width * 55 / 100);
    inner.cut_left(SPACE);
    int whole = fields.width;
    fields.cut_left(whole * 27 / 100).give(event);
    fields.cut_left(SPACE);
    fields.cut_left(whole * 45 / 100).give(key);
    fields.cut_left(SPACE);
    fields.give(cursor);
    panel.Init(wnd);
    for (Boxs* field : {&event, &key, &cursor})
        field->Init(wnd);
    for (int i = 0; i < shapes; i++) {
        inner.cell(i, shapes, 0, 1).give(button[i]);
        button[i].Init(wnd);
    }
}

void Strip::draw() {
    panel.Draw();
    event.Draw();
    key.Draw();
    cursor.Draw();
    for (Buttons& each : button)
        each.Draw();
}

void Strip::pointer(int word) {
    int what = word & 15;
    for (int i = 0; i < shapes; i++)
        if (button[i].Select(word) && what == 2) press(i);
    if (what == 0 && pressed >= 0) {
        button[pressed].Cur_Value = 0;
        button[pressed].Adjust();
        pressed = -1;
    }
}

void Strip::press(int which) {
    pressed = which;
    button[which].Cur_Value = 1;
    button[which].Adjust();
    shape_table[which].call(panel.Wnd);
    shown = GetCursor();
    show(cursor, std::wstring(L"Cursor ") + cursor_name(shown));
}

void Strip::show_event(int word) {
    std::wstring text = L"Event " + std::to_wstring(word);
    const int held[] = {16, 32, 64};
    if (word >> 4) {
        text += L" = " + std::to_wstring(word & 15);
        for (int bit : held)
            if (word & bit) text += L" + " + std::to_wstring(bit);
    }
    show(event, text);
}

void Strip::show_key(int code) {
    wchar_t number[32];
    std::swprintf(number, 32, L"Key 0x%04X  ", unsigned(code));
    std::wstring text = number;
    for (const Bit& entry : key_bits)
        if (code & entry.bit) text += entry.name;
    if (!(code & (KEY_EXTENDED | KEY_PAD | KEY_NUM)) && (code & 255) > ' ') text += wchar_t(code & 255);
    show(key, text);
}

void Strip::each(const Visitor& visit) const {
    visit("panel", panel);
    for (const Boxs* field : {&event, &key, &cursor})
        visit("field", *field);
    for (const Buttons& each : button)
        visit("button", each);
}
