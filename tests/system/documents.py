"""What can be proven of the written pages: their links lead somewhere, and the code that they show is the real one.
And of the icon files: they are those that their program draws."""

import filecmp
import fnmatch
import glob
import os
import re
import subprocess
import sys
import tempfile


def pages(tally):
    git = ["git", "-c", f"safe.directory={os.getcwd()}"]  # the tree may belong to another user
    files = subprocess.run([*git, "ls-files", "-co", "--exclude-standard", "*.md"], capture_output=True, text=True)
    tally.check("pages are found", None if files.stdout else files.stderr)
    for page in files.stdout.split():
        tally.check(f"links of {page}", dead_link(page))
    with open("README.md", encoding="utf-8") as readme, open("examples/hello/main.cpp", encoding="utf-8") as host:
        shown = f"```cpp\n{host.read()}```\n" in readme.read()
    tally.check("README shows the small host", None if shown else "its code is another one")
    tally.check("each test that the table of proofs names is there", missing_test("docs/conformance.md"))
    tally.check("the picture is small", None if os.path.getsize("docs/pictures/basics.png") < 150_000 else "it is not")


def icons(tally):
    """Each file that is drawn is kept, and each one kept is drawn, byte for byte."""
    with tempfile.TemporaryDirectory() as drawn:
        subprocess.run([sys.executable, "icons/make.py", drawn], check=True)
        kept = [os.path.basename(path) for kind in ("rgb", "tga") for path in glob.glob(f"icons/*.{kind}")]
        names = sorted({*kept, *os.listdir(drawn)})
        same, _, _ = filecmp.cmpfiles("icons", drawn, names, shallow=False)
        tally.check("the icon files are as icons/make.py draws them", ", ".join(sorted({*names} - {*same})))
        tally.check("icon files are found", None if same else "there is none")


def missing_test(page):
    """The tests that a page names as `Suite.Name` or `Suite.*`, and that no program has."""
    macro = re.compile(r"\b(?:TYPED_TEST|TEST|TEST_F|TEST_P)\(\s*(\w+),\s*(\w+)\s*\)")
    names = set()
    for path in glob.glob("tests/**/*.cpp", recursive=True):
        with open(path, encoding="utf-8") as file:
            names.update(".".join(match) for match in macro.findall(file.read()))
    with open(page, encoding="utf-8") as file:
        told = re.findall(r"^\|.*$", file.read(), re.M)
    wanted = re.findall(r"`([A-Z]\w*\.(?:\w+|\*))`", "\n".join(told))
    missing = [name for name in wanted if not fnmatch.filter(names, name)]
    return ", ".join(missing) or None


def dead_link(page):
    """The first relative link to a file that is not there, or to a heading that the page does not have."""
    with open(page, encoding="utf-8") as file:
        text = re.sub(r"```.*?```", "", file.read(), flags=re.S)
    for link in re.findall(r"\]\(([^)]+)\)", text):
        path, _, heading = link.partition("#")
        if "://" in link:
            continue
        target = os.path.normpath(os.path.join(os.path.dirname(page), path)) if path else page
        if not os.path.exists(target):
            return f"{link} leads nowhere"
        if heading and heading not in headings(target):
            return f"{link}: no such heading"
    return None


def headings(page):
    with open(page, encoding="utf-8") as file:
        lines = re.findall(r"^#+ (.*)$", file.read(), re.M)
    return [re.sub(r"[^\w -]", "", line).strip().lower().replace(" ", "-") for line in lines]
