# SPDX-License-Identifier: GPL-3.0-or-later
"""Places and events of the sample, each for the frame of its card."""

from inks import sheet
import scenery
from beings import stars
from emblems_realm import flame
from woodcut import ellipse, rectangle, sharp, star


def storm():
    """A longship between the waves and the lightning; 200 x 107."""
    cut = sheet()
    scenery.sky(cut, 200, 107, "#3d4d66", "#5d7390", 4.4, 0, 0.5)
    for x, y, size in ((30, 14, 1.1), (84, 10, 1.3), (140, 14, 1.2), (186, 10, 1.1)):
        scenery.cloud(cut, x, y, size, "c")
    for points in ("120,20! 108,44! 116,44! 104,72! 132,38! 122,38! 132,20!", "52,22! 46,38! 52,38! 44,56! 62,34! 55,34! 60,22!"):
        cut.shape(points, "e", weight=1.2)
    for x in range(4, 200, 9):
        cut.line(f"{x + 8},{20 + x % 13} {x},{44 + x % 17}", 1, "g")

    def wave(points, fill):
        cut.shape(points, fill, weight=1.5, angle=-40, gap=3, reach=0.3, width=1.3)
    wave("0,107! 0,74! 14,66 26,66 30,74! 24,74 22,80 40,84 58,74 66,70! 62,78 70,86 90,90 120,86 140,72 158,62 172,64! 164,70 162,80 178,84 200,74! 200,107!", "f")
    with cut.at(94, 78, 1, -10):
        scenery.ship(cut, 0, 0, 0.72, "a", "b", "h")
    wave("0,107! 0,92! 16,86 30,88! 24,94 34,100 52,96 66,88 80,88! 76,94 88,100 108,96 124,86 138,86! 132,94 146,100 168,92 184,86 200,88! 200,107!", "#2a5675")
    for points in ("8,98 18,92 26,92", "58,99 68,93 76,92", "116,98 126,91 134,90", "30,72 24,70 16,74", "172,68 164,66 156,70", "66,74 60,74 52,80"):
        cut.line(points, 2, "w")
    for x, y in ((34, 68), (38, 62), (70, 64), (174, 58), (180, 62), (84, 84), (140, 82), (32, 84)):
        cut.dot(x, y, 1.7, "w", weight=0.9)
    return cut


def hollowbrook():
    """Turf-roofed halls by a brook; 180 x 120."""
    cut = sheet()
    scenery.sky(cut, 180, 80, "g", "w", 4.4, 0, 0.55)
    cut.dot(102, 38, 15, "e", weight=1.2)
    for x, top, half in ((36, 18, 44), (148, 14, 50), (92, 44, 34)):
        scenery.mountain(cut, x, top, 84, half, "s", "w")
    cut.shape("0,120! 0,78! 30,72 70,80 110,72 150,78 180,72! 180,120!", "m", angle=0, gap=3.2, reach=0.22, width=1.3)
    for x, foot, high in ((20, 84, 30), (32, 82, 40), (150, 82, 38), (162, 84, 30), (140, 80, 24), (8, 88, 40), (173, 90, 44)):
        scenery.pine(cut, x, foot, high, "p")
    for x, foot, wide, high in ((58, 92, 34, 36), (122, 90, 36, 38), (90, 84, 28, 28)):
        scenery.house(cut, x, foot, wide, high, "b", "#8f4a30")
    for x, y in ((62, 52), (126, 48)):
        cut.line(f"{x},{y} {x + 4},{y - 8} {x},{y - 14} {x + 6},{y - 22}", 2.6, "w")
    cut.shape("84,88! 92,88! 84,98 96,106 84,120! 118,120! 114,104 98,97!", "f", weight=1.3)
    cut.line(["90,93 94,96", "96,102 104,105", "96,112 106,114"], 1.5, "w")
    cut.rope("70,108 84,102 104,102 118,108", 3.2, "b")
    for x in (76, 94, 111):
        cut.line(f"{x},103 {x},112", 2.6, ends="none")
    for x in (28, 36, 44, 52, 132, 140, 148):
        cut.line(f"{x},112 {x},102", 2.6, "b", "none")
    cut.line(["24,106 56,105", "128,105 152,106"], 2, "b", "none")
    for x, y in ((44, 98), (136, 99), (60, 104)):
        cut.shape(f"{x - 5},{y} {x - 4},{y - 5} {x + 3},{y - 5} {x + 6},{y - 2} {x + 4},{y + 2} {x - 3},{y + 2}", "w", weight=1.1)
        cut.dot(x + 6, y - 3, 1.8, "k", weight=0)
    return cut


