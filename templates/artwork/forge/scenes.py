"""The sample battlefields: what stands where, and who shoots at whom.

Places are given from a scene's origin in metres along its two axes: deep counts down to the left of the
picture (the way a heading of 0 looks), wide down to the right (a heading of 90).
"""

from functools import partial

import numpy as np

from .battlefield import Apron, Piece, Scene, to_ground, to_picture
from .gunnery import Shot
from .models import air, buildings, ground, naval, scenery

WALL = 3.0  # metres of one piece of wall


def _river(x, y):
    """A winding river from the upper right to the lower left."""
    along, across = (x - y) * 0.7071, (x + y) * 0.7071
    return 4.6 - np.abs(across - 5 + 3.2 * np.sin(along * 0.11 + 0.4))


def _bay(x, y):
    """Open sea in the lower left half, with a ragged beach."""
    along, across = (x + y) * 0.7071, (x - y) * 0.7071
    return across - 6 + 4 * np.sin(along * 0.13 + 0.8) + 2 * np.sin(along * 0.31)


class Place:
    """An origin on the ground, from which pieces are set down in metres."""

    def __init__(self, x, y, team="none"):
        self.at, self.team = to_ground(x, y), team

    def spot(self, deep, wide):
        return to_picture((self.at[0] + deep, self.at[1] + wide, 0))

    def piece(self, model, deep, wide, heading=0, scale=1.0, **more):
        return Piece(model, *self.spot(deep, wide), heading, scale, more.pop("team", self.team), **more)

    def wall(self, deep, wide, gate):
        """A wall round a yard of that size, open between the two numbers of gate on the side where
        deep is positive, or where wide is negative if the gate starts with None."""
        pieces = []
        for side in (-1, 1):
            for w in np.arange(-wide / 2 + WALL / 2, wide / 2, WALL):
                if side < 0 or gate[0] is None or not gate[0] < w < gate[1]:
                    pieces.append(self.piece(scenery.wall, side * deep / 2, w, 90))
            for d in np.arange(-deep / 2 + WALL / 2, deep / 2, WALL):
                if side > 0 or gate[0] is not None or abs(d) > gate[1]:
                    pieces.append(self.piece(scenery.wall, d, side * wide / 2, 0))
        return pieces


def _grove(models, count, seed, x, y, wide, high, water):
    random = np.random.RandomState(seed)
    found = []
    for _ in range(count):
        px, py = x + wide * random.standard_normal(), y + high * random.standard_normal()
        size = round(float(random.choice([0.95, 1.1, 1.2])), 2)
        gx, gy = to_ground(px, py)
        if water(np.float64(gx), np.float64(gy)) < -3.4:
            found.append(Piece(models[random.randint(len(models))], px, py, 90 * random.randint(4), size))
    return found


_FOREST = [scenery.conifer, scenery.oak, scenery.conifer]
_PALMS = [scenery.palm]


def _column(red):
    """The attackers, from the bridge on down the road."""
    guard = scenery.BRIDGE_DECK
    return [
        red.piece(ground.light_tank, 0, 3, None, level=guard, name="lead"),
        red.piece(ground.heavy_tank, 0, 21, None, name="first"),
        red.piece(ground.heavy_tank, 0, 31, -90, name="second"),
        red.piece(ground.flak, 0, 40, -90),
        red.piece(ground.bridge_layer, 0, 49, -90),
        red.piece(ground.supply_truck, 0, 58, -90),
        red.piece(ground.light_tank, -8, 17, None, name="right"),
        red.piece(ground.light_tank, -9, 27, -95, name="right rear"),
        red.piece(ground.light_tank, 8, 18, None, name="left"),
        red.piece(ground.light_tank, 9, 29, -84, name="left rear"),
        red.piece(ground.rocket_carrier, -15, 37, None, name="rockets"),
        red.piece(ground.rocket_carrier, -11, 45, None, name="more rockets"),
        red.piece(ground.scout, -17, 23, -100),
        red.piece(ground.scout, 15, 22, -80),
        red.piece(air.gunship, -22, 10, None, name="gunship", lift=85),
        red.piece(air.gunship, -29, 18, -100, lift=80),
    ]


