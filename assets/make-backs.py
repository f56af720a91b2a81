#!/usr/bin/env python3
"""Draws the built-in card backs: backs/imgCB-00.svg to imgCB-26.svg and backs/picBack.svg
for standard cards, backs/imgChB-0.svg to imgChB-3.svg for character cards and large cards.

All backs are one family, as if cut in wood by one hand: the border of two plaited bands with
its carved corners, the panel, the emblem and the ribbon with the name. Each has its own palette,
field, emblem and style of lettering. The order of BACKS is the order of the built-in card
backs, since a back is found by its index alone; so it is with WIDE_BACKS.

Run it without arguments; it writes beside itself.
"""

from pathlib import Path

import emblems_arms as arms
import emblems_lore as lore
import emblems_realm as realm
from borders import EDGE, INK, border
from lettering import lettering, width_of
from woodcut import Cut, document, num, pair, polar, sharp, star, tapered


# ---------------------------------------------------------------- panel and its fields

def panel(p, width, height, centre):
    """The field with its light in the middle, and a line cut along the edge."""
    left, right, foot = EDGE, width - EDGE, height - EDGE
    return (f'<defs><radialGradient id="light" gradientUnits="userSpaceOnUse" cx="{num(centre[0])}" cy="{num(centre[1])}" r="{num(height * 0.55)}">'
            f'<stop offset="0" stop-color="{p["f"]}"/><stop offset="0.4" stop-color="{p["f"]}"/><stop offset="1" stop-color="{p["d"]}"/></radialGradient></defs>'
            f'<path d="M{num(left)},{num(left)}H{num(right)}V{num(foot)}H{num(left)}z" fill="url(#light)" stroke="{INK}" stroke-width="1.2"/>')


class Area:
    """The panel of a back: where a field is cut."""

    def __init__(self, width, height, centre):
        self.left, self.top, self.right, self.foot = EDGE + 1, EDGE + 1, width - EDGE - 1, height - EDGE - 1
        self.x, self.y = centre

    def edge(self, degrees, inset=1.0):
        """Where a ray from the middle meets the edge."""
        dx, dy = polar(1, degrees)
        reach = []
        if abs(dx) > 1e-9:
            reach.append(((self.right - inset if dx > 0 else self.left + inset) - self.x) / dx)
        if abs(dy) > 1e-9:
            reach.append(((self.foot - inset if dy > 0 else self.top + inset) - self.y) / dy)
        return self.x + dx * min(reach), self.y + dy * min(reach)


def path(data, colour, extra=""):
    return f'<path d="{data}" fill="{colour}"{extra}/>'


def field_rays(area, p):
    """Cuts from the edge toward the middle, long and short by turns."""
    data = ""
    for i in range(72):
        out = area.edge(i * 5)
        inner = (0.30, 0.62, 0.46, 0.68)[i % 4]
        to = area.x + (out[0] - area.x) * inner, area.y + (out[1] - area.y) * inner
        data += tapered([out + (True,), to + (True,)], 2.2, "end")
    return path(data, p["g"])


def field_lines(area, p):
    """A sky of level cuts, closest at the top and at the foot."""
    data, y, i = "", area.top + 3, 0
    while y < area.foot - 2:
        share = abs(y - area.y) / (area.foot - area.top) * 2
        size = (area.right - area.left) * min(0.5, 0.10 + 0.42 * share) * (1, 0.8, 0.9, 0.66)[i % 4]
        for start, sign in ((area.left + 1, 1), (area.right - 1, -1)):
            data += tapered([(start, y, True), (start + sign * size, y, True)], 1.7, "end")
        y, i = y + 4, i + 1
    return path(data, p["g"])


def field_stone(area, p):
    """Courses of masonry, each stone cut at its foot and right side."""
    data, row, y = "", 0, area.top + 13
    while y < area.foot + 8:
        foot = min(y, area.foot - 1)
        x = area.left + (0 if row % 2 else -11)
        while x < area.right:
            left, right = max(x + 1.5, area.left + 1), min(x + 21, area.right - 1)
            if right - left > 4:
                data += tapered([(left, foot, True), (right, foot, True)], 1.9, "start")
                if foot - 9 > area.top and right < area.right - 2:
                    data += tapered([(right, foot, True), (right, foot - 10, True)], 1.5, "end")
                for k in (3, 6):
                    if right - left > 12 and foot - k > area.top:
                        data += tapered([(right - 1, foot - k, True), (right - 5 + k / 2, foot - k, True)], 1.0, "end")
            x += 22
        y, row = y + 13, row + 1
    return path(data, p["g"])


