#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the vector pictures of the sample set: pictures/sword.wmf, tithe.wmf, ring.wmf and comet.wmf.

They are cut like the others, but go out as placeable Windows metafiles of polygons alone: not every player
fills the other shapes of the format. Three of them count 1440 units to the inch, so that a pixel is 15 units;
one counts 96, so that a pixel is one unit.

Run it without arguments.
"""

import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent / "sources"))

from inks import INKS  # noqa: E402
import scenery  # noqa: E402
from emblems_lore import seal  # noqa: E402
from emblems_realm import sword as upright_sword  # noqa: E402
from woodcut import Cut, flattened, hatching, polar, rectangle, sharp, star, tapered  # noqa: E402

NO_LINE = None


def rgb(text):
    """"#rrggbb" as the colour value of a metafile, 0x00BBGGRR."""
    value = int(text[1:], 16)
    return (value & 0xFF) << 16 | value & 0xFF00 | value >> 16


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

    def polygon(self, path, fill, line=NO_LINE, width=1.2):
        path = self.inside(path)
        if path:
            self.use(fill, line, width)
            self.points(0x0324, path)

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


def polygons(data):
    """The closed straight outlines of a path's data."""
    for loop in data.replace("z", "").split("M")[1:]:
        yield [tuple(float(v) for v in pair.split(",")) for pair in loop.split("L")]


class MetaCut(Cut):
    """Cuts that go into a metafile."""

    def __init__(self, width, height, inch=1440):
        super().__init__(INKS, 1.3)
        self.file = Metafile(width, height, inch)

    def shape(self, points, fill, ink="k", weight=None, **shade):
        outline = flattened(self.placed(points), steps=5)
        weight = self.weight if weight is None else weight
        if fill:
            self.file.polygon(outline, self.colour(fill))
        if shade:
            tone = self.colour(shade.pop("tone", "k"))
            for wedge in polygons(hatching(outline, **shade)):
                self.file.polygon(wedge, tone)
        if ink and weight:
            self.file.polygon(outline, NO_LINE, self.colour(ink), weight)

    def line(self, points, width=1.4, ink="k", ends="both"):
        many = points if isinstance(points, list) and points and isinstance(points[0], str) else [points]
        for one in many:
            for outline in polygons(tapered(self.placed(one), width, ends)):
                self.file.polygon(outline, self.colour(ink))


def sword():
    """A notched sword on a red cloth; 141 x 62."""
    cut = MetaCut(141, 62)
    cut.shape(rectangle(0, 0, 141, 62), "h", ink=None)
    for x in range(-30, 150, 11):
        cut.line(f"{x},62 {x + 26},0", 2.4, "#9c3222", "start")
    for y in (4, 58):
        cut.line(f"0,{y} 141,{y}", 2.6, "e", "none")
    for i in range(18):
        cut.shape(sharp([(i * 8, 62), (i * 8 + 4, 55), (i * 8 + 8, 62)]), "e", weight=0.8)
        cut.shape(sharp([(i * 8, 0), (i * 8 + 4, 7), (i * 8 + 8, 0)]), "e", weight=0.8)
    with cut.at(38, 36, 1.06, 80):
        upright_sword(cut, 92, 15)
        for y in (-30, -52, -68):
            cut.shape(sharp([(6.4, y - 3), (1.6, y), (6.4, y + 3)]), "h", weight=1)
        cut.shape(sharp([(-6.4, -44), (-2, -42), (-6.4, -39)]), "h", weight=1)
    cut.shape(star(4, 7, 1.8, 122, 17), "a", weight=0.9)
    return cut.file


def tithe():
    """A sealed law between heaps of coin, before the king's banners; 141 x 107."""
    cut = MetaCut(141, 107, 96)
    scenery.sky(cut, 141, 107, "f", "#4d7f9f", 4, 0, 0.5)
    for x in (17, 124):
        cut.shape(sharp([(x - 12, 0), (x + 12, 0), (x + 12, 66), (x, 58), (x - 12, 66)]), "h", angle=0, gap=2.8, reach=0.4, width=1.2)
        cut.shape(star(8, 9, 4, x, 26), "e", weight=1.1)
    cut.shape(rectangle(-2, 82, 143, 109), "b", angle=0, gap=3, reach=0.4, width=1.3)
    cut.line(["0,92 141,91", "0,101 141,102"], 1.4, ends="none")
    cut.shape("40,8! 44,30 39,56 42,84! 60,81 80,86 101,83! 98,56 103,30 100,8! 80,12 60,7", "a", angle=0, gap=3, reach=0.12, width=1.2)
    cut.shape(rectangle(36, 3, 105, 13), "e", angle=0, gap=2.4, reach=0.3, width=1.1)
    for x in (34, 107):
        cut.dot(x, 8, 4, "b", 6.5, weight=1.3)
    with cut.at(70, 26, 0.8):
        cut.sym("0,-9! 4,-2 10,2! 14,-8! 15,9! 0,9!", "h", weight=1.2)
    cut.line([f"48,{y} {94 - y % 9},{y}" for y in (40, 46, 52, 58)] + ["48,64 66,64"], 1.7)
    for side in (-1, 1):
        cut.shape(sharp([(84 + side, 72), (84 + side * 8, 73), (84 + side * 12, 98), (84 + side * 6, 94), (84 + side * 2, 99)]), "h", weight=1.2)
    seal(cut, 84, 68, 14)
    for x, foot, count in ((20, 98, 7), (38, 103, 4), (112, 97, 6), (129, 100, 9), (8, 102, 4)):
        for i in range(count):
            cut.dot(x, foot - i * 4.4, 10, "e", 4, weight=1.2, angle=0, gap=1.9, reach=0.35, width=0.9)
        cut.dot(x, foot - (count - 1) * 4.4, 5.4, None, 1.9, weight=0.8)
    return cut.file


