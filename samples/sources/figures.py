# SPDX-License-Identifier: GPL-3.0-or-later
"""The characters of the sample: each once before its scene, and once as a playing piece.

A figure stands on the origin, some 180 high and 50 to each side.
"""

from inks import sheet
import scenery
from emblems_arms import varnhelm_shield
from emblems_lore import helm
from emblems_realm import flame
from woodcut import polar, rectangle, sharp


def boots(cut, spread=14, fill="c"):
    for side in (-1, 1):
        cut.shape([(side * (spread - 7), -36, True), (side * (spread + 7), -36, True), (side * (spread + 7), -8, False), (side * (spread + 17), -3, False), (side * (spread + 17), 2, True),
                   (side * (spread - 8), 2, True), (side * (spread - 6), -16, False)], fill, angle=0, gap=2.8, reach=0.4, width=1.2)


def face(cut, skin="t", stern=0):
    """A face from the front, about 26 wide and 34 high; the origin is between the eyes."""
    cut.shape("0,-16 10,-14 14,-4 13,6 9,14 0,20 -9,14 -13,6 -14,-4 -10,-14", skin, angle=8, gap=2.4, reach=0.32, width=1.1)
    for side in (-1, 1):
        cut.line([(side * 3, -3.6 + stern, True), (side * 7, -5.4, False), (side * 11.4, -3.4, True)], 2.4)
        cut.dot(side * 6, 0, 1.6, "k", weight=0)
    cut.line(["-1,-1 -3,7 2,7.6"], 1.7)
    cut.line("-5,12 0,13 5,12", 1.9)


def hand(cut, x, y, fill="t", r=6.5):
    cut.dot(x, y, r, fill, angle=20, gap=2.2, reach=0.4, width=1)


def ash_knight(cut):
    """Plate, a torn red cloak, the arms of the realm, and a sword that burns."""
    cut.shape("-20,-140! -40,-124 -48,-80 -52,-30! -44,-38! -40,-14! -32,-26! -26,-4! -18,-22! 18,-22! 26,-6! 32,-26! 40,-16! 44,-40! 52,-32! 48,-84 40,-126 20,-140!", "h",
              angle=80, gap=3, reach=0.4, width=1.4)
    boots(cut, 14, "s")
    for side in (-1, 1):
        cut.shape([(side * 3, -78, True), (side * 26, -78, True), (side * 23, -56, False), (side * 22, -34, True), (side * 6, -34, True), (side * 6, -56, False)], "s",
                  angle=0, gap=2.8, reach=0.45, width=1.3)
        cut.dot(side * 14, -38, 7, "s", angle=20, gap=2.4, reach=0.4, width=1.1)
    cut.shape("-22,-132! -28,-110 -24,-92 -20,-84! 20,-84! 24,-92 28,-110 22,-132!", "s", angle=10, gap=2.8, reach=0.4, width=1.4)
    cut.shape("-18,-118! 0,-122 18,-118! 20,-84 22,-56! 0,-50! -22,-56! -20,-84", "a", angle=10, gap=2.8, reach=0.26, width=1.2)
    with cut.at(0, -98, 0.8):
        flame(cut, 0, 14, 0.7, "h", "e")
    cut.shape(rectangle(-23, -88, 23, -80), "b", weight=1.3)
    cut.shape(rectangle(-5, -89, 5, -79), "e", weight=1.3)
    # the arm that holds up the sword
    cut.shape("22,-132! 36,-128 40,-114 46,-120! 40,-146! 50,-150! 60,-118 50,-102 36,-100 26,-108!", "s", angle=20, gap=2.6, reach=0.4, width=1.3)
    with cut.at(45, -152):
        cut.shape(sharp([(-4, 0), (-4, -66), (0, -76), (4, -66), (4, 0)]), "w", angle=0, gap=3, reach=0.5, width=1.1)
        for dx, dy, size in ((-3, -4, 0.5), (4, -20, 0.55), (-4, -34, 0.52), (3, -48, 0.46)):
            flame(cut, dx, dy, size)
        cut.line("0,-2 0,-66", 1.6, ends="none")
        cut.shape(rectangle(-14, -3, 14, 3), "e", weight=1.4)
        cut.shape(rectangle(-3, 3, 3, 16), "b", weight=1.2)
    hand(cut, 45, -146, "s", 7)
    cut.both(lambda c: c.shape("12,-138! 26,-142 38,-132 36,-120 22,-118!", "s", angle=30, gap=2.4, reach=0.4, width=1.2))
    # the shield
    with cut.at(-34, -84, 0.5):
        kept = dict(cut.palette)
        cut.palette.update(h="#2f5a80", b="#c9a04a", c="#2f5a80")
        varnhelm_shield(cut)
        cut.palette.update(kept)
    with cut.at(0, -150, 0.6):
        kept = dict(cut.palette)
        cut.palette.update(b="#aab4bc")
        helm(cut)
        cut.palette.update(kept)
    cut.shape("0,-176! -8,-190 -22,-192 -34,-178 -38,-160! -30,-166 -26,-158! -20,-168 -12,-172!", "h", angle=20, gap=2.6, reach=0.4, width=1.2)


