#!/usr/bin/env python3
"""Draws the built-in card backs: backs/imgCB-00.svg to imgCB-26.svg and backs/picBack.svg
for standard cards, backs/imgChB-0.svg to imgChB-3.svg for character cards and large cards.

All backs are one family. They share the border, the place of the emblem and the
plate with the name; each has a palette, a field (the quiet pattern behind the
emblem) and an emblem of its own. The order of BACKS is the order of the built-in
card backs, since a back is found by its index alone; so it is with WIDE_BACKS.

Only what a small SVG renderer knows is used: paths, basic shapes, transforms,
gradients and text.

Run it without arguments; it writes beside itself.
"""

import math
from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Shape:
    """The size of a back and what follows from it."""
    width: int
    height: int
    centre: tuple[float, float]  # where an emblem has its origin, and rays come from
    across: int  # lozenges of the border along the top, and along a side
    down: int

    @property
    def panel(self):  # left, top, right, bottom of the field
        return 19, 19, self.width - 19, self.height - 19


STANDARD = Shape(150, 254, (75, 105), 7, 13)
CHARACTER = Shape(302, 254, (151, 105), 16, 13)
LARGE = Shape(304, 256, (152, 128), 16, 13)

# Advance widths of the lettering's capitals, in thousandths of the font size.
ADVANCE = dict(zip("ABCDEFGHIJKLMNOPQRSTUVWXYZ '12",
                   (722, 667, 722, 722, 667, 611, 778, 778, 389, 500, 778, 667, 944, 722, 778,
                    611, 778, 722, 556, 667, 722, 722, 1000, 722, 722, 667, 250, 278, 500, 500)))


