#!/usr/bin/env python3
"""Draws the 52 playing cards and their back as small SVG files.

Run it without arguments; it rewrites cards/01.svg .. cards/53.svg beside this script. The result
depends on nothing but this file, so a run on an unchanged script leaves no difference behind.
All lengths are logical pixels: a card measures 71 by 96.
"""

import math
import os
import re

CARD_W, CARD_H = 71, 96
RED, BLACK = "#C8102E", "#14141C"
INK, GOLD, DEEPGOLD, BLUE, CREAM = "#1A1A2B", "#F3BC3C", "#B97F14", "#1F4396", "#FFF8E7"
SKIN, SKIN_SHADE, STEEL, GREEN = "#FBDFC3", "#EDBE98", "#CBD5E1", "#2E7D4F"
SUITS = ("spade", "club", "diamond", "heart")
VALUES = ("A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K")

# Middle of the free field between the left and the right patches; not the middle of the card,
# because the patches of the two sides differ in width.
MID_X, MID_Y = 35.3, 48.0

# ---------------------------------------------------------------- paths


def num(v):
    """A number as short as SVG allows, to a hundredth of a pixel."""
    s = f"{v:.2f}".rstrip("0").rstrip(".")
    return "0" if s in ("-0", "") else s


def parse(d):
    """Splits absolute M/L/C/Q/Z path data into [(command, [(x, y), ...]), ...]."""
    out = []
    for cmd, body in re.findall(r"([MLCQZ])([^MLCQZ]*)", d):
        v = [float(t) for t in re.findall(r"-?\d*\.?\d+(?:e-?\d+)?", body)]
        pts = list(zip(v[0::2], v[1::2]))
        step = {"M": 1, "L": 1, "C": 3, "Q": 2, "Z": 0}[cmd]
        if step == 0:
            out.append((cmd, []))
        for i in range(0, len(pts), step or 1):
            out.append(("L" if cmd == "M" and i else cmd, pts[i:i + step]))
    return out


def unparse(segs):
    return "".join(c + " ".join(f"{num(x)} {num(y)}" for x, y in p) for c, p in segs)


def moved(d, fn):
    """Path data with every point sent through fn(x, y)."""
    return unparse([(c, [fn(x, y) for x, y in p]) for c, p in parse(d)])


def placed(d, cx, cy, sx, sy=None, turn=False):
    """Path data scaled and moved to cx, cy; upside down if turn."""
    sy = sx if sy is None else sy
    s = -1 if turn else 1
    return moved(d, lambda x, y: (cx + s * sx * x, cy + s * sy * y))


def flatten(d, n=8):
    """Path data as [(points, closed), ...], each curve cut into n pieces."""
    runs, cur, closed = [], [], False
    for c, p in parse(d):
        if c == "M":
            if cur:
                runs.append((cur, closed))
            cur, closed = [p[0]], False
        elif c == "L":
            cur.append(p[0])
        elif c == "Z":
            closed = True
        else:
            ctrl = [cur[-1]] + p
            for i in range(1, n + 1):
                q, t = ctrl, i / n
                while len(q) > 1:
                    q = [(a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t)
                         for a, b in zip(q, q[1:])]
                cur.append(q[0])
    if cur:
        runs.append((cur, closed))
    return runs


def cut(pts, closed, side):
    """The parts of one run of points where side(x, y) >= 0, as [(points, closed), ...]."""
    parts, cur, pairs = [], [], list(zip(pts, pts[1:] + (pts[:1] if closed else [])))
    if not closed and side(*pts[0]) >= 0:
        cur.append(pts[0])
    for a, b in pairs:
        sa, sb = side(*a), side(*b)
        if (sa >= 0) != (sb >= 0):
            t = sa / (sa - sb)
            cur.append((a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t))
            if sb < 0 and not closed:
                parts.append(cur)
                cur = []
        if sb >= 0:
            cur.append(b)
    if len(cur) > 1:
        parts.append(cur)
    return [(p, closed) for p in parts]


def cut_path(d, sides):
    """Path data limited to the convex field described by sides; untouched if it lies within."""
    pts = [q for _, p in parse(d) for q in p]
    if all(s(*q) >= 0 for q in pts for s in sides):
        return d
    runs = flatten(d)
    for s in sides:
        runs = [r for pts, closed in runs for r in cut(pts, closed, s)]
    return "".join("M" + "L".join(f"{num(x)} {num(y)}" for x, y in p) + ("Z" if c else "")
                   for p, c in runs)


def convex(corners):
    """Sides of a convex field given its corners clockwise on the screen."""
    def side(a, b):
        return lambda x, y: (b[0] - a[0]) * (y - a[1]) - (b[1] - a[1]) * (x - a[0])
    return [side(a, b) for a, b in zip(corners, corners[1:] + corners[:1])]


def oval(cx, cy, rx, ry=None):
    ry = rx if ry is None else ry
    k = 0.5523
    return (f"M{cx - rx} {cy}C{cx - rx} {cy - k * ry} {cx - k * rx} {cy - ry} {cx} {cy - ry}"
            f"C{cx + k * rx} {cy - ry} {cx + rx} {cy - k * ry} {cx + rx} {cy}"
            f"C{cx + rx} {cy + k * ry} {cx + k * rx} {cy + ry} {cx} {cy + ry}"
            f"C{cx - k * rx} {cy + ry} {cx - rx} {cy + k * ry} {cx - rx} {cy}Z")


def box(x, y, w, h):
    return f"M{x} {y}L{x + w} {y}L{x + w} {y + h}L{x} {y + h}Z"


def lozenge(cx, cy, rx, ry):
    return f"M{cx} {cy - ry}L{cx + rx} {cy}L{cx} {cy + ry}L{cx - rx} {cy}Z"


def arcs(segs):
    """Path data of two half arcs if segs draw a whole oval from its left or right end, else None."""
    if [c for c, _ in segs] != ["M", "C", "C", "C", "C", "Z"]:
        return None
    (x0, y0), (x1, y1), (x2, y2), (x3, y3) = (segs[i][1][-1] for i in range(4))
    rx, ry, middle = abs(x2 - x0) / 2, abs(y1 - y0), (x0 + x2) / 2
    ends = (y2 - y0, x1 - middle, x3 - middle, y1 + y3 - 2 * y0, segs[1][1][0][0] - x0)
    if max(abs(e) for e in ends) > 0.001:
        return None
    turn = int((x1 - x0) * (y1 - y0) < 0)
    half = f"{num(rx)} {num(ry)} 0 1 {turn} "
    return f"M{num(x0)} {num(y0)}a{half}{num(x2 - x0)} 0 {half}{num(x0 - x2)} 0z"


def packed(d):
    """Path data in relative commands and whole hundredths, a good third shorter."""
    parts, segs = [], []
    for seg in parse(d):
        if seg[0] == "M" and segs:
            parts.append(arcs(segs) or shortened(segs))
            segs = []
        segs.append(seg)
    return "".join(parts) + (arcs(segs) or shortened(segs))


def shortened(segs):
    out, cur, start, last = [], (0, 0), (0, 0), ""
    for c, p in segs:
        q = [(round(x * 100), round(y * 100)) for x, y in p]
        if c == "Z":
            out.append("z")
            cur = start
        else:
            cmd = c if c == "M" else c.lower()
            base = (0, 0) if c == "M" else cur
            body = ""
            for x, y in q:
                for v in (x - base[0], y - base[1]):
                    t = num(v / 100)
                    t = t.replace("0.", ".", 1) if t.startswith(("0.", "-0.")) else t
                    body += t if t[0] == "-" or not body else " " + t
            if cmd == last and cmd != "M":
                out.append(body if body[0] == "-" else " " + body)
            else:
                out.append(cmd + body)
            cur = q[-1]
            if c == "M":
                start = cur
        last = "z" if c == "Z" else cmd
    return "".join(out)


