"""Vehicles on wheels, tracks and air cushions."""

import numpy as np

from ..solid import F, Solid, ball, both, box, join, less, place, ring, rod, slab, turn
from .parts import (
    ACCENT, ARMOUR, ARMOUR_DARK, CLOTH, COLD, GLASS, NAVY, RUBBER, SAND, STEEL, STEEL_DARK, WHITE, barrel,
    blotches, hazard, lamp, mast, seams, stripes, tracks, wheels,
)


def light_tank():
    """Low and wedge-shaped, with its turret far back and a long thin gun."""
    hull = slab(
        [(-2.1, 0.75), (-2.0, 0.4), (1.5, 0.35), (2.4, 0.6), (0.75, 1.1), (-2.0, 1.1)], -0.85, 0.85, edge=0.05
    )
    outline = [
        (-1.35, -0.5), (-1.35, 0.5), (-0.75, 0.78), (0.1, 0.62), (0.75, 0.2), (0.75, -0.2), (0.1, -0.62),
        (-0.75, -0.78),
    ]
    stowage = [Solid(box((-1.5, y, 1.42), (0.3, 0.5, 0.3), 0.08), CLOTH, 0.05) for y in (-0.28, 0.28)]
    return [
        *tracks(),
        Solid(hull, ARMOUR, 0.3, pattern=blotches(1.3, 0.5)),
        Solid(slab(outline, 1.1, 1.58, "z", 0.12), ARMOUR, 0.35, pattern=blotches(1.6, 0.5)),
        *barrel((0.5, 0, 1.34), (3.2, 0, 1.42), 0.075),
        Solid(rod((-0.55, 0.25, 1.5), (-0.55, 0.25, 1.72), 0.26), ARMOUR_DARK, 0.4),
        Solid(rod((-0.35, 0.25, 1.82), (0.45, 0.25, 1.86), 0.035), STEEL_DARK, 0.5),
        Solid(box((-0.85, 0, 1.61), (0.55, 0.9, 0.06), 0.02), ACCENT, 0.2, pattern=stripes("y", 0.25, 0.2)),
        *stowage,
        mast((-1.0, -0.5, 1.5), (-1.35, -0.55, 2.8)),
    ]


def heavy_tank():
    """A fortress of bare steel: twin guns, aprons over the tracks, a plough of a bow."""
    hull = slab(
        [(-2.6, 0.9), (-2.5, 0.45), (2.3, 0.4), (2.7, 0.9), (2.3, 1.38), (-2.45, 1.38)], -1.1, 1.1, edge=0.06
    )
    turret = slab(
        [
            (-1.7, -0.8), (-1.7, 0.8), (-1.2, 1.25), (0.75, 1.25), (1.3, 0.75), (1.3, -0.75), (0.75, -1.25),
            (-1.2, -1.25),
        ],
        1.35,
        2.2,
        "z",
        0.1,
    )
    apron = slab([(-2.7, 1.2), (-2.7, 0.55), (2.3, 0.55), (2.75, 0.95), (2.6, 1.2)], 1.62, 1.74, edge=0.04)
    bow = slab([(2.3, 0.3), (3.0, 0.35), (2.75, 0.85), (2.4, 1.0)], -1.5, 1.5, edge=0.05)
    return [
        *tracks(2.5, -2.5, 0.95, 1.62, 1.05, NAVY),
        Solid(both(apron), NAVY, 0.35, pattern=seams(0.62, 0.5, 0.07, "x")),
        Solid(hull, NAVY, 0.3, pattern=seams(0.8)),
        Solid(bow, ACCENT, 0.3, pattern=hazard("y", "z", 0.55)),
        Solid(turret, NAVY, 0.4, pattern=seams(0.62, 0.5, 0.05)),
        Solid(box((1.25, 0, 1.78), (0.3, 1.35, 0.6), 0.1), STEEL_DARK, 0.4),
        *[gun for y in (0.36, -0.36) for gun in barrel((1.2, y, 1.8), (3.7, y, 1.9), 0.13)],
        Solid(rod((-0.6, 0.5, 2.15), (-0.6, 0.5, 2.42), 0.36), STEEL, 0.4),
        Solid(rod((-0.6, -0.5, 2.15), (-0.6, -0.5, 2.35), 0.3), STEEL, 0.4),
        Solid(both(box((0.9, 1.0, 2.26), (0.3, 0.3, 0.2), 0.04)), STEEL_DARK, 0.4),
        Solid(box((-1.72, 0, 1.8), (0.4, 1.6, 0.4), 0.06), STEEL_DARK, 0.3, pattern=stripes("y", 0.2)),
        mast((-1.3, -0.9, 2.1), (-1.7, -1.0, 3.5)),
    ]


