"""Buildings and defences. Each stands on its own slab of ground about 5 metres wide."""

import numpy as np

from ..solid import F, Solid, ball, both, box, join, less, place, ring, rod, slab, turn
from .parts import (
    ACCENT, ARMOUR, ARMOUR_DARK, BRICK, COLD, CONCRETE, GLASS, HOT, NAVY, ROOF, RUBBER, STEEL, STEEL_DARK,
    WHITE, barrel, hazard, lamp, mast, seams, stripes,
)


def _yard(width=5.4, depth=4.6):
    return [
        Solid(
            box((0, 0, 0.06), (depth, width, 0.16), 0.04), CONCRETE, 0.1, pattern=seams(0.9, 0.75, 0.03, "xy")
        ),
        Solid(
            less(
                box((0, 0, 0.12), (depth - 0.2, width - 0.2, 0.08), 0.01),
                box((0, 0, 0.1), (depth - 0.45, width - 0.45, 1), 0),
            ),
            ACCENT,
            0.1,
            pattern=hazard("x", "y", 0.4),
        ),
    ]


def _windows(rows=0.55, columns=0.5):
    def pattern(p):
        bright = ((p[..., 2] / F(rows)) % 1 > 0.45) & (((p[..., 0] + p[..., 1]) / F(columns)) % 1 > 0.4)
        return np.where(bright, F(0.22), F(1))
    return pattern


def power_plant():
    def tower(x, y):
        wall = less(
            join(rod((x, y, 0), (x, y, 1.5), 0.95, 0.66), rod((x, y, 1.48), (x, y, 2.5), 0.66, 0.76)),
            rod((x, y, 2.0), (x, y, 2.8), 0.6),
        )
        return [
            Solid(
                wall,
                CONCRETE,
                0.15,
                pattern=lambda p: np.where(p[..., 2] % 0.5 < 0.05, 0.7, 1.0) * np.where(
                    (p[..., 2] > 2.12) & (p[..., 2] < 2.32), 0.45, 1
                ),
            ),
            Solid(rod((x, y, 2.0), (x, y, 2.22), 0.6), COLD, 0, 0.55),
        ]
    return [
        *_yard(),
        *tower(-0.9, -1.3),
        *tower(-0.9, 0.9),
        Solid(box((1.1, -0.1, 0.6), (1.6, 3.4, 1.1), 0.06), BRICK, 0.15, pattern=_windows(0.9, 0.45)),
        Solid(box((1.1, -0.1, 1.18), (1.7, 3.5, 0.12), 0.03), ROOF, 0.2),
        *[Solid(ring((1.1, y, 1.3), "z", 0.28, 0.09), STEEL, 0.4) for y in (-1.1, -0.1, 0.9)],
        Solid(both(rod((0.3, 0.5, 0.4), (-0.4, 0.8, 0.9), 0.14)), STEEL, 0.4),
        Solid(box((1.95, -0.1, 0.4), (0.1, 0.7, 0.65), 0.02), ACCENT, 0.2),
        mast((1.6, 1.9, 0.1), (1.6, 1.9, 2.4)),
        lamp((1.6, 1.9, 2.4), 0.1),
    ]


def barracks():
    def hut(y):
        shell = rod((-1.8, y, 0.15), (1.6, y, 0.15), 0.92, edge=0.05)
        return [
            Solid(shell, ARMOUR, 0.25, pattern=stripes("x", 0.42, 0.72, 0.85)),
            Solid(rod((1.55, y, 0.15), (1.68, y, 0.15), 0.84, edge=0.03), ARMOUR_DARK, 0.2),
            Solid(box((1.7, y, 0.45), (0.08, 0.5, 0.75), 0.02), ACCENT, 0.2),
            Solid(box((1.7, y + 0.5, 0.6), (0.06, 0.22, 0.22), 0.02), HOT, 0, 0.9),
        ]
    return [
        *_yard(),
        *hut(-1.25),
        *hut(1.0),
        Solid(box((2.0, -0.1, 0.3), (0.25, 0.8, 0.35), 0.1), CONCRETE, 0.1, pattern=stripes("y", 0.2, 0.7)),
        mast((1.95, 2.2, 0), (1.95, 2.2, 3.0)),
        Solid(
            slab([(1.0, 2.4), (2.1, 2.4), (2.1, 2.95), (1.0, 2.95)], 1.9, 1.95, "x", 0.01),
            ACCENT,
            0.1,
            pattern=lambda p: 0.75 + 0.25 * np.sin(p[..., 1] * 9),
        ),
    ]


