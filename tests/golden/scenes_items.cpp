#include <brask/selects.h>
#include <brask/tabs.h>

#include "scenes.h"

namespace {

// --- Spinners ---

struct Look {
    DWORD flags = 0;
    const wchar_t* name = nullptr;
    int border = 0;
    int value_dim = 0, arrow_dim = 0;
};

void show(Stage& stage, Selects& spin, const Look& look) {
    spin.Cur_Value = 1;
    spin.Border = look.border;
    spin.Value_Dim = look.value_dim, spin.Arrow_Dim = look.arrow_dim;
    spin.Flag = look.flags;
    spin.Grow(3, 0);
    const wchar_t* const names[] = {L"one", L"two", L"three"};
    for (int i = 0; i < 3; i++)
        spin.Item[i]->Name_Set(names[i]);
    if (look.flags & OUTIL_VERTICAL)
        stage.show(spin, 10, 10, 60, 150, look.flags, look.name);
    else
        stage.show(spin, 10, 10, 200, 40, look.flags, look.name);
}
void show_spinner(Stage& stage, const Look& look) {
    Selects spin;
    show(stage, spin, look);
}

// A press on the arrow at the right, and, if wanted, its end.
void pressed(Stage& stage, DWORD flags, bool released) {
    Selects spin;
    show(stage, spin, {flags});
    stage.point(195, 30);
    spin.Select(2 + 16);
    spin.Select(2 + 16); // shows only when the press ends
    if (released) spin.Deselect();
}
void all_skipped(Stage& stage) {
    Selects spin;
    show(stage, spin, {});
    for (int i = 0; i < 3; i++)
        spin.Item[i]->Flag |= OUTIL_INVISIBLE;
    spin.Draw();
}
void narrow(Stage& stage) {
    int x = 5;
    for (const int width : {10, 31, 45, 60}) {
        Selects spin;
        spin.Grow(1, 0);
        spin.Item[0]->Name_Set(L"i");
        stage.show(spin, x, 5, width, 30);
        x += width + 10;
    }
}
void no_choices(Stage& stage) {
    Selects spin;
    stage.show(spin, 10, 10, 200, 40);
}

// --- Tabs ---

struct Strip {
    DWORD flags = 0;
    int on_top = 1;
    int count = 4;
};

void show(Stage& stage, Tabs& tabs, const Strip& look) {
    tabs.Cur_Value = look.on_top;
    tabs.Grow(look.count, 0);
    const Colors colors[] = {{170, 170, 170}, {150, 170, 200}, {200, 180, 150}, {160, 190, 160}};
    for (int i = 0; i < look.count; i++) {
        tabs.Item[i]->Name_Set(L"Tab %d", i);
        tabs.Item[i]->Color = colors[i % 4];
        tabs.Item[i]->Flag = look.flags;
    }
    stage.show(tabs, 5, 80, 310, 30, look.flags);
    if (look.flags & OUTIL_INVISIBLE) return;
    tabs.Page(100);
}
void show_tabs(Stage& stage, const Strip& look) {
    Tabs tabs;
    show(stage, tabs, look);
}
void tabs_hovered(Stage& stage, DWORD flags, bool left) {
    Tabs tabs;
    show(stage, tabs, {flags});
    stage.point(tabs.Item[2]->Pos_X + tabs.Tab_Width - 3, 95); // where two overlap
    tabs.Select(0);
    if (left) tabs.Deselect();
}
void tabs_switched(Stage& stage) {
    Tabs tabs;
    show(stage, tabs, {});
    tabs.Cur_Value = 3;
    tabs.Adjust();
    tabs.Page(100);
}

// Each way of cutting the ends, below and on top, in each look.
void shapes(Stage& stage, DWORD flags, bool over, int slant = 10) {
    int y = 10;
    for (const int on_top : {0, 1}) {
        int x = 10;
        for (const int shape : {0x00, 0x01, 0x10, 0x11}) {
            TabItems tab;
            tab.Shape = static_cast<unsigned char>(shape);
            tab.Slant = slant;
            tab.Cur_Value = on_top;
            tab.Color = Colors(150, 170, 200);
            if (over) stage.point(x + 40, y + 10);
            stage.show(tab, x, y, 80, 26, flags, L"Tab");
            stage.point_away();
            x += 90;
        }
        y += 36;
    }
}
void tab_picture(Stage& stage) {
    TabItems tab;
    tab.Shape = 0x11, tab.Slant = 10;
    Stage::place(tab, 10, 10, 80, 26, 0, L"Tab");
    tab.Alloc_Graph_Normal(0x80C0F0);
    for (int i = 0; i < 80 * 26; i += 7)
        tab.Graph_Normal[i] = 0x205080;
    tab.Init(stage.window());
    tab.Draw();
}

} // namespace