def ring():
    """A ring of ember glass on a cushion; 141 x 82."""
    cut = MetaCut(141, 82)
    cut.shape(rectangle(0, 0, 141, 82), "#2a1a2c", ink=None)
    scenery.rays(cut, 71, 26, 141, 82, "#6b2f34", 40, 18, 4, 2.6)
    cut.dot(71, 26, 26, "#8a3a30", ink=None)
    cut.shape("4,80! 10,66! 4,58! 30,60 50,56 71,58 92,56 112,60 137,58! 131,66! 137,80! 108,76 71,79 34,76", "v", angle=0, gap=2.8, reach=0.3, width=1.3)
    for x in (5, 136):
        for y in (58, 79):
            cut.dot(x, y, 3.6, "e", weight=1.1)
    cut.line(["30,64 50,68 64,66", "112,64 92,68 78,66"], 1.8)
    cut.dot(71, 66, 28, "#4b2742", 5, weight=0)
    cut.dot(71, 48, 27, None, 20, weight=9.4)
    cut.dot(71, 48, 27, None, 20, ink="e", weight=6.6)
    cut.dot(71, 48, 29.4, None, 22, ink="a", weight=1)
    for a in range(100, 260, 12):
        x1, y1 = polar(1, a)
        cut.line(f"{71 + x1 * 24:.1f},{48 + y1 * 17.4:.1f} {71 + x1 * 29:.1f},{48 + y1 * 21.6:.1f}", 1.6)
    cut.shape(sharp([(58, 28), (84, 28), (80, 37), (62, 37)]), "e", angle=0, gap=2.2, reach=0.4, width=1)
    gem = [(53, 16), (62, 6), (80, 6), (89, 16), (71, 36)]
    cut.shape(sharp(gem), "h", weight=1.6)
    cut.shape(sharp([(53, 16), (62, 6), (66, 16)]), "e", weight=1)
    cut.shape(sharp([(62, 6), (80, 6), (76, 16), (66, 16)]), "#f0783a", weight=1)
    cut.shape(sharp([(66, 16), (76, 16), (71, 36)]), "#d9522c", weight=1)
    cut.shape(sharp([(76, 16), (89, 16), (71, 36)]), "#8e2418", weight=1, angle=0, gap=2.2, reach=0.6, width=0.9)
    cut.shape(sharp(gem), None, weight=1.6)
    for x, y, r in ((40, 14, 6), (104, 18, 7), (30, 36, 4), (112, 42, 4), (96, 4, 4), (20, 16, 3), (126, 22, 3)):
        cut.shape(star(4, r, r * 0.26, x, y), "e", weight=0.8)
    return cut.file


def comet():
    """A red comet over a watch tower; 151 x 110."""
    cut = MetaCut(151, 110)
    scenery.sky(cut, 151, 110, "n", "#38567c", 4, 0, 0.5)
    for i in range(22):
        x, y = (i * 61 + 13) % 146 + 2, (i * 37 + 9) % 76 + 3
        cut.shape(star(4, 2 + i % 3 * 0.5, 0.6, x, y), "a", ink=None)
    cut.shape("151,0! 118,8 92,26 78,44! 84,54! 104,48 130,26 151,12!", "#7c2330", weight=1.2)
    cut.shape("151,2! 122,12 98,28 82,44! 86,51! 104,44 128,22 151,8!", "h", ink=None)
    cut.shape("148,4! 122,16 102,30 86,44! 88,48! 104,40 124,22!", "e", ink=None)
    cut.line(["140,14 112,34 96,46", "128,10 104,24 88,40"], 1.8, "a", "start")
    cut.shape(star(12, 17, 9, 80, 50), "h", weight=1.2)
    cut.dot(80, 50, 8.6, "e", weight=1.2)
    cut.dot(79, 49, 4.6, "a", weight=0)
    for x, top, half in ((118, 70, 44), (150, 62, 34)):
        scenery.mountain(cut, x, top, 112, half, "#4a5f7c", "w")
    cut.shape("0,110! 0,92! 24,84 50,88 76,98 112,94 151,101! 151,110!", "c", angle=0, gap=3, reach=0.3, width=1.3)
    cut.shape(sharp([(24, 92), (27, 52), (47, 52), (50, 92)]), "s", angle=0, gap=2.8, reach=0.5, width=1.2)
    cut.shape(sharp([(21, 53), (21, 40), (26, 40), (26, 45), (31, 45), (31, 40), (43, 40), (43, 45), (48, 45), (48, 40), (53, 40), (53, 53)]), "s", angle=0, gap=2.4, reach=0.4, width=1.1)
    cut.shape("33,72! 33,64 37,60 41,64 41,72!", "e", weight=1.2)
    cut.shape("32,92! 32,82 37,77 42,82 42,92!", "k", weight=1)
    cut.line("37,40 37,18", 2, ends="none")
    cut.shape("37,18! 46,17 54,21! 46,23 37,26!", "h", weight=1.1)
    cut.dot(47, 33, 3, "t", weight=1)
    cut.shape("43,42! 44,36! 50,36! 51,42!", "f", weight=1)
    cut.line("49,37 57,33", 2.2, ends="none")
    for x, foot, high in ((8, 96, 36), (66, 100, 24), (76, 101, 30), (18, 94, 22)):
        scenery.pine(cut, x, foot, high, "p")
    return cut.file


def main():
    folder = Path(__file__).resolve().parent / "pictures"
    folder.mkdir(exist_ok=True)
    for draw in (sword, tithe, ring, comet):
        draw().save(folder / f"{draw.__name__}.wmf")


if __name__ == "__main__":
    main()
