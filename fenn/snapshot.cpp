#include <cstddef>
#include <vector>

#include <brask/fenn_host.h>

#include "fenn/system.h"
#include "fenn/window.h"

#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#include <stb_image_write.h>
#pragma GCC diagnostic pop

namespace {

struct Output {
    std::FILE* file;
    bool good;
};

void write_piece(void* context, void* data, int size) {
    Output& output = *static_cast<Output*>(context);
    const std::size_t bytes = static_cast<std::size_t>(size);
    output.good = output.good && std::fwrite(data, 1, bytes, output.file) == bytes;
}

// From words 0x00RRGGBB to the three bytes of a picture file.
std::vector<unsigned char> picture_bytes(const raster::Canvas& canvas) {
    std::vector<unsigned char> bytes;
    bytes.reserve(std::size_t{3} * static_cast<std::size_t>(canvas.width) *
                  static_cast<std::size_t>(canvas.height));
    for (int y = 0; y < canvas.height; ++y) {
        const std::uint32_t* const row = canvas.pixels + std::ptrdiff_t{y} * canvas.pitch;
        for (int x = 0; x < canvas.width; ++x)
            for (int shift = 16; shift >= 0; shift -= 8)
                bytes.push_back(static_cast<unsigned char>(row[x] >> shift));
    }
    return bytes;
}

} // namespace

FENN_API int Fenn_Snapshot(HWND wnd, const wchar_t* file) {
    const fenn::Window* const window = fenn::find_window(wnd);
    if (!window || !window->canvas.pixels) return 0;
    const std::vector<unsigned char> bytes = picture_bytes(window->canvas);
    Output output{fenn::open_file(file, "wb"), true};
    if (!output.file) return 0;
    const int written = stbi_write_png_to_func(write_piece, &output, window->canvas.width,
                                               window->canvas.height, 3, bytes.data(), 0);
    const bool closed = std::fclose(output.file) == 0;
    return written && output.good && closed;
}

FENN_API const DWORD* Fenn_Pixels(HWND wnd, int* width, int* height) {
    const fenn::Window* const window = fenn::find_window(wnd);
    if (!window || !window->canvas.pixels) return nullptr;
    const raster::Canvas& canvas = window->canvas;
    if (width) *width = canvas.width;
    if (height) *height = canvas.height;
    // A surface's spare byte comes along when it is copied, and means nothing here.
    const std::size_t count =
        static_cast<std::size_t>(canvas.pitch) * static_cast<std::size_t>(canvas.height);
    for (std::size_t i = 0; i < count; ++i)
        canvas.pixels[i] &= 0xFFFFFF;
    return reinterpret_cast<const DWORD*>(canvas.pixels);
}
