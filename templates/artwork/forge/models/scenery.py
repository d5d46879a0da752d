"""What grows and stands on a battlefield."""

import numpy as np

from ..solid import F, Solid, ball, both, box, join, rod
from .parts import CONCRETE, STEEL, STEEL_DARK, seams, stripes

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


def bridge(span=19.0, width=3.8):
    deck = box((0, 0, 0.15), (span, width, 0.35), 0.04)
    rails = both(
        join(
            box((0, width / 2 - 0.1, 0.75), (span, 0.12, 0.1), 0.02),
            *[
                box((x, width / 2 - 0.1, 0.5), (0.14, 0.14, 0.6), 0.02)
                for x in np.linspace(-span / 2 + 0.3, span / 2 - 0.3, 16)
            ],
        )
    )
    piers = join(
        *[box((x, 0, -0.9), (0.9, width - 0.4, 2.2), 0.15) for x in (-span / 5, span / 5)],
        *[box((x, 0, -0.7), (1.2, width + 0.8, 2.2), 0.1) for x in (-span / 2, span / 2)],
    )
    lane = lambda p: np.where((np.abs(p[..., 1]) < 0.08) & ((p[..., 0] / F(0.9)) % 1 < 0.5), F(2.0), F(1))
    return [
        Solid(deck, (0.17, 0.165, 0.155), 0.05, pattern=lane),
        Solid(rails, STEEL_DARK, 0.3),
        Solid(piers, CONCRETE, 0.1, pattern=seams(0.7, 0.75, 0.04, "xz")),
    ]


def wall(length=3.0):
    return [
        Solid(
            box((0, 0, 0.45), (length, 0.45, 0.9), 0.06), CONCRETE, 0.1, pattern=seams(0.75, 0.7, 0.05, "xz")
        ),
        Solid(box((0, 0, 0.95), (length + 0.05, 0.6, 0.14), 0.04), STEEL, 0.2),
    ]
