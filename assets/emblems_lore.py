# SPDX-License-Identifier: GPL-3.0-or-later
"""Emblems of the card backs: magic, deeds, beings, and the plain shields.

See emblems_realm.py for their measures and colours.
"""

from emblems_realm import flame
from woodcut import ellipse, num, path_data, polar, rectangle, sharp, star, symmetric


def spark(cut, x, y, size, fill="h"):
    cut.shape(star(4, size, size * 0.28, x, y), fill, weight=1)


def spell(cut):
    """A raised hand with an eye in its palm, and flames at the finger tips."""
    for x, y, size in ((-33, -30, 0.34), (-17, -52, 0.4), (2, -60, 0.44), (20, -50, 0.4)):
        flame(cut, x, y + 4, size * 1.35)
    hand = ("-24,52! -28,34 -36,18 -40,-6 -39,-26 -34,-31 -29,-27 -27,-6 -24,4! -23,-20 -24,-42 -18,-49 -12,-43 -10,-14 -8,-4! "
            "-6,-28 -6,-50 1,-57 8,-50 8,-26 8,-4! 11,-18 12,-40 18,-47 25,-41 25,-16 23,12! 32,2 42,-6 49,-3 46,8 36,24 28,40 24,52!")
    cut.shape(hand, "a", angle=20, gap=2.8, reach=0.24, width=1.4)
    cut.line(["-35,-16 -32,-14 -29,-16", "-20,-32 -17,-30 -13,-32", "-2,-38 1,-36 5,-38", "15,-30 19,-28 23,-30", "-27,34 -20,40 -12,40",
              "24,14 20,20 20,28"], 1.6)
    cut.shape("-22,16! -10,5 1,2 12,5 22,16! 12,25 0,28 -12,25", "e", weight=1.4)
    cut.dot(0, 15.5, 9.4, "h", weight=1.3)
    cut.dot(0, 15.5, 4.6, "k", weight=0)
    cut.dot(-2.6, 12.6, 1.7, "a", weight=0)
    cut.line([f"{polar(15, t, 0, 15)[0]:.1f},{polar(13, t, 0, 15)[1]:.1f} {polar(22, t, 0, 15)[0]:.1f},{polar(18, t, 0, 15)[1]:.1f}" for t in (-40, -14, 14, 40)], 1.6)
    cut.sym("0,50! 26,50! 29,60! 0,62!", "h", angle=0, gap=2.2, reach=0.4, width=1)
    cut.sym("0,61! 27,60! 36,82! 0,84!", "c", angle=80, gap=3, reach=0.5, width=1.3)
    for x, y, r in ((-46, -52, 6), (42, -36, 6), (-48, 26, 5), (46, 36, 5), (37, -64, 4), (-34, -74, 4)):
        spark(cut, x, y, r)


def wing(cut):
    """A wing of the helm, to the right."""
    feathers = ("16,-4! 20,-26 32,-52 46,-82! 48,-66 46,-58! 52,-66 55,-70! 55,-54 50,-45! 56,-50! 53,-34 47,-28! 53,-31! 47,-16 41,-12! 46,-13! 38,2 24,8!")
    cut.shape(feathers, "a", angle=-62, gap=3, reach=0.3, width=1.4)
    cut.line(["20,-6 28,-30 42,-58", "24,-4 34,-24 47,-42", "25,0 36,-14 45,-25", "27,4 36,-4 42,-10"], 1.8)


def helm(cut):
    """A horseman's helm with its visor down."""
    cut.sym("0,-46! 14,-44 30,-30 34,-6! 33,22 24,40 6,54! 0,56!", "b", angle=0, gap=2.7, reach=0.42, width=1.5, bow=0.003)
    cut.sym("0,-50! 4,-48! 4.5,48! 0,60!", "e", angle=0, gap=2.4, reach=0.5, width=1.1)
    cut.sym("0,-9! 20,-6 36,-12! 37,-3! 20,3 0,0!", "e", angle=0, gap=2.2, reach=0.25, width=1.1)
    cut.both(lambda c: c.shape("7,5! 16,5 28,1! 27,8! 16,13 7,13!", "k", weight=0))
    for x in (10, 17, 24):
        cut.both(lambda c, x=x: c.line(f"{x},22 {x - 1},{45 - x * 0.6:.1f}", 2.6, ends="none"))
    cut.both(lambda c: c.line("6,-40 20,-32 28,-14", 1.5))
    for x, y in ((28, -18), (29, 14), (22, 34)):
        cut.both(lambda c, x=x, y=y: c.dot(x, y, 1.6, "k", weight=0))


