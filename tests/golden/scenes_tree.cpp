#include <cwchar>

#include <brask/dirtrees.h>
#include <brask/fenn.h>

#include "scenes.h"

// The tree of folders over the machine of machine.cpp.

namespace {

constexpr int EDGE = 5, WIDTH = 260, HEIGHT = 330, ROW = 18;

struct Look {
    const wchar_t* path;
    int height = HEIGHT;
    DWORD flags = 0;
    const wchar_t* name = L"Folder:";
    int border = 0;
};

// A tree that is set up, and what is done to it then.
struct Shown {
    Stage& stage;
    DirTrees tree;

    Shown(Stage& stage, const Look& look) : stage(stage) {
        W_Inst_Path = Stage::installation();
        Stage::place(tree, EDGE, EDGE, WIDTH, look.height, look.flags, look.name);
        tree.Border = look.border;
        tree.Init(stage.window());
        if (look.path) tree.Set(look.path);
        tree.Draw();
    }
    int row_of(const wchar_t* name) const {
        for (int row = 0; row < tree.NbList; row++)
            if (!std::wcscmp(tree.List[row].Node->name, name)) return row;
        return -1;
    }
    // On the row of this name, so many cells from the left; then a press.
    void press(const wchar_t* name, int cells_behind_connector) {
        const int row = row_of(name), scrolled = static_cast<int>(tree.Cursor_V.Cur_Value);
        const Boxs& rows = tree.Box_Tree;
        const int column = tree.List[row].Depth - 1 + cells_behind_connector;
        stage.point(tree.Box_Inner.Pos_X + 2 * SPACE + 5 + ROW * column + ROW / 2,
                    rows.Pos_Y + rows.Dim_Y - SPACE - ROW * row - ROW / 2 + scrolled);
        tree.Select(2 + 16);
        stage.point_away();
    }
    void toggle(const wchar_t* name) { press(name, 0); }
    void choose(const wchar_t* name) { press(name, 1); }
};

void show_tree(Stage& stage, const Look& look) { Shown shown(stage, look); }

const wchar_t TRAVEL[] = L"C:\\Pictures\\Travel\\";
const wchar_t LAKE[] = L"C:\\Pictures\\Travel\\South\\Once around the lake and over the hills\\";

void chosen_by_a_press(Stage& stage) {
    Shown shown(stage, {TRAVEL});
    shown.choose(L"Zoo");
}
void opened_by_presses(Stage& stage) {
    Shown shown(stage, {L"C:\\"});
    shown.toggle(L"Documents");
    shown.toggle(L"Music (E:)");
}
// Of a branch that Set opened, the first press changes nothing to see.
void closed_again(Stage& stage) {
    Shown shown(stage, {TRAVEL});
    shown.toggle(L"Pictures");
    shown.toggle(L"Pictures");
}
// A press on a folder that cannot be entered changes nothing.
void no_access(Stage& stage) {
    Shown shown(stage, {L"C:\\"});
    shown.choose(L"Private");
    shown.toggle(L"Private");
}
// Lower than its rows, moved down by so many notches.
void scrolled(Stage& stage, int notches) {
    Shown shown(stage, {TRAVEL, 200});
    shown.tree.Scroll(-notches);
}
// A name too long for the panel, from its start or moved to its end.
void sideways(Stage& stage, int notches) {
    Shown shown(stage, {LAKE});
    const Sliders& slider = shown.tree.Cursor_H;
    stage.point(slider.Pos_X + slider.Dim_X / 2, slider.Pos_Y + slider.Dim_Y / 2);
    shown.tree.Scroll(notches);
    stage.point_away();
}
void refresh_under_the_pointer(Stage& stage) {
    Shown shown(stage, {TRAVEL});
    const Buttons& refresh = shown.tree.But_Refresh;
    stage.point(refresh.Pos_X + 40, refresh.Pos_Y + 10);
    shown.tree.Select(0);
}

} // namespace

const std::vector<Scene> TREE_SCENES = {
    {"tree_unset", 270, 340, [](Stage& s) { show_tree(s, {nullptr}); }},
    {"tree_closed", 270, 340, [](Stage& s) { show_tree(s, {L"D:\\"}); }},
    {"tree_drive", 270, 340, [](Stage& s) { show_tree(s, {L"C:\\"}); }},
    {"tree_two_levels", 270, 340, [](Stage& s) { show_tree(s, {TRAVEL}); }},
    {"tree_chosen", 270, 340, chosen_by_a_press},
    {"tree_opened", 270, 340, opened_by_presses},
    {"tree_closed_again", 270, 340, closed_again},
    {"tree_no_access", 270, 340, no_access},
    {"tree_low", 270, 210, [](Stage& s) { scrolled(s, 0); }},
    {"tree_scrolled", 270, 210, [](Stage& s) { scrolled(s, 4); }},
    {"tree_long_name", 270, 340, [](Stage& s) { sideways(s, 0); }},
    {"tree_sideways", 270, 340, [](Stage& s) { sideways(s, 6); }},
    {"tree_refresh_hover", 270, 340, refresh_under_the_pointer},
    {"tree_unnamed", 270, 340,
     [](Stage& s) {
         show_tree(s, {TRAVEL, HEIGHT, 0, nullptr});
     }},
    {"tree_wide_border", 270, 340,
     [](Stage& s) {
         show_tree(s, {TRAVEL, HEIGHT, 0, L"Folder:", 6});
     }},
    // None of these flags matters to a tree.
    {"tree_disabled", 270, 340,
     [](Stage& s) {
         show_tree(s, {TRAVEL, HEIGHT, OUTIL_DISABLE});
     }},
    {"tree_outline", 270, 340,
     [](Stage& s) {
         show_tree(s, {TRAVEL, HEIGHT, GRAPH_OUTLINE});
     }},
};
