#include <brask/color_edit.h>
#include <brask/hue_edit.h>

#include "scenes.h"

namespace {

constexpr unsigned ORANGE = 0xFF2080F0; // red in the low byte

void show_editor(Stage& stage, DWORD flags, int border, const wchar_t* name = nullptr) {
    Color_Edit editor;
    editor.Cur_Value = ORANGE;
    editor.Border = border;
    stage.show(editor, 10, 10, 240, 110, flags, name);
}

// A press on the mode button, and the pointer away again.
void switched(Stage& stage) {
    Color_Edit editor;
    editor.Cur_Value = ORANGE;
    editor.Border = 2;
    stage.show(editor, 10, 10, 240, 110, COLOR_MODE_BUTTON, L"Title");
    stage.point(editor.Button_Mode.Pos_X + 5, 60);
    editor.Select(18);
    stage.point_away();
    editor.Select(0);
}

void moved(Stage& stage) {
    Color_Edit editor;
    editor.Cur_Value = ORANGE;
    editor.Border = 2;
    stage.show(editor, 10, 10, 240, 110);
    editor.Cur_Value = 0xFFC04010;
    editor.Adjust();
}

void show_hue(Stage& stage, DWORD flags, int border, const wchar_t* name = nullptr) {
    Hue_Edit editor;
    editor.Cur_Value = ORANGE;
    editor.Border = border;
    stage.show(editor, 10, 10, 240, 40, flags, name);
}

void hue_on_swatch(Stage& stage) {
    Hue_Edit editor;
    editor.Cur_Value = ORANGE;
    editor.Border = 2;
    stage.show(editor, 10, 10, 240, 40);
    stage.point(editor.Box_Swatch.Pos_X + 10, 30);
    editor.Cur_Value = 0xFFC04010;
    editor.Adjust();
}

} // namespace

const std::vector<Scene> COLOR_SCENES = {
    {"color_rgb", 260, 130, [](Stage& s) { show_editor(s, 0, 2); }},
    {"color_rgb_title", 260, 130, [](Stage& s) { show_editor(s, 0, 2, L"Title"); }},
    {"color_rgb_button", 260, 130, [](Stage& s) { show_editor(s, COLOR_MODE_BUTTON, 2); }},
    {"color_hls", 260, 130, [](Stage& s) { show_editor(s, COLOR_HLS, 2); }},
    {"color_hls_button", 260, 130,
     [](Stage& s) { show_editor(s, COLOR_HLS | COLOR_MODE_BUTTON, 2, L"Title"); }},
    {"color_switched", 260, 130, switched},
    {"color_moved", 260, 130, moved},
    {"color_no_border", 260, 130, [](Stage& s) { show_editor(s, COLOR_MODE_BUTTON, 0); }},
    {"color_wide_border", 260, 130, [](Stage& s) { show_editor(s, 0, 6); }},
    {"color_disabled", 260, 130, [](Stage& s) { show_editor(s, OUTIL_DISABLE | COLOR_MODE_BUTTON, 2); }},
    {"color_hls_disabled", 260, 130, [](Stage& s) { show_editor(s, OUTIL_DISABLE | COLOR_HLS, 2); }},
    {"color_hls_outline", 260, 130, [](Stage& s) { show_editor(s, GRAPH_OUTLINE | COLOR_HLS, 2); }},
    {"color_empty", 260, 130, [](Stage& s) { show_editor(s, OUTIL_EMPTY, 2, L"Title"); }},
    {"color_hidden", 260, 130, [](Stage& s) { show_editor(s, OUTIL_INVISIBLE, 2); }},
    {"color_locked", 260, 130, [](Stage& s) { show_editor(s, VALUATOR_FREZE, 2); }},
    {"color_outline", 260, 130,
     [](Stage& s) { show_editor(s, GRAPH_OUTLINE | COLOR_MODE_BUTTON, 2, L"Title"); }},
    {"hue", 260, 60, [](Stage& s) { show_hue(s, 0, 2); }},
    {"hue_named", 260, 60, [](Stage& s) { show_hue(s, 0, 2, L"Shade"); }},
    {"hue_no_border", 260, 60, [](Stage& s) { show_hue(s, 0, 0); }},
    {"hue_wide_border", 260, 60, [](Stage& s) { show_hue(s, 0, 6); }},
    {"hue_outline", 260, 60, [](Stage& s) { show_hue(s, GRAPH_OUTLINE, 2); }},
    {"hue_empty", 260, 60, [](Stage& s) { show_hue(s, OUTIL_EMPTY, 2); }},
    {"hue_hidden", 260, 60, [](Stage& s) { show_hue(s, OUTIL_INVISIBLE, 2); }},
    {"hue_disabled", 260, 60, [](Stage& s) { show_hue(s, OUTIL_DISABLE, 2); }},
    {"hue_pointer_on_swatch", 260, 60, hue_on_swatch},
};
