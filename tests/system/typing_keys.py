"""Every key of a US keyboard in the real window: the codes that it becomes, and the text that an entry field makes of it.
Keys are sent by their places on the keyboard, as a user presses them."""

import re

from display import PATIENCE, wait_for
from pages import Session
from values import tab

# Places of the keys as X numbers them, and what stands on them without and with Shift.
ROWS = ((10, "1234567890-=", "!@#$%^&*()_+"), (24, "qwertyuiop[]", "QWERTYUIOP{}"), (38, "asdfghjkl;'`", 'ASDFGHJKL:"~'),
        (51, "\\zxcvbnm,./", "|ZXCVBNM<>?"), (65, " ", " "))
CHARACTERS = [(first + i, plain[i], shifted[i]) for first, plain, shifted in ROWS for i in range(len(plain))]
# Virtual keys of those that are neither letters nor digits.
OTHERS = {"-": 0xBD, "=": 0xBB, "[": 0xDB, "]": 0xDD, ";": 0xBA, "'": 0xDE, "`": 0xC0, "\\": 0xDC, ",": 0xBC, ".": 0xBE,
          "/": 0xBF}
SHIFT, CTRL, ALT = 50, 37, 64
NAVIGATION = {110: 0x24, 111: 0x26, 112: 0x21, 113: 0x25, 114: 0x27, 115: 0x23, 116: 0x28, 117: 0x22, 118: 0x2D, 119: 0x2E}
FUNCTIONS = {**{67 + i: 0x70 + i for i in range(10)}, 95: 0x7A}  # F12 ends each series
PAD = {90: 0, 87: 1, 88: 2, 89: 3, 83: 4, 84: 5, 85: 6, 79: 7, 80: 8, 81: 9}
OPERATORS = {63: "*", 86: "+", 82: "-", 106: "/"}
PAD_ENTER, PAD_POINT, NUM_LOCK, END = 104, 91, 77, 96
END_CODE = 0x87B


def typing(tally, system, display):
    session = Session(tally, system, display)
    try:
        tab(session, "Console")
        session.go(("entry-text", ""))
        session.window.focus()
        empty(session)
        for scene in (characters, with_ctrl, with_alt, groups, pad, editing):
            scene(session)
        session.window.key("Escape")
        session.check("Esc closes behind the typing", None if session.window.ended() == 0 else "no end, or not with 0")
    finally:
        session.window.kill()


def codes(session, keys):
    """Sends keys, each alone or with others held, and gives the codes that came of them, the modifiers' own left out."""
    mark, window = session.window.mark(), session.window
    words = ["+".join(map(str, key)) if isinstance(key, tuple) else str(key) for key in keys]
    window.display.xdotool("key", "--delay", "15", *words, END)

    wait_for(lambda: any(text.startswith("Key 0x%04X" % END_CODE) for text in window.written(mark)))
    # The strip writes each twice, and none when it is the one before.
    numbers = [int(text[4:10], 16) for text in window.written(mark) if re.match(r"Key 0x[0-9A-F]{4}  ", text)]
    numbers = [code for i, code in enumerate(numbers) if i == 0 or code != numbers[i - 1]]
    return [code for code in numbers if code & 0xFF and code not in (0x10, 0x11, 0x12, END_CODE)]


def expect(session, name, keys, expected):
    found = codes(session, keys)
    expected = list(expected)
    expected = [code for i, code in enumerate(expected) if i == 0 or code != expected[i - 1]]
    place = next((i for i, (a, b) in enumerate(zip(found, expected)) if a != b), min(len(found), len(expected)))
    good = found == expected
    session.check(name, None if good else "from place %d on: %s, not %s" %
                  (place, [hex(code) for code in found[place:place + 4]], [hex(code) for code in expected[place:place + 4]]))


def text(session, name, expected, kind="text"):
    """What the box below the field shows."""
    if expected:
        session.check(name, None if wait_for(lambda: values(session)[-1:] == [expected], PATIENCE / 3)
                      else f"it is {values(session)[-1:]}")


def values(session):
    return [line for line in session.window.written() if not re.match("Key|Event|Cursor", line)]


