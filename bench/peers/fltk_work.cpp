// The same work with FLTK under an X server that has no screen (Xvfb).
//
// Full repaint: the fastest off-screen way that FLTK has, a pixmap on the server into which the widgets draw
// themselves without a pass through the event queue. The server is waited for only once in ten repaints or
// moves, so that the way to it and back hardly counts.
//
// Pointer moves: a shown single-buffered window, the event goes in where FLTK's own handler puts it, and the
// repaints that it caused are flushed before the next one. FLTK finds the widget under the pointer itself.
// Its buttons have no hover look, so this one asks for a repaint in another colour.

#include <FL/Fl.H>
#include <FL/fl_draw.H>
#include <FL/x.H>

#include "busy.h"
#include "fltk_scene.h"

namespace {

fltk_scene::Window& window() {
    static fltk_scene::Window window;
    static bool shown = false;
    if (!shown) {
        window.show();
        window.wait_for_expose();
        while (Fl::wait(0.05) > 0) {
        }
        shown = true;
    }
    return window;
}

constexpr int batch = 10;

void full_repaint(benchmark::State& state) {
    fltk_scene::Window& work = window();
    const Fl_Offscreen buffer = fl_create_offscreen(layout::window_width, layout::window_height);
    fl_begin_offscreen(buffer);
    busy::measure(state, batch, [&] {
        for (int i = 0; i < batch; i++)
            work.draw_all();
        XSync(fl_display, False);
    });
    fl_end_offscreen();
    fl_delete_offscreen(buffer);
}
BENCHMARK(full_repaint)->UseManualTime();

void moves(benchmark::State& state, int ahead) {
    fltk_scene::Window& work = window();
    work.drawn = 0;
    long step = 0;
    busy::measure(state, ahead, [&] {
        for (int i = 0; i < ahead; i++)
            work.move(layout::middle(layout::visited(step++)));
        XSync(fl_display, False);
    });
    if (work.drawn < state.iterations() * 19 / 10) state.SkipWithError("each move has two buttons to paint");
}
void pointer_moves(benchmark::State& state) { moves(state, 1); }
void pointer_moves_ahead(benchmark::State& state) { moves(state, batch); }
BENCHMARK(pointer_moves)->Iterations(10000)->UseManualTime();
BENCHMARK(pointer_moves_ahead)->Iterations(10000)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
