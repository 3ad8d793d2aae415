#ifndef BENCH_PEERS_FLTK_SCENE_H
#define BENCH_PEERS_FLTK_SCENE_H

#include <FL/Fl.H>
#include <FL/Fl_Button.H>
#include <FL/Fl_Window.H>

#include "layout.h"

// The grid in FLTK.
namespace fltk_scene {

class Window;

class Button : public Fl_Button {
  public:
    Button(int x, int y) : Fl_Button(x, y, layout::button_width, layout::button_height) {}
    int handle(int event) override;
    void draw() override;
};

class Window : public Fl_Window {
  public:
    Window() : Fl_Window(layout::window_width, layout::window_height, "bench") {
        Fl::set_font(FL_HELVETICA, " Liberation Sans"); // the blank means neither bold nor slanted
        for (int i = 0; i < layout::count; i++) {
            const layout::Place at = layout::corner(i);
            Button* button = new Button(at.x, at.y);
            button->copy_label(layout::label(i).text);
            button->labelsize(layout::text_pixels);
        }
        end();
    }
    void draw() override {
        Fl_Window::draw();
        painted = true;
    }
    // Every button, without the background, as the work asks.
    void draw_all() {
        for (int i = 0; i < children(); i++)
            static_cast<Button*>(child(i))->draw();
    }
    void move(layout::Place at) {
        Fl::e_x = Fl::e_x_root = at.x;
        Fl::e_y = Fl::e_y_root = at.y;
        Fl::handle(FL_MOVE, this);
        Fl::flush();
    }

    long drawn = 0; // buttons painted
    bool painted = false;
};

inline int Button::handle(int event) {
    if (event != FL_ENTER && event != FL_LEAVE) return Fl_Button::handle(event);
    color(event == FL_ENTER ? FL_RED : FL_BACKGROUND_COLOR);
    redraw();
    return 1;
}

inline void Button::draw() {
    static_cast<Window*>(parent())->drawn++;
    Fl_Button::draw();
}

} // namespace fltk_scene

#endif
