# SPDX-License-Identifier: GPL-3.0-or-later
"""Capitals of the project's own hand, cut from skeletons by a pen.

A letter is a few strokes, each a centre line in a box 100 high; an end with "!" swells; a pen of some thickness and angle turns
them into outlines. One skeleton gives several styles: flared inscriptional capitals, letters broken by a
broad nib, and straight cuts as in timber. No font has a hand in it.
"""

import math
from dataclasses import dataclass

from woodcut import bezier, pair, parse, segments


@dataclass(frozen=True)
class Pen:
    """How a stroke becomes an outline."""
    thick: float = 17
    thin: float = 7
    angle: float = 18  # of the nib; strokes along it are thin
    flare: float = 0.75  # how much the ends swell
    wide: float = 1.0  # width of the letters
    broken: int = 0  # curves become so many straight pieces; 0 leaves them round
    space: float = 15  # between letters


STYLES = {
    "roman": Pen(),
    "bold": Pen(thick=22, thin=10, flare=0.6, wide=1.02, space=16),
    "fine": Pen(thick=13.5, thin=5, flare=1.0, wide=0.98, space=16),
    "uncial": Pen(thick=21, thin=5, angle=30, flare=0.35, wide=0.98, space=14),
    "gothic": Pen(thick=21, thin=4.5, angle=38, broken=3, wide=0.86, space=15),
    "timber": Pen(thick=19, thin=15, angle=20, flare=0.28, broken=2, wide=0.92, space=16),
}

# Advance width, then strokes. y grows downwards from 0 to 100; a stroke is a text of points.
SKELETON = {
    "A": (84, ["42,0! 8,100!", "40,0! 76,100!", "21,66! 63,66!"]),
    "B": (68, ["12,0! 12,100!", "12,5! 38,5 55,25 38,47 12,47!", "12,47! 40,47 62,71 40,95 12,95!"]),
    "C": (76, ["70,22! 58,7 42,3 20,15 9,50 20,85 42,97 58,93 71,78!"]),
    "D": (80, ["12,0! 12,100!", "12,5! 34,5 58,14 70,50 58,86 34,95 12,95!"]),
    "E": (64, ["12,0! 12,100!", "12,6! 58,6!", "12,48! 48,48!", "12,94! 60,94!"]),
    "F": (60, ["12,0! 12,100!", "12,6! 57,6!", "12,50! 48,50!"]),
    "G": (82, ["70,20! 58,7 42,3 20,15 9,50 20,85 42,97 60,94 71,86!", "71,54! 71,94!", "52,54! 80,54!"]),
    "H": (80, ["12,0! 12,100!", "68,0! 68,100!", "12,49! 68,49!"]),
    "I": (30, ["15,0! 15,100!"]),
    "J": (50, ["36,0! 36,62 33,84 22,96 6,94!"]),
    "K": (74, ["12,0! 12,100!", "66,0! 14,54!", "28,42! 70,100!"]),
    "L": (60, ["12,0! 12,100!", "12,94! 58,94!"]),
    "M": (98, ["20,0! 12,100!", "20,0! 49,80!", "78,0! 49,80!", "78,0! 86,100!"]),
    "N": (84, ["12,0! 12,100!", "12,2! 72,98!", "72,0! 72,100!"]),
    "O": (86, ["46,3 22,12 9,50 22,88 46,97", "40,3 64,12 77,50 64,88 40,97"]),
    "P": (66, ["12,0! 12,100!", "12,5! 40,5 61,29 40,55 12,55!"]),
    "Q": (86, ["46,3 22,12 9,50 22,88 46,97", "40,3 64,12 77,50 64,88 40,97", "46,78 62,96 86,106"]),
    "R": (74, ["12,0! 12,100!", "12,5! 38,5 58,27 38,51 12,51!", "34,51! 72,100!"]),
    "S": (64, ["57,20! 48,7 34,3 16,10 13,27 26,42 42,53 54,70 48,90 31,97 16,93 6,79!"]),
    "T": (72, ["36,0! 36,100!", "4,6! 68,6!"]),
    "U": (80, ["12,0! 12,60 18,86 40,97 60,86 68,60 68,0!"]),
    "V": (82, ["8,0! 42,98!", "74,0! 42,98!"]),
    "W": (112, ["8,0! 34,98!", "58,10! 34,98!", "56,10! 80,98!", "104,0! 80,98!"]),
    "X": (78, ["8,0! 70,100!", "68,0! 10,100!"]),
    "Y": (76, ["8,0! 38,52!", "68,0! 38,52!", "38,50! 38,100!"]),
    "Z": (70, ["8,6! 60,6!", "62,6! 10,94!", "10,94! 64,94!"]),
    "'": (26, ["15,0! 11,28!"]),
    "1": (46, ["26,0! 26,100!", "8,18! 26,2!"]),
    "2": (66, ["10,24! 16,8 34,3 52,10 56,28 46,50 26,72 10,94!", "10,94! 60,94!"]),
    "3": (62, ["8,14! 24,3 44,5 52,24 42,44 26,48!", "26,48! 50,54 56,74 44,94 24,97 6,86!"]),
    " ": (38, []),
}

PAIRS = {"AV": -14, "VA": -14, "AT": -12, "TA": -12, "LT": -10, "PA": -10, "LO": -4, "OA": -4, "RT": -4, "AW": -10, "WA": -10,
         "L'": -12, "K'": -6, "TR": -4, "FA": -8, "TY": -4, "YS": -4, "RY": -4, "DA": -4, "LV": -10, "LY": -12, "FO": -4}


