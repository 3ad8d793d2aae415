#include <cmath>

#include "color_fixture.h"

// How the editor lays its parts out, and the ramps.

namespace {

TEST_F(Editors, InitStopsWithoutSizeOrWindow) {
    Color_Edit editor;
    editor.Init(recorder::window());
    EXPECT_EQ(editor.test, 1);
    EXPECT_EQ(editor.Wnd, nullptr);
    editor.Dim_X = editor.Dim_Y = 100;
    recorder::clear();
    editor.Init(nullptr);
    EXPECT_EQ(recorder::text(recorder::kReport), window_warning("Color_Edit::Init"));
    EXPECT_EQ(editor.Swatch_Width, 0);
}

TEST_F(Editors, PlacesWithABorder) {
    Color_Edit editor;
    lay(editor, 0, 2);
    EXPECT_EQ(editor.Swatch_Width, 50);
    expect_place(editor.Box_Frame, 10, 20, 240, 110);
    expect_place(editor.Val_Blue_Sat, 14, 24, 180, 32);
    expect_place(editor.Val_Green_Light, 14, 58, 180, 32);
    expect_place(editor.Val_Red_Hue, 14, 92, 180, 34); // what the division leaves over
    expect_place(editor.Box_Swatch, 196, 24, 50, 102);
    expect_place(editor.Button_Mode, 0, 0, 0, 0);
    for (const auto bar : BARS) {
        EXPECT_EQ((editor.*bar).Border, 2);
        EXPECT_EQ((editor.*bar).Val_Min, 0.0f);
        EXPECT_EQ((editor.*bar).Val_Max, 0.99f);
        EXPECT_EQ((editor.*bar).Format, nullptr);
        EXPECT_EQ((editor.*bar).Larg, 16);
        EXPECT_EQ((editor.*bar).Step, 0);
    }
}

TEST_F(Editors, PlacesWithButtonNameAndNoBorder) {
    Color_Edit editor;
    editor.Name_Set(L"Title");
    lay(editor, COLOR_MODE_BUTTON, 2);
    expect_place(editor.Val_Blue_Sat, 14, 24, 159, 28);
    expect_place(editor.Val_Green_Light, 14, 54, 159, 28);
    expect_place(editor.Val_Red_Hue, 14, 84, 159, 29);
    expect_place(editor.Box_Swatch, 175, 24, 50, 89);
    expect_place(editor.Button_Mode, 227, 24, 19, 89);
    EXPECT_EQ(recorder::narrow(editor.Box_Frame.W_Name), "Title");

    for (const int border : {0, -2}) {
        Color_Edit flat;
        lay(flat, COLOR_MODE_BUTTON, border);
        const DWORD hidden = OUTIL_INVISIBLE | OUTIL_DISABLE;
        EXPECT_EQ(flat.Box_Frame.Flag & hidden, hidden);
        EXPECT_EQ(flat.Box_Swatch.Flag & hidden, hidden);
        EXPECT_EQ(flat.Box_Swatch.Graph_Normal, nullptr);
        expect_place(flat.Val_Blue_Sat, 10, 20, 240 - 52 - 21, 35);
        expect_place(flat.Val_Red_Hue, 10, 94, 167, 36);
        EXPECT_EQ(flat.Val_Red_Hue.Border, border ? 2 : 3);
        expect_place(flat.Box_Swatch, 179, 20, 50, 110);
        flat.Draw(); // and Update has nothing to paint
        EXPECT_EQ(painted([&] { flat.Cur_Value = 5, flat.Adjust(); }).find("Boxs::"), std::string::npos);
    }
}

TEST_F(Editors, FlagsFontsAndColourOfTheParts) {
    static const char family[] = "times", weight[] = "bold", slant[] = "i";
    Color_Edit editor;
    editor.Font_Name = family, editor.Font_Weight = weight, editor.Font_Slant = slant, editor.Font_Size = 9;
    editor.Clip_X = 1, editor.Clip_Y = 2, editor.Clip_Dim_X = 3, editor.Clip_Dim_Y = 4;
    editor.Color = Colors(10, 20, 30);
    const DWORD own = COLOR_MODE_BUTTON | OUTIL_CAPTURE | TEXT_LEFT | OUTIL_EMPTY | OUTIL_DISABLE;
    lay(editor, own, 2);
    EXPECT_EQ(editor.Box_Frame.Flag, OUTIL_EMPTY | OUTIL_DISABLE | OUTIL_FLAT);
    EXPECT_EQ(editor.Box_Swatch.Flag, editor.Box_Frame.Flag);
    EXPECT_EQ(editor.Button_Mode.Flag, own | OUTIL_VERTICAL);
    EXPECT_EQ(editor.Button_Mode.Color_Get() & 0xFFFFFF, 0xAAAAAAu) << "the default grey";
    EXPECT_EQ(editor.Box_Swatch.Font_Name, nullptr);
    for (Tools* part :
         {static_cast<Tools*>(&editor.Box_Frame), static_cast<Tools*>(&editor.Val_Red_Hue),
          static_cast<Tools*>(&editor.Val_Blue_Sat), static_cast<Tools*>(&editor.Button_Mode)}) {
        EXPECT_EQ(part->Font_Name, family);
        EXPECT_EQ(part->Font_Weight, weight);
        EXPECT_EQ(part->Font_Slant, slant);
        EXPECT_EQ(part->Font_Size, 9);
        EXPECT_EQ(part->Clip_X, 1);
        EXPECT_EQ(part->Clip_Dim_Y, 4);
    }
    for (const auto bar : BARS) {
        EXPECT_EQ((editor.*bar).Flag, own);
        EXPECT_EQ((editor.*bar).Color_Get(), editor.Color_Get());
    }
    EXPECT_EQ(editor.Box_Frame.Color_Get(), editor.Color_Get());
    EXPECT_EQ(editor.Box_Swatch.Color_Get(), editor.Color_Get());
}

TEST_F(Editors, NamesByTheMode) {
    Color_Edit editor;
    lay(editor, COLOR_MODE_BUTTON, 2);
    EXPECT_EQ(name_of(editor.Val_Red_Hue) + name_of(editor.Val_Green_Light) + name_of(editor.Val_Blue_Sat) +
                  name_of(editor.Button_Mode),
              "RedGreenBlueRGB");
    lay(editor, COLOR_MODE_BUTTON | COLOR_HLS, 2);
    EXPECT_EQ(name_of(editor.Val_Red_Hue) + name_of(editor.Val_Green_Light) + name_of(editor.Val_Blue_Sat) +
                  name_of(editor.Button_Mode),
              "HueLightSaturationHLS");
}

DWORD ramp(int bar, bool hls, int i, int width) {
    const float inv = 1.0f / static_cast<float>(width), x = static_cast<float>(i);
    const int level = static_cast<int>(x * 255 * inv);
    if (!hls) return surface_of(bar == 0 ? level : 0, bar == 1 ? level : 0, bar == 2 ? level : 0);
    if (bar == 0) return turned(word_of_hue(x * inv, 0.5f, 1.0f));
    if (bar == 1) return surface_of(level, level, level);
    const int rest = static_cast<int>(255 - x * 255 * inv);
    return surface_of(255, rest, rest);
}

TEST_F(Editors, RampsInEveryRowAndBothLooks) {
    for (const DWORD mode : {DWORD(0), COLOR_HLS})
        for (const int width : {240, 333, 64}) {
            Color_Edit editor;
            lay(editor, mode, 2);
            editor.Dim_X = width;
            editor.Init(nullptr);
            for (int bar = 0; bar < 3; ++bar) {
                const Valuators& part = editor.*BARS[bar];
                ASSERT_NE(part.Graph_Normal, nullptr);
                EXPECT_EQ(part.Graph_Select, part.Graph_Normal);
                EXPECT_EQ(part.Image_Select, part.Image_Normal);
                for (int i = 0; i < part.Dim_X * part.Dim_Y; ++i)
                    ASSERT_EQ(part.Graph_Normal[i], ramp(bar, mode != 0, i % part.Dim_X, part.Dim_X))
                        << "bar " << bar << " column " << i % part.Dim_X;
            }
        }
    Color_Edit hidden;
    lay(hidden, OUTIL_INVISIBLE, 2);
    for (const auto bar : BARS)
        EXPECT_EQ((hidden.*bar).Graph_Normal, nullptr);
}

TEST_F(Editors, ASecondInitMakesNothingAnew) {
    Color_Edit editor;
    lay(editor, COLOR_MODE_BUTTON, 2);
    const DWORD *swatch = editor.Box_Swatch.Graph_Normal, *ramp = editor.Val_Red_Hue.Graph_Normal;
    editor.Val_Red_Hue.Graph_Normal[7] = 1;
    editor.Init(nullptr);
    EXPECT_EQ(editor.Box_Swatch.Graph_Normal, swatch);
    EXPECT_EQ(editor.Val_Red_Hue.Graph_Normal, ramp);
    EXPECT_NE(editor.Val_Red_Hue.Graph_Normal[7], 1u) << "but the ramp is written again";
}

// Whatever changes the size of a part, its surface fits.
TEST_F(Editors, SurfacesFollowTheirParts) {
    Color_Edit editor;
    lay(editor, COLOR_MODE_BUTTON, 2);
    const auto check = [&](const char* what) {
        editor.Init(nullptr);
        editor.Draw();
        for (const auto bar : BARS) {
            const Valuators& part = editor.*bar;
            if (part.Dim_X > 0 && part.Dim_Y > 0) {
                EXPECT_EQ(part.Graph_Normal[part.Dim_X * part.Dim_Y - 1] >> 24, 255u) << what;
            }
        }
        const Boxs& swatch = editor.Box_Swatch;
        if (!(swatch.Flag & OUTIL_INVISIBLE) && swatch.Graph_Normal && swatch.Dim_X > 0 && swatch.Dim_Y > 0) {
            EXPECT_EQ(swatch.Graph_Normal[swatch.Dim_X * swatch.Dim_Y - 1], turned(editor.Cur_Value)) << what;
        }
    };
    editor.Swatch_Width = 90, check("swatch");
    editor.Border = 9, check("border");
    editor.Name_Set(L"Name"), check("name");
    BUT_DIM = 40, check("BUT_DIM");
    SPACE = 1, check("SPACE");
    editor.Flag = 0, check("no button");
    editor.Dim_X = 400, editor.Dim_Y = 300, check("size");
    editor.Border = 0, check("no border");
    editor.Border = 3, check("border again");
    editor.Dim_X = 20, editor.Dim_Y = 9, check("tiny");
    editor.Swatch_Width = -5, check("negative swatch");
    editor.Dim_X = 300, editor.Dim_Y = 100, editor.Swatch_Width = 0, check("back");
}

TEST_F(Editors, CopiesCarryTheSlots) {
    Color_Edit editor;
    int thing = 0;
    editor.Edit_Slot_A = &thing, editor.Edit_Slot_D = 7, editor.Cur_Value = 5, editor.Old_Value = 6;
    editor.Val_Red_Hue.Cur_Value = 0.5f;
    const Color_Edit copy(editor);
    Color_Edit assigned;
    assigned = editor;
    for (const Color_Edit* other : {&copy, static_cast<const Color_Edit*>(&assigned)}) {
        EXPECT_EQ(other->Edit_Slot_A, &thing);
        EXPECT_EQ(other->Edit_Slot_B, nullptr);
        EXPECT_EQ(other->Edit_Slot_D, 7);
        EXPECT_EQ(other->Cur_Value, 5u);
        EXPECT_EQ(other->Old_Value, 6u);
        EXPECT_EQ(other->Val_Red_Hue.Cur_Value, 0.5f);
    }
}

} // namespace