def empty(session):
    """Enter gives the line to the host, and the field is empty again."""
    session.window.key("Return")


def characters(session):
    """All of them, with and without Shift, are the characters that stand on the keys."""
    for name, held, column in (("alone", (), 1), ("with Shift", (SHIFT,), 2)):
        keys = [(*held, row[0]) if held else row[0] for row in CHARACTERS]
        letters = "".join(row[column] for row in CHARACTERS)
        expect(session, f"characters {name}", keys, [ord(c) for c in letters])
        text(session, f"text of characters {name}", letters)
        empty(session)


def virtual_key(plain):
    return OTHERS.get(plain, ord(plain.upper()))


def with_ctrl(session):
    """Letters and digits come with their virtual key; nothing is typed."""
    known = [row for row in CHARACTERS if row[1].isalnum() and row[1] != "v"]
    expect(session, "Ctrl and a letter", [(CTRL, row[0]) for row in known if row[1].isalpha()],
           [0x200 + virtual_key(row[1]) for row in known if row[1].isalpha()])
    expect(session, "Ctrl, Shift and a letter", [(CTRL, SHIFT, row[0]) for row in known if row[1].isalpha()],
           [0x300 + virtual_key(row[1]) for row in known if row[1].isalpha()])


def with_alt(session):
    """All but the keys that the desktop takes for itself."""
    known = [row for row in CHARACTERS if row[1] != " "]
    expect(session, "Alt and a character", [(ALT, row[0]) for row in known], [0x400 + virtual_key(row[1]) for row in known])


def groups(session):
    for name, held, bits in (("alone", (), 0), ("with Shift", (SHIFT,), 0x100), ("with Ctrl", (CTRL,), 0x200)):
        for group, keys in (("navigation", NAVIGATION), ("functions", FUNCTIONS)):
            expect(session, f"{group} {name}", [(*held, key) if held else key for key in keys],
                   [0x800 + bits + code for code in keys.values()])
    expect(session, "Backspace, Tab", [22, 23], [8, 9])
    empty(session)  # Up brought a line back


def pad(session):
    """With Num Lock each digit comes as a key and as a character; without, as the place on the pad."""
    enter_and_others = {**{key: 0x1000 + {"*": 0x6A, "+": 0x6B, "-": 0x6D, "/": 0x6F}[c] for key, c in OPERATORS.items()}}
    expect(session, "pad without Num Lock", [*PAD, PAD_POINT], [0x1060 + digit for digit in PAD.values()] + [0x102E])
    empty(session)
    expect(session, "operators of the pad", enter_and_others, enter_and_others.values())
    text(session, "text of the operators", "".join(OPERATORS.values()))
    empty(session)
    session.window.display.xdotool("key", NUM_LOCK)
    try:
        key = lambda digit: (0x1060 if digit == 5 else 0x2060) + digit  # the middle one is told by its place alone
        both = [code for digit in PAD.values() for code in (key(digit), 0x30 + digit)]
        expect(session, "pad with Num Lock", [*PAD, PAD_POINT], both + [0x106E])
        text(session, "text of the pad", "".join(map(str, PAD.values())) + ".")
        expect(session, "Enter of the pad", [PAD_ENTER], [0x100D])
    finally:
        session.window.display.xdotool("key", NUM_LOCK)


def editing(session):
    """Keys of the editor, with Shift or Ctrl too; a key that is none of it types nothing."""
    home, left, right, end, delete, up, down, back = 110, 113, 114, 115, 119, 111, 116, 22
    codes(session, [38, 56, 54, (SHIFT, home), 40, (SHIFT, right), 26, end, 41, 67, (SHIFT, 68), 118])
    text(session, "text with the caret moved", "daebcf")
    codes(session, [(CTRL, left), (SHIFT, back), home, delete])
    text(session, "text with some taken away", "aebf")
    empty(session)
    codes(session, [52, 53])
    empty(session)
    for name, keys, expected in (("last", [up], "zx"), ("one before", [up], "aebf"), ("the same again", [down], "aebf"),
                                 ("last again", [down], "zx"), ("by the pad", [80, 80], "aebf")):
        codes(session, keys)
        text(session, f"history: {name}", expected)
    empty(session)