def varnhelm(cut):
    """The winged helm of the realm over two crossed axes."""
    for flip in (False, True):
        with cut.at(0, 40, 1, 32, flip):
            cut.shape(rectangle(-2.8, -30, 2.8, 58), "c", angle=0, gap=2.6, reach=0.5, width=1.1)
            cut.shape("0,50! 8,48 22,38! 26,52 23,68! 12,60 0,60!", "a", angle=0, gap=2.6, reach=0.35, width=1.2)
    cut.both(wing)
    with cut.at(0, 6, 1.02):
        helm(cut)
    cut.sym("0,-64! 6,-54! 0,-42!", "h", weight=1.3)


def hourglass(cut, sand="e"):
    cut.sym("0,-58! 26,-58! 26,-40 16,-18 5,-4! 5,4! 16,18 26,40 26,58! 0,58!", "c", weight=1.6)
    cut.sym("0,-24 12,-22 17,-26! 10,-14 2,-3! 0,-3!", sand, ink=None)
    cut.sym("0,26! 8,36 22,44! 24,56! 0,56!", sand, ink=None, angle=0, gap=2.4, reach=0.5, width=1.1)
    cut.line("0,-6 0,28", 2.4, sand, ends="none")
    cut.line(["-20,-52 -20,-38 -12,-20", "-20,52 -20,42 -14,28"], 3, "a")
    for x in (-33, 33):
        cut.shape(symmetric_about(x, "0,-58! 3,-58! 2.4,-30 5,-8 6,0 5,8 2.4,30 3,58! 0,58!"), "b", angle=0, gap=2.4, reach=0.5, width=1)
    for y in (-64, 64):
        cut.sym(f"0,{y - 7}! 38,{y - 7}! 41,{y} 38,{y + 7}! 0,{y + 7}!", "b", angle=0, gap=2.2, reach=0.3, width=1.1)
        cut.sym(f"0,{y - 1.6}! 34,{y - 1.6}! 34,{y + 1.6}! 0,{y + 1.6}!", "h", weight=1)


def symmetric_about(x, half):
    return [(x + u, v, c) for u, v, c in symmetric(half)]


def timescape(cut):
    """An hourglass within the paths of two stars."""
    for turn in (-28, 28):
        cut.shape(ellipse(0, 0, 56, 20, turn), None, weight=4.4)
        cut.shape(ellipse(0, 0, 56, 20, turn), None, ink="e", weight=2.2)
    with cut.at(0, 0, 1.02):
        hourglass(cut)
    for turn, side in ((-28, 1), (28, -1)):
        x, y = polar(52, turn + 90 * side)
        cut.dot(x, y, 6, "h", weight=1.4)
    for x, y, r in ((-46, -58, 6), (48, -54, 5), (-48, 54, 5), (46, 60, 6), (-30, -80, 4), (34, -82, 4)):
        spark(cut, x, y, r, "a")


def star_coin(cut):
    """A great coin of the star folk, with smaller ones about it."""
    cut.shape(star(20, 58, 47, 0, -8, 9), "h", weight=1.3)
    cut.dot(0, -8, 47, "e", angle=30, gap=2.8, reach=0.2, width=1.4)
    cut.dot(0, -8, 39, "b", weight=1.3)
    for i in range(30):
        x, y = polar(43, i * 12, 0, -8)
        cut.dot(x, y, 1.3, "k", weight=0)
    with cut.at(0, -8, 0.5):
        hourglass(cut, "e")
    for x, y in ((-28, -8), (28, -8)):
        spark(cut, x, y, 8, "a")
    for x, y, count in ((-34, 76, 4), (0, 80, 3), (34, 76, 5)):
        for i in range(count):
            cut.dot(x, y - i * 5, 15, "e", 5.4, weight=1.4, angle=0, gap=1.9, reach=0.3, width=0.9)
        cut.dot(x, y - (count - 1) * 5, 8, "h", 2.6, weight=1)


