"""Sample battlefields to crop screenshots from: a modelled landscape with photographed models on it."""

from dataclasses import dataclass, field, replace

import numpy as np
from scipy import ndimage

from .camera import Light, develop, photograph, rays, view
from .effects import Effects
from .gunnery import Body, face_targets, flights
from .models.parts import ACCENT
from .noise import Field
from .solid import F, Solid, fenced, turn

SIZE = (1280, 960)
SCALE = 12.0  # pixels a metre
CELL = 0.15  # metres between two points of the relief
AZIMUTH, ELEVATION = 45, 32
SUN = Light(towards=(0.25, -0.62, 0.72), warm=(1.35, 1.22, 1.0))
TEAMS = {
    "none": ACCENT, "red": (0.55, 0.045, 0.03), "green": (0.08, 0.42, 0.30), "violet": (0.38, 0.08, 0.52),
}


@dataclass(frozen=True)
class Piece:
    """A model at a picture position; heading in degrees, 0 looks down to the left and 90 down to the
    right. Without a heading it faces the first target it shoots at. Pieces that shoot, are shot at,
    burn or explode have a name."""

    model: callable
    x: float
    y: float
    heading: float | None = 0
    scale: float = 1.0
    team: str = "none"
    lift: float = 0.0  # pixels above the ground, for what flies
    name: str = ""
    level: float | None = None  # height in metres of what it stands on, where that is not the ground


@dataclass(frozen=True)
class Apron:
    """A paved yard around a picture position, deep metres down to the left, wide ones to the right."""

    x: float
    y: float
    deep: float
    wide: float


@dataclass(frozen=True)
class Scene:
    seed: int
    ground: tuple  # two colours of the soil, then grass
    grass: tuple
    water: callable  # metres into the water at world x, y; negative on land
    roads: list  # picture positions along each road
    pieces: list
    aprons: list = field(default_factory=list)
    bursts: list = field(default_factory=list)  # explosions: name of a piece, size in pixels
    smoke: list = field(default_factory=list)  # name of the piece that burns, height in pixels
    shots: list = field(default_factory=list)
    hills: float = 1.0


_RIGHT, _UP, _FORWARD = view(AZIMUTH, ELEVATION)
_PLANE = np.array([_RIGHT[:2], _UP[:2]])


def to_ground(x, y):
    """World x, y on the level z = 0 at a picture position."""
    across, up = (x - SIZE[0] / 2) / SCALE, (SIZE[1] / 2 - y) / SCALE
    return np.linalg.solve(_PLANE, np.array([across, up]))


def to_picture(point):
    p = np.asarray(point, float)
    return SIZE[0] / 2 + p @ _RIGHT * SCALE, SIZE[1] / 2 - p @ _UP * SCALE


