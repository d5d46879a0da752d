"""Soldiers, photographed from the waist up."""

import numpy as np

from ..solid import F, Solid, ball, both, box, join, less, place, ring, rod, slab, turn
from .parts import (
    ACCENT, ARMOUR, ARMOUR_DARK, CLOTH, COLD, GLASS, RUBBER, SKIN, STEEL, STEEL_DARK, WEBBING, lamp, seams
)

GUNMETAL = (0.20, 0.215, 0.235)  # lighter than the webbing behind it, so that a weapon keeps its outline
WOOD = (0.40, 0.21, 0.085)
BONE = (0.5, 0.5, 0.46)
GREEN = (0.05, 0.34, 0.16)


def _folds(p):
    return 0.86 + 0.14 * np.sin(p[..., 2] * 13 + p[..., 0] * 7 + np.sin(p[..., 1] * 9))


def _arm(shoulder, elbow, hand, cloth):
    sleeve = join(
        rod(shoulder, elbow, 0.17, 0.15, 0.08), rod(elbow, hand, 0.15, 0.11, 0.06), ball(elbow, 0.155)
    )
    return [Solid(sleeve, cloth, 0.05, pattern=_folds), Solid(ball(hand, 0.135), WEBBING, 0.1)]


def _head(helmet):
    shell = less(ball((0.0, 0, 1.94), (0.36, 0.32, 0.34)), box((0.1, 0, 1.62), (1, 1, 0.44), 0))
    peak = box((0.28, 0, 1.86), (0.2, 0.5, 0.05), 0.02)
    strap = both(rod((0.1, 0.23, 1.92), (0.12, 0.2, 1.62), 0.025))
    return [
        Solid(rod((0, 0, 1.4), (0.02, 0, 1.75), 0.15), SKIN, 0.15),
        Solid(ball((0.06, 0, 1.84), (0.25, 0.22, 0.29)), SKIN, 0.2),
        Solid(ball((0.31, 0, 1.79), (0.07, 0.05, 0.08)), SKIN, 0.2),
        Solid(join(shell, peak), helmet, 0.3),
        Solid(strap, WEBBING, 0.1),
    ]


_RIGHT = ((0, -0.55, 1.38), (0.22, -0.68, 0.98))  # shoulder and elbow
_LEFT = ((0, 0.55, 1.38), (0.34, 0.66, 1.02))


def _soldier(cloth=CLOTH, vest=ARMOUR_DARK, helmet=ARMOUR, right_hand=(0.62, -0.12, 0.98),
             left_hand=(0.78, 0.34, 1.12)):
    chest, belly = ball((0, 0, 1.0), (0.33, 0.5, 0.62)), ball((0, 0, 0.4), (0.32, 0.44, 0.5))
    trunk = join(chest, belly, both(ball((0, 0.5, 1.38), 0.2)))
    plate = box((0.05, 0, 1.05), (0.66, 0.78, 0.72), 0.22)
    return [
        Solid(trunk, cloth, 0.05, pattern=_folds),
        Solid(plate, vest, 0.15, pattern=seams(0.36, 0.7, 0.05, "yz")),
        Solid(both(box((0.36, 0.2, 0.82), (0.16, 0.24, 0.26), 0.05)), WEBBING, 0.1),
        Solid(both(ball((0.0, 0.55, 1.45), (0.22, 0.2, 0.17))), vest, 0.25),
        *_head(helmet),
        *_arm(*_RIGHT, right_hand, cloth),
        *_arm(*_LEFT, left_hand, cloth),
    ]


def _goggles(colour=GLASS):
    return [Solid(both(ball((0.29, 0.1, 1.87), (0.07, 0.1, 0.075))), colour, 1.0)]


