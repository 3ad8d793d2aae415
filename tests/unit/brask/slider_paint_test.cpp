#include "track_fixture.h"

// What a slider paints.

namespace {

struct SliderPaint : Track {
    void SetUp() override {
        slider.Cur_Value = 50;
        Track::SetUp();
    }

    // --- The steps, by calls of the base ---
    void frame() { Track::frame(slider.Border >= 2 ? 2 : 1); }
    void face(int on, const DWORD* image) {
        slider.Fill_Select(on, reinterpret_cast<const char*>(image), slider.Flag, slider.Border + 2, 10,
                           right(), 20, top());
    }
    void arrows() {
        const int first = slider.Flag & OUTIL_VERTICAL ? 2 : 0;
        for (const int dir : {first, first + 1})
            slider.Arrow(dir, slider.Border + 2, 20, 10, slider.Dim_X, 20, slider.Dim_Y);
    }
    // In numbers: the thumb in the middle of the range, 70 pixels from the inner edge.
    void thumb() {
        bracketed("Sliders::Cursor", [&] {
            Zeb_color(0x6E6E6E);
            if (vertical()) {
                draw_fill_rectangle(14, 111, 27, 92);
                line(0xD8D8D8, {{13, 92}, {13, 111}, {26, 111}});
                line(0xD8D8D8, {{14, 101}, {26, 101}});
                line(1, {{14, 92}, {27, 92}, {27, 111}});
                line(1, {{15, 93}, {26, 93}, {26, 110}});
                line(1, {{14, 102}, {27, 102}});
            } else {
                draw_fill_rectangle(82, 36, 100, 23);
                line(0xD8D8D8, {{81, 23}, {81, 37}, {99, 37}});
                line(0xD8D8D8, {{91, 24}, {91, 37}});
                line(1, {{82, 23}, {100, 23}, {100, 37}});
                line(1, {{83, 24}, {99, 24}, {99, 36}});
                line(1, {{90, 24}, {90, 36}});
            }
        });
    }
    void cursor() {
        arrows();
        thumb();
    }
};

TEST_F(SliderPaint, DrawPaintsFaceFrameArrowsThumb) {
    for (const DWORD direction : kAxes) {
        lay(direction);
        slider.select = 1;
        EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                      trace_in("Sliders::Draw", "no name");
                      ground();
                      frame();
                      cursor();
                      trace_out("Sliders::Draw", "");
                  }));
        EXPECT_EQ(slider.select, 1); // reset only on the way into Select
    }
}

TEST_F(SliderPaint, DrawLaysTheHostsSurfacesBySelect) {
    slider.Alloc_Graph_Normal(1);
    slider.Init(nullptr);
    slider.select = 2;
    slider.Held = 1;
    EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                  trace_in("Sliders::Draw", "no name");
                  ground();
                  frame();
                  trace_in("Sliders::Select", "no name");
                  read_pointer("Sliders::Select");
                  face(0, slider.Graph_Normal);
                  cursor();
                  trace_out("Sliders::Select", "0");
                  trace_out("Sliders::Draw", "");
              }));
    EXPECT_EQ(slider.Held, 1);
    EXPECT_EQ(slider.select, 2);
}

TEST_F(SliderPaint, HiddenAndOutlined) {
    slider.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                  trace_in("Sliders::Draw", "no name");
                  trace_out("Sliders::Draw", "OUTIL_INVISIBLE");
              }));
    EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                  trace_in("Sliders::Adjust", "no name");
                  trace_out("Sliders::Adjust", "OUTIL_INVISIBLE");
              }));
    slider.Flag = GRAPH_OUTLINE;
    EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                  trace_in("Sliders::Draw", "no name");
                  outline();
                  trace_out("Sliders::Draw", "GRAPH_OUTLINE");
              }));
}

// An outlined slider gets face and frame all the same, but neither arrows nor thumb.
TEST_F(SliderPaint, AdjustOfAnOutlinedOneGoesOn) {
    slider.Flag = GRAPH_OUTLINE;
    EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                  trace_in("Sliders::Adjust", "no name");
                  outline();
                  face(0, nullptr);
                  frame();
                  trace_out("Sliders::Adjust", "");
              }));
}

