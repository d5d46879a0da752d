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
        wide = 5 + tall * 0.055 + tall * 0.24 * up
        curl = self.rough(self.x * 1.1 + sx, self.y * 1.1 + up * 14)
        thick = np.exp(-(((self.x - middle) / wide) ** 2)) * np.clip(up * 9, 0, 1) * np.clip(1.2 - up, 0, 1)
        thick *= (self.y < sy) * np.clip(0.95 + 0.45 * curl, 0, 1.3)
        lit = np.clip(0.5 - (self.x - middle) / wide * 0.4 + 0.3 * curl, 0, 1)  # the sun stands to the left
        tone = 26 + 44 * up.clip(0, 1) + 46 * lit
        smoke = tone[..., None] * np.array([1.0, 0.96, 0.91])
        self.picture += (smoke - self.picture) * np.clip(thick * 0.95, 0, 0.92)[..., None]

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
            inner, outer = (0.7 * far * np.cos(a), 0.7 * far * np.sin(a) - 4), (far * np.cos(a), far * np.sin(a) - 6)
            self.tracer([(sx + inner[0], sy + inner[1]), (sx + outer[0], sy + outer[1])], 0.8)

    def flash(self, at, towards, size=11.0):
        """Fire from a muzzle, drawn out along the shot."""
        way = np.array(towards, float) - at
        way /= np.hypot(*way)
        along = (self.x - at[0]) * way[0] + (self.y - at[1]) * way[1]
        off = np.abs((self.x - at[0]) * -way[1] + (self.y - at[1]) * way[0])
        tongue = 1 - np.maximum(along / size, -along / (size * 0.25)) - off / (size * 0.3)
        self.picture += np.exp(-np.hypot(along - size * 0.3, off) / size * 1.6)[..., None] * np.array([90, 56, 16])
        self._lay((255, 176, 52), np.clip(tongue * 4, 0, 1))
        self._lay((255, 248, 214), np.clip((tongue - 0.3) * 5, 0, 1))

    def trail(self, path):
        """White smoke behind a rocket along the path of points."""
        for share, (px, py) in zip(np.linspace(0, 1, len(path)), path):
            wide = 2.2 + 3.4 * (1 - share)
            d = np.hypot(self.x - px, self.y - py) / wide
            ragged = d + 0.35 * self.rough(self.x * 2 + px, self.y * 2)
            self._lay((206, 202, 194), np.clip(1 - ragged, 0, 1) * (0.1 + 0.45 * share))

    def tracer(self, path, width=1.3):
        """A bright streak along a path of points, brightest at its end."""
        count = len(path) - 1
        for step, (a, b) in enumerate(zip(path, path[1:])):
            self._streak(a, b, width, step / count, (step + 1) / count)

    def _streak(self, a, b, width, first, last):
        h, w = self.x.shape
        (ax, ay), (bx, by) = a, b
        left, right = int(max(0, min(ax, bx) - 12)), int(min(w, max(ax, bx) + 12))
        top, bottom = int(max(0, min(ay, by) - 12)), int(min(h, max(ay, by) + 12))
        if left >= right or top >= bottom:
            return
        px, py = self.x[top:bottom, left:right] - ax, self.y[top:bottom, left:right] - ay
        ex, ey = bx - ax, by - ay
        along = (px * ex + py * ey) / (ex * ex + ey * ey + 1e-6)
        t = np.clip(along, 0, 1)
        d = np.hypot(px - t * ex, py - t * ey)
        if first > 0:  # only the first piece of a path has a round beginning
            d = np.where(along < 0, F(99), d)
        bright = first + (last - first) * t
        cut = self.picture[top:bottom, left:right]
        cut += (np.exp(-((d / 4.0) ** 2)) * bright * 0.5)[..., None] * np.array([255, 150, 40])
        core = np.clip((width - d) * 1.2, 0, 1) * (0.25 + 0.75 * bright)
        cut += (np.array([255, 246, 190]) - cut) * core[..., None]

    def _lay(self, colour, amount):
        self.picture += (np.array(colour) - self.picture) * amount[..., None]
