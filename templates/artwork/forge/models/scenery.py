"""What grows and stands on a battlefield."""

import numpy as np

from ..solid import F, Solid, ball, both, box, join, rod, slab
from .parts import CONCRETE, STEEL, seams, stripes

BARK = (0.13, 0.085, 0.05)


def _leaves(colour):
    def ruffle(p):
        x, y, z = p[..., 0], p[..., 1], p[..., 2]
        return 0.72 + 0.28 * np.sin(x * 11 + np.sin(y * 9) * 2) * np.sin(z * 10 + y * 5)

    return colour, ruffle


def conifer(height=4.2):
    colour, ruffle = _leaves((0.055, 0.105, 0.045))
    tiers = [
        rod((0, 0, height * a), (0, 0, height * b), r, 0.05, 0.04)
        for a, b, r in ((0.16, 0.55, 1.05), (0.36, 0.78, 0.82), (0.58, 1.0, 0.56))
    ]
    return [
        Solid(rod((0, 0, 0), (0, 0, height * 0.3), 0.16), BARK, 0),
        Solid(join(*tiers), colour, 0.02, pattern=ruffle),
    ]


def oak():
    colour, ruffle = _leaves((0.10, 0.15, 0.045))
    balls = [
        ((0, 0, 2.5), 1.15), ((0.75, 0.3, 2.1), 0.85), ((-0.6, 0.6, 2.2), 0.8), ((-0.2, -0.8, 2.15), 0.85),
        ((0.2, 0.1, 3.2), 0.75),
    ]
    crown = join(*[ball(centre, radius) for centre, radius in balls])

    def bushy(p):
        x, y, z = p[..., 0], p[..., 1], p[..., 2]
        return crown(p) + F(0.06) * np.sin(x * 7) * np.sin(y * 8) * np.sin(z * 7)

    return [Solid(rod((0, 0, 0), (0, 0, 1.7), 0.22), BARK, 0), Solid(bushy, colour, 0.02, pattern=ruffle)]


def palm():
    fronds = [
        rod((0.35, 0, 3.4), (0.35 + 1.5 * np.cos(a), 1.5 * np.sin(a), 2.9), 0.2, 0.03)
        for a in np.arange(0, 6.2, 0.9)
    ]
    return [
        Solid(
            rod((0, 0, 0), (0.35, 0, 3.4), 0.17, 0.11), (0.22, 0.15, 0.09), 0, pattern=stripes("z", 0.25, 0.7)
        ),
        Solid(join(*fronds), (0.11, 0.17, 0.05), 0.05),
    ]


def boulder():
    lumps = join(ball((0, 0, 0.3), (0.9, 0.7, 0.6)), ball((0.6, 0.4, 0.2), (0.5, 0.55, 0.4)))
    return [
        Solid(
            lambda p: lumps(p) + F(0.05) * np.sin(p[..., 0] * 6 + p[..., 1] * 4) * np.sin(p[..., 2] * 7),
            (0.24, 0.22, 0.19), 0.05,
        )
    ]


BRIDGE_DECK = 0.75  # metres from the banks up to its carriageway
BRIDGE_ROAD = 3.5  # width of the carriageway, that of the roads


def bridge(span=20.0, ramp=4.5):
    """Crosses along x: a deck on piers, with a ramp of earth and stone at either end."""
    end, foot, half = span / 2, span / 2 + ramp, BRIDGE_ROAD / 2
    top = [(-foot, -0.02), (-end, BRIDGE_DECK), (end, BRIDGE_DECK), (foot, -0.02)]
    under = [(end + 0.2, BRIDGE_DECK - 0.5), (-end - 0.2, BRIDGE_DECK - 0.5)]
    ramps = [
        slab(
            [
                (s * (end - 0.3), -1.5),
                (s * (end - 0.3), BRIDGE_DECK - 0.06),
                (s * foot, -0.1),
                (s * foot, -1.5),
            ],
            -half - 0.45,
            half + 0.45,
            edge=0.05,
        )
        for s in (1, -1)
    ]
    kerb = both(slab([*top, *[(x, z + 0.22) for x, z in reversed(top)]], half, half + 0.3, edge=0.02))
    places = np.linspace(-end + 0.4, end - 0.4, 14)
    posts = [box((x, half + 0.15, BRIDGE_DECK + 0.45), (0.16, 0.14, 0.6), 0.02) for x in places]
    rails = [
        rod((-end, half + 0.15, BRIDGE_DECK + z), (end, half + 0.15, BRIDGE_DECK + z), 0.055)
        for z in (0.45, 0.75)
    ]
    piers = join(*[box((x, 0, -1.2), (1.1, BRIDGE_ROAD + 0.5, 3.0), 0.18) for x in (-end / 2, 0, end / 2)])
    caps = join(*[box((x, 0, 0.12), (1.6, BRIDGE_ROAD + 0.9, 0.3), 0.05) for x in (-end / 2, 0, end / 2)])
    heads = both(join(*[box((s * end, half + 0.35, 0.35), (0.8, 0.6, 2.2), 0.06) for s in (1, -1)]))

    def lane(p):
        dashes = (np.abs(p[..., 1]) < 0.09) & ((p[..., 0] / F(1.6)) % 1 < 0.5) & (np.abs(p[..., 0]) < end)
        return np.where(dashes, F(2.6), F(1))

    stones = seams(0.7, 0.75, 0.05, "xz")
    return [
        Solid(slab(top + under, -half, half, edge=0.03), (0.16, 0.155, 0.145), 0.05, pattern=lane),
        Solid(join(*ramps), CONCRETE, 0.1, pattern=seams(0.9, 0.85, 0.05, "xy")),
        Solid(kerb, CONCRETE, 0.1),
        Solid(both(join(*posts, *rails)), STEEL, 0.4),
        Solid(piers, CONCRETE, 0.1, pattern=stones),
        Solid(caps, CONCRETE, 0.1),
        Solid(heads, CONCRETE, 0.1, pattern=stones),
    ]


def wall(length=3.0):
    return [
        Solid(
            box((0, 0, 0.45), (length, 0.45, 0.9), 0.06), CONCRETE, 0.1, pattern=seams(0.75, 0.7, 0.05, "xz")
        ),
        Solid(box((0, 0, 0.95), (length + 0.05, 0.6, 0.14), 0.04), STEEL, 0.2),
    ]
