#include "valuator_fixture.h"

// What a value bar paints, and when.

namespace {

// --- The thumb, by its numbers ---

std::string tail(const std::string& lines, const std::string& expected) {
    return lines.size() < expected.size() ? lines : lines.substr(lines.size() - expected.size());
}

TEST_F(Valuator, HorizontalThumbToThePixel) {
    bar.Cur_Value = 50; // 154 pixels of play
    const std::string expected = "Zeb_setup(WND, \"Valuators::Cursor\")\n"
                                 "Zeb_color(0x6E6E6E)\n"
                                 "draw_fill_rectangle(91, 46, 129, 23)\n"
                                 "Zeb_color(0xD8D8D8)\n"
                                 "move2s(110, 24)\n"
                                 "draw2s(110, 47, 0)\n"
                                 "Zeb_color(0x1)\n"
                                 "move2s(109, 24)\n"
                                 "draw2s(109, 47, 0)\n"
                                 "Zeb_color(0x1)\n"
                                 "move2s(92, 24)\n"
                                 "draw2s(128, 24, 0)\n"
                                 "draw2s(128, 46, 0)\n"
                                 "Zeb_color(0xD8D8D8)\n"
                                 "move2s(90, 24)\n"
                                 "draw2s(90, 47, 0)\n"
                                 "draw2s(129, 47, 0)\n"
                                 "Zeb_color(0x1)\n"
                                 "move2s(91, 23)\n"
                                 "draw2s(129, 23, 0)\n"
                                 "draw2s(129, 47, 0)\n"
                                 "Zeb_release()\n";
    EXPECT_EQ(tail(painted([&] { bar.Draw(); }), expected), expected);
}

TEST_F(Valuator, VerticalThumbToThePixel) {
    lay(OUTIL_VERTICAL);
    bar.Cur_Value = 50;
    const std::string expected = "Zeb_setup(WND, \"Valuators::Cursor\")\n"
                                 "Zeb_color(0x6E6E6E)\n"
                                 "draw_fill_rectangle(14, 139, 37, 100)\n"
                                 "Zeb_color(0xD8D8D8)\n"
                                 "move2s(14, 119)\n"
                                 "draw2s(36, 119, 0)\n"
                                 "Zeb_color(0x1)\n"
                                 "move2s(14, 120)\n"
                                 "draw2s(37, 120, 0)\n"
                                 "Zeb_color(0x1)\n"
                                 "move2s(15, 101)\n"
                                 "draw2s(36, 101, 0)\n"
                                 "draw2s(36, 138, 0)\n"
                                 "Zeb_color(0xD8D8D8)\n"
                                 "move2s(13, 100)\n"
                                 "draw2s(13, 139, 0)\n"
                                 "draw2s(36, 139, 0)\n"
                                 "Zeb_color(0x1)\n"
                                 "move2s(14, 100)\n"
                                 "draw2s(37, 100, 0)\n"
                                 "draw2s(37, 139, 0)\n"
                                 "Zeb_release()\n";
    EXPECT_EQ(tail(painted([&] { bar.Draw(); }), expected), expected);
}

TEST_F(Valuator, LockedThumbsToThePixel) {
    recorder::name(brask::padlock_glyph(16), "padlock");
    lay(VALUATOR_FREZE);
    const std::string flat = "Zeb_setup(WND, \"Valuators::Cursor\")\n"
                             "Zeb_color(0xD8D8D8)\n"
                             "draw_fill_rectangle(14, 46, 52, 23)\n"
                             "draw_image(padlock, 25, 27, 0, 0, 16, 16, 16, 16, 0x0)\n"
                             "Zeb_color(0xE64040)\n"
                             "draw_rectangle(14, 46, 51, 24)\n"
                             "Zeb_color(0xD8D8D8)\n"
                             "move2s(13, 24)\n"
                             "draw2s(13, 47, 0)\n"
                             "draw2s(52, 47, 0)\n"
                             "Zeb_color(0x1)\n"
                             "move2s(14, 23)\n"
                             "draw2s(52, 23, 0)\n"
                             "draw2s(52, 47, 0)\n"
                             "Zeb_release()\n";
    EXPECT_EQ(tail(painted([&] { bar.Draw(); }), flat), flat);
    lay(OUTIL_VERTICAL | VALUATOR_FREZE); // the padlock stands off the middle of 13 to 37: 25 to 41
    const std::string upright = "Zeb_setup(WND, \"Valuators::Cursor\")\n"
                                "Zeb_color(0xD8D8D8)\n"
                                "draw_fill_rectangle(14, 61, 37, 23)\n"
                                "draw_image(padlock, 25, 34, 0, 0, 16, 16, 16, 16, 0x0)\n"
                                "Zeb_color(0xE64040)\n"
                                "draw_rectangle(14, 61, 36, 24)\n"
                                "Zeb_color(0xD8D8D8)\n"
                                "move2s(13, 23)\n"
                                "draw2s(13, 62, 0)\n"
                                "draw2s(36, 62, 0)\n"
                                "Zeb_color(0x1)\n"
                                "move2s(14, 23)\n"
                                "draw2s(37, 23, 0)\n"
                                "draw2s(37, 62, 0)\n"
                                "Zeb_release()\n";
    EXPECT_EQ(tail(painted([&] { bar.Draw(); }), upright), upright);
}

// Below the origin the middle is cut toward zero.
TEST_F(Valuator, APadlockBelowTheOrigin) {
    recorder::name(brask::padlock_glyph(16), "padlock");
    lay(VALUATOR_FREZE);
    bar.Pos_Y = -100; // B -97, T -73; -85 and at an odd sum:
    EXPECT_NE(painted([&] { bar.Draw(); }).find("draw_image(padlock, 25, -93,"), std::string::npos);
    bar.Dim_Y = 31; // T -72: -169 / 2 is -84
    EXPECT_NE(painted([&] { bar.Draw(); }).find("draw_image(padlock, 25, -92,"), std::string::npos);
}

TEST_F(Valuator, ThumbStandsWhereItsValueIs) {
    struct {
        DWORD flag;
        float first, last, value;
        int offset;
    } const rows[] = {
        {0, 0, 100, 0, 0},
        {0, 0, 100, 100, 154},
        {0, 0, 100, 50, 77},
        {0, 0, 308, 1, 1},     // half a pixel goes up
        {0, 0, 308, 0.99f, 0}, // less does not
        {0, -100, 100, 0, 77},
        {OUTIL_REVERSE, 100, 0, 25, 116},  // 115.5
        {VALUATOR_LOG10, 1, 1000, 10, 51}, // a third of 154
        {VALUATOR_LOG10, 1, 1000, 100, 103},
        {VALUATOR_LOG10 | VALUATOR_LN, 1, 1000, 10, 51},
        {VALUATOR_LN, 1, 1000, 31.622776f, 77},
        {VALUATOR_LOG10 | OUTIL_REVERSE, 1000, 1, 100, 51},
        {0, 7, 7, 7, 0}, // ratios without value are 0
        {0, -kInf, kInf, 5, 0},
        {0, 0, kInf, 5, 0},
        {0, kNan, 100, 5, 0},
        {VALUATOR_LOG10, 0, 1000, 10, 0},
        {VALUATOR_LN, -5, 1000, 10, 0},
    };
    for (const DWORD axis : kAxes)
        for (const auto& row : rows) {
            lay(axis | row.flag);
            bar.Val_Min = row.first, bar.Val_Max = row.last, bar.Cur_Value = row.value;
            EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                          ground();
                          frame(3);
                          thumb(row.offset);
                      }))
                << row.value << " in " << row.first << ".." << row.last;
        }
}

