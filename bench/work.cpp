// The two pieces of work that are compared with other toolkits.

#include <benchmark/benchmark.h>

#include "scene.h"

namespace {

scene::Grid& grid() {
    static scene::Grid grid(scene::make_window(DefWindowProcW));
    return grid;
}

void full_repaint(benchmark::State& state) {
    scene::Grid& work = grid();
    for (auto _ : state)
        work.draw();
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(full_repaint)->UseRealTime();

void pointer_moves(benchmark::State& state) {
    scene::Grid& work = grid();
    work.draw();
    long step = 0;
    for (auto _ : state) {
        const layout::Place at = layout::middle(layout::visited(step++));
        work.move(at.x, at.y);
    }
    if (work.selected() != 1)
        state.SkipWithError("the pointer is on one button, but another number of them shows it");
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(pointer_moves)->Iterations(10000)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
