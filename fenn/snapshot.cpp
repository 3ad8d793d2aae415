#include <cstddef>
#include <cstdlib>
#include <new>
#include <vector>

#include <brask/fenn_host.h>

#include "fenn/system.h"
#include "fenn/window.h"
#include "text/guarded.h"

namespace {

// The memory of the writer of PNG files, which knows no failure: one ends the writing, and its blocks go.
class Blocks {
  public:
    Blocks() = default;
    Blocks(const Blocks&) = delete;
    Blocks& operator=(const Blocks&) = delete;
    ~Blocks() {
        while (first)
            give(first + 1);
    }
    void* resize(void* block, std::size_t size) {
        Head* const head =
            static_cast<Head*>(std::realloc(block ? head_of(block) : nullptr, sizeof(Head) + size));
        if (!head) throw std::bad_alloc();
        if (!block) *head = {first, &first};
        *head->link = head;
        if (head->next) head->next->link = &head->next;
        return head + 1;
    }
    void give(void* block) {
        if (!block) return;
        Head* const head = head_of(block);
        *head->link = head->next;
        if (head->next) head->next->link = head->link;
        std::free(head);
    }

  private:
    struct alignas(std::max_align_t) Head {
        Head* next;
        Head** link; // to this one
    };
    static Head* head_of(void* block) { return static_cast<Head*>(block) - 1; }

    Head* first = nullptr;
};
Blocks* blocks = nullptr; // of the picture that is being written

} // namespace

#define STBIW_MALLOC(size) blocks->resize(nullptr, size)
#define STBIW_REALLOC(block, size) blocks->resize(block, size)
#define STBIW_FREE(block) blocks->give(block)
#define STB_IMAGE_WRITE_IMPLEMENTATION
#define STB_IMAGE_WRITE_STATIC
#define STBI_WRITE_NO_STDIO
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"
#include <stb_image_write.h>
#pragma GCC diagnostic pop

namespace {

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

// The picture is whole before the file is touched.
bool write_png(const raster::Canvas& canvas, const wchar_t* path) {
    const std::vector<unsigned char> bytes = picture_bytes(canvas);
    Blocks all;
    blocks = &all;
    int size = 0;
    const unsigned char* const png =
        stbi_write_png_to_mem(bytes.data(), 3 * canvas.width, canvas.width, canvas.height, 3, &size);
    std::FILE* const file = png ? fenn::open_file(path, "wb") : nullptr;
    if (!file) return false;
    const std::size_t length = static_cast<std::size_t>(size);
    const bool written = std::fwrite(png, 1, length, file) == length;
    return (std::fclose(file) == 0) && written;
}

} // namespace

FENN_API int Fenn_Snapshot(HWND wnd, const wchar_t* file) {
    const fenn::Window* const window = fenn::find_window(wnd);
    if (!window || !window->canvas.pixels) return 0;
    return text::guarded(0, [=] { return static_cast<int>(write_png(window->canvas, file)); });
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