def polygon(corners, cx, cy):
    """Closed polygon from (radius, angle) pairs; angle 0 points up."""
    return "M" + "L".join(f"{cx + r * math.sin(a):.3f} {cy - r * math.cos(a):.3f}" for r,
                          a in corners) + "Z"


def stud(radius):
    """Corners of an octagon: as good as a circle at this size, and far shorter."""
    return [(radius, math.pi * (i + 0.5) / 4) for i in range(8)]


def element(d, fill="none", stroke=None, sw=0.4):
    line = f' stroke="{stroke}" stroke-width="{num(sw)}"' if stroke else ""
    return f'<path d="{packed(d)}" fill="{fill}"{line}/>'


# ---------------------------------------------------------------- suits
# Every suit fits the square -0.5 .. 0.5; the second entry is its width relative to its height.

SUIT_PATHS = {
    "heart": "M0 .5C-.09 .33 -.5 .06 -.5 -.22C-.5 -.39 -.39 -.5 -.255 -.5"
    "C-.13 -.5 -.04 -.42 0 -.29C.04 -.42 .13 -.5 .255 -.5C.39 -.5 .5 -.39 .5 -.22"
    "C.5 .06 .09 .33 0 .5Z",
    "diamond": "M0 -.5C.12 -.28 .28 -.1 .42 0C.28 .1 .12 .28 0 .5C-.12 .28 -.28 .1 -.42 0"
    "C-.28 -.1 -.12 -.28 0 -.5Z",
    "spade": "M0 -.5C.08 -.32 .48 -.1 .48 .16C.48 .3 .38 .37 .27 .37C.18 .37 .1 .33 .05 .26"
    "C.06 .36 .1 .44 .2 .5L-.2 .5C-.1 .44 -.06 .36 -.05 .26C-.1 .33 -.18 .37 -.27 .37"
    "C-.38 .37 -.48 .3 -.48 .16C-.48 -.1 -.08 -.32 0 -.5Z",
    "club": "M-.045 .15C-.1 .27 -.18 .33 -.275 .33C-.4 .33 -.5 .23 -.5 .105"
    "C-.5 -.02 -.4 -.115 -.28 -.115C-.22 -.115 -.17 -.1 -.13 -.07"
    "C-.19 -.12 -.23 -.19 -.23 -.27C-.23 -.4 -.13 -.5 0 -.5C.13 -.5 .23 -.4 .23 -.27"
    "C.23 -.19 .19 -.12 .13 -.07C.17 -.1 .22 -.115 .28 -.115C.4 -.115 .5 -.02 .5 .105"
    "C.5 .23 .4 .33 .275 .33C.18 .33 .1 .27 .045 .15C.055 .33 .1 .43 .2 .5L-.2 .5"
    "C-.1 .43 -.055 .33 -.045 .15Z",
}


def colour_of(suit):
    return RED if suit in ("diamond", "heart") else BLACK


# ---------------------------------------------------------------- value glyphs
# Glyphs are skeletons on a field about 100 high. A "pen" stroke is thick where it runs upright and
# thin where it runs level, a "bowl" is a closed oval drawn with the same pen.

THICK, THIN = 21, 11.5


def pen(d, thick=THICK, thin=THIN):
    """Outline of an open skeleton drawn with the pen."""
    pts = flatten(d, 14)[0][0]
    left, right = [], []
    for i, (x, y) in enumerate(pts):
        ax, ay = pts[max(i - 1, 0)]
        bx, by = pts[min(i + 1, len(pts) - 1)]
        dx, dy = bx - ax, by - ay
        ln = math.hypot(dx, dy)
        half = (thin + (thick - thin) * (dy / ln) ** 2) / 2
        left.append((x + dy / ln * half, y - dx / ln * half))
        right.append((x - dy / ln * half, y + dx / ln * half))
    ring = left + right[::-1]
    return "M" + "L".join(f"{x:.2f} {y:.2f}" for x, y in ring) + "Z"


def bowl(cx, cy, rx, ry, thick=THICK, thin=THIN):
    """Ring through the oval rx, ry; the inner edge runs backwards, so it stays a hole."""
    inner = moved(oval(cx, cy, rx - thick / 2, ry - thin / 2), lambda x, y: (2 * cx - x, y))
    return oval(cx, cy, rx + thick / 2, ry + thin / 2) + inner


SIX = [bowl(34, 67, 22, 27), pen("M53 19C49 9 44 6 38 6C20 6 12 34 12 68"), oval(51, 20, 9)]
ONE = [box(9, 0, 18, 100), "M10 0L18 0L18 20L1 26L1 17Z", box(0, 91, 36, 9)]
ZERO = [bowl(68, 50, 18, 44.5, 19)]
GLYPHS = {
    "A": ["M33 0L44 0L19 96L8 96Z", "M31 0L51 0L77 96L54 96Z", box(22, 60, 36, 11),
          box(0, 91, 30, 9), box(45, 91, 41, 9)],
    "2": [pen("M11 30C11 12 22 6 34 6C49 6 57 16 57 29C57 50 24 64 10 92"), box(3, 85, 62, 15),
    "M55 70L65 70L65 90L52 90Z", oval(13, 29, 9.5)],
    "3": [pen("M14 22C17 11 24 6 34 6C46 6 54 14 54 26C54 40 44 47 28 47"),
          pen("M28 47C47 47 57 57 57 71C57 86 46 94 32 94C19 94 12 88 10 77"),
          oval(15, 24, 9.5), oval(13, 75, 10)],
    "4": [box(41, 0, 21, 100), "M41 0L53 0L14 66L2 66Z", box(2, 61, 72, 13), box(32, 91, 40, 9)],
    "5": [box(14, 0, 46, 14), "M14 0L25 0L21 54L10 54Z",
          pen("M13 51C19 43 26 40 34 40C49 40 57 51 57 66C57 84 46 94 32 94C19 94 12 88 10 78"),
          oval(13, 77, 10), "M50 0L60 0L58 20L52 14Z"],
    "6": SIX,
    "7": [box(4, 0, 58, 15), "M48 10L62 6C50 42 42 62 42 100L19 100C20 68 34 40 48 10Z",
    "M4 0L14 0L12 27L4 27Z"],
    "8": [bowl(32, 27, 18, 21, 19), bowl(32, 71, 23, 23)],
    "9": [moved(p, lambda x, y: (66 - x, 100 - y)) for p in SIX],
    "0": ZERO, "1": ONE, "10": ONE + ZERO,
    "J": [pen("M45 4L45 66C45 88 37 94 27 94C17 94 11 88 9 80"), oval(13, 76, 11),
          box(24, 0, 42, 9.5)],
    "Q": [bowl(36, 45, 26, 39), "M28 66C44 62 48 86 72 82L72 91C46 106 42 78 30 76Z"],
    "K": [box(8, 0, 20, 100), box(0, 0, 35, 9), box(0, 91, 35, 9), "M26 54L54 5L67 5L28 70Z",
    "M33 52L44 36L76 96L53 96Z", box(45, 0, 32, 9), box(44, 91, 40, 9)],
}


def extent(paths):
    pts = [p for d in paths for run, _ in flatten(d, 14) for p in run]
    xs, ys = [p[0] for p in pts], [p[1] for p in pts]
    return min(xs), min(ys), max(xs), max(ys)


def glyph(value, cx, top, width, height, turn=False):
    """Path data of a value, height high and at most width wide, its top at top; turned, its
    bottom at top, seen from above."""
    paths = GLYPHS[value]
    x0, y0, x1, y1 = extent(paths)
    sy = height / (y1 - y0)
    sx = min(sy, width / (x1 - x0))
    s = -1 if turn else 1
    return [moved(d, lambda x, y: (cx + s * sx * (x - (x0 + x1) / 2), top + s * sy * (y - y0)))
            for d in paths]