// A thumb longer than its track has negative play: the offset goes below 0, and is cut toward zero.
TEST_F(Valuator, ThumbLongerThanItsTrack) {
    bar.Larg = 107; // play -20
    bar.Init(nullptr);
    struct {
        float value;
        int offset;
    } const rows[] = {{0, 0}, {50, -9}, {100, -19}};
    for (const auto& row : rows) {
        bar.Cur_Value = row.value;
        EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                      ground();
                      frame(3);
                      thumb(row.offset);
                  }));
    }
}

// --- Draw ---

const DWORD kFaces[] = {0, OUTIL_EMPTY, OUTIL_DISABLE, VALUATOR_FREZE, OUTIL_CAPTURE, TEXT_LEFT};

TEST_F(Valuator, DrawFillsFramesNamesAndPutsTheThumbOn) {
    for (const DWORD axis : kAxes)
        for (const int border : {0, 1, 5, -2})
            for (const DWORD more : kFaces)
                for (const wchar_t* text : {static_cast<const wchar_t*>(nullptr), L"Name"}) {
                    lay(axis | more, border);
                    text ? bar.Name_Set(text) : bar.Name_Set(nullptr);
                    bar.select = 1;
                    inside(); // without surfaces the pointer does not matter
                    EXPECT_EQ(everything([&] { bar.Draw(); }), everything([&] {
                                  trace_in("Valuators::Draw", name_of(bar));
                                  ground();
                                  frame(border ? border : 3);
                                  name();
                                  thumb();
                                  trace_out("Valuators::Draw", "");
                              }));
                    EXPECT_EQ(bar.select, 1);
                }
}