def field_waves(area, p):
    data, row, y = "", 0, area.top + 9
    while y < area.foot - 4:
        x = area.left + 2 + (row % 2) * 8
        while x + 12 < area.right:
            data += tapered([(x, y, False), (x + 4, y - 3, False), (x + 8, y - 1, False), (x + 12.5, y - 4, False)], 1.9)
            x += 16
        y, row = y + 9, row + 1
    return path(data, p["g"])


def field_damask(area, p):
    """Lozenges in rows, each with four cuts."""
    data, row, y = "", 0, area.top + 10
    while y < area.foot - 6:
        offset = 9 if row % 2 else 0
        count = int((area.right - area.left) / 36) + 1
        for i in range(-count, count + 1):
            x = area.x + i * 18 + offset
            if area.left + 5 < x < area.right - 5:
                for turn in (0, 90, 180, 270):
                    tip = polar(5.4 if turn % 180 == 0 else 4, turn, x, y)
                    data += tapered([(x, y, True), tip + (True,)], 2.4, "both")
        y, row = y + 13, row + 1
    return path(data, p["g"])


def field_stars(area, p):
    """A night of small stars in no order that the eye could find."""
    data, seed = "", 7
    for row in range(0, 15):
        for column in range(0, int((area.right - area.left) / 19)):
            seed = (seed * 1103515245 + 12345) % 2147483648
            x = area.left + 9 + column * 19 + (seed >> 8) % 11 - 5
            y = area.top + 8 + row * 15 + (seed >> 16) % 9 - 4
            size = 1.6 + (seed >> 20) % 4 * 0.8
            if y < area.foot - 5 and area.left + 4 < x < area.right - 4:
                data += "M" + "L".join(pair(q[:2]) for q in star(4, size * 1.4, size * 0.4, x, y)) + "z"
    return path(data, p["g"])


def field_leaves(area, p):
    """Leaves in rows, leaning right and left by turns."""
    data, row, y = "", 0, area.top + 9
    while y < area.foot - 6:
        x = area.left + 8 + (row % 2) * 8
        while x < area.right - 6:
            lean = 3.4 if row % 2 else -3.4
            data += tapered([(x - lean, y + 4.4, False), (x + lean * 0.2, y, False), (x + lean, y - 4.4, False)], 3.6)
            x += 16
        y, row = y + 11, row + 1
    return path(data, p["g"])


def field_scales(area, p):
    data, row, y = "", 0, area.top + 2
    while y < area.foot - 7:
        x = area.left + 1 - (row % 2) * 7
        while x < area.right:
            spots = [(x + 7 + dx, y + dy) for dx, dy in ((-6.4, 0.5), (-4.6, 5), (0, 7.4), (4.6, 5), (6.4, 0.5))]
            if spots[0][0] > area.left and spots[-1][0] < area.right:
                data += tapered([s + (False,) for s in spots], 1.7)
            x += 14
        y, row = y + 7.5, row + 1
    return path(data, p["g"])


def field_pales(area, p):
    """Upright cuts that hang from the top and stand on the foot."""
    data, i, x = "", 0, area.left + 3
    while x < area.right - 2:
        size = (78, 52, 66, 44)[i % 4]
        data += tapered([(x, area.top + 1, True), (x, area.top + size, True)], 2, "end")
        data += tapered([(x, area.foot - 1, True), (x, area.foot - size, True)], 2, "end")
        x, i = x + 4.55, i + 1
    return path(data, p["g"])


def field_plain(area, p):
    return ""


# ---------------------------------------------------------------- ribbon

def name_lines(name, style, room):
    """The name in one or two lines, and the height of its letters."""
    words = name.upper().split(" ")
    whole = " ".join(words)
    high = 11.5
    if width_of(whole, high, style) <= room or len(words) == 1 or words[-1] in ("1", "2"):
        return [whole], min(high, room / width_of(whole, 1, style))
    best = min(range(1, len(words)), key=lambda i: max(width_of(" ".join(words[:i]), 1, style), width_of(" ".join(words[i:]), 1, style)))
    lines = [" ".join(words[:best]), " ".join(words[best:])]
    return lines, min([10.2] + [room / width_of(line, 1, style) for line in lines])


