#include <climits>

#include <brask/tools.h>

#include "support/recorded.h"

// The bevel, the outline and the arrow.

namespace {

struct Frames : Recorded {
    Tools tools;
    void SetUp() override {
        Recorded::SetUp();
        tools.Wnd = recorder::window();
        tools.test = 1;
        tools.Dim_X = 50, tools.Dim_Y = 30;
        tools.Color = Colors(170, 170, 170);
    }
};

// One ring on the rectangle 10, 60, 20, 50: the lower and right sides, then the left and top ones.
std::string ring(int i, const char* lower, const char* upper) {
    const std::string x1 = std::to_string(10 + i), x2 = std::to_string(60 - i), x3 = std::to_string(61 - i);
    const std::string y1 = std::to_string(20 + i), y2 = std::to_string(50 - i);
    return std::string("Zeb_color(") + lower + ")\nmove2s(" + x1 + ", " + y1 + ")\ndraw2s(" + x2 + ", " + y1 +
           ", 0)\ndraw2s(" + x2 + ", " + y2 + ", 0)\nZeb_color(" + upper + ")\nmove2s(" + x1 + ", " + y1 +
           ")\ndraw2s(" + x1 + ", " + y2 + ", 0)\ndraw2s(" + x3 + ", " + y2 + ", 0)\n";
}
const char* const kLine = "Zeb_color(0x1)\ndraw_rectangle(10, 50, 60, 20)\n";
std::string bracket(const std::string& inside) {
    return "Zeb_setup(WND, \"Tools::Cadre\")\n" + inside + "Zeb_release()\n";
}

TEST_F(Frames, RaisedIsStrongestOutside) { // offsets 80, 54, 28
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 3, 10, 60, 20, 50); }),
              bracket(kLine + ring(1, "0x5A5A5A", "0xFAFAFA") + ring(2, "0x747474", "0xE0E0E0") +
                      ring(3, "0x8E8E8E", "0xC6C6C6")));
}

TEST_F(Frames, SunkenIsStrongestInsideAndDarker) { // offsets 26, 52, 78, and 40 more on the dark sides
    for (const int dir : {1, -1, 0x80000})
        EXPECT_EQ(painted([&] { tools.Cadre(0, dir, 3, 10, 60, 20, 50); }),
                  bracket(kLine + ring(1, "0xC4C4C4", "0x686868") + ring(2, "0xDEDEDE", "0x4E4E4E") +
                          ring(3, "0xF8F8F8", "0x343434")));
}

TEST_F(Frames, OffsetsAreClampedAndAlphaKept) {
    tools.Color = Colors(250, 10, 170, 9);
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 1, 10, 60, 20, 50); }),
              bracket(kLine + ring(1, "0x95A00AA", "0x9FA5AFF")));
    tools.Color = Colors(400, -400, 0, 300); // the kept channels are offset, then clamped
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 1, 10, 60, 20, 50); }),
              bracket(kLine + ring(1, "0xFF0000FF", "0xFF5000FF")));
}

TEST_F(Frames, OffsetsWrapIn16Bits) {
    tools.Color = Colors(32767, -32768, 0);
    EXPECT_EQ(painted([&] { tools.Cadre(CADRE_NO_LINE, 0, 1, 10, 60, 20, 50); }),
              bracket(ring(1, "0xFFFF", "0x500000")));
}

TEST_F(Frames, DarkLineCanBeLeftOut) {
    EXPECT_EQ(painted([&] { tools.Cadre(CADRE_NO_LINE, 0, 1, 10, 60, 20, 50); }),
              bracket(ring(1, "0x5A5A5A", "0xFAFAFA")));
    tools.Flag = CADRE_NO_LINE | OUTIL_INVISIBLE; // the argument alone is asked
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 1, 10, 60, 20, 50); }),
              bracket(kLine + ring(1, "0x5A5A5A", "0xFAFAFA")));
}

TEST_F(Frames, WidthBelowOnePaintsTheLineAlone) {
    for (const int width : {0, -1, -2, INT_MIN}) {
        EXPECT_EQ(painted([&] { tools.Cadre(0, 0, width, 10, 60, 20, 50); }), bracket(kLine));
        EXPECT_EQ(painted([&] { tools.Cadre(CADRE_NO_LINE, 1, width, 10, 60, 20, 50); }), bracket(""));
    }
}

// From 81 on the step is 0: raised keeps 80, sunken 0 with a dark side of 40.
TEST_F(Frames, GreatWidthsHaveNoStep) {
    std::string raised, sunken, full;
    for (int i = 1; i <= 81; ++i) {
        raised += ring(i, "0x5A5A5A", "0xFAFAFA");
        sunken += ring(i, "0xAAAAAA", "0x828282");
    }
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 81, 10, 60, 20, 50); }), bracket(kLine + raised));
    EXPECT_EQ(painted([&] { tools.Cadre(0, 1, 81, 10, 60, 20, 50); }), bracket(kLine + sunken));
}

