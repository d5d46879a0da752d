"""The editor's icon: a small target box joined to a large frame, on a steel plate."""

import io
import math
import struct

import cairo
import numpy as np
from PIL import Image

SIZES = (16, 24, 32, 48, 64, 256)


def _rounded(c, x, y, w, h, r):
    c.new_sub_path()
    for cx, cy, a in ((x + w - r, y + r, -1), (x + w - r, y + h - r, 0), (x + r, y + h - r, 1), (x + r, y + r, 2)):
        c.arc(cx, cy, r, a * math.pi / 2, (a + 1) * math.pi / 2)
    c.close_path()


def _gradient(y0, y1, *stops):
    g = cairo.LinearGradient(0, y0, 0, y1)
    for i, stop in enumerate(stops):
        g.add_color_stop_rgb(i / (len(stops) - 1), *(int(stop[k : k + 2], 16) / 255 for k in (0, 2, 4)))
    return g


def _draw(size):
    """The icon at one size, as an Image with alpha. Small sizes leave the finer parts out."""
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, size, size)
    c = cairo.Context(surface)
    u = size / 64
    fine = size >= 32
    _rounded(c, u, u, size - 2 * u, size - 2 * u, 11 * u)
    c.set_source(_gradient(0, size, "b8c8d8", "566c84", "263646"))
    c.fill()
    inset = 4.5 * u if fine else 1
    _rounded(c, inset, inset, size - 2 * inset, size - 2 * inset, 8 * u)
    c.set_source(_gradient(0, size, "0c1a2e", "1c3a60"))
    c.fill_preserve()
    c.clip()
    _globe(c, size, u, fine)
    if fine:
        _beams(c, u)
    _frames(c, size, u, fine)
    surface.flush()
    data = np.frombuffer(surface.get_data(), np.uint8).reshape(size, size, 4).astype(float)
    alpha = data[..., 3:] / 255
    rgb = np.where(alpha > 0, data[..., 2::-1] / np.maximum(alpha, 1e-6), 0)
    return Image.fromarray(np.concatenate([np.clip(rgb, 0, 255), data[..., 3:]], axis=2).round().astype(np.uint8), "RGBA")


def _globe(c, size, u, fine):
    cx, cy, r = 22 * u, 44 * u, 27 * u
    c.set_line_width(max(1, 0.9 * u))
    c.set_source_rgba(0.35, 0.66, 0.88, 0.75 if fine else 0.5)
    for squeeze in (1.0, 0.62, 0.2) if fine else (1.0,):
        c.save()
        c.translate(cx, cy)
        c.scale(squeeze, 1)
        c.arc(0, 0, r, 0, 2 * math.pi)
        c.restore()
        c.stroke()
    if fine:
        for k in (-0.6, -0.2, 0.2, 0.6):
            half = r * math.sqrt(1 - k * k)
            c.move_to(cx - half, cy + k * r)
            c.line_to(cx + half, cy + k * r)
            c.stroke()


def _beams(c, u):
    c.set_source_rgba(1, 1, 1, 0.30)
    for points in (((10, 33), (27, 10), (27, 41), (10, 47)),):
        for x, y in points:
            c.line_to(x * u, y * u)
        c.close_path()
        c.fill()
    c.set_source_rgb(0.93, 0.95, 0.97)
    c.set_line_width(1.6 * u)
    for a, b in (((10, 33), (28, 10)), ((10, 47), (28, 41))):
        c.move_to(a[0] * u, a[1] * u)
        c.line_to(b[0] * u, b[1] * u)
        c.stroke()


def _frames(c, size, u, fine):
    snap = lambda v: round(v * u)
    left, top, right, bottom = snap(27), snap(9), snap(56), snap(40)
    c.rectangle(left, top, right - left, bottom - top)
    c.set_source(_gradient(top, bottom, "8e2416", "5a120c"))
    c.fill_preserve()
    thick = max(1, round(2.4 * u))
    c.set_source(_gradient(top, bottom, "ffffff", "c0c8d0"))
    c.set_line_width(thick)
    c.rectangle(left + thick / 2, top + thick / 2, right - left - thick, bottom - top - thick)
    c.stroke()
    mx, my = (left + right) / 2, (top + bottom) / 2
    c.set_source_rgb(1.0, 0.72, 0.2)
    if size >= 48:
        c.set_line_width(2 * u)
        c.arc(mx, my, 6.5 * u, 0, 2 * math.pi)
        c.stroke()
        for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1)):
            c.move_to(mx + dx * 4 * u, my + dy * 4 * u)
            c.line_to(mx + dx * 10 * u, my + dy * 10 * u)
            c.stroke()
    c.arc(mx, my, max(1.1, 2 * u), 0, 2 * math.pi)
    c.fill()
    x, y, w = snap(9), snap(33), max(4, snap(15))
    thick = max(1, round(2.2 * u))
    c.set_source_rgb(0.96, 0.97, 0.98)
    c.set_line_width(thick)
    c.rectangle(x + thick / 2, y + thick / 2, w - thick, w - thick)
    c.stroke()


def _bitmap(image):
    """An icon image as Windows has read it from the start: header, rows upwards, mask."""
    w, h = image.size
    rgba = np.array(image)[::-1]
    mask = np.packbits(rgba[..., 3] == 0, axis=1)
    mask = np.pad(mask, ((0, 0), (0, -mask.shape[1] % 4)))
    header = struct.pack("<IiiHHIIiiII", 40, w, h * 2, 1, 32, 0, rgba.size + mask.size, 0, 0, 0, 0)
    return header + rgba[..., [2, 1, 0, 3]].tobytes() + mask.tobytes()


def icon_file():
    """The bytes of the .ico: bitmaps for the small sizes, PNG for the large ones, which packs them."""
    blobs = []
    for size in SIZES:
        image = _draw(size)
        if size < 48:
            blobs.append(_bitmap(image))
        else:
            packed = io.BytesIO()
            image.save(packed, "PNG", optimize=True)
            blobs.append(packed.getvalue())
    at = 6 + 16 * len(SIZES)
    out = struct.pack("<HHH", 0, 1, len(SIZES))
    for size, blob in zip(SIZES, blobs):
        out += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(blob), at)
        at += len(blob)
    return out + b"".join(blobs)