class Land:
    def __init__(self, scene):
        self.scene = scene
        self.rolling, self.fine = Field(scene.seed, 120, 2, 2.2), Field(scene.seed + 1, 24, 4, 1.5)
        self.swell = Field(scene.seed + 3, 60, 6, 2.4)
        self.patches = Field(scene.seed + 2, 70, 3, 1.9)
        self.spots = [
            (*to_ground(p.x, p.y), 4.2 * p.scale) for p in scene.pieces if p.scale > 1.2 and not p.lift
        ]
        self.yards = [(*to_ground(a.x, a.y), a.deep / 2, a.wide / 2) for a in scene.aprons]
        self.ways = [[to_ground(*at) for at in road] for road in scene.roads]
        # The relief is worked out once on a grid: rays ask for it some hundred times a pixel.
        corners = np.array([to_ground(x, y) for x in (0, SIZE[0]) for y in (-120, SIZE[1] + 60)])
        self.low = corners.min(axis=0) - 12
        columns, rows = ((corners.max(axis=0) + 12 - self.low) / CELL).astype(int)
        x = (self.low[0] + np.arange(columns) * CELL).astype(F)
        y = (self.low[1] + np.arange(rows) * CELL).astype(F)
        self.relief = self._height(*np.meshgrid(x, y))

    def height(self, x, y):
        at = np.stack([(y - F(self.low[1])) / F(CELL), (x - F(self.low[0])) / F(CELL)])
        return ndimage.map_coordinates(self.relief, at, order=1, mode="nearest", output=F)

    def _height(self, x, y):
        level = np.clip(self.rolling(x, y) * 1.5 - 0.5, 0, 3.4) * F(self.scene.hills)
        for sx, sy, reach in self.spots:
            level *= np.clip((np.hypot(x - F(sx), y - F(sy)) - F(reach * 0.85)) / F(reach * 0.6), 0, 1)
        level *= np.clip((np.minimum(self.road(x, y), self.yard(x, y) + F(1.5)) - F(2.4)) / 4, 0.0, 1)
        into = self.scene.water(x, y)
        level = level * np.clip((-into - F(1.2)) / 5, 0, 1) + self.fine(x, y) * F(0.055)
        return np.where(into > -1.2, np.minimum(level, -(into + F(1.2)) * F(0.75)), level)

    def road(self, x, y):
        """Distance to the nearest road's middle."""
        nearest = np.full(np.shape(x), 99, F)
        for way in self.ways:
            for (ax, ay), (bx, by) in zip(way, way[1:]):
                ex, ey = bx - ax, by - ay
                t = np.clip(((x - ax) * ex + (y - ay) * ey) / (ex * ex + ey * ey), 0, 1)
                nearest = np.minimum(nearest, np.hypot(x - ax - t * ex, y - ay - t * ey).astype(F))
        return nearest

    def yard(self, x, y):
        """Distance to the nearest paved yard, negative on it."""
        nearest = np.full(np.shape(x), 99, F)
        for cx, cy, deep, wide in self.yards:
            across, along = np.abs(x - F(cx)) - F(deep), np.abs(y - F(cy)) - F(wide)
            outside = np.hypot(np.maximum(across, 0), np.maximum(along, 0))
            nearest = np.minimum(nearest, outside + np.minimum(np.maximum(across, along), 0))
        return nearest

    def solids(self):
        terrain = lambda p: (p[..., 2] - self.height(p[..., 0], p[..., 1])) * F(0.55)

        def sea(p):
            x, y = p[..., 0], p[..., 1]
            return p[..., 2] + F(0.55) - F(0.035) * self.swell(x + y * F(0.6), (y - x * F(0.6)) * F(2.2))

        return [Solid(terrain, (0.2, 0.2, 0.1), 0.0), Solid(sea, (0.04, 0.10, 0.10), 0.8)]

    def texture(self, p, which, base):
        x, y, z = p[:, 0], p[:, 1], p[:, 2]
        soil, grass = (np.array(c, F) for c in (self.scene.ground, self.scene.grass))
        fine, patch = self.fine(x * F(1.7), y * F(1.7)), self.patches(x, y)
        share = np.clip(0.58 + 0.75 * patch + 0.16 * fine - 0.10 * z, 0, 1)[:, None]
        colour = (soil * (1 - share) + grass * share) * (1 + 0.10 * fine[:, None])
        wet = np.array((0.25, 0.21, 0.14), F) * (1 + 0.1 * fine[:, None])
        colour = np.where((z + F(0.08) * fine < -0.16)[:, None], wet, colour)
        d = self.road(x, y) + F(0.12) * fine
        on = np.clip((1.75 - d) * 4, 0, 1)[:, None]
        ruts = (0.8 + 0.2 * np.cos(np.clip(d, 0, 1.5) * 5.5))[:, None]
        colour = colour * (1 - on) + np.array((0.235, 0.195, 0.14), F) * ruts * (
            1 + 0.06 * fine[:, None]
        ) * on
        colour = self._paved(colour, x, y, fine)
        depth = np.clip((-self.height(x, y) - 0.55) / 1.6, 0, 1)[:, None]
        water = np.array((0.10, 0.17, 0.14), F) * (1 - depth) + np.array((0.015, 0.055, 0.075), F) * depth
        return np.where((which == 1)[:, None], water, colour)


    def _paved(self, colour, x, y, fine):
        """Slabs of concrete with joints, worn edges and oil stains where there is a yard."""
        d = self.yard(x, y)
        on = np.clip((F(0.15) - d + F(0.1) * fine) * 5, 0, 1)[:, None]
        joint = np.minimum(np.abs(x % F(2.4) - F(1.2)), np.abs(y % F(2.4) - F(1.2))) < 0.06
        slab = np.sin(np.floor(x / F(2.4) + F(0.5)) * 12.9 + np.floor(y / F(2.4) + F(0.5)) * 78.2)
        tone = (1 + 0.06 * slab + 0.04 * fine) * np.where(joint, 0.74, 1) * np.where(
            np.abs(d + 0.7) < 0.14, 1.35, 1
        )
        tone *= 1 - 0.22 * np.clip(self.patches(x * 3 + 17, y * 3) - 0.9, 0, 1)
        return colour * (1 - on) + np.array((0.27, 0.26, 0.235), F) * tone[:, None] * on


def _foot(land, piece):
    """Where a piece stands in the world."""
    gx, gy = to_ground(piece.x, piece.y)
    level = piece.level
    if level is None:
        afloat = land.scene.water(np.array([gx], F), np.array([gy], F))[0] > 0
        level = -0.5 if afloat else max(float(land.height(np.array([gx], F), np.array([gy], F))[0]), -0.5)
    return np.array((gx, gy, level + piece.lift / SCALE / _UP[2]))


