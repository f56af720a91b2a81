# SPDX-License-Identifier: GPL-3.0-or-later
"""Emblems of the default back and of the wide backs of character cards and large cards.

The wide ones are drawn round the origin, 125 to each side, 84 up and 80 down; the others as in emblems_realm.py.
"""

from emblems_lore import helm, rim, shield, spark, wing
from emblems_realm import sword
from woodcut import rectangle, sharp, star


SEA = "#2a6288"


def varnhelm_shield(cut):
    """The arms of the realm: three peaks and a star over the fjord, and a ship on it."""
    shield(cut, "h")
    cut.shape(star(8, 13, 5.5, 0, -40), "e", weight=1.2)
    cut.shape("-48,6! -34,-22! -24,-8! 0,-28! 20,-6! 33,-20! 48,4! 47,14! -47,14!", "a", weight=1.4, angle=60, gap=2.7, reach=0.42, width=1.3)
    cut.shape("-47,12! 47,12! 44,26 39,35 0,73! -39,35 -44,26", SEA, weight=1.4)
    cut.line(["-42,22 -30,19 -18,22", "20,21 30,18 42,21", "-34,36 -20,33 -8,37", "10,38 22,34 33,36", "-24,49 -10,46 4,50", "8,57 16,54 21,54", "-12,61 -2,59 6,63"], 2, "a")
    with cut.at(0, 24):
        cut.shape("-15,-22! 0,-25 15,-22! 18,-8 14,4! 0,1 -14,4! -18,-8", "e", weight=1.3, angle=0, gap=2.4, reach=0.4, width=1.1)
        cut.line(["0,-30 0,8"], 2, ends="none")
        cut.line(["-6,-24 -7,2", "6,-24 7,2"], 1.3)
        cut.shape("-28,-2! -26,6 -14,10 14,10 26,6 28,-4! 31,2 26,15 14,20 -14,20 -26,14 -32,2", "b", weight=1.4, angle=0, gap=2.3, reach=0.3, width=1.1)
        for x in (-15, -5, 5, 15):
            cut.dot(x, 12, 3.4, "e", weight=1.1)
    rim(cut)


def great_seal(cut):
    """The winged helm over the arms, two swords behind: the back of all cards without one of their own."""
    for flip in (False, True):
        with cut.at(0, 30, 1, 33, flip):
            with cut.at(0, -56, 0.9, 180):
                sword(cut, 134)
    with cut.at(0, -38, 0.8):
        cut.both(wing)
    with cut.at(0, 38, 0.84):
        varnhelm_shield(cut)
    with cut.at(0, -32, 0.8):
        helm(cut)
        cut.sym("0,-64! 6,-54! 0,-42!", "e", weight=1.3)
    for x, y, r in ((-34, 100, 4), (34, 100, 4), (0, -98, 5), (-19, -90, 4), (19, -90, 4), (-52, 20, 4), (52, 20, 4)):
        spark(cut, x, y, r, "e")


def staff(cut):
    """A staff with a crystal in its crook; the origin is its middle."""
    cut.shape(rectangle(-3, -46, 3, 82), "c", angle=0, gap=2.8, reach=0.5, width=1.1)
    for y in (-30, -22, 30, 38):
        cut.shape(rectangle(-4.6, y, 4.6, y + 4), "e", weight=1.2)
    cut.shape("-3,-44! -16,-48 -22,-60 -18,-74 -6,-82 8,-80! -2,-76 -11,-70 -12,-60 -7,-52 0,-49 7,-52 12,-60 10,-68! 18,-66 20,-56 14,-46 3,-43!", "e",
              angle=20, gap=2.5, reach=0.35, width=1.2)
    cut.shape(sharp([(0, -74), (7, -64), (0, -53), (-7, -64)]), "h", weight=1.3)
    cut.shape(sharp([(0, -74), (7, -64), (0, -64)]), "a", weight=0)


def sword_and_staff(cut):
    """The arms between the sword and the staff."""
    with cut.at(0, 2):
        varnhelm_shield(cut)
    with cut.at(-94, 42):
        sword(cut, 122, 22)
    with cut.at(94, 0):
        staff(cut)
    for x, y, r in ((-62, -66, 6), (62, -66, 6), (-118, -66, 6), (118, -66, 6), (-68, -30, 4), (68, -30, 4), (-118, -24, 4), (118, -24, 4)):
        spark(cut, x, y, r, "e")


