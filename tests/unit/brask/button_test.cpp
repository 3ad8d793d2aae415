#include <vector>

#include <brask/buttons.h>

#include "expect.h"

// A button: what it paints, when, and what it answers.

namespace {

const DWORD kHiding[] = {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE, OUTIL_INVISIBLE | OUTIL_EMPTY};

struct Button : Recorded {
    Buttons button;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3, SPACE = 6, BUT_DIM = 25;
        button.Pos_X = 10, button.Pos_Y = 20, button.Dim_X = 50, button.Dim_Y = 30;
        button.Name_Set(L"push");
        button.Init(recorder::window());
        button.Draw(); // brings the fonts into their cache
        outside();
        recorder::clear();
    }
    void inside() { recorder::pointer(30, 30); }
    void outside() { recorder::pointer(0, 0); }
    int bevel() const { return button.Border ? std::abs(button.Border) : BORDER; }

    // --- The steps, by calls of the base ---
    void frame() {
        if (button.Flag & GRAPH_OUTLINE)
            button.Cadre_Outline(10, 60, 20, 50);
        else
            button.Cadre(button.Flag, button.Cur_Value, bevel(), 10, 60, 20, 50);
    }
    void lamp() {
        if (!(button.Flag & BUTTON_LAMP)) return;
        const int left = 16, right = 24, bottom = 20 + ((30 + 2 * bevel() + 4 - 25) >> 1),
                  top = 20 + ((30 - 2 * bevel() - 4 + 25) >> 1), c = bevel() > 2 ? bevel() - 1 : 1;
        button.Fill_Grey(left + c, right - c, bottom + c, top - c); // colours have a test of their own
        button.Cadre(button.Flag, 1, c, left, right, bottom, top);
    }
    void written(DWORD flag) {
        if (!button.W_Name) return;
        const int shift = button.Flag & BUTTON_LAMP ? 8 : 0;
        button.Text(button.W_Name, static_cast<long>(flag), 10 + shift, 20, 50 - shift, 30, button.Border, 0);
    }
    void label() { written(button.Cur_Value ? button.Flag | TEXT_WHITE : button.Flag & ~TEXT_WHITE); }
    void face(int look) {
        const DWORD* image = look ? (button.Cur_Value ? button.Image_Select_On : button.Image_Select_Off)
                                  : (button.Cur_Value ? button.Image_Normal_On : button.Image_Normal_Off);
        button.Fill_Select(look, reinterpret_cast<const char*>(image), button.Flag, bevel() + 1, 10, 60, 20,
                           50);
    }
    void select(int look, const char* tag) {
        trace_in("Buttons::Select", name_of(button));
        read_pointer("Buttons::Select");
        if (look >= 0) face(look), lamp(), label();
        trace_out("Buttons::Select", tag);
    }
};

struct Look {
    DWORD flag;
    int border, value;
};
const Look kLooks[] = {{0, 0, 0},
                       {0, 0, 1},
                       {0, 0, -5},
                       {BUTTON_LAMP, 0, 0},
                       {BUTTON_LAMP, 0, 7},
                       {BUTTON_LAMP, 1, 0},
                       {BUTTON_LAMP, 2, 0},
                       {0, -5, 1},
                       {BUTTON_LAMP, -4, 0},
                       {TEXT_WHITE, 0, 0},
                       {TEXT_WHITE, 0, 1},
                       {CADRE_NO_LINE, 0, 0},
                       {TEXT_LEFT | TEXT_BOTTOM, 0, 0},
                       {OUTIL_FLAT, 0, 1}};

// --- Draw ---