def ribbon(name, style, p, width, height):
    """The ribbon at the foot of the panel, its ends folded behind it."""
    x, wide = width / 2, 51
    lines, high = name_lines(name, style, 2 * wide - 9)
    tall = 22 if len(lines) == 1 else 34
    foot = height - EDGE - 6
    top = foot - tall
    cut = Cut(dict(p, k=INK, a="#f3e6c4", b="#d8c08e"), 1.3)

    def tail(c):
        c.shape(sharp([(wide - 8, top - 4), (wide + 8, top - 4), (wide + 4, (top + foot) / 2 - 4), (wide + 8, foot - 4), (wide - 8, foot - 4)]), "b",
                angle=0, gap=2.6, reach=0.4, width=1)
        c.shape(sharp([(wide - 8, foot), (wide, foot), (wide - 8, foot - 4)]), INK, weight=0.6)
        c.shape(sharp([(wide - 8, top - 4), (wide, top), (wide - 8, top)]), INK, weight=0.6)
    with cut.at(x, 0):
        cut.both(tail)
        cut.shape([(-wide, top, True), (0, top - 1.4, False), (wide, top, True), (wide, foot, True), (0, foot - 1.4, False), (-wide, foot, True)], "a",
                  angle=0, gap=2.6, reach=0.05, width=1, both=0.05)
    pitch = 13.2
    first = (top + foot) / 2 - 0.7 + high / 2 - (len(lines) - 1) * pitch / 2
    data = "".join(lettering(line, x, first + i * pitch, high, style) for i, line in enumerate(lines))
    return f'{cut}\n{path(data, INK)}'


# ---------------------------------------------------------------- the backs

def palette(field, dark, cuts, border_dark, ornament, ornament_deep, **emblem):
    found = {"f": field, "d": dark, "g": cuts, "o": border_dark, "r": ornament, "m": ornament_deep, "k": INK, "c": "#4a4038"}
    found.update(emblem)
    return found


IVORY, STONE, GOLD, BRASS = "#f5e9c9", "#c9c3b4", "#f0bf4a", "#c48d2a"

