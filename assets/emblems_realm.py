# SPDX-License-Identifier: GPL-3.0-or-later
"""Emblems of the card backs: the land, its towns and its waters.

An emblem is drawn round the origin, 52 to each side, 84 up and 80 down. Colours: a, b, c the light, middle and
deep tone, e and h the accents, k the ink, f the field.
"""

from woodcut import polar, rectangle, sharp, star

FOOT = 112  # as deep as the ground goes, behind the ribbon


def facet(cut, length, half, turn):
    """One point of a compass rose, half of it in shadow."""
    tip, left, right = polar(length, turn), polar(half, turn - 45), polar(half, turn + 45)
    cut.shape(sharp([tip, left, (0, 0)]), "a")
    cut.shape(sharp([tip, right, (0, 0)]), "b", angle=turn, gap=2.4, reach=0.8, width=1.1)


def sword(cut, length, guard=19):
    """A sword with its point up; the origin is where blade and guard meet."""
    cut.shape(sharp([(0, -length), (5, -length + 10), (5.4, 0), (-5.4, 0), (-5, -length + 10)]), "a")
    cut.shape(sharp([(0, -length), (5, -length + 10), (5.4, 0), (0.6, 0)]), "b", weight=0, angle=0, gap=3, reach=0.8, width=1.1)
    cut.line(f"0,{-length + 14} 0,-2", 1.6, ends="none")
    cut.sym(f"0,-3! 7,-2 {guard - 4},-3 {guard + 3},-8! {guard + 4},0 {guard - 3},5 8,4 0,5!", "e", angle=0, gap=2, reach=0.35, width=1)
    cut.shape(rectangle(-3.4, 4.5, 3.4, 22), "h")
    cut.line(["-3.4,9 3.4,7", "-3.4,13 3.4,11", "-3.4,17 3.4,15", "-3.4,21 3.4,19"], 1.1, ends="none")
    cut.dot(0, 27, 5.6, "e", angle=30, gap=2, reach=0.45, width=1)


def adventure(cut):
    """A compass rose on a sword: the road, and what is met on it."""
    with cut.at(0, 48, turn=0):
        sword(cut, 130, 21)
    with cut.at(0, -14):
        cut.dot(0, 0, 39, None, weight=7.5)
        cut.dot(0, 0, 39, None, ink="e", weight=4.6)
        for i in range(24):
            x, y = polar(39, i * 15 + 7.5)
            cut.dot(x, y, 0.9, "k", weight=0)
        for turn in (45, 135, 225, 315):
            facet(cut, 43, 10, turn)
        for turn in (90, 270, 0, 180):
            facet(cut, 56 if turn in (90, 270) else 62, 13, turn)
        cut.dot(0, 0, 7, "e")
        cut.dot(0, 0, 3, "h")


def merlons(left, right, top, count, deep=5):
    """The upper edge of a wall with battlements, from left to right."""
    step = (right - left) / (2 * count - 1)
    edge = []
    for i in range(2 * count - 1):
        y = top if i % 2 == 0 else top + deep
        edge += [(left + i * step, y), (left + (i + 1) * step, y)]
    return edge


def tower(cut, x, half, top, foot, roof, fill="a"):
    """A round tower with a spire."""
    wall = [(x - half, foot), (x - half, top), (x + half, top), (x + half, foot)]
    cut.shape(sharp(wall), fill, angle=0, gap=2.6, reach=0.42, width=1.2)
    out = half + 2.5
    cut.shape(sharp(merlons(x - out, x + out, top - 9, 4, 4) + [(x + out, top + 1), (x - out, top + 1)]), fill, angle=0, gap=2.2, reach=0.4, width=1.1)
    cut.shape([(x, roof, True), (x + half * 0.45, (roof + top) / 2 - 4, False), (x + half + 1, top - 9, True), (x - half - 1, top - 9, True),
               (x - half * 0.45, (roof + top) / 2 - 4, False)], "e", angle=8, gap=2.4, reach=0.55, width=1.2)
    cut.line(f"{x},{roof + 1} {x},{roof - 11}", 1.5, ends="none")
    cut.shape(f"{x},{roof - 11}! {x + 5},{roof - 12} {x + 12},{roof - 8}! {x + 6},{roof - 6} {x},{roof - 5}!", "h", weight=1)
    for y in (top + 9, top + 26):
        if y + 9 < foot:
            cut.shape(f"{x - 2},{y + 8}! {x - 2},{y + 2} {x},{y} {x + 2},{y + 2} {x + 2},{y + 8}!", "k", weight=0)


