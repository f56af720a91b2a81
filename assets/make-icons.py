#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the program's icon, its small form, the icon of a set file and the picture of the About dialog.

icon/varnhelm-deck-forge.svg is for 32 pixels and more; icon/varnhelm-deck-forge-small.svg shows the same with
fewer shapes, for less; icon/varnhelm-card-set.svg is a set file; about.svg is 320 x 160.

Run it without arguments; it writes beside itself.
"""

from pathlib import Path

import scenery
from borders import corner, plait
from emblems_lore import helm
from lettering import lettering
from woodcut import Cut, document, rectangle, sharp, star

PALETTE = {"k": "#17120f", "a": "#f7efdc", "b": "#aeb8c2", "c": "#6b4426", "e": "#f0bf4a", "h": "#c8352a", "f": "#a3241d"}


def playing_card(cut, fill, rim):
    """A card with rounded corners, 60 x 92, about the origin."""
    cut.shape("-30,-40! -24,-46! 24,-46! 30,-40! 30,40! 24,46! -24,46! -30,40!", fill)
    cut.shape(rectangle(-24.5, -40.5, 24.5, 40.5), None, ink=rim, weight=2)


def anvil(cut):
    """An anvil with its horn to the left, 100 wide, top at 0."""
    cut.shape("-50,4! -30,12 -16,16! -8,20 -8,28 -20,34! -26,44! 26,44! 20,34! 8,28 10,18 34,12! 40,12! 40,0! -20,0! -36,1", "#59626c",
              angle=0, gap=3.6, reach=0.35, width=1.8)
    cut.line("-40,4 -20,3 36,3", 2.4, "#aab4be")


def hammer(cut):
    cut.shape(rectangle(-4, -8, 4, 54), "c", angle=0, gap=3.6, reach=0.5, width=1.6)
    cut.shape("-22,-24! 16,-24! 24,-16! 24,-10! 16,-6! -22,-6!", "b", angle=90, gap=3.6, reach=0.45, width=1.8)


def program_icon():
    cut = Cut(PALETTE, 3)
    with cut.at(42, 53, 0.96, -15):
        playing_card(cut, "#2c5a86", "#8fc0e0")
    with cut.at(62, 49, 1.02, 2):
        playing_card(cut, "f", "e")
        with cut.at(0, -4, 0.56):
            cut.weight = 2.2
            helm(cut)
            cut.weight = 3
    with cut.at(58, 80, 1.06):
        anvil(cut)
    with cut.at(103, 40, 0.86, 24):
        hammer(cut)
    for x, y, r in ((86, 78, 9), (108, 98, 6), (74, 88, 4), (118, 82, 5)):
        cut.shape(star(4, r, r * 0.3, x, y), "#ffe27a", weight=1.2)
    return document("Varnhelm Deck Forge", 128, 128, [cut])


def small_icon():
    """On a grid of 16: a red card with the helm, and the anvil under it."""
    parts = ['<path d="M3.5,0.5h9v11h-9z" fill="#b02a20" stroke="#2a1a12"/>',
             '<path d="M5,7.6V5q0,-2.9 3,-3q3,0.1 3,3V7.6l-3,2.2z" fill="#e8edf2"/>', '<path d="M5,5h6v1.4h-6z" fill="#2a1a12"/>', '<path d="M7.4,2h1.2v7.8h-1.2z" fill="#f0bf4a"/>',
             '<path d="M0.5,10.5h14v2l-4,1v1h2v1.4h-9v-1.4h2v-1q-4,-0.6 -5,-3z" fill="#8b97a3" stroke="#2a1a12" stroke-linejoin="round"/>', '<path d="M2,11h12" stroke="#dfe6ec"/>']
    return document("Varnhelm Deck Forge", 16, 16, parts)


def set_icon():
    cut = Cut(PALETTE, 3)
    cut.shape(sharp([(18, 4), (82, 4), (110, 32), (110, 124), (18, 124)]), "a", angle=0, gap=4.4, reach=0.06, width=1.6)
    cut.shape(sharp([(82, 4), (110, 32), (82, 32)]), "#d8c08e", angle=0, gap=4, reach=0.5, width=1.6)
    for x, turn, fill, rim in ((46, -16, "#2c5a86", "#8fc0e0"), (82, 16, "#2f6b46", "#9fd0a0"), (64, 0, "f", "e")):
        with cut.at(x, 62 - abs(turn) * -0.25, 0.68, turn):
            playing_card(cut, fill, rim)
    with cut.at(64, 64, 0.36):
        cut.weight = 2
        helm(cut)
        cut.weight = 3
    cut.shape(sharp([(8, 92), (120, 92), (120, 116), (8, 116)]), "h", angle=0, gap=4.4, reach=0.1, width=1.6)
    return document("Varnhelm card set", 128, 128, [cut, f'<path d="{lettering("DKF", 64, 112, 17, "bold")}" fill="{PALETTE["a"]}"/>'])


def about():
    width, height = 320, 160
    p = {"k": "#12131c", "a": "#f4ead0", "b": "#7d4a2a", "e": "#f2e2b4", "h": "#b8352a", "o": "#12131c", "r": "#e6bd5c", "m": "#8a6526"}
    cut = Cut(p, 1.4)
    scenery.sky(cut, width, 112, "#1d3a5c", "#2f5a80", 4, 0, 0.62)
    scenery.aurora(cut, width, 8, 76, ["#3f8f86", "#6fbf9a"])
    for i in range(26):
        x, y = (i * 73 + 19) % 310 + 5, (i * 41 + 7) % 62 + 8
        cut.shape(star(4, 1.8, 0.5, x, y), "#e9f2ea", ink=None)
    for x, top, half in ((30, 52, 52), (306, 46, 56), (96, 66, 46), (250, 66, 40)):
        scenery.mountain(cut, x, top, 112, half, "#5d7d9a", "#dfe9ec")
    for x, top, half in ((-6, 70, 52), (330, 74, 52)):
        scenery.mountain(cut, x, top, 114, half, "#3b5873", "#c5d5dd")
    scenery.water(cut, 0, width, 112, height, "#24507a", "#8fc3cf", 5)
    for x, foot, high in ((14, 122, 44), (30, 128, 36), (2, 130, 50), (44, 126, 26), (306, 124, 44), (290, 128, 34), (318, 130, 52), (276, 127, 24)):
        scenery.pine(cut, x, foot, high, "#2d5a4a")
    cut.shape("0,160! 0,126! 20,124 52,128 74,134! 50,144 40,160!", "#20332f", angle=0, gap=3.2, reach=0.4, width=1.3)
    cut.shape("320,160! 320,126! 300,124 272,127 252,133! 274,144 284,160!", "#20332f", angle=0, gap=3.2, reach=0.4, width=1.3)
    scenery.ship(cut, 160, 128, 0.62)
    cut.line(["126,138 160,136 196,139", "134,144 156,142 180,145"], 2, "#dff0ee")
    title = lettering("VARNHELM", 160, 46, 27, "roman")
    under = lettering("DECK FORGE", 160, 63, 10.5, "fine")
    words = [f'<path d="{title}" fill="none" stroke="#12131c" stroke-width="4" stroke-linejoin="round"/><path d="{title}" fill="#f6dc93"/>',
             f'<path d="{under}" fill="none" stroke="#12131c" stroke-width="3" stroke-linejoin="round"/><path d="{under}" fill="#f4ead0"/>']
    rim = [f'<path d="M0,0H{width}V{height}H0zM12,12V{height - 12}H{width - 12}V12z" fill="{p["o"]}" fill-rule="evenodd"/>']
    for x1, y1, x2, y2 in ((14, 6, width - 14, 6), (14, height - 6, width - 14, height - 6), (6, 14, 6, height - 14), (width - 6, 14, width - 6, height - 14)):
        rim.append(plait(x1, y1, x2, y2, p))
    for x in (6, width - 6):
        for y in (6, height - 6):
            rim.append(f'<g transform="translate({x},{y}) scale(0.8)">{corner(0, 0, p)}</g>')
    rim.append(f'<rect x="12" y="12" width="{width - 24}" height="{height - 24}" fill="none" stroke="{p["r"]}"/>')
    return document("Varnhelm Deck Forge", width, height, [cut, *words, *rim])


def main():
    folder = Path(__file__).resolve().parent
    (folder / "icon").mkdir(exist_ok=True)
    for name, drawing in (("icon/varnhelm-deck-forge", program_icon()), ("icon/varnhelm-deck-forge-small", small_icon()),
                          ("icon/varnhelm-card-set", set_icon()), ("about", about())):
        (folder / f"{name}.svg").write_text(drawing, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