def _bridgehead(green):
    """What holds the far end of the bridge."""
    return [
        green.piece(buildings.gun_tower, -7, -22, None, 1.4, name="tower"),
        green.piece(buildings.gun_tower, 7.5, -25, None, 1.4, name="left tower"),
        green.piece(ground.heavy_tank, 0, -23, None, name="gate keeper"),
        green.piece(ground.light_tank, 4, -33, 95, name="reserve"),
        green.piece(ground.light_tank, -8, -33, 80),
        green.piece(ground.flak, -14, -24, 60),
        green.piece(buildings.searchlight, 15, -36, 40, 1.3),
    ]


def _river_base(base):
    """The walled yard behind it."""
    return [
        base.piece(buildings.power_plant, -7, -11.5, 0, 1.5),
        base.piece(buildings.radar_dome, -7, -0.5, 0, 1.5),
        base.piece(buildings.fuel_depot, -7, 10.5, 0, 1.5, name="depot"),
        base.piece(buildings.vehicle_works, 6, -9, 0, 1.7),
        base.piece(buildings.barracks, 6.5, 3.5, 0, 1.4),
        base.piece(ground.rocket_carrier, 5, 11.5, None, name="battery"),
        base.piece(ground.rocket_carrier, 9, 14, 92),
        base.piece(ground.supply_truck, 15.5, -0.5, 20),
        base.piece(ground.listener, 1.5, 14, 90),
        *base.wall(28, 36, (-4.5, 4.5)),
        base.piece(buildings.gun_tower, 14, 18.5, 60, 1.2),
        base.piece(buildings.gun_tower, 14, -18.5, 0, 1.2),
    ]


def _river_woods():
    """Trees and boulders on both banks."""
    return [
        *_grove(_FOREST, 34, 4, 1120, 300, 90, 55, _river),
        *_grove(_FOREST, 26, 5, 90, 590, 60, 40, _river),
        *_grove(_FOREST, 26, 6, 500, 860, 90, 45, _river),
        *_grove(_FOREST, 16, 7, 900, 70, 80, 30, _river),
        *_grove(_FOREST, 10, 9, 1180, 905, 70, 20, _river),
        *_grove([scenery.boulder], 12, 8, 420, 700, 160, 70, _river),
    ]


def _crossing():
    """A column comes up from the lower right and forces the bridge; the base behind it fires back."""
    middle = (752, 524)
    red, green = Place(*middle, "red"), Place(*middle, "green")
    base = Place(352, 158, "green")
    far, near = red.spot(0, -90), red.spot(0, 90)
    return Scene(
        seed=101,
        ground=(0.23, 0.185, 0.115),
        grass=(0.125, 0.155, 0.06),
        water=_river,
        hills=0.8,
        roads=[[far, near], [base.spot(13, 0), base.spot(19.5, 0)], [red.spot(0, 52), (760, 1000)]],
        aprons=[Apron(*base.spot(0, 0), 29, 37)],
        pieces=[
            green.piece(scenery.bridge, 0, 0, 90, 1.0, level=0.0, team="none"),
            *_column(red),
            *_bridgehead(green),
            *_river_base(base),
            *_river_woods(),
        ],
        shots=[
            Shot("lead", "gate keeper"),
            Shot("gate keeper", "lead", rounds=2),
            Shot("first", "tower", rounds=2),
            Shot("right", "tower"),
            Shot("left", "left tower"),
            Shot("left tower", "left"),
            Shot("tower", "right", rounds=2),
            Shot("gunship", "tower"),
            Shot("rockets", "depot", "rocket", 2, 0.4),
            Shot("more rockets", "depot", "rocket", 1, 0.2),
            Shot("battery", "second", "rocket", 2, 0.8),
        ],
        bursts=[("tower", 17), ("right rear", 20), ("depot", 20)],
        smoke=[("depot", 170), ("tower", 120), ("right rear", 150), ("left", 70)],
    )


def _fleet(green):
    """Ships and hovercraft off the beach."""
    broadside, bow = partial(naval.cruiser, -82, -98), partial(naval.cruiser, 14, 160)
    return [
        green.piece(broadside, 42, -50, None, 1.5, name="flagship"),
        green.piece(broadside, 6, -84, None, 1.5, name="second ship"),
        green.piece(bow, 66, -14, 172, 1.5),
        green.piece(naval.patrol_boat, 33, -36, None, 1.2, name="boat"),
        green.piece(naval.patrol_boat, 27, -66, 120, 1.2), green.piece(naval.patrol_boat, 56, -26, 150, 1.2),
        green.piece(naval.submarine, 62, -48, 160, 1.2),
        green.piece(ground.skimmer, -1, -56, 92), green.piece(ground.skimmer, 9, -50, 96, name="skimmer"),
        green.piece(ground.skimmer, -9, -60, 85),
    ]


