#include <climits>
#include <cstdlib>
#include <memory>

#include <brask/boxs.h>
#include <brask/buttons.h>

#include "support/recorded.h"

// Surfaces and fills of the base.

namespace {

struct Surfaces : Recorded {
    Tools tools;
    using Face = std::unique_ptr<DWORD, decltype(&std::free)>;

    void SetUp() override {
        Recorded::SetUp();
        Tool_Looks = 0;
        BORDER = 3;
        tools.Wnd = recorder::window();
        tools.test = 1;
        tools.Pos_X = 10, tools.Pos_Y = 20;
        tools.Dim_X = 50, tools.Dim_Y = 30;
        tools.Color = Colors(170, 170, 170);
    }
    void TearDown() override {
        Tool_Looks = 0;
        BORDER = 3;
        Recorded::TearDown();
    }
    Face face(Colors color) { return {tools.Inside_3D(color), std::free}; }
    DWORD word(const Face& face, int column, int row) { return face.get()[row * tools.Dim_X + column]; }
};

TEST_F(Surfaces, AllocatedOnesAreFilled) {
    for (int i = 0; i < 2; ++i) { // the second round replaces the first
        EXPECT_EQ(tools.Alloc_Graph_Normal(0x11223344), 1);
        EXPECT_EQ(tools.Alloc_Graph_Select(0xFFEEDDCC), 1);
        for (int pixel = 0; pixel < 50 * 30; ++pixel) {
            ASSERT_EQ(tools.Graph_Normal[pixel], 0x11223344u);
            ASSERT_EQ(tools.Graph_Select[pixel], 0xFFEEDDCCu);
        }
    }
    EXPECT_NE(tools.Graph_Normal, tools.Graph_Select);
    EXPECT_EQ(recorder::text(), ""); // no trace
}

TEST_F(Surfaces, AllocatedOneReplacesASharedBlockWithoutLeavingTheOtherDangling) {
    tools.Alloc_Graph_Normal(1);
    tools.Graph_Select = tools.Graph_Normal;
    EXPECT_EQ(tools.Alloc_Graph_Normal(2), 1);
    ASSERT_NE(tools.Graph_Normal, nullptr);
    EXPECT_EQ(tools.Graph_Normal[0], 2u);
    if (tools.Graph_Select) {
        EXPECT_LE(tools.Graph_Select[50 * 30 - 1], 2u); // readable, or gone
    }

    if (tools.Graph_Select != tools.Graph_Normal) tools.Free(tools.Graph_Select);
    tools.Graph_Select = tools.Graph_Normal;
    EXPECT_EQ(tools.Alloc_Graph_Select(3), 1);
    ASSERT_NE(tools.Graph_Select, nullptr);
    EXPECT_EQ(tools.Graph_Select[50 * 30 - 1], 3u);
    if (tools.Graph_Normal) {
        EXPECT_LE(tools.Graph_Normal[50 * 30 - 1], 3u);
    }
}

// The library made the block and so knows its size: a control that has outgrown it is shown flat.
TEST_F(Surfaces, AllocatedOneThatDoesNotFitIsNotShown) {
    Boxs box;
    box.Dim_X = 50, box.Dim_Y = 30;
    box.Alloc_Graph_Normal(1);
    box.Init(recorder::window());
    EXPECT_NE(painted([&] { box.Draw(); }).find("draw_image"), std::string::npos);
    for (const bool again : {false, true}) {
        box.Dim_X = 60, box.Dim_Y = 300;
        if (again) box.Init(nullptr);
        EXPECT_EQ(painted([&] { box.Draw(); }).find("draw_image"), std::string::npos) << again;
    }
    EXPECT_EQ(box.Alloc_Graph_Normal(2), 1);
    box.Init(nullptr);
    EXPECT_NE(painted([&] { box.Draw(); }).find("draw_image"), std::string::npos);
}

// The looks follow from the old block to the new one, without an Init in between.
TEST_F(Surfaces, AllocatingAnewLeavesNoLookDangling) {
    Buttons button;
    button.Dim_X = 50, button.Dim_Y = 30;
    button.Alloc_Graph_Normal(1);
    button.Alloc_Graph_Select(2);
    button.Init(recorder::window());
    for (const bool in : {false, true}) {
        in ? recorder::pointer(5, 5) : recorder::pointer(-5, -5);
        button.Alloc_Graph_Normal(3);
        button.Alloc_Graph_Select(4);
        button.Draw(); // the recorder reads every pixel that is shown
        button.Cur_Value = !button.Cur_Value;
        button.Adjust();
        button.Deselect();
    }
    button.Dim_X = 0; // gives nothing to paint on, and takes the old block away
    button.Alloc_Graph_Normal(5);
    button.Alloc_Graph_Select(6);
    button.Dim_X = 50;
    button.Draw();
    button.Init(nullptr);
    button.Draw();
}

TEST_F(Surfaces, AllocationBelowOnePixelGivesOne) {
    for (const auto& size : {std::pair(0, 30), std::pair(50, 0), std::pair(-5, 30), std::pair(5, -3),
                             std::pair(INT_MIN, INT_MAX)}) {
        tools.Dim_X = size.first, tools.Dim_Y = size.second;
        EXPECT_EQ(tools.Alloc_Graph_Normal(1), 1);
        EXPECT_EQ(tools.Alloc_Graph_Select(1), 1);
    }
}

TEST_F(Surfaces, AllocationTooLargeIsReported) {
    tools.Dim_X = tools.Dim_Y = INT_MAX;
    tools.Graph_Normal = static_cast<DWORD*>(std::malloc(4));
    EXPECT_EQ(tools.Alloc_Graph_Normal(1), 0);
    EXPECT_EQ(tools.Graph_Normal, nullptr);
    EXPECT_EQ(tools.Alloc_Graph_Select(1), 0);
    EXPECT_EQ(recorder::reports(1).size(), 2u);
}

// 50 by 30 with a bevel of 3: the inside is 44 by 24.
TEST_F(Surfaces, ShadingRunsDiagonally) {
    const Face shaded = face(Colors(170, 170, 170));
    EXPECT_EQ(word(shaded, 3, 3), 0x00464646u);   // -100
    EXPECT_EQ(word(shaded, 46, 26), 0x00FFFFFFu); // 93, clamped
    const float sx = 100.0f / 44, sy = 100.0f / 24;
    for (int row = 0; row < 24; ++row)
        for (int column = 0; column < 44; ++column) {
            const float across = static_cast<float>(column) * sx - 50.0f;
            const float down = static_cast<float>(row) * sy - 50.0f;
            const int s = static_cast<int>(across + down);
            const unsigned channel = 170 + s > 255 ? 255 : 170 + s;
            ASSERT_EQ(word(shaded, column + 3, row + 3), channel * 0x10101u) << column << ", " << row;
        }
}

TEST_F(Surfaces, ShadingClampsTheBaseThenTheSum) {
    const Face shaded = face(Colors(400, -400, 50, 300));
    EXPECT_EQ(word(shaded, 3, 3), 0xFF9B0000u);   // 255 - 100, 0 - 100, 50 - 100
    EXPECT_EQ(word(shaded, 46, 26), 0xFFFF5D8Fu); // 255 + 93, 0 + 93, 50 + 93
}

TEST_F(Surfaces, ChannelsStandAsSurfaceWords) {
    tools.Flag = OUTIL_FLAT;
    const Face flat = face(Colors(1, 2, 3, 4));
    EXPECT_EQ(word(flat, 25, 15), 0x04010203u);
}

TEST_F(Surfaces, FlatFacesOnDemandOfFlagOrLooks) {
    for (const bool by_flag : {true, false}) {
        tools.Flag = by_flag ? OUTIL_FLAT : 0;
        Tool_Looks = by_flag ? 0xFE : 1;
        const Face flat = face(Colors(170, 170, 170));
        for (int row = 3; row < 27; ++row)
            for (int column = 3; column < 47; ++column)
                ASSERT_EQ(word(flat, column, row), 0x00AAAAAAu);
    }
    tools.Flag = 0;
    Tool_Looks = 0xFE; // bit 0 alone counts
    EXPECT_EQ(word(face(Colors(170, 170, 170)), 3, 3), 0x00464646u);
}

TEST_F(Surfaces, MarginHasTheFaceColour) {
    const Face shaded = face(Colors(10, 20, 30));
    for (int column = 0; column < 50; ++column)
        for (int row = 0; row < 30; ++row) {
            if (column >= 3 && column < 47 && row >= 3 && row < 27) continue;
            ASSERT_EQ(word(shaded, column, row), 0x000A141Eu) << column << ", " << row;
        }
}

TEST_F(Surfaces, InsetIsTheAbsoluteBorderOrTheGlobalOne) {
    struct Row {
        int border, global, inset;
    };
    for (const Row& row : {Row{0, 3, 3}, Row{0, 5, 5}, Row{-2, 3, 2}, Row{4, 3, 4}, Row{1, 3, 1}}) {
        tools.Border = row.border;
        BORDER = row.global;
        const Face shaded = face(Colors(170, 170, 170));
        EXPECT_EQ(word(shaded, row.inset, row.inset), 0x00464646u) << row.border;
        EXPECT_EQ(word(shaded, row.inset - 1, row.inset), 0x00AAAAAAu) << row.border;
        EXPECT_EQ(word(shaded, row.inset, row.inset - 1), 0x00AAAAAAu) << row.border;
    }
}

TEST_F(Surfaces, GenerationIsTraced) {
    tools.Name_Set(L"it");
    const auto traced = [this](const char* tag) {
        const std::string lines = recorded(recorder::kReport, [this] { face(Colors(1, 2, 3)); });
        EXPECT_EQ(lines, recorded(recorder::kReport, [tag] {
                      trace_in("Tools::Inside_3D", "it");
                      trace_out("Tools::Inside_3D", tag);
                  }));
    };
    traced("");
    tools.Flag = OUTIL_FLAT;
    traced("no 3D");
    tools.Border = 100; // no inside at all
    traced("no 3D");
    tools.Flag = 0;
    traced("");
}

TEST_F(Surfaces, BordersLargerThanTheControlAreHarmless) {
    for (const int border : {15, 16, 25, 26, 1000, INT_MAX, INT_MIN, INT_MIN + 1, -1000}) {
        tools.Border = border;
        const Face shaded = face(Colors(170, 170, 170));
        ASSERT_NE(shaded.get(), nullptr) << border;
        for (int pixel = 0; pixel < 50 * 30; ++pixel)
            ASSERT_EQ(shaded.get()[pixel] >> 24, 0u); // every word is readable and set
    }
}

TEST_F(Surfaces, SizesBelowOneGiveAFaceAllTheSame) {
    for (const auto& size :
         {std::pair(0, 0), std::pair(-7, 5), std::pair(5, -7), std::pair(INT_MIN, INT_MIN)}) {
        tools.Dim_X = size.first, tools.Dim_Y = size.second;
        EXPECT_NE(face(Colors()).get(), nullptr) << size.first << ", " << size.second;
    }
}

TEST_F(Surfaces, OneInnerPixelIsTheDarkestOne) {
    tools.Dim_X = tools.Dim_Y = 7;
    const Face shaded = face(Colors(170, 170, 170));
    EXPECT_EQ(word(shaded, 3, 3), 0x00464646u);
}

TEST_F(Surfaces, GreatSizesGiveNullInsteadOfAShortBlock) {
    for (const auto& size : {std::pair(65536, 65536), std::pair(INT_MAX, INT_MAX), std::pair(INT_MAX, 1)}) {
        tools.Dim_X = size.first, tools.Dim_Y = size.second;
        EXPECT_EQ(face(Colors(1, 1, 1)).get(), nullptr) << size.first;
        EXPECT_EQ(recorder::exit_tag("Tools::Inside_3D"), "");
    }
}

// --- Clear ---

std::string cleared(const char* color, int top) {
    return std::string("Zeb_setup(WND, \"Tools::Clear\")\nZeb_color(") + color +
           ")\ndraw_fill_rectangle(10, " + std::to_string(top) + ", 61, 19)\nZeb_release()\n";
}

TEST_F(Surfaces, ClearFillsTheControlAndWithAnArgumentOneRowMore) {
    using byte = unsigned char;
    tools.Color = Colors(1, 2, 3, 4);
    EXPECT_EQ(everything([&] { tools.Clear(); }), cleared("0x4030201", 50));
    EXPECT_EQ(everything([&] { tools.Clear(byte(7), byte(8), byte(9)); }), cleared("0x90807", 51));
    EXPECT_EQ(everything([&] { tools.Clear(0xAABBCCDDu); }), cleared("0xAABBCCDD", 51));
    EXPECT_EQ(everything([&] { tools.Clear(Colors(100, 100, 100)); }), cleared("0x4030201", 51));
}

TEST_F(Surfaces, ClearNeedsASize) {
    for (const auto& size : {std::pair(0, 30), std::pair(50, 0), std::pair(-1, -1)}) {
        tools.Dim_X = size.first, tools.Dim_Y = size.second;
        EXPECT_EQ(everything([&] {
                      tools.Clear();
                      tools.Clear(1u);
                      tools.Clear(Colors());
                  }),
                  "");
    }
}

TEST_F(Surfaces, ClearObeysTheClip) {
    tools.Clip_X = 1, tools.Clip_Y = 2, tools.Clip_Dim_X = 3, tools.Clip_Dim_Y = 4;
    EXPECT_EQ(painted([&] { tools.Clear(5u); }),
              "Zeb_setup(WND, \"Tools::Clear\")\nZeb_set_clip(1, 2, 3, 4)\nZeb_color(0x5)\n"
              "draw_fill_rectangle(10, 51, 61, 19)\nZeb_reset_clip()\nZeb_release()\n");
}

TEST_F(Surfaces, ClearIsNotHeldBackByFlags) {
    tools.Flag = OUTIL_INVISIBLE | OUTIL_EMPTY | OUTIL_DISABLE;
    EXPECT_NE(painted([&] { tools.Clear(); }), "");
}

// --- Fills ---

struct Fill {
    const char* operation;
    void (Tools::*run)(int, int, int, int);
    const char* color;
};
const Fill kFills[] = {{"Tools::Fill_Blue", &Tools::Fill_Blue, "0xFF0000"},
                       {"Tools::Fill_Green", &Tools::Fill_Green, "0xFF00"},
                       {"Tools::Fill_Grey", &Tools::Fill_Grey, "0xAAAAAA"},
                       {"Tools::Fill_Red", &Tools::Fill_Red, "0xFF"},
                       {"Tools::Fill_Yellow", &Tools::Fill_Yellow, "0xFFFF"}};

std::string filled(const std::string& operation, const std::string& color, bool clip = false) {
    return everything([&] {
        trace_in(operation, "no name");
        const auto line = [](const std::string& text) { recorder::note(recorder::kDraw, text); };
        line("Zeb_setup(WND, \"" + operation + "\")");
        if (clip) line("Zeb_set_clip(5, 6, 7, 8)");
        line("Zeb_color(" + color + ")");
        line("draw_fill_rectangle(11, 44, 22, 33)");
        if (clip) line("Zeb_reset_clip()");
        line("Zeb_release()");
        trace_out(operation, "");
    });
}
std::string nothing(const std::string& operation, const std::string& name, const std::string& tag) {
    return everything([&] {
        trace_in(operation, name);
        trace_out(operation, tag);
    });
}

TEST_F(Surfaces, FixedFills) {
    for (const Fill& fill : kFills) {
        tools.Clip_Dim_X = 0;
        EXPECT_EQ(everything([&] { (tools.*fill.run)(11, 22, 33, 44); }), filled(fill.operation, fill.color));
        tools.Clip_X = 5, tools.Clip_Y = 6, tools.Clip_Dim_X = 7, tools.Clip_Dim_Y = 8;
        EXPECT_EQ(everything([&] { (tools.*fill.run)(11, 22, 33, 44); }),
                  filled(fill.operation, fill.color, true));
    }
}

TEST_F(Surfaces, FixedFillsPaintNothingOnAnInvisibleControl) {
    tools.Flag = OUTIL_INVISIBLE;
    tools.Name_Set(L"lamp");
    for (const Fill& fill : kFills)
        EXPECT_EQ(everything([&] { (tools.*fill.run)(11, 22, 33, 44); }),
                  nothing(fill.operation, "lamp", "invisible"));
}

TEST_F(Surfaces, FillTakesTheControlsColour) {
    EXPECT_EQ(everything([&] { tools.Fill(0, 11, 22, 33, 44); }), filled("Tools::Fill", "0xAAAAAA"));
    // The argument alone speaks of emptiness, the control's own flag of invisibility.
    tools.Flag = OUTIL_EMPTY;
    EXPECT_EQ(everything([&] { tools.Fill(OUTIL_INVISIBLE, 11, 22, 33, 44); }),
              filled("Tools::Fill", "0xAAAAAA"));
    EXPECT_EQ(everything([&] { tools.Fill(OUTIL_EMPTY, 11, 22, 33, 44); }),
              nothing("Tools::Fill", "no name", ""));
    tools.Flag = OUTIL_INVISIBLE;
    EXPECT_EQ(everything([&] { tools.Fill(OUTIL_EMPTY, 11, 22, 33, 44); }),
              nothing("Tools::Fill", "no name", "invisible"));
}

TEST_F(Surfaces, FillSelectCopiesTheInnerWindow) {
    DWORD pixels[50 * 30] = {};
    recorder::name(pixels, "FACE");
    // inset 4 in the rectangle 10, 60, 20, 50: 50 - 8 + 1 wide, 30 - 8 + 1 high, from column 4, row 3.
    for (const int on : {0, 1}) {
        EXPECT_EQ(everything([&] {
                      tools.Fill_Select(on, reinterpret_cast<const char*>(pixels), 0, 4, 10, 60, 20, 50);
                  }),
                  everything([] {
                      trace_in("Tools::Fill_Select", "no name");
                      recorder::note(recorder::kDraw, "Zeb_setup(WND, \"Tools::Fill_Select\")");
                      recorder::note(recorder::kDraw, "draw_image(FACE, 14, 24, 4, 3, 43, 23, 50, 30, 0x0)");
                      recorder::note(recorder::kDraw, "Zeb_release()");
                      trace_out("Tools::Fill_Select", "");
                  }));
    }
}

TEST_F(Surfaces, FillSelectWithoutASurfaceFills) {
    const auto solid = [](const char* color) {
        return std::string("Zeb_setup(WND, \"Tools::Fill_Select\")\nZeb_color(") + color +
               ")\ndraw_fill_rectangle(14, 46, 57, 23)\nZeb_release()\n";
    };
    EXPECT_EQ(painted([&] { tools.Fill_Select(1, nullptr, 0, 4, 10, 60, 20, 50); }), solid("0x6464E6"));
    EXPECT_EQ(painted([&] { tools.Fill_Select(-3, nullptr, 0, 4, 10, 60, 20, 50); }), solid("0x6464E6"));
    EXPECT_EQ(painted([&] { tools.Fill_Select(0, nullptr, 0, 4, 10, 60, 20, 50); }), solid("0xAAAAAA"));
}

TEST_F(Surfaces, FillSelectPaintsNothingWhenTheArgumentSaysEmpty) {
    EXPECT_EQ(everything([&] { tools.Fill_Select(1, nullptr, OUTIL_EMPTY, 4, 10, 60, 20, 50); }),
              nothing("Tools::Fill_Select", "no name", ""));
    tools.Flag = OUTIL_EMPTY | OUTIL_INVISIBLE; // the argument alone is asked
    EXPECT_NE(painted([&] { tools.Fill_Select(1, nullptr, 0, 4, 10, 60, 20, 50); }), "");
}

TEST_F(Surfaces, FillSelectObeysTheClip) {
    tools.Clip_Dim_X = 9;
    EXPECT_EQ(painted([&] { tools.Fill_Select(0, nullptr, 0, 4, 10, 60, 20, 50); }),
              "Zeb_setup(WND, \"Tools::Fill_Select\")\nZeb_set_clip(0, 0, 9, 0)\nZeb_color(0xAAAAAA)\n"
              "draw_fill_rectangle(14, 46, 57, 23)\nZeb_reset_clip()\nZeb_release()\n");
}

} // namespace
