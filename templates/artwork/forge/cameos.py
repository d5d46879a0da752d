"""The icon pictures: one photograph of a model each, 76 x 60 with a name strip."""

from dataclasses import dataclass

import numpy as np
from PIL import Image

from . import pixelfont
from .camera import Light, develop, photograph, rays
from .canvas import ICON
from .models import air, buildings, ground, infantry, naval
from .solid import F, Solid, turn

FINER = 4  # photographed this many times larger
STRIP = 10  # rows of the name strip


@dataclass(frozen=True)
class Cameo:
    name: str  # in the editor's list
    strip: str  # on the picture
    model: callable
    scene: str
    width: float  # metres across the picture
    aim: tuple = (0, 0, 0.9)
    azimuth: float = 38
    elevation: float = 20

    @property
    def file(self):
        return f"cam_{self.model.__name__}.png".replace("_tank", "tank")


CAMEOS = [
    Cameo("Rifle squad", "RIFLE SQUAD", infantry.rifleman, "field", 2.5, (0.1, 0, 1.5), 24, 8),
    Cameo("Sapper", "SAPPER", infantry.sapper, "field", 2.5, (0.1, 0, 1.5), 24, 8),
    Cameo("Marksman", "MARKSMAN", infantry.marksman, "field", 2.5, (0.2, 0.1, 1.52), 30, 8),
    Cameo("Lancer", "LANCER", infantry.lancer, "field", 2.6, (0.15, -0.1, 1.54), 30, 8),
    Cameo("Field medic", "FIELD MEDIC", infantry.medic, "field", 2.5, (0.1, 0, 1.5), 24, 8),
    Cameo("Fennec scout", "FENNEC SCOUT", ground.scout, "sand", 4.7, (0, 0, 1.15)),
    Cameo("Basalt light tank", "BASALT TANK", ground.light_tank, "sand", 5.6, (0.3, 0, 0.95)),
    Cameo("Rampart heavy tank", "RAMPART TANK", ground.heavy_tank, "sand", 7.0, (0.45, 0, 1.25)),
    Cameo("Hailstorm rocket carrier", "HAILSTORM", ground.rocket_carrier, "sand", 6.2, (0.1, 0, 1.3)),
    Cameo("Flak carrier", "FLAK CARRIER", ground.flak, "sand", 6.2, (0.1, 0, 1.6)),
    Cameo("Listener mobile radar", "LISTENER", ground.listener, "sand", 6.3, (0, 0, 1.7)),
    Cameo("Supply truck", "SUPPLY TRUCK", ground.supply_truck, "sand", 5.9, (0, 0, 1.15)),
    Cameo("Bridge layer", "BRIDGE LAYER", ground.bridge_layer, "sand", 6.6, (0.2, 0, 0.8)),
    Cameo("Skimmer transport", "SKIMMER", ground.skimmer, "sea", 5.8, (0, 0, 1.1)),
    Cameo("Kestrel gunship", "KESTREL", air.gunship, "sky", 6.3, (-0.3, 0, 0.1), 42, 14),
    Cameo("Arrowhead strike jet", "ARROWHEAD", air.strike_jet, "sky", 6.4, (0.1, 0, 0.1), 40, 30),
    Cameo("Night Heron bomber", "NIGHT HERON", air.bomber, "sky", 7.6, (-0.2, 0, -0.2), 30, 32),
    Cameo("Cargo plane", "CARGO PLANE", air.cargo_plane, "sky", 8.4, (-0.4, 0, 0.2), 36, 20),
    Cameo("Patrol boat", "PATROL BOAT", naval.patrol_boat, "sea", 6.2, (0.1, 0, 1.15), 42, 18),
    Cameo("Cruiser", "CRUISER", naval.cruiser, "sea", 9.2, (0.2, 0, 1.2), 46, 18),
    Cameo("Submarine", "SUBMARINE", naval.submarine, "sea", 8.0, (-0.2, 0, 0.6), 44, 18),
    Cameo("Power plant", "POWER PLANT", buildings.power_plant, "base", 7.0, (0, 0, 1.15), 36, 26),
    Cameo("Barracks", "BARRACKS", buildings.barracks, "base", 6.9, (0.1, 0, 0.95), 36, 26),
    Cameo("Vehicle works", "VEHICLE WORKS", buildings.vehicle_works, "base", 7.4, (0, 0, 1.1), 36, 26),
    Cameo("Airfield", "AIRFIELD", buildings.airfield, "base", 8.0, (0, 0, 0.9), 36, 26),
    Cameo("Shipyard", "SHIPYARD", buildings.shipyard, "dock", 7.8, (0, 0.2, 1.2), 36, 26),
    Cameo("Fuel depot", "FUEL DEPOT", buildings.fuel_depot, "base", 6.9, (0, 0, 1.1), 36, 26),
    Cameo("Radar dome", "RADAR DOME", buildings.radar_dome, "base", 6.5, (0, 0, 1.3), 36, 26),
    Cameo("Gun tower", "GUN TOWER", buildings.gun_tower, "base", 5.8, (0.3, 0, 1.75), 38, 22),
    Cameo("Searchlight tower", "SEARCHLIGHT", buildings.searchlight, "base", 6.6, (0.1, 0, 2.15), 38, 20),
]

