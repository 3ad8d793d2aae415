#include <cstring>
#include <cwchar>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

#include "fenn/text_run.h"
#include "support/memory.h"
#include "unit/fenn/scratch.h"

#include "world.h"

// The calls of the drawing layer and the platform themselves when memory runs out: no exception comes out of
// them, and afterwards they answer as ever.

namespace {

// Does the work with each of its allocations failing in turn, and then once more with memory; `answers` is
// what it then has to give. What a run leaves behind, `begin` takes away.
void each_failure(std::function<void()> begin, std::function<int()> work, int answers) {
    for (const bool from_then_on : {false, true})
        for (int nth = 1; !testing::Test::HasFailure(); nth++) {
            SCOPED_TRACE("allocation " + std::to_string(nth) + (from_then_on ? " and all later ones" : ""));
            begin();
            bool happened;
            {
                const memory::Failing failing(nth, from_then_on);
                work();
                happened = failing.happened();
            }
            begin();
            EXPECT_EQ(work(), answers);
            ASSERT_LT(nth, 5000);
            if (!happened) break;
        }
}

HFONT font(const wchar_t* name, int height, bool bold = false) {
    LOGFONTW description = {};
    description.lfHeight = -height;
    description.lfWeight = bold ? 700 : 0;
    std::wcscpy(description.lfFaceName, name);
    return CreateFontIndirectW(&description);
}

// A text in one font after the other, each new to the layer.
int write(const wchar_t* text, HFONT in) {
    Zeb_setup(world::window(), "write");
    Zeb_Font_Color(1, 0);
    Zeb_Font_Write(in, 10, 10, text);
    const int width = Zeb_Font_Size_String(in, text);
    Zeb_release();
    return width;
}

struct Poor_Layer : testing::Test {
    Scratch scratch;
    void SetUp() override { world::fresh(); }

