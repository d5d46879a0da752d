"""Aircraft, modelled flying level about z = 0."""

from ..solid import Solid, ball, both, box, join, less, place, rod, slab, turn
from .parts import (
    ACCENT, ARMOUR, ARMOUR_DARK, GLASS, HOT, NAVY, ROOF, STEEL, STEEL_DARK, WHITE, barrel, blotches, seams,
    stripes,
)


def gunship():
    blades = join(
        *[slab([(-0.1, 0), (0.1, 0), (0.13, 3.0), (-0.13, 3.0)], 0.02, 0.06, "z", 0.01)] + [
            lambda p, m=turn("z", a): slab(
                [(-0.1, 0), (0.1, 0), (0.13, 3.0), (-0.13, 3.0)], 0.02, 0.06, "z", 0.01
            )(p @ m)
            for a in (90, 180, 270)
        ]
    )
    return [
        Solid(ball((0.4, 0, 0), (1.7, 0.55, 0.62)), ARMOUR, 0.35, pattern=blotches(1.4)),
        Solid(ball((1.35, 0, 0.25), (0.75, 0.4, 0.42)), GLASS, 0.9),
        Solid(ball((0.6, 0, 0.5), (0.7, 0.38, 0.38)), GLASS, 0.9),
        Solid(rod((-0.8, 0, 0.15), (-3.2, 0, 0.42), 0.32, 0.1), ARMOUR, 0.35, pattern=seams(0.6)),
        Solid(
            slab([(-3.3, 0.3), (-2.8, 0.3), (-3.15, 1.25), (-3.5, 1.25)], -0.05, 0.05, edge=0.02), ACCENT, 0.3
        ),
        Solid(
            join(*[box((-3.3, 0.16, 0.9), (0.07, 0.03, 1.3), 0.01, turn("y", a)) for a in (25, 115)]),
            STEEL_DARK,
            0.4,
        ),
        Solid(rod((-0.2, 0, 0.5), (-0.2, 0, 1.0), 0.22, 0.12), STEEL_DARK, 0.4),
        *place([Solid(blades, STEEL_DARK, 0.4)], (-0.2, 0, 0.98), turn("z", 22)),
        Solid(
            both(slab([(-0.7, 0.3), (0.4, 0.3), (0.1, 1.6), (-0.5, 1.6)], -0.16, -0.06, "z", 0.03)),
            ARMOUR_DARK,
            0.3,
        ),
        Solid(
            both(
                join(
                    rod((-0.6, 0.95, -0.28), (0.5, 0.95, -0.28), 0.2),
                    rod((-0.6, 1.45, -0.26), (0.45, 1.45, -0.26), 0.14),
                )
            ),
            STEEL,
            0.4,
            pattern=stripes("x", 0.55, 0.6, 0.9),
        ),
        Solid(both(rod((0.5, 0.95, -0.28), (0.75, 0.95, -0.28), 0.13, 0.02)), ACCENT, 0.4),
        *barrel((1.6, 0, -0.45), (2.5, 0, -0.5), 0.06, False),
        Solid(ball((1.5, 0, -0.4), 0.24), STEEL_DARK, 0.5),
        Solid(both(rod((-0.1, 0.45, 0.45), (-1.1, 0.42, 0.45), 0.22)), ARMOUR_DARK, 0.4),
    ]


def strike_jet():
    wings = slab([(0.9, 0.3), (-0.5, 2.3), (-1.3, 2.35), (-1.7, 0.3)], -0.05, 0.05, "z", 0.02)
    return [
        Solid(
            slab(
                [(3.3, 0.0), (2.0, 0.28), (0.9, 0.55), (-2.4, 0.5), (-2.4, -0.5), (0.9, -0.55), (2.0, -0.28)],
                -0.28,
                0.26,
                "z",
                0.2,
            ),
            NAVY,
            0.45,
            pattern=seams(0.8),
        ),
        Solid(ball((1.35, 0, 0.27), (0.95, 0.3, 0.32)), GLASS, 1.0),
        Solid(both(wings), NAVY, 0.45, pattern=seams(0.7)),
        Solid(
            both(slab([(-0.6, 2.2), (-0.2, 1.9), (-1.3, 1.95), (-1.3, 2.3)], -0.06, 0.07, "z", 0.02)),
            ACCENT,
            0.3,
        ),
        Solid(
            both(slab([(-1.7, 0.4), (-2.4, 1.3), (-2.8, 1.3), (-2.7, 0.4)], -0.04, 0.04, "z", 0.02)),
            NAVY,
            0.45,
        ),
        Solid(
            both(slab([(-1.2, 0.2), (-1.9, 1.25), (-2.5, 1.25), (-2.4, 0.2)], 0.42, 0.5, edge=0.02)),
            NAVY,
            0.45,
        ),
        Solid(
            both(slab([(-1.78, 1.05), (-1.9, 1.27), (-2.52, 1.27), (-2.5, 1.05)], 0.41, 0.51, edge=0.01)),
            ACCENT,
            0.3,
        ),
        Solid(
            both(
                less(
                    rod((-2.2, 0.26, 0.02), (-2.85, 0.26, 0.02), 0.24, 0.2),
                    rod((-2.5, 0.26, 0.02), (-3, 0.26, 0.02), 0.16),
                )
            ),
            STEEL_DARK,
            0.6,
        ),
        Solid(both(rod((-2.5, 0.26, 0.02), (-2.8, 0.26, 0.02), 0.14)), HOT, 0, 2.2),
        Solid(
            both(
                less(
                    box((0.75, 0.5, -0.05), (1.0, 0.36, 0.42), 0.06),
                    box((1.2, 0.5, -0.05), (0.4, 0.26, 0.3), 0.02),
                )
            ),
            STEEL_DARK,
            0.4,
        ),
        Solid(both(rod((0.3, 1.35, -0.18), (-1.2, 1.35, -0.18), 0.09)), WHITE, 0.4),
    ]


