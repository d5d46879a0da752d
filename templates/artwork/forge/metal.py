"""Sheet metal for frames and panels: shapes become bevelled, brushed, riveted plates.

A Bench holds one picture under work: its colours, and which pixels are covered at all. Whatever is
not covered when the picture is finished gets the key colour, without any blending at the edge.
"""

from dataclasses import dataclass

import cairo
import numpy as np
from scipy import ndimage

from . import pixelfont
from .canvas import KEY, hexrgb

F_TINY = 1e-6  # keeps a plate of one tone from dividing by zero
FINER = 3  # plates are lit on a grid this many times finer
LAMP = np.array([-0.5, -0.68, 0.54])


@dataclass(frozen=True)
class Paint:
    """A metal: its colour, the depth of its brushing, and how strongly it shines."""

    colour: str
    brushed: float = 0.05
    gloss: float = 0.35
    bare: str = ""  # steel that shows where paint has worn off the edges; unpainted metal has none


class Bench:
    def __init__(self, size):
        self.width, self.height = size
        self.rgb = np.zeros((size[1], size[0], 3), np.float32)
        self.covered = np.zeros((size[1], size[0]), bool)
        self.random = np.random.RandomState(5)

    def finished(self):
        picture = np.clip(np.rint(self.rgb), 0, 255).astype(np.uint8)
        picture[~self.covered] = KEY
        return picture

    def coverage(self, draw, scale=1, antialias=True):
        """How far draw(context) covers each pixel, 0 to 1."""
        surface = cairo.ImageSurface(cairo.FORMAT_A8, self.width * scale, self.height * scale)
        context = cairo.Context(surface)
        context.set_antialias(cairo.ANTIALIAS_DEFAULT if antialias else cairo.ANTIALIAS_NONE)
        context.scale(scale, scale)
        draw(context)
        surface.flush()
        data = np.frombuffer(surface.get_data(), np.uint8).reshape(self.height * scale, surface.get_stride())
        return data[:, : self.width * scale].astype(np.float32) / 255

    def plate(self, draw, paint, bevel=3.0, sunken=False, outline=True, dome=False, cover=True):
        """Lays a plate of the drawn shape. A dome rises to its middle instead of lying flat."""
        shape = self.coverage(draw, FINER, antialias=False) > 0.5
        if not shape.any():
            return
        rows, columns = np.nonzero(shape.any(axis=1))[0], np.nonzero(shape.any(axis=0))[0]
        top, left = rows[0] // FINER, columns[0] // FINER
        bottom, right = rows[-1] // FINER + 1, columns[-1] // FINER + 1
        cut = shape[top * FINER : bottom * FINER, left * FINER : right * FINER]
        depth = ndimage.distance_transform_edt(np.pad(cut, 1))[1:-1, 1:-1] / FINER
        lit = self._light(depth, paint, bevel, sunken, dome)
        if outline:
            lit *= np.where(depth < 1, 0.28, 1)[..., None]
        blocks = (bottom - top, FINER, right - left, FINER)
        weight = cut.reshape(blocks).mean(axis=(1, 3))
        colour = (lit * cut[..., None]).reshape(*blocks, 3).mean(axis=(1, 3))
        colour /= np.maximum(weight, 1e-6)[..., None]
        on = weight >= 0.5
        if not cover:
            on &= self.covered[top:bottom, left:right]
        self.rgb[top:bottom, left:right][on] = colour[on]
        self.covered[top:bottom, left:right] |= on

    def _light(self, depth, paint, bevel, sunken, dome):
        rise = np.clip(depth / bevel, 0, 1)
        height = bevel * (np.sqrt(np.clip(1 - (1 - rise) ** 2, 0, 1)) if dome else rise)
        height = ndimage.gaussian_filter(height, FINER * 0.35) * (-0.8 if sunken else 0.8)
        gy, gx = np.gradient(height, 1 / FINER)
        size = np.sqrt(gx * gx + gy * gy + 1)
        facing = (-gx * LAMP[0] - gy * LAMP[1] + LAMP[2]) / size
        worn = paint.bare and not dome  # what is as small as a rivet keeps its paint
        grain = self._grain(depth.shape, worn)
        down = np.linspace(1.12, 0.86, depth.shape[0])[:, None]
        tone = (0.42 + 1.05 * np.clip(facing, 0, 1)) * (1 + paint.brushed * grain) * down
        gleam = np.clip(facing, 0, 1) ** 14 * paint.gloss * 210 * (size > 1.05)
        colour = np.array(hexrgb(paint.colour), np.float32)
        if worn:
            steel = np.array(hexrgb(paint.bare), np.float32)
            colour = colour + (steel - colour) * self._wear(depth)[..., None]
        return colour * tone[..., None] + gleam[..., None]

    def _noise(self, shape, reach):
        noise = ndimage.gaussian_filter(self.random.standard_normal(shape).astype(np.float32), reach)
        return noise / (noise.std() + F_TINY)

    def _grain(self, shape, painted):
        """Strokes of the brush on bare metal; paint lies in soft clouds and fine grit instead."""
        if painted:
            return 0.8 * self._noise(shape, FINER * 7) + 0.45 * self._noise(shape, FINER * 0.4)
        grain = self.random.standard_normal(shape).astype(np.float32)
        grain = ndimage.uniform_filter1d(grain, 17 * FINER, axis=1)
        grain = ndimage.uniform_filter1d(grain, FINER, axis=0)
        return grain / (grain.std() + F_TINY)

    def _wear(self, depth):
        """How far the paint is gone: chipped along the edges, scratched here and there."""
        chips = self._noise(depth.shape, FINER * 0.9) + 0.6 * self._noise(depth.shape, FINER * 5)
        edge = np.clip(1 - np.abs(depth - 2.2) / 2.2, 0, 1)
        return np.clip((chips + 2.2 * edge - 2.75) * 2.5, 0, 0.85)

    def fill(self, draw, colour, opacity=1.0, cover=False):
        """Flat colour; covers new pixels only when told to, otherwise stays on laid metal."""
        amount = self.coverage(draw)
        if cover:
            amount = (amount >= 0.5).astype(np.float32)
            self.covered |= amount > 0
        amount = amount * self.covered * opacity
        self.rgb += (np.array(hexrgb(colour), np.float32) - self.rgb) * amount[..., None]

    def shadow(self, draw, reach=5, strength=0.6, offset=(2, 3)):
        """Darkens the metal beneath a shape about to be laid."""
        amount = np.roll(self.coverage(draw), (offset[1], offset[0]), (0, 1))
        amount = ndimage.gaussian_filter(amount, reach / 2)
        self.rgb *= 1 - (amount * self.covered * strength)[..., None]

    def glow(self, draw, colour, bloom=4.0, strength=0.8):
        """A line or shape of light with a halo on the metal around it."""
        core = self.coverage(draw)
        halo = ndimage.gaussian_filter(core, bloom) * bloom * strength
        light = np.array(hexrgb(colour), np.float32)
        on = self.covered[..., None]
        self.rgb += light * (np.clip(halo, 0, 0.75)[..., None] * 0.6) * on
        self.rgb += (light * 0.75 + 64 - self.rgb) * (core[..., None] * on)
        np.clip(self.rgb, 0, 255, out=self.rgb)

    def rivets(self, places, paint, radius=2.4):
        for x, y in places:
            disc = lambda c, grow=0.0: c.arc(x, y, radius + grow, 0, 7) or c.fill()
            self.fill(lambda c: disc(c, 1.0), "000000", 0.55)
            self.plate(disc, paint, radius, outline=False, dome=True, cover=False)

    def hazard(self, draw, light="d8a020", dark="1c1a18", pitch=8.0):
        """Slanting warning stripes inside the drawn shape."""
        inside = self.coverage(draw)
        y, x = np.mgrid[0 : self.height, 0 : self.width]
        bars = (((x + y) / pitch) % 1 < 0.5)[..., None]
        colour = np.where(bars, np.array(hexrgb(light), np.float32), np.array(hexrgb(dark), np.float32))
        worn = 1 + 0.06 * ndimage.gaussian_filter(self.random.standard_normal(inside.shape), 1.2)
        on = (inside * self.covered)[..., None]
        self.rgb += (colour * worn[..., None] - self.rgb) * on * 0.92

    def vents(self, x, y, count, length=14, pitch=4, vertical=False):
        for i in range(count):
            px, py = (x + i * pitch, y) if vertical else (x, y + i * pitch)
            w, h = (2, length) if vertical else (length, 2)
            self.fill(lambda c: c.rectangle(px, py, w, h) or c.fill(), "060606", 0.85)
            edge = (px + w, py, 1, h) if vertical else (px, py + h, w, 1)
            self.fill(lambda c: c.rectangle(*edge) or c.fill(), "ffffff", 0.16)

    def text(self, words, x, y, colour, font=pixelfont.CAPS, spacing=1, align="centre", shadow="000000"):
        pixelfont.write(self.rgb, words, x, y, hexrgb(colour), font=font, spacing=spacing, align=align,
                        shadow=hexrgb(shadow) if shadow else None)