def city(cut):
    """Towers behind a wall with its gate."""
    cut.shape(f"-58.6,64! -40,60 0,62 40,58 58.6,62! 58.6,{FOOT}! -58.6,{FOOT}!", "#5f8f4e", angle=0, gap=3.6, reach=0.3, width=1.5)
    tower(cut, -33, 10, -16, 50, -50)
    tower(cut, 33, 10, -22, 50, -58)
    tower(cut, 0, 13, -38, 40, -78)
    for x, roof in ((-16, 12), (17, 8)):
        cut.shape(sharp([(x - 12, 50), (x - 12, roof + 10), (x, roof), (x + 12, roof + 10), (x + 12, 50)]), "b", angle=0, gap=2.6, reach=0.5, width=1.1)
        cut.line(f"{x - 14},{roof + 11.5} {x},{roof - 1}! {x + 14},{roof + 11.5}", 2.6, ends="none")
        cut.shape(rectangle(x - 3, roof + 13, x + 3, roof + 20), "k", weight=0)
    cut.shape(sharp(merlons(-52, 52, 34, 9, 6) + [(54, 78), (-54, 78)]), "a", angle=0, gap=2.8, reach=0.2, width=1.3)
    for row, y in enumerate((47, 55, 63, 71)):
        for x in range(-48 + (row % 2) * 6, 48, 12):
            if abs(x + 3) > 20:
                cut.line(f"{x},{y} {x + 7},{y}", 1, ends="both")
    cut.shape(sharp(merlons(-20, 20, 26, 4, 5) + [(21, 78), (-21, 78)]), "a", angle=0, gap=2.6, reach=0.22, width=1.2)
    cut.shape("-12,78! -12,54 -9,44 0,39 9,44 12,54 12,78!", "k", weight=0)
    cut.line([f"{x},40 {x},76" for x in (-6, 0, 6)] + ["-11,52 11,52", "-11,61 11,61", "-11,70 11,70"], 1.6, "b", ends="none")
    cut.shape("-6,29! 6,29! 6,34 0,38! -6,34!", "h", weight=1)
    cut.shape(f"-12,78! 12,78! 20,90 30,{FOOT}! -26,{FOOT}! -18,92", "b", weight=1.4)
    cut.line(["-50,86 -40,84 -30,87", "34,84 44,82 54,85", "-56,94 -44,92 -34,95", "-6,86 0,85 6,86", "-10,95 0,93 9,95"], 1.7)


def torch(cut, x, y):
    """A torch in its bracket."""
    flame(cut, x, y - 3, 0.52)
    cut.shape(sharp([(x - 5, y), (x + 5, y), (x + 2, y + 24), (x - 2, y + 24)]), "b", angle=0, gap=2.2, reach=0.5, width=1)
    cut.shape(rectangle(x - 6, y - 2, x + 6, y + 3), "c")


def flame(cut, x, y, size=1.0, outer="e", inner="h"):
    """A flame whose foot is at x, y; some 46 high."""
    with cut.at(x, y, size):
        cut.shape("0,2 -13,-4 -15,-18 -7,-30! -8,-20 -3,-22 -2,-34 3,-46! 5,-36 12,-28 10,-20 14,-24! 17,-12 11,-1", outer,
                  angle=-80, gap=3.4, reach=0.3, width=1.3)
        cut.shape("0,-1 -7,-5 -7,-12 -2,-16 1,-26! 4,-18 8,-11 6,-4", inner, ink=None)


