// The list with FLTK: its browser, which knows the height of its lines, drawn into a pixmap on an X server
// that has no screen (Xvfb). After each step it has only its scrolling noted as damage, so that it paints no
// more than it must. The server is waited for once in ten steps.

#include <FL/Fl.H>
#include <FL/Fl_Browser.H>
#include <FL/Fl_Window.H>
#include <FL/fl_draw.H>
#include <FL/x.H>

#include <string>

#include "busy.h"
#include "layout.h"

namespace {

class Browser : public Fl_Browser {
  public:
    Browser() : Fl_Browser(0, 0, layout::list_width, layout::list_height) {
        textsize(layout::text_pixels);
        for (int i = 0; i < layout::list_rows; i++)
            add(layout::row_label(i).text);
    }
    void paint() {
        draw();
        clear_damage();
    }

  protected:
    int item_height(void*) const override { return layout::list_row; }
    int incr_height() const override { return layout::list_row; }
    void item_draw(void* item, int x, int y, int w, int h) const override {
        drawn++;
        Fl_Browser::item_draw(item, x, y, w, h);
    }

  public:
    mutable long drawn = 0;
};

constexpr int batch = 10;

void list_scroll(benchmark::State& state) {
    static Fl_Window window(layout::list_width, layout::list_height, "bench");
    static Browser* browser = nullptr;
    if (!browser) {
        Fl::set_font(FL_HELVETICA, " Liberation Sans"); // the blank means neither bold nor slanted
        window.begin();
        browser = new Browser;
        window.end();
        window.show();
        window.wait_for_expose();
        while (Fl::wait(0.05) > 0) {
        }
    }
    const Fl_Offscreen buffer = fl_create_offscreen(layout::list_width, layout::list_height);
    fl_begin_offscreen(buffer);
    browser->damage(FL_DAMAGE_ALL);
    browser->paint();
    browser->drawn = 0;
    long step = 0;
    busy::measure(state, batch, [&] {
        for (int i = 0; i < batch; i++) {
            browser->topline(1 + layout::top_row(++step));
            browser->paint();
        }
        XSync(fl_display, False);
    });
    fl_end_offscreen();
    fl_delete_offscreen(buffer);
    if (browser->topline() != 1 + layout::top_row(step)) state.SkipWithError("the list has to scroll");
    if (browser->drawn < step) state.SkipWithError("each step has a row to paint");
    state.SetLabel(std::to_string(browser->drawn / step) + " rows painted a step");
}
BENCHMARK(list_scroll)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
