#!/usr/bin/env python3
"""Writes the vector pictures of the sample set: pictures/sword.wmf, tithe.wmf, ring.wmf and comet.wmf.

Each picture is drawn below in pixels of the card, from a few plain shapes, and goes out
as a placeable Windows metafile. Three of them count 1440 units to the inch, so that a
pixel is 15 units; one counts 96, so that a pixel is one unit.

Run it without arguments.
"""

import math
import struct
from pathlib import Path

NO_LINE = None


def rgb(text):
    """"#rrggbb" as the colour value of a metafile, 0x00BBGGRR."""
    value = int(text[1:], 16)
    return (value & 0xFF) << 16 | value & 0xFF00 | value >> 16


def blend(first, second, share):
    """The colour that lies the given share of the way from the first to the second."""
    a, b = (bytes.fromhex(colour[1:]) for colour in (first, second))
    return "#" + bytes(round(x + (y - x) * share) for x, y in zip(a, b)).hex()


def curve(*knots, steps=8):
    """Points along cubic curves: a start, then two handles and an end for each curve."""
    path = [knots[0]]
    for i in range(1, len(knots), 3):
        p0, p1, p2, p3 = path[-1], *knots[i:i + 3]
        for step in range(1, steps + 1):
            t = step / steps
            u = 1 - t
            path.append(tuple(u**3 * a + 3 * u * u * t * b + 3 * u * t * t * c + t**3 * d for a, b, c, d in zip(p0, p1, p2, p3)))
    return path


def star(tips, outer, inner, x, y):
    return [(x + r * math.sin(i * math.pi / tips), y - r * math.cos(i * math.pi / tips))
            for i in range(2 * tips) for r in [inner if i % 2 else outer]]


