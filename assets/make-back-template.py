#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws picBackTemplate.svg, the template of a user-designed card back.

The template is black and white: a white margin, a black field and a white border of ornaments in eighteen
separate pieces. The program gives each of them its colour by flood fill, so every piece has to be one area
that its seed hits, and the black one area as well: no ornament has a hole. The program renders it without
any grey at every scale, so pieces keep a clear distance and no neck is thinner than two pixels.

Run it without arguments; it writes beside itself.
"""

from pathlib import Path

from woodcut import document, path_data, parse

WIDTH, HEIGHT = 254, 150
MARGIN = 6
EDGE = 9  # where the border of ornaments begins, from each side
GAP = 4
CORNER, LONG, UPRIGHT, DEEP = 26, 32, 34, 12  # sizes of the cells

# The outer quarter of a side piece, from the middle: half a lozenge, then a cleft leaf. On its
# inner side a spear stands in place of the lozenge in the middle.
SIDE = "0,-6! 2.8,-2.9! 5,-5 7,-5.7! 7.8,-3.6! 8.8,-5.1! 11.2,-3.8 14,-1.6 16.6,0!"

# One half of the left upper corner, above the diagonal: a cleft leaf along the arm, and half of
# the spear within.
CORNER_HALF = ("1.8,0.4! 6.4,2.7! 8.6,0.6 12,0! 13,2.2! 14.2,0.6! 18,2.2 22,4.4 26.6,6! 23,8 "
               "19,9.8 16,11.4 12.6,10! 16.4,12 20.4,16.4 21.8,20.2!")


SPEAR = "2.6,2.7! 1.9,5.4 3.1,8.6 0,13!"


def quartered(quarter, stretch):
    """A piece from its quarter, about the origin; its inner side is below."""
    right = [(x * stretch, y, corner) for x, y, corner in parse(quarter)]
    lower = [(x, -y, corner) for x, y, corner in reversed(right[2:-1])]
    half = right + lower + parse(SPEAR)
    return half + [(-x, y, corner) for x, y, corner in reversed(half[1:-1])]


def across_diagonal(half):
    points = parse(half)
    return points + [(y, x, corner) for x, y, corner in reversed(points)]


def moved(points, dx, dy, turned=False):
    return [((y if turned else x) + dx, (x if turned else y) + dy, corner) for x, y, corner in points]


def mirror_images(points):
    """A piece and its images in the other quarters of the border; a piece on an axis comes but once."""
    found = []
    for flip_x in (False, True):
        for flip_y in (False, True):
            copy = [(WIDTH - x if flip_x else x, HEIGHT - y if flip_y else y, corner) for x, y, corner in points]
            spots = {(round(x, 3), round(y, 3)) for x, y, _ in copy}
            if spots not in [known for known, _ in found]:
                found.append((spots, copy))
    return [copy for _, copy in found]


def pieces():
    found = mirror_images(moved(across_diagonal(CORNER_HALF), EDGE, EDGE))
    level, upright = quartered(SIDE, 1.0), quartered(SIDE, UPRIGHT / LONG)
    for i in range(3):
        middle = EDGE + CORNER + GAP + LONG / 2 + i * (LONG + GAP)
        found += mirror_images(moved(level, middle, EDGE + DEEP / 2))
    found += mirror_images(moved(upright, EDGE + DEEP / 2, EDGE + CORNER + GAP + UPRIGHT / 2, turned=True))
    return found


def field():
    """The edge of the black field: a tooth of the margin points between each two pieces."""
    def edge(gaps, x, y, dx, dy):
        points = []
        for gap in gaps:
            for along, deep in ((gap - 2.5, 0), (gap, 4.5), (gap + 2.5, 0)):
                points.append((x + along * dx - deep * dy, y + along * dy + deep * dx))
        return points
    first = EDGE + CORNER + GAP / 2
    level = [first + i * (LONG + GAP) - MARGIN for i in range(6)]
    upright = [first - MARGIN, first + UPRIGHT + GAP - MARGIN, first + 2 * (UPRIGHT + GAP) - MARGIN]
    far_x, far_y = WIDTH - MARGIN, HEIGHT - MARGIN
    corners = [(MARGIN, MARGIN), (far_x, MARGIN), (far_x, far_y), (MARGIN, far_y)]
    sides = [edge(level, MARGIN, MARGIN, 1, 0), edge(upright, far_x, MARGIN, 0, 1),
             edge(level, far_x, far_y, -1, 0), edge(upright, MARGIN, far_y, 0, -1)]
    points = []
    for start, side in zip(corners, sides):
        points += [start] + side
    return [(x, y, True) for x, y in points]


def main():
    found = pieces()
    assert len(found) == 18
    parts = [f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#ffffff"/>', f'<path d="{path_data(field())}" fill="#000000"/>', '<g fill="#ffffff">']
    parts += [f'<path d="{path_data(piece)}"/>' for piece in found]
    parts.append("</g>")
    target = Path(__file__).resolve().parent / "picBackTemplate.svg"
    target.write_text(document("Template of a card back", WIDTH, HEIGHT, parts), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
