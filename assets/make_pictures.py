#!/usr/bin/env python3
"""Writes every picture under assets/pictures/ that is not a playing card.

The shapes are drawn here once and shared (the numerals, suits, the V, the dealing shoe), so that
all pictures keep one hand and one palette.  Only what SVG Tiny 1.2 renders everywhere is used:
paths, rectangles, circles, ellipses, groups, transforms and gradients.

Usage: python3 assets/make_pictures.py
"""

import math
import os
import random
import re

import make_cards

OUT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "pictures")

INK = "#1A2735"
IVORY = "#FFFBF0"
CREAM = "#EFE3C6"
GOLD = "#CF9C3C"
GOLD_LIGHT = "#F6DE9C"
GOLD_DARK = "#8B6019"
BURGUNDY = "#8A1A33"
RED = "#BE1E34"
BLUE = "#1C53A8"
NAVY = "#1D3A5F"
GREEN = "#17643F"

# Centre lines of the numerals in a 6 x 10 box; they are stroked, so one drawing serves any weight.
DIGIT = {
    "0": "M3 0C4.9 0 6 1.9 6 5C6 8.1 4.9 10 3 10C1.1 10 0 8.1 0 5C0 1.9 1.1 0 3 0Z",
    "1": "M.9 2.3L3.4 .2V10M.8 10H6",
    "2": "M.2 2.8C.3 1.1 1.5 0 3.1 0C4.8 0 5.9 1.1 5.9 2.7C5.9 4.7 3.6 6.4 .2 10H6.1",
    "4": "M4.5 10V.2L.1 7.1H6.4",
    "5": "M5.6 0H1.1L.6 4.7C1.3 4.1 2.1 3.8 3 3.8C4.8 3.8 6 5 6 6.8C6 8.7 4.7 10 2.9 10"
         "C1.6 10 .6 9.4 0 8.3",
    "6": "M5.4 1.2C4.8 .4 4 0 3.2 0C1.2 0 0 2.2 0 5.8V6.9C0 8.8 1.3 10 3 10C4.8 10 6 8.8 6 6.9"
         "C6 5.1 4.8 3.9 3 3.9C1.6 3.9 .5 4.7 .1 6",
    "8": "M3 4.7C1.4 4.7 .4 3.8 .4 2.35C.4 .9 1.4 0 3 0"
         "C4.6 0 5.6 .9 5.6 2.35C5.6 3.8 4.6 4.7 3 4.7Z"
         "M3 4.7C1.2 4.7 0 5.7 0 7.35C0 9 1.2 10 3 10C4.8 10 6 9 6 7.35C6 5.7 4.8 4.7 3 4.7Z",
    "9": "M.6 8.8C1.2 9.6 2 10 2.8 10C4.8 10 6 7.8 6 4.2V3.1C6 1.2 4.7 0 3 0C1.2 0 0 1.2 0 3.1"
         "C0 4.9 1.2 6.1 3 6.1C4.4 6.1 5.5 5.3 5.9 4",
}

# Suits in a box from -10 to 10.
SUIT = {
    "spade": "M0-10C3-5 9-2 9 3C9 6.5 6.5 8 4.2 8C2.7 8 1.5 7.2 .9 6C1 8.5 1.8 9.6 3 10.5H-3"
             "C-1.8 9.6-1 8.5-.9 6C-1.5 7.2-2.7 8-4.2 8C-6.5 8-9 6.5-9 3C-9-2-3-5 0-10Z",
    "heart": "M0 9.5C-3 5-9.5 1-9.5-4C-9.5-7.2-7.3-9-5-9C-2.6-9-.8-7.4 0-5.2C.8-7.4 2.6-9 5-9"
             "C7.3-9 9.5-7.2 9.5-4C9.5 1 3 5 0 9.5Z",
    "diamond": "M0-10C2-6 4.5-2.8 7.5 0C4.5 2.8 2 6 0 10C-2 6-4.5 2.8-7.5 0C-4.5-2.8-2-6 0-10Z",
}

# The house letter, thick and thin strokes with serifs, in a box from -11 to 11.
LETTER_V = ("M-11-10H-1.6V-8.5L-4-7.9L1.5 4.6L6.4-7.9L3.9-8.5V-10H11V-8.5L8.9-7.9L1.7 10H-.9"
            "L-9-7.9L-11-8.5Z")

HAND = ("M9.5 17V7.3a2.05 2.05 0 0 1 4.1 0V5a2.05 2.05 0 0 1 4.1 0V6.3a2.05 2.05 0 0 1 4.1 0V9.6"
        "a2 2 0 0 1 4 0V18C25.8 21.4 24.3 23.3 23.3 25.6H12.6C11.4 23 8.4 20.6 5.3 16.7"
        "C4.4 15.5 4.7 14.1 5.9 13.5C7 13 8.1 13.6 8.7 14.7Z")
HAND_LINES = "M13.6 7.3V14.2M17.7 6.3V14.2M21.8 9.6V14.6"

# Thumb and forefinger that hold an edge between them.
PINCH = ("M11.6 25.6C10.8 23.4 7.8 21.4 7.4 17.8C7 13.8 10.4 7.4 13 4.1a1.75 1.75 0 0 1 3.1 1"
         "a2 2 0 0 1 4-.2C20.4 8 19.9 11 19.5 13.4C20.7 12 23.2 12.4 23.4 14.5C25 14 26.6 15.4 26.3 17.2"
         "C26.2 20.6 24.6 23 23.8 25.6Z")
PINCH_LINES = "M16.1 5.4C15.6 9 14 11.6 13.4 15M19.5 13.4L19.1 16.6M23.4 14.5L23 17.3"


# ---- small writers -----------------------------------------------------------------------------

def num(dbl):
    """A coordinate with at most three decimals and no trailing zeros."""
    txt = f"{dbl:.3f}".rstrip("0").rstrip(".")
    return "0" if txt in ("", "-0") else txt


def pts(lst, close=True):
    """A polygon through the points of lst as path data."""
    return "M" + "L".join(f"{num(x)} {num(y)}" for x, y in lst) + ("Z" if close else "")


def path(d, fill="none", **attr):
    return f'<path d="{d}" fill="{fill}"{attrs(attr)}/>'


