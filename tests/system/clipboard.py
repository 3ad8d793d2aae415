"""Owns the clipboard of a display with a text until it is ended: clipboard.py TEXT. Says "ready" when it does."""

import ctypes
import sys
import time

VIDEO = 0x20

sdl = ctypes.CDLL("libSDL2-2.0.so.0")
if sdl.SDL_Init(VIDEO) or sdl.SDL_SetClipboardText(sys.argv[1].encode()):
    sys.exit("no clipboard")
print("ready", flush=True)
while True:
    sdl.SDL_PumpEvents()  # answers who asks for the text
    time.sleep(0.01)
