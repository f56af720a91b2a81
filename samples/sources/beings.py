# SPDX-License-Identifier: GPL-3.0-or-later
"""Enemies, strangers and followers of the sample, each for the frame of its card."""

from inks import sheet
import scenery
from emblems_lore import troll as troll_face
from emblems_realm import flame
from woodcut import ellipse, polar, rectangle, sharp, star


def stars(cut, width, foot, count, colour="a", size=1.6, seed=3):
    for i in range(count):
        x, y = (i * 61 + seed * 17) % int(width - 6) + 3, (i * 37 + seed * 29) % int(foot - 6) + 3
        cut.shape(star(4, size * (1 + i % 3 * 0.4), size * 0.35, x, y), colour, ink=None)


def cinderwing():
    """A dragon over the ashes of a town; 190 x 140, its middle is what the frame shows."""
    cut = sheet()
    scenery.sky(cut, 190, 140, "#d9653a")
    scenery.rays(cut, 118, 84, 190, 140, "e", 44, 34, 4, 3)
    cut.dot(118, 84, 30, "e", weight=1.3)
    for x, top, half in ((30, 74, 40), (172, 70, 44)):
        scenery.mountain(cut, x, top, 124, half, "v", gap=2.8)
    wing = "0,0! 6,-26 22,-52 50,-66! 46,-54 52,-44! 44,-42 46,-28! 36,-30 36,-14! 26,-18 22,-2! 14,-6"
    with cut.at(84, 84, 0.95, -36, True):
        cut.shape(wing, "#8f2f26", angle=30, gap=2.8, reach=0.4, width=1.3)
    cut.rope("146,120 164,112 168,98 158,92", 5, "h")
    cut.shape("158,96! 150,90 152,82! 158,86 166,84! 164,92", "h", weight=1.2)
    cut.shape("60,132! 66,112 80,98 92,84 92,68 84,58 74,56! 66,54 70,46 80,44 92,46 104,56 108,70 120,82 138,98 148,116 150,132!", "h",
              angle=20, gap=2.8, reach=0.34, width=1.4)
    cut.shape("72,130! 78,116 90,104 98,90 100,74 96,62! 104,74 106,92 100,112 102,132!", "e", weight=1.2)
    cut.line(["80,118 92,120", "86,110 98,111", "92,100 104,101", "97,90 106,90", "98,80 106,79", "77,125 96,127"], 1.4)
    cut.shape("86,60! 84,50 70,48 58,52 48,60! 56,60 60,63! 54,66 48,68! 60,70 74,68 84,66", "h", angle=0, gap=2.4, reach=0.4, width=1.1)
    cut.shape("84,50! 92,40 104,34! 100,44 96,54!", "a", weight=1.2)
    cut.shape("78,49! 82,38 90,30! 89,42 88,50!", "a", weight=1.2)
    cut.shape("70,54! 76,52 80,56! 74,57", "e", weight=1)
    cut.line(["52,58 54,57", "60,64 70,63 80,62"], 1.4)
    with cut.at(108, 82, 1.0, 12):
        cut.shape(wing, "#a83a2c", angle=-30, gap=2.8, reach=0.35, width=1.3)
        cut.line(["2,-4 16,-34 50,-66", "6,-4 26,-28 50,-44", "10,-4 26,-16 45,-28"], 1.6)
    with cut.at(48, 66, 0.9, -104):
        flame(cut, 0, 0, 0.8)
    cut.shape("0,140! 0,124! 24,118 60,126 96,120 140,128 190,120! 190,140!", "c", angle=0, gap=3, reach=0.3, width=1.4)
    for x, top in ((30, 104), (44, 112), (150, 106), (162, 112)):
        cut.shape(sharp([(x - 5, 126), (x - 5, top + 4), (x - 2, top), (x + 1, top + 5), (x + 4, top + 1), (x + 5, 126)]), "k", weight=0.8)
    return cut


