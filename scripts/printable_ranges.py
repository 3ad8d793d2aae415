#!/usr/bin/env python3
"""Writes text/printable_ranges.cpp: which characters stand for something that can be shown.

Refused are the general categories Cc (controls), Cf (format characters), Cn (not assigned), and the two
separators of lines and paragraphs, Zl and Zp. Surrogates count as printable, since two of them are one character.
"""
import os
import sys
import unicodedata

REFUSED = {"Cc", "Cf", "Cn", "Zl", "Zp"}
HEAD = """// Made by scripts/printable_ranges.py from version %s of the character database: do not edit.
#include "text/printable.h"

namespace text {

const Range PRINTABLE_RANGES[] = {
"""
TAIL = """};
const int PRINTABLE_COUNT = sizeof PRINTABLE_RANGES / sizeof PRINTABLE_RANGES[0];

} // namespace text
"""


def ranges():
    first = None
    for code in range(0x110000 + 1):
        shown = code < 0x110000 and unicodedata.category(chr(code)) not in REFUSED
        if shown and first is None:
            first = code
        if not shown and first is not None:
            yield first, code - 1
            first = None


def main():
    path = os.path.join(os.path.dirname(__file__), "..", "text", "printable_ranges.cpp")
    with open(path, "w", encoding="ascii") as out:
        out.write("// clang-format off\n" + HEAD % unicodedata.unidata_version)
        row = "   "
        for first, last in ranges():
            entry = " {0x%X, 0x%X}," % (first, last)
            if len(row) + len(entry) > 110:
                out.write(row + "\n")
                row = "   "
            row += entry
        out.write(row + "\n" + TAIL)


if __name__ == "__main__":
    sys.exit(main())
