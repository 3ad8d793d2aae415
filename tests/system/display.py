"""A display of one's own, and the programs that run on it."""

import os
import re
import struct
import subprocess
import tempfile
import time

from pictures import Picture
from rules import Control

SCREEN = (1400, 900)
PATIENCE = 15  # seconds that something may take on a busy machine
LEAKS = "print_suppressions=0:suppressions=" + os.path.join(os.path.dirname(os.path.abspath(__file__)), "leaks.txt")


def wait_for(what, patience=PATIENCE):
    """Asks until the answer is neither None nor False; gives the last answer."""
    end = time.monotonic() + patience
    while True:
        answer = what()
        if answer or time.monotonic() > end:
            return answer
        time.sleep(0.02)


class Display:
    """An Xvfb on a free display. Its screen is a file in the form of xwd, which is read directly."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "%dx%dx24" % SCREEN, "-nolisten", "tcp", "-noreset",
             "-fbdir", self.folder.name],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.name = ":" + number.readline().strip()
        if self.name == ":":
            raise RuntimeError("Xvfb does not start")

    def close(self):
        self.server.terminate()
        self.server.wait()
        self.folder.cleanup()

    def xdotool(self, *words):
        done = subprocess.run(["xdotool", *map(str, words)], env={**os.environ, "DISPLAY": self.name},
                              capture_output=True, text=True)
        return done.stdout

    def screen(self):
        with open(os.path.join(self.folder.name, "Xvfb_screen0"), "rb") as file:
            data = file.read()
        head = struct.unpack(">25I", data[:100])
        width, height, pitch, colors = head[4], head[5], head[12], head[19]
        start, rows = head[0] + 12 * colors, []
        for y in range(height):
            line = data[start + y * pitch : start + y * pitch + 4 * width]
            row = bytearray(3 * width)
            for channel in range(3):
                row[channel::3] = line[2 - channel :: 4]
            rows.append(bytes(row))
        return Picture(width, height, rows)


class System:
    """How the programs of one build are started. Only Wine needs a display for windows that are never shown."""

    def __init__(self, name, folder, ending, starter, display=None):
        self.name, self.folder, self.ending, self.starter = name, folder, ending, starter
        self.display = display

    def command(self, program, *words):
        return [*self.starter, os.path.join(self.folder, "bin", program + self.ending), *words]

    def run(self, program, *words):
        """Runs to the end: exit code, output, errors."""
        environment = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY")}
        if self.display:
            environment["DISPLAY"] = self.display.name
        done = subprocess.run(self.command(program, *words), env=environment, capture_output=True, timeout=60)
        return done.returncode, done.stdout.decode("utf-8", "replace"), done.stderr.decode("utf-8", "replace")

    def layout(self, width, height):
        """Every control of the gallery: {(class, name): Control}."""
        controls = {}
        _, output, _ = self.run("gallery", "--layout", "--size", f"{width}x{height}")
        for line in output.splitlines():
            kind, x, y, w, h, *name = line.split(" ", 5)
            if kind != "page":
                controls[kind, "".join(name)] = Control(kind, int(x), int(y), int(w), int(h), "".join(name), height)
        return controls


class Window:
    """A program with a window on a display."""

    def __init__(self, display, system, program, title, *words):
        self.display = display
        self.folder = tempfile.TemporaryDirectory()
        self.log = os.path.join(self.folder.name, "output")
        environment = {**os.environ, "DISPLAY": display.name, "SDL_VIDEODRIVER": "x11", "LSAN_OPTIONS": LEAKS}
        with open(self.log, "ab") as log:
            self.process = subprocess.Popen(system.command(program, *words), stdout=log, stderr=subprocess.STDOUT,
                                            env=environment)
        ids = wait_for(lambda: display.xdotool("search", "--onlyvisible", "--name", f"^{title}$").split())
        if not ids:
            raise RuntimeError(f"{program} shows no window:\n" + self.output()[-2000:])
        self.id = ids[-1]
        self.focus()

    def focus(self):
        self.display.xdotool("windowfocus", "--sync", self.id)

    def place(self):
        words = dict(re.findall(r"^(\w+)=(-?\d+)$", self.display.xdotool("getwindowgeometry", "--shell", self.id), re.M))
        return [int(words[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")]

    def picture(self):
        return self.display.screen().crop(*self.place())

    def mark(self):
        """How much the program has printed so far."""
        return os.path.getsize(self.log)

    def output(self, since=0):
        with open(self.log, "rb") as log:
            log.seek(since)
            return log.read().decode("utf-8", "replace").replace("\r", "")

    def written(self, since=0):
        """The texts that were written, from the trace lines."""
        return re.findall(r">>> in  Lib_Brask: Tools::Text\((.*)\)$", self.output(since), re.M)

    def writes(self, text, since=0):
        """Waits for a text that begins so."""
        return wait_for(lambda: any(line.startswith(text) for line in self.written(since)), PATIENCE / 3)

    def move(self, x, y):
        left, top, _, _ = self.place()
        self.display.xdotool("mousemove", left + x, top + y)

    def press(self, button=1):
        self.display.xdotool("mousedown", button)

    def release(self, button=1):
        self.display.xdotool("mouseup", button)

    def key(self, *names):
        self.display.xdotool("key", "--clearmodifiers", *names)

    def resize(self, width, height):
        self.display.xdotool("windowsize", self.id, width, height)

    def ended(self, patience=PATIENCE):
        """The exit code, None while it runs on."""
        try:
            return self.process.wait(patience)
        except subprocess.TimeoutExpired:
            return None

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self.folder.cleanup()
