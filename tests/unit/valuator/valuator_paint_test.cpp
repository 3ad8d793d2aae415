#include "valuator_fixture.h"

// What a value bar paints, and when.

namespace {

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

TEST_F(Valuator, InvisibleDrawsNothingAndDoesNotWarn) { expect_hidden_without_warning("Valuators"); }

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

TEST_F(Valuator, ASurfaceOfAnotherSizeIsNotRead) { expect_no_surface_of_another_size(); }

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

TEST_F(Valuator, NoSizeIsNotThere) { expect_not_there_without_size("Valuators"); }

TEST_F(Valuator, FirstUseWarnsOnceWithTheOperationsName) {
    expect_first_use<Valuators>({
        {"Valuator::Adjust", [](Valuators& v) { v.Adjust(); }},
        {"Valuator::Deselect", [](Valuators& v) { v.Deselect(); }},
        {"Valuator::Draw", [](Valuators& v) { v.Draw(); }},
        {"Valuator::Read", [](Valuators& v) { v.Read(); }},
        {"Valuators::Scroll", [](Valuators& v) { v.Scroll(1); }},
        {"Valuators::Larg_Adjust", [](Valuators& v) { v.Larg_Adjust(1, 2); }},
    });
}

} // namespace
