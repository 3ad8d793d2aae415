#include <cstdlib>
#include <cwchar>

#include <brask/fenn.h>
#include <brask/icons.h>

#include "browser/glyphs.h"
#include "browser/icon_readers.h"
#include "foundation/picture_file.h"

using namespace brask;

// The pictures that have been read, and their painting.

namespace {

// Filled from the front, without gaps; a name without pixels is a file that could not be read.
constexpr int MOST_ICONS = 255;
Icon_Entry cache[MOST_ICONS];

// Steps out of the caller's bracket for the time of a file's reading, and back in. The caller's own clip is
// not known, so the box takes its place.
class Stepped_Out {
  public:
    explicit Stepped_Out(const Boxs* box) : area(box && Zeb_test() ? box : nullptr) {
        if (area) Zeb_release();
    }
    Stepped_Out(const Stepped_Out&) = delete;
    Stepped_Out& operator=(const Stepped_Out&) = delete;
    ~Stepped_Out() {
        if (!area) return;
        Zeb_setup(area->Wnd, "Icon_Read");
        Zeb_set_clip(area->Pos_X, area->Pos_Y, area->Dim_X, area->Dim_Y);
    }

  private:
    const Boxs* area;
};

// The entry of that name, or the free one that it may take; null when there is neither.
Icon_Entry* entry_for(const wchar_t* name) {
    for (Icon_Entry& entry : cache)
        if (!entry.Name || !std::wcscmp(entry.Name, name)) return &entry;
    return nullptr;
}

bool take_name(Icon_Entry& entry, const wchar_t* name) {
    const std::size_t size = (std::wcslen(name) + 1) * sizeof(wchar_t);
    entry.Name = static_cast<wchar_t*>(std::malloc(size));
    if (entry.Name) std::wcscpy(entry.Name, name);
    return entry.Name != nullptr;
}

// Is anything of the picture, or of the line around it, in the box?
bool touches(const Icon_Entry& icon, const Boxs& box, long long x, long long y) {
    const long long left = box.Pos_X, bottom = box.Pos_Y;
    return x + icon.Dim_X >= left && x <= left + box.Dim_X && y + icon.Dim_Y >= bottom &&
           y <= bottom + box.Dim_Y;
}

// The picture, when there is one and it is in the box.
const Icon_Entry* icon_at(const Boxs* box, int x, int y, const wchar_t* name) {
    if (!box) return nullptr;
    const Icon_Entry* icon = static_cast<const Icon_Entry*>(Icon_Read(box, name));
    return icon && touches(*icon, *box, x, y) ? icon : nullptr;
}

} // namespace

void* Icon_Read(const Boxs* box, const wchar_t* name) {
    if (!name) return nullptr;
    Icon_Entry* const entry = entry_for(name);
    if (!entry) return nullptr;
    if (entry->Name) return entry->Data ? entry : nullptr;
    if (!take_name(*entry, name)) return nullptr;
    Stepped_Out stepped_out(box);
    const bool read = is_tga(name) ? read_tga(*entry, name) : read_rgb(*entry, name);
    return read ? entry : nullptr;
}

void Icon_Cleanup() {
    for (Icon_Entry& entry : cache) {
        std::free(entry.Name);
        std::free(entry.Data);
        std::free(entry.Data_Swap);
        entry = {};
    }
}

void Icon_Draw_Image(const Boxs* box, int x, int y, const wchar_t*, const wchar_t* name) {
    const Icon_Entry* const icon = icon_at(box, x, y, name);
    if (!icon) return;
    draw_image(reinterpret_cast<const char*>(icon->Data), x, y, 0, 0, icon->Dim_X, icon->Dim_Y, icon->Dim_X,
               icon->Dim_Y, static_cast<unsigned>(box->Color.get()));
}

void Icon_Draw_Border(const Boxs* box, int x, int y, const wchar_t*, const wchar_t* name) {
    const Icon_Entry* const icon = icon_at(box, x, y, name);
    if (!icon) return;
    const Px left = x, right = left + icon->Dim_X, bottom = y, top = bottom + icon->Dim_Y;
    Zeb_color(WORD_BLACK);
    stroke(left, bottom - 1, right, bottom - 1);
    stroke(right, bottom - 1, right, top);
    Zeb_color(WORD_WHITE);
    stroke(left - 1, top, right, top);
    stroke(left - 1, bottom, left - 1, top);
}
