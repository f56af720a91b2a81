# SPDX-License-Identifier: GPL-3.0-or-later
"""The tools of the woodcutter: outlines from few points, engraved shading, cut lines.

All art of the program is drawn with them. An outline is a string of points, "x,y x,y ...", through which
a smooth curve is laid; a point with "!" behind it is a corner. Shading is made of tapered cuts, as a knife
leaves them: parallel lines across the outline, thick at the edge in shadow and running out to nothing. The
light comes from the upper left.

A Cut collects the shapes of one drawing. Its colours are the keys of a palette or plain "#rrggbb". Only
filled and stroked paths and gradients come out, so that a small SVG renderer shows them in a moment.
"""

import math
from contextlib import contextmanager


def num(value):
    """A coordinate with at most two decimals and no idle zeros."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("", "-0") else text


def pair(point):
    return f"{num(point[0])},{num(point[1])}"


def rough(point):
    """A point of a cut, where a tenth is fine enough."""
    return f"{point[0]:.1f},{point[1]:.1f}"


def rough(point):
    """A point of a cut, where a tenth is fine enough."""
    return f"{point[0]:.1f},{point[1]:.1f}"


def polar(radius, degrees, x=0.0, y=0.0):
    """A point at a distance and a compass bearing: 0 is up, 90 is right."""
    angle = math.radians(degrees)
    return x + radius * math.sin(angle), y - radius * math.cos(angle)


def parse(text):
    """The points of an outline, each (x, y, whether it is a corner)."""
    if not isinstance(text, str):
        return [(p[0], p[1], bool(p[2]) if len(p) > 2 else False) for p in text]
    found = []
    for word in text.split():
        x, y = word.rstrip("!").split(",")
        found.append((float(x), float(y), word.endswith("!")))
    return found


def sharp(pairs):
    """Points that are all corners."""
    return [(x, y, True) for x, y in pairs]


def symmetric(text):
    """The right half of an outline, from top to bottom, and its mirror image back up."""
    half = parse(text)
    return half + [(-x, y, c) for x, y, c in reversed(half) if abs(x) > 1e-6]


def ellipse(x, y, rx, ry=None, turn=0.0):
    ry = rx if ry is None else ry
    a = math.radians(turn)
    ring = [(rx * math.sin(t), -ry * math.cos(t)) for t in (i * math.pi / 6 for i in range(12))]
    return [(x + u * math.cos(a) - v * math.sin(a), y + u * math.sin(a) + v * math.cos(a), False) for u, v in ring]


def rectangle(left, top, right, bottom):
    return sharp([(left, top), (right, top), (right, bottom), (left, bottom)])


def star(tips, outer, inner, x=0.0, y=0.0, turn=0.0):
    step = 180 / tips
    return sharp(polar(outer if i % 2 == 0 else inner, turn + i * step, x, y) for i in range(2 * tips))


def segments(points, closed=True):
    """The cubic curves through the points: (start, handle, handle, end) each."""
    count = len(points)

    def heading(i):
        x, y, corner = points[i]
        if corner or (not closed and i in (0, count - 1)):
            return None
        before, after = points[i - 1], points[(i + 1) % count]
        dx, dy = after[0] - before[0], after[1] - before[1]
        size = math.hypot(dx, dy) or 1
        return dx / size, dy / size

    found = []
    for i in range(count if closed else count - 1):
        j = (i + 1) % count
        p, q = points[i][:2], points[j][:2]
        reach = math.hypot(q[0] - p[0], q[1] - p[1]) * 0.37
        out, into = heading(i), heading(j)
        if out is None and into is None:
            found.append((p, p, q, q))
            continue
        h1 = (p[0] + out[0] * reach, p[1] + out[1] * reach) if out else p
        h2 = (q[0] - into[0] * reach, q[1] - into[1] * reach) if into else q
        if out is None:
            h1 = (p[0] + (h2[0] - p[0]) * 0.5, p[1] + (h2[1] - p[1]) * 0.5)
        if into is None:
            h2 = (q[0] + (h1[0] - q[0]) * 0.5, q[1] + (h1[1] - q[1]) * 0.5)
        found.append((p, h1, h2, q))
    return found


def bezier(segment, t):
    p, h1, h2, q = segment
    s = 1 - t
    return tuple(s * s * s * p[k] + 3 * s * s * t * h1[k] + 3 * s * t * t * h2[k] + t * t * t * q[k] for k in (0, 1))


def flattened(points, closed=True, steps=7, divide=False):
    """The curves as short straight pieces; what is straight stays whole unless it is to be divided."""
    outline = []
    for segment in segments(points, closed):
        straight = not divide and segment[0] == segment[1] and segment[2] == segment[3]
        outline += [segment[0]] if straight else [bezier(segment, i / steps) for i in range(steps)]
    if not closed:
        outline.append(points[-1][:2])
    return outline


def path_data(points, closed=True):
    curves = segments(points, closed)
    text = "M" + pair(curves[0][0])
    for p, h1, h2, q in curves:
        text += "L" + pair(q) if p == h1 and h2 == q else "C" + " ".join(pair(x) for x in (h1, h2, q))
    return text + ("z" if closed else "")


def chords(outline, angle, gap, bow, offset=0.0):
    """Where parallel lines cross an outline: (height, from, to) in the turned plane."""
    a = math.radians(angle)
    turned = []
    for x, y in outline:
        u, v = x * math.cos(a) + y * math.sin(a), -x * math.sin(a) + y * math.cos(a)
        turned.append((u, v - bow * u * u))
    low, high = min(v for _, v in turned), max(v for _, v in turned)
    v = low + gap * (0.5 + offset)
    while v < high:
        hits = []
        for (u1, v1), (u2, v2) in zip(turned, turned[1:] + turned[:1]):
            if (v1 <= v < v2) or (v2 <= v < v1):
                hits.append(u1 + (v - v1) / (v2 - v1) * (u2 - u1))
        hits.sort()
        yield from ((v, hits[i], hits[i + 1]) for i in range(0, len(hits) - 1, 2))
        v += gap


def hatching(outline, angle=0.0, gap=2.6, reach=0.45, width=1.3, most=1e9, bow=0.0, both=0.0, offset=0.0):
    """Tapered cuts that start at the shadow side of an outline: the path's data.

    reach is how much of the chord a cut takes, most the longest cut, bow how much the lines bend,
    both the share of a lighter row of cuts from the other side."""
    a = math.radians(angle)
    rhythm = (1.0, 0.72, 0.9, 0.62)

    def back(u, v):
        v += bow * u * u
        return rough((u * math.cos(a) - v * math.sin(a), u * math.sin(a) + v * math.cos(a)))

    def wedge(start, end, v, thick):
        middle = (start + end) / 2
        return (f"M{back(start, v - thick / 2)}L{back(middle, v - thick * 0.32)}L{back(end, v)}"
                f"L{back(middle, v + thick * 0.32)}L{back(start, v + thick / 2)}z")

    text = ""
    for count, (v, left, right) in enumerate(chords(outline, angle, gap, bow, offset)):
        size = right - left
        if size < 1.2:
            continue
        cut = min(size * reach, most) * rhythm[count % 4]
        text += wedge(right, right - cut, v, width)
        if both:
            text += wedge(left, left + min(size * both, most) * rhythm[(count + 2) % 4], v, width * 0.8)
    return text


def tapered(points, width, ends="both"):
    """The outline of a line that swells and runs out: a cut of the knife."""
    spread = abs(points[0][0] - points[-1][0]) + abs(points[0][1] - points[-1][1])
    line = flattened(points, False, 6 if spread > 14 or len(points) == 2 else 4, divide=ends != "none")
    size = len(line) - 1
    left, right = [], []
    for i, (x, y) in enumerate(line):
        before, after = line[max(i - 1, 0)], line[min(i + 1, size)]
        dx, dy = after[0] - before[0], after[1] - before[1]
        length = math.hypot(dx, dy) or 1
        t = i / size
        swell = {"both": math.sin(math.pi * t) ** 0.7 if 0 < t < 1 else 0.0, "end": (1 - t) ** 0.7, "start": t ** 0.7, "none": 1.0}[ends]
        half = width / 2 * max(swell, 0.06)
        left.append((x - dy / length * half, y + dx / length * half))
        right.append((x + dy / length * half, y - dx / length * half))
    return "M" + "L".join(rough(p) for p in left + right[::-1]) + "z"


class Cut:
    """The shapes of one drawing, in the order in which they are laid."""

    INK = "k"

    def __init__(self, palette, weight=1.5):
        self.palette = palette
        self.weight = weight  # of the outlines
        self.parts = []
        self.matrix = (1, 0, 0, 1, 0, 0)

    def __str__(self):
        return "\n".join(self.parts)

    def colour(self, key):
        return self.palette.get(key, key)

    @contextmanager
    def at(self, x=0.0, y=0.0, scale=1.0, turn=0.0, flip=False):
        """Moves what is drawn inside; shading and line weights stay as they are."""
        kept = self.matrix
        a, b, c, d, e, f = kept
        t = math.radians(-turn if flip else turn)
        sx = -scale if flip else scale
        m = (sx * math.cos(t), sx * math.sin(t), -scale * math.sin(t), scale * math.cos(t), x, y)
        self.matrix = (a * m[0] + c * m[1], b * m[0] + d * m[1], a * m[2] + c * m[3], b * m[2] + d * m[3],
                       a * m[4] + c * m[5] + e, b * m[4] + d * m[5] + f)
        yield
        self.matrix = kept

    def both(self, draw, *arguments, **more):
        """Draws something, and its mirror image."""
        draw(self, *arguments, **more)
        with self.at(flip=True):
            draw(self, *arguments, **more)

    def placed(self, points):
        a, b, c, d, e, f = self.matrix
        return [(a * x + c * y + e, b * x + d * y + f, corner) for x, y, corner in parse(points)]

    def raw(self, text):
        self.parts.append(text)

    def shape(self, points, fill, ink="k", weight=None, **shade):
        """A filled outline with its shading: angle, gap, reach, width, most, bow, both as of hatching, and tone, its colour."""
        placed = self.placed(points)
        data = path_data(placed)
        if fill:
            self.raw(f'<path d="{data}" fill="{self.colour(fill)}"/>')
        if shade:
            tone = shade.pop("tone", "k")
            cuts = hatching(flattened(placed), **shade)
            if cuts:
                self.raw(f'<path d="{cuts}" fill="{self.colour(tone)}"/>')
        weight = self.weight if weight is None else weight
        if ink and weight:
            self.raw(f'<path d="{data}" fill="none" stroke="{self.colour(ink)}" stroke-width="{num(weight)}" stroke-linejoin="round"/>')

    def sym(self, half, fill, **more):
        self.shape(symmetric(half), fill, **more)

    def dot(self, x, y, r, fill, ry=None, turn=0.0, **more):
        self.shape(ellipse(x, y, r, ry, turn), fill, **more)

    def line(self, points, width=1.4, ink="k", ends="both"):
        """One cut of the knife, or several: points is a text or a list of texts."""
        many = points if isinstance(points, list) and points and isinstance(points[0], str) else [points]
        data = "".join(tapered(self.placed(p), width, ends) for p in many)
        self.raw(f'<path d="{data}" fill="{self.colour(ink)}"/>')

    def rope(self, points, width, fill, ink="k", weight=None, closed=False):
        """A band of even width with an outline: stalks, straps, chains' shadows."""
        data = path_data(self.placed(points), closed)
        rim = self.weight if weight is None else weight
        head = f'<path d="{data}" fill="none" stroke-linecap="round" stroke-linejoin="round"'
        if ink and rim:
            self.raw(f'{head} stroke="{self.colour(ink)}" stroke-width="{num(width + 2 * rim)}"/>')
        self.raw(f'{head} stroke="{self.colour(fill)}" stroke-width="{num(width)}"/>')


def document(title, width, height, parts):
    head = ['<?xml version="1.0" encoding="UTF-8"?>',
            f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">', f"<title>{title}</title>"]
    return "\n".join(str(part) for part in head + list(parts) + ["</svg>"] if str(part)) + "\n"