def vehicle_works():
    hall = slab(
        [
            (-2.3, 0.1), (2.3, 0.1), (2.3, 1.8), (1.15, 2.3), (1.15, 1.8), (0, 2.3), (0, 1.8), (-1.15, 2.3),
            (-1.15, 1.8), (-2.3, 2.3),
        ],
        -1.9,
        1.2,
        "x",
        0.04,
    )
    door = box((1.25, -0.4, 0.75), (0.5, 2.3, 1.3), 0.02)
    return [
        *_yard(5.8, 5.0),
        Solid(less(hall, door), STEEL, 0.25, pattern=stripes("y", 0.3, 0.8, 0.85)),
        Solid(box((1.08, -0.4, 0.75), (0.05, 2.3, 1.3), 0.01), RUBBER, 0.1, pattern=stripes("z", 0.25, 2.5)),
        Solid(
            less(box((1.22, -0.4, 0.8), (0.12, 2.6, 1.5), 0.02), box((1.22, -0.4, 0.7), (1, 2.3, 1.4), 0)),
            ACCENT,
            0.2,
            pattern=hazard("y", "z", 0.4),
        ),
        Solid(
            box((1.9, -0.4, 0.14), (1.1, 2.2, 0.06), 0.01), STEEL_DARK, 0.2, pattern=stripes("x", 0.2, 0.6)
        ),
        Solid(
            rod((-1.2, 1.75, 1.5), (-1.2, 1.75, 3.3), 0.24, 0.18),
            BRICK,
            0.2,
            pattern=stripes("z", 0.5, 0.8, 0.9),
        ),
        Solid(
            rod((-0.4, 1.75, 1.5), (-0.4, 1.75, 3.0), 0.24, 0.18),
            BRICK,
            0.2,
            pattern=stripes("z", 0.5, 0.8, 0.9),
        ),
        Solid(box((1.24, 1.6, 1.2), (0.06, 0.6, 0.4), 0.02), HOT, 0, 0.9),
        lamp((1.3, -1.8, 1.7), 0.1),
        lamp((1.3, 1.0, 1.7), 0.1),
    ]


def airfield():
    strip = lambda p: np.where(
        (np.abs(p[..., 1] - F(0.9)) < 0.06) & ((p[..., 0] / F(0.8)) % 1 < 0.55), F(4.5), F(1)
    )
    return [
        *_yard(6.0, 6.0),
        Solid(box((0, 0.9, 0.16), (5.6, 1.9, 0.08), 0.02), ROOF, 0.1, pattern=strip),
        Solid(
            rod((-1.9, -1.9, 0.1), (0.2, -1.9, 0.1), 0.95, edge=0.05),
            STEEL,
            0.3,
            pattern=stripes("x", 0.5, 0.75, 0.88),
        ),
        Solid(rod((0.2, -1.9, 0.1), (0.26, -1.9, 0.1), 0.8), RUBBER, 0.1),
        Solid(rod((1.7, -1.8, 0), (1.7, -1.8, 1.9), 0.32, 0.26), CONCRETE, 0.15),
        Solid(rod((1.7, -1.8, 1.85), (1.7, -1.8, 2.35), 0.42, 0.58), GLASS, 1.0),
        Solid(rod((1.7, -1.8, 2.35), (1.7, -1.8, 2.5), 0.62, 0.5), ACCENT, 0.3),
        mast((1.7, -1.8, 2.5), (1.7, -1.8, 3.3)),
        lamp((1.7, -1.8, 3.3), 0.09),
        *[lamp((x, y, 0.24), 0.07, COLD, 1.6) for x in (-2.6, -1.3, 0, 1.3, 2.6) for y in (-0.1, 1.9)],
    ]


def shipyard():
    water = Solid(box((0.4, 0.5, 0.0), (6.4, 3.2, 0.1), 0.02), (0.03, 0.10, 0.12), 0.9)
    crane = join(
        box((-0.9, 1.9, 1.6), (0.3, 0.3, 3.0), 0.04),
        box((-0.9, -0.9, 1.6), (0.3, 0.3, 3.0), 0.04),
        box((-0.9, 0.5, 3.05), (0.34, 3.6, 0.3), 0.04),
    )
    return [
        water,
        Solid(
            box((-0.2, 2.3, 0.2), (5.2, 0.9, 0.5), 0.05), CONCRETE, 0.1, pattern=seams(0.9, 0.75, 0.03, "xy")
        ),
        Solid(
            box((-0.2, -1.3, 0.2), (5.2, 1.0, 0.5), 0.05), CONCRETE, 0.1, pattern=seams(0.9, 0.75, 0.03, "xy")
        ),
        Solid(crane, ACCENT, 0.3),
        Solid(rod((-0.9, 0.5, 2.9), (-0.9, 0.5, 1.6), 0.03), STEEL_DARK, 0.2),
        Solid(box((-0.9, 0.5, 1.45), (0.5, 0.6, 0.35), 0.05), STEEL, 0.3),
        Solid(
            slab([(2.4, 0.5), (1.6, 1.15), (-1.8, 1.25), (-1.8, -0.25), (1.6, -0.15)], 0.0, 0.55, "z", 0.08),
            NAVY,
            0.35,
            pattern=seams(0.7),
        ),
        Solid(box((-0.7, 0.5, 0.8), (0.9, 0.8, 0.5), 0.06), WHITE, 0.3),
        Solid(box((-1.6, -1.4, 0.95), (1.6, 0.8, 1.1), 0.05), BRICK, 0.15, pattern=_windows(0.6, 0.4)),
        Solid(box((-1.6, -1.4, 1.52), (1.7, 0.9, 0.1), 0.03), ROOF, 0.2),
        lamp((2.2, -1.2, 0.6), 0.1),
        lamp((2.2, 2.3, 0.6), 0.1),
    ]