const std::vector<Scene> ITEM_SCENES = {
    {"spinner", 220, 60, [](Stage& s) { show_spinner(s, {}); }},
    {"spinner_vertical", 80, 170, [](Stage& s) { show_spinner(s, {OUTIL_VERTICAL}); }},
    {"spinner_named", 220, 60,
     [](Stage& s) {
         show_spinner(s, {0, L"Name"});
     }},
    {"spinner_named_left", 220, 60,
     [](Stage& s) {
         show_spinner(s, {TEXT_LEFT | TEXT_MIDDLE, L"Name"});
     }},
    {"spinner_named_right", 220, 60,
     [](Stage& s) {
         show_spinner(s, {TEXT_RIGHT | TEXT_MIDDLE, L"Name"});
     }},
    {"spinner_named_vertical", 80, 170,
     [](Stage& s) {
         show_spinner(s, {OUTIL_VERTICAL, L"Up"});
     }},
    {"spinner_value_dim", 220, 60,
     [](Stage& s) {
         show_spinner(s, {TEXT_LEFT | TEXT_MIDDLE, L"Name", 0, 130});
     }},
    {"spinner_arrow_dim", 220, 60,
     [](Stage& s) {
         show_spinner(s, {0, nullptr, 0, 0, 15});
     }},
    {"spinner_disabled", 220, 60,
     [](Stage& s) {
         show_spinner(s, {OUTIL_DISABLE, L"Name"});
     }},
    {"spinner_outline", 220, 60,
     [](Stage& s) {
         show_spinner(s, {GRAPH_OUTLINE | TEXT_LEFT | TEXT_MIDDLE, L"Name"});
     }},
    {"spinner_empty", 220, 60,
     [](Stage& s) {
         show_spinner(s, {OUTIL_EMPTY, L"Name"});
     }},
    {"spinner_flat", 220, 60, [](Stage& s) { show_spinner(s, {OUTIL_FLAT}); }},
    {"spinner_hidden", 220, 60, [](Stage& s) { show_spinner(s, {OUTIL_INVISIBLE}); }},
    {"spinner_no_frame", 220, 60, [](Stage& s) { show_spinner(s, {OUTIL_NO_FRAME}); }},
    {"spinner_wide_border", 220, 60,
     [](Stage& s) {
         show_spinner(s, {0, nullptr, 8});
     }},
    {"spinner_negative_border", 220, 60,
     [](Stage& s) {
         show_spinner(s, {0, nullptr, -4});
     }},
    {"spinner_pressed", 220, 60, [](Stage& s) { pressed(s, 0, false); }},
    {"spinner_released", 220, 60, [](Stage& s) { pressed(s, 0, true); }},
    {"spinner_pressed_disabled", 220, 60, [](Stage& s) { pressed(s, OUTIL_DISABLE, false); }},
    {"spinner_all_skipped", 220, 60, all_skipped},
    {"spinner_no_choices", 220, 60, no_choices},
    {"spinner_narrow", 190, 40, narrow},
    {"tabs_first", 320, 120,
     [](Stage& s) {
         show_tabs(s, {0, 0});
     }},
    {"tabs_middle", 320, 120, [](Stage& s) { show_tabs(s, {}); }},
    {"tabs_last", 320, 120,
     [](Stage& s) {
         show_tabs(s, {0, 3});
     }},
    {"tabs_none_on_top", 320, 120,
     [](Stage& s) {
         show_tabs(s, {0, -1});
     }},
    {"tabs_one", 320, 120,
     [](Stage& s) {
         show_tabs(s, {0, 0, 1});
     }},
    {"tabs_twelve", 320, 120,
     [](Stage& s) {
         show_tabs(s, {0, 5, 12});
     }},
    {"tabs_switched", 320, 120, tabs_switched},
    {"tabs_hover", 320, 120, [](Stage& s) { tabs_hovered(s, 0, false); }},
    {"tabs_hover_disabled", 320, 120, [](Stage& s) { tabs_hovered(s, OUTIL_DISABLE, false); }},
    {"tabs_left_again", 320, 120, [](Stage& s) { tabs_hovered(s, 0, true); }},
    {"tabs_outline", 320, 120, [](Stage& s) { show_tabs(s, {GRAPH_OUTLINE}); }},
    {"tabs_empty", 320, 120, [](Stage& s) { show_tabs(s, {OUTIL_EMPTY}); }},
    {"tabs_hidden", 320, 120, [](Stage& s) { show_tabs(s, {OUTIL_INVISIBLE}); }},
    {"tab_shapes", 380, 80, [](Stage& s) { shapes(s, 0, false); }},
    {"tab_shapes_hover", 380, 80, [](Stage& s) { shapes(s, 0, true); }},
    {"tab_shapes_outline", 380, 80, [](Stage& s) { shapes(s, GRAPH_OUTLINE, false); }},
    {"tab_shapes_empty", 380, 80, [](Stage& s) { shapes(s, OUTIL_EMPTY, false); }},
    {"tab_shapes_disabled", 380, 80, [](Stage& s) { shapes(s, OUTIL_DISABLE, true); }},
    {"tab_shapes_upright", 380, 80, [](Stage& s) { shapes(s, 0, false, 0); }},
    {"tab_shapes_upright_hover", 380, 80, [](Stage& s) { shapes(s, 0, true, 0); }},
    {"tab_shapes_upright_outline", 380, 80, [](Stage& s) { shapes(s, GRAPH_OUTLINE, false, 0); }},
    {"tab_picture", 100, 46, tab_picture},
};
