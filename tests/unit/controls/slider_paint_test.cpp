#include <cmath>
#include <limits>

#include "slider_fixture.h"

// What a slider paints, and when.

namespace {

// --- The thumb, by its numbers ---

TEST_F(Slider, HorizontalThumbToThePixel) {
    slider.Cur_Value = 50; // 126 pixels of play: 63 past the arrow
    expect_drawn_last("Zeb_setup(WND, \"Sliders::Cursor\")\n"
                      "Zeb_color(0x6E6E6E)\n"
                      "draw_fill_rectangle(91, 32, 129, 23)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(90, 23)\n"
                      "draw2s(90, 33, 0)\n"
                      "draw2s(128, 33, 0)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(110, 24)\n"
                      "draw2s(110, 33, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(91, 23)\n"
                      "draw2s(129, 23, 0)\n"
                      "draw2s(129, 33, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(92, 24)\n"
                      "draw2s(128, 24, 0)\n"
                      "draw2s(128, 32, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(109, 24)\n"
                      "draw2s(109, 32, 0)\n"
                      "Zeb_release()\n");
}

TEST_F(Slider, VerticalThumbToThePixel) {
    lay(OUTIL_VERTICAL, 200, 16);
    slider.Cur_Value = 50;
    expect_drawn_last("Zeb_setup(WND, \"Sliders::Cursor\")\n"
                      "Zeb_color(0x6E6E6E)\n"
                      "draw_fill_rectangle(14, 140, 23, 101)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(13, 101)\n"
                      "draw2s(13, 140, 0)\n"
                      "draw2s(22, 140, 0)\n"
                      "Zeb_color(0xD8D8D8)\n"
                      "move2s(14, 120)\n"
                      "draw2s(22, 120, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(14, 101)\n"
                      "draw2s(23, 101, 0)\n"
                      "draw2s(23, 140, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(15, 102)\n"
                      "draw2s(22, 102, 0)\n"
                      "draw2s(22, 139, 0)\n"
                      "Zeb_color(0x1)\n"
                      "move2s(14, 121)\n"
                      "draw2s(23, 121, 0)\n"
                      "Zeb_release()\n");
}

// Where the thumb stands for a value, in pixels from the inner edge.
TEST_F(Slider, ThumbStandsWhereItsValueIs) {
    constexpr float inf = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    struct {
        DWORD flag;
        float first, last, value;
        int offset;
    } const rows[] = {
        {0, 0, 100, 0, 16},
        {0, 0, 100, 100, 142},
        {0, 0, 100, 50, 79},
        {OUTIL_REVERSE, 100, 0, 100, 16},
        {OUTIL_REVERSE, 100, 0, 0, 142},
        {OUTIL_REVERSE, 100, 0, 25, 111}, // 94.5 and a half
        {0, 0, 252, 1, 17},               // half a pixel goes up
        {0, 0, 252, 0.99f, 16},           // less does not
        {0, -100, 100, 0, 79},            // over zero
        {0, 7, 7, 7, 16},                 // a range without a length
        {0, -inf, inf, 5, 16},            // ratios without value are 0
        {0, 0, inf, 5, 16},
        {0, nan, 100, 5, 16},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis | row.flag, 200, 16);
            slider.Val_Min = row.first, slider.Val_Max = row.last, slider.Cur_Value = row.value;
            slider.Color = Colors(170, 170, 170);
            EXPECT_EQ(painted([&] { slider.Draw(); }), painted([&] {
                          ground();
                          frame();
                          arrows(16);
                          thumb(row.offset);
                      }))
                << row.value << " in " << row.first << ".." << row.last;
        }
}

// --- Draw ---

TEST_F(Slider, DrawFillsFramesAndPutsTheThumbOn) {
    struct {
        int border, frame;
    } const rows[] = {{0, 1}, {1, 1}, {2, 2}, {5, 2}}; // Init has made 1 of 0
    for (const DWORD axis : kAxes)
        for (const auto& row : rows)
            for (const DWORD more : {DWORD(0), OUTIL_EMPTY, OUTIL_DISABLE}) {
                lay(axis | more, 200, 16, 20, row.border);
                inside(); // without surfaces the pointer does not matter
                slider.select = 2;
                EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                              trace_in("Sliders::Draw", "no name");
                              ground();
                              frame(row.frame);
                              cursor();
                              trace_out("Sliders::Draw", "");
                          }));
                EXPECT_EQ(slider.select, 2);
            }
}

