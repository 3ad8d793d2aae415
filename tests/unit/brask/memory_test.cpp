#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/fonts.h>

#include "expect.h"
#include "support/memory.h"

// Memory that runs out at each place where the controls ask for it.

namespace {

struct Memory : Recorded {
    void SetUp() override {
        Recorded::SetUp();
        if (!memory::can_fail()) GTEST_SKIP() << "this system's build cannot make memory run out";
    }
};

bool matches(const std::string& text, const std::string& start, const std::string& end) {
    return text.size() >= start.size() + end.size() && text.compare(0, start.size(), start) == 0 &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

TEST_F(Memory, OfANameIsReported) {
    Tools tools;
    tools.Name_Set(L"before");
    recorder::clear();
    int result;
    {
        memory::Failing failing(1);
        result = tools.Name_Set(L"name");
        EXPECT_TRUE(failing.happened());
    }
    EXPECT_EQ(result, 0);
    EXPECT_EQ(tools.W_Name, nullptr);
    const auto reports = recorder::reports(1);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_TRUE(matches(reports[0], "line ", " of tools \\nmemory error in new  wchar_t (var=this->W_Name)"))
        << reports[0];
    EXPECT_EQ(reports[0].find_first_not_of("0123456789 ", 5), reports[0].find("of tools"));
}

TEST_F(Memory, OfEachFormOfANameIsSurvived) {
    wchar_t entry[] = L"entry: x";
    wchar_t* table[] = {entry};
    for (int form = 0; form < 5; ++form) {
        Tools tools;
        memory::Failing failing(1);
        const int result = form == 0   ? tools.Name_Set(L"a %d", 1)
                           : form == 1 ? tools.Name_Set("a")
                           : form == 2 ? tools.Name_Set(1, 1, table, "f")
                           : form == 3 ? tools.Name_Set(1, 1, table, L"f")
                                       : tools.Name_Set(1, 0, table, "f");
        EXPECT_TRUE(failing.happened()) << form;
        EXPECT_EQ(result, 0) << form;
        EXPECT_EQ(tools.W_Name, nullptr) << form;
    }
}

TEST_F(Memory, OfASurfaceIsReported) {
    Tools tools;
    tools.Dim_X = tools.Dim_Y = 8;
    for (int i = 0; i < 2; ++i) {
        tools.Alloc_Graph_Normal(1);
        tools.Alloc_Graph_Select(1);
        recorder::clear();
        memory::Failing failing(1);
        EXPECT_EQ(i ? tools.Alloc_Graph_Normal(1) : tools.Alloc_Graph_Select(1), 0);
        EXPECT_EQ(i ? tools.Graph_Normal : tools.Graph_Select, nullptr);
        const auto reports = recorder::reports(1);
        ASSERT_EQ(reports.size(), 1u);
        EXPECT_TRUE(matches(reports[0], "line ", " of tools \\nmemory error in new")) << reports[0];
    }
}

TEST_F(Memory, OfAGeneratedFaceGivesNull) {
    Tools tools;
    tools.Dim_X = tools.Dim_Y = 8;
    memory::Failing failing(1, true);
    EXPECT_EQ(tools.Inside_3D(Colors(1, 1, 1)), nullptr);
    EXPECT_TRUE(failing.happened());
    EXPECT_EQ(recorder::warnings(), "");
    EXPECT_EQ(recorder::exit_tag("Tools::Inside_3D"), "");
}

// Everything a host would do, with each single block refused in turn, and then with all from it on.
template <typename Control>
void live_through(bool from_then_on) {
    int refused = 0;
    for (int nth = 1;; ++nth) {
        auto* control = new Control;
        control->Dim_X = 40, control->Dim_Y = 25;
        bool happened;
        {
            memory::Failing failing(nth, from_then_on);
            control->Name_Set(L"name");
            control->Init(recorder::window());
            control->Draw();
            Control copy(*control);
            copy.W_Name = nullptr;
            copy.Init(recorder::window());
            recorder::pointer(5, 5);
            control->Adjust();
            control->Select(0);
            control->Deselect();
            copy.Draw();
            control->Dim_X = 60;
            control->Init(nullptr);
            control->Draw();
            happened = failing.happened();
        }
        // Memory is back: the next Init makes good what was missing.
        control->Init(recorder::window());
        recorder::clear();
        control->Draw();
        EXPECT_NE(recorder::text(recorder::kDraw).find("draw_image"), std::string::npos) << nth;
        delete control;
        if (!happened) break;
        ++refused;
    }
    EXPECT_GT(refused, 3);
}
TEST_F(Memory, RunningOutAnywhereInABoxIsSurvived) {
    live_through<Boxs>(false);
    live_through<Boxs>(true);
}
TEST_F(Memory, RunningOutAnywhereInAButtonIsSurvived) {
    live_through<Buttons>(false);
    live_through<Buttons>(true);
}

// A face that could not be had is asked for again at the next Init, even with nothing else changed.
TEST_F(Memory, MissingFacesAreFlat) {
    Boxs box;
    box.Dim_X = 40, box.Dim_Y = 25;
    {
        memory::Failing failing(1, true);
        box.Init(recorder::window());
    }
    EXPECT_EQ(box.Box_Normal, nullptr);
    EXPECT_EQ(box.Image_Normal, nullptr);
    const std::string lines = painted([&] { box.Draw(); });
    EXPECT_EQ(lines.find("draw_image"), std::string::npos);
    EXPECT_NE(lines.find("Zeb_color(0xAAAAAA)\ndraw_fill_rectangle(4, 21, 37, 3)"), std::string::npos);
}

} // namespace
