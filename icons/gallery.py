"""Pictures for buttons, 48 by 48, and signs, 24 by 24, for hosts to show and to start from."""
from canvas import *

SHADOW = (0, 0, 0, 70)


def with_edge(canvas, shape_of, edge, fill):
    """A shape with an edge of a pixel and a half around it; shape_of(grow) gives it larger by that."""
    canvas.paint(shape_of(1.5), edge)
    canvas.paint(shape_of(0), fill)


def open_folder():
    canvas = Canvas(48, 48)
    canvas.paint(rounded(6, 40, 45, 45, 2.5), SHADOW)
    with_edge(canvas, lambda g: either(rounded(5 - g, 8 - g, 22 + g, 20, 2 + g), rounded(5 - g, 12 - g, 40 + g, 41 + g, 2 + g)),
              (118, 78, 8), down(8, 40, (244, 196, 84), (214, 150, 40)))
    canvas.paint(rounded(8, 15, 37, 36, 1), (252, 252, 250))
    for row in (19, 23, 27):
        canvas.paint(rect(11, row, 33, row + 2), (188, 196, 206))
    flap = lambda g: polygon((11 - 1.3 * g, 22 - g), (46 + 1.3 * g, 22 - g), (40 + g, 41 + g), (5 - g, 41 + g))
    with_edge(canvas, flap, (118, 78, 8), down(22, 41, (255, 226, 138), (238, 176, 56)))
    canvas.paint(polygon((11.6, 23), (44.6, 23), (44.2, 24.4), (11.2, 24.4)), (255, 246, 206))
    return canvas


def save():
    canvas = Canvas(48, 48)
    canvas.paint(rounded(6, 40, 44, 46, 2.5), SHADOW)
    body = lambda g: both(rounded(5 - g, 5 - g, 43 + g, 43 + g, 3 + g), polygon((0, 0), (38 + g / 2, 0), (43 + 1.5 * g, 10 - g), (48, 48), (0, 48)))
    with_edge(canvas, body, (18, 32, 84), slanted(5, 5, 43, 43, (108, 142, 222), (40, 64, 150)))
    canvas.paint(rect(13, 4, 35, 18), (28, 46, 108))
    canvas.paint(rect(15, 5, 35, 17), slanted(15, 5, 35, 17, (250, 251, 252), (160, 170, 182)))
    canvas.paint(rect(28, 7, 32, 15), (52, 64, 92))
    canvas.paint(rounded(10, 23, 38, 43, 1.5), (28, 46, 108))
    canvas.paint(rounded(11, 24, 37, 43, 1), down(24, 43, (255, 255, 255), (232, 234, 238)))
    canvas.paint(rect(11, 24, 37, 28), (214, 88, 76))
    for row in (31, 35, 39):
        canvas.paint(rect(14, row, 34, row + 1), (168, 176, 188))
    return canvas


def search():
    canvas = Canvas(48, 48)
    canvas.paint(stroke(32, 34, 43, 45, 7), SHADOW)
    with_edge(canvas, lambda g: stroke(30, 30, 41, 41, 6 + 2 * g), (74, 44, 18), slanted(28, 28, 43, 43, (206, 140, 74), (146, 84, 34)))
    canvas.paint(disc(19.5, 20.5, 16.5), SHADOW)
    canvas.paint(disc(19, 19, 16.5), (60, 68, 80))
    canvas.paint(disc(19, 19, 15), slanted(4, 4, 34, 34, (246, 248, 250), (146, 156, 168)))
    canvas.paint(disc(19, 19, 12), (66, 80, 100))
    canvas.paint(disc(19, 19, 11), slanted(8, 8, 30, 30, (236, 248, 255), (126, 184, 228)))
    canvas.paint(without(disc(18, 18, 8.5), disc(20.5, 20.5, 8.8)), (255, 255, 255, 220))
    return canvas


def globe():
    canvas = Canvas(48, 48)
    cx = cy = 23.5
    canvas.paint(disc(cx + 1, cy + 2, 20.5), SHADOW)
    canvas.paint(disc(cx, cy, 20.5), (10, 44, 96))

    def sea(x, y):
        return blend(math.hypot(x - 16, y - 15) / 30, (166, 220, 255), (18, 88, 178))

    def land(x, y):
        return blend(math.hypot(x - 16, y - 15) / 30, (196, 232, 130), (52, 124, 46))
    ball = disc(cx, cy, 19)
    canvas.paint(ball, sea)
    for shape in (polygon((8, 12), (16, 6), (23, 7), (25, 12), (21, 16), (22, 20), (16, 22), (13, 19), (7, 19)),
                  polygon((15, 24), (22, 24), (27, 29), (24, 35), (20, 41), (17, 38), (17, 31), (13, 27)),
                  polygon((29, 9), (35, 9), (40, 15), (43, 22), (38, 27), (34, 24), (35, 19), (29, 16)),
                  polygon((32, 31), (38, 30), (39, 34), (34, 38), (31, 36))):
        canvas.paint(both(ball, shape), land)
    canvas.paint(without(disc(cx, cy, 18), disc(cx + 2.5, cy + 3, 18.6)), (255, 255, 255, 110))
    return canvas


# --- Signs: nothing but black fades at their edges, as the format wants it ---

def sign(shape_of, fill, mark):
    canvas = Canvas(24, 24)
    canvas.paint(shape_of(0), (0, 0, 0))
    inner = shape_of(-1.6)
    solid = lambda x, y: inner(int(x) + 0.5, int(y) + 0.5)
    canvas.paint(solid, fill)
    canvas.paint(both(solid, mark), (255, 255, 255))
    return canvas


def ok():
    mark = either(stroke(7, 12.5, 10.5, 16, 3), stroke(10.5, 16, 17, 8.5, 3))
    return sign(lambda g: disc(12, 12, 11.5 + g), slanted(2, 2, 22, 22, (120, 220, 110), (24, 128, 40)), mark)


def warning():
    mark = either(stroke(12, 9.5, 12, 14.5, 2.6), disc(12, 18.4, 1.5))
    shape = lambda g: polygon((12, 0.8 - 2 * g), (23.6 + 1.8 * g, 22.6 + g), (0.4 - 1.8 * g, 22.6 + g))
    canvas = sign(shape, down(3, 22, (255, 214, 84), (240, 150, 20)), lambda x, y: False)
    canvas.paint(mark, (60, 36, 0))
    return canvas


def stop():
    corner = lambda g: polygon(*[(12 + (12.2 + 1.05 * g) * math.cos(a), 12 + (12.2 + 1.05 * g) * math.sin(a))
                                 for a in (math.pi / 8 + k * math.pi / 4 for k in range(8))])
    mark = either(stroke(8, 8, 16, 16, 3), stroke(8, 16, 16, 8, 3))
    return sign(corner, slanted(2, 2, 22, 22, (250, 120, 104), (186, 26, 26)), mark)


ICONS = {'open': open_folder, 'save': save, 'search': search, 'globe': globe}
SIGNS = {'ok': ok, 'warning': warning, 'stop': stop}
