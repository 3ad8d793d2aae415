// The two pieces of work that are compared with other toolkits.

#include "busy.h"
#include "scene.h"

namespace {

scene::Grid& grid() {
    static scene::Grid grid(scene::make_window(DefWindowProcW));
    return grid;
}

void full_repaint(benchmark::State& state) {
    scene::Grid& work = grid();
    busy::measure(state, 1, [&] { work.draw(); });
}
BENCHMARK(full_repaint)->UseManualTime();

void pointer_moves(benchmark::State& state) {
    scene::Grid& work = grid();
    work.draw();
    long step = 0;
    busy::measure(state, 1, [&] {
        const layout::Place at = layout::middle(layout::visited(step++));
        work.move(at.x, at.y);
    });
    if (work.selected() != 1)
        state.SkipWithError("the pointer is on one button, but another number of them shows it");
}
BENCHMARK(pointer_moves)->Iterations(10000)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