    static void forget_texts() { fenn::text_cache_clear(); }
};

TEST_F(Poor_Layer, TextOfEveryKind) {
    const std::wstring long_text(2000, L'n');
    for (const wchar_t* text : {L"plain", L"\x0627\x0644\x0639\x0631\x0628\x064A\x0629", L"\x4E2D\x6587",
                                L"e\x0301 \x05D0", L"\x10FFFD", long_text.c_str()}) {
        const HFONT in = font(L"Arial", 15);
        const int width = write(text, in);
        EXPECT_GT(width, 0);
        each_failure(
            forget_texts, [=] { return write(text, in); }, width);
        DeleteObject(in);
    }
}

// Looking for a family and opening its file take memory of the system's own too, which is not made to fail.
TEST_F(Poor_Layer, AFontForTheFirstTime) {
    int size = 20;
    const HFONT usual = font(L"Arial", 16);
    const int width = write(L"W", usual);
    for (int nth = 1; nth < 200; nth++) {
        SCOPED_TRACE(nth);
        wchar_t family[32];
        std::swprintf(family, 32, L"Nobody's %d", ++size);
        const HFONT fresh = font(family, 16);
        bool happened;
        {
            const memory::Failing failing(nth);
            write(L"W", fresh);
            happened = failing.happened();
        }
        EXPECT_EQ(write(L"W", fresh), width);
        DeleteObject(fresh);
        if (!happened) return;
    }
    FAIL() << "it asks for memory without end";
}

TEST_F(Poor_Layer, AWindowForTheFirstTime) {
    HWND wnd = nullptr;
    const auto begin = [&] {
        if (wnd) DestroyWindow(wnd);
        wnd = nullptr;
    };
    const auto work = [&] {
        wnd = CreateWindowExW(0, L"scarce", L"a title that takes memory of its own", WS_POPUP, 0, 0, 64, 48,
                              nullptr, nullptr, nullptr, nullptr);
        Zeb_setup(wnd, "work");
        Zeb_color(0xFF);
        draw_fill_rectangle(0, 20, 20, 0);
        Zeb_release();
        int width = 0, height = 0;
        const DWORD* const words = Fenn_Pixels(wnd, &width, &height);
        return words && words[(height - 2) * width] == 0xFF0000 ? width : 0;
    };
    each_failure(begin, work, 64);
    begin();
}

TEST_F(Poor_Layer, Shapes) {
    int xs[100], ys[100];
    for (int i = 0; i < 100; i++) {
        xs[i] = 20 + i % 50;
        ys[i] = i % 2 ? 90 : 20;
    }
    const auto work = [&] {
        world::wipe();
        Zeb_setup(world::window(), "shapes");
        Zeb_color(0xFF);
        draw_fill_polygon(100, xs, ys);
        const HPEN pen = CreatePen(PS_SOLID, 7, RGB(0, 0, 255));
        const HGDIOBJ before = SelectObject(Zeb_DC, pen);
        MoveToEx(Zeb_DC, 130, 60, nullptr);
        const BOOL drawn = AngleArc(Zeb_DC, 100, 60, 30, 0, 180);
        SelectObject(Zeb_DC, before);
        DeleteObject(pen);
        Zeb_release();
        int sum = drawn, width, height;
        const DWORD* const words = Fenn_Pixels(world::window(), &width, &height);
        for (int i = 0; i < width * height; i++)
            sum += words[i] == 0xFF0000 ? 1 : words[i] == 0xFF ? 10000 : 0;
        return sum;
    };
    const int whole = work();
    EXPECT_GT(whole, 10000);
    each_failure([] {}, work, whole);
}

TEST_F(Poor_Layer, Snapshots) {
    const std::wstring file = scratch.path("picture.png");
    each_failure([] {}, [&] { return Fenn_Snapshot(world::window(), file.c_str()); }, 1);
}

TEST_F(Poor_Layer, Paths) {
    const std::wstring folder = scratch.path("a name that takes memory of its own/and a further one");
    const auto work = [&] {
        wchar_t path[2048];
        char native[2048];
        std::wcscpy(path, folder.c_str());
        int sum = Path_To_Abs(path);
        sum += Fenn_Path_To_Native(folder.c_str(), native, 2048);
        sum += Fenn_Path_From_Native("/tmp/a name that takes memory of its own", path, 2048);
        sum += GetModuleFileNameW(nullptr, path, 2048) > 0;
        return sum;
    };
    each_failure([] {}, work, 4);
}

TEST_F(Poor_Layer, StringsOfALineTakeNoMemory) {
    const std::wstring line(1023, L'\x20AC');
    const memory::Failing failing(1, true);
    const char* const narrow = Wchar_2_Char(line.c_str());
    EXPECT_EQ(std::strlen(narrow), 3u * 1023);
    EXPECT_EQ(Char_2_Wchar(narrow), line);
    EXPECT_FALSE(failing.happened());
}

TEST_F(Poor_Layer, Drives) {
    const auto work = [] {
        wchar_t name[261] = {}, system[261] = {};
        const DWORD drives = GetLogicalDrives();
        if (!GetVolumeInformationW(L"C:\\", name, 261, nullptr, nullptr, nullptr, system, 261)) return 0;
        return static_cast<int>(drives) + static_cast<int>(GetDriveTypeW(L"C:\\"));
    };
    each_failure([] {}, work, work());
}

TEST_F(Poor_Layer, TheClipboard) {
    const auto work = [] {
        int length = 0;
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 64 * sizeof(wchar_t));
        if (!block) return 0;
        std::wcscpy(static_cast<wchar_t*>(GlobalLock(block)), L"a text that takes memory\nof its own");
        GlobalUnlock(block);
        OpenClipboard(world::window());
        if (!SetClipboardData(CF_UNICODETEXT, block)) GlobalFree(block);
        const HANDLE given = GetClipboardData(CF_UNICODETEXT);
        if (given && IsClipboardFormatAvailable(CF_TEXT)) {
            length = static_cast<int>(std::wcslen(static_cast<const wchar_t*>(GlobalLock(given))));
            GlobalUnlock(given);
        }
        CloseClipboard();
        return length;
    };
    each_failure([] {}, work, 36);
}

TEST_F(Poor_Layer, MessagesAndTimers) {
    const auto begin = [] {
        MSG msg;
        while (PeekMessageW(&msg, world::window(), 0, 0, PM_REMOVE)) {
        }
    };
    const auto work = [] {
        int posted = 0;
        for (int i = 0; i < 100; i++)
            posted += PostMessageW(world::window(), WM_USER, 0, 0);
        const UINT_PTR timer = SetTimer(world::window(), 7, 1000, nullptr);
        KillTimer(world::window(), 7);
        return posted + static_cast<int>(timer);
    };
    each_failure(begin, work, 107);
    begin();
}

TEST_F(Poor_Layer, ClassesAndTitles) {
    const auto begin = [] { UnregisterClassW(L"a class that takes memory of its own", nullptr); };
    const auto work = [] {
        WNDCLASSW known = {};
        known.lpfnWndProc = DefWindowProcW;
        known.lpszClassName = L"a class that takes memory of its own";
        const bool registered = RegisterClassW(&known) != 0;
        return 2 * registered + SetWindowTextW(world::window(), L"a title that takes memory of its own too");
    };
    each_failure(begin, work, 3);
    begin();
}

} // namespace
