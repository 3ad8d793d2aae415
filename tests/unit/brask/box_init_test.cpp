#include <brask/boxs.h>

#include "expect.h"

// Which faces Init builds, and when.

namespace {

const Colors kHighlight(230, 100, 100);

struct BoxFaces : Recorded {
    Boxs box;
    void SetUp() override {
        Recorded::SetUp();
        BORDER = 3;
        box.Pos_X = 10, box.Pos_Y = 20, box.Dim_X = 50, box.Dim_Y = 30;
        box.Color = Colors(100, 110, 120);
        box.Init(recorder::window());
        recorder::clear();
    }
    // Init, told as the faces that it builds: n normal, s selected.
    std::string built(HWND wnd) {
        recorder::clear();
        box.Init(wnd);
        const std::string lines = recorder::text(recorder::kReport | recorder::kDraw);
        for (const char* faces : {"", "n", "s", "ns"}) {
            const std::string expected = everything([&] {
                trace_in("Boxs::Init", "no name");
                if (*faces == 'n') built_face(box, box.Color);
                if (std::string(faces).find('s') != std::string::npos) built_face(box, kHighlight);
                trace_out("Boxs::Init", "");
            });
            if (lines == expected) return faces;
        }
        return lines;
    }
    void expect_fitting() {
        EXPECT_TRUE(face_of(box, box.Box_Normal, box.Color));
        EXPECT_TRUE(face_of(box, box.Box_Select, kHighlight));
        EXPECT_EQ(box.Image_Normal, box.Box_Normal);
        EXPECT_EQ(box.Image_Select, box.Box_Select);
    }
};

TEST_F(BoxFaces, FirstInitBuildsBoth) {
    expect_fitting();
    EXPECT_EQ(box.Old_Dim_X, 50);
    EXPECT_EQ(box.Old_Dim_Y, 30);
    EXPECT_EQ(box.Old_Border, 0);
    EXPECT_EQ(box.Old_Color, box.Color_Get());
    EXPECT_EQ(box.Old_Graph_Normal, nullptr);
    EXPECT_EQ(box.Old_Graph_Select, nullptr);
    EXPECT_EQ(box.select, 0);
}

TEST_F(BoxFaces, NothingChangedBuildsNothing) {
    const DWORD *normal = box.Box_Normal, *selected = box.Box_Select;
    box.select = 1;
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(box.Box_Normal, normal);
    EXPECT_EQ(box.Box_Select, selected);
    EXPECT_EQ(box.select, 0);
}

TEST_F(BoxFaces, AWindowBuildsBothAlways) {
    EXPECT_EQ(built(recorder::window()), "ns");
    EXPECT_EQ(built(recorder::window(2)), "ns");
    expect_fitting();
}

TEST_F(BoxFaces, AColourBuildsTheNormalOne) {
    const DWORD* selected = box.Box_Select;
    box.Color = Colors(1, 2, 3);
    EXPECT_EQ(built(nullptr), "n");
    EXPECT_EQ(box.Box_Select, selected);
    EXPECT_EQ(box.Old_Color, box.Color_Get());
    expect_fitting();
    box.Color = Colors(1, 2, 3, 77); // alpha is part of the word
    EXPECT_EQ(built(nullptr), "n");
    box.Color = Colors(1, 2, 3, 255 + 22);
    EXPECT_EQ(built(nullptr), "n");
    box.Color = Colors(1, 2, 3, 255); // shown alike: the same word
    EXPECT_EQ(built(nullptr), "");
}

TEST_F(BoxFaces, EachMeasureBuildsBoth) {
    box.Dim_X = 51;
    EXPECT_EQ(built(nullptr), "ns");
    expect_fitting();
    box.Dim_Y = 31;
    EXPECT_EQ(built(nullptr), "ns");
    expect_fitting();
    box.Border = 3; // what the global says, but a different field
    EXPECT_EQ(built(nullptr), "ns");
    expect_fitting();
    EXPECT_EQ(box.Old_Dim_X, 51);
    EXPECT_EQ(box.Old_Dim_Y, 31);
    EXPECT_EQ(box.Old_Border, 3);
}

TEST_F(BoxFaces, PlaceBuildsNothing) {
    box.Pos_X = 99, box.Pos_Y = -5;
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(box.Region.left, 99);
    EXPECT_EQ(box.Region.top, -5);
    EXPECT_EQ(box.Region.right, 150);
    EXPECT_EQ(box.Region.bottom, 26);
}

TEST_F(BoxFaces, HostsSurfacesAreTaken) {
    box.Alloc_Graph_Normal(1);
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(box.Image_Normal, box.Graph_Normal);
    EXPECT_EQ(box.Image_Select, box.Box_Select);
    EXPECT_EQ(box.Old_Graph_Normal, box.Graph_Normal);
    box.Alloc_Graph_Select(2);
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(box.Image_Select, box.Graph_Select);
    EXPECT_EQ(box.Old_Graph_Select, box.Graph_Select);
    box.Color = Colors(9, 9, 9);
    EXPECT_EQ(built(nullptr), "");
    EXPECT_EQ(built(recorder::window()), "");
    EXPECT_EQ(box.Image_Normal, box.Graph_Normal);
    EXPECT_EQ(box.Image_Select, box.Graph_Select);
}

TEST_F(BoxFaces, HostsSurfaceBesideAGeneratedOne) {
    box.Alloc_Graph_Select(2);
    EXPECT_EQ(built(recorder::window()), "n");
    EXPECT_EQ(box.Image_Select, box.Graph_Select);
    EXPECT_EQ(box.Image_Normal, box.Box_Normal);
}

TEST_F(BoxFaces, HostsSurfaceTakenAwayRebuilds) {
    box.Alloc_Graph_Normal(1);
    box.Alloc_Graph_Select(2);
    box.Init(nullptr);
    box.Graph_Normal = static_cast<DWORD*>(box.Free(box.Graph_Normal));
    box.Graph_Select = static_cast<DWORD*>(box.Free(box.Graph_Select));
    box.Init(nullptr);
    expect_fitting();
    box.Draw();
}

TEST_F(BoxFaces, EmptyBuildsNoneButRemembers) {
    box.Flag = OUTIL_EMPTY;
    box.Dim_X = 60, box.Dim_Y = 40, box.Border = 2, box.Color = Colors(5, 6, 7);
    box.select = 2;
    EXPECT_EQ(everything([&] { box.Init(recorder::window()); }), everything([&] {
                  trace_in("Boxs::Init", "no name");
                  trace_out("Boxs::Init", "OUTIL_EMPTY");
              }));
    EXPECT_EQ(box.Old_Dim_X, 60);
    EXPECT_EQ(box.Old_Dim_Y, 40);
    EXPECT_EQ(box.Old_Border, 2);
    EXPECT_EQ(box.Old_Color, box.Color_Get());
    EXPECT_EQ(box.Region.right, 71);
    EXPECT_EQ(box.select, 0);
}

// Faces that were made for another size are not shown: the flat look stands in until the next Init.
TEST_F(BoxFaces, AFaceThatDoesNotFitIsNotShown) {
    for (const bool in : {false, true}) {
        in ? recorder::pointer(15, 25) : recorder::pointer(0, 0);
        for (const auto& size : {std::pair(60, 30), std::pair(50, 60), std::pair(1000, 1000)}) {
            box.Dim_X = size.first, box.Dim_Y = size.second;
            const std::string lines = painted([&] { box.Draw(); });
            EXPECT_EQ(lines.find("draw_image"), std::string::npos);
            EXPECT_NE(lines.find("draw_fill_rectangle"), std::string::npos);
            EXPECT_NE(lines.find(in ? "Zeb_color(0x6464E6)" : "Zeb_color(0x786E64)"), std::string::npos);
        }
        box.Init(nullptr);
        expect_fitting();
        EXPECT_NE(painted([&] { box.Draw(); }).find("draw_image"), std::string::npos);
        box.Dim_X = 50, box.Dim_Y = 30;
        box.Init(nullptr);
    }
}

TEST_F(BoxFaces, AFaceThatStoppedFittingWhileEmptyIsRebuilt) {
    box.Flag = OUTIL_EMPTY;
    box.Dim_X = 200, box.Dim_Y = 100;
    box.Init(nullptr);
    box.Flag = 0;
    EXPECT_EQ(painted([&] { box.Draw(); }).find("draw_image"), std::string::npos);
    box.Init(nullptr);
    expect_fitting();
    EXPECT_NE(painted([&] { box.Draw(); }).find("draw_image"), std::string::npos);
}

TEST_F(BoxFaces, ABoxThatWasEmptyAtFirstGetsItsFaces) {
    Boxs late;
    late.Dim_X = 50, late.Dim_Y = 30;
    late.Flag = OUTIL_EMPTY;
    late.Init(recorder::window());
    EXPECT_EQ(late.Box_Normal, nullptr);
    late.Flag = 0;
    late.Draw(); // flat, without a face
    late.Init(recorder::window());
    EXPECT_TRUE(face_of(late, late.Box_Normal, late.Color));
}

} // namespace
