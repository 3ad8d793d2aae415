#include <brask/dirtrees.h>

#include <cstdlib>
#include <cstring>

#include "browser/dir_tree.h"
#include "browser/dirtree_geometry.h"
#include "foundation/bracket.h"
#include "foundation/checks.h"
#include "foundation/trace.h"

using namespace brask;

namespace {

// --- Init ---

struct Part_Look {
    DWORD flag;
    int border;
    const Tools& colored; // whose colour the part has
};
template <typename Part>
void lay(Part& part, const Place& place, const Part_Look& look, HWND wnd) {
    part.Flag = look.flag;
    put(part, place);
    part.Border = look.border;
    lend_color(look.colored, part);
    part.Init(wnd);
}

void lay_slider(Sliders& slider, const Place& place, DWORD flag, float start, const Boxs& inner, HWND wnd) {
    slider.Val_Min = start;
    slider.Step = ROW_HEIGHT;
    lay(slider, place, {flag, 1, inner}, wnd);
}

// --- Draw ---

// The name and the chosen folder's name, as far as they have room.
void set_title(DirTrees& tree) {
    if (!tree.Current) return;
    wchar_t title[PATH_ROOM];
    int end = 0;
    const wchar_t* const pieces[] = {tree.W_Name ? tree.W_Name : L"", tree.W_Name ? L" " : L"",
                                     tree.Current->name};
    for (const wchar_t* piece : pieces)
        while (*piece && end < PATH_ROOM - 1)
            title[end++] = *piece++;
    title[end] = 0;
    tree.Box_Frame.Name_Set(L"%ls", title);
}

} // namespace

DirTrees::DirTrees() {
    Trace trace("DirTrees::DirTrees");
    std::memset(static_cast<void*>(this), 0, sizeof *this);
}
DirTrees::DirTrees(const DirTrees& other) = default;
DirTrees& DirTrees::operator=(const DirTrees& other) = default;
DirTrees::~DirTrees() {
    Trace trace("DirTrees::~DirTrees");
    Dir_Tree_Free(Tree);
    std::free(Tree);
    std::free(List);
}

// The window goes to the parts, each of which warns for itself when there is none.
void DirTrees::Init(HWND wnd) {
    Trace trace("DirTrees::Init", *this);
    test |= TEST_INIT;
    if (too_small(*this)) return trace.out("<0");
    Box_Frame.Font_Name = "Arial";
    Box_Frame.Font_Weight = "bold";
    Box_Frame.Font_Size = 14;
    lay(Box_Frame, frame_place(*this), {OUTIL_DISABLE | OUTIL_FLAT | TEXT_BOTTOM, Border, *this}, wnd);
    lay(Box_Inner, inner_place(*this), {OUTIL_FLAT, Border, Box_Frame}, wnd);
    Box_Inner.Flag = OUTIL_EMPTY; // from now on it only answers where the pointer is
    lay_slider(Cursor_V, vertical_place(*this), FITS_DOWN, 100.0f, Box_Inner, wnd);
    lay_slider(Cursor_H, horizontal_place(*this), FITS_SIDEWAYS, 0.0f, Box_Inner, wnd);
    lay(Box_Tree, rows_place(*this), {OUTIL_EMPTY, Box_Tree.Border, Box_Inner}, wnd);
    But_Refresh.Name_Set(L"Refresh");
    lay(But_Refresh, refresh_place(*this), {0, Box_Inner.Border, Box_Inner}, wnd);
}

void DirTrees::Draw() {
    Trace trace("DirTrees::Draw", *this);
    check_first_use(*this, "DirTrees::Draw");
    if (too_small(*this)) return trace.out("<0");
    set_title(*this);
    Box_Frame.Draw();
    Box_Inner.Flag = OUTIL_DISABLE;
    Box_Inner.Draw();
    Box_Inner.Flag = OUTIL_EMPTY;
    Cursor_V.Draw();
    Cursor_H.Draw();
    But_Refresh.Draw();
    Dir_Tree_Update2();
    Dir_Tree_Draw2();
}

// Whether the slider has the pointer, and the rows have followed it.
bool DirTrees::Follow(Sliders& slider, int mode) {
    if (!slider.Select(mode)) return false;
    slider.Cur_Value = slider.Read();
    slider.Adjust();
    Dir_Tree_Draw2();
    return true;
}

// A click on a row: 2 when it chose a folder, else 1.
int DirTrees::Click() {
    const Dir_Cell cell = cell_at(*this, read_pointer(Box_Tree, "DirTrees::Select"));
    if (Dir_Tree_Expand(cell.row, cell.column)) {
        Dir_Tree_Update2();
        Dir_Tree_Draw2();
        return 1;
    }
    Dir_Tree* chosen = Dir_Tree_Select(cell.row, cell.column, Current);
    if (!chosen) return 1;
    Current = chosen;
    Box_Frame.Name_Set(L"%ls", chosen->name);
    Box_Frame.Draw();
    Draw();
    return 2;
}

int DirTrees::Select(int mode) {
    Trace trace("DirTrees::Select", *this);
    check_first_use(*this, "DirTrees::Select");
    if (too_small(*this)) return trace.out("<0", 0);
    if (!mode) { // the whole word: a release, or a move with no button held
        But_Refresh.Select(0);
        Cursor_V.Select(0);
        Cursor_H.Select(0);
        return trace.out("", 1, 1);
    }
    if (But_Refresh.Select(mode)) {
        But_Refresh.Cur_Value = 1;
        But_Refresh.Adjust(); // shown pressed while the disk is read
        Refresh();
        Draw();
        But_Refresh.Cur_Value = 0;
        But_Refresh.Adjust();
        return trace.out("", 2, 2);
    }
    if (Follow(Cursor_V, mode) || Follow(Cursor_H, mode) || !Box_Inner.Select(mode))
        return trace.out("", 1, 1);
    const int answer = Click();
    return trace.out("", answer, answer);
}

void DirTrees::Scroll(int n) {
    Trace trace("DirTrees::Scroll", *this);
    check_first_use(*this, "DirTrees::Scroll");
    if (too_small(*this)) return trace.out("<0");
    Sliders& slider = Cursor_H.Select(KEY_QUERY) ? Cursor_H : Cursor_V;
    const float before = slider.Cur_Value;
    slider.Scroll(-Px(n));
    if (slider.Cur_Value != before) Dir_Tree_Draw2();
}
