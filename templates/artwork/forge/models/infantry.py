"""Soldiers, photographed from the waist up."""

import numpy as np

from ..solid import Solid, ball, both, box, join, less, place, ring, rod, slab, turn
from .parts import ACCENT, ARMOUR, ARMOUR_DARK, CLOTH, COLD, GLASS, RUBBER, SKIN, STEEL, STEEL_DARK, WEBBING, lamp, seams


def _soldier(cloth=CLOTH, vest=ARMOUR_DARK, helmet=ARMOUR, right_hand=(0.62, -0.12, 0.98), left_hand=(0.78, 0.34, 1.12)):
    fold = lambda p: 0.86 + 0.14 * np.sin(p[..., 2] * 13 + p[..., 0] * 7 + np.sin(p[..., 1] * 9))
    arms = []
    for shoulder, elbow, hand in (((0, -0.55, 1.38), (0.22, -0.68, 0.98), right_hand), ((0, 0.55, 1.38), (0.34, 0.66, 1.02), left_hand)):
        arms += [Solid(join(rod(shoulder, elbow, 0.17, 0.15, 0.08), rod(elbow, hand, 0.15, 0.11, 0.06), ball(elbow, 0.155)), cloth, 0.05, pattern=fold), Solid(ball(hand, 0.135), WEBBING, 0.1)]
    return [Solid(join(ball((0, 0, 1.0), (0.33, 0.5, 0.62)), ball((0, 0, 0.4), (0.32, 0.44, 0.5)), both(ball((0, 0.5, 1.38), 0.2))), cloth, 0.05, pattern=fold),
            Solid(box((0.05, 0, 1.05), (0.66, 0.78, 0.72), 0.22), vest, 0.15, pattern=seams(0.36, 0.7, 0.05, "yz")),
            Solid(both(box((0.36, 0.2, 0.82), (0.16, 0.24, 0.26), 0.05)), WEBBING, 0.1), Solid(both(ball((0.0, 0.55, 1.45), (0.22, 0.2, 0.17))), vest, 0.25),
            Solid(rod((0, 0, 1.4), (0.02, 0, 1.75), 0.15), SKIN, 0.15), Solid(ball((0.06, 0, 1.84), (0.25, 0.22, 0.29)), SKIN, 0.2), Solid(ball((0.31, 0, 1.79), (0.07, 0.05, 0.08)), SKIN, 0.2),
            Solid(join(less(ball((0.0, 0, 1.94), (0.36, 0.32, 0.34)), box((0.1, 0, 1.62), (1, 1, 0.44), 0)), box((0.28, 0, 1.86), (0.2, 0.5, 0.05), 0.02)), helmet, 0.3), Solid(both(rod((0.1, 0.23, 1.92), (0.12, 0.2, 1.62), 0.025)), WEBBING, 0.1), *arms]


def _goggles(colour=GLASS):
    return [Solid(both(ball((0.29, 0.1, 1.87), (0.07, 0.1, 0.075))), colour, 1.0)]


def rifleman():
    gun = [Solid(join(box((0.1, 0, 0), (0.85, 0.09, 0.16), 0.03), box((-0.5, 0, -0.06), (0.4, 0.08, 0.2), 0.03)), STEEL_DARK, 0.5), Solid(rod((0.5, 0, 0.03), (1.05, 0, 0.03), 0.035), STEEL_DARK, 0.6),
           Solid(box((0.2, 0, -0.2), (0.14, 0.07, 0.3), 0.02, turn("y", 12)), RUBBER, 0.3), Solid(rod((-0.05, 0, 0.15), (0.25, 0, 0.15), 0.05), STEEL_DARK, 0.5)]
    return [*_soldier(), *_goggles(), *place(gun, (0.66, 0.12, 1.08), turn("z", 58) @ turn("y", -14)), Solid(box((0.34, 0, 1.3), (0.05, 0.3, 0.08), 0.02), ACCENT, 0.2)]


