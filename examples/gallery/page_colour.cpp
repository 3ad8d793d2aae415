// The page "Colour": both colour editors, which drive the colour of other controls.
#include <memory>

#include <brask/buttons.h>
#include <brask/color_edit.h>
#include <brask/hue_edit.h>
#include <brask/labels.h>
#include <brask/sliders.h>

#include "page.h"
#include "panel.h"

namespace {

// The three steps in which a host takes a colour; true when it is another one.
template <typename Editor>
bool take_color(Editor& editor, int word) {
    unsigned int before = editor.Cur_Value;
    if (!editor.Select(word)) return false;
    editor.Cur_Value = static_cast<unsigned int>(editor.Read());
    editor.Adjust();
    return editor.Cur_Value != before;
}

class Colour : public Page {
  public:
    Colour() {
        rgb.Flag = OUTIL_CAPTURE | COLOR_MODE_BUTTON;
        rgb.Border = 3;
        rgb.Name_Set(L"Face");
        rgb.Cur_Value = 0xFF60A0D0;
        hls.Flag = OUTIL_CAPTURE | COLOR_MODE_BUTTON | COLOR_HLS;
        hls.Border = 3;
        hls.Name_Set(L"Text");
        hls.Cur_Value = 0xFF803010;
        hue.Flag = OUTIL_CAPTURE;
        hue.Border = 2;
        hue.Name_Set(L"Hue of the face");
        hue.Cur_Value = rgb.Cur_Value;
        box.Name_Set(L"Box");
        button.Name_Set(L"Button");
        lamp.Flag = BUTTON_LAMP | BUTTON_LAMP_COLOR;
        lamp.Lamp_Color = 1;
        lamp.Cur_Value = 1;
        lamp.Name_Set(L"Button, down");
        slider.Flag = OUTIL_CAPTURE;
        slider.Val_Max = 100;
        slider.Cur_Value = 40;
        label.Font_Size = 24;
        label.Name_Set(L"The colour of the text");
    }
    void layout(HWND wnd, const Area& area) override {
        Area inner = area.inset(SPACE);
        Area left = editors.place(wnd, inner.cut_left(inner.width / 2));
        inner.cut_left(SPACE);
        Area right = driven.place(wnd, inner);
        place(rgb, wnd, left.cell(0, 1, 0, 5), left.cell(0, 1, 1, 5));
        place(hls, wnd, left.cell(0, 1, 2, 5), left.cell(0, 1, 3, 5));
        left.cell(0, 1, 4, 5).cut_top(60).give(hue);
        hue.Init(wnd);
        right.cell(0, 1, 0, 5).give(box);
        right.cell(0, 1, 1, 5).inset(12).give(button);
        right.cell(0, 1, 2, 5).inset(12).give(lamp);
        right.cell(0, 1, 3, 5).cut_top(CURSEUR + SPACE).give(slider);
        right.cell(0, 1, 4, 5).give(label);
        paint_driven(wnd);
    }
    void draw() override {
        editors.draw();
        rgb.Draw();
        hls.Draw();
        hue.Draw();
        draw_driven();
    }
    void pointer(int word) override {
        if (take_color(rgb, word)) show_face(rgb.Cur_Value);
        if (take_color(hue, word)) {
            hue.Draw(); // the way back to the colour of the last Draw is none for its Adjust
            show_face(hue.Cur_Value);
        }
        if (take_color(hls, word)) show_text();
        for (Buttons* one : {&button, &lamp})
            if (one->Select(word) && (word & 15) == 2) flip(*one);
        box.Select(word);
        if (slider.Select(word)) {
            slider.Cur_Value = slider.Read();
            slider.Adjust();
        }
    }
    void wheel(int notches) override {
        unsigned int face = rgb.Cur_Value, text = hls.Cur_Value;
        if (rgb.Select(KEY_QUERY)) rgb.Scroll(-notches);
        if (rgb.Cur_Value != face) show_face(rgb.Cur_Value);
        if (hls.Select(KEY_QUERY)) hls.Scroll(-notches);
        if (hls.Cur_Value != text) show_text();
        if (hue.Select(KEY_QUERY)) {
            hue.Scroll(-notches);
            show_face(hue.Cur_Value);
        }
        if (slider.Select(KEY_QUERY)) slider.Scroll(-notches);
    }
    void each(const Visitor& visit) const override {
        editors.each(visit);
        driven.each(visit);
        visit("editor", rgb);
        visit("editor", hls);
        visit("hue", hue);
        visit("box", box);
        visit("button", button);
        visit("button", lamp);
        visit("slider", slider);
        visit("label", label);
    }

  private:
    static void place(Color_Edit& editor, HWND wnd, const Area& upper, const Area& lower) {
        Area whole = {lower.x, lower.y, lower.width, upper.y + upper.height - lower.y};
        whole.give(editor);
        editor.Init(wnd);
    }
    static void flip(Buttons& toggle) {
        toggle.Cur_Value = !toggle.Cur_Value;
        toggle.Adjust();
    }
    // The face's colour goes to every control that has one, and to both editors of it.
    void show_face(unsigned int word) {
        if (rgb.Cur_Value != word) {
            rgb.Cur_Value = word;
            rgb.Adjust();
        }
        if (hue.Cur_Value != word) {
            hue.Cur_Value = word;
            hue.Init(nullptr);
            hue.Draw();
        }
        paint_driven(nullptr);
        draw_driven();
    }
    void show_text() {
        label.Color.set(hls.Cur_Value);
        draw_driven();
    }
    void paint_driven(HWND wnd) {
        for (Tools* one : {static_cast<Tools*>(&box), static_cast<Tools*>(&button),
                           static_cast<Tools*>(&lamp), static_cast<Tools*>(&slider)})
            one->Color.set(rgb.Cur_Value);
        label.Color.set(hls.Cur_Value);
        box.Init(wnd);
        button.Init(wnd);
        lamp.Init(wnd);
        slider.Init(wnd);
        label.Init(wnd);
    }
    void draw_driven() {
        driven.draw();
        box.Draw();
        button.Draw();
        lamp.Draw();
        slider.Draw();
        label.Draw();
    }

    Panel editors{L"Editors"}, driven{L"What they drive"};
    Color_Edit rgb, hls;
    Hue_Edit hue;
    Boxs box;
    Buttons button, lamp;
    Sliders slider;
    Labels label;
};

} // namespace

std::unique_ptr<Page> make_page_colour() { return std::make_unique<Colour>(); }
