"""The flat world: projects places to map pixels and rasters the coastlines, seamless on all sides.

The map wraps to the left and right like the globe does. It wraps at the top and bottom through open
ocean: the Southern Ocean below meets the Arctic Ocean above at a ruled scale strip.
"""

import json
import math

import cairo
import numpy as np
from scipy import ndimage

from .canvas import BOX_AT, BOX_SIZE, MAP_SIZE, WINDOW_SIZE, ZOOM, ZOOMED_SIZE
from .noise import clouds
from .places import RANGES

STRETCH = 0.9  # of the projection, as in coast.mjs
WEST_EDGE = -67  # degrees east of the left edge: off the meridians that the graticule draws
TOP_EDGE = 72.8  # degrees north of the top edge: brings Europe under the target box
STRIP_AT = -1.48  # projected latitude of the scale strip in the empty ocean


def projected_latitude(degrees):
    return math.log(math.tan(math.pi / 4 + STRETCH * math.radians(degrees) / 2)) / STRETCH


class Globe:
    """One map's pixel grid. zoom 1 is the side maps' size, ZOOM the zoomed map's."""

    def __init__(self, coast_file, zoom=1):
        self.zoom = zoom
        self.bold = round(zoom * 0.8)  # pixels of what is 1 wide on the side maps
        self.width, self.height = MAP_SIZE if zoom == 1 else ZOOMED_SIZE
        self.radius = self.width / (2 * math.pi)
        self.top = projected_latitude(TOP_EDGE)
        self.origin = (0, 0) if zoom == 1 else zoomed_origin()
        with open(coast_file) as source:
            coast = json.load(source)
        self.land_lines = [self._to_pixels(line) for line in coast["land"]]
        self.border_lines = [self._to_pixels(line) for line in coast["borders"]]

    def _to_pixels(self, line):
        points = np.array(line)
        return np.stack(
            [points[:, 0] * self.width - self.origin[0],
             (self.top - points[:, 1]) * self.radius - self.origin[1]], axis=1)

    def row(self, latitude_projected):
        return (self.top - latitude_projected) * self.radius - self.origin[1]

    def pixel(self, longitude, latitude):
        """Map pixel of a place; not yet wrapped into the picture."""
        x = ((longitude - WEST_EDGE) % 360) / 360 * self.width - self.origin[0]
        return x, self.row(projected_latitude(latitude))

    def course(self, places):
        """Pixels of a way over the globe, unbroken where it passes the map's edge."""
        points = [self.pixel(*place) for place in places]
        for i in range(1, len(points)):
            step = points[i][0] - points[i - 1][0]
            shift = -round(step / self.width) * self.width
            points[i] = (points[i][0] + shift, points[i][1])
        return points

    def stencil(self, draw, antialias=True):
        """Runs draw(context) once per neighbouring copy of the map; coverage 0 to 1 as an array."""
        surface = cairo.ImageSurface(cairo.FORMAT_A8, self.width, self.height)
        for dx in (-self.width, 0, self.width):
            for dy in (-self.height, 0, self.height):
                context = cairo.Context(surface)
                if not antialias:
                    context.set_antialias(cairo.ANTIALIAS_NONE)
                context.translate(dx, dy)
                draw(context)
        surface.flush()
        data = np.frombuffer(surface.get_data(), np.uint8).reshape(self.height, surface.get_stride())
        return data[:, : self.width].astype(np.float32) / 255

    def land(self):
        def draw(context):
            context.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
            for line in self.land_lines:
                trace(context, line)
                context.close_path()
            context.fill()

        return self.stencil(draw)

    def borders(self):
        def draw(context):
            context.set_line_width(1)
            for line in self.border_lines:
                trace(context, np.floor(line) + 0.5)
                context.stroke()

        return self.stencil(draw, antialias=False)

    def mountains(self):
        """Height of the mountain chains, 0 to about 1."""
        degree = self.width / 360
        total = np.zeros((self.height, self.width), np.float32)
        for width, height, places in RANGES:
            points = self.course(places)

            def draw(context):
                context.set_line_width(width * degree)
                context.set_line_cap(cairo.LINE_CAP_ROUND)
                context.set_line_join(cairo.LINE_JOIN_ROUND)
                trace(context, points)
                context.stroke()

            band = ndimage.gaussian_filter(self.stencil(draw), width * degree * 0.42, mode="wrap")
            total = np.maximum(total, band * height)
        return total

    def noise(self, seed, coarsest, roughness):
        """Cloudy noise, mean 0 and deviation 1, that repeats seamlessly at the map's edges."""
        field = clouds(ZOOMED_SIZE[::-1], seed, coarsest, roughness)
        if self.zoom == 1:
            field = ndimage.uniform_filter(field, 3, mode="wrap")
            rows, columns = (((np.arange(n) + 0.5) * ZOOM).astype(int) for n in MAP_SIZE[::-1])
            field = field[np.ix_(rows, columns)]
        else:
            field = np.roll(field, (-self.origin[1], -self.origin[0]), (0, 1))
        return ((field - field.mean()) / field.std()).astype(np.float32)

    def distance(self, mask):
        """Distance in pixels to the nearest cell outside the mask, seen around the edges."""
        margin = 90
        padded = np.pad(mask, margin, mode="wrap")
        return ndimage.distance_transform_edt(padded)[margin:-margin, margin:-margin].astype(np.float32)


def zoomed_origin():
    """Shift of the zoomed map against twice the small map's pixels.

    The editor starts with the same offset for the target box and the zoomed map. With this shift
    the frame then shows the surroundings of the spot under the middle of the box.
    """
    return tuple(
        round(ZOOM * (BOX_AT[i] + BOX_SIZE[i] / 2) - (BOX_AT[i] + WINDOW_SIZE[i] / 2)) for i in (0, 1))


def trace(context, points):
    context.new_sub_path()
    for x, y in points:
        context.line_to(x, y)