// 80 over 5 rings: steps of 16; over 7: steps of 11, cut.
TEST_F(Frames, StepIsCut) {
    std::string raised;
    const char* lower[] = {"0x5A5A5A", "0x656565", "0x707070", "0x7B7B7B",
                           "0x868686", "0x919191", "0x9C9C9C"};
    const char* upper[] = {"0xFAFAFA", "0xEFEFEF", "0xE4E4E4", "0xD9D9D9",
                           "0xCECECE", "0xC3C3C3", "0xB8B8B8"};
    for (int i = 0; i < 7; ++i)
        raised += ring(i + 1, lower[i], upper[i]);
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 7, 10, 60, 20, 50); }), bracket(kLine + raised));
}

TEST_F(Frames, ClipAndTrace) {
    tools.Clip_X = 1, tools.Clip_Y = 2, tools.Clip_Dim_X = 3, tools.Clip_Dim_Y = 4;
    tools.Name_Set(L"it");
    EXPECT_EQ(everything([&] { tools.Cadre(0, 0, 0, 10, 60, 20, 50); }),
              "[90000029] >>> in  Lib_Brask: Tools::Cadre(it)\nZeb_setup(WND, \"Tools::Cadre\")\n"
              "Zeb_set_clip(1, 2, 3, 4)\n" +
                  std::string(kLine) +
                  "Zeb_reset_clip()\nZeb_release()\n[90000029] <<< out Lib_Brask: Tools::Cadre()\n");
    // The width of the clip alone decides.
    tools.Clip_Dim_X = 0;
    EXPECT_EQ(painted([&] { tools.Cadre(0, 0, 0, 10, 60, 20, 50); }), bracket(kLine));
    tools.Clip_Dim_X = -1;
    EXPECT_EQ(painted([&] { tools.Cadre(CADRE_NO_LINE, 0, 0, 10, 60, 20, 50); }),
              bracket("Zeb_set_clip(1, 2, -1, 4)\nZeb_reset_clip()\n"));
}

TEST_F(Frames, OutlineIsOneBlueLineInside) {
    EXPECT_EQ(everything([&] { tools.Cadre_Outline(10, 60, 20, 50); }),
              "[90000029] >>> in  Lib_Brask: Tools::Cadre_Outline(no name)\n"
              "Zeb_setup(WND, \"Tools::Cadre_Outline\")\nZeb_color(0xE64040)\n"
              "draw_rectangle(11, 49, 59, 21)\nZeb_release()\n"
              "[90000029] <<< out Lib_Brask: Tools::Cadre_Outline()\n");
    tools.Clip_Dim_X = 5;
    EXPECT_EQ(painted([&] { tools.Cadre_Outline(10, 60, 20, 50); }),
              "Zeb_setup(WND, \"Tools::Cadre_Outline\")\nZeb_set_clip(0, 0, 5, 0)\nZeb_color(0xE64040)\n"
              "draw_rectangle(11, 49, 59, 21)\nZeb_reset_clip()\nZeb_release()\n");
}

// --- Arrow ---

std::string arrow(const std::string& inside) {
    return "Zeb_setup(WND, \"Tools::Arrow\")\n" + inside + "Zeb_release()\n";
}
std::string polygon(const char* color, const char* points) {
    return std::string("Zeb_color(") + color + ")\ndraw_fill_polygon(" + points + ")\n";
}

// In the rectangle 100, 200, 20 wide and 30 high, with a box of 16 and a border of 2.
TEST_F(Frames, ArrowToTheLeft) { // m 215, o 7, lo 209, hi 221
    EXPECT_EQ(painted([&] { tools.Arrow(0, 2, 16, 100, 20, 200, 30); }),
              arrow(polygon("0x6E6E6E", "3 (105, 215) (115, 211) (115, 219)") +
                    polygon("0xD8D8D8", "4 (102, 215) (116, 221) (115, 219) (105, 215)") +
                    polygon("0x1", "4 (116, 221) (116, 209) (115, 211) (115, 219)") +
                    polygon("0x1", "4 (102, 215) (116, 209) (115, 211) (105, 215)")));
}

TEST_F(Frames, ArrowToTheRight) {
    EXPECT_EQ(painted([&] { tools.Arrow(1, 2, 16, 100, 20, 200, 30); }),
              arrow(polygon("0x6E6E6E", "3 (115, 215) (105, 211) (105, 219)") +
                    polygon("0xD8D8D8", "4 (118, 215) (104, 221) (105, 219) (115, 215)") +
                    polygon("0xD8D8D8", "4 (104, 221) (104, 209) (105, 211) (105, 219)") +
                    polygon("0x1", "4 (118, 215) (104, 209) (105, 211) (115, 215)")));
}