def gun_tower():
    return [
        Solid(box((0, 0, 0.08), (3.0, 3.0, 0.2), 0.05), CONCRETE, 0.1, pattern=seams(0.8, 0.75, 0.03, "xy")),
        Solid(
            rod((0, 0, 0.1), (0, 0, 1.7), 1.15, 0.8), CONCRETE, 0.15, pattern=stripes("z", 0.55, 0.8, 0.92)
        ),
        Solid(
            rod((0, 0, 1.65), (0, 0, 1.95), 1.0),
            ACCENT,
            0.2,
            pattern=lambda p: np.where((np.arctan2(p[..., 1], p[..., 0]) * 3) % 1 < 0.5, 1.0, 0.06),
        ),
        Solid(rod((0, 0, 1.95), (0, 0, 2.1), 0.72), STEEL_DARK, 0.4),
        Solid(
            slab(
                [(-1.0, 2.05), (-0.95, 2.65), (-0.5, 2.9), (0.45, 2.85), (0.95, 2.4), (0.9, 2.05)],
                -0.72,
                0.72,
                edge=0.12,
            ),
            ARMOUR,
            0.35,
            pattern=seams(0.6),
        ),
        *barrel((0.7, 0.3, 2.45), (2.6, 0.3, 2.55), 0.1),
        *barrel((0.7, -0.3, 2.45), (2.6, -0.3, 2.55), 0.1),
        Solid(rod((-0.3, 0, 2.85), (-0.3, 0, 3.05), 0.25), ARMOUR_DARK, 0.4),
        *[
            Solid(
                box(
                    (1.35 * np.cos(a), 1.35 * np.sin(a), 0.3),
                    (0.55, 0.3, 0.4),
                    0.12,
                    turn("z", float(np.degrees(a)) + 90),
                ),
                (0.30, 0.25, 0.16),
                0.05,
            )
            for a in np.arange(0, 6.2, 0.785)
        ],
    ]


LAMP_AT = (0.05, 0, 3.25)
LAMP_WAY = turn("z", 28) @ turn("y", -16) @ np.array((1, 0, 0), F)  # where the searchlight shines


def _lattice(low, high, braces):
    """Four legs, from low metres off the middle at the foot to high at the top, crossed by braces."""
    legs = [rod((low * x, low * y, 0.1), (high * x, high * y, 2.3), 0.09) for x in (-1, 1) for y in (-1, 1)]
    sides = [((-1, -1), (1, -1)), ((1, -1), (1, 1)), ((1, 1), (-1, 1)), ((-1, 1), (-1, -1))]
    for z, k, m in braces:
        legs += [rod((a[0] * k, a[1] * k, z), (b[0] * m, b[1] * m, z + 0.95), 0.045) for a, b in sides]
    return join(*legs)


def searchlight():
    legs = _lattice(0.95, 0.42, ((0.25, 0.9, 0.68), (1.2, 0.68, 0.46)))
    drum = less(rod((-0.5, 0, 0), (0.42, 0, 0), 0.5, 0.62, 0.08), rod((0.4, 0, 0), (1, 0, 0), 0.54))
    head = [
        Solid(drum, ARMOUR, 0.4, pattern=stripes("x", 0.2, 0.75, 0.8)),
        Solid(rod((0.3, 0, 0), (0.44, 0, 0), 0.53), (1.0, 0.93, 0.72), 0.2, 3.0),
        Solid(ring((0.5, 0, 0), "x", 0.58, 0.07), STEEL_DARK, 0.5),
    ]
    railing = less(box((0, 0, 2.5), (1.52, 1.52, 0.16), 0.02), box((0, 0, 2.5), (1.42, 1.42, 1), 0))
    return [
        Solid(box((0, 0, 0.08), (3.2, 3.2, 0.2), 0.05), CONCRETE, 0.1, pattern=seams(0.8, 0.75, 0.03, "xy")),
        Solid(legs, STEEL_DARK, 0.4),
        Solid(box((0, 0, 2.35), (1.5, 1.5, 0.12), 0.03), STEEL, 0.3),
        Solid(railing, ACCENT, 0.2, pattern=hazard("x", "y", 0.3)),
        Solid(rod((0, 0, 2.4), (0, 0, 2.9), 0.16), STEEL, 0.4),
        *place(head, LAMP_AT, turn("z", 28) @ turn("y", -16)),
        Solid(
            box((1.0, -0.9, 0.45), (0.7, 0.8, 0.6), 0.06), ARMOUR_DARK, 0.3, pattern=stripes("y", 0.14, 0.6)
        ),
    ]