def outline(x, y, w, h, corner=8, kind="cut"):
    """A path for plate(): a box whose corners are cut off, stepped or round."""
    def draw(c):
        k = corner
        if kind == "round":
            c.new_sub_path()
            for cx, cy, a in (
                (x + w - k, y + k, -1), (x + w - k, y + h - k, 0), (x + k, y + h - k, 1), (x + k, y + k, 2)
            ):
                c.arc(cx, cy, k, a * np.pi / 2, (a + 1) * np.pi / 2)
        else:
            steps = {
                "cut": [(0, k), (k, 0)],
                "step": [(0, k), (k * 0.5, k), (k * 0.5, k * 0.5), (k, k * 0.5), (k, 0)],
            }[kind]
            turns = [
                (x, y, 1, 1, False), (x + w, y, -1, 1, True), (x + w, y + h, -1, -1, False),
                (x, y + h, 1, -1, True),
            ]
            c.new_sub_path()
            for px, py, sx, sy, back in turns:
                for dx, dy in reversed(steps) if back else steps:
                    c.line_to(px + sx * dx, py + sy * dy)
        c.close_path()
        c.fill()
    return draw


def polygon(points):
    def draw(c):
        c.new_sub_path()
        for x, y in points:
            c.line_to(x, y)
        c.close_path()
        c.fill()
    return draw


def line(points, width=1.0):
    def draw(c):
        c.set_line_width(width)
        c.new_sub_path()
        for x, y in points:
            c.line_to(x, y)
        c.stroke()
    return draw


def circle(x, y, radius):
    return lambda c: c.arc(x, y, radius, 0, 2 * np.pi) or c.fill()


def hoop(x, y, outer, inner):
    def draw(c):
        c.set_line_width(outer - inner)
        c.arc(x, y, (outer + inner) / 2, 0, 2 * np.pi)
        c.stroke()
    return draw


def both_ways(points, axis):
    """The points mirrored about the upright line x = axis."""
    return [(2 * axis - x, y) for x, y in points]
