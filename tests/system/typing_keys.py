"""Every key of a US keyboard in the real window, alone and with Shift, Ctrl and Alt: the codes that it becomes, and the
text that an entry field makes of it. Keys are sent by their places on the keyboard, as a user presses them: those that
are held go down first and come up last.

Left out is what a desktop keeps for itself: Alt with Tab, Esc and Print Screen, Ctrl with Esc and Num Lock, and of Ctrl
and Alt together all but letters and digits. Esc, Ctrl+[ and Alt+F4 close the window, so they come last. Windows spells
a character by Alt and digits of the pad and types it when Alt comes up; neither Wine nor the other systems do."""

import re

from display import PATIENCE, Window, wait_for
from pages import Session
from values import tab

# Places of the keys as X numbers them, and what stands on them without and with Shift.
ROWS = ((10, "1234567890-=", "!@#$%^&*()_+"), (24, "qwertyuiop[]", "QWERTYUIOP{}"), (38, "asdfghjkl;'`", 'ASDFGHJKL:"~'),
        (51, "\\zxcvbnm,./", "|ZXCVBNM<>?"), (65, " ", " "))
CHARACTERS = [(first + i, plain[i], shifted[i]) for first, plain, shifted in ROWS for i in range(len(plain))]
PLACE = {plain: place for place, plain, _ in CHARACTERS}
LETTERS, DIGITS = "abcdefghijklmnopqrstuvwxyz", "0123456789"
# Virtual keys of those that are neither letters nor digits.
OTHERS = {"-": 0xBD, "=": 0xBB, "[": 0xDB, "]": 0xDD, ";": 0xBA, "'": 0xDE, "`": 0xC0, "\\": 0xDC, ",": 0xBC, ".": 0xBE,
          "/": 0xBF, " ": 0x20}
ESC = "Escape"  # its place is 9, which would be the digit
BACKSPACE, TAB, ENTER, CAPS_LOCK, PRINT, PAUSE, MENU = 22, 23, 36, 66, 107, 127, 135
SHIFT, CTRL, ALT = 50, 37, 64
RIGHT_SHIFT, RIGHT_CTRL, RIGHT_ALT, LEFT_SUPER, RIGHT_SUPER = 62, 105, 108, 133, 134
HELD = {"alone": (), "with Shift": (SHIFT,), "with Ctrl": (CTRL,), "with Alt": (ALT,), "with Ctrl and Shift": (CTRL, SHIFT)}
BITS = {SHIFT: 0x100, CTRL: 0x200, ALT: 0x400}
NAVIGATION = {110: 0x24, 111: 0x26, 112: 0x21, 113: 0x25, 114: 0x27, 115: 0x23, 116: 0x28, 117: 0x22, 118: 0x2D, 119: 0x2E}
FUNCTIONS = {**{67 + i: 0x70 + i for i in range(10)}, 95: 0x7A}  # F12 ends each series
F4, SCROLL_LOCK = 70, 78
PAD = {90: 0, 87: 1, 88: 2, 89: 3, 83: 4, 84: 5, 85: 6, 79: 7, 80: 8, 81: 9}
OPERATORS = {63: "*", 86: "+", 82: "-", 106: "/"}
OPERATOR_KEYS = {"*": 0x6A, "+": 0x6B, "-": 0x6D, "/": 0x6F}
PAD_ENTER, PAD_POINT, NUM_LOCK, END = 104, 91, 77, 96
END_CODE = 0x87B


def typing(tally, system, display):
    session = Session(tally, system, display)
    try:
        tab(session, "Console")
        session.go(("entry-text", ""))
        session.window.focus()
        empty(session)
        for scene in (characters, with_ctrl, with_ctrl_and_another, with_alt, editing_keys, groups, modifiers, locks, pad,
                      pad_with_num_lock, as_on_windows, editing):
            scene(session)
        mark = session.window.mark()
        session.window.display.xdotool(*words((ALT, F4)))
        session.check("Alt+F4 closes behind the typing", None if session.window.ended() == 0 else "no end, or not with 0")
        session.check("the code of Alt+F4", None if session.window.writes("Key 0x0C73", mark) else "none")
    finally:
        session.window.kill()
    for name, key in (("Esc", ESC), ("Ctrl+[", (CTRL, PLACE["["]))):
        closing(tally, system, display, name, key)


