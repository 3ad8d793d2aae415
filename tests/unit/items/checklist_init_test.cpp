#include <climits>
#include <cstring>

#include "checklist_fixture.h"
#include "support/memory.h"

// A check list's life, and the ways out of Init.

namespace {

TEST_F(Check_List, BeginsWithAllFieldsZero) {
    EXPECT_EQ(made_all_zero<CheckLists>(), everything([] {
                  life("Tools::Tools");
                  begins("Boxs");
                  life("CheckLists::CheckLists");
              }));
}

TEST_F(Check_List, EndsWithItsEntriesThenTheFrame) {
    CheckLists* gone = new CheckLists(control);
    give(2);
    gone->List = control.List;
    gone->Init(recorder::window());
    const std::string lines = everything([&] { delete gone; });
    EXPECT_EQ(lines.find(">>> in  Lib_Brask: CheckLists::~CheckLists()"), std::strlen("[90000029] "));
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::~Buttons()"), 4u);
    EXPECT_LT(lines.rfind("Buttons::~Buttons"), lines.find("<<< out Lib_Brask: CheckLists::~CheckLists()"));
    EXPECT_LT(lines.find("<<< out Lib_Brask: CheckLists::~CheckLists()"), lines.find("Boxs::~Boxs"));
}

// --- Ways out of Init ---

TEST_F(Check_List, InitOfAControlTooSmallEndsAtOnce) {
    shown(3);
    const Buttons* entries = control.Check;
    for (const auto& size : {std::pair(0, 50), std::pair(50, 0), std::pair(-1, -1)}) {
        control.Dim_X = size.first, control.Dim_Y = size.second;
        recorder::clear();
        control.Init(recorder::window());
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "<0");
        EXPECT_EQ(control.Check, entries);
    }
}

TEST_F(Check_List, InitWithoutAWindowWarnsEachTime) {
    for (int i = 0; i < 2; i++) {
        recorder::clear();
        control.Init(nullptr);
        EXPECT_EQ(recorder::warnings(), window_warning("CheckLists::Init"));
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!wnd");
    }
}

TEST_F(Check_List, WithoutAnyLabelListItReportsAndSwitchesItselfOff) {
    for (const bool named : {false, true}) {
        shown(4);
        if (named) control.Name_Set(L"named");
        control.List = nullptr;
        control.Flag = OUTIL_VERTICAL;
        recorder::clear();
        control.Init(nullptr);
        EXPECT_EQ(recorder::reports(0x90000021),
                  (std::vector<std::string>{"Problems in CheckLists::Init()", "device->List is empty",
                                            std::string("type: CheckLists\\n  name: ") +
                                                (named ? "named" : "no name")}));
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!List");
        EXPECT_EQ(control.Flag, OUTIL_INVISIBLE | OUTIL_DISABLE);
        EXPECT_EQ(control.Check, nullptr);
        EXPECT_EQ(control.Label, nullptr);
        EXPECT_EQ(control.Box_State, nullptr);
        recorder::pointer(150, 250);
        EXPECT_EQ(control.Select(2), 0);
        EXPECT_EQ(control.Read(), -1);
        EXPECT_EQ(painted([&] { control.Draw(), control.Deselect(); }), "");
        control.Flag = 0; // the host switches it on again
        control.Draw();
        control.Select(2);
        control.Deselect();
        control.Cur_Value ^= 1;
        control.Adjust();
    }
}

TEST_F(Check_List, AnEmptyLabelListLeavesTheFrame) {
    const char* const nothing[] = {nullptr};
    const char* const blank[] = {"", "not reached", nullptr};
    const wchar_t* const blank_w[] = {L"", nullptr};
    for (int way = 0; way < 3; way++) {
        shown(4);
        control.List = way == 0 ? nothing : way == 1 ? blank : nullptr;
        control.List_W = way == 2 ? blank_w : nullptr;
        control.Cur_Value = 5;
        recorder::clear();
        control.Init(nullptr);
        EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!NbCheckBox");
        EXPECT_EQ(control.NbCheckBox, 0);
        EXPECT_EQ(control.Check, nullptr);
        EXPECT_EQ(control.Old_Value, 5);
        recorder::pointer(150, 250);
        EXPECT_EQ(control.Read(), -1);
        EXPECT_EQ(control.Select(0), 0);
        const std::string lines = everything([&] { control.Draw(); });
        EXPECT_EQ(times(lines, "Buttons::"), 0u);
        EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Boxs::Draw"), 1u);
    }
}

TEST_F(Check_List, InitLeavesWithATagOfFailureAlsoWhenAllIsWell) {
    laid(3);
    control.Cur_Value = 6;
    control.Init(nullptr);
    EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!wnd");
    EXPECT_EQ(control.NbCheckBox, 3);
    EXPECT_EQ(control.Old_Value, 6);
    EXPECT_EQ(control.Old_Dim_X, 150);
    EXPECT_EQ(control.Old_Dim_Y, 100);
    EXPECT_EQ(control.Color_Get(), Colors(170, 170, 170).get());
    EXPECT_EQ(control.Region.right, 251);
    EXPECT_EQ(control.test, 1);
}

