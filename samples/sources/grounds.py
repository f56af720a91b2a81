# SPDX-License-Identifier: GPL-3.0-or-later
"""Backgrounds of cards, quiet enough for a text; the backs of the set's own; its symbol."""

import backs
from backs import palette
from inks import sheet
import scenery
from emblems_arms import varnhelm_shield
from emblems_lore import helm, spark
from woodcut import polar, rectangle, sharp, star


def knot(cut, x, y, colour, size=1.0, turn=0):
    """A corner leaf of three cuts."""
    with cut.at(x, y, size, turn):
        cut.line(["0,0 12,2 20,8", "0,0 2,12 8,20", "0,0 9,5 15,15", "4,2 11,9 12,18"], 2.6, colour)


def ground(width, height, paper, tint, deep):
    """Paper with a grain, a rule and leaves in the lower corners; no text begins there."""
    cut = sheet()
    cut.shape(rectangle(0, 0, width, height), paper, ink=None)
    for i in range(int(height / 3.2)):
        y = 2 + i * 3.2
        size = (10, 5, 8, 4, 12, 6)[i % 6]
        for x, sign in ((0, 1), (width, -1)):
            cut.line([(x, y, True), (x + sign * size, y, True)], 1.3, tint, "end")
    cut.shape(rectangle(2.5, 2.5, width - 2.5, height - 2.5), None, ink=deep, weight=1)
    for x, y, turn in ((width - 4, height - 4, 180), (4, height - 4, 270)):
        knot(cut, x, y, deep, 0.7, turn)
    return cut


def parchment():
    return ground(150, 254, "#f6e8c6", "#e3c894", "#cfae74")


def frost():
    cut = ground(150, 254, "#e8f2f6", "#bcd8e4", "#93bccd")
    for x, y, r in ((24, 236, 9), (126, 238, 8), (132, 158, 6), (18, 164, 6), (76, 242, 6)):
        for turn in range(0, 180, 60):
            a, b = polar(r, turn, x, y), polar(r, turn + 180, x, y)
            cut.line([a + (True,), b + (True,)], 1.7, "#c3dde8")
            for side in (turn, turn + 180):
                p = polar(r * 0.55, side, x, y)
                for lean in (-40, 40):
                    cut.line([p + (True,), polar(r * 0.4, side + lean, *p) + (True,)], 1.3, "#c3dde8")
    return cut


def moss():
    cut = ground(150, 254, "#eaf0d2", "#c6d5a0", "#9db774")
    for i in range(9):
        x = 10 + i * 16.4
        high = (22, 14, 18, 10, 13, 9, 17, 13, 21)[i]
        cut.line([(x, 252, True), (x + 1.5, 252 - high * 0.6, False), (x + (4 if i % 2 else -4), 252 - high, False)], 2, "#c6d5a0", "end")
        for k in range(3):
            y = 249 - k * high * 0.26
            for side in (-1, 1):
                cut.line([(x, y, True), (x + side * 4, y - 3, False), (x + side * 6, y - 2.4, False)], 2, "#c6d5a0")
    return cut


def vellum():
    return ground(302, 254, "#f7ecd2", "#e6d0a2", "#c9a56a")


def haze():
    """The panel of a character: a pale sky over hills far off."""
    cut = sheet()
    cut.shape(rectangle(0, 0, 276, 228), "#f1f4f3", ink=None)
    for i in range(24):
        y = 4 + i * 6
        cut.line([(276, y, True), (276 - (60, 34, 48, 26)[i % 4], y, True)], 2, "#dfe8ea", "end")
    for x, top, half, fill in ((160, 176, 60, "#e2eaec"), (236, 166, 64, "#e2eaec"), (200, 190, 50, "#d8e3e6")):
        scenery.mountain(cut, x, top, 228, half, fill, shade="#cbd9de", weight=0)
    return cut


# ---------------------------------------------------------------- backs

