"""The sample battlefields: what stands where."""

import numpy as np

from .battlefield import Piece, Scene, to_ground
from .models import air, buildings, ground, naval, scenery


def _river(x, y):
    """A winding river from the upper right to the lower left."""
    along, across = (x - y) * 0.7071, (x + y) * 0.7071
    return 4.6 - np.abs(across - 5 + 3.2 * np.sin(along * 0.11 + 0.4))


def _bay(x, y):
    """Open sea in the lower left half, with a ragged beach."""
    along, across = (x + y) * 0.7071, (x - y) * 0.7071
    return across - 6 + 4 * np.sin(along * 0.13 + 0.8) + 2 * np.sin(along * 0.31)


def _grove(models, count, seed, x, y, wide, high, avoid):
    random = np.random.RandomState(seed)
    found = []
    for _ in range(count):
        px, py = x + wide * random.standard_normal(), y + high * random.standard_normal()
        size = round(float(random.choice([0.95, 1.1, 1.2])), 2)
        gx, gy = to_ground(px, py)
        if avoid(np.float64(gx), np.float64(gy)) < -3.4:
            found.append(Piece(models[random.randint(len(models))], px, py, 90 * random.randint(4), size))
    return found


_FOREST = [scenery.conifer, scenery.oak, scenery.conifer]

CROSSING = Scene(
    seed=101, ground=(0.23, 0.185, 0.115), grass=(0.125, 0.155, 0.06), water=_river,
    roads=[[(150, -20), (330, 140), (470, 300), (640, 430), (830, 560), (1010, 760), (1300, 900)], [(330, 140), (640, 110), (900, -20)], [(1010, 760), (760, 1000)]],
    pieces=[
        Piece(buildings.vehicle_works, 205, 300, 0, 1.9, "green"), Piece(buildings.power_plant, 470, 120, 0, 1.6, "green"),
        Piece(buildings.radar_dome, 690, 215, 0, 1.6, "green"), Piece(buildings.barracks, 110, 120, 0, 1.6, "green"),
        Piece(buildings.gun_tower, 470, 425, 20, 1.4, "green"), Piece(buildings.gun_tower, 700, 330, 20, 1.4, "green"),
        Piece(buildings.searchlight, 330, 470, 10, 1.3, "green"),
        Piece(scenery.bridge, 752, 512, 90, 1.0),
        Piece(ground.light_tank, 560, 372, 0, 1, "green"), Piece(ground.light_tank, 400, 350, -20, 1, "green"), Piece(ground.flak, 590, 290, 10, 1, "green"),
        Piece(ground.rocket_carrier, 330, 215, 0, 1, "green"), Piece(ground.supply_truck, 270, 95, 0, 1, "green"), Piece(ground.listener, 800, 130, 0, 1, "green"),
        Piece(ground.heavy_tank, 860, 590, 180, 1, "red"), Piece(ground.heavy_tank, 985, 640, 200, 1, "red"), Piece(ground.light_tank, 800, 690, 180, 1, "red"),
        Piece(ground.light_tank, 930, 740, 180, 1, "red"), Piece(ground.rocket_carrier, 1120, 790, 190, 1, "red"), Piece(ground.rocket_carrier, 1010, 860, 180, 1, "red"),
        Piece(ground.scout, 1060, 560, 170, 1, "red"), Piece(ground.scout, 720, 790, 200, 1, "red"), Piece(ground.bridge_layer, 1200, 700, 180, 1, "red"),
        Piece(ground.supply_truck, 1210, 850, 180, 1, "red"), Piece(ground.light_tank, 1140, 640, 160, 1, "red"),
        Piece(air.gunship, 900, 420, 150, 1, "red", 70), Piece(air.gunship, 1050, 450, 160, 1, "red", 80), Piece(air.strike_jet, 380, 600, -60, 1.2, "green", 110),
        *_grove(_FOREST, 30, 4, 1130, 330, 90, 60, _river), *_grove(_FOREST, 26, 5, 90, 560, 60, 50, _river), *_grove(_FOREST, 22, 6, 560, 890, 70, 40, _river), *_grove(_FOREST, 12, 7, 900, 60, 50, 25, _river),
        *_grove([scenery.boulder], 14, 8, 640, 600, 300, 120, _river),
    ],
    bursts=[(690, 520, 30), (520, 352, 20), (905, 572, 13), (760, 600, 16)], smoke=[(540, 350, 170), (700, 505, 120), (1000, 640, 130)],
    shots=[(840, 570, 715, 480), (965, 625, 860, 520), (500, 395, 640, 480), (730, 315, 850, 420), (890, 380, 790, 470), (1040, 400, 930, 480)], hills=0.8)

