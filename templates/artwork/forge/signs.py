"""Shapes of the symbols, each drawn on a grid of 24 x 24 units."""

import math


def _poly(c, *points):
    c.new_path()
    for x, y in points:
        c.line_to(x, y)
    c.close_path()
    c.fill()


def _disc(c, x, y, r):
    c.new_path()
    c.arc(x, y, r, 0, 2 * math.pi)
    c.fill()


def _bow(c, x, y, r, width, a=0.0, b=360.0):
    c.new_path()
    c.set_line_width(width)
    c.arc(x, y, r, math.radians(a), math.radians(b))
    c.stroke()


def _bar(c, x, y, w, h):
    c.rectangle(x, y, w, h)
    c.fill()


def _stroke(c, width, *points):
    c.new_path()
    c.set_line_width(width)
    for x, y in points:
        c.line_to(x, y)
    c.stroke()


def _spikes(c, x, y, outer, inner, count):
    """A star of so many points, the first of them upwards."""
    points = []
    for i in range(2 * count):
        r = inner if i % 2 else outer
        points.append((x + r * math.sin(math.pi * i / count), y - r * math.cos(math.pi * i / count)))
    _poly(c, *points)


def arrow(c):
    _poly(c, (12, 0), (21.5, 11), (15.5, 11), (15.5, 24), (8.5, 24), (8.5, 11), (2.5, 11))


def spearhead(c):
    _poly(c, (12, 0), (20, 10.5), (15.6, 9.6), (16.4, 17), (20.5, 24), (12, 20.4), (3.5, 24), (7.6, 17), (8.4, 9.6), (4, 10.5))


def infantry(c):
    # A helmeted head with a rifle slung across the back.
    c.new_path()
    c.arc(12, 8, 5.4, math.pi, 2 * math.pi)
    c.line_to(19, 8.4)
    c.line_to(5, 8.4)
    c.fill()
    _poly(c, (8.2, 9.8), (15.8, 9.8), (14.6, 13.2), (9.4, 13.2))
    _poly(c, (3, 24), (3.6, 17.4), (8.4, 14.6), (15.6, 14.6), (20.4, 17.4), (21, 24))
    _stroke(c, 2.0, (19.4, 13.6), (24, 2.4))


def armour(c):
    _poly(c, (7, 5.5), (15, 5.5), (15.8, 7), (24, 7), (24, 9.2), (16, 9.2), (16.4, 11.5), (21, 11.5), (22.5, 14), (1.5, 14), (3, 11.5), (5.6, 11.5))
    _poly(c, (0, 15.4), (24, 15.4), (21, 20.5), (3, 20.5))


def artillery(c):
    _poly(c, (5, 14), (21.5, 2.5), (23.5, 5.5), (9, 16.5))
    _bow(c, 8.5, 17, 4.2, 2.6)
    _poly(c, (9, 17), (1, 23), (0, 21), (7, 14))


def aircraft(c):
    _poly(c, (12, 0), (14, 3), (14.2, 8.5), (24, 14.5), (24, 17.2), (14.2, 14.4), (13.7, 19.3), (17.5, 22), (17.5, 24), (12, 22.6),
          (6.5, 24), (6.5, 22), (10.3, 19.3), (9.8, 14.4), (0, 17.2), (0, 14.5), (9.8, 8.5), (10, 3))


def helicopter(c):
    _bar(c, 1, 3.5, 18, 2)
    _bar(c, 9, 4, 2, 4)
    _poly(c, (5, 8), (12, 7.5), (15, 10.5), (23, 9.5), (23.5, 6), (24, 6), (24, 13), (15, 14), (12, 17.5), (4.5, 17.5), (1, 14), (1.5, 11))
    _bar(c, 2.5, 19.5, 13, 1.8)


