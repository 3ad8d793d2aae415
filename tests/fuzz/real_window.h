#ifndef FUZZ_REAL_WINDOW_H
#define FUZZ_REAL_WINDOW_H

#include <vector>

#include <brask/fenn.h>
#include <brask/fenn_host.h>

// A window of the real drawing layer that is never shown.
class RealWindow {
  public:
    RealWindow(int width, int height) {
        static const ATOM type = [] {
            WNDCLASSW description{};
            description.lpfnWndProc = DefWindowProcW;
            description.lpszClassName = L"Fuzz";
            return RegisterClassW(&description);
        }();
        wnd = CreateWindowExW(0, MAKEINTRESOURCEW(type), L"", WS_POPUP, 0, 0, width, height, nullptr, nullptr,
                              nullptr, nullptr);
    }
    ~RealWindow() { close(); }
    RealWindow(const RealWindow&) = delete;
    RealWindow& operator=(const RealWindow&) = delete;

    void close() {
        if (wnd) DestroyWindow(wnd);
        wnd = nullptr;
    }
    void resize(int width, int height) const {
        SetWindowPos(wnd, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    void clear() const {
        Zeb_setup(wnd, "fuzz");
        Zeb_color(1);
        draw_fill_rectangle(-1, 100000, 100000, -2);
        Zeb_release();
    }
    std::vector<DWORD> pixels() const {
        const DWORD* const first = Fenn_Pixels(wnd, &width, &height);
        return first ? std::vector<DWORD>(first, first + width * height) : std::vector<DWORD>();
    }
    // Columns left to right - 1, rows bottom to top - 1, Y upward: whether anything outside of them differs.
    bool differs_outside(const std::vector<DWORD>& before, const std::vector<DWORD>& now, long long left,
                         long long bottom, long long right, long long top) const {
        for (std::size_t i = 0; i < now.size(); i++) {
            const long long x = static_cast<long long>(i) % width;
            const long long y = height - 1 - static_cast<long long>(i) / width;
            const bool inside = x >= left && x < right && y >= bottom && y < top;
            if (!inside && before[i] != now[i]) return true;
        }
        return false;
    }

    HWND wnd = nullptr;
    mutable int width = 0, height = 0; // as of the last look at the pixels
};

#endif
