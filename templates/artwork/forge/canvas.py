"""What every picture of the package has in common: sizes, key colours and the way it is saved."""

import numpy as np
from PIL import Image

SCREEN = (800, 520)
ICON = (76, 60)
SHOT = (234, 232)
FRAME_AT = (346, 52)  # the large frame's corner; its window opens at (353, 58)
FRAME_SIZE = (295, 289)
WINDOW_AT = (353, 58)
WINDOW_SIZE = (281, 277)
BOX_SIZE = (112, 111)  # the small target box: what it surrounds is what the frame shows
BOX_AT = (232, 103)  # where it and the zoomed map's offset stand when the editor starts
SHOT_AT = (542, 267)
ICONS_AT = {2: [(311, 380), (405, 380)], 3: [(256, 380), (350, 380), (444, 380)]}
MAP_SIZE = (1280, 832)
ZOOM = 2.5  # WINDOW_SIZE over BOX_SIZE
ZOOMED_SIZE = (3200, 2080)

KEY = (0, 0, 255)  # transparent in overlays, the target box and symbols
SIDE_INK = (255, 255, 0)  # becomes the side's colour in symbols
SIDES = ("all", "sov", "psy")

# A colour this close to a key reads as a fringe once the picture is reduced to 256 colours.
KEY_DISTANCE = 90


def hexrgb(text):
    """'1a2b3c' as three numbers."""
    return tuple(int(text[i : i + 2], 16) for i in (0, 2, 4))


def blank(size, colour=KEY):
    """A picture of one colour as an (h, w, 3) array of bytes; size is (w, h)."""
    return np.full((size[1], size[0], 3), colour, np.uint8)


def save(picture, path):
    """Writes an (h, w, 3) array, or an Image, as an 8-bit PNG without alpha: with a palette where
    that loses no colour, since such a file is smaller and decodes several times faster."""
    if not isinstance(picture, Image.Image):
        picture = Image.fromarray(np.ascontiguousarray(np.clip(np.rint(picture), 0, 255), np.uint8))
    picture = picture.convert("RGB")
    with_palette(picture).save(path, optimize=True)


def with_palette(picture):
    """The RGB picture with a palette of its colours, darkest first; itself if they are too many."""
    pixels = np.array(picture)
    colours, indices = np.unique(pixels.reshape(-1, 3) @ (65536, 256, 1), return_inverse=True)
    if len(colours) > 256:
        return picture
    order = np.argsort(
        [299 * (c >> 16) + 587 * (c >> 8 & 255) + 114 * (c & 255) for c in colours], kind="stable"
    )
    rank = np.argsort(order).astype(np.uint8)
    result = Image.fromarray(rank[indices].reshape(pixels.shape[:2]), "P")
    result.putpalette(b"".join(int(c).to_bytes(3, "big") for c in colours[order]))
    return result


def reduce_colours(picture, count):
    """The picture with at most that many different colours, and no dithering."""
    image = Image.fromarray(np.clip(np.rint(picture), 0, 255).astype(np.uint8))
    return np.array(image.quantize(count, Image.MEDIANCUT, dither=Image.NONE).convert("RGB"))
