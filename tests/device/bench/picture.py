"""Pictures: read from the machine (PPM) and from the gallery (PNG), compared, written (PNG)."""

import struct
import zlib


class Picture:
    """Eight bits each of red, green and blue, line by line."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self.pixels = pixels

    def line(self, y, left, right):
        start = (y * self.width + left) * 3
        return self.pixels[start : start + (right - left) * 3]

    def pixel(self, x, y):
        return tuple(self.line(y, x, x + 1))

    def part(self, left, top, width, height):
        lines = (self.line(y, left, left + width) for y in range(top, top + height))
        return Picture(width, height, b"".join(lines))

    def without(self, rects):
        """The same, black in the given rects (x, y, width, height)."""
        pixels = bytearray(self.pixels)
        for x, y, width, height in rects:
            right = max(x, min(x + width, self.width))
            for line in range(y, min(y + height, self.height)):
                start = (line * self.width + x) * 3
                pixels[start : start + (right - x) * 3] = bytes((right - x) * 3)
        return Picture(self.width, self.height, bytes(pixels))

    def write(self, path):
        lines = (b"\0" + self.line(y, 0, self.width) for y in range(self.height))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            chunks = (b"IHDR", header), (b"IDAT", zlib.compress(b"".join(lines), 1)), (b"IEND", b"")
            for kind, data in chunks:
                file.write(struct.pack(">I", len(data)) + kind + data)
                file.write(struct.pack(">I", zlib.crc32(kind + data)))


def difference(got, expected):
    """What differs, in words; empty when nothing does."""
    if (got.width, got.height) != (expected.width, expected.height):
        return "%dx%d pixels instead of %dx%d" % (
            got.width, got.height, expected.width, expected.height)
    if got.pixels == expected.pixels:
        return ""
    points = [
        (x, y)
        for y in range(got.height)
        if got.line(y, 0, got.width) != expected.line(y, 0, got.width)
        for x in range(got.width)
        if got.pixel(x, y) != expected.pixel(x, y)
    ]
    columns, lines = zip(*points)
    return "%d pixels between (%d, %d) and (%d, %d), the first %s instead of %s" % (
        len(points), min(columns), min(lines), max(columns), max(lines),
        got.pixel(*points[0]), expected.pixel(*points[0]))


def read_ppm(path):
    content = path.read_bytes()
    kind, width, height, maximum, pixels = content.split(None, 4) if content else [b""] * 5
    width, height = int(width), int(height)
    if kind != b"P6" or maximum != b"255":
        raise ValueError("%s is no picture of eight bits a colour" % path)
    return Picture(width, height, content[-width * height * 3 :])


def read_png(path):
    """Reads what the gallery writes: eight bits a colour, without alpha or with, not interlaced."""
    content = path.read_bytes()
    data, position = b"", 8
    while position < len(content):
        (size,) = struct.unpack_from(">I", content, position)
        kind = content[position + 4 : position + 8]
        chunk = content[position + 8 : position + 8 + size]
        position += size + 12
        if kind == b"IHDR":
            width, height, depth, colors = struct.unpack_from(">IIBB", chunk)
        elif kind == b"IDAT":
            data += chunk
    if depth != 8 or colors not in (2, 6):
        raise ValueError("%s is no picture of eight bits a colour" % path)
    channels = 3 if colors == 2 else 4
    lines = unfiltered(zlib.decompress(data), width * channels, height, channels)
    pixels = bytearray(width * height * 3)
    for color in range(3):
        pixels[color::3] = lines[color::channels]
    return Picture(width, height, bytes(pixels))


def unfiltered(data, size, height, channels):
    result = bytearray()
    before = bytes(size)
    for y in range(height):
        start = y * (size + 1)
        line = bytearray(data[start + 1 : start + 1 + size])
        FILTERS[data[start]](line, before, channels)
        result += line
        before = line
    return result


def keep(line, before, channels):
    pass


def add_left(line, before, channels):
    for i in range(channels, len(line)):
        line[i] = (line[i] + line[i - channels]) & 255


def add_above(line, before, channels):
    line[:] = bytes((a + b) & 255 for a, b in zip(line, before))


def add_mean(line, before, channels):
    for i, above in enumerate(before):
        left = line[i - channels] if i >= channels else 0
        line[i] = (line[i] + (left + above) // 2) & 255


def add_nearest(line, before, channels):
    for i, above in enumerate(before):
        left, corner = (line[i - channels], before[i - channels]) if i >= channels else (0, 0)
        to_left, to_above = abs(above - corner), abs(left - corner)
        to_corner = abs(left + above - 2 * corner)
        if to_left <= to_above and to_left <= to_corner:
            line[i] = (line[i] + left) & 255
        else:
            line[i] = (line[i] + (above if to_above <= to_corner else corner)) & 255


FILTERS = (keep, add_left, add_above, add_mean, add_nearest)
