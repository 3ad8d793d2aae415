#ifndef BENCH_LONG_LIST_H
#define BENCH_LONG_LIST_H

#include <brask/lists.h>

#include "layout.h"

// The list of the comparison as a host of the library has it.
struct Long_List {
    Lists list;

    Long_List() {
        list.Flag = OUTIL_VERTICAL;
        list.Dim_X = layout::list_width;
        list.Dim_Y = layout::list_height;
        list.Item_Dim = layout::list_row;
        list.Font_Size = 11; // points, which come to 14 pixels
    }
    void name() {
        for (int i = 0; i < list.NbItem; i++)
            list.Item[i]->Name_Set(layout::row_label(i).text);
    }
    void open(int count, HWND wnd) {
        list.Grow(count, 0);
        name();
        list.Init(wnd);
        list.Draw();
    }
    // The first row in view.
    int top() const {
        for (int i = 0; i < list.NbItem; i++)
            if (list.Item[i]->Shown) return i;
        return -1;
    }
};

#endif
