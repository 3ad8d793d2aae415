#!/usr/bin/env python3
"""Draws the pictures of the pages here anew from a build of the gallery.

    docs/pictures/make.py BUILD

Those of the page of files stay as they are: they would show the folders of this machine.
"""

import os
import subprocess
import sys
import tempfile

here = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(here, "../../tests/system"))

from display import System
from pictures import read_png

PAGES = "basics", "values", "items", "colour", "console"
build = sys.argv[1]
with tempfile.TemporaryDirectory() as drawn:
    subprocess.run([os.path.join(build, "bin/gallery"), "--snapshot", drawn], check=True)
    for page in PAGES:  # the same picture in fewer bytes
        read_png(os.path.join(drawn, page + ".png")).save(os.path.join(here, page + ".png"))


def part(page, left, top, width, height, name):
    read_png(os.path.join(here, page + ".png")).crop(left, top, width, height).save(os.path.join(here, name + ".png"))


size = read_png(os.path.join(here, "basics.png"))
controls = System("native", build, "", []).layout(size.width, size.height)
PANELS = {"basics": ("Boxes", "Labels", "Buttons"), "values": ("Sliders", "Value bars"), "items": ("Lists", "Check lists", "Spinners"),
          "console": ("Command line", "Entry fields")}
for page, names in PANELS.items():
    for name in names:
        panel = controls["panel", name]
        part(page, panel.x, panel.down(panel.y + panel.height), panel.width + 1, panel.height + 1,
             name.lower().replace(" ", "-"))
part("values", 0, 0, size.width, 60, "tabs")
# Icons and glyphs are shown as they are proven.
golden = os.path.join(here, "../../tests/golden/pictures")
for scene, name in (("folders", "folders"), ("leads", "leads"), ("symbols", "symbols"), ("tree_files", "files"), ("faces", "faces")):
    read_png(os.path.join(golden, f"icon_{scene}.png")).save(os.path.join(here, f"icon-{name}.png"))