def marsh_witch(cut):
    """An old woman in a tall hat, with a skull on her staff and a frog at her feet."""
    cut.rope("42,2 40,-60 44,-120 40,-168", 4.5, "b")
    with cut.at(40, -176, 0.42):
        cut.sym("0,-38 20,-33 31,-14 28,6 24,13! 25,22 18,27! 16,38 9,41 0,40", "a", angle=12, gap=4, reach=0.3, width=1.6)
        cut.both(lambda c: c.shape("5,3 7,-8 18,-10 24,-2 20,9 10,11", "k", weight=0))
        cut.sym("0,9! 3,14 5,22! 0,20!", "k", weight=0)
        cut.line(["-15,29 15,29"] + [f"{x},25 {x},37" for x in (-8, 0, 8)], 2.4)
    cut.shape("-18,-128! -32,-110 -38,-60 -50,2! -38,-4 -28,4! -14,-2 0,4 14,-2! 26,4 38,-2 48,2! 38,-56 32,-110 18,-128!", "p", angle=80, gap=3, reach=0.3, width=1.4)
    cut.shape("-10,-122! -16,-60 -20,0! -4,4 8,2 20,0! 14,-60 10,-122!", "v", angle=10, gap=3, reach=0.3, width=1.2)
    cut.line(["-24,-100 -30,-50 -38,-8", "24,-100 30,-54 36,-10", "-4,-90 -8,-40 -6,-4", "6,-80 8,-40 12,-6"], 2.2)
    cut.rope("-18,-80 0,-74 18,-80", 3, "e")
    for x, fill in ((-10, "m"), (8, "h"), (15, "a")):
        cut.shape(f"{x - 4},-74! {x + 4},-74! {x + 6},-62 {x},-57 {x - 6},-62", fill, weight=1.2)
    cut.shape("20,-118! 34,-112 46,-96! 42,-82! 30,-86 20,-98!", "p", angle=20, gap=2.6, reach=0.4, width=1.2)
    hand(cut, 42, -90, "#b9c08a")
    cut.shape("-20,-118! -36,-104 -50,-96! -46,-84! -30,-88 -18,-98!", "p", angle=20, gap=2.6, reach=0.4, width=1.2)
    hand(cut, -47, -91, "#b9c08a")
    flame(cut, -48, -98, 0.62, "m", "e")
    cut.shape("-16,-152! -24,-132 -22,-108! -14,-116! -10,-104! -4,-118! 4,-118! 10,-104! 15,-116! 22,-108! 24,-132 16,-152!", "s", angle=80, gap=2.6, reach=0.4, width=1.3)
    with cut.at(0, -140, 0.92):
        face(cut, "#b9c08a", 3)
        cut.shape("-1,-3! -6,8 -2,12 6,9! 3,2", "#b9c08a", weight=1.3)
        cut.dot(6, 8, 1.6, "m", weight=0.9)
        cut.line("-6,15 0,13 7,16", 2)
    cut.shape("-40,-150! -20,-156 0,-158 20,-156 40,-150! 22,-146 0,-149 -22,-146", "k", weight=1.2)
    cut.shape("-19,-154! -12,-176 -4,-192 12,-206 26,-202! 16,-196 14,-186 19,-154! 0,-158", "n", angle=14, gap=2.8, reach=0.4, width=1.3)
    cut.shape("-18,-157! 0,-162 18,-157! 18,-163! 0,-168 -16,-163!", "h", weight=1.2)
    with cut.at(-36, 0, 0.9):
        cut.shape("-14,2! -17,-6 -10,-12 -8,-18 -3,-18 0,-14 4,-18 9,-18 10,-12 17,-6 14,2!", "m", angle=10, gap=2.4, reach=0.35, width=1.2)
        cut.dot(-5.5, -15, 1.5, "k", weight=0)
        cut.dot(6.5, -15, 1.5, "k", weight=0)
        cut.line("-8,-8 0,-6 9,-8", 1.6)


