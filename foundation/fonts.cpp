#include <brask/fonts.h>

#include <cstring>

#include <brask/fenn.h>

#include "foundation/pixels.h"
#include "foundation/trace.h"
#include "text/unicode.h"

using namespace brask;

namespace {

constexpr unsigned REPORT_FONTS = 0x90004009;
constexpr int SLOTS = 16;
constexpr int NAME_ROOM = 80;
constexpr int DEFAULT_SIZE = 12;
constexpr const char* DEFAULT_NAME = "arial";
constexpr float DESIGN_DPI = 96.0f; // a size is one at 96 dots per inch, whatever the display's scale
constexpr float POINTS_PER_INCH = 72.0f;

// What was asked for, and what came of it. Weight and slant are told apart by their first letters only.
struct Slot {
    HFONT font; // null while empty, and after a failure
    short size;
    char name[NAME_ROOM];
    bool is_default; // the name is the one that a request without a name means
    char weight;
    char slant;
};
Slot slots[SLOTS];
int current = 0;
CRITICAL_SECTION lock;
bool lock_ready = false;

char key_of(const char* word, char standard) { return word && *word ? *word : standard; }

// The section marks itself in the reports, so that its length can be seen among them.
class Locked {
  public:
    Locked() {
        EnterCriticalSection(&lock);
        Error_Fct(hwnd, REPORT_FONTS, L"▼2▼▼▼▼ Fonts ▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼▼");
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() {
        Error_Fct(hwnd, REPORT_FONTS, L"▲2▲▲▲▲ Fonts ▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲▲");
        LeaveCriticalSection(&lock);
    }
};

// Only as much of a name as a slot holds is compared: a longer one must not miss its own slot for ever.
bool matches(const Slot& slot, const char* name, char weight, char slant, int size) {
    if (slot.size != size || slot.weight != weight || slot.slant != slant) return false;
    return name ? !std::strncmp(slot.name, name, NAME_ROOM - 1) : slot.is_default;
}

// The number of the slot that holds the request, newest first; -1 when none does.
int find(const char* name, char weight, char slant, int size) {
    for (int back = 0; back < SLOTS; back++) {
        const unsigned number = static_cast<unsigned>(current + SLOTS - back) % SLOTS;
        if (matches(slots[number], name, weight, slant, size)) return static_cast<int>(number);
    }
    return -1;
}

// The height of a size in the units that fonts are made in.
LONG height_of(HWND wnd, int size) {
    const HDC dc = Zeb_GetDC(wnd, "Zeb_Create_Font");
    SetGraphicsMode(dc, GM_ADVANCED);
    ModifyWorldTransform(dc, nullptr, MWT_IDENTITY);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    const float dpi_x = static_cast<float>(GetDeviceCaps(dc, LOGPIXELSX));
    const float dpi_y = static_cast<float>(GetDeviceCaps(dc, LOGPIXELSY));
    const float points = static_cast<float>(size > 0 ? size : DEFAULT_SIZE);
    const float unit = dpi_x / DESIGN_DPI * POINTS_PER_INCH;
    POINT point = {cut(points * dpi_x / unit), cut(points * dpi_y / unit)};
    DPtoLP(dc, &point, 1);
    Zeb_ReleaseDC(wnd, dc);
    return point.y;
}

// As much of a family's name as has room. Done without the drawing layer's converter, whose one buffer is not
// for several threads.
void name_face(LOGFONTW& font, const char* name) {
    constexpr int room = sizeof font.lfFaceName / sizeof *font.lfFaceName;
    int length = 0;
    while (const char32_t code = text::next(name)) {
        wchar_t units[2];
        const int count = text::put(code, units);
        if (length + count >= room) break;
        for (int i = 0; i < count; i++)
            font.lfFaceName[length++] = units[i];
    }
}

LOGFONTW describe(HWND wnd, const char* name, const char* weight, const char* slant, int size) {
    LOGFONTW font = {};
    const LONG height = height_of(wnd, size);
    font.lfHeight = height < 0 ? height : -height;
    font.lfWeight = weight && !std::strcmp(weight, "bold") ? 700 : 0;
    font.lfItalic = slant && (!std::strcmp(slant, "i") || !std::strcmp(slant, "o"));
    name_face(font, name ? name : "Arial");
    return font;
}

// Recycles the oldest slot for the request.
const Slot& replace_oldest(const char* name, char weight, char slant, int size) {
    current = (current + 1) % SLOTS;
    Slot& slot = slots[current];
    if (slot.font) DeleteObject(slot.font);
    slot = {};
    slot.size = static_cast<short>(size);
    std::strncpy(slot.name, name ? name : DEFAULT_NAME, NAME_ROOM - 1);
    slot.is_default = !std::strcmp(slot.name, DEFAULT_NAME);
    slot.weight = weight;
    slot.slant = slant;
    return slot;
}

} // namespace

HFONT Zeb_Create_Font(HWND wnd, const char* name, const char* weight, const char* slant, int size) {
    Trace trace("Zeb_Create_Font");
    if (!lock_ready) {
        InitializeCriticalSection(&lock);
        lock_ready = true;
    }
    if (!name && !weight && !slant && !size) return trace.out("default", HFONT{});

    LOGFONTW description; // left as it is for a font that is there already: this is asked four times a text
    HFONT font = nullptr;
    int number;
    {
        Locked locked;
        const char weight_key = key_of(weight, 'm'), slant_key = key_of(slant, 'r');
        number = find(name, weight_key, slant_key, size);
        if (number >= 0) return trace.out("old font:", number, slots[number].font);
        replace_oldest(name, weight_key, slant_key, size);
        number = current;
        description = describe(wnd, name, weight, slant, size);
        font = slots[number].font = CreateFontIndirectW(&description);
    }
    if (!font)
        Error_Fct(hwnd, REPORT_WARNING,
                  "WARNING: in Zeb_Create_Font(), Unable to allocate font:(name:%ls height:%d weight:%d )",
                  description.lfFaceName, static_cast<int>(description.lfHeight),
                  static_cast<int>(description.lfWeight));
    return trace.out("new=", number, font);
}
