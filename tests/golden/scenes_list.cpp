#include <brask/checklists.h>
#include <brask/lists.h>

#include "scenes.h"

namespace {

struct Look {
    DWORD flags = OUTIL_VERTICAL;
    int count = 4;
    int border = 0;
    const wchar_t* name = nullptr;
};

void set_up(Lists& list, const Look& look) {
    list.Cur_Value = 1;
    list.Border = look.border;
    list.Item_Dim = 20;
    list.Flag = look.flags;
    list.Grow(look.count, 0);
    for (int i = 0; i < look.count; i++)
        list.Item[i]->Name_Set(L"Item %d", i);
}

void show(Stage& stage, Lists& list, const Look& look) {
    set_up(list, look);
    if (look.flags & OUTIL_VERTICAL)
        stage.show(list, 10, 10, 140, 120, look.flags, look.name);
    else
        stage.show(list, 10, 10, 250, 60, look.flags, look.name);
}
void show_list(Stage& stage, const Look& look) {
    Lists list;
    show(stage, list, look);
}

void hovered(Stage& stage, DWORD flags) {
    Lists list;
    show(stage, list, {OUTIL_VERTICAL | flags, 4});
    stage.point(80, 40);
    list.Select(0);
}

// Rows and the slider follow the wheel, and another one becomes current.
void scrolled(Stage& stage, DWORD flags) {
    Lists list;
    show(stage, list, {flags, 10000});
    stage.point(80, 40);
    list.Scroll(flags & OUTIL_VERTICAL ? 3 : -3);
    stage.point_away();
    list.Select(0);
    list.Cur_Value = flags & OUTIL_VERTICAL ? 4 : 5;
    list.Adjust();
}

void odd_items(Stage& stage) {
    Lists list;
    set_up(list, {OUTIL_VERTICAL, 4});
    list.Item[0]->Flag |= OUTIL_DISABLE | TEXT_LEFT;
    list.Item[2]->Flag |= GRAPH_OUTLINE;
    list.Item[3]->Flag |= BUTTON_LAMP | BUTTON_LAMP_COLOR;
    list.Item[3]->Lamp_Color = 1;
    list.Item[3]->Color = Colors(120, 140, 200);
    stage.show(list, 10, 10, 140, 120, OUTIL_VERTICAL);
}

// --- Check lists ---

const char* const LABELS[] = {"red", "green", "blue", "a longer one", "last", nullptr};
const char ENABLE[] = {1, 0, 1, 1, 0};
const unsigned COLOURS[] = {0x4040E0, 0x40C040, 0xE06040, 0x40C0C0, 0xC040C0};

struct Checks {
    DWORD flags = 0;
    long long value = 5;
    int width = 200, height = 70;
    const wchar_t* name = nullptr;
    bool enable = false, colour = false;
};

void set_up(CheckLists& list, const Checks& look) {
    list.List = LABELS;
    list.Cur_Value = look.value;
    list.Font_Size = 12;
    if (look.enable) list.Enable = ENABLE;
    if (look.colour) list.Colour = COLOURS;
}
void show(Stage& stage, CheckLists& list, const Checks& look) {
    set_up(list, look);
    stage.show(list, 10, 10, look.width, look.height, look.flags, look.name);
}
void show_checks(Stage& stage, const Checks& look) {
    CheckLists list;
    show(stage, list, look);
}
void checks_hovered(Stage& stage, bool left) {
    CheckLists list;
    show(stage, list, {});
    stage.point(list.Label[1].Pos_X + 20, list.Label[1].Pos_Y + 5);
    list.Select(0);
    if (left) list.Deselect();
}
void checks_adjusted(Stage& stage) {
    CheckLists list;
    show(stage, list, {});
    list.Cur_Value = 26;
    list.Adjust();
}

} // namespace

