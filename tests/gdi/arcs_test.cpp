#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "boards.h"
#include "raster/shapes.h"

using namespace boards;

namespace {

struct Curve {
    raster::Point from, center;
    int radius;
    float start, sweep;
};

std::string told(const Curve& arc) {
    return text("arc from %d,%d around %d,%d radius %d start %g sweep %g", arc.from.x, arc.from.y,
                arc.center.x, arc.center.y, arc.radius, static_cast<double>(arc.start),
                static_cast<double>(arc.sweep));
}

Curve curve(Random& random, int smallest, int largest) {
    const float start =
        random.one_in(3) ? random.between(-12, 12) * 45.0f : random.between(-7200, 7200) / 10.0f;
    const float sweep = random.one_in(3) ? random.between(1, 8) * 45.0f : random.between(300, 3300) / 10.0f;
    return {{random.between(-20, WIDTH + 20), random.between(-20, HEIGHT + 20)},
            {random.between(-20, WIDTH + 20), random.between(-20, HEIGHT + 20)},
            random.between(smallest, largest),
            start,
            random.one_in(2) ? sweep : -sweep};
}

// Draws it on both; the end of the pen must be the same too.
std::string draw(Pair& pair, const Curve& arc, int width, std::uint32_t color) {
    const Selected pen(pair.gdi.dc, CreatePen(PS_SOLID, width, reference(color)));
    MoveToEx(pair.gdi.dc, arc.from.x, arc.from.y, nullptr);
    AngleArc(pair.gdi.dc, arc.center.x, arc.center.y, static_cast<DWORD>(arc.radius), arc.start, arc.sweep);
    POINT end{};
    GetCurrentPositionEx(pair.gdi.dc, &end);
    const raster::Point own =
        raster::angle_arc(pair.canvas, pair.clip, arc.from, arc.center,
                          static_cast<std::uint32_t>(arc.radius), arc.start, arc.sweep, width, color);
    EXPECT_EQ(own.x, end.x) << told(arc);
    EXPECT_EQ(own.y, end.y) << told(arc);
    return told(arc);
}

} // namespace

TEST(GdiArcs, ThinPen) {
    EXPECT_EQ(compare(40, 5000,
                      [](Pair& pair, Random& random) {
                          const Curve a = curve(random, 5, random.one_in(4) ? 400 : 40);
                          return draw(pair, a, 1, random.color());
                      }),
              "");
}

// Where GDI rounds the same place after a full turn to the same pixel; otherwise it draws next to nothing.
TEST(GdiArcs, WholeCircles) {
    EXPECT_EQ(compare(41, 2000,
                      [](Pair& pair, Random& random) {
                          Curve a = curve(random, 0, 40);
                          a.start = random.between(-16, 16) * 45.0f;
                          a.sweep = random.one_in(2) ? 360.0f : -360.0f;
                          return draw(pair, a, 1, random.color());
                      }),
              "");
}

// Draws it with GDI in a context whose Y runs upward, from and around the same pixels.
static void draw_upward(HDC dc, const Curve& curve) {
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, 1, 1, nullptr);
    SetViewportExtEx(dc, 1, -1, nullptr);
    SetViewportOrgEx(dc, 0, HEIGHT - 1, nullptr);
    MoveToEx(dc, curve.from.x, HEIGHT - 1 - curve.from.y, nullptr);
    AngleArc(dc, curve.center.x, HEIGHT - 1 - curve.center.y, static_cast<DWORD>(curve.radius), curve.start,
             curve.sweep);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetMapMode(dc, MM_TEXT);
}

// GDI mirrors where an arc begins and ends there, but not which way round it goes.
static float sweep_upward(float sweep) {
    if (std::abs(sweep) >= 360) return sweep;
    return sweep > 0 ? 360 - sweep : -360 - sweep;
}

static std::string draw_both_upward(Pair& pair, const Curve& a, std::uint32_t color) {
    const Selected pen(pair.gdi.dc, CreatePen(PS_SOLID, 1, reference(color)));
    draw_upward(pair.gdi.dc, a);
    raster::angle_arc(pair.canvas, pair.clip, a.from, a.center, static_cast<std::uint32_t>(a.radius),
                      -a.start, sweep_upward(a.sweep), 1, color);
    return told(a) + " with Y upward";
}

TEST(GdiArcs, CirclesWithYUpward) {
    EXPECT_EQ(compare(42, 1000,
                      [](Pair& pair, Random& random) {
                          Curve a = curve(random, 1, 40);
                          a.start = random.between(-8, 8) * 90.0f;
                          a.sweep = random.one_in(2) ? 360.0f : -360.0f;
                          return draw_both_upward(pair, a, random.color());
                      }),
              "");
}

