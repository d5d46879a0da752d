"""The side overlays: consoles of metal around the icons, the screenshot and the side's emblem."""

from dataclasses import dataclass

import numpy as np
from scipy import ndimage

from . import contours, emblems, gauges, pixelfont
from .canvas import ICON, ICONS_AT, SCREEN, SHOT, SHOT_AT, hexrgb
from .contours import DECK
from .metal import Bench, Paint, circle, line, outline, polygon


@dataclass(frozen=True)
class Look:
    contour: type  # outlines of the big plates
    gauges: type  # instruments on them
    base: Paint
    deep: Paint
    trim: Paint
    well: Paint
    enamel: Paint
    glow: str
    ink: str  # lettering
    screen: str  # colour of an empty screen
    emblem: callable
    title: str
    short: str

    @property
    def corner(self):
        """How the corners of small plates are made."""
        return self.contour.corner


LOOKS = {
    "all": Look(
        contours.Cut, gauges.Bars, Paint("566c84", 0.05, 0.4), Paint("34465a", 0.05, 0.3),
        Paint("a4b4c4", 0.04, 0.6), Paint("1c2a3a", 0.04, 0.1), Paint("244a78", 0.03, 0.3), "7cd8ff",
        "d8ecfa", "1a4058", emblems.beacon, "ALLIED THEATRE COMMAND", "ALLIED",
    ),
    "sov": Look(
        contours.Stepped, gauges.Dials, Paint("7c2a20", 0.045, 0.4, "a89a8c"),
        Paint("47423e", 0.05, 0.35, "8c8680"), Paint("b08040", 0.03, 0.5), Paint("241412", 0.03, 0.1),
        Paint("7c1c14", 0.04, 0.3), "ffa030", "f8dcb0", "4e2c06", emblems.foundry, "SOVIET FRONT DIRECTORATE",
        "SOVIET",
    ),
    "psy": Look(
        contours.Flowing, gauges.Waves, Paint("5a3e78", 0.03, 0.5), Paint("3a2850", 0.035, 0.4),
        Paint("b094c4", 0.03, 0.6), Paint("1c1028", 0.03, 0.1), Paint("48206c", 0.03, 0.4), "a4ff60",
        "ecdcff", "40185c", emblems.watcher, "YURI OBSERVATORY", "YURI",
    ),
}

BAR = 26  # height of the title bar


def overlay(side, count):
    look, bench = LOOKS[side], Bench(SCREEN)
    _surround(bench, look)
    _deck(bench, look)
    _tower(bench, look, count)
    _screen(bench, look)
    _badge(bench, look)
    _title(bench, look)
    for number, (x, y) in enumerate(ICONS_AT[count], 1):
        _slot(bench, look, x, y, number)
    return bench.finished()


def _studs(bench, look, places):
    """Rivets, screws or glowing beads, as the side has them."""
    if look.corner == "round":
        for x, y in places:
            bench.plate(circle(x, y, 2.6), look.trim, 2, outline=True)
            bench.glow(circle(x, y, 1.1), look.glow, 2, 0.4)
    else:
        bench.rivets(
            places, look.trim if look.corner == "step" else look.base, 2.6 if look.corner == "step" else 2.0
        )


def _surround(bench, look):
    """Title bar, the rails at the sides and the sill."""
    w, h = SCREEN
    bench.plate(polygon([(0, 20), (14, 34), (14, h), (0, h)]), look.deep, 2.5)
    bench.plate(polygon([(w, 20), (w - 14, 34), (w - 14, h), (w, h)]), look.deep, 2.5)
    bench.plate(lambda c: c.rectangle(0, 506, w, 14) or c.fill(), look.deep, 3)
    bench.plate(lambda c: c.rectangle(0, 0, w, BAR) or c.fill(), look.base, 4)
    bench.plate(lambda c: c.rectangle(8, 6, w - 16, 13) or c.fill(), look.well, 2, sunken=True)
    for shape in look.contour.extras():
        bench.plate(shape, look.deep, 3)
    for y in range(52, 320, 24):
        _studs(bench, look, [(7, y)])
    for y in range(52, 240, 24):
        _studs(bench, look, [(w - 7, y)])
    for x in (20, 562):
        look.gauges.strip(bench, look, x)
    bench.glow(line([(14, 23.5), (236, 23.5)], 1), look.glow, 2, 0.3)
    bench.glow(line([(564, 23.5), (786, 23.5)], 1), look.glow, 2, 0.3)