TEST_F(Check_List, WithoutMemoryItIsLeftEmpty) {
    if (!memory::can_fail()) GTEST_SKIP();
    give(3);
    control.Init(recorder::window());
    const char* const names[] = {"this->Box_State", "this->Check", "this->Label"};
    std::size_t reported = 0;
    for (int nth = 1; nth < 40; nth++) {
        CheckLists fresh(control);
        fresh.Check = fresh.Label = nullptr;
        fresh.Box_State = nullptr;
        fresh.Name_Set(nullptr);
        recorder::clear();
        {
            memory::Failing failing(nth);
            fresh.Init(nullptr);
        }
        const std::vector<std::string> reports = recorder::reports(1);
        if (!reports.empty() && reports[0].find("calloc") != std::string::npos) {
            ASSERT_LT(reported, 3u);
            EXPECT_NE(reports[0].find(std::string("of checklist \\nmemory error in calloc (var=") +
                                      names[reported++] + ", dim=3x"),
                      std::string::npos)
                << reports[0];
            EXPECT_EQ(recorder::exit_tag("CheckLists::Init"), "!NbCheckBox");
            EXPECT_EQ(fresh.NbCheckBox, 0);
            EXPECT_EQ(fresh.Check, nullptr);
            EXPECT_EQ(fresh.Label, nullptr);
            EXPECT_EQ(fresh.Box_State, nullptr);
        }
        recorder::pointer(120, 280);
        fresh.Draw();
        fresh.Select(2);
        fresh.Read();
        fresh.Deselect();
    }
    EXPECT_EQ(reported, 3u);
}

TEST_F(Check_List, ACopySharesTheEntriesAndWritesNoTrace) {
    laid(3);
    CheckLists* copy = nullptr;
    EXPECT_EQ(everything([&] { copy = new CheckLists(control); }), "");
    EXPECT_EQ(copy->Check, control.Check);
    EXPECT_EQ(copy->Box_State, control.Box_State);
    EXPECT_EQ(copy->NbCheckBox, 3);
    control.Cur_Value = 5;
    EXPECT_EQ(everything([&] { *copy = control; }), "");
    EXPECT_EQ(copy->Cur_Value, 5);
    copy->Check = copy->Label = nullptr; // the original's
    copy->Box_State = nullptr;
    delete copy;
    control.Draw();
}

// --- Bad input ---

TEST_F(Check_List, WildFieldsNeverHurt) {
    recorder::listen(0);
    const auto operate = [&] {
        control.Init(recorder::window());
        control.Draw();
        control.Select(2);
        control.Deselect();
        control.Read();
        control.Cur_Value ^= 3;
        control.Adjust();
        recorder::pointer(-5, -5);
        control.Select(0);
        control.Get_Y();
    };
    int Tools::*const fields[] = {&Tools::Pos_X,  &Tools::Pos_Y,  &Tools::Dim_X,      &Tools::Dim_Y,
                                  &Tools::Border, &Tools::Clip_X, &Tools::Clip_Dim_X, &Tools::Clip_Dim_Y};
    for (const DWORD flag : {DWORD(0), CHECK_HORIZONTAL, OUTIL_VERTICAL | CHECK_EXCLUSIVE})
        for (const int count : {0, 1, 7, 65})
            for (const int value : {0, 1, -40, INT_MAX, INT_MIN}) {
                give(count);
                const auto with = [&](int& field) {
                    const int old = field;
                    control.Flag = flag;
                    field = value;
                    recorder::pointer(110, 210);
                    operate();
                    field = old;
                };
                for (auto field : fields)
                    with(control.*field);
                with(control.Row_Dim);
                for (int* metric : {&BORDER, &SPACE})
                    with(*metric);
                recorder::metrics(font(), value % 1000000, value % 1000000);
                control.Flag = flag;
                operate();
            }
    EXPECT_FALSE(recorder::open());
}

TEST_F(Check_List, ManyEntriesWork) {
    recorder::listen(0);
    give(20000);
    control.Flag = OUTIL_VERTICAL;
    control.Dim_Y = 300000;
    control.Init(recorder::window());
    ASSERT_EQ(control.NbCheckBox, 20000);
    point_at(19999);
    EXPECT_EQ(control.Select(0), 1);
    EXPECT_EQ(control.Read(), 1LL << (19999 & 63));
    control.Draw();
}

TEST_F(Check_List, OperationsBeforeInitWarnOnceByTheirName) {
    expect_first_use<CheckLists>({{"CheckList::Draw", [](CheckLists& c) { c.Flag = OUTIL_EMPTY, c.Draw(); }},
                                  {"CheckList::Adjust", [](CheckLists& c) { c.Adjust(); }},
                                  {"CheckList::Select", [](CheckLists& c) { c.Select(0); }},
                                  {"CheckList::Read", [](CheckLists& c) { c.Read(); }}});
    CheckLists fresh;
    fresh.Dim_X = fresh.Dim_Y = 50;
    recorder::clear();
    fresh.Deselect();
    fresh.Get_Y();
    EXPECT_EQ(recorder::warnings(), "");
}

} // namespace
