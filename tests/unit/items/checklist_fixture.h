#ifndef TESTS_CHECKLIST_FIXTURE_H
#define TESTS_CHECKLIST_FIXTURE_H

#include <string>
#include <vector>

#include <brask/checklists.h>
#include <brask/fonts.h>

#include "unit/brask/expect.h"

// A check list of 150 by 100 at (100, 200), bevel 3, letters 8 by 10, rows of 12: room of 140 by 90, and a
// column for a label of n letters is 8 n + 20 wide.
struct Check_List : Recorded {
    CheckLists control;
    std::vector<std::string> texts;
    std::vector<const char*> labels;

    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6;
        control.Pos_X = 100, control.Pos_Y = 200, control.Dim_X = 150, control.Dim_Y = 100;
        control.Font_Size = 9; // a default font has no handle of its own
    }
    // Labels "a00", "a01", ... of three letters.
    void give(int count, int letters = 3) {
        texts.clear(), labels.clear();
        for (int i = 0; i < count; i++) {
            std::string text = std::to_string(i % 100);
            text.insert(0, static_cast<std::size_t>(letters) - text.size(), 'a');
            texts.push_back(text);
        }
        for (const std::string& text : texts)
            labels.push_back(text.c_str());
        labels.push_back(nullptr);
        control.List = labels.data();
    }
    void laid(int count) {
        give(count);
        control.Init(recorder::window());
        outside();
        recorder::clear();
    }
    void shown(int count) {
        laid(count);
        control.Draw();
        recorder::clear();
    }
    Buttons& box(int i) { return control.Check[i]; }
    Buttons& label(int i) { return control.Label[i]; }
    void point_at(int i) { recorder::pointer(label(i).Pos_X + 3, label(i).Pos_Y + 3); }
    void outside() { recorder::pointer(0, 0); }
    HFONT font() {
        return Zeb_Create_Font(nullptr, control.Font_Name, control.Font_Weight, control.Font_Slant,
                               control.Font_Size);
    }

    // --- What is painted, by its rules ---
    void text(int i, unsigned long color) {
        if (control.Clip_Dim_X)
            Zeb_set_clip(control.Clip_X, control.Clip_Y, control.Clip_Dim_X, control.Clip_Dim_Y);
        Zeb_Font_Color(color, 0);
        const Buttons& cell = label(i);
        if (cell.Clip_Dim_X) Zeb_set_clip(cell.Clip_X, cell.Clip_Y, cell.Clip_Dim_X, cell.Clip_Dim_Y);
        Zeb_Font_Write(font_now, box(i).Pos_X + box(i).Dim_X + 6, box(i).Pos_Y - 1, cell.W_Name);
        if (control.Clip_Dim_X) Zeb_reset_clip();
    }
    void bracketed_text(int i, unsigned long color, const char* operation) {
        font_now = font();
        Zeb_setup(recorder::window(), operation);
        text(i, color);
        Zeb_release();
    }
    void mark(Tools& by, int i) {
        const Buttons& b = box(i);
        by.Fill_Yellow(b.Pos_X + 1 + b.Border, b.Pos_X + b.Dim_X - b.Border, b.Pos_Y + b.Border,
                       b.Pos_Y + b.Dim_Y - b.Border - 1);
    }
    void face(Tools& by, int i, bool selected) {
        const Buttons& b = box(i);
        by.Fill_Select(selected, reinterpret_cast<const char*>(selected ? b.Image_Select : b.Image_Normal),
                       b.Flag, b.Border + 1, b.Pos_X, b.Pos_X + b.Dim_X, b.Pos_Y, b.Pos_Y + b.Dim_Y);
    }
    HFONT font_now = nullptr;

    static constexpr unsigned long kBlack = 1, kHighlight = 0x6464E6, kOutline = 0xE64040;
};

#endif