LANDING = Scene(
    seed=222, ground=(0.33, 0.265, 0.165), grass=(0.24, 0.21, 0.105), water=_bay,
    roads=[[(1300, 330), (1050, 330), (860, 330), (700, 250), (600, 120), (560, -20)], [(860, 330), (960, 520), (1120, 720), (1300, 840)]],
    pieces=[
        Piece(buildings.airfield, 1040, 190, 0, 2.0, "violet"), Piece(buildings.fuel_depot, 760, 120, 0, 1.6, "violet"), Piece(buildings.power_plant, 1160, 470, 0, 1.6, "violet"),
        Piece(buildings.vehicle_works, 1000, 670, 0, 1.7, "violet"), Piece(buildings.gun_tower, 700, 370, -20, 1.4, "violet"), Piece(buildings.gun_tower, 850, 520, -20, 1.4, "violet"),
        Piece(buildings.gun_tower, 640, 190, -20, 1.4, "violet"), Piece(buildings.radar_dome, 1180, 60, 0, 1.5, "violet"), Piece(buildings.searchlight, 930, 430, -20, 1.3, "violet"),
        Piece(naval.cruiser, 170, 430, 170, 1.5, "green"), Piece(naval.cruiser, 380, 800, 160, 1.5, "green"), Piece(naval.patrol_boat, 330, 560, 190, 1.2, "green"),
        Piece(naval.patrol_boat, 150, 640, 180, 1.2, "green"), Piece(naval.submarine, 110, 830, 150, 1.2, "green"), Piece(naval.patrol_boat, 560, 900, 170, 1.2, "green"),
        Piece(ground.skimmer, 480, 400, 180, 1, "green"), Piece(ground.skimmer, 560, 520, 180, 1, "green"), Piece(ground.skimmer, 400, 330, 190, 1, "green"),
        Piece(ground.light_tank, 610, 430, 180, 1, "green"), Piece(ground.light_tank, 690, 560, 180, 1, "green"), Piece(ground.heavy_tank, 760, 640, 170, 1, "green"),
        Piece(ground.light_tank, 830, 420, 0, 1, "violet"), Piece(ground.heavy_tank, 770, 290, -10, 1, "violet"), Piece(ground.flak, 940, 320, 0, 1, "violet"),
        Piece(ground.rocket_carrier, 960, 560, 0, 1, "violet"), Piece(ground.supply_truck, 1190, 320, 90, 1, "violet"), Piece(ground.listener, 880, 230, 0, 1, "violet"),
        Piece(air.strike_jet, 560, 700, 150, 1.2, "green", 110), Piece(air.bomber, 400, 250, 170, 1.3, "green", 120), Piece(air.gunship, 900, 330, 0, 1, "violet", 80),
        *_grove([scenery.palm], 26, 14, 1150, 830, 90, 60, _bay), *_grove([scenery.palm], 16, 15, 480, 80, 60, 40, _bay), *_grove([scenery.palm], 14, 16, 900, 840, 60, 50, _bay),
        *_grove([scenery.boulder], 18, 17, 800, 420, 260, 150, _bay),
    ],
    bursts=[(705, 340, 24), (845, 500, 16), (795, 118, 34), (470, 385, 12)], smoke=[(790, 110, 200), (850, 490, 130), (1010, 640, 120)],
    shots=[(640, 410, 700, 350), (720, 540, 830, 470), (230, 400, 520, 260), (680, 330, 600, 420), (800, 620, 900, 590), (450, 770, 700, 600)], hills=0.7)

SAMPLES = {"battlefield1.png": CROSSING, "battlefield2.png": LANDING}