def num(value):
    """A coordinate with at most two decimals and no idle zeros."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("", "-0") else text


def points(pairs):
    return " ".join(f"{num(x)},{num(y)}" for x, y in pairs)


def polar(radius, degrees, x=0.0, y=0.0):
    angle = math.radians(degrees)
    return x + radius * math.sin(angle), y - radius * math.cos(angle)


def star(tips, outer, inner, x=0.0, y=0.0, turn=0.0):
    step = 180 / tips
    return points(polar(outer if i % 2 == 0 else inner, turn + i * step, x, y) for i in range(2 * tips))


def mirrored(shapes):
    """Shapes of the right half, and the same once more as the left half."""
    return f'<g>{shapes}</g><g transform="scale(-1,1)">{shapes}</g>'


# ---------------------------------------------------------------- fields

def field_plain(p, shape):
    return ""


def field_rays(p, shape):
    """Rays from the emblem to the edge of the field."""
    left, top, right, bottom = shape.panel
    cx, cy = shape.centre

    def edge(degrees):
        dx, dy = polar(1, degrees)
        reach = min([((right if dx > 0 else left) - cx) / dx] if abs(dx) > 1e-9 else [1e9])
        reach = min(reach, ((bottom if dy > 0 else top) - cy) / dy if abs(dy) > 1e-9 else 1e9)
        return cx + dx * reach, cy + dy * reach

    rays = "".join(f'<polygon points="{points([(cx, cy), edge(a - 5), edge(a + 5)])}"/>' for a in range(0, 360, 20))
    return f'<g fill="{p["r"]}" fill-opacity="0.22">{rays}</g>'


def field_waves(p, shape):
    left, top, right, bottom = shape.panel
    rows = []
    for y in range(top + 10, bottom - 4, 12):
        path = f"M{left},{y}" + "".join(f"q3.5,{-5 if i % 2 == 0 else 5} 7,0" for i in range(16))
        rows.append(f'<path d="{path}"/>')
    return f'<g fill="none" stroke="{p["r"]}" stroke-width="1.4" stroke-opacity="0.32">{"".join(rows)}</g>'


def field_bricks(p, shape):
    left, top, right, bottom = shape.panel
    path = ""
    for y in range(top + 12, bottom, 12):
        path += f"M{left},{y}H{right}"
    for row, y in enumerate(range(top, bottom, 12)):
        for x in range(left + (14 if row % 2 else 28), right, 28):
            path += f"M{x},{y}V{min(y + 12, bottom)}"
    return f'<path d="{path}" fill="none" stroke="{p["r"]}" stroke-width="1.2" stroke-opacity="0.3"/>'


def field_lozengy(p, shape):
    left, top, right, bottom = shape.panel
    path = ""
    for row, y in enumerate(range(top + 12, bottom - 4, 12)):
        middle = int(shape.centre[0]) + (14 if row % 2 else 0)
        for x in range(middle - 140, middle + 141, 28):
            if not left + 8 < x < right - 8:
                continue
            path += f"M{x},{y - 4}l4,4l-4,4l-4,-4z"
    return f'<path d="{path}" fill="{p["r"]}" fill-opacity="0.35"/>'


def field_stars(p, shape):
    spots = [(32, 40, 3.4), (116, 34, 2.6), (60, 32, 2), (94, 46, 2), (28, 78, 2.2), (122, 72, 3.2), (30, 120, 2.6),
             (120, 118, 2), (34, 156, 3.2), (116, 158, 3), (76, 168, 2), (54, 160, 1.8), (98, 164, 1.8), (126, 138, 1.8),
             (25, 100, 1.6), (125, 95, 1.6), (42, 58, 1.6), (110, 56, 1.6)]
    shapes = "".join(f'<polygon points="{star(4, r * 1.3, r * 0.4, x, y)}"/>' for x, y, r in spots)
    return f'<g fill="{p["r"]}" fill-opacity="0.75">{shapes}</g>'


def field_bend(p, shape):
    """Two broad diagonal stripes."""
    left, top, right, bottom = shape.panel
    stripes = "".join(f'<polygon points="{points([(left, y), (right, y - 112), (right, y - 84), (left, y + 28)])}"/>'
                      for y in (131, 187))
    return f'<g fill="{p["r"]}" fill-opacity="0.28">{stripes}</g>'


def field_chevrons(p, shape):
    left, top, right, bottom = shape.panel
    path = ""
    for y in range(top + 56, bottom - 12, 28):
        path += f"M{left},{y}L75,{y - 56}L{right},{y}V{y + 12}L75,{y - 44}L{left},{y + 12}z"
    return f'<path d="{path}" fill="{p["r"]}" fill-opacity="0.22"/>'


def field_quarterly(p, shape):
    left, top, right, bottom = shape.panel
    cx, cy = shape.centre
    return (f'<g fill="{p["r"]}" fill-opacity="0.3"><rect x="{cx}" y="{top}" width="{right - cx}" height="{cy - top}"/>'
            f'<rect x="{left}" y="{cy}" width="{cx - left}" height="{bottom - cy}"/></g>')


def field_pale(p, shape):
    left, top, right, bottom = shape.panel
    stripes = "".join(f'<rect x="{left + 32 * i}" y="{top}" width="16" height="{bottom - top}"/>' for i in range(4))
    return f'<g fill="{p["r"]}" fill-opacity="0.2">{stripes}</g>'


def field_scales(p, shape):
    left, top, right, bottom = shape.panel
    path = ""
    for row, y in enumerate(range(top, bottom - 8, 10)):
        start = left if row % 2 == 0 else left + 8
        for x in range(start, right - 15, 16):
            path += f"M{x},{y}a8,8 0 0 0 16,0"
    return f'<path d="{path}" fill="none" stroke="{p["r"]}" stroke-width="1.2" stroke-opacity="0.35"/>'


# ---------------------------------------------------------------- emblems
#
# Drawn round the origin, about 50 to each side and 58 up and down. The letters in
# braces are the palette: a and b the light and the middle tone of the emblem, d its
# outline, e and f the light and the dark accent.

def compass():
    def leaf(length, half, degrees):
        tip, side, other = polar(length, degrees), polar(half, degrees + 45), polar(half, degrees - 45)
        return (f'<polygon points="{points([tip, side, (0, 0)])}" fill="{{b}}"/>'
                f'<polygon points="{points([tip, other, (0, 0)])}" fill="{{a}}"/>')
    ring = '<circle r="35" fill="none" stroke="{d}" stroke-width="8"/><circle r="35" fill="none" stroke="{e}" stroke-width="5"/>'
    ticks = "".join(f'<polygon points="{star(4, 2, 1, *polar(35, a))}" fill="{{d}}"/>' for a in range(15, 360, 30))
    small = "".join(leaf(38, 9, a) for a in (45, 135, 225, 315))
    large = "".join(leaf(54 if a in (0, 180) else 48, 13, a) for a in (0, 90, 180, 270))
    return (ring + ticks + f'<g stroke="{{d}}" stroke-width="1.2" stroke-linejoin="round">{small}{large}</g>'
            '<circle r="4" fill="{e}" stroke="{d}" stroke-width="1.2"/>')


def towers():
    window = '<path d="M{0},{1}v-7q0,-4 3.5,-4q3.5,0 3.5,4v7z" fill="{{d}}"/>'
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-42,48V-10h4v-6h5v6h5v-6h5v6h5v-6h5v6h3V48z" fill="{b}"/>'
            '<path d="M42,48V-10h-4v-6h-5v6h-5v-6h-5v6h-5v-6h-5v6h-3V48z" fill="{b}"/>'
            '<path d="M-15,48V-30h-4v-9h7v5h7v-5h10v5h7v-5h7v9h-4V48z" fill="{a}"/>'
            '<path d="M-46,-16L-27,-40L-8,-16z" fill="{e}"/><path d="M46,-16L27,-40L8,-16z" fill="{e}"/>'
            '<path d="M-17,-39L0,-62L17,-39z" fill="{e}"/>'
            '<path d="M-50,50V30h6v5h6v-5h7v5h7v-5h7v5h7v-5h20v5h7v-5h7v5h7v-5h7v5h6v-5h6V50z" fill="{a}"/></g>'
            '<path d="M-10,50V32q0,-11 10,-11q10,0 10,11V50z" fill="{d}"/>'
            '<path d="M-5,50V27M0,50V23M5,50V27M-9,35H9M-9,43H9" stroke="{b}" stroke-width="1"/>'
            + window.format(-30.5, 12) + window.format(23.5, 12) + window.format(-3.5, -8))


def portcullis():
    bars = "".join(f'<path d="M{x},-34V26l-2.6,6l2.6,8l2.6,-8l-2.6,-6"/>' for x in (-24, -12, 0, 12, 24))
    return ('<path d="M-46,52V-10q0,-46 46,-46q46,0 46,46V52H33V-8q0,-34 -33,-34q-33,0 -33,34V52z" fill="{b}" stroke="{d}" '
            'stroke-width="1.8" stroke-linejoin="round"/>'
            '<path d="M-33,52V-8q0,-34 33,-34q33,0 33,34V52z" fill="{d}"/>'
            '<path d="M-46,8h13M-46,30h13M46,8h-13M46,30h-13M-45,-16l12,3M45,-16l-12,3M-33,-44l8,11M33,-44l-8,11M-9,-55l2,13M9,-55l-2,13" '
            'stroke="{d}" stroke-width="1.4"/>'
            '<path d="M-8,-57h16l-3,16h-10z" fill="{e}" stroke="{d}" stroke-width="1.4"/>'
            f'<g fill="{{a}}" stroke="{{a}}" stroke-width="4" stroke-linejoin="round">{bars}</g>'
            '<g stroke="{b}" stroke-width="3.6"><path d="M-32,-20H32M-33,-3H33M-33,14H33"/></g>'
            + "".join(f'<circle cx="{x}" cy="{y}" r="1.5" fill="{{d}}"/>' for x in (-24, -12, 0, 12, 24) for y in (-20, -3, 14)))


def crossed_keys():
    key = ('<path d="M-3,-22h6V44h-6z" fill="{a}"/><path d="M3,24h13v8h-5v4h-3v-4h-5zM3,38h11v7h-11z" fill="{b}"/>'
           '<path d="M-6,-24h12v5h-12z" fill="{e}"/>'
           '<path d="M0,-54a15,15 0 1 0 0.1,0zM0,-46a7,7 0 1 1 -0.1,0z" fill="{a}" fill-rule="evenodd"/>')
    return ('<g transform="scale(1.12)"><g stroke="{d}" stroke-width="1.5" stroke-linejoin="round">'
            f'<g transform="rotate(-32) translate(0,2) scale(-1,1)">{key}</g><g transform="rotate(32) translate(0,2)">{key}</g></g>'
            '<path d="M0,-7l8,9l-8,9l-8,-9z" fill="{e}" stroke="{d}" stroke-width="1.5"/></g>')


def balance():
    coins = '<ellipse cx="{0}" cy="{1}" rx="9" ry="3.4" fill="{{e}}"/>'
    pan = '<path d="M18,-34L4,8H42L30,-34" transform="translate(5,0)" fill="none" stroke="{a}" stroke-width="1.3"/>'
    stack = "".join(coins.format(28, 4 - 4.5 * i) for i in range(4))
    return ('<g stroke="{d}" stroke-width="1.5" stroke-linejoin="round">'
            '<path d="M-3,-46h6V42h-6z" fill="{a}"/><path d="M-22,52q2,-10 19,-12h6q17,2 19,12z" fill="{b}"/>'
            '<circle cy="-49" r="6" fill="{e}"/>'
            '<path d="M-36,-34q18,-10 36,-2q18,8 36,-2l1,5q-19,11 -37,3q-18,-8 -36,2z" fill="{a}"/></g>'
            '<g fill="none" stroke="{a}" stroke-width="1.4"><path d="M-30,-32L-44,16M-30,-32L-16,16M31,-35L17,-4M31,-35L45,-4"/></g>'
            '<g stroke="{d}" stroke-width="1.3">' + "".join(coins.format(-30, 14 - 4.5 * i) for i in range(5))
            + '<path d="M-48,16h36q-4,13 -18,13q-14,0 -18,-13z" fill="{b}"/>'
            + '<path d="M23,-6l12,-3l4,5h-15z" fill="{a}"/><path d="M13,-4h36q-4,13 -18,13q-14,0 -18,-13z" fill="{b}"/></g>')


def purse():
    coin = '<ellipse cx="{0}" cy="{1}" rx="11" ry="4.4" fill="{{e}}"/><ellipse cx="{0}" cy="{1}" rx="6.5" ry="2.2" fill="{{f}}"/>'
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-13,-28q-30,22 -31,48q0,26 44,26q44,0 44,-26q-1,-26 -31,-48z" fill="{a}"/>'
            '<path d="M-12,-18q-22,20 -22,42q1,14 14,19q-10,-22 8,-61z" fill="{b}" stroke="none"/>'
            '<path d="M-12,-30q-14,-10 -16,-26q10,5 15,1q6,-6 13,0q7,-6 13,0q5,4 15,-1q-2,16 -16,26z" fill="{b}"/>'
            '<path d="M-15,-33h30v7h-30z" fill="{e}"/><path d="M12,-27q14,2 16,16M14,-27q12,-2 20,7" fill="none" stroke="{e}" stroke-width="2.4"/>'
            '<circle cx="28" cy="-8" r="3" fill="{e}"/><circle cx="35" cy="-18" r="3" fill="{e}"/>'
            '<circle cy="14" r="13" fill="{e}"/>'
            f'<polygon points="{star(6, 9, 4.4, 0, 14)}" fill="{{f}}" stroke-width="0.8"/>'
            + coin.format(-31, 49) + coin.format(33, 50) + coin.format(31, 44) + coin.format(-8, 53) + '</g>')


def book():
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M0,50q-24,-12 -50,-3V-4q26,-9 50,3q24,-12 50,-3V47q-26,-9 -50,3z" fill="{f}"/>'
            '<path d="M0,44q-22,-12 -46,-4V-10q24,-8 46,5z" fill="{a}"/><path d="M0,44q22,-12 46,-4V-10q-24,-8 -46,5z" fill="{b}"/></g>'
            '<path d="M-40,0q18,-4 33,5M-40,9q18,-4 33,5M-40,18q18,-4 33,5M-40,27q18,-4 33,5M40,27q-18,-4 -33,5M40,18q-18,-4 -33,5" '
            'fill="none" stroke="{d}" stroke-width="1.4" stroke-opacity="0.7"/>'
            '<path d="M23,-4l7,6l-7,10l-7,-8z" fill="{e}" stroke="{d}" stroke-width="1"/>'
            f'<polygon points="{star(8, 26, 8, 0, -36)}" fill="{{e}}" stroke="{{d}}" stroke-width="1.4" stroke-linejoin="round"/>'
            '<circle cy="-36" r="4.5" fill="{a}"/>'
            f'<polygon points="{star(4, 7, 2.2, -36, -30)}" fill="{{e}}"/><polygon points="{star(4, 7, 2.2, 36, -30)}" fill="{{e}}"/>'
            f'<polygon points="{star(4, 4, 1.4, -27, -50)}" fill="{{a}}"/><polygon points="{star(4, 4, 1.4, 28, -51)}" fill="{{a}}"/>')


def winged_helm():
    wing = ('<path d="M22,-12q6,-26 28,-46q0,12 -3,18q5,-2 8,-6q-1,13 -8,20q4,0 7,-3q-3,15 -15,21q3,1 6,0q-8,12 -20,10z" fill="{a}"/>'
            '<path d="M27,-9q4,-16 17,-28M28,-4q6,-10 16,-15M28,2q6,-3 10,-4" fill="none"/>')
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">' + mirrored(wing)
            + '<path d="M0,-40q27,3 29,34v34q-9,16 -24,24h-5z" fill="{b}"/><path d="M0,-40q-27,3 -29,34v34q9,16 24,24h5z" fill="{a}"/>'
            '<path d="M-30,-4q30,-10 60,0v8q-30,-10 -60,0z" fill="{e}"/>'
            '<path d="M-3,-44h6l2,88l-5,8l-5,-8z" fill="{e}"/></g>'
            '<path d="M-24,8q10,-3 18,-1v7q-11,2 -18,0zM24,8q-10,-3 -18,-1v7q11,2 18,0z" fill="{d}"/>'
            '<path d="M-9,22v20M-15,22v17M-21,22v12M9,22v20M15,22v17M21,22v12" stroke="{d}" stroke-width="2.2"/>'
            '<path d="M0,-58l6,8l-6,8l-6,-8z" fill="{f}" stroke="{d}" stroke-width="1.2"/>')


def hourglass():
    return ('<g fill="none" stroke="{e}" stroke-width="2"><ellipse rx="50" ry="15" transform="rotate(-24)"/>'
            '<ellipse rx="50" ry="15" transform="rotate(24)"/></g>'
            '<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-22,-42q0,26 18,38v8q-18,12 -18,38h44q0,-26 -18,-38v-8q18,-12 18,-38z" fill="{f}"/>'
            '<path d="M-15,-22q5,11 13,17v3h4v-3q8,-6 13,-17z" fill="{e}" stroke="none"/><path d="M-18,41q3,-15 18,-21q15,6 18,21z" fill="{e}" stroke="none"/>'
            '<path d="M-1,0h2v24h-2z" fill="{e}" stroke="none"/>'
            '<path d="M-17,-38q1,14 6,22" fill="none" stroke="{a}" stroke-width="2"/>'
            '<path d="M-28,-50h56v8h-56zM-28,42h56v8h-56z" fill="{a}"/>'
            '<path d="M-27,-42h4V42h-4zM23,-42h4V42h-4z" fill="{b}"/></g>'
            '<circle cx="46" cy="-20" r="5" fill="{a}" stroke="{d}"/><circle cx="-46" cy="-20" r="3.4" fill="{e}" stroke="{d}"/>'
            '<circle cx="44" cy="22" r="3" fill="{e}" stroke="{d}"/>')


def dial_coin():
    ticks = "".join(f'<path d="M{points([polar(31, a), polar(36, a)]).replace(" ", "L")}"/>' for a in range(0, 360, 30))
    return ('<g stroke="{d}" stroke-width="1.6"><circle r="46" cx="3" cy="4" fill="{f}"/><circle r="46" fill="{b}"/>'
            '<circle r="39" fill="{e}"/></g>'
            + "".join(f'<circle cx="{num(polar(42.5, a)[0])}" cy="{num(polar(42.5, a)[1])}" r="1.7" fill="{{a}}"/>' for a in range(0, 360, 15))
            + f'<g stroke="{{d}}" stroke-width="2.4">{ticks}</g>'
            '<circle r="27" fill="{f}" stroke="{d}"/>'
            '<path d="M-13,-17H13Q12,-5 3,0Q12,5 13,17H-13Q-12,5 -3,0Q-12,-5 -13,-17z" fill="{a}" stroke="{d}" stroke-width="1.4"/>'
            '<path d="M-8,-10H8Q6,-4 0,-1Q-6,-4 -8,-10zM-10,15Q-8,7 0,4Q8,7 10,15z" fill="{e}"/>'
            '<path d="M-17,-21h34v4h-34zM-17,17h34v4h-34z" fill="{b}" stroke="{d}"/>')


def sealed_scroll():
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-32,-44H32V40H-32z" fill="{a}"/>'
            '<path d="M-40,-52H40q5,5 0,12H-40q-5,-6 0,-12zM-40,36H40q5,5 0,12H-40q-5,-6 0,-12z" fill="{b}"/>'
            '<circle cx="-40" cy="-46" r="4.5" fill="{f}"/><circle cx="40" cy="-46" r="4.5" fill="{f}"/>'
            '<circle cx="-40" cy="42" r="4.5" fill="{f}"/><circle cx="40" cy="42" r="4.5" fill="{f}"/></g>'
            '<path d="M-20,-30H20M-25,-21H25M-25,-13H25M-25,-5H25M-25,3H2M-25,11H-4" stroke="{d}" stroke-width="1.8" stroke-opacity="0.75"/>'
            '<g stroke="{d}" stroke-width="1.4" stroke-linejoin="round"><path d="M7,20l-4,34l8,-6l5,9l3,-33z" fill="{f}"/>'
            '<path d="M21,22l2,34l-7,-5l-4,7l2,-34z" fill="{e}"/>'
            f'<polygon points="{star(12, 16, 13, 15, 16)}" fill="{{e}}"/><circle cx="15" cy="16" r="9" fill="{{f}}"/></g>'
            f'<polygon points="{star(5, 7, 3, 15, 16)}" fill="{{a}}"/>')


def butterfly():
    wing = ('<path d="M3,-6Q14,-44 42,-50Q56,-34 46,-12Q32,4 3,4z" fill="{a}"/><path d="M3,4Q30,0 40,14Q40,38 24,46Q8,34 3,10z" fill="{b}"/>'
            '<path d="M9,-6Q20,-32 38,-39Q45,-28 38,-15Q26,-3 9,-6z" fill="{e}"/><path d="M9,9Q26,8 31,19Q30,31 23,36Q13,26 9,9z" fill="{f}"/>'
            '<circle cx="37" cy="-27" r="4.4" fill="{a}"/><circle cx="24" cy="22" r="3.2" fill="{a}"/>'
            '<path d="M2,-22Q6,-42 16,-50" fill="none"/><circle cx="17" cy="-51" r="2.4" fill="{e}"/>')
    return ('<g stroke="{d}" stroke-width="1.5" stroke-linejoin="round">' + mirrored(wing)
            + '<path d="M0,-22q5,6 4,20q0,22 -4,42q-4,-20 -4,-42q-1,-14 4,-20z" fill="{d}"/><circle cy="-22" r="5" fill="{d}"/></g>'
            f'<polygon points="{star(4, 7, 2, -14, 52)}" fill="{{e}}"/><polygon points="{star(4, 5, 1.6, 16, 54)}" fill="{{e}}"/>')


def palm_island():
    frond = '<path d="M0,0Q{0},{1} {2},{3}Q{4},{5} 0,0z" fill="{{e}}"/>'
    fronds = "".join(frond.format(*v) for v in ((14, -20, 36, -14, 22, -8), (-12, -22, -34, -18, -22, -8), (22, -2, 38, 14, 18, 8),
                                                (-22, -2, -36, 12, -18, 8), (2, -18, 8, -32, -4, -18)))
    return ('<g stroke="{d}" stroke-width="1.5" stroke-linejoin="round">'
            '<circle cx="-20" cy="-26" r="17" fill="{a}"/>'
            '<path d="M-46,32q14,-20 44,-22q32,2 48,22z" fill="{b}"/>'
            '<path d="M-4,14q2,-26 14,-46l6,2q-9,22 -8,45z" fill="{f}"/>'
            f'<g transform="translate(13,-32)">{fronds}<circle cx="-2" cy="4" r="3.4" fill="{{f}}"/><circle cx="4" cy="5" r="3.4" fill="{{f}}"/></g>'
            '<path d="M-52,30q7,-7 13,0q7,-7 13,0q7,-7 13,0q7,-7 13,0q7,-7 13,0q7,-7 13,0q7,-7 13,0q7,-7 13,0v24h-104z" fill="#c9eef4"/></g>'
            '<path d="M-50,40q6,-5 12,0q7,-5 13,0q6,-5 12,0q7,-5 13,0q6,-5 12,0q7,-5 13,0q6,-5 12,0q7,-5 13,0M-44,48q6,-5 12,0q7,-5 13,0q6,-5 12,0q7,-5 13,0q6,-5 12,0q7,-5 13,0" '
            'fill="none" stroke="{d}" stroke-width="1.4"/>')


def cauldron():
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-26,56q-12,-10 -4,-26q2,8 8,6q0,-6 6,-8q2,8 8,6q2,-6 8,-8q2,8 8,8q4,-2 6,-6q6,0 8,4q6,2 6,-6q10,16 -4,30z" fill="{f}"/><path d="M-14,56q-8,-6 -2,-14q4,4 8,2q4,-8 8,-2q4,4 8,0q10,6 4,14z" fill="#ffd24a" stroke="none"/>'
            '<path d="M-32,36l-8,16h8l6,-12zM32,36l8,16h-8l-6,-12z" fill="{b}"/>'
            '<path d="M-40,-10q-8,42 28,48h24q36,-6 28,-48z" fill="{b}"/>'
            '<path d="M-33,-4q-6,34 18,40q-14,-14 -10,-40z" fill="{a}" stroke="none"/>'
            '<ellipse cy="-12" rx="44" ry="11" fill="{a}"/><ellipse cy="-12" rx="37" ry="7.5" fill="{e}"/>'
            '<path d="M-46,2a8,8 0 1 0 4,12M46,2a8,8 0 1 1 -4,12" fill="none" stroke="{a}" stroke-width="2.4"/></g>'
            '<g fill="{e}" stroke="{d}" stroke-width="1.2"><circle cx="-14" cy="-18" r="8"/><circle cx="8" cy="-20" r="10"/><circle cx="22" cy="-14" r="6"/>'
            '<circle cx="-4" cy="-38" r="6"/><circle cx="14" cy="-44" r="4.5"/><circle cx="-16" cy="-50" r="4"/><circle cx="3" cy="-56" r="3"/></g>'
            '<g fill="{a}"><circle cx="5" cy="-23" r="2.6"/><circle cx="-16" cy="-20" r="2"/><circle cx="-6" cy="-40" r="1.7"/></g>')


def quill():
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-46,-28L16,-36Q22,-36 22,-30L28,46L-34,54Q-40,54 -40,48z" fill="{b}"/>'
            '<path d="M-46,-28L16,-36Q22,-36 22,-30L22,-26L-45,-18z" fill="{a}"/>'
            '<path d="M-36,-6L14,-12M-35,4L15,-2M-34,14L8,9M-33,24L-12,21" fill="none" stroke-width="1.5" stroke-opacity="0.7"/>'
            '<path d="M-30,40q5,-8 8,-1q3,5 6,-3q3,-6 6,1q4,4 9,-2" fill="none" stroke-width="1.5"/>'
            '<path d="M-2,32q-2,-7 0,-12q8,-52 52,-78q7,34 -14,60q-4,-2 -6,-6q1,9 -3,13q-5,-1 -8,-6q0,9 -6,15q-6,6 -11,7z" fill="{a}"/>'
            '<path d="M-5,40Q6,-2 38,-42" fill="none" stroke-width="1.8"/>'
            '<path d="M10,2l-6,9M20,-14l-8,7M29,-28l-9,7M22,-6l-8,2" fill="none" stroke-width="1"/>'
            '<path d="M18,52V36q0,-5 6,-6v-7h18v7q6,1 6,6v16q-15,6 -30,0z" fill="{f}"/><path d="M22,18h22v6h-22z" fill="{e}"/>'
            '<path d="M23,38h20v8q-10,3 -20,0z" fill="{e}"/></g>')


SHIELD = "M-42,-50H42V0Q42,36 0,56Q-42,36 -42,0z"


def shield(body):
    return (f'<path d="{SHIELD}" fill="{{b}}" stroke="{{d}}" stroke-width="2"/>' + body
            + f'<path d="{SHIELD}" fill="none" stroke="{{d}}" stroke-width="6"/><path d="{SHIELD}" fill="none" stroke="{{a}}" stroke-width="3"/>')


def shield_chevron():
    return shield('<path d="M0,-14L39,17Q36.5,26 31.7,32.5L0,8L-31.7,32.5Q-36.5,26 -39,17z" fill="{a}" stroke="{d}" stroke-width="1.4"/>'
                  '<g fill="{e}" stroke="{d}" stroke-width="1.2"><circle cx="-22" cy="-28" r="9"/><circle cx="22" cy="-28" r="9"/><circle cy="35" r="9"/></g>'
                  '<g fill="none" stroke="{f}" stroke-width="1.4"><circle cx="-22" cy="-28" r="5"/><circle cx="22" cy="-28" r="5"/><circle cy="35" r="5"/></g>')


def lozenge_cup():
    return ('<g stroke="{d}" stroke-width="2" stroke-linejoin="round"><path d="M0,-60L50,0L0,60L-50,0z" fill="{a}"/>'
            '<path d="M0,-52L43,0L0,52L-43,0z" fill="{f}"/><path d="M0,-52L43,0H-43z" fill="{b}"/></g>'
            '<g stroke="{d}" stroke-width="1.5" stroke-linejoin="round"><path d="M-17,-16H17Q18,8 4,13V24q10,1 11,8H-15q1,-7 11,-8V13Q-18,8 -17,-16z" fill="{e}"/>'
            '<path d="M-13,-12q0,16 8,20q-3,-8 -2,-20z" fill="{a}" stroke="none"/><path d="M-19,-20H19v6H-19z" fill="{e}"/>'
            '<path d="M-15,-20Q-12,-30 0,-32Q12,-30 15,-20z" fill="{e}"/><circle cy="-36" r="4" fill="{a}"/>'
            '<path d="M0,-8l5,6l-5,6l-5,-6z" fill="{f}"/></g>')


def shield_pale():
    stars = "".join(f'<polygon points="{star(5, 10, 4.2, 0, y)}" fill="{{e}}" stroke="{{d}}" stroke-width="1"/>' for y in (-32, -2, 28))
    return shield('<path d="M-16,-49H16V47Q8,52 0,56Q-8,52 -16,47z" fill="{a}" stroke="{d}" stroke-width="1.4"/>'
                  '<path d="M-42,-22h26v10h-26zM-42,6h26v10h-26zM16,-22h26v10h-26zM16,6h26v10h-26z" fill="{f}"/>' + stars)


def shield_chequy():
    body = ('<path d="M-36,-26H36V6Q35,34 0,50Q-35,34 -36,6z" fill="{b}"/>'
            '<path d="M-36,-26h18v16h-18zM0,-26h18v16H0zM-18,-10h18V6h-18zM18,-10h18V6h-18zM-36,6h18v16h-12.5Q-35,15 -36,6zM0,6h18v16H0zM-18,22h18v16h-18zM18,22h12.5Q26,32 18,38z'
            'M0,38h18Q10,46 0,50z" fill="{f}"/>'
            '<path d="M-36,-26H36V6Q35,34 0,50Q-35,34 -36,6z" fill="none" stroke="{d}" stroke-width="6"/>'
            '<path d="M-36,-26H36V6Q35,34 0,50Q-35,34 -36,6z" fill="none" stroke="{a}" stroke-width="3"/>')
    return (body + '<g stroke="{d}" stroke-width="1.5" stroke-linejoin="round">'
            '<path d="M-28,-33L-34,-58L-17,-45L0,-62L17,-45L34,-58L28,-33z" fill="{e}"/><path d="M-28,-37H28v7H-28z" fill="{a}"/>'
            '<circle cx="-34" cy="-58" r="3" fill="{a}"/><circle cy="-61" r="3.4" fill="{a}"/><circle cx="34" cy="-58" r="3" fill="{a}"/></g>')


def swamp():
    reed = '<path d="M{0},46Q{1},10 {2},-14" fill="none" stroke="{{b}}" stroke-width="2.6"/><path d="M{3},{4}q4,-2 8,0l-1,-24q-3,-5 -6,0z" fill="{{f}}" stroke="{{d}}" stroke-width="1.2"/>'
    return ('<path d="M22,-58a24,24 0 1 0 18,40a20,20 0 1 1 -18,-40z" fill="{a}" stroke="{d}" stroke-width="1.4"/>'
            + reed.format(-34, -32, -36, -40, -10) + reed.format(-20, -22, -18, -22, -22)
            + '<path d="M-30,48Q-34,10 -48,-4Q-34,14 -22,48zM28,48Q30,24 46,8Q40,26 38,48zM6,48Q8,20 22,6Q16,24 16,48z" fill="{b}" stroke="{d}" stroke-width="1.2"/>'
            '<g fill="{e}" stroke="{d}" stroke-width="1.2"><path d="M6,14q-11,-6 -5,-17q1,5 4,4q-2,-9 5,-14q0,8 5,11q7,9 -3,16z"/></g>'
            '<circle cx="7" cy="7" r="3.4" fill="{a}"/>'
            '<g stroke="{d}" stroke-width="1.4"><ellipse cy="47" rx="50" ry="9" fill="{f}"/></g>'
            '<path d="M-36,46h22M-4,50h26M16,44h18M-22,52h14" stroke="{e}" stroke-width="1.6"/>')


def ring_serpent():
    scales = "".join(f'<circle cx="{num(polar(38, a)[0])}" cy="{num(polar(38, a)[1])}" r="2" fill="{{d}}"/>' for a in range(36, 330, 14))
    return ('<path d="M8,-38A39,39 0 1 1 -21,-32" fill="none" stroke="{d}" stroke-width="15.5" stroke-linecap="round"/>'
            '<path d="M8,-38A39,39 0 1 1 -21,-32" fill="none" stroke="{a}" stroke-width="12" stroke-linecap="round"/>'
            '<path d="M0,-34A36,36 0 1 1 -18,-29" fill="none" stroke="{b}" stroke-width="4" stroke-linecap="round"/>' + scales
            + '<path d="M12,-50q-24,-6 -34,12l8,-2l-4,8q12,4 30,-4z" fill="{a}" stroke="{d}" stroke-width="1.6" stroke-linejoin="round"/>'
            '<circle cx="-2" cy="-43" r="2.6" fill="{f}" stroke="{d}"/><path d="M-22,-38l-11,-2l5,4l-7,3z" fill="{e}" stroke="{d}" stroke-width="0.8"/>'
            '<g stroke="{d}" stroke-width="1.4" stroke-linejoin="round">'
            f'<polygon points="{star(10, 26, 17)}" fill="{{e}}"/>'
            '<circle r="15" fill="{a}"/><path d="M0,-15a15,15 0 0 1 0,30q-7,-15 0,-30z" fill="{f}"/></g>'
            '<path d="M-9,-3q3,-3 6,0M3,-3q3,-3 6,0" fill="none" stroke="{d}" stroke-width="1.6"/>'
            '<path d="M-6,6q6,5 12,0" fill="none" stroke="{d}" stroke-width="1.6"/>')


def troll_mask():
    half = ('<path d="M37,-12l8,-5q-1,14 -11,17z" fill="{f}"/>'
            '<path d="M4,-11q13,-10 25,-4l-2,6q-10,-4 -21,2z" fill="{f}"/><path d="M8,-4q7,-5 14,1q-7,6 -14,-1z" fill="{e}"/>'
            '<path d="M13,30q1,-12 8,-26q6,14 0,27q-4,3 -8,-1z" fill="{e}"/>')
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-30,-20Q-40,-46 -24,-40Q-26,-58 -10,-48Q0,-64 9,-49Q25,-58 24,-40Q41,-46 30,-20z" fill="{b}"/>'
            '<path d="M0,-38Q27,-38 31,-12L50,-26Q50,4 31,10Q32,42 0,52Q-32,42 -31,10Q-50,4 -50,-26L-31,-12Q-27,-38 0,-38z" fill="{a}"/>'
            '<path d="M-18,26H18L27,16Q30,42 0,52Q-30,42 -27,16z" fill="{f}"/>' + mirrored(half)
            + '<path d="M-6,-8Q-15,9 -13,16q13,9 26,0Q15,9 6,-8z" fill="{b}"/>'
            '<path d="M-14,-30q14,-6 28,0M-11,-24q11,-5 22,0" fill="none" stroke-width="1.3"/></g>'
            '<circle cx="-6" cy="15" r="2.2" fill="{d}"/><circle cx="6" cy="15" r="2.2" fill="{d}"/>')


def chest():
    gem = '<path d="M{0},{1}l6,-7h8l6,7l-10,11z" fill="{2}"/>'
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-40,-14Q-46,-46 -30,-52H30Q46,-46 40,-14z" fill="{f}"/><path d="M-34,-14Q-38,-38 -26,-44H26Q38,-38 34,-14z" fill="{d}"/>'
            '<path d="M-36,4Q-34,-12 -20,-12Q-14,-26 2,-24Q14,-30 20,-16Q36,-14 36,4z" fill="{e}"/>'
            '<g stroke-width="1.1"><ellipse cx="-22" cy="-6" rx="9" ry="4" fill="{a}"/><ellipse cx="-6" cy="-16" rx="9" ry="4" fill="{a}"/><ellipse cx="10" cy="-4" rx="9" ry="4" fill="{a}"/>'
            '<ellipse cx="26" cy="-5" rx="8" ry="4" fill="{a}"/></g>'
            + gem.format(2, -25, "#d84a4a") + gem.format(-19, -21, "#5aa6e0")
            + '<path d="M-46,2H46V46H-46z" fill="{b}"/><path d="M-46,2h9V46h-9zM37,2h9V46h-9zM-5,2H5V46H-5z" fill="{f}"/>'
            '<path d="M-46,2H46v8H-46z" fill="{f}"/><path d="M-10,6H10V22Q10,28 0,30Q-10,28 -10,22z" fill="{e}"/></g>'
            '<circle cy="15" r="3" fill="{d}"/><path d="M-1.5,15h3l1.5,9h-6z" fill="{d}"/>'
            '<path d="M-36,20H-6M-36,33H-6M6,20H36M6,33H36" stroke="{d}" stroke-width="1.1"/>')


def trident():
    prong = '<path d="M3,-14H17Q25,-16 24,-30L19,-28L27,-52L35,-28L30,-30Q32,-6 16,-5H3z" fill="{a}"/>'
    fish = ('<path d="M46,26Q34,12 18,22Q14,17 10,16Q14,25 10,34Q14,33 18,29Q34,40 46,26z" fill="{e}"/>'
            '<circle cx="38" cy="24" r="1.6" fill="{d}"/><path d="M31,20q-4,6 0,12" fill="none" stroke-width="1"/>')
    return ('<g stroke="{d}" stroke-width="1.5" stroke-linejoin="round">' + mirrored(prong)
            + '<path d="M-3,-34V54H3V-34L8,-32L0,-60L-8,-32z" fill="{a}"/><path d="M-6,-16H6V-2H-6z" fill="{b}"/>'
            + mirrored(fish) + '<path d="M-4,40H4V46H-4z" fill="{b}"/></g>'
            '<g fill="{a}"><circle cx="-44" cy="8" r="2.4"/><circle cx="42" cy="4" r="3"/><circle cx="-40" cy="-2" r="1.6"/><circle cx="38" cy="-6" r="1.8"/></g>')


def desert():
    return ('<g stroke="{d}" stroke-width="1.4" stroke-linejoin="round">'
            f'<polygon points="{star(16, 38, 28, 0, -20)}" fill="{{e}}"/><circle cy="-20" r="23" fill="{{a}}"/>'
            '<path d="M-52,24Q-30,-2 -8,14Q14,28 52,6V50H-52z" fill="{b}"/>'
            '<path d="M-52,24Q-30,-2 -8,14Q-20,22 -14,34Q-8,44 -30,50H-52z" fill="{a}"/>'
            '<path d="M-52,42Q-20,26 8,40Q30,50 52,36V52H-52z" fill="{e}"/>'
            '<path d="M22,40V-4q0,-5 4,-5q4,0 4,5V16h5V6q0,-4 3.5,-4q3.5,0 3.5,4V19q0,4 -4,4h-8V40zM22,28h-7q-4,0 -4,-4V14q0,-4 3.5,-4q3.5,0 3.5,4v7h4z" fill="{f}"/></g>')


def maze():
    def arc(radius, start, end):
        x1, y1 = polar(radius, start)
        x2, y2 = polar(radius, end)
        return f"M{num(x1)},{num(y1)}A{radius},{radius} 0 {1 if end - start > 180 else 0} 1 {num(x2)},{num(y2)}"

    def spoke(inner, outer, degrees):
        x1, y1 = polar(inner, degrees)
        x2, y2 = polar(outer, degrees)
        return f"M{num(x1)},{num(y1)}L{num(x2)},{num(y2)}"
    walls = (arc(47, 188, 532) + arc(37, 20, 120) + arc(37, 140, 366) + arc(27, -60, 160) + arc(27, 184, 284) + arc(17, 96, 428)
             + spoke(37, 47, 166) + spoke(37, 47, 100) + spoke(27, 37, 20) + spoke(27, 37, 230) + spoke(17, 27, 120) + spoke(37, 47, 290)
             + spoke(17, 27, 300) + spoke(27, 37, 330))
    return ('<circle r="51" fill="{f}" stroke="{d}" stroke-width="1.4"/>'
            f'<path d="{walls}" fill="none" stroke="{{d}}" stroke-width="6" stroke-linecap="round"/>'
            f'<path d="{walls}" fill="none" stroke="{{a}}" stroke-width="3.6" stroke-linecap="round"/>'
            '<path d="M-12,0Q0,-11 12,0Q0,11 -12,0z" fill="{e}" stroke="{d}" stroke-width="1.2"/><circle r="4" fill="{d}"/>')


def blank():
    return ""


def varnhelm_seal():
    """The emblem of the default back: the helm on a round seal."""
    rim = "".join(f'<polygon points="{star(4, 4.4, 1.8, *polar(51, a))}" fill="{{a}}"/>' for a in range(0, 360, 20))
    return ('<circle r="57" fill="{f}" stroke="{d}" stroke-width="1.6"/><circle r="57" fill="none" stroke="{a}" stroke-width="1.4"/>'
            + rim + '<circle r="45" fill="{e}" stroke="{a}" stroke-width="1.4"/>'
            f'<g transform="translate(0,3) scale(0.72)">{winged_helm()}</g>')


# The emblems and the ornaments of the wide backs. An ornament stands on both sides of its emblem.

def arms():
    """The helm on a shield; the back's ornaments are the sword and the staff."""
    return ('<path d="M-46,-52Q-22,-46 0,-58Q22,-46 46,-52V-4Q44,36 0,60Q-44,36 -46,-4z" fill="{b}" stroke="{d}" stroke-width="1.8" stroke-linejoin="round"/>'
            '<path d="M-40,-45Q-18,-41 0,-51Q18,-41 40,-45V-4Q38,31 0,53Q-38,31 -40,-4z" fill="{f}" stroke="{d}" stroke-width="1"/>'
            f'<g transform="translate(0,1) scale(0.68)">{winged_helm()}</g>')


