#include "dialog.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "desktop.h"
#include "input.h"
#include "keys.h"
#include "messages.h"
#include "modal.h"
#include "process.h"
#include "text/guarded.h"
#include "window_state.h"

// Modal dialogs.
namespace platform {

// One that is up. It lives on the stack of the call that runs it.
struct Dialog {
    HWND wnd = nullptr;
    HWND owner = nullptr;
    bool owner_was_enabled = false;
    bool ended = false;
    INT_PTR result = -1;
};

// The innermost last.
static std::vector<Dialog*>& dialogs() {
    static auto& list = *new std::vector<Dialog*>;
    return list;
}

static Dialog* find_dialog(HWND wnd) {
    for (Dialog* dialog : dialogs()) {
        if (dialog->wnd == wnd) return dialog;
    }
    return nullptr;
}

HWND modal_of(HWND wnd) {
    for (const Dialog* dialog : dialogs()) { // an outer one stands before the one that it owns
        if (dialog->owner == wnd && !dialog->ended && find_window(dialog->wnd)) wnd = dialog->wnd;
    }
    return wnd;
}

// --- The template ---

static constexpr LONG kBaseWidth = 8, kBaseHeight = 16;

struct Wish {
    DLGTEMPLATE head;
    std::wstring caption;
};

// Nothing in it need be aligned.
static bool read_template(const DLGTEMPLATE* memory, Wish& wish) {
    if (!memory) return false;
    const auto* at = reinterpret_cast<const BYTE*>(memory);
    std::memcpy(&wish.head, at, sizeof wish.head);
    WORD menu_and_class[2];
    std::memcpy(menu_and_class, at += sizeof wish.head, sizeof menu_and_class);
    if (wish.head.cdit || menu_and_class[0] || menu_and_class[1]) return false;
    at += sizeof menu_and_class;
    for (wchar_t letter;; wish.caption += letter, at += sizeof letter) {
        std::memcpy(&letter, at, sizeof letter);
        if (!letter) return true;
    }
}

// False without memory too: nothing of a dialog asks for any later.
static bool prepare(const DLGTEMPLATE* memory, Wish& wish) {
    return text::guarded(false, [&] {
        dialogs().reserve(dialogs().size() + 1);
        return read_template(memory, wish);
    });
}

static RECT wished_place(const DLGTEMPLATE& head, HWND owner) {
    const auto across = [](LONG units) { return units * kBaseWidth / 4; };
    const auto down = [](LONG units) { return units * kBaseHeight / 8; };
    POINT corner = {across(head.x), down(head.y)};
    if (!(head.style & DS_ABSALIGN)) ClientToScreen(owner, &corner);
    return {corner.x, corner.y, corner.x + std::max<LONG>(across(head.cx), 0),
            corner.y + std::max<LONG>(down(head.cy), 0)};
}

// No larger than what can be seen of it, and all of it in view: nobody could answer it otherwise.
static RECT in_view(RECT place, HWND owner) {
    RECT area;
    if (!desktop_work_area(find_window(owner), &area)) return place;
    const LONG width = std::min(place.right - place.left, area.right - area.left);
    const LONG height = std::min(place.bottom - place.top, area.bottom - area.top);
    const LONG x = std::clamp(place.left, area.left, area.right - width);
    const LONG y = std::clamp(place.top, area.top, area.bottom - height);
    return {x, y, x + width, y + height};
}

// --- The window ---

// A loop that waits learns that its dialog has ended.
static void wake_loops() { PostMessageW(nullptr, WM_NULL, 0, 0); }

static LRESULT default_answer(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message != WM_CLOSE) return DefWindowProcW(wnd, message, wparam, lparam);
    PostMessageW(wnd, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

static LRESULT CALLBACK window_procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_NCDESTROY) wake_loops();
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(wnd, DWLP_DLGPROC));
    const Dialog* dialog = find_dialog(wnd);
    if (!procedure || (dialog && dialog->ended)) return default_answer(wnd, message, wparam, lparam);
    SetWindowLongPtrW(wnd, DWLP_MSGRESULT, 0);
    const INT_PTR answer = procedure(wnd, message, wparam, lparam);
    if (!answer) return default_answer(wnd, message, wparam, lparam);
    return message == WM_INITDIALOG ? answer : GetWindowLongPtrW(wnd, DWLP_MSGRESULT);
}

static ATOM dialog_class() {
    static ATOM atom = 0;
    if (atom) return atom;
    WNDCLASSW type{}; // without double clicks: each press of a quick series counts
    type.lpfnWndProc = window_procedure;
    type.cbWndExtra = 3 * sizeof(LONG_PTR);
    type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    type.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(COLOR_BTNFACE + 1));
    type.lpszClassName = L"#32770";
    return atom = RegisterClassW(&type);
}

