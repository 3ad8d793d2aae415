"""A small canvas for icons: shapes with soft edges, painted one over the other.

Coordinates are pixels from the upper left, Y downward. A shape is a function (x, y) -> bool; a paint is a colour
(red, green, blue) or (red, green, blue, alpha), 0 to 255 each, or a function (x, y) -> such a colour.
"""
import math

FINE = 8  # samples of a pixel along each axis


def rect(left, top, right, bottom):
    return lambda x, y: left <= x < right and top <= y < bottom


def rounded(left, top, right, bottom, radius):
    def inside(x, y):
        if not (left <= x < right and top <= y < bottom):
            return False
        dx = max(left + radius - x, x - (right - radius), 0)
        dy = max(top + radius - y, y - (bottom - radius), 0)
        return dx * dx + dy * dy <= radius * radius
    return inside


def disc(cx, cy, radius):
    return lambda x, y: (x - cx) ** 2 + (y - cy) ** 2 <= radius * radius


def ring(cx, cy, outer, inner):
    return lambda x, y: inner * inner < (x - cx) ** 2 + (y - cy) ** 2 <= outer * outer


def polygon(*points):
    def inside(x, y):
        hit = False
        for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]):
            if (y1 > y) != (y2 > y) and x < (x2 - x1) * (y - y1) / (y2 - y1) + x1:
                hit = not hit
        return hit
    return inside


def stroke(x1, y1, x2, y2, width):
    """A line with round ends."""
    def inside(x, y):
        dx, dy = x2 - x1, y2 - y1
        t = max(0, min(1, ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy)))
        return math.hypot(x - x1 - t * dx, y - y1 - t * dy) <= width / 2
    return inside


def both(a, b):
    return lambda x, y: a(x, y) and b(x, y)


def either(*shapes):
    return lambda x, y: any(shape(x, y) for shape in shapes)


def without(a, b):
    return lambda x, y: a(x, y) and not b(x, y)


def blend(t, first, last):
    t = max(0, min(1, t))
    return tuple(a + (b - a) * t for a, b in zip(first, last))


def down(top, bottom, first, last):
    """From one colour at the top to another at the bottom."""
    return lambda x, y: blend((y - top) / (bottom - top), first, last)


def slanted(left, top, right, bottom, first, last):
    """From one colour at the upper left to another at the lower right."""
    return lambda x, y: blend(((x - left) / (right - left) + (y - top) / (bottom - top)) / 2, first, last)


class Canvas:
    def __init__(self, width, height):
        self.width, self.height = width, height
        self.pixels = [[(0.0, 0.0, 0.0, 0.0)] * width for _ in range(height)]  # alpha 0 to 1, colour not multiplied

    def paint(self, shape, paint):
        for row in range(self.height):
            for column in range(self.width):
                self._paint_pixel(column, row, shape, paint)

    def _paint_pixel(self, column, row, shape, paint):
        hits = [(column + (i + 0.5) / FINE, row + (j + 0.5) / FINE) for j in range(FINE) for i in range(FINE)]
        hits = [hit for hit in hits if shape(*hit)]
        if not hits:
            return
        colour = paint(column + 0.5, row + 0.5) if callable(paint) else paint
        cover = len(hits) / FINE ** 2 * (colour[3] / 255 if len(colour) > 3 else 1)
        under = self.pixels[row][column]
        alpha = cover + under[3] * (1 - cover)
        mixed = [(c * cover + u * under[3] * (1 - cover)) / alpha for c, u in zip(colour[:3], under)]
        self.pixels[row][column] = (*mixed, alpha)

    def words(self):
        """Red, green, blue, alpha of each pixel, 0 to 255, row after row from the top."""
        return [[tuple(round(c) for c in pixel[:3]) + (round(pixel[3] * 255),) for pixel in row] for row in self.pixels]