def crown():
    prong = ('<path d="M0,-44l9,20l13,-14l4,18l17,-9l-7,49H0z" fill="{a}" stroke="none"/><path d="M26,-20l17,-9l-7,49H22z" fill="{b}" stroke="none"/>'
             '<path d="M0,-44l9,20l13,-14l4,18l17,-9l-7,49H0" fill="none"/>')
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            '<path d="M-34,16Q-36,-22 -14,-28Q0,-34 14,-28Q36,-22 34,16z" fill="{f}"/>' + mirrored(prong)
            + '<path d="M-39,18Q0,8 39,18L37,36Q0,26 -37,36z" fill="{e}"/>'
            '<path d="M-40,36Q0,26 40,36V44Q0,34 -40,44z" fill="{a}"/>'
            '<circle cy="-47" r="5" fill="{e}"/><circle cx="-22" cy="-41" r="3.6" fill="{e}"/><circle cx="22" cy="-41" r="3.6" fill="{e}"/>'
            '<circle cx="-44" cy="-31" r="3.6" fill="{e}"/><circle cx="44" cy="-31" r="3.6" fill="{e}"/>'
            '<path d="M0,14l6,7l-6,7l-6,-7z" fill="{f}"/><path d="M-22,17l5,6l-5,6l-5,-6zM22,17l5,6l-5,6l-5,-6z" fill="{b}"/>'
            f'<polygon points="{star(4, 8, 3, 0, -6)}" fill="{{e}}" stroke-width="1"/></g>')


