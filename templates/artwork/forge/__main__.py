"""Renders the package: python3 -m forge COAST_FILE PACKAGE_FOLDER ICON_FILE [part ...]

Parts are maps, overlays, frames, symbols, cameos, samples, texts and icon; all when none is named.
"""

import os
import sys
from multiprocessing import Pool
from pathlib import Path

from . import appicon, battlefield, cameos, canvas, catalogue, frames, globe, overlays, scenes, symbols
from . import worldmap

MAP_COLOURS, ZOOMED_COLOURS = 64, 96


def side_maps(coast, out):
    small = globe.Globe(coast)
    for side in canvas.SIDES:
        canvas.save(worldmap.paint(small, side, MAP_COLOURS), out / "Templates" / f"{side}_worldmap.png")


def zoomed_map(coast, out):
    canvas.save(
        worldmap.paint(globe.Globe(coast, canvas.ZOOM), "com", ZOOMED_COLOURS),
        out / "Templates/com_worldmap2x.png",
    )


def side_overlay(side, count, out):
    canvas.save(overlays.overlay(side, count), out / "Templates" / f"{side}_{count}icomain.png")


def target_frames(out):
    canvas.save(frames.large_frame(), out / "Templates/com_largetargetbox.png")
    canvas.save(frames.small_box(), out / "Templates/com_smalltargetbox.png")


def all_symbols(out):
    for symbol in symbols.SYMBOLS:
        canvas.save(symbols.picture(symbol), out / "Templates" / symbol.file)


def one_cameo(number, out):
    cameo = cameos.CAMEOS[number]
    canvas.save(cameos.portrait(cameo), out / "Templates" / cameo.file)


def one_sample(name, out):
    canvas.save(battlefield.paint(scenes.SAMPLES[name]()), out / "samples" / name)


def texts(out):
    (out / "Settings.ini").write_bytes(catalogue.crlf(catalogue.settings()))
    (out / "Templates/readme.txt").write_bytes(catalogue.crlf(catalogue.readme()))


def icon(path):
    path.write_bytes(appicon.icon_file())


def jobs(coast, out, icon_path):
    """Every piece of work as (part, function, arguments), the long ones first."""
    return [
        *[("samples", one_sample, (name, out)) for name in scenes.SAMPLES],
        ("maps", zoomed_map, (coast, out)),
        ("maps", side_maps, (coast, out)),
        *[("overlays", side_overlay, (side, count, out)) for side in canvas.SIDES for count in (2, 3)],
        *[("cameos", one_cameo, (number, out)) for number in range(len(cameos.CAMEOS))],
        ("symbols", all_symbols, (out,)),
        ("frames", target_frames, (out,)),
        ("texts", texts, (out,)),
        ("icon", icon, (icon_path,)),
    ]


def run(job):
    part, function, arguments = job
    function(*arguments)
    return part


def main():
    coast, out, icon_path, *wanted = sys.argv[1:]
    out = Path(out)
    (out / "Templates").mkdir(exist_ok=True)
    (out / "samples").mkdir(exist_ok=True)
    work = [job for job in jobs(coast, out, Path(icon_path)) if not wanted or job[0] in wanted]
    if not work:
        sys.exit(f"no such part: {' '.join(wanted)}")
    with Pool(os.cpu_count()) as pool:
        for done, part in enumerate(pool.imap_unordered(run, work), 1):
            print(f"{done} of {len(work)}: {part}", flush=True)


main()