def scout():
    frame = slab(
        [(-1.5, 0.6), (-1.4, 0.42), (1.3, 0.42), (1.75, 0.6), (1.5, 0.9), (0.6, 1.0), (-1.5, 1.0)],
        -0.55,
        0.55,
        edge=0.05,
    )
    bow = [(0.55, 0.95), (0.0, 1.65), (-0.9, 1.65), (-1.35, 1.0)]
    cage = join(
        *[rod((a[0], y, a[1]), (b[0], y, b[1]), 0.045) for y in (-0.5, 0.5) for a, b in zip(bow, bow[1:])],
        rod((0.0, -0.5, 1.65), (0.0, 0.5, 1.65), 0.045),
        rod((-0.9, -0.5, 1.65), (-0.9, 0.5, 1.65), 0.045),
    )
    return [
        *wheels((-1.05, 1.15), 0.5, 0.6, 0.98),
        Solid(frame, SAND, 0.3, pattern=blotches(1.7, 0.72)),
        Solid(cage, STEEL_DARK, 0.5),
        Solid(box((-0.35, 0, 1.05), (0.8, 0.9, 0.25), 0.06), RUBBER, 0.1),
        Solid(box((0.42, 0, 1.2), (0.05, 0.95, 0.42), 0.01, turn("y", -38)), GLASS, 0.9),
        Solid(ball((-0.35, 0.25, 1.45), 0.17), STEEL, 0.4),
        Solid(box((-0.38, 0.25, 1.2), (0.3, 0.4, 0.4), 0.1), ARMOUR_DARK, 0.1),
        *barrel((-0.7, -0.1, 1.85), (0.75, -0.1, 1.9), 0.06, False),
        Solid(box((-0.75, -0.1, 1.82), (0.5, 0.2, 0.22), 0.04), STEEL_DARK, 0.5),
        Solid(both(box((1.66, 0.34, 0.78), (0.1, 0.2, 0.14), 0.04)), WHITE, 0.5, 1.2),
        Solid(box((1.2, 0, 0.98), (0.5, 0.6, 0.05), 0.02), ACCENT, 0.2),
        mast((-1.4, 0.4, 1.0), (-1.8, 0.45, 2.5)),
    ]


def _rocket(y, z):
    mouth = np.array((1.35, y, z), F), np.array((1, 0, 0), F)
    return Solid(rod((0.9, y, z), (1.18, y, z), 0.13, 0.02), ACCENT, 0.4, muzzle=mouth)


def rocket_carrier():
    cab = slab([(1.0, 0.6), (2.5, 0.6), (2.55, 1.1), (2.25, 1.75), (1.0, 1.75)], -0.85, 0.85, edge=0.08)
    tilt = turn("y", -24)
    pod = [
        Solid(
            less(
                box((0, 0, 0), (2.6, 1.7, 0.85), 0.05),
                *[rod((1.1, y, z), (1.6, y, z), 0.155) for y in (-0.6, -0.2, 0.2, 0.6) for z in (-0.2, 0.2)],
            ),
            ARMOUR, 0.3, pattern=seams(0.65),
        ),
        *[_rocket(y, z) for y in (-0.6, -0.2, 0.2, 0.6) for z in (-0.2, 0.2)],
    ]
    return [
        *wheels((-1.9, -0.85, 1.75), 0.46, 0.6, 1.0),
        Solid(box((-0.1, 0, 0.72), (4.9, 1.2, 0.26), 0.05), STEEL_DARK, 0.3),
        Solid(cab, ARMOUR, 0.3, pattern=blotches(1.4)),
        Solid(box((2.43, 0, 1.42), (0.1, 1.4, 0.42), 0.03, turn("y", 25)), GLASS, 0.9),
        Solid(both(box((1.75, 0.84, 1.4), (0.8, 0.06, 0.4), 0.02)), GLASS, 0.9),
        Solid(both(box((2.56, 0.6, 0.8), (0.08, 0.26, 0.16), 0.03)), WHITE, 0.5, 1.2),
        Solid(box((-0.9, 0, 1.05), (1.6, 1.3, 0.5), 0.1), ARMOUR_DARK, 0.3),
        *place(pod, (-0.75, 0, 1.85), tilt),
    ]