def raven(cut):
    """A raven with a letter in its beak."""
    cut.shape("-40,66! -20,60 0,66 24,60 48,68! 46,74 20,70 0,76 -24,70 -42,74!", "b", weight=1.5, angle=0, gap=2.6, reach=0.3, width=1.1)
    for x in (-4, 10):
        cut.line([f"{x},40 {x - 2},62", f"{x - 2},60 {x - 10},65", f"{x - 2},60 {x + 8},65", f"{x - 2},60 {x},66"], 2.8, ends="none")
    cut.shape("30,20! 44,40 50,62! 40,56! 36,66! 28,54! 22,60! 16,40!", "c", angle=60, gap=2.6, reach=0.4, width=1.2, tone="g")
    cut.shape("-14,-58 0,-64 14,-58 20,-46 22,-32 34,-14 40,10 34,32 18,44 0,46 -14,36 -22,16 -20,-8 -14,-26 -20,-36! -22,-46", "c", angle=10, gap=2.8, reach=0.4, width=1.3, tone="g")
    cut.shape("6,-24! 24,-16 38,4 46,34! 36,30! 36,42! 26,34! 22,44! 12,30 2,8", "c", angle=60, gap=2.8, reach=0.45, width=1.3, tone="g")
    cut.line(["8,-18 22,4 30,32", "12,-18 30,2 38,26"], 1.7, "g")
    cut.line([f"-18,{y} -12,{y + 5} -6,{y + 1}" for y in (-16, -6, 4, 14, 24)] + [f"-8,{y} -2,{y + 5} 4,{y + 1}" for y in (-12, -2, 8, 18, 28)], 1.6, "g")
    cut.shape("-19,-52! -34,-48 -46,-38! -34,-38 -22,-36!", "e", weight=1.4, angle=0, gap=2.2, reach=0.4, width=1)
    cut.line("-44,-38.5 -32,-43 -22,-43", 1.5)
    cut.dot(-8, -50, 4, "e", weight=1.2)
    cut.dot(-8.6, -50, 1.8, "k", weight=0)
    with cut.at(-38, -22, 1, -10):
        cut.shape(rectangle(-15, -13, 15, 10), "a", angle=0, gap=2.6, reach=0.2, width=1.1)
        cut.line(["-15,-13 0,2 15,-13"], 2, ends="none")
        cut.dot(0, 1, 4.4, "h", weight=1.3)
    for x, y, r in ((-40, -70, 5), (36, -68, 6), (46, -30, 4), (-46, 30, 5), (18, -80, 4)):
        spark(cut, x, y, r, "e")


def lance(cut, stripe):
    cut.shape("0,-96! 4,-70 6,30! 10,44 10,54! -10,54! -10,44 -6,30! -4,-70", "a", angle=0, gap=3, reach=0.4, width=1.1)
    for y in (-56, -28, 0):
        cut.shape([(-4.4, y + 12, True), (4.6, y, True), (5, y + 10, True), (-5, y + 22, True)], stripe, weight=1)
    cut.shape(rectangle(-4, 54, 4, 80), "b", weight=1.3)


def tournament(cut):
    """The arms of the realm, a crested helm, and two lances before striped banners."""
    for flip in (False, True):
        with cut.at(0, 20, 1.12, 52, flip):
            lance(cut, "h" if flip else "e")
    for flip in (False, True):
        with cut.at(-88 if flip else 88, -44, 1, 0, flip):
            cut.shape("-26,-26! 0,-30 26,-26! 26,70! 13,60! 0,72! -13,60! -26,70!", "h" if flip else "e", angle=0, gap=3, reach=0.24, width=1.2)
            cut.shape("-9,-29! 9,-29! 9,64! 0,72! -9,64!", "a", weight=1.2)
            cut.shape(star(8, 10, 4.4, 0, 10), "h", weight=1.2)
            cut.line("-34,-30 34,-30", 4, ends="none")
    with cut.at(0, 26, 0.72):
        varnhelm_shield(cut)
    with cut.at(0, -40, 0.72):
        helm(cut)
        cut.shape("0,-46! -16,-58 -10,-70 10,-72! 5,-65 13,-62! 8,-56!", "h", angle=20, gap=2.6, reach=0.4, width=1.2)


def lute(cut):
    """A lute among the lightning."""
    for points in ("-70,-74! -104,-14! -84,-14! -110,56! -58,-28! -78,-28! -52,-74!", "74,-74! 52,-20! 70,-20! 52,44! 106,-34! 84,-34! 104,-74!"):
        cut.shape(points, "e", angle=20, gap=2.8, reach=0.3, width=1.2)
    with cut.at(2, 22, 1.3, 24):
        cut.shape(rectangle(-4.4, -70, 4.4, -18), "c", angle=0, gap=2.8, reach=0.5, width=1.1)
        cut.shape("-5,-68! 5,-68! 10,-82! -4,-84!", "b", weight=1.3)
        for y in (-70, -75, -80):
            cut.line(f"-10,{y} 12,{y}", 2.6, ends="none")
        cut.shape("0,-28 12,-24 24,-8 27,10 18,28 0,33 -18,28 -27,10 -24,-8 -12,-24", "b", angle=10, gap=2.8, reach=0.4, width=1.4)
        for dx in (-14, -7, 7, 14):
            cut.line(f"{dx * 0.3},-26 {dx * 1.4},0 {dx},30", 1.2)
        cut.dot(0, -2, 8.4, "k", weight=1.2)
        cut.dot(0, -2, 11, None, ink="a", weight=1.3)
        cut.shape(rectangle(-11, 18, 11, 22), "c", weight=1.2)
        cut.line([f"{x},-70 {x * 1.4},20" for x in (-2.6, 0, 2.6)], 1.1, "a", "none")
    for x, y in ((-40, -56), (-30, 66), (46, 62), (46, -62)):
        cut.dot(x, y, 5, "a", 4, -20, weight=1.3)
        cut.line(f"{x + 4.6},{y - 1} {x + 4.6},{y - 19}", 2, "a", "none")
        cut.line(f"{x + 4.6},{y - 19} {x + 10},{y - 14} {x + 9},{y - 8}", 2.6, "a", "end")


