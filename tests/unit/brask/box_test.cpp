#include <vector>

#include <brask/boxs.h>

#include "expect.h"

// A box: what it paints, when, and what it answers.

namespace {

const DWORD kHiding[] = {OUTIL_EMPTY, OUTIL_INVISIBLE, GRAPH_OUTLINE, OUTIL_EMPTY | GRAPH_OUTLINE};

struct Box : Recorded {
    Boxs box;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3;
        box.Pos_X = 10, box.Pos_Y = 20, box.Dim_X = 50, box.Dim_Y = 30;
        box.Name_Set(L"title");
        box.Init(recorder::window());
        box.Draw(); // brings the fonts into their cache
        outside();
        recorder::clear();
    }
    void inside() { recorder::pointer(30, 30); }
    void outside() { recorder::pointer(0, 0); }

    // --- The steps, by calls of the base ---
    void title() {
        if (!box.W_Name) return;
        const DWORD flag = box.Flag & (TEXT_MIDDLE | TEXT_BOTTOM) ? box.Flag : box.Flag | TEXT_TOP;
        box.Text(box.W_Name, static_cast<long>(flag), 10, 20, 50, 30, box.Border, 0);
    }
    void face(int look) {
        const auto* image = reinterpret_cast<const char*>(look ? box.Image_Select : box.Image_Normal);
        if (box.Flag & BOX_INSET)
            box.Fill_Select(look, image, box.Flag, BORDER + 1, 15, 55, 26, 45);
        else
            box.Fill_Select(look, image, box.Flag, (box.Border ? box.Border : BORDER) + 1, 10, 60, 20, 50);
        title();
    }
    // A Select that paints the look (or nothing with -1), inside its traces.
    void select(int look, const char* tag) {
        trace_in("Boxs::Select", name_of(box));
        read_pointer("Boxs::Select");
        if (look >= 0) face(look);
        trace_out("Boxs::Select", tag);
    }
};

// --- Draw ---

struct Frame {
    DWORD flag;
    int border;
};
TEST_F(Box, DrawPaintsFrameTitleFace) {
    const Frame rows[] = {{0, 0},           {BOX_RAISED, 0},  {OUTIL_NO_FRAME, 0},
                          {0, 5},           {0, -2},          {CADRE_NO_LINE, 0},
                          {TEXT_MIDDLE, 0}, {TEXT_BOTTOM, 0}, {TEXT_TOP, 0},
                          {TEXT_LEFT, 0},   {OUTIL_FLAT, 0},  {TEXT_WHITE | OUTIL_VERTICAL, 0}};
    for (const Frame& row : rows) {
        SCOPED_TRACE(testing::Message() << std::hex << row.flag << " border " << row.border);
        box.Flag = row.flag;
        box.Border = row.border;
        box.Init(nullptr);
        for (const int look : {0, 1}) {
            look ? inside() : outside();
            EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                          trace_in("Boxs::Draw", "title");
                          if (!(row.flag & OUTIL_NO_FRAME))
                              box.Cadre(box.Flag, row.flag & BOX_RAISED ? 0 : 1, row.border ? row.border : 3,
                                        10, 60, 20, 50);
                          title();
                          select(look, look ? "1" : "0");
                          trace_out("Boxs::Draw", "");
                      }));
            EXPECT_EQ(box.select, look ? 1 : 2);
        }
    }
}

TEST_F(Box, InsetAddsASecondFrame) {
    for (const DWORD flag : {BOX_INSET, BOX_INSET | BOX_RAISED, BOX_INSET | OUTIL_NO_FRAME,
                             BOX_INSET | BOX_RAISED | CADRE_NO_LINE}) {
        SCOPED_TRACE(flag);
        box.Flag = flag;
        box.Border = 2; // the inner face goes by the global width, the inner frame by this
        box.Init(nullptr);
        EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                      trace_in("Boxs::Draw", "title");
                      if (!(flag & OUTIL_NO_FRAME))
                          box.Cadre(flag, flag & BOX_RAISED ? 0 : 1, 2, 10, 60, 20, 50);
                      if (flag & BOX_RAISED)
                          box.Cadre(1, 1, 2, 16, 54, 25, 44);
                      else
                          box.Cadre(1, 0, 2, 15, 54, 26, 44);
                      title();
                      select(0, "0");
                      trace_out("Boxs::Draw", "");
                  }));
    }
}

// In numbers once: the window of the inner face.
TEST_F(Box, InsetFaceWindow) {
    box.Flag = BOX_INSET;
    box.Name_Set(nullptr);
    box.Init(nullptr);
    recorder::name(box.Box_Normal, "FACE");
    EXPECT_EQ(painted([&] { box.Adjust(); }),
              "Zeb_setup(WND, \"Boxs::Select\")\nread_curs()\nZeb_release()\nZeb_setup(WND, "
              "\"Tools::Fill_Select\")\n"
              "draw_image(FACE, 19, 30, 4, 3, 33, 12, 50, 30, 0x0)\nZeb_release()\n");
    box.Flag = 0;
    EXPECT_EQ(painted([&] { box.Adjust(); }),
              "Zeb_setup(WND, \"Boxs::Select\")\nread_curs()\nZeb_release()\nZeb_setup(WND, "
              "\"Tools::Fill_Select\")\n"
              "draw_image(FACE, 14, 24, 4, 3, 43, 23, 50, 30, 0x0)\nZeb_release()\n");
}

