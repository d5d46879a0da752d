"""The icon pictures: one photograph of a model each, 76 x 60 with a name strip."""

from dataclasses import dataclass

import numpy as np
from PIL import Image

from . import pixelfont
from .camera import Light, beam, develop, photograph, rays
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
    Cameo("Rifle squad", "RIFLE SQUAD", infantry.rifleman, "dusk", 2.75, (0, 0.2, 1.47), 22, 8),
    Cameo("Sapper", "SAPPER", infantry.sapper, "dusk", 2.6, (0.1, -0.04, 1.49), 24, 8),
    Cameo("Marksman", "MARKSMAN", infantry.marksman, "dusk", 2.95, (0.2, -0.3, 1.46), 26, 8),
    Cameo("Lancer", "LANCER", infantry.lancer, "dusk", 2.8, (0.15, -0.1, 1.5), 28, 8),
    Cameo("Field medic", "FIELD MEDIC", infantry.medic, "dusk", 2.5, (0.1, 0, 1.5), 24, 8),
    Cameo("Fennec scout", "FENNEC SCOUT", ground.scout, "sand", 4.7, (0, 0, 1.15)),
    Cameo("Basalt light tank", "BASALT TANK", ground.light_tank, "sand", 5.9, (0.5, 0, 0.85), 46, 22),
    Cameo("Rampart heavy tank", "RAMPART TANK", ground.heavy_tank, "sand", 6.9, (0.5, 0, 1.2), 34, 15),
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
    Cameo("Searchlight tower", "SEARCHLIGHT", buildings.searchlight, "night", 6.4, (0.3, 0.3, 2.2), -6, 16),
]

# Ground colour, its roughness, and the backdrop from top to bottom.
SCENES = {
    "dusk": (None, 0, ("7a3418", "e08a34", "5a2a16")),
    "night": ((0.05, 0.06, 0.075), 0.45, ("101a30", "24344c", "141c26")),
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
            x, y, z = p[..., 0], p[..., 1], p[..., 2]
            long_waves = F(0.035) * np.sin(x * F(3.1) + np.sin(y * F(2.3)))
            return z - long_waves - F(0.03) * np.sin(y * F(4.1) + x * F(1.7))
        return Solid(height, colour, 0.9)
    return Solid(
        lambda p: p[..., 2], colour, 0.0, pattern=lambda p: 1 + rough * 0.5 * _grain(p[..., 0], p[..., 1])
    )


def _backdrop(scene, size):
    stops = np.array([[int(s[i : i + 2], 16) for i in (0, 2, 4)] for s in SCENES[scene][2]], float)
    t = np.linspace(0, 2, size[1])
    shades = np.stack([np.interp(t, (0, 1, 2), stops[:, c]) for c in range(3)], axis=1)
    picture = np.repeat(shades[:, None], size[0], axis=1)
    y, x = np.mgrid[0 : size[1], 0 : size[0]] / size[0]
    if scene == "sky":
        cloud = _grain(x * 2.2 + 0.7, y * 5) * 0.7 + _grain(x * 5 + 3, y * 11) * 0.35 + (y - 0.32) * 0.8
        picture += (np.array([232, 236, 236]) - picture) * np.clip(cloud, 0, 1)[..., None] * 0.85
    if scene == "dusk":
        _burning_horizon(picture, x, y)
    return picture


def _burning_horizon(picture, x, y):
    """A low sun behind drifting smoke, and the ruins it shines past."""
    sun = np.exp(-(((x - 0.80) / 0.34) ** 2) - ((y - 0.36) / 0.26) ** 2)
    picture += sun[..., None] * np.array([70, 62, 34])
    smoke = _grain(x * 2.6 + y * 2.0 + 1.1, y * 7 - x) * 0.6 + _grain(x * 7 + 2, y * 13) * 0.3 + 0.25 - y
    picture += (np.array([74, 34, 22]) - picture) * np.clip(smoke, 0, 0.75)[..., None]
    roofs = 0.50 - 0.05 * np.round(2 * _grain(np.floor(x * 17) * 0.71, np.floor(x * 17) * 0.37))
    ruins = np.clip((y - roofs) * 60, 0, 1)
    picture += (np.array([66, 32, 20]) - picture) * ruins[..., None] * 0.75


def _lights(cameo):
    """The main lamp stands to the viewer's upper left; for soldiers lower, to get under their
    helmets, and with the evening sun behind them. At night there is only the moon."""
    spin = turn("z", cameo.azimuth - 38)
    if cameo.scene == "dusk":
        behind = turn("z", cameo.azimuth) @ np.array((-0.75, 0.85, 0.55), F)
        towards = tuple(spin @ np.array((0.55, -0.55, 0.42), F))
        return Light(towards, warm=(1.5, 1.32, 1.05), behind=tuple(behind), contour=(2.6, 1.45, 0.55))
    towards = tuple(spin @ np.array((0.25, -0.75, 0.8), F))
    if cameo.scene == "night":
        return Light(towards, warm=(0.62, 0.76, 1.05), sky=(0.24, 0.31, 0.45), bounce=(0.05, 0.06, 0.09))
    return Light(towards)


def portrait(cameo):
    size = (ICON[0] * FINER, ICON[1] * FINER)
    solids = cameo.model()
    grounded = SCENES[cameo.scene][0] is not None
    if grounded:
        solids = [_floor(cameo.scene), *solids]
    # The name strip covers the lowest rows, so the subject moves up by half of them.
    lift = STRIP / 2 / ICON[0] * cameo.width
    aim = (cameo.aim[0], cameo.aim[1], cameo.aim[2] - lift)
    start, way = rays(size, cameo.azimuth, cameo.elevation, aim, cameo.width, 0.42)
    shot = photograph(solids, size, start, way, _lights(cameo), reach=40)
    picture = develop(shot.colour, 0.82)
    back = _backdrop(cameo.scene, size)
    gone = np.isinf(shot.depth)
    picture[gone] = back[gone]
    if grounded:
        # Haze lets the floor fade into the backdrop behind the subject.
        far = cameo.width / 0.42 + cameo.width * 0.42
        haze = np.clip((shot.depth - far) / (cameo.width * 1.6), 0, 0.85)
        haze[gone] = 0
        picture += (back - picture) * np.where(shot.which == 0, haze, haze * 0.1)[..., None]
    if cameo.model is buildings.searchlight:
        foot, tip = np.array(buildings.LAMP_AT) + 0.5 * buildings.LAMP_WAY, buildings.LAMP_WAY * 8
        light = beam(shot, start, way, foot, foot + tip, 0.5, 1.7)
        picture += light[..., None] * np.array([255, 240, 185]) * 1.15
    return _finish(picture, cameo.strip)


def _finish(picture, text):
    picture = 128 + (picture - 122) * 1.1
    grey = picture.mean(axis=2, keepdims=True)
    picture = np.clip(grey + (picture - grey) * 1.18, 0, 255)
    h, w = ICON[1], ICON[0]
    small = picture.reshape(h, FINER, w, FINER, 3).mean(axis=(1, 3))
    # Rounded, not cut: a tone that should be whole may come out a hair below it on another machine.
    soft = Image.fromarray(np.rint(small).astype(np.uint8)).resize((w // 2, h // 2), Image.BOX)
    soft = np.array(soft.resize((w, h), Image.BICUBIC), float)
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
