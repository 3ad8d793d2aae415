#include <brask/color_edit.h>
#include <brask/hue_edit.h>

#include "scarce.h"

// The colour editors when memory runs out.

namespace {

using namespace scarce;

template <typename Editor>
std::string held(const Editor& editor) {
    return name_of(editor) + std::to_string(editor.Cur_Value);
}

void drop(Tools& part) {
    part.W_Name = nullptr;
    part.Graph_Normal = part.Graph_Select = nullptr;
}
void part(Color_Edit& copy) {
    drop(copy.Box_Frame);
    drop(copy.Box_Swatch);
    drop(copy.Button_Mode);
    for (Valuators* bar : {&copy.Val_Red_Hue, &copy.Val_Green_Light, &copy.Val_Blue_Sat})
        drop(*bar);
}
void part(Hue_Edit& copy) {
    drop(copy.Box_Frame);
    drop(copy.Box_Swatch);
    drop(copy.Val_Hue);
}

template <typename Editor>
void set_up(Editor& editor) {
    place(editor);
    editor.Flag = COLOR_MODE_BUTTON;
    editor.Border = 3;
    editor.Cur_Value = 0xFF204080;
}

template <typename Editor>
std::vector<Act<Editor>> acts() {
    return {{"Adjust", [](Editor& e) { e.Cur_Value = 0xFF804020, e.Adjust(); }},
            {"Read", [](Editor& e) { world::point(80, 60), e.Read(); }},
            {"Scroll", [](Editor& e) { world::point(80, 60), e.Scroll(1); }},
            {"another way of mixing", [](Editor& e) { e.Flag |= COLOR_HLS, e.Init(nullptr); }}};
}

TEST(Each_Failure, Color_Edit) { obey<Color_Edit>({set_up, held, part, acts<Color_Edit>()}); }
TEST(Each_Failure, Hue_Edit) { obey<Hue_Edit>({set_up, held, part, acts<Hue_Edit>()}); }

} // namespace