def orb():
    ticks = "".join(f'<circle cx="{num(x)}" cy="{num(y)}" r="1.7" fill="{{a}}"/>' for x, y in (polar(44.5, a, 0, 8) for a in range(0, 360, 20)))
    return ('<g stroke="{d}" stroke-width="1.6" stroke-linejoin="round">'
            f'<polygon points="{star(16, 60, 46, 0, 2)}" fill="{{e}}" fill-opacity="0.55" stroke="none"/>'
            '<circle cy="8" r="48" fill="{e}"/><circle cy="8" r="41" fill="{f}"/></g>' + ticks
            + '<path d="M-30,-14Q-20,-28 -4,-30Q-22,-18 -26,-2Q-30,-6 -30,-14z" fill="{a}" fill-opacity="0.7"/>'
            '<g stroke="{d}" stroke-width="1.4" stroke-linejoin="round">'
            '<path d="M-41,4Q0,-8 41,4V14Q0,2 -41,14z" fill="{b}"/><path d="M-5,-33H5V2H-5z" fill="{b}"/>'
            '<path d="M-4,-58H4V-50H12V-42H4V-32H-4V-42H-12V-50H-4z" fill="{a}"/>'
            f'<polygon points="{star(8, 13, 6, 0, 6)}" fill="{{a}}"/><circle cy="6" r="4" fill="{{e}}"/></g>')


