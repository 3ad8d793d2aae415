"""The pages of values and colours in a real window: tabs, sliders, value bars and colour editors under the mouse."""

import colorsys

from display import wait_for
from pages import SIZE, Session, other, same, settled
from rules import BLACK, GREY, RED

THUMB, LIGHT, LOCKED = (110, 110, 110), (216, 216, 216), (64, 64, 230)
SPACE, CURSEUR, BUT_DIM, NUM_DIM = 6, 16, 25, 48
FACE = (208, 160, 96)  # what the colour editor of the faces starts with
EDITOR_END = 0.99      # where the bars of an editor end


class Track:
    """The places along a lying slider or bar: `start` before the track, `half` of the thumb, `edge` beside it."""

    def __init__(self, control, travel, start, half, border, edge):
        self.control, self.travel, self.start, self.half = control, travel, start, half
        self.border, self.edge = border, edge
        self.row = control.down(control.y + control.height // 2) + 2  # of the pointer; the look is taken above it

    def hold(self, index):
        """The column in which the pointer proposes that entry of the table."""
        return self.control.x + self.start + self.border + self.half - 1 + index

    def index(self, part):
        return int(self.travel * part)

    def thumb(self, part, face):
        left = self.control.x + self.edge + self.start + int(self.travel * part + 0.5)
        right, y = left + 2 * self.half - 1, self.row - 6
        return [((left - 1, y), face), ((left, y), LIGHT), ((left + 2, y), THUMB), ((left + self.half, y), LIGHT),
                ((right, y), BLACK), ((right + 1, y), face)]

    def thumb_at(self, index, face):
        """The thumb for that entry of the table, which has one more step than the thumb has pixels to go."""
        return self.thumb(index / (self.travel + 1), face)


def slider(session, name):
    control, half, border = session.controls["slider", name], CURSEUR // 2, 1
    side = control.height
    return Track(control, control.width - 2 * side - 2 * half - 2 * border, side, half, border, border)


def bar(session, name, number=2 * NUM_DIM):
    control, border = session.controls["bar", name], 3
    travel = control.width - 2 * CURSEUR - 2 * border - number
    return Track(control, travel, 0, CURSEUR, border, border + (2 if number else 0))


def values(tally, system, display):
    session = Session(tally, system, display)
    try:
        tab(session, "Values")
        for scene in (captured, loose, arrows, wheel, dragged, locked, unstained):
            scene(session)
        tab(session, "Colour")
        for scene in (red, mode, hue):
            scene(session)
        tab(session, "Basics")
        session.looks("first page again", ("box", "Sunken"), lambda control: control.bevel(True))
        session.window.key("Escape")
        session.check("Esc closes behind the pages", None if session.window.ended() == 0 else "no end, or not with 0")
    finally:
        session.window.kill()


def away(session):
    session.go(("field", "Event"))


def tab(session, name):
    control = session.controls["tab", name]
    beside_name = control.x + control.width * 3 // 4, control.down(control.y + control.height // 2)
    session.click(("tab", name))
    session.shows(f"tab {name} under the pointer", [(beside_name, RED)])
    away(session)
    session.shows(f"tab {name} on top", [(beside_name, GREY)])


def captured(session):
    """A drag goes on beside the slider, and stops where its arrows begin."""
    track, window = slider(session, "Captures the pointer"), session.window
    session.shows("thumb in the middle", track.thumb(0.5, GREY))
    window.move(track.hold(track.index(0.5)), track.row)
    window.press()
    for part in (0.3, 0.8):
        window.move(track.hold(track.index(part)), track.row + 50)
        session.shows(f"drag beside the slider to {part}", track.thumb_at(track.index(part), RED))
    control = track.control
    window.move(control.x + control.width - control.height + 1, track.row + 50)
    window.move(SIZE[0] - 20, track.row + 50)
    session.shows("drag beyond the arrow", track.thumb_at(track.index(0.8), RED))
    window.move(track.hold(track.index(0.7)), -20)
    session.shows("drag outside the window", track.thumb_at(track.index(0.7), RED))
    window.release()
    window.move(track.hold(track.index(0.2)), track.row + 50)
    session.shows("no drag after the release", track.thumb_at(track.index(0.7), GREY))


def loose(session):
    """Without capture the slider follows while the pointer is on it."""
    track, window = slider(session, "Follows inside only"), session.window
    window.move(track.hold(track.index(0.5)), track.row)
    window.press()
    window.move(track.hold(track.index(0.6)), track.row)
    session.shows("drag on the slider", track.thumb_at(track.index(0.6), RED))
    window.move(track.hold(track.index(0.8)), track.row + 40)
    session.shows("left behind beside it", track.thumb_at(track.index(0.6), GREY))
    window.release()


def arrows(session):
    """A step of the first page's sliders is 5 of 100."""
    track, window = slider(session, "Long thumb"), session.window
    control = track.control
    inner = control.width - 2 * (SPACE + control.height)
    track.half = int(0.4 * (inner * 0.5))
    track.travel = control.width - 2 * control.height - 2 * track.half - 2 * track.border
    session.shows("long thumb", track.thumb(0.2, GREY))
    window.move(control.x + control.width - 6, track.row)
    for _ in range(2):
        window.press()
        window.release()
    session.shows("two steps up", track.thumb(0.3, RED))
    window.move(control.x + 4, track.row)
    window.press()
    window.release()
    session.shows("one step down", track.thumb(0.25, RED))


def wheel(session):
    """Away from the user is to the right; a bar without a step moves by a fiftieth."""
    high, linear, window = slider(session, "High to low"), bar(session, "Linear"), session.window
    for track, notches, button, part in ((high, 2, 4, 0.8), (high, 1, 5, 0.75), (linear, 3, 4, 0.46)):
        window.move(track.hold(track.index(0.1)), track.row)
        for _ in range(notches):
            window.press(button)
            window.release(button)
        session.shows(f"wheel over {track.control.name} to {part}", track.thumb(part, RED))
    away(session)


def number(session, track):
    control = track.control
    left, top = control.x + control.width - 2 * NUM_DIM, control.down(control.y + control.height - 8)
    return session.window.picture().crop(left, top, 2 * NUM_DIM - 8, control.height - 16).rows


def dragged(session):
    track, window = bar(session, "Decimal logarithm"), session.window
    session.shows("thumb on the decimal scale", track.thumb(0.75, GREY))
    before = number(session, track)
    window.move(track.hold(track.index(0.75)), track.row)
    window.press()
    window.move(track.hold(track.index(0.45)), track.row + 40)
    session.shows("bar dragged", track.thumb_at(track.index(0.45), RED))
    session.check("number of the dragged bar", number(session, track) == before and "it is the old one")
    window.release()


def locked(session):
    track, window = bar(session, "Locked"), session.window
    left = track.control.x + track.edge + int(track.travel * 0.5 + 0.5)
    look = [((left + 1, track.row - 6), LOCKED), ((left + 2, track.row - 6), LIGHT)]
    before = number(session, track)
    window.move(track.hold(track.index(0.5)), track.row)
    window.press()
    window.move(track.hold(track.index(0.2)), track.row)
    session.shows("locked bar under the pointer", [((left - 4, track.row - 6), RED), *look])
    window.release()
    session.check("number of the locked bar", number(session, track) != before and "it changed")


def unstained(session):
    """What was dragged looks as if it had stood there from the start: nothing of the old thumbs is left."""
    control, window = session.controls["bar", "Up"], session.window
    before = settled(window.picture)
    column = control.x + control.width // 2
    window.move(column, control.down(control.y + control.height // 4))
    window.press()
    for part in (0.5, 0.75):
        window.move(column, control.down(control.y + int(control.height * part)))
    window.release()
    away(session)
    other(session, "bar dragged upward", window.picture, before)
    there = settled(window.picture)
    tab(session, "Basics")
    tab(session, "Values")
    same(session, "page of values drawn anew", window.picture, there)


def driven(color):
    return lambda control: [*control.bevel(True, color), *control.face(color)]


def editor_bar(session):
    """The top bar of the editor of the faces: its row is known well enough without the height of the title."""
    control, border = session.controls["editor", "Face"], 3
    width = control.width - 2 * (BUT_DIM + 3 + border) + SPACE - BUT_DIM - 2
    track = Track(control, width - 2 * CURSEUR - 2 * border, 2 + border, CURSEUR, border, border)
    track.row = control.down(control.y + control.height) + control.height // 4
    track.width = width
    return track


def certain(track, index, scale):
    """The next entry whose value is far from the cut to a byte."""
    while not 0.3 < (index / (track.travel + 1) * scale) % 1 < 0.7:
        index += 1
    return index


def red(session):
    track, window = editor_bar(session), session.window
    session.looks("box before", ("box", "Box"), driven(FACE))
    window.move(track.hold(track.index(0.8)), track.row)
    window.press()
    for part in (0.6, 0.25):
        index = certain(track, track.index(part), EDITOR_END * 255)
        window.move(track.hold(index), track.row + (100 if part == 0.6 else 0))
        color = int(index / (track.travel + 1) * EDITOR_END * 255), *FACE[1:]
        session.looks(f"box follows the red bar to {part}", ("box", "Box"), driven(color))
        session.looks(f"slider follows the red bar to {part}", ("slider", ""),
                      lambda control: [((control.x + 60, control.down(control.y + 11)), color)])
    window.release()


def mode(session):
    """The button swaps the ramps: a sixth of the way the top one is dark red or yellow."""
    track, window = editor_bar(session), session.window
    column, row = track.control.x + track.start + track.width // 6, track.row
    button = track.control.x + track.start + track.width + 2 + 2 * BUT_DIM + 2 + (BUT_DIM - SPACE) // 2
    looks = {"HLS": lambda r, g, b: r > 245 and g > 245 and b < 10, "RGB": lambda r, g, b: 35 < r < 50 and g == b == 0}
    for name, fits in looks.items():
        window.move(button, row)
        window.press()
        window.release()
        good = wait_for(lambda: fits(*window.picture().at(column, row - 8)), 5)
        session.check(f"ramps of {name}", None if good else f"there is {window.picture().at(column, row - 8)}")


def hue(session):
    """The bar turns the colour and keeps lightness and saturation, to a byte's rounding."""
    control, window, border = session.controls["hue", "Hue of the face"], session.window, 2
    width = control.width - 2 * (BUT_DIM + 3 + border)
    track = Track(control, width - 2 * CURSEUR - 2 * border, 2 + border, CURSEUR, border, border)
    sample = session.controls["slider", ""]
    place = sample.x + 60, sample.down(sample.y + 11)
    before = [(channel + 0.5) / 255 for channel in window.picture().at(*place)]
    _, light, full = colorsys.rgb_to_hls(*before)
    window.move(track.hold(track.index(0.3)), track.row)
    window.press()
    for part in (0.6, 0.9):
        index = track.index(part)
        turned = colorsys.hls_to_rgb(index / (track.travel + 1) * EDITOR_END, light, full)
        window.move(track.hold(index), track.row)
        near = lambda: all(abs(a - 255 * b) < 4 for a, b in zip(window.picture().at(*place), turned))
        session.check(f"hue {part}", None if wait_for(near, 5) else f"the sample is {window.picture().at(*place)}")
    window.release()
