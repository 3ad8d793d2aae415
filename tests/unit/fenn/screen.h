#ifndef TESTS_UNIT_FENN_SCREEN_H
#define TESTS_UNIT_FENN_SCREEN_H

#include <string>
#include <vector>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

// A window that is never shown, and its pixels as pictures of letters.
class Screen {
  public:
    Screen(int width, int height) {
        static const ATOM type = [] {
            WNDCLASSW description{};
            description.lpfnWndProc = DefWindowProcW;
            description.lpszClassName = L"Screen";
            return RegisterClassW(&description);
        }();
        wnd = CreateWindowExW(0, MAKEINTRESOURCEW(type), L"", WS_POPUP, 0, 0, width, height, nullptr, nullptr,
                              nullptr, nullptr);
    }
    ~Screen() { close(); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    void close() {
        if (wnd) DestroyWindow(wnd);
        wnd = nullptr;
    }
    void resize(int width, int height) const {
        SetWindowPos(wnd, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    // One line for each row, the top one first: "." untouched, "R", "G", "B", "W" those colours, "?" others.
    std::vector<std::string> picture() const {
        int width = 0, height = 0;
        const DWORD* const pixels = Fenn_Pixels(wnd, &width, &height);
        std::vector<std::string> rows;
        for (int y = 0; pixels && y < height; ++y) {
            rows.emplace_back();
            for (int x = 0; x < width; ++x)
                rows.back() += letter(pixels[y * width + x]);
        }
        return rows;
    }
    std::string text() const { return joined(picture()); }
    DWORD at(int x, int y) const { // Y upward
        int width = 0, height = 0;
        const DWORD* const pixels = Fenn_Pixels(wnd, &width, &height);
        return pixels[(height - 1 - y) * width + x];
    }
    int painted() const {
        int count = 0;
        for (const char c : text())
            count += c != '.' && c != '\n';
        return count;
    }

    static std::string joined(const std::vector<std::string>& rows) {
        std::string all;
        for (const std::string& row : rows)
            all += row + "\n";
        return all;
    }
    static char letter(DWORD pixel) {
        switch (pixel) {
        case 0: return '.';
        case 0xFF0000: return 'R';
        case 0x00FF00: return 'G';
        case 0x0000FF: return 'B';
        case 0xFFFFFF: return 'W';
        default: return '?';
        }
    }

    HWND wnd;
};

constexpr unsigned long red = 0x0000FF, green = 0x00FF00, blue = 0xFF0000, white = 0xFFFFFF; // drawing words

// A bracket that paints in one colour.
class Painting {
  public:
    explicit Painting(HWND wnd, unsigned long color = white) {
        Zeb_setup(wnd, "test");
        Zeb_color(color);
    }
    explicit Painting(const Screen& screen, unsigned long color = white) : Painting(screen.wnd, color) {}
    ~Painting() { Zeb_release(); }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;
};

#endif