def tankard():
    """The tavern that leans, by night, with its sign; 141 x 107."""
    cut = sheet()
    scenery.sky(cut, 141, 107, "n", "#38567c", 4, 0, 0.4)
    stars(cut, 141, 50, 14, "a", 1.5, 8)
    cut.dot(22, 22, 11, "a", weight=1.2)
    cut.dot(26, 19, 10, "n", ink=None)
    cut.shape("0,107! 0,94! 40,90 90,94 141,90! 141,107!", "c", angle=0, gap=2.8, reach=0.3, width=1.3)
    with cut.at(84, 96, 1, 6):
        cut.shape(sharp([(-36, 0), (-40, -42), (40, -42), (36, 0)]), "a", angle=0, gap=3, reach=0.3, width=1.2)
        for x1, y1, x2, y2 in ((-38, -22, 38, -22), (-18, 0, -20, -42), (14, 0, 16, -42), (-36, -2, -19, -21), (34, -2, 16, -21), (-40, -40, -20, -24), (40, -40, 17, -24)):
            cut.line(f"{x1},{y1} {x2},{y2}", 3.2, "b", "none")
        cut.shape(sharp([(-50, -36), (-30, -78), (32, -78), (50, -36)]), "h", angle=70, gap=3, reach=0.35, width=1.3)
        for y in (-46, -56, -67):
            cut.line(f"{-46 - (y + 46) * 0.45},{y} {46 + (y + 46) * 0.4},{y}", 1.4, ends="none")
        cut.shape(rectangle(14, -92, 24, -74), "s", angle=0, gap=2.4, reach=0.4, width=1)
        cut.line("19,-94 15,-100 22,-104 17,-112", 2.8, "g")
        for x, y in ((-30, -38), (-6, -38), (22, -38), (24, -17)):
            cut.shape(rectangle(x, y, x + 9, y + 11), "e", weight=1.3)
            cut.line([f"{x + 4.5},{y} {x + 4.5},{y + 11}", f"{x},{y + 5.5} {x + 9},{y + 5.5}"], 1.2, ends="none")
        cut.shape("-14,0! -14,-16 -7,-20 0,-16 0,0!", "b", weight=1.4, angle=0, gap=2.4, reach=0.4, width=1)
        cut.dot(-3, -8, 1.3, "e", weight=0.6)
    cut.line(["48,52 24,48", "30,49 30,56", "42,51 42,57"], 2.2, ends="none")
    with cut.at(35, 68):
        cut.shape(rectangle(-13, -12, 13, 12), "b", weight=1.4)
        cut.shape("-6,-5! 5,-5! 4,8! -5,8!", "e", weight=1.2)
        cut.shape("-7,-5 -6,-9 -2,-8 1,-10 5,-8 6,-5!", "w", weight=1.1)
        cut.rope("5,-2 9,-1 8,4 4,5", 1.6, "e", weight=0.9)
    cut.shape("72,96! 86,96! 100,107! 58,107!", "e", ink=None, angle=0, gap=3, reach=0.5, width=1.2, tone="c")
    cut.line(["10,98 22,97", "110,100 126,98", "20,103 36,102"], 1.6)
    return cut


