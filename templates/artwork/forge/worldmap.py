"""Paints the world maps: relief, sea, graticule, sea lanes, names. One mood for each side."""

import math
from dataclasses import dataclass

import numpy as np
from scipy import ndimage

from . import pixelfont
from .canvas import hexrgb, reduce_colours
from .globe import STRIP_AT, projected_latitude, trace
from .places import CITIES, LANES, RIVERS, ROSES, TOWNS, WATERS

LEAST_CONTRAST = 1.8

# Ramps run from deep to shallow and from low to high. Pure blue stays out of every map.
MOODS = {
    "all": dict(sea="0a1424 0c1a2e 10223c 152c4c 1c3a60", land="22384c 2c4a62 3a6080 54809e 86aec4 c4dce6",
                coast="9cc8e0", glow="2c5c88", grid="24456a", border="1a2c3e", lane="4c88b4",
                name="4a76a0", city="f8d860", label="d8ecf4", ink="08101c"),
    "sov": dict(sea="0e0606 140808 1c0c0a 28100c 38160f", land="4a261c 643224 803e2c 9c5438 bc7c54 e0b488",
                coast="e07848", glow="702418", grid="4c2018", border="2a100c", lane="b05830",
                name="8c4030", city="f8d860", label="f4dcc0", ink="100404"),
    "psy": dict(sea="0a0512 10081a 180c28 221036 30164a", land="3c2858 4e3470 644288 8058a4 a884c4 d8bce8",
                coast="cc80f0", glow="642c94", grid="3c2060", border="201030", lane="9c50cc",
                name="74409c", city="f8d860", label="ecdcf8", ink="0c0414"),
    "com": dict(sea="10161a 141d22 19252b 203038 2a3e46", land="2c3828 3e4c34 5a6444 7c7c54 a08c64 c4b08c ece6d6",
                coast="c8d0b4", glow="3e5c60", grid="2c4248", border="262a22", lane="78a0a0",
                name="587c80", river="6ea0b4", city="f8d860", label="f0f0e0", ink="0a0e0e"),
}


def ramp(stops, t):
    """Colours of a ramp, given as text of hex colours, at t from 0 to 1."""
    colours = np.array([hexrgb(stop) for stop in stops.split()], np.float32)
    at = np.clip(t, 0, 1) * (len(colours) - 1)
    low = np.minimum(at.astype(int), len(colours) - 2)
    part = (at - low)[..., None].astype(np.float32)
    return colours[low] * (1 - part) + colours[low + 1] * part


def blend(picture, colour, amount):
    picture += (np.array(hexrgb(colour), np.float32) - picture) * np.asarray(amount)[..., None]


def paint(globe, name, colours):
    """The map of one mood as an array of bytes with at most that many colours."""
    mood = MOODS[name]
    land = globe.land()
    solid = land > 0.5
    lanes = globe.stencil(_lane_lines(globe)) * ~solid
    taken = ndimage.binary_dilation(np.pad(solid, 3, mode="wrap"), iterations=3)[3:-3, 3:-3] | (lanes > 0.1)
    waters = list(_degree_labels(globe, solid))
    for label in waters:
        taken[label.pixels(globe, 4)] = True
    waters += _water_labels(globe, taken)
    places = list(_place_labels(globe, np.zeros_like(solid)))
    quiet = np.zeros_like(solid)  # where lines make room for lettering
    for label in [*waters, *(label for _, label in places)]:
        quiet[label.pixels(globe, 2)] = True
    picture = _sea(globe, mood, solid)
    ground = _ground(globe, mood, solid)
    picture += (ground - picture) * land[..., None]
    _expect_contrast(name, picture, solid)
    blend(picture, mood["border"], globe.borders() * (solid & ~quiet) * 0.75)
    if globe.bold > 1:
        blend(picture, mood["river"], globe.stencil(_river_lines(globe)) * (solid & ~quiet) * 0.85)
    rim = solid & ~ndimage.binary_erosion(np.pad(solid, 1, mode="wrap"))[1:-1, 1:-1]
    blend(picture, mood["coast"], rim * 0.8)
    _graticule(globe, mood, picture, solid, quiet)
    blend(picture, mood["lane"], lanes * ~quiet * 0.9)
    for longitude, latitude in ROSES:
        _rose(globe, mood, picture, longitude, latitude)
    picture = reduce_colours(picture, colours)
    _strip(globe, mood, picture)
    for (x, y), _ in places:
        _mark(picture, x, y, globe.bold, hexrgb(mood["city"]), hexrgb(mood["ink"]))
    for label in [*waters, *(label for _, label in places)]:
        _write(globe, mood, picture, label)
    return picture


def _expect_contrast(name, picture, solid):
    """Land is to be told from sea at a glance: by the ratio of their mean relative luminance."""
    linear = (np.clip(picture, 0, 255) / 255) ** 2.2 @ np.array([0.2126, 0.7152, 0.0722])
    ratio = (linear[solid].mean() + 0.05) / (linear[~solid].mean() + 0.05)
    print(f"{name}: land to sea {ratio:.2f} to 1")
    if ratio < LEAST_CONTRAST:
        raise ValueError(f"{name}: land to sea is {ratio:.2f} to 1, less than {LEAST_CONTRAST}")