# ---------------------------------------------------------------- corner marks
# Mark columns per card kind: middle of the left column, of the top right and of the bottom right
# mark, and the greatest width. The program covers a mark with a white patch; every mark stays 0.4
# inside of its patch and everything else 0.4 outside (see README.md for the rectangles). No mark
# reaches into a pixel column that its patch covers only in part at scale 1.

MARKS = {
    "wide": {"left": 8.1, "top_right": 62.6, "bottom_right": 62.3, "width": 9.25},
    "plain": {"left": 6.2, "top_right": 64.2, "bottom_right": 64.2, "width": 7.5},
}
MARK_TOP, VALUE_H, SUIT_GAP = 4.0, 12.4, 1.6


def marks(value, suit):
    spec = MARKS["plain" if value in "JQK" else "wide"]
    w = spec["width"]
    suit_h = min(10.2, w * 1.1)
    out = []
    for cx, turn in ((spec["left"], False), (spec["top_right"], False), (spec["left"], True),
                     (spec["bottom_right"], True)):
        s = -1 if turn else 1
        top = CARD_H - MARK_TOP if turn else MARK_TOP
        out += glyph(value, cx, top, w, VALUE_H, turn)
        out.append(placed(SUIT_PATHS[suit], cx, top + s * (VALUE_H + SUIT_GAP + suit_h / 2),
                          min(w, suit_h * 0.97), suit_h, turn))
    return "".join(f'<path d="{packed(d)}"/>' for d in out)


# ---------------------------------------------------------------- pips
# Columns -1, 0, 1 and rows -1 .. 1 of the pattern; a pip below the middle stands on its head.

T = 1 / 3
PATTERNS = {
    "2": [(0, -1), (0, 1)],
    "3": [(0, -1), (0, 0), (0, 1)],
    "4": [(-1, -1), (1, -1), (-1, 1), (1, 1)],
    "5": [(-1, -1), (1, -1), (0, 0), (-1, 1), (1, 1)],
    "6": [(c, r) for r in (-1, 0, 1) for c in (-1, 1)],
    "7": [(c, r) for r in (-1, 0, 1) for c in (-1, 1)] + [(0, -0.5)],
    "8": [(c, r) for r in (-1, 0, 1) for c in (-1, 1)] + [(0, -0.5), (0, 0.5)],
    "9": [(c, r) for r in (-1, -T, T, 1) for c in (-1, 1)] + [(0, 0)],
    "10": [(c, r) for r in (-1, -T, T, 1) for c in (-1, 1)] + [(0, -2 * T), (0, 2 * T)],
}
COLUMN, ROW, PIP_W, PIP_H = 14.2, 34.2, 12.2, 13.6
ACE_SIZE = 29


def pips(value, suit):
    out = []
    for c, r in PATTERNS[value]:
        out.append(placed(SUIT_PATHS[suit], MID_X + c * COLUMN, MID_Y + r * ROW, PIP_W, PIP_H, r > 0))
    return f'<g fill="{colour_of(suit)}">' + "".join(f'<path d="{packed(d)}"/>' for d in out) + "</g>"


def scroll(x, y, s, mirror):
    """A leafy scroll that grows from x, y."""
    d = ("M0 0C1 -4 5 -6 8 -4C10.5 -2.4 9.6 1.4 7 1.2C5.2 1 5 -1.4 6.6 -1.6M2.2 -3.4"
         "C2 -6 4 -8 6.6 -8.2C6.2 -6 4.8 -4.6 2.2 -3.4M.4 -1.4C-1.4 -3 -1.6 -5.4 -.2 -7.4"
         "C1 -5.4 1.2 -3.4 .4 -1.4")
    return moved(d, lambda px, py: (x + mirror * s * px, y + s * py))


def ace(suit):
    col = colour_of(suit)
    if suit != "spade":
        return element(placed(SUIT_PATHS[suit], MID_X, MID_Y, ACE_SIZE, ACE_SIZE * 1.1), col)
    out = [element(placed(SUIT_PATHS["spade"], MID_X, MID_Y - 1, 44, 54), col)]
    body = ("M0 -.5C.08 -.32 .48 -.1 .48 .16C.48 .3 .38 .37 .27 .37C.16 .37 .08 .31 0 .2"
            "C-.08 .31 -.16 .37 -.27 .37C-.38 .37 -.48 .3 -.48 .16C-.48 -.1 -.08 -.32 0 -.5Z")
    out.append(element(placed(body, MID_X, MID_Y - 1.2, 38.5, 45), "none", "#FFFFFF", 0.55))
    out.append(element(placed(body, MID_X, MID_Y - 1.4, 35.8, 41.6), "none", GOLD, 0.35))
    mx, my = MID_X, MID_Y + 1.5
    for m in (-1, 1):
        out.append(element(scroll(mx + m * 7.6, my + 8.2, 0.85, m), "none", "#FFFFFF", 0.6))
        arc = ("M1 -8.4C3.4 -8.8 5.4 -10.4 5 -12.6C4.7 -14 2.9 -13.9 3 -12.5"
               "C3.1 -11.7 4 -11.6 4.1 -12.3")
        out.append(element(moved(arc, lambda x, y: (mx + m * x, my + y)), "none", "#FFFFFF", 0.55))
    out.append(element(placed("M0 -8C1.7 -10.6 1.9 -14 0 -17.6C-1.9 -14 -1.7 -10.6 0 -8Z", mx, my,
               1), GOLD))
    out.append(element(placed("M0 12.6C1.2 10.8 1.2 9.4 0 7.9C-1.2 9.4 -1.2 10.8 0 12.6Z", mx, my,
               1), GOLD))
    beads = "".join(oval(mx + 6.9 * math.sin(math.pi * i / 12),
                    my - 6.9 * math.cos(math.pi * i / 12), 0.42)
                    for i in range(24))
    out.append(element(beads, "#FFFFFF"))
    out.append(element(oval(mx, my, 5.8), "none", GOLD, 0.6))
    out.append(element(placed(SUIT_PATHS["spade"], mx, my - 0.2, 7.2, 8), "#FFFFFF"))
    return "".join(out)


# ---------------------------------------------------------------- court figures
# A figure is drawn once, upright, on a field with its origin in the middle of the card face; the
# lower half is the same figure turned by 180 degrees. Both meet along a slanting line under a sash.

SLOPE, HALF_W, HALF_H = 0.27, 22.7, 42.9
INSIDE = [lambda x, y: x + HALF_W, lambda x, y: HALF_W - x, lambda x, y: y + HALF_H]
ABOVE_SASH = [lambda x, y: SLOPE * x - y]
SKIN_LINE, THIN_INK = "#8A4B2A", 0.36
HALF_STYLE = (f'fill="none" stroke="{INK}" stroke-width="{THIN_INK}" stroke-linejoin="round" '
              'stroke-linecap="round"')