def veil():
    """Mist over the fjord, and someone in it; 141 x 72."""
    cut = sheet()
    scenery.sky(cut, 141, 72, "g", "w", 4, 0, 0.5)
    scenery.mountain(cut, 28, 6, 50, 40, "#7f9fae", weight=1.1)
    scenery.mountain(cut, 112, 2, 50, 46, "#7f9fae", weight=1.1)
    scenery.mountain(cut, 70, 20, 50, 30, "#a9c2ca", weight=1)
    scenery.water(cut, 0, 141, 48, 72, "#6b95a8", "w", 4.6)
    with cut.at(70, 62):
        cut.shape("0,-46! 6,-44 9,-36 9,-28 16,-8 16,0! -16,0! -16,-8 -9,-28 -9,-36 -6,-44", "n", angle=10, gap=2.4, reach=0.4, width=1.2)
        cut.shape("0,-41! 4,-39 5,-34 3,-30 -3,-30 -5,-34 -4,-39", "k", weight=0.6)
        cut.dot(-2, -35, 1, "e", weight=0)
        cut.dot(2, -35, 1, "e", weight=0)
        cut.line("20,2 20,-48", 2.4, "k", "none")
        cut.shape(star(4, 6, 2, 20, -50), "e", weight=1)
    for y, x, wide in ((50, -8, 70), (58, 60, 90), (64, 4, 80), (44, 88, 60), (40, -4, 44), (68, 90, 60)):
        cut.shape(f"{x},{y}! {x + wide * 0.2},{y - 5} {x + wide * 0.42},{y - 3} {x + wide * 0.6},{y - 6} {x + wide * 0.85},{y - 3} {x + wide},{y}! {x + wide * 0.7},{y + 3} {x + wide * 0.3},{y + 2.4}", "w", weight=0.9)
        cut.line(f"{x + wide * 0.15},{y - 1} {x + wide * 0.4},{y} {x + wide * 0.7},{y - 2}", 1.2, "s")
    for x, foot, high in ((8, 50, 26), (18, 52, 20), (132, 50, 28), (122, 53, 20)):
        scenery.pine(cut, x, foot, high, "p", weight=1.1)
    return cut


def profile(cut, hair, cloth, hood=False):
    """A head in profile that looks to the right, with its shoulders."""
    cut.shape("-34,62! -30,40 -16,30 2,28 14,34 22,48 24,62!", cloth, angle=12, gap=2.6, reach=0.35, width=1.2)
    cut.shape("-4,36! -6,20! 8,22! 10,36!", "t", weight=1.2)
    cut.shape("-8,-18 6,-24 16,-18 18,-8! 20,-4 26,5! 20,7! 21,12! 18,14! 20,18! 16,24 6,25 -4,20 -10,6", "t", angle=170, gap=2.3, reach=0.25, width=1)
    if hood:
        cut.shape("18,-10! 16,-22 2,-31 -14,-26 -22,-10 -20,12 -26,34! -8,38 4,34 2,22 -4,8 -2,-6 6,-14", hair, angle=14, gap=2.5, reach=0.35, width=1.2)
    else:
        cut.shape("18,-12! 14,-24 0,-30 -14,-24 -18,-8 -16,14! -8,16 -4,6 -6,-2 2,-8 6,-16", hair, angle=14, gap=2.5, reach=0.4, width=1.2)
        cut.shape("20,17! 16,13 8,14 2,8! 0,22 4,32 14,38! 18,28!", hair, angle=-60, gap=2.4, reach=0.4, width=1.1)
    cut.line(["10,-6 14,-8 18,-6", "13,15 19,15"], 1.8)
    cut.dot(14.5, -3, 1.5, "k", weight=0)


def whisper():
    """Two heads over a candle; 141 x 107."""
    cut = sheet()
    cut.shape(rectangle(0, 0, 141, 107), "#3a2620", ink=None)
    cut.dot(70, 50, 56, "#6b4027", ink=None)
    cut.dot(70, 50, 38, "#a5622e", ink=None)
    scenery.rays(cut, 70, 52, 141, 107, "#8a4f2a", 36, 20, 5, 2.2)
    with cut.at(34, 36, 1.02):
        profile(cut, "p", "p", True)
    with cut.at(108, 36, 1.02, 0, True):
        profile(cut, "#b5763a", "h")
    cut.shape("0,107! 0,90! 141,90! 141,107!", "b", angle=0, gap=3, reach=0.3, width=1.3)
    cut.line(["0,98 60,97 141,99"], 1.6)
    cut.shape(rectangle(65, 64, 75, 92), "a", angle=0, gap=2.6, reach=0.4, width=1.1)
    cut.shape("58,92! 82,92! 78,98! 62,98!", "e", weight=1.3)
    flame(cut, 70, 63, 0.56)
    for x in (44, 98):
        cut.shape(f"{x - 7},94! {x - 8},80! {x + 7},80! {x + 6},94!", "s", weight=1.3, angle=0, gap=2.4, reach=0.4, width=1)
        cut.shape(ellipse(x, 80, 7.4, 2.2), "k", weight=1)
    for x, y, t in ((24, 98, -12), (116, 99, 10), (124, 97, 24)):
        with cut.at(x, y, 1, t):
            cut.shape(rectangle(-4, -6, 4, 6), "a", weight=1.1)
            cut.shape(star(4, 3, 1.2), "h", ink=None)
    return cut