def bridge_troll():
    """A troll looks out from under the arch of a bridge; 141 x 107."""
    cut = sheet()
    scenery.sky(cut, 141, 60, "g", "w", 4, 0, 0.5)
    scenery.mountain(cut, 24, 8, 60, 34, "s", "w")
    scenery.mountain(cut, 122, 14, 60, 32, "s", "w")
    for x, foot, high in ((6, 46, 26), (134, 46, 28), (124, 46, 20)):
        scenery.pine(cut, x, foot, high, "p")
    cut.shape("0,107! 0,42! 30,40 70,26 111,40 141,42! 141,107! 122,107! 120,74 104,52 70,44 36,52 21,74 19,107!", "s", angle=0, gap=3, reach=0.1, width=1.2)
    for a in range(-70, 71, 20):
        x1, y1 = polar(50, a, 70, 92)
        x2, y2 = polar(62, a, 70, 92)
        cut.line(f"{x1:.1f},{y1:.1f} {x2:.1f},{y2:.1f}", 1.4, ends="none")
    cut.line(["0,56 18,54", "0,72 16,72", "0,88 17,88", "123,56 141,54", "125,72 141,72", "124,88 141,88", "10,56 10,72", "130,72 130,88"], 1.3, ends="none")
    cut.shape("19,107! 21,76 36,54 70,46 104,54 120,76 122,107!", "k")
    with cut.at(70, 88, 0.62):
        kept = dict(cut.palette)
        cut.palette.update(b="#7f9a6e", c="#4a3a2a", h="#f2c53d")
        troll_face(cut)
    cut.palette.update(kept)
    for x, flip in ((30, False), (110, True)):
        with cut.at(x, 96, 0.9, 0, flip):
            cut.shape("-8,14! -10,2 -8,-8 -3,-10 -1,-4! 0,-12 5,-12 6,-4! 8,-10 13,-8 12,0! 16,-4 19,0 16,10 12,16!", "#7f9a6e", angle=20, gap=2.4, reach=0.35, width=1.1)
    cut.rope("-2,33 16,33 40,31 70,18 100,31 125,33 143,33", 3.4, "b")
    for x, y in ((16, 33), (42, 30), (70, 18), (98, 30), (125, 33)):
        cut.shape(rectangle(x - 2.4, y - 6, x + 2.4, y + 12), "b", weight=1.2)
    return cut


def weeping_shade():
    """A ghost among the stones; 110 x 107."""
    cut = sheet()
    scenery.sky(cut, 110, 107, "n", "#3a5678", 4, 0, 0.5)
    cut.dot(55, 40, 34, "#3f6284", ink=None)
    cut.dot(55, 40, 25, "#5d86a4", ink=None)
    for x, y, turn in ((14, 96, -8), (94, 98, 9), (30, 104, 4)):
        with cut.at(x, y, 1, turn):
            cut.shape("-10,12! -10,-14 -7,-22 0,-25 7,-22 10,-14 10,12!", "s", angle=0, gap=2.6, reach=0.4, width=1.2)
            cut.line(["0,-18 0,-4", "-4,-13 4,-13"], 1.8)
    cut.shape("55,8! 68,12 75,26 76,42 88,60 92,74! 84,70 82,84! 76,78 72,94! 64,86 58,104! 50,90 42,98! 38,82 30,86! 30,70 20,76! 22,60 34,42 35,26 42,12", "g",
              angle=-18, gap=2.8, reach=0.35, width=1.3)
    cut.shape("55,16! 65,19 69,30 66,42 58,48 50,48 43,42 41,30 45,19", "k", weight=1)
    cut.shape("47,31! 51,27 54,32! 51,35", "a", ink=None)
    cut.shape("57,32! 60,27 64,31! 60,35", "a", ink=None)
    cut.line(["50,36 49,44", "61,36 62,44"], 1.6, "a")
    cut.shape("51,43! 55,40 60,43!", "a", ink=None)
    for side in (-1, 1):
        cut.shape([(55 + side * u, v, k) for u, v, k in ((18, 50, True), (12, 42, False), (9, 38, True), (8, 44, False), (12, 56, False), (20, 62, True))], "w", weight=1.1)
    cut.line(["44,58 42,78 46,88", "55,54 54,76 56,92", "66,58 68,74 66,84"], 1.7)
    cut.shape("0,107! 0,98! 26,94 54,100 84,95 110,99! 110,107!", "c", angle=0, gap=2.6, reach=0.3, width=1.2)
    return cut