def fleet(c):
    _poly(c, (0, 14), (24, 14), (20.5, 20.5), (3, 20.5))
    _poly(c, (6, 12.8), (7, 8), (11, 8), (11, 3), (13, 3), (13.2, 8), (16, 8), (17.5, 12.8))
    _bar(c, 16, 10, 6.5, 1.6)


def submarine(c):
    _poly(c, (1.5, 15), (4, 12.4), (19, 12), (22.8, 14.2), (22.8, 16.4), (19, 19), (4, 19), (1.5, 17))
    _poly(c, (9, 11.6), (9.6, 7), (14, 7), (14.6, 11.6))
    _stroke(c, 1.8, (11, 7.5), (11, 3.4), (14.4, 3.4))
    _poly(c, (0, 11), (2.6, 12.5), (2.6, 19), (0, 20.4))


def missile(c):
    _poly(c, (12, 0), (14.8, 4.5), (14.8, 15.5), (18.5, 19), (18.5, 21.5), (5.5, 21.5), (5.5, 19), (9.2, 15.5), (9.2, 4.5))
    _poly(c, (10, 22.2), (14, 22.2), (12, 25))


def base(c):
    _poly(c, (1, 23), (1, 8), (4, 8), (4, 10), (6, 10), (6, 8), (9, 8), (9, 12), (15, 12), (15, 8), (18, 8), (18, 10), (20, 10), (20, 8), (23, 8), (23, 23),
          (14.5, 23), (14.5, 17), (9.5, 17), (9.5, 23))
    _bar(c, 11.2, 1, 1.6, 11)
    _poly(c, (12.8, 1), (19, 3), (12.8, 5.4))


def city(c):
    _bar(c, 1, 10, 6.4, 13)
    _bar(c, 8.8, 2, 7, 21)
    _bar(c, 17.2, 7, 6, 16)


def factory(c):
    _poly(c, (1, 23), (1, 11), (7, 15), (7, 11), (13, 15), (13, 11), (17.5, 14), (18, 2), (22, 2), (23, 23))


def power(c):
    _poly(c, (14.5, 0), (4.5, 13.4), (11, 13.4), (8.4, 24), (20, 9.6), (13, 9.6), (17.4, 0))


def radar(c):
    # A dish that looks to the upper right, on a mast, with what it sends.
    c.new_path()
    c.arc(12.5, 10.5, 8.6, math.radians(45), math.radians(225))
    c.close_path()
    c.fill()
    _stroke(c, 1.6, (10.5, 12.5), (15.6, 7.4))
    for r in (4.6, 8.4):
        _bow(c, 14.6, 8.4, r, 1.8, -80, -10)
    _poly(c, (7.4, 16), (11, 17.6), (15, 24), (3.4, 24))


def airfield(c):
    # A runway in perspective with its middle line, and a tower beside it.
    c.set_fill_rule(1)
    c.new_path()
    outlines = [((6.4, 24), (10, 0), (14, 0), (17.6, 24))]
    outlines += [((12 - w, y), (12 + w, y), (12 + w, y + h), (12 - w, y + h))
                 for w, y, h in ((0.5, 2, 3), (0.7, 7.5, 4), (0.9, 14, 5), (1.1, 21, 3))]
    for outline in outlines:
        c.new_sub_path()
        for x, y in outline:
            c.line_to(x, y)
        c.close_path()
    c.fill()
    _poly(c, (18.4, 4), (24, 4), (23, 8), (22.6, 8), (22.6, 16), (19.8, 16), (19.8, 8), (19.4, 8))
    _poly(c, (0, 11), (6.4, 9), (6.4, 16), (0, 16))


def harbour(c):
    _bow(c, 12, 3.6, 2.5, 1.9)
    _bar(c, 10.8, 6, 2.4, 16)
    _bar(c, 6.6, 8, 10.8, 2.2)
    _bow(c, 12, 13.4, 9, 2.6, 12, 168)
    _poly(c, (1, 17.5), (1.6, 11.5), (6.6, 15))
    _poly(c, (23, 17.5), (22.4, 11.5), (17.4, 15))