def seal(cut, x, y, r):
    """A seal of wax with a crown pressed into it."""
    rim = [polar(r * (1 + 0.07 * (-1) ** i), i * 30, x, y) + (False,) for i in range(12)]
    cut.shape(rim, "e", angle=30, gap=2.4, reach=0.3, width=1.3)
    cut.dot(x, y, r * 0.7, "h", weight=1.3)
    with cut.at(x, y + 1, r / 26):
        cut.sym("0,-11! 3,-2 8,2! 12,-8! 12,9! 0,9!", "e", weight=1.2)
        cut.line("-12,5 12,5", 1.3, ends="none")


def text_lines(cut, rows, left, right):
    cut.line([f"{left + (i % 3) * 1.5},{y} {right - (i * 7) % 12},{y}" for i, y in enumerate(rows)], 1.8, ends="both")


def warrant(cut):
    """A writ with the king's seal."""
    for side in (-1, 1):
        cut.shape([(side * 2, 30, True), (side * 14, 32, True), (side * 24, 82, True), (side * 14, 75, True), (side * 4, 82, True)], "h",
                  angle=80, gap=2.6, reach=0.4, width=1.2)
    cut.shape("-42,-66! -38,-40 -43,-10 -39,22 -42,46! -20,43 4,47 24,43 42,46! 38,20 43,-10 39,-42 42,-66!", "a", angle=0, gap=3.2, reach=0.12, width=1.3)
    for y in (-66, 46):
        cut.shape(sharp([(-46, y - 8), (46, y - 8), (46, y + 8), (-46, y + 8)]), "b", angle=0, gap=2.4, reach=0.3, width=1.2)
        for x in (-50, 50):
            cut.dot(x, y, 5.5, "c", 9, weight=1.4)
    cut.sym("0,-50! 5,-42 12,-38! 18,-48! 20,-34! 0,-34!", "h", weight=1.3)
    text_lines(cut, (-25, -18, -11, -4), -30, 32)
    seal(cut, 0, 28, 26)


def faeries(cut):
    """A winged maid who rises from a blossom."""
    upper = "3,-24! 12,-46 30,-66 50,-74 54,-58 48,-36 34,-18 14,-12!"
    lower = "5,-10! 22,-10 40,-2 46,12 38,28 24,26 12,8!"

    def wings(c):
        c.shape(lower, "h", angle=-35, gap=2.8, reach=0.35, width=1.2)
        c.dot(32, 13, 5.5, "a", 7, -30, weight=1.2)
        c.shape(upper, "a", angle=-40, gap=2.8, reach=0.3, width=1.3)
        c.shape("20,-32 34,-52 46,-60 44,-46 34,-32", "e", weight=1.2)
        c.dot(40, -51, 3.2, "h", weight=1)
        c.line(["6,-22 22,-28 40,-26", "5,-24 16,-44 26,-58", "10,-8 24,0 30,6"], 1.5)
    cut.both(wings)
    cut.shape("-4,-26! -8,-14 -6,-4 -12,16 -16,44 -6,50 8,50 17,42 12,16 6,-4 8,-14 4,-26!", "b", angle=10, gap=2.5, reach=0.42, width=1.3)
    cut.line(["-2,0 -5,20 -8,42", "2,0 4,20 6,44"], 1.5)
    cut.both(lambda c: c.rope("6,-20 16,-6 11,6", 3, "a", weight=1.2))
    cut.shape("-10,-34 -12,-46 -4,-55 6,-54 12,-44 10,-30 15,-16! 6,-22 -8,-22 -14,-14!", "e", angle=20, gap=2.2, reach=0.35, width=1.1)
    cut.dot(0, -37, 7.6, "a", 9.4, weight=1.3)
    cut.shape("-9,-40! -4,-48 6,-48 9,-38! 4,-44 -3,-44", "e", weight=1.1)
    cut.line(["-4,-37 -2,-38 -1,-37", "2,-37 3,-38 5,-37", "-2,-32 0,-31 3,-32"], 1.2)
    for fill, scale in (("h", 1.0), ("e", 0.7)):
        with cut.at(0, 78, scale):
            cut.both(lambda c: c.shape("0,0! 14,-4 34,-18 44,-38! 28,-34 12,-24 4,-12", fill, angle=-30, gap=2.6, reach=0.4, width=1.2))
    cut.sym("0,44! 7,54 6,70 0,80!", "h", angle=0, gap=2.4, reach=0.5, width=1.1)
    for x, y, r in ((-40, 60, 4), (46, 66, 4), (-50, 34, 5), (50, 26, 4), (-26, -78, 4), (24, -80, 4), (0, -72, 5)):
        spark(cut, x, y, r, "a")


