#include <algorithm>

#include <brask/dirtrees.h>
#include <brask/fonts.h>
#include <brask/icons.h>

#include "browser/dirtree_geometry.h"
#include "foundation/bracket.h"

// The rows, and the sliders that go by them.

using namespace brask;

namespace {

constexpr int DEEPEST = 100;     // levels that lines are drawn for
constexpr DWORD LINE = 0xFF0000; // blue
constexpr DWORD NAME_NO_ACCESS = 0x6E6E6E;
constexpr DWORD NAME_SELECTED = 0xFF0000;
constexpr DWORD NAME = 1;

// For each level: was the last row there the last of its siblings, so that no line leads further down?
class Branches {
  public:
    void pass(const Dir_List_Row& row) {
        if (row.Depth >= 1 && row.Depth <= DEEPEST) done[row.Depth - 1] = (row.Node->flag & DIR_LAST) != 0;
    }
    bool goes_on(int level) const { return !done[level]; }

  private:
    bool done[DEEPEST] = {};
};

// The lines of the branches that pass by on the left of the row.
void paint_branches(const Dir_View& view, int depth, int y, const Branches& branches) {
    Zeb_color(LINE);
    if (depth > DEEPEST) return;
    for (int level = 0; level < depth - 1; level++) {
        if (!branches.goes_on(level)) continue;
        const Px x = Px(cell_x(view, level)) + 7;
        move2s(bits(x), bits(y));
        draw2s(bits(x), bits(Px(y) + ROW_HEIGHT + 1), 0);
    }
}

void paint_lead(const Boxs& box, DWORD flag, int x, int y) {
    const char goes_on = !(flag & DIR_LAST);
    const int right = Px(x) + ROW_HEIGHT, top = Px(y) + ROW_HEIGHT;
    if (flag & DIR_LEAF)
        Icon_Lead_Leaf(&box, goes_on, x, right, y, top);
    else if (flag & DIR_NO_ACCESS)
        Icon_Lead_No_Access(&box, goes_on, x, right, y, top);
    else if (flag & DIR_OPEN)
        Icon_Lead_Expand(&box, 1, x, right, y, top);
    else if (flag & DIR_CLOSED)
        Icon_Lead_Collapse(&box, 1, x, right, y, top);
}

// Which rows above have had their last sibling decides on the lines of those in sight: of them nothing but
// the flags is read.
void paint_leads(const DirTrees& tree, const Dir_View& view) {
    Branches branches;
    int r = 0;
    for (; r < std::min(view.first - 1, view.end); r++)
        branches.pass(tree.List[r]);
    for (; r < view.end; r++) {
        const Dir_List_Row& row = tree.List[r];
        const int y = row_y(view, r);
        paint_branches(view, row.Depth, y, branches);
        branches.pass(row);
        if (row.Depth) paint_lead(tree.Box_Tree, row.Node->flag, cell_x(view, row.Depth - 1), y);
    }
}

struct Picture {
    DWORD flag;
    const wchar_t* file;
};
constexpr Picture PICTURES[] = {{DIR_ROOT, L"icon_mycomputer.rgb"},
                                {DIR_FLOPPY, L"icon_floppy.rgb"},
                                {DIR_FIXED, L"icon_fixed.rgb"},
                                {DIR_CDROM, L"icon_cdrom.rgb"},
                                {DIR_REMOTE, L"icon_remote.rgb"}};

// The chosen folder is shown open, and in another colour; a chosen drive keeps its picture.
void paint_picture(const Boxs& box, DWORD flag, int x, int y) {
    for (const Picture& picture : PICTURES)
        if (flag & picture.flag) return Icon_Draw_Image(&box, x, y, W_Prog_Name, picture.file);
    if (flag & DIR_SELECTED)
        Icon_Dir_Open(&box, x, y, 1);
    else if (flag & DIR_OPEN)
        Icon_Dir_Open(&box, x, y, 0);
    else
        Icon_Dir_Close(&box, x, y, 0);
}

void paint_names(const DirTrees& tree, const Dir_View& view, HFONT font) {
    for (int r = view.first; r < view.end; r++) {
        const Dir_List_Row& row = tree.List[r];
        const DWORD flag = row.Node->flag;
        const Px x = cell_x(view, row.Depth), y = Px(row_y(view, r)) - 1;
        paint_picture(tree.Box_Tree, flag, x, y);
        Zeb_Font_Color(flag & DIR_NO_ACCESS ? NAME_NO_ACCESS : flag & DIR_SELECTED ? NAME_SELECTED : NAME, 0);
        Zeb_Font_Write(font, x + 28, y - 3, row.Node->name);
    }
}

} // namespace

