"""The gallery's command line, its pictures on both systems, and the small host."""

import os
import tempfile

from display import Window, wait_for
from pages import SIZE, button
from pictures import differences, read_png
from rules import Control, wrong


def options(tally, system):
    """Bad options are refused with 2 and a message that names them."""
    for words, mentioned in ((["--nonsense"], "--nonsense"), (["--size", "0x5"], "0x5"), (["--size", "12"], "12"),
                             (["--size"], "WxH"), (["--page", "Nowhere"], "Basics"), (["--size", "9x9x9"], "9x9x9")):
        code, _, errors = system.run("gallery", *words)
        good = code == 2 and mentioned in errors
        tally.check(f"{system.name} options {words}", None if good else f"exit code {code}, message: {errors}")
    if not system.display:  # only then it is started without one
        code, _, errors = system.run("gallery")
        told = code == 1 and "display" in errors and "--snapshot" in errors
        tally.check(f"{system.name} no display", None if told else f"exit code {code}, message: {errors}")
    code, output, _ = system.run("gallery", "--help")
    known = all(word in output for word in ("--page", "--size", "--snapshot", "--trace", "--builtin-font", "--layout"))
    tally.check(f"{system.name} help", None if code == 0 and known else f"exit code {code}: {output}")
    with tempfile.TemporaryDirectory() as folder:
        code, output, _ = system.run("gallery", "--trace", "--snapshot", os.path.join(folder, "a", "b"))
        drawn = os.path.exists(os.path.join(folder, "a", "b", "basics.png"))
        tally.check(f"{system.name} snapshot makes its folder", None if code == 0 and drawn else f"exit code {code}")
        entered = output.count(">>> in  Lib_Brask: Boxs::Draw(Sunken)")
        left = output.count("<<< out Lib_Brask: Boxs::Draw(")
        tally.check(f"{system.name} trace", None if entered == 1 and left > 20 else f"{entered} in, {left} out")
        code, _, errors = system.run("gallery", "--snapshot", "/dev/null/x")
        tally.check(f"{system.name} snapshot into nothing", None if code == 1 and errors else f"exit code {code}")


def snapshot(system, wanted, *words):
    """{file name: picture} of the pages whose names end so."""
    with tempfile.TemporaryDirectory() as folder:
        code, _, errors = system.run("gallery", "--snapshot", folder, *words)
        if code:
            raise RuntimeError(f"{system.name}: exit code {code}: {errors}")
        return {page: read_png(os.path.join(folder, page)) for page in os.listdir(folder)
                if page.endswith(wanted)}


def same_pictures(tally, windows, native):
    """Both systems paint the same pages: in the built-in font all of them, otherwise the first one but its text."""
    words = (".png", "--builtin-font", "--size", "900x600")  # small ones: reading them takes its time
    ours, theirs = snapshot(native, *words), snapshot(windows, *words)
    tally.check("same pages", None if sorted(ours) == sorted(theirs) and len(ours) > 2 else "they have other names")
    for page, here in ours.items():
        if page == "files.png":  # shows the machine's own drives, which are others under Wine
            continue
        place = next(differences(here, theirs[page]), None)
        tally.check(f"same picture of {page} in the built-in font", place and f"first difference at {place}",
                    native=here, wine=theirs[page])

    here, there = (snapshot(system, "basics.png")["basics.png"] for system in (native, windows))
    areas = [control.text_area() for control in native.layout(*SIZE).values() if control.name]
    outside = next(
        ((x, y) for x, y in differences(here, there)
         if not any(l <= x < r and t <= y < b for l, t, r, b in areas)), None)
    tally.check("same picture apart from text", outside and f"first difference at {outside}", native=here, wine=there)


def hello(tally, system, display):
    """The small host: its one button lights up, goes down and comes up, and the window closes."""
    display.xdotool("mousemove", 1399, 899)
    window = Window(display, system, "hello", "Hello")
    try:
        _, _, width, height = window.place()
        control = Control("button", (width - 160) // 2, (height - 40) // 2, 160, 40, "Hello", height)

        def shows(name, look):
            expected = list(look(control))
            wait_for(lambda: not wrong(window.picture(), expected), 5)
            tally.check(f"{system.name} hello {name}", wrong(window.picture(), expected), window=window.picture())

        shows("at the start", button())
        window.move(*control.spot())
        shows("under the pointer", button(hover=True))
        window.press()
        shows("down", button(1, hover=True))
        window.release()
        window.move(2, 2)
        shows("still down when left", button(1))
        window.move(*control.spot())
        window.press()
        window.release()
        window.move(2, 2)
        shows("up again", button())
        window.move(*control.spot())
        shows("under the pointer again", button(hover=True))
        display.xdotool("mousemove", 1399, 899)
        shows("with the pointer out of the window", button())
    finally:
        window.kill()


def log(tally, system, display):
    """The log window: it goes on by itself, takes a command, and ends by one."""
    window = Window(display, system, "log", "Log")
    try:
        before = window.picture()
        grown = wait_for(lambda: window.picture().rows != before.rows)
        tally.check(f"{system.name} log goes on", None if grown else "nothing is written", window=window.picture())
        display.xdotool("type", "--delay", "15", "nonsense")
        window.key("Return")
        red = lambda: any(b"\xff\0\0" in row for row in window.picture().rows)
        tally.check(f"{system.name} log refuses a command", None if wait_for(red) else "nothing is red",
                    window=window.picture())
        display.xdotool("type", "--delay", "15", "quit")
        window.key("Return")
        tally.check(f"{system.name} log ends", None if window.ended() == 0 else "no end, or not with 0")
    finally:
        window.kill()