def rect(x, y, w, h, r=0, fill="none", **attr):
    corner = f' rx="{num(r)}" ry="{num(r)}"' if r else ""
    return (f'<rect x="{num(x)}" y="{num(y)}" width="{num(w)}" height="{num(h)}"{corner} '
            f'fill="{fill}"{attrs(attr)}/>')


def circle(x, y, r, fill="none", **attr):
    return f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(r)}" fill="{fill}"{attrs(attr)}/>'


def ellipse(x, y, rx, ry, fill="none", **attr):
    return (f'<ellipse cx="{num(x)}" cy="{num(y)}" rx="{num(rx)}" ry="{num(ry)}" '
            f'fill="{fill}"{attrs(attr)}/>')


def attrs(dct):
    return "".join(f' {k.replace("_", "-")}="{num(v) if isinstance(v, float) else v}"'
                   for k, v in dct.items())


def group(transform, *parts, **attr):
    return f'<g transform="{transform}"{attrs(attr)}>' + "".join(parts) + "</g>"


def place(x, y, scale=1.0, turn=0.0):
    txt = f"translate({num(x)} {num(y)})"
    if turn:
        txt += f" rotate({num(turn)})"
    return txt + (f" scale({num(scale)})" if scale != 1.0 else "")


def line(d, color=INK, width=1.5, **attr):
    return path(d, stroke=color, stroke_width=float(width), stroke_linecap="round",
                stroke_linejoin="round", **attr)


def digit(ch, cx, cy, height, weight, color):
    """Numeral ch centred on (cx, cy); height is the full height, the stroke's weight included."""
    scale = (height - weight) / 10.0
    return group(f"translate({num(cx)} {num(cy)}) scale({num(scale)}) translate(-3 -5)",
                 path(DIGIT[ch], stroke=color, stroke_width=weight / scale,
                      stroke_linejoin="round", stroke_linecap="square" if ch in "14" else "round"))


def suit(name, cx, cy, size, color, turn=0.0):
    return group(place(cx, cy, size / 20.0, turn), path(SUIT[name], color))


def letter_v(cx, cy, size, fill, **attr):
    return group(place(cx, cy, size / 20.0), path(LETTER_V, fill, **attr))


def linear(ident, stops, x1=0, y1=0, x2=0, y2=1, units="objectBoundingBox"):
    return (f'<linearGradient id="{ident}" gradientUnits="{units}" x1="{num(x1)}" y1="{num(y1)}" '
            f'x2="{num(x2)}" y2="{num(y2)}">{stop_list(stops)}</linearGradient>')


def radial(ident, stops, cx=0.5, cy=0.5, r=0.5, units="objectBoundingBox"):
    return (f'<radialGradient id="{ident}" gradientUnits="{units}" cx="{num(cx)}" cy="{num(cy)}" '
            f'r="{num(r)}" fx="{num(cx)}" fy="{num(cy)}">{stop_list(stops)}</radialGradient>')


def stop_list(stops):
    txt = ""
    for offset, color, *opacity in stops:
        extra = f' stop-opacity="{num(opacity[0])}"' if opacity else ""
        txt += f'<stop offset="{num(offset)}" stop-color="{color}"{extra}/>'
    return txt


def save(name, w, h, *parts, defs=""):
    body = "\n".join(parts)
    head = f"<defs>{defs}</defs>\n" if defs else ""
    with open(os.path.join(OUT, name), "w", encoding="utf-8") as file:
        file.write(f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                   f'width="{w}" height="{h}" viewBox="0 0 {w} {h}">\n{head}{body}\n</svg>\n')


GOLD_DEFS = (linear("gold", [(0, "#FBE9B4"), (0.45, "#D9A845"), (1, "#8E6320")], 0, 0, 1, 1)
             + linear("goldv", [(0, "#FCEBB6"), (0.5, "#E0B352"), (1, "#B07F2B")]))
SHADOW_DEFS = radial("shadow", [(0, "#000000", 0.55), (0.6, "#000000", 0.28), (1, "#000000", 0)])


# ---- shared objects ----------------------------------------------------------------------------

def card_face(w, h, value, pip, color):
    """A small open card centred on the origin: value and pip, no court detail."""
    return (rect(-w / 2 + 1, -h / 2 + 1.6, w, h, 3.2, "#04120C", opacity=0.35)
            + rect(-w / 2, -h / 2, w, h, 3.2, "url(#paper)", stroke="#B9AB8A", stroke_width=0.7)
            + digit(value, -w / 2 + 7, -h / 2 + 9.5, 10.5, 1.9, color)
            + suit(pip, -w / 2 + 7, -h / 2 + 20.5, 8, color)
            + suit(pip, 2.5, 4.5, w * 0.42, color))


def card_back(w, h):
    """A small closed card centred on the origin: burgundy, gold lattice frame and the V."""
    return (rect(-w / 2 + 1, -h / 2 + 1.6, w, h, 3.2, "#04120C", opacity=0.35)
            + rect(-w / 2, -h / 2, w, h, 3.2, "url(#paper)", stroke="#B9AB8A", stroke_width=0.7)
            + rect(-w / 2 + 2.4, -h / 2 + 2.4, w - 4.8, h - 4.8, 1.8, "url(#back)")
            + rect(-w / 2 + 4.2, -h / 2 + 4.2, w - 8.4, h - 8.4, 1.2, stroke=GOLD,
                   stroke_width=0.8)
            + path(f"M0 {num(-h * .36)}L{num(w * .33)} 0L0 {num(h * .36)}L{num(-w * .33)} 0Z",
                   stroke=GOLD, stroke_width=0.6, opacity=0.7)
            + letter_v(0, 0.5, w * 0.36, "url(#goldv)"))


CARD_DEFS = (linear("paper", [(0, "#FFFEFA"), (1, "#F3EAD5")], 0, 0, 1, 1)
             + linear("back", [(0, "#A4223F"), (1, "#64102A")], 0, 0, 1, 1))