def tinker_gnome(cut):
    """A gnome with goggles, a wrench, and a thing that ticks."""
    boots(cut, 15, "b")
    cut.shape("-26,-40! -30,-74 -22,-98 0,-104 22,-98 30,-74 26,-40! 26,-28! 4,-28! 0,-40! -4,-28! -26,-28!", "f", angle=10, gap=2.8, reach=0.32, width=1.4)
    cut.shape("-16,-96! 16,-96! 22,-46! 0,-40! -22,-46!", "b", angle=10, gap=2.8, reach=0.3, width=1.3)
    cut.shape("-11,-66! 11,-66! 10,-52 0,-48 -10,-52", "e", weight=1.3, angle=0, gap=2.4, reach=0.4, width=1)
    cut.line(["-5,-66 -6,-78", "3,-66 4,-80"], 2.6, "s", "none")
    cut.both(lambda c: c.line("9,-96 13,-110", 3.4, "b", "none"))
    # arms
    cut.shape("22,-96! 36,-92 46,-104! 54,-98! 46,-82 34,-76 24,-80!", "f", angle=20, gap=2.5, reach=0.4, width=1.2)
    with cut.at(54, -112, 0.92, 16):
        cut.shape(rectangle(-3.6, -30, 3.6, 34), "s", angle=0, gap=2.8, reach=0.5, width=1.1)
        cut.shape("-4,-28! -14,-34 -15,-48! -7,-52! -7,-42! 7,-42! 7,-52! 15,-48! 14,-34 4,-28!", "s", angle=0, gap=2.6, reach=0.4, width=1.1)
    hand(cut, 51, -102)
    cut.shape("-22,-96! -36,-90 -44,-78! -40,-66! -28,-72 -22,-80!", "f", angle=20, gap=2.5, reach=0.4, width=1.2)
    with cut.at(-46, -66):
        for i in range(8):
            x, y = polar(15, i * 45)
            cut.shape(sharp([polar(17, i * 45 - 10), polar(17, i * 45 + 10), polar(11, i * 45 + 14), polar(11, i * 45 - 14)]), "e", weight=1.2)
        cut.dot(0, 0, 13, "e", angle=20, gap=2.4, reach=0.4, width=1.1)
        cut.dot(0, 0, 8.6, "a", weight=1.3)
        cut.line(["0,0 0,-7", "0,0 5,2"], 1.8, ends="none")
    hand(cut, -38, -70)
    # beard, face, hat
    cut.shape("-22,-128! -28,-108 -24,-90 -14,-76 0,-66 14,-76 24,-90 28,-108 22,-128!", "a", angle=80, gap=3, reach=0.3, width=1.4)
    cut.line(["-14,-112 -12,-94 -4,-78", "14,-112 12,-94 4,-78", "0,-108 0,-84", "-22,-112 -20,-100", "22,-112 20,-100"], 1.8)
    cut.shape("-20,-126! -20,-140 0,-146 20,-140 20,-126! 12,-116 -12,-116", "t", angle=8, gap=2.4, reach=0.3, width=1.1)
    cut.shape("-19,-116! -8,-121 0,-116 8,-121 19,-116! 10,-108 0,-112 -10,-108", "a", weight=1.3)
    cut.dot(0, -122, 6.5, "#d98f6a", 5.6, weight=1.4, angle=20, gap=2.2, reach=0.4, width=1)
    cut.both(lambda c: c.shape("20,-132! 32,-138 33,-126 22,-121!", "t", weight=1.3))
    cut.line("-22,-134 22,-134", 3.4, "c", "none")
    for x in (-9, 9):
        cut.dot(x, -133, 8, "e", weight=1.5)
        cut.dot(x, -133, 5, "g", weight=1.2)
        cut.line(f"{x - 3},-131 {x + 2},-136", 1.6, "w", "none")
    cut.shape("-24,-140! -18,-158 -6,-176 14,-190 30,-186! 20,-178 20,-160 24,-140! 0,-147", "h", angle=14, gap=2.8, reach=0.4, width=1.3)
    cut.dot(31, -187, 6, "e", weight=1.3)
    cut.shape("-26,-139! 0,-147 26,-139! 25,-147! 0,-155 -24,-147!", "b", weight=1.2)


