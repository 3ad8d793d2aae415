#ifndef TESTS_LIST_FIXTURE_H
#define TESTS_LIST_FIXTURE_H

#include <cstdlib>

#include <brask/lists.h>

#include "unit/brask/expect.h"

// A list whose measures come out even: letters 8 by 10, bevel 3, items of at least 20, a slider of 16.
//
//   vertical     120 by 115 at (100, 200): room 105 for items, of which five just fit at 21 each
//   horizontal   250 by 100 at (100, 200): room 240; names of 4 letters need 42 each, so that five fit
struct List : Recorded {
    Lists list;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, BUT_LIST = 25, CURSEUR = 16;
        list.Pos_X = 100, list.Pos_Y = 200;
        list.Item_Dim = 20;
        list.Font_Size = 9; // a default font has no handle of its own
    }

    void vertical(int count) { lay(OUTIL_VERTICAL, count, 120, 115); }
    void horizontal(int count) { lay(0, count, 250, 100); }
    void lay(DWORD flag, int count, int width, int height) {
        list.Flag |= flag;
        list.Dim_X = width, list.Dim_Y = height;
        list.Grow(count, 0);
        for (int i = 0; i < count; i++)
            list.Item[i]->Name_Set(L"nm%02d", i % 100);
        list.Init(recorder::window());
        outside();
        recorder::clear();
    }
    // Drawn as well.
    void shown() {
        list.Draw();
        recorder::name(list.Box.Image_Normal, "GROUND");
        recorder::clear();
    }
    Buttons& item(int index) { return *list.Item[index]; }
    int x_of(int index) const { return list.First_X + index * list.Step_X; }
    int y_of(int index) const { return list.First_Y + index * list.Step_Y; }
    void point_at(int index) { recorder::pointer(x_of(index) + 5, y_of(index) + 5); }
    void outside() { recorder::pointer(0, 0); }

    int drawn() {
        int count = 0;
        for (int i = 0; i < list.NbItem; i++)
            count += list.Item[i]->Shown;
        return count;
    }
};

#endif
