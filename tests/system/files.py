"""The page of files in a real window: boxes, rows, button, both sliders and the wheel, on a real folder."""

import os
import tempfile

from display import Window, wait_for
from pages import SIZE, Session
from rules import BLACK, GREY

ROW = 18
CHOSEN = bytes((255, 64, 64))  # the face of the chosen folder's picture
FOLDERS = ["alpha/inner", "beta", "gamma", *(f"row {i:02}" for i in range(60)), "wide " + 100 * "w"]
WHEEL_UP, WHEEL_DOWN = 4, 5


class Tree:
    """The tree on the page, and where its chosen folder is."""

    def __init__(self, session):
        self.session, self.window = session, session.window
        self.rows, self.down, self.sideways = (session.controls[kind, ""] for kind in ("rows", "down", "sideways"))

    def picture(self):
        rows = self.rows
        return self.window.picture().crop(rows.x, rows.down(rows.y + rows.height), rows.width, rows.height)

    def console(self):
        place = self.session.controls["console", ""]
        top = place.down(place.y + place.height)
        return self.window.picture().crop(place.x, top, place.width, place.height).rows

    def chosen(self):
        """Left of the chosen row's picture and bottom of the row, in the library's coordinates; None out of view."""
        for y, row in enumerate(self.picture().rows):
            x = row.find(CHOSEN)
            if x >= 0:
                return self.rows.x + x // 3 - 2, self.rows.y + self.rows.height - y - 9
        return None

    def click(self, x, y):
        self.window.move(x, self.rows.down(y))
        self.window.press()
        self.window.release()

    def turn(self, button, control):
        self.window.move(control.x + control.width // 2, control.down(control.y + control.height // 2))
        self.window.press(button)
        self.window.release(button)

    def is_at(self, name, place):
        """The chosen row comes to stand there."""
        wait_for(lambda: self.chosen() == place, 5)
        found = self.chosen()
        self.session.check(name, None if found == place else f"the chosen row is at {found}, not at {place}")

    def box(self, name, place, row, color):
        """The upright line of the plus in front of a sub-folder: `row` rows under the chosen row's place."""
        self.window.move(2, 2)  # the pointer's picture would cover it
        self.session.shows(name, [((place[0] + 7, self.rows.down(place[1] - ROW * row + 2)), color)])


def files(tally, system, display):
    with tempfile.TemporaryDirectory() as folder:
        start = os.path.join(folder, "start")
        for name in FOLDERS:
            os.makedirs(os.path.join(start, name))
        session = Session(tally, system, display, "--page", "Files", "--folder", on(system, start))
        try:
            tree = Tree(session)
            found = wait_for(tree.chosen)
            session.check("the folder to start with is in view", None if found else "no row is shown as chosen")
            if found:
                for scene in (wheel, boxes, choice, refresh, sideways, slider):
                    scene(tree, tree.chosen(), start)
            session.window.key("Escape")
            session.check("Esc closes the page of files", None if session.window.ended() == 0 else "no end, or not with 0")
        finally:
            session.window.kill()


def on(system, path):
    """A path as the programs of that system have it."""
    return "Z:" + path.replace("/", "\\") if system.name == "wine" else path


def pick(tally, system, display):
    """The small picker: its button gives the folder that it was started with, or the one that was clicked."""
    with tempfile.TemporaryDirectory() as folder:
        start = os.path.join(folder, "Größe")
        os.mkdir(start)
        window = Window(display, system, "pick", "Pick a folder", on(system, start))
        try:
            _, _, width, height = window.place()
            window.move(width // 2, height - 20)
            window.press()
            window.release()
            code = window.ended()
            printed = window.output().strip().rstrip("\\/")
            good = code == 0 and printed.endswith(on(system, start))
            tally.check(f"{system.name} pick", None if good else f"exit code {code}: {printed}")
        finally:
            window.kill()


def wheel(tree, place, _):
    tree.turn(WHEEL_DOWN, tree.rows)
    tree.is_at("a notch toward oneself goes down a row", (place[0], place[1] + ROW))
    tree.turn(WHEEL_UP, tree.rows)
    tree.is_at("a notch away goes up a row", place)


def boxes(tree, place, _):
    box = place[0] + 7, place[1] - ROW + 5
    tree.box("a closed folder has a plus", place, 1, BLACK)
    tree.click(*box)
    tree.box("a click on the plus opens it", place, 1, GREY)
    tree.is_at("what is chosen stays so", place)
    tree.click(*box)
    tree.box("a click on the minus closes it", place, 1, BLACK)


def choice(tree, place, _):
    mark, listed = tree.window.mark(), tree.console()
    tree.click(place[0] + ROW + 8, place[1] - 2 * ROW + 5)
    tree.is_at("a click on a folder's picture chooses it", (place[0] + ROW, place[1] - 2 * ROW))
    tree.session.writes("the title names it", "Folder: beta", mark)
    changed = wait_for(lambda: tree.console() != listed, 5)
    tree.session.check("the console lists it", None if changed else "it shows the same as before")
    tree.click(place[0] + 7 * ROW + 8, place[1] - 3 * ROW + 5)
    tree.click(place[0] + 6 * ROW + 8, place[1] - 4 * ROW + 5)
    tree.is_at("six cells choose, the seventh does not", (place[0] + ROW, place[1] - 4 * ROW))
    tree.click(place[0] + ROW + 8, place[1] - 2 * ROW + 5)
    tree.is_at("back to the second folder", (place[0] + ROW, place[1] - 2 * ROW))


def refresh(tree, place, start):
    os.mkdir(os.path.join(start, "aaa"))
    tree.session.click(("button", "Refresh"))
    tree.is_at("a new folder moves the chosen one down", (place[0], place[1] - ROW))
    os.rmdir(os.path.join(start, "beta"))
    mark = tree.window.mark()
    tree.session.click(("button", "Refresh"))
    tree.is_at("its parent is chosen when it is gone", (place[0] - ROW, place[1] + 2 * ROW))
    tree.session.writes("and the title names that", "Folder: start", mark)


def sideways(tree, place, _):
    slider = tree.sideways
    tree.click(slider.x + slider.width - 5, slider.y + slider.height // 2)
    tree.is_at("the right arrow moves the rows to the left", (place[0] - ROW, place[1]))
    tree.turn(WHEEL_UP, slider)
    tree.is_at("the wheel on the slider moves them too", (place[0] - 2 * ROW, place[1]))
    tree.turn(WHEEL_DOWN, slider)
    tree.turn(WHEEL_DOWN, slider)
    tree.is_at("and back", place)


def slider(tree, place, _):
    down = tree.down
    tree.click(down.x + down.width // 2, down.y + 5)
    tree.is_at("the lower arrow goes down a row", (place[0], place[1] + ROW))
    tree.click(down.x + down.width // 2, down.y + down.height - 5)
    tree.is_at("the upper arrow goes up a row", place)
    before = tree.picture().rows
    x, top, middle = down.x + down.width // 2, down.y + down.height - 20, down.y + down.height // 2
    tree.window.move(x, down.down(middle))
    tree.window.press()
    pressed = wait_for(lambda: tree.picture().rows != before, 5)
    tree.session.check("a press on the track goes there", None if pressed else "the rows stand as before")
    tree.window.move(x + 100, down.down(top))  # beside the track: the press is held
    tree.window.release()
    root = tree.rows.x + 12 + 7, tree.rows.y + tree.rows.height - 2 * ROW - 6 + 10  # the line above the first drive
    tree.session.shows("a drag beside the track leads to the machine in the first row", [((root[0], tree.rows.down(root[1])), (0, 0, 255))])
