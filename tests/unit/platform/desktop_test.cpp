// Windows on the desktop library, with its driver that shows nothing: what is put on the screen, and what the
// library's events become.

#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include "host.h"
#include "platform/portable/sdl/sdl_library.h"
#include "platform/portable/surface.h"
#include "platform/portable/window_state.h"

static const int dummy_driver = setenv("SDL_VIDEODRIVER", "dummy", 1);

class Desktop : public testing::Test {
  protected:
    Desktop() {
        ShowWindow(host.wnd, SW_SHOW);
        sdl = platform::sdl_opened();
        settle();
    }

    // The driver has events of its own to tell at the start.
    void settle() {
        for (int i = 0; i < 3; i++)
            host.run();
    }
    SDL_Window* shown() { return static_cast<SDL_Window*>(platform::find_window(host.wnd)->desktop); }
    std::uint32_t screen_pixel(int x, int y) {
        const SDL_Surface* surface = SDL_GetWindowSurface(shown());
        const auto* row = static_cast<const std::uint8_t*>(surface->pixels) + y * surface->pitch;
        return reinterpret_cast<const std::uint32_t*>(row)[x] & 0xFFFFFF;
    }
    void set_pixel(int x, int y, std::uint32_t color) {
        const raster::Canvas& canvas = *platform::window_canvas(host.wnd);
        canvas.pixels[y * canvas.pitch + x] = color;
    }
    SDL_Event event(Uint32 type) {
        SDL_Event event{};
        event.type = type;
        event.key.windowID = SDL_GetWindowID(shown());
        event.key.timestamp = SDL_GetTicks();
        return event;
    }
    void push_key(Uint32 type, SDL_Scancode code, SDL_Keycode symbol, Uint16 mods = 0) {
        SDL_Event key = event(type);
        key.key.keysym = {code, symbol, mods, 0};
        SDL_PushEvent(&key);
    }
    void push_window(Uint8 what, int a = 0, int b = 0) {
        SDL_Event window = event(SDL_WINDOWEVENT);
        window.window.event = what;
        window.window.data1 = a;
        window.window.data2 = b;
        SDL_PushEvent(&window);
    }

    Host host;
    const platform::SdlLibrary* sdl = nullptr;
};

TEST_F(Desktop, OpensWithTheFirstWindowThatIsShown) {
    ASSERT_NE(sdl, nullptr);
    EXPECT_NE(shown(), nullptr);
    Host hidden;
    EXPECT_EQ(platform::find_window(hidden.wnd)->desktop, nullptr);
}

TEST_F(Desktop, CountsItsScreens) {
    EXPECT_EQ(GetSystemMetrics(SM_CMONITORS), SDL_GetNumVideoDisplays());
    EXPECT_GE(GetSystemMetrics(SM_CMONITORS), 1);
    EXPECT_EQ(GetSystemMetrics(-1), 0);
}

TEST_F(Desktop, ChangesAreShownWhenTheQueueRunsEmpty) {
    set_pixel(20, 30, 0xABCDEF);
    set_pixel(100, 30, 0x123456);
    platform::window_changed(host.wnd, {20, 30, 21, 31});
    EXPECT_NE(screen_pixel(20, 30), 0xABCDEFu);
    host.run();
    EXPECT_EQ(screen_pixel(20, 30), 0xABCDEFu);
    EXPECT_NE(screen_pixel(100, 30), 0x123456u); // nobody said that it changed
}

TEST_F(Desktop, LongWorkIsShownWithoutAnEmptyQueue) {
    set_pixel(5, 5, 0x445566);
    platform::window_changed(host.wnd, {5, 5, 6, 6});
    Sleep(20);
    platform::window_changed(host.wnd, {7, 7, 8, 8});
    EXPECT_EQ(screen_pixel(5, 5), 0x445566u);
}

TEST_F(Desktop, ChangesOutsideOfTheWindowAreCutAway) {
    platform::window_changed(host.wnd, {-100, -100, 100000, 100000});
    platform::window_changed(host.wnd, {500, 500, 400, 400});
    set_pixel(199, 99, 0x778899);
    host.run();
    EXPECT_EQ(screen_pixel(199, 99), 0x778899u);
}

