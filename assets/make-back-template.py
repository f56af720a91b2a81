#!/usr/bin/env python3
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

# A quarter of a side piece, from the middle: a pointed bud, a leaf, a drop at the end.
SIDE = "0,-6! 1.6,-4.2 3.4,-3.2! 4.6,-5.4 8.4,-5.6 11.2,-3.6 12.2,-1.5! 13.2,-2.7 14.9,-2 16,0!"

# One half of the left upper corner, above the diagonal: a leaf and the arm with its drop, then the inner leaf.
CORNER_HALF = ("0,0! 5,0.5 9.4,2.7! 11.6,0.4 16,0.4 19.4,2.4 21.2,4.5! 22.6,3.3 24.8,4.2 26,6! 24.8,7.8 22.6,8.7 21.2,7.5! "
               "20.4,10.4 17,12.6 14.2,11.4! 16.6,14.4 18,18!")


def quartered(quarter, stretch):
    """A piece from its quarter, about the origin."""
    right = [(x * stretch, y, corner) for x, y, corner in parse(quarter)]
    lower = [(x, -y, corner) for x, y, corner in reversed(right[:-1])]
    half = right + lower
    return half + [(-x, y, corner) for x, y, corner in reversed(half[1:-1])]


def across_diagonal(half):
    points = parse(half)
    return points + [(y, x, corner) for x, y, corner in reversed(points[1:-1])]


def moved(points, dx, dy, turned=False):
    return [((y if turned else x) + dx, (x if turned else y) + dy, corner) for x, y, corner in points]


def mirror_images(points):
    """A piece and its images in the other quarters of the border; a piece on an axis comes but once."""
    found = []
    for flip_x in (False, True):
        for flip_y in (False, True):
            copy = [(WIDTH - x if flip_x else x, HEIGHT - y if flip_y else y, corner) for x, y, corner in points]
            if not any({p[:2] for p in copy} == {p[:2] for p in other} for other in found):
                found.append(copy)
    return found


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