def marksman():
    gun = [Solid(join(box((0.0, 0, 0), (0.9, 0.1, 0.15), 0.03), box((-0.65, 0, -0.07), (0.5, 0.09, 0.24), 0.04)), (0.16, 0.09, 0.05), 0.3), Solid(rod((0.4, 0, 0.03), (1.7, 0, 0.03), 0.032), STEEL_DARK, 0.6),
           Solid(rod((-0.2, 0, 0.18), (0.4, 0, 0.18), 0.06, 0.085), RUBBER, 0.5), Solid(ball((0.42, 0, 0.18), (0.02, 0.07, 0.07)), COLD, 0.5, 0.7)]
    hood = Solid(less(ball((-0.03, 0, 1.86), (0.4, 0.36, 0.42)), ball((0.25, 0, 1.8), (0.3, 0.24, 0.3))), CLOTH, 0.02, pattern=lambda p: 0.6 + 0.4 * (np.sin(p[..., 2] * 31) * np.sin(p[..., 1] * 27 + p[..., 0] * 19) > -0.2))
    return [*_soldier((0.15, 0.16, 0.09), (0.12, 0.12, 0.07)), hood, *place(gun, (0.72, 0.02, 1.42), turn("z", 26) @ turn("y", -4))]


def lancer():
    tube = [Solid(less(rod((-1.0, 0, 0), (1.15, 0, 0), 0.17), rod((0.9, 0, 0), (1.3, 0, 0), 0.13)), ARMOUR_DARK, 0.3, pattern=seams(0.5, 0.6, 0.06, "x")), Solid(rod((0.95, 0, 0), (1.35, 0, 0), 0.13, 0.01), ACCENT, 0.4),
            Solid(box((0.15, 0.2, 0.1), (0.34, 0.12, 0.2), 0.03), STEEL_DARK, 0.4), Solid(rod((-1.0, 0, 0), (-1.15, 0, 0), 0.17, 0.22), STEEL_DARK, 0.3)]
    return [*_soldier(right_hand=(0.5, -0.42, 1.42), left_hand=(0.7, -0.05, 1.4)), *_goggles((0.35, 0.14, 0.03)), *place(tube, (0.15, -0.42, 1.64), turn("z", 10) @ turn("y", -8))]


def sapper():
    tool = [Solid(rod((-0.5, 0, 0), (0.6, 0, 0), 0.045), (0.30, 0.17, 0.08), 0.2), Solid(slab([(0.55, -0.18), (0.95, -0.2), (1.1, 0), (0.95, 0.2), (0.55, 0.18)], -0.025, 0.025, "z", 0.01), STEEL, 0.6)]
    charge = [Solid(box((0, 0, 0), (0.22, 0.4, 0.32), 0.03), (0.28, 0.2, 0.1), 0.1, pattern=seams(0.2)), lamp((0.13, 0.08, 0.08), 0.035, (1, 0.1, 0.05), 3)]
    helmet = (0.62, 0.30, 0.04)
    return [*_soldier(helmet=helmet), *place(tool, (0.55, -0.3, 1.2), turn("z", -20) @ turn("y", -72)), *place(charge, (0.82, 0.28, 1.1), turn("z", 12)), *_goggles()]


def medic():
    white = (0.5, 0.5, 0.46)
    case = [Solid(box((0, 0, 0), (0.26, 0.62, 0.42), 0.05), white, 0.2), Solid(join(box((0.14, 0, 0), (0.03, 0.24, 0.08), 0.01), box((0.14, 0, 0), (0.03, 0.08, 0.24), 0.01)), (0.05, 0.34, 0.16), 0.1, 0.3), Solid(ring((0, 0, 0.24), "x", 0.11, 0.025), STEEL_DARK, 0.3)]
    band = Solid(both(ring((0.12, 0.61, 1.18), "z", 0.15, 0.05)), white, 0.1)
    return [*_soldier(helmet=white, right_hand=(0.6, -0.16, 1.2), left_hand=(0.62, 0.26, 1.2)), *place(case, (0.74, 0.05, 1.08), turn("z", 0)), band, Solid(join(box((0.33, 0, 2.06), (0.03, 0.16, 0.05), 0.01, turn("y", 40)), box((0.33, 0, 2.06), (0.03, 0.05, 0.16), 0.01, turn("y", 40))), (0.05, 0.34, 0.16), 0, 0.4)]