def cauldron(cut):
    """A cauldron over its fire; something rises from it."""
    steam = ("-20,-14! -34,-26 -30,-42 -18,-50 -22,-62 -10,-78 6,-80 18,-72 14,-64! 6,-68 -2,-64 4,-52 18,-50 30,-38 26,-22 14,-14!")
    cut.shape(steam, "h", angle=-75, gap=3.2, reach=0.35, width=1.3)
    cut.line(["-18,-20 -24,-32 -14,-42 -2,-38", "6,-18 16,-26 14,-38 4,-44", "-12,-56 -4,-66 6,-74"], 1.9)
    cut.both(lambda c: c.shape("-9,-33 -4,-36 -2,-31 -6,-28", "k", weight=0))
    for x, y, r in ((-40, -40, 5), (38, -46, 6), (42, -62, 3.4), (-34, -60, 3), (32, -76, 4), (-42, -74, 4)):
        cut.dot(x, y, r, "e", weight=1.3)
        cut.dot(x - r * 0.3, y - r * 0.3, r * 0.28, "a", weight=0)
    for x, size in ((-40, 0.9), (42, 0.86), (-20, 0.9), (22, 0.86), (0, 0.8)):
        flame(cut, x, 84, size, inner="#ffe066")
    cut.sym("0,-8! 44,-8! 40,0 50,20 46,42 28,60 0,64", "b", angle=0, gap=2.8, reach=0.42, width=1.6, bow=0.002)
    cut.both(lambda c: c.rope("44,8 56,10 55,24 49,26", 3, "c"))
    cut.both(lambda c: c.shape("24,58! 36,50! 42,80! 34,80!", "b", angle=0, gap=2.4, reach=0.5, width=1.1))
    cut.line(["-38,14 -38,34 -26,48", "-31,10 -32,26"], 2.4, "a")
    cut.dot(0, -9, 47, "c", 8.5, weight=1.7)
    cut.dot(0, -10, 40, "h", 5.6, weight=1.2)
    for x, y, r in ((-20, -11, 5), (10, -12, 6), (26, -10, 3.6), (-6, -9, 3)):
        cut.dot(x, y, r, "e", r * 0.8, weight=1.1)
    cut.sym("0,22! 6,22 12,26 9,34 4,36 3,42! 0,42!", "a", weight=1.3)
    cut.both(lambda c: c.dot(4.6, 29, 2.4, "k", weight=0))