BACKS = {  # name: title on the ribbon, size, lettering, field, emblem, palette
    "rumour-back": ("Rumours", (150, 254), "uncial", backs.field_leaves, raven,
                    palette("#7a4668", "#47233c", "#96608a", "#231020", "#f0d0a0", "#9a6a78", a="#f4e8ca", b="#8a5f3c", c="#2b2a36", e="#e9b347", h="#b83f2b")),
    "tourney-back": ("Tournament", (302, 254), "roman", backs.field_damask, tournament,
                     palette("#3f6a4a", "#1d3c28", "#2c5236", "#0f2216", "#ecc561", "#7f8a44", a="#f4e8ca", b="#aeb4bd", c="#6a4426", e="#e2a83c", h="#b83f2b")),
    "bard-back": ("Storm Bard", (302, 254), "uncial", backs.field_rays, lute,
                  palette("#3b5578", "#1a2c48", "#2a4264", "#0c1626", "#d9e4ea", "#6a88a8", a="#f4e8ca", b="#b5763a", c="#4a2f20", e="#f0bf4a", h="#b83f2b")),
}


def harbour():
    """Ships at their moorings, a ribbon in the middle where the name stands; 254 x 150."""
    cut = sheet()
    scenery.sky(cut, 254, 150, "#e9cd92", "#f6e4b8", 4.4, 0, 0.5)
    cut.dot(127, 76, 46, "#f6e4b8", ink=None)
    scenery.mountain(cut, 30, 20, 98, 54, "s", "w")
    scenery.mountain(cut, 226, 14, 98, 56, "s", "w")
    cut.shape(rectangle(0, 96, 254, 150), "f", ink=None)
    scenery.water(cut, 0, 254, 97, 150, None, "g", 5)
    cut.shape("0,98! 0,84! 26,80 58,88 74,98!", "m", angle=0, gap=2.8, reach=0.3, width=1.2)
    cut.shape("254,98! 254,82! 226,78 196,88 180,98!", "m", angle=0, gap=2.8, reach=0.3, width=1.2)
    for x, foot, wide, high in ((14, 88, 24, 26), (40, 92, 22, 22), (240, 86, 24, 28), (214, 91, 22, 22)):
        scenery.house(cut, x, foot, wide, high, "b", "h")
    scenery.ship(cut, 58, 124, 0.62, "a", "b", "h")
    scenery.ship(cut, 196, 126, 0.66, "e", "b", "h", flip=True)
    cut.shape("84,150! 88,116! 166,116! 170,150!", "b", angle=0, gap=3, reach=0.4, width=1.3)
    for y in (122, 129, 137, 145):
        cut.line(f"{86},{y} {168},{y}", 1.4, ends="none")
    for x in (88, 166):
        cut.shape(rectangle(x - 4, 106, x + 4, 132), "c", angle=0, gap=2.4, reach=0.4, width=1.1)
    scenery.gulls(cut, ((92, 26), (112, 18), (158, 24), (144, 40)))
    for side in (-1, 1):
        cut.shape(sharp([(127 + side * 62, 62), (127 + side * 86, 66), (127 + side * 79, 80), (127 + side * 86, 94), (127 + side * 62, 94)]), "e", angle=0, gap=2.6, reach=0.4, width=1)
    cut.shape("55,60! 127,57 199,60! 199,92! 127,89 55,92!", "a", angle=0, gap=2.6, reach=0.05, width=1, both=0.05)
    for inset, ink, weight in ((3, "a", 5), (1, "k", 2), (6, "k", 1)):
        cut.shape(rectangle(inset, inset, 254 - inset, 150 - inset), None, ink=ink, weight=weight)
    return cut


SYMBOL = """
kkkkkkkkk
khhhehhhk
khhheh.hk
kheeeeehk
khheeehhk
khhehehhk
.khhhhhk.
..khhhk..
...kkk...
""".replace("h.h", "hhh")


def symbol():
    """A shield with a star, pixel by pixel; 9 x 9."""
    cut = sheet()
    cut.shape(rectangle(0, 0, 9, 9), "#ffffff", ink=None)
    for y, row in enumerate(SYMBOL.strip().split("\n")):
        for x, key in enumerate(row):
            if key != ".":
                cut.shape(rectangle(x, y, x + 1, y + 1), key, ink=None)
    return cut


PICTURES = {
    "parchment": (150, 254, parchment), "frost": (150, 254, frost), "moss": (150, 254, moss), "vellum": (302, 254, vellum), "haze": (276, 228, haze),
    "harbour": (254, 150, harbour), "symbol": (9, 9, symbol),
}


def back_drawings():
    for name, (title, size, *row) in BACKS.items():
        yield name, backs.back(title, size, title, *row)