COURTS = {
    "J": {
        "spade": dict(mantle=BLUE, tunic=RED, lining=GOLD, pattern="lozenge", hair="#5B3A1E", cap=RED,
                      held="halberd", flip=1),
        "club": dict(mantle=RED, tunic=GREEN, lining=GOLD, pattern="stripe", hair="#D9962B", cap=GREEN,
                     held="pennant", flip=-1),
        "diamond": dict(mantle=GOLD, tunic=BLUE, lining=RED, pattern="dot", hair="#A8501E", cap=BLUE,
                        held="arrow", flip=1),
        "heart": dict(mantle=RED, tunic=BLUE, lining=GOLD, pattern="chevron", hair="#E3A93A", cap=BLUE,
                      held="laurel", flip=-1),
    },
    "Q": {
        "spade": dict(mantle=BLACK, tunic=RED, lining=GOLD, pattern="chevron", hair="#4A2E1A", cap=BLUE,
                      held="star", flip=-1),
        "club": dict(mantle=BLUE, tunic=GOLD, lining=RED, pattern="lozenge", hair="#8C4A1F", cap=RED,
                     held="daisy", flip=1),
        "diamond": dict(mantle=RED, tunic=BLUE, lining=GOLD, pattern="dot", hair="#E3A93A", cap=BLUE,
                        held="lily", flip=-1),
        "heart": dict(mantle=BLUE, tunic=RED, lining=GOLD, pattern="stripe", hair="#C98A2B", cap=RED,
                      held="rose", flip=1),
    },
    "K": {
        "spade": dict(mantle=BLUE, tunic=RED, lining=GOLD, pattern="dot", hair="#3A3136", cap=RED,
                      held="sword", flip=1, beard="long"),
        "club": dict(mantle=RED, tunic=BLUE, lining=GOLD, pattern="chevron", hair="#7A4520", cap=BLUE,
                     held="orb", flip=-1, beard="round"),
        "diamond": dict(mantle=GOLD, tunic=RED, lining=BLUE, pattern="stripe", hair="#B6B3B8", cap=RED,
                        held="axe", flip=1, beard="forked"),
        "heart": dict(mantle=RED, tunic=BLUE, lining=GOLD, pattern="lozenge", hair="#D79A35", cap=BLUE,
                      held="sceptre", flip=-1, beard="short"),
    },
}


class Figure:
    """Collects the shapes of one half figure; flip -1 mirrors it from left to right."""

    def __init__(self, flip):
        self.flip, self.out = flip, []

    def head(self, d, fill="none", stroke=INK, sw=THIN_INK, at=(0, 0), both=False):
        """Adds a path of the head; at and the path are measured from the middle of the face."""
        moved_at = (HEAD[0] + HEAD_SCALE * at[0], HEAD[1] + HEAD_SCALE * at[1])
        self.add(d, fill, stroke, sw, moved_at, HEAD_SCALE, both=both)

    def add(self, d, fill="none", stroke=INK, sw=THIN_INK, at=(0, 0), scale=1, both=False):
        """Adds a path, moved to at; with both also its mirror image about at's column."""
        whole = ""
        for m in ((1, -1) if both else (1,)):
            p = moved(d, lambda x, y: (at[0] + m * scale * x, at[1] + scale * y))
            whole += cut_path(p, INSIDE + ABOVE_SASH)
        if whole:
            whole = moved(whole, lambda x, y: (MID_X + self.flip * x, MID_Y + y))
            self.out.append(self.styled(whole, fill, stroke, sw))

    @staticmethod
    def styled(d, fill, stroke, sw):
        """A path that names only what differs from HALF_STYLE."""
        attr = "" if fill == "none" else f' fill="{fill}"'
        if stroke is None:
            attr += ' stroke="none"'
        else:
            attr += "" if stroke == INK else f' stroke="{stroke}"'
            attr += "" if sw == THIN_INK else f' stroke-width="{num(sw)}"'
        return f'<path d="{packed(d)}"{attr}/>'


def sprinkle(fig, kind, corners, fill):
    """Fills the convex field with one of the woven patterns."""
    field = convex(corners)
    xs, ys = [c[0] for c in corners], [c[1] for c in corners]
    step, d = 3.3, ""
    row = 0
    y = math.floor(min(ys) / step) * step
    while y < max(ys) + step:
        x = math.floor(min(xs) / step) * step - step + (step / 2 if row % 2 else 0)
        while x < max(xs) + step:
            if kind == "lozenge":
                d += cut_path(lozenge(x, y, 0.85, 1.15), field)
            elif kind == "dot":
                if row % 2:
                    d += cut_path(lozenge(x, y, 0.6, 0.6), field)
                elif all(f(x, y) > 0 for f in field):
                    d += polygon(stud(0.75), x, y)
            x += step
        if kind == "chevron":
            x = math.floor(min(xs) / 4) * 4
            while x < max(xs):
                d += cut_path(f"M{x} {y + 1}L{x + 2} {y - .8}L{x + 4} {y + 1}L{x + 4} {y + 2.1}"
                              f"L{x + 2} {y + .3}L{x} {y + 2.1}Z", field)
                x += 4
        y, row = y + (step if kind == "chevron" else step * 0.62), row + 1
    if kind == "stripe":
        x = math.floor(min(xs) / 2.6) * 2.6
        while x < max(xs):
            d += cut_path(box(x, min(ys), 0.9, max(ys) - min(ys)), field)
            x += 2.6
    if d:
        fig.add(d, fill, None)


MANTLE = "M-4 -18C-10 -17.4 -18 -16.4 -24 -10L-24 10L24 10L24 -10C18 -16.4 10 -17.4 4 -18Z"
TUNIC_PATTERN = {"lozenge": "dot", "dot": "lozenge", "stripe": "chevron", "chevron": "stripe"}


def robe(fig, c, rank):
    fig.add(MANTLE, c["mantle"], sw=0.5)
    for corners in ([(-22.7, -9), (-17, -13), (-9.4, -15), (-13.4, 8), (-22.7, 8)],
                    [(9.4, -15), (17, -13), (22.7, -9), (22.7, 3), (11, -2.5)]):
        sprinkle(fig, c["pattern"], corners, GOLD if c["mantle"] != GOLD else RED)
    fig.add("M-4 -18C-10 -17.4 -18 -16.4 -24 -10L-24 -7.8C-18 -14.4 -10 -15.6 -4 -16.2Z",
            c["lining"], both=True)
    fig.add("M-7 -17L7 -17L10 10L-10 10Z", c["tunic"])
    for corners in ([(-6, -15), (-1.4, -15), (-1.8, 4), (-8, 4)],
                    [(1.4, -15), (6, -15), (8, 4), (1.8, 4)]):
        sprinkle(fig, TUNIC_PATTERN[c["pattern"]], corners, GOLD if c["tunic"] != GOLD else BLUE)
    fig.add("M-1.5 -16L1.5 -16L1.9 10L-1.9 10Z", CREAM)
    fig.add("".join(lozenge(0, y, 0.95, 1.1) for y in (-9.5, -6.3, -3.1, 0.1)), c["lining"], sw=0.25)
    fig.add("M-6 -17.4L-8.8 -16.8L-13.2 8L-9.6 8Z", c["lining"], both=True)
    studs = "".join(polygon(stud(0.65), 7.4 + 4 * t, -17.1 + 25 * t) for t in (0.2, 0.4, 0.6, 0.8))
    fig.add(studs, CREAM if c["lining"] != GOLD else RED, None, both=True)
    if rank == "K":
        fig.add("M-4 -19C-9 -18.4 -12.6 -16.6 -13.4 -13.6C-10 -9.6 -4.6 -8 0 -8"
                "C4.6 -8 10 -9.6 13.4 -13.6C12.6 -16.6 9 -18.4 4 -19Z", "#FFFFFF", sw=0.45)
        tails = "".join(placed("M0 -.9C.5 -.2 .6 .3 .5 .9L0 .5L-.5 .9C-.6 .3 -.5 -.2 0 -.9Z", x, y, 1)
                        for x, y in ((10.9, -13.8), (8.3, -15.9), (7.4, -11.4), (4.4, -13.2),
                                     (3.2, -9.8)))
        fig.add(tails, INK, None, both=True)
    elif rank == "Q":
        fig.add("M-7.4 -17.6C-5.6 -11.8 -3 -9.6 0 -9.6C3 -9.6 5.6 -11.8 7.4 -17.6L3 -20L-3 -20Z", SKIN)
        fig.add("M-8.6 -17.4C-6.4 -10.8 -3.4 -8.2 0 -8.2C3.4 -8.2 6.4 -10.8 8.6 -17.4L7 -17.8"
                "C5.4 -12.4 3 -10.2 0 -10.2C-3 -10.2 -5.4 -12.4 -7 -17.8Z", "#FFFFFF")
        for x, y in ((0, -12.9), (1.5, -13.2), (2.9, -14.1), (4, -15.4)):
            fig.add(oval(x, y, 0.62), GOLD, sw=0.2, both=x > 0)
    else:
        fig.add("M-3 -20L-8.6 -17.4L-9.2 -12.4L-5.6 -13.4L-3.6 -9.4L0 -13.2L3.6 -9.4L5.6 -13.4"
                "L9.2 -12.4L8.6 -17.4L3 -20Z", "#FFFFFF")
        fig.add("M-7.6 -16.6L-7.6 -13.8M-4.4 -15.4L-3.8 -11.8", both=True)
        fig.add("M-3 -20L3 -20L2.4 -15.6L0 -13.6L-2.4 -15.6Z", SKIN_SHADE)