def listener():
    body = slab([(-2.0, 0.5), (1.9, 0.5), (2.3, 0.9), (1.9, 1.5), (-2.0, 1.5)], -0.9, 0.9, edge=0.08)
    dish = [
        Solid(
            less(
                ball((0, 0, 0), (0.45, 1.15, 1.0)), ball((0.35, 0, 0), (0.5, 1.12, 0.97)),
                box((1, 0, 0), (1.9, 4, 4), 0),
            ),
            WHITE, 0.3,
        ),
        Solid(rod((-0.3, 0, 0), (0.6, 0, 0), 0.04), STEEL_DARK, 0.4),
        lamp((0.62, 0, 0), 0.1, COLD, 1.6),
    ]
    return [
        *tracks(2.1, -2.0, 0.72, 1.2, 0.8),
        Solid(body, SAND, 0.3, pattern=seams(0.75)),
        Solid(rod((-0.5, 0, 1.4), (-0.5, 0, 2.2), 0.2, 0.14), STEEL, 0.5),
        *place(dish, (-0.3, 0, 2.55), turn("z", 12) @ turn("y", -22)),
        Solid(box((1.95, 0, 1.28), (0.1, 1.3, 0.3), 0.03, turn("y", 32)), GLASS, 0.9),
        Solid(both(box((0.1, 0.9, 1.2), (1.8, 0.04, 0.2), 0.01)), ACCENT, 0.2, pattern=hazard(pitch=0.3)),
        mast((-1.8, 0.7, 1.4), (-1.9, 0.75, 2.9)),
        mast((-1.8, -0.7, 1.4), (-1.9, -0.75, 2.9)),
    ]


def supply_truck():
    cab = slab([(1.0, 0.6), (2.3, 0.6), (2.35, 1.15), (2.0, 1.85), (1.0, 1.85)], -0.85, 0.85, edge=0.1)
    cover = slab(
        [(-0.95, 1.1), (0.95, 1.1), (0.95, 1.8), (0.6, 2.15), (-0.6, 2.15), (-0.95, 1.8)],
        -2.3,
        0.8,
        "x",
        0.08,
    )
    return [
        *wheels((-1.7, -0.7, 1.6), 0.48, 0.6, 1.0),
        Solid(box((-0.1, 0, 0.72), (4.6, 1.2, 0.24), 0.04), STEEL_DARK, 0.3),
        Solid(cab, ARMOUR, 0.3),
        Solid(cover, SAND, 0.05, pattern=stripes("x", 0.62, 0.7, 0.9)),
        Solid(box((-0.75, 0, 1.0), (3.1, 1.95, 0.3), 0.04), ARMOUR_DARK, 0.3, pattern=seams(0.6)),
        Solid(box((2.2, 0, 1.48), (0.1, 1.45, 0.42), 0.03, turn("y", 26)), GLASS, 0.9),
        Solid(both(box((1.6, 0.86, 1.45), (0.6, 0.06, 0.42), 0.02)), GLASS, 0.9),
        Solid(both(box((2.36, 0.6, 0.85), (0.08, 0.26, 0.18), 0.03)), WHITE, 0.5, 1.2),
        Solid(box((2.36, 0, 0.66), (0.14, 1.7, 0.2), 0.04), ACCENT, 0.3, pattern=hazard("y", "z", 0.36)),
    ]


