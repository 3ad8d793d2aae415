#ifndef TESTS_RANGE_BENCH_H
#define TESTS_RANGE_BENCH_H

#include <string>
#include <utility>
#include <vector>

#include <brask/fenn.h>

#include "unit/brask/expect.h"

const DWORD kAxes[] = {0, OUTIL_VERTICAL};

// A control over a range at 10, 20, along either axis: what tests of sliders and of value bars have in
// common.
template <typename Control>
struct Range_Bench : Recorded {
    static constexpr int kX = 10, kY = 20;
    Control bar;

    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, CURSEUR = 16;
    }
    void TearDown() override {
        BORDER = 3, SPACE = 6, CURSEUR = 16;
        Recorded::TearDown();
    }

    // So long and so thick along the axis that the flag tells; values from 0 to 100.
    void place(DWORD flag, int length, int thick, int larg, int border) {
        bar.Flag = flag;
        bar.Pos_X = kX, bar.Pos_Y = kY;
        bar.Dim_X = vertical() ? thick : length;
        bar.Dim_Y = vertical() ? length : thick;
        bar.Larg = larg;
        bar.Border = border;
        range(0, 100);
    }
    void range(float first, float last) {
        bar.Val_Min = first, bar.Val_Max = last;
        if (bar.Flag & OUTIL_REVERSE) std::swap(bar.Val_Min, bar.Val_Max);
    }
    // Init, done and forgotten.
    void init() {
        bar.Init(recorder::window());
        outside();
        recorder::clear();
    }
    bool vertical() const { return (bar.Flag & OUTIL_VERTICAL) != 0; }
    int bevel() const { return bar.Border ? bar.Border : BORDER; }
    int right() const { return bar.Pos_X + bar.Dim_X; }
    int top() const { return bar.Pos_Y + bar.Dim_Y; }

    // --- The pointer: so far along the track, in the middle of its thickness ---
    void along(int offset) {
        vertical() ? recorder::pointer(kX + bar.Dim_X / 2, kY + offset)
                   : recorder::pointer(kX + offset, kY + bar.Dim_Y / 2);
    }
    void inside() { along(vertical() ? bar.Dim_Y / 2 : bar.Dim_X / 2); }
    void outside() { recorder::pointer(-500, -500); }

    // --- The steps ---
    using Points = std::vector<std::pair<int, int>>;
    static void line(unsigned long color, const Points& points) {
        Zeb_color(color);
        for (std::size_t i = 0; i < points.size(); ++i)
            i ? draw2s(points[i].first, points[i].second, 0) : move2s(points[0].first, points[0].second);
    }
    // The figure within a bracket, and within the control's clip.
    template <typename Figure>
    void bracketed(const char* operation, Figure figure) const {
        Zeb_setup(bar.Wnd, operation);
        const bool clip = bar.Clip_Dim_X != 0;
        if (clip) Zeb_set_clip(bar.Clip_X, bar.Clip_Y, bar.Clip_Dim_X, bar.Clip_Dim_Y);
        figure();
        if (clip) Zeb_reset_clip();
        Zeb_release();
    }
    void ground() { bar.Fill(bar.Flag, kX, right(), kY, top()); }
    void frame(int width = 1) { bar.Cadre(1, 1, width, kX, right(), kY, top()); }
    void outline() { bar.Cadre_Outline(kX, right(), kY, top()); }

    // --- What both of them keep ---
    // The last lines of a Draw.
    void expect_drawn_last(const std::string& expected) {
        const std::string lines = painted([&] { bar.Draw(); });
        ASSERT_GE(lines.size(), expected.size());
        EXPECT_EQ(lines.substr(lines.size() - expected.size()), expected);
    }
    void expect_hidden_without_warning(const std::string& name) {
        Control hidden;
        hidden.Flag = OUTIL_INVISIBLE;
        EXPECT_EQ(everything([&] { hidden.Draw(); }), everything([&] {
                      trace_in(name + "::Draw", "no name");
                      trace_out(name + "::Draw", "OUTIL_INVISIBLE");
                  }));
        EXPECT_EQ(hidden.test, 0);
    }
    void expect_no_surface_of_another_size() {
        bar.Alloc_Graph_Normal(1);
        bar.Alloc_Graph_Select(1);
        bar.Init(nullptr);
        bar.Dim_X = 300;
        for (const bool over : {false, true}) {
            over ? inside() : outside();
            EXPECT_EQ(painted([&] { bar.Draw(); }).find("draw_image"), std::string::npos);
            EXPECT_EQ(painted([&] { bar.Adjust(); }).find("draw_image"), std::string::npos);
        }
        bar.Dim_X = 200;
        EXPECT_NE(painted([&] { bar.Draw(); }).find("draw_image"), std::string::npos);
        bar.Alloc_Graph_Normal(5); // no view on the block before is left
        bar.Alloc_Graph_Select(6);
        bar.Draw();
        bar.Deselect();
    }
    void expect_not_there_without_size(const std::string& name) {
        bar.select = 1, bar.Held = 1, bar.Cur_Value = 42;
        for (const auto& size : {std::pair(0, 16), std::pair(200, 0), std::pair(-1, -1)}) {
            bar.Dim_X = size.first, bar.Dim_Y = size.second;
            recorder::clear();
            bar.Draw();
            bar.Adjust();
            bar.Deselect();
            EXPECT_EQ(bar.Select(2), 0);
            EXPECT_EQ(bar.Select(KEY_QUERY), 0);
            EXPECT_EQ(bar.Read(), 0);
            EXPECT_EQ(bar.Scroll(1), 0);
            bar.Larg = 20;
            bar.Larg_Adjust(1, 2);
            EXPECT_EQ(bar.Larg, 20);
            for (const char* operation : {"Draw", "Adjust", "Select"})
                EXPECT_EQ(recorder::exit_tag(name + "::" + operation), "<0");
            for (const char* operation : {"Deselect", "Read"})
                EXPECT_EQ(recorder::exit_tag(name + "::" + operation), "< 0");
            EXPECT_EQ(recorder::text(recorder::kDraw), "");
        }
        EXPECT_EQ(bar.Cur_Value, 42);
        EXPECT_EQ(bar.Held, 1) << "the size stops Deselect first";
    }
};

#endif