def paint(scene):
    land = Land(scene)
    bodies = {p.name or f"piece {i}": Body(p, _foot(land, p)) for i, p in enumerate(scene.pieces)}
    face_targets(bodies, scene.shots)
    shots = flights(bodies, scene.shots, land.height)
    start, way = rays(SIZE, AZIMUTH, ELEVATION, (0, 0, 0), SIZE[0] / SCALE)
    # Rays begin just above the hills: the way through the air costs steps.
    start = start + way * ((start[:, 2:3] - F(6)) / -way[:, 2:3])
    shot = photograph(land.solids(), SIZE, start, way, SUN, fade=land.texture)
    light = shot.colour
    order = sorted(
        (body.piece for body in bodies.values()), key=lambda p: (p.lift > 0, p.level is not None, p.y)
    )
    for piece in order:
        _set_down(light, land, piece)
    picture = develop(light, 0.85)
    _fight(picture, scene, bodies, shots)
    grey = picture.mean(axis=2, keepdims=True)
    picture = np.clip(grey + (picture - grey) * 1.15, 0, 255)
    return np.round(picture / 5) * 5  # sheer grain would only fatten the file


_prints = {}


def _reach(body):
    """Metres from the origin within which the body and most of its shadow lie."""
    fences = [solid.fence for solid in fenced(body)]
    return 12 if None in fences else 2.5 + max(np.hypot(*centre[:2]) + radius for centre, radius in fences)


def _print(piece):
    """A model's photograph on level ground: light, coverage, and how far the ground lies in shade."""
    key = (piece.model, round(piece.heading), piece.scale, piece.team)
    if key not in _prints:
        team = TEAMS[piece.team]
        body = [replace(s, colour=team) if s.colour == ACCENT else s for s in piece.model()]
        # Walking around the model with camera and sun is cheaper than turning every solid.
        sun = replace(SUN, towards=tuple(np.array(SUN.towards, F) @ turn("z", piece.heading)))
        half = int(_reach(body) * piece.scale * SCALE)
        floor = Solid(lambda p: p[..., 2] + F(0.02), (0.5, 0.5, 0.5), 0.0)
        size = (half * 4, half * 4)
        start, way = rays(size, AZIMUTH - piece.heading, ELEVATION, (0, 0, 0), half * 2 / SCALE / piece.scale)
        solids = [*body] if piece.lift else [floor, *body]
        shot = photograph(solids, size, start, way, sun, reach=200)
        shape = (half * 2, 2, half * 2, 2)
        mine = (shot.which >= (0 if piece.lift else 1)).astype(F)
        light = (shot.colour * mine[..., None]).reshape(*shape, 3).mean(axis=(1, 3))
        shade = np.ones_like(shot.colour)
        if not piece.lift:
            ground = shot.which == 0
            shade[ground] = (shot.colour / np.median(shot.colour[ground], axis=0))[ground]
        share = (1 - mine).reshape(shape).mean(axis=(1, 3))
        shade = (shade * (1 - mine)[..., None]).reshape(*shape, 3).mean(axis=(1, 3))
        shade /= np.maximum(share, 1e-3)[..., None]
        shade[share < 1e-3] = 1
        _prints[key] = half, light, 1 - share, np.clip(shade, 0.2, 1.0)
    return _prints[key]


def _set_down(light, land, piece):
    half, body, cover, shade = _print(piece)
    foot = _foot(land, piece)
    foot[2] -= piece.lift / SCALE / _UP[2]
    x, y = to_picture(foot)
    x, y = int(round(x)), int(round(y - piece.lift))
    if piece.lift:  # aircraft cast their shadow far below
        below = 1 - 0.45 * ndimage.gaussian_filter(cover, 1.5)[..., None]
        _stamp(light, np.zeros_like(body), np.zeros_like(cover), below,
               x + int(piece.lift * 0.7), y + int(piece.lift * 1.15), half)
    _stamp(light, body, cover, shade, x, y, half)


def _stamp(light, body, cover, shade, x, y, half):
    top, left = max(0, y - half), max(0, x - half)
    bottom, right = min(SIZE[1], y + half), min(SIZE[0], x + half)
    if top >= bottom or left >= right:
        return
    cut = (slice(top - y + half, bottom - y + half), slice(left - x + half, right - x + half))
    under = light[top:bottom, left:right]
    under *= shade[cut] * (1 - cover[cut])[..., None]
    under += body[cut]


def _fight(picture, scene, bodies, shots):
    effects = Effects(picture, scene.seed + 9)
    effects.haze()
    for name, tall in sorted(scene.smoke, key=lambda s: bodies[s[0]].piece.y):
        effects.smoke(*to_picture(bodies[name].middle()), tall)
    for name, size in scene.bursts:
        effects.burst(*to_picture(bodies[name].middle()), size)
    for flight in shots:
        path = [to_picture(point) for point in flight.path]
        effects.flash(path[0], path[1])
        if flight.shot.kind == "rocket":
            effects.trail(path)
            effects.tracer([path[-2], path[-1]], 1.8, 0.9)
        else:
            effects.tracer(path if flight.shot.kind == "lob" else [path[0], path[-1]], 1.1)
        if flight.shot.reached >= 1:
            effects.burst(*path[-1], 6)
    np.clip(picture, 0, 255, out=picture)