def cathedral():
    """A stave church on the floor of the fjord; 160 x 280."""
    cut = sheet(1.4)
    cut.shape(rectangle(0, 0, 160, 280), "#1d4a66", ink=None)
    cut.shape(rectangle(0, 0, 160, 66), "#5fa3b4", ink=None)
    cut.shape(rectangle(0, 46, 160, 120), "#35789a", ink=None)
    for i, x in enumerate((20, 46, 70, 96, 124, 144)):
        cut.shape(sharp([(x - 4, 46), (x + 5, 46), (x + 16 - i * 5, 232), (x - 14 - i * 4, 232)]), "#5fa3b4" if i % 2 else "#4a90a8", ink=None)
    cut.shape("0,0! 160,0! 160,44! 146,40 132,46! 118,40 104,46! 90,40 76,46! 62,40 48,46! 34,40 20,46! 8,41 0,45!", "#e8d4a0", weight=1.4)
    scenery.mountain(cut, 44, 12, 43, 40, "s", "w")
    scenery.mountain(cut, 120, 8, 43, 44, "s", "w")
    with cut.at(118, 44, 0.34):
        scenery.ship(cut, 0, 0, 0.9, "a", "b", "h")
    wall, roof = "b", "#3e5b52"

    def tier(half, top, foot, eaves):
        cut.shape(sharp([(80 - half, foot), (80 - half, top), (80 + half, top), (80 + half, foot)]), wall, angle=0, gap=3, reach=0.4, width=1.3)
        cut.shape([(80 - eaves, top + 4, True), (80 - eaves * 0.6, top - 10, False), (80 - half * 0.42, top - 26, True), (80 + half * 0.42, top - 26, True),
                   (80 + eaves * 0.6, top - 10, False), (80 + eaves, top + 4, True)], roof, angle=60, gap=2.8, reach=0.5, width=1.3)
        for i in range(3):
            y = top - 20 + i * 8
            w = half * 0.5 + (eaves - half * 0.5) * (i + 0.7) / 3.2
            cut.line([f"{80 - w},{y + 1} {80 - w / 2},{y + 4} 80,{y + 1} {80 + w / 2},{y + 4} {80 + w},{y + 1}"], 1.3)
        for side in (-1, 1):
            cut.shape([(80 + side * (eaves - 3), top + 4, True), (80 + side * (eaves + 4), top - 2, False), (80 + side * (eaves + 3), top - 9, True), (80 + side * (eaves - 1), top - 5, False),
                       (80 + side * (eaves - 6), top, True)], "e", weight=1.1)
    tier(47, 196, 240, 58)
    tier(32, 156, 176, 42)
    tier(18, 118, 134, 27)
    cut.shape(sharp([(80 - 9, 94), (80, 52), (80 + 9, 94)]), roof, angle=60, gap=2.6, reach=0.5, width=1.2)
    cut.shape(star(8, 7, 2.6, 80, 50), "e", weight=1.2)
    cut.shape("66,240! 66,216 72,206 80,202 88,206 94,216 94,240!", "k", weight=1.6)
    cut.shape("70,240! 70,218 80,208 90,218 90,240!", "e", ink=None)
    cut.line([f"{x},212 {x},240" for x in (75, 80, 85)], 1.6, "h", "none")
    for x in (44, 116):
        cut.shape(f"{x - 5},228! {x - 5},214 {x},208 {x + 5},214 {x + 5},228!", "e", weight=1.3)
        cut.line([f"{x},210 {x},228", f"{x - 5},219 {x + 5},219"], 1.2, ends="none")
    for x, y in ((62, 166), (98, 166), (80, 164), (80, 126)):
        cut.shape(f"{x - 4},{y + 8}! {x - 4},{y - 2} {x},{y - 6} {x + 4},{y - 2} {x + 4},{y + 8}!", "e", weight=1.2)
    cut.shape("0,280! 0,240! 30,236 60,242 100,237 130,242 160,236! 160,280!", "#c9a96a", angle=0, gap=3.4, reach=0.3, width=1.4)
    for x, high in ((28, 60), (36, 40), (132, 66), (124, 44), (140, 36), (22, 30)):
        cut.line(f"{x},250 {x + 4},{250 - high * 0.4} {x - 4},{250 - high * 0.7} {x + 2},{250 - high}", 3.2, "m")
    for x, y, size, flip in ((36, 104, 0.5, False), (124, 130, 0.56, True), (112, 92, 0.36, False), (30, 150, 0.4, True), (130, 180, 0.4, False)):
        with cut.at(x, y, size, 0, flip):
            cut.shape("-20,0! -8,-9 8,-8 16,-1! 26,-9! 24,0 26,9! 16,2! 8,8 -8,9", "e", weight=1.2, angle=10, gap=2.4, reach=0.4, width=1)
            cut.dot(-12, -1, 1.8, "k", weight=0)
    for x, y, r in ((66, 84, 2), (98, 78, 3), (102, 68, 2), (56, 110, 2.4), (126, 112, 2), (40, 78, 2.4), (44, 68, 1.6)):
        cut.dot(x, y, r, None, ink="w", weight=1.1)
    for x, y in ((60, 258), (96, 262), (76, 268), (50, 270), (118, 258)):
        cut.dot(x, y, 3.4, "e", 2, weight=1)
    return cut