def dungeon_gate(cut):
    """A portcullis over a stair that leads down, between two torches."""
    cut.shape(f"-54,{FOOT}! -54,-24 -44,-62 0,-82 44,-62 54,-24 54,{FOOT}!", "b", angle=0, gap=3.4, reach=0.06, width=1.2)
    stones = [polar(1, a) for a in range(-90, 91, 20)]
    for x, y in stones:
        cut.line(f"{x * 33},{y * 42 - 22} {x * 53},{y * 60 - 22}", 1.6, ends="none")
    for y in (-2, 20, 42, 64, 86):
        cut.line([f"-54,{y} -34,{y}", f"34,{y} 54,{y}"], 1.6, ends="none")
    cut.shape(f"-33,{FOOT}! -33,-22 -24,-50 0,-64 24,-50 33,-22 33,{FOOT}!", "k")
    for i in range(7):
        y, half = 88 - i * 8.5, 32 - i * 2
        cut.shape(sharp([(-half, y), (half, y), (half + 1.5, y + 10), (-half - 1.5, y + 10)]), "c", angle=0, gap=2.2, reach=0.6 + i * 0.05, width=1.3)
    for x in (-22, -11, 0, 11, 22):
        top = -62 + abs(x) * 0.55
        cut.shape(sharp([(x - 2.4, top), (x + 2.4, top), (x + 2.4, 22), (x, 31), (x - 2.4, 22)]), "a", angle=0, gap=3, reach=0.5, width=1)
    for y in (-40, -20, 0, 16):
        half = 33 if y > -25 else 28
        cut.shape(rectangle(-half, y - 2, half, y + 2), "a", angle=0, gap=1.8, reach=0.3, width=0.8)
        for x in (-22, -11, 0, 11, 22):
            cut.dot(x, y, 1.5, "k", weight=0)
    cut.sym("0,-88! 8,-88! 6,-66! 0,-64!", "c", angle=0, gap=2.2, reach=0.5, width=1)
    torch(cut, -44, 18)
    torch(cut, 44, 18)


def key(cut):
    """A key with its bit at the foot."""
    cut.shape(rectangle(-3, -32, 3, 62), "e", angle=0, gap=2.4, reach=0.5, width=1)
    cut.shape(sharp([(3, 36), (17, 36), (17, 44), (12, 44), (12, 48), (17, 48), (17, 58), (3, 58)]), "e", angle=0, gap=2.2, reach=0.4, width=1)
    for x, y in ((-8, -46), (8, -46), (0, -58)):
        cut.dot(x, y, 9, "e", angle=20, gap=2.2, reach=0.4, width=1)
        cut.dot(x, y, 4, "f", weight=1.2)
    cut.shape(rectangle(-6, -37, 6, -31), "h", weight=1.2)


def skull(cut):
    """A skull from the front, some 60 wide and 70 high."""
    cut.sym("0,-38 20,-33 31,-14 28,6 24,13! 25,22 18,27! 16,38 9,41 0,40", "a", angle=12, gap=2.6, reach=0.3, width=1.4)
    cut.both(lambda c: c.shape("5,3 7,-8 18,-10 24,-2 20,9 10,11", "k", weight=0))
    cut.both(lambda c: c.dot(14, 1, 2.4, "h", weight=0))
    cut.sym("0,9! 3,14 5,22! 0,20!", "k", weight=0)
    cut.line(["-15,29 15,29"] + [f"{x},25 {x * 0.96},37" for x in (-12, -7, -2.4, 2.4, 7, 12)], 1.5, ends="both")
    cut.line(["-6,-36 -2,-28 -6,-22 -1,-14", "-24,-14 -18,-19 -10,-17", "24,-14 18,-19 10,-17"], 1.6)


def dungeon_bones(cut):
    """A crowned skull before two crossed keys."""
    for flip in (False, True):
        with cut.at(0, 10, 1.14, 42, flip):
            key(cut)
    with cut.at(0, -4, 1.16):
        skull(cut)
    with cut.at(0, -50):
        cut.sym("0,-22! 5,-8 14,0! 20,-14! 22,-2 33,-10! 30,14! 0,9!", "e", angle=0, gap=2.4, reach=0.25, width=1.2)
        for x, y in ((0, -24), (20, -16), (-20, -16), (34, -12), (-34, -12)):
            cut.dot(x, y, 2.8, "h", weight=1.1)


