#include <brask/fonts.h>
#include <brask/labels.h>

#include "expect.h"

// A label: a line of text and nothing else.

namespace {

struct Label : Recorded {
    Labels label;
    void SetUp() override {
        Recorded::SetUp();
        label.Pos_X = 10, label.Pos_Y = 20, label.Dim_X = 50, label.Dim_Y = 30;
        label.Name_Set(L"text");
        label.Init(recorder::window());
        label.Draw(); // brings the fonts into their cache
        recorder::clear();
    }
    void text() {
        label.Text(label.W_Name, static_cast<long>(label.Flag), 10, 20, 50, 30, label.Border,
                   label.Color_Get());
    }
};

TEST_F(Label, DrawWritesItsName) {
    for (const DWORD flag : {DWORD(0), TEXT_LEFT | TEXT_TOP, OUTIL_VERTICAL, TEXT_WHITE, GRAPH_OUTLINE,
                             OUTIL_EMPTY, OUTIL_DISABLE})
        for (const Colors& color : {Colors(0, 0, 0), Colors(1, 2, 3), Colors(0, 0, 0, 5)}) {
            label.Flag = flag;
            label.Color = color;
            label.Border = flag ? 4 : 0;
            EXPECT_EQ(everything([&] { label.Draw(); }), everything([&] {
                          trace_in("Labels::Draw", "text");
                          text();
                          trace_out("Labels::Draw", "");
                      }));
        }
}

// In numbers once: centred on both axes, 4 letters of 8 by 10, black.
TEST_F(Label, StandsInTheMiddle) {
    EXPECT_EQ(painted([&] { label.Draw(); }),
              "Zeb_setup(WND, \"Tools::Text\")\nZeb_set_clip(10, 20, 51, 31)\nZeb_Font_Color(0x1, 0)\n"
              "Zeb_Font_Write(null, 19, 30, \"text\")\nZeb_reset_clip()\nZeb_release()\n");
}

TEST_F(Label, BlackMeansTheDefaultColour) {
    const auto color = [&](DWORD flag) {
        label.Flag = flag;
        const std::string lines = painted([&] { label.Draw(); });
        return lines.substr(lines.find("Zeb_Font_Color"),
                            lines.find("Zeb_Font_Write") - lines.find("Zeb_Font_Color"));
    };
    EXPECT_EQ(color(0), "Zeb_Font_Color(0x1, 0)\n");
    EXPECT_EQ(color(TEXT_WHITE), "Zeb_Font_Color(0xFFFFFF, 0)\n");
    EXPECT_EQ(color(GRAPH_OUTLINE), "Zeb_Font_Color(0xE64040, 0)\n");
    label.Color = Colors(0x11, 0x22, 0x33);
    EXPECT_EQ(color(TEXT_WHITE), "Zeb_Font_Color(0x332211, 0)\n");
}

struct WayOut {
    DWORD flag;
    int dim;
    bool named;
    const char* tag;
};
TEST_F(Label, WaysOutInOrder) {
    for (const WayOut& way : {WayOut{OUTIL_INVISIBLE, 0, false, "OUTIL_INVISIBLE"}, WayOut{0, 0, false, "<0"},
                              WayOut{0, -1, true, "<0"}, WayOut{0, 30, false, "! Name"}}) {
        label.Flag = way.flag;
        label.Dim_Y = way.dim;
        label.Name_Set(nullptr);
        if (way.named) label.Name_Set(L"text");
        EXPECT_EQ(everything([&] { label.Draw(); }), everything([&] {
                      trace_in("Labels::Draw", name_of(label));
                      trace_out("Labels::Draw", way.tag);
                  }));
    }
}

TEST_F(Label, InitIsTracedAndPaintsNothing) {
    EXPECT_EQ(everything([&] { label.Init(nullptr); }), everything([&] {
                  trace_in("Labels::Init", "text");
                  trace_out("Labels::Init", "");
              }));
    EXPECT_EQ(label.Image_Normal, nullptr);
    EXPECT_EQ(label.Old_Dim_X, 0);
}

TEST_F(Label, BlackSecondColourBecomesWhite) {
    EXPECT_EQ(label.Color_Alt.get(), 0x00FFFFFFul);
    label.Color_Alt = Colors(0, 0, 0, 9);
    label.Init(nullptr);
    EXPECT_EQ(label.Color_Alt.get(), 0x00FFFFFFul);
    label.Color_Alt = Colors(0, 1, 0, 9);
    label.Init(nullptr);
    EXPECT_EQ(label.Color_Alt.get(), 0x09000100ul);
    EXPECT_EQ(label.Color_Get(), 0u);
}

TEST_F(Label, WidthIsMeasuredInItsFont) {
    label.Font_Name = "times", label.Font_Weight = "bold", label.Font_Slant = "i", label.Font_Size = 9;
    const HFONT font = Zeb_Create_Font(label.Wnd, "times", "bold", "i", 9);
    recorder::name(font, "FONT");
    recorder::metrics(font, 20, 11);
    recorder::clear();
    EXPECT_EQ(label.Get_X(), 44);
    EXPECT_EQ(recorder::text(recorder::kDraw | recorder::kMeasure),
              "Zeb_setup(WND, \"Tools::Text\")\nZeb_Font_Size_String(FONT, \"text\")\nZeb_release()\n");
    const auto traces = recorder::reports(0x90000029);
    ASSERT_EQ(traces.size(), 4u);
    EXPECT_EQ(traces[0], ">>> in  Lib_Brask: Labels::Gey_X(text)");
    EXPECT_EQ(traces[1], ">>> in  Lib_Brask: Zeb_Create_Font()");
    EXPECT_EQ(traces[3], "<<< out Lib_Brask: Labels::Gey_X()");
}

TEST_F(Label, WidthWithoutANameIsNone) {
    label.Name_Set(nullptr);
    EXPECT_EQ(label.Get_X(), 0);
    EXPECT_EQ(Labels().Get_X(), 0);
}

// Marks take no part in it: the name is measured as it stands.
TEST_F(Label, WidthCountsMarks) {
    label.Name_Set(L"a\x01"
                   L"b");
    EXPECT_EQ(label.Get_X(), 24);
}

} // namespace
