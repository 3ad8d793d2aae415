"""The page of lists, check lists and spinners in a real window. Its text is in the built-in font, so that the places of
the items are known on both systems."""

import re

from display import wait_for
from pages import SIZE, Session, button
from rules import BORDER, GREY, RED, Control
from values import tab

FONT = 16  # height of a line in the built-in font
BUT_LIST, CURSEUR, ARROW = 25, 16, 25
YELLOW = (255, 255, 0)
MANY = 10000


def items(tally, system, display):
    session = Session(tally, system, display, "--builtin-font")
    try:
        tab(session, "Items")
        for scene in (resized, fitting, scrolling, dragged, arrow, side_by_side, columns, disabled, mask, colored, exclusive,
                      spinner, skipping, upright, unmoved):
            scene(session)
        session.window.key("Escape")
        session.check("Esc closes behind the items", None if session.window.ended() == 0 else "no end, or not with 0")
    finally:
        session.window.kill()


def away(session):
    session.go(("field", "Event"))


def part(control, x, y, width, height):
    return Control("item", control.x + x, control.y + y, width, height, "", control.window_height)


def rows(session, name, count):
    """The rows of an upright list, as many as there are places: all of them, or those of a scrolled one."""
    control, edge = session.controls["list", name], 2 * BORDER + 4
    room = control.height - edge - FONT
    fits = room // count > BUT_LIST
    height = room // count - 1 if fits else BUT_LIST
    left, width = (2 + BORDER, control.width - edge) if fits else (edge + CURSEUR, control.width - 3 * (BORDER + 2) - CURSEUR)
    top = control.height - 2 - height - BORDER - FONT
    return [part(control, left, top - i * (height + 1), width, height) for i in range(min(count, room // (height + 1)))]


def shows(session, name, item, *look):
    """The look of a button without the dark line around it, which comes first."""
    session.shows(name, button(*look)(item)[4:])


def click(session, item):
    session.window.move(*item.spot())
    session.press()


def resized(session):
    """A list that shows its first rows goes on doing so in a window of another size."""
    for height in (SIZE[1] - 200, SIZE[1]):
        session.window.resize(SIZE[0], height)
        session.controls = session.system.layout(SIZE[0], height)
        shows(session, f"last of eight in a window of {height}", rows(session, "All fit", 8)[7], 0)
        shows(session, f"fourth of many in a window of {height}", rows(session, "Ten thousand", MANY)[3], 1)


def fitting(session):
    """A row lights up under the pointer; a press makes it the current one."""
    row = rows(session, "All fit", 8)
    shows(session, "first row is the current one", row[0], 1)
    session.window.move(*row[4].spot())
    shows(session, "row under the pointer", row[4], 0, True)
    shows(session, "row beside the pointer", row[5], 0)
    session.press()
    shows(session, "row after a press", row[4], 1, True)
    shows(session, "row before that", row[0], 0)
    away(session)
    shows(session, "row after the pointer left", row[4], 1)


def scrolling(session):
    """One notch is one row, and the first row ends it."""
    row, window = rows(session, "Ten thousand", MANY), session.window
    shows(session, "fourth of many", row[3], 1)
    click(session, row[6])
    shows(session, "seventh of many", row[6], 1, True)
    mark = window.mark()
    session.press(5, 2)
    shows(session, "seventh, two rows further", row[4], 1)
    session.check("rows from the third on", None if seen(session, mark, "Row")[0] == 3 else "another one is on top")
    click(session, row[0])
    away(session)
    shows(session, "third is the current one", row[0], 1)
    shows(session, "seventh no more", row[4], 0)
    window.move(*row[5].spot())
    session.press(4, 6)
    away(session)
    shows(session, "third of many at the top", row[2], 1)


def seen(session, mark, word):
    """The numbers of the items that the list painted last, when it has come to rest."""
    texts = None

    def rest():
        nonlocal texts
        before, texts = texts, session.window.written(mark)
        return texts and texts == before

    wait_for(rest, 5)
    numbers = []
    for number in (int(text.split()[1]) for text in reversed(texts) if re.fullmatch(word + r" \d+", text)):
        if numbers and numbers[0] - number not in (0, 1):
            break
        if number not in numbers:  # a label is written twice
            numbers.insert(0, number)
    return numbers or [0]


def thumb(session):
    """The middle of the slider, and the row of the window where its thumb points at that part of the list."""
    control = session.controls["list", "Ten thousand"]
    bottom, room = control.y + 2 + BORDER, control.height - 2 * BORDER - 4 - FONT
    ends = CURSEUR + 1 + CURSEUR // 2  # arrow, border, half a thumb
    column = control.x + 2 + BORDER + CURSEUR // 2
    return column, lambda place: control.down(int(bottom + ends + (1 - place) * (room - 2 * ends)))


def dragged(session):
    """A drag goes on beside the list and outside of the window, and ends with the press."""
    column, row = thumb(session)
    window, far = session.window, SIZE[0] - 300
    window.move(column, row(0))
    window.press()
    for place, x in ((0.5, column), (0.25, far), (0.75, SIZE[0] + 30)):
        mark = window.mark()
        window.move(x, row(place))
        top = seen(session, mark, "Row")[0]
        session.check(f"rows at {place}", None if abs(top - MANY * place) < 100 else f"row {top} is on top")
    window.release()
    mark = window.mark()
    window.move(far, row(0.1))
    session.check("no row after the release", None if seen(session, mark, "Row") == [0] else "the list went on")


def arrow(session):
    """The arrow at the foot goes one row down; the thumb dragged beyond it reaches the last one."""
    control, window = session.controls["list", "Ten thousand"], session.window
    column, row = thumb(session)
    foot = control.down(control.y + 2 + BORDER + CURSEUR // 2)
    tops = []
    for _ in range(2):
        mark = window.mark()
        window.move(column, foot)
        window.press()  # held until it is seen: the list asks whether the button is still down
        tops.append(seen(session, mark, "Row")[0])
        window.release()
    session.check("arrow", None if tops[1] == tops[0] + 1 > 2 else f"the rows on top are {tops}")
    away(session)
    window.move(column, row(0.75))
    mark = window.mark()
    window.press()
    for beyond in range(4):  # the next pixel is the arrow's already
        window.move(column, row(1) + beyond)
    last = seen(session, mark, "Row")[-1]
    window.release()
    session.check("last row", None if last == MANY else f"it is row {last}")


def side_by_side(session):
    control = session.controls["list", "Side by side"]
    share, height = (control.width - 2 * BORDER - 4) // 5, control.height - 2 * BORDER - 5 - FONT
    left = (control.width - 5 * share) // 2
    item = [part(control, left + i * share, 2 + BORDER, share - 1, height) for i in range(5)]
    shows(session, "first beside others", item[0], 1)
    click(session, item[2])
    away(session)
    shows(session, "third beside others", item[2], 1)
    shows(session, "first no more", item[0], 0)


def columns(session):
    """Toward the user is further right."""
    window = session.window
    session.go(("list", "Forty"))
    for wheel, first in ((5, 2), (5, 3), (4, 2)):
        mark = window.mark()
        session.press(wheel)
        found = seen(session, mark, "Column")
        session.check(f"column {first} is the first", None if found[0] == first else f"it is {found[0]}")


def disabled(session):
    row = rows(session, "Disabled", 5)
    click(session, row[2])
    session.writes("press on a disabled list", "Event 0", 0)
    shows(session, "disabled row", row[2], 0)
    shows(session, "current one of a disabled list", row[0], 1)


def checks(session, name, count, columns=1):
    """Middle of each box, and of the cell's text."""
    control = session.controls["checks", name]
    height, rest = FONT + 2, control.height - 4 * BORDER - 4 - FONT
    lines = count // columns
    left, across = control.x + 2 + BORDER, (control.width - 2 * BORDER - 4) // columns
    top = control.y + 2 + (rest - lines * height) // 2 + (lines - 1) * height + BORDER
    places = []
    for i in range(count):
        x, y = left + i // lines * across, top - i % lines * height
        places.append(((x + 8, control.down(y + 8)), (x + 24, control.down(y + 8))))
    return places


def marked(session, name, places, expected):
    """Which boxes are yellow."""
    found = lambda: [i for i, (box, _) in enumerate(places) if session.window.picture().at(*box) == YELLOW]
    wait_for(lambda: found() == expected, 5)
    session.check(name, None if found() == expected else f"marked are {found()}")


def mask(session):
    """Each box for itself; a click on the text counts as well."""
    places = checks(session, "Mask", 6)
    marked(session, "mask at the start", places, [0, 2])
    for entry, at, now in ((1, 1, [0, 1, 2]), (5, 0, [0, 1, 2, 5]), (0, 1, [1, 2, 5]), (0, 0, [0, 1, 2, 5])):
        session.window.move(*places[entry][at])
        session.press()
        away(session)
        marked(session, f"mask after a click on entry {entry} at {at}", places, now)


def colored(session):
    """A disabled entry keeps its outline, whatever its value."""
    places = checks(session, "Colours", 6)
    for entry, now in ((2, []), (3, [3]), (5, [3]), (3, [])):
        session.window.move(*places[entry][1])
        session.press()
        away(session)
        marked(session, f"colours after a click on entry {entry}", places, now)


def exclusive(session):
    places = checks(session, "Exclusive", 4, 4)
    marked(session, "exclusive at the start", places, [1])
    for entry in (2, 2, 0, 3):
        session.window.move(*places[entry][1])
        session.press()
        away(session)
        marked(session, f"exclusive after a click on entry {entry}", places, [entry])


def ends(control):
    """The middles of both arrow zones of a lying spinner; left of the field counts as the left one."""
    row = control.down(control.y + control.height // 2)
    return (control.x + 6, row), (control.x + control.width - 12 - ARROW // 2, row)


def steps(session, title, spot, expected, wheel=1):
    for choice in expected:
        mark = session.window.mark()
        session.window.move(*spot)
        session.press(wheel)
        session.writes(f"{title} to {choice}", choice, mark)


def spinner(session):
    control = session.controls["spinner", "Weekday"]
    back, on = ends(control)
    session.window.move(*on)
    session.shows("spinner under the pointer", [((control.x + 8, control.down(control.y + 8)),
                                                 control.face_pixel(RED, 8, control.height - 9))])
    steps(session, "arrow", on, ("Tuesday", "Wednesday"))
    steps(session, "arrow back", back, ("Tuesday", "Monday", "Sunday"))
    steps(session, "arrow on", on, ("Monday",))
    steps(session, "wheel toward the user", on, ("Tuesday", "Wednesday"), 5)
    steps(session, "wheel away", on, ("Tuesday", "Monday", "Sunday"), 4)


def skipping(session):
    back, on = ends(session.controls["spinner", "No Wednesday"])
    steps(session, "without Wednesday", on, ("Tuesday", "Thursday"))
    steps(session, "without Wednesday, back,", back, ("Tuesday",))
    steps(session, "without Wednesday, wheel", on, ("Thursday",), 5)


def upright(session):
    """The lower arrow goes on, the upper one back."""
    control = session.controls["spinner", ""]
    column = control.x + control.width // 2
    low, high = ((column, control.down(y)) for y in (control.y + 15, control.y + control.height - 15))
    steps(session, "lower arrow", low, ("Tuesday", "Wednesday"))
    steps(session, "upper arrow", high, ("Tuesday", "Monday", "Sunday"))


def unmoved(session):
    """A disabled spinner takes neither arrow nor wheel."""
    control = session.controls["spinner", "Disabled"]
    session.window.move(*ends(control)[1])
    mark = session.window.mark()
    for wheel in (1, 5):
        session.press(wheel)
    session.writes("press on a disabled spinner", "Event 0", mark)
    session.check("disabled spinner", "Tuesday" in session.window.written(mark) and "it went on")
    session.shows("face of the disabled spinner", [((control.x + 8, control.down(control.y + 8)),
                                                    control.face_pixel(GREY, 8, control.height - 9))])