BACKS = [  # name, lettering, field, emblem, palette
    ("Adventure", "roman", field_rays, realm.adventure, palette("#b3261f", "#7c120f", "#8a1713", "#3c0a08", "#f2c65a", "#a8601c", a=IVORY, b="#d9c08a", e=GOLD, h="#2c6e7f")),
    ("City", "bold", field_lines, realm.city, palette("#4f86b8", "#1f4f82", "#b9d8ea", "#12294a", "#dfe8ee", "#6f97bd", a=IVORY, b="#d8b98c", c="#8f7a5c", e="#c4452f", h=GOLD)),
    ("Dungeon 1", "timber", field_stone, realm.dungeon_gate, palette("#5b5f66", "#33363d", "#3b3e45", "#17191d", "#c3c7c9", "#71767d", a="#c9ccd0", b="#9aa0a5", c="#6d665d", e="#ee7a1c", h="#ffd95a")),
    ("Dungeon 2", "timber", field_stone, realm.dungeon_bones, palette("#7c4a2a", "#472412", "#532c17", "#241007", "#e5c083", "#93602f", a="#f4ead2", b="#cdb68c", e="#e9b347", h="#b8281e")),
    ("Loan", "fine", field_damask, realm.balance, palette("#2f7a4c", "#124a2b", "#195a36", "#08261a", "#e9cf83", "#87903e", a="#f3e3b6", b="#c99a3d", e="#f5cf56", h="#b3331f")),
    ("Purchase", "bold", field_damask, realm.purse, palette("#e3a62c", "#b56f12", "#bd7c17", "#4a2606", "#ffe7a0", "#c57f1c", a=IVORY, b="#9b5a34", e="#ffd95c", h="#8e1f1a")),
    ("Spell", "uncial", field_stars, lore.spell, palette("#5d2f92", "#2f1258", "#b48ae0", "#1b0836", "#d9b9f5", "#7d4db2", a="#f5e4cf", b="#d9b896", c="#3c2a66", e="#ffb52e", h="#ffe98a")),
    ("Varnhelm", "roman", field_rays, lore.varnhelm, palette("#2b2a33", "#121117", "#5a4a24", "#0d0c10", "#ecc561", "#8c6a26", a="#f2ecdc", b="#aeb4bd", c="#7a4a28", e="#eabb48", h="#c2281f")),
    ("Timescape", "fine", field_stars, lore.timescape, palette("#15528f", "#08244d", "#6fb4e6", "#041226", "#8fdcf2", "#2f77a8", a="#e9fbff", b="#b9c4d2", c="#0d2440", e="#5fe3d6", h="#ffd95c")),
    ("Purchase Timescape", "fine", field_stars, lore.star_coin, palette("#15807f", "#064746", "#7ed9cb", "#032626", "#f5d27a", "#7f8f4a", a="#fff6d8", b="#e39d2e", c="#0b3a3e", e="#fad15a", h="#d65a1f")),
    ("Warrant", "roman", field_pales, lore.warrant, palette("#c9ac74", "#8f7038", "#a88850", "#3d2c12", "#f3e3b4", "#a3803f", a="#fbf3dc", b="#b98a4a", c="#6e4522", e="#b3211c", h="#d8402c")),
    ("Faeries", "uncial", field_leaves, lore.faeries, palette("#cf6fa6", "#94306e", "#e7a3c9", "#4a1238", "#fbd8ea", "#c2669c", a="#fff3ea", b="#8cc97c", c="#5b2c4e", e="#f2c14e", h="#7fd0c0")),
    ("Island", "roman", field_lines, realm.island, palette("#63bfd0", "#2187a4", "#cdeff0", "#0a3c52", "#fbeec0", "#5fa9b5", a="#ecd9a4", b="#2d7fb0", c="#a58654", e="#f7b63a", h="#3f8a4c")),
    ("Mystic Brew", "uncial", field_scales, lore.cauldron, palette("#4f8f1f", "#234f0c", "#35700f", "#122a06", "#cdf06a", "#6d9a2c", a="#dfe3d0", b="#56585e", c="#2e3036", e="#f58a1f", h="#b9f04a")),
    ("Contract", "fine", field_pales, lore.contract, palette("#8c3a2a", "#541a12", "#64231a", "#2b0b07", "#ecc9a2", "#a25c3f", a="#fbf1d9", b="#d9bd8a", c="#6b3a24", e="#c52a1c", h="#7fb0c4")),
    ("Diablo II", "roman", field_rays, lore.arms_chevrons, palette("#8fb0ac", "#4a736f", "#688f8b", "#18302e", "#eef4ec", "#7ba09b", a="#f7f1de", b="#d3a544", e="#1f6a66", h="#d3a544")),
    ("Diablo II Artifact", "roman", field_damask, lore.arms_lozenge, palette("#a68cb8", "#684a80", "#856a9a", "#2c1b3b", "#f2e6f5", "#9a7fae", a="#f7f1de", b="#d3a544", e="#7a2f6d", h="#e2b04a")),
    ("Cursed Swamp", "gothic", field_waves, realm.swamp, palette("#5d6b34", "#2c3716", "#465226", "#171d0b", "#c7cf8e", "#6f7c3e", a="#dfe0b4", b="#6a5a48", c="#44522c", e="#e6e2a0", h="#9fc23c")),
    ("Transformations", "uncial", field_rays, lore.transformations, palette("#e2701e", "#a83d0b", "#bb4b10", "#471805", "#ffd690", "#c9702a", a="#fdf0c4", b="#3f9a5a", c="#37305e", e="#ffd24a", h="#f8efd2")),
    ("Space Hulk", "bold", field_pales, lore.arms_fess, palette("#7d8fb0", "#3f5078", "#5d7096", "#161f38", "#e6ecf5", "#7a8db0", a="#f7f1de", b="#b9bfc8", e="#28427e", h="#e2b04a")),
    ("Realm Of Chaos", "roman", field_damask, lore.arms_wavy, palette("#8e2446", "#4f0d24", "#641530", "#28050f", "#f3cdb2", "#a64a5e", a="#f7f1de", b="#d3a544", e="#2a3f70", h="#d6a83e")),
    ("Trolls", "timber", field_leaves, lore.troll, palette("#97a86a", "#56683a", "#75894c", "#222c12", "#e8edc2", "#8b9c5c", a="#fbf3d4", b="#7f9a86", c="#5a4632", e="#c4452f", h="#f2c53d")),
    ("Trolls Treasure", "timber", field_rays, lore.chest, palette("#4a5a2c", "#222c10", "#364420", "#12180a", "#f3cf62", "#8a7a2c", a="#fdf3c8", b="#a5673a", c="#6d7076", e="#f8cb45", h="#c92c28")),
    ("Sea Realm", "roman", field_scales, realm.sea_realm, palette("#1b6a94", "#083856", "#10507a", "#041c2e", "#9fe0e4", "#2f86a0", a="#eaf5ea", b="#3fa6a6", e="#f3b33c", h="#e8614a")),
    ("Desert", "roman", field_rays, realm.desert, palette("#ecbc62", "#c98028", "#d99c42", "#5a2c08", "#fff0c0", "#c98a38", a="#fff3cc", b="#a6462a", c="#7c3a1c", e="#f58a1e", h="#ffdf5e")),
    ("Warlock's Maze", "gothic", field_lines, lore.maze, palette("#3a2362", "#180b33", "#5d3f92", "#0d051c", "#f29a4e", "#7a3f72", a="#efdcb8", b="#8a5a3c", c="#20123a", e="#f5732a", h="#ffd24a")),
    ("Blank", "roman", field_plain, lore.blank, palette("#faf6ea", "#f4eedd", "#faf6ea", "#3d3a36", "#d9d5ca", "#8b867c")),
]

