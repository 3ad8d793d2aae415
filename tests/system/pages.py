"""The gallery's page in a real window: how it looks, and what mouse and keyboard do to it."""

import os
import tempfile
import time

from display import Window, wait_for
from pictures import differences, read_png
from rules import BLACK, DOWN, GREY, LAMPS, RED, RED_DOWN, shade, wrong

TITLE = "Brask gallery"
SIZE = (1280, 800)
OUTLINE = (64, 64, 230)
FLAT_BOX, WHITE_TITLE_BOX = (216, 200, 168), (48, 80, 128)  # the page's boxes with a colour of their own


def outline(control):
    x, y = control.x + control.width // 2, control.y + control.height // 2
    yield (control.x, control.down(y)), GREY
    yield (control.x + 1, control.down(y)), OUTLINE
    yield (control.x + 2, control.down(y)), GREY
    yield (control.x + control.width - 1, control.down(y)), OUTLINE
    yield (x, control.down(control.y + control.height - 1)), OUTLINE
    yield (x, control.down(control.y + 1)), OUTLINE


def flat(color):
    return lambda control: [(place, color) for place, _ in control.face(color)]


def frame_only(control):
    yield from control.bevel(True)
    yield from flat(GREY)(control)


def no_frame(control):
    yield from control.face(GREY)
    for place, _ in control.bevel(True):
        yield place, GREY