def greymuzzle():
    """An old wolf howls on a crag; 141 x 107."""
    cut = sheet()
    scenery.sky(cut, 141, 107, "n", "#38567c", 4, 0, 0.72)
    cut.dot(100, 36, 26, "a", weight=1.3, angle=30, gap=3, reach=0.22, width=1)
    for x, y, r in ((92, 30, 4), (108, 44, 5), (106, 24, 3)):
        cut.dot(x, y, r, None, ink="#b9a98a", weight=1)
    stars(cut, 141, 50, 12)
    for x, high in ((4, 50), (16, 38), (132, 44), (120, 32), (26, 28)):
        scenery.pine(cut, x, 98, high, "p")
    cut.shape("24,107! 34,92 50,84 72,80 96,82 112,92 120,107!", "c", angle=60, gap=2.8, reach=0.5, width=1.3)
    cut.shape("34,92! 50,84 72,80 96,82 112,92! 98,90 88,94 72,88 60,93 48,90", "w", weight=1.1)
    wolf = ("92,8! 90,16 84,24! 91,26 88,32! 84,34 82,42 88,56 88,66 84,76 86,84! 78,85! 76,72 72,62! 70,72 72,85! 63,86! 62,74 58,64 54,70 56,84! 40,86! "
            "38,80 44,76! 40,66 42,54 50,46 58,40 62,28! 58,26 54,20! 62,20 66,16! 72,14 80,12!")
    cut.shape(wolf, "s", angle=16, gap=2.6, reach=0.36, width=1.3)
    cut.shape("40,70! 30,74 22,84 24,88! 32,86 42,80!", "s", angle=20, gap=2.4, reach=0.4, width=1.1)
    cut.shape("92,8! 86,12 78,18 76,24! 82,26 86,22 90,16!", "a", weight=1)
    cut.dot(91, 9, 1.8, "k", weight=0)
    cut.line(["72,17 76,16", "74,34 70,48 74,58", "62,36 58,48", "66,40 64,54", "80,40 80,50", "52,54 50,66"], 1.5)
    cut.shape("66,17! 60,8 58,2! 66,6 72,14!", "s", weight=1.2)
    for i in range(16):
        x, y = (i * 43 + 11) % 137 + 2, (i * 29 + 5) % 100 + 3
        cut.dot(x, y, 0.9, "w", weight=0)
    return cut


def imp_on_thistle(cut):
    cut.rope("48,110 47,92 49,78", 4.4, "m")
    for side in (-1, 1):
        cut.shape([(48 + side * u, v, k) for u, v, k in ((2, 106, True), (14, 100, False), (20, 92, True), (24, 94, True), (30, 84, True), (33, 87, True), (42, 76, True), (38, 92, False),
                                                        (28, 102, False), (12, 108, False))], "m", angle=20 * side, gap=2.4, reach=0.4, width=1.1)
    cut.shape("34,78 32,68 38,62! 58,62! 64,68 62,78 54,84 42,84", "m", angle=20, gap=2.4, reach=0.4, width=1.2)
    cut.line(["38,66 44,72 50,66 56,72 60,68", "35,74 41,79 48,74 55,79 61,75"], 1.5)
    cut.shape("38,63! 32,48! 40,54! 40,42! 46,52! 48,40! 51,52! 57,42! 57,54! 65,48! 58,63!", "v", angle=-90, gap=2.6, reach=0.4, width=1.2)
    wing = "4,-4! 16,-18 34,-24! 32,-14 36,-6! 28,-6 26,4! 18,0 12,6!"
    for flip in (False, True):
        with cut.at(48, 34, 1, 0, flip):
            cut.shape(wing, "e", angle=-30, gap=2.4, reach=0.4, width=1.1)
            cut.line(["5,-3 18,-12 33,-22", "8,0 20,-4 34,-6"], 1.3)
    cut.rope("56,48 70,52 76,44 70,38", 3, "h")
    cut.shape("70,42! 64,36 68,32! 72,32 76,36!", "h", weight=1.1)
    for side in (-1, 1):
        cut.rope([(48 + side * 5, 46, True), (48 + side * 15, 50, False), (48 + side * 13, 60, True)], 4.4, "h")
    cut.shape("40,32 48,28 56,32 57,44 52,52 44,52 39,44", "h", angle=15, gap=2.3, reach=0.4, width=1.1)
    cut.rope("41,36 31,40 30,30", 3.4, "h")
    cut.rope("55,36 66,40 68,28", 3.4, "h")
    cut.line(["68,34 70,8"], 2.2, ends="none")
    cut.shape("70,2! 74,10 70,13 67,10", "m", weight=1.1)
    cut.shape("33,20! 26,12! 36,12! 38,6 48,2 58,6 60,12! 70,12! 63,20! 60,28 52,34 44,34 36,28", "h", angle=12, gap=2.3, reach=0.35, width=1.1)
    cut.shape("40,7! 36,-2! 45,3!", "a", weight=1.1)
    cut.shape("56,7! 60,-2! 51,3!", "a", weight=1.1)
    for x in (42, 54):
        cut.dot(x, 16, 4, "a", 4.6, weight=1.1)
        cut.dot(x + 0.6, 17, 1.7, "k", weight=0)
    cut.shape("40,24! 48,27 56,24! 53,30 44,30", "k", weight=0.8)
    cut.shape("43,25.5! 46,26.5! 44.6,29!", "a", weight=0)
    cut.shape("50,26.5! 53,25.5! 51.6,29!", "a", weight=0)
    cut.line(["37,9 44,12", "59,9 52,12"], 1.8)