# Ground colour, its roughness, and the backdrop from top to bottom.
SCENES = {
    "field": ((0.10, 0.10, 0.06), 0.4, ("5a6a50", "2c3626", "11160f")),
    "sand": ((0.27, 0.195, 0.115), 0.5, ("b08a58", "7c5c38", "4c3820")),
    "base": ((0.125, 0.14, 0.12), 0.45, ("5c6c74", "3c4a50", "242e32")),
    "sea": ((0.025, 0.085, 0.11), 0.3, ("2c6a80", "164454", "0a2630")),
    "dock": ((0.025, 0.085, 0.11), 0.3, ("2c6a80", "164454", "0a2630")),
    "sky": (None, 0, ("3a6c98", "7ca4c0", "c0d0d4")),
}


def _grain(x, y):
    """Smooth irregular waves, about -1 to 1."""
    return (np.sin(x * 2.3 + np.sin(y * 1.9) * 1.4) + np.sin(y * 3.1 + np.sin(x * 2.7 + 1) * 1.2)
            + np.sin((x + y) * 6.7 + np.sin(x * 5.1 - y * 4.3)) * 0.6) / 2.6


def _floor(scene):
    colour, rough, _ = SCENES[scene]
    if scene in ("sea", "dock"):
        def height(p):
            return p[..., 2] - F(0.035) * np.sin(p[..., 0] * F(3.1) + np.sin(p[..., 1] * F(2.3))) - F(0.03) * np.sin(p[..., 1] * F(4.1) + p[..., 0] * F(1.7))
        return Solid(height, colour, 0.9)
    return Solid(lambda p: p[..., 2], colour, 0.0, pattern=lambda p: 1 + rough * 0.5 * _grain(p[..., 0], p[..., 1]))


def _backdrop(scene, size):
    stops = np.array([[int(s[i : i + 2], 16) for i in (0, 2, 4)] for s in SCENES[scene][2]], float)
    t = np.linspace(0, 2, size[1])
    shades = np.stack([np.interp(t, (0, 1, 2), stops[:, c]) for c in range(3)], axis=1)
    picture = np.repeat(shades[:, None], size[0], axis=1)
    if scene == "sky":
        y, x = np.mgrid[0 : size[1], 0 : size[0]] / size[0]
        cloud = np.clip(_grain(x * 2.2 + 0.7, y * 5) * 0.7 + _grain(x * 5 + 3, y * 11) * 0.35 + (y - 0.32) * 0.8, 0, 1)
        picture += (np.array([232, 236, 236]) - picture) * cloud[..., None] * 0.85
    return picture


def portrait(cameo):
    size = (ICON[0] * FINER, ICON[1] * FINER)
    solids = cameo.model()
    if SCENES[cameo.scene][0] is not None and cameo.scene != "field":
        solids = [_floor(cameo.scene), *solids]
    # The name strip covers the lowest rows, so the subject moves up by half of them.
    lift = STRIP / 2 / ICON[0] * cameo.width
    aim = (cameo.aim[0], cameo.aim[1], cameo.aim[2] - lift)
    start, way = rays(size, cameo.azimuth, cameo.elevation, aim, cameo.width, 0.42)
    # The lamp stands to the viewer's upper left; for soldiers lower, to get under their helmets.
    lamp = (0.55, -0.55, 0.42) if cameo.scene == "field" else (0.25, -0.75, 0.8)
    towards = turn("z", cameo.azimuth - 38) @ np.array(lamp, F)
    shot = photograph(solids, size, start, way, Light(towards=tuple(towards)), reach=40)
    picture = develop(shot.colour, 0.82)
    back = _backdrop(cameo.scene, size)
    gone = np.isinf(shot.depth)
    picture[gone] = back[gone]
    if SCENES[cameo.scene][0] is not None and cameo.scene != "field":
        # Haze lets the floor fade into the backdrop behind the subject.
        haze = np.clip((shot.depth - cameo.width / 0.42 - cameo.width * 0.42) / (cameo.width * 1.6), 0, 0.85)
        haze[gone] = 0
        picture += (back - picture) * np.where(shot.which == 0, haze, haze * 0.1)[..., None]
    return _finish(picture, cameo.strip)


def _finish(picture, text):
    picture = 128 + (picture - 122) * 1.1
    grey = picture.mean(axis=2, keepdims=True)
    picture = np.clip(grey + (picture - grey) * 1.18, 0, 255)
    h, w = ICON[1], ICON[0]
    small = picture.reshape(h, FINER, w, FINER, 3).mean(axis=(1, 3))
    soft = np.array(Image.fromarray(small.astype(np.uint8)).resize((w // 2, h // 2), Image.BOX).resize((w, h), Image.BICUBIC), float)
    small = np.clip(small + (small - soft) * 0.35, 0, 255)
    y, x = np.mgrid[0:h, 0:w]
    corner = np.hypot((x - w / 2) / w, (y - h / 2 + 4) / h)
    small *= 1 - 0.55 * np.clip(corner - 0.36, 0, 1)[..., None]
    strip = slice(h - STRIP, h)
    small[strip] = small[strip] * 0.16 + np.array([14, 17, 20])
    small[h - STRIP] = (168, 112, 40)
    small[h - STRIP - 1] *= 0.6
    pixelfont.write(small, text, w // 2, h - 7, (236, 232, 214), align="centre", shadow=(0, 0, 0))
    small[0, :] = small[0, :] * 0.5 + 60
    small[:, 0] = small[:, 0] * 0.5 + 50
    small[-1, :] *= 0.35
    small[:, -1] *= 0.45
    return small
