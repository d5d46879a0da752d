"""Fire, smoke and tracers, painted over a developed battlefield. Positions are picture positions."""

import numpy as np

from .noise import Field
from .solid import F


class Effects:
    def __init__(self, picture, seed):
        self.picture = picture
        self.random = np.random.RandomState(seed)
        self.rough = Field(seed - 4, 90, 2, 1.7)
        self.y, self.x = np.mgrid[0 : picture.shape[0], 0 : picture.shape[1]].astype(F)

    def haze(self, colour=(150, 160, 164), strength=0.2):
        """Air between the camera and what lies far off, at the top."""
        amount = np.clip(1 - self.y / self.picture.shape[0], 0, 1) ** 1.6 * strength
        self.picture += (np.array(colour) - self.picture) * amount[..., None]

    def smoke(self, sx, sy, tall):
        """A plume that leans with the wind and frays towards its top."""
        up = np.clip((sy - self.y) / tall, 0, 1.4)
        middle = sx + 0.2 * tall * up**1.5 + 5 * np.sin(up * 9 + sx)
        wide = 5 + tall * 0.06 + tall * 0.26 * up
        curl = self.rough(self.x * 0.7 + sx, self.y * 0.7 + up * 9)
        thick = np.exp(-(((self.x - middle) / wide) ** 2)) * np.clip(up * 9, 0, 1) * np.clip(1.2 - up, 0, 1)
        thick *= (self.y < sy) * np.clip(1.1 + 0.4 * curl, 0, 1.6)
        lit = np.clip(0.5 - (self.x - middle) / wide * 0.4 + 0.3 * curl, 0, 1)  # the sun stands to the left
        tone = 26 + 44 * up.clip(0, 1) + 46 * lit
        smoke = tone[..., None] * np.array([1.0, 0.96, 0.91])
        self.picture += (smoke - self.picture) * np.clip(thick * 1.25, 0, 0.93)[..., None]

    def burst(self, sx, sy, size):
        """A fireball: white heart, orange flesh, dark ragged edge, sparks."""
        d = np.hypot(self.x - sx, (self.y - sy) * 1.15) / size
        ragged = d + 0.22 * self.rough(self.x * 1.8 + sx, self.y * 1.8)
        soot = np.clip(1.25 - ragged, 0, 1) * (d < 3)
        self._lay((40, 32, 26), np.clip(soot * 2.2, 0, 0.85))
        flame = np.clip(1.05 - ragged, 0, 1)
        for colour, start in (((190, 60, 14), 0.0), ((248, 150, 30), 0.28), ((255, 226, 120), 0.52),
                              ((255, 252, 226), 0.74)):
            self._lay(colour, np.clip((flame - start) * 5, 0, 1))
        self.picture += np.exp(-d * 1.4)[..., None] * np.array([80, 40, 8])
        for _ in range(14):
            a, far = self.random.uniform(0, 6.28), self.random.uniform(0.9, 2.0) * size
            inner, outer = (
                0.7 * far * np.cos(a), 0.7 * far * np.sin(a) - 4
            ), (far * np.cos(a), far * np.sin(a) - 6)
            self.tracer([(sx + inner[0], sy + inner[1]), (sx + outer[0], sy + outer[1])], 0.8)

    def flash(self, at, towards, size=11.0):
        """Fire from a muzzle, drawn out along the shot."""
        way = np.array(towards, float) - at
        way /= np.hypot(*way)
        along = (self.x - at[0]) * way[0] + (self.y - at[1]) * way[1]
        off = np.abs((self.x - at[0]) * -way[1] + (self.y - at[1]) * way[0])
        tongue = 1 - np.maximum(along / size, -along / (size * 0.25)) - off / (size * 0.3)
        self.picture += np.exp(
            -np.hypot(along - size * 0.3, off) / size * 1.6
        )[..., None] * np.array([90, 56, 16])
        self._lay((255, 176, 52), np.clip(tongue * 4, 0, 1))
        self._lay((255, 248, 214), np.clip((tongue - 0.3) * 5, 0, 1))

    def trail(self, path):
        """White smoke behind a rocket along the path of points, wider and thinner with age."""
        path = _every(path, 2.5)
        for share, (px, py) in zip(np.linspace(0, 1, len(path)), path):
            wide = 2.0 + 4.0 * (1 - share)
            near = self._window(px - 12, py - 12, px + 12, py + 12)
            x, y = self.x[near], self.y[near]
            d = np.hypot(x - px, y - py) / wide + 0.35 * self.rough(x * 2 + F(px * 0.2), y * 2)
            amount = np.clip(1 - d, 0, 1) * (0.12 + 0.5 * share)
            self.picture[near] += (np.array((214, 210, 202)) - self.picture[near]) * amount[..., None]

    def tracer(self, path, width=1.3, glow=0.42):
        """A bright streak along a path of points, brightest at its end."""
        count = len(path) - 1
        for step, (a, b) in enumerate(zip(path, path[1:])):
            self._streak(a, b, width, glow, step / count, (step + 1) / count)

    def _streak(self, a, b, width, glow, first, last):
        (ax, ay), (bx, by) = a, b
        near = self._window(min(ax, bx) - 12, min(ay, by) - 12, max(ax, bx) + 12, max(ay, by) + 12)
        px, py = self.x[near] - ax, self.y[near] - ay
        ex, ey = bx - ax, by - ay
        along = (px * ex + py * ey) / (ex * ex + ey * ey + 1e-6)
        t = np.clip(along, 0, 1)
        d = np.hypot(px - t * ex, py - t * ey)
        # Inside a path of several pieces none has round ends: they would lie over each other.
        d = np.where((along < 0) & (first > 0) | (along >= 1) & (last < 1), F(99), d)
        bright = (first + (last - first) * t) ** 1.4
        cut = self.picture[near]
        cut += (np.exp(-((d / 3.2) ** 2)) * bright * glow)[..., None] * np.array([255, 140, 36])
        core = np.clip((width - d) * 1.2, 0, 1) * (0.12 + 0.88 * bright)
        cut += (np.array([255, 244, 186]) - cut) * core[..., None]

    def _window(self, left, top, right, bottom):
        h, w = self.x.shape
        edge = lambda low, high, size: slice(*np.clip((int(low), int(high)), 0, size))
        return edge(top, bottom, h), edge(left, right, w)

    def _lay(self, colour, amount):
        self.picture += (np.array(colour) - self.picture) * amount[..., None]


def _every(path, step):
    """Points on the path about step pixels apart."""
    path = np.array(path, float)
    reached = np.concatenate([[0], np.cumsum(np.hypot(*np.diff(path, axis=0).T))])
    at = np.arange(0, reached[-1], step)
    return np.stack([np.interp(at, reached, path[:, axis]) for axis in (0, 1)], axis=1)