TEST_F(Valuator, DrawWithANumericField) {
    for (const int border : {0, 1, 5, -2})
        for (const DWORD more : {DWORD(0), OUTIL_EMPTY, TEXT_LEFT}) {
            lay(more, border, "%.2f", 50);
            bar.Name_Set(L"Name");
            bar.Cur_Value = 0;
            EXPECT_EQ(everything([&] { bar.Draw(); }), everything([&] {
                          trace_in("Valuators::Draw", "Name");
                          ground();
                          frame(border ? border : 3);
                          if (border) inner_frame();
                          number(L"0.00");
                          name();
                          thumb();
                          trace_out("Valuators::Draw", "");
                      }));
        }
}

TEST_F(Valuator, InvisibleDrawsNothingAndDoesNotWarn) {
    Valuators hidden;
    hidden.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { hidden.Draw(); }), everything([] {
                  trace_in("Valuators::Draw", "no name");
                  trace_out("Valuators::Draw", "OUTIL_INVISIBLE");
              }));
    EXPECT_EQ(hidden.test, 0);
}

TEST_F(Valuator, OutlineDrawsOutlineAndNameAndDoesNotClamp) {
    for (const DWORD axis : kAxes) {
        lay(axis | GRAPH_OUTLINE, 0, "%f", 50);
        bar.Name_Set(L"Name");
        bar.Cur_Value = 500;
        EXPECT_EQ(everything([&] { bar.Draw(); }), everything([&] {
                      trace_in("Valuators::Draw", "Name");
                      outline();
                      name();
                      trace_out("Valuators::Draw", "GRAPH_OUTLINE");
                  }));
        EXPECT_EQ(bar.Cur_Value, 500);
    }
}

TEST_F(Valuator, DrawAndAdjustClamp) {
    bar.Cur_Value = 500;
    bar.Draw();
    EXPECT_EQ(bar.Cur_Value, 100);
    bar.Cur_Value = -500;
    bar.Adjust();
    EXPECT_EQ(bar.Cur_Value, 0);
}

TEST_F(Valuator, EverythingObeysTheClip) {
    for (const DWORD axis : kAxes) {
        lay(axis);
        bar.Clip_X = 1, bar.Clip_Y = 2, bar.Clip_Dim_X = 3, bar.Clip_Dim_Y = 4;
        EXPECT_EQ(painted([&] { bar.Draw(); }), painted([&] {
                      ground();
                      frame(3);
                      thumb();
                  }));
        bar.Clip_Dim_X = 0; // this field alone decides
        EXPECT_EQ(painted([&] { bar.Draw(); }).find("Zeb_set_clip"), std::string::npos);
    }
}

