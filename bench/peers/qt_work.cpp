// The same work with Qt 6 Widgets on its off-screen platform, which paints into memory.
//
// Full repaint: a shown window's repaint(), which goes straight into its backing store: that is faster than
// rendering the widgets into an image of one's own. Pointer moves: as the platform's plug-in delivers them.

#include "busy.h"
#include "qt_scene.h"

namespace {

qt_scene::Window* window;

void full_repaint(benchmark::State& state) {
    window->drawn = 0;
    busy::measure(state, 1, [] { window->repaint(); });
    if (window->drawn != state.iterations() * layout::count)
        state.SkipWithError("a repaint has to paint every button");
}
BENCHMARK(full_repaint)->UseManualTime();

void full_render(benchmark::State& state) {
    QImage image(layout::window_width, layout::window_height, QImage::Format_RGB32);
    busy::measure(state, 1, [&] { window->render(&image); });
}
BENCHMARK(full_render)->UseManualTime();

void pointer_moves(benchmark::State& state) {
    window->drawn = 0;
    long step = 0;
    busy::measure(state, 1, [&] { window->move(layout::middle(layout::visited(step++))); });
    if (window->drawn < state.iterations() * 19 / 10)
        state.SkipWithError("each move has two buttons to paint");
}
BENCHMARK(pointer_moves)->Iterations(10000)->UseManualTime();

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qt_scene::Window shown;
    window = &shown;
    shown.show();
    QCoreApplication::processEvents();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