def _rifle():
    """Pointing forward, the grip at the origin."""
    magazine = slab([(0.18, -0.06), (0.34, -0.06), (0.42, -0.4), (0.26, -0.42)], -0.05, 0.05, edge=0.02)
    return [
        Solid(box((0.12, 0, 0), (0.62, 0.11, 0.17), 0.03), GUNMETAL, 0.5),
        Solid(
            slab([(-0.2, 0.07), (-0.2, -0.06), (-0.72, -0.2), (-0.76, 0.05)], -0.05, 0.05, edge=0.02),
            WOOD,
            0.3,
        ),
        Solid(box((0.62, 0, 0.0), (0.46, 0.12, 0.15), 0.03), WOOD, 0.3),
        Solid(rod((0.8, 0, 0.02), (1.3, 0, 0.02), 0.042), GUNMETAL, 0.7),
        Solid(
            join(
                rod((1.22, 0, 0.02), (1.36, 0, 0.02), 0.062), box((1.16, 0, 0.12), (0.05, 0.03, 0.16), 0.01)
            ),
            STEEL_DARK,
            0.5,
        ),
        Solid(magazine, RUBBER, 0.4),
        Solid(box((-0.06, 0, -0.18), (0.12, 0.08, 0.26), 0.02, turn("y", -14)), WOOD, 0.3),
        Solid(box((0.05, 0, 0.14), (0.36, 0.05, 0.07), 0.02), GUNMETAL, 0.5),
    ]


def _rifle_bearer(lift):
    """A soldier with the rifle before the chest, its mouth up and to the picture's right."""
    weapon = place(_rifle(), (0.78, -0.06, 1.02), turn("z", 78) @ turn("y", -lift), 1.12)
    badge = Solid(box((0.4, -0.2, 1.3), (0.05, 0.22, 0.08), 0.02), ACCENT, 0.2)
    return [
        *_soldier(right_hand=(0.7, -0.16, 0.9), left_hand=(0.76, 0.42, 1.24)),
        *_goggles(),
        *weapon,
        badge,
    ]


def rifleman():
    """The squad: one soldier, and another one looking out behind the shoulder."""
    second = place(_rifle_bearer(42), (-0.9, 0.86, 0.06), turn("z", 24), 0.92)
    return [*place(_rifle_bearer(26), (0, -0.28, 0)), *second]


def marksman():
    gun = [
        Solid(box((0.0, 0, 0), (0.9, 0.1, 0.15), 0.03), WOOD, 0.3),
        Solid(
            slab([(-0.4, 0.07), (-0.4, -0.07), (-0.9, -0.24), (-0.94, 0.06)], -0.05, 0.05, edge=0.02),
            WOOD,
            0.3,
        ),
        Solid(rod((0.4, 0, 0.03), (1.75, 0, 0.03), 0.045), GUNMETAL, 0.7),
        Solid(rod((1.62, 0, 0.03), (1.84, 0, 0.03), 0.075), STEEL_DARK, 0.5),
        Solid(
            join(rod((-0.28, 0, 0.2), (0.36, 0, 0.2), 0.065), rod((0.3, 0, 0.2), (0.5, 0, 0.2), 0.08, 0.11)),
            STEEL_DARK,
            0.6,
        ),
        Solid(ball((0.52, 0, 0.2), (0.03, 0.09, 0.09)), COLD, 0.5, 1.2),
        Solid(
            join(
                rod((0.85, 0.02, 0), (1.0, 0.1, -0.42), 0.025),
                rod((0.85, -0.02, 0), (1.0, -0.1, -0.42), 0.025),
            ),
            GUNMETAL,
            0.4,
        ),
    ]
    veil = less(ball((-0.03, 0, 1.86), (0.4, 0.36, 0.42)), ball((0.25, 0, 1.8), (0.3, 0.24, 0.3)))
    mottled = lambda p: 0.6 + 0.4 * (np.sin(p[..., 2] * 31) * np.sin(p[..., 1] * 27 + p[..., 0] * 19) > -0.2)
    body = _soldier(
        (0.15, 0.16, 0.09), (0.12, 0.12, 0.07), right_hand=(0.52, -0.2, 1.42), left_hand=(0.95, 0.02, 1.5)
    )
    rifle = place(gun, (0.72, -0.12, 1.62), turn("z", 4) @ turn("y", -3))
    return place([*body, Solid(veil, CLOTH, 0.02, pattern=mottled), *rifle], (0.1, 0.42, 0), turn("z", -44))


