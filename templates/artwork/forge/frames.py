"""The two target frames of silver tube that the editor joins with fans of lines."""

import numpy as np

from . import pixelfont
from .canvas import BOX_SIZE, FRAME_SIZE, KEY, WINDOW_SIZE, hexrgb

# The fans are five lines side by side, grey outside and white inside, darker below than above. The
# frames are tubes of the same five tones, so that lines and frames look like one piece.
TUBE = np.array([0xC0, 0xFF, 0xFF, 0xFF, 0xC0], float)
BELOW = 0xC8 / 0xFF


def _tube_frame(size, left, other):
    """A tube around a picture of that size, left columns wide on the left and other elsewhere.

    Returns the grey levels, and which pixels belong to the tube.
    """
    w, h = size
    level, tube = np.zeros((h, w)), np.zeros((h, w), bool)
    fall = np.linspace(1, BELOW, h)[:, None]
    profile = lambda n: TUBE[np.round(np.linspace(0, 4, n)).astype(int)]
    right = profile(other) * np.linspace(0.86, 0.70, h)[:, None]
    level[:, w - other :], tube[:, w - other :] = right, True
    level[:other], tube[:other] = profile(other)[:, None], True
    level[h - other :], tube[h - other :] = profile(other)[:, None] * BELOW, True
    for i in range(other):  # the right corners are mitred
        level[i : h - i, w - 1 - i] = np.where(np.arange(i, h - i) < h - other, right[i : h - i, other - 1 - i], level[i : h - i, w - 1 - i])
    level[:, :left], tube[:, :left] = profile(left) * fall, True
    return level, tube


def small_box():
    w, h = BOX_SIZE
    level, tube = _tube_frame(BOX_SIZE, 5, 3)
    picture = np.zeros((h, w, 3)) + KEY
    picture[tube] = level[tube][:, None] * np.array([1, 1, 0.99])
    dark, light = hexrgb("101418"), hexrgb("f0f0e4")
    inner = np.zeros((h, w), bool)
    inner[3 : h - 3, 5 : w - 3] = True
    inner[4 : h - 4, 6 : w - 4] = False
    picture[inner] = dark
    # Brackets in the corners and ticks at the middle of each side; what is aimed at stays free.
    left, top, right, bottom = 11, 9, w - 10, h - 10
    for reach, colour in ((1, dark), (0, light)):
        for x, y, dx, dy in ((left, top, 1, 1), (right, top, -1, 1), (left, bottom, 1, -1), (right, bottom, -1, -1)):
            _line(picture, x, y, dx * 13, 0, reach, colour)
            _line(picture, x, y, 0, dy * 13, reach, colour)
        for x, y, dx, dy in (((left + right) // 2, 6, 0, 6), ((left + right) // 2, h - 7, 0, -6),
                             (8, h // 2, 6, 0), (w - 7, h // 2, -6, 0)):
            _line(picture, x, y, dx, dy, reach, colour)
    _rivets(picture, w, h)
    return picture.astype(np.uint8)


def _line(picture, x, y, dx, dy, reach, colour):
    """A straight line of that many pixels on from (x, y), with so many beside it."""
    x0, x1, y0, y1 = min(x, x + dx), max(x, x + dx), min(y, y + dy), max(y, y + dy)
    picture[y0 - reach : y1 + reach + 1, x0 - reach : x1 + reach + 1] = colour


def _rivets(picture, w, h):
    """Bolts where the tubes meet on the right, as on the consoles; the left is the lines' own."""
    for x, y in ((w - 2, 1), (w - 2, h - 2)):
        picture[y - 1 : y + 2, x - 1 : x + 2] = hexrgb("6c747c")
        picture[y, x] = hexrgb("30363c")


def large_frame():
    w, h = FRAME_SIZE
    level, tube = _tube_frame(FRAME_SIZE, 5, 5)
    picture = np.zeros((h, w, 3)) + hexrgb("0c1014")
    picture[tube] = level[tube][:, None] * np.array([1, 1, 0.99])
    ink, red = hexrgb("30363c"), hexrgb("c03828")
    for i in range(11):  # a ruler engraved in the tube, clear of the fans' ends
        x = 7 + round(i * WINDOW_SIZE[0] / 10)
        long = i % 5 == 0
        if 8 < x < w - 8:
            picture[1 : 5 if long else 3, x] = red if long else ink
            picture[h - (5 if long else 3) : h - 1, x] = red if long else ink
        y = 6 + round(i * WINDOW_SIZE[1] / 10)
        if 8 < y < h - 8:
            picture[y, 1 : 5 if long else 3] = red if long else ink
            picture[y, w - (5 if long else 3) : w - 1] = red if long else ink
    for y in (6, h - 7):  # plates hold the right corners
        picture[y - 6 : y + 7, w - 5 : w] *= 0.82
        picture[y, w - 3] = ink
    # Seen only until the zoomed map is drawn over it.
    pixelfont.write(picture, "NO MAP", w // 2, h // 2 - 3, hexrgb("586068"), font=pixelfont.CAPS, spacing=2, align="centre")
    return picture.astype(np.uint8)
