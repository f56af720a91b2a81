# SPDX-License-Identifier: GPL-3.0-or-later
"""Scenery in the manner of the card backs: skies, mountains, water, woods, houses, ships.

For pictures with a frame of their own: a Cut's origin is the left upper corner of the picture.
"""

from woodcut import polar, rectangle, sharp


def sky(cut, width, foot, colour, lines=None, gap=4.0, start=0.0, light=0.5):
    """A flat sky with level cuts from both sides; light is where the sun would stand, from 0 at the left to 1."""
    cut.shape(rectangle(0, 0, width, foot), colour, ink=None)
    if lines is None:
        return
    y, i = start + gap / 2, 0
    while y < foot:
        share = 1 - 0.75 * (y - start) / max(foot - start, 1)
        for side, room in ((0, light), (1, 1 - light)):
            size = width * room * share * (0.95, 0.62, 0.8, 0.5)[(i + side) % 4]
            if size > 6:
                x = 0 if side == 0 else width
                cut.line([(x, y, True), (x + (size if side == 0 else -size), y, True)], gap * 0.42, lines, "end")
        y, i = y + gap, i + 1


def rays(cut, x, y, width, height, colour, count=32, inner=20, turn=0.0, weight=2.4):
    """Beams from a sun or a star to the edge of the picture."""
    reach = width + height
    for i in range(count):
        near, far = polar(inner, i * 360 / count + turn, x, y), polar(reach, i * 360 / count + turn, x, y)
        t = 1.0
        for a, b, low, high in ((near[0], far[0], 0, width), (near[1], far[1], 0, height)):
            if b < low:
                t = min(t, (low - a) / (b - a))
            if b > high:
                t = min(t, (high - a) / (b - a))
        if t > 0:
            end = near[0] + (far[0] - near[0]) * t, near[1] + (far[1] - near[1]) * t
            cut.line([near + (True,), end + (True,)], weight, colour, "start")


def mountain(cut, x, top, foot, half, fill, snow=None, shade="k", lean=0.12, gap=2.6, weight=None):
    """A peak with its right flank in shadow and, if wanted, snow on its head."""
    high = foot - top
    left = [(x - half, foot), (x - half * 0.72, top + high * 0.70), (x - half * 0.58, top + high * 0.62), (x - half * 0.30, top + high * 0.28),
            (x - half * 0.20, top + high * 0.24)]
    right = [(x + half * 0.16, top + high * 0.20), (x + half * 0.26, top + high * 0.24), (x + half * 0.52, top + high * 0.55), (x + half * 0.64, top + high * 0.60),
             (x + half, foot)]
    cut.shape(sharp(left + [(x, top)] + right), fill, weight=weight)
    if snow:
        cut.shape(sharp([(x, top)] + right[:2] + [(x + half * 0.34, top + high * 0.36), (x + half * 0.20, top + high * 0.33), (x + half * 0.12, top + high * 0.46),
                         (x, top + high * 0.34), (x - half * 0.10, top + high * 0.44), (x - half * 0.20, top + high * 0.33),
                         (x - half * 0.34, top + high * 0.38)] + left[3:]), snow, ink=None)
    ridge = [(x, top), (x + half * lean * 0.2, top + high * 0.16), (x - half * lean * 0.6, top + high * 0.30), (x + half * lean * 1.2, top + high * 0.46),
             (x - half * lean * 0.2, top + high * 0.62), (x + half * lean * 2.2, top + high * 0.80), (x + half * lean * 1.2, foot)]
    cut.shape(sharp(ridge + [(x + half, foot)] + right[::-1][1:]), None, ink=None, angle=58, gap=gap, reach=0.92, width=gap * 0.5, tone=shade)
    cut.shape(sharp(left + [(x, top)] + right), None, weight=weight)


def pine(cut, x, foot, high, fill, shade="k", weight=None):
    """A pine with ragged boughs."""
    half = [(0, -60), (3, -50), (8, -46), (4.5, -44), (8, -36), (14, -31), (8.5, -30), (12, -22), (19, -16), (12, -15), (16, -7), (24, 0), (10, -3), (3, -4), (3, 5), (0, 5)]
    points = sharp(half + [(-u, v) for u, v in reversed(half[1:-1])])
    with cut.at(x, foot, high / 60):
        cut.shape(points, fill, angle=14, gap=2.6, reach=0.5, width=1.2, tone=shade, weight=weight)


def bare_tree(cut, x, foot, high, fill="k"):
    with cut.at(x, foot, high / 60):
        cut.shape("-5,0! -3,-14 -4,-24 -14,-36 -20,-50! -11,-40 -4,-34 -6,-48 -4,-60! -1,-48 1,-36 10,-44 12,-56! 14,-44 8,-32 20,-38! 10,-28 4,-20 4,-10 7,0!", fill, weight=1)