def storm_bard(cut):
    """A singer with a lute, his cloak in the wind."""
    cut.shape("-10,-138! 20,-136 40,-118 56,-84 62,-44! 50,-54 42,-30! 30,-44 20,-20! -16,-24! -22,-80", "n", angle=70, gap=3, reach=0.36, width=1.4)
    boots(cut, 13, "b")
    for side in (-1, 1):
        cut.shape([(side * 2, -70, True), (side * 21, -70, True), (side * 20, -36, True), (side * 6, -36, True)], "m" if side > 0 else "e", angle=0, gap=2.8, reach=0.4, width=1.2)
    cut.shape("-20,-134! -26,-100 -22,-80 -28,-58! -12,-52 0,-58 12,-52 28,-58! 22,-80 25,-100 20,-134!", "h", angle=10, gap=2.8, reach=0.34, width=1.4)
    cut.shape("-21,-86! 0,-80 21,-86! 22,-79! 0,-73 -22,-79!", "b", weight=1.3)
    cut.line(["0,-130 0,-88", "-12,-70 -14,-58", "10,-70 12,-58"], 2)
    for y in (-122, -112, -102, -92):
        cut.dot(0, y, 2, "e", weight=0.9)
    # the lute
    with cut.at(4, -84, 1, -60):
        cut.shape(rectangle(-4, -64, 4, -18), "c", angle=0, gap=2.8, reach=0.5, width=1.1)
        cut.shape("-5,-64! 5,-64! 9,-80! -3,-82!", "b", weight=1.3)
        for y in (-68, -73, -78):
            cut.line([f"-9,{y} 11,{y}"], 2.4, ends="none")
        cut.shape("0,-28 10,-24 20,-8 22,8 14,22 0,26 -14,22 -22,8 -20,-8 -10,-24", "e", angle=10, gap=2.8, reach=0.36, width=1.4)
        cut.dot(0, -4, 7.4, "k", weight=1.2)
        cut.dot(0, -4, 9.6, None, weight=1)
        cut.shape(rectangle(-9, 14, 9, 18), "b", weight=1.2)
        cut.line([f"{x},-64 {x * 1.4},16" for x in (-2.4, 0, 2.4)], 1, "a", "none")
    cut.shape("20,-130! 34,-122 36,-104 26,-92! 12,-84! 8,-94! 18,-102 18,-114", "h", angle=20, gap=2.6, reach=0.4, width=1.2)
    hand(cut, 10, -84)
    cut.shape("-20,-130! -36,-126 -46,-116! -40,-104! -28,-108 -16,-112", "h", angle=20, gap=2.6, reach=0.4, width=1.2)
    hand(cut, -42, -109)
    cut.shape("-22,-136! 0,-126 22,-136! 20,-144! 0,-138 -20,-144!", "e", weight=1.3, angle=0, gap=2.4, reach=0.3, width=1)
    cut.shape("-17,-166! -22,-150 -18,-138! -12,-142! 12,-142! 18,-138! 22,-152 17,-166!", "b", angle=80, gap=2.6, reach=0.4, width=1.2)
    with cut.at(0, -156, 0.9):
        face(cut)
        cut.shape("-5,10! 0,13 5,10! 4,15 -4,15", "k", weight=0.8)
        cut.shape("-10,15! 0,20 10,15! 4,28! 0,25 -4,28!", "b", weight=1.2)
    cut.shape("-32,-164! -16,-172 6,-172 30,-166! 22,-162 0,-166 -20,-160", "p", weight=1.3)
    cut.shape("-20,-168! -18,-182 0,-188 18,-182 19,-168! 0,-172", "p", angle=10, gap=2.6, reach=0.4, width=1.2)
    cut.shape("14,-176! 24,-196 42,-206 54,-200! 44,-194 46,-188! 34,-184 20,-172!", "a", angle=-20, gap=2.5, reach=0.4, width=1.1)
    cut.line("16,-175 32,-190 50,-200", 1.6)


