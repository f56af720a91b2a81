# SPDX-License-Identifier: GPL-3.0-or-later
"""The border of all backs: plaited bands between carved corners.

Colours: o the ground, r and m the light and the deep tone of what is cut into it.
"""

from woodcut import num, pair, polar

EDGE = 15.5  # width of the border
INK = "#17120f"


def plait(x1, y1, x2, y2, p):
    """Two plaited strands between two points, level or upright, with a bead in each eye."""
    length = abs(x2 - x1) + abs(y2 - y1)
    count = max(2, round(length / 6.6))
    step = length / count
    upright = x1 == x2

    def spot(along, across):
        return (x1 + across, y1 + along) if upright else (x1 + along, y1 + across)

    falling, rising = "", ""
    for i in range(count):
        start, end, third = i * step, (i + 1) * step, step * 0.5
        falling += f"M{pair(spot(start, -2.5))}C{pair(spot(start + third, -2.5))} {pair(spot(end - third, 2.5))} {pair(spot(end, 2.5))}"
        rising += f"M{pair(spot(start, 2.5))}C{pair(spot(start + third, 2.5))} {pair(spot(end - third, -2.5))} {pair(spot(end, -2.5))}"
    wide, slim = 'stroke-width="3.5"', 'stroke-width="2"'
    beads = "".join(f"M{num(x - 1)},{num(y)}l1,-1l1,1l-1,1z" for x, y in (spot(i * step, 0) for i in range(1, count)))
    return (f'<g fill="none" stroke-linecap="round"><path d="{rising}" stroke="{INK}" {wide}/><path d="{rising}" stroke="{p["m"]}" {slim}/>'
            f'<path d="{falling}" stroke="{INK}" {wide}/><path d="{falling}" stroke="{p["r"]}" {slim}/></g><path d="{beads}" fill="{p["r"]}"/>')


def corner(x, y, p):
    """A carved rose in its square, every petal half in shadow."""
    half = EDGE / 2 - 1
    parts = [f'<path d="M{num(x - half)},{num(y - half)}h{num(2 * half)}v{num(2 * half)}h{num(-2 * half)}z" fill="{p["o"]}" stroke="{p["r"]}" stroke-width="1"/>']
    light, dark = "", ""
    for turn in range(0, 360, 45):
        long = 5.6 if turn % 90 == 0 else 6.4
        tip, one, two = polar(long, turn, x, y), polar(long * 0.5, turn - 22, x, y), polar(long * 0.5, turn + 22, x, y)
        light += f"M{num(x)},{num(y)}L{pair(one)}L{pair(tip)}z"
        dark += f"M{num(x)},{num(y)}L{pair(two)}L{pair(tip)}z"
    parts.append(f'<path d="{light}" fill="{p["r"]}"/><path d="{dark}" fill="{p["m"]}"/>')
    parts.append(f'<circle cx="{num(x)}" cy="{num(y)}" r="1.3" fill="{p["o"]}"/>')
    return "".join(parts)


def border(p, width, height):
    middle = EDGE / 2
    parts = [f'<rect width="{width}" height="{height}" fill="{INK}"/>',
             f'<rect x="1" y="1" width="{width - 2}" height="{height - 2}" fill="{p["o"]}"/>']
    for left, y1, right, y2 in ((EDGE + 2, middle, width - EDGE - 2, middle), (EDGE + 2, height - middle, width - EDGE - 2, height - middle),
                                (middle, EDGE + 2, middle, height - EDGE - 2), (width - middle, EDGE + 2, width - middle, height - EDGE - 2)):
        parts.append(plait(left, y1, right, y2, p))
    for x in (middle, width - middle):
        for y in (middle, height - middle):
            parts.append(corner(x, y, p))
    for inset, stroke, weight in ((1.5, p["r"], 1), (EDGE - 1.2, p["r"], 1)):
        parts.append(f'<rect x="{num(inset)}" y="{num(inset)}" width="{num(width - 2 * inset)}" height="{num(height - 2 * inset)}" '
                     f'fill="none" stroke="{stroke}" stroke-width="{weight}"/>')
    return "\n".join(parts)