def _title(bench, look):
    shape = look.contour.title
    bench.shadow(polygon(shape), 8, 0.7, (0, 3))
    bench.plate(polygon(shape), look.base, 4)
    bench.plate(outline(262, 9, 276, 25, 5, look.corner), look.well, 2.5, sunken=True)
    bench.text(look.title, 400, 18, look.ink, spacing=2)
    bench.glow(line([(270, 38.5), (530, 38.5)], 1.2), look.glow, 3, 0.45)
    _studs(bench, look, [(253, 9), (547, 9), (257, 33), (543, 33)])


def _deck(bench, look):
    """The console's lower half with its instruments."""
    bench.plate(polygon(look.contour.deck), look.base, 4)
    bench.plate(outline(*gauges.PANEL, 5, look.corner), look.well, 2.5, sunken=True)
    look.gauges.panel(bench, look)


def _tower(bench, look, count):
    """The console's upper half around the icon slots."""
    xs = [x for x, _ in ICONS_AT[count]]
    left, right = xs[0] - 16, min(xs[-1] + ICON[0] + 16, 534)
    bench.plate(polygon(look.contour.tower(left, right)), look.deep, 4)
    bench.plate(outline(left, 360, right - left, DECK - 354, 9, look.corner), look.base, 4)
    centre = (xs[0] + xs[-1] + ICON[0]) // 2
    bench.text("SPECIAL UNITS", centre, 366, look.ink, spacing=2)
    for s in (-1, 1):
        bench.glow(
            line([(centre + s * 66, 369.5), (centre + s * ((right - left) // 2 - 16), 369.5)], 1.4),
            look.glow,
            3,
            0.4,
        )
    y = 380 + ICON[1] + 14
    for number, x in enumerate(xs, 1):
        bench.plate(outline(x + 18, y - 6, ICON[0] - 36, 12, 3, look.corner), look.well, 2, sunken=True)
        look.gauges.count(bench, look, x + ICON[0] // 2, y, number)
    _studs(bench, look, [(left + 8, 452), (right - 8, 452), (left + 8, 378), (right - 8, 378)])


def _slot(bench, look, x, y, number):
    w, h = ICON
    bench.plate(outline(x - 5, y - 5, w + 10, h + 10, 4, look.corner), look.trim, 2.5)
    bench.plate(
        lambda c: c.rectangle(x - 2, y - 2, w + 4, h + 4) or c.fill(),
        Paint("0c0e10"),
        2,
        sunken=True,
        outline=False,
    )
    _dark_glass(bench, look, x, y, w, h, 6)
    bench.text(str(number), x + w // 2 + 1, y + 18, look.glow, spacing=1)
    bench.text("EMPTY", x + w // 2, y + 33, look.ink, font=pixelfont.TINY, spacing=2)
    _corners(bench, look, x + 4, y + 4, w - 8, h - 8, 8)


def _dark_glass(bench, look, x, y, w, h, hatch):
    """An unlit display: dark, finely ruled, with a faint hatch."""
    rows, columns = np.mgrid[0:h, 0:w]
    colour = np.array(hexrgb(look.screen), np.float32)
    middle = np.exp(-(((columns - w / 2) / w) ** 2 + ((rows - h / 2) / h) ** 2) * 5)
    tone = 0.30 + 0.55 * middle
    tone *= np.where(rows % 3 == 2, 0.72, 1)
    tone += np.where((rows + columns) % (hatch * 2) == 0, 0.10, 0)
    bench.rgb[y : y + h, x : x + w] = colour * tone[..., None] + 4
    bench.covered[y : y + h, x : x + w] = True


def _corners(bench, look, x, y, w, h, reach):
    for sx, px in ((1, x), (-1, x + w)):
        for sy, py in ((1, y), (-1, y + h)):
            bench.fill(
                line(
                    [
                        (px + sx * reach, py + 0.5 * sy),
                        (px + 0.5 * sx, py + 0.5 * sy),
                        (px + 0.5 * sx, py + sy * reach),
                    ],
                    1,
                ),
                look.glow,
                0.8,
            )


def _screen(bench, look):
    """The battlefield monitor. The large frame hides its upper left corner."""
    (x, y), (w, h) = SHOT_AT, SHOT
    bench.shadow(outline(x - 14, y - 12, w + 26, h + 24, 12, look.corner), 8, 0.6)
    bench.plate(polygon(look.contour.tab), look.deep, 3)
    # Behind the monitor's corners: no gap between it and its neighbours lets the map show.
    for left, top, width, height in (
        (x + w, y - 11, 11, 12), (x + w, y + h - 12, 11, 19), (x - 14, y + h - 12, 13, 19)
    ):
        bench.plate(lambda c: c.rectangle(left, top, width, height) or c.fill(), look.deep, 1, outline=False)
    bench.plate(outline(x - 14, y - 14, w + 28, h + 26, 12, look.corner), look.base, 5)
    bench.plate(outline(x - 6, y - 6, w + 12, h + 12, 5, look.corner), look.trim, 3)
    bench.plate(
        lambda c: c.rectangle(x - 2, y - 2, w + 4, h + 4) or c.fill(),
        Paint("0c0e10"),
        2,
        sunken=True,
        outline=False,
    )
    bench.text("BATTLEFIELD", 716, 243, look.ink, spacing=2)
    bench.glow(circle(664, 246, 2.2), look.glow, 3, 0.6)
    bench.glow(circle(768, 246, 2.2), look.glow, 3, 0.6)
    _dark_glass(bench, look, x, y, w, h, 13)
    middle = (x + w // 2, y + h // 2 + 20)
    look.gauges.scope(bench, look, *middle)
    noise = ndimage.gaussian_filter(bench.random.standard_normal((h, w)), (0.3, 1.2))
    bench.rgb[y : y + h, x : x + w] += (noise / noise.std() * 2.2)[..., None]
    bench.text("NO SIGNAL", middle[0], middle[1] + 36, look.ink, spacing=3)
    _corners(bench, look, x + 8, y + 8, w - 16, h - 16, 16)
    _studs(
        bench,
        look,
        [
            (x - 9.5, y + h - 30), (x - 9.5, y + h - 6), (x + w + 9.5, y + 2), (x + w + 9.5, y + h - 6),
            (x + w + 9.5, y + h // 2), (x + w // 2, y + h + 9),
        ],
    )


def _badge(bench, look):
    """Emblem and name plate in the lower left corner."""
    base = look.contour.badge
    bench.shadow(polygon(base), 8, 0.6)
    bench.plate(polygon(base), look.base, 5)
    emblems.medallion(bench, 110, 398, 82, look.deep, look.well, look.glow)
    look.emblem(bench, 110, 398, 64, look.trim, look.enamel, look.glow)
    bench.shadow(outline(24, 484, 172, 28, 7, look.corner), 6, 0.7)
    bench.plate(outline(24, 484, 172, 28, 7, look.corner), look.trim, 3)
    bench.plate(outline(29, 488, 162, 20, 5, look.corner), look.well, 2, sunken=True)
    words = pixelfont.mask(look.short, pixelfont.CAPS, 6)
    bench.text(look.short, 110, 495, look.ink, spacing=6)
    half = words.shape[1] // 2 + 12
    for s in (-1, 1):
        bench.glow(line([(110 + s * half, 498.5), (110 + s * 72, 498.5)], 1.4), look.glow, 3, 0.4)