TEST_F(Button, DrawPaintsFrameLampLabelThenItsLook) {
    for (const Look& row : kLooks)
        for (const DWORD more : {DWORD(0), OUTIL_NO_FRAME}) {
            SCOPED_TRACE(testing::Message()
                         << std::hex << row.flag << " border " << row.border << " value " << row.value);
            button.Flag = row.flag | more;
            button.Border = row.border;
            button.Cur_Value = 0;
            button.Init(nullptr);
            button.Cur_Value = row.value;
            for (const int look : {0, 1}) {
                look ? inside() : outside();
                button.Old_Value = 99;
                EXPECT_EQ(everything([&] { button.Draw(); }), everything([&] {
                              trace_in("Buttons::Draw", "push");
                              if (!more) frame();
                              lamp();
                              label();
                              select(look, look ? "1" : "0");
                              trace_out("Buttons::Draw", "");
                          }));
                EXPECT_EQ(button.select, look ? 1 : 2);
                EXPECT_EQ(button.Old_Value, static_cast<unsigned>(row.value));
                EXPECT_EQ(button.Image_Normal, row.value ? button.Image_Normal_On : button.Image_Normal_Off);
                EXPECT_EQ(button.Image_Select, row.value ? button.Image_Select_On : button.Image_Select_Off);
            }
        }
}

TEST_F(Button, InvisibleDrawsNothing) {
    button.Flag = OUTIL_INVISIBLE;
    button.Cur_Value = 5;
    EXPECT_EQ(everything([&] { button.Draw(); }), everything([&] {
                  trace_in("Buttons::Draw", "push");
                  trace_out("Buttons::Draw", "OUTIL_INVISIBLE");
              }));
    EXPECT_EQ(button.Old_Value, 0u);
}

TEST_F(Button, OutlineDrawsRectangleAndLabelAsFlagged) {
    for (const DWORD flag : {DWORD(0), BUTTON_LAMP, TEXT_WHITE, OUTIL_EMPTY}) {
        button.Flag = GRAPH_OUTLINE | flag;
        button.Cur_Value = flag == TEXT_WHITE ? 0 : 1;
        button.select = 1;
        EXPECT_EQ(everything([&] { button.Draw(); }), everything([&] {
                      trace_in("Buttons::Draw", "push");
                      button.Cadre_Outline(10, 60, 20, 50);
                      written(button.Flag); // the value does not whiten it here
                      trace_out("Buttons::Draw", "GRAPH_OUTLINE");
                  }));
        EXPECT_EQ(button.select, 1);
        EXPECT_EQ(button.Old_Value, static_cast<unsigned>(button.Cur_Value));
    }
}

TEST_F(Button, EmptyDrawsFrameLampAndLabel) {
    button.Flag = OUTIL_EMPTY | BUTTON_LAMP;
    button.select = 1;
    EXPECT_EQ(everything([&] { button.Draw(); }), everything([&] {
                  trace_in("Buttons::Draw", "push");
                  frame(), lamp(), label();
                  trace_out("Buttons::Draw", "OUTIL_EMPTY");
              }));
    EXPECT_EQ(button.select, 1);
}

TEST_F(Button, WithoutANameWritesNoLabel) {
    button.Name_Set(nullptr);
    EXPECT_EQ(everything([&] { button.Draw(); }), everything([&] {
                  trace_in("Buttons::Draw", "no name");
                  frame();
                  select(0, "0");
                  trace_out("Buttons::Draw", "");
              }));
    button.Flag = GRAPH_OUTLINE;
    EXPECT_EQ(painted([&] { button.Draw(); }), painted([&] { frame(); }));
}

// --- Adjust ---

TEST_F(Button, AdjustRepaintsWithAFrameEvenWithoutOne) {
    for (const Look& row : kLooks)
        for (const DWORD more : {DWORD(0), OUTIL_NO_FRAME}) {
            SCOPED_TRACE(testing::Message()
                         << std::hex << row.flag << " border " << row.border << " value " << row.value);
            button.Flag = row.flag | more;
            button.Border = row.border;
            button.Init(nullptr);
            button.Cur_Value = row.value;
            button.Old_Value = 99;
            for (const int look : {0, 1}) {
                look ? inside() : outside();
                button.Old_Value = 99;
                EXPECT_EQ(everything([&] { button.Adjust(); }), everything([&] {
                              trace_in("Buttons::Adjust", "push");
                              frame(), lamp(), label();
                              select(look, look ? "1" : "0");
                              trace_out("Buttons::Adjust", "");
                          }));
                EXPECT_EQ(button.Old_Value, static_cast<unsigned>(row.value));
                EXPECT_EQ(button.select, look ? 1 : 2);
            }
        }
}

