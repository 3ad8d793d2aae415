#include <brask/tools.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <brask/fenn.h>

#include "foundation/picture_file.h"
#include "foundation/pixels.h"
#include "foundation/shrink.h"
#include "foundation/trace.h"

using namespace brask;

// Faces with a picture on them.

namespace {

constexpr int GREY = 1, COLOURED = 4; // numbers of channels
constexpr std::int64_t LEAST_MARGIN = 9;

// A picture with the memory that holds it.
struct Picture {
    Block<unsigned char> memory;
    Pixels pixels = {};
};

bool allocate(Picture& picture, int width, int height, int channels) {
    picture.pixels = {nullptr, width, height, channels};
    const std::size_t size = std::max<std::size_t>(picture.pixels.size(), 1);
    picture.memory.reset(static_cast<unsigned char*>(std::malloc(size)));
    picture.pixels.bytes = picture.memory.get();
    return picture.memory != nullptr;
}

void tell_no_memory(const char* service, int width, int height, int line) {
    Error_Fct(hwnd, REPORT_MEMORY, "line %-4d of %hs \nmemory error in %hs (var=%hs, dim=%dx%d)", line,
              "tools", service, "local_data", width, height);
}

// --- Reading ----------------------------------------------------------------------------------------------

bool usable(const Picture_File& file) {
    const bool known = file.data().Channels == GREY || file.data().Channels == COLOURED;
    return file.there() && known && !file.without_pixels();
}

// The tag tells the reader that failed.
bool read(const wchar_t* folder, const wchar_t* name, Picture& picture, Trace& trace) {
    const Picture_Path path(folder, name);
    const bool tga = is_tga(name);
    const Picture_File file(tga ? TGA_Read_Image : IGB_Read_Image, path);
    if (!usable(file)) return trace.out(tga ? "! TGA_Read_Image" : "! IGB_Read_Image", false);
    const IGB_data& data = file.data();
    const int width = std::max<int>(data.Dim_X, 0), height = std::max<int>(data.Dim_Y, 0);
    if (!allocate(picture, width, height, data.Channels)) {
        tell_no_memory("malloc", width, height, __LINE__);
        return false;
    }
    std::copy_n(data.Data, picture.pixels.size(), picture.pixels.bytes);
    return true;
}

// --- Size -------------------------------------------------------------------------------------------------

constexpr DWORD FULL_X = ICON_LEFT | ICON_RIGHT; // no margin along the axis
constexpr DWORD FULL_Y = ICON_TOP | ICON_BOTTOM;

struct Size {
    std::int64_t width, height;
};

Size room_in(const Tools& control, const Size& surface) {
    const std::int64_t border = control.Border ? std::abs(std::int64_t{control.Border}) : BORDER;
    const std::int64_t margin = std::max(2 * border, LEAST_MARGIN);
    return {surface.width - (control.Flag & FULL_X ? 0 : margin),
            surface.height - (control.Flag & FULL_Y ? 0 : margin)};
}

enum class Fit { FITS, NOTHING, FAILED }; // nothing: there is no room at all; failed: no memory

// Shrinks a picture to the room. One that fits stays as it is: none is enlarged.
Fit fit(Picture& picture, DWORD flag, const Size& room) {
    const Pixels& from = picture.pixels;
    if (room.width >= from.width && room.height >= from.height) return Fit::FITS;
    if (room.width < 1 || room.height < 1) return Fit::NOTHING;
    float scale_x = static_cast<float>(from.width) / static_cast<float>(room.width);
    float scale_y = static_cast<float>(from.height) / static_cast<float>(room.height);
    if (flag & (ICON_KEEP_RATIO | FULL_X | FULL_Y)) scale_x = scale_y = std::max(scale_x, scale_y);
    const int width = cut(1.0f / scale_x * static_cast<float>(from.width));
    const int height = cut(1.0f / scale_y * static_cast<float>(from.height));
    if (width < 1 || height < 1) return Fit::NOTHING;
    Picture smaller;
    const bool done =
        allocate(smaller, width, height, from.channels) && shrink(from, scale_x, scale_y, smaller.pixels);
    if (!done) {
        tell_no_memory("calloc", width, height, __LINE__);
        return Fit::FAILED;
    }
    picture = std::move(smaller);
    return Fit::FITS;
}

// --- Place ------------------------------------------------------------------------------------------------

// The first of `length` pixels in `room`: against the far edge, or one past the middle.
std::int64_t first_of(std::int64_t room, int length, bool far_edge) {
    if (far_edge) return std::max<std::int64_t>(room - length - 2, 0);
    return (room - length) / 2 + 1;
}

DWORD mixed(DWORD picture, DWORD backdrop) {
    const DWORD alpha = picture >> 24;
    DWORD word = 0xFF000000;
    for (int shift = 0; shift < 24; shift += 8) {
        const DWORD over = picture >> shift & 255, under = backdrop >> shift & 255;
        word |= (over * alpha + under * (255 - alpha)) >> 8 << shift;
    }
    return word;
}

// A picture's pixels as they come onto the backdrop: grey ones leave out one value, coloured ones mix by
// their top byte.
struct Grey {
    unsigned char transparent;

