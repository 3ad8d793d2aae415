// Device contexts that draw: on a window, and on a canvas with Y upward.

#include "host.h"
#include "platform/portable/surface.h"
#include "raster/shapes.h"

class Context : public testing::Test {
  protected:
    std::uint32_t pixel(int x, int y) { return canvas().pixels[y * canvas().pitch + x]; }
    raster::Canvas& canvas() { return *platform::window_canvas(host.wnd); }
    int painted() {
        int count = 0;
        for (int y = 0; y < canvas().height; y++) {
            for (int x = 0; x < canvas().width; x++)
                count += pixel(x, y) != 0;
        }
        return count;
    }

    // A context as the drawing layer has it: it lasts, and is told what it draws on.
    HDC canvas_context(int x = 0, int y = 0) {
        const HDC dc = platform::canvas_dc_create();
        platform::canvas_dc_state(dc)->wnd = host.wnd;
        platform::canvas_dc_clip(dc, nullptr);
        platform::canvas_dc_state(dc)->position = {x, y};
        SelectObject(dc, GetStockObject(WHITE_PEN));
        return dc;
    }

    Host host;
};

TEST_F(Context, DrawsOnItsWindowWithTheSelectedPen) {
    const HDC dc = GetDC(host.wnd);
    const HPEN red = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    const HGDIOBJ old = SelectObject(dc, red);
    EXPECT_EQ(old, GetStockObject(BLACK_PEN));
    POINT before = {9, 9};
    EXPECT_TRUE(MoveToEx(dc, 10, 20, &before));
    EXPECT_TRUE(before.x == 0 && before.y == 0);
    EXPECT_TRUE(LineTo(dc, 15, 20));
    EXPECT_EQ(painted(), 5);
    EXPECT_EQ(pixel(10, 20), 0xFF0000u);
    EXPECT_EQ(pixel(14, 20), 0xFF0000u);
    MoveToEx(dc, 0, 0, &before);
    EXPECT_TRUE(before.x == 15 && before.y == 20);
    EXPECT_EQ(SelectObject(dc, old), red);
    EXPECT_TRUE(DeleteObject(red));
    EXPECT_TRUE(ReleaseDC(host.wnd, dc));
    EXPECT_FALSE(ReleaseDC(host.wnd, dc));
}

TEST_F(Context, OfACanvasRunsUpwardFromTheLowerLeftCorner) {
    const HDC dc = canvas_context();
    LineTo(dc, 0, 3);
    EXPECT_EQ(pixel(0, 99), 0xFFFFFFu);
    EXPECT_EQ(pixel(0, 97), 0xFFFFFFu);
    EXPECT_EQ(painted(), 3);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, StaysWithinItsClip) {
    const HDC dc = canvas_context();
    const raster::Rect clip = {5, 0, 8, 100};
    platform::canvas_dc_clip(dc, &clip);
    LineTo(dc, 150, 0);
    EXPECT_EQ(painted(), 3);
    platform::canvas_dc_clip(dc, nullptr);
    platform::canvas_dc_state(dc)->position = {0, 5};
    LineTo(dc, 150, 5);
    EXPECT_EQ(painted(), 153);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, AFullCircleEndsWhereItBegan) {
    const HDC dc = canvas_context(60, 40);
    EXPECT_TRUE(AngleArc(dc, 50, 40, 10, 0, 360));
    POINT at;
    MoveToEx(dc, 0, 0, &at);
    EXPECT_TRUE(at.x == 60 && at.y == 40) << at.x << ' ' << at.y;
    // Its square, 20 by 20 about (50, 40) with Y upward, without the far edges.
    // The last pixel of the turn stays unpainted, as GDI leaves it.
    EXPECT_TRUE(pixel(40, 59) && pixel(50, 49) && pixel(50, 68));
    EXPECT_TRUE(pixel(59, 58) && pixel(59, 60) && !pixel(59, 59));
    for (int i = 0; i < 100; i++)
        EXPECT_FALSE(pixel(39, i) || pixel(61, i) || pixel(i, 48) || pixel(i, 70));
    EXPECT_FALSE(pixel(50, 59));
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, AnArcOfAWindowIsThatOfTheCanvas) {
    const HDC dc = GetDC(host.wnd);
    SelectObject(dc, GetStockObject(WHITE_PEN));
    MoveToEx(dc, 100, 50, nullptr);
    EXPECT_TRUE(AngleArc(dc, 100, 50, 30, 30, 100));
    std::vector<std::uint32_t> other(static_cast<std::size_t>(canvas().pitch * canvas().height));
    raster::Canvas beside = {other.data(), canvas().width, canvas().height, canvas().pitch};
    raster::angle_arc(beside, {0, 0, 200, 100}, {100, 50}, {100, 50}, 30, 30, 100, 1, 0xFFFFFF);
    EXPECT_GT(painted(), 20);
    EXPECT_TRUE(std::equal(other.begin(), other.end(), canvas().pixels));
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, ArcsThatMakeNoSenseAreRefused) {
    const HDC dc = GetDC(host.wnd);
    EXPECT_FALSE(AngleArc(dc, 0, 0, 0xFFFFFFFF, 0, 360));
    EXPECT_FALSE(AngleArc(dc, 2147483647, 0, 5, 0, 360));
    EXPECT_FALSE(AngleArc(dc, 0, 0, 5, std::numeric_limits<float>::quiet_NaN(), 360));
    EXPECT_FALSE(AngleArc(dc, 0, 0, 5, 0, std::numeric_limits<float>::infinity()));
    EXPECT_FALSE(AngleArc(nullptr, 0, 0, 5, 0, 360));
    EXPECT_EQ(painted(), 0);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, NoPenDrawsNothing) {
    const HDC dc = GetDC(host.wnd);
    SelectObject(dc, GetStockObject(NULL_PEN));
    LineTo(dc, 50, 50);
    EXPECT_EQ(painted(), 0);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, APenThatWasDeletedWhileSelectedIsBlack) {
    std::fill_n(canvas().pixels, canvas().pitch * canvas().height, 0xFFFFFFu);
    const HDC dc = GetDC(host.wnd);
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
    SelectObject(dc, pen);
    DeleteObject(pen);
    LineTo(dc, 5, 0);
    EXPECT_EQ(pixel(2, 0), 0u);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, FollowsItsWindowThroughAResizeAndItsEnd) {
    const HDC dc = GetDC(host.wnd);
    SelectObject(dc, GetStockObject(WHITE_PEN));
    platform::desktop_resize(host.wnd, 300, 300);
    MoveToEx(dc, 250, 250, nullptr);
    LineTo(dc, 255, 250);
    EXPECT_EQ(painted(), 5);
    DestroyWindow(host.wnd);
    EXPECT_TRUE(LineTo(dc, 0, 0)); // nothing is left to draw on
    EXPECT_TRUE(ReleaseDC(host.wnd, dc));
}