def thistle_imp():
    """An imp astride a thistle; 96 x 110."""
    cut = sheet()
    scenery.sky(cut, 96, 110, "#c9d9a0")
    scenery.rays(cut, 48, 46, 96, 110, "#b3c985", 28, 16, 0, 2.6)
    with cut.at(3, 8, 0.94):
        imp_on_thistle(cut)
    return cut


def marsh_gulper():
    """A great toad with its mouth open among the reeds; 141 x 107."""
    cut = sheet()
    scenery.sky(cut, 141, 60, "#b9c48a", "#d7dba8", 4, 0, 0.5)
    for x, high in ((12, 30), (30, 22), (116, 26), (132, 34)):
        scenery.bare_tree(cut, x, 56, high, "p")
    scenery.water(cut, 0, 141, 54, 107, "#5f7a54", "#a9bd7a", 5)
    cut.shape("14,98 10,80 18,62 30,50 34,36 44,30 54,36 70,32 86,36 97,30 107,36 111,50 123,62 131,80 127,98! 14,98!", "m", angle=12, gap=3, reach=0.25, width=1.5)
    cut.shape("24,66! 44,56 70,53 97,56 117,66! 122,84 108,97 70,101 33,97 19,84", "k")
    cut.shape("33,92 50,82 70,80 91,82 108,92 96,98 70,101 44,98", "h", angle=0, gap=2.6, reach=0.4, width=1.2)
    cut.line("70,82 70,98", 1.6)
    cut.shape("70,80! 62,74 66,62 78,58! 74,68 76,76!", "h", weight=1.2)
    for i, x in enumerate((28, 37, 47, 58, 70, 82, 93, 103, 112)):
        y = 66 - abs(x - 70) * -0.02 - (1 - abs(x - 70) / 45) * 11
        cut.shape(sharp([(x - 4, y + 1), (x + 4, y + 1), (x, y + 10)]), "a", weight=1)
    for x in (44, 97):
        cut.dot(x, 38, 10, "e", weight=1.4)
        cut.dot(x, 39, 8, None, 2.6, weight=0)
        cut.shape(ellipse(x, 39, 6.4, 2.4), "k", weight=0)
        cut.line([f"{x - 11},34 {x},27 {x + 11},34"], 2.2)
    for x, y, r in ((62, 42, 2.6), (74, 40, 2), (82, 45, 2.4), (26, 58, 2.4), (116, 60, 2.6), (20, 74, 2), (70, 47, 1.8)):
        cut.dot(x, y, r, "p", weight=1.1)
    for x, top, lean in ((6, 44, 4), (14, 60, -2), (128, 52, -4), (136, 40, 2), (22, 78, 3), (120, 76, -3)):
        cut.line(f"{x},107 {x + lean},{top + 20} {x + lean * 1.5},{top}", 2.4, "p", "end")
        cut.shape(ellipse(x + lean * 1.4, top + 8, 2.6, 8), "b", weight=1.1)
    return cut