HEAD, HEAD_SCALE = (0, -23.7), 1.1


def face(fig, rank):
    """Eyes, nose and mouth look a little towards the hand that holds something."""
    s = 0.45
    fig.head("M-5.3 -4C-5.5 1 -4.6 4 -2 6.4C-.8 7.3 .8 7.3 2 6.4C4.6 4 5.5 1 5.3 -4"
             "C5 -7.6 -5 -7.6 -5.3 -4Z", SKIN)
    fig.head("M-5.2 -4C-5.4 1 -4.5 4 -2 6.3C-1 7.1 -.2 7.1 .4 7C-2.8 5 -3.8 1.6 -3.6 -4Z",
             SKIN_SHADE, None)
    for x in (-2.9, 3.5):
        fig.head(oval(x, 2.3, 1.05, 0.8), "#F2A48C", None)
    for x in (-2.1 + s, 2.2 + s):
        fig.head("M-1.5 .1C-.8 -1.1 .8 -1.1 1.5 .1C.7 1 -.7 1 -1.5 .1Z", "#FFFFFF", None, at=(x, -0.5))
        fig.head(oval(0.25, -0.02, 0.75), INK, None, at=(x, -0.5))
        fig.head(oval(0.48, -0.3, 0.2), "#FFFFFF", None, at=(x, -0.5))
        fig.head("M-1.6 .2C-.8 -1.2 .8 -1.2 1.6 .1", at=(x, -0.5))
        fig.head("M-1.4 .2Q0 -.7 1.4 .1", at=(x, -2.7),
                 sw=0.55 if rank == "K" else 0.34, stroke=INK)
    fig.head("M.3 -.6C.5 .6 1.1 1.6 1.2 2.1C1 2.7 .4 2.8 -.3 2.5", stroke=SKIN_LINE)
    if rank != "K":
        fig.head("M-1.45 -.25Q-.6 -.75 0 -.4Q.6 -.75 1.45 -.25Q0 1.5 -1.45 -.25Z", RED, None,
                 at=(s, 4.7))
        fig.head("M-1.7 -.4Q0 .75 1.7 -.4", stroke="#7A1020", sw=0.25, at=(s, 4.7))


BEARDS = {
    "long": "M-5.5 0C-6 5 -5 10 -2.4 13.4L0 16.2L2.4 13.4C5 10 6 5 5.5 0C4.6 2.6 3 3.6 0 3.6"
            "C-3 3.6 -4.6 2.6 -5.5 0Z",
    "round": "M-5.6 -.6C-7 4 -6.4 9.6 -3 11.6C-1.4 12.5 1.4 12.5 3 11.6C6.4 9.6 7 4 5.6 -.6"
             "C4.6 2.6 3 3.6 0 3.6C-3 3.6 -4.6 2.6 -5.6 -.6Z",
    "forked": "M-5.5 0C-6.2 5 -6 9.6 -3.6 14.4C-2 13 -.6 11.4 0 9.6C.6 11.4 2 13 3.6 14.4"
              "C6 9.6 6.2 5 5.5 0C4.6 2.6 3 3.6 0 3.6C-3 3.6 -4.6 2.6 -5.5 0Z",
    "short": "M-5.5 -1C-5.8 3.4 -5 6.6 -2.6 8.8C-1.2 9.8 1.2 9.8 2.6 8.8C5 6.6 5.8 3.4 5.5 -1"
             "C4.6 2.6 3 3.6 0 3.6C-3 3.6 -4.6 2.6 -5.5 -1Z",
}


def curl(fig, hair, x, y, s):
    fig.head(oval(x, y, s), hair, both=True)
    fig.head(f"M{x + .5 * s} {y - .3 * s}"
             f"C{x + .5 * s} {y + .6 * s} {x - .5 * s} {y + .5 * s} {x - .4 * s} {y - .1 * s}"
             f"C{x - .3 * s} {y - .5 * s} {x + .1 * s} {y - .4 * s} {x + .1 * s} {y}", sw=0.25,
             both=True)


def king_head(fig, c):
    fig.head("M-5 -5C-8.6 -4 -8.2 0 -7.6 3L-6 5L-4.4 4L-4.6 -4Z", c["hair"], both=True)
    curl(fig, c["hair"], 7.2, 4.4, 2.0)
    face(fig, "K")
    fig.head(BEARDS[c["beard"]], c["hair"])
    for d in ("M-2.6 6C-2.8 8 -2.2 9.6 -1.4 11", "M-4.4 4.4C-4.6 6.4 -4.2 8 -3.4 9.2"):
        if c["beard"] != "short":
            fig.head(d, sw=0.25, both=True)
    fig.head("M-1.2 5.1Q.4 6.3 2 5.1Q.4 4.2 -1.2 5.1Z", RED, None)
    fig.head("M.4 3.3C-1.4 3 -3.4 4.4 -4.8 3.6C-4 5.6 -1.2 5.7 .4 4.5C2 5.7 4.8 5.6 5.6 3.6"
             "C4.2 4.4 2.2 3 .4 3.3Z",
             c["hair"])
    crown = "spikes" if c["beard"] in ("long", "forked") else "arches"
    if crown == "spikes":
        fig.head("M-6 -6C-6.4 -10 -4 -12.6 0 -12.6C4 -12.6 6.4 -10 6 -6Z", c["cap"])
        fig.head("M-6.3 -5.6L-7.7 -12.8L-4.9 -9.6L-3.2 -14.6L0 -9.4L3.2 -14.6L4.9 -9.6L7.7 -12.8"
                 "L6.3 -5.6Z", GOLD)
        for px, py in ((7.7, -13.2), (3.2, -15)):
            fig.head(oval(px, py, 0.95), "#FFFFFF" if c["beard"] == "long" else RED, both=True)
        fig.head(lozenge(0, -13.6, 1.1, 2.4), GOLD)
        fig.head(lozenge(0, -16.2, 0.9, 1.2), RED)
    else:
        fig.head("M-6 -6C-9.4 -11 -5 -14.4 0 -13C5 -14.4 9.4 -11 6 -6Z", c["cap"])
        fig.head("M-6.4 -5.8C-10 -11.6 -5 -15.2 0 -13.4C5 -15.2 10 -11.6 6.4 -5.8L4.8 -6"
                 "C7.8 -11 4.4 -13.4 .8 -12.2L.8 -6L-.8 -6L-.8 -12.2C-4.4 -13.4 -7.8 -11 -4.8 -6Z",
                 GOLD)
        fig.head("M-.6 -13L-.6 -14.6L-2 -14.6L-2 -15.8L-.6 -15.8L-.6 -17.4L.6 -17.4L.6 -15.8"
                 "L2 -15.8L2 -14.6L.6 -14.6L.6 -13Z", GOLD)
        for px, py in ((6.6, -12), (7.3, -9.6), (4.6, -13.4)):
            fig.head(oval(px, py, 0.55), "#FFFFFF", sw=0.2, both=True)
    band(fig, c)