namespace {

// The fonts of the control are fixed.
HFONT row_font(const Boxs& box) { return Zeb_Create_Font(box.Wnd, "Arial", "regular", nullptr, 10); }

int widest_row(const DirTrees& tree, HFONT font) {
    Setup setup(tree.Box_Tree.Wnd, "DirTrees::Dir_Tree_Update2");
    int widest = 0;
    for (int r = 0; r < tree.NbList; r++) {
        const Dir_List_Row& row = tree.List[r];
        widest = std::max(widest, row_extent(tree, row.Depth, Zeb_Font_Size_String(font, row.Node->name)));
    }
    return widest;
}

// The range that brings `total` pixels into view in a slider of `length`.
float travel(int length, int total) { return static_cast<float>(4 * Px(BORDER) - length + total); }

// The foot of the rows, on which a slider is about to appear.
void paint_band(const Boxs& box) {
    Setup setup(box.Wnd, "DirTrees::Dir_Tree_Update2");
    Zeb_color(box.Color.get());
    const Px left = box.Pos_X, bottom = box.Pos_Y;
    draw_fill_rectangle(left, bottom + 2 * Px(SPACE) + CURSEUR, left + box.Dim_X, bottom);
}

// Whether all of it fits.
bool range_sideways(Sliders& slider, int widest) {
    const bool fits = widest <= slider.Dim_X;
    slider.Flag = fits ? FITS_SIDEWAYS : OUTIL_CAPTURE;
    if (fits) {
        slider.Cur_Value = 0.0f;
        return true;
    }
    slider.Val_Max = travel(slider.Dim_X, widest);
    slider.Larg_Adjust(static_cast<float>(slider.Dim_X), static_cast<float>(widest));
    return false;
}

bool range_down(Sliders& slider, int height) {
    const bool fits = height <= slider.Dim_Y;
    slider.Flag = fits ? FITS_DOWN : OUTIL_CAPTURE | OUTIL_REVERSE | OUTIL_VERTICAL;
    if (fits) {
        slider.Cur_Value = 0.0f;
        return true;
    }
    slider.Val_Min = travel(slider.Dim_Y, height);
    slider.Larg_Adjust(static_cast<float>(slider.Dim_Y), static_cast<float>(height));
    return false;
}

} // namespace

int DirTrees::Dir_Tree_Update2() {
    const HFONT font = row_font(Box_Tree);
    if (!Make_List()) return 0;
    const bool fits_sideways = range_sideways(Cursor_H, widest_row(*this, font));
    if (!fits_sideways) paint_band(Box_Tree);
    const bool fits_down = range_down(Cursor_V, ROW_HEIGHT * Px(NbList));
    Cursor_V.Init(Box_Tree.Wnd);
    Cursor_H.Init(Box_Tree.Wnd);
    if (fits_down || fits_sideways) {
        Cursor_V.Clear();
        Cursor_H.Clear();
    }
    Cursor_V.Draw();
    Cursor_H.Draw();
    return NbList;
}

void DirTrees::Dir_Tree_Draw2() {
    const HFONT font = row_font(Box_Tree);
    Setup setup(Box_Tree.Wnd, "DirTrees::Dir_Tree_Draw2");
    const Px left = Box_Tree.Pos_X, bottom = Box_Tree.Pos_Y;
    Zeb_set_clip(left, bottom, Box_Tree.Dim_X, Box_Tree.Dim_Y);
    Zeb_color(Box_Tree.Color.get());
    draw_fill_rectangle(left - 1, bottom + Box_Tree.Dim_Y + 1, left + Box_Tree.Dim_X + 1, bottom - 1);
    const Dir_View view = dir_view(*this);
    paint_leads(*this, view);
    paint_names(*this, view, font);
    Zeb_reset_clip();
}