def balance(cut):
    """A balance that is not level, over a heap of coins."""
    cut.sym("0,62! 6,62 12,66 30,70 33,78! 0,78!", "b", angle=0, gap=2.2, reach=0.35, width=1.1)
    cut.sym("0,-62! 3,-60 3.6,-20 5,30 7,62! 0,62!", "a", angle=0, gap=2.6, reach=0.5, width=1.1)
    cut.dot(0, 10, 7, "e", angle=20, gap=2, reach=0.4, width=1)
    with cut.at(0, -54, 1, -9):
        cut.sym("0,-4! 13,-9 30,-6 40,2 42,8! 35,4 21,1 9,5 0,6!", "a", angle=0, gap=2, reach=0.12, width=1)
        cut.both(lambda c: c.dot(41, 6, 3.2, "e"))
    cut.dot(0, -55, 8, "e", angle=25, gap=2, reach=0.45, width=1)
    cut.sym("0,-84! 4,-72 9,-66 3,-62! 0,-62!", "e", weight=1.3, angle=0, gap=2, reach=0.4, width=1)
    for x, y, coins in ((-40, -43, 5), (40, -54, 1)):
        foot = y + (54 if coins > 2 else 36)
        cut.line([f"{x},{y} {x - 15},{foot}", f"{x},{y} {x + 15},{foot}", f"{x},{y} {x},{foot}"], 1.5, "a", ends="none")
        for i in range(coins):
            for dx in ((-6, 6) if i < coins - 1 and coins > 1 else (0,)):
                cut.dot(x + dx, foot - 1 - i * 4, 7, "e", 3, weight=1.2)
        cut.shape(f"{x - 17},{foot}! {x + 17},{foot}! {x + 12},{foot + 11} {x},{foot + 14} {x - 12},{foot + 11}", "b", angle=0, gap=2.2, reach=0.45, width=1.1)


def purse(cut):
    """A full purse, and what fell out of it."""
    cut.sym("0,-38! 12,-38! 26,-24 44,6 50,38 36,66 0,74", "b", angle=-30, gap=3, reach=0.42, width=1.6, bow=0.002)
    cut.line(["-14,-30 -30,-4 -40,30 -36,48", "-6,-30 -14,-4 -18,20", "10,-30 22,-8 30,22", "16,-30 34,0 41,30"], 2.2)
    cut.sym("0,-42! 12,-40 20,-58 34,-78! 20,-74 13,-82! 6,-72 0,-84!", "b", angle=-20, gap=2.8, reach=0.4, width=1.3)
    cut.line(["-3,-44 -8,-70", "4,-44 10,-68", "-9,-44 -22,-68", "11,-44 24,-66"], 1.7)
    cut.sym("0,-45! 15,-44 17,-39 15,-34 0,-33!", "h", angle=0, gap=2, reach=0.4, width=1)
    cut.rope("14,-37 30,-32 38,-16 36,-4", 2.6, "h")
    cut.shape("32,-4! 40,-4! 42,8! 30,8!", "h", angle=0, gap=2, reach=0.5, width=1)
    with cut.at(-2, 24):
        cut.dot(0, 0, 22, "e", angle=25, gap=2.4, reach=0.25, width=1.2)
        cut.dot(0, 0, 17, None, weight=1.2)
        cut.shape(star(8, 14, 6), "h", weight=1.2)
        cut.dot(0, 0, 4, "e", weight=1.1)
    for x, y in ((-42, 70), (-30, 77), (40, 72), (28, 78), (-46, 78), (47, 79)):
        cut.dot(x, y, 10, "e", 4.6, weight=1.3, angle=0, gap=1.9, reach=0.4, width=0.9)
        cut.dot(x, y, 5.5, None, 2.2, weight=0.9)


def wave_rows(cut, rows, fill="a", deep="k"):
    """Rows of breaking waves from side to side, each (height, shift)."""
    for y, shift in rows:
        points = [(-58.6, FOOT, True), (-58.6, y, True)]
        x = -58 + shift
        while x < 56:
            crest = [(x + 4, y + 2, False), (x + 11, y - 7, False), (x + 18, y - 6, True), (x + 15, y - 1, False), (x + 19, y + 2, False)]
            points += [c for c in crest if -57 < c[0] < 57]
            x += 19
        points += [(58.6, y, True), (58.6, FOOT, True)]
        cut.shape(points, fill, weight=1.4)
        curls = []
        for i in range(8):
            x = -58 + shift + i * 19
            for dx, dy in ((0, 8), (3, 13)):
                if -56 < x + dx and x + dx + 14 < 57:
                    curls.append(f"{x + dx},{y + dy} {x + dx + 6},{y + dy - 1} {x + dx + 11},{y + dy - 5} {x + dx + 14},{y + dy - 5}")
        cut.line(curls, 1.8, deep)


def pine(cut, x, foot, size, fill="b"):
    """A pine with ragged boughs, 60 high at size 1."""
    half = "0,-60! 3,-50 8,-46! 5,-44 8,-36 14,-31! 9,-30 12,-22 19,-16! 12,-15 16,-7 24,0! 10,-3 3,-4! 3,4! 0,4!"
    with cut.at(x, foot, size):
        cut.sym(half, fill, angle=14, gap=2.6, reach=0.55, width=1.3)