def contract(cut):
    """A signed leaf, and the quill that signed it."""
    cut.shape("-46,-34! -20,-40 6,-34 30,-40! 33,-4 28,34 33,66! 6,71 -18,65 -43,70! -47,36 -42,0", "a", angle=0, gap=3.2, reach=0.12, width=1.3)
    cut.shape("-43,70! -47,58 -38,52 -30,58 -32,67!", "b", weight=1.3, angle=0, gap=2.2, reach=0.4, width=1)
    text_lines(cut, (-24, -16, -8, 0, 8), -34, 10)
    cut.line("-34,38 -28,28 -24,40 -18,30 -14,40 -6,34 2,40 8,34", 2)
    with cut.at(2, 34, 1, 26):
        cut.shape("0,2! -3,-14 -14,-30 -18,-56 -10,-84 4,-112! 8,-104 8,-98! 14,-100! 18,-76 16,-60! 21,-63! 18,-40 8,-22 3,-12", "h",
                  angle=-32, gap=2.7, reach=0.42, width=1.3)
        cut.line("0,6 0,-40 4,-104", 2.4, "a", ends="start")
        cut.line(["0,-30 -9,-44", "0,-44 -11,-60", "1,-58 -9,-76", "1,-36 10,-48", "2,-52 11,-66", "3,-68 11,-82"], 1.4)
        cut.shape("-2.4,0! 2.4,0! 0,14!", "k", weight=0.6)
    for side in (-1, 1):
        cut.shape([(38 + side * 1, 56, True), (38 + side * 7, 57, True), (38 + side * 10, 82, True), (38 + side * 5, 78, True), (38, 82, True)], "e", weight=1.3)
    seal(cut, 38, 52, 13)


OUTER = "0,-63! 56,-69! 56,-4 45,41 0,84! -45,41 -56,-4 -56,-69!"
FIELD = "0,-55! 48,-60! 48,-4 39,35 0,73! -39,35 -48,-4 -48,-60!"
DEXTER = "0,-55! 0,73! -39,35 -48,-4 -48,-60!"


def shield(cut, fill):
    cut.shape(FIELD, fill, weight=1.6)


def rim(cut):
    """The rim of a shield, over whatever ran past the field."""
    outer, inner = path_data(cut.placed(OUTER)), path_data(cut.placed(FIELD))
    cut.raw(f'<path d="{outer}{inner}" fill="{cut.colour("b")}" fill-rule="evenodd" stroke="{cut.colour("k")}" stroke-width="1.6" stroke-linejoin="round"/>')
    cut.line(["54,-60 54,-6 44,36", "51.5,-56 51.5,-4 42,36 30,54", "40,48 24,66 6,79", "54,0 47,30 34,54"], 2)


def arms_chevrons(cut):
    """Two chevrons between three roundels, the field divided per pale."""
    shield(cut, "e")
    cut.shape(DEXTER, "a", angle=0, gap=3.4, reach=0.1, width=1.2)
    for y in (-2, 26):
        inset = 49 if y < 10 else 40
        cut.shape(sharp([(0, y - 22), (inset, y - 22 + inset * 0.76), (inset - 3, y - 6 + inset * 0.7), (0, y - 6)]), "a", weight=1.4, angle=0, gap=2.6, reach=0.3, width=1.1)
        cut.shape(sharp([(0, y - 22), (-inset, y - 22 + inset * 0.76), (-inset + 3, y - 6 + inset * 0.7), (0, y - 6)]), "e", weight=1.4, angle=0, gap=2.6, reach=0.3, width=1.1)
    for x, y, fill in ((-25, -36, "e"), (25, -36, "a"), (0, 52, "h")):
        cut.dot(x, y, 10, fill, angle=25, gap=2.2, reach=0.4, width=1.1)
    rim(cut)


def arms_lozenge(cut):
    """A lozenge, quarterly, with a saltire over all."""
    cut.shape(sharp([(0, -82), (57, 0), (0, 82), (-57, 0)]), "b", angle=0, gap=2.8, reach=0.1, width=1.2)
    cut.shape(sharp([(0, -70), (48, 0), (0, 70), (-48, 0)]), "a")
    cut.shape(sharp([(0, -70), (48, 0), (0, 0)]), "e", angle=0, gap=2.8, reach=0.3, width=1.2)
    cut.shape(sharp([(0, 70), (-48, 0), (0, 0)]), "e", angle=0, gap=2.8, reach=0.3, width=1.2)
    for x1, y1, x2, y2 in ((-30, -40, 24, 28), (30, -40, -24, 28)):
        dx = 5.5 if x1 < 0 else -5.5
        cut.shape(sharp([(x1 * 0.93 + dx, -35 - 4.5), (x1 * 0.93 - dx, -35 + 4.5), (-x1 * 0.93 - dx, 35 + 4.5), (-x1 * 0.93 + dx, 35 - 4.5)]), "h",
                  weight=1.4, angle=60, gap=2.6, reach=0.3, width=1.1)
    cut.dot(0, 0, 15, "h", angle=25, gap=2.4, reach=0.35, width=1.2)
    cut.shape(star(6, 11, 5), "a", weight=1.2)
    for x, y in ((0, -46), (0, 46), (31, 0), (-31, 0)):
        cut.dot(x, y, 5, "h" if y == 0 else "a", weight=1.3)


