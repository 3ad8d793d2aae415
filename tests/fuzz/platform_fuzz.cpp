// The portable platform under any calls in any order: events of the desktop, messages, windows and drawing
// objects, with live, dead and invented handles, from outside and from within messages. Nothing crashes, and
// the platform's own view of itself stays sound.

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <brask/platform.h>

#include "input.h"
#include "platform/portable/desktop_events.h"
#include "platform/portable/queue.h"
#include "platform/portable/surface.h"

namespace {

const int no_display = setenv("SDL_VIDEODRIVER", "none", 1);

Input* decisions = nullptr; // of the run, for what happens within messages
std::vector<HWND> known;    // alive or dead
std::vector<HDC> contexts;
std::vector<HGDIOBJ> objects;
int depth = 0;

template <typename H>
H some(Input& input, const std::vector<H>& list) {
    if (list.empty() || input.one_in(12))
        return reinterpret_cast<H>(static_cast<std::uintptr_t>(input.word()));
    return list[input.below(static_cast<unsigned>(list.size()))];
}

void act(Input& input);

LRESULT CALLBACK procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    if (depth < 3 && decisions->one_in(8)) {
        depth++;
        act(*decisions);
        depth--;
    }
    return DefWindowProcW(wnd, message, wparam, lparam);
}

void create(Input& input) {
    constexpr DWORD styles[] = {WS_OVERLAPPEDWINDOW, WS_POPUP, WS_POPUP | WS_VISIBLE, WS_DISABLED, WS_CHILD};
    if (known.size() >= 60) return;
    const HWND owner = input.one_in(3) ? some(input, known) : nullptr;
    const HWND wnd = CreateWindowExW(0, L"Fuzz", L"w", input.among(styles), input.number(), input.number(),
                                     input.number(), input.number(), owner, nullptr, nullptr, nullptr);
    if (wnd) known.push_back(wnd);
}

void key_event(Input& input) {
    platform::DesktopKey key;
    key.scancode = input.one_in(10) ? input.number() : static_cast<int>(input.below(290));
    key.symbol = input.one_in(3) ? input.number() : 0;
    key.down = input.below(2);
    key.alt_graph = input.one_in(30);
    key.locks = input.below(4);
    key.time = input.word();
    platform::desktop_key(key);
    const char text[] = {static_cast<char>(input.byte()), static_cast<char>(input.byte()), 0};
    if (input.one_in(3)) platform::desktop_text(text, key.time);
}

void desktop_event(Input& input) {
    const HWND wnd = some(input, known);
    const int x = input.number(), y = input.number();
    switch (input.below(10)) {
    case 0: platform::desktop_mouse_move(wnd, x, y, input.word()); break;
    case 1:
        platform::desktop_button(wnd, static_cast<int>(input.below(7)), input.below(2), x, y, input.byte());
        break;
    case 2: platform::desktop_wheel(wnd, x, y, input.word()); break;
    case 3: platform::desktop_focus(wnd, input.below(2)); break;
    case 4: platform::desktop_resize(wnd, x, y); break;
    case 5: platform::desktop_layout(wnd, static_cast<int>(input.below(4))); break;
    case 6: platform::desktop_move(wnd, x, y); break;
    case 7: platform::desktop_expose(wnd); break;
    case 8: platform::desktop_mouse_leave(wnd); break;
    case 9: platform::desktop_close(wnd); break;
    }
}