    explicit Grey(const Pixels& picture) : transparent(*picture.bytes >= 250 ? *picture.bytes : 0) {}
    void put(const unsigned char* from, DWORD& to) const {
        if (*from != transparent) to = *from * 0x010101u;
    }
};

struct Coloured {
    explicit Coloured(const Pixels&) {}
    void put(const unsigned char* from, DWORD& to) const {
        DWORD word;
        std::memcpy(&word, from, sizeof word);
        const DWORD alpha = word >> 24;
        if (alpha) to = alpha == 255 ? word : mixed(word, to);
    }
};

// What falls outside of the surface is left out.
template <typename Kind>
void compose(const Pixels& picture, std::int64_t left, std::int64_t top, DWORD* surface, const Size& size) {
    const Kind kind(picture);
    const std::int64_t right = std::min(left + picture.width, size.width);
    const std::int64_t bottom = std::min(top + picture.height, size.height);
    for (std::int64_t y = std::max<std::int64_t>(top, 0); y < bottom; y++)
        for (std::int64_t x = std::max<std::int64_t>(left, 0); x < right; x++)
            kind.put(picture.at(static_cast<int>(x - left), static_cast<int>(y - top)),
                     surface[y * size.width + x]);
}

void place(const Pixels& picture, DWORD flag, DWORD* surface, const Size& size) {
    if (!picture.size()) return;
    const std::int64_t left = first_of(size.width, picture.width, flag & ICON_RIGHT);
    const std::int64_t top = first_of(size.height, picture.height, flag & ICON_BOTTOM);
    if (picture.channels == GREY)
        compose<Grey>(picture, left, top, surface, size);
    else
        compose<Coloured>(picture, left, top, surface, size);
}

} // namespace

DWORD* Tools::Icon(const wchar_t* folder, const wchar_t* name, Colors color) {
    Trace trace("Tools::Icon", *this);
    if (Dim_X == 0 || Dim_Y == 0) return trace.out("! dim", nullptr);
    Picture picture;
    if (!read(folder, name, picture, trace)) return nullptr;
    const Size size = {std::max(Dim_X, 1), std::max(Dim_Y, 1)};
    Block<DWORD> surface(Inside_3D(color));
    if (!surface) return nullptr;
    const Fit result = fit(picture, Flag, room_in(*this, size));
    if (result == Fit::FAILED) return nullptr;
    if (result == Fit::FITS) place(picture.pixels, Flag, surface.get(), size);
    return surface.release();
}

DWORD* Tools::Icon(const char* folder, const char* name, Colors color) {
    // The converter has one buffer only.
    const Picture_Path wide_folder(folder ? Char_2_Wchar(folder) : nullptr, nullptr);
    return Icon(wide_folder.text, name, color);
}

DWORD* Tools::Icon(const wchar_t* folder, const char* name, Colors color) {
    return Icon(folder, name ? Char_2_Wchar(name) : static_cast<const wchar_t*>(nullptr), color);
}