def lion(cut):
    """A lion that rises, to the left; some 120 high."""
    cut.rope("14,34 32,40 44,26 36,8 38,-12 46,-22", 5, "e")
    cut.shape("44,-16! 36,-28 42,-40 52,-52! 52,-42 58,-46! 58,-32 52,-22!", "e", angle=20, gap=2.4, reach=0.4, width=1.1)
    cut.shape("0,22 4,38 -8,44 -14,48! -16,58! -30,60! -36,54 -30,48 -26,40 -20,30 -14,20", "e", angle=10, gap=2.5, reach=0.45, width=1.2)
    cut.shape("-8,-10 -24,-8 -32,-4! -44,-8! -51,0 -46,8 -34,8 -20,8 -6,8", "e", angle=80, gap=2.5, reach=0.4, width=1.2)
    cut.shape("-10,-34 6,-38 20,-24 20,-4 26,18 22,38 6,42 -6,28 -12,8 -18,-12", "e", angle=10, gap=2.6, reach=0.35, width=1.3)
    cut.shape("2,14 18,8 30,20 30,36 22,46! 18,52! 22,60! 20,68 -2,68! -7,62 2,57 4,48 -2,38 -4,26", "e", angle=10, gap=2.6, reach=0.4, width=1.3)
    cut.shape("-4,-26 -20,-32 -30,-42! -40,-50! -49,-44 -46,-34 -36,-28 -24,-16 -8,-10", "e", angle=80, gap=2.5, reach=0.4, width=1.2)
    cut.shape("-2,-74! 6,-66 16,-68! 16,-56 26,-52! 21,-42 28,-32! 18,-28 18,-16! 8,-20 2,-8! -4,-18 -14,-14! -14,-26 -20,-30! -16,-44 -22,-58! -10,-62", "b",
              angle=15, gap=2.4, reach=0.5, width=1.3)
    cut.shape("0,-66! -4,-60 -14,-62 -20,-56 -24,-50 -33,-48! -35,-43 -31,-40! -26,-39 -21,-37! -27,-33! -25,-28 -14,-27! -6,-32 2,-36 6,-46 6,-56", "e",
              angle=10, gap=2.4, reach=0.35, width=1.1)
    cut.shape("-20,-52! -14,-55 -10,-51! -15,-50", "a", weight=1.1)
    cut.dot(-15.4, -52, 1.4, "k", weight=0)
    cut.shape("-21,-37! -33,-36 -37,-32! -33,-31 -26,-34!", "h", weight=1)
    cut.shape("-33,-48! -35,-43 -31,-43!", "k", weight=0.6)
    cut.shape("2,-62! 8,-70 12,-62 6,-54!", "e", weight=1.2)
    cut.line(["-20,-56 -14,-58 -8,-55", "-26,-42 -20,-40 -14,-42", "-8,-48 -4,-42 -6,-34", "-6,-2 -2,8 0,20", "12,20 18,28 16,40", "-46,2 -40,2", "-44,-40 -38,-40", "-30,54 -24,54", "2,63 8,62"], 1.6)


def crowned_lions(cut):
    """Two lions that hold a crowned shield."""
    for flip in (False, True):
        with cut.at(77 if flip else -77, 12, 0.95, 0, not flip):
            lion(cut)
    with cut.at(0, 22, 0.74):
        varnhelm_shield(cut)
    with cut.at(0, -48):
        cut.sym("0,-34! 6,-14 12,-4! 22,-24! 24,-6 32,-4! 42,-22! 36,14! 0,10!", "e", angle=0, gap=2.5, reach=0.22, width=1.2)
        cut.sym("0,10! 20,10 37,14! 36,25! 18,21 0,21!", "h", angle=0, gap=2.3, reach=0.25, width=1.1)
        for x, y in ((0, 15), (14, 16), (-14, 16), (27, 18), (-27, 18)):
            cut.dot(x, y, 2.6, "a", weight=1.1)
        for x, y in ((0, -36), (22, -26), (-22, -26), (43, -24), (-43, -24)):
            cut.dot(x, y, 3.4, "a", weight=1.3)
    cut.line(["-116,82 -80,80 -50,83", "116,82 80,80 50,83"], 3, "e")