def radar_dome():
    dome = lambda p: np.where(
        ((np.arctan2(p[..., 1], p[..., 0]) * F(2.55)) % 1 < 0.05) | ((p[..., 2] / F(0.55)) % 1 < 0.06),
        F(0.6),
        F(1),
    )
    return [
        *_yard(4.6, 4.6),
        Solid(
            rod((-0.4, -0.3, 0), (-0.4, -0.3, 0.9), 1.5, 1.4),
            BRICK,
            0.15,
            pattern=lambda p: np.where(
                (p[..., 2] > 0.45) & (p[..., 2] < 0.75) & (
                    (np.arctan2(p[..., 1] + 0.3, p[..., 0] + 0.4) * 3.2) % 1 < 0.6
                ),
                0.25,
                1,
            ),
        ),
        *place([Solid(ball((0, 0, 0), 1.3), WHITE, 0.5, pattern=dome)], (-0.4, -0.3, 1.6)),
        Solid(box((1.4, 1.2, 0.55), (1.0, 1.3, 0.9), 0.06), CONCRETE, 0.15, pattern=_windows(0.8, 0.4)),
        Solid(box((1.4, 1.2, 1.04), (1.1, 1.4, 0.1), 0.03), ROOF, 0.2),
        mast((1.4, 1.2, 1.0), (1.4, 1.2, 3.0)),
        Solid(
            join(
                box((1.4, 1.2, 2.2), (0.06, 0.9, 0.06), 0.01), box((1.4, 1.2, 2.6), (0.06, 0.6, 0.06), 0.01)
            ),
            STEEL,
            0.3,
        ),
        lamp((1.4, 1.2, 3.0), 0.1),
        Solid(ring((-0.4, -0.3, 0.95), "z", 1.4, 0.09), ACCENT, 0.3),
    ]


def fuel_depot():
    def tank(x, y, r, h):
        band = lambda p: np.where(
            (p[..., 2] > h * 0.62) & (p[..., 2] < h * 0.8), F(0.5), F(1)
        ) * np.where(p[..., 2] % 0.45 < 0.04, F(0.75), F(1))
        return [
            Solid(rod((x, y, 0.1), (x, y, h), r), WHITE, 0.3, pattern=band),
            Solid(ball((x, y, h), (r * 0.97, r * 0.97, 0.28)), WHITE, 0.3),
            Solid(ring((x, y, h * 0.99), "z", r, 0.04), ACCENT, 0.3),
        ]
    pipe = join(
        rod((0.3, -2.2, 0.5), (0.3, 2.2, 0.5), 0.11),
        rod((0.3, -1.2, 0.5), (-0.6, -1.2, 0.5), 0.11),
        rod((0.3, 1.0, 0.5), (1.2, 1.0, 0.5), 0.11),
        rod((0.3, 2.2, 0.5), (0.3, 2.2, 0.0), 0.11),
    )
    frame = join(
        *[
            rod((1.1 + dx, -1.3 + dy, 0.1), (1.1, -1.3, 3.0), 0.06)
            for dx in (-0.5, 0.5)
            for dy in (-0.5, 0.5)
        ],
        *[ring((1.1, -1.3, z), "z", 0.55 * (1 - z / 3.4), 0.035) for z in (0.8, 1.4, 2.0)],
    )
    return [
        *_yard(),
        *tank(-1.1, -1.2, 0.95, 1.7),
        *tank(-1.1, 1.15, 0.95, 1.5),
        *tank(1.15, 1.1, 0.7, 1.1),
        Solid(pipe, ACCENT, 0.4),
        Solid(frame, STEEL_DARK, 0.4),
        lamp((1.1, -1.3, 3.05), 0.16, HOT, 2.6),
        Solid(box((1.6, -0.1, 0.35), (0.5, 0.6, 0.5), 0.05), BRICK, 0.1),
    ]
