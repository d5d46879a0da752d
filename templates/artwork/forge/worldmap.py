"""Paints the world maps: relief, sea, graticule, sea lanes, names. One mood for each side."""

import math

import numpy as np
from scipy import ndimage

from . import pixelfont
from .canvas import hexrgb, reduce_colours
from .globe import STRIP_AT, projected_latitude, trace
from .places import CITIES, LANES, ROSES, WATERS

# Ramps run from deep to shallow and from low to high. Pure blue stays out of every map.
MOODS = {
    "all": dict(sea="0a1424 0c1a2e 10223c 152c4c 1c3a60", land="22384c 2c4a62 3a6080 54809e 86aec4 c4dce6",
                coast="9cc8e0", glow="2c5c88", grid="24456a", border="1a2c3e", lane="4c88b4",
                name="4a76a0", city="f4d878", label="d8ecf4", ink="08101c"),
    "sov": dict(sea="140808 1c0b0a 260f0c 321410 431a14", land="321a16 46241c 5c2e22 7a402c a46846 d4a67c",
                coast="e07848", glow="702418", grid="4c2018", border="2a100c", lane="b05830",
                name="8c4030", city="f8d860", label="f4dcc0", ink="100404"),
    "psy": dict(sea="100818 180c26 201034 2b1546 3a1c5c", land="281a3a 382450 4c3068 6a4888 9872b4 d0b0e0",
                coast="cc80f0", glow="642c94", grid="3c2060", border="201030", lane="9c50cc",
                name="74409c", city="a8f078", label="ecdcf8", ink="0c0414"),
    "com": dict(sea="10161a 141d22 19252b 203038 2a3e46", land="343a30 484e3c 60664c 828664 a8aa86 dcdcc4",
                coast="c8d0b4", glow="3e5c60", grid="2c4248", border="262a22", lane="78a0a0",
                name="587c80", city="ffb040", label="f0f0e0", ink="0a0e0e"),
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
    picture = _sea(globe, mood, solid)
    ground = _ground(globe, mood, solid)
    picture += (ground - picture) * land[..., None]
    blend(picture, mood["border"], globe.borders() * solid * 0.75)
    rim = solid & ~ndimage.binary_erosion(np.pad(solid, 1, mode="wrap"))[1:-1, 1:-1]
    blend(picture, mood["coast"], rim * 0.8)
    _graticule(globe, mood, picture, solid)
    _lanes(globe, mood, picture, solid)
    for longitude, latitude in ROSES:
        _rose(globe, mood, picture, longitude, latitude)
    picture = reduce_colours(picture, colours)
    _strip(globe, mood, picture)
    _names(globe, mood, picture, solid)
    return picture


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


def _graticule(globe, mood, picture, solid):
    lines = np.zeros((globe.height, globe.width), np.float32)
    for longitude in range(-180, 180, 15):
        x = round(globe.pixel(longitude, 0)[0]) % globe.width
        lines[:, x] = 1 if longitude % 45 == 0 else 0.55
    for latitude in range(-45, 90, 15):
        if latitude < 85:
            y = round(globe.row(projected_latitude(latitude))) % globe.height
            lines[y, :] = 1.35 if latitude == 0 else 0.75
    blend(picture, mood["grid"], np.clip(lines * np.where(solid, 0.32, 0.8), 0, 1))
    for longitude in range(-180, 180, 15):
        for latitude in range(-45, 76, 15):
            x, y = (round(v) for v in globe.pixel(longitude, latitude))
            for d in (-2, -1, 0, 1, 2):
                for px, py in ((x + d, y), (x, y + d)):
                    py, px = py % globe.height, px % globe.width
                    if not solid[py, px]:
                        picture[py, px] = hexrgb(mood["name"])


def _lanes(globe, mood, picture, solid):
    def draw(context):
        context.set_line_width(1.15)
        context.set_dash([4 * globe.zoom, 3 * globe.zoom])
        for lane in LANES:
            points = globe.course(lane)
            _smooth(context, points)
            context.stroke()

    blend(picture, mood["lane"], globe.stencil(draw) * ~solid * 0.9)


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
    half = 3 * globe.zoom
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


def _names(globe, mood, picture, solid):
    zoom = globe.zoom
    font = pixelfont.TINY if zoom == 1 else pixelfont.CAPS
    ink, water, label, city = (hexrgb(mood[k]) for k in ("ink", "name", "label", "city"))
    for text, longitude, latitude in WATERS:
        x, y = (round(v) for v in globe.pixel(longitude, latitude))
        pixelfont.write(picture, text, x, y, water, font=pixelfont.CAPS, spacing=3 * zoom,
                        align="centre", wrap=True)
    for longitude in range(-180, 180, 45):
        for latitude in (-45, -15, 15, 45):
            x, y = (round(v) for v in globe.pixel(longitude, latitude))
            text = f"{abs(latitude)}{'N' if latitude > 0 else 'S'}"
            if solid[y % globe.height, x % globe.width]:
                continue
            pixelfont.write(picture, text, x + 3, y + 3, water, wrap=True)
    for text, longitude, latitude, where in CITIES:
        x, y = (round(v) for v in globe.pixel(longitude, latitude))
        _mark(picture, x, y, zoom, city, ink)
        gap, rise = 3 + zoom, font["A"].shape[0] // 2
        dx, dy, align = {"r": (gap, -rise, "left"), "l": (-gap + 1, -rise, "right"),
                         "t": (0, -gap - 2 * rise, "centre"), "b": (0, gap, "centre")}[where]
        pixelfont.write(picture, text, x + dx, y + dy, label, font=font, align=align, shadow=ink, wrap=True)


def _mark(picture, x, y, zoom, colour, ink):
    for reach, paint_with in ((1 + zoom, ink), (zoom, colour)):
        rows = np.arange(y - reach, y + reach + 1) % picture.shape[0]
        columns = np.arange(x - reach, x + reach + 1) % picture.shape[1]
        picture[np.ix_(rows, columns)] = paint_with
    if zoom > 1:
        picture[y % picture.shape[0], x % picture.shape[1]] = ink