TEST_F(Slider, ABorderWrittenAfterInitIsResolved) {
    slider.Border = 0; // 3 by the metrics, yet the frame goes by the field
    slider.Cur_Value = 0;
    EXPECT_EQ(painted([&] { slider.Draw(); }), painted([&] {
                  slider.Fill(0, kX, right(), kY, top());
                  frame(1);
                  arrows(16);
                  thumb(16);
              }));
    BORDER = 4;
    EXPECT_EQ(painted([&] { slider.Draw(); }), painted([&] {
                  slider.Fill(0, kX, right(), kY, top());
                  frame(1);
                  arrows(16);
                  thumb(16);
              }));
}

TEST_F(Slider, InvisibleDrawsNothingAndDoesNotWarn) { expect_hidden_without_warning("Sliders"); }

TEST_F(Slider, OutlineDrawsTheOutlineAlone) {
    for (const DWORD axis : kAxes) {
        lay(axis | GRAPH_OUTLINE, 200, 16);
        slider.Cur_Value = 500;
        EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                      trace_in("Sliders::Draw", "no name");
                      outline();
                      trace_out("Sliders::Draw", "GRAPH_OUTLINE");
                  }));
        EXPECT_EQ(slider.Cur_Value, 100);
    }
}

TEST_F(Slider, ArrowsAreAsLongAsTheFieldSaysOrAsFits) {
    struct {
        int length, thick, arrow_len, arrow;
    } const rows[] = {{200, 16, 0, 16}, {200, 16, 30, 30}, {200, 16, -4, -4}, {40, 16, 0, 4},
                      {41, 16, 0, 4},   {30, 10, 0, -1},   {200, 60, 0, 60},  {100, 60, 0, 34}};
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis, row.length, row.thick, 8);
            slider.Arrow_Len = row.arrow_len;
            const bool room = row.length >= 2 * row.thick;
            EXPECT_EQ(painted([&] { slider.Draw(); }), painted([&] {
                          ground();
                          frame();
                          arrows(row.arrow);
                          if (room) thumb(row.thick);
                      }))
                << row.length << " by " << row.thick;
            slider.Arrow_Len = 0;
        }
}

TEST_F(Slider, TooShortForAThumbItHasItsArrows) {
    for (const DWORD axis : kAxes) {
        lay(axis, 60, 40);
        EXPECT_EQ(slider.Larg, -10);
        EXPECT_EQ(painted([&] { slider.Draw(); }).find("Sliders::Cursor"), std::string::npos);
        lay(axis, 79, 40);
        EXPECT_EQ(painted([&] { slider.Draw(); }).find("Sliders::Cursor"), std::string::npos);
        lay(axis, 80, 40);
        EXPECT_NE(painted([&] { slider.Draw(); }).find("Sliders::Cursor"), std::string::npos);
    }
}

TEST_F(Slider, EverythingObeysTheClip) {
    for (const DWORD axis : kAxes) {
        lay(axis, 200, 16);
        slider.Clip_X = 1, slider.Clip_Y = 2, slider.Clip_Dim_X = 3, slider.Clip_Dim_Y = 4;
        EXPECT_EQ(painted([&] { slider.Draw(); }), painted([&] {
                      ground();
                      frame();
                      cursor();
                  }));
        slider.Clip_Dim_X = 0; // this field alone decides
        EXPECT_EQ(painted([&] { slider.Draw(); }).find("Zeb_set_clip"), std::string::npos);
    }
}

