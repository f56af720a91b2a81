# SPDX-License-Identifier: GPL-3.0-or-later
"""How a back is put together: panel, field, emblem, ribbon and border, for any size.

Colours of a palette: f and d the light and the deep tone of the panel, g the cuts of its field; those of the
border are told in borders.py, those of the emblem in emblems_realm.py.
"""

from borders import EDGE, INK, border
from lettering import lettering, width_of
from woodcut import Cut, document, num, pair, polar, sharp, star, tapered


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


def palette(field, dark, cuts, border_dark, ornament, ornament_deep, **emblem):
    found = {"f": field, "d": dark, "g": cuts, "o": border_dark, "r": ornament, "m": ornament_deep, "k": INK, "c": "#4a4038"}
    found.update(emblem)
    return found


def back(title, size, name, style, field, emblem, p, page=None, middle=None):
    """A whole back; the emblem stands a little above the middle if there is a ribbon.

    Of a page larger than the back only the back at its top left is shown."""
    width, height = size
    centre = (width / 2, middle if middle is not None else height / 2 - (20 if name else 0))
    cut = Cut(p)
    with cut.at(*centre):
        emblem(cut)
    parts = [border(p, width, height), panel(p, width, height, centre), field(Area(width, height, centre), p), cut]
    if name:
        parts.append(ribbon(name, style, p, width, height))
    if page:
        parts.insert(0, f'<rect width="{page[0]}" height="{page[1]}" fill="{INK}"/>')
    return document(title, *(page or size), parts)