def inset(control):
    """Outer bevel sunken, inner frame in the other direction: its first ring five pixels further in."""
    yield from control.bevel(True)
    y = control.down(control.y + control.height // 2)
    yield (control.x + 5, y), BLACK
    yield (control.x + 6, y), shade(GREY, 80)
    yield (control.x + control.width - 6, y), BLACK
    yield (control.x + control.width - 7, y), shade(GREY, -80)


def boxed(sunken, border=3):
    return lambda control: [*control.bevel(sunken, border=border), *control.face(GREY, border)]


def button(value=0, hover=False, border=3):
    color = (RED_DOWN if hover else DOWN) if value else (RED if hover else GREY)
    return lambda control: [*control.bevel(bool(value), border=border), *control.face(color, border)]


def lamp(color):
    return lambda control: [*control.bevel(False), *control.lamp(LAMPS[color])]


# What every control looks like while the pointer is elsewhere.
LOOKS = {
    ("box", "Sunken"): boxed(True),
    ("box", "Raised"): boxed(False),
    ("box", "Inset"): inset,
    ("box", "No frame"): no_frame,
    ("box", "Outline"): outline,
    ("box", "Empty"): frame_only,
    ("box", "Flat"): lambda control: [*control.bevel(True, FLAT_BOX), *flat(FLAT_BOX)(control)],
    ("box", "Disabled"): boxed(True),
    ("box", "Wide border"): boxed(False, 8),
    ("box", "Thin border"): boxed(True, 1),
    ("box", "White title"): flat(WHITE_TITLE_BOX),
    ("button", "Momentary"): button(),
    ("button", "Toggle"): button(),
    ("button", "Toggle, down"): button(1),
    ("button", "Disabled"): button(),
    ("button", "Disabled, down"): button(1),
    ("button", "Lamp off"): lamp(0),
    ("button", "Green lamp"): lamp(1),
    ("button", "Blue lamp"): lamp(2),
    ("button", "Yellow lamp"): lamp(3),
    ("button", "Red lamp"): lamp(4),
    ("button", "Plain lamp"): lamp(3),
    ("button", "Outline"): outline,
    ("button", "Flat"): lambda control: [*control.bevel(False), *flat(GREY)(control)],
    ("button", "Wide border"): button(border=8),
}

# Keys as xdotool names them, and the code that the strip shows.
KEYS = [
    ("a", 0x61), ("shift+a", 0x41), ("ctrl+a", 0x241), ("Return", 0x0D), ("BackSpace", 0x08), ("Tab", 0x09),
    ("space", 0x20), ("1", 0x31), ("shift+1", 0x21), ("Left", 0x825), ("Home", 0x824), ("Delete", 0x82E),
    ("F5", 0x874), ("ctrl+shift+F5", 0xB74), ("KP_Enter", 0x100D), ("KP_Left", 0x1064), ("KP_Add", 0x106B),
    ("alt+x", 0x458), ("Shift_L", 0x10), ("Control_L", 0x11), ("Alt_L", 0x12),
]


class Session:
    """The page in a window, with short words for what the scenes do."""

    def __init__(self, tally, system, display, *words):
        self.tally, self.system = tally, system
        display.xdotool("mousemove", 1399, 899)
        self.controls = system.layout(*SIZE)
        self.window = Window(display, system, "gallery", TITLE, "--trace", "--size", "%dx%d" % SIZE, *words)

    def check(self, name, problem):
        saved = {"window": self.window.picture()} if problem and self.window.process.poll() is None else {}
        self.tally.check(f"{self.system.name} {name}", problem, **saved)

    def shows(self, name, expected):
        """Waits until the window looks so."""
        expected = list(expected)
        wait_for(lambda: not wrong(self.window.picture(), expected))
        self.check(name, wrong(self.window.picture(), expected))

    def looks(self, name, control, look):
        self.shows(name, look(self.controls[control]))

    def writes(self, name, text, since):
        self.check(name, None if self.window.writes(text, since) else f'"{text}" was not written')

    def go(self, control):
        self.window.move(*self.controls[control].spot())

    def away(self):
        """Onto the label part of the page, where nothing lights up."""
        self.go(("label", "Greek"))

    def click(self, control, button=1):
        self.go(control)
        self.press(button)

    def press(self, button=1, times=1):
        """Presses and releases; 4 and 5 are the wheel, away from the user and back."""
        for _ in range(times):
            self.window.press(button)
            self.window.release(button)


def settled(look):
    """The picture when it has come to rest."""
    last = [None]

    def rest():
        before, last[0] = last[0], look().rows
        return last[0] == before

    wait_for(rest, 5)
    return look()


def same(session, name, look, wanted):
    wait_for(lambda: look().rows == wanted.rows, 5)
    found = look()
    place = next(differences(wanted, found), None)
    session.tally.check(f"{session.system.name} {name}", place and f"first difference at {place}", found=found,
                        wanted=wanted)


def other(session, name, look, before):
    session.check(name, None if wait_for(lambda: look().rows != before.rows, 5) else "nothing changed")


def basics(tally, system, display):
    session = Session(tally, system, display)
    try:
        first_picture(session)
        hover(session)
        clicks(session)
        events(session)
        shapes(session)
        keys(session)
        leave(session)
        session.window.key("Escape")
        session.check("Esc closes", None if session.window.ended() == 0 else "no end, or not with 0")
    finally:
        session.window.kill()


def first_picture(session):
    wait_for(lambda: session.window.picture().at(2, 2) == GREY)
    size = tuple(session.window.place()[2:])
    session.check("size", None if size == SIZE else f"the client area is {size}")
    for control, look in LOOKS.items():
        session.looks("look of %s %s" % control, control, look)
    with tempfile.TemporaryDirectory() as folder:
        session.system.run("gallery", "--snapshot", folder, "--size", "%dx%d" % SIZE)
        drawn, shown = read_png(os.path.join(folder, "basics.png")), session.window.picture()
    place = next(differences(drawn, shown), None)
    session.check("snapshot is what the window shows", place and f"first difference at {place}")


def hover(session):
    toggle, box = ("button", "Toggle"), ("box", "Raised")
    session.go(toggle)
    session.looks("button under the pointer", toggle, button(hover=True))
    session.looks("its neighbour stays", ("button", "Momentary"), button())
    session.go(box)
    session.looks("button left", toggle, button())
    session.looks("box under the pointer", box, lambda control: [*control.bevel(False), *control.face(RED)])
    session.go(("button", "Disabled"))
    session.looks("box left", box, boxed(False))
    session.looks("disabled button under the pointer", ("button", "Disabled"), button())


def clicks(session):
    toggle, momentary = ("button", "Toggle"), ("button", "Momentary")
    session.click(toggle)
    session.looks("toggle down under the pointer", toggle, button(1, hover=True))
    session.away()
    session.looks("toggle down", toggle, button(1))
    session.click(toggle)
    session.away()
    session.looks("toggle up again", toggle, button())
    session.go(momentary)
    session.window.press()
    session.looks("momentary while pressed", momentary, button(1, hover=True))
    session.window.release()
    session.looks("momentary after release", momentary, button(hover=True))
    session.click(("button", "Lamp off"))
    session.away()
    session.looks("lamp after a click", ("button", "Lamp off"), lamp(1))
    session.click(("button", "Disabled"))
    session.away()
    session.looks("disabled after a click", ("button", "Disabled"), button())


def events(session):
    window = session.window
    session.go(("box", "Sunken"))
    for button_number, held in ((1, 16), (2, 32), (3, 64)):
        mark = window.mark()
        window.press(button_number)
        session.writes(f"press of button {button_number}", f"Event {2 + held} = 2 + {held}", mark)
        mark = window.mark()
        session.go(("box", "Flat"))
        session.writes(f"drag with button {button_number}", f"Event {1 + held} = 1 + {held}", mark)
        mark = window.mark()
        window.release(button_number)
        session.writes(f"release of button {button_number}", "Event 0", mark)
        session.go(("box", "Sunken"))


def shapes(session):
    """The strip names the pointer's shape, and the screen shows another picture for each."""
    bare, arrow, cross = pointer_picture(session), None, None
    for name, shown in (("Arrow", "arrow"), ("Cross", "cross"), ("Busy", "busy"), ("Arrow", "busy"),
                        ("Ready", "arrow"), ("Cross", "cross"), ("Reset", "arrow")):
        mark = session.window.mark()
        session.click(("button", name))
        if name != "Arrow":  # the arrow is up at the start, and stays down while busy: nothing new to write
            session.writes(f"pointer shape after {name}", f"Cursor {shown}", mark)
        session.away()
        if shown == "busy":  # may be moving: it is known by not being one of the others
            good = wait_for(lambda: lasting(session, lambda now: now not in (bare, arrow, cross)), 5)
        elif shown == "cross" and not cross:
            good = cross = wait_for(lambda: lasting(session, lambda now: now not in (bare, arrow)), 5)
        elif shown == "arrow" and not arrow:
            good = arrow = wait_for(lambda: lasting(session, lambda now: now != bare), 5)
        else:
            good = wait_for(lambda: pointer_picture(session) == {"arrow": arrow, "cross": cross}[shown], 5)
        session.check(f"the {shown} after {name}", None if good else "the screen shows another shape")


def pointer_picture(session):
    """The screen around the pointer."""
    x, y = session.controls["label", "Greek"].spot()
    return b"".join(session.window.picture().crop(x - 20, y - 20, 40, 40).rows)


def lasting(session, fits):
    """The picture of the pointer, if it fits for a while; None when it does not."""
    for _ in range(3):
        picture = pointer_picture(session)
        if not fits(picture):
            return None
        time.sleep(0.1)
    return picture


def keys(session):
    session.window.focus()
    for name, code in KEYS:
        mark = session.window.mark()
        session.window.key(name)
        session.writes(f"key {name}", "Key 0x%04X" % code, mark)


def leave(session):
    toggle = ("button", "Toggle")
    session.go(toggle)
    session.looks("lit before leaving", toggle, button(hover=True))
    session.window.display.xdotool("mousemove", 1399, 899)
    session.looks("normal look after leaving the window", toggle, button())


def sizes(tally, system, display):
    """The page follows the window's size, and no size breaks it."""
    session = Session(tally, system, display)
    try:
        for size in ((1000, 640), (40, 30), (1, 1), (1350, 850)):
            session.controls = system.layout(*size)
            session.window.resize(*size)
            wait_for(lambda: tuple(session.window.place()[2:]) == size, 5)
            if size[0] > 500:
                for control in (("box", "Sunken"), ("button", "Toggle"), ("button", "Outline")):
                    session.looks("%s %s at %dx%d" % (*control, *size), control, LOOKS[control])
        session.window.key("Escape")
        session.check("Esc closes after resizing", None if session.window.ended() == 0 else "no end, or not with 0")
    finally:
        session.window.kill()
