"""Instruments of the three consoles: bars and lamps, dials and levers, waves and beads."""

import math

import numpy as np

from . import pixelfont
from .metal import Paint, circle, hoop, line

PANEL = (236, 481, 286, 26)  # the instrument panel of the lower deck


def _rectangle(x, y, w, h):
    return lambda c: c.rectangle(x, y, w, h) or c.fill()


class Bars:
    """Allied: light bars, lamps and louvres."""

    @staticmethod
    def strip(bench, look, x):
        """Fills 217 pixels of the title bar from x."""
        for i in range(22):
            lit = (i * 7 + x) % 5 != 0
            bench.fill(_rectangle(x + 10 * i, 10, 7, 5), look.glow if lit else "000000", 0.42 if lit else 0.5)

    @staticmethod
    def panel(bench, look):
        bench.text("LINK", 246, 491, look.ink, font=pixelfont.TINY, align="left")
        for i in range(24):
            tall = [6, 9, 12, 8, 10, 14, 11, 7][i * 5 % 8]
            bench.fill(_rectangle(270 + 6 * i, 501 - tall, 4, tall), look.glow, 0.85 if i < 17 else 0.22)
        bench.text("CH 07", 514, 491, look.ink, font=pixelfont.TINY, align="right")
        for i in range(5):
            bench.plate(circle(432 + 12 * i, 494, 4), look.deep, 1.5)
            lit = i in (0, 1, 3)
            bench.glow(circle(432 + 12 * i, 494, 2), look.glow if lit else "403830", 3, 0.5 if lit else 0.0)
        for i in range(22):
            bench.fill(_rectangle(184 + 15 * i, 511, 10, 2), "060606", 0.8)
            bench.fill(_rectangle(184 + 15 * i, 513, 10, 1), "ffffff", 0.16)

    @staticmethod
    def count(bench, look, x, y, number):
        """Shows the slot's number about x, y without lettering."""
        for i in range(3):
            bench.fill(_rectangle(x - 13 + 9 * i, y - 2, 7, 4), look.glow, 0.9 if i < number else 0.18)

    @staticmethod
    def scope(bench, look, x, y):
        for k in (28, 60):
            bench.fill(hoop(x, y, k + 0.5, k - 0.5), look.glow, 0.35)
        for a, b in (((-90, 0), (-10, 0)), ((10, 0), (90, 0)), ((0, -90), (0, -10)), ((0, 10), (0, 80))):
            bench.fill(line([(x + a[0], y + a[1] + 0.5), (x + b[0], y + b[1] + 0.5)], 1), look.glow, 0.3)


class Dials:
    """Soviet: louvres in the title, pressure dials and levers on the deck, bolt heads that count."""

    @staticmethod
    def strip(bench, look, x):
        for i in range(31):
            bench.fill(_rectangle(x + 7 * i, 8, 4, 9), "060403", 0.85)
            bench.fill(_rectangle(x + 7 * i + 4, 8, 1, 9), "ffd0a0", 0.22)

    @staticmethod
    def panel(bench, look):
        for i, turned in enumerate((-50, 20, 75, -15)):
            x, y = 256 + 33 * i, 494
            bench.plate(circle(x, y, 12.5), look.trim, 2.5)
            bench.plate(circle(x, y, 9.5), Paint("d8c8a0", 0.02, 0.1), 1.5, sunken=True, outline=False)
            for degrees in range(-100, 101, 40):
                a = math.radians(degrees)
                ends = [(x + r * math.sin(a), y - r * math.cos(a)) for r in (6.2, 8.6)]
                bench.fill(line(ends, 1), "a01810" if degrees > 40 else "30241c", 0.9)
            a = math.radians(turned)
            bench.fill(line([(x, y), (x + 7 * math.sin(a), y - 7 * math.cos(a))], 1.4), "181210", 1)
            bench.fill(circle(x, y, 1.6), "181210", 1)
        for i, up in enumerate((1, 0, 1, 1, 0)):
            x = 386 + 16 * i
            bench.plate(_rectangle(x - 4, 485, 9, 18), look.deep, 1.5)
            bench.fill(_rectangle(x - 1, 488, 3, 12), "080606", 0.9)
            bench.plate(_rectangle(x - 3, 487 if up else 496, 7, 6), look.trim, 2)
        bench.text("WORKS 7", 514, 491, look.ink, font=pixelfont.TINY, align="right")
        bench.hazard(_rectangle(186, 511, 340, 6), look.trim.colour, "14110f")

    @staticmethod
    def count(bench, look, x, y, number):
        for i in range(3):
            at = (x - 10 + 10 * i, y)
            bench.plate(circle(*at, 3.2), look.trim if i < number else look.deep, 2, outline=True)

    @staticmethod
    def scope(bench, look, x, y):
        for k in range(-3, 4):
            heavy = 0.42 if k == 0 else 0.2
            bench.fill(line([(x + 28 * k + 0.5, y - 84), (x + 28 * k + 0.5, y + 84)], 1), look.glow, heavy)
            bench.fill(line([(x - 84, y + 28 * k + 0.5), (x + 84, y + 28 * k + 0.5)], 1), look.glow, heavy)
        bench.fill(_rectangle(x - 28, y + 28, 57, 24), look.screen, 0.85)


class Waves:
    """Yuri: traces of thoughts, and beads that glow."""

    @staticmethod
    def _trace(bench, look, left, right, middle, tall, pitch, strength=0.6):
        xs = np.arange(left, right + 1, 1.5)
        swell = np.sin((xs - left) / (right - left) * np.pi)
        ys = middle + tall * swell * np.sin(xs * pitch) * np.cos(xs * pitch * 0.31)
        bench.glow(line(list(zip(xs, ys)), 1.2), look.glow, 2, strength)

    @classmethod
    def strip(cls, bench, look, x):
        cls._trace(bench, look, x, x + 217, 12.5, 4.5, 0.22, 0.35)

    @classmethod
    def panel(cls, bench, look):
        cls._trace(bench, look, 246, 420, 494, 10, 0.11)
        cls._trace(bench, look, 246, 420, 494, 6, 0.31, 0.2)
        for i in range(5):
            bench.plate(circle(438 + 13 * i, 494, 5.5 - abs(i - 2)), look.trim, 2, outline=True)
            bench.glow(circle(438 + 13 * i, 494, 2.6 - 0.4 * abs(i - 2)), look.glow, 3, 0.5)
        bench.text("ECHO", 517, 491, look.ink, font=pixelfont.TINY, align="right")
        for x in range(196, 524, 14):
            bench.plate(circle(x, 513.5, 2.4), look.trim, 2)

    @staticmethod
    def count(bench, look, x, y, number):
        for i in range(3):
            if i < number:
                bench.glow(circle(x - 10 + 10 * i, y, 2.4), look.glow, 3, 0.5)
            else:
                bench.plate(circle(x - 10 + 10 * i, y, 2.8), look.deep, 1.5)

    @staticmethod
    def scope(bench, look, x, y):
        turns = np.linspace(0.6, 7.4, 260) * np.pi
        spiral = [(x + 3.6 * t * math.cos(t), y + 2.9 * t * math.sin(t)) for t in turns]
        bench.fill(line(spiral, 1), look.glow, 0.34)
        bench.fill(circle(x, y, 3), look.glow, 0.6)
        bench.fill(_rectangle(x - 58, y + 32, 116, 15), look.screen, 0.5)