def _sea(globe, mood, solid):
    away = globe.distance(~solid) / globe.zoom
    depth = 0.55 * np.exp(-away / 26) + 0.25 + 0.10 * globe.noise(11, 3, 2.2)
    picture = ramp(mood["sea"], depth)
    for line, strength in ((5, 0.42), (10, 0.26), (16, 0.15)):
        blend(picture, mood["glow"], (np.abs(away - line) < 0.75 / globe.zoom + 0.15) * strength * ~solid)
    blend(picture, mood["glow"], np.exp(-away / 2.2) * 0.7 * ~solid)
    return picture


def _ground(globe, mood, solid):
    inland = np.minimum(globe.distance(solid) / globe.zoom / 7, 1)
    chains = globe.mountains()
    fine, rolling = globe.noise(23, 14, 1.55), globe.noise(37, 6, 2.0)
    height = inland * (0.16 + 0.05 * rolling + chains * (0.62 + 0.22 * fine) + 0.028 * fine)
    slope_y, slope_x = np.gradient(np.pad(height, 2, mode="wrap"))
    shade = (-(slope_x + slope_y))[2:-2, 2:-2] * globe.zoom * 7
    return ramp(mood["land"], 0.14 + 0.62 * height - np.clip(shade, -0.34, 0.34))


def _graticule(globe, mood, picture, solid, quiet):
    lines = np.zeros((globe.height, globe.width), np.float32)
    for longitude in range(-180, 180, 15):
        x = round(globe.pixel(longitude, 0)[0]) % globe.width
        lines[:, x] = 1 if longitude % 45 == 0 else 0.55
    for latitude in range(-45, 90, 15):
        if latitude < 85:
            y = round(globe.row(projected_latitude(latitude))) % globe.height
            lines[y, :] = 1.35 if latitude == 0 else 0.75
    blend(picture, mood["grid"], np.clip(lines * np.where(solid, 0.32, 0.8), 0, 1) * ~quiet)
    for longitude in range(-180, 180, 15):
        for latitude in range(-45, 76, 15):
            x, y = (round(v) for v in globe.pixel(longitude, latitude))
            for d in (-2, -1, 0, 1, 2):
                for px, py in ((x + d, y), (x, y + d)):
                    py, px = py % globe.height, px % globe.width
                    if not solid[py, px] and not quiet[py, px]:
                        picture[py, px] = hexrgb(mood["name"])


def _lane_lines(globe):
    def draw(context):
        context.set_line_width(1.15)
        context.set_dash([4 * globe.bold, 3 * globe.bold])
        for lane in LANES:
            _smooth(context, globe.course(lane))
            context.stroke()

    return draw


def _river_lines(globe):
    def draw(context):
        context.set_line_width(1.3)
        for river in RIVERS:
            _smooth(context, globe.course(river))
            context.stroke()

    return draw


def _smooth(context, points):
    """A curve through the points (Catmull-Rom as Bezier pieces)."""
    p = np.array([points[0], *points, points[-1]], float)
    context.move_to(*p[1])
    for i in range(1, len(p) - 2):
        c1, c2 = p[i] + (p[i + 1] - p[i - 1]) / 6, p[i + 1] - (p[i + 2] - p[i]) / 6
        context.curve_to(*c1, *c2, *p[i + 1])


def _rose(globe, mood, picture, longitude, latitude):
    x, y = (round(v) + 0.5 for v in globe.pixel(longitude, latitude))
    size = 30 * globe.zoom

    def rings(context):
        context.set_line_width(1)
        for radius in (0.62, 0.78):
            context.arc(x, y, size * radius, 0, 2 * math.pi)
            context.stroke()
        for i in range(36):
            angle = math.radians(10 * i)
            outer = 0.78 if i % 3 else 0.86
            context.move_to(x + size * 0.70 * math.cos(angle), y + size * 0.70 * math.sin(angle))
            context.line_to(x + size * outer * math.cos(angle), y + size * outer * math.sin(angle))
            context.stroke()

    def points(half):
        def draw(context):
            for i, reach in [(k, 0.62) for k in (1, 3, 5, 7)] + [(k, 1.0) for k in (0, 2, 4, 6)]:
                angle = math.radians(45 * i)
                side = angle + (0.5 if half else -0.5)
                trace(context, [(x, y), (x + size * reach * math.sin(angle), y - size * reach * math.cos(angle)),
                                (x + size * 0.2 * math.sin(side), y - size * 0.2 * math.cos(side))])
                context.fill()

        return draw

    blend(picture, mood["grid"], globe.stencil(rings) * 0.9)
    blend(picture, mood["grid"], globe.stencil(points(True)))
    blend(picture, mood["name"], globe.stencil(points(False)))


