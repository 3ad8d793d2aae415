#ifndef TESTS_SPINNER_FIXTURE_H
#define TESTS_SPINNER_FIXTURE_H

#include <brask/selects.h>

#include "unit/brask/expect.h"

// A spinner whose measures come out even: letters 8 by 10, bevel 3, so that its inside begins 5 from the
// edge.
//
//   horizontal   200 by 30 at (100, 200): arrows of 30, the zone 190 by 20 at (105, 205)
//   vertical     40 by 200 at (100, 200): arrows of 40, the zone 30 by 190 at (105, 205)
struct Spinner : Recorded {
    Selects spin;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, CURSEUR = 16;
        spin.Pos_X = 100, spin.Pos_Y = 200;
        spin.Font_Size = 9; // a default font has no handle of its own
    }
    void TearDown() override {
        BORDER = 3, CURSEUR = 16;
        Recorded::TearDown();
    }

    void horizontal(int count) { lay(0, count, 200, 30); }
    void vertical(int count) { lay(OUTIL_VERTICAL, count, 40, 200); }
    void lay(DWORD flag, int count, int width, int height) {
        spin.Flag |= flag;
        spin.Dim_X = width, spin.Dim_Y = height;
        spin.Grow(count, 0);
        for (int i = 0; i < count; i++)
            spin.Item[i]->Name_Set(L"no%d", i);
        outside();
        spin.Init(recorder::window());
        recorder::clear();
    }
    // Drawn as well, every choice once, so that fonts and faces are known.
    void shown() {
        const int value = spin.Cur_Value;
        for (spin.Cur_Value = spin.NbItem - 1; spin.Cur_Value > 0; spin.Cur_Value--)
            spin.Draw();
        spin.Cur_Value = value;
        spin.Draw();
        recorder::name(spin.Box.Image_Normal, "GROUND");
        recorder::name(spin.Box.Image_Select, "LIT");
        recorder::clear();
    }
    Buttons& item(int index) { return *spin.Item[index]; }
    void skip(int index) { item(index).Flag |= OUTIL_INVISIBLE; }
    void outside() { recorder::pointer(0, 0); }
    // Where a press steps, and where it does not.
    void on_low() { recorder::pointer(102, 202); }
    void on_high() { spin.Flag& OUTIL_VERTICAL ? recorder::pointer(120, 399) : recorder::pointer(299, 215); }
    void on_middle() {
        spin.Flag& OUTIL_VERTICAL ? recorder::pointer(120, 300) : recorder::pointer(200, 215);
    }

    // The steps that the control shares, told by the base and the choice.
    void name_told(int width) {
        if (!spin.W_Name) return;
        const DWORD placed = spin.Flag & (TEXT_MIDDLE | TEXT_BOTTOM) ? spin.Flag : spin.Flag | TEXT_TOP;
        spin.Text(spin.W_Name, placed & ~OUTIL_VERTICAL, spin.Pos_X, spin.Pos_Y, width, spin.Dim_Y,
                  spin.Border, 0);
    }
    void update_told(bool selected, int choice) { update_told(selected, choice, spin.Dim_X); }
    void update_told(bool selected, int choice, int name_width) {
        const int b = spin.Box.Border ? spin.Box.Border : BORDER;
        const DWORD* face = selected ? spin.Box.Image_Select : spin.Box.Image_Normal;
        spin.Fill_Select(selected, reinterpret_cast<const char*>(face), spin.Box.Flag, b + 1, spin.Pos_X,
                         spin.Pos_X + spin.Dim_X, spin.Pos_Y, spin.Pos_Y + spin.Dim_Y);
        name_told(name_width);
        const Boxs& zone = spin.Zone;
        const int first = spin.Flag & OUTIL_VERTICAL ? 2 : 0;
        spin.Arrow(first, 0, spin.Arrow_Dim, zone.Pos_X, zone.Dim_X, zone.Pos_Y, zone.Dim_Y);
        spin.Arrow(first + 1, 0, spin.Arrow_Dim, zone.Pos_X, zone.Dim_X, zone.Pos_Y, zone.Dim_Y);
        if (choice >= 0) item(choice).Draw();
    }
};

struct Tracked_Spinner : Spinner {
    std::string selected(int mode, int answer) {
        return everything([&] { EXPECT_EQ(spin.Select(mode), answer); });
    }
    // What one Select reports between its own lines.
    template <typename Steps>
    std::string select_told(const std::string& tag, Steps steps) {
        return everything([&] {
            trace_in("Selects::Select", name_of(spin));
            read_pointer("Selects::Select");
            steps();
            trace_out("Selects::Select", tag);
        });
    }
    std::string select_told(const std::string& tag) {
        return select_told(tag, [] {});
    }
};

#endif
