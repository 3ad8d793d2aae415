#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include <brask/boxs.h>
#include <brask/buttons.h>
#include <brask/labels.h>

#include "support/recorded.h"

// What every object has from the base: metrics, life, copies, the first-use check, small accessors.

namespace {

TEST(Metrics, StartWithTheirValues) {
    EXPECT_EQ(BORDER, 3);
    EXPECT_EQ(SPACE, 6);
    EXPECT_EQ(CURSEUR, 16);
    EXPECT_EQ(BUT_DIM, 25);
    EXPECT_EQ(NUM_DIM, 48);
    EXPECT_EQ(VAL_DIM, 26);
    EXPECT_EQ(VAL_SMALL, 18);
    EXPECT_EQ(Tool_Looks, 0);
}

TEST(Metrics, ListButtonsCopiedTheButtonSizeAtLoad) {
    EXPECT_EQ(BUT_LIST, 25);
    BUT_DIM = 40;
    EXPECT_EQ(BUT_LIST, 25);
    BUT_DIM = 25;
}

TEST(Flags, HaveTheirBits) {
    EXPECT_EQ(OUTIL_INVISIBLE, 0x1u);
    EXPECT_EQ(OUTIL_DISABLE, 0x2u);
    EXPECT_EQ(OUTIL_VERTICAL, 0x4u);
    EXPECT_EQ(OUTIL_EMPTY, 0x10u);
    EXPECT_EQ(GRAPH_OUTLINE, 0x20u);
    EXPECT_EQ(OUTIL_FLAT, 0x40u);
    EXPECT_EQ(OUTIL_NO_FRAME, 0x80u);
    EXPECT_EQ(TEXT_MIDDLE, 0x100u);
    EXPECT_EQ(TEXT_TOP, 0x200u);
    EXPECT_EQ(TEXT_BOTTOM, 0x400u);
    EXPECT_EQ(TEXT_LEFT, 0x2000u);
    EXPECT_EQ(TEXT_RIGHT, 0x4000u);
    EXPECT_EQ(BOX_INSET, 0x10000u);
    EXPECT_EQ(TEXT_WHITE, 0x40000u);
    EXPECT_EQ(BOX_RAISED, 0x80000u);
    EXPECT_EQ(BUTTON_LAMP, 0x100000u);
    EXPECT_EQ(BUTTON_LAMP_COLOR, 0x200000u);
    EXPECT_EQ(CADRE_NO_LINE, 0x400000u);
    EXPECT_EQ(OUTIL_REVERSE, 0x4000000u);
    EXPECT_EQ(OUTIL_CAPTURE, 0x8000000u);
    EXPECT_EQ(KEY_QUERY, 4);
}

struct Life : Recorded {};

// Builds an object in a block full of ones, and looks at every byte of it.
template <typename Control>
void expect_all_zero() {
    std::vector<unsigned char> bytes(sizeof(Control) + alignof(Control), 0xFF);
    void* place = bytes.data();
    std::size_t room = bytes.size();
    place = std::align(alignof(Control), sizeof(Control), place, room);
    auto* control = new (place) Control;
    const std::vector<unsigned char> zero(sizeof(Control), 0);
    EXPECT_EQ(std::memcmp(place, zero.data(), zero.size()), 0);
    control->~Control();
}

TEST_F(Life, ConstructorsZeroTheWholeObject) {
    expect_all_zero<Tools>();
    expect_all_zero<Boxs>();
    expect_all_zero<Labels>();
    expect_all_zero<Buttons>();
}

template <typename Control>
std::string life_of() {
    return everything([] { Control control; });
}
std::string expected_life(const std::string& name) {
    return everything([&] {
        trace_in("Tools::Tools", "");
        trace_out("Tools::Tools", "");
        if (name != "Tools") trace_in(name + "::" + name, "");
        if (name != "Tools") trace_out(name + "::" + name, "");
        if (name != "Tools") trace_in(name + "::~" + name, "");
        if (name != "Tools") trace_out(name + "::~" + name, "");
        trace_in("Tools::~Tools", "");
        trace_out("Tools::~Tools", "");
    });
}
TEST_F(Life, IsTracedBaseFirstAndBaseLast) {
    EXPECT_EQ(life_of<Tools>(), expected_life("Tools"));
    EXPECT_EQ(life_of<Boxs>(), expected_life("Boxs"));
    EXPECT_EQ(life_of<Labels>(), expected_life("Labels"));
    EXPECT_EQ(life_of<Buttons>(), expected_life("Buttons"));
}

// The address sanitizer tells of leaks and of blocks freed twice.
TEST_F(Life, EndFreesNameAndSurfaces) {
    Boxs box;
    box.Name_Set(L"name");
    box.Dim_X = box.Dim_Y = 8;
    box.Alloc_Graph_Normal(1);
    box.Alloc_Graph_Select(2);
    EXPECT_NE(box.Graph_Normal, box.Graph_Select);
}

TEST_F(Life, OneSurfaceForBothLooksIsFreedOnce) {
    Buttons button;
    button.Dim_X = button.Dim_Y = 8;
    button.Alloc_Graph_Normal(1);
    button.Graph_Select = button.Graph_Normal;
    button.Init(recorder::window());
}

// A copy names what its source names. Before it ends, it lets go of what the two may not both free.
void let_go(Tools& copy) { copy.W_Name = nullptr, copy.Graph_Normal = copy.Graph_Select = nullptr; }

template <typename Control>
void fill(Control& control) {
    control.Flag = TEXT_LEFT;
    control.Pos_X = 3, control.Pos_Y = 4, control.Dim_X = 30, control.Dim_Y = 20;
    control.Font_Name = "times", control.Font_Weight = "bold", control.Font_Slant = "i";
    control.Font_Size = 9, control.User_Int = 77, control.User_Ptr = &control;
    control.Color = Colors(1, 2, 3, 4), control.Color_Alt = Colors(5, 6, 7, 8);
    control.Clip_X = 1, control.Clip_Y = 2, control.Clip_Dim_X = 100, control.Clip_Dim_Y = 50;
    control.Border = 2;
    control.Name_Set(L"name");
    control.Alloc_Graph_Normal(0x111111);
    control.Init(recorder::window());
}

template <typename Control>
void expect_same_fields(const Control& a, const Control& b) {
    EXPECT_EQ(a.Flag, b.Flag);
    EXPECT_EQ(a.Pos_X, b.Pos_X);
    EXPECT_EQ(a.Pos_Y, b.Pos_Y);
    EXPECT_EQ(a.Dim_X, b.Dim_X);
    EXPECT_EQ(a.Dim_Y, b.Dim_Y);
    EXPECT_EQ(a.Font_Name, b.Font_Name);
    EXPECT_EQ(a.Font_Weight, b.Font_Weight);
    EXPECT_EQ(a.Font_Slant, b.Font_Slant);
    EXPECT_EQ(a.Font_Size, b.Font_Size);
    EXPECT_EQ(a.User_Int, b.User_Int);
    EXPECT_EQ(a.User_Ptr, b.User_Ptr);
    EXPECT_EQ(a.Color.get(), b.Color.get());
    EXPECT_EQ(a.Color_Alt.get(), b.Color_Alt.get());
    EXPECT_EQ(a.Clip_X, b.Clip_X);
    EXPECT_EQ(a.Clip_Y, b.Clip_Y);
    EXPECT_EQ(a.Clip_Dim_X, b.Clip_Dim_X);
    EXPECT_EQ(a.Clip_Dim_Y, b.Clip_Dim_Y);
    EXPECT_EQ(a.Graph_Normal, b.Graph_Normal);
    EXPECT_EQ(a.Graph_Select, b.Graph_Select);
    EXPECT_EQ(a.Image_Normal, b.Image_Normal);
    EXPECT_EQ(a.Image_Select, b.Image_Select);
    EXPECT_EQ(a.Border, b.Border);
    EXPECT_EQ(a.Wnd, b.Wnd);
    EXPECT_EQ(std::memcmp(&a.Region, &b.Region, sizeof a.Region), 0);
    EXPECT_EQ(a.W_Name, b.W_Name);
    EXPECT_EQ(a.test, b.test);
    EXPECT_EQ(a.Old_Color, b.Old_Color);
    EXPECT_EQ(a.Old_Dim_X, b.Old_Dim_X);
    EXPECT_EQ(a.Old_Dim_Y, b.Old_Dim_Y);
    EXPECT_EQ(a.Old_Border, b.Old_Border);
    EXPECT_EQ(a.Old_Graph_Normal, b.Old_Graph_Normal);
    EXPECT_EQ(a.Old_Graph_Select, b.Old_Graph_Select);
}

TEST_F(Life, CopiesOfABoxShareEverything) {
    Boxs source;
    fill(source);
    source.select = 2, source.Box_Slot_A = &source, source.Box_Slot_B = this;
    Boxs assigned;
    recorder::clear();
    Boxs copy(source);
    assigned = source;
    EXPECT_EQ(recorder::text(recorder::kReport), ""); // copies take no trace
    for (Boxs* other : {&copy, &assigned}) {
        expect_same_fields(*other, source);
        EXPECT_EQ(other->select, 2);
        EXPECT_EQ(other->Box_Slot_A, source.Box_Slot_A);
        EXPECT_EQ(other->Box_Slot_B, source.Box_Slot_B);
        EXPECT_EQ(other->Box_Normal, source.Box_Normal);
        EXPECT_EQ(other->Box_Select, source.Box_Select);
        let_go(*other);
    }
}

TEST_F(Life, CopiesOfAButtonShareEverything) {
    Buttons source;
    fill(source);
    source.Cur_Value = 5, source.Lamp_Color = 2, source.Shown = 8, source.select = 1, source.Old_Value = 9;
    Buttons assigned;
    recorder::clear();
    Buttons copy(source);
    assigned = source;
    EXPECT_EQ(recorder::text(recorder::kReport), "");
    for (Buttons* other : {&copy, &assigned}) {
        expect_same_fields(*other, source);
        EXPECT_EQ(other->Cur_Value, 5);
        EXPECT_EQ(other->Lamp_Color, 2u);
        EXPECT_EQ(other->Shown, 8);
        EXPECT_EQ(other->select, 1);
        EXPECT_EQ(other->Old_Value, 9u);
        EXPECT_EQ(other->Image_Normal_Off, source.Image_Normal_Off);
        EXPECT_EQ(other->Image_Normal_On, source.Image_Normal_On);
        EXPECT_EQ(other->Image_Select_Off, source.Image_Select_Off);
        EXPECT_EQ(other->Image_Select_On, source.Image_Select_On);
        EXPECT_EQ(other->Own_Normal_Off, source.Own_Normal_Off);
        EXPECT_EQ(other->Own_Normal_On, source.Own_Normal_On);
        EXPECT_EQ(other->Own_Select_Off, source.Own_Select_Off);
        EXPECT_EQ(other->Own_Select_On, source.Own_Select_On);
        let_go(*other);
    }
}

TEST_F(Life, CopiesOfALabelShareEverything) {
    Labels source;
    fill(source);
    Labels assigned;
    recorder::clear();
    Labels copy(source);
    assigned = source;
    EXPECT_EQ(recorder::text(recorder::kReport), "");
    for (Labels* other : {&copy, &assigned}) {
        expect_same_fields(*other, source);
        let_go(*other);
    }
}

// Generated faces are counted: whoever ends first, the others can still show theirs.
template <typename Control>
void faces_outlive(bool source_first) {
    auto* source = new Control;
    source->Dim_X = 30, source->Dim_Y = 20;
    source->Init(recorder::window());
    auto* copy = new Control(*source);
    Control third;
    third = *copy;
    const Control& itself = third;
    third = itself;
    delete (source_first ? source : copy);
    auto* left = source_first ? copy : source;
    left->Draw();
    third.Draw();
    left->Init(recorder::window()); // builds new ones for this one alone
    third.Draw();
    left->Draw();
    delete left;
    third.Draw();
}
TEST_F(Life, GeneratedFacesOutliveTheFirstOfTheirOwners) {
    faces_outlive<Boxs>(true);
    faces_outlive<Boxs>(false);
    faces_outlive<Buttons>(true);
    faces_outlive<Buttons>(false);
}

TEST_F(Life, FreeGivesNull) {
    Tools tools;
    EXPECT_EQ(tools.Free(std::malloc(5)), nullptr);
    EXPECT_EQ(tools.Free(nullptr), nullptr);
}

TEST_F(Life, ColourAccessors) {
    Tools tools;
    tools.Color = Colors(300, -5, 128, 9);
    EXPECT_EQ(tools.Color_Get(), 0x098000FFu);
    tools.Color_Set(0xAABBCCDDu);
    EXPECT_EQ(tools.Color_Get(), 0x09BBCCDDu); // A stays
    tools.Color_Set(Colors(1, 2, 3, 4));
    EXPECT_EQ(tools.Color_Get(), 0x09030201u); // A stays
    using byte = unsigned char;
    tools.Color_Set(byte(4), byte(5), byte(6));
    EXPECT_EQ(tools.Color_Get(), 0x00060504u); // A becomes 0
    recorder::clear();
    tools.Color_Get();
    tools.Color_Set(1u);
    tools.Free(nullptr);
    EXPECT_EQ(recorder::text(), ""); // accessors take no trace
}

} // namespace