TEST_F(Desktop, AnExposedWindowIsShownWithoutAskingItsHost) {
    set_pixel(1, 1, 0x0000FF);
    push_window(SDL_WINDOWEVENT_EXPOSED);
    EXPECT_TRUE(host.run(WM_PAINT, WM_PAINT).empty());
    EXPECT_EQ(screen_pixel(1, 1), 0x0000FFu);
}

TEST_F(Desktop, KeysAndTheirTextBecomeMessages) {
    push_key(SDL_KEYDOWN, SDL_SCANCODE_A, SDLK_a);
    SDL_Event text = event(SDL_TEXTINPUT);
    text.text.text[0] = 'a';
    SDL_PushEvent(&text);
    push_key(SDL_KEYUP, SDL_SCANCODE_A, SDLK_a);
    EXPECT_EQ(host.run_keys(), (std::vector<Heard>{{WM_KEYDOWN, 'A', pressed(0x1E)},
                                                   {WM_CHAR, 'a', pressed(0x1E)},
                                                   {WM_KEYUP, 'A', released(0x1E)}}));
}

TEST_F(Desktop, LocksAndAltGrAreSeen) {
    push_key(SDL_KEYDOWN, SDL_SCANCODE_KP_4, SDLK_KP_4, KMOD_NUM);
    push_key(SDL_KEYUP, SDL_SCANCODE_KP_4, SDLK_KP_4, KMOD_NUM);
    push_key(SDL_KEYDOWN, SDL_SCANCODE_RALT, SDLK_MODE, KMOD_NUM | KMOD_CAPS);
    push_key(SDL_KEYUP, SDL_SCANCODE_RALT, SDLK_MODE);
    const std::vector<Heard> heard = host.run_keys();
    ASSERT_EQ(heard.size(), 3u);
    EXPECT_EQ(heard[0].wparam, static_cast<WPARAM>(VK_NUMPAD4));
    EXPECT_EQ(GetKeyState(VK_NUMLOCK), 1);
}

TEST_F(Desktop, TheMouseBecomesMessages) {
    SDL_Event motion = event(SDL_MOUSEMOTION);
    motion.motion.x = 12;
    motion.motion.y = 13;
    SDL_PushEvent(&motion);
    SDL_Event button = event(SDL_MOUSEBUTTONDOWN);
    button.button.button = SDL_BUTTON_RIGHT;
    button.button.state = SDL_PRESSED;
    button.button.x = 14;
    button.button.y = 15;
    SDL_PushEvent(&button);
    button.type = SDL_MOUSEBUTTONUP;
    button.button.state = SDL_RELEASED;
    SDL_PushEvent(&button);
    SDL_Event wheel = event(SDL_MOUSEWHEEL);
    wheel.wheel.preciseY = -1.5f;
    SDL_PushEvent(&wheel);
    const std::vector<Heard> heard = host.run_mouse();
    ASSERT_EQ(heard.size(), 4u);
    EXPECT_EQ(heard[0], (Heard{WM_MOUSEMOVE, 0, MAKELPARAM(12, 13)}));
    EXPECT_EQ(heard[1], (Heard{WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(14, 15)}));
    EXPECT_EQ(heard[2], (Heard{WM_RBUTTONUP, 0, MAKELPARAM(14, 15)}));
    EXPECT_EQ(heard[3].message, static_cast<UINT>(WM_MOUSEWHEEL));
    EXPECT_EQ(GET_WHEEL_DELTA_WPARAM(heard[3].wparam), -180);
}

