"""A small sculptor: solids described by their distance function, lit and photographed.

Units are metres by feel: x points forward out of a vehicle's nose, y to its left, z up. A distance
function takes points as an (n, 3) array and returns how far each lies outside the surface, so that
solids can be rounded, carved and mirrored by arithmetic, and rays can step safely towards them.
"""

from dataclasses import dataclass, replace

import numpy as np

F = np.float32


@dataclass(frozen=True)
class Solid:
    """A body of one material. colour is 0 to 1 RGB; glow adds light of its own; pattern, given
    points on the surface, returns the factor by which the colour darkens there."""

    distance: callable
    colour: tuple = (0.5, 0.5, 0.5)
    shine: float = 0.25
    glow: float = 0.0
    pattern: callable = None
    fence: tuple = None  # centre and radius of a ball around it, see fenced()
    muzzle: tuple = None  # of a gun: the point where its shot leaves, and the direction it takes


def length(v):
    return np.sqrt(np.einsum("...i,...i->...", v, v))


def turn(axis, degrees):
    """Rotation matrix about x, y or z."""
    c, s = np.cos(np.radians(degrees)), np.sin(np.radians(degrees))
    rows = {"x": [(1, 0, 0), (0, c, -s), (0, s, c)], "y": [(c, 0, s), (0, 1, 0), (-s, 0, c)],
            "z": [(c, -s, 0), (s, c, 0), (0, 0, 1)]}[axis]
    return np.array(rows, F)


def box(centre, size, edge=0.04, tilt=None):
    centre, half = np.array(centre, F), np.array(size, F) / 2 - F(edge)

    def distance(p):
        q = p - centre
        q = np.abs(q @ tilt if tilt is not None else q) - half
        inner = np.minimum(np.maximum(np.maximum(q[..., 0], q[..., 1]), q[..., 2]), 0)
        return length(np.maximum(q, 0)) + inner - F(edge)

    return distance


def ball(centre, radius):
    """A sphere, or an ellipsoid when radius has three numbers."""
    centre = np.array(centre, F)
    radii = np.array(radius if np.ndim(radius) else (radius,) * 3, F)

    def distance(p):
        q = p - centre
        inner = length(q / radii)
        return inner * (inner - 1) / np.maximum(length(q / (radii * radii)), F(1e-6))

    return distance


def rod(a, b, radius, end=None, edge=0.02):
    """A straight rod from a to b with flat ends; end is its radius at b, for cones."""
    a, b = np.array(a, F), np.array(b, F)
    axis = b - a
    span = F(np.sqrt(axis @ axis))
    axis = axis / span
    first, last = F(radius - edge), F((radius if end is None else end) - edge)
    slope = F(np.cos(np.arctan2(abs(last - first), span)))

    def distance(p):
        q = p - a
        along = q @ axis
        out = np.sqrt(np.maximum(np.einsum("...i,...i->...", q, q) - along * along, 0))
        share = np.clip(along / span, 0, 1)
        side = (out - (first + (last - first) * share)) * slope
        cap = np.abs(along - span / 2) - span / 2
        return _rim(side, cap) - F(edge)

    return distance


def ring(centre, axis, radius, thickness):
    centre, axis = np.array(centre, F), "xyz".index(axis)
    others = [i for i in range(3) if i != axis]

    def distance(p):
        q = p - centre
        return np.hypot(length(q[..., others]) - F(radius), q[..., axis]) - F(thickness)

    return distance


def slab(outline, low, high, axis="y", edge=0.03):
    """An outline of points pushed through from low to high along an axis; the outline's
    coordinates are the two other axes in the order x, y, z."""
    points = np.array(outline, F)
    index = "xyz".index(axis)
    others = [i for i in range(3) if i != index]
    middle, half = F((low + high) / 2), F((high - low) / 2 - edge)

    def distance(p):
        flat = _outline_distance(p[..., others], points) + F(edge)
        cap = np.abs(p[..., index] - middle) - half
        return _rim(flat, cap) - F(edge)

    return distance


def _rim(side, cap):
    """Distance to where two surfaces that stand upright on each other meet."""
    return np.hypot(np.maximum(side, 0), np.maximum(cap, 0)) + np.minimum(np.maximum(side, cap), 0)


def _outline_distance(p, points):
    nearest = np.full(p.shape[:-1], np.inf, F)
    inside = np.zeros(p.shape[:-1], bool)
    for a, b in zip(points, np.roll(points, -1, axis=0)):
        e, w = b - a, p - a
        share = np.clip((w @ e) / (e @ e), 0, 1)
        gap = w - share[..., None] * e
        nearest = np.minimum(nearest, np.einsum("...i,...i->...", gap, gap))
        crosses = (a[1] > p[..., 1]) != (b[1] > p[..., 1])
        if e[1] != 0:
            inside ^= crosses & (p[..., 0] < e[0] * w[..., 1] / e[1] + a[0])
    return np.sqrt(nearest) * np.where(inside, F(-1), F(1))


def both(distance):
    """The solid and its mirror image to the right."""
    def mirrored(p):
        q = p.copy()
        q[..., 1] = np.abs(q[..., 1])
        return distance(q)
    return mirrored


def less(distance, *holes):
    def carved(p):
        d = distance(p)
        for hole in holes:
            d = np.maximum(d, -hole(p))
        return d
    return carved


def join(*parts):
    def joined(p):
        d = parts[0](p)
        for part in parts[1:]:
            d = np.minimum(d, part(p))
        return d
    return joined


def moved(distance, offset=(0, 0, 0), matrix=None, scale=1.0):
    offset = np.array(offset, F)

    def placed(p):
        q = (p - offset) / F(scale)
        return distance(q @ matrix if matrix is not None else q) * F(scale)

    return placed


def place(solids, offset=(0, 0, 0), matrix=None, scale=1.0):
    """A group of solids moved, turned and scaled as one; patterns and muzzles move along."""
    at = np.array(offset, F)
    spin = np.eye(3, dtype=F) if matrix is None else matrix

    def carry(pattern):
        if pattern is None:
            return None
        return lambda p: pattern(
            ((p - at) / F(scale)) @ matrix if matrix is not None else (p - at) / F(scale)
        )

    def train(muzzle):
        return muzzle and (spin @ muzzle[0] * F(scale) + at, spin @ muzzle[1])

    return [replace(s, distance=moved(s.distance, offset, matrix, scale), pattern=carry(s.pattern),
                    muzzle=train(s.muzzle)) for s in solids]


def fenced(solids, reach=8.0, pitch=0.5):
    """The solids with a ball around each that lies wholly within reach of the origin, found by
    feeling them out on a grid. Whoever is farther from the ball than from something else need not
    ask the solid itself."""
    steps = np.arange(-reach, reach + pitch / 2, pitch, dtype=F)
    grid = np.stack(np.meshgrid(steps, steps, steps, indexing="ij"), axis=-1).reshape(-1, 3)
    found = []
    for solid in solids:
        near = grid[solid.distance(grid) < pitch]
        if len(near) and np.abs(near).max() < reach:
            centre = (near.min(axis=0) + near.max(axis=0)) / 2
            solid = replace(solid, fence=(centre, length(near - centre).max() + F(pitch)))
        found.append(solid)
    return found