def centre_line(stroke, pen):
    """The points of a stroke's centre line, and whether it is straight."""
    points = [(x * pen.wide, y, corner) for x, y, corner in parse(stroke)]
    if len(points) == 2:
        (x1, y1, _), (x2, y2, _) = points
        return [(x1 + (x2 - x1) * i / 10, y1 + (y2 - y1) * i / 10) for i in range(11)], True
    line = []
    for curve in segments(points, False):
        line += [bezier(curve, i / 5) for i in range(5)]
    return line + [points[-1][:2]], False


def counterclockwise(loop):
    area = sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(loop, loop[1:] + loop[:1]))
    return loop if area > 0 else loop[::-1]


def swept(line, straight, swells, pen):
    """The outline of a stroke with swelling ends."""
    size = len(line) - 1
    lengths = [0.0]
    for (x1, y1), (x2, y2) in zip(line, line[1:]):
        lengths.append(lengths[-1] + math.hypot(x2 - x1, y2 - y1))
    left, right = [], []
    for i, (x, y) in enumerate(line):
        before, after = line[max(i - 1, 0)], line[min(i + 1, size)]
        dx, dy = after[0] - before[0], after[1] - before[1]
        length = math.hypot(dx, dy) or 1
        lean = math.atan2(-dy, dx) - math.radians(pen.angle)
        half = math.hypot(pen.thick * math.sin(lean), pen.thin * math.cos(lean)) / 2
        end = min(lengths[i], lengths[-1] - lengths[i])
        half *= 1 + (pen.flare * math.exp(-end / 7) * (1.0 if straight else 0.7) if swells else 0.0)
        nx, ny = -dy / length * half, dx / length * half
        shift = 0.0
        if straight and abs(dy) > abs(dx) * 0.8 and i in (0, size):  # stems and diagonals end level
            shift = dx / dy
            ny, nx = 0.0, math.copysign(half * length / abs(dy), nx)
        left.append((x + nx, y + ny))
        right.append((x - nx, y - ny))
    return counterclockwise(left + right[::-1])


def nibbed(line, straight, pen):
    """The pieces of a stroke drawn with a broad nib that does not turn."""
    corners = [line[0], line[-1]] if straight else [line[round(i * (len(line) - 1) / count)] for count in
                                                    [max(2, round(len(line) / 5 / 6 * pen.broken * 2))] for i in range(count + 1)]
    a = math.radians(pen.angle)
    nib = (math.cos(a) * pen.thick / 2, -math.sin(a) * pen.thick / 2)
    rim = (-nib[1] / pen.thick * pen.thin, nib[0] / pen.thick * pen.thin)
    pieces = []
    for p, q in zip(corners, corners[1:]):
        spots = [(c[0] + s * nib[0] + t * rim[0], c[1] + s * nib[1] + t * rim[1]) for c in (p, q) for s in (-1, 1) for t in (-1, 1)]
        pieces.append(counterclockwise(hull(spots)))
    return pieces


def hull(spots):
    spots = sorted(spots)

    def half(some):
        chain = []
        for p in some:
            while len(chain) > 1 and ((chain[-1][0] - chain[-2][0]) * (p[1] - chain[-2][1])
                                      - (chain[-1][1] - chain[-2][1]) * (p[0] - chain[-2][0])) <= 0:
                chain.pop()
            chain.append(p)
        return chain[:-1]
    return half(spots) + half(spots[::-1])


def glyph(letter, pen):
    loops = []
    for stroke in SKELETON[letter][1]:
        line, straight = centre_line(stroke, pen)
        loops += nibbed(line, straight, pen) if pen.broken else [swept(line, straight, stroke.endswith("!"), pen)]
    return loops


def advances(text, pen):
    """Where each letter begins, and the width of all, in hundredths of the letters' height."""
    starts, x = [], 0.0
    for i, letter in enumerate(text):
        starts.append(x)
        x += SKELETON[letter][0] * pen.wide + pen.space - 6 + PAIRS.get(text[i:i + 2], 0)
    return starts, x - (pen.space - 6)


def width_of(text, height, style="roman"):
    return advances(text, STYLES[style])[1] * height / 100


def lettering(text, x, y, height, style="roman", rise=None):
    """The outlines of a text centred on x with its foot at y: the data of one path.

    rise(offset) moves each letter up or down by its distance from the middle and turns it along."""
    pen = STYLES[style]
    starts, total = advances(text, pen)
    size = height / 100
    data = ""
    for letter, start in zip(text, starts):
        middle = (start + SKELETON[letter][0] * pen.wide / 2 - total / 2) * size
        lift, turn = (rise(middle), math.atan(rise(middle + 0.5) - rise(middle - 0.5))) if rise else (0.0, 0.0)
        for loop in glyph(letter, pen):
            spots = []
            for u, v in loop:
                px, py = (u - SKELETON[letter][0] * pen.wide / 2) * size, (v - 100) * size
                spots.append((x + middle + px * math.cos(turn) - py * math.sin(turn), y + lift + px * math.sin(turn) + py * math.cos(turn)))
            data += "M" + " ".join(pair(p) for p in spots) + "z"
    return data


def ring(text, x, y, radius, height, style="roman", start=0.0):
    """A text on a circle, its middle at a bearing from the centre, its foot on the radius: the data of one path."""
    pen = STYLES[style]
    starts, total = advances(text, pen)
    size = height / 100
    data = ""
    for letter, begin in zip(text, starts):
        half = SKELETON[letter][0] * pen.wide / 2
        angle = math.radians(start) + (begin + half - total / 2) * size / (radius + height / 2)
        for loop in glyph(letter, pen):
            spots = []
            for u, v in loop:
                px, py = (u - half) * size, -radius - (100 - v) * size
                spots.append((x + px * math.cos(angle) - py * math.sin(angle), y + px * math.sin(angle) + py * math.cos(angle)))
            data += "M" + " ".join(pair(p) for p in spots) + "z"
    return data
