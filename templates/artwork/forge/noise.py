"""Cloudy noise that repeats seamlessly in both directions."""

import numpy as np
from scipy import ndimage


def clouds(shape, seed, coarsest, roughness):
    """Noise of mean 0 and deviation 1. It has no waves longer than the height divided by coarsest;
    the larger the roughness (1 to 3), the softer it looks."""
    white = np.random.RandomState(seed).standard_normal(shape)
    spectrum = np.fft.rfft2(white)
    fy = np.fft.fftfreq(shape[0])[:, None] * shape[0]
    fx = np.fft.rfftfreq(shape[1])[None, :] * shape[0]
    frequency = np.maximum(np.hypot(fy, fx), 1e-6)
    spectrum *= (frequency > coarsest) * frequency**-roughness
    field = np.fft.irfft2(spectrum, shape)
    return ((field - field.mean()) / field.std()).astype(np.float32)


class Field:
    """Noise looked up at any point of an endless plane; it repeats every period metres."""

    def __init__(self, seed, period, coarsest=3, roughness=2.0, cells=1024):
        self.grid, self.rate = clouds((cells, cells), seed, coarsest, roughness), cells / period

    def __call__(self, x, y):
        points = np.stack([y, x]) * self.rate
        return ndimage.map_coordinates(self.grid, points, order=1, mode="grid-wrap").astype(np.float32)