TEST_F(Box, InvisibleDrawsNothing) {
    box.Flag = OUTIL_INVISIBLE | GRAPH_OUTLINE;
    box.select = 1;
    EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                  trace_in("Boxs::Draw", "title");
                  trace_out("Boxs::Draw", "OUTIL_INVISIBLE");
              }));
    EXPECT_EQ(box.select, 1);
}

TEST_F(Box, OutlineDrawsOneRectangleAndTheTitle) {
    for (const DWORD flag : {GRAPH_OUTLINE, GRAPH_OUTLINE | BOX_INSET | OUTIL_EMPTY | OUTIL_NO_FRAME}) {
        box.Flag = flag;
        box.select = 1;
        EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                      trace_in("Boxs::Draw", "title");
                      box.Cadre_Outline(10, 60, 20, 50);
                      title();
                      trace_out("Boxs::Draw", "GRAPH_OUTLINE");
                  }));
        EXPECT_EQ(box.select, 1);
    }
}

TEST_F(Box, EmptyDrawsFrameAndTitleAndKeepsSelect) {
    box.Flag = OUTIL_EMPTY | BOX_INSET;
    box.select = 1;
    EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                  trace_in("Boxs::Draw", "title");
                  box.Cadre(box.Flag, 1, 3, 10, 60, 20, 50);
                  box.Cadre(1, 0, 3, 15, 54, 26, 44);
                  title();
                  trace_out("Boxs::Draw", "OUTIL_EMPTY");
              }));
    EXPECT_EQ(box.select, 1);
}

TEST_F(Box, WithoutANameWritesNoTitle) {
    box.Name_Set(nullptr);
    EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                  trace_in("Boxs::Draw", "no name");
                  box.Cadre(0, 1, 3, 10, 60, 20, 50);
                  select(0, "0");
                  trace_out("Boxs::Draw", "");
              }));
}

TEST_F(Box, DrawDoesNotLookAtDisableUntilSelect) {
    box.Flag = OUTIL_DISABLE;
    inside();
    EXPECT_EQ(everything([&] { box.Draw(); }), everything([&] {
                  trace_in("Boxs::Draw", "title");
                  box.Cadre(box.Flag, 1, 3, 10, 60, 20, 50);
                  title();
                  select(0, "OUTIL_DISABLE:0");
                  trace_out("Boxs::Draw", "");
              }));
    EXPECT_EQ(box.select, 0);
}

// --- Select ---

struct Step {
    int from;
    bool in;
    int look; // painted; -1 nothing
    int to;
};
TEST_F(Box, SelectFollowsThePointer) {
    const Step steps[] = {{0, true, 1, 1},  {2, true, 1, 1},  {1, true, -1, 1},
                          {0, false, 0, 2}, {1, false, 0, 2}, {2, false, -1, 2}};
    for (const int mode : {0, 1, 2, 3, 17, 18, 5, 15})
        for (const Step& step : steps) {
            SCOPED_TRACE(testing::Message() << "mode " << mode << " from " << step.from << " in " << step.in);
            box.select = step.from;
            step.in ? inside() : outside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(mode), step.in ? 1 : 0); }),
                      everything([&] { select(step.look, step.in ? "1" : "0"); }));
            EXPECT_EQ(box.select, step.to);
        }
}

TEST_F(Box, QueryOnlyTells) {
    box.Flag = OUTIL_DISABLE | OUTIL_INVISIBLE;
    box.select = 0;
    inside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(4), 1); }),
              everything([&] { select(-1, "KEY_QUERY:1"); }));
    outside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(52), 0); }),
              everything([&] { select(-1, "KEY_QUERY:0"); }));
    EXPECT_EQ(box.select, 0);
}

TEST_F(Box, HiddenFacesAnswerWithoutPainting) {
    for (const DWORD flag : kHiding)
        for (const int from : {0, 1, 2}) {
            box.Flag = flag;
            box.select = from;
            inside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(1), 1); }),
                      everything([&] { select(-1, "OUTIL_EMPTY|OUTIL_INVISIBLE:1"); }));
            outside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(1), 0); }),
                      everything([&] { select(-1, "OUTIL_INVISIBLE|OUTIL_EMPTY:0"); }));
            EXPECT_EQ(box.select, from);
        }
}

TEST_F(Box, DisabledPaintsTheNormalLookEachTime) {
    box.Flag = OUTIL_DISABLE;
    for (const int from : {0, 1, 2}) {
        box.select = from;
        for (int i = 0; i < 2; ++i) {
            i ? inside() : outside();
            EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(2), 0); }),
                      everything([&] { select(0, "OUTIL_DISABLE:0"); }));
            EXPECT_EQ(box.select, from);
        }
    }
}