def great_seal():
    return f'<g transform="scale(1.32)">{varnhelm_seal()}</g>'


def sword_and_staff():
    sword = ('<g transform="translate(-88,0)"><path d="M0,-66L6,-56V20H-6V-56z" fill="{a}"/><path d="M0,-66L6,-56V20H0z" fill="{b}" stroke="none"/>'
             '<path d="M0,-60V20" stroke-width="1"/><path d="M-22,20Q-22,14 -16,16H16Q22,14 22,20Q20,28 12,25H-12Q-20,28 -22,20z" fill="{e}"/>'
             '<path d="M-4,26H4V50H-4z" fill="{f}"/><path d="M-4,32H4M-4,38H4M-4,44H4" stroke-width="1"/><circle cy="55" r="6.5" fill="{e}"/></g>')
    staff = ('<g transform="translate(88,0)"><path d="M-3.5,-30H3.5L3,62H-3z" fill="{b}"/><path d="M-5,-18H5V-10H-5zM-5,20H5V28H-5z" fill="{e}"/>'
             '<path d="M0,-24Q-20,-28 -19,-48Q-16,-60 -8,-64Q-12,-50 -9,-42Q-6,-34 0,-33Q6,-34 9,-42Q12,-50 8,-64Q16,-60 19,-48Q20,-28 0,-24z" fill="{e}"/>'
             '<circle cy="-50" r="8.5" fill="{a}"/></g>')
    sparks = "".join(f'<polygon points="{star(4, r, r * 0.3, x, y)}" fill="{{e}}"/>' for x, y, r in
                     ((116, -40, 5), (62, -58, 4), (112, 30, 4), (-116, -40, 5), (-62, -58, 4), (-112, 30, 4), (64, 52, 3.5), (-64, 52, 3.5)))
    return f'<g stroke="{{d}}" stroke-width="1.5" stroke-linejoin="round">{sword}{staff}</g>{sparks}'