def closing(tally, system, display, name, key):
    """Both are the character 27."""
    window = Window(display, system, "log", "Log")
    try:
        first = window.picture()
        wait_for(lambda: window.picture().rows != first.rows)  # so it hears keys by now
        display.xdotool(*words(key))
        tally.check(f"{system.name} {name} closes", None if window.ended() == 0 else "no end, or not with 0")
    finally:
        window.kill()


def words(key):
    """A key, or one that is pressed while others are held."""
    if not isinstance(key, tuple):
        return ["key", "--delay", 15, key]
    *held, key = key
    down = [word for each in held for word in ("keydown", "--delay", 2, each)]
    up = [word for each in reversed(held) for word in ("keyup", "--delay", 2, each)]
    return [*down, "key", "--delay", 15, key, *up]


def raw_codes(session, keys):
    """Sends keys, each alone or with others held before it, and gives the codes that the strip showed."""
    mark, window = session.window.mark(), session.window
    window.display.xdotool(*(word for key in [*keys, END] for word in words(key)))
    wait_for(lambda: any(text.startswith("Key 0x%04X" % END_CODE) for text in window.written(mark)))
    # The strip writes each twice, and none when it is the one before.
    numbers = [int(text[4:10], 16) for text in window.written(mark) if re.match(r"Key 0x[0-9A-F]{4}  ", text)]
    return [code for i, code in enumerate(numbers) if code != END_CODE and (i == 0 or code != numbers[i - 1])]


def codes(session, keys):
    """The same without those of the modifiers."""
    return [code for code in raw_codes(session, keys) if code & 0xFF and code not in (0x10, 0x11, 0x12)]


def expect(session, name, keys, expected, read=codes):
    found, expected = read(session, keys), list(expected)
    place = next((i for i, (a, b) in enumerate(zip(found, expected)) if a != b), min(len(found), len(expected)))
    good = found == expected
    session.check(name, None if good else "from place %d on: %s, not %s" %
                  (place, [hex(code) for code in found[place:place + 4]], [hex(code) for code in expected[place:place + 4]]))


def held_with(held, keys):
    return [(*held, key) if held else key for key in keys]


def bits(held):
    return sum(BITS[key] for key in held)


def text(session, name, expected):
    """What the box below the field shows."""
    session.check(name, None if wait_for(lambda: values(session)[-1:] == [expected], PATIENCE / 3)
                  else f"it is {values(session)[-1:]}")


def values(session):
    return [line for line in session.window.written() if not re.match("Key|Event|Cursor", line)]


def empty(session):
    """Enter gives the line to the host, and the field is empty again."""
    session.window.key("Return")


def typed(session, name, expected):
    """What stands in the field when "xy" is typed behind it. A key that was told already takes its character away: where
    it has none, the next one goes, which is the x."""
    codes(session, [PLACE["x"], PLACE["y"]])
    text(session, f"typed {name}", expected)
    empty(session)


def characters(session):
    """All of them, with and without Shift, are the characters that stand on the keys."""
    for name, held, column in (("alone", (), 1), ("with Shift", (SHIFT,), 2)):
        letters = "".join(row[column] for row in CHARACTERS)
        expect(session, f"characters {name}", held_with(held, [row[0] for row in CHARACTERS]), [ord(c) for c in letters])
        text(session, f"text of characters {name}", letters)
        empty(session)


def places(characters):
    return [PLACE[character] for character in characters]


def virtual_key(plain):
    return OTHERS.get(plain, ord(plain.upper()))