def _strip(globe, mood, picture):
    """The ruled strip in the empty ocean where the southern edge of the world meets the northern."""
    middle = round(globe.row(STRIP_AT))
    half = 3 * globe.bold
    light, dark, line = (hexrgb(mood[k]) for k in ("name", "ink", "grid"))
    rows = lambda a, b: np.arange(middle + a, middle + b) % globe.height
    for step in range(72):
        left = round(globe.pixel(-180 + 5 * step, 0)[0])
        columns = np.arange(left, left + math.ceil(globe.width / 72) + 1) % globe.width
        for a, b, on in ((-half, 0, step % 2), (0, half, 1 - step % 2)):
            picture[np.ix_(rows(a, b), columns)] = light if on else dark
    for a in (-half - 3, -half - 1, half, half + 2):
        picture[rows(a, a + 1)] = line if a in (-half - 3, half + 2) else dark
    for longitude in range(-180, 180, 15):
        x = round(globe.pixel(longitude, 0)[0])
        text = f"{abs(longitude)}{'E' if 0 < longitude < 180 else 'W' if -180 < longitude < 0 else ''}"
        for y in (middle - half - 12, middle + half + 7):
            pixelfont.write(picture, text, x, y, light, align="centre", wrap=True)


@dataclass(frozen=True)
class Label:
    """Lettering with its top left corner at (x, y); `ink` is True where its colour goes."""

    ink: np.ndarray
    x: int
    y: int
    colour: str  # of the mood
    outlined: bool = False

    def pixels(self, globe, reach=0):
        """The rows and columns of its ink, of that many pixels around it, too."""
        ink = np.pad(self.ink, reach)
        if reach:
            ink = ndimage.binary_dilation(ink, np.ones((3, 3)), iterations=reach)
        rows, columns = np.nonzero(ink)
        return (rows + self.y - reach) % globe.height, (columns + self.x - reach) % globe.width


def _water_labels(globe, taken):
    """The seas' names, each at the nearest place that is clear of coasts and lines."""
    for text, longitude, latitude in WATERS:
        ink = pixelfont.mask(text, pixelfont.CAPS, 3 * globe.bold)
        h, w = ink.shape
        x, y = (round(v) for v in globe.pixel(longitude, latitude))
        free = ndimage.uniform_filter(taken.astype(np.float32), (h + 8, w + 8), mode="wrap")
        reach = 44 * globe.bold
        dy, dx = np.mgrid[-reach : reach + 1 : 2, -reach : reach + 1 : 2]
        crowded = free[(y + dy) % globe.height, (x + dx) % globe.width]
        best = np.argmin(crowded * 1e6 + np.hypot(dx, dy))
        yield Label(ink, x + dx.flat[best] - w // 2, y + dy.flat[best] - h // 2, "name")


def _degree_labels(globe, solid):
    for longitude in range(-180, 180, 45):
        for latitude in (-45, -15, 15, 45):
            x, y = (round(v) for v in globe.pixel(longitude, latitude))
            if not solid[y % globe.height, x % globe.width]:
                text = f"{abs(latitude)}{'N' if latitude > 0 else 'S'}"
                yield Label(pixelfont.mask(text), x + 3, y + 3, "name")


def _beside(globe, ink, x, y, where):
    """A place's name to the right, left, top or bottom of its mark."""
    (h, w), gap = ink.shape, 3 + globe.bold
    dx, dy = {"r": (gap, -(h // 2)), "l": (-gap + 1 - w, -(h // 2)),
              "t": (-(w // 2), -gap - h + 1), "b": (-(w // 2), gap)}[where]
    return Label(ink, x + dx, y + dy, "label", True)


def _place_labels(globe, taken):
    """The places' marks and names; of the lesser ones those for which there is room on some side."""
    font = pixelfont.TINY if globe.bold == 1 else pixelfont.CAPS
    for text, longitude, latitude, where in CITIES:
        x, y = (round(v) for v in globe.pixel(longitude, latitude))
        label = _beside(globe, pixelfont.mask(text, font), x, y, where)
        taken[label.pixels(globe, 3)] = True
        yield (x, y), label
    for text, longitude, latitude in TOWNS if globe.bold > 1 else ():
        x, y = (round(v) for v in globe.pixel(longitude, latitude))
        for where in "rltb":
            label = _beside(globe, pixelfont.mask(text, pixelfont.TINY), x, y, where)
            if not taken[label.pixels(globe, 2)].any():
                taken[label.pixels(globe, 3)] = True
                yield (x, y), label
                break


def _write(globe, mood, picture, label):
    if label.outlined:
        picture[label.pixels(globe, 1)] = hexrgb(mood["ink"])
    picture[label.pixels(globe)] = hexrgb(mood[label.colour])


def _mark(picture, x, y, zoom, colour, ink):
    for reach, paint_with in ((1 + zoom, ink), (zoom, colour)):
        rows = np.arange(y - reach, y + reach + 1) % picture.shape[0]
        columns = np.arange(x - reach, x + reach + 1) % picture.shape[1]
        picture[np.ix_(rows, columns)] = paint_with
    if zoom > 1:
        picture[y % picture.shape[0], x % picture.shape[1]] = ink
