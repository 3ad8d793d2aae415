#include <brask/popup.h>

#include <cstdio>

#include "foundation/checks.h"
#include "foundation/popup_controls.h"
#include "popup/dialog_template.h"
#include "popup/popup_window.h"

using namespace brask;

namespace {

const wchar_t* const NO_YES[] = {L"No", L"Yes", nullptr};
const wchar_t* const OK[] = {L"OK", nullptr};

constexpr int NO_ANSWER = -1;

int refuse(const char* what, const wchar_t* title) {
    warn(what, "PopUp_Query", title ? title : L"no name");
    return NO_ANSWER;
}

bool can_be_shown(const wchar_t* const* words) {
    int count = 0;
    while (count <= POPUP_BUTTONS && words[count])
        count++;
    return count > 0 && count <= POPUP_BUTTONS;
}

DWORD color_of(const wchar_t* level) {
    constexpr DWORD YELLOW = 0xFFFF, RED = 0xFF, GREY = 0xAAAAAA;
    if (level && begins_like(level, L"warning")) return YELLOW;
    if (level && begins_like(level, L"error")) return RED;
    return GREY;
}

// The controls serve one pop-up at a time.
class Turn {
  public:
    Turn() : mine(!taken) { taken = true; }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() {
        if (mine) taken = false;
    }
    const bool mine;

  private:
    static inline bool taken = false;
};

// A zeroed block of the platform's.
class Block {
  public:
    explicit Block(SIZE_T size) : handle(GlobalAlloc(GPTR, size)) {}
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    ~Block() {
        if (handle) GlobalFree(handle);
    }
    const HGLOBAL handle;
};

int run(const Template_Wish& wish) {
    const Block memory(TEMPLATE_SIZE);
    void* const bytes = memory.handle ? GlobalLock(memory.handle) : nullptr;
    if (!bytes) return NO_ANSWER;
    fill_template(static_cast<BYTE*>(bytes), wish);
    GlobalUnlock(memory.handle);
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(GetActiveWindow(), GWLP_HINSTANCE));
    return static_cast<int>(DialogBoxIndirectParamA(instance, static_cast<LPCDLGTEMPLATEA>(memory.handle),
                                                    GetActiveWindow(), Dialog_Popup_Proc, 0));
}

} // namespace

int PopUp_Query(const wchar_t* level, const wchar_t* title, wchar_t* text, const wchar_t* const* buttons,
                int dx, int dy, const char* help) {
    const Turn turn;
    if (!turn.mine) return refuse("   a pop-up is up already", title);
    const wchar_t* const* words = buttons ? buttons : NO_YES;
    if (!can_be_shown(words)) return refuse("   you must provide 1 to 10 words", title);
    Popup.title = title;
    Popup.body = text;
    Popup.labels = words;
    Popup.color = color_of(level);
    std::snprintf(Popup.help_topic, sizeof Popup.help_topic, "%s", help ? help : "");
    return run({level, dx, dy, help && help[0], GetDialogBaseUnits()});
}

int PopUp_Message(const wchar_t* level, const wchar_t* title, wchar_t* text, int dx, int dy,
                  const char* help) {
    return PopUp_Query(level, title, text, OK, dx, dy, help);
}