def ranger(cut):
    """A hooded hunter in furs, with a long bow."""
    cut.shape("-18,-136! -36,-116 -44,-60 -46,-14! -34,-22! -28,-8! -18,-20! 18,-20! 26,-8! 32,-22! 44,-12! 42,-60 36,-116 18,-136!", "p", angle=80, gap=3, reach=0.34, width=1.4)
    boots(cut, 13, "b")
    for side in (-1, 1):
        for y in (-30, -22, -14):
            cut.line([(side * 6, y, True), (side * 20, y - 3, True)], 1.8, "a", "none")
        cut.shape([(side * 2, -74, True), (side * 22, -74, True), (side * 20, -36, True), (side * 6, -36, True)], "c", angle=0, gap=2.8, reach=0.4, width=1.2)
    cut.shape("-20,-132! -24,-96 -24,-58! -8,-52 8,-52 24,-58! 24,-96 20,-132!", "m", angle=10, gap=2.8, reach=0.34, width=1.4)
    cut.line(["-20,-128 20,-84"], 5, "b", "none")
    cut.shape(rectangle(-24, -86, 24, -78), "b", weight=1.3)
    cut.shape(rectangle(-5, -87, 5, -77), "e", weight=1.3)
    cut.line(["-10,-74 -12,-56", "6,-74 8,-56"], 2)
    # quiver
    with cut.at(24, -134, 1, 24):
        for x, fill in ((-5, "h"), (0, "a"), (5, "h")):
            cut.line(f"{x},0 {x},-22", 1.8, ends="none")
            cut.shape(f"{x - 3},-14! {x},-12! {x + 3},-14! {x + 3},-24! {x},-22! {x - 3},-24!", fill, weight=1)
        cut.shape(sharp([(-8, 0), (8, 0), (6, 26), (-6, 26)]), "b", angle=0, gap=2.4, reach=0.4, width=1.1)
    # the bow, held out to the left
    cut.line("-54,-172 -50,-96 -54,-18", 1.2, "a", "none")
    cut.rope("-54,-172 -57,-160 -66,-130 -66,-96 -66,-62 -57,-30 -54,-18", 4, "b")
    cut.shape(rectangle(-69, -104, -62, -88), "h", weight=1.3)
    cut.shape("-20,-128! -36,-120 -50,-106! -62,-102! -60,-90! -46,-92 -30,-104 -20,-108!", "m", angle=20, gap=2.6, reach=0.4, width=1.2)
    hand(cut, -62, -96)
    cut.shape("20,-128! 36,-118 40,-98 34,-76! 22,-78! 24,-96 18,-108!", "m", angle=20, gap=2.6, reach=0.4, width=1.2)
    hand(cut, 28, -72)
    with cut.at(30, -66, 1, 186):
        cut.line("0,-40 0,36", 2.2, "k", "none")
        cut.shape("0,-50! 5,-36! 0,-40! -5,-36!", "s", weight=1.1)
        cut.shape("-4,30! 0,24! 4,30! 4,40! 0,36! -4,40!", "h", weight=1)
    fur = []
    for i in range(17):
        x = -32 + i * 4
        y = -122 - (1 - abs(i - 8) / 8) * -8
        fur += [(x, y - (8 if i % 2 else -1), True)]
    cut.shape([(-32, -136, True)] + [(x, y + 8, k) for x, y, k in fur] + [(32, -136, True), (18, -146, False), (0, -140, False), (-18, -146, False)], "e", angle=90, gap=2.8, reach=0.5, width=1.3)
    with cut.at(0, -156, 0.92):
        cut.shape("-24,18! -24,-10 -14,-30 2,-38! 6,-32 18,-24 24,-8 24,18! 12,24 -12,24", "p", angle=14, gap=2.6, reach=0.34, width=1.3)
        cut.shape("-16,14! -17,-6 -9,-20 0,-23 9,-20 17,-6 16,14! 0,24", "k", weight=1)
        face(cut, "t", 2)
        cut.shape("-13,6! -6,9 0,8 6,9 13,6! 9,17 0,22 -9,17", "b", angle=80, gap=2.4, reach=0.4, width=1.1)
        cut.line("-4,13 4,13", 1.8)


