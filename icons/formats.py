"""The two file formats of icons."""
import struct


def rgb(words, transparency):
    """An .rgb file of four channels, each run-length packed by rows, lowest row first.

    The fourth channel is the transparency (0 opaque), as the tree's icons have it, or the opacity (255 opaque), as
    pictures on controls have it.
    """
    height, width = len(words), len(words[0])
    head = struct.pack('>hbbHHHHii4x80si404x', 474, 1, 1, 3, width, height, 4, 0, 255, b'', 0)
    rows = []
    for channel in range(4):
        for row in reversed(words):
            values = bytes(255 - p[3] if channel == 3 and transparency else p[channel] for p in row)
            rows.append(packed(values))
    starts, at = [], 512 + 8 * len(rows)
    for row in rows:
        starts.append(at)
        at += len(row)
    tables = struct.pack(f'>{len(rows)}I', *starts) + struct.pack(f'>{len(rows)}I', *map(len, rows))
    return head + tables + b''.join(rows)


def packed(values):
    """Runs of equal bytes as (count, byte), others as (128 + count, bytes), ended by a 0."""
    out, at = bytearray(), 0
    while at < len(values):
        run = run_at(values, at)
        if run > 2:
            out += bytes((run, values[at]))
            at += run
            continue
        start = at
        while at < len(values) and at - start < 126 and run_at(values, at) < 3:
            at += 1
        out += bytes((128 + at - start,)) + values[start:at]
    return bytes(out) + b'\0'


def run_at(values, at):
    end = at
    while end < len(values) and end - at < 127 and values[end] == values[at]:
        end += 1
    return end - at


def tga(words):
    """An uncompressed .tga of 24 bits. Blue alone is transparent: the more of it, the more. So only black can fade."""
    height, width = len(words), len(words[0])
    out = bytearray(struct.pack('<BBB5xHHHHBB', 0, 0, 2, 0, 0, width, height, 24, 0))
    for row in reversed(words):
        for red, green, blue, alpha in row:
            if alpha < 255:
                assert max(red, green, blue) < 40 or alpha == 0, 'only black may fade'
                red, green, blue = 0, 0, 255 - alpha
            elif red + green == 0:
                green = 1
            out += bytes((blue, green, red))
    return bytes(out)
