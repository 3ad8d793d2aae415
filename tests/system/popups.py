"""Pop-ups, opened from the gallery by a real click: how they look, and what mouse, wheel, resize and close box do."""

from display import Window, wait_for
from pages import Session
from pictures import differences
from rules import GREY, RED, Control
from values import tab

YELLOW, BRIGHT_RED = (255, 255, 0), (255, 0, 0)
MARGIN, GAP, BUTTON_HEIGHT = 6, 3, 26
NOTHING = "Closed without an answer"


class PopUp(Window):
    """A dialog of the gallery."""

    def __init__(self, session, caption):
        owner = session.window
        self.display, self.process, self.log = owner.display, owner.process, owner.log
        self.caption = caption
        ids = wait_for(lambda: self.found())
        if not ids:
            raise RuntimeError(f"no pop-up {caption}")
        self.id = ids[-1]
        self.session = session

    def found(self):
        return self.display.xdotool("search", "--onlyvisible", "--name", f"^{self.caption}$").split()

    def gone(self):
        return wait_for(lambda: not self.found())

    def size(self):
        return self.place()[2:]

    def answer(self, index, count):
        """The button of that answer."""
        width, height = self.size()
        each = int((width - GAP * (count + 3)) / count)
        return Control("button", MARGIN + index * (each + GAP), MARGIN, each, BUTTON_HEIGHT, "", height)

    def ground(self):
        """A place of the ground, between the message and the buttons."""
        width, height = self.size()
        return width // 2, height - 1 - 35

    def shows(self, name, place, color):
        wait_for(lambda: self.picture().at(*place) == color)
        got = self.picture().at(*place)
        self.session.tally.check(f"{self.session.system.name} pop-up {name}", None if got == color else
                                 f"{place}: {got} instead of {color}", popup=self.picture())


def ask(session, name, caption):
    session.click(("button", name))
    return PopUp(session, caption)


def told(session, name, popup, text, since):
    session.check(f"pop-up {name} ends", None if popup.gone() else "it is still there")
    session.writes(f"pop-up {name} answers", text, since)


def press_answer(session, name, caption, index, words, color):
    """Opens one, looks at its ground and presses an answer."""
    since = session.window.mark()
    popup = ask(session, name, caption)
    popup.shows(f"{name} ground", popup.ground(), color)
    button = popup.answer(index, len(words))
    popup.move(*button.spot())
    popup.shows(f"{name} under the pointer", (button.x + 4, button.down(button.y + button.height // 2)),
                button.face_pixel(RED, 4, button.height - 1 - button.height // 2, 1))
    session.press()
    told(session, name, popup, f"{index}: {words[index]}", since)


def scrolled(session):
    """The wheel shows older lines, and a larger window more of them; the text stays."""
    since = session.window.mark()
    popup = ask(session, "Long text", "Gallery")
    width, height = popup.size()
    popup.move(width // 2, height // 2)
    popup.shows("Long text ground", popup.ground(), GREY)
    before = popup.picture()
    session.press(4, 3)
    moved = wait_for(lambda: next(differences(before, popup.picture()), None))
    session.check("pop-up scrolls by the wheel", None if moved else "nothing changed")
    session.press(5, 3)
    top = (0, 0, width, height - 60)  # apart from the foot
    back = wait_for(lambda: next(differences(before.crop(*top), popup.picture().crop(*top)), None) is None)
    session.check("pop-up scrolls back", None if back else "the first picture does not come back")
    popup.resize(width + 100, height + 80)
    resized = wait_for(lambda: popup.size() == [width + 100, height + 80])
    session.check("pop-up is resized", None if resized else f"{popup.size()}")
    popup.shows("ground after a resize", popup.ground(), GREY)
    button = popup.answer(1, 2)
    popup.move(*button.spot())
    session.press()
    told(session, "Long text", popup, "1: Cancel", since)


def closed(session, name="Question", caption="Gallery"):
    """Keys answer nothing; the close box ends it without an answer."""
    since = session.window.mark()
    popup = ask(session, name, caption)
    popup.focus()
    popup.key("Return", "Escape", "space")
    popup.shows("Question stays at a key", popup.ground(), GREY)
    popup.key("alt+F4")
    told(session, f"{name}, closed,", popup, NOTHING, since)


def held_off(session):
    """The gallery takes no click meanwhile, but is painted."""
    popup = ask(session, "Question", "Gallery")
    popup.shows("Question ground", popup.ground(), GREY)
    since = session.window.mark()
    session.click(("button", "Error"))
    popup.display.xdotool("search", "--name", "nothing")  # some time
    session.check("pop-up keeps the gallery from clicks",
                  "another one opened" if session.window.written(since).count("Nobody") else None)
    session.window.resize(1270, 790)
    painted = wait_for(lambda: "Panel" in session.window.output(since) or "Boxs::Draw(Questions" in
                       session.window.output(since))
    session.check("gallery is painted under a pop-up", None if painted else "no paint request")
    since = session.window.mark()
    button = popup.answer(0, 2)
    popup.focus()
    popup.move(*button.spot())
    session.press()
    told(session, "Question in front", popup, "0: No", since)
    session.window.resize(1280, 800)


def popups(tally, system, display):
    session = Session(tally, system, display)
    try:
        tab(session, "Pop-ups")
        press_answer(session, "Message", "Gallery", 0, ["OK"], GREY)
        press_answer(session, "Warning", "Warning", 0, ["OK"], YELLOW)
        press_answer(session, "Error", "Error", 0, ["OK"], BRIGHT_RED)
        press_answer(session, "Question", "Gallery", 1, ["No", "Yes"], GREY)
        press_answer(session, "Save first", "Warning", 2, ["Save", "Discard", "Cancel"], YELLOW)
        press_answer(session, "Ten words", "Gallery", 9, [*map(str, range(1, 10)), "Abort"], GREY)
        press_answer(session, "With help", "Gallery", 1, ["Yes", "No"], GREY)
        press_answer(session, "Larger than the screen", "Gallery", 0, ["OK"], GREY)
        scrolled(session)
        held_off(session)
        closed(session)
    finally:
        session.window.kill()
