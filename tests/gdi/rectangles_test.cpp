#include <gtest/gtest.h>

#include "boards.h"
#include "raster/shapes.h"

using namespace boards;

// At least `smallest` pixels each way.
static raster::Rect rectangle(Random& random, int smallest) {
    const raster::Point corner = random.point();
    const int most = random.one_in(8) ? 60000000 : 60;
    return {corner.x, corner.y, corner.x + random.between(smallest, most),
            corner.y + random.between(smallest, most)};
}

static std::string told(const char* what, const raster::Rect& rect) {
    return text("%s %d,%d to %d,%d", what, rect.left, rect.top, rect.right, rect.bottom);
}

TEST(GdiRectangles, Filled) {
    EXPECT_EQ(compare(10, 3000,
                      [](Pair& pair, Random& random) {
                          const raster::Rect rect = rectangle(random, 0);
                          const RECT same{rect.left, rect.top, rect.right, rect.bottom};
                          const std::uint32_t color = random.color();
                          const HBRUSH brush = CreateSolidBrush(reference(color));
                          FillRect(pair.gdi.dc, &same, brush);
                          DeleteObject(brush);
                          raster::fill_rectangle(pair.canvas, pair.clip, rect, color);
                          return told("filled", rect);
                      }),
              "");
}

TEST(GdiRectangles, FramedByABrush) {
    EXPECT_EQ(compare(11, 2000,
                      [](Pair& pair, Random& random) {
                          const raster::Rect rect = rectangle(random, 0);
                          const RECT same{rect.left, rect.top, rect.right, rect.bottom};
                          const std::uint32_t color = random.color();
                          const HBRUSH brush = CreateSolidBrush(reference(color));
                          FrameRect(pair.gdi.dc, &same, brush);
                          DeleteObject(brush);
                          raster::frame_rectangle(pair.canvas, pair.clip, rect, color);
                          return told("frame", rect);
                      }),
              "");
}

// GDI's Rectangle paints nothing for a single pixel, where the frame here is that pixel, as FrameRect has it.
TEST(GdiRectangles, FramedByAPen) {
    EXPECT_EQ(compare(12, 2000,
                      [](Pair& pair, Random& random) {
                          const raster::Rect rect = rectangle(random, 2);
                          const std::uint32_t color = random.color();
                          const Selected pen(pair.gdi.dc, CreatePen(PS_SOLID, 1, reference(color)));
                          const Selected brush(pair.gdi.dc, GetStockObject(NULL_BRUSH));
                          Rectangle(pair.gdi.dc, rect.left, rect.top, rect.right, rect.bottom);
                          raster::frame_rectangle(pair.canvas, pair.clip, rect, color);
                          return told("rectangle", rect);
                      }),
              "");
}
