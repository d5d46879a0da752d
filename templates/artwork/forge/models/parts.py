"""Paints, surface patterns and parts that many models share."""

import numpy as np

from ..solid import F, Solid, ball, both, box, less, rod, slab

ARMOUR = (0.19, 0.205, 0.15)
ARMOUR_DARK = (0.115, 0.125, 0.095)
SAND = (0.33, 0.27, 0.17)
STEEL = (0.24, 0.26, 0.28)
STEEL_DARK = (0.10, 0.11, 0.12)
RUBBER = (0.035, 0.035, 0.038)
NAVY = (0.20, 0.24, 0.28)
HULL_RED = (0.22, 0.06, 0.045)
CONCRETE = (0.40, 0.385, 0.35)
ROOF = (0.15, 0.165, 0.18)
BRICK = (0.27, 0.15, 0.11)
ACCENT = (0.62, 0.29, 0.04)  # the amber that marks everything of the package
WHITE = (0.62, 0.62, 0.58)
GLASS = (0.05, 0.13, 0.17)
SKIN = (0.50, 0.31, 0.22)
CLOTH = (0.17, 0.18, 0.12)
WEBBING = (0.09, 0.085, 0.06)
HOT = (1.0, 0.55, 0.15)
COLD = (0.25, 0.8, 1.0)


def stripes(axis, pitch, dark=0.45, share=0.5, offset=0.0):
    index = "xyz".index(axis)
    return lambda p: np.where(((p[..., index] + F(offset)) / F(pitch)) % 1 < share, F(1), F(dark))


def seams(pitch, dark=0.62, line=0.05, axes="xyz"):
    """Thin dark joints of plates that are pitch metres wide."""
    def pattern(p):
        shade = np.ones(p.shape[:-1], F)
        for axis in axes:
            across = (p[..., "xyz".index(axis)] / F(pitch) + F(0.5)) % 1
            shade = np.where(across < line, F(dark), shade)
        return shade
    return pattern


def blotches(scale=1.3, dark=0.66):
    """Two-tone camouflage."""
    def pattern(p):
        q = p * F(scale)
        wave = np.sin(q[..., 0] * 2.1 + np.sin(q[..., 1] * 2.7) * 1.3)
        wave = wave + np.sin(q[..., 1] * 1.7 + q[..., 2] * 2.3 + 1.0)
        return np.where(wave > 0.35, F(dark), F(1)) * seams(0.9, 0.8, 0.04)(p)
    return pattern


def hazard(axis="x", other="z", pitch=0.5):
    """Slanting black bars over whatever colour the solid has."""
    i, k = "xyz".index(axis), "xyz".index(other)
    return lambda p: np.where(((p[..., i] + p[..., k]) / F(pitch)) % 1 < 0.5, F(1), F(0.06))


def tracks(front=2.1, rear=-2.1, inner=0.72, outer=1.25, height=0.82, paint=ARMOUR):
    """A pair of tracks with guards."""
    outline = [
        (rear - 0.1, height * 0.5),
        (rear + 0.35, 0.03),
        (front - 0.5, 0.03),
        (front + 0.1, height * 0.55),
        (front - 0.05, height * 0.85),
        (rear + 0.05, height * 0.85),
    ]
    axle = height * 0.36
    wheels = [
        Solid(both(rod((x, outer - 0.1, axle), (x, outer + 0.03, axle), height * 0.27)), STEEL_DARK, 0.4)
        for x in np.linspace(rear + 0.4, front - 0.55, 5)
    ]
    guard = box(((front + rear) / 2, (inner + outer) / 2, height * 0.92),
                (front - rear + 0.25, outer - inner + 0.1, 0.1), 0.03)
    skirt = box(
        ((front + rear) / 2 - 0.1, outer + 0.02, height * 0.8),
        (front - rear - 0.5, 0.06, height * 0.26),
        0.02,
    )
    belt = slab(outline, inner, outer, edge=0.06)
    return [Solid(both(belt), RUBBER, 0.3, pattern=stripes("x", 0.16, 2.4)),
            Solid(both(guard), paint, 0.3, pattern=seams(0.85)),
            Solid(both(skirt), ARMOUR_DARK, 0.3, pattern=seams(0.7)), *wheels]


def wheels(places, radius=0.42, inner=0.55, outer=0.9):
    found = []
    for x in places:
        found.append(Solid(both(rod((x, inner, radius), (x, outer, radius), radius, edge=0.08)), RUBBER, 0.2))
        found.append(
            Solid(both(rod((x, outer - 0.05, radius), (x, outer + 0.02, radius), radius * 0.5)), STEEL, 0.5)
        )
    return found


def barrel(start, end, radius, brake=True):
    """A gun with a sleeve and, at its mouth, a brake."""
    start, end = np.array(start, F), np.array(end, F)
    way = end - start
    mouth = end + way * F(0.02), way / F(np.sqrt(way @ way))
    found = [Solid(rod(start, end, radius), STEEL_DARK, 0.6, muzzle=mouth),
             Solid(rod(start, start + way * F(0.35), radius * 1.45), ARMOUR_DARK, 0.4)]
    if brake:
        sleeve = rod(end - way * F(0.09), end + way * F(0.02), radius * 1.6)
        bore = rod(end - way * F(0.02), end + way * F(0.1), radius * 0.75)
        found.append(Solid(less(sleeve, bore), STEEL_DARK, 0.6))
    return found


def lamp(place, radius=0.07, colour=HOT, glow=2.5):
    return Solid(ball(place, radius), colour, 0.0, glow)


def mast(foot, top, radius=0.025):
    return Solid(rod(foot, top, radius, radius * 0.5, edge=0.005), STEEL_DARK, 0.3)
