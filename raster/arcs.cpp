#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "pen.h"
#include "shapes.h"

// GDI draws the circle into a box of 2 * radius pixels a side that begins at centre - radius. Its middle is
// therefore a corner between four pixels: the upper left corner of the centre's own pixel.
namespace raster {
namespace {

constexpr double pi = 3.14159265358979323846;
constexpr std::uint32_t most_radius = 0x8000;

// A direction or a distance from the middle, y upward. A pixel's distance counts from the innermost pixel of
// its quarter, which has 0, 0.
struct Away {
    std::int64_t x, y;
};

std::int64_t cross(Away a, Away b) { return a.x * b.y - a.y * b.x; }

// The end of an arc, to the nearest integers, halves to the right and downward.
Away end_at(Point center, std::uint32_t radius, double degrees) {
    const double angle = degrees * pi / 180.0;
    return {static_cast<std::int64_t>(std::floor(center.x + std::cos(angle) * radius + 0.5)) - center.x,
            center.y - static_cast<std::int64_t>(std::floor(center.y - std::sin(angle) * radius + 0.5))};
}

// A quarter of the circle, from its lower right pixel to its upper left one.
std::vector<Away> quarter_circle(std::int64_t radius) {
    const auto square = [](std::int64_t value) { return value * value; };
    std::vector<Away> pixels;
    std::int64_t x = radius - 1;
    for (std::int64_t y = 0; y <= x; ++y) {
        // In each row the pixel nearest to the circle, of two equally near ones the inner one.
        while (x > 0 && square(2 * y + 1) + square(2 * x) >= square(2 * radius - 1))
            --x;
        if (x >= y) pixels.push_back({x, y});
    }
    for (std::size_t i = pixels.size(); i-- > 0;)
        if (pixels[i].x != pixels[i].y) pixels.push_back({pixels[i].y, pixels[i].x});
    return pixels;
}

// The circle's pixels, numbered counterclockwise from the one just above the middle on the right.
class Circle {
  public:
    explicit Circle(std::uint32_t radius) : quarter(quarter_circle(radius)) {}
    std::size_t size() const { return 4 * quarter.size(); }

    Away distance(std::size_t number) const {
        const Away pixel = in_quarter(number);
        return {is_right(number) ? pixel.x : -pixel.x, is_upper(number) ? pixel.y : -pixel.y};
    }
    // On the canvas.
    Away place(std::size_t number, Point center) const {
        const Away pixel = in_quarter(number);
        return {center.x + (is_right(number) ? pixel.x : -pixel.x - 1),
                center.y + (is_upper(number) ? -pixel.y - 1 : pixel.y)};
    }
    // The first pixel that an arc in this direction begins with. A pixel that lies exactly there belongs to
    // it in the upper half and does not in the lower.
    std::size_t first_at(Away ray, bool clockwise) const {
        const bool upper = ray.y > 0 || (ray.y == 0 && !(clockwise && ray.x < 0));
        std::size_t number = quarter.size() * (upper ? (ray.x < 0 ? 1 : 0) : (ray.x < 0 ? 2 : 3));
        for (std::size_t left = quarter.size(); left > 0; --left, ++number) {
            const std::int64_t turn = cross(distance(number), ray);
            if (turn < 0 || (turn == 0 && upper)) break;
        }
        return number % size();
    }

  private:
    Away in_quarter(std::size_t number) const {
        const std::size_t within = number % quarter.size();
        return quarter[number / quarter.size() % 2 ? quarter.size() - 1 - within : within];
    }
    bool is_right(std::size_t number) const {
        return number < quarter.size() || number >= 3 * quarter.size();
    }
    bool is_upper(std::size_t number) const { return number < 2 * quarter.size(); }

    std::vector<Away> quarter;
};

int held(std::int64_t value) {
    return static_cast<int>(std::min<std::int64_t>(std::max<std::int64_t>(value, INT_MIN), INT_MAX));
}

// The part of the circle that is drawn: `count` pixels from `first`, of which a thin pen leaves out the last.
struct Part {
    std::size_t first, count;
};

Part part_of(const Circle& circle, Away start, Away end, float sweep) {
    const bool clockwise = sweep < 0;
    const std::size_t size = circle.size();
    const std::size_t from = circle.first_at(start, clockwise);
    const std::size_t to = circle.first_at(end, clockwise);
    const std::size_t count = (clockwise ? from + size - to : to + size - from) % size;
    const bool whole = std::abs(sweep) >= 360 || (count == 0 && std::abs(sweep) > 180);
    return {clockwise ? (from + size - 1) % size : from, whole ? size : count};
}

} // namespace

Point angle_arc(const Canvas& canvas, const Rect& clip, Point from, Point center, std::uint32_t radius,
                float start, float sweep, int pen_width, std::uint32_t color) {
    if (!std::isfinite(start) || !std::isfinite(start + sweep) || radius > most_radius) return from;
    const Away end = end_at(center, radius, start + sweep);
    const Point stop = {held(center.x + end.x), held(center.y - end.y)};
    if (radius == 0) return stop;

    const Circle circle(radius);
    const Part part = part_of(circle, end_at(center, radius, start), end, sweep);
    const Pen pen(canvas, clip, pen_width, color);
    const Away first = circle.place(part.first, center);
    pen.draw(from, {held(first.x), held(first.y)});
    const std::size_t step = sweep < 0 ? circle.size() - 1 : 1;
    const std::size_t painted = pen.is_wide() || part.count == 0 ? part.count : part.count - 1;
    std::size_t number = part.first;
    for (std::size_t i = 0; i < painted; ++i) {
        const Away at = circle.place(number, center);
        pen.put(at.x, at.y);
        number = (number + step) % circle.size();
    }
    return stop;
}

} // namespace raster