TEST_F(Frames, ArrowDown) { // m 110, o 2, lo 104, hi 116
    EXPECT_EQ(painted([&] { tools.Arrow(2, 2, 16, 100, 20, 200, 30); }),
              arrow(polygon("0x6E6E6E", "3 (110, 205) (106, 215) (114, 215)") +
                    polygon("0x1", "4 (110, 202) (116, 216) (114, 215) (110, 205)") +
                    polygon("0xD8D8D8", "4 (116, 216) (104, 216) (106, 215) (114, 215)") +
                    polygon("0xD8D8D8", "4 (110, 202) (104, 216) (106, 215) (110, 205)")));
}

TEST_F(Frames, ArrowUp) {
    EXPECT_EQ(painted([&] { tools.Arrow(3, 2, 16, 100, 20, 200, 30); }),
              arrow(polygon("0x6E6E6E", "3 (110, 225) (106, 215) (114, 215)") +
                    polygon("0x1", "4 (110, 228) (116, 214) (114, 215) (110, 225)") +
                    polygon("0xD8D8D8", "4 (116, 214) (104, 214) (106, 215) (114, 215)") +
                    polygon("0xD8D8D8", "4 (110, 228) (104, 214) (106, 215) (110, 225)")));
}

// A box wider than the rectangle: half of the negative rest is cut toward zero, not down.
TEST_F(Frames, ArrowDividesTowardZero) { // dy 13, larg 16: o is -1, not -2; m is 206
    EXPECT_EQ(painted([&] { tools.Arrow(0, 2, 16, 100, 20, 200, 13); }),
              arrow(polygon("0x6E6E6E", "3 (105, 206) (115, 203) (115, 211)") +
                    polygon("0xD8D8D8", "4 (102, 206) (116, 213) (115, 211) (105, 206)") +
                    polygon("0x1", "4 (116, 213) (116, 201) (115, 203) (115, 211)") +
                    polygon("0x1", "4 (102, 206) (116, 201) (115, 203) (105, 206)")));
}

TEST_F(Frames, ArrowNotWiderThanItsBorderPaintsNothing) {
    tools.Name_Set(L"it");
    for (const auto& sizes : {std::pair(5, 5), std::pair(6, 5), std::pair(0, 0), std::pair(0, -1)})
        EXPECT_EQ(everything([&] { tools.Arrow(0, sizes.first, sizes.second, 1, 2, 3, 4); }),
                  "[90000029] >>> in  Lib_Brask: Tools::Arrow(it)\n"
                  "[90000029] <<< out Lib_Brask: Tools::Arrow(larg <= border)\n");
}

TEST_F(Frames, ArrowInNoDirectionPaintsNothing) {
    for (const int dir : {-1, 4, 5, INT_MAX, INT_MIN})
        EXPECT_EQ(everything([&] { tools.Arrow(dir, 2, 16, 100, 20, 200, 30); }),
                  "[90000029] >>> in  Lib_Brask: Tools::Arrow(no name)\n"
                  "[90000029] <<< out Lib_Brask: Tools::Arrow()\n");
}

TEST_F(Frames, ArrowObeysTheClip) {
    tools.Clip_Dim_X = 5;
    const std::string lines = painted([&] { tools.Arrow(0, 2, 16, 100, 20, 200, 30); });
    EXPECT_EQ(lines.find("Zeb_setup(WND, \"Tools::Arrow\")\nZeb_set_clip(0, 0, 5, 0)\nZeb_color"), 0u);
    EXPECT_NE(lines.find("Zeb_reset_clip()\nZeb_release()\n"), std::string::npos);
}

// Rings without number come to an end: those that no window could show need not be painted.
TEST_F(Frames, GreatestWidthsEnd) {
    for (const int dir : {0, 1}) {
        tools.Cadre(0, dir, INT_MAX, 10, 60, 20, 50);
        EXPECT_EQ(recorder::exit_tag("Tools::Cadre"), "");
        EXPECT_GT(recorder::log().size(), 2000u * 8); // any that could be seen are
        recorder::clear();
    }
}

TEST_F(Frames, ExtremeRectanglesAreHarmless) {
    const int values[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX};
    for (const int a : values)
        for (const int b : values) {
            tools.Cadre(0, 1, 4, a, b, b, a);
            tools.Cadre_Outline(a, b, a, b);
            tools.Fill(0, a, b, b, a);
            for (const int dir : {0, 1, 2, 3})
                tools.Arrow(dir, a, b, a, b, b, a);
            tools.Fill_Select(1, nullptr, 0, a, b, a, b, a);
        }
    EXPECT_FALSE(recorder::open());
}

} // namespace
