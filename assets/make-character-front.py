#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws picCharacter.svg, the front of a character card: a black border round a white field.

The four attributes stand in black strips on the left and right border; each has a mark of its colour, a
stone at either end. "OBJECTS" and "FOLLOWERS" stand on coloured plates at the foot, the
name between the plaits at the top. What carries a text stays dark, for the texts are white.

Run it without arguments; it writes beside itself.
"""

from pathlib import Path

from borders import corner, plait
from woodcut import Cut, document, sharp

WIDTH, HEIGHT, RIM = 302, 254, 13
GOLD = {"o": "#000000", "r": "#e0b552", "m": "#8a6526"}
STRIPS = [  # left edge, top, light, tone, deep
    (0, 44, "#ffa79a", "#e5341f", "#8e1208"),
    (0, 159, "#a6e4ff", "#1f9fe0", "#0b5a8c"),
    (290, 44, "#fff0b0", "#f2b51d", "#9a6406"),
    (290, 159, "#b6f0a0", "#3fae2f", "#1a6a16"),
]
STRIP_HEIGHT = 52
PLATES = [(46, 117, "#5c3a10", "#d9a648"), (185, 256, "#143f56", "#5fb4dc")]  # left, right, ground, edge


def stone(cut, x, y, light, tone, deep):
    """A cut stone with its four facets."""
    tips = [(x, y - 6), (x + 5, y), (x, y + 6), (x - 5, y)]
    for (one, other), fill in zip(((tips[3], tips[0]), (tips[0], tips[1]), (tips[1], tips[2]), (tips[2], tips[3])), (light, tone, deep, tone)):
        cut.shape(sharp([one, other, (x, y)]), fill, ink=None)
    cut.shape(sharp(tips), None, ink="#000000", weight=0.8)
    cut.shape(sharp([(x, y - 2.4), (x + 2, y), (x, y + 2.4), (x - 2, y)]), tone, ink=None)


def marks(cut):
    for left, top, light, tone, deep in STRIPS:
        x = left + 6
        for y in (top - 7, top + STRIP_HEIGHT + 7):
            stone(cut, x, y, light, tone, deep)


def plates(cut):
    for left, right, ground, edge in PLATES:
        cut.shape(sharp([(left, 241.8), (right, 241.8), (right + 5, 247.6), (right, 253.4), (left, 253.4), (left - 5, 247.6)]), ground, ink=edge, weight=0.8)


def main():
    parts = [f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#000000"/>']
    for x in (6.75, WIDTH - 6.75):
        for y in (6.75, HEIGHT - 6.75):
            parts.append(f'<g transform="translate({x},{y}) scale(0.88)">{corner(0, 0, GOLD)}</g>')
    level = [(15, 78), (224, 287)], [(15, 38), (125, 177), (264, 287)]
    for y, pieces in zip((6.5, HEIGHT - 6.5), level):
        parts += [plait(left, y, right, y, GOLD) for left, right in pieces]
    for x in (6, WIDTH - 6):
        parts += [plait(x, top, x, foot, GOLD) for top, foot in ((15, 29), (111, 144), (226, 239))]
    cut = Cut({})
    marks(cut)
    plates(cut)
    parts += [cut, f'<path d="M{RIM},{RIM}H{WIDTH - RIM}V{HEIGHT - RIM}H{RIM}z" fill="#ffffff"/>']
    target = Path(__file__).resolve().parent / "picCharacter.svg"
    target.write_text(document("Front of a character card", WIDTH, HEIGHT, parts), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
