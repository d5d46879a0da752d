"""The outlines of the three consoles: cut edges, stepped blocks, flowing curves.

The slots, the monitor and the way of the target box are where the editor wants them; only what lies
around them differs from side to side. Each method gives the corners of a plate.
"""

from .canvas import SCREEN
from .metal import circle, polygon

W, H = SCREEN
DECK = 470  # top of the lower deck


def flowing(points, rounds=3):
    """The closed outline with its corners cut off again and again, until it is a curve."""
    for _ in range(rounds):
        points = [(a[0] * s + b[0] * (1 - s), a[1] * s + b[1] * (1 - s))
                  for a, b in zip(points, [*points[1:], points[0]]) for s in (0.75, 0.25)]
    return points


def _block(x, y, w, h):
    return [(x, y), (x + w, y), (x + w, y + h), (x, y + h)]


class Cut:
    """Allied: plates of sheet metal with their corners cut off."""

    title = [(232, 0), (568, 0), (552, 36), (540, 44), (260, 44), (248, 36)]
    badge = [(0, 452), (30, 436), (190, 436), (228, 474), (228, 520), (0, 520)]
    deck = [(170, DECK), (534, DECK), (534, 520), (150, 520), (150, 490)]
    tab = [(642, 256), (654, 236), (776, 236), (790, 256)]
    corner = "cut"

    @staticmethod
    def tower(left, right):
        """The shoulders behind the icon slots, which lie between left and right."""
        return [
            (left - 34, DECK + 2), (left - 4, DECK - 34), (left - 4, 372), (left + 10, 356),
            (right - 10, 356), (right + 4, 372), (right + 4, DECK - 34), (right + 34, DECK + 2),
        ]

    @staticmethod
    def extras():
        """More plates under the others, as drawings: none."""
        return []


class Stepped:
    """Soviet: blocks bolted on blocks, buttresses, teeth along the title."""

    title = [
        (216, 0), (584, 0), (584, 26), (568, 26), (568, 36), (552, 36), (552, 45), (248, 45), (248, 36),
        (232, 36), (232, 26), (216, 26),
    ]
    badge = [
        (0, 446), (20, 446), (20, 426), (200, 426), (200, 448), (214, 448), (214, 474), (228, 474),
        (228, 520), (0, 520),
    ]
    deck = [(182, DECK - 4), (534, DECK - 4), (534, 520), (150, 520), (150, 492), (182, 492)]
    tab = [(646, 258), (646, 244), (654, 244), (654, 232), (778, 232), (778, 244), (786, 244), (786, 258)]
    corner = "step"

    @staticmethod
    def tower(left, right):
        half = [(34, DECK + 2), (34, 450), (22, 450), (22, 428), (12, 428), (12, 366), (2, 366), (2, 352)]
        return [(left - x, y) for x, y in half] + [(right + x, y) for x, y in reversed(half)]

    @staticmethod
    def extras():
        buttresses = [_block(x, y, 22, 34) for y in (64, 148, 232) for x in (0, W - 22)]
        teeth = [_block(266 + 36 * i, 43, 18, 9) for i in range(8)]
        claws = [_block(x, y, 30, 30) for x, y in ((764, 249), (764, 482), (526, 482))]
        return [polygon(points) for points in (*buttresses, *teeth, *claws)]


class Flowing:
    """Yuri: grown rather than built, with swellings like beads."""

    title = flowing(
        [
            (196, -40), (604, -40), (590, 14), (560, 40), (500, 42), (452, 40), (400, 60), (348, 40),
            (300, 42), (240, 40), (210, 14),
        ]
    )
    badge = flowing(
        [(-60, 400), (10, 446), (60, 424), (160, 424), (206, 446), (236, 486), (228, 540), (-60, 540)]
    )
    deck = flowing([(150, 560), (140, 480), (190, DECK - 2), (640, DECK - 2), (640, 560)])
    tab = flowing([(628, 270), (650, 246), (662, 230), (716, 224), (770, 230), (784, 246), (806, 270)])
    corner = "round"

    @staticmethod
    def tower(left, right):
        half = [(64, DECK + 8), (14, DECK - 4), (-2, 440), (16, 396), (2, 346), (-30, 344)]
        return flowing([(left - x, y) for x, y in half] + [(right + x, y) for x, y in reversed(half)])

    @staticmethod
    def extras():
        return [circle(x, y, 13) for y in range(76, 240, 64) for x in (4, W - 4)]