TEST_F(Slider, SurfacesAreLaidBySelect) {
    for (const DWORD axis : kAxes)
        for (int surfaces = 1; surfaces < 4; ++surfaces)
            for (const bool over : {false, true}) {
                slider.Graph_Normal = static_cast<DWORD*>(slider.Free(slider.Graph_Normal));
                slider.Graph_Select = static_cast<DWORD*>(slider.Free(slider.Graph_Select));
                lay(axis, 200, 16);
                if (surfaces & 1) slider.Alloc_Graph_Normal(1);
                if (surfaces & 2) slider.Alloc_Graph_Select(2);
                slider.Init(nullptr);
                over ? inside() : outside();
                slider.select = over ? 1 : 2; // forgotten first, so that the face is painted
                EXPECT_EQ(everything([&] { slider.Draw(); }), everything([&] {
                              trace_in("Sliders::Draw", "no name");
                              ground();
                              frame();
                              select(over, "0");
                              trace_out("Sliders::Draw", "");
                          }));
                EXPECT_EQ(slider.select, over ? 1 : 2);
                EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                              trace_in("Sliders::Adjust", "no name");
                              face(over, slider.Image_Select);
                              frame();
                              select(over, "0");
                              trace_out("Sliders::Adjust", "");
                          }));
            }
}

// A repaint during a drag passes Held on as the event, and so keeps it; at rest it is the event 0.
TEST_F(Slider, ARepaintKeepsTheDrag) {
    lay(OUTIL_CAPTURE, 200, 16);
    slider.Alloc_Graph_Normal(1);
    slider.Init(nullptr);
    slider.Held = 1;
    outside();
    for (int operation = 0; operation < 2; ++operation) {
        const std::string lines = everything([&] { operation ? slider.Adjust() : slider.Draw(); });
        EXPECT_EQ(slider.Held, 1);
        EXPECT_EQ(slider.select, 1) << "a held slider counts as touched";
        EXPECT_NE(lines.find("Sliders::Select(1)"), std::string::npos);
    }
}

TEST_F(Slider, ASurfaceOfAnotherSizeIsNotRead) { expect_no_surface_of_another_size(); }

// --- Adjust ---

TEST_F(Slider, AdjustPaintsFaceFrameAndThumb) {
    for (const DWORD axis : kAxes)
        for (const int look : {0, 1, 2})
            for (const DWORD more : {DWORD(0), OUTIL_EMPTY, OUTIL_DISABLE}) {
                lay(axis | more, 200, 16);
                slider.select = look;
                EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                              trace_in("Sliders::Adjust", "no name");
                              face(look == 1, nullptr); // the hover look stays
                              frame();
                              cursor();
                              trace_out("Sliders::Adjust", "");
                          }));
                EXPECT_EQ(slider.select, look);
            }
}

TEST_F(Slider, AdjustOfAnOutlineGoesOnWithoutAThumb) {
    for (const DWORD axis : kAxes) {
        lay(axis | GRAPH_OUTLINE, 200, 16);
        EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                      trace_in("Sliders::Adjust", "no name");
                      outline();
                      face(false, nullptr);
                      frame();
                      trace_out("Sliders::Adjust", "");
                  }));
        slider.Flag |= OUTIL_INVISIBLE;
        slider.Cur_Value = 500;
        EXPECT_EQ(everything([&] { slider.Adjust(); }), everything([&] {
                      trace_in("Sliders::Adjust", "no name");
                      outline();
                      trace_out("Sliders::Adjust", "OUTIL_INVISIBLE");
                  }));
        EXPECT_EQ(slider.Cur_Value, 500);
    }
}

// --- Sizes below 1, and the first use ---

TEST_F(Slider, NoSizeIsNotThere) { expect_not_there_without_size("Sliders"); }

TEST_F(Slider, FirstUseWarnsOnceWithTheOperationsName) {
    expect_first_use<Sliders>({
        {"Sliders::Adjust", [](Sliders& s) { s.Adjust(); }},
        {"Sliders::Deselect", [](Sliders& s) { s.Deselect(); }},
        {"Sliders::Draw", [](Sliders& s) { s.Draw(); }},
        {"Sliders::Read", [](Sliders& s) { s.Read(); }},
        {"Sliders::Scroll", [](Sliders& s) { s.Scroll(1); }},
        {"Sliders::Select", [](Sliders& s) { s.Select(1); }},
    });
    Sliders unnoticed;
    unnoticed.Dim_X = unnoticed.Dim_Y = 40;
    recorder::clear();
    unnoticed.Larg_Adjust(1, 2); // neither check nor trace
    EXPECT_EQ(recorder::text(), "");
    EXPECT_EQ(unnoticed.test, 0);
}

} // namespace