def big_chip(cx, cy, r, thick, color, dark, spot, count=6):
    """A chip lying on the table in perspective: a flat ellipse with an edge below it; spot colours
    its count stripes."""
    ry = r * 0.42
    body = (f"M{num(cx - r)} {num(cy)}V{num(cy + thick)}A{num(r)} {num(ry)} 0 0 0 {num(cx + r)} "
            f"{num(cy + thick)}V{num(cy)}Z")
    parts = [path(body, dark)]
    for i in range(count):
        a = math.pi * (i + 0.35) / count
        b = a + math.pi / count * 0.42
        x1, y1 = cx + r * math.cos(a), cy + ry * math.sin(a)
        x2, y2 = cx + r * math.cos(b), cy + ry * math.sin(b)
        parts.append(path(pts([(x1, y1), (x2, y2), (x2, y2 + thick), (x1, y1 + thick)]), spot))
    parts.append(ellipse(cx, cy, r, ry, color, stroke=dark, stroke_width=0.4))
    for i in range(count):
        a = 2 * math.pi * (i + 0.3) / count
        b = a + 2 * math.pi / count * 0.36
        ring = [(cx + k * r * math.cos(t), cy + k * ry * math.sin(t))
                for k, t in ((0.99, a), (0.99, (a + b) / 2), (0.99, b), (0.74, b), (0.74, a))]
        parts.append(path(pts(ring), spot))
    parts.append(ellipse(cx, cy, r * 0.66, ry * 0.66, stroke=spot, stroke_width=0.6))
    return "".join(parts)


def shoe():
    """The dealing shoe in a 96 x 64 box, a closed card sliding out to the right."""
    side = "M7 17H44.5Q46.5 17 47.7 18.6L69 46.4Q70 47.7 70 49.3V57H7Q4 57 4 54V20Q4 17 7 17Z"
    top = "M5 18Q5.6 17 7 17H46.2L57.4 7H19.5Q18 7 17 7.9Z"
    front = pts([(46.2, 17), (57.4, 7), (81, 37.8), (69.9, 48)])
    lip = pts([(70, 48), (81, 37.9), (81, 47), (70, 57)])
    card = pts([(72, 57), (83, 47), (95, 47), (84, 57)])
    card_in = pts([(74.4, 56), (83.3, 48), (92.5, 48), (83.6, 56)])
    return (ellipse(47, 57.5, 47, 6.2, "url(#shadow)")
            + path(card, IVORY, stroke="#9A8C6C", stroke_width=0.5)
            + path(card_in, "url(#shoeback)")
            + path(lip, "url(#shoelip)") + path(front, "url(#shoefront)")
            + path(pts([(50.6, 17.3), (57.6, 11.1), (76.4, 35.6), (69.2, 42.2)]), IVORY)
            + path(pts([(52.7, 17.3), (57.7, 12.9), (74.2, 34.6), (69.1, 39.4)]),
                   "url(#shoeback)")
            + path(pts([(63.3, 21.1), (68.6, 28.1), (63.5, 31.2), (58.2, 24.2)]), stroke=GOLD,
                   stroke_width=0.8)
            + path(top, "url(#shoetop)") + path(side, "url(#shoeside)")
            + path("M9.4 21.2H42.6Q43.9 21.2 44.7 22.2L64.9 48.4Q65.6 49.3 65.6 50.4V52.8H9.4"
                   "Q8.2 52.8 8.2 51.6V22.4Q8.2 21.2 9.4 21.2Z", stroke="url(#gold)",
                   stroke_width=1.1)
            + circle(27.5, 37.5, 11, "#3A0815", stroke="url(#gold)", stroke_width=1.3)
            + letter_v(27.2, 38.2, 11.5, "url(#goldv)")
            + path("M4.4 19.4Q5 17.3 7 17.2H46.4L69.6 47.6", stroke="#F7DFA0", stroke_width=0.7,
                   opacity=0.75)
            + path("M70 48L81 37.9", stroke="#F7DFA0", stroke_width=0.9))


def table_shoe():
    """The dealing shoe as the players see it, in a 96 x 64 box: it stands at the table's edge, its
    mouth towards them, a closed card at the mouth. Nothing shows through it, so that a card in
    flight comes out from below."""
    body = "M17 0H79Q81 0 81.6 2L91.4 47Q92 50 89 50H7Q4 50 4.6 47L14.4 2Q15 0 17 0Z"
    slope = pts([(19.5, 17), (76.5, 17), (84.5, 47), (11.5, 47)])
    back = pts([(23, 19), (73, 19), (80, 45), (16, 45)])
    return (ellipse(48, 59, 46, 5, "url(#shadow)")
            + path("M15.5 55H80.5L82 62Q82 63 81 63H15Q14 63 14 62Z", IVORY, stroke="#9A8C6C",
                   stroke_width=0.5)
            + path("M18.2 55H77.8L78.8 61H17.2Z", "url(#shoeback)")
            + path(body, "url(#shoeside)", stroke="#2B0612", stroke_width=0.6)
            + path("M15.4 2.4Q16 .9 17.4 .9H78.6Q80 .9 80.6 2.4L83 14H13Z", "url(#shoetop)")
            + path(slope, "#23040E") + path(back, IVORY)
            + path(pts([(25, 20.3), (71, 20.3), (77.6, 43.7), (18.4, 43.7)]), "url(#shoeback)")
            + path(pts([(48, 22), (61, 32), (48, 42), (35, 32)]), stroke=GOLD, stroke_width=0.9)
            + letter_v(48, 32.3, 9, "url(#goldv)")
            + path(slope, stroke="url(#gold)", stroke_width=1.1)
            + path("M13 14H83", stroke="#F7DFA0", stroke_width=0.7, opacity=0.8)
            + rect(2, 48.5, 92, 7.5, 2.4, "url(#shoelip)", stroke="#5E3E12", stroke_width=0.5)
            + path("M4 50.4H92", stroke="#FFF1C4", stroke_width=0.8, opacity=0.8)
            + circle(48, 7.4, 4.9, "#3A0815", stroke="url(#gold)", stroke_width=0.9)
            + suit("spade", 48, 7.3, 5.4, "url(#goldv)"))


SHOE_DEFS = (linear("shoeside", [(0, "#8F2340"), (0.5, "#6A1530"), (1, "#430A1D")])
             + linear("shoetop", [(0, "#B2415B"), (1, "#8A2440")])
             + linear("shoefront", [(0, "#5B1128"), (1, "#2B0612")])
             + linear("shoelip", [(0, "#EFD08A"), (1, "#93661F")])
             + linear("shoeback", [(0, "#27507F"), (1, "#142C4B")], 0, 0, 1, 1))


