"""Pictures as the proofs need them: read from PNG files, written for a look, compared."""

import struct
import zlib


class Picture:
    """Pixels as rows of (red, green, blue) bytes, top row first."""

    def __init__(self, width, height, rows):
        self.width, self.height, self.rows = width, height, rows

    def at(self, x, y):
        if not (0 <= x < self.width and 0 <= y < self.height):
            return None
        return tuple(self.rows[y][3 * x : 3 * x + 3])

    def crop(self, x, y, width, height):
        return Picture(width, height, [row[3 * x : 3 * (x + width)] for row in self.rows[y : y + height]])

    def save(self, path):
        above, packed = bytes(3 * self.width), []
        for row in self.rows:
            packed.append(_filter(row, above))
            above = row
        data = zlib.compress(b"".join(packed), 9)
        head = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            for kind, body in ((b"IHDR", head), (b"IDAT", data), (b"IEND", b"")):
                file.write(struct.pack(">I", len(body)) + kind + body)
                file.write(struct.pack(">I", zlib.crc32(kind + body)))


def differences(a, b):
    """The places where two pictures of the same size differ."""
    for y in range(a.height):
        if a.rows[y] != b.rows[y]:
            for x in range(a.width):
                if a.at(x, y) != b.at(x, y):
                    yield x, y


def _filter(row, above):
    """The row as its differences to the left, to above, or to both, whichever are the smallest."""
    left, corner = b"\0\0\0" + row[:-3], b"\0\0\0" + above[:-3]
    ways = [
        (1, bytes((a - b) & 255 for a, b in zip(row, left))),
        (2, bytes((a - b) & 255 for a, b in zip(row, above))),
        (4, bytes((a - _paeth(b, c, d)) & 255 for a, b, c, d in zip(row, left, above, corner))),
    ]
    kind, line = min(ways, key=lambda way: sum(min(byte, 256 - byte) for byte in way[1]))
    return bytes([kind]) + line


def _paeth(left, up, corner):
    estimate = left + up - corner
    a, b, c = abs(estimate - left), abs(estimate - up), abs(estimate - corner)
    if a <= b and a <= c:
        return left
    return up if b <= c else corner


def _unfilter(kind, line, before, step):
    if kind == 1:
        for i in range(step, len(line)):
            line[i] = (line[i] + line[i - step]) & 255
    elif kind == 2:
        for i in range(len(line)):
            line[i] = (line[i] + before[i]) & 255
    elif kind == 3:
        for i in range(len(line)):
            line[i] = (line[i] + ((line[i - step] if i >= step else 0) + before[i]) // 2) & 255
    elif kind == 4:
        for i in range(len(line)):
            left, corner = (line[i - step], before[i - step]) if i >= step else (0, 0)
            line[i] = (line[i] + _paeth(left, before[i], corner)) & 255


def read_png(path):
    """Reads a PNG file of 8 bits with three or four channels, which is what the gallery writes."""
    with open(path, "rb") as file:
        data = file.read()
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError(f"{path}: not a PNG file")
    place, packed, head = 8, b"", None
    while place < len(data):
        size, kind = struct.unpack(">I4s", data[place : place + 8])
        body = data[place + 8 : place + 8 + size]
        if kind == b"IHDR":
            head = struct.unpack(">IIBBBBB", body)
        elif kind == b"IDAT":
            packed += body
        place += size + 12
    width, height, depth, color = head[:4]
    step = {2: 3, 6: 4}[color]
    assert depth == 8
    raw, rows, before = zlib.decompress(packed), [], bytes(width * step)
    for y in range(height):
        start = y * (width * step + 1)
        line = bytearray(raw[start + 1 : start + 1 + width * step])
        _unfilter(raw[start], line, before, step)
        before = line
        rows.append(_without_alpha(line) if step == 4 else bytes(line))
    return Picture(width, height, rows)


def _without_alpha(line):
    out = bytearray(len(line) // 4 * 3)
    for channel in range(3):
        out[channel::3] = line[channel::4]
    return bytes(out)
