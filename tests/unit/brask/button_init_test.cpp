#include <brask/buttons.h>

#include "expect.h"

// Which faces a button's Init builds, and when.

namespace {

struct ButtonFaces : Recorded {
    Buttons button;
    const Colors select_off{230, 100, 100}, select_on{190, 60, 60};
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3;
        button.Pos_X = 10, button.Pos_Y = 20, button.Dim_X = 50, button.Dim_Y = 30;
        button.Color = Colors(100, 110, 20, 9);
        button.Init(recorder::window());
        recorder::clear();
    }
    Colors on() const { return Colors(button.Color.R - 40, button.Color.G - 40, button.Color.B - 40, 0); }
    // Init, told as the pairs that it builds: n normal, s selected.
    std::string built(HWND wnd) {
        recorder::clear();
        button.Init(wnd);
        const std::string lines = recorder::text(recorder::kReport | recorder::kDraw);
        for (const std::string faces : {"", "n", "s", "ns"}) {
            const std::string expected = everything([&] {
                trace_in("Buttons::Init", "no name");
                if (faces.find('n') != std::string::npos)
                    built_face(button, button.Color), built_face(button, on());
                if (faces.find('s') != std::string::npos)
                    built_face(button, select_off), built_face(button, select_on);
                trace_out("Buttons::Init", "");
            });
            if (lines == expected) return faces;
        }
        return lines;
    }
    void expect_fitting() {
        EXPECT_TRUE(face_of(button, button.Own_Normal_Off, button.Color));
        EXPECT_TRUE(face_of(button, button.Own_Normal_On, on()));
        EXPECT_TRUE(face_of(button, button.Own_Select_Off, select_off));
        EXPECT_TRUE(face_of(button, button.Own_Select_On, select_on));
        EXPECT_EQ(button.Image_Normal_Off, button.Own_Normal_Off);
        EXPECT_EQ(button.Image_Normal_On, button.Own_Normal_On);
        EXPECT_EQ(button.Image_Select_Off, button.Own_Select_Off);
        EXPECT_EQ(button.Image_Select_On, button.Own_Select_On);
        EXPECT_EQ(button.Image_Normal, button.Cur_Value ? button.Own_Normal_On : button.Own_Normal_Off);
        EXPECT_EQ(button.Image_Select, button.Cur_Value ? button.Own_Select_On : button.Own_Select_Off);
    }
};

TEST_F(ButtonFaces, FirstInitBuildsFour) {
    expect_fitting();
    EXPECT_EQ(button.Old_Dim_X, 50);
    EXPECT_EQ(button.Old_Dim_Y, 30);
    EXPECT_EQ(button.Old_Color, button.Color_Get());
    // The down face keeps channels below 0 until they are clamped: 20 - 40 is black.
    button.Flag = OUTIL_FLAT;
    button.Init(recorder::window());
    EXPECT_EQ(button.Own_Normal_On[25], 0x003C4600u);
    EXPECT_EQ(button.Own_Normal_Off[25], 0x09646E14u);
    EXPECT_EQ(button.Own_Select_Off[25], 0x00E66464u);
    EXPECT_EQ(button.Own_Select_On[25], 0x00BE3C3Cu);
}

TEST_F(ButtonFaces, InitTakesTheValue) {
    for (const int value : {1, 0, -3}) {
        button.Cur_Value = value;
        button.select = 1;
        EXPECT_EQ(built(nullptr), "");
        EXPECT_EQ(button.Old_Value, static_cast<unsigned>(value));
        EXPECT_EQ(button.select, 0);
        expect_fitting();
    }
}

TEST_F(ButtonFaces, RebuildsOnlyWhatChanged) {
    const DWORD* before[] = {button.Own_Normal_Off, button.Own_Normal_On, button.Own_Select_Off,
                             button.Own_Select_On};
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(button.Own_Normal_Off, before[0]);
    EXPECT_EQ(button.Own_Normal_On, before[1]);
    EXPECT_EQ(button.Own_Select_Off, before[2]);
    EXPECT_EQ(button.Own_Select_On, before[3]);
    button.Color = Colors(1, 2, 3);
    EXPECT_EQ(built(nullptr), "n");
    EXPECT_EQ(button.Own_Select_Off, before[2]);
    EXPECT_EQ(button.Own_Select_On, before[3]);
    expect_fitting();
    button.Pos_X = 3;
    EXPECT_EQ(built(nullptr), "");
    button.Dim_X = 51;
    EXPECT_EQ(built(nullptr), "ns");
    button.Dim_Y = 31;
    EXPECT_EQ(built(nullptr), "ns");
    button.Border = 3;
    EXPECT_EQ(built(nullptr), "ns");
    EXPECT_EQ(button.Old_Border, 3);
    expect_fitting();
    EXPECT_EQ(built(recorder::window()), "ns");
    EXPECT_EQ(built(recorder::window()), "ns");
    expect_fitting();
}

