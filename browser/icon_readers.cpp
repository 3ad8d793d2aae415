#include "browser/icon_readers.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <iterator>
#include <memory>

#include <brask/fenn.h>

#include "foundation/faces.h"
#include "foundation/picture_file.h"
#include "foundation/trace.h"

namespace brask {

namespace {

constexpr unsigned REPORT_ICON = 0x80000005;
constexpr unsigned REPORT_ERROR = 2;
constexpr char SOURCE[] = "icon";

constexpr int CHANNELS = 4; // of an entry's pixels

struct Reader {
    const char* name;
    const char* wanted; // what a file must hold
    bool tells_once;    // only the first file that cannot be opened is told
    bool told;
    wchar_t folder[PATH_ROOM]; // of the icons, from the first use on; empty while there is none
};
Reader rgb_reader = {"Icon_Read_RGB", "RGBA", true, false, {}};
Reader tga_reader = {"Icon_Read_TGA", "RGB", false, false, {}};

const wchar_t* folder_of(Reader& reader) {
    constexpr wchar_t ICONS[] = L"Icons\\";
    const bool known =
        W_Inst_Path && *W_Inst_Path && std::wcslen(W_Inst_Path) + std::size(ICONS) <= PATH_ROOM;
    if (!reader.folder[0] && known) std::wcscpy(reader.folder, Picture_Path(W_Inst_Path, ICONS).text);
    return reader.folder;
}

// --- Reports. Those in colour are made for a console: marks choose its fonts and colours. -----------------

void tell_unreadable(Reader& reader, const wchar_t* path, int reason, int line) {
    const bool silent = reader.tells_once && reader.told;
    reader.told = true;
    if (silent) return;
    constexpr std::size_t ROOM = sizeof Kelvar_Err_Str / sizeof *Kelvar_Err_Str;
    std::wcsncpy(Kelvar_Err_Str, Error_Perror(reason), ROOM - 1);
    Kelvar_Err_Str[ROOM - 1] = 0;
    Error_Fct(hwnd, REPORT_WARNING, "%hs() File:%hs Line:%d ", reader.name, SOURCE, line);
    Error_Fct(hwnd, REPORT_ERROR, L"\u00F1\x05WARNING:\x02 Unable to open \x01%ls", path);
    Error_Fct(hwnd, REPORT_ERROR, L"\u00F1\t %ls", Kelvar_Err_Str);
}

void tell_other_form(const Reader& reader, const wchar_t* path, int line) {
    Error_Fct(hwnd, REPORT_WARNING, "%hs() File:%hs Line:%d", reader.name, SOURCE, line);
    Error_Fct(hwnd, REPORT_WARNING, "%ls should be %hs", path, reader.wanted);
}

void tell_no_memory(const Reader& reader, const wchar_t* path) {
    Error_Fct(hwnd, REPORT_WARNING, "%hs(%ls) failed in new", reader.name, path);
}

// --- Pixels -----------------------------------------------------------------------------------------------

// Zeroed; null when memory fails and for more pixels than any icon has.
Block<BYTE> block(std::int64_t pixels, int channels) {
    if (pixels > MOST_PIXELS) return nullptr;
    return Block<BYTE>(static_cast<BYTE*>(std::calloc(
        static_cast<std::size_t>(std::max<std::int64_t>(pixels, 1)), static_cast<std::size_t>(channels))));
}

std::int64_t pixels_of(int width, int height) {
    return std::int64_t{std::max(width, 0)} * std::max(height, 0);
}

// Both blocks or none.
bool make_room(Icon_Entry& entry, int width, int height) {
    const std::int64_t count = pixels_of(width, height);
    Block<BYTE> data = block(count, CHANNELS), swapped = block(count, CHANNELS);
    if (!data || !swapped) return false;
    entry.Dim_X = width;
    entry.Dim_Y = height;
    entry.Data = data.release();
    entry.Data_Swap = swapped.release();
    return true;
}

void set_pixel(Icon_Entry& entry, std::int64_t at, BYTE blue, BYTE green, BYTE red, BYTE alpha) {
    const BYTE plain[CHANNELS] = {blue, green, red, alpha};
    const BYTE swapped[CHANNELS] = {red, green, blue, alpha};
    std::copy_n(plain, CHANNELS, entry.Data + at * CHANNELS);
    std::copy_n(swapped, CHANNELS, entry.Data_Swap + at * CHANNELS);
}

// --- .rgb: the drawing layer reads it. Its fourth channel is transparency ---------------------------------

void take_pixels(Icon_Entry& entry, const BYTE* from) {
    const std::int64_t count = pixels_of(entry.Dim_X, entry.Dim_Y);
    for (std::int64_t at = 0; at < count; at++, from += CHANNELS)
        set_pixel(entry, at, from[0], from[1], from[2], static_cast<BYTE>(255 - from[3]));
}

// --- .tga: uncompressed, without anything between the header and the pixels -------------------------------

struct Closed {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closed>;

constexpr int TGA_CHANNELS = 3;

struct Tga_Header {
    int width, height, depth;
};

// A header that is cut short has no depth.
Tga_Header read_header(std::FILE* file) {
    BYTE bytes[18];
    if (std::fread(bytes, sizeof bytes, 1, file) != 1) return {0, 0, 0};
    return {bytes[12] + 256 * bytes[13], bytes[14] + 256 * bytes[15], bytes[16]};
}

// Blue alone is the key: the more of it, the more transparent is the pixel.
void take_keyed(Icon_Entry& entry, std::int64_t at, const BYTE* from) {
    const bool key = from[1] == 0 && from[2] == 0;
    set_pixel(entry, at, key ? 0 : from[0], from[1], from[2], key ? static_cast<BYTE>(255 - from[0]) : 255);
}

// The file has its lowest row first.
void take_turned(Icon_Entry& entry, const BYTE* from) {
    for (int row = 0; row < entry.Dim_Y; row++) {
        const std::int64_t to = std::int64_t{entry.Dim_Y - 1 - row} * entry.Dim_X;
        for (int column = 0; column < entry.Dim_X; column++, from += TGA_CHANNELS)
            take_keyed(entry, to + column, from);
    }
}

} // namespace

bool read_rgb(Icon_Entry& entry, const wchar_t* name) {
    Reader& reader = rgb_reader;
    const Picture_Path path(folder_of(reader), name);
    Error_Fct(hwnd, REPORT_ICON, "%hs(%ls)", reader.name, path.text);
    const Picture_File file(IGB_Read_Image, path);
    if (!file.there()) {
        tell_unreadable(reader, path.text, errno, __LINE__);
        return false;
    }
    if (file.data().Channels != CHANNELS || file.without_pixels()) {
        tell_other_form(reader, path.text, __LINE__);
        return false;
    }
    if (!make_room(entry, file.data().Dim_X, file.data().Dim_Y)) {
        tell_no_memory(reader, path.text);
        return false;
    }
    take_pixels(entry, file.data().Data);
    return true;
}

bool read_tga(Icon_Entry& entry, const wchar_t* name) {
    Reader& reader = tga_reader;
    const Picture_Path path(folder_of(reader), name);
    const File file(_wfopen(path.text, L"rb"));
    if (!file) {
        tell_unreadable(reader, path.text, errno, __LINE__);
        return false;
    }
    const Tga_Header header = read_header(file.get());
    if (header.depth != TGA_CHANNELS * 8) {
        tell_other_form(reader, path.text, __LINE__);
        return false;
    }
    const Block<BYTE> work = block(pixels_of(header.width, header.height), TGA_CHANNELS);
    if (!work || !make_room(entry, header.width, header.height)) {
        tell_no_memory(reader, path.text);
        return false;
    }
    const std::size_t size = static_cast<std::size_t>(pixels_of(header.width, header.height));
    // What a file that is cut short does not hold is black.
    [[maybe_unused]] const std::size_t held = std::fread(work.get(), TGA_CHANNELS, size, file.get());
    take_turned(entry, work.get());
    return true;
}

} // namespace brask