const std::vector<Scene> LIST_SCENES = {
    {"list_vertical", 160, 140, [](Stage& s) { show_list(s, {}); }},
    {"list_vertical_scrolling", 160, 140,
     [](Stage& s) {
         show_list(s, {OUTIL_VERTICAL, 10000});
     }},
    {"list_vertical_scrolled", 160, 140, [](Stage& s) { scrolled(s, OUTIL_VERTICAL); }},
    {"list_horizontal", 270, 80,
     [](Stage& s) {
         show_list(s, {0, 3});
     }},
    {"list_horizontal_scrolling", 270, 80,
     [](Stage& s) {
         show_list(s, {0, 10000});
     }},
    {"list_horizontal_scrolled", 270, 80, [](Stage& s) { scrolled(s, 0); }},
    {"list_named", 160, 140,
     [](Stage& s) {
         show_list(s, {OUTIL_VERTICAL, 4, 0, L"Title"});
     }},
    {"list_named_scrolling", 270, 80,
     [](Stage& s) {
         show_list(s, {0, 20, 0, L"Title"});
     }},
    {"list_hover", 160, 140, [](Stage& s) { hovered(s, 0); }},
    {"list_hover_disabled", 160, 140, [](Stage& s) { hovered(s, OUTIL_DISABLE); }},
    {"list_disabled", 160, 140, [](Stage& s) { show_list(s, {OUTIL_VERTICAL | OUTIL_DISABLE}); }},
    {"list_outline", 160, 140,
     [](Stage& s) {
         show_list(s, {OUTIL_VERTICAL | GRAPH_OUTLINE, 20});
     }},
    {"list_empty", 160, 140, [](Stage& s) { show_list(s, {OUTIL_VERTICAL | OUTIL_EMPTY}); }},
    {"list_flat", 160, 140, [](Stage& s) { show_list(s, {OUTIL_VERTICAL | OUTIL_FLAT}); }},
    {"list_hidden", 160, 140, [](Stage& s) { show_list(s, {OUTIL_VERTICAL | OUTIL_INVISIBLE}); }},
    {"list_inset", 160, 140, [](Stage& s) { show_list(s, {OUTIL_VERTICAL | BOX_INSET}); }},
    {"list_wide_border", 160, 140,
     [](Stage& s) {
         show_list(s, {OUTIL_VERTICAL, 20, 6});
     }},
    {"list_negative_border", 160, 140,
     [](Stage& s) {
         show_list(s, {OUTIL_VERTICAL, 4, -4});
     }},
    {"list_odd_items", 160, 140, odd_items},
    {"list_no_items", 160, 140,
     [](Stage& s) {
         show_list(s, {OUTIL_VERTICAL, 0});
     }},
    {"check_mask", 220, 90, [](Stage& s) { show_checks(s, {}); }},
    {"check_exclusive", 220, 90,
     [](Stage& s) {
         show_checks(s, {CHECK_EXCLUSIVE, 2});
     }},
    {"check_vertical", 150, 150,
     [](Stage& s) {
         show_checks(s, {OUTIL_VERTICAL, 5, 130, 130});
     }},
    {"check_horizontal", 260, 90,
     [](Stage& s) {
         show_checks(s, {CHECK_HORIZONTAL, 5, 240, 70});
     }},
    {"check_no_center", 220, 130,
     [](Stage& s) {
         show_checks(s, {CHECK_NO_CENTER, 5, 200, 110});
     }},
    {"check_named", 220, 110,
     [](Stage& s) {
         show_checks(s, {0, 5, 200, 90, L"Title"});
     }},
    {"check_named_left", 260, 90,
     [](Stage& s) {
         show_checks(s, {TEXT_LEFT, 5, 240, 70, L"Title"});
     }},
    {"check_disabled_entries", 220, 90,
     [](Stage& s) {
         show_checks(s, {0, 7, 200, 70, nullptr, true, false});
     }},
    {"check_colours", 220, 90,
     [](Stage& s) {
         show_checks(s, {0, 5, 200, 70, nullptr, false, true});
     }},
    {"check_colours_disabled_entries", 220, 90,
     [](Stage& s) {
         show_checks(s, {0, 5, 200, 70, nullptr, true, true});
     }},
    {"check_disabled", 220, 90, [](Stage& s) { show_checks(s, {OUTIL_DISABLE}); }},
    {"check_outline", 220, 90, [](Stage& s) { show_checks(s, {GRAPH_OUTLINE}); }},
    {"check_empty", 220, 90, [](Stage& s) { show_checks(s, {OUTIL_EMPTY}); }},
    {"check_flat", 220, 90, [](Stage& s) { show_checks(s, {OUTIL_FLAT}); }},
    {"check_hidden", 220, 90, [](Stage& s) { show_checks(s, {OUTIL_INVISIBLE}); }},
    {"check_hover", 220, 90, [](Stage& s) { checks_hovered(s, false); }},
    {"check_left_again", 220, 90, [](Stage& s) { checks_hovered(s, true); }},
    {"check_adjusted", 220, 90, checks_adjusted},
};