def arms_fess(cut):
    """A fess embattled between three crescents."""
    shield(cut, "e")
    edge = []
    for i in range(7):
        x = -48 + i * 96 / 7
        y = -10 if i % 2 == 0 else -20
        edge += [(x, y), (x + 96 / 7, y)]
    low = [(45.5, 16), (-45.5, 16)]
    cut.shape(sharp(edge + low), "a", angle=0, gap=2.8, reach=0.2, width=1.2)
    for x, y in ((-24, -38), (24, -38), (0, 42)):
        cut.shape([(x - 12, y - 8, True), (x - 9, y + 2, False), (x, y + 6, False), (x + 9, y + 2, False), (x + 12, y - 8, True),
                   (x + 12, y + 6, False), (x, y + 14, False), (x - 12, y + 6, False)], "h", angle=0, gap=2.2, reach=0.3, width=1.1)
    rim(cut)


def arms_wavy(cut):
    """Barry wavy, a bend over all with three lozenges."""
    shield(cut, "e")
    for y, half in ((-48, 48), (-22, 48), (4, 47), (30, 41)):
        top = [(-half + i * half / 3, y + (4 if i % 2 else -3), False) for i in range(7)]
        foot = [(half - (2.5 if y > 0 else 0) - i * (half - 2) / 3, y + 13 + (4 if i % 2 else -3), False) for i in range(7)]
        top[0], top[-1] = top[0][:2] + (True,), top[-1][:2] + (True,)
        foot[0], foot[-1] = foot[0][:2] + (True,), foot[-1][:2] + (True,)
        cut.shape(top + foot, "a", weight=1.3, angle=0, gap=2.4, reach=0.2, width=1.1)
    cut.shape(sharp([(-48, -60), (-28, -58), (44, 20), (36, 38), (-48, -42)]), "h", angle=0, gap=2.6, reach=0.3, width=1.2)
    for x, y in ((-27, -37), (0, -8), (26, 20)):
        cut.shape(sharp([(x, y - 9), (x + 7, y), (x, y + 9), (x - 7, y)]), "a", weight=1.3)
    rim(cut)


def transformations(cut):
    """A serpent that bites its tail about the sun and the moon."""
    cut.shape(ellipse(0, 2, 46), None, weight=17)
    cut.shape(ellipse(0, 2, 46), None, ink="b", weight=14)
    scales = []
    for i in range(0, 36):
        if 33 < i or i < 1:
            continue
        x1, y1 = polar(53, i * 10, 0, 2)
        x2, y2 = polar(45, i * 10 + 6, 0, 2)
        x3, y3 = polar(39, i * 10, 0, 2)
        scales += [f"{num(x1)},{num(y1)} {num(x2)},{num(y2)} {num(x3)},{num(y3)}"]
    cut.line(scales, 1.7)
    cut.shape(ellipse(0, 2, 39.4), None, ink="a", weight=1.6)
    cut.shape("30,-52! 14,-66 -6,-66 -20,-54 -32,-44! -24,-44 -14,-46! -22,-38 -27,-32! -12,-32 8,-36 26,-34!", "b", angle=12, gap=2.6, reach=0.36, width=1.3)
    cut.dot(-2, -53, 4.4, "h", weight=1.4)
    cut.line("-2,-56.5 -2,-49.5", 2, ends="both")
    cut.shape("-30,-42! -42,-38! -47,-32! -41,-34! -42,-27! -37,-34 -26,-37!", "h", weight=1)
    cut.line(["6,-62 16,-58 24,-50", "-16,-55 -12,-59 -6,-61"], 1.6)
    with cut.at(0, 2):
        cut.shape(star(16, 34, 25), "e", weight=1.2)
        cut.dot(0, 0, 23, "h", weight=1.5)
        cut.shape("0,-23! 13,-19 23,0 13,19 0,23! -5,12 3,4 -4,-6", "c", weight=1.4, angle=0, gap=2.5, reach=0.6, width=1.2)
        cut.line(["-13,-5 -9,-8 -5,-5", "6,-5 10,-8 14,-5", "-9,9 -2,13 8,9"], 2)
        cut.line("1,-6 -4,3 2,5", 1.7)
    spark(cut, 0, 76, 7, "e")
    for x, y in ((-30, 68), (30, 68), (-46, -66), (46, -62)):
        spark(cut, x, y, 5, "e")