def laurel():
    """A branch that rises on each side, leaf by leaf."""
    leaves, stem = "", []
    for i in range(9):
        x, y = polar(80, 150 - i * 13.5, 6, 0)
        stem.append((x, y))
        size = 1.05 - i * 0.05
        for side in (-1, 1):
            turn = 150 - i * 13.5 - 90 + side * 38
            leaves += (f'<g transform="translate({num(x)},{num(y)}) rotate({num(turn)}) scale({num(size)})">'
                       f'<path d="M0,0Q-7,-10 0,-24Q7,-10 0,0z" fill="{"{a}" if side > 0 else "{b}"}"/></g>')
    curve = "M" + "L".join(f"{num(x)},{num(y)}" for x, y in stem)
    berries = "".join(f'<circle cx="{num(x)}" cy="{num(y)}" r="2.6" fill="{{f}}"/>' for x, y in stem[1:-1:2])
    branch = (f'<path d="{curve}" fill="none" stroke="{{d}}" stroke-width="4"/><g stroke="{{d}}" stroke-width="1.2" stroke-linejoin="round">{leaves}{berries}</g>')
    return mirrored(branch)


def wide_laurel():
    return f'<g transform="scale(1.22,1.16)">{laurel()}</g>'


# ---------------------------------------------------------------- the table