def skimmer():
    skirt = slab(
        [(-2.4, -1.1), (-2.4, 1.1), (1.4, 1.25), (2.4, 0.6), (2.4, -0.6), (1.4, -1.25)], 0.02, 0.6, "z", 0.28
    )
    deck = slab(
        [(-2.3, -1.0), (-2.3, 1.0), (1.3, 1.1), (2.2, 0.5), (2.2, -0.5), (1.3, -1.1)], 0.55, 0.95, "z", 0.1
    )
    cabin = slab([(-0.1, 0.9), (1.45, 0.9), (0.95, 1.55), (-0.1, 1.6)], -0.7, 0.7, edge=0.1)
    fans = both(
        less(rod((-1.9, 0.55, 1.6), (-1.45, 0.55, 1.6), 0.58), rod((-2.2, 0.55, 1.6), (-1.2, 0.55, 1.6), 0.5))
    )
    blades = both(
        join(*[box((-1.65, 0.55, 1.6), (0.06, 0.95, 0.12), 0.02, turn("x", a)) for a in (20, 80, 140)])
    )
    return [
        Solid(skirt, RUBBER, 0.15, pattern=stripes("x", 0.4, 1.9, 0.9)),
        Solid(deck, ARMOUR, 0.3, pattern=seams(0.8)),
        Solid(cabin, ARMOUR, 0.3, pattern=blotches(1.5)),
        Solid(box((1.22, 0, 1.22), (0.08, 1.15, 0.45), 0.03, turn("y", 38)), GLASS, 0.9),
        Solid(both(box((0.5, 0.71, 1.25), (0.9, 0.05, 0.3), 0.02)), GLASS, 0.9),
        Solid(fans, ACCENT, 0.3),
        Solid(blades, STEEL, 0.5),
        *barrel((0.3, 0, 1.85), (1.7, 0, 1.9), 0.07),
        Solid(ball((0.2, 0, 1.72), (0.42, 0.4, 0.28)), ARMOUR_DARK, 0.4),
        lamp((1.95, 0.35, 0.9), 0.07),
        lamp((1.95, -0.35, 0.9), 0.07),
    ]


def flak():
    hull = slab(
        [(-2.0, 0.7), (-1.9, 0.4), (1.6, 0.4), (2.2, 0.8), (1.4, 1.25), (-2.0, 1.25)], -0.85, 0.85, edge=0.05
    )
    guns = [piece for y in (-0.5, -0.22, 0.22, 0.5) for piece in barrel((0.2, y, 0.1), (2.3, y, 0.1), 0.055)]
    mount = [Solid(box((-0.2, 0, 0), (1.1, 1.35, 0.7), 0.12), ARMOUR, 0.35, pattern=seams(0.55)), *guns]
    return [
        *tracks(2.0, -2.0, 0.72, 1.22, 0.82),
        Solid(hull, ARMOUR, 0.3, pattern=seams(0.8)),
        Solid(rod((-0.5, 0, 1.2), (-0.5, 0, 1.5), 0.75), ARMOUR_DARK, 0.4),
        *place(mount, (-0.4, 0, 1.85), turn("y", -32)),
        Solid(both(box((-0.6, 0.78, 1.85), (0.9, 0.12, 0.75), 0.05)), ARMOUR_DARK, 0.3),
        Solid(ring((-1.25, 0, 2.2), "x", 0.34, 0.05), STEEL, 0.5),
        Solid(rod((-1.25, 0, 1.5), (-1.25, 0, 1.9), 0.06), STEEL, 0.5),
        Solid(both(box((2.0, 0.5, 1.0), (0.14, 0.3, 0.1), 0.03)), ACCENT, 0.2, 0.8),
    ]


def bridge_layer():
    span = less(
        slab(
            [(-2.6, 1.55), (2.9, 1.3), (3.3, 1.42), (2.7, 1.75), (-2.3, 2.0), (-2.75, 1.75)],
            0.35,
            0.95,
            edge=0.04,
        ),
        *[
            rod((x, 0, z), (x, 2, z), 0.17)
            for x, z in zip(np.arange(-2, 2.9, 0.6), np.linspace(1.76, 1.53, 9))
        ],
    )
    hull = slab(
        [(-2.1, 0.75), (-2.0, 0.4), (1.5, 0.35), (2.25, 0.72), (1.5, 1.15), (-2.0, 1.15)],
        -0.85,
        0.85,
        edge=0.05,
    )
    return [
        *tracks(),
        Solid(hull, SAND, 0.3, pattern=seams(0.8)),
        Solid(both(span), STEEL, 0.4),
        Solid(both(rod((0.9, 0.3, 1.1), (1.8, 0.3, 1.5), 0.09)), STEEL_DARK, 0.6),
        Solid(box((-1.3, 0, 1.4), (0.6, 0.7, 0.6), 0.08), SAND, 0.3),
        Solid(
            both(box((3.0, 0.65, 1.5), (0.5, 0.62, 0.1), 0.02)), ACCENT, 0.2, pattern=hazard("x", "y", 0.3)
        ),
        lamp((2.1, 0.4, 0.95)),
        lamp((2.1, -0.4, 0.95)),
    ]