def lancer():
    hollow = less(rod((-1.0, 0, 0), (1.05, 0, 0), 0.17), rod((0.8, 0, 0), (1.3, 0, 0), 0.13))
    warhead = join(
        rod((0.95, 0, 0), (1.12, 0, 0), 0.1, 0.22, 0.02), rod((1.1, 0, 0), (1.55, 0, 0), 0.22, 0.03)
    )
    tube = [
        Solid(hollow, GUNMETAL, 0.4, pattern=seams(0.5, 0.6, 0.06, "x")),
        Solid(warhead, ACCENT, 0.4),
        Solid(join(*[rod((x, 0, 0), (x + 0.08, 0, 0), 0.195) for x in (-0.6, 0.35, 0.85)]), STEEL_DARK, 0.3),
        Solid(box((0.15, 0.22, 0.1), (0.34, 0.12, 0.2), 0.03), STEEL_DARK, 0.4),
        Solid(box((0.3, 0, -0.26), (0.1, 0.08, 0.26), 0.02), RUBBER, 0.3),
        Solid(rod((-1.0, 0, 0), (-1.25, 0, 0), 0.17, 0.25), STEEL_DARK, 0.3),
    ]
    body = _soldier(right_hand=(0.52, -0.42, 1.38), left_hand=(0.75, -0.2, 1.42))
    launcher = place(tube, (0.15, -0.46, 1.68), turn("y", -7))
    return place([*body, *_goggles((0.35, 0.14, 0.03)), *launcher], (0, 0.2, 0), turn("z", -34))


def sapper():
    blade = slab([(0.5, -0.2), (0.95, -0.22), (1.15, 0), (0.95, 0.22), (0.5, 0.2)], -0.03, 0.03, "z", 0.01)
    spade = [
        Solid(rod((-0.75, 0, 0), (0.55, 0, 0), 0.05), WOOD, 0.2),
        Solid(
            blade,
            (0.36, 0.385, 0.41),
            0.8,
            pattern=lambda p: np.where(np.abs(p[..., 1]) < 0.03, F(0.6), F(1)),
        ),
    ]
    charge = [
        Solid(
            box((0, 0, 0), (0.22, 0.44, 0.34), 0.03), (0.42, 0.10, 0.06), 0.2,
            pattern=seams(0.15, 0.5, 0.12, "y"),
        ),
        Solid(box((0.02, 0, 0), (0.24, 0.46, 0.07), 0.01), STEEL_DARK, 0.2),
        lamp((0.15, 0.0, 0.1), 0.045, (1, 0.5, 0.1), 3),
    ]
    tool = place(spade, (0.6, -0.36, 1.24), turn("z", -20) @ turn("y", -78))
    body = _soldier(helmet=(0.62, 0.30, 0.04), right_hand=(0.6, -0.36, 1.0), left_hand=(0.7, 0.3, 0.98))
    return [*body, *tool, *place(charge, (0.84, 0.26, 1.12), turn("z", 12)), *_goggles()]


def _cross(size):
    """A cross that looks forward."""
    return join(box((0, 0, 0), (0.03, size, size / 3), 0.01), box((0, 0, 0), (0.03, size / 3, size), 0.01))


def medic():
    case = [
        Solid(box((0, 0, 0), (0.26, 0.66, 0.44), 0.05), BONE, 0.2),
        *place([Solid(_cross(0.28), GREEN, 0.1, 0.4)], (0.14, 0, 0)),
        Solid(less(ring((0, 0, 0.22), "x", 0.13, 0.03), box((0, 0, 0.0), (1, 1, 0.4), 0)), STEEL_DARK, 0.3),
        Solid(both(box((0.13, 0.24, 0.18), (0.04, 0.07, 0.08), 0.01)), STEEL, 0.5),
    ]
    shoulder, elbow = (np.array(at, F) for at in _LEFT)
    at = lambda share: tuple(shoulder + (elbow - shoulder) * F(share))
    band = Solid(rod(at(0.42), at(0.72), 0.19, edge=0.03), BONE, 0.1)
    body = _soldier(helmet=BONE, right_hand=(0.6, -0.16, 1.2), left_hand=(0.62, 0.26, 1.2))
    badge = place([Solid(_cross(0.17), GREEN, 0, 0.4)], (0.325, 0, 2.06), turn("y", -28))
    return [*body, *place(case, (0.74, 0.05, 1.06)), band, *badge]