TEST_F(Button, AdjustOfAnUnchangedValuePaintsNothingWithoutALamp) {
    button.select = 1;
    EXPECT_EQ(everything([&] { button.Adjust(); }), everything([&] {
                  trace_in("Buttons::Adjust", "push");
                  trace_out("Buttons::Adjust", "Cur_Value == Old_Value");
              }));
    EXPECT_EQ(button.select, 1);
    button.Flag = BUTTON_LAMP;
    EXPECT_EQ(everything([&] { button.Adjust(); }), everything([&] {
                  trace_in("Buttons::Adjust", "push");
                  frame(), lamp(), label();
                  select(0, "0");
                  trace_out("Buttons::Adjust", "");
              }));
}

TEST_F(Button, AdjustOfEmptyAndOutline) {
    for (const DWORD flag :
         {OUTIL_EMPTY, GRAPH_OUTLINE, OUTIL_EMPTY | BUTTON_LAMP, GRAPH_OUTLINE | BUTTON_LAMP}) {
        button.Flag = flag;
        button.Cur_Value = 1, button.Old_Value = 0;
        button.select = 1;
        EXPECT_EQ(everything([&] { button.Adjust(); }), everything([&] {
                      trace_in("Buttons::Adjust", "push");
                      frame();
                      if (!(flag & GRAPH_OUTLINE)) lamp();
                      label(); // the value whitens it here, outline or not
                      trace_out("Buttons::Adjust", "OUTIL_EMPTY");
                  }));
        EXPECT_EQ(button.Old_Value, 1u);
        EXPECT_EQ(button.select, 1);
    }
}

TEST_F(Button, AdjustOfAnInvisibleOne) {
    button.Flag = OUTIL_INVISIBLE;
    button.Cur_Value = 5;
    EXPECT_EQ(everything([&] { button.Adjust(); }), everything([&] {
                  trace_in("Buttons::Adjust", "push");
                  trace_out("Buttons::Adjust", "OUTIL_INVISIBLE");
              }));
    EXPECT_EQ(button.Old_Value, 0u);
    button.Dim_X = 0; // the size comes first here
    button.Adjust();
    EXPECT_EQ(recorder::exit_tag("Buttons::Adjust"), "<0");
}

TEST_F(Button, AdjustGoesByTheWholeValue) {
    button.Cur_Value = -1, button.Old_Value = 0xFFFFFFFF;
    button.Adjust();
    EXPECT_EQ(recorder::exit_tag("Buttons::Adjust"), "Cur_Value == Old_Value");
}

// --- Select ---

struct Step {
    int from;
    bool in;
    int look; // painted; -1 nothing
    int to;
    const char* tag;
};
TEST_F(Button, SelectFollowsThePointer) {
    const Step steps[] = {{0, true, 1, 1, "1"},  {2, true, 1, 1, "1"},  {1, true, -1, 1, "select == 1"},
                          {0, false, 0, 2, "0"}, {1, false, 0, 2, "0"}, {2, false, -1, 2, "select == 2:0"}};
    for (const Look& row : kLooks) {
        button.Flag = row.flag;
        button.Border = row.border;
        button.Cur_Value = row.value;
        button.Init(nullptr);
        for (const int mode : {0, 1, 2, 3, 18, 15})
            for (const Step& step : steps) {
                SCOPED_TRACE(testing::Message()
                             << "mode " << mode << " from " << step.from << " in " << step.in);
                button.select = step.from;
                step.in ? inside() : outside();
                EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(mode), step.in ? 1 : 0); }),
                          everything([&] { select(step.look, step.tag); }));
                EXPECT_EQ(button.select, step.to);
            }
    }
}

TEST_F(Button, QueryOnlyTells) {
    button.Flag = OUTIL_DISABLE | OUTIL_INVISIBLE;
    inside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(4), 1); }),
              everything([&] { select(-1, "KEY_QUERY:1"); }));
    outside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(52), 0); }),
              everything([&] { select(-1, "KEY_QUERY:0"); }));
}

