#ifndef RASTER_PEN_H
#define RASTER_PEN_H

#include <cstdint>
#include <vector>

#include "canvas.h"

namespace raster {

// A round pen: what it paints is its disc, put down at each pixel of its way.
class Pen {
  public:
    // A width below 1 counts as 1, one above 255 as 255.
    Pen(const Canvas& canvas, const Rect& clip, int width, std::uint32_t color);

    bool is_wide() const { return disc.size() > 1; }
    void put(std::int64_t x, std::int64_t y) const;
    // The line from the first point up to the second; a wide pen rounds both ends.
    void draw(Point from, Point to) const;

  private:
    void stamp(int x, int y) const;

    // A row of the disc, from the pixel put down.
    struct Row {
        int left, right;
    };

    Canvas canvas;
    Rect area;
    Rect reach; // where putting it down paints anything at all
    std::uint32_t color;
    std::vector<Row> disc;
};

} // namespace raster

#endif