def island(cut):
    """A steep island with a watch fire, pines and gulls."""
    cut.dot(16, -44, 25, "e", weight=1.4)
    cut.dot(16, -44, 30, None, ink="e", weight=1)
    for y in (-52, -45, -38, -31):
        cut.line(f"-6,{y} 44,{y}", 1, "f")
    cut.shape("-52,52! -44,34 -40,20 -30,12 -24,-12 -18,-30 -8,-36! -2,-24 4,-20 8,2 18,8 26,26 36,30 50,52!", "a",
              angle=62, gap=3, reach=0.55, width=1.7)
    cut.shape("-8,-36! -14,-24 -16,-8 -8,-14 -10,6 -2,-4 2,10! 8,2 4,-20 -2,-24", "c", weight=1.2, angle=62, gap=2.6, reach=0.4, width=1.2)
    for x, foot, size in ((-36, 26, 0.5), (-27, 22, 0.62), (20, 32, 0.7), (32, 38, 0.52), (8, 34, 0.5)):
        pine(cut, x, foot, size, "h")
    wave_rows(cut, ((50, 0), (62, -9), (75, -3), (88, -12)), "b", "a")
    cut.line(["-50,-60 -44,-65 -39,-59", "-39,-59 -34,-65 -28,-61", "-30,-76 -26,-80 -22,-75", "-22,-75 -18,-80 -13,-77"], 2.2, "a")


def desert(cut):
    """A scorpion under the sun of the waste."""
    cut.shape(star(24, 34, 26, 0, -52), "e", weight=1.2)
    cut.dot(0, -52, 23, "a", angle=30, gap=2.4, reach=0.3, width=1.2)

    def limb(c, points, claw):
        c.rope(points, 4.2, "b")
        if claw:
            c.shape(claw, "b", angle=20, gap=2.2, reach=0.4, width=1.1)
    for points, claw in (("13,-2 30,-10 36,-26", "33,-24 28,-36 34,-50! 37,-40 40,-36! 42,-48 50,-52! 50,-36 42,-24"),
                         ("13,6 30,2 40,10 44,20", None), ("13,14 30,14 40,24 44,36", None), ("11,22 26,26 36,38 38,50", None)):
        cut.both(limb, points, claw)
    cut.rope("0,34 -4,52 -16,66 -34,66 -44,54 -42,44", 9, "b")
    for x, y in ((-4, 50), (-11, 61), (-22, 67), (-34, 66), (-42, 57)):
        cut.dot(x, y, 6.8, "b", weight=1.3, angle=30, gap=2.2, reach=0.4, width=1.1)
    cut.shape("-46,47! -48,36 -40,24! -38,34 -34,42 -40,50", "h", angle=20, gap=2, reach=0.5, width=1.1)
    cut.sym("0,-14 10,-12 14,-2 16,10 13,24 8,36 0,40", "b", angle=10, gap=2.6, reach=0.4, width=1.4)
    cut.line(["-14,2 0,6 14,2", "-15,11 0,15 15,11", "-13,20 0,24 13,20", "-10,29 0,32 10,29"], 1.9)
    cut.both(lambda c: c.dot(4.4, -6, 2, "h", weight=0.9))
    cut.line(["-56,74 -30,70 0,76 30,71 56,75", "8,64 26,61 50,66", "-20,79 0,82 24,79"], 2, "a")


def fish(cut):
    """A heraldic fish that leaps, its belly to the left and its tail curled."""
    cut.shape("6,26! 14,22 22,26 27,20! 27,34 20,42! 18,52 8,54! 12,44 6,38 0,40!", "e", angle=0, gap=2.2, reach=0.4, width=1.1)
    cut.shape("13,-22! 24,-18 27,-4 22,10! 16,0 14,-8", "e", angle=-30, gap=2.4, reach=0.5, width=1.1)
    cut.shape("-22,-36! -10,-46 6,-40 16,-22 18,-2 14,18 6,32! 0,34! -6,26 -10,8 -15,-8 -18,-20 -25,-27! -18,-28!", "b", angle=8, gap=2.6, reach=0.4, width=1.3)
    cut.shape("-12,-4! -22,4 -24,14! -14,10 -8,12!", "e", angle=0, gap=2.2, reach=0.5, width=1.1)
    cut.dot(-6, -33, 4, "a", weight=1.3)
    cut.dot(-6, -33, 1.6, "k", weight=0)
    cut.line(["-12,-18 -3,-17 5,-26 4,-34", "-8,-6 -3,-4 3,-8", "2,-14 7,-12 11,-18", "-5,6 0,8 5,4", "4,-2 9,0 13,-5", "-2,18 2,19 7,15", "5,8 9,9 12,5"], 1.5)


