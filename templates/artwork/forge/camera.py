"""Photographs solids: steps rays to their surfaces and lights what they hit."""

from dataclasses import dataclass

import numpy as np

from .solid import F, fenced, length

STEPS, SHADOW_STEPS = 72, 26


@dataclass(frozen=True)
class Shot:
    """A photograph, all arrays (h, w): colour has three channels; depth is infinite where the ray
    met nothing; which is the index of the solid, or -1."""

    colour: np.ndarray
    depth: np.ndarray
    which: np.ndarray
    point: np.ndarray


@dataclass(frozen=True)
class Light:
    towards: tuple = (0.35, 0.55, 0.75)  # direction from the scene to the lamp, seen by the camera
    warm: tuple = (1.25, 1.16, 1.0)
    sky: tuple = (0.40, 0.46, 0.56)
    bounce: tuple = (0.20, 0.17, 0.14)
    rim: tuple = (0.30, 0.36, 0.46)
    behind: tuple = (-1.0, 0.0, 0.5)  # direction to a second lamp, which only draws bright contours
    contour: tuple = (0.0, 0.0, 0.0)  # its colour


def unit(v):
    v = np.asarray(v, F)
    return v / np.maximum(length(v)[..., None], F(1e-9))


def view(azimuth, elevation):
    """Right, up and forward directions of a camera that looks down at the origin. At azimuth 0 it
    stands in front of the noses; positive angles walk to their left side."""
    a, e = np.radians(azimuth), np.radians(elevation)
    back = np.array([np.cos(e) * np.cos(a), np.cos(e) * np.sin(a), np.sin(e)], F)
    right = np.array([-np.sin(a), np.cos(a), 0], F)
    return right, np.cross(back, right).astype(F), -back


def rays(size, azimuth, elevation, target, width, lens=0.0):
    """Start points and directions for a picture of (w, h) pixels that is width metres wide at the
    target. lens 0 keeps parallels parallel; larger values bring the camera nearer."""
    w, h = size
    right, up, forward = view(azimuth, elevation)
    x = ((np.arange(w, dtype=F) + F(0.5)) / w - F(0.5)) * F(width)
    y = (F(0.5) - (np.arange(h, dtype=F) + F(0.5)) / h) * F(width * h / w)
    plane = np.array(target, F) + x[None, :, None] * right + y[:, None, None] * up
    if lens == 0:
        start = plane - forward * F(width * 2)
        return start.reshape(-1, 3), np.broadcast_to(forward, start.shape).reshape(-1, 3).astype(F)
    eye = np.array(target, F) - forward * F(width / lens)
    way = unit(plane - eye)
    return np.broadcast_to(eye, way.shape).reshape(-1, 3).astype(F), way.reshape(-1, 3)


def nearest(solids, p):
    d = solids[0].distance(p).copy()  # may be a view of the points themselves
    for solid in solids[1:]:
        if solid.fence is None:
            d = np.minimum(d, solid.distance(p))
            continue
        centre, radius = solid.fence
        away = p - centre
        close = np.nonzero(np.einsum("ij,ij->i", away, away) < np.square(np.maximum(d, 0) + radius))[0]
        if len(close):
            d[close] = np.minimum(d[close], solid.distance(p[close]))
    return d


def photograph(solids, size, start, way, light=Light(), reach=60.0, fade=None):
    """The Shot of a scene. fade(points) may name solids' colours by position (ground textures)."""
    w, h = size
    count = w * h
    solids = fenced(solids)
    travelled = np.zeros(count, F)
    active = np.arange(count)
    hit = np.zeros(count, bool)
    for _ in range(STEPS):
        p = start[active] + way[active] * travelled[active, None]
        d = nearest(solids, p)
        travelled[active] += d
        hit[active[d < 0.004]] = True
        active = active[(d >= 0.004) & (travelled[active] < reach)]
        if not len(active):
            break
    # Rays that graze a slope creep along it; the last few are close enough.
    hit[active] = travelled[active] < reach
    seen = np.nonzero(hit)[0]
    points = start[seen] + way[seen] * travelled[seen, None]
    colour = np.zeros((count, 3), F)
    which = np.full(count, -1)
    if len(seen):
        colour[seen], which[seen] = _lit(solids, points, way[seen], light, fade)
    depth = np.where(hit, travelled, F(np.inf))
    place = start + way * np.minimum(travelled, reach)[:, None]
    return Shot(colour.reshape(h, w, 3), depth.reshape(h, w), which.reshape(h, w), place.reshape(h, w, 3))