SEAL = palette("#23375c", "#0e1830", "#33507e", "#0a1020", "#ecc561", "#8c6a26", a="#f2ecdc", b="#aeb4bd", c="#16233f", e="#eabb48", h="#b3261f")
DEFAULT = ("", "roman", field_rays, arms.great_seal, SEAL)

# Flat colours, few enough for a palette of sixteen; the last row is the usual back of a large card.
WIDE_BACKS = [  # title, size, name, lettering, field, emblem, palette
    ("STANDARD", 302, 254, "Varnhelm", "roman", field_rays, arms.sword_and_staff,
     palette("#7a1f22", "#430c10", "#56131a", "#24060a", "#ecc561", "#9a5a26", a="#f2ecdc", b="#aeb4bd", c="#6a4426", e="#eabb48", h="#235a6e")),
    ("MASTER 1", 302, 254, "Master I", "roman", field_damask, arms.crowned_lions,
     palette("#1f4f86", "#0b2448", "#123768", "#071327", "#f2d27a", "#7f7a4c", a="#f7efdc", b="#d9a93e", c="#7a4a28", e="#f0c04c", h="#b3261f")),
    ("MASTER 2", 302, 254, "Master II", "roman", field_leaves, arms.oak_and_orb,
     palette("#2c6a48", "#0f3321", "#1a4a30", "#081b11", "#f0dc9a", "#7f8a4a", a="#f7efdc", b="#8fae4e", c="#6b4a2a", e="#e9b944", h="#8c2450")),
    ("Large card", 304, 256, "", "roman", field_plain, arms.great_arms,
     palette("#8a2a24", "#8a2a24", "#8a2a24", "#2a0a0a", "#e8c060", "#a06028", a="#f2e8d0", b="#a8b0b8", c="#60442c", e="#e8c060", h="#204860")),
]


def card_back(name, style, field, emblem, p):
    width, height, centre = 150, 254, (75, 107 if name else 127)
    cut = Cut(p)
    with cut.at(*centre):
        emblem(cut)
    parts = [border(p, width, height), panel(p, width, height, centre), field(Area(width, height, centre), p), cut]
    if name and emblem is not lore.blank:
        parts.append(ribbon(name, style, p, width, height))
    return document(name or "Varnhelm", width, height, parts)


def wide_back(title, width, height, name, style, field, emblem, p):
    centre = (width / 2, height / 2 - (19 if name else 0))
    cut = Cut(p)
    with cut.at(*centre):
        emblem(cut)
    parts = [border(p, width, height), panel(p, width, height, centre), field(Area(width, height, centre), p), cut]
    if name:
        parts.append(ribbon(name, style, p, width, height))
    return document(title, width, height, parts)


def main():
    folder = Path(__file__).resolve().parent / "backs"
    folder.mkdir(exist_ok=True)

    def save(name, drawing):
        (folder / name).write_text(drawing, encoding="utf-8", newline="\n")

    for index, row in enumerate(BACKS):
        save(f"imgCB-{index:02}.svg", card_back(*row))
    save("picBack.svg", card_back(*DEFAULT))
    for index, row in enumerate(WIDE_BACKS):
        save(f"imgChB-{index}.svg", wide_back(*row))


if __name__ == "__main__":
    main()
