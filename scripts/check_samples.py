#!/usr/bin/env python3
"""Every sample of the documents compiles, as C++17 and without a warning, natively and for Windows.

A sample with functions stands at file scope, any other in a function of its own. What a host would have around it
is declared in HOST.
"""
import glob
import os
import re
import shutil
import subprocess
import sys

os.chdir(os.path.dirname(os.path.abspath(__file__)) + "/..")
PUBLIC = "build/linux-debug/floors/public"
COMPILERS = (["g++"], ["clang++"], ["x86_64-w64-mingw32-g++-posix", "-DUNICODE", "-D_UNICODE", "-DNOMINMAX"])

HOST = """
#include "examples/editor_keys.h"
#include <string>
void save();
void take(const wchar_t* path);
void take_key(int code);
void show_from(int line);
void draw_all();
void draw_controls_of(int page);
void layout(HWND wnd);
void mouse(HWND wnd, UINT message, LPARAM position);
void key(HWND wnd, UINT message, WPARAM wparam, LPARAM lparam);
extern HWND wnd;
extern UINT message;
extern WPARAM wparam;
extern LPARAM lparam;
extern int word, x, y;
extern Buttons button;
extern Labels label;
extern Sliders slider;
extern Lists list;
extern int height;
extern Boxs box;
"""


def samples():
    for name in ["README.md"] + sorted(glob.glob("docs/**/*.md", recursive=True)):
        with open(name, encoding="utf-8") as file:
            text = file.read()
        for match in re.finditer(r"^```cpp\n(.*?)^```$", text, re.S | re.M):
            yield name, text.count("\n", 0, match.start()) + 2, match.group(1)


def unit(found):
    """One translation unit, each sample of which has a namespace of its own and the lines of its document."""
    includes = {f"#include <brask/{name}>" for name in os.listdir(PUBLIC + "/brask") if name.endswith(".h")}
    parts = []
    for number, (name, line, code) in enumerate(found):
        includes.update(re.findall(r"^#include.*$", code, re.M))
        code = re.sub(r"^#include.*$", "", code, flags=re.M)
        at_file_scope = any(not text.startswith(("if ", "for ")) for text in re.findall(r"^[a-zA-Z].*\) \{$", code, re.M))
        body = f'#line {line} "{name}"\n{code}'
        parts.append(f"namespace sample_{number} {{\n" + (body if at_file_scope else f"void run() {{\n{body}}}\n") + "}\n")
    return "\n".join(sorted(includes)) + HOST + "".join(parts)


def main():
    found = list(samples())
    text = unit(found)
    passed = failed = skipped = 0
    for compiler in COMPILERS:
        if not shutil.which(compiler[0]):
            print(f"no {compiler[0]}: its part is not proven")
            skipped += 1
            continue
        flags = "-std=c++17 -Wall -Wextra -Werror -Wno-unused -fsyntax-only -x c++ -I. -I".split()
        run = subprocess.run(compiler + flags + [PUBLIC, "-"], input=text, text=True)
        passed += run.returncode == 0
        failed += run.returncode != 0
    print(f"{len(found)} samples\n{passed} passed, {failed} failed, {skipped} skipped")
    return 1 if failed or not found else 0


if __name__ == "__main__":
    sys.exit(main())
