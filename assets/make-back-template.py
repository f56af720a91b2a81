#!/usr/bin/env python3
"""Draws picBackTemplate.svg, the template of a user-designed card back.

The template is pure black and white: a white margin, a black field and a white border
of ornaments in eighteen separate pieces. The program gives each of them its colour by
flood fill, so every piece has to be one area that its seed hits, the black has to be one
area, and no pixel may be grey. All edges therefore lie on whole pixels.

The ornaments are drawn below as rows of characters, "#" for white. A piece of a side is
given by its quarter and mirrored twice; a corner is joined with its mirror image across
the diagonal.

Run it without arguments; it checks the drawing, then writes beside itself.
"""

from pathlib import Path

WIDTH, HEIGHT = 254, 150
MARGIN = 6
EDGE = 9  # where the border of ornaments begins, from each side

# Where the program fills: the margin, the field, and the pieces of the border.
MARGIN_SEED, FIELD_SEED = (1, 1), (50, 50)
PIECE_SEEDS = [(17, 15), (54, 13), (88, 13), (124, 13), (160, 13), (191, 13), (232, 13), (15, 56), (237, 54),
               (15, 92), (237, 91), (16, 133), (54, 133), (92, 133), (123, 133), (164, 133), (194, 133), (226, 133)]

# The left upper quarter of a side piece: a bud, then half of the lozenge in the middle.
SIDE = """
.....#.........#
....###......###
#..#####...#####
##..###..#######
.##..#..########
################
"""

# The same for the two short sides, which leave a little more room.
UPRIGHT = """
.....#..........#
....###.......###
#..#####....#####
##..###...#######
.##..#..#########
#################
"""

# The upper half of the left upper corner: the rosette at the bend, the arm with its bud, and the leaf within.
CORNER = """
..###..###................
.####..####.........#.....
#####..#####.......###....
############......#####..#
########################.#
...#######################
...#######################
########################.#
############......#####..#
############.......###....
.###########........#.....
..##########..............
...........###............
............####..........
.............####.........
.............#####........
..............###.........
...............#..........
"""


def rows(drawing):
    return drawing.strip("\n").split("\n")


def mirrored(quarter):
    upper = [row + row[::-1] for row in rows(quarter)]
    return upper + upper[::-1]


def turned(piece):
    return ["".join(column) for column in zip(*piece)]


def across_diagonal(half):
    size = len(rows(half)[0])
    art = rows(half) + ["." * size] * (size - len(rows(half)))
    return ["".join("#" if "#" in (art[y][x], art[x][y]) else "." for x in range(size)) for y in range(size)]


def placed():
    """The pieces as pixel sets, each with its place: left upper quarter of the border first, the rest mirrored."""
    corner, side, upright = across_diagonal(CORNER), mirrored(SIDE), turned(mirrored(UPRIGHT))
    gap = 4
    pieces = [(EDGE, EDGE, corner)]
    left = EDGE + len(corner[0]) + gap
    for _ in range(3):
        pieces.append((left, EDGE, side))
        left += len(side[0]) + gap
    pieces.append((EDGE, EDGE + len(corner) + gap, upright))
    found = []
    for left, top, art in pieces:
        pixels = frozenset((left + x, top + y) for y, row in enumerate(art) for x, sign in enumerate(row) if sign == "#")
        for flip_x in (False, True):
            for flip_y in (False, True):
                copy = frozenset((WIDTH - 1 - x if flip_x else x, HEIGHT - 1 - y if flip_y else y) for x, y in pixels)
                if copy not in found:  # the middle ones are their own mirror images
                    found.append(copy)
    return found


def outlines(pixels):
    """The closed outlines of a set of pixels, each a list of corners."""
    steps = {}
    for x, y in pixels:
        for outside, start, end in (((x, y - 1), (x, y), (x + 1, y)), ((x + 1, y), (x + 1, y), (x + 1, y + 1)),
                                    ((x, y + 1), (x + 1, y + 1), (x, y + 1)), ((x - 1, y), (x, y + 1), (x, y))):
            if outside not in pixels:
                steps.setdefault(start, []).append(end)
    loops = []
    while steps:
        start = min(steps)
        at, heading, loop = start, None, []
        while True:
            choices = steps[at]
            # Where two pixels touch by a corner the outline turns right, and so keeps to its pixel.
            right = None if heading is None else (at[0] - heading[1], at[1] + heading[0])
            after = right if right in choices else choices[0]
            choices.remove(after)
            if not choices:
                del steps[at]
            turn = (after[0] - at[0], after[1] - at[1])
            if turn != heading:
                loop.append(at)
            at, heading = after, turn
            if at == start:
                break
        loops.append(loop)
    return loops


def path(pixels):
    text = ""
    for loop in outlines(pixels):
        text += f"M{loop[0][0]},{loop[0][1]}"
        for before, (x, y) in zip(loop, loop[1:]):
            text += f"H{x}" if y == before[1] else f"V{y}"
        text += "z"
    return text


def check(pieces):
    """What the fills rely on; a drawing that fails is not written."""
    white = {(x, y) for x in range(WIDTH) for y in range(HEIGHT)
             if not (MARGIN <= x < WIDTH - MARGIN and MARGIN <= y < HEIGHT - MARGIN)}
    for piece in pieces:
        white |= piece

    def area(seed):
        colour, seen, open_ends = seed in white, {seed}, [seed]
        while open_ends:
            x, y = open_ends.pop()
            for to in ((x + 1, y), (x - 1, y), (x, y + 1), (x, y - 1)):
                if 0 <= to[0] < WIDTH and 0 <= to[1] < HEIGHT and to not in seen and (to in white) == colour:
                    seen.add(to)
                    open_ends.append(to)
        return frozenset(seen)

    areas = [area(seed) for seed in [MARGIN_SEED, FIELD_SEED] + PIECE_SEEDS]
    assert MARGIN_SEED in white and FIELD_SEED not in white
    for seed in PIECE_SEEDS:
        assert seed in white, f"{seed} is black"
    assert len(set(areas)) == 20, "two seeds share an area"
    assert len(pieces) == 18 and set(areas[2:]) == set(pieces), "a piece without its seed, or a piece that is not one area"
    assert sum(len(a) for a in areas) == WIDTH * HEIGHT, "pixels that no fill reaches"


def main():
    pieces = placed()
    check(pieces)
    inner = f'<rect x="{MARGIN}" y="{MARGIN}" width="{WIDTH - 2 * MARGIN}" height="{HEIGHT - 2 * MARGIN}" fill="#000000"/>'
    lines = ['<?xml version="1.0" encoding="UTF-8"?>',
             f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{WIDTH}" height="{HEIGHT}" '
             f'viewBox="0 0 {WIDTH} {HEIGHT}" shape-rendering="crispEdges">',
             '<title>Template of a card back</title>',
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="#ffffff"/>', inner, '<g fill="#ffffff" fill-rule="evenodd">']
    lines += [f'<path d="{path(piece)}"/>' for piece in pieces]
    lines += ["</g>", "</svg>"]
    target = Path(__file__).resolve().parent / "picBackTemplate.svg"
    target.write_text("\n".join(lines) + "\n", encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
