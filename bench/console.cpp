// A console of 800 by 600 with a vertical slider: lines written with a paint for each and without any, a
// wheel's step, a key.

#include <brask/texts.h>

#include "busy.h"
#include "scene.h"

namespace {

class Log {
  public:
    explicit Log(DWORD flag) {
        console.Dim_X = 800;
        console.Dim_Y = 600;
        console.Flag = TEXTS_CURSOR_V | flag;
        console.Init(scene::make_window(DefWindowProcW));
        console.Draw();
    }
    // 60 characters, each line another one.
    void write(long number) {
        console.Write("%6ld: the quick brown fox jumps over the lazy dog, %9ld", number, number * 7919);
    }
    // As many lines as the comparison has.
    void fill() {
        for (long i = 0; i < 20000; i++)
            write(i);
    }
    Texts console;
};

void lines(benchmark::State& state, DWORD flag) {
    Log log(flag);
    long number = 0;
    busy::measure(state, 1, [&] { log.write(number++); });
    if (!log.console.Lines || !log.console.Lines[19]) state.SkipWithError("lines are missing");
}
void lines_painted(benchmark::State& state) { lines(state, 0); }
BENCHMARK(lines_painted)->Iterations(20000)->UseManualTime();
void lines_hidden(benchmark::State& state) { lines(state, OUTIL_INVISIBLE); }
BENCHMARK(lines_hidden)->Iterations(20000)->UseManualTime();

// Up and down again, so that every step moves.
void wheel_steps(benchmark::State& state) {
    Log log(0);
    log.fill();
    long step = 0;
    busy::measure(state, 1, [&] { log.console.Scroll(step++ % 2000 < 1000 ? -1 : 1); });
    if (!(log.console.Cursor_V.Val_Max > 0)) state.SkipWithError("there is nothing to scroll");
}
BENCHMARK(wheel_steps)->UseManualTime();

// Sixty characters, then they are taken away again.
void keys_typed(benchmark::State& state) {
    Log log(0);
    log.fill();
    log.console.Read(static_cast<const char*>(nullptr));
    long step = 0;
    busy::measure(state, 1, [&] {
        log.console.Input(step % 120 < 60 ? 'a' + static_cast<int>(step % 26) : 8);
        step++;
    });
    if (!log.console.Edit_Line[0] && step % 120) state.SkipWithError("nothing was typed");
}
BENCHMARK(keys_typed)->UseManualTime();

} // namespace

BENCHMARK_MAIN();
