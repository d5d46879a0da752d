"""Checks a rendered package: python3 -m forge.check PACKAGE_FOLDER

Exits with 1 and one line for each fault.
"""

import struct
import sys
from pathlib import Path

import numpy as np
from PIL import Image
from scipy import ndimage

from .canvas import (BOX_SIZE, FRAME_AT, FRAME_SIZE, ICON, ICONS_AT, KEY, KEY_DISTANCE, MAP_SIZE, SCREEN, SHOT, SHOT_AT, SIDE_INK,
                     SIDES, WINDOW_SIZE, ZOOMED_SIZE)

WEIGHT = 12_000_000  # bytes of all pictures together
SMALLEST_GAP = 100  # pixels of map that are seen as one piece through an overlay


class Package:
    def __init__(self, folder):
        self.folder, self.faults, self.checked = Path(folder), [], 0

    def expect(self, good, fault):
        self.checked += 1
        if not good:
            self.faults.append(fault)

    def picture(self, name):
        """The picture as numbers, or None after noting that it is missing or badly stored."""
        path = self.folder / "Templates" / name
        if not path.is_file():
            self.expect(False, f"{name} is missing")
            return None
        depth, kind = struct.unpack(">BB", path.read_bytes()[24:26])
        picture = Image.open(path).convert("RGB")
        if picture.getcolors():  # at most 256
            self.expect(kind == 3, f"{name} has few colours, but no palette")
        else:
            self.expect((depth, kind) == (8, 2), f"{name} is not 8-bit RGB without alpha")
        return np.array(picture).astype(int)

    def sized(self, name, size):
        picture = self.picture(name)
        if picture is not None:
            found = (picture.shape[1], picture.shape[0])
            self.expect(found == size, f"{name} is {found[0]} x {found[1]}, not {size[0]} x {size[1]}")
        return picture

    def no_fringe(self, name, picture, key):
        """Every pixel is the key colour itself or far from it."""
        distance = np.sqrt(((picture - key) ** 2).sum(axis=2))
        near = (distance > 0) & (distance < KEY_DISTANCE)
        spot = np.argwhere(near)[0][::-1] if near.any() else (0, 0)
        self.expect(not near.any(), f"{name}: {near.sum()} pixels nearly {key}, the first at {spot[0]}, {spot[1]}")
        return distance == 0


def check_overlays(package):
    for side in SIDES:
        for count in (2, 3):
            name = f"{side}_{count}icomain.png"
            picture = package.sized(name, SCREEN)
            if picture is None:
                continue
            clear = package.no_fringe(name, picture, KEY)
            left, top = 232, 56  # where the target box and its lines run
            box = clear[top : FRAME_AT[1] + FRAME_SIZE[1], left : FRAME_AT[0] + FRAME_SIZE[0]]
            covered = np.argwhere(~box)
            seen = [p for p in covered if p[1] + left < SHOT_AT[0] - 16]
            package.expect(not seen, f"{name} covers the way of the target box")
            holes = np.bincount(ndimage.label(clear)[0].flat)[1:]
            package.expect(holes.min() >= SMALLEST_GAP, f"{name} lets the map show through a hole of {holes.min()} pixels")
            package.expect(clear.mean() > 0.5, f"{name} hides more than half of the map")
            for (x, y), (w, h) in [(at, ICON) for at in ICONS_AT[count]] + [(SHOT_AT, SHOT)]:
                package.expect(not clear[y - 1 : y + h + 1, x - 1 : x + w + 1].any(), f"{name} lets the map show at {x}, {y}")


def check_frames(package):
    package.sized("com_largetargetbox.png", FRAME_SIZE)
    box = package.sized("com_smalltargetbox.png", BOX_SIZE)
    if box is not None:
        clear = package.no_fringe("com_smalltargetbox.png", box, KEY)
        package.expect(not clear[:, :5].any(), "com_smalltargetbox.png: the lines end at its left five columns")
    package.expect(BOX_SIZE[0] < FRAME_SIZE[0] and BOX_SIZE[1] < FRAME_SIZE[1], "the small box is not smaller than the large frame")