TEST_F(SliderPaint, AdjustKeepsTheHoverLook) {
    for (const DWORD direction : kAxes)
        for (const int look : {0, 1, 2}) {
            lay(direction);
            slider.select = look;
            EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                          trace_in("Sliders::Adjust", "no name");
                          face(look == 1, nullptr);
                          frame();
                          cursor();
                          trace_out("Sliders::Adjust", "");
                      }));
        }
}

TEST_F(SliderPaint, AdjustPaintsTheSelectedSurfaceInBothLooks) {
    slider.Alloc_Graph_Normal(1);
    slider.Alloc_Graph_Select(2);
    slider.Init(nullptr);
    for (const int look : {1, 2}) {
        slider.select = look;
        EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                      trace_in("Sliders::Adjust", "no name");
                      face(look == 1, slider.Graph_Select);
                      frame();
                      trace_in("Sliders::Select", "no name");
                      read_pointer("Sliders::Select");
                      face(0, slider.Graph_Normal);
                      cursor();
                      trace_out("Sliders::Select", "0");
                      trace_out("Sliders::Adjust", "");
                  }));
    }
}

TEST_F(SliderPaint, TheBevelIsThin) {
    for (const int border : {1, 2, 5}) {
        slider.Border = border;
        slider.Init(nullptr);
        const std::string expected = painted([&] { frame(); });
        EXPECT_NE(painted([&] { slider.Draw(); }).find(expected), std::string::npos);
    }
}

TEST_F(SliderPaint, SelectPaintsTheLookThenArrowsAndThumb) {
    recorder::pointer(90, 30);
    EXPECT_EQ(everything([&] { slider.Select(1); }), everything([&] {
                  trace_in("Sliders::Select", "no name");
                  read_pointer("Sliders::Select");
                  face(1, nullptr);
                  cursor();
                  trace_out("Sliders::Select", "1");
              }));
}

TEST_F(SliderPaint, DisabledAndEmptyPaintsNoFace) {
    slider.Flag = OUTIL_DISABLE | OUTIL_EMPTY;
    EXPECT_EQ(everything([&] { slider.Select(1); }), everything([&] {
                  trace_in("Sliders::Select", "no name");
                  read_pointer("Sliders::Select");
                  cursor();
                  trace_out("Sliders::Select", "OUTIL_DISABLE:0");
              }));
}

TEST_F(SliderPaint, TooShortForAThumb) {
    slider.Dim_X = 60, slider.Dim_Y = 40;
    slider.Init(nullptr);
    const std::string lines = painted([&] { slider.Draw(); });
    EXPECT_EQ(lines.find("Sliders::Cursor"), std::string::npos);
    EXPECT_NE(lines.find("draw_fill_polygon"), std::string::npos);
}

TEST_F(SliderPaint, ThumbObeysTheClip) {
    slider.Clip_X = 1, slider.Clip_Y = 2, slider.Clip_Dim_X = 3, slider.Clip_Dim_Y = 4;
    const std::string lines = painted([&] { slider.Draw(); });
    EXPECT_NE(lines.find("\"Sliders::Cursor\")\nZeb_set_clip(1, 2, 3, 4)\nZeb_color(0x6E6E6E)"),
              std::string::npos);
    EXPECT_NE(lines.find("Zeb_reset_clip()\nZeb_release()\n", lines.find("Sliders::Cursor")),
              std::string::npos);
}

// A range without extent has no ratio: the thumb stands at the start.
TEST_F(SliderPaint, AnEmptyRangeIsHarmless) {
    slider.Val_Max = 0;
    slider.Cur_Value = 0;
    slider.Init(nullptr);
    EXPECT_NE(painted([&] { slider.Draw(); }).find("draw_fill_rectangle(32, 36, 50, 23)"), std::string::npos);
}

} // namespace