class Metafile:
    """A picture in the making: shapes go in in pixels, records come out in units."""

    def __init__(self, width, height, inch=1440):
        self.width, self.height, self.inch = width, height, inch
        self.records, self.objects, self.current = [], {}, {}
        self.record(0x0103, 8)  # anisotropic: the window below is stretched over the picture
        self.record(0x020B, 0, 0)
        self.record(0x020C, self.unit(height), self.unit(width))
        self.record(0x0102, 1)  # transparent background
        self.record(0x0106, 2)  # winding fill

    def unit(self, pixels):
        return round(pixels * self.inch / 96)

    def record(self, function, *words):
        body = b"".join(struct.pack("<H", word & 0xFFFF) for word in words)
        self.records.append(struct.pack("<IH", 3 + len(words), function) + body)

    def select(self, kind, *key):
        """Makes the pen or the brush current; it is created when it is first asked for."""
        if self.current.get(kind) == key:
            return
        self.current[kind] = key
        if (kind, key) not in self.objects:
            self.objects[kind, key] = len(self.objects)
            colour, width = key
            low, high = (0, 0) if colour is None else (rgb(colour) & 0xFFFF, rgb(colour) >> 16)
            if kind == "pen":
                self.record(0x02FA, 5 if colour is None else 0, self.unit(width), 0, low, high)
            else:
                self.record(0x02FC, 1 if colour is None else 0, low, high, 0)
        self.record(0x012D, self.objects[kind, key])

    def use(self, fill, line, width):
        self.select("brush", fill, 0)
        self.select("pen", line, width if line else 0)

    def points(self, function, path):
        self.record(function, len(path), *(self.unit(value) for point in path for value in point))

    def box(self, function, left, top, right, bottom):
        self.record(function, self.unit(bottom), self.unit(right), self.unit(top), self.unit(left))

    def inside(self, path):
        """What of a polygon lies on the picture: players take the picture's size from its shapes, too."""
        for axis, bound, side in ((0, 0, 1), (0, self.width, -1), (1, 0, 1), (1, self.height, -1)):
            kept = []
            for start, end in zip(path[-1:] + path[:-1], path):
                from_start, from_end = (start[axis] - bound) * side, (end[axis] - bound) * side
                if (from_start < 0) != (from_end < 0):
                    share = from_start / (from_start - from_end)
                    kept.append(tuple(a + (b - a) * share for a, b in zip(start, end)))
                if from_end >= 0:
                    kept.append(end)
            path = kept
        return path

    def polygon(self, path, fill, line="#1c1410", width=1.2):
        path = self.inside(path)
        if path:
            self.use(fill, line, width)
            self.points(0x0324, path)

    def polyline(self, path, line, width=1.2):
        self.use(None, line, width)
        self.points(0x0325, path)

    def ellipse(self, x, y, rx, ry, fill, line="#1c1410", width=1.2):
        """As a polygon: not every player fills the ellipses of the format."""
        steps = 48
        turns = [2 * math.pi * i / steps for i in range(steps)]
        self.polygon([(x + rx * math.cos(t), y + ry * math.sin(t)) for t in turns], fill, line, width)

    def rectangle(self, left, top, right, bottom, fill, line="#1c1410", width=1.2):
        self.use(fill, line, width)
        self.box(0x041B, left, top, right, bottom)

    def shade(self, top, bottom, first, second, step=2):
        """Fills a band of the picture from one colour down to the other."""
        for y in range(top, bottom, step):
            self.polygon([(0, y), (self.width, y), (self.width, bottom), (0, bottom)], blend(first, second, (y - top) / (bottom - top)), NO_LINE)

    def glow(self, x, y, radius, inner, outer, rings=8, flat=1.0):
        for i in range(rings):
            r = radius * (rings - i) / rings
            self.ellipse(x, y, r, r * flat, blend(outer, inner, i / (rings - 1)), NO_LINE)

    def save(self, path):
        for index in range(len(self.objects)):
            self.record(0x01F0, index)
        self.record(0x0000)
        body = b"".join(self.records)
        largest = max(len(record) for record in self.records) // 2
        header = struct.pack("<HHHIHIH", 1, 9, 0x0300, 9 + len(body) // 2, len(self.objects), largest, 0)
        place = struct.pack("<IHhhhhHI", 0x9AC6CDD7, 0, 0, 0, self.unit(self.width), self.unit(self.height), self.inch, 0)
        checksum = 0
        for (word,) in struct.iter_unpack("<H", place):
            checksum ^= word
        path.write_bytes(place + struct.pack("<H", checksum) + header + body)


def sword():
    """A notched sword on a red cloth."""
    m = Metafile(141, 62)
    m.shade(0, 62, "#9a2a30", "#4a1018")
    for x in range(-40, 160, 22):
        m.polygon([(x, 62), (x + 40, 0), (x + 46, 0), (x + 6, 62)], "#7a1c26", NO_LINE)
    m.polygon([(0, 3), (141, 3), (141, 6), (0, 6)], "#e0b04a", NO_LINE)
    m.polygon([(0, 56), (141, 56), (141, 59), (0, 59)], "#e0b04a", NO_LINE)
    m.polygon([(30, 50), (48, 46), (136, 22), (132, 17), (44, 38)], "#3a0a12", NO_LINE)  # its shadow
    m.polygon([(42, 33), (60, 28), (63, 31), (66, 26), (92, 19), (95, 22), (99, 17), (124, 10), (136, 11), (127, 19), (46, 42)], "#e4ebf2", "#18202a", 1.4)
    m.polygon([(44, 38), (131, 14), (136, 11), (127, 19), (46, 42)], "#8e9cac", NO_LINE)
    m.polyline([(46, 38), (120, 17)], "#4a5868", 1.2)
    m.polygon(curve((34, 22), (40, 22), (42, 24), (43, 28), (46, 36), (50, 44), (54, 48), (50, 52), (46, 52), (44, 49), (40, 42), (36, 34), (34, 22)), "#e8b83c", "#3a2408", 1.4)
    m.polygon([(39, 33), (42, 40), (20, 47), (17, 40)], "#6a3a1c", "#2a1408", 1.4)
    for x in (20, 25, 30, 35):
        m.polyline([(x, 39.5 - (x - 20) * 0.32), (x + 4, 46 - (x - 20) * 0.32)], "#c89a5a", 1.3)
    m.ellipse(14, 45, 6.5, 6.5, "#e8b83c", "#3a2408", 1.4)
    m.ellipse(14, 45, 3, 3, "#4a9ad8", "#18304a", 1)
    m.polygon(star(4, 6, 1.5, 112, 14), "#ffffff", NO_LINE)
    return m


def tithe():
    """A sealed decree and heaps of coin on a table."""
    m = Metafile(141, 107, inch=96)
    m.shade(0, 74, "#34507a", "#88a4c0")
    for x in (8, 117):
        m.polygon([(x, 0), (x + 16, 0), (x + 16, 60), (x + 8, 68), (x, 60)], "#a8283a", "#4a0c18", 1)
        m.polygon(star(6, 7, 3, x + 8, 30), "#f2cc5a", NO_LINE)
    m.polygon([(0, 72), (141, 72), (141, 107), (0, 107)], "#7a4a26", "#2c1608", 1)
    for y in (80, 90, 100):
        m.polyline([(0, y), (141, y)], "#5c3418", 1)
    m.polygon([(38, 6), (100, 6), (100, 84), (38, 84)], "#f8ecc8", "#4a3414", 2)
    m.polygon([(38, 6), (46, 6), (46, 84), (38, 84)], "#e2cf9c", NO_LINE)
    m.rectangle(32, 2, 107, 12, "#d8bf86", "#4a3414", 2)
    m.rectangle(32, 80, 107, 90, "#d8bf86", "#4a3414", 2)
    m.polygon(star(5, 8, 3, 69, 24), "#b8303a", "#5c0c18", 1)
    for y, end in ((38, 90), (45, 94), (52, 86), (59, 92), (66, 70)):
        m.polyline([(50, y), (end, y)], "#6a5432", 2)
    m.polygon([(80, 70), (74, 98), (82, 94), (86, 102), (90, 72)], "#8c1c28", "#40080f", 1)
    m.polygon([(88, 70), (96, 96), (90, 95), (86, 102), (83, 72)], "#b8303a", "#40080f", 1)
    m.ellipse(85, 68, 12, 12, "#c8323e", "#5c0c18", 2)
    m.ellipse(85, 68, 7, 7, "#e0606a", "#8c1c28", 1)
    for x, y, count in ((20, 97, 5), (36, 102, 3), (112, 95, 7), (128, 101, 4), (11, 102, 2)):
        for i in range(count):
            m.ellipse(x, y - 5 * i, 10, 4, "#f4cc4a", "#6a4408", 1)
        m.ellipse(x, y - 5 * count + 4, 6, 2, "#ffe98c", NO_LINE)
    return m


def ring():
    """A ring of ember glass on a cushion."""
    m = Metafile(141, 82)
    m.shade(0, 82, "#1a0f2c", "#4a2440")
    m.glow(71, 40, 62, "#f0803a", "#3a1c3a", 10, 0.62)
    m.polygon(curve((12, 62), (30, 50), (112, 50), (130, 62), (140, 70), (136, 80), (124, 78), (90, 84), (52, 84), (18, 78), (6, 80), (2, 70), (12, 62)), "#5a3a9a", "#180c30", 1.6)
    m.polygon(curve((20, 64), (44, 55), (98, 55), (122, 64), (98, 72), (44, 72), (20, 64)), "#7a5ac0", NO_LINE)
    for x in (8, 134):
        m.ellipse(x, 74, 4, 5, "#e8b83c", "#3a2408", 1)
    m.ellipse(71, 66, 27, 5, "#3a2470", NO_LINE)
    m.ellipse(71, 48, 25, 20, None, "#3a1c04", 8)
    m.ellipse(71, 48, 25, 20, None, "#e8a83a", 5.4)
    m.ellipse(71, 47, 26, 20.5, None, "#fff0a8", 1.2)
    m.polygon([(60, 30), (82, 30), (78, 36), (64, 36)], "#c88a24", "#3a1c04", 1.2)
    m.polygon([(56, 18), (63, 10), (79, 10), (86, 18), (71, 34)], "#e8431e", "#3c0c08", 1.6)
    m.polygon([(63, 10), (71, 18), (79, 10)], "#ffd06a", NO_LINE)
    m.polygon([(56, 18), (63, 10), (71, 18)], "#ff8a3c", NO_LINE)
    m.polygon([(71, 18), (79, 10), (86, 18)], "#f26a2a", NO_LINE)
    m.polygon([(56, 18), (71, 18), (71, 34)], "#c8281a", NO_LINE)
    m.polyline([(56, 18), (86, 18)], "#5c120c", 1)
    m.polyline([(63, 10), (71, 18), (79, 10)], "#5c120c", 1)
    m.polyline([(71, 18), (71, 33)], "#5c120c", 1)
    for x, y, size in ((46, 14, 5), (99, 20, 6), (92, 6, 3.5), (40, 34, 3.5), (108, 40, 3)):
        m.polygon(star(4, size, size / 4, x, y), "#ffe9a0", NO_LINE)
    return m


def comet():
    """A red comet over a watch tower."""
    m = Metafile(151, 110)
    m.shade(0, 96, "#0b0f2c", "#c0583e", 2)
    for x, y, size in ((14, 12, 2), (40, 8, 1.4), (66, 22, 2), (22, 40, 1.4), (92, 10, 1.6), (52, 50, 1.6), (138, 62, 1.8), (128, 84, 1.4), (10, 66, 1.6), (80, 66, 1.2)):
        m.polygon(star(4, size * 1.6, size * 0.5, x, y), "#fdf6d8", NO_LINE)
    m.polygon(curve((148, 2), (124, 4), (96, 20), (82, 38), (78, 46), (84, 52), (92, 48), (112, 36), (136, 18), (148, 2)), "#8a1e2a", NO_LINE)
    m.polygon(curve((142, 6), (122, 12), (100, 24), (84, 40), (81, 46), (85, 49), (91, 46), (108, 34), (128, 20), (142, 6)), "#e04a2c", NO_LINE)
    m.polygon(curve((130, 14), (116, 20), (100, 30), (86, 42), (84, 45), (86, 47), (89, 45), (104, 34), (118, 24), (130, 14)), "#ffb04a", NO_LINE)
    m.glow(86, 45, 11, "#fffbe0", "#f0602c", 6)
    m.polygon(curve((-2, 84), (30, 70), (60, 76), (90, 86), (112, 92), (136, 84), (153, 80), (153, 96), (153, 104), (153, 112)) + [(-2, 112)], "#3a1c34", NO_LINE)
    m.polygon(curve((-2, 96), (30, 86), (70, 90), (100, 98), (120, 102), (140, 98), (153, 96), (153, 100), (153, 106), (153, 112)) + [(-2, 112)], "#1c0e20", NO_LINE)
    m.polygon([(24, 94), (27, 48), (45, 48), (48, 94)], "#544a5c", "#140a18", 1.6)
    m.polygon([(38, 94), (38, 48), (45, 48), (48, 94)], "#3a3242", NO_LINE)
    m.polygon([(22, 50), (22, 38), (27, 38), (27, 42), (31, 42), (31, 38), (41, 38), (41, 42), (45, 42), (45, 38), (50, 38), (50, 50)], "#6a5e72", "#140a18", 1.6)
    m.rectangle(33, 56, 38, 66, "#ffd86a", "#140a18", 1)
    m.polygon([(32, 94), (32, 82), (36, 78), (40, 82), (40, 94)], "#1c0e20", "#140a18", 1)
    for x, y in ((28, 60), (41, 70), (29, 74), (40, 86)):
        m.polyline([(x, y), (x + 5, y)], "#2a2230", 1)
    m.polyline([(36, 38), (36, 22)], "#140a18", 1.6)
    m.polygon([(36, 22), (50, 26), (36, 31)], "#c8323e", "#140a18", 1)
    m.ellipse(44, 34, 2.6, 2.6, "#1c0e20", NO_LINE)  # the watchman, who points up
    m.polygon([(41, 42), (42, 36), (46, 36), (47, 42)], "#1c0e20", NO_LINE)
    m.polyline([(45, 37), (52, 31)], "#1c0e20", 1.6)
    return m


def main():
    folder = Path(__file__).resolve().parent / "pictures"
    folder.mkdir(exist_ok=True)
    for draw in (sword, tithe, ring, comet):
        draw().save(folder / f"{draw.__name__}.wmf")


if __name__ == "__main__":
    main()