def troll(cut):
    """The face of a troll."""
    cut.sym("0,-70! 8,-84! 14,-68! 24,-80! 28,-62! 40,-68! 38,-48! 50,-46! 40,-24! 0,-20!", "c", angle=-70, gap=3.4, reach=0.4, width=1.5)
    cut.both(lambda c: c.shape("36,-26! 46,-38 57,-44! 56,-26 50,-8 38,2!", "b", angle=10, gap=2.6, reach=0.4, width=1.3))
    cut.both(lambda c: c.line("42,-22 50,-30 52,-34", 1.8))
    cut.sym("0,-58 22,-56 38,-40 42,-14 40,16 44,36 36,62 18,78 0,80", "b", angle=10, gap=3, reach=0.3, width=1.6)
    cut.both(lambda c: c.shape("3,-16! 16,-26 34,-28 40,-22! 30,-18 16,-10 6,-6!", "c", angle=0, gap=2.2, reach=0.4, width=1.1))
    cut.both(lambda c: c.shape("9,-6! 18,-12 30,-14! 28,-6 18,-1", "h", weight=1.4))
    cut.both(lambda c: c.dot(19, -8, 3, "k", weight=0))
    cut.sym("0,-16 7,-10 9,8 21,18 22,29 12,34 0,34", "b", angle=8, gap=2.6, reach=0.45, width=1.4)
    cut.both(lambda c: c.dot(10, 27, 4.6, "k", 3.2, weight=0))
    cut.sym("0,42! 16,40 34,44! 32,54 20,62 0,63", "k", weight=1)
    cut.both(lambda c: c.shape("15,58! 17,40 24,24! 29,40 27,57!", "a", angle=0, gap=2.4, reach=0.4, width=1.1))
    for x in (-8, 0, 8):
        cut.shape(sharp([(x - 3.6, 42), (x + 3.6, 42), (x + 2.4, 50), (x - 2.4, 50)]), "a", weight=1)
    cut.line(["-26,-42 0,-38 26,-42", "-20,-48 0,-45 20,-48", "-36,6 -28,14 -30,28", "36,6 28,14 30,28", "-12,70 0,72 12,70", "-4,-30 -2,-22", "4,-30 2,-22"], 2)
    for x, y in ((-33, 48), (34, 40), (-26, -30)):
        cut.dot(x, y, 3, "b", weight=1.3)
    cut.both(lambda c: c.dot(51, -12, 5, None, 6, ink="h", weight=2.2))


