"""The placeable symbols: signs in the side's colour, and badges with a white sign on it.

Symbols are cut out of the key colour without any blending. Only white meets black softly, inside the
black edge that surrounds everything.
"""

import math
from dataclasses import dataclass

import cairo
import numpy as np
from scipy import ndimage

from .canvas import KEY, SIDE_INK
from .signs import SIGNS

FINER = 8


@dataclass(frozen=True)
class Symbol:
    name: str
    stem: str
    kind: str  # "round" or "square" badge, or "free"
    size: int
    turn: float = 0
    sign: str = ""

    @property
    def file(self):
        return f"sym_{self.stem}.png"


_ARROWS = [("up", 0), ("up right", 45), ("right", 90), ("down right", 135), ("down", 180), ("down left", 225),
           ("left", 270), ("up left", 315)]

# In the order in which the editor shows them.
SYMBOLS = [
    *[Symbol(f"Arrow {name}", f"arrow_{name.replace(' ', '_')}", "free", 40, turn, "arrow") for name, turn in _ARROWS],
    Symbol("Spearhead up", "spearhead_up", "free", 48, 0, "spearhead"),
    Symbol("Spearhead down", "spearhead_down", "free", 48, 180, "spearhead"),
    Symbol("Spearhead left", "spearhead_left", "free", 48, 270, "spearhead"),
    Symbol("Spearhead right", "spearhead_right", "free", 48, 90, "spearhead"),
    Symbol("Infantry", "infantry", "round", 34), Symbol("Armour", "armour", "round", 34),
    Symbol("Artillery", "artillery", "round", 34), Symbol("Aircraft", "aircraft", "round", 34),
    Symbol("Helicopter", "helicopter", "round", 34), Symbol("Fleet", "fleet", "round", 34),
    Symbol("Submarine", "submarine", "round", 34), Symbol("Missile", "missile", "round", 34),
    Symbol("Base", "base", "square", 34), Symbol("City", "city", "square", 34), Symbol("Factory", "factory", "square", 34),
    Symbol("Power station", "power", "square", 34), Symbol("Radar", "radar", "square", 34),
    Symbol("Airfield", "airfield", "square", 34), Symbol("Harbour", "harbour", "square", 34),
    Symbol("Oil field", "oil", "square", 34), Symbol("Bridge", "bridge", "square", 34),
    Symbol("Star", "star", "free", 32), Symbol("Flag", "flag", "free", 36), Symbol("Crosshair", "crosshair", "free", 40),
    Symbol("Explosion", "explosion", "free", 44), Symbol("Question", "question", "free", 32),
    Symbol("Warning", "warning", "free", 34), Symbol("Rally point", "rally", "free", 36), Symbol("Dot", "dot", "free", 16),
]


def _coverage(draw, size, grid, turn=0.0, inset=0.0):
    """Coverage of each pixel by draw(context) in a picture of size, drawn on a grid of that many units."""
    surface = cairo.ImageSurface(cairo.FORMAT_A8, size * FINER, size * FINER)
    context = cairo.Context(surface)
    context.set_antialias(cairo.ANTIALIAS_NONE)
    context.scale(FINER, FINER)
    context.translate(size / 2, size / 2)
    context.rotate(math.radians(turn))
    context.scale((size - 2 * inset) / grid, (size - 2 * inset) / grid)
    context.translate(-grid / 2, -grid / 2)
    draw(context)
    surface.flush()
    data = np.frombuffer(surface.get_data(), np.uint8).reshape(size * FINER, -1)[:, : size * FINER]
    return (data > 127).reshape(size, FINER, size, FINER).mean(axis=(1, 3))


def _grow(mask, corners=True):
    return ndimage.binary_dilation(mask, np.ones((3, 3)) if corners else None)


def picture(symbol):
    art = np.zeros((symbol.size, symbol.size, 3)) + KEY
    return (_free if symbol.kind == "free" else _badge)(symbol, art).astype(np.uint8)


def _free(symbol, art):
    """A sign in the side's colour: black around, a light edge towards the upper left."""
    sign = SIGNS[symbol.sign or symbol.stem]
    body = _coverage(sign, symbol.size, 24, symbol.turn, 2) >= 0.5
    art[_grow(_grow(body), False)] = (12, 12, 14)
    art[body] = SIDE_INK
    lit = body & ~np.roll(body, (1, 1), (0, 1))
    art[_grow(lit) & ~body & (np.roll(body, (-1, -1), (0, 1)) | np.roll(body, -1, 0) | np.roll(body, -1, 1))] = (236, 236, 236)
    art[np.roll(body, (1, 1), (0, 1)) & ~body & ~np.roll(body, (-1, -1), (0, 1))] = (12, 12, 14)
    inner = SIGNS.get(symbol.stem + "_inner")
    if inner:  # a second tone, in a black line
        core = _coverage(inner, symbol.size, 24, symbol.turn, 2) >= 0.5
        art[_grow(core, False) & body] = (12, 12, 14)
        art[core & body] = (250, 246, 232)
    return art


def _badge(symbol, art):
    """A field of the side's colour in a silver rim, with a white sign."""
    size, middle = symbol.size, (symbol.size - 1) / 2
    y, x = np.mgrid[0:size, 0:size]
    if symbol.kind == "round":
        depth = size / 2 - np.hypot(x - middle, y - middle)
    else:
        dx, dy = size / 2 - np.abs(x - middle), size / 2 - np.abs(y - middle)
        depth = np.minimum(np.minimum(dx, dy), (dx + dy - 6) / math.sqrt(2))
    art[depth > 0] = (12, 12, 14)
    falling = (x + y) / (2 * size)
    ring = (depth > 1.2) & (depth <= 3.3)
    art[ring] = (238 - 120 * falling)[ring][:, None]
    art[(depth > 3.3)] = (12, 12, 14)
    art[depth > 4.2] = SIDE_INK
    sign = _coverage(SIGNS[symbol.sign or symbol.stem], size, 24, symbol.turn, 5.5)
    black = _grow(sign > 0.25) & (depth > 3.3)
    art[black] = (12, 12, 14)
    art[black] += (np.array((250, 250, 246)) - 12) * sign[black][:, None]
    return art
