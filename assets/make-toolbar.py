#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the images of the tool bar, toolbar/*.svg, on a grid of 16 x 16.

All edges lie on the grid, so that an image is sharp at its own size and at twice it. Light fills within a
dark brown line read on a light and on a dark ground alike. What goes to disk carries the green arrow.

Run it without arguments; it writes beside itself.
"""

from pathlib import Path

from lettering import lettering
from woodcut import document

INK, PAPER, SHADE = "#4a3523", "#fbf3dd", "#d9c499"
GOLD, RED, BLUE, GREEN, STEEL, DARK = "#eab040", "#cc4632", "#4c8ec2", "#55aa4c", "#b6c0ca", "#5d6670"


def shape(data, fill, line=INK):
    stroke = f' stroke="{line}" stroke-width="1" stroke-linejoin="round"' if line else ""
    return f'<path d="{data}" fill="{fill}"{stroke}/>'


def strokes(data, colour, weight=1):
    return f'<path d="{data}" fill="none" stroke="{colour}" stroke-width="{weight}"/>'


def card(x, y, fill=PAPER, wide=8, high=11):
    return shape(f"M{x}.5,{y}.5h{wide}v{high}h-{wide}z", fill)


def picture(x, y):
    """A landscape of 5 x 4 on a card: sky, peak and shade."""
    return (shape(f"M{x},{y}h5v4h-5z", BLUE, None) + shape(f"M{x},{y + 4}L{x + 2},{y + 1}L{x + 4},{y + 4}z", PAPER, None)
            + shape(f"M{x + 2},{y + 1}L{x + 4},{y + 4}h-2z", DARK, None))


def out_arrow(x=8, y=8):
    """The green arrow to the right, 7 x 7."""
    return shape(f"M{x}.5,{y + 2}.5h3v-2l3.5,3.5l-3.5,3.5v-2h-3z", GREEN, "#225c22")


def down_arrow(x, y):
    return shape(f"M{x + 2}.5,{y}.5h3v3h2l-3.5,3.5l-3.5,-3.5h2z", GREEN, "#225c22")


def folder():
    return shape("M0.5,13.5v-11h5l2,2h6v9z", "#c98a2c") + shape("M0.5,13.5l2,-7h13l-2,7z", GOLD) + strokes("M3.5,7.5h10.5", "#ffe3a0")


IMAGES = {
    "exit": ("Exit", [shape("M1.5,15.5v-13q0,-2 2,-2h5q2,0 2,2v13z", "#3a2a1e"), shape("M1.5,1.5l5,2v12.5l-5,-1z", "#b5763a"),
                      shape("M4,9h1v2h-1z", "#ffe27a", None), shape("M8.5,6.5h3v-2l4,3.5l-4,3.5v-2h-3z", RED, "#7c1d10")]),
    "new": ("New card set", [card(1, 3, SHADE), card(4, 1), strokes("M6,8.5h5M6,10.5h4", SHADE),
                             shape("M12,0l1.2,2.8L16,4l-2.8,1.2L12,8l-1.2,-2.8L8,4l2.8,-1.2z", GOLD, None), shape("M11,3h2v2h-2z", "#fff3c0", None)]),
    "open": ("Open card set", [folder()]),
    "save": ("Save card set", [shape("M1.5,1.5h11l2,2v11h-13z", BLUE), shape("M4,2h7v5h-7z", PAPER, None), shape("M8,3h2v3h-2z", DARK, None),
                               shape("M3.5,9.5h9v5h-9z", PAPER), strokes("M5,11.5h6M5,13.5h4", RED)]),
    "changepicpath": ("Change path for pictures in set", [folder(), shape("M5.5,8.5h7v5h-7z", PAPER), picture(7, 9), shape("M5,8h8v1h-8z", INK, None),
                                                          shape("M9.5,1.5h3v-1.5l3.5,2.5l-3.5,2.5v-1.5h-3z", GREEN, None)]),
    "copy": ("Copy current card", [card(1, 0, SHADE), strokes("M3,2.5h5M3,4.5h2", INK), card(5, 3, PAPER, 9, 12), picture(7, 5), strokes("M7,11.5h6M7,13.5h4", "#a08458")]),
    "paste": ("Paste current card", [shape("M1.5,2.5h11v12h-11z", "#b5763a"), shape("M4.5,3.5v-1h1v-2h3v2h1v1z", STEEL), card(6, 5, PAPER, 8, 10), picture(8, 7),
                                     strokes("M8,13.5h5", "#a08458")]),
    "setinfo": ("Set card defaults", [card(1, 1, SHADE), card(3, 3), strokes("M5,5.5h5M5,7.5h3", "#a08458"),
                                      shape("M10.5,6.5h2v2l1,0.4l1.3,-1.1l1,1.4l-1.3,1.3v1l1.3,1.3l-1,1.4l-1.3,-1.1l-1,0.4v2h-2v-2l-1,-0.4l-1.3,1.1l-1,-1.4l1.3,-1.3v-1l-1.3,-1.3l1,-1.4l1.3,1.1l1,-0.4z", STEEL),
                                      shape("M10.5,10h2v2h-2z", INK, None)]),
    "choosefont": ("Set card fonts", [shape("M0.5,1.5h15v13h-15z", PAPER), shape(lettering("A", 6, 13, 10, "bold"), RED, None),
                                      shape(lettering("B", 12, 13, 6, "bold"), BLUE, None)]),
    "exportback": ("Export cardbacks to disk", [shape("M1.5,0.5h9v13h-9z", RED), strokes("M3.5,2.5h5v9h-5z", GOLD), shape("M6,4l1.5,3L6,10L4.5,7z", GOLD, None), down_arrow(8, 8)]),
    "createone": ("Create one card", [card(1, 1, PAPER, 9, 13), picture(3, 3), strokes("M3,9.5h6M3,11.5h4", "#a08458"), out_arrow(8, 7)]),
    "createall": ("Create all cards", [card(0, 0, GOLD), card(2, 2, RED), card(4, 4), picture(6, 6), strokes("M6,12.5h3", "#a08458"), out_arrow(8, 8)]),
    "createsheet": ("Create card sheets", [shape("M0.5,0.5h15v15h-15z", PAPER), *[shape(f"M{x},{y}h3v5h-3z", fill, None) for x, y, fill in
                                           ((2, 2, RED), (6.5, 2, BLUE), (11, 2, GREEN), (2, 9, GOLD), (6.5, 9, GREEN), (11, 9, RED))]]),
    "html": ("Generate HTML", [shape("M0.5,1.5h15v12h-15z", PAPER), shape("M1,2h14v2h-14z", BLUE, None), shape("M2,2.5h1v1h-1zM4,2.5h1v1h-1z", PAPER, None),
                               strokes("M5.5,6L2.5,8.5L5.5,11M10.5,6L13.5,8.5L10.5,11", RED, 1.6), strokes("M9,5.5L7,11.5", INK, 1.2)]),
    "exporttext": ("Export set to textfile", [shape("M1.5,0.5h7l3,3v12h-10z", PAPER), shape("M8.5,0.5v3h3z", SHADE),
                                              strokes("M3,3.5h4M3,5.5h6M3,7.5h5M3,9.5h4M3,11.5h4M3,13.5h6", "#8a6f48"), out_arrow(8, 7)]),
    "printcard": ("Print the current card", [shape("M4.5,0.5h7v5h-7z", PAPER), picture(6, 1).replace("v4", "v3"), shape("M1.5,5.5h13v6h-13z", STEEL),
                                             shape("M12,7h1v1h-1z", GREEN, None), shape("M3.5,9.5h9v6h-9z", PAPER), strokes("M5,11.5h6M5,13.5h4", "#a08458")]),
    "statistics": ("Show statistics", [shape("M1.5,8.5h3v6h-3z", GOLD), shape("M6.5,4.5h3v10h-3z", RED), shape("M11.5,1.5h3v13h-3z", BLUE), strokes("M0,15.5h16", INK)]),
    "about": ("About", [shape("M1.5,1.5l6.5,-1l6.5,1v6q-0.5,5 -6.5,8q-6,-3 -6.5,-8z", BLUE), shape("M7,3h2v2h-2z", PAPER, None), shape("M6,6h3v5h1v1.5h-4v-1.5h1v-3.5h-1z", PAPER, None)]),
}


def main():
    folder = Path(__file__).resolve().parent / "toolbar"
    folder.mkdir(exist_ok=True)
    for key, (title, parts) in IMAGES.items():
        (folder / f"{key}.svg").write_text(document(title, 16, 16, parts), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