def bomber():
    outline = [
        (2.6, 0.0), (1.6, 0.9), (-1.2, 3.6), (-2.0, 3.6), (-1.0, 2.0), (-1.9, 1.1), (-1.3, 0.5), (-2.1, 0.0),
    ]
    wing = outline + [(x, -y) for x, y in outline[-2:0:-1]]
    return [
        Solid(slab(wing, -0.08, 0.08, "z", 0.05), ROOF, 0.45, pattern=seams(0.95, 0.7)),
        Solid(ball((0.4, 0, 0.12), (2.1, 0.8, 0.4)), ROOF, 0.45, pattern=seams(0.95, 0.7)),
        Solid(ball((1.55, 0, 0.3), (0.55, 0.36, 0.2)), GLASS, 1.0),
        Solid(both(ball((-0.2, 1.05, 0.1), (1.1, 0.42, 0.28))), ROOF, 0.45),
        Solid(both(box((0.72, 1.05, 0.14), (0.2, 0.5, 0.2), 0.05)), STEEL_DARK, 0.2),
        Solid(
            both(slab([(-1.15, 3.3), (-1.0, 3.38), (-1.95, 3.55), (-1.9, 3.3)], -0.09, 0.09, "z", 0.02)),
            ACCENT,
            0.3,
        ),
        Solid(both(box((-1.45, 1.0, 0.1), (0.3, 0.45, 0.1), 0.02)), HOT, 0, 1.2),
    ]


def cargo_plane():
    props = both(
        join(
            *[
                join(*[box((1.25, y, 0.62), (0.04, 1.25, 0.1), 0.01, turn("x", a)) for a in (10, 70, 130)])
                for y in (1.5, 2.9)
            ]
        )
    )
    return [
        Solid(
            join(rod((-1.6, 0, 0), (1.9, 0, 0), 0.72, edge=0.3), ball((1.8, 0, 0), (1.0, 0.71, 0.71))),
            STEEL,
            0.45,
            pattern=seams(0.8),
        ),
        Solid(rod((-1.5, 0, 0.05), (-3.6, 0, 0.55), 0.7, 0.15, 0.1), STEEL, 0.45, pattern=seams(0.8)),
        Solid(box((2.25, 0, 0.42), (0.4, 0.9, 0.25), 0.1, turn("y", 25)), GLASS, 1.0),
        Solid(
            both(slab([(0.9, 0), (0.55, 4.2), (-0.15, 4.2), (-0.5, 0)], 0.56, 0.76, "z", 0.08)),
            STEEL,
            0.45,
            pattern=seams(0.9),
        ),
        Solid(
            both(slab([(0.58, 3.75), (0.55, 4.22), (-0.15, 4.22), (-0.13, 3.75)], 0.55, 0.78, "z", 0.08)),
            ACCENT,
            0.3,
        ),
        Solid(
            both(join(*[rod((-0.3, y, 0.58), (1.2, y, 0.6), 0.2, 0.24, 0.08) for y in (1.5, 2.9)])),
            ARMOUR_DARK,
            0.4,
        ),
        Solid(props, STEEL_DARK, 0.3),
        Solid(
            slab([(-2.6, 0.4), (-3.2, 1.9), (-3.8, 1.9), (-3.7, 0.4)], -0.08, 0.08, edge=0.03), ACCENT, 0.3
        ),
        Solid(both(slab([(-2.9, 0), (-3.3, 1.6), (-3.8, 1.6), (-3.7, 0)], 0.5, 0.6, "z", 0.03)), STEEL, 0.4),
        Solid(both(ball((-0.2, 0.62, -0.5), (1.0, 0.3, 0.3))), ARMOUR_DARK, 0.3),
    ]
