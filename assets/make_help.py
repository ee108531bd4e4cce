#!/usr/bin/env python3
"""Writes help/pictures/draw.svg: the rules by which a third card is drawn, as a picture.

Each field has an id that says what it shows, such as "banker5-4-draws": a Banker with 5, the
Player's third card a 4. A test holds every id against the rules of the game.

Usage: python3 assets/make_help.py
"""

from make_cards import glyph
from make_pictures import (CARD_DEFS, GOLD, GOLD_DEFS, GOLD_LIGHT, INK, IVORY, line, linear, num,
                           path, rect, save)

WIDTH, HEIGHT = 640, 600
LEFT, STEP = 92, 48  # The first field's left edge, and from one field to the next.
FIELD_W, FIELD_H = 44, 36
SPANS = {3: (0, 9), 4: (2, 7), 5: (4, 7), 6: (6, 7)}  # Third cards a Banker with 3 to 6 draws on.


def player(total):
    return "draws" if total <= 5 else "stands" if total <= 7 else "natural"


def banker(total, third):
    """third is None where the Player stood."""
    if third is None:
        return "draws" if total <= 5 else "stands"
    low, high = SPANS.get(total, (0, 9) if total < 3 else (10, 10))
    return "draws" if low <= third <= high and (total, third) != (3, 8) else "stands"


def sign(text, cx, cy, width, height, color):
    return "".join(path(d, color) for d in glyph(text, cx, cy - height / 2, width, height))


def word(text, cx, cy, size, color, anchor="middle"):
    return (f'<text x="{num(cx)}" y="{num(cy)}" font-family="Liberation Sans" font-size="{size}" '
            f'font-weight="bold" text-anchor="{anchor}" fill="{color}">{text}</text>')


def field(ident, x, y, act):
    """One field: a closed card on lit felt draws, a bar stands, a star is a natural."""
    cx, cy = x + FIELD_W / 2, y + FIELD_H / 2
    if act == "draws":
        inside = (rect(cx - 10, cy - 14, 20, 28, 2.5, "url(#paper)")
                  + rect(cx - 8, cy - 12, 16, 24, 1.5, "url(#back)")
                  + path(f"M{num(cx)} {num(cy - 7)}L{num(cx + 5)} {num(cy)}L{num(cx)} "
                         f"{num(cy + 7)}L{num(cx - 5)} {num(cy)}Z", "url(#goldv)"))
    elif act == "stands":
        inside = line(f"M{num(cx - 8)} {num(cy)}H{num(cx + 8)}", "#7FA593", 3)
    else:
        inside = path(f"M{num(cx)} {num(cy - 11)}L{num(cx + 3.4)} {num(cy - 3.4)}L{num(cx + 11)} "
                      f"{num(cy)}L{num(cx + 3.4)} {num(cy + 3.4)}L{num(cx)} {num(cy + 11)}"
                      f"L{num(cx - 3.4)} {num(cy + 3.4)}L{num(cx - 11)} {num(cy)}"
                      f"L{num(cx - 3.4)} {num(cy - 3.4)}Z", "url(#gold)")
    ground = "#1E6A4B" if act == "draws" else "#0B3426"
    return (f'<g id="{ident}-{act}">'
            + rect(x, y, FIELD_W, FIELD_H, 5, ground, stroke="#2F7A5B" if act == "draws"
                   else "#17493A", stroke_width=1) + inside + "</g>")


def total(value, cx, cy):
    """The total of two cards, as a plate."""
    return (rect(cx - 16, cy - 15, 32, 30, 15, "#0B3426", stroke="url(#gold)", stroke_width=1.6)
            + sign(str(value), cx, cy, 16, 16, GOLD_LIGHT))


def third_card(point, cx, cy):
    """The Player's third card: an open card, or for 0 the four kinds that count it."""
    kinds = {0: ("10", "J", "Q", "K"), 1: ("A",)}.get(point, (str(point),))
    face = rect(cx - 15, cy - 20, 30, 40, 3.5, "url(#paper)", stroke="#B9AB8A", stroke_width=0.8)
    if len(kinds) == 1:
        return face + sign(kinds[0], cx, cy, 18, 21, INK)
    return face + "".join(sign(kind, cx - 6.4 + 12.8 * (i % 2), cy - 9 + 18 * (i // 2), 10, 11.5, INK)
                          for i, kind in enumerate(kinds))


def legend(y):
    parts, x = [], 76
    for act, text in (("draws", "draws a card"), ("stands", "stands"),
                      ("natural", "natural: nobody draws")):
        parts.append(field("sign", x, y, act)
                     + word(text, x + FIELD_W + 8, y + 23, 14, IVORY, "start"))
        x += {"draws": 160, "stands": 120}.get(act, 0)
    return "".join(parts)


def write_draw():
    parts = [rect(0, 0, WIDTH, HEIGHT, 16, "url(#cloth)"),
             rect(6, 6, WIDTH - 12, HEIGHT - 12, 12, stroke="url(#gold)", stroke_width=1.4),
             word("1. The Player, by its two cards", WIDTH / 2, 36, 17, GOLD_LIGHT)]
    for value in range(10):
        x = LEFT + STEP / 2 + value * STEP
        parts.append(total(value, x + FIELD_W / 2, 64) + field(f"player{value}", x, 86, player(value)))
    top = 172
    parts.append(word("2. The Banker, by its two cards and the Player's third card", WIDTH / 2, 156,
                      17, GOLD_LIGHT))
    thirds = [None, *range(10)]
    for column, third in enumerate(thirds):
        x = LEFT + column * STEP - (8 if third is None else 0)
        cx = x + FIELD_W / 2
        parts.append(word("Player", cx, top + 18, 13, IVORY) + word("stood", cx, top + 33, 13, IVORY)
                     if third is None else third_card(third, cx, top + 22))
        for value in range(8):
            name = "stood" if third is None else third
            parts.append(field(f"banker{value}-{name}", x, top + 50 + value * 39,
                               banker(value, third)))
    for value in range(8):
        parts.append(total(value, 56, top + 50 + value * 39 + FIELD_H / 2))
    parts.append(line(f"M{LEFT + STEP - 6} {top}V{top + 50 + 7 * 39 + FIELD_H}", GOLD, 1))
    save("../help/pictures/draw.svg", WIDTH, HEIGHT, *parts, legend(HEIGHT - 54),
         defs=GOLD_DEFS + CARD_DEFS.replace("#A4223F", "#27507F").replace("#64102A", "#142C4B")
         + linear("cloth", [(0, "#114735"), (1, "#0A2F23")]))


if __name__ == "__main__":
    write_draw()