def palette(o, n, r, p, q, a, b, d, e, f):
    """o outer edge, n border ground, r border ornament, p and q field from centre to edge, a to f the emblem."""
    return dict(o=o, n=n, r=r, p=p, q=q, a=a, b=b, d=d, e=e, f=f)


#     name                   field            emblem          o          n          r          p          q          a          b          d          e          f
BACKS = [
    ("Adventure",           field_rays,      compass,        palette("#3b0d0a", "#7d1d14", "#e9c46a", "#c2452d", "#7a1a12", "#fff3cf", "#d9b166", "#2c0906", "#f0c24b", "#8a4b14")),
    ("City",                field_bend,      towers,         palette("#14233f", "#274777", "#d9dfe8", "#6d97cf", "#2c5190", "#f2f0e6", "#bcbfc4", "#131c2e", "#c4533a", "#7d2f20")),
    ("Dungeon 1",           field_bricks,    portcullis,     palette("#17181b", "#3a3d43", "#b9bec6", "#6f747c", "#3d4148", "#d3d8de", "#8c929b", "#121316", "#d89b3c", "#7a531b")),
    ("Dungeon 2",           field_bricks,    crossed_keys,   palette("#1e1208", "#50351c", "#d8a85c", "#8e643a", "#4f331a", "#f4d98f", "#cf9f45", "#1d1006", "#c2402f", "#6d1f16")),
    ("Loan",                field_pale,      balance,        palette("#0f2b1c", "#1f5a3b", "#e2c66d", "#3f9467", "#1b5537", "#f6e9bd", "#c9a95a", "#0a2014", "#f2c744", "#97701b")),
    ("Purchase",            field_lozengy,   purse,          palette("#3a2608", "#8a5f17", "#fff0b8", "#e2b04a", "#a87518", "#a8683a", "#7b4522", "#2c1706", "#ffd75e", "#b27b16")),
    ("Spell",               field_stars,     book,           palette("#1d0d38", "#432278", "#d6b8ff", "#7746bd", "#37186b", "#fbf3dc", "#e0d0a8", "#170a2b", "#ffd95a", "#8e2b6b")),
    ("Varnhelm",            field_rays,      winged_helm,    palette("#0b0b0d", "#1f1f24", "#d8b04a", "#4a4a55", "#17171b", "#fbe9b2", "#c79b3a", "#0a0806", "#e9c558", "#c1342b")),
    ("Timescape",           field_stars,     hourglass,      palette("#04122a", "#0d2f5c", "#7fe0ee", "#1a5f9a", "#071f48", "#e6f7fa", "#8bb4c8", "#03101f", "#6fe3d6", "#123a63")),
    ("Purchase Timescape",  field_lozengy,   dial_coin,      palette("#05282d", "#0f5a63", "#f2d27a", "#2b97a0", "#0c5058", "#fdf1c8", "#c79a3e", "#041b1f", "#f0c650", "#8a5f16")),
    ("Warrant",             field_chevrons,  sealed_scroll,  palette("#2b2417", "#6d5c39", "#f3e7c4", "#b9a26a", "#79663b", "#fbf4de", "#dccb9c", "#241c0e", "#d03a34", "#8f1d1c")),
    ("Faeries",             field_stars,     butterfly,      palette("#4a1a44", "#96468a", "#ffe3f6", "#eaa0d2", "#a64f98", "#ffffff", "#ffd0ee", "#3d1338", "#b6f0a6", "#6ad0d8")),
    ("Island",              field_waves,     palm_island,    palette("#06384a", "#0e7f9b", "#fff2bf", "#57c9df", "#128aa8", "#fdf6d8", "#efcf86", "#06303d", "#4fae4a", "#8b5a2b")),
    ("Mystic Brew",         field_scales,    cauldron,       palette("#10210a", "#2d5218", "#c9f06a", "#5b8f2e", "#274a15", "#9a93a8", "#5c5568", "#100e16", "#c6f24e", "#e8832a")),
    ("Contract",            field_quarterly, quill,          palette("#231511", "#5b3327", "#ecd9b4", "#a4674e", "#5c2f22", "#fbf6e8", "#e9d8ae", "#1e110d", "#7fb2d8", "#2c4c74")),
    ("Diablo II",           field_bend,      shield_chevron, palette("#142423", "#31524f", "#d8e2dc", "#7fa59d", "#3f6660", "#eef3ee", "#2f6f6a", "#0f1c1b", "#f1cf6a", "#8f6a1c")),
    ("Diablo II Artifact",  field_quarterly, lozenge_cup,    palette("#2e1c2c", "#664060", "#ead9e6", "#b58aab", "#70486a", "#f5edf2", "#8d5f86", "#23131f", "#f1c85a", "#54304f")),
    ("Cursed Swamp",        field_waves,     swamp,          palette("#121a10", "#33452a", "#a9bf74", "#64794a", "#2b3b22", "#e9edb8", "#8fae4c", "#0d140a", "#b7f25a", "#2e3a1c")),
    ("Transformations",     field_rays,      ring_serpent,   palette("#3a1405", "#8c3d0e", "#ffd9a0", "#e9873a", "#9b430f", "#bfe3a0", "#5c9c52", "#241005", "#ffe27a", "#6a4fae")),
    ("Space Hulk",          field_plain,     shield_pale,    palette("#141c27", "#36485d", "#c3d2e0", "#8fa5ba", "#4b6078", "#f0f4f7", "#40648c", "#101822", "#f2d06a", "#27415f")),
    ("Realm Of Chaos",      field_lozengy,   shield_chequy,  palette("#2a0714", "#6b1533", "#f2c8a0", "#a8365c", "#61102d", "#fbeccb", "#f0e4d0", "#22050f", "#efc14e", "#1f3d63")),
    ("Trolls",              field_chevrons,  troll_mask,     palette("#1a2412", "#465a32", "#d6dfae", "#98a768", "#51663a", "#8fb05e", "#a07a4c", "#141b0c", "#fff0c4", "#4c6a2e")),
    ("Trolls Treasure",     field_scales,    chest,          palette("#1f2a10", "#55651f", "#ffe48a", "#a3ad3e", "#59671f", "#ffe9a0", "#9a6233", "#1d1408", "#f6c83c", "#6b5a46")),
    ("Sea Realm",           field_scales,    trident,        palette("#04172e", "#0b3a66", "#a8e6df", "#1f77a8", "#08305c", "#eafaf2", "#7cc4b8", "#031224", "#ff9f6b", "#0d4a73")),
    ("Desert",              field_plain,     desert,         palette("#5a3412", "#b5752f", "#fff1cf", "#8fd0e8", "#e6b96a", "#ffe9a8", "#e2a453", "#4a280c", "#f39a3a", "#4f7a3a")),
    ("Warlock's Maze",      field_plain,     maze,           palette("#120a1f", "#2c1a4a", "#ff9a5c", "#4b3078", "#1c0f33", "#e9dcc4", "#b09a78", "#0e0718", "#ff8a3c", "#3a245e")),
    ("Blank",               field_plain,     blank,          palette("#2b2b2b", "#6a6a6a", "#e6e6e6", "#f6f3ea", "#e6e0d0", "#ffffff", "#cccccc", "#222222", "#bbbbbb", "#777777")),
]

