"""What the controls must look like, worked out from the rules of the look and not from the library."""

import struct

BORDER = 3
GREY = (170, 170, 170)
DOWN = (130, 130, 130)  # a button's face while its value is not 0
RED, RED_DOWN = (230, 100, 100), (190, 60, 60)  # the face under the pointer
BLACK = (1, 0, 0)  # the drawing word 1, which stands for black
LAMPS = [(170, 170, 170), (0, 255, 0), (0, 0, 255), (255, 255, 0), (255, 0, 0)]


def clamp(value):
    return max(0, min(255, value))


def shade(color, by):
    return tuple(clamp(channel + by) for channel in color)


def single(value):
    """Rounded to single precision."""
    return struct.unpack("f", struct.pack("f", value))[0]


class Control:
    """Where a control stands in the window: the library's coordinates, the origin in the lower left corner."""

    def __init__(self, kind, x, y, width, height, name, window_height):
        self.kind, self.x, self.y, self.width, self.height, self.name = kind, x, y, width, height, name
        self.window_height = window_height

    def down(self, y):
        """A row of the window counted from above, as messages and pictures have it."""
        return self.window_height - 1 - y

    def spot(self):
        """Where to put the pointer, so that its picture covers none of the places that are looked at."""
        return self.x + self.width // 4, self.down(self.y + self.height // 2)

    def face_pixel(self, color, column, row, border=BORDER):
        """The shading of a face: darkest at the upper left, 200 steps to the lower right."""
        inner_width, inner_height = self.width - 2 * border, self.height - 2 * border
        across = single(single(single(column - border) * single(100.0 / inner_width)) - 50.0)
        along = single(single(single(row - border) * single(100.0 / inner_height)) - 50.0)
        return shade(color, int(single(across + along)))

    def face(self, color, border=BORDER):
        """Places in the four corners of the face, away from the text, and their colours."""
        left, right = self.x + border + 1, self.x + self.width - border - 1
        bottom, top = self.y + border + 1, self.y + self.height - border - 1
        for x in (left, right):
            for y in (bottom, top):
                row = self.y + self.height - 1 - y
                yield (x, self.down(y)), self.face_pixel(color, x - self.x, row, border)

    def bevel(self, sunken, color=GREY, border=BORDER):
        """The dark line and the rings, each in the middle of the four sides."""
        step = 80 // border
        for ring in range(border + 1):
            if ring == 0:
                dark = light = BLACK
            elif sunken:
                light, dark = shade(color, -(ring * step + 40)), shade(color, ring * step)
            else:
                light, dark = shade(color, 80 - (ring - 1) * step), shade(color, -(80 - (ring - 1) * step))
            x, y = self.x + self.width // 2, self.y + self.height // 2
            yield (self.x + ring, self.down(y)), light
            yield (x, self.down(self.y + self.height - ring)), light
            yield (self.x + self.width - ring, self.down(y)), dark
            yield (x, self.down(self.y + ring)), dark

    def lamp(self, color, border=BORDER):
        """The middle of the lamp."""
        yield (self.x + 6 + 4, self.down(self.y + self.height // 2)), color

    def text_area(self):
        """The part that text may cover: left, top, right, bottom of the window, far edges outside."""
        if self.kind == "panel":
            return self.x, self.down(self.y + self.height), self.x + self.width, self.down(self.y + self.height) + 30
        edge = 0 if self.kind == "label" else BORDER + 1
        return (self.x + edge, self.down(self.y + self.height - edge),
                self.x + self.width + 1 - edge, self.down(self.y + edge) + 1)


def wrong(picture, expected):
    """The first place where a picture is not as expected, as a sentence; None when all is well."""
    for (x, y), color in expected:
        if picture.at(x, y) != color:
            return f"pixel {x},{y} is {picture.at(x, y)}, not {color}"
    return None
