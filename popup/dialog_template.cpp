#include "popup/dialog_template.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace brask {

namespace {

// A block of memory that is written from its start; nothing in it need be aligned.
class Writer {
  public:
    explicit Writer(BYTE* block) : at(block) {}
    template <typename Value>
    void put(Value value) {
        std::memcpy(at, &value, sizeof value);
        at += sizeof value;
    }
    // At most `size` bytes, terminator included.
    void put_text(const wchar_t* text, std::size_t size) {
        const std::size_t length = std::min(std::wcslen(text), size / sizeof *text - 1);
        std::memcpy(at, text, length * sizeof *text);
    }

  private:
    BYTE* at;
};

int width_of(int dx) { return dx == 0 ? 300 : std::max(dx, 200); }
int height_of(int dy) { return dy == 0 ? 150 : std::max(dy, 120); }

// The limit holds for the word as the manager will read it, with its sign.
short bounded(long long units, short most) { return std::min(static_cast<short>(units), most); }

} // namespace

void fill_template(BYTE* block, const Template_Wish& wish) {
    constexpr DWORD STYLE = static_cast<DWORD>(WS_POPUP) | static_cast<DWORD>(WS_CAPTION) |
                            static_cast<DWORD>(WS_SYSMENU) | static_cast<DWORD>(WS_THICKFRAME) |
                            static_cast<DWORD>(DS_MODALFRAME);
    constexpr WORD NONE = 0;
    constexpr short EDGE = 10, MOST_WIDE = 750, MOST_HIGH = 550; // dialog units
    constexpr int HELP_WIDTH = 424;                              // quarters of a pixel
    constexpr SIZE_T HEAD_SIZE = 22;
    const int base_x = LOWORD(wish.base), base_y = HIWORD(wish.base);
    const int help_units = wish.help ? HELP_WIDTH / base_x : 0;

    Writer out(block);
    out.put(STYLE);
    out.put(DWORD{0}); // extended style
    out.put(NONE);     // controls: everything inside is painted by the library
    out.put(EDGE);
    out.put(EDGE);
    out.put(bounded(4LL * width_of(wish.dx) / base_x + help_units, MOST_WIDE));
    out.put(bounded(8LL * height_of(wish.dy) / base_y, MOST_HIGH));
    out.put(NONE); // menu
    out.put(NONE); // class
    out.put_text(wish.caption ? wish.caption : L"", TEMPLATE_SIZE - HEAD_SIZE);
}

} // namespace brask