def band(fig, c):
    fig.head("M-6.5 -6.6C-3 -5.4 3 -5.4 6.5 -6.6L6.3 -3.9C3 -2.9 -3 -2.9 -6.3 -3.9Z", GOLD)
    fig.head(lozenge(0, -4.4, 1.1, 0.85), RED, sw=0.25)
    fig.head(oval(3.1, -4.7, 0.65), BLUE, sw=0.25, both=True)
    fig.head(oval(5.2, -5.1, 0.45), "#FFFFFF", sw=0.2, both=True)


def veil(fig, c):
    fig.head("M-5 -8C-10.6 -7 -11.4 0 -11 6C-10.8 9 -12 11 -13 12.4L13 12.4C12 11 10.8 9 11 6"
             "C11.4 0 10.6 -7 5 -8Z", c["cap"], sw=0.45)
    fig.head("M-9.8 6C-9.6 8.4 -10.4 10.4 -11.2 11.6", stroke=GOLD if c["cap"] != GOLD else RED,
             sw=0.6, both=True)


def queen_head(fig, c):
    fig.head("M-2.6 5L2.6 5L3 9L-3 9Z", SKIN_SHADE, None)
    fig.head("M-4.8 -6.6C-8.6 -5.6 -8.6 -1 -8 2C-7.4 5 -8.8 8 -9.6 10.6"
             "C-8 12.4 -5.6 12.4 -4 10.8C-4.6 8 -3.4 6 -4 3L-4.4 -4Z", c["hair"], both=True)
    for d in ("M-6.9 -3.6C-7.2 0 -6.4 3.4 -6.8 6C-7 8 -7.6 9.6 -8 11",
              "M-5.6 -2C-5.8 2 -5 4.4 -5.3 7C-5.4 8.6 -5.8 10 -6 11.4"):
        fig.head(d, sw=0.25, both=True)
    face(fig, "Q")
    fig.head("M0 -6.4C-3 -6.6 -5.8 -5 -5.7 .4C-4.6 -2.4 -2 -3.4 0 -5.2C2 -3.4 4.6 -2.4 5.7 .4"
             "C5.8 -5 3 -6.6 0 -6.4Z",
             c["hair"])
    if c["flip"] > 0:
        fig.head("M-5.8 -7L-7.4 -12.4L-4 -9.6L-2.6 -13.6L0 -9.8L2.6 -13.6L4 -9.6L7.4 -12.4L5.8 -7Z", GOLD)
        for px, py in ((7.4, -12.8), (2.6, -14.1)):
            fig.head(oval(px, py, 0.85), "#FFFFFF", sw=0.25, both=True)
        fig.head(oval(0, -11, 0.9), RED, sw=0.25)
    else:
        fig.head("M-5.8 -7C-7.6 -9 -7.6 -11.4 -6.2 -13C-5 -12 -4.2 -11 -3.6 -9.8"
                 "C-3 -12 -1.6 -14 0 -15.4C1.6 -14 3 -12 3.6 -9.8C4.2 -11 5 -12 6.2 -13"
                 "C7.6 -11.4 7.6 -9 5.8 -7Z", GOLD)
        fig.head("M0 -13.2C1 -12 1.2 -10.6 0 -9.4C-1.2 -10.6 -1 -12 0 -13.2Z", RED, sw=0.25)
        fig.head(oval(5.6, -10, 0.7), BLUE, sw=0.25, both=True)
    fig.head("M-6 -8.2C-3 -7.2 3 -7.2 6 -8.2L5.8 -6C3 -5.2 -3 -5.2 -5.8 -6Z", GOLD)
    for px, py in ((0, -6.5), (2, -6.6), (4, -6.9)):
        fig.head(oval(px, py, 0.55), "#FFFFFF", sw=0.2, both=px > 0)
    fig.head(oval(5.4, 3.4, 0.6), GOLD, sw=0.25, both=True)


def jack_head(fig, c):
    fig.head("M-4.8 -5C-8.4 -4 -7.6 1 -7.6 3C-7.6 5.4 -9 6.2 -10.4 5.8C-9.4 8.2 -6 8.6 -4.2 6.6"
             "L-3.6 3L-4.4 -4Z",
             c["hair"], both=True)
    for d in ("M-6.2 -3C-6.6 0 -5.8 3 -6.4 5C-6.8 6.2 -7.6 6.8 -8.6 6.8",
              "M-5.2 0C-5 2 -4.8 4.6 -5.2 6"):
        fig.head(d, sw=0.25, both=True)
    face(fig, "J")
    fig.head("M-5.5 -1C-5.2 -3 -4.6 -4.4 -3.6 -5L4.4 -5C5 -4.2 5.3 -3 5.5 -1"
             "C4.4 -2 3.8 -2.8 3.4 -3.8C1.4 -2.6 -2.6 -2.6 -4 -3.4C-4.4 -2.6 -4.8 -1.8 -5.5 -1Z",
             c["hair"])
    fig.head("M-6.4 -6C-9.4 -8.4 -8 -12.6 -3 -13.2C1 -13.8 6 -12.8 8.4 -9.6C9.2 -8 8 -6.4 6.4 -6Z",
             c["cap"])
    fig.head("M-4.6 -7.4C-5.4 -9.4 -4.4 -11.2 -2 -12M-.6 -7.2C-1 -9.4 0 -11.4 2 -12.4M3.2 -7.2"
             "C3.4 -9 4 -10.4 5.4 -11.4",
             sw=0.25)
    fig.head("M-7.2 -7.2C-3 -6 3 -6 7.2 -7.2L7.4 -5.2C3 -3.8 -3 -3.8 -7.4 -5.2Z", GOLD)
    for px, py in ((0, -5.3), (2.5, -5.45), (5, -5.9)):
        fig.head(lozenge(px, py, 0.7, 0.7), RED if c["cap"] != RED else BLUE, None, both=px > 0)
    fig.head("M-6 -6.6C-9 -7.6 -12.4 -6.4 -14 -3C-15 -.8 -15.6 2 -14.2 4.4"
             "C-13.6 2.6 -13 1.4 -11.8 .4C-11.6 1.6 -11.2 2.2 -10.2 2.8"
             "C-10.4 -.6 -9 -3.4 -6 -5.4Z", "#FFFFFF")
    fig.head("M-6.6 -6C-9.6 -5.6 -12 -3.6 -13.2 .4", sw=0.25)
    fig.head(oval(-6.2, -6.5, 1.2), RED if c["cap"] != RED else GOLD)


HX = 15.8  # column of the hand and of what it holds


def petal_ring(fig, x, y, n, r, size, fill):
    for i in range(n):
        a = 2 * math.pi * i / n
        fig.add(oval(x + r * math.sin(a), y - r * math.cos(a), size), fill, sw=0.25)


def shaft(fig, top, fill, w=1.1):
    fig.add(box(HX - w / 2, top, w, 20 - top), fill)