def with_ctrl(session):
    """Letters and digits come with their virtual key, and a few others as control characters; only the blank types."""
    letters = LETTERS.replace("v", "")  # which pastes
    for name, keys, behind in (("a letter", letters, "xy"), ("a digit", DIGITS, "y")):
        expect(session, f"Ctrl and {name}", held_with((CTRL,), places(keys)), [0x200 + virtual_key(c) for c in keys])
        typed(session, f"behind Ctrl and {name}", behind)
    others = "-=];'`\\,./ "
    expect(session, "Ctrl and another character", held_with((CTRL,), places(others)), [0x21D, 0x21C, 0x220])
    typed(session, "behind Ctrl and another character", " xy")


def with_ctrl_and_another(session):
    for name, held in (("Shift", (CTRL, SHIFT)), ("Alt", (CTRL, ALT))):
        for kind, keys in (("letter", LETTERS), ("digit", DIGITS)):
            expect(session, f"Ctrl, {name} and a {kind}", held_with(held, places(keys)),
                   [0x200 + BITS[held[1]] + virtual_key(c) for c in keys])
            typed(session, f"behind Ctrl, {name} and a {kind}", "xy" if (name, kind) == ("Shift", "letter") else "y")
    for key in "26":  # the digits with a control character
        codes(session, [(CTRL, SHIFT, PLACE[key])])
        typed(session, f"behind Ctrl, Shift and {key}", "xy")
    expect(session, "Ctrl, Shift and the dash", [(CTRL, SHIFT, PLACE["-"])], [0x21F])


def with_alt(session):
    """The window's menu, which Windows opens for the blank, is closed by Alt."""
    keys = [plain for plain in PLACE if plain != " "]
    expect(session, "Alt and a character", held_with((ALT,), places(keys)), [0x400 + virtual_key(c) for c in keys])
    expect(session, "Alt and the blank", [(ALT, PLACE[" "]), ALT], [0x420])
    typed(session, "behind Alt and a character", "xy")


def editing_keys(session):
    """Tab has no character with Ctrl."""
    keys = {BACKSPACE: 8, ENTER: 13, TAB: 9}
    for name, held in HELD.items():
        known = {key: code for key, code in keys.items() if (ALT, key) != (*held, TAB)}
        expect(session, f"Backspace, Enter, Tab {name}", held_with(held, known),
               [bits(held) + code for code in known.values()])
        typed(session, f"behind them {name}", "y" if CTRL in held else "xy")


def groups(session):
    for name, held in HELD.items():
        for group, keys in (("navigation", NAVIGATION), ("functions", FUNCTIONS)):
            known = {key: code for key, code in keys.items() if (*held, key) != (ALT, F4)}
            expect(session, f"{group} {name}", held_with(held, known),
                   [0x800 + bits(held) + code for code in known.values()])
        empty(session)  # Up brought a line back


def modifiers(session):
    """Those at the right do as those at the left, but for the right Ctrl by itself."""
    expect(session, "modifiers", [SHIFT, CTRL, RIGHT_SHIFT, ALT, RIGHT_CTRL, RIGHT_ALT],
           [0x10, 0x11, 0x10, 0x12, 0x200, 0x12], raw_codes)
    a = PLACE["a"]
    expect(session, "modifiers at the right", [(RIGHT_SHIFT, a), (RIGHT_CTRL, a), (RIGHT_ALT, a)], [0x41, 0x241, 0x441])
    typed(session, "with modifiers at the right", "Axy")


def locks(session):
    """Caps Lock turns letters around and nothing else. Print Screen is told when it comes up."""
    a, one = PLACE["a"], PLACE["1"]
    expect(session, "Caps Lock", [CAPS_LOCK, a, (SHIFT, a), one, CAPS_LOCK, a], [0x41, 0x61, 0x31, 0x61])
    typed(session, "with Caps Lock", "Aa1axy")
    expect(session, "Print Screen", [PRINT, (SHIFT, PRINT), (CTRL, PRINT)], [0x82A, 0x92A, 0xA2A])
    expect(session, "Scroll Lock", [SCROLL_LOCK, (SHIFT, SCROLL_LOCK), (ALT, SCROLL_LOCK)], [0x891, 0x991, 0x491])
    expect(session, "keys without a code", [PAUSE, MENU, LEFT_SUPER, RIGHT_SUPER, (ALT, PAUSE)], [0x413])
    typed(session, "behind the locks", "xy")