TEST_F(ButtonFaces, AShortWrapsBelowItsRange) {
    button.Flag = OUTIL_FLAT;
    button.Color = Colors(-32768, 0, 100);
    button.Init(nullptr);
    EXPECT_EQ(button.Own_Normal_On[0], 0x00FF003Cu);
}

TEST_F(ButtonFaces, HostsSurfacesServeBothValues) {
    button.Alloc_Graph_Normal(1);
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(button.Image_Normal, button.Graph_Normal);
    EXPECT_EQ(button.Image_Normal_Off, button.Graph_Normal);
    EXPECT_EQ(button.Image_Normal_On, button.Graph_Normal);
    EXPECT_EQ(button.Image_Select_Off, button.Own_Select_Off);
    button.Alloc_Graph_Select(2);
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(button.Image_Select, button.Graph_Select);
    EXPECT_EQ(button.Image_Select_Off, button.Graph_Select);
    EXPECT_EQ(button.Image_Select_On, button.Graph_Select);
    EXPECT_EQ(button.Old_Graph_Normal, button.Graph_Normal);
    EXPECT_EQ(button.Old_Graph_Select, button.Graph_Select);
    button.Cur_Value = 1;
    EXPECT_EQ(built(recorder::window()), "");
    EXPECT_EQ(button.Image_Normal, button.Graph_Normal);
    EXPECT_EQ(button.Image_Select, button.Graph_Select);
    button.Adjust();
    EXPECT_EQ(button.Image_Normal, button.Graph_Normal);
}

TEST_F(ButtonFaces, HostsSurfaceTakenAwayRebuilds) {
    button.Alloc_Graph_Normal(1);
    button.Alloc_Graph_Select(2);
    button.Init(recorder::window());
    button.Graph_Normal = static_cast<DWORD*>(button.Free(button.Graph_Normal));
    button.Graph_Select = static_cast<DWORD*>(button.Free(button.Graph_Select));
    button.Init(nullptr);
    expect_fitting();
    button.Draw();
}

TEST_F(ButtonFaces, EmptyBuildsNoneButRemembers) {
    button.Flag = OUTIL_EMPTY;
    button.Dim_X = 60, button.Dim_Y = 40, button.Border = 2, button.Color = Colors(5, 6, 7),
    button.Cur_Value = 4;
    EXPECT_EQ(everything([&] { button.Init(recorder::window()); }), everything([&] {
                  trace_in("Buttons::Init", "no name");
                  trace_out("Buttons::Init", "OUTIL_EMPTY");
              }));
    EXPECT_EQ(button.Old_Dim_X, 60);
    EXPECT_EQ(button.Old_Dim_Y, 40);
    EXPECT_EQ(button.Old_Border, 2);
    EXPECT_EQ(button.Old_Color, button.Color_Get());
    EXPECT_EQ(button.Old_Value, 4u);
    button.Flag = 0;
    EXPECT_EQ(painted([&] { button.Draw(); }).find("draw_image"), std::string::npos); // they do not fit
    button.Init(nullptr);
    expect_fitting();
}

TEST_F(ButtonFaces, AFaceThatDoesNotFitIsNotShown) {
    for (const bool in : {false, true}) {
        in ? recorder::pointer(15, 25) : recorder::pointer(0, 0);
        for (const auto& size : {std::pair(60, 30), std::pair(50, 60), std::pair(1000, 1000)}) {
            button.Dim_X = size.first, button.Dim_Y = size.second;
            const std::string lines = painted([&] { button.Draw(), button.Deselect(); });
            EXPECT_EQ(lines.find("draw_image"), std::string::npos);
            EXPECT_NE(lines.find(in ? "Zeb_color(0x6464E6)" : "Zeb_color(0x9146E64)"), std::string::npos);
        }
        button.Dim_X = 50, button.Dim_Y = 30;
        button.Init(nullptr);
    }
}

} // namespace