def chest(cut):
    """An open chest, heaped."""
    cut.shape("-48,-2! -52,-34 -44,-58 -20,-68 20,-68 44,-58 52,-34 48,-2!", "c", angle=0, gap=2.8, reach=0.2, width=1.4)
    cut.shape("-40,-4! -43,-32 -36,-50 -16,-58 16,-58 36,-50 43,-32 40,-4!", "k", weight=1)
    cut.both(lambda c: c.shape("24,-68! 32,-66! 35,-52! 27,-56!", "h", weight=1.2))
    cut.shape("-44,8! -38,-12 -22,-18 -14,-34 2,-38 14,-28 26,-26 34,-12 44,8!", "e", angle=-60, gap=3, reach=0.25, width=1.2)
    for x, y, t in ((-26, -6, -10), (-10, -22, 8), (8, -26, -6), (24, -14, 12), (2, -6, 0), (-14, -6, 14), (16, -2, -8), (34, -2, 10), (-36, 2, -12)):
        cut.dot(x, y, 8, "e", 4.2, t, weight=1.3, angle=t, gap=1.9, reach=0.3, width=0.9)
        cut.dot(x, y, 4, None, 2, t, weight=0.8)
    cut.shape("-12,-31! 4,-27 20,-32! 25,-53! 14,-42! 6,-60! -2,-42! -15,-52!", "a", weight=1.4, angle=0, gap=2.2, reach=0.3, width=1)
    for x, y in ((6, -61), (25, -54), (-15, -53)):
        cut.dot(x, y, 2.6, "h", weight=1)
    cut.rope("24,-18 36,-8 42,6 38,14", 2.6, "a", weight=1.2)
    cut.shape(sharp([(-52, 8), (52, 8), (48, 76), (-48, 76)]), "b", angle=0, gap=3.1, reach=0.3, width=1.4)
    cut.line(["-50,30 50,30", "-49,53 49,53"], 2, ends="none")
    for x in (-44, 36):
        cut.shape(sharp([(x - 3, 8), (x + 11, 8), (x + 10, 76), (x - 2, 76)]), "c", angle=0, gap=2.4, reach=0.5, width=1.1)
        for y in (20, 42, 64):
            cut.dot(x + 4, y, 2, "a", weight=1)
    cut.shape(sharp([(-55, 4), (55, 4), (55, 15), (-55, 15)]), "c", angle=0, gap=2.4, reach=0.2, width=1.1)
    cut.sym("0,2! 14,2! 15,24 9,38 0,42!", "e", angle=0, gap=2.4, reach=0.3, width=1.2)
    cut.dot(0, 17, 4.6, "k", weight=0)
    cut.shape(sharp([(-2, 18), (2, 18), (4, 32), (-4, 32)]), "k", weight=0)


def arc(radius, start, end):
    steps = max(2, int((end - start) / 15))
    return [polar(radius, start + (end - start) * i / steps) + (False,) for i in range(steps + 1)]


def maze(cut):
    """A round maze; an eye waits in the middle, a flame above."""
    with cut.at(0, 14):
        cut.dot(0, 0, 57, "c", weight=1.6)
        walls = [arc(r, s, e) for r, s, e in ((53, 12, 348), (43.5, -150, -12), (43.5, 14, 168), (34, -100, 60), (34, 84, 236),
                                                          (24.5, -30, 130), (24.5, 156, 304), (15, 24, 336))]
        spokes = [(43.5, 53, -12), (34, 43.5, -150), (24.5, 34, 84), (15, 24.5, 156), (34, 43.5, 60), (24.5, 34, -30), (43.5, 53, 128), (15, 24.5, 24)]
        walls += [[polar(a, t) + (True,), polar(b, t) + (True,)] for a, b, t in spokes]
        for width, colour in ((7, "k"), (4.4, "a")):
            for wall in walls:
                cut.rope(wall, width, colour, weight=0)
        cut.shape("-11,0! 0,-7 11,0! 0,7", "e", weight=1.3)
        cut.dot(0, 0, 3.4, "k", weight=0)
    with cut.at(0, -40):
        flame(cut, 0, 0, 0.92)
    cut.sym("0,-40! 10,-42 15,-38! 8,-32 6,-26! 0,-26!", "b", angle=0, gap=2.2, reach=0.4, width=1)
    for x, y, r in ((-40, -62, 6), (40, -62, 6), (-24, -80, 4), (24, -80, 4), (-52, -42, 4), (52, -42, 4)):
        spark(cut, x, y, r, "e")


def blank(cut):
    """Nothing: a back to write on."""