def oil(c):
    c.new_path()
    c.move_to(12, 0)
    c.curve_to(15, 6, 19.5, 10.5, 19.5, 16)
    c.curve_to(19.5, 26.5, 4.5, 26.5, 4.5, 16)
    c.curve_to(4.5, 10.5, 9, 6, 12, 0)
    c.fill()


def bridge(c):
    _bar(c, 0, 14, 24, 2.8)
    _bar(c, 5, 4, 2.4, 18)
    _bar(c, 16.6, 4, 2.4, 18)
    for a, b in (((0, 13), (6.2, 5)), ((24, 13), (17.8, 5))):
        _stroke(c, 1.7, a, b)
    _bow(c, 12, 1, 10.3, 1.7, 38, 142)


def star(c):
    _spikes(c, 12, 13, 12.6, 5.2, 5)


def flag(c):
    _bar(c, 3, 0, 2.6, 24)
    c.new_path()
    c.move_to(6.6, 1)
    c.curve_to(11, -1.5, 15, 4.5, 22.5, 1.5)
    c.line_to(22.5, 13)
    c.curve_to(15, 16, 11, 10, 6.6, 12.5)
    c.close_path()
    c.fill()


def crosshair(c):
    # A ring with ticks that leave the target itself free, and its middle marked.
    _bow(c, 12, 12, 8.6, 2.2)
    for x, y, w, h in ((11, -0.5, 2, 7), (11, 17.5, 2, 7), (-0.5, 11, 7, 2), (17.5, 11, 7, 2)):
        _bar(c, x, y, w, h)
    _disc(c, 12, 12, 1.8)


def explosion(c):
    reach = (12.4, 8.8, 12, 9.4, 12.6, 8.6, 11.4, 9.2, 12.6, 9, 12)
    points = []
    for i, r in enumerate(reach):
        a = 2 * math.pi * i / len(reach)
        points.append((12 + r * math.sin(a), 12 - r * math.cos(a)))
        a += math.pi / len(reach)
        points.append((12 + 5.6 * math.sin(a), 12 - 5.6 * math.cos(a)))
    _poly(c, *points)


def star_inner(c):
    _spikes(c, 12, 13, 5.6, 2.3, 5)


def flag_inner(c):
    # The pole, and a stripe along the cloth.
    _bar(c, 3.6, 1, 1.4, 22)
    c.new_path()
    c.move_to(7.6, 5.2)
    c.curve_to(11, 3.6, 15, 8.6, 21.5, 6.4)
    c.line_to(21.5, 9)
    c.curve_to(15, 11.2, 11, 6.2, 7.6, 7.8)
    c.close_path()
    c.fill()


def explosion_inner(c):
    _spikes(c, 12, 12, 5.8, 3, 7)


def question(c):
    c.set_line_width(4.4)
    c.new_path()
    c.arc(12, 7, 5.2, math.radians(185), math.radians(400))
    c.curve_to(13.6, 12.4, 12, 12.6, 12, 17)
    c.stroke()
    _bar(c, 9.8, 19.4, 4.4, 4.4)


def warning(c):
    c.set_fill_rule(1)
    c.new_path()
    for outline in (((12, 0.5), (24.5, 23), (-0.5, 23)), ((10.4, 8), (13.6, 8), (13.1, 15.6), (10.9, 15.6)), ((10.7, 17.2), (13.3, 17.2), (13.3, 20), (10.7, 20))):
        c.new_sub_path()
        for x, y in outline:
            c.line_to(x, y)
        c.close_path()
    c.fill()


def rally(c):
    for y in (0, 7.4, 14.8):
        _poly(c, (12, y + 9.2), (1.5, y), (6.6, y), (12, y + 4.4), (17.4, y), (22.5, y))


def dot(c):
    _disc(c, 12, 12, 10)


SIGNS = {name: shape for name, shape in list(globals().items()) if callable(shape) and not name.startswith("_")}
