#include "raster/shapes.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include <brask/fenn.h>

#include "fenn/painter.h"
#include "raster/images.h"
#include "text/guarded.h"

// Lines, rectangles, polygons and pictures: from the contract's coordinates and words to the raster's.

namespace fenn {
namespace {

raster::Point place(const Bracket& on, int x, int y) { return {limit(x), flip(on.canvas, y)}; }

raster::Rect bounds(raster::Point a, raster::Point b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
}

void draw_line(const Bracket& on, raster::Point from, raster::Point to) {
    raster::line(on.canvas, on.clip, from, to, pixel_of(Current_Color));
    changed(bounds(from, to));
}

// The points of a polygon on the canvas; few enough are kept without allocation.
class Points {
  public:
    Points(const Bracket& on, int count, const int* xs, const int* ys) {
        if (count > few) many.resize(static_cast<std::size_t>(count));
        at = count > few ? many.data() : buffer;
        for (int i = 0; i < count; ++i)
            at[i] = place(on, xs[i], ys[i]);
    }
    const raster::Point* data() const { return at; }

  private:
    static constexpr int few = 32;
    raster::Point buffer[few];
    std::vector<raster::Point> many;
    raster::Point* at;
};

int fill_polygon(const Bracket& on, int count, const int* xs, const int* ys) {
    const Points points(on, count, xs, ys);
    raster::fill_polygon(on.canvas, on.clip, points.data(), count, pixel_of(Current_Color));
    raster::Rect all = bounds(points.data()[0], points.data()[0]);
    for (int i = 1; i < count; ++i) {
        const raster::Point point = points.data()[i];
        all = {std::min(all.left, point.x), std::min(all.top, point.y), std::max(all.right, point.x + 1),
               std::max(all.bottom, point.y + 1)};
    }
    changed(all);
    return count;
}

// One axis of a picture: the part of the window `size` from `source` that lies in the image.
struct Stretch {
    std::int64_t skipped; // cut off before it
    std::int64_t source, size;
};

Stretch inside(int source, int size, int image) {
    const std::int64_t begin = std::max(source, 0);
    const std::int64_t end = std::min<std::int64_t>(std::int64_t{source} + size, image);
    return {begin - source, begin, end - begin};
}

} // namespace
} // namespace fenn

using namespace fenn;

FENN_API void move2s(unsigned int x, unsigned int y) { set_pen(static_cast<int>(x), static_cast<int>(y)); }

FENN_API void draw2s(unsigned int x, unsigned int y, int) {
    const raster::Point from{pen().x, pen().y};
    set_pen(static_cast<int>(x), static_cast<int>(y));
    if (const Bracket* const on = bracket())
        draw_line(*on, place(*on, from.x, from.y), place(*on, static_cast<int>(x), static_cast<int>(y)));
}

FENN_API void draw_rectangle(int left, int top, int right, int bottom) {
    const Bracket* const on = bracket();
    if (!on) return;
    const raster::Rect rect = bounds(place(*on, left, top), place(*on, right, bottom));
    raster::frame_rectangle(on->canvas, on->clip, rect, pixel_of(Current_Color));
    changed(rect);
}

FENN_API void draw_fill_rectangle(int left, int top, int right, int bottom) {
    const Bracket* const on = bracket();
    if (!on) return;
    const raster::Point upper = place(*on, left, top);
    const raster::Point lower = place(*on, right, bottom);
    const raster::Rect rect{upper.x, upper.y, lower.x, lower.y};
    raster::fill_rectangle(on->canvas, on->clip, rect, pixel_of(Current_Color));
    changed(rect);
}

FENN_API void draw_polygon(int count, const int* xs, const int* ys) {
    if (count < 1 || !xs || !ys) return;
    if (const Bracket* const on = bracket())
        for (int i = 1; i < count; ++i)
            draw_line(*on, place(*on, xs[i - 1], ys[i - 1]), place(*on, xs[i], ys[i]));
    set_pen(xs[count - 1], ys[count - 1]);
}

FENN_API void draw_fill_polygon(int count, const int* xs, const int* ys) {
    const Bracket* const on = bracket();
    if (!on || count < 1 || !xs || !ys) return;
    text::guarded(0, [=] { return fill_polygon(*on, count, xs, ys); });
}

FENN_API void draw_image(const char* pixels, int x, int y, int source_x, int source_y, int width, int height,
                         int image_width, int image_height, unsigned int background) {
    const Bracket* const on = bracket();
    if (!on || !pixels || width < 1 || height < 1) return;
    const Stretch columns = inside(source_x, width, image_width);
    const Stretch rows = inside(source_y, height, image_height);
    if (columns.size < 1 || rows.size < 1) return;
    const std::int64_t left = x + columns.skipped;
    const std::int64_t top = std::int64_t{on->canvas.height} - y - height + rows.skipped;
    if (left != limit(left) || top != limit(top)) return; // far outside: nothing of it can be seen

    const auto words = reinterpret_cast<const std::uint32_t*>(pixels);
    const raster::Image image{words, image_width, image_height, image_width};
    const raster::Point to{static_cast<int>(left), static_cast<int>(top)};
    const raster::Point from{static_cast<int>(columns.source), static_cast<int>(rows.source)};
    const int wide = static_cast<int>(columns.size);
    const int high = static_cast<int>(rows.size);
    if (background == 0)
        raster::copy(on->canvas, on->clip, to, image, from, wide, high);
    else
        raster::blend(on->canvas, on->clip, to, image, from, wide, high, pixel_of(background));
    changed({to.x, to.y, limit(left + wide), limit(top + high)});
}