def sky_ferry():
    """A ship that hangs from a great sail-bag over the mountains; 140 x 150."""
    cut = sheet(1.4)
    scenery.sky(cut, 140, 150, "#8fc0d4", "w", 5, 0, 0.5)
    cut.dot(112, 26, 13, "e", weight=1.3)
    for x, y, size in ((22, 60, 0.7), (120, 70, 0.66), (30, 104, 0.6), (112, 112, 0.7)):
        scenery.cloud(cut, x, y, size, "w")
    for x, top, half in ((22, 118, 36), (118, 114, 40), (70, 126, 34)):
        scenery.mountain(cut, x, top, 152, half, "s", "w")
    cut.shape("70,8 94,12 110,26 114,42 106,56 90,64 70,66 50,64 34,56 26,42 30,26 46,12", "h", angle=14, gap=3, reach=0.34, width=1.5)
    cut.shape("58,8! 46,24 44,44 56,66! 64,66! 60,40 66,8!", "a", weight=1.2)
    cut.shape("78,8! 86,24 88,46 80,66! 88,65! 100,44 96,22 86,10!", "a", weight=1.2, angle=14, gap=3, reach=0.5, width=1.2)
    cut.line(["28,40 50,46 70,47 92,46 112,40"], 2)
    cut.line(["34,56 40,90", "50,64 54,92", "70,66 70,92", "90,64 86,92", "106,56 100,88"], 1.7, ends="none")
    with cut.at(70, 104, 0.92):
        cut.shape("-50,-34! -44,-34 -42,-26! -45,-24! -40,-12 -22,-8 22,-8 38,-14 43,-30 50,-40! 51,-34! 56,-32! 51,-28 46,-8 34,8 20,12 -22,12 -38,6 -48,-12 -50,-24!", "b",
                  angle=0, gap=2.8, reach=0.3, width=1.3)
        cut.line(["-43,-6 -24,0 24,0 42,-8", "-36,5 -20,7 22,7 34,4"], 1.4)
        for dx in (-27, -15, -3, 9, 21):
            cut.dot(dx, -3, 4.6, "e", weight=1.2)
        for dx, fill in ((-22, "f"), (-6, "m"), (10, "h"), (24, "f")):
            cut.dot(dx, -18, 3.4, "t", weight=1.1)
            cut.shape(f"{dx - 5},-8! {dx - 4},-15! {dx + 4},-15! {dx + 5},-8!", fill, weight=1.1)
        for side in (-1, 1):
            cut.shape([(side * 30, 6, True), (side * 52, 14, False), (side * 62, 26, True), (side * 46, 24, False), (side * 26, 12, True)], "a", weight=1.2, angle=20, gap=2.4, reach=0.4, width=1)
    scenery.gulls(cut, ((16, 30), (28, 22), (128, 50), (22, 88)))
    return cut


PICTURES = {  # name: width, height, drawing
    "storm": (200, 107, storm), "village": (180, 120, hollowbrook), "tavern": (141, 107, tankard), "mist": (141, 72, veil), "whisper": (141, 107, whisper),
    "cathedral": (160, 280, cathedral), "skyferry": (140, 150, sky_ferry),
}
