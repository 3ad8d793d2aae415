#include <climits>

#include "list_fixture.h"
#include "support/memory.h"

// A list's life: its items, what it owns, and what it is without them.

namespace {

TEST_F(List, BeginsWithAllFieldsZero) {
    EXPECT_EQ(made_all_zero<Lists>(), everything([] {
                  life("Tools::Tools");
                  begins("Boxs"), begins("Sliders");
                  life("Lists::Lists");
              }));
}

TEST_F(List, EndsWithItsItemsThenSliderThenBox) {
    Lists* gone = new Lists;
    gone->Grow(2, 0);
    EXPECT_EQ(everything([&] { delete gone; }), everything([] {
                  trace_in("Lists::~Lists", "");
                  ends("Buttons"), ends("Buttons");
                  trace_out("Lists::~Lists", "");
                  ends("Sliders"), ends("Boxs");
                  life("Tools::~Tools");
              }));
}

// --- Grow ---

TEST_F(List, ANewItemHasTheClipOfTheFrameAndNothingElse) {
    list.Box.Clip_X = 1, list.Box.Clip_Y = 2, list.Box.Clip_Dim_X = 3, list.Box.Clip_Dim_Y = 4;
    list.Clip_X = 91, list.Clip_Dim_X = 93;
    list.Grow(1, 0);
    EXPECT_EQ(clip_of(item(0)), (Rect{1, 2, 3, 4}));
    EXPECT_EQ(item(0).Wnd, nullptr);
    EXPECT_EQ(item(0).Dim_X, 0);
    EXPECT_EQ(item(0).W_Name, nullptr);
    EXPECT_EQ(item(0).test, 0);
}

TEST_F(List, WithoutMemoryGrowReportsAndLosesTheItems) {
    if (!memory::can_fail()) GTEST_SKIP();
    struct Row {
        int from, to, failing;
        const char* report;
    };
    for (const Row& row :
         {Row{2, 5, 1, "line 158  of list \\nmemory error in realloc (var=this->Item, dim=6x8)"},
          Row{5, 2, 1, "line 155  of list \\nmemory error in realloc (var=this->Item, dim=3x8)"},
          Row{2, 5, 3, "line 158  of list \\nmemory error in realloc (var=this->Item, dim=6x8)"}}) {
        Lists fresh;
        fresh.Grow(row.from, 0);
        recorder::clear();
        int done;
        {
            memory::Failing failing(row.failing);
            done = fresh.Grow(row.to, 0);
        }
        EXPECT_EQ(done, 0);
        EXPECT_EQ(fresh.Item, nullptr);
        EXPECT_EQ(fresh.NbItem, row.from);
        EXPECT_EQ(recorder::reports(1), std::vector<std::string>{row.report});
    }
}

TEST_F(List, AfterAFailedGrowEveryOperationFindsNoItem) {
    if (!memory::can_fail()) GTEST_SKIP();
    for (const DWORD flag : {OUTIL_VERTICAL, DWORD(0)}) {
        Lists fresh;
        fresh.Flag = flag;
        fresh.Pos_X = 10, fresh.Pos_Y = 10, fresh.Dim_X = 100, fresh.Dim_Y = 100;
        fresh.Grow(40, 0);
        fresh.Init(recorder::window());
        fresh.Draw();
        {
            memory::Failing failing(1);
            fresh.Grow(60, 0);
        }
        ASSERT_EQ(fresh.Item, nullptr);
        ASSERT_EQ(fresh.NbItem, 40);
        recorder::pointer(60, 60);
        EXPECT_EQ(fresh.Select(0), 0);
        EXPECT_EQ(fresh.Read(), -1);
        fresh.Cur_Value = 5;
        fresh.Adjust();
        EXPECT_EQ(fresh.Cur_Value, -1) << "there is no last item to come down to";
        fresh.Scroll(1);
        fresh.Draw();
        recorder::pointer(0, 0);
        fresh.Select(0);
        fresh.Deselect();
        fresh.Init(nullptr);
        EXPECT_EQ(fresh.NbItem, 0);
        EXPECT_EQ(recorder::exit_tag("Lists::Init"), "!end");
    }
}

// An array of the host's own, and a count that says more than it holds.
TEST_F(List, TheNullEntryEndsTheItemsWhateverTheCountSays) {
    list.Flag = OUTIL_VERTICAL;
    list.Dim_X = 120, list.Dim_Y = 115;
    list.Item = static_cast<Buttons**>(std::calloc(4, sizeof(Buttons*)));
    for (int i = 0; i < 3; i++)
        list.Item[i] = new Buttons;
    list.Init(recorder::window());
    EXPECT_EQ(list.NbItem, 3);
    list.NbItem = 1000000;
    list.Draw();
    EXPECT_EQ(item(2).Shown, 1);
    for (int i = 0; i < 3; i++) {
        point_at(i);
        EXPECT_EQ(list.Read(), i);
        EXPECT_EQ(list.Select(0), 1);
    }
    list.NbItem = 2; // fewer than there are
    point_at(2);
    EXPECT_EQ(list.Read(), -1);
    list.NbItem = -3;
    point_at(0);
    EXPECT_EQ(list.Read(), -1);
    EXPECT_EQ(list.Select(0), 0);
    list.Draw();
    list.Deselect();
}

TEST_F(List, ACopySharesTheItemsAndWritesNoTrace) {
    vertical(10);
    Lists* copy = nullptr;
    EXPECT_EQ(everything([&] { copy = new Lists(list); }), "");
    EXPECT_EQ(copy->Item, list.Item);
    EXPECT_EQ(copy->First_Y, list.First_Y);
    EXPECT_EQ(copy->Slider.Val_Min, list.Slider.Val_Min);
    EXPECT_EQ(copy->Box.Box_Normal, list.Box.Box_Normal);
    list.Cur_Value = 7;
    EXPECT_EQ(everything([&] { *copy = list; }), "");
    EXPECT_EQ(copy->Cur_Value, 7);
    EXPECT_EQ(copy->NbItem, 10);
    copy->Item = nullptr; // the original's
    delete copy;
    list.Draw();
}

// --- Bad input ---

TEST_F(List, WildFieldsNeverHurt) {
    recorder::listen(0);
    const int wild[] = {0, 1, -40, 100000, INT_MAX, INT_MIN};
    const auto operate = [&] {
        list.Init(recorder::window());
        list.Draw();
        list.Select(2);
        list.Read();
        list.Scroll(3);
        list.Cur_Value ^= 1;
        list.Adjust();
        list.Deselect();
        list.Get_Y();
    };
    list.Grow(5, 0);
    int Tools::*const bases[] = {&Tools::Pos_X,  &Tools::Pos_Y,  &Tools::Dim_X,      &Tools::Dim_Y,
                                 &Tools::Border, &Tools::Clip_X, &Tools::Clip_Dim_X, &Tools::Clip_Dim_Y};
    int Lists::*const owns[] = {&Lists::Cur_Value, &Lists::Item_Dim, &Lists::Slider_Dim, &Lists::Old_Value};
    for (const DWORD flag : {OUTIL_VERTICAL, DWORD(0), OUTIL_VERTICAL | BOX_INSET, BOX_INSET})
        for (const int value : wild) {
            const auto with = [&](int& field) {
                const int old = field;
                list.Flag = flag;
                list.Dim_X = 90, list.Dim_Y = 70;
                field = value;
                for (const POINT& at : {POINT{120, 230}, POINT{0, 0}, POINT{INT_MAX, INT_MIN}}) {
                    recorder::pointer(at.x, at.y);
                    operate();
                }
                field = old;
            };
            for (auto field : bases)
                with(list.*field);
            for (auto field : owns)
                with(list.*field);
            for (int* metric : {&BORDER, &SPACE, &BUT_LIST, &CURSEUR})
                with(*metric);
        }
    EXPECT_FALSE(recorder::open());
}

TEST_F(List, FieldsChangedBehindItsBackNeverHurt) {
    for (const DWORD flag : {OUTIL_VERTICAL, DWORD(0)})
        for (const int count : {3, 60}) {
            Lists fresh;
            fresh.Flag = flag;
            fresh.Dim_X = 120, fresh.Dim_Y = 115;
            fresh.Grow(count, 0);
            fresh.Init(recorder::window());
            fresh.Draw();
            for (int Lists::*field :
                 {&Lists::First_X, &Lists::First_Y, &Lists::Step_X, &Lists::Step_Y, &Lists::NbItem})
                for (const int value : {0, 1, -1, 21, INT_MAX, INT_MIN}) {
                    const int old = fresh.*field;
                    fresh.*field = value;
                    recorder::pointer(50, 50);
                    fresh.Select(2);
                    fresh.Read();
                    fresh.Scroll(-2);
                    fresh.Draw();
                    recorder::pointer(-9, -9);
                    fresh.Select(0);
                    fresh.Deselect();
                    fresh.*field = old;
                }
            for (const float value : {1e30f, -1e30f, 0.0f / -1.0f, 1.0f / 3.0f}) {
                fresh.Slider.Cur_Value = value;
                fresh.Draw();
            }
            fresh.Dim_X = 700, fresh.Dim_Y = 900; // larger than the frame's face
            fresh.Draw();
            fresh.Dim_X = 9, fresh.Dim_Y = 8;
            fresh.Draw();
            recorder::clear();
        }
}

TEST_F(List, OperationsBeforeInitWarnOnceByTheirName) {
    expect_first_use<Lists>({{"List::Adjust", [](Lists& l) { l.Old_Value = 9, l.Adjust(); }},
                             {"List::Select", [](Lists& l) { l.Select(0); }},
                             {"List::Read", [](Lists& l) { l.Read(); }},
                             {"Lists::Scroll", [](Lists& l) { l.Scroll(1); }}});
    Lists fresh;
    fresh.Dim_X = fresh.Dim_Y = 50;
    recorder::clear();
    fresh.Deselect();
    EXPECT_EQ(recorder::warnings(), "");
    for (int time = 0; time < 2; time++) {
        fresh.Draw();
        EXPECT_EQ(recorder::warnings(), first_use_warning("List::Draw") + first_use_warning("Box::Draw"));
    }
}

TEST_F(List, AHundredThousandItemsWork) {
    recorder::listen(0);
    list.Flag = OUTIL_VERTICAL;
    list.Dim_X = 120, list.Dim_Y = 115;
    ASSERT_EQ(list.Grow(100000, 0), 1);
    list.Init(recorder::window());
    list.Draw();
    EXPECT_EQ(drawn(), 5);
    list.Slider.Cur_Value = list.Slider.Val_Min; // all the way down
    list.Slider.Adjust();
    list.Draw();
    EXPECT_EQ(list.Item[99999]->Shown, 1);
    EXPECT_EQ(drawn(), 4) << "the last one stands a little above the bottom";
    point_at(99999);
    EXPECT_EQ(list.Read(), 99999);
    EXPECT_EQ(list.Select(0), 1);
    EXPECT_EQ(list.Item[99999]->select, 1);
    EXPECT_EQ(list.Grow(1, 0), 1);
    EXPECT_EQ(list.NbItem, 1);
}

} // namespace