void window_call(Input& input) {
    const HWND wnd = some(input, known);
    const RECT rect = {input.number(), input.number(), input.number(), input.number()};
    switch (input.below(16)) {
    case 0: DestroyWindow(wnd); break;
    case 1: ShowWindow(wnd, static_cast<int>(input.below(12))); break;
    case 2: MoveWindow(wnd, rect.left, rect.top, rect.right, rect.bottom, TRUE); break;
    case 3: SetFocus(wnd); break;
    case 4: SetActiveWindow(wnd); break;
    case 5: EnableWindow(wnd, static_cast<BOOL>(input.below(2))); break;
    case 6: SetCapture(wnd); break;
    case 7: ReleaseCapture(); break;
    case 8: InvalidateRect(wnd, &rect, TRUE); break;
    case 9: ValidateRect(wnd, &rect); break;
    case 10: UpdateWindow(wnd); break;
    case 11: SetTimer(wnd, input.below(3), 10, nullptr); break;
    case 12: KillTimer(wnd, input.below(3)); break;
    case 13: PostMessageW(wnd, input.below(0x400), input.word(), 0); break;
    case 14: SetWindowLongPtrW(wnd, input.number(), 0); break;
    case 15: platform::window_changed(wnd, {rect.left, rect.top, rect.right, rect.bottom}); break;
    }
}

void draw(Input& input) {
    if (input.one_in(4) && contexts.size() < 40) contexts.push_back(GetDC(some(input, known)));
    if (input.one_in(4) && objects.size() < 40)
        objects.push_back(CreatePen(input.number(), input.number(), input.word()));
    const HDC dc = some(input, contexts);
    const XFORM form = {
        static_cast<float>(input.number()), 0, static_cast<float>(input.number()), 1, 0, 1e30f};
    const RECT rect = {input.number(), input.number(), input.number(), input.number()};
    switch (input.below(9)) {
    case 0: SelectObject(dc, some(input, objects)); break;
    case 1: DeleteObject(some(input, objects)); break;
    case 2: MoveToEx(dc, input.number(), input.number(), nullptr); break;
    case 3: LineTo(dc, input.number(), input.number()); break;
    case 4:
        AngleArc(dc, rect.left, rect.top, input.below(1000), 0, static_cast<float>(input.number()));
        break;
    case 5:
        FillRect(dc, &rect, reinterpret_cast<HBRUSH>(static_cast<std::uintptr_t>(input.below(40))));
        break;
    case 6: SetGraphicsMode(dc, static_cast<int>(input.below(4))); break;
    case 7: ModifyWorldTransform(dc, &form, input.below(5)); break;
    case 8: SetViewportOrgEx(dc, input.number(), input.number(), nullptr); break;
    }
}

void pump(Input& input) {
    MSG msg;
    for (int i = 0; i < 5 && PeekMessageW(&msg, nullptr, 0, 0, input.one_in(6) ? PM_NOREMOVE : PM_REMOVE);
         i++) {
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

void act(Input& input) {
    switch (input.below(7)) {
    case 0: create(input); break;
    case 1: key_event(input); break;
    case 2: desktop_event(input); break;
    case 3:
    case 4: window_call(input); break;
    case 5: draw(input); break;
    case 6: pump(input); break;
    }
}

void check() {
    for (const HWND wnd : {GetFocus(), GetActiveWindow(), GetCapture()})
        expect(!wnd || IsWindow(wnd), "focus, activation and capture belong to windows that live");
    for (const HWND wnd : known) {
        RECT update, client;
        if (!GetUpdateRect(wnd, &update, FALSE) || !GetClientRect(wnd, &client)) continue;
        expect(update.left >= 0 && update.top >= 0 && update.left < update.right &&
                   update.top < update.bottom,
               "a paint request lies in its window");
    }
}

void clean_up() {
    for (int round = 0; round < 10; round++)
        for (const HWND wnd : known)
            DestroyWindow(wnd);
    for (const HDC dc : contexts)
        ReleaseDC(nullptr, dc);
    for (const HGDIOBJ object : objects)
        DeleteObject(object);
    known.clear();
    contexts.clear();
    objects.clear();
    platform::clear_queue();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ATOM type = [] {
        WNDCLASSW description{};
        description.style = CS_DBLCLKS;
        description.lpfnWndProc = procedure;
        description.lpszClassName = L"Fuzz";
        description.cbWndExtra = 8;
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        return RegisterClassW(&description);
    }();
    expect(type != 0, "the class is registered");
    Input input(data, size);
    decisions = &input;
    while (!input.empty()) {
        act(input);
        check();
    }
    clean_up();
    return 0;
}