def held_thing(fig, c):
    """What the hand at HX holds up, drawn before the hand."""
    kind = c["held"]
    if kind == "sword":
        fig.add("M-1.3 -12L-1.3 -38L0 -41.6L1.3 -38L1.3 -12Z", STEEL, at=(HX, 0))
        fig.add("M0 -39L0 -12", at=(HX, 0), stroke="#7C8AA0")
        fig.add("M-5 -13.2C-3 -12.4 3 -12.4 5 -13.2L5.4 -10.8C3 -10 -3 -10 -5.4 -10.8Z", GOLD,
                at=(HX, 0))
        fig.add(box(-1, -11, 2, 10), RED, at=(HX, 0))
    elif kind == "orb":
        fig.add(oval(HX, -14.4, 5), BLUE)
        fig.add("M-4.9 -.9C-2 .6 2 .6 4.9 -.9L4.9 .9C2 2.2 -2 2.2 -4.9 .9ZM-.8 -4.9L.8 -4.9"
                "L.8 .2L-.8 .2Z", GOLD,
                at=(HX, -14.4))
        fig.add("M-.7 -4.6L-.7 -7.4L-3 -7.4L-3 -9L-.7 -9L-.7 -11.4L.7 -11.4L.7 -9L3 -9L3 -7.4"
                "L.7 -7.4L.7 -4.6Z", GOLD,
                at=(HX, -14.4))
        fig.add("M-3.4 -2.4C-3 -3.4 -2.4 -4 -1.6 -4.2", at=(HX, -14.4), stroke="#FFFFFF", sw=0.5)
    elif kind == "axe":
        shaft(fig, -40.5, "#8A5A2B", 1.4)
        fig.add("M.7 -36.4L2.2 -36.8C3 -38.6 4.2 -39.8 5.4 -40.2C6.4 -36.6 6.4 -31.6 5.4 -28"
                "C4.2 -28.6 3 -29.6 2.2 -31.4L.7 -31.8Z", STEEL, at=(HX, 0), both=True)
        fig.add("M4.4 -39C5.1 -36 5.1 -32 4.4 -29.2", at=(HX, 0), stroke="#7C8AA0", both=True)
        fig.add(box(-1.2, -37, 2.4, 5.8), GOLD, at=(HX, 0))
        fig.add(oval(HX, -41, 1.1), GOLD)
    elif kind == "sceptre":
        shaft(fig, -32, GOLD, 1.5)
        for y in (-28, -20, -13.4):
            fig.add(oval(HX, y, 1.4, 0.8), RED, sw=0.25)
        fig.add("M0 -42C1.8 -39.6 2 -37.2 1 -34.6C2.2 -38 5.4 -38.6 5.8 -36"
                "C6 -34.4 4.2 -33.6 3.6 -34.6C3.4 -32.6 2 -31.8 0 -31.8"
                "C-2 -31.8 -3.4 -32.6 -3.6 -34.6C-4.2 -33.6 -6 -34.4 -5.8 -36"
                "C-5.4 -38.6 -2.2 -38 -1 -34.6C-2 -37.2 -1.8 -39.6 0 -42Z",
                GOLD, at=(HX, 0))
        fig.add(box(-2.6, -33, 5.2, 1.6), BLUE, at=(HX, 0))
    elif kind == "halberd":
        shaft(fig, -34, "#8A5A2B", 1.3)
        fig.add("M-1 -33L0 -42.2L1 -33Z", STEEL, at=(HX, 0))
        fig.add("M.6 -33.6C2.4 -34 4.4 -35.4 5.8 -37.4C7 -33.4 6.6 -29.6 4.6 -26.4"
                "C4 -28.4 2.6 -29.4 .6 -29.6Z", STEEL,
                at=(HX, 0))
        fig.add("M-.6 -33.2L-5 -34.4L-2.6 -31.4L-5 -28.6L-.6 -29.8Z", STEEL, at=(HX, 0))
        fig.add(box(-1.1, -34, 2.2, 5), GOLD, at=(HX, 0))
        fig.add("M-1 -28C-3 -25 -1.6 -23.4 -2.4 -21L0 -22.6L2.4 -21C1.6 -23.4 3 -25 1 -28Z", RED,
                at=(HX, 0))
    elif kind == "pennant":
        shaft(fig, -36, "#8A5A2B", 1.2)
        fig.add("M-1.5 -36.4L0 -42L1.5 -36.4L0 -35.4Z", STEEL, at=(HX, 0))
        fig.add("M.6 -34.6C3 -36 4.6 -33.6 7.2 -34.8L5.6 -31.6L7.2 -28.2C4.6 -27 3 -29.4 .6 -28Z",
                GREEN, at=(HX, 0))
        fig.add("M.6 -32.6C3 -34 4.4 -31.6 6.2 -32.6L5.6 -31.6L6.2 -30.2C4.4 -29.4 3 -31.4 .6 -30Z",
                GOLD, None, at=(HX, 0))
    elif kind == "arrow":
        shaft(fig, -36, "#8A5A2B", 1.1)
        fig.add("M0 -42.4L3.4 -35L.6 -36.2L-.6 -36.2L-3.4 -35Z", STEEL, at=(HX, 0))
        for y in (-24, -20.8, -17.6):
            fig.add(f"M.5 {y}L3.6 {y - 3}L3.6 {y - .4}L.5 {y + 2.6}Z",
                    RED if y != -20.8 else "#FFFFFF", at=(HX, 0), both=True)
    elif kind == "laurel":
        fig.add("M0 -4C1 -14 -.6 -26 .4 -38", at=(HX, 0), stroke="#2A5B39", sw=0.8)
        for i, y in enumerate((-13, -18, -23, -28, -33)):
            leaf = "M0 0C1 -3.4 3.2 -5 6 -5.4C5.8 -2.4 4 -.2 0 0Z"
            fig.add(leaf, GREEN, at=(HX, y), both=True)
            fig.add(oval(HX + (1.5 if i % 2 else -1.5), y + 1.5, 0.75), RED, sw=0.25)
        fig.add("M0 0C-2.2 -2.4 -2.2 -5 0 -7.4C2.2 -5 2.2 -2.4 0 0Z", GREEN, at=(HX + 0.4, -35))
    elif kind == "star":
        shaft(fig, -31, GOLD, 1.3)
        pts = [(5.6 if i % 2 == 0 else 2.3, math.pi * i / 5) for i in range(10)]
        fig.add(polygon(pts, HX, -35.6), GOLD)
        fig.add(oval(HX, -35.6, 1.4), BLUE)
        for y in (-29, -21, -13.4):
            fig.add(oval(HX, y, 1.3, 0.8), BLUE, sw=0.25)
    else:
        flower(fig, kind)


def flower(fig, kind):
    x, y = HX, -23.5
    fig.add(f"M{x} -4C{x + .8} -10 {x - .8} -16 {x} {y}", stroke="#2A5B39", sw=0.9)
    fig.add("M0 0C1 -3 2.8 -4.4 5.6 -4.8C5.2 -2 3.4 -.2 0 0Z", GREEN, at=(x, -11.6), both=True)
    if kind == "rose":
        petal_ring(fig, x, y, 5, 2.9, 2.3, RED)
        petal_ring(fig, x, y, 5, 1.3, 1.3, "#E8566B")
        fig.add(oval(x, y, 0.9), GOLD, sw=0.25)
    elif kind == "daisy":
        petal_ring(fig, x, y, 8, 3.4, 1.35, "#FFFFFF")
        fig.add(oval(x, y, 2.1), GOLD)
    else:
        fig.add("M0 3C-5 2 -6 -3 -4.4 -6.4C-3 -5.4 -2 -4.4 -1.4 -2.8C-1.4 -5 -.8 -7 0 -8.4"
                "C.8 -7 1.4 -5 1.4 -2.8C2 -4.4 3 -5.4 4.4 -6.4C6 -3 5 2 0 3Z", GOLD, at=(x, y))
        fig.add("M0 2.4C-1.6 0 -1.4 -3 0 -6C1.4 -3 1.6 0 0 2.4Z", RED, at=(x, y), sw=0.25)


