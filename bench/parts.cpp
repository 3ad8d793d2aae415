// Single costs, each beside what the machine itself takes for the same bytes.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include <brask/fenn.h>

#include "scene.h"

namespace {

// A trace as every operation of a control makes it, with nobody listening.
void unheard_report(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(
            Error_Fct(hwnd, 0x90000029, ">>> in  Lib_Brask: Buttons::Select(%ls)", L"Button 000"));
}
BENCHMARK(unheard_report);

void bytes(benchmark::State& state, int width, int height) {
    state.SetBytesProcessed(state.iterations() * width * height * static_cast<int>(sizeof(DWORD)));
}

// A face comes in a block of its own, so the block is taken and given back on both sides.
void shaded_face(benchmark::State& state, int width, int height) {
    Tools control;
    control.Dim_X = width;
    control.Dim_Y = height;
    for (auto _ : state)
        std::free(control.Inside_3D(Colors(170, 170, 170)));
    bytes(state, width, height);
}

void fresh_memset(benchmark::State& state, int width, int height) {
    const std::size_t size = sizeof(DWORD) * width * height;
    for (auto _ : state) {
        void* block = std::malloc(size);
        std::memset(block, 0xAA, size);
        benchmark::DoNotOptimize(block);
        benchmark::ClobberMemory();
        std::free(block);
    }
    bytes(state, width, height);
}

void image_to_window(benchmark::State& state, int width, int height) {
    const std::vector<DWORD> image(static_cast<std::size_t>(width) * height, 0x808080);
    Zeb_setup(scene::window(), "bench");
    for (auto _ : state)
        draw_image(reinterpret_cast<const char*>(image.data()), 0, 0, 0, 0, width, height, width, height, 0);
    Zeb_release();
    bytes(state, width, height);
}

void plain_memcpy(benchmark::State& state, int width, int height) {
    const std::size_t size = static_cast<std::size_t>(width) * height;
    const std::vector<DWORD> from(size, 0x808080);
    std::vector<DWORD> to(size);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), size * sizeof(DWORD));
        benchmark::ClobberMemory();
    }
    bytes(state, width, height);
}

// A button's face stays in the cache of the processor, a window's does not.
#define IN_TWO_SIZES(work)                                                                                   \
    BENCHMARK_CAPTURE(work, button, layout::button_width, layout::button_height);                            \
    BENCHMARK_CAPTURE(work, window, layout::window_width, layout::window_height)
IN_TWO_SIZES(shaded_face);
IN_TWO_SIZES(fresh_memset);
IN_TWO_SIZES(image_to_window);
IN_TWO_SIZES(plain_memcpy);

} // namespace

BENCHMARK_MAIN();
