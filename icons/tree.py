"""The icons of the folder tree, 16 by 16. Light comes from the upper left, as on the controls."""
from canvas import *

EDGE = (52, 56, 62)
METAL = (236, 238, 240), (150, 156, 164)
SHADOW = (0, 0, 0, 90)


def drive(canvas, top, lamp):
    """A flat box seen from above: a bright lid over a darker front with a lamp."""
    low = top + 8
    canvas.paint(rounded(1, top + 1, 16, low + 1, 1.5), SHADOW)
    canvas.paint(rounded(0, top, 15, low, 1.5), EDGE)
    canvas.paint(polygon((2.6, top + 1), (12.4, top + 1), (14, top + 4), (1, top + 4)), down(top, top + 4, (250, 251, 252), (206, 211, 217)))
    canvas.paint(rect(1, top + 4, 14, low - 1), down(top + 4, low - 1, (190, 196, 203), (138, 145, 154)))
    canvas.paint(rect(1, top + 4, 14, top + 5), (226, 230, 234))
    canvas.paint(rect(3, top + 6, 8, top + 7), (84, 90, 98))
    canvas.paint(rect(11, top + 5, 13, top + 7), lamp)
    canvas.paint(rect(11, top + 5, 12, top + 6), blend(0.6, lamp, (255, 255, 255)))


def computer():
    canvas = Canvas(16, 16)
    canvas.paint(rounded(2, 1, 16, 12, 1.5), SHADOW)
    canvas.paint(rounded(1, 0, 15, 11, 1.5), EDGE)
    canvas.paint(rounded(2, 1, 14, 10, 0.8), slanted(2, 1, 14, 10, *METAL))
    canvas.paint(rect(3, 2, 13, 9), (22, 44, 92))
    canvas.paint(rect(4, 3, 13, 9), slanted(3, 2, 13, 9, (92, 170, 240), (24, 74, 160)))
    canvas.paint(both(rect(4, 3, 13, 9), polygon((4, 3), (9.5, 3), (5.5, 9), (4, 9))), (255, 255, 255, 70))
    canvas.paint(rect(5, 11, 11, 12), EDGE)
    canvas.paint(rect(6, 11, 10, 12), (150, 156, 164))
    canvas.paint(rounded(2, 13, 16, 16, 1), SHADOW)
    canvas.paint(rounded(1, 12, 15, 15, 1), EDGE)
    canvas.paint(rect(2, 13, 14, 14), (226, 229, 232))
    canvas.paint(rect(2, 13, 14, 14), lambda x, y: (226, 229, 232) if int(x) % 2 == 0 else (176, 182, 190))
    return canvas


def fixed():
    canvas = Canvas(16, 16)
    drive(canvas, 4, (40, 200, 70))
    return canvas


def floppy():
    canvas = Canvas(16, 16)
    body = polygon((1, 1), (13.3, 1), (15, 2.7), (15, 15), (1, 15))
    canvas.paint(polygon((2, 2), (14.3, 2), (16, 3.7), (16, 16), (2, 16)), SHADOW)
    canvas.paint(body, (24, 34, 70))
    canvas.paint(polygon((2, 2), (12.9, 2), (14, 3.1), (14, 14), (2, 14)), slanted(2, 2, 14, 14, (108, 134, 204), (48, 66, 138)))
    canvas.paint(rect(4, 1, 12, 6), (50, 58, 76))
    canvas.paint(rect(5, 1, 11, 5), slanted(5, 1, 11, 5, (244, 246, 248), (164, 172, 182)))
    canvas.paint(rect(9, 2, 10, 4), (60, 68, 86))
    canvas.paint(rect(3, 8, 13, 14), (40, 50, 92))
    canvas.paint(rect(4, 9, 12, 14), (250, 250, 246))
    canvas.paint(rect(5, 10, 11, 11), (206, 96, 84))
    canvas.paint(rect(5, 12, 11, 13), (176, 180, 188))
    return canvas


def cdrom():
    canvas = Canvas(16, 16)
    cx = cy = 7.5
    canvas.paint(disc(cx + 1, cy + 1, 7.5), SHADOW)
    canvas.paint(disc(cx, cy, 7.5), (70, 76, 86))

    def sheen(x, y):
        angle = math.atan2(y - cy, x - cx)
        silver = blend(0.5 + 0.5 * math.cos(2 * (angle + 2.3)), (176, 184, 194), (250, 252, 255))
        # Two opposite wedges shine in the colours of the rainbow.
        for turn, hue in ((-0.42, (250, 206, 150)), (0, (160, 222, 176)), (0.42, (206, 166, 226))):
            for centre in (-0.78 + turn, 2.36 + turn):
                near = math.cos(angle - centre)
                if near > 0.93:
                    silver = blend((near - 0.93) * 11, silver, hue)
        return silver
    canvas.paint(disc(cx, cy, 6.6), sheen)
    canvas.paint(ring(cx, cy, 2.9, 2.3), (120, 128, 138))
    canvas.paint(disc(cx, cy, 2.3), (228, 232, 236))
    canvas.paint(disc(cx, cy, 1.3), (70, 76, 86))
    return canvas


def remote():
    canvas = Canvas(16, 16)
    drive(canvas, 0, (250, 190, 40))
    canvas.paint(rect(7, 9, 9, 11), (60, 66, 76))
    canvas.paint(rect(1, 13, 16, 15), SHADOW)
    canvas.paint(rect(0, 12, 15, 14), (20, 54, 128))
    canvas.paint(rect(0, 12, 15, 13), (84, 146, 232))
    canvas.paint(rounded(5, 11, 12, 16, 1), SHADOW)
    canvas.paint(rounded(4, 10, 11, 15, 1), EDGE)
    canvas.paint(rect(5, 11, 10, 14), slanted(5, 11, 10, 14, (150, 200, 250), (40, 100, 196)))
    return canvas


ICONS = {'mycomputer': computer, 'fixed': fixed, 'floppy': floppy, 'cdrom': cdrom, 'remote': remote}