TEST_F(Context, RectanglesAreFilledUpToTheirFarEdges) {
    const HDC dc = GetDC(host.wnd);
    const HBRUSH blue = CreateSolidBrush(RGB(0, 0, 255));
    const RECT area = {10, 20, 13, 24};
    EXPECT_TRUE(FillRect(dc, &area, blue));
    EXPECT_EQ(painted(), 12);
    EXPECT_EQ(pixel(10, 20), 0xFFu);
    EXPECT_EQ(pixel(12, 23), 0xFFu);
    EXPECT_TRUE(FillRect(dc, &area, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1)));
    EXPECT_EQ(pixel(10, 20), 0xF0F0F0u);
    EXPECT_FALSE(FillRect(dc, nullptr, blue));
    DeleteObject(blue);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, SelectingTakesEachKindToItsPlace) {
    const HDC dc = GetDC(host.wnd);
    const HBRUSH brush = CreateSolidBrush(1);
    EXPECT_EQ(SelectObject(dc, brush), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT)), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(SelectObject(dc, GetStockObject(BLACK_BRUSH)), brush);
    EXPECT_EQ(SelectObject(dc, nullptr), nullptr);
    EXPECT_EQ(SelectObject(nullptr, brush), nullptr);
    DeleteObject(brush);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, WrongContextsAreHarmless) {
    POINT point = {};
    XFORM form = {};
    for (const HDC dc : {HDC(), reinterpret_cast<HDC>(&point), reinterpret_cast<HDC>(host.wnd)}) {
        EXPECT_FALSE(MoveToEx(dc, 0, 0, nullptr));
        EXPECT_FALSE(LineTo(dc, 0, 0));
        EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 0);
        EXPECT_EQ(SetGraphicsMode(dc, GM_ADVANCED), 0);
        EXPECT_FALSE(SetWorldTransform(dc, &form));
        EXPECT_FALSE(ModifyWorldTransform(dc, &form, MWT_IDENTITY));
        EXPECT_FALSE(SetViewportOrgEx(dc, 0, 0, &point));
        EXPECT_FALSE(SetWindowOrgEx(dc, 0, 0, &point));
        EXPECT_FALSE(DPtoLP(dc, &point, 1));
        EXPECT_FALSE(LPtoDP(dc, &point, 1));
        EXPECT_FALSE(ReleaseDC(nullptr, dc));
        EXPECT_EQ(platform::canvas_dc_state(dc), nullptr);
        platform::canvas_dc_clip(dc, nullptr);
    }
}

TEST_F(Context, TransformsNeedTheAdvancedMode) {
    const HDC dc = GetDC(host.wnd);
    const XFORM scale = {2, 0, 0, 3, 1, -1};
    EXPECT_FALSE(SetWorldTransform(dc, &scale));
    EXPECT_FALSE(ModifyWorldTransform(dc, &scale, MWT_LEFTMULTIPLY));
    POINT point = {10, 10};
    LPtoDP(dc, &point, 1);
    EXPECT_TRUE(point.x == 10 && point.y == 10);
    ReleaseDC(host.wnd, dc);
}

TEST_F(Context, ATransformWithoutInverseIsRefused) {
    const HDC dc = GetDC(host.wnd);
    SetGraphicsMode(dc, GM_ADVANCED);
    const XFORM flat = {1, 1, 1, 1, 0, 0};
    EXPECT_TRUE(SetWorldTransform(dc, &flat));
    POINT point = {1, 1};
    EXPECT_FALSE(DPtoLP(dc, &point, 1));
    EXPECT_FALSE(DPtoLP(dc, nullptr, 1));
    ReleaseDC(host.wnd, dc);
}
