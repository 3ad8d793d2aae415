#!/usr/bin/env python3
"""Draws the pictures of the pages here anew from a build of the gallery.

    docs/pictures/make.py BUILD
"""

import os
import subprocess
import sys

here = os.path.dirname(os.path.abspath(__file__))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(here, "../../tests/system"))

from display import System
from pictures import read_png

build = sys.argv[1]
subprocess.run([os.path.join(build, "bin/gallery"), "--snapshot", here], check=True)
page = read_png(os.path.join(here, "basics.png"))
page.save(os.path.join(here, "basics.png"))  # the same picture in fewer bytes
panels = System("native", build, "", []).layout(page.width, page.height)
for name in ("Boxes", "Labels", "Buttons"):
    panel = panels["panel", name]
    part = page.crop(panel.x, panel.down(panel.y + panel.height), panel.width + 1, panel.height + 1)
    part.save(os.path.join(here, name.lower() + ".png"))