def pad(session):
    """Without Num Lock a digit comes as the place on the pad, and the point as Delete, which has no character."""
    for name, held in HELD.items():
        alt = ALT in held
        expect(session, f"pad without Num Lock {name}", held_with(held, [*PAD, PAD_POINT]),
               [bits(held) + 0x1060 + digit for digit in PAD.values()] + [0x146E if alt else bits(held) + 0x102E])
        empty(session)
        codes(session, held_with(held, [PAD_POINT]))
        typed(session, f"behind the point of the pad {name}", ".xy" if alt else "y")
        operators(session, name, held)


def operators(session, name, held):
    expect(session, f"operators of the pad {name}", held_with(held, OPERATORS),
           [bits(held) + 0x1000 + OPERATOR_KEYS[c] for c in OPERATORS.values()])
    text(session, f"text of the operators {name}", "".join(OPERATORS.values()))
    expect(session, f"Enter of the pad {name}", held_with(held, [PAD_ENTER]), [bits(held) + 0x100D])
    typed(session, f"behind Enter of the pad {name}", "y" if held == (CTRL, SHIFT) else "xy")


class NumLock:
    def __init__(self, session):
        self.toggle = lambda: session.window.display.xdotool("key", NUM_LOCK)

    def __enter__(self):
        self.toggle()

    def __exit__(self, *error):
        self.toggle()


def pad_digit(digit):
    """With Num Lock; the middle one is told by its place alone."""
    return (0x1060 if digit == 5 else 0x2060) + digit


def pad_with_num_lock(session):
    """A digit comes as a key and as a character; with Alt as without Num Lock."""
    with NumLock(session):
        both = [code for digit in PAD.values() for code in (pad_digit(digit), 0x30 + digit)]
        expect(session, "pad with Num Lock", [*PAD, PAD_POINT], both + [0x106E])
        text(session, "text of the pad", "".join(map(str, PAD.values())) + ".")
        empty(session)
        expect(session, "pad with Num Lock with Alt", held_with((ALT,), [*PAD, PAD_POINT]),
               [0x1460 + digit for digit in PAD.values()] + [0x146E])
        typed(session, "behind the pad with Num Lock with Alt", ".xy")
        for name, held in HELD.items():
            operators(session, f"with Num Lock {name}", held)


def as_on_windows(session):
    """What Windows does and Wine does not: there Ctrl with a digit of the pad types the control character that X has for it,
    Esc among them, an operator keeps its character, Shift stays down on the pad, and nothing is a break."""
    if session.system.name == "wine":
        return
    with NumLock(session):
        expect(session, "pad with Num Lock with Shift", held_with((SHIFT,), [*PAD, PAD_POINT]),
               [0x1060 + digit for digit in PAD.values()] + [0x102E])
        empty(session)
        expect(session, "pad with Num Lock with Ctrl", held_with((CTRL,), [*PAD, PAD_POINT]),
               [0x200 + pad_digit(digit) for digit in PAD.values()] + [0x126E])
        typed(session, "behind the pad with Num Lock with Ctrl", ".y")
    codes(session, [(CTRL, key) for key in OPERATORS])
    typed(session, "behind the operators with Ctrl", "*+-/y")
    others = "=];'`\\,./ "
    expect(session, "Ctrl, Shift and another character", held_with((CTRL, SHIFT), places(others)), [])
    expect(session, "Break", [(CTRL, PAUSE), (CTRL, SCROLL_LOCK)], [0x203, 0x203])


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