TEST_F(Button, HiddenOnesAnswerWithoutPainting) {
    for (const DWORD flag : kHiding)
        for (const int from : {0, 1, 2}) {
            button.Flag = flag | BUTTON_LAMP;
            button.select = from;
            inside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(1), 1); }),
                      everything([&] { select(-1, "OUTIL_EMPTY|OUTIL_INVISIBLE:1"); }));
            outside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(1), 0); }),
                      everything([&] { select(-1, "OUTIL_EMPTY|OUTIL_INVISIBLE:0"); }));
            EXPECT_EQ(button.select, from);
        }
}

TEST_F(Button, DisabledPaintsTheNormalLookWithoutItsLamp) {
    button.Flag = OUTIL_DISABLE | BUTTON_LAMP;
    for (const int from : {0, 1, 2})
        for (const int value : {0, 1}) {
            button.select = from;
            button.Cur_Value = value;
            button.Init(nullptr);
            button.select = from;
            inside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(2), 0); }), everything([&] {
                          trace_in("Buttons::Select", "push");
                          read_pointer("Buttons::Select");
                          face(0), label();
                          trace_out("Buttons::Select", "OUTIL_DISABLE:0");
                      }));
            EXPECT_EQ(button.select, from);
        }
    for (const DWORD flag : kHiding) {
        button.Flag = OUTIL_DISABLE | flag;
        EXPECT_EQ(everything([&] { EXPECT_EQ(button.Select(2), 0); }),
                  everything([&] { select(-1, "OUTIL_EMPTY|OUTIL_INVISIBLE:0"); }));
    }
}

// The value shown is that of the last Init, Draw or Adjust, whatever the host wrote since.
TEST_F(Button, SelectShowsTheFacesChosenLast) {
    button.Cur_Value = 1;
    inside();
    recorder::name(button.Image_Select_Off, "SELECT_OFF");
    EXPECT_NE(painted([&] { button.Select(0); }).find("draw_image(SELECT_OFF,"), std::string::npos);
    button.Adjust();
    recorder::name(button.Image_Select_On, "SELECT_ON");
    button.select = 0;
    EXPECT_NE(painted([&] { button.Select(0); }).find("draw_image(SELECT_ON,"), std::string::npos);
}

// --- Read, Deselect ---

TEST_F(Button, ReadGivesTheValue) {
    button.Cur_Value = -7;
    button.Flag = OUTIL_DISABLE | OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { EXPECT_EQ(button.Read(), -7); }), everything([&] {
                  trace_in("Buttons::Read", "push");
                  trace_out("Buttons::Read", "");
              }));
}

struct End {
    int select;
    const char* tag;
    bool paints;
    int to;
};
TEST_F(Button, DeselectGivesTheNormalLookBack) {
    for (const DWORD flag : {DWORD(0), BUTTON_LAMP})
        for (const End& end :
             {End{0, "select == 0", false, 0}, End{2, "select == 0", false, 2}, End{1, "", true, 0}}) {
            button.Flag = flag;
            button.select = end.select;
            EXPECT_EQ(everything([&] { button.Deselect(); }), everything([&] {
                          trace_in("Buttons::Deselect", "push");
                          if (end.paints) face(0), lamp(), label();
                          trace_out("Buttons::Deselect", end.tag);
                      }));
            EXPECT_EQ(button.select, end.to);
        }
}

TEST_F(Button, DeselectHasItsWaysOutInOrder) {
    const auto tag = [&] {
        EXPECT_EQ(painted([&] { button.Deselect(); }), "");
        button.Deselect();
        return recorder::exit_tag("Buttons::Deselect");
    };
    button.select = 1;
    for (const DWORD flag : kHiding) {
        button.Flag = flag;
        EXPECT_EQ(tag(), "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    }
    button.Dim_X = 0;
    EXPECT_EQ(tag(), "< 0");
    button.test = 0;
    EXPECT_EQ(tag(), "! this->test");
    EXPECT_EQ(recorder::warnings(), "");
}

} // namespace