def medallion(c, r, inner, outer):
    """Gold ring with beads around a round felt; inner and outer are the felt's colours."""
    defs = (radial("felt", [(0, inner), (0.65, inner), (1, outer)], 0.5, 0.42, 0.6)
            + linear("rim", [(0, "#FFF1C4"), (0.3, "#D6A544"), (0.55, "#9C6D22"), (0.8, "#E2B85C"),
                             (1, "#8A5F1C")], 0, 0, 1, 1))
    beads = "".join(circle(c + (r - 4.2) * math.cos(i * math.pi / 24),
                           c + (r - 4.2) * math.sin(i * math.pi / 24), 1.25, "#FFF3CB",
                           stroke="#7C5518", stroke_width=0.4) for i in range(48))
    body = (ellipse(c, c + r * 0.95, r * 0.8, r * 0.115, "url(#shadow)")
            + circle(c, c, r, "url(#rim)", stroke="#6E4A13", stroke_width=1)
            + beads + circle(c, c, r - 8.4, "#0A2218")
            + circle(c, c, r - 9.4, "url(#felt)")
            + circle(c, c, r - 13, stroke="url(#gold)", stroke_width=0.9, opacity=0.8))
    return defs, body


def mirror_over(p, a, b):
    """Point p reflected over the line through a and b: where a folded corner comes to lie."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    t = ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / (dx * dx + dy * dy)
    fx, fy = a[0] + t * dx, a[1] + t * dy
    return (2 * fx - p[0], 2 * fy - p[1])


def squeezed_card(x, y, w, h, r, fold_up, fold_in, pip, letter, bold=0.0):
    """A closed card whose lower right corner is bent up: fold_up and fold_in measure the fold
    along the right and the lower edge, pip is the suit's size on the corner, letter the V's and
    bold how much the V is thickened for small sizes."""
    x2, y2 = x + w, y + h
    a, b = (x2, y2 - fold_up), (x2 - fold_in, y2)
    tip = mirror_over((x2, y2), a, b)
    rest = (f"M{num(x + r)} {num(y)}H{num(x2 - r)}Q{num(x2)} {num(y)} {num(x2)} {num(y + r)}"
            f"V{num(a[1])}L{num(b[0])} {num(y2)}H{num(x + r)}Q{num(x)} {num(y2)} {num(x)} "
            f"{num(y2 - r)}V{num(y + r)}Q{num(x)} {num(y)} {num(x + r)} {num(y)}Z")
    k = 0.14
    near_a = (tip[0] + (a[0] - tip[0]) * k, tip[1] + (a[1] - tip[1]) * k)
    near_b = (tip[0] + (b[0] - tip[0]) * k, tip[1] + (b[1] - tip[1]) * k)
    bulge = (a[0] * .5 + b[0] * .5 + fold_in * .09, a[1] * .5 + b[1] * .5 + fold_up * .09)
    flap = (f"M{num(a[0])} {num(a[1])}L{num(near_a[0])} {num(near_a[1])}Q{num(tip[0])} "
            f"{num(tip[1])} {num(near_b[0])} {num(near_b[1])}L{num(b[0])} {num(b[1])}"
            f"Q{num(bulge[0])} {num(bulge[1])} {num(a[0])} {num(a[1])}Z")
    cx, cy = (a[0] + b[0] + tip[0]) / 3, (a[1] + b[1] + tip[1]) / 3
    m = w * 0.08
    return (group(f"translate({num(m * .5)} {num(m * .8)})", path(rest, "#021009", opacity=0.35))
            + path(rest, "url(#paper)")
            + path(f"M{num(x + m)} {num(y + m)}H{num(x2 - m)}V{num(a[1] - m * .4)}"
                   f"L{num(b[0] - m * .4)} {num(y2 - m)}H{num(x + m)}Z", "url(#back)")
            + letter_v(x + w * .48, y + h * .34, letter, "url(#goldv)", stroke="url(#goldv)",
                       stroke_width=float(bold))
            + group(f"translate({num(-m * .5)} {num(-m * .1)})", path(flap, "#1A0208", opacity=0.4))
            + path(flap, "url(#flap)", stroke="#A8966C", stroke_width=w * 0.012)
            + suit("diamond", cx + w * .01, cy + h * .01, pip, RED))


FLAP_DEFS = linear("flap", [(0, "#FFFFFF"), (0.6, "#FFF9E8"), (1, "#CDBD95")], 0, 0, 1, 1)


# ---- the pictures ------------------------------------------------------------------------------

def write_icon():
    defs = (GOLD_DEFS + CARD_DEFS + FLAP_DEFS
            + radial("felt", [(0, "#23875C"), (1, "#0B3B29")], 0.45, 0.35, 0.75))
    save("icon.svg", 64, 64,
         rect(1, 1, 62, 62, 13, "url(#gold)"),
         rect(3.5, 3.5, 57, 57, 10.5, "url(#felt)"),
         squeezed_card(12, 5.5, 40, 53, 4, 22, 23, 10.5, 23.5, 1.5), defs=defs)


def write_tile():
    """The lattice divides the side evenly and is drawn past every edge, so the seams vanish. The
    start waits for this picture, and the toolkit draws many small paths in a fraction of the time
    of one large one."""
    ogee, inner, leaf, dots = [], [], [], []
    for row in range(8):
        for col in range(0 if row % 2 == 0 else -1, 6):
            x, y = col * 60 + (30 if row % 2 else 0), row * 50
            ogee.append(f"M{x} {y - 50}C{x + 4} {y - 26} {x + 30} {y - 26} {x + 30} {y}"
                        f"C{x + 30} {y + 26} {x + 4} {y + 26} {x} {y + 50}"
                        f"C{x - 4} {y + 26} {x - 30} {y + 26} {x - 30} {y}"
                        f"C{x - 30} {y - 26} {x - 4} {y - 26} {x} {y - 50}Z")
            inner.append(f"M{x} {y - 38}C{x + 4} {y - 21} {x + 23} {y - 19} {x + 23} {y}"
                         f"C{x + 23} {y + 19} {x + 4} {y + 21} {x} {y + 38}"
                         f"C{x - 4} {y + 21} {x - 23} {y + 19} {x - 23} {y}"
                         f"C{x - 23} {y - 19} {x - 4} {y - 21} {x} {y - 38}Z")
            leaves = [f"M{x} {y - 26}C{x + 6} {y - 17} {x + 5} {y - 9} {x} {y - 3}"
                      f"C{x - 5} {y - 9} {x - 6} {y - 17} {x} {y - 26}Z"
                      f"M{x} {y + 26}C{x - 5} {y + 18} {x - 4} {y + 11} {x} {y + 5}"
                      f"C{x + 4} {y + 11} {x + 5} {y + 18} {x} {y + 26}Z"]
            for s in (-1, 1):
                leaves.append(f"M{x + s * 2} {y + 1}C{x + s * 6} {y - 3} {x + s * 8} {y - 13} "
                              f"{x + s * 15} {y - 11}C{x + s * 20} {y - 8} {x + s * 17} {y - 1} "
                              f"{x + s * 12} {y - 3}C{x + s * 15} {y - 7} {x + s * 10} {y - 8} "
                              f"{x + s * 8} {y - 2}C{x + s * 7} {y + 1} {x + s * 4} {y + 3} "
                              f"{x + s * 2} {y + 1}Z"
                              f"M{x + s * 2} {y + 4}C{x + s * 6} {y + 3} {x + s * 12} {y + 5} "
                              f"{x + s * 12} {y + 12}C{x + s * 7} {y + 13} {x + s * 3} {y + 9} "
                              f"{x + s * 2} {y + 4}Z")
            leaf.append("".join(leaves))
            dots.append(f"M{x} {y - 54}L{x + 3} {y - 50}L{x} {y - 46}L{x - 3} {y - 50}Z")
    save("tile.svg", 300, 300,
         rect(-20, -20, 340, 340, fill="#0C211F"),
         *(path(d, "#0E2624") for d in ogee),
         *(path(d, stroke="#1A3B36", stroke_width=1.6) for d in ogee),
         *(path(d, stroke="#153330", stroke_width=0.8) for d in inner),
         *(path(d, "#14322E") for d in leaf),
         *(path(d, "#2C4636") for d in dots))


def write_felt():
    rng = random.Random(41)
    fibre = {True: [], False: []}
    for i in range(900):
        x, y, a = rng.uniform(8, 712), rng.uniform(8, 352), rng.uniform(0, math.pi)
        d = rng.uniform(1.6, 4)
        fibre[i % 2 == 0].append((y, f"M{x:.1f} {y:.1f}"
                                     f"l{d * math.cos(a):.1f} {d * math.sin(a):.1f}"))

    def strands(fibres, color, opacity):
        """In flat bands: the toolkit fills many small paths in half the time of one large one."""
        fibres = [d for _, d in sorted(fibres)]
        return "".join(path("".join(fibres[i:i + 25]), stroke=color, stroke_width=0.6,
                            stroke_opacity=opacity) for i in range(0, len(fibres), 25))

    defs = (radial("cloth", [(0, "#114735"), (0.35, "#0E3D2D"), (0.7, "#0A2F23"), (1, "#07231A")],
                   0.5, 0.46, 0.62)
            + linear("bevel", [(0, "#03110C"), (0.5, "#0B3326"), (1, "#1C5A43")])
            + linear("inlay", [(0, "#8C6A2C"), (0.25, "#D9B668"), (0.5, "#A98442"),
                               (0.75, "#D9B668"), (1, "#8C6A2C")], 0, 0, 1, 0)
            + radial("lamp", [(0, "#BFE8B4", 0.05), (0.5, "#BFE8B4", 0.02), (1, "#BFE8B4", 0)],
                     0.5, 0.4, 0.5))
    m, r = 6, 15
    x2, y2 = 720 - m, 360 - m
    frame = (f"M{m + r} {m}H{x2 - r}A{r} {r} 0 0 0 {x2} {m + r}V{y2 - r}A{r} {r} 0 0 0 {x2 - r} "
             f"{y2}H{m + r}A{r} {r} 0 0 0 {m} {y2 - r}V{m + r}A{r} {r} 0 0 0 {m + r} {m}Z")
    studs = "".join(f"M{x} {y - 4}L{x + 4} {y}L{x} {y + 4}L{x - 4} {y}Z"
                    for x in (m + 2, x2 - 2) for y in (m + 2, y2 - 2))
    save("felt.svg", 720, 360,
         rect(0, 0, 720, 360, 20, "url(#bevel)"),
         rect(1.5, 1.5, 717, 357, 18.5, "url(#cloth)"),
         ellipse(360, 165, 300, 150, "url(#lamp)"),
         strands(fibre[True], "#FFFFFF", 0.035),
         strands(fibre[False], "#000000", 0.13),
         path(frame, stroke="#020B07", stroke_width=2.6, stroke_opacity=0.35),
         path(frame, stroke="url(#inlay)", stroke_width=1.2),
         path(studs, "#CDA658"), defs=defs)


def mini_card(x, y, w, h, fill=IVORY, r=2.0, **attr):
    return rect(x, y, w, h, r, fill, stroke=INK, stroke_width=1.5, **attr)


def icon_learn():
    return (mini_card(6.5, 9, 11, 13.2) + suit("heart", 12, 17.6, 5.6, RED)
            + path("M12 1.6L23 6.8L12 12L1 6.8Z", NAVY, stroke=INK, stroke_width=1,
                   stroke_linejoin="round")
            + line("M12 6.8L20.6 8.6V13.2", GOLD, 1.6) + circle(20.6, 14.2, 1.7, GOLD))


def icon_cardfaceup():
    return (group("rotate(-14 8 20)", mini_card(3, 4, 11.5, 16.5, BURGUNDY)
                  + rect(5.4, 6.4, 6.7, 11.7, 0.8, stroke=GOLD_LIGHT, stroke_width=0.9))
            + group("rotate(6 14 12)", mini_card(8.2, 3.2, 12.8, 18)
                    + suit("heart", 14.6, 12.4, 9.4, RED)))


def icon_cardvalues():
    return (mini_card(3.75, 2.25, 16.5, 19.5, r=2.5) + digit("9", 9.4, 9, 10.6, 2.1, INK)
            + suit("diamond", 15.3, 16.6, 7.6, RED))


def icon_cardsdealt():
    txt = ""
    for i, color in enumerate((BURGUNDY, BLUE, BURGUNDY)):
        y = 1.5 + i * 7.6
        txt += rect(2, y, 4.6, 5.9, 1, color, stroke=INK, stroke_width=0.8)
        txt += rect(7.9, y, 4.6, 5.9, 1, IVORY, stroke=INK, stroke_width=1.1)
        txt += line(f"M15.4 {num(y + 3)}H{(22, 20, 22)[i]}", INK, 2)
    return txt


def icon_cardsdealtcount():
    txt = rect(1.8, 2.5, 20.4, 19, 1.8, IVORY) + path("M1.8 8.2V4.3Q1.8 2.5 3.6 2.5H20.4"
                                                      "Q22.2 2.5 22.2 4.3V8.2Z", NAVY)
    for x, y, color in ((5.2, 11.6, RED), (12, 11.6, INK), (12, 17.8, RED), (18.8, 11.6, RED),
                        (5.2, 17.8, INK), (18.8, 17.8, INK)):
        txt += rect(x - 1.6, y - 1.2, 3.2, 2.4, 0.5, color)
    for x in (5.2, 12, 18.8):
        txt += rect(x - 1.7, 4.7, 3.4, 1.7, 0.4, GOLD_LIGHT)
    return (txt + line("M8.6 2.5V21.5M15.4 2.5V21.5M1.8 14.7H22.2", INK, 1.1)
            + rect(1.8, 2.5, 20.4, 19, 1.8, stroke=INK, stroke_width=1.5))


def icon_showscore():
    return (rect(1.2, 3.7, 21.6, 16.6, 3, BLUE, stroke=INK, stroke_width=1.2)
            + digit("9", 7.3, 12, 11.6, 2.2, "#FFFFFF")
            + digit("8", 16.7, 12, 11.6, 2.2, "#FFFFFF"))


def icon_shownaturals():
    return (ellipse(12, 12, 10.2, 8.2, IVORY, stroke=INK, stroke_width=3.4)
            + ellipse(12, 12, 10.2, 8.2, stroke=GOLD, stroke_width=1.7)
            + digit("9", 12, 12, 10.4, 2.2, RED))


def icon_playerblue():
    return (circle(7.6, 7.8, 5, IVORY, stroke=BLUE, stroke_width=3.2)
            + circle(16.4, 16.2, 5, IVORY, stroke=RED, stroke_width=3.2))


def icon_decks(intDecks):
    layers = {1: 0, 2: 1, 4: 2, 6: 3, 8: 4}[intDecks]
    step, w = 2.0, 12.0
    x = (6.75, 5.25, 3.75, 3.75, 2.25)[layers]
    txt = ""
    for i in range(layers, 0, -1):
        txt += rect(x + i * step, 3.75 + i * 0.3, w, 16.5 - i * 0.6, 2,
                    (GOLD, BURGUNDY)[i % 2], stroke=INK, stroke_width=0.7)
    return (txt + mini_card(x, 3.75, w, 16.5)
            + digit(str(intDecks), x + w / 2, 12, 12, 2.4, BURGUNDY))


def icon_delay():
    ticks = "M12 4.9V6.3M12 17.7V19.1M4.9 12H6.3M17.7 12H19.1"
    return (circle(12, 12, 9.6, IVORY, stroke=INK, stroke_width=3.2)
            + circle(12, 12, 9.9, stroke=GOLD, stroke_width=1.4)
            + line(ticks, INK, 1.2) + line("M12 7V12L15.8 14.4", BURGUNDY, 2.1)
            + circle(12, 12, 1.5, INK))


def icon_animation():
    return (line("M1.6 8.4H6.4M2.6 13H5.2M1.4 17.6H5.4", INK, 1.8)
            + group("rotate(24 14.5 12)", mini_card(8.8, 3.6, 11.6, 16.8, BURGUNDY)
                    + rect(11.2, 6, 6.8, 12, 0.8, stroke=GOLD_LIGHT, stroke_width=1)
                    + suit("diamond", 14.6, 12, 6.4, GOLD_LIGHT)))


def icon_revealarrows():
    heads = {BURGUNDY: "M12 .8L16.4 5.6H7.6ZM12 23.2L7.6 18.4H16.4Z",
             NAVY: "M.8 12L6 7.6V16.4ZM23.2 12L18 16.4V7.6Z"}
    return (mini_card(8.4, 7.2, 7.2, 9.6, r=1.4) + suit("diamond", 12, 12, 5.4, RED)
            + "".join(path(d, c, stroke=c, stroke_width=0.8, stroke_linejoin="round")
                      for c, d in heads.items()))


def icon_revealhands():
    return group("translate(-.2 -.6) scale(.79)",
                 path("M11 25.6H24.4V30.6H11Z", BURGUNDY, stroke=INK, stroke_width=1.6,
                      stroke_linejoin="round")
                 + path(HAND, IVORY, stroke=INK, stroke_width=1.9, stroke_linejoin="round")
                 + line(HAND_LINES, INK, 1.5))


def icon_statistics():
    bars = ((3, 8, GREEN), (8, 13.5, GOLD), (13, 10.5, BURGUNDY), (18, 18, BLUE))
    return ("".join(rect(x, 20.6 - h, 3.6, h, 0.6, c, stroke=INK, stroke_width=0.7)
                    for x, h, c in bars) + line("M1.6 21.4H22.8", INK, 1.6))


def icon_options():
    ring, n = [], 8
    for i in range(n):
        mid = 2 * math.pi * i / n
        for r, off in ((7.9, -0.29), (10.9, -0.19), (10.9, 0.19), (7.9, 0.29)):
            ring.append((12 + r * math.cos(mid + off), 12 + r * math.sin(mid + off)))
    return (path(pts(ring), NAVY, stroke=INK, stroke_width=1, stroke_linejoin="round")
            + circle(12, 12, 4.3, GOLD_LIGHT, stroke=INK, stroke_width=1.4)
            + suit("spade", 12, 12, 4.6, INK))


def icon_selectashoe():
    return (rect(12, 16.2, 11, 4.6, 0.8, IVORY, stroke=INK, stroke_width=1.3)
            + rect(14, 17.7, 7.3, 1.6, 0.3, NAVY)
            + path("M1.4 5.4Q1.4 3.4 3.4 3.4H8.4Q9.6 3.4 10.3 4.4L16.2 13.4Q16.7 14.2 16.7 15.2"
                   "V20.8H1.4Z", BURGUNDY, stroke=INK, stroke_width=1.5, stroke_linejoin="round")
            + path("M10.9 5.4L16 13.2", stroke=GOLD_LIGHT, stroke_width=1.7,
                   stroke_linecap="round")
            + suit("diamond", 6.9, 12.6, 9, GOLD_LIGHT))


def write_toolbar():
    os.makedirs(os.path.join(OUT, "toolbar"), exist_ok=True)
    icons = {"learn": icon_learn, "cardfaceup": icon_cardfaceup, "cardvalues": icon_cardvalues,
             "cardsdealt": icon_cardsdealt, "cardsdealtcount": icon_cardsdealtcount,
             "showscore": icon_showscore, "shownaturals": icon_shownaturals,
             "playerblue": icon_playerblue, "delay": icon_delay, "animation": icon_animation,
             "revealarrows": icon_revealarrows, "revealhands": icon_revealhands,
             "statistics": icon_statistics, "options": icon_options,
             "selectashoe": icon_selectashoe}
    for name, draw in icons.items():
        save(f"toolbar/{name}.svg", 24, 24, draw())
    for n in (1, 2, 4, 6, 8):
        save(f"toolbar/decks{n}.svg", 24, 24, icon_decks(n))


# Colours of a chip: rim, its shaded edge, the spots, the face and the numeral.
CHIP = {
    "0": ("#A7ABA9", "#6F7472", "#F4F0E4", "#FBF8EE", "#34393B"),
    "1": ("#2461B8", "#123A78", "#FFFFFF", "#FFFFFF", "#0D2F6B"),
    "2": ("#D8456B", "#8F1F40", "#FFEFF2", "#FFE1E7", "#8A0F31"),
    "5": ("#14713F", "#083F22", "#F7E2A4", "#0C5A31", "#FFFFFF"),
}


def write_chips():
    """The edge is drawn by moving the round face four units down; stripes follow the spots."""
    for ch, (rim, edge, spot, face, ink) in CHIP.items():
        c, r, thick = 7.5, 7.2, 3.7
        cy = 7.45
        body = (f"M{c - r} {cy}V{num(cy + thick)}A{r} {r} 0 0 0 {c + r} {num(cy + thick)}V{cy}Z")
        parts = [path(body, "url(#edge)")]
        for i in range(6):
            mid = math.pi * (i * 2 + 1) / 6
            a, b = mid - 0.2, mid + 0.2
            outer = [(c + r * math.cos(t), cy + r * math.sin(t)) for t in (a, mid, b)]
            if math.sin(mid) > -0.1:
                low = [(x, y + thick) for x, y in reversed(outer)]
                parts.append(path(pts(outer + low), spot, opacity=0.82))
        parts.append(path(body, stroke=edge, stroke_width=0.5))
        parts.append(circle(c, cy, r, rim))
        for i in range(6):
            mid = math.pi * (i * 2 + 1) / 6
            a, b = mid - 0.2, mid + 0.2
            ring = ([(c + r * math.cos(t), cy + r * math.sin(t)) for t in (a, mid, b)]
                    + [(c + 5.9 * math.cos(t), cy + 5.9 * math.sin(t)) for t in (b, a)])
            parts.append(path(pts(ring), spot))
        parts.append(circle(c, cy, 6, face, stroke=edge, stroke_width=0.3, stroke_opacity=0.6))
        parts.append(circle(c, cy, r - 0.25, stroke=edge, stroke_width=0.5))
        parts.append(digit(ch, c + (-0.3 if ch == "1" else 0), cy, 10, 1.9, ink))
        defs = linear("edge", [(0, edge), (0.45, rim), (1, edge)], 0, 0, 1, 0)
        save(f"chip{ch}.svg", 15, 19, *parts, defs=defs)


def write_logo():
    defs, body = medallion(90, 84, "#17553F", "#08281D")
    chips = (ellipse(126, 139, 24, 8, "url(#shadow)")
             + big_chip(125, 133, 17, 5, NAVY, "#0E2038", IVORY)
             + big_chip(123.5, 126.5, 17, 5, RED, "#6E0F1E", IVORY)
             + big_chip(125, 120, 17, 5, "#E9DDBF", "#9A8A60", NAVY))
    save("logo.svg", 180, 180, body,
         group("translate(60 88) rotate(-17)", card_face(54, 78, "9", "heart", RED)),
         group("translate(98 80) rotate(6) translate(-32 -45)",
               squeezed_card(0, 0, 64, 90, 5, 38, 38, 17, 36)),
         chips,
         defs=GOLD_DEFS + CARD_DEFS + FLAP_DEFS + SHADOW_DEFS + defs)


LETTERS = {"S": "M8.6 2.4C7 -.6 .8 -.4 .8 3.4C.8 7.4 9.2 5.6 9.2 10C9.2 14.4 2 14.6 .6 11",
           "T": "M0 .5H10M5 .5V13.5", "A": "M0 13.5L5 .5L10 13.5M2 9H8",
           "R": "M.8 13.5V.5H5.4C10 .5 10 7 5.4 7H.8M5.2 7L9.4 13.5"}


def ribbon(cx, y, word):
    """A band of satin with a word on it, in letters drawn for it: pictures ask for no font."""
    w = len(word) * 14 + 16
    left = cx - w / 2
    letters = "".join(group(f"translate({num(left + 10 + i * 14)} {num(y + 5.2)})",
                            path(LETTERS[ch], stroke=IVORY, stroke_width=2.6,
                                 stroke_linecap="round", stroke_linejoin="round"))
                      for i, ch in enumerate(word))
    return (rect(left + 1, y + 2, w, 24, 5, "#021009", opacity=0.35)
            + rect(left, y, w, 24, 5, "url(#shoefront)", stroke="url(#shoelip)", stroke_width=1.4)
            + letters)


def write_start():
    defs, body = medallion(90, 84, "#1C6A4C", "#0A3626")
    fan = "".join(group(f"translate(90 128) rotate({turn}) translate(0 -61)", card)
                  for turn, card in ((-32, card_back(46, 66)),
                                     (-8, card_face(46, 66, "8", "spade", INK)),
                                     (16, card_face(46, 66, "9", "heart", RED))))
    colors = ((RED, "#6E0F1E", IVORY), (NAVY, "#0E2038", IVORY), (RED, "#6E0F1E", IVORY),
              (GOLD, GOLD_DARK, IVORY))
    chips = (ellipse(43, 130, 20, 6.5, "url(#shadow)")
             + "".join(big_chip(41.5 + (0, 1, -0.5, 0.5)[i], 124 - i * 5.4, 14, 4.4, *colors[i])
                       for i in range(4)))
    save("start.svg", 180, 180, body, fan, group("translate(54 87) scale(.98)", shoe()), chips,
         ribbon(90, 147, "START"),
         defs=GOLD_DEFS + CARD_DEFS.replace("#A4223F", "#27507F").replace("#64102A", "#142C4B")
         + SHADOW_DEFS + SHOE_DEFS + defs)


def dealt_card(value, pip, cx, cy, scale, turn):
    """A card of the table, with its shadow, about its middle."""
    drawing = make_cards.back() if value is None else make_cards.card(value, pip)
    inside = re.sub(r' id="\w+"', "", "".join(drawing.splitlines()[1:-1]))
    w, h = make_cards.CARD_W, make_cards.CARD_H
    shadows = "".join(rect(grow / -2 + 1.5, grow / -2 + 3, w + grow, h + grow, 5 + grow / 2, "#3A3210",
                           opacity=0.07) for grow in (6, 3.5, 1, -1.5))
    return group(f"{place(cx, cy, scale, turn)} translate({num(-w / 2)} {num(-h / 2)})",
                 shadows, inside)


def write_welcome():
    """What lies over the ground of the start screen: it leaves free where texts and buttons stand,
    and runs off the right edge like a table that one stands before."""
    cx, cy, rx, ry = 505, 236, 250, 15.5
    def oval(dy, grow, fill, **attr):
        return ellipse(cx, cy + dy, rx + grow, ry + grow * .3, fill, **attr)
    table = (oval(5, 5, "url(#ground)") + oval(2.6, 3, "#3B0A18") + oval(0.8, 3, "url(#wood)")
             + oval(0, 0, "url(#inlay)") + oval(0.4, -1.6, "url(#cloth)"))
    stacks = ((428, 238.5, 4, RED, "#6E0F1E", IVORY), (465, 232.5, 7, NAVY, "#0E2038", IVORY),
              (452, 243, 5, GOLD, GOLD_DARK, IVORY))
    chips = "".join(
        ellipse(x + 3, y + 4, 18, 5.5, "url(#shadow)")
        + "".join(big_chip(x + (0, .7, -.4, .4)[i % 4], y - i * 4.6, 14, 4, *colors)
                  for i in range(count))
        for x, y, count, *colors in stacks)
    hand = "".join(dealt_card(value, pip, 298 + 76 * math.sin(math.radians(turn)),
                              345 - 76 * math.cos(math.radians(turn)), 1.06, turn)
                   for value, pip, turn in ((None, None, -27), ("K", "diamond", -5), ("9", "spade", 17)))
    save("welcome.svg", 579, 346, table,
         group("translate(577 178) scale(-1.02 1.02)", shoe()), chips, hand,
         defs=GOLD_DEFS + SHADOW_DEFS + SHOE_DEFS
         + radial("ground", [(0, "#4A3F10", 0.5), (0.86, "#4A3F10", 0.32), (1, "#4A3F10", 0)])
         + linear("wood", [(0, "#8F2340"), (1, "#4D0F22")])
         + linear("inlay", [(0, "#8C6A2C"), (0.3, "#EBCB80"), (0.6, "#B48B42"), (1, "#D9B668")],
                  0, 0, 1, 0)
         + linear("cloth", [(0, "#0D4130"), (1, "#1A6A4A")]))


def write_bullet():
    ring = ""
    for i in range(8):
        a, b = math.pi / 4 * i - 0.2, math.pi / 4 * i + 0.2
        ring += pts([(10 + r * math.cos(t), 10 + r * math.sin(t))
                     for r, t in ((8.3, a), (8.3, b), (6.1, b), (6.1, a))])
    save("bullet.svg", 20, 20,
         circle(10, 10, 9.5, "url(#gold)", stroke="#6E4A13", stroke_width=0.6),
         circle(10, 10, 8.3, BURGUNDY), path(ring, GOLD_LIGHT),
         circle(10, 10, 6.1, IVORY, stroke=GOLD_DARK, stroke_width=0.5),
         suit("spade", 10, 9.9, 8.2, INK), defs=GOLD_DEFS)


def write_hands():
    """The same hand twice. It comes from beyond the edge that it pulls at, so as to leave the face
    free: from above for the lower edge, from the left for the right one."""
    hand = (path("M11 25.6H24.6V31H11Z", NAVY, stroke=INK, stroke_width=1.3,
                 stroke_linejoin="round")
            + circle(21.7, 28.3, 0.9, GOLD_LIGHT)
            + path(PINCH, "#FFFFFF", stroke="#10161D", stroke_width=1.4, stroke_linejoin="round")
            + line(PINCH_LINES, "#10161D", 1.1))
    save("hand_up.svg", 32, 32, group("matrix(-1 0 0 -1 32 32)", hand))
    save("hand_right.svg", 32, 32, group("matrix(0 1 -1 0 32 0)", hand))


def write_shoe():
    save("shoe.svg", 96, 64, table_shoe(), defs=GOLD_DEFS + SHADOW_DEFS + SHOE_DEFS)


def main():
    os.makedirs(OUT, exist_ok=True)
    for draw in (write_icon, write_tile, write_felt, write_toolbar, write_chips, write_logo,
                 write_start, write_welcome, write_bullet, write_hands, write_shoe):
        draw()


if __name__ == "__main__":
    main()
