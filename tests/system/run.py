"""Runs the proofs that need a real window. See run.sh."""

import os
import shutil
import subprocess
import sys

import console
import documents
import files
import hosts
import items
import pages
import popups
import typing_keys
import values
from display import Display, System


class Tally:
    def __init__(self, pictures):
        self.passed = self.failed = self.skipped = 0
        self.pictures = pictures

    def check(self, name, problem, **saved):
        """`problem` says what is wrong; None or an empty text when nothing is. Pictures are saved for a look."""
        if not problem:
            self.passed += 1
            return
        self.failed += 1
        print(f"FAILED {name}: {problem}", flush=True)
        os.makedirs(self.pictures, exist_ok=True)
        for label, picture in saved.items():
            path = os.path.join(self.pictures, f"{name}-{label}.png".replace(" ", "-").replace("/", "-"))
            picture.save(path)
            print(f"  {label}: {path}")

    def skip(self, what):
        self.skipped += 1
        print(f"SKIPPED, NOT PROVEN: {what}", flush=True)

    def scene(self, scene, *arguments):
        """One scene; an error in it is a failure, and the others go on."""
        try:
            scene(self, *arguments)
        except Exception as error:
            names = " ".join(getattr(argument, "name", "") for argument in arguments)
            self.check(f"{scene.__name__} {names}", f"{type(error).__name__}: {error}")


def windows_system(folder, tally, display):
    if not shutil.which("wine"):
        tally.skip("the gallery as a Windows program: there is no Wine")
        return None
    if not os.path.exists(os.path.join(folder, "bin", "gallery.exe")):
        tally.skip(f"the gallery as a Windows program: {folder} was not built")
        return None
    os.environ.setdefault("WINEPREFIX", os.path.abspath("build/wine"))
    os.environ.setdefault("WINEDEBUG", "-all")
    environment = {**os.environ, "DISPLAY": display.name}
    subprocess.run(["wineboot", "--init"], capture_output=True, timeout=300, env=environment)
    return System("wine", folder, ".exe", ["wine"], display)


def main(native_folder, windows_folder):
    tally = Tally("build/system")
    tally.scene(documents.pages)
    tally.scene(documents.icons)
    systems = [System("native", native_folder, "", [])]
    display = Display()
    try:
        windows = windows_system(windows_folder, tally, display)
        if windows:
            systems.append(windows)
        for system in systems:
            tally.scene(hosts.options, system)
            for scene in (pages.basics, values.values, items.items, typing_keys.typing, console.console, files.files,
                          popups.popups, files.pick, pages.sizes, hosts.hello, hosts.log):
                tally.scene(scene, system, display)
        if windows:
            tally.scene(hosts.same_pictures, windows, systems[0])
    finally:
        display.close()
    skipped = f", {tally.skipped} skipped" if tally.skipped else ""
    print(f"{tally.passed} passed, {tally.failed} failed{skipped}")
    return 1 if tally.failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