def sea_realm(cut):
    """A crowned trident between two fish, over the waves."""
    for flip in (False, True):
        with cut.at(33 if flip else -33, 10, 0.98, 0, not flip):
            fish(cut)
    cut.shape(rectangle(-3.4, -40, 3.4, 74), "a", angle=0, gap=2.6, reach=0.5, width=1)
    cut.sym("0,-84! 8,-70! 4,-71 4,-44! 14,-43 22,-50 23,-62 18,-61! 27,-78! 36,-60! 31,-62 30,-44 18,-33 6,-32 0,-33!", "a",
            angle=0, gap=2.6, reach=0.22, width=1.2)
    cut.sym("0,-34! 9,-34! 7,-22! 0,-22!", "e", angle=0, gap=2.2, reach=0.4, width=1)
    cut.dot(0, -28, 3, "h", weight=1.1)
    wave_rows(cut, ((58, 0), (70, -9), (83, -3)), "b", "a")
    for x, y, r in ((-46, -38, 3.4), (-40, -48, 2), (45, -40, 2.6), (49, -52, 3.8), (-50, -56, 2.4), (42, -28, 1.8)):
        cut.dot(x, y, r, None, ink="a", weight=1.3)


def swamp(cut):
    """A dead tree with grasping boughs before the moon, in reeds."""
    cut.dot(8, -36, 40, "e", weight=1.4)
    cut.dot(-4, -46, 7, None, weight=1, ink="c")
    cut.dot(24, -22, 5, None, weight=1, ink="c")
    cut.dot(26, -50, 4, None, weight=1, ink="c")
    for y in (-24, -17, -10, -3):
        cut.line(f"-26,{y} 46,{y}", 1.2, "c")
    trunk = ("-22,66! -12,52 -9,34 -12,14 -26,2 -38,-6 -50,-26! -40,-18 -32,-12 -36,-34 -44,-50! -31,-40 -24,-14 -10,-4 -6,-22 -16,-44 -18,-72! "
             "-8,-50 -2,-38 4,-60 0,-84! 10,-62 8,-36 6,-14 18,-22 26,-36 24,-58! 32,-42 32,-34 44,-50! 38,-30 28,-16 48,-22! 32,-8 16,4 12,20 12,38 18,54 30,66!")
    cut.shape(trunk, "b", angle=84, gap=3, reach=0.32, width=1.5)
    cut.line(["-4,58 -3,38 -5,20 -1,2", "4,60 3,40 4,24 6,8", "-9,56 -7,44"], 1.5)
    cut.shape("-3,30 -5,22 0,16 5,22 4,31 0,34", "k", weight=0)
    cut.dot(-1.6, 24, 1.5, "h", weight=0)
    cut.dot(2.4, 24, 1.5, "h", weight=0)
    cut.shape(f"-58.6,62! -30,58 0,62 30,58 58.6,62! 58.6,{FOOT}! -58.6,{FOOT}!", "c", angle=0, gap=4, reach=0.24, width=1.5, both=0.12)
    cut.line(["-50,70 -30,67 -12,70", "4,68 24,66 44,70", "-30,76 -4,74 18,77", "-54,83 -34,81 -16,84", "22,82 38,80 54,83"], 1.5, "h")
    for x, top in ((-48, 10), (-40, 24), (-34, 4), (40, 14), (47, 26), (34, 30)):
        cut.line(f"{x * 0.96},76 {x},{top + 30} {x + 2},{top}", 2.2, ends="end")
        cut.shape(f"{x},{top + 2} {x + 3},{top + 6} {x + 2.4},{top + 18} {x},{top + 22} {x - 2.4},{top + 18} {x - 2},{top + 6}", "h", weight=1.2)
    for x in (-44, -28, 43, 30):
        cut.line(f"{x},76 {x + (8 if x < 0 else -8)},58 {x + (18 if x < 0 else -18)},50", 2.4, ends="end")
