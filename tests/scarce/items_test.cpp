#include <brask/checklists.h>
#include <brask/lists.h>
#include <brask/selects.h>
#include <brask/tabs.h>

#include "scarce.h"

// The controls that hold entries when memory runs out.

namespace {

using namespace scarce;

const char* const LABELS[] = {"ab", "cd", "ef", nullptr};

template <typename Control>
std::string held(const Control& control) {
    return name_of(control) + std::to_string(control.Cur_Value);
}
template <typename Control>
std::string entries(const Control& control) {
    std::string all = held(control) + "\n";
    for (int i = 0; control.Item && control.Item[i]; i++)
        all += name_of(*control.Item[i]);
    return all;
}

// Without memory the control has no entries: its host asks for them anew.
template <typename Control, int COUNT>
void fill(Control& control) {
    if (!control.Grow(COUNT, 0)) return;
    for (int i = 0; i < COUNT; i++)
        control.Item[i]->Name_Set(L"n%d", i);
    control.Init(nullptr);
}
template <typename Control>
void set_up(Control& control) {
    place(control);
    fill<Control, 3>(control);
}
void set_up_list(Lists& list) { // that scrolls
    place(list);
    fill<Lists, 9>(list);
}
void set_up_checks(CheckLists& checks) {
    place(checks);
    checks.List = LABELS;
}

void drop(Boxs& part) { part.W_Name = nullptr; }
void part_list(Lists& copy) {
    copy.Item = nullptr;
    drop(copy.Box);
}
void part_choice(Selects& copy) {
    copy.Item = nullptr;
    drop(copy.Box);
}
void part_strip(Tabs& copy) { copy.Item = nullptr; }
void part_checks(CheckLists& copy) {
    copy.Check = copy.Label = nullptr;
    copy.Box_State = nullptr;
    drop(copy.Box);
}
void part_tab(TabItems&) {}

template <typename Control>
std::vector<Act<Control>> item_acts() {
    return {{"Adjust", step_value<Control>},
            {"Read", read_value<Control>},
            {"more entries", fill<Control, 5>, Act<Control>::shown, Act<Control>::loses},
            {"fewer entries", fill<Control, 2>, Act<Control>::shown, Act<Control>::loses},
            {"no entries", fill<Control, 0>, Act<Control>::shown, Act<Control>::loses}};
}
template <typename Control>
std::vector<Act<Control>> rolling_acts() {
    std::vector<Act<Control>> acts = item_acts<Control>();
    acts.push_back({"Scroll", roll_value<Control>});
    return acts;
}

TEST(Each_Failure, Lists) { obey<Lists>({set_up_list, entries, part_list, rolling_acts<Lists>()}); }

TEST(Each_Failure, CheckLists) {
    obey<CheckLists>({set_up_checks,
                      held,
                      part_checks,
                      {{"Adjust", step_value<CheckLists>}, {"Read", read_value<CheckLists>}}});
}

TEST(Each_Failure, Selects) { obey<Selects>({set_up, entries, part_choice, rolling_acts<Selects>()}); }

TEST(Each_Failure, TabItems) {
    obey<TabItems>({[](TabItems& tab) { place(tab), tab.Slant = 6, tab.Shape = 0x11; },
                    held,
                    part_tab,
                    {{"Adjust", step_value<TabItems>}, {"Read", read_value<TabItems>}}});
}

TEST(Each_Failure, Tabs) {
    std::vector<Act<Tabs>> acts = item_acts<Tabs>();
    acts.push_back({"Page", [](Tabs& t) { t.Page(60); }});
    obey<Tabs>({set_up, entries, part_strip, acts});
}

} // namespace
