#include "window.h"

#include <brask/fenn.h>
#include <brask/keyboard.h>
#include <brask/pointer.h>

#include "../editor_keys.h"

namespace {

const wchar_t class_name[] = L"brask gallery";
constexpr int tab_height = 28, notch = 120;
Gallery* current; // the one whose messages arrive

void register_class(WNDPROC procedure) {
    WNDCLASSEXW kind = {};
    kind.cbSize = sizeof kind;
    kind.lpfnWndProc = procedure;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = class_name; // no cursor: the strip says which one is up
    RegisterClassExW(&kind);         // a second time it fails, and the first one holds
}

// The event word of a mouse message: what happened, and above it the buttons held now.
int event_word(UINT message) {
    int held = 16 * getbutton(VK_LBUTTON) + 32 * getbutton(VK_MBUTTON) + 64 * getbutton(VK_RBUTTON);
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDOWN: return 2 + held;
    case WM_MOUSEMOVE: return held ? 1 + held : 0;
    default: return held;
    }
}

// Tells the drawing layer where the pointer is; the layer keeps it for this window.
void set_pointer(HWND wnd, int x, int y) {
    Zeb_setup(wnd, "Gallery");
    set_curs(x, y);
    Zeb_release();
}

} // namespace

Gallery::Gallery(const PageEntry& entry, int width, int height, bool shown) : made(page_count) {
    current = this;
    tabs.Grow(int(page_count), 0);
    for (std::size_t i = 0; i < page_count; i++)
        tabs.Item[i]->Name_Set(pages[i].name);
    tabs.Cur_Value = int(&entry - pages);
    register_class(procedure);
    ground.Flag = OUTIL_EMPTY;
    DWORD style = shown ? WS_OVERLAPPEDWINDOW : WS_POPUP;
    RECT frame = {0, 0, width, height};
    AdjustWindowRect(&frame, style, FALSE);
    wnd = CreateWindowExW(0, class_name, L"Brask gallery", style, CW_USEDEFAULT, CW_USEDEFAULT,
                          frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr,
                          GetModuleHandleW(nullptr), nullptr);
    if (!wnd) return;
    if (!shown) set_pointer(wnd, -1, -1); // nothing is under the pointer in a picture
    layout();
    if (shown) ShowWindow(wnd, SW_SHOW);
}

Gallery::~Gallery() {
    if (wnd) DestroyWindow(wnd);
    current = nullptr;
}

void Gallery::layout() {
    RECT client;
    GetClientRect(wnd, &client);
    Area area = {0, 0, client.right, client.bottom};
    area.give(ground);
    ground.Init(wnd);
    strip.layout(wnd, area.cut_bottom(Strip::height));
    tabs.Page_Dim = area.height;
    area.cut_top(tab_height).give(tabs);
    tabs.Init(wnd);
    show_page(area);
}

// Makes the page on top if it was never shown, and lays it out in what the tabs leave.
void Gallery::show_page(const Area& area) {
    std::unique_ptr<Page>& top = made[std::size_t(tabs.Cur_Value)];
    if (!top) top = pages[tabs.Cur_Value].make();
    page = top.get();
    page->layout(wnd, area);
}

void Gallery::draw() {
    ground.Clear();
    tabs.Page(0);
    tabs.Draw();
    page->draw();
    strip.draw();
}

void Gallery::each(const Visitor& visit) const {
    for (int i = 0; i < tabs.NbItem; i++)
        visit("tab", *tabs.Item[i]);
    page->each(visit);
    strip.each(visit);
}

void Gallery::run() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void Gallery::paint() {
    PAINTSTRUCT paint;
    BeginPaint(wnd, &paint);
    draw();
    EndPaint(wnd, &paint);
}

void Gallery::mouse(UINT message, LPARAM position) {
    set_pointer(wnd, short(LOWORD(position)), short(HIWORD(position)));
    int word = event_word(message);
    if ((word & 15) == 2) SetCapture(wnd); // so that a drag outside still arrives
    if (word == 0) ReleaseCapture();
    if (!watched && GetCapture() != wnd) {
        TRACKMOUSEEVENT ask = {sizeof ask, TME_LEAVE, wnd, 0};
        watched = TrackMouseEvent(&ask);
    }
    strip.pointer(word);
    page->pointer(word);
    choose_page(word);
    strip.show_event(word);
}

// A press on a tab brings its page to the top.
void Gallery::choose_page(int word) {
    if (!tabs.Select(word) || (word & 15) != 2) return;
    int pressed = tabs.Read();
    if (pressed < 0 || pressed == tabs.Cur_Value) return;
    tabs.Cur_Value = pressed;
    layout();
    draw();
}

// The system gives the wheel in parts of a notch.
void Gallery::wheel(WPARAM amount) {
    turned += short(HIWORD(amount));
    if (turned / notch) page->wheel(turned / notch);
    turned %= notch;
}

void Gallery::leave() {
    watched = false;
    if (GetCapture() == wnd) return; // a drag goes on outside; its end comes as a message of its own
    set_pointer(wnd, -1, -1);
    strip.pointer(0);
    page->pointer(0);
    tabs.Select(0);
}

void Gallery::key(UINT message, WPARAM wparam, LPARAM lparam) {
    int code = Parse_Keyboard(wnd, message, wparam, lparam);
    if (!code) return;
    strip.show_key(code);
    if (int key = editor_key(message, wparam, code)) page->key(key);
}

LRESULT CALLBACK Gallery::procedure(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam) {
    if (!current || current->wnd != wnd) return DefWindowProcW(wnd, message, wparam, lparam);
    LRESULT result = current->handle(message, wparam, lparam);
    if (current->wnd && current->page) current->page->settle();
    return result;
}

LRESULT Gallery::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SIZE:
        layout();
        InvalidateRect(wnd, nullptr, FALSE);
        return 0;
    case WM_PAINT: paint(); return 0;
    case WM_LBUTTONDOWN:
    case WM_MBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MOUSEMOVE: mouse(message, lparam); return 0;
    case WM_MOUSEWHEEL: wheel(wparam); return 0;
    case WM_MOUSELEAVE: leave(); return 0;
    case WM_SETCURSOR:
        if (LOWORD(lparam) != HTCLIENT) break;
        SetCursor(strip.shape());
        return TRUE;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR: key(message, wparam, lparam); return 0;
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP: key(message, wparam, lparam); break; // the system closes the window with Alt F4
    case WM_DESTROY:
        wnd = nullptr;
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcW(wnd, message, wparam, lparam);
}