DEFAULT = (None, field_lozengy, varnhelm_seal,
           palette("#160d06", "#3d2413", "#d8b04a", "#6d4526", "#2e1a0d", "#f6e2a6", "#b98d3c", "#120a04", "#8a2a20", "#4d1712"))


#     title               shape      name         field          emblem      ornament         palette
WIDE_BACKS = [
    ("Character",         CHARACTER, "STANDARD",  field_rays,    arms,       sword_and_staff, palette("#0c1730", "#20386c", "#d9c58a", "#3f66ad", "#182a57", "#f3f1e6", "#b9c2cf", "#0a1122", "#e8bf56", "#8a2434")),
    ("Master character",  CHARACTER, "MASTER 1",  field_lozengy, crown,      laurel,          palette("#2a070b", "#74161f", "#f0cf74", "#a92a34", "#5c0f18", "#ffe9a0", "#d9a53c", "#220507", "#f4f0e2", "#3a6a8f")),
    ("Master character",  CHARACTER, "MASTER 2",  field_lozengy, orb,        laurel,          palette("#081c14", "#17503a", "#e6d79a", "#2f8a62", "#0f4230", "#f4efd6", "#b7c79a", "#061510", "#ecc255", "#5a2f78")),
    ("Varnhelm",          LARGE,     None,        field_lozengy, great_seal, wide_laurel,     DEFAULT[3]),
]


# ---------------------------------------------------------------- the parts of a back

def border(p, shape):
    """The outer edge, the band with its row of lozenges and beads, and the four corner roses."""
    width, height = shape.width, shape.height
    band = [f'<rect width="{width}" height="{height}" fill="{p["o"]}"/>',
            f'<rect x="4" y="4" width="{width - 8}" height="{height - 8}" fill="{p["n"]}"/>',
            f'<rect x="4.5" y="4.5" width="{width - 9}" height="{height - 9}" fill="none" stroke="{p["r"]}"/>',
            f'<rect x="17" y="17" width="{width - 34}" height="{height - 34}" fill="{p["o"]}"/>']
    lozenges = beads = ""
    step = (width - 54) / (shape.across - 1)
    for i in range(shape.across):  # along the top and the bottom
        x = 27 + step * i
        for y in (11, height - 11):
            lozenges += f"M{num(x - 5)},{y}l5,-3.6l5,3.6l-5,3.6z"
            if i < shape.across - 1:
                beads += f'<circle cx="{num(x + step / 2)}" cy="{y}" r="1.6"/>'
    step = (height - 54) / (shape.down - 1)
    for i in range(shape.down):  # along the sides
        y = num(27 + step * i)
        for x in (11, width - 11):
            lozenges += f"M{x},{num(float(y) - 5)}l3.6,5l-3.6,5l-3.6,-5z"
            if i < shape.down - 1:
                beads += f'<circle cx="{x}" cy="{num(float(y) + step / 2)}" r="1.6"/>'
    band.append(f'<path d="{lozenges}" fill="{p["r"]}"/><g fill="{p["r"]}">{beads}</g>')
    for x in (11, width - 11):
        for y in (11, height - 11):
            band.append(f'<g transform="translate({x},{y})"><rect x="-9" y="-9" width="18" height="18" fill="{p["o"]}" stroke="{p["r"]}" stroke-width="1"/>'
                        f'<polygon points="{star(8, 7.6, 3.4)}" fill="{p["r"]}"/><circle r="2.4" fill="{p["n"]}"/></g>')
    return "\n".join(band)


def panel(p, shape):
    """The field with its inner line, whose corners are cut."""
    left, top, right, bottom = shape.panel
    return (f'<defs><radialGradient id="field" gradientUnits="userSpaceOnUse" cx="{shape.centre[0]}" cy="105" r="{130 if shape is STANDARD else 170}">'
            f'<stop offset="0" stop-color="{p["p"]}"/><stop offset="1" stop-color="{p["q"]}"/></radialGradient></defs>\n'
            f'<rect x="{left}" y="{top}" width="{right - left}" height="{bottom - top}" fill="url(#field)"/>')


def inner_line(p, shape):
    right, bottom = shape.width - 23, shape.height - 23
    return (f'<path d="M28,23H{right - 5}Q{right - 5},28 {right},28V{bottom - 5}Q{right - 5},{bottom - 5} {right - 5},{bottom}'
            f'H28Q28,{bottom - 5} 23,{bottom - 5}V28Q28,28 28,23z" fill="none" '
            f'stroke="{p["r"]}" stroke-width="1" stroke-opacity="0.85"/>')


def width_of(text, size):
    return sum(ADVANCE[c] for c in text) * size / 1000


def name_plate(name, p):
    """The plate at the foot with the name in one or two lines, as large as it allows."""
    words = name.upper().split(" ")
    lines = [" ".join(words)]
    if width_of(lines[0], 13) > 92:
        best = min(range(1, len(words)), key=lambda i: max(width_of(" ".join(words[:i]), 1), width_of(" ".join(words[i:]), 1)), default=0)
        if best:
            lines = [" ".join(words[:best]), " ".join(words[best:])]
    size = min([14.5 if len(lines) == 1 else 12.5] + [91 / width_of(line, 1) for line in lines])
    height = 24 if len(lines) == 1 else 36
    top = 224 - height
    step = 14.5
    base = top + height / 2 + size * 0.33 - (len(lines) - 1) * step / 2
    text = "".join(f'<text x="75" y="{num(base + i * step)}" font-family="Liberation Serif" font-weight="bold" font-size="{num(size)}" '
                   f'text-anchor="middle" fill="{p["r"]}">{line}</text>' for i, line in enumerate(lines))
    mid = top + height / 2
    return (f'<path d="M27,{top}H123L127,{num(mid)}L123,{top + height}H27L23,{num(mid)}z" fill="{p["o"]}" stroke="{p["r"]}" stroke-width="1.2"/>\n'
            f'{text}')


def coloured(drawing, p):
    for key, colour in p.items():
        drawing = drawing.replace("{" + key + "}", colour)
    return drawing


def document(title, shape, parts):
    head = ['<?xml version="1.0" encoding="UTF-8"?>',
            f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{shape.width}" height="{shape.height}" '
            f'viewBox="0 0 {shape.width} {shape.height}">', f'<title>{title}</title>']
    return "\n".join(part for part in head + parts + ["</svg>"] if part) + "\n"


def card_back(name, field, emblem, p):
    drawing = coloured(emblem(), p)
    centre = STANDARD.centre if name else (75, 127)
    parts = [border(p, STANDARD), panel(p, STANDARD), field(p, STANDARD), inner_line(p, STANDARD)]
    if drawing:
        parts.append(f'<g transform="translate({centre[0]},{centre[1]})">{drawing}</g>')
    if name and emblem is not blank:
        parts.append(name_plate(name, p))
    return document(name or "Varnhelm", STANDARD, parts)


def wide_back(title, shape, name, field, emblem, side, p):
    """A back of double width: the emblem between two ornaments, and the plate if the back has a name."""
    x, y = shape.centre
    parts = [border(p, shape), panel(p, shape), field(p, shape), inner_line(p, shape),
             f'<g transform="translate({num(x)},{num(y)})">{coloured(side(), p)}{coloured(emblem(), p)}</g>']
    if name:
        parts.append(f'<g transform="translate({num(x - 75)},0)">{name_plate(name, p)}</g>')
    return document(title, shape, parts)


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