def _lit(solids, p, way, light, fade):
    gaps = np.stack([solid.distance(p) for solid in solids])
    which = gaps.argmin(axis=0)
    base = np.array([s.colour for s in solids], F)[which]
    shine = np.array([s.shine for s in solids], F)[which]
    glow = np.array([s.glow for s in solids], F)[which]
    for i, solid in enumerate(solids):
        mine = which == i
        if solid.pattern is not None and mine.any():
            base[mine] *= np.asarray(solid.pattern(p[mine]), F).reshape(mine.sum(), -1)
    if fade is not None:
        base = fade(p, which, base)
    normal = _normal(solids, p)
    lamp = unit(light.towards)
    shade = _shadow(solids, p + normal * F(0.03), lamp)
    open_sky = _openness(solids, p, normal)
    facing = np.clip(normal @ lamp, 0, 1) * shade
    half = unit(lamp - way)
    gleam = np.clip(np.einsum("ij,ij->i", normal, half), 0, 1) ** F(24) * shine * shade
    edge = (1 - np.clip(-np.einsum("ij,ij->i", normal, way), 0, 1)) ** 3
    up = (normal[:, 2:3] * F(0.5) + F(0.5))
    ambient = (np.array(light.bounce, F) * (1 - up) + np.array(light.sky, F) * up) * open_sky[:, None]
    total = base * (ambient + np.array(light.warm, F) * facing[:, None])
    total += gleam[:, None] + np.array(light.rim, F) * (edge * shine * open_sky)[:, None]
    outline = np.clip(normal @ unit(light.behind), 0, 1) * np.sqrt(edge) * open_sky
    total += np.array(light.contour, F) * outline[:, None]
    return total + base * glow[:, None], which


def _normal(solids, p):
    total = np.zeros_like(p)
    for corner in ((1, -1, -1), (-1, -1, 1), (-1, 1, -1), (1, 1, 1)):
        corner = np.array(corner, F)
        total += corner * nearest(solids, p + corner * F(0.006))[:, None]
    return unit(total)


def _shadow(solids, p, lamp):
    """1 in the light, 0 in the shade, with a soft edge."""
    light = np.ones(len(p), F)
    far = np.full(len(p), 0.02, F)
    active = np.arange(len(p))
    for _ in range(SHADOW_STEPS):
        d = nearest(solids, p[active] + lamp * far[active, None])
        light[active] = np.minimum(light[active], np.clip(d * 10 / far[active], 0, 1))
        far[active] += np.clip(d, 0.03, 1.2)
        active = active[(light[active] > 0.02) & (far[active] < 12)]
        if not len(active):
            break
    return light


def _openness(solids, p, normal):
    closed = np.zeros(len(p), F)
    for step, weight in ((0.05, 0.9), (0.14, 0.75), (0.32, 0.6), (0.7, 0.4)):
        gap = nearest(solids, p + normal * F(step))
        closed += np.clip(step - gap, 0, None) / F(step) * F(weight * 0.42)
    return np.clip(1 - closed, 0.12, 1)


def beam(shot, start, way, first, last, radius, end):
    """How brightly a cone of light from first to last, radius to end metres thick, stands in the air
    between camera and scene; 0 to 1 for each pixel of the shot."""
    first, last = np.array(first, F), np.array(last, F)
    axis = last - first
    span = np.sqrt(axis @ axis)
    axis = axis / span
    between = first - start
    along = way @ axis
    lean = np.maximum(1 - along * along, F(1e-4))
    ahead = np.einsum("ij,ij->i", between, way)
    share = np.clip((along * ahead - between @ axis) / lean / span, 0, 1)
    near = first + axis * (share * span)[:, None]
    travelled = np.einsum("ij,ij->i", near - start, way)
    off = length(start + way * travelled[:, None] - near)
    thick = F(radius) + F(end - radius) * share
    light = np.clip(1 - (off / thick) ** 2, 0, 1) * (1 - share) ** F(0.7) * np.sqrt(F(radius) / thick)
    return (light * (travelled < shot.depth.ravel())).reshape(shot.depth.shape)


def develop(colour, exposure=1.0):
    """Film response: light of any strength to 0..1, then to bytes' 0..255."""
    x = np.clip(colour * exposure, 0, None)
    mapped = x * (2.51 * x + 0.03) / (x * (2.43 * x + 0.59) + 0.14)
    return np.clip(mapped, 0, 1) ** (1 / 1.9) * 255