def oak_leaf(cut, x, y, size, turn, fill):
    half = "0,-30 6,-27 6,-20! 13,-18 13,-11! 18,-6 16,1! 18,7 10,12! 9,18 2,18! 1.4,28! 0,28!"
    with cut.at(x, y, size, turn):
        cut.sym(half, fill, angle=-30 + turn, gap=2.6, reach=0.4, width=1.1, weight=1.3)
        cut.line(["0,26 0,-20", "0,8 8,0", "0,8 -8,0", "0,-4 7,-12", "0,-4 -7,-12"], 1.4)


def acorn(cut, x, y, turn):
    with cut.at(x, y, 1, turn):
        cut.sym("0,14! 4,10 6,0! 0,0!", "e", angle=0, gap=2, reach=0.4, width=1, weight=1.3)
        cut.sym("0,-6 6,-4 8,2! 0,3!", "c", angle=0, gap=1.8, reach=0.4, width=1, weight=1.3)


def oak_branch(cut):
    """A branch of oak that rises to the right of the middle."""
    cut.rope("20,74 56,62 84,34 96,-4 92,-44", 4, "c")
    for x, y, size, turn in ((34, 58, 0.66, -28), (48, 78, 0.66, 112), (62, 40, 0.7, -30), (84, 62, 0.7, 110), (78, 10, 0.7, -38), (108, 30, 0.72, 92),
                             (80, -24, 0.66, -46), (116, -10, 0.7, 74), (110, -48, 0.66, 46), (88, -62, 0.7, -8)):
        oak_leaf(cut, x, y, size, turn, "b")
    acorn(cut, 100, 56, -40)
    acorn(cut, 66, 62, 20)
    acorn(cut, 74, -6, 60)


def oak_and_orb(cut):
    """The orb of the realm between two branches of oak."""
    cut.both(oak_branch)
    cut.shape(star(24, 62, 52, 0, 10, 7.5), "e", weight=1.2)
    cut.dot(0, 10, 48, "h", angle=24, gap=2.8, reach=0.34, width=1.5, bow=0.004)
    cut.shape("-48,6! -24,14 0,17 24,14 48,6! 47,18! 24,26 0,29 -24,26 -47,18!", "e", angle=0, gap=2.4, reach=0.2, width=1.2)
    cut.shape("-6,-38! 6,-38! 7,16! -7,16!", "e", angle=0, gap=2.4, reach=0.4, width=1.1)
    for x, y in ((-38, 16), (-20, 20), (20, 20), (38, 16), (0, -26), (0, -8)):
        cut.dot(x, y, 3, "a", weight=1.2)
    cut.shape(sharp([(0, 12), (8, 22), (0, 32), (-8, 22)]), "a", weight=1.3)
    cut.line(["-34,-8 -28,-20 -18,-28"], 3.6, "a")
    cut.sym("0,-46! 9,-46! 7,-37! 0,-37!", "e", weight=1.3)
    cut.shape(star(8, 24, 9.5, 0, -62), "e", weight=1.4)
    cut.dot(0, -62, 5, "a", weight=1.2)


def great_arms(cut):
    """The winged helm large, before crossed swords and axes; few colours, no shading but ink."""
    for flip in (False, True):
        with cut.at(0, 62, 1.15, 76, flip):
            sword(cut, 104, 17)
        with cut.at(0, 44, 1.05, 50, flip):
            cut.shape(rectangle(-3, -118, 3, 66), "c", angle=0, gap=2.8, reach=0.5, width=1.1)
            cut.shape("0,-106! 10,-108 26,-120! 31,-98 26,-76! 12,-86 0,-86!", "b", angle=0, gap=2.6, reach=0.35, width=1.2)
            cut.shape("0,-104! -10,-102! -16,-96! -10,-90! 0,-88!", "b", weight=1.3)
    with cut.at(0, -4, 1.3):
        cut.both(wing)
    with cut.at(0, 14, 1.42):
        helm(cut)
        cut.sym("0,-64! 6,-54! 0,-42!", "h", weight=1.3)
    for x, y in ((-114, 88), (114, 88), (-114, -84), (114, -84), (-72, 98), (72, 98)):
        spark(cut, x, y, 7, "e")
