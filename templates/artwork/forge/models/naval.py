"""Ships, floating with their water line at z = 0."""

from ..solid import Solid, ball, both, box, join, place, rod, slab, turn
from .parts import ACCENT, GLASS, HULL_RED, NAVY, STEEL, STEEL_DARK, WHITE, barrel, lamp, mast, seams


def _hull(length, beam, height, colour=NAVY):
    deck = [
        (length * 0.52, 0),
        (length * 0.3, beam * 0.42),
        (-length * 0.42, beam * 0.5),
        (-length * 0.5, beam * 0.4),
    ]
    outline = deck + [(x, -y) for x, y in deck[:0:-1]]
    low = [(x * 0.95, y * 0.82) for x, y in outline]
    return [Solid(slab(outline, height * 0.45, height, "z", 0.06), colour, 0.35, pattern=seams(0.9)),
            Solid(slab(low, -0.5, height * 0.6, "z", 0.1), colour, 0.35),
            Solid(slab([(x * 1.005, y * 1.02) for x, y in low], -0.4, 0.16, "z", 0.05), HULL_RED, 0.3)]


def _turret(place_at, size, guns=1, yaw=0):
    body = [
        Solid(
            slab([(-0.7, 0), (-0.7, 0.55), (0.35, 0.55), (0.8, 0.15), (0.8, 0)], -0.55, 0.55, edge=0.1),
            NAVY,
            0.4,
        )
    ]
    for y in ([0] if guns == 1 else [-0.22, 0.22]):
        body += barrel((0.5, y, 0.34), (2.0, y, 0.5), 0.09, False)
    return place(body, place_at, turn("z", yaw), size)


def patrol_boat():
    return [
        *_hull(6.0, 1.9, 0.7),
        Solid(
            slab([(-1.3, 0.6), (1.0, 0.6), (0.4, 1.45), (-1.2, 1.45)], -0.6, 0.6, edge=0.08),
            WHITE,
            0.3,
            pattern=seams(0.6),
        ),
        Solid(box((0.72, 0, 1.15), (0.1, 1.0, 0.3), 0.03, turn("y", 34)), GLASS, 1.0),
        Solid(both(box((-0.3, 0.6, 1.15), (1.0, 0.06, 0.28), 0.02)), GLASS, 1.0),
        *_turret((1.7, 0, 0.68), 0.75),
        Solid(both(rod((-2.4, 0.62, 0.85), (-0.9, 0.62, 0.85), 0.17)), ACCENT, 0.3),
        Solid(ball((-1.9, 0, 0.95), (0.3, 0.3, 0.35)), STEEL, 0.4),
        mast((-0.8, 0, 1.4), (-0.95, 0, 3.1)),
        Solid(box((-0.85, 0, 2.3), (0.1, 0.9, 0.14), 0.03), STEEL_DARK, 0.4),
        lamp((-0.95, 0, 3.1), 0.07),
    ]


def cruiser(yaw=14, stern_yaw=160):
    """The forward turrets are trained yaw degrees to the left of the bow, the one astern stern_yaw."""
    return [
        *_hull(9.4, 2.2, 0.85),
        Solid(
            slab([(-2.0, 0.8), (1.5, 0.8), (1.1, 1.5), (-1.8, 1.5)], -0.72, 0.72, edge=0.06),
            NAVY,
            0.35,
            pattern=seams(0.7),
        ),
        Solid(slab([(-0.2, 1.4), (1.0, 1.4), (0.7, 2.25), (-0.2, 2.25)], -0.5, 0.5, edge=0.06), WHITE, 0.3),
        Solid(box((0.84, 0, 1.98), (0.1, 0.85, 0.22), 0.03, turn("y", 20)), GLASS, 1.0),
        Solid(both(box((0.3, 0.5, 1.98), (0.7, 0.05, 0.2), 0.02)), GLASS, 1.0),
        Solid(
            slab([(-1.5, 1.4), (-0.7, 1.4), (-0.85, 2.3), (-1.4, 2.3)], -0.32, 0.32, edge=0.08),
            STEEL_DARK,
            0.3,
        ),
        Solid(box((-1.12, 0, 2.2), (0.62, 0.7, 0.14), 0.03), ACCENT, 0.3),
        *_turret((2.9, 0, 0.83), 0.85, 2, yaw),
        *_turret((1.95, 0, 1.2), 0.75, 2, yaw),
        *_turret((-3.1, 0, 0.83), 0.85, 2, stern_yaw),
        Solid(rod((1.95, 0, 0.8), (1.95, 0, 1.25), 0.4), STEEL, 0.4),
        mast((0.1, 0, 2.2), (0.0, 0, 3.9)),
        Solid(box((0.05, 0, 3.0), (0.1, 1.1, 0.2), 0.03), STEEL_DARK, 0.4),
        Solid(ball((0.35, 0, 2.5), 0.24), WHITE, 0.4),
        lamp((0, 0, 3.9), 0.07),
    ]


def submarine():
    return [
        Solid(
            join(
                rod((-2.8, 0, 0), (2.6, 0, 0), 0.75, edge=0.3),
                ball((2.5, 0, 0), (1.3, 0.74, 0.74)),
                rod((-2.6, 0, 0), (-4.2, 0, 0), 0.74, 0.15, 0.1),
            ),
            STEEL_DARK,
            0.6,
            pattern=seams(0.9, 0.7, 0.04, "x"),
        ),
        Solid(
            slab([(0.0, 0.6), (1.5, 0.6), (1.3, 1.75), (0.15, 1.75)], -0.26, 0.26, edge=0.16), STEEL_DARK, 0.6
        ),
        Solid(box((0.75, 0, 1.45), (1.3, 0.56, 0.1), 0.03), ACCENT, 0.3),
        Solid(
            both(slab([(0.5, 0.2), (0.3, 1.0), (0.9, 1.0), (1.1, 0.2)], 1.15, 1.22, "z", 0.02)),
            STEEL_DARK,
            0.5,
        ),
        mast((0.6, 0, 1.7), (0.6, 0, 2.7)),
        mast((0.95, 0.05, 1.7), (0.95, 0.05, 2.4)),
        Solid(box((0.62, 0, 2.68), (0.2, 0.1, 0.12), 0.02), GLASS, 1.0),
        Solid(
            slab([(-3.4, 0.1), (-4.0, 1.2), (-4.4, 1.2), (-4.3, 0.1)], -0.06, 0.06, edge=0.02),
            STEEL_DARK,
            0.5,
        ),
        Solid(both(rod((-2.2, 0.2, 0.72), (-0.3, 0.2, 0.74), 0.04)), STEEL, 0.4),
    ]