def watcher():
    """One great eye in a fallen star, under a field of stars; 141 x 107."""
    cut = sheet()
    scenery.sky(cut, 141, 107, "n")
    stars(cut, 141, 70, 26, "g")
    cut.shape("141,0! 96,34! 104,40! 141,8!", "v", ink=None)
    cut.shape("141,2! 98,36! 102,38! 141,6!", "e", ink=None)
    cut.shape("0,107! 0,88! 20,84 36,76 52,90 70,94 90,90 106,76 122,84 141,88! 141,107!", "c", angle=0, gap=2.8, reach=0.25, width=1.3)
    scenery.rays(cut, 70, 58, 141, 90, "#4b6f96", 30, 36, 3, 2.2)
    cut.shape("70,18! 84,24 92,20! 96,36 108,44! 102,56 108,70! 94,76 88,90! 76,86 70,94! 62,86 52,90! 46,76 33,70! 38,56 32,44! 44,36 48,20! 58,24", "v",
              angle=28, gap=2.8, reach=0.36, width=1.4)
    cut.line(["70,22 66,30 70,36", "104,46 96,50 92,46", "38,46 46,50 50,48", "52,84 56,78 54,74", "90,84 86,78 88,74"], 1.7)
    cut.shape("36,57! 52,42 70,37 88,42 104,57! 88,71 70,76 52,71", "a", weight=1.6, angle=0, gap=2.6, reach=0.1, width=1.1)
    cut.dot(70, 56.5, 17, "f", weight=1.5)
    for a in range(0, 360, 20):
        x1, y1 = polar(8, a, 70, 56.5)
        x2, y2 = polar(16, a + 4, 70, 56.5)
        cut.line(f"{x1:.1f},{y1:.1f} {x2:.1f},{y2:.1f}", 1.6, "g")
    cut.shape(star(4, 14, 4, 70, 56.5), "k", weight=0)
    cut.dot(64, 49, 3, "a", weight=0)
    return cut


def healer():
    """A hooded woman with a lantern and herbs; 120 x 107."""
    cut = sheet()
    scenery.sky(cut, 120, 107, "#e8c98a", "#f4e2b4", 4, 0, 0.5)
    cut.dot(60, 44, 40, "#f4e2b4", ink=None)
    for x, high in ((6, 60), (20, 46), (114, 62), (102, 44)):
        scenery.pine(cut, x, 100, high, "p")
    cut.shape("60,8! 74,10 84,22 87,40 92,56 106,70 112,107! 8,107! 14,70 28,56 33,40 36,22 46,10", "f", angle=14, gap=3, reach=0.32, width=1.4)
    cut.shape("60,16! 70,18 76,28 77,42 74,54 66,62 60,64 54,62 46,54 43,42 44,28 50,18", "k", weight=1)
    cut.shape("60,22! 68,24 72,34 71,46 66,56 60,60 54,56 49,46 48,34 52,24", "t", angle=10, gap=2.4, reach=0.3, width=1.1)
    cut.shape("60,20! 70,24 73,36! 66,28 60,25 54,28 47,36! 50,24", "h", weight=1.1)
    cut.line(["51,38 54,36 57,38", "63,38 66,36 69,38", "60,40 58,48 62,48", "55,53 60,55 65,53"], 1.7)
    cut.dot(54, 40, 1.4, "k", weight=0)
    cut.dot(66, 40, 1.4, "k", weight=0)
    cut.shape("46,62! 60,70 74,62! 70,74 60,78 50,74", "e", weight=1.2)
    cut.line(["40,60 32,84 34,107", "80,60 88,84 86,107", "50,80 46,107", "70,80 74,107"], 2)
    with cut.at(24, 78):
        cut.line("0,-16 0,-6", 2, ends="none")
        cut.shape("-10,-4! 0,-10! 10,-4! 9,14! -9,14!", "e", weight=1.3)
        cut.shape("-6,-2! 6,-2! 5.4,11! -5.4,11!", "a", weight=1)
        flame(cut, 0, 10, 0.24)
        cut.shape("-11,14! 11,14! 9,18! -9,18!", "c", weight=1.2)
    cut.shape("20,64! 26,58 34,60 36,68 30,72 22,70", "t", weight=1.2)
    with cut.at(92, 76):
        for turn in (-34, -12, 10, 32):
            with cut.at(0, 10, 1, turn):
                cut.line("0,4 0,-24", 1.8, "p", "end")
                for y in (-6, -12, -18):
                    for side in (-1, 1):
                        cut.shape([(0, y, True), (side * 6, y - 6, False), (side * 8, y - 2, True), (side * 4, y + 1, False)], "m", weight=0.9)
                cut.dot(0, -24, 2.6, "e", weight=0.9)
        cut.shape("-10,10! -8,2 0,0 9,2 11,10 6,18 -4,18", "t", weight=1.2, angle=10, gap=2.4, reach=0.4, width=1)
    return cut