TEST_F(Box, DisabledAndHiddenPaintsNothing) {
    for (const DWORD flag : kHiding) {
        box.Flag = OUTIL_DISABLE | flag;
        inside();
        EXPECT_EQ(everything([&] { EXPECT_EQ(box.Select(2), 0); }),
                  everything([&] { select(-1, "OUTIL_EMPTY|OUTIL_INVISIBLE:0"); }));
    }
}

// --- Read, Adjust, Deselect ---

TEST_F(Box, ReadIsAlwaysZero) {
    inside();
    EXPECT_EQ(everything([&] { EXPECT_EQ(box.Read(), 0); }), everything([&] {
                  trace_in("Boxs::Read", "title");
                  trace_out("Boxs::Read", "");
              }));
}

TEST_F(Box, AdjustPaintsTheFaceAgain) {
    for (const int look : {0, 1})
        for (const int from : {0, 1, 2}) {
            look ? inside() : outside();
            box.select = from;
            EXPECT_EQ(everything([&] { box.Adjust(); }), everything([&] {
                          trace_in("Boxs::Adjust", "title");
                          select(look, look ? "1" : "0");
                          trace_out("Boxs::Adjust", "");
                      }));
            EXPECT_EQ(box.select, look ? 1 : 2);
        }
    // Flags do not stop it; its Select sees to them. The tracking is reset all the same.
    box.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { box.Adjust(); }), everything([&] {
                  trace_in("Boxs::Adjust", "title");
                  select(-1, "OUTIL_EMPTY|OUTIL_INVISIBLE:1");
                  trace_out("Boxs::Adjust", "");
              }));
    EXPECT_EQ(box.select, 0);
}

struct End {
    int select;
    const char* tag;
    bool paints;
};
TEST_F(Box, DeselectGivesTheNormalLookBackAndKeepsSelect) {
    for (const End& end : {End{0, "select == 0", false}, End{2, "select == 0", false}, End{1, "", true}}) {
        box.select = end.select;
        box.Flag = OUTIL_DISABLE; // not asked here
        inside();
        EXPECT_EQ(everything([&] { box.Deselect(); }), everything([&] {
                      trace_in("Boxs::Deselect", "title");
                      if (end.paints) face(0);
                      trace_out("Boxs::Deselect", end.tag);
                  }));
        EXPECT_EQ(box.select, end.select);
    }
}

TEST_F(Box, DeselectHasItsWaysOutInOrder) {
    const auto tag = [&] {
        EXPECT_EQ(painted([&] { box.Deselect(); }), "");
        box.Deselect();
        return recorder::exit_tag("Boxs::Deselect");
    };
    box.select = 0;
    EXPECT_EQ(tag(), "select == 0");
    for (const DWORD flag : kHiding) {
        box.Flag = flag;
        EXPECT_EQ(tag(), "OUTIL_EMPTY|OUTIL_INVISIBLE|OUTIL_OUTLINE");
    }
    box.Dim_X = 0;
    EXPECT_EQ(tag(), "< 0");
    box.test = 0;
    EXPECT_EQ(tag(), "! this->test");
    EXPECT_EQ(recorder::warnings(), "");
    EXPECT_EQ(box.test, 0);
}

TEST_F(Box, APressEndsWithoutLightingUpAgain) {
    inside();
    EXPECT_EQ(box.Select(2 + 16), 1);
    EXPECT_EQ(painted([&] { EXPECT_EQ(box.Select(1 + 16), 1); }),
              "Zeb_setup(WND, \"Boxs::Select\")\nread_curs()\nZeb_release()\n");
    box.Deselect();
    EXPECT_EQ(box.select, 1);
    EXPECT_EQ(painted([&] { EXPECT_EQ(box.Select(2 + 16), 1); }),
              "Zeb_setup(WND, \"Boxs::Select\")\nread_curs()\nZeb_release()\n");
    outside();
    box.Select(0);
    inside();
    EXPECT_EQ(everything([&] { box.Select(0); }), everything([&] { select(1, "1"); }));
}

TEST_F(Box, ObeysItsClipEverywhere) {
    box.Clip_X = 12, box.Clip_Y = 22, box.Clip_Dim_X = 20, box.Clip_Dim_Y = 10;
    box.Flag = BOX_INSET;
    const std::string lines = painted([&] { box.Draw(); });
    std::size_t brackets = 0, clips = 0, at = 0;
    while ((at = lines.find("Zeb_setup(WND, \"Tools::", at)) != std::string::npos)
        ++brackets, ++at;
    for (at = 0; (at = lines.find("Zeb_set_clip(12, 22, 20, 10)", at)) != std::string::npos; ++at)
        ++clips;
    EXPECT_EQ(brackets, 5u); // two frames, a face, and the title twice, which is cut to the same rectangle
    EXPECT_EQ(clips, 5u);
}

} // namespace