// Not shown yet.
static HWND make_window(const Wish& wish, HWND owner, HINSTANCE instance, DLGPROC procedure) {
    const RECT place = in_view(wished_place(wish.head, owner), owner);
    const HWND wnd = CreateWindowExW(wish.head.dwExtendedStyle, MAKEINTRESOURCEW(dialog_class()),
                                     wish.caption.c_str(), wish.head.style & ~static_cast<DWORD>(WS_VISIBLE),
                                     place.left, place.top, place.right - place.left,
                                     place.bottom - place.top, owner, nullptr, instance, nullptr);
    // Its making is not told to the procedure, whose first message is WM_INITDIALOG.
    SetWindowLongPtrW(wnd, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(procedure));
    return wnd;
}

// --- Its life ---

static bool is_up(const Dialog& dialog) { return !dialog.ended && find_window(dialog.wnd); }

static void begin(Dialog& dialog, LPARAM parameter) {
    // The answer is about the focus among controls, and there are none.
    SendMessageW(dialog.wnd, WM_INITDIALOG, 0, parameter);
    if (!is_up(dialog)) return;
    ShowWindow(dialog.wnd, SW_SHOWNORMAL);
    const Window* window = find_window(dialog.wnd);
    if (window && !window->desktop) DestroyWindow(dialog.wnd); // nobody could answer it
}

static bool is_command(const Dialog& dialog, const MSG& msg) {
    if (msg.hwnd != dialog.wnd || msg.message != WM_KEYDOWN) return false;
    if (msg.wParam != VK_RETURN && msg.wParam != VK_ESCAPE) return false;
    SendMessageW(dialog.wnd, WM_COMMAND, msg.wParam == VK_RETURN ? IDOK : IDCANCEL, 0);
    return true;
}

static void run(const Dialog& dialog) {
    MSG msg;
    while (is_up(dialog)) {
        if (GetMessageW(&msg, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(msg.wParam)); // for the loops outside
            return;
        }
        if (is_command(dialog, msg)) continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

// A press that ends the dialog belongs to its window until the release: a desktop whose window vanishes under
// the button never hears of that, and takes the next press for the same one. Everything goes on meanwhile.
static void await_release(const Dialog& dialog) {
    constexpr int kPatience = 5;     // milliseconds
    constexpr ULONGLONG kLost = 200; // so long after the button went up, nobody will tell of it any more
    MSG msg;
    ULONGLONG seen = GetTickCount64();
    while (find_window(dialog.wnd) && desktop_button_held() && GetTickCount64() - seen < kLost) {
        if (desktop_button_is_down()) seen = GetTickCount64();
        if (!PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
            desktop_wait(kPatience);
        } else if (msg.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        } else {
            DispatchMessageW(&msg);
        }
    }
}

static void give_owner_back(const Dialog& dialog) {
    if (dialog.owner_was_enabled) EnableWindow(dialog.owner, TRUE);
}

} // namespace platform

using namespace platform;

extern "C" {

LONG GetDialogBaseUnits() { return MAKELONG(kBaseWidth, kBaseHeight); }

INT_PTR DialogBoxIndirectParamA(HINSTANCE instance, LPCDLGTEMPLATEA memory, HWND owner, DLGPROC procedure,
                                LPARAM parameter) {
    Wish wish;
    if (!prepare(memory, wish) || !procedure || (owner && !find_window(owner))) return -1;
    Dialog dialog;
    dialog.owner = owner;
    dialog.owner_was_enabled = IsWindowEnabled(owner);
    dialog.wnd = make_window(wish, owner, instance, procedure);
    if (!dialog.wnd) return -1;
    dialogs().push_back(&dialog);
    EnableWindow(owner, FALSE);
    begin(dialog, parameter);
    run(dialog);
    give_owner_back(dialog); // before the end of its window, so that activation may pass on to it
    await_release(dialog);
    DestroyWindow(dialog.wnd);
    dialogs().pop_back();
    return dialog.ended ? dialog.result : -1;
}

BOOL EndDialog(HWND wnd, INT_PTR result) {
    Dialog* dialog = find_window(wnd) ? find_dialog(wnd) : nullptr;
    if (!dialog) return FALSE;
    dialog->ended = true;
    dialog->result = result;
    give_owner_back(*dialog);
    if (!desktop_button_held()) ShowWindow(wnd, SW_HIDE);
    wake_loops();
    return TRUE;
}
}