def arm(fig, c, rank):
    fig.add("M8.4 8C8.6 2.6 10.2 -1 11.4 -3L19.4 -3C21 -.6 22.8 3 24 8Z", c["tunic"])
    fig.add("M12.4 0C11.6 2 11 4 10.8 6M15.4 0L15.4 6M18.4 0C19.4 2 20 4 20.2 6", sw=0.25,
            stroke=GOLD if c["tunic"] != GOLD else RED)
    fig.add("M10.4 -5.2C13.6 -4 17.2 -4 20.4 -5.2L20 -1.8C17 -.6 13.8 -.6 10.8 -1.8Z",
            "#FFFFFF" if rank != "K" else GOLD)
    for x in (12.4, 15.4, 18.4):
        fig.add(oval(x, -2.9, 0.55), c["mantle"] if c["mantle"] != GOLD else RED, None)
    fig.add("M12.4 -4.8C11.8 -6.6 11.8 -8.6 12.6 -9.6C14 -10.4 17 -10.4 18.3 -9.6"
            "C19 -8.6 19 -6.6 18.4 -4.8C16.6 -4 14.2 -4 12.4 -4.8Z", SKIN)
    fig.add("M12.2 -8.3L16 -8.2C16.8 -8 16.8 -7.2 16 -7L12 -7M12.1 -5.8L15.6 -5.7"
            "C16.3 -5.9 16.3 -6.8 15.8 -7M17 -9.6C17.6 -8.6 17.5 -7 17 -6", stroke=SKIN_LINE)


def sash(c):
    """The band over the line where the two halves meet; it is its own image when turned."""
    f = c["flip"]

    def at(x, off):
        return f"{num(MID_X + f * x)} {num(MID_Y + SLOPE * x + off)}"

    def strip(h):
        return f"M{at(-HALF_W, -h)}L{at(HALF_W, -h)}L{at(HALF_W, h)}L{at(-HALF_W, h)}Z"
    out = [element(strip(2.3), INK), element(strip(1.9), GOLD), element(strip(1.2), CREAM)]
    for i in range(-7, 8):
        x = i * 3
        out.append(element(lozenge(MID_X + f * x, MID_Y + SLOPE * x, 0.95, 0.95),
                   RED if i % 2 else BLUE))
    return "".join(out)


def court(value, suit):
    c = COURTS[value][suit]
    fig = Figure(c["flip"])
    if value == "Q":
        veil(fig, c)
    robe(fig, c, value)
    held_thing(fig, c)
    {"J": jack_head, "Q": queen_head, "K": king_head}[value](fig, c)
    arm(fig, c, value)
    pip = placed(SUIT_PATHS[suit], MID_X - c["flip"] * 16.8, MID_Y - 36.8, 9.4, 10)
    half = "".join(fig.out) + Figure.styled(pip, colour_of(suit), None, 0)
    turned = f'transform="rotate(180 {num(MID_X)} {num(MID_Y)})"'
    return (frame(0, f'rx="1.2" fill="{BLUE}"') + frame(0.5, f'rx=".8" fill="{GOLD}"')
            + frame(1, f'fill="{CREAM}"') + f"<g {HALF_STYLE}>{half}</g>"
            + f"<g {HALF_STYLE} {turned}>{half}</g>" + sash(c)
            + frame(1, f'fill="none" stroke="{BLUE}" stroke-width=".5"'))


def frame(inset, style):
    """Rectangle around the figures, inset from the greatest one the patches allow."""
    w, h = 47.6 - 2 * inset, 88 - 2 * inset
    return (f'<rect x="{num(MID_X - w / 2)}" y="{num(MID_Y - h / 2)}" width="{num(w)}" '
            f'height="{num(h)}" {style}/>')


# ---------------------------------------------------------------- whole cards

FACE = ('<rect x=".5" y=".5" width="70" height="95" rx="4" fill="#FFFFFF" stroke="#8E8E96" '
        'stroke-width="1"/>')
HEADER = '<svg xmlns="http://www.w3.org/2000/svg" width="71" height="96" viewBox="0 0 71 96">'


def card(value, suit):
    if value in COURTS:
        middle = court(value, suit)
    else:
        middle = ace(suit) if value == "A" else pips(value, suit)
    return (f'{HEADER}\n<g id="face">{FACE}</g>\n<g id="pips">{middle}</g>\n'
            f'<g id="marks" fill="{colour_of(suit)}">{marks(value, suit)}</g>\n</svg>\n')


def back():
    deep, light = "#172A66", "#8FA3DA"
    cx, cy = CARD_W / 2, CARD_H / 2
    x0, y0, x1, y1 = 7.5, 7.5, CARD_W - 7.5, CARD_H - 7.5
    field = convex([(x0, y0), (x1, y0), (x1, y1), (x0, y1)])
    lines, dots = "", ""
    step = 4.0
    for i in range(-40, 41):
        o = (i + 0.5) * step
        for s in (1, -1):
            lines += cut_path(f"M{cx - 60} {cy + o - s * 75}L{cx + 60} {cy + o + s * 75}", field)
    for r in range(-24, 25):
        for q in range(-24, 25):
            if (r + q) % 2 == 0:
                x, y = cx + q * step / 2.5, cy + r * step / 2
                if x0 + 0.5 < x < x1 - 0.5 and y0 + 0.5 < y < y1 - 0.5:
                    dots += lozenge(x, y, 0.5, 0.62)
    petals = ""
    leaf = "M0 -1.5C2.4 -4 2.6 -7 0 -10.4C-2.6 -7 -2.4 -4 0 -1.5Z"
    thin = "M0 -1.5C1.2 -4 1.3 -6.6 0 -9.4C-1.3 -6.6 -1.2 -4 0 -1.5Z"
    for i in list(range(1, 16, 2)) + list(range(0, 16, 2)):
        co, si = math.cos(math.radians(i * 22.5)), math.sin(math.radians(i * 22.5))
        petals += element(moved(thin if i % 2 else leaf, lambda x, y: (
            cx + x * co - y * si, cy + x * si + y * co)), light if i % 2 else GOLD)
    ring = "".join(oval(cx + 12.4 * math.sin(math.radians(i * 15)),
                   cy - 12.4 * math.cos(math.radians(i * 15)), 0.5)
                   for i in range(24))
    return (f'{HEADER}\n<g id="face">{FACE}'
            f'<rect x="3.5" y="3.5" width="64" height="89" rx="2.6" fill="{deep}"/>'
            f'<rect x="5" y="5" width="61" height="86" rx="1.6" fill="none" stroke="{GOLD}" '
            'stroke-width=".7"/>'
            f'<rect x="6.6" y="6.6" width="57.8" height="82.8" rx=".8" fill="none" stroke="{light}" '
            'stroke-width=".5"/>'
            + element(lines, "none", light, 0.42) + element(dots, light)
            + element(oval(cx, cy, 14.6), deep, light, 0.5) + element(oval(cx, cy, 13.7), "none",
                      GOLD, 0.6)
            + element(ring, GOLD) + element(oval(cx, cy, 11.2), "none", light, 0.4) + petals
            + element(oval(cx, cy, 2.2), deep, GOLD, 0.6) + element(oval(cx, cy, 0.9), GOLD)
            + "</g>\n</svg>\n")


def main():
    folder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "cards")
    os.makedirs(folder, exist_ok=True)
    faces = [card(value, suit) for suit in SUITS for value in VALUES]
    for i, text in enumerate(faces + [back()], start=1):
        with open(os.path.join(folder, f"{i:02d}.svg"), "w", encoding="ascii", newline="\n") as f:
            f.write(text)


if __name__ == "__main__":
    main()
