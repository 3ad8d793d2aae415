#include "list_fixture.h"

// Scrolling a list: by its slider under the pointer, and by the wheel.

namespace {

struct Scrolled_List : List {
    void TearDown() override {
        for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON})
            desk::let_go(button);
        List::TearDown();
    }
    // On the slider of a vertical list, so far from its bottom.
    void on_slider(int offset) { recorder::pointer(110, 205 + offset); }
    static std::size_t updates(const std::string& lines) {
        return times(lines, ">>> in  Lib_Brask: Lists::Update");
    }
};

TEST_F(Scrolled_List, APressOnTheSliderScrollsAndAnswers0) {
    for (const int button : {VK_LBUTTON, VK_RBUTTON, VK_MBUTTON}) {
        list.Slider.Cur_Value = 0;
        vertical(10);
        shown();
        desk::hold(button);
        on_slider(30);
        const std::string lines = everything([&] { EXPECT_EQ(list.Select(2), 0); });
        EXPECT_EQ(recorder::exit_tag("Lists::Select"), "(none)");
        EXPECT_EQ(times(lines, "<<< out Lib_Brask: Lists::Select(0)"), 1u);
        EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Sliders::Read"), 1u);
        EXPECT_EQ(updates(lines), 1u);
        EXPECT_GT(list.First_Y, 290);
        EXPECT_EQ(list.First_Y, static_cast<int>(list.Slider.Cur_Value));
        EXPECT_EQ(list.Slider.Cur_Value, list.Slider.Read());
        EXPECT_EQ(times(lines.substr(0, lines.find("Lists::Update")), "Buttons::"), 0u)
            << "no item is touched";
        desk::let_go(button);
    }
}

TEST_F(Scrolled_List, ASliderThatAnswersWithNoButtonDownOnlyHoldsTheItemsBack) {
    vertical(10);
    shown();
    on_slider(30);
    const std::string lines = everything([&] { EXPECT_EQ(list.Select(2), 0); });
    EXPECT_EQ(times(lines, "Sliders::Read") + times(lines, "Buttons::") + updates(lines), 0u);
    EXPECT_EQ(list.First_Y, 290);
}

TEST_F(Scrolled_List, AnUnmovedThumbRepaintsNoItems) {
    vertical(10);
    shown();
    desk::hold(VK_LBUTTON);
    on_slider(30);
    list.Select(2);
    const std::string lines = everything([&] { list.Select(1); });
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Sliders::Adjust"), 1u);
    EXPECT_EQ(updates(lines), 0u);
}

TEST_F(Scrolled_List, PointingAtTheSliderWithoutAPressTracksTheItems) {
    vertical(10);
    shown();
    on_slider(50);
    const std::string lines = everything([&] { EXPECT_EQ(list.Select(0), 0); });
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Buttons::Select"), 5u);
}

TEST_F(Scrolled_List, TheWheelMovesAVerticalListTowardItsEnd) {
    vertical(10);
    shown();
    point_at(0);
    const std::string lines = everything([&] { list.Scroll(1); });
    EXPECT_EQ(list.Slider.Cur_Value, 311.0f);
    EXPECT_EQ(list.First_Y, 311);
    EXPECT_EQ(item(1).Shown, 1);
    EXPECT_EQ(item(0).Shown, 0);
    EXPECT_EQ(item(5).Shown, 1);
    EXPECT_EQ(times(lines, "Lists::Scroll("), 0u) << "it writes no trace";
    EXPECT_EQ(times(lines, "Zeb_setup(WND, \"Lists::Scroll\")"), 1u);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Sliders::Scroll"), 1u);
    EXPECT_EQ(times(lines, ">>> in  Lib_Brask: Sliders::Adjust"), 2u) << "the slider's own and the list's";
    EXPECT_EQ(updates(lines), 1u);
    list.Scroll(-1);
    EXPECT_EQ(list.First_Y, 290);
    list.Scroll(100);
    EXPECT_EQ(list.First_Y, static_cast<int>(list.Slider.Val_Min));
    EXPECT_EQ(item(9).Shown, 1) << "the last item comes wholly into view";
    EXPECT_EQ(item(9).Pos_Y, 290 + 210 - 105 + 5 - 9 * 21);
    list.Scroll(-100);
    EXPECT_EQ(list.First_Y, 290);
}

TEST_F(Scrolled_List, TheWheelMovesAHorizontalListTowardItsStart) {
    horizontal(20);
    shown();
    recorder::pointer(200, 250);
    list.Scroll(-2);
    EXPECT_EQ(list.First_X, 105 - 96);
    EXPECT_EQ(item(2).Shown, 1);
    EXPECT_EQ(item(1).Shown, 0);
    list.Scroll(1);
    EXPECT_EQ(list.First_X, 105 - 48);
    list.Scroll(-100);
    EXPECT_EQ(list.First_X, 105 - 48 * 20 - 5 + 240);
    EXPECT_EQ(item(19).Shown, 1);
    list.Scroll(100);
    EXPECT_EQ(list.First_X, 105);
}

TEST_F(Scrolled_List, AtTheEndTheWheelRepaintsNoItems) {
    vertical(10);
    shown();
    point_at(0);
    EXPECT_EQ(updates(everything([&] { list.Scroll(-1); })), 0u);
    EXPECT_EQ(updates(everything([&] { list.Scroll(0); })), 0u);
}

TEST_F(Scrolled_List, TheWheelElsewhereDoesNothing) {
    vertical(10);
    shown();
    recorder::pointer(99, 250);
    EXPECT_EQ(times(everything([&] { list.Scroll(1); }), "Sliders::"), 0u);
    point_at(0);
    list.Flag |= OUTIL_DISABLE;
    EXPECT_EQ(everything([&] { list.Scroll(1); }), "");
    list.Flag = OUTIL_VERTICAL;
    list.Dim_X = 0;
    EXPECT_EQ(everything([&] { list.Scroll(1); }), "");
    EXPECT_EQ(list.First_Y, 290);
}

TEST_F(Scrolled_List, WithoutASliderTheWheelRepaintsToNoEffect) {
    vertical(3);
    shown();
    point_at(0);
    EXPECT_EQ(updates(everything([&] { list.Scroll(1); })), 1u);
    EXPECT_EQ(list.First_Y, 276);
    list.Pos_Y = -76; // so that the first item stands at 0
    list.Init(nullptr);
    ASSERT_EQ(list.First_Y, 0);
    point_at(0);
    EXPECT_EQ(updates(everything([&] { list.Scroll(1); })), 0u);
}

} // namespace
