// The same console with FLTK under an X server that has no screen (Xvfb): its browser, which is its widget
// for logs, and an input for what is typed. The server is waited for once in ten pieces of work.

#include <FL/Fl.H>
#include <FL/Fl_Browser.H>
#include <FL/Fl_Double_Window.H>
#include <FL/Fl_Input.H>
#include <FL/x.H>

#include "busy.h"
#include "console_layout.h"

namespace {

constexpr int batch = 10;
constexpr int input_height = 2 * console_layout::text_pixels;

class Log : public Fl_Browser {
  public:
    Log() : Fl_Browser(0, 0, console_layout::width, console_layout::height) {
        textsize(console_layout::text_pixels);
    }
    void write(long number) {
        add(console_layout::line(number).text);
        if (size() > console_layout::kept) remove(1);
    }
    void fill() {
        for (long i = 0; i < console_layout::lines; i++)
            write(i);
    }
    void draw() override {
        painted++;
        Fl_Browser::draw();
    }
    long painted = 0;
};

class Window : public Fl_Window {
  public:
    Window()
        : Fl_Window(console_layout::width, console_layout::height + input_height, "bench"), log(*new Log),
          input(*new Fl_Input(0, console_layout::height, console_layout::width, input_height)) {
        Fl::set_font(FL_HELVETICA, " Liberation Sans"); // the blank means neither bold nor slanted
        input.textsize(console_layout::text_pixels);
        end();
    }
    void open() {
        show();
        wait_for_expose();
        while (Fl::wait(0.05) > 0) {
        }
    }
    // Work with a paint after each piece of it.
    template <typename Work>
    void measure(benchmark::State& state, Work work) {
        long step = 0;
        busy::measure(state, batch, [&] {
            for (int i = 0; i < batch; i++) {
                work(step++);
                Fl::flush();
            }
            XSync(fl_display, False);
        });
    }
    Log& log;
    Fl_Input& input;
};

void lines_painted(benchmark::State& state) {
    Window window;
    window.open();
    window.log.painted = 0;
    window.measure(state, [&](long step) {
        window.log.write(step);
        window.log.bottomline(window.log.size());
    });
    if (window.log.painted < state.iterations()) state.SkipWithError("each line has to be painted");
}
BENCHMARK(lines_painted)->Iterations(console_layout::lines)->UseManualTime();

void lines_hidden(benchmark::State& state) {
    Window window;
    long number = 0;
    busy::measure(state, 1, [&] { window.log.write(number++); });
}
BENCHMARK(lines_hidden)->Iterations(console_layout::lines)->UseManualTime();

void wheel_steps(benchmark::State& state) {
    Window window;
    window.log.fill();
    window.open();
    window.log.bottomline(window.log.size());
    Fl::flush();
    Fl::e_x = Fl::e_y = Fl::e_x_root = Fl::e_y_root = 100;
    window.log.painted = 0;
    window.measure(state, [&](long step) {
        Fl::e_dy = console_layout::goes_up(step) ? -1 : 1;
        Fl::handle(FL_MOUSEWHEEL, &window);
    });
    if (window.log.painted < state.iterations() * 9 / 10) state.SkipWithError("each step has to be painted");
}
BENCHMARK(wheel_steps)->UseManualTime();

void keys_typed(benchmark::State& state) {
    Window window;
    window.open();
    window.input.take_focus();
    long steps = 0;
    window.measure(state, [&](long step) {
        const char typed = console_layout::typed(step);
        char text[2] = {typed, '\0'};
        Fl::e_text = text;
        Fl::e_length = typed ? 1 : 0;
        Fl::e_keysym = typed ? typed : FL_BackSpace;
        Fl::e_state = 0;
        window.input.handle(FL_KEYBOARD);
        steps = step + 1;
    });
    if (window.input.size() != (steps % 120 < 60 ? steps % 120 : 120 - steps % 120))
        state.SkipWithError("not all of it was typed");
}
BENCHMARK(keys_typed)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
