#!/usr/bin/env python3
"""Writes the icon files into a folder, by default into the one of this program, from which they are installed."""
import pathlib
import sys

sys.dont_write_bytecode = True

import formats
import gallery
import tree


def files():
    for name, draw in tree.ICONS.items():
        yield f'icon_{name}.rgb', formats.rgb(draw().words(), transparency=True)
    for name, draw in gallery.ICONS.items():
        yield f'{name}.rgb', formats.rgb(draw().words(), transparency=False)
    for name, draw in gallery.SIGNS.items():
        yield f'{name}.tga', formats.tga(draw().words())


if __name__ == '__main__':
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    for name, data in files():
        (folder / name).write_bytes(data)