def _landed(green):
    """What has reached the beach, and what flies over it."""
    return [
        green.piece(ground.heavy_tank, 4, -37, None, name="first"),
        green.piece(ground.light_tank, -4, -33, None, name="left"),
        green.piece(ground.light_tank, 10, -32, None, name="right"),
        green.piece(ground.light_tank, -11, -39, 84),
        green.piece(ground.scout, -14, -31, 75),
        green.piece(ground.heavy_tank, -1, -44, 90),
        green.piece(air.gunship, -24, -32, None, name="gunship", lift=85),
        green.piece(air.bomber, -34, -52, 88, 1.3, lift=120),
    ]


def _gate(base):
    """What stands between beach and base."""
    return [
        base.piece(buildings.gun_tower, -9, -20, None, 1.4, name="tower"),
        base.piece(buildings.gun_tower, 9, -20, None, 1.4, name="right tower"),
        base.piece(ground.heavy_tank, 0, -19, None, name="gate keeper"),
        base.piece(ground.light_tank, 4, -14, -90),
        base.piece(ground.light_tank, -16, -22, -95, name="wreck"),
    ]


def _shore_base(base):
    """The walled yard, the airfield and what lies around them."""
    return [
        base.piece(buildings.vehicle_works, -6, -6, 0, 1.6),
        base.piece(buildings.power_plant, -7, 7, 0, 1.5),
        base.piece(buildings.barracks, 8, 8, 0, 1.4),
        base.piece(buildings.fuel_depot, 8, -7, 0, 1.4, name="depot"),
        base.piece(ground.rocket_carrier, 0.5, 0.5, None, name="battery"),
        base.piece(ground.listener, 1.5, 12, -90),
        *base.wall(30, 30, (None, 4.5)),
        base.piece(buildings.airfield, -27, 4, 0, 1.9),
        base.piece(buildings.radar_dome, -30, -12, 0, 1.5),
        base.piece(ground.flak, -19, -8, -100),
        base.piece(ground.supply_truck, -17.5, 12, 0),
        base.piece(buildings.searchlight, -20, -21, -80, 1.3),
    ]


def _palms():
    """Palms and boulders behind the beach."""
    return [
        *_grove(_PALMS, 24, 14, 1130, 870, 90, 40, _bay), *_grove(_PALMS, 22, 15, 700, 110, 80, 50, _bay),
        *_grove(_PALMS, 18, 16, 780, 860, 70, 45, _bay), *_grove(_PALMS, 12, 18, 1150, 60, 90, 30, _bay),
        *_grove([scenery.boulder], 14, 17, 760, 740, 60, 60, _bay),
    ]


def _landing():
    """Hovercraft and tanks come ashore under the guns of cruisers; a walled base lies inland."""
    base = Place(985, 610, "violet")
    green = Place(985, 610, "green")
    return Scene(
        seed=222,
        ground=(0.33, 0.265, 0.165),
        grass=(0.24, 0.21, 0.105),
        water=_bay,
        hills=0.7,
        roads=[
            [base.spot(0, -14), base.spot(0, -36)],
            [base.spot(0, -24), base.spot(-21, -24), base.spot(-21, 60)],
            [base.spot(-21, -24), base.spot(-90, -24)],
        ],
        aprons=[Apron(*base.spot(0, 0), 31, 31), Apron(*base.spot(-27, 4), 13, 13)],
        pieces=[*_fleet(green), *_landed(green), *_gate(base), *_shore_base(base), *_palms()],
        shots=[
            Shot("first", "gate keeper", rounds=2),
            Shot("left", "tower"),
            Shot("right", "right tower"),
            Shot("gate keeper", "first", rounds=2),
            Shot("right tower", "right", rounds=2),
            Shot("tower", "left"),
            Shot("gunship", "tower"),
            Shot("boat", "right tower", "lob"),
            Shot("flagship", "depot", "lob", 3),
            Shot("second ship", "tower", "lob", 3),
            Shot("battery", "skimmer", "rocket", 2, 0.75),
        ],
        bursts=[("depot", 30), ("tower", 18), ("wreck", 16), ("skimmer", 14)],
        smoke=[("depot", 210), ("tower", 110), ("wreck", 130), ("skimmer", 90)],
    )


SAMPLES = {"battlefield1.png": _crossing, "battlefield2.png": _landing}