TEST_F(Valuator, SurfacesAreLaidBySelect) {
    for (const DWORD axis : kAxes)
        for (int surfaces = 1; surfaces < 4; ++surfaces)
            for (const bool over : {false, true}) {
                bar.~Valuators();
                new (&bar) Valuators;
                lay(axis);
                if (surfaces & 1) bar.Alloc_Graph_Normal(1);
                if (surfaces & 2) bar.Alloc_Graph_Select(2);
                bar.Init(nullptr);
                over ? inside() : outside();
                bar.select = over ? 1 : 2; // forgotten first, so that the face is painted
                EXPECT_EQ(everything([&] { bar.Draw(); }), everything([&] {
                              trace_in("Valuators::Draw", "no name");
                              ground();
                              frame(3);
                              select(over, "0");
                              trace_out("Valuators::Draw", "");
                          }));
                EXPECT_EQ(bar.select, over ? 1 : 2);
                EXPECT_EQ(everything([&] { bar.Adjust(); }), everything([&] {
                              trace_in("Valuators::Adjust", "no name");
                              frame(0); // the field as it stands
                              face(over, bar.Image_Select);
                              select(over, "0");
                              trace_out("Valuators::Adjust", "");
                          }));
            }
}

// Held alone lets Draw lay the face through Select; Adjust does not ask it.
TEST_F(Valuator, ARepaintKeepsTheDrag) {
    lay(OUTIL_CAPTURE);
    bar.Held = 1, bar.select = 0;
    EXPECT_EQ(everything([&] { bar.Draw(); }), everything([&] {
                  trace_in("Valuators::Draw", "no name");
                  ground();
                  frame(3);
                  select(1, "1"); // a held bar counts as touched
                  trace_out("Valuators::Draw", "");
              }));
    EXPECT_EQ(bar.Held, 1);
    bar.select = 2;
    EXPECT_EQ(everything([&] { bar.Adjust(); }), everything([&] {
                  trace_in("Valuators::Adjust", "no name");
                  frame(0);
                  face(false, nullptr);
                  thumb();
                  trace_out("Valuators::Adjust", "");
              }));
    bar.Alloc_Graph_Normal(1);
    bar.Init(nullptr);
    bar.Adjust();
    EXPECT_EQ(bar.Held, 1) << "the event is Held, not 0";
    EXPECT_EQ(bar.select, 1);
}