TEST_F(Desktop, WindowEventsBecomeMessages) {
    push_window(SDL_WINDOWEVENT_MOVED, 33, 44);
    EXPECT_EQ(host.run(WM_MOVE, WM_MOVE), (std::vector<Heard>{{WM_MOVE, 0, MAKELPARAM(33, 44)}}));
    push_window(SDL_WINDOWEVENT_SIZE_CHANGED, 150, 90);
    EXPECT_EQ(host.run(WM_SIZE, WM_SIZE),
              (std::vector<Heard>{{WM_SIZE, SIZE_RESTORED, MAKELPARAM(150, 90)}}));
    push_window(SDL_WINDOWEVENT_MAXIMIZED);
    EXPECT_EQ(host.run(WM_SIZE, WM_SIZE).size(), 1u);
    push_window(SDL_WINDOWEVENT_MINIMIZED);
    EXPECT_EQ(host.run(WM_SIZE, WM_SIZE), (std::vector<Heard>{{WM_SIZE, SIZE_MINIMIZED, 0}}));
    push_window(SDL_WINDOWEVENT_RESTORED);
    host.run();
    push_window(SDL_WINDOWEVENT_FOCUS_LOST);
    host.run();
    EXPECT_EQ(GetFocus(), nullptr);
    push_window(SDL_WINDOWEVENT_FOCUS_GAINED);
    host.run();
    EXPECT_EQ(GetFocus(), host.wnd);
    TRACKMOUSEEVENT request = {sizeof request, TME_LEAVE, host.wnd, 0};
    TrackMouseEvent(&request);
    push_window(SDL_WINDOWEVENT_LEAVE);
    EXPECT_EQ(host.run_mouse(), (std::vector<Heard>{{WM_MOUSELEAVE, 0, 0}}));
    push_window(SDL_WINDOWEVENT_CLOSE);
    host.run();
    EXPECT_FALSE(IsWindow(host.wnd));
}

TEST_F(Desktop, TheEndOfTheSessionClosesEveryWindow) {
    SDL_Event quit = event(SDL_QUIT);
    SDL_PushEvent(&quit);
    host.run();
    EXPECT_FALSE(IsWindow(host.wnd));
}

TEST_F(Desktop, TheHostPlacesNamesAndHidesItsWindow) {
    MoveWindow(host.wnd, 21, 22, 123, 77, TRUE);
    int a = 0, b = 0;
    SDL_GetWindowSize(shown(), &a, &b);
    EXPECT_TRUE(a == 123 && b == 77) << a << ' ' << b;
    SetWindowTextW(host.wnd, L"Gr\u00FC\u00DFe");
    EXPECT_STREQ(SDL_GetWindowTitle(shown()), "Gr\xC3\xBC\xC3\x9F"
                                              "e");
    EXPECT_TRUE(SDL_GetWindowFlags(shown()) & SDL_WINDOW_SHOWN);
    ShowWindow(host.wnd, SW_HIDE);
    EXPECT_FALSE(SDL_GetWindowFlags(shown()) & SDL_WINDOW_SHOWN);
    ShowWindow(host.wnd, SW_SHOW);
    EXPECT_TRUE(SDL_GetWindowFlags(shown()) & SDL_WINDOW_SHOWN);
}

TEST_F(Desktop, AWindowWithoutAPlaceKnowsWhereTheDesktopPutIt) {
    for (const int size : {200, 5000}) { // the second is larger than the screen
        const HWND wnd = CreateWindowW(L"Host", L"", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0, size, size,
                                       nullptr, nullptr, nullptr, nullptr);
        ShowWindow(wnd, SW_SHOW);
        int x = 0, y = 0;
        SDL_GetWindowPosition(static_cast<SDL_Window*>(platform::find_window(wnd)->desktop), &x, &y);
        POINT origin = {0, 0};
        ClientToScreen(wnd, &origin);
        EXPECT_TRUE(origin.x == x && origin.y == y) << x << ' ' << y;
        EXPECT_EQ(x > 0, size == 200);
        EXPECT_GE(x, 0);
        EXPECT_GE(y, 0);
        DestroyWindow(wnd);
    }
}

TEST_F(Desktop, TheHostBoundsTheSizeOfItsWindow) {
    Host bounded;
    bounded.answer = [](UINT message, WPARAM, LPARAM lparam, LRESULT* result) {
        if (message != WM_GETMINMAXINFO) return false;
        reinterpret_cast<MINMAXINFO*>(lparam)->ptMinTrackSize = {150, 80};
        *result = 0;
        return true;
    };
    ShowWindow(bounded.wnd, SW_SHOW);
    int width = 0, height = 0;
    auto* window = static_cast<SDL_Window*>(platform::find_window(bounded.wnd)->desktop);
    SDL_GetWindowMinimumSize(window, &width, &height);
    EXPECT_TRUE(width == 150 && height == 80) << width << ' ' << height;
}