def water(cut, left, right, top, foot, fill, glint, gap=4.5, weight=1.3):
    """Still water with level glints, shorter towards the middle."""
    if fill:
        cut.shape(rectangle(left, top, right, foot), fill, ink=None)
    y, i = top + gap * 0.7, 0
    while y < foot - 0.5:
        wide = 5 + (y - top) * 0.22
        x = left + (i * 37 % 23) - 8
        while x < right:
            size = wide * (1, 1.8, 1.3, 2.3, 0.9)[(i + int(x)) % 5]
            a, b = max(left + 0.5, x), min(right - 0.5, x + size)
            if b - a > 4:
                cut.line([(a, y, False), ((a + b) / 2, y - 0.8, False), (b, y, False)], weight, glint)
            x += size + 9 + (i * 13 % 7)
        y, i = y + gap, i + 1


def ship(cut, x, y, size=1.0, sail="e", hull="b", stripes="h", flip=False):
    """A longship under sail; its water line is at y. Some 90 wide and 80 high."""
    with cut.at(x, y, size, flip=flip):
        cut.line("0,-78 0,-8", 2.6, ends="none")
        cut.shape("-26,-66! 0,-70 26,-66! 31,-46 25,-22! 0,-28 -25,-22! -20,-46", sail, angle=0, gap=3, reach=0.3, width=1.3)
        cut.shape("-15,-68! -6,-69! -4,-27! -13,-25.4! -9,-46", stripes, weight=1.1)
        cut.shape("8,-69.4! 17,-68! 21,-46 16,-24.6! 7,-27! 10,-46", stripes, weight=1.1)
        cut.line(["-26,-66 0,-70 26,-66"], 2.4, ends="none")
        cut.line(["-24,-22 -40,-12", "24,-22 38,-12", "0,-77 -43,-20", "0,-77 42,-24"], 1.1, ends="none")
        cut.shape("0,-78! 10,-80 18,-76! 9,-74 0,-73!", stripes, weight=1)
        cut.shape("-50,-34! -44,-34 -42,-26! -45,-24! -40,-10 -22,-4 22,-4 38,-12 43,-30 50,-40! 51,-34! 56,-32! 51,-28 46,-8 34,8 20,12 -22,12 -38,6 -48,-12 -50,-24!", hull,
                  angle=0, gap=2.8, reach=0.3, width=1.2)
        cut.line(["-43,-4 -24,3 24,3 42,-6", "-36,5 -20,8 22,8 34,4"], 1.3)
        for dx in (-27, -15, -3, 9, 21):
            cut.dot(dx, -4, 5.2, sail if dx % 4 else stripes, weight=1.2)
            cut.dot(dx, -4, 1.4, "k", weight=0)


def house(cut, x, foot, wide, high, wall, roof, window="e", door=True):
    """A hall of logs with a steep roof and crossed gables."""
    half = wide / 2
    eaves = foot - high * 0.45
    cut.shape(sharp([(x - half * 0.86, foot), (x - half * 0.86, eaves), (x + half * 0.86, eaves), (x + half * 0.86, foot)]), wall, angle=0, gap=3, reach=0.4, width=1.1)
    cut.shape(sharp([(x - half * 1.1, eaves + 2), (x, foot - high), (x + half * 1.1, eaves + 2)]), roof, angle=56, gap=2.8, reach=0.5, width=1.2)
    cut.line([f"{x - half * 1.1},{eaves + 2} {x + half * 0.12},{foot - high * 1.1}", f"{x + half * 1.1},{eaves + 2} {x - half * 0.12},{foot - high * 1.1}"], 2.2, ends="none")
    if door:
        cut.shape(rectangle(x - half * 0.2, foot - high * 0.3, x + half * 0.2, foot), "k", weight=0)
    if window:
        cut.shape(sharp([(x - 3, eaves - high * 0.1), (x, eaves - high * 0.16), (x + 3, eaves - high * 0.1), (x, eaves - high * 0.04)]), window, weight=1)


def gulls(cut, spots, colour="k", size=1.0):
    for x, y in spots:
        with cut.at(x, y, size):
            cut.line(["-7,0 -4,-3.4 0,0", "0,0 4,-3.4 8,-0.6"], 1.6, colour)


def cloud(cut, x, y, size, fill, shade="k", weight=None):
    with cut.at(x, y, size):
        cut.shape("-30,6! -34,-2 -24,-8 -18,-6 -14,-16 0,-18 8,-11 16,-14 24,-8 24,-3 34,-2 36,6!", fill, angle=0, gap=2.8, reach=0.3, width=1.2, tone=shade, weight=weight)
        cut.line(["-12,-2 -8,-8 0,-9", "12,0 16,-5 22,-4"], 1.4, shade)


def aurora(cut, width, top, foot, colours):
    """Curtains of light, each a row of upright cuts under a wavering edge."""
    import math
    for k, colour in enumerate(colours):
        x = -4.0
        while x < width + 4:
            low = top + (foot - top) * (0.62 + 0.2 * math.sin(x / 17 + k * 2.1) + 0.1 * k)
            size = (foot - top) * (0.38 + 0.16 * math.sin(x / 7.3 + k))
            if 1 < x < width - 1:
                cut.line([(x, low, True), (x, max(top, low - size), True)], 2.3, colour, "end")
            x += 3.1