TEST_F(Valuator, ASurfaceOfAnotherSizeIsNotRead) {
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

// --- Adjust ---

TEST_F(Valuator, AdjustPaintsBevelFaceNameAndThumb) {
    for (const DWORD axis : kAxes)
        for (const int border : {0, 1, 5, -2})
            for (const int look : {0, 1, 2})
                for (const DWORD more : kFaces) {
                    lay(axis | more, border);
                    bar.Name_Set(L"Name");
                    bar.select = look;
                    EXPECT_EQ(everything([&] { bar.Adjust(); }), everything([&] {
                                  trace_in("Valuators::Adjust", "Name");
                                  frame(border); // not resolved: 0 has no bevel here
                                  face(look == 1, nullptr);
                                  name();
                                  thumb();
                                  trace_out("Valuators::Adjust", "");
                              }));
                    EXPECT_EQ(bar.select, look);
                }
}

TEST_F(Valuator, AdjustWithANumericFieldWipesIt) {
    for (const int border : {0, 1, 5, -2})
        for (const DWORD more : {DWORD(0), OUTIL_EMPTY, TEXT_LEFT}) {
            lay(more, border, "%.2f", 50);
            bar.Name_Set(L"Name");
            bar.Cur_Value = 0;
            EXPECT_EQ(everything([&] { bar.Adjust(); }), everything([&] {
                          trace_in("Valuators::Adjust", "Name");
                          wipe(); // under OUTIL_EMPTY as well
                          number(L"0.00");
                          if (border)
                              inner_frame();
                          else
                              bar.Cadre(0, 1, 3, kX, right(), kY, top());
                          face(false, nullptr);
                          name();
                          thumb();
                          trace_out("Valuators::Adjust", "");
                      }));
        }
}

TEST_F(Valuator, AdjustOfAnOutlineGoesOnWithoutAThumb) {
    for (const DWORD axis : kAxes) {
        lay(axis | GRAPH_OUTLINE, 2);
        bar.Name_Set(L"Name");
        bar.Cur_Value = 500;
        EXPECT_EQ(everything([&] { bar.Adjust(); }), everything([&] {
                      trace_in("Valuators::Adjust", "Name");
                      outline();
                      name();
                      frame(2);
                      face(false, nullptr);
                      name();
                      trace_out("Valuators::Adjust", "");
                  }));
        EXPECT_EQ(bar.Cur_Value, 100);
        bar.Flag |= OUTIL_INVISIBLE;
        bar.Cur_Value = 500;
        EXPECT_EQ(everything([&] { bar.Adjust(); }), everything([&] {
                      trace_in("Valuators::Adjust", "Name");
                      outline();
                      name();
                      trace_out("Valuators::Adjust", "OUTIL_INVISIBLE");
                  }));
        EXPECT_EQ(bar.Cur_Value, 500);
    }
}

TEST_F(Valuator, TheNameIsWrittenAsTextNotAsAFormat) {
    bar.Name_Set(L"%ls", L"%s%n 100%");
    EXPECT_NE(painted([&] { bar.Draw(); }).find("%s%n 100%"), std::string::npos);
}

// --- Sizes below 1, and the first use ---

TEST_F(Valuator, NoSizeIsNotThere) {
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
        EXPECT_EQ(recorder::exit_tag("Valuators::Draw"), "<0");
        EXPECT_EQ(recorder::exit_tag("Valuators::Adjust"), "<0");
        EXPECT_EQ(recorder::exit_tag("Valuators::Deselect"), "< 0");
        EXPECT_EQ(recorder::exit_tag("Valuators::Select"), "<0");
        EXPECT_EQ(recorder::exit_tag("Valuators::Read"), "< 0");
        EXPECT_EQ(recorder::text(recorder::kDraw), "");
    }
    EXPECT_EQ(bar.Cur_Value, 42);
    EXPECT_EQ(bar.Held, 1) << "the size stops Deselect first";
}

TEST_F(Valuator, FirstUseWarnsOnceWithTheOperationsName) {
    struct {
        const char* type;
        void (*use)(Valuators&);
    } const rows[] = {
        {"Valuator::Adjust", [](Valuators& v) { v.Adjust(); }},
        {"Valuator::Deselect", [](Valuators& v) { v.Deselect(); }},
        {"Valuator::Draw", [](Valuators& v) { v.Draw(); }},
        {"Valuator::Read", [](Valuators& v) { v.Read(); }},
        {"Valuators::Scroll", [](Valuators& v) { v.Scroll(1); }},
        {"Valuators::Larg_Adjust", [](Valuators& v) { v.Larg_Adjust(1, 2); }},
    };
    for (const auto& row : rows)
        for (const int size : {0, 40}) { // it comes before the size
            Valuators fresh;
            fresh.Dim_X = fresh.Dim_Y = size;
            recorder::clear();
            row.use(fresh);
            EXPECT_EQ(recorder::warnings(), std::string("[80000001] Tools: WARNING ! \n"
                                                        "[80000001]    you must call *_Init() first\n"
                                                        "[80000001]    type: ") +
                                                row.type + "   name: no name\\n\n");
            EXPECT_EQ(fresh.test, 2);
            row.use(fresh);
            EXPECT_EQ(recorder::reports(0x80000001).size(), 3u);
        }
}

} // namespace