TEST_F(Desktop, StylesDecideAboutFrameAndSize) {
    const Uint32 flags = SDL_GetWindowFlags(shown());
    EXPECT_TRUE(flags & SDL_WINDOW_RESIZABLE);
    EXPECT_FALSE(flags & SDL_WINDOW_BORDERLESS);
    Host popup(WS_POPUP | WS_VISIBLE);
    const Uint32 others =
        SDL_GetWindowFlags(static_cast<SDL_Window*>(platform::find_window(popup.wnd)->desktop));
    EXPECT_FALSE(others & SDL_WINDOW_RESIZABLE);
    EXPECT_TRUE(others & SDL_WINDOW_BORDERLESS);
}

TEST_F(Desktop, AnotherThreadWakesAHostThatWaitsForTheDesktop) {
    std::thread other([this] {
        Sleep(30);
        PostMessageW(host.wnd, WM_APP, 9, 0);
    });
    MSG msg;
    do {
        ASSERT_EQ(GetMessageW(&msg, nullptr, 0, 0), 1);
        DispatchMessageW(&msg);
    } while (msg.message != WM_APP);
    EXPECT_EQ(msg.wParam, 9u);
    other.join();
}

TEST_F(Desktop, CursorsAndCaptureReachTheLibrary) {
    for (const LPWSTR name : {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_CROSS, IDC_HAND}) {
        SetCursor(LoadCursorW(nullptr, name));
        EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
    }
    SetCursor(nullptr);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
    SetCapture(host.wnd);
    ReleaseCapture();
}

// What another program put, as a host reads it.
std::wstring pasted() {
    OpenClipboard(nullptr);
    const HANDLE block = GetClipboardData(CF_UNICODETEXT);
    std::wstring text;
    if (block)
        text.assign(static_cast<const wchar_t*>(GlobalLock(block)), GlobalSize(block) / sizeof(wchar_t));
    CloseClipboard();
    return text;
}

TEST_F(Desktop, TheClipboardGivesWhatAnotherProgramPut) {
    SDL_SetClipboardText("Gr\xC3\xBC\xC3\x9F"
                         "e\nzwei\n");
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_TRUE(IsClipboardFormatAvailable(CF_UNICODETEXT));
    EXPECT_EQ(pasted(), std::wstring(L"Gr\u00FC\u00DFe\r\nzwei\r\n\0", 14));
    SDL_SetClipboardText("");
    EXPECT_FALSE(IsClipboardFormatAvailable(CF_TEXT));
    EXPECT_EQ(pasted(), L"");
}

TEST_F(Desktop, AHundredThousandCharactersArePasted) {
    SDL_SetClipboardText(std::string(100000, 'x').c_str());
    EXPECT_EQ(pasted(), std::wstring(100000, L'x') + L'\0');
}

TEST_F(Desktop, AnotherProgramGetsWhatTheHostPut) {
    const wchar_t text[] = L"a\r\nb\rc\x4E2D";
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, sizeof text);
    std::memcpy(GlobalLock(block), text, sizeof text);
    GlobalUnlock(block);
    OpenClipboard(host.wnd);
    EXPECT_EQ(SetClipboardData(CF_UNICODETEXT, block), block);
    CloseClipboard();
    char* held = SDL_GetClipboardText();
    EXPECT_STREQ(held, "a\nb\rc\xE4\xB8\xAD");
    SDL_free(held);
    OpenClipboard(host.wnd);
    EmptyClipboard();
    CloseClipboard();
    EXPECT_FALSE(SDL_HasClipboardText());
}

TEST_F(Desktop, EventsOfWindowsThatAreGoneAreIgnored) {
    SDL_Event motion = event(SDL_MOUSEMOTION);
    SDL_Event window = event(SDL_WINDOWEVENT);
    window.window.event = SDL_WINDOWEVENT_SIZE_CHANGED;
    DestroyWindow(host.wnd);
    host.run();
    SDL_PushEvent(&motion);
    SDL_PushEvent(&window);
    EXPECT_TRUE(host.run().empty());
}
