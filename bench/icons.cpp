// A large picture onto a small control, beside a well-known shrinker of pictures at the same work.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#define STB_IMAGE_RESIZE_IMPLEMENTATION
#include <stb_image_resize.h>

#include <brask/fenn.h>
#include <brask/tools.h>

namespace {

constexpr int SIDE = 2048;

// Of processor time, so that a busy machine tells the same.
double seconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

void big_endian(std::vector<unsigned char>& out, unsigned value, int size) {
    while (size-- > 0)
        out.push_back(static_cast<unsigned char>(value >> (8 * size)));
}

// An .rgb file without packing, of some pattern; removed at the end.
class Large_Picture {
  public:
    Large_Picture()
        : folder(std::filesystem::temp_directory_path().string() + "/"),
          name("brask_bench_" + std::to_string(std::rand()) + ".rgb") {
        std::vector<unsigned char> bytes;
        for (const auto& [value, size] : {std::pair<unsigned, int>{474, 2},
                                          {0, 1},
                                          {1, 1},
                                          {3, 2},
                                          {SIDE, 2},
                                          {SIDE, 2},
                                          {4, 2},
                                          {0, 4},
                                          {255, 4}})
            big_endian(bytes, value, size);
        bytes.resize(512);
        for (int i = 0; i < 4 * SIDE * SIDE; i++)
            bytes.push_back(static_cast<unsigned char>(i * 7 + i / SIDE));
        std::FILE* file = std::fopen((folder + name).c_str(), "wb");
        if (!file) return;
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    ~Large_Picture() { std::remove((folder + name).c_str()); }

    std::wstring path() const {
        return std::wstring(folder.begin(), folder.end()) + std::wstring(name.begin(), name.end());
    }
    bool read(IGB_data& image) const { return IGB_Read_Image(path().c_str(), &image, nullptr) != 0; }

    const std::string folder, name;
};

const Large_Picture& picture() {
    static const Large_Picture large;
    return large;
}

// All that Tools::Icon does but the reading: the same file is read once more without it, and that time taken
// away.
void icon_shrink(benchmark::State& state, int side) {
    Tools control;
    control.Dim_X = control.Dim_Y = side + 9; // the margin
    for (auto _ : state) {
        IGB_data image = {};
        const double start = seconds();
        if (!picture().read(image)) return state.SkipWithError("the picture cannot be read");
        IGB_Free(&image);
        const double middle = seconds();
        DWORD* face = control.Icon(picture().folder.c_str(), picture().name.c_str(), Colors(170, 170, 170));
        const double end = seconds();
        benchmark::DoNotOptimize(face);
        std::free(face);
        state.SetIterationTime(std::max(end - middle - (middle - start), 1e-9));
    }
}

// The picture is there already, and the result is not put onto anything.
void box_filter(benchmark::State& state, int side) {
    IGB_data image = {};
    if (!picture().read(image)) return state.SkipWithError("the picture cannot be read");
    std::vector<unsigned char> to(static_cast<std::size_t>(side) * side * 4);
    for (auto _ : state) {
        const double start = seconds();
        stbir_resize_uint8_generic(image.Data, SIDE, SIDE, 0, to.data(), side, side, 0, 4,
                                   STBIR_ALPHA_CHANNEL_NONE, 0, STBIR_EDGE_CLAMP, STBIR_FILTER_BOX,
                                   STBIR_COLORSPACE_LINEAR, nullptr);
        benchmark::DoNotOptimize(to.data());
        state.SetIterationTime(seconds() - start);
    }
    IGB_Free(&image);
}

#define IN_TWO_SIZES(work)                                                                                   \
    BENCHMARK_CAPTURE(work, small, 64)->UseManualTime()->Unit(benchmark::kMillisecond);                      \
    BENCHMARK_CAPTURE(work, large, 1024)->UseManualTime()->Unit(benchmark::kMillisecond)
IN_TWO_SIZES(icon_shrink);
IN_TWO_SIZES(box_filter);

} // namespace