// By quarters: in between, an end halfway between two pixels goes up in one context and down in the other.
TEST(GdiArcs, QuartersWithYUpward) {
    EXPECT_EQ(compare(46, 1000,
                      [](Pair& pair, Random& random) {
                          Curve a = curve(random, 2, 40);
                          a.start = random.between(-8, 8) * 90.0f;
                          a.sweep = random.between(1, 3) * (random.one_in(2) ? 90.0f : -90.0f);
                          return draw_both_upward(pair, a, random.color());
                      }),
              "");
}

// What differs from GDI on purpose, and how far it may go.
namespace {

constexpr int MARGIN = 2;

// The first pixel that one board has in the colour, while the other has none within the margin around it.
std::string far_apart(const Pair& pair, std::uint32_t color) {
    const auto lone = [color](const std::uint32_t* board, const std::uint32_t* other, int x, int y) {
        if ((board[y * WIDTH + x] & 0xFFFFFF) != color) return false;
        for (int row = y - MARGIN; row <= y + MARGIN; ++row)
            for (int column = x - MARGIN; column <= x + MARGIN; ++column)
                if ((other[row * WIDTH + column] & 0xFFFFFF) == color) return false;
        return true;
    };
    GdiFlush();
    for (int y = MARGIN; y < HEIGHT - MARGIN; ++y)
        for (int x = MARGIN; x < WIDTH - MARGIN; ++x)
            if (lone(pair.gdi.pixels, pair.own.data(), x, y) || lone(pair.own.data(), pair.gdi.pixels, x, y))
                return text(", at %d,%d", x, y);
    return {};
}

constexpr std::uint32_t RED = 0xFF0000;

void wipe(Pair& pair) {
    pair.clip_all();
    PatBlt(pair.gdi.dc, 0, 0, WIDTH, HEIGHT, WHITENESS);
    pair.level();
}

} // namespace

// GDI outlines a wide stroke by a polygon with rounded corners; the raster puts the pen's disc down at each
// pixel. Their borders lie within two pixels of each other.
TEST(GdiArcs, WidePensWithinTwoPixels) {
    Random random(43);
    Pair pair(random);
    for (int i = 0; i < 1000; ++i) {
        wipe(pair);
        const int width = random.between(2, 9);
        const std::string was = draw(pair, curve(random, 10, 40), width, RED);
        ASSERT_EQ(far_apart(pair, RED), "") << "seed " << random.seed() << ", " << was << " width " << width;
    }
}

// A circle of four pixels has too few of them to name directions by; which of the four an arc takes is GDI's
// secret. From the centre, the line to it stays within them as well.
TEST(GdiArcs, RadiusOneStaysWithinItsBox) {
    Random random(44);
    Pair pair(random);
    for (int i = 0; i < 1000; ++i) {
        wipe(pair);
        Curve a = curve(random, 1, 1);
        a.from = a.center = {random.between(1, WIDTH - 1), random.between(1, HEIGHT - 1)};
        const std::string was = draw(pair, a, 1, RED);
        GdiFlush();
        for (int y = 0; y < HEIGHT; ++y)
            for (int x = 0; x < WIDTH; ++x)
                ASSERT_TRUE(pair.same_at(x, y) || (x >= a.center.x - 1 && x <= a.center.x &&
                                                   y >= a.center.y - 1 && y <= a.center.y))
                    << "seed " << random.seed() << ", " << was << ", at " << x << "," << y;
    }
}

// A sweep so small that it holds no pixel is nothing here and a whole circle in GDI; more than a full turn is
// a whole circle here and only what exceeds it in GDI. Either way one board has all that the other has.
TEST(GdiArcs, TinyAndExcessiveSweeps) {
    Random random(45);
    Pair pair(random);
    for (int i = 0; i < 1000; ++i) {
        wipe(pair);
        const bool tiny = random.one_in(2);
        Curve a = curve(random, 2, 40);
        a.sweep = tiny ? random.between(0, 100) / 10.0f : random.between(3600, 7000) / 10.0f;
        const std::string was = draw(pair, a, 1, RED);
        GdiFlush();
        const std::uint32_t* fewer = tiny ? pair.own.data() : pair.gdi.pixels;
        const std::uint32_t* more = tiny ? pair.gdi.pixels : pair.own.data();
        for (int at = 0; at < WIDTH * HEIGHT; ++at)
            ASSERT_TRUE((fewer[at] & 0xFFFFFF) != RED || (more[at] & 0xFFFFFF) == RED)
                << "seed " << random.seed() << ", " << was << ", at " << at % WIDTH << "," << at / WIDTH;
    }
}