def castle_scene(cut, width, height):
    scenery.sky(cut, width, height, "#d98a4a")
    scenery.rays(cut, width / 2, 110, width, height, "e", 40, 36, 4, 3)
    scenery.mountain(cut, 16, 90, 196, 42, "c", gap=3)
    scenery.mountain(cut, width - 14, 80, 196, 44, "c", gap=3)
    cut.shape(sharp([(0, height), (0, 190), (30, 186), (width / 2, 192), (width - 26, 186), (width, 190), (width, height)]), "c", angle=0, gap=3.2, reach=0.3, width=1.4)


def marsh_scene(cut, width, height):
    scenery.sky(cut, width, height, "#a9b36c", "#c5cb8e", 5, 0, 0.5)
    cut.dot(width * 0.24, 40, 20, "a", weight=1.3)
    for x, high in ((8, 120), (width - 8, 130), (30, 70)):
        scenery.bare_tree(cut, x, 176, high, "p")
    scenery.water(cut, 0, width, 172, height, "#5f7a54", "#c5cb8e", 6)
    for x, top in ((6, 130), (16, 146), (width - 6, 136), (width - 18, 150)):
        cut.line(f"{x},{height} {x},{top + 20} {x},{top}", 2.4, "p", "end")
        cut.shape([(x, top, False), (x + 3, top + 8, False), (x, top + 18, False), (x - 3, top + 8, False)], "b", weight=1.1)


def workshop_scene(cut, width, height):
    cut.shape(rectangle(0, 0, width, height), "#c99a55", ink=None)
    for x in range(0, width, 22):
        cut.line(f"{x},0 {x},190", 1.6, "#a87a3c", "none")
    for x, y, r, fill in ((20, 40, 24, "b"), (width - 16, 66, 30, "#9a6b3a"), (width - 34, 16, 16, "b")):
        for i in range(12):
            a = i * 30
            cut.shape(sharp([polar(r + 5, a - 6, x, y), polar(r + 5, a + 6, x, y), polar(r - 2, a + 9, x, y), polar(r - 2, a - 9, x, y)]), fill, weight=1.2)
        cut.dot(x, y, r, fill, weight=1.4, angle=20, gap=3, reach=0.3, width=1.3)
        cut.dot(x, y, r * 0.4, "#c99a55", weight=1.3)
    cut.shape(rectangle(-2, 190, width + 2, height + 2), "b", angle=0, gap=3.2, reach=0.3, width=1.4)
    cut.line([f"0,{y} {width},{y}" for y in (202, 213)], 1.4, ends="none")


