// Paint requests and backgrounds.

#include "host.h"
#include "platform/portable/surface.h"

static RECT update_of(HWND wnd) {
    RECT rect = {9, 9, 9, 9};
    GetUpdateRect(wnd, &rect, FALSE);
    return rect;
}

#define EXPECT_UPDATE(wnd, l, t, r, b)                                                                       \
    do {                                                                                                     \
        const RECT at = update_of(wnd);                                                                      \
        EXPECT_TRUE(at.left == (l) && at.top == (t) && at.right == (r) && at.bottom == (b))                  \
            << at.left << ' ' << at.top << ' ' << at.right << ' ' << at.bottom;                              \
    } while (false)

TEST(Paint, RequestsMergeIntoOneMessage) {
    ShownHost host;
    const RECT a = {10, 10, 20, 20}, b = {50, 5, 60, 15};
    InvalidateRect(host.wnd, &a, FALSE);
    InvalidateRect(host.wnd, &b, FALSE);
    EXPECT_UPDATE(host.wnd, 10, 5, 60, 20);
    EXPECT_EQ(host.names(), (std::vector<UINT>{WM_PAINT}));
    EXPECT_FALSE(GetUpdateRect(host.wnd, nullptr, FALSE));
}

TEST(Paint, RequestsAreCutToTheWindow) {
    ShownHost host;
    const RECT beyond = {-50, 90, 5000, 5000}, outside = {200, 0, 300, 100};
    InvalidateRect(host.wnd, &outside, FALSE);
    EXPECT_FALSE(GetUpdateRect(host.wnd, nullptr, FALSE));
    InvalidateRect(host.wnd, &beyond, FALSE);
    EXPECT_UPDATE(host.wnd, 0, 90, 200, 100);
}

TEST(Paint, ComesAgainUntilItIsValidated) {
    ShownHost host;
    int paints = 0;
    host.answer = [&](UINT message, WPARAM, LPARAM, LRESULT* result) {
        if (message != WM_PAINT) return false;
        if (++paints == 3) ValidateRect(host.wnd, nullptr);
        *result = 0;
        return true;
    };
    InvalidateRect(host.wnd, nullptr, TRUE);
    host.run();
    EXPECT_EQ(paints, 3);
}

TEST(Paint, ValidationTakesAPartAway) {
    ShownHost host;
    InvalidateRect(host.wnd, nullptr, FALSE);
    const RECT top = {0, 0, 200, 30}, right = {150, 0, 200, 100}, corner = {0, 30, 20, 50},
               rest = {-5, -5, 500, 500};
    ValidateRect(host.wnd, &top);
    EXPECT_UPDATE(host.wnd, 0, 30, 200, 100);
    ValidateRect(host.wnd, &right);
    EXPECT_UPDATE(host.wnd, 0, 30, 150, 100);
    ValidateRect(host.wnd, &corner); // what is left would be no rectangle
    EXPECT_UPDATE(host.wnd, 0, 30, 150, 100);
    ValidateRect(host.wnd, &rest);
    EXPECT_FALSE(GetUpdateRect(host.wnd, nullptr, FALSE));
}

TEST(Paint, BeginPaintTellsThePartAndValidatesIt) {
    ShownHost host;
    const RECT part = {10, 20, 30, 40};
    InvalidateRect(host.wnd, &part, FALSE);
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(host.wnd, &paint);
    EXPECT_EQ(dc, paint.hdc);
    EXPECT_TRUE(EqualRect(&paint.rcPaint, &part));
    EXPECT_FALSE(paint.fErase);
    EXPECT_FALSE(GetUpdateRect(host.wnd, nullptr, FALSE));
    EXPECT_TRUE(EndPaint(host.wnd, &paint));
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 0); // it is gone
}

TEST(Paint, TheBackgroundIsErasedInThePartThatIsPainted) {
    ShownHost host;
    raster::Canvas& canvas = *platform::window_canvas(host.wnd);
    std::fill_n(canvas.pixels, canvas.pitch * canvas.height, 0x112233u);
    const RECT part = {10, 20, 30, 40};
    InvalidateRect(host.wnd, &part, TRUE);
    host.run();
    for (int y = 0; y < canvas.height; y++) {
        for (int x = 0; x < canvas.width; x++) {
            const bool inside = x >= 10 && x < 30 && y >= 20 && y < 40;
            ASSERT_EQ(canvas.pixels[y * canvas.pitch + x], inside ? 0xFFFFFFu : 0x112233u) << x << ' ' << y;
        }
    }
}

TEST(Paint, AHostThatErasesByItselfIsBelieved) {
    ShownHost host;
    LRESULT erased = 0;
    host.answer = [&](UINT message, WPARAM, LPARAM, LRESULT* result) {
        *result = erased;
        return message == WM_ERASEBKGND;
    };
    for (const LRESULT answer : {0, 1}) {
        erased = answer;
        InvalidateRect(host.wnd, nullptr, TRUE);
        PAINTSTRUCT paint;
        BeginPaint(host.wnd, &paint);
        EXPECT_EQ(paint.fErase, answer == 0);
        EndPaint(host.wnd, &paint);
    }
}

TEST(Paint, UpdateWindowPaintsAtOnce) {
    ShownHost host;
    EXPECT_TRUE(UpdateWindow(host.wnd));
    EXPECT_TRUE(host.heard.empty());
    InvalidateRect(host.wnd, nullptr, FALSE);
    EXPECT_TRUE(UpdateWindow(host.wnd));
    ASSERT_EQ(host.heard.size(), 1u);
    EXPECT_EQ(host.heard[0].message, static_cast<UINT>(WM_PAINT));
}

TEST(Paint, HiddenAndMinimizedWindowsAreNotAsked) {
    Host hidden;
    hidden.run();
    InvalidateRect(hidden.wnd, nullptr, TRUE);
    UpdateWindow(hidden.wnd);
    EXPECT_TRUE(hidden.run().empty());
    ShownHost shown;
    ShowWindow(shown.wnd, SW_MINIMIZE);
    shown.run();
    InvalidateRect(shown.wnd, nullptr, TRUE);
    EXPECT_TRUE(shown.run().empty());
    ShowWindow(shown.wnd, SW_RESTORE);
    EXPECT_EQ(shown.run(WM_PAINT, WM_PAINT).size(), 1u);
}

TEST(Paint, NoWindowMeansAllOfThem) {
    ShownHost first, second;
    first.run();
    EXPECT_TRUE(InvalidateRect(nullptr, nullptr, TRUE));
    first.run();
    EXPECT_FALSE(GetUpdateRect(first.wnd, nullptr, FALSE));
    EXPECT_FALSE(GetUpdateRect(second.wnd, nullptr, FALSE));
    EXPECT_EQ(second.heard.empty(), false);
}

TEST(Paint, AResizeAsksForEverything) {
    ShownHost host;
    platform::desktop_resize(host.wnd, 70, 60);
    EXPECT_UPDATE(host.wnd, 0, 0, 70, 60);
    platform::desktop_resize(host.wnd, 30, 80); // with that request still waiting
    EXPECT_UPDATE(host.wnd, 0, 0, 30, 80);
}

TEST(Paint, BadArgumentsAreHarmless) {
    Host host;
    EXPECT_EQ(BeginPaint(host.wnd, nullptr), nullptr);
    EXPECT_FALSE(EndPaint(host.wnd, nullptr));
    PAINTSTRUCT paint{};
    EXPECT_TRUE(EndPaint(host.wnd, &paint));
}
