"""The command line of the page "Console" in a real window. What it shows is compared as pictures, in the built-in font:
with what it showed before, and with the other system."""

import os
import subprocess
import sys

from display import wait_for
from pages import Session, other, same, settled
from values import tab

LINE, BORDER, GAP, CURSEUR = 16, 3, 6, 16
kept = {}  # pictures of the first system, which those of the next must equal


def console(tally, system, display):
    session = Session(tally, system, display, "--builtin-font")
    try:
        tab(session, "Console")
        session.go(("command-line", ""))
        session.window.focus()
        for scene in (commands, history, picked, pasted, scrolled, asked, traced):
            scene(session)
        session.window.key("Escape")
        session.check("Esc closes behind the console", None if session.window.ended() == 0 else "no end, or not with 0")
    finally:
        session.window.kill()


def strip(session):
    """The editor's line, left of the pointer's column."""
    control = session.controls["command-line", ""]
    top = control.down(control.y + LINE + 4 * BORDER)
    return session.window.picture().crop(control.x, top, control.width, LINE + 4 * BORDER)


def log(session):
    """The log and its slider, without the editor's line."""
    control = session.controls["command-line", ""]
    return session.window.picture().crop(control.x, control.down(control.y + control.height), control.width,
                                         control.height - 60)


def keeps(session, name, look):
    """The same picture on every system."""
    wanted = kept.setdefault(name, settled(look))
    same(session, f"{name}, as on the other system", look, wanted)


def enter(session, line):
    before = log(session)
    write(session, line)
    session.window.key("Return")
    other(session, f"log after {line}", lambda: log(session), before)


def write(session, line):
    session.window.display.xdotool("type", "--delay", "15", line)


def commands(session):
    for line in ("help", "colors", "echo one two", "nonsense", "dir /nowhere/at/all", "log 0", "font x"):
        enter(session, line)
    keeps(session, "log after commands", lambda: log(session))


def history(session):
    """Up shows the last line, as it was typed."""
    empty = settled(lambda: strip(session))
    write(session, "echo seven")
    typed = settled(lambda: strip(session))
    session.window.key("Return")
    same(session, "editor after Enter", lambda: strip(session), empty)
    session.window.key("Up")
    same(session, "editor after Up", lambda: strip(session), typed)
    session.window.key("Down", "Down", "Down")
    kept["typed"] = typed
    for _ in range(10):
        session.window.key("BackSpace")
    same(session, "editor after Backspace", lambda: strip(session), empty)


def picked(session):
    """A click on the command that stands in the log, above what it wrote, puts it into the editor without its prompt."""
    before = settled(lambda: strip(session))
    control = session.controls["command-line", ""]
    foot = control.y + BORDER + CURSEUR + GAP + LINE + 3 * BORDER  # of the newest line
    session.window.move(control.x + 400, control.down(foot + LINE + LINE // 2))
    session.press()
    same(session, "line of output picked", lambda: strip(session), kept["typed"])
    for _ in range(10):
        session.window.key("BackSpace")
    same(session, "editor emptied", lambda: strip(session), before)


def pasted(session):
    """From another program by the real clipboard."""
    before = settled(lambda: strip(session))
    script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "clipboard.py")
    owner = subprocess.Popen([sys.executable, script, "echo seven"], stdout=subprocess.PIPE, text=True,
                             env={**os.environ, "DISPLAY": session.window.display.name, "SDL_VIDEODRIVER": "x11"})
    try:
        session.check("clipboard", None if owner.stdout.readline() == "ready\n" else "there is none")

        def paste():
            """Once more if the other system's clipboard does not know of the text yet."""
            if strip(session).rows == before.rows:
                session.window.key("ctrl+v")
            return wait_for(lambda: strip(session).rows == kept["typed"].rows, 2)

        wait_for(paste)
        same(session, "editor after a paste", lambda: strip(session), kept["typed"])
    finally:
        owner.kill()
        owner.wait()
    session.window.key("Return")


def scrolled(session):
    """The wheel goes back and forth; a new line is always in view."""
    enter(session, "log 60")
    newest = settled(lambda: log(session))
    session.press(4, 3)
    other(session, "wheel away from the user", lambda: log(session), newest)
    session.press(5, 4)
    same(session, "wheel back", lambda: log(session), newest)
    session.press(4, 3)
    enter(session, "echo in view")
    shown = settled(lambda: log(session))
    session.press(4, 3)
    session.press(5, 4)
    same(session, "log after a line that was written while it was scrolled", lambda: log(session), shown)


def asked(session):
    """Only what belongs to a number is taken, and a password is not shown."""
    enter(session, "clear")
    for line, answer in (("read integer", "-12x3"), ("read float", "2.5e1z"), ("read hex", "fFg"), ("read password", "pass")):
        enter(session, line)
        enter(session, answer)
    keeps(session, "log after values", lambda: log(session))


def traced(session):
    """The library's reports run through the log until they are turned off; the console's own are not among them."""
    enter(session, "trace on")
    before = settled(lambda: log(session))
    session.go(("entry-hex", ""))
    other(session, "log while tracing", lambda: log(session), before)
    session.go(("command-line", ""))
    settled(lambda: log(session))
    enter(session, "trace off")
    session.go(("entry-integer", ""))
    before = settled(lambda: log(session))
    session.go(("entry-float", ""))
    session.window.key("Home")
    session.looks("field under the pointer", ("entry-float", ""), caret)
    same(session, "log after tracing", lambda: log(session), before)


def caret(control):
    """A field under the pointer shows a yellow caret, two columns wide; here before the first letter, which reaches
    less far down."""
    y = control.down(control.y + BORDER + 2)
    yield (control.x + 3 + BORDER, y), (255, 255, 0)
    yield (control.x + 4 + BORDER, y), (255, 255, 0)