def storm_scene(cut, width, height):
    scenery.sky(cut, width, height, "#56698a", "#7288a8", 5, 0, 0.5)
    for x, y, size in ((20, 24, 1.1), (width - 24, 18, 1.2), (width / 2, 10, 1.1)):
        scenery.cloud(cut, x, y, size, "c")
    cut.shape("22,30! 10,62! 20,62! 6,104! 38,54! 27,54! 36,30!", "e", weight=1.3)
    cut.shape(sharp([(width - 14, 24), (width - 26, 58), (width - 16, 58), (width - 28, 92), (width - 2, 50), (width - 12, 50), (width - 4, 24)]), "e", weight=1.3)
    for i in range(9):
        x = 6 + i * (width - 12) / 8
        cut.line([(x + 5, 110 + i * 13 % 30, True), (x - 3, 140 + i * 17 % 34, True)], 1.2, "g")
    cut.shape(sharp([(0, height), (0, 188), (24, 182), (width / 2, 190), (width - 20, 182), (width, 188), (width, height)]), "m", angle=0, gap=3.2, reach=0.3, width=1.4)


def north_scene(cut, width, height):
    scenery.sky(cut, width, height, "n", "#33507a", 5, 0, 0.5)
    scenery.aurora(cut, width, 6, 96, ["#3f8f86", "#7fcaa2"])
    scenery.mountain(cut, 22, 66, 186, 52, "#5d7d9a", "w", gap=3)
    scenery.mountain(cut, width - 14, 84, 186, 46, "#5d7d9a", "w", gap=3)
    for x, high in ((6, 70), (width - 6, 80), (22, 46), (width - 24, 50)):
        scenery.pine(cut, x, 192, high, "p")
    cut.shape(f"0,{height}! 0,188! 30,182 {width / 2},190 {width - 30},182 {width},188! {width},{height}!", "w", angle=0, gap=3.4, reach=0.26, width=1.3, tone="f")


def portrait(figure, scene, x=60, foot=208, size=1.0):
    def draw():
        cut = sheet(1.4)
        scene(cut, 121, 220)
        with cut.at(x, foot, size):
            figure(cut)
        return cut
    return draw


def piece(figure, ground, rays, x=66, foot=204, size=1.0):
    """The figure alone before plain rays, on its base."""
    def draw():
        cut = sheet(1.5)
        cut.shape(rectangle(0, 0, 132, 222), ground, ink=None)
        scenery.rays(cut, 66, 104, 132, 222, rays, 40, 40, 4.5, 3.2)
        cut.dot(66, 205, 56, "c", 11, weight=1.5, angle=0, gap=2.6, reach=0.3, width=1.2)
        with cut.at(x, foot, size):
            figure(cut)
        return cut
    return draw


PICTURES = {
    "knight": (121, 220, portrait(ash_knight, castle_scene, 56, 210, 0.9)),
    "witch": (121, 220, portrait(marsh_witch, marsh_scene, 60, 210, 0.95)),
    "gnome": (121, 220, portrait(tinker_gnome, workshop_scene, 56, 208, 0.98)),
    "bard": (121, 220, portrait(storm_bard, storm_scene, 54, 208, 0.94)),
    "ranger": (121, 220, portrait(ranger, north_scene, 68, 208, 0.98)),
    "knight-piece": (132, 222, piece(ash_knight, "#e8c070", "#f2d698", 60, 206, 0.88)),
    "witch-piece": (132, 222, piece(marsh_witch, "#c4cc94", "#d8deb2", 66, 206, 0.92)),
    "gnome-piece": (132, 222, piece(tinker_gnome, "#dcb27a", "#ecca9c", 62, 206, 0.98)),
    "bard-piece": (132, 222, piece(storm_bard, "#9fb2c8", "#bccad8", 60, 206, 0.93)),
    "ranger-piece": (132, 222, piece(ranger, "#a8c4cc", "#c6dade", 72, 206, 0.98)),
}