def check_maps(package):
    for name, size in [(f"{side}_worldmap.png", MAP_SIZE) for side in SIDES] + [("com_worldmap2x.png", ZOOMED_SIZE)]:
        picture = package.sized(name, size)
        if picture is None:
            continue
        package.expect(size[0] >= WINDOW_SIZE[0] and size[1] >= WINDOW_SIZE[1], f"{name} is smaller than the frame's window")
        for axis, edge in ((1, "left and right"), (0, "top and bottom")):
            steps = np.abs(np.diff(picture, axis=axis, append=picture.take([0], axis=axis))).sum(axis=2).mean(axis=1 - axis)
            inside, seam = np.percentile(steps[:-1], 99), steps[-1]
            package.expect(seam <= inside, f"{name}: a seam between {edge}, step {seam:.1f} against {inside:.1f} inside")


def read_catalogue(package):
    """The lines of Settings.ini as {section: [(key, text, file)]}, faults noted."""
    raw = (package.folder / "Settings.ini").read_bytes()
    package.expect(b"\n" not in raw.replace(b"\r\n", b""), "Settings.ini has bare line feeds")
    sections, current = {}, None
    for number, line in enumerate(raw.decode("ascii").splitlines(), 1):
        line = line.split(";")[0].strip(" ")
        if line.startswith("["):
            current = sections.setdefault(line.strip("[]"), [])
        elif line:
            good = line.count("=") == 1 and line.count(",") == 1 and " =" not in line and "= " not in line and ", " not in line
            key, _, value = line.partition("=")
            package.expect(good and 0 < len(key) <= 64 and len(value) <= 255, f"Settings.ini line {number} cannot be read")
            if good:
                current.append((key, *value.split(",")))
    return sections


def check_catalogue(package):
    sections = read_catalogue(package)
    listed = set()
    for section, least in (("SymbolsList", 16), ("CameosList", 24)):
        entries = sections.get(section, [])
        package.expect(len(entries) >= least, f"{section} has {len(entries)} entries")
        for column, what in ((0, "key"), (1, "name"), (2, "file")):
            package.expect(len({e[column] for e in entries}) == len(entries), f"{section} repeats a {what}")
        for _, _, name in entries:
            listed.add(name)
            (check_symbol if section == "SymbolsList" else check_cameo)(package, name)
    found = {p.name for p in (package.folder / "Templates").glob("*.png") if p.name[:4] in ("sym_", "cam_")}
    for name in sorted(found - listed):
        package.expect(False, f"{name} is not listed in Settings.ini")


def check_symbol(package, name):
    picture = package.picture(name)
    if picture is None:
        return
    package.expect(12 <= min(picture.shape[:2]) and max(picture.shape[:2]) <= 48, f"{name} has an odd size")
    for key, what in ((KEY, "transparent"), (SIDE_INK, "in the side's colour")):
        package.expect(package.no_fringe(name, picture, key).any(), f"{name} has nothing {what}")


def check_cameo(package, name):
    package.sized(name, ICON)


def check_rest(package):
    readme = (package.folder / "Templates/readme.txt").read_bytes()
    package.expect(readme and b"\n" not in readme.replace(b"\r\n", b"") and readme.isascii(), "readme.txt is empty, not ASCII or has bare line feeds")
    for sample in (package.folder / "samples").glob("*.png"):
        w, h = Image.open(sample).size
        package.expect(w >= 1024 and h >= 768, f"{sample.name} is too small to crop from")
    weight = sum(path.stat().st_size for path in package.folder.glob("[Ts]*/*.png"))
    package.expect(weight <= WEIGHT, f"the pictures weigh {weight} bytes")


def main():
    package = Package(sys.argv[1])
    for check in (check_overlays, check_frames, check_maps, check_catalogue, check_rest):
        check(package)
    for fault in package.faults:
        print(fault)
    print(f"{package.checked} checks, {len(package.faults)} faults")
    sys.exit(1 if package.faults else 0)


if __name__ == "__main__":
    main()