def mule():
    """A laden mule that will not go on; 141 x 92."""
    cut = sheet()
    scenery.sky(cut, 141, 70, "#efd9a6", "#f8ecca", 4, 0, 0.6)
    scenery.mountain(cut, 30, 12, 70, 40, "s", "w")
    scenery.mountain(cut, 112, 4, 70, 46, "s", "w")
    cut.shape("0,92! 0,66! 30,62 70,68 110,60 141,64! 141,92!", "m", angle=0, gap=3, reach=0.25, width=1.3)
    cut.shape("10,92! 40,80 80,78 120,84 132,92!", "#d9b878", weight=1.2)
    for x, foot, high in ((134, 68, 34), (122, 66, 22), (8, 70, 30)):
        scenery.pine(cut, x, foot, high, "p")
    for x in (54, 96):
        cut.shape(sharp([(x, 56), (x + 9, 56), (x + 7, 72), (x + 9, 84), (x + 1, 84), (x + 2, 72)]), "#5f4330", weight=1.2)
    cut.shape("40,50! 46,38 62,36 92,36 106,40 112,50 110,60 104,66! 100,70 104,84! 95,84! 92,70 86,64 68,64 62,70! 60,76 54,84! 46,84! 46,70 42,60", "b",
              angle=14, gap=2.8, reach=0.34, width=1.3)
    cut.rope("110,44 118,54 116,66", 2.6, "b")
    cut.shape("112,64! 120,64! 119,76 115,80 112,74!", "k", weight=0.8)
    cut.shape("48,52! 40,42 32,30! 24,32 14,38 10,36! 8,30 12,24 24,18 30,14! 38,14 44,20 54,32 60,40!", "b", angle=20, gap=2.6, reach=0.3, width=1.2)
    cut.shape("30,15! 24,4 24,-2! 31,2 36,13!", "b", weight=1.3)
    cut.shape("37,14! 36,2 40,-3! 44,4 42,17!", "b", weight=1.3)
    cut.shape("10,36! 8,30 12,25! 18,30 20,35 14,38!", "a", weight=1.1)
    cut.line(["12,34 18,33", "24,22 28,21 31,23", "40,18 48,26 56,38", "44,17 52,25"], 1.8)
    cut.dot(27, 24, 1.5, "k", weight=0)
    cut.line(["14,27 26,31 38,38 50,40", "22,33 26,22 34,15"], 1.8, "h", "none")
    cut.shape("60,44 56,32 60,22 72,18 86,20 92,28 92,44 84,52 68,52", "e", angle=12, gap=2.6, reach=0.4, width=1.2)
    cut.line(["58,30 74,34 92,30", "74,19 76,50"], 1.8)
    cut.shape("62,22! 66,10! 90,8! 92,20!", "h", angle=0, gap=2.4, reach=0.4, width=1.1)
    cut.line(["60,14 94,12"], 3.4, ends="none")
    cut.dot(96, 44, 7, "s", 8, weight=1.3, angle=10, gap=2.2, reach=0.5, width=1)
    cut.line("96,28 96,36", 2, ends="none")
    cut.dot(60, 58, 4, "a", weight=1.1)
    return cut


PICTURES = {  # name: width, height, drawing
    "dragon": (190, 140, cinderwing), "troll": (141, 107, bridge_troll), "shade": (110, 107, weeping_shade), "wolf": (141, 107, greymuzzle),
    "imp": (96, 110, thistle_imp), "gulper": (141, 107, marsh_gulper), "watcher": (141, 107, watcher), "healer": (120, 107, healer), "mule": (141, 92, mule),
}
