"""Works out who hits whom: muzzles, headings and impacts come from the models on the field."""

from dataclasses import dataclass, replace

import numpy as np

from .camera import nearest
from .solid import F, fenced, length, turn

SPREAD = 0.8
TOLERANCE = 12  # degrees by which a gun may point past its target
CLIMB = {"shell": 0.0, "lob": 0.14, "rocket": 0.2}  # height of a flight's arc, in lengths of the flight


@dataclass(frozen=True)
class Shot:
    """Names of the pieces that fire and are fired at. A rocket is seen on its way, the others hit."""

    shooter: str
    target: str
    kind: str = "shell"
    rounds: int = 1
    reached: float = 1.0  # share of its way that it has flown


@dataclass(frozen=True)
class Flight:
    path: np.ndarray  # points in the world, from the muzzle on
    shot: Shot


class Body:
    """A piece's solids where they stand: at (3 numbers), heading and scale apply."""

    def __init__(self, piece, at):
        self.piece, self.at = piece, np.array(at, float)
        self.solids = fenced(piece.model())

    @property
    def spin(self):
        return turn("z", self.piece.heading)

    def distance(self, p):
        """Metres between world points and the body."""
        local = ((p - self.at) / self.piece.scale).astype(F) @ self.spin
        return nearest(self.solids, local) * F(self.piece.scale)

    def world(self, p):
        return self.spin @ np.asarray(p, float) * self.piece.scale + self.at

    def middle(self):
        weights = np.array([s.fence[1] for s in self.solids if s.fence])
        centres = np.array([s.fence[0] for s in self.solids if s.fence])
        return self.world((centres * weights[:, None]).sum(axis=0) / weights.sum())

    def muzzles(self):
        """Its guns as (point, direction) in the world."""
        return [(self.world(s.muzzle[0]), self.spin @ s.muzzle[1]) for s in self.solids if s.muzzle]


def _bearing(way):
    return np.degrees(np.arctan2(way[1], way[0]))


def face_targets(bodies, shots):
    """Turns everything that has no heading of its own so that its gun points at its first target."""
    for name, body in bodies.items():
        if body.piece.heading is not None:
            continue
        target = next(bodies[shot.target] for shot in shots if shot.shooter == name)
        body.piece = replace(body.piece, heading=0)
        gun = body.muzzles()[0][1]
        body.piece = replace(body.piece, heading=float(_bearing(target.at - body.at) - _bearing(gun)))


def flights(bodies, shots, land_height):
    """Every round's Flight. Raises ValueError for a shot that its gun does not point along, or that
    something else or a hill would stop."""
    found = []
    for shot in shots:
        shooter, target = bodies[shot.shooter], bodies[shot.target]
        guns = _guns(shooter, target, shot)
        for muzzle in guns:
            aside = (muzzle - np.mean(guns, axis=0)) * SPREAD  # guns side by side fire side by side
            path = _path(muzzle, _impact(muzzle, target, aside), CLIMB[shot.kind])
            _refuse_blocked(path, shot, bodies, land_height)
            found.append(Flight(path[: max(2, int(len(path) * shot.reached))], shot))
    return found


def _guns(shooter, target, shot):
    """The muzzles of the guns that bear best, as many as rounds are fired."""
    def off(gun):
        return abs((_bearing(gun[1]) - _bearing(target.at - gun[0]) + 180) % 360 - 180)

    guns = sorted(shooter.muzzles(), key=off)[: shot.rounds]
    if off(guns[-1]) > TOLERANCE:
        raise ValueError(f"{shot.shooter} points {off(guns[-1]):.0f} degrees past {shot.target}")
    return [point for point, _ in guns]


def _impact(muzzle, target, aside):
    """Where the straight way from the muzzle to the target's middle, or aside of it, meets its surface."""
    way = target.middle() + aside - muzzle
    span = np.sqrt(way @ way)
    travelled = 0.0
    for _ in range(90):
        gap = float(target.distance((muzzle + way * (travelled / span))[None])[0])
        travelled += gap
        if gap < 0.02 or travelled >= span:
            break
    return muzzle + way * (min(travelled, span) / span)


def _path(start, end, climb):
    share = np.linspace(0, 1, 25)[:, None]
    path = start + (end - start) * share
    path[:, 2:3] += 4 * climb * length(end - start) * share * (1 - share)
    return path


def _refuse_blocked(path, shot, bodies, land_height):
    share = np.linspace(0.02, 0.97, 160)
    steps = np.linspace(0, 1, len(path))
    p = np.stack([np.interp(share, steps, path[:, axis]) for axis in range(3)], axis=1)
    if (p[:, 2] < land_height(p[:, 0].astype(F), p[:, 1].astype(F))).any():
        raise ValueError(f"{shot.shooter} fires into the ground before {shot.target}")
    for name, body in bodies.items():
        if name in (
            shot.shooter, shot.target
        ) or np.hypot(*(p - body.at)[:, :2].T).min() > 12 * body.piece.scale:
            continue
        if body.distance(p).min() < 0.05:
            raise ValueError(f"{shot.shooter} hits {name} instead of {shot.target}")
