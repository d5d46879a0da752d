"""An emblem of our own for each side, embossed on a round medallion."""

import math

from .metal import Paint, both_ways, circle, hoop, polygon


def _around(cx, cy, radius, degrees):
    a = math.radians(degrees)
    return cx + radius * math.sin(a), cy - radius * math.cos(a)


def medallion(bench, cx, cy, radius, rim, well, glow):
    bench.shadow(circle(cx, cy, radius), 10, 0.8, (3, 5))
    bench.plate(circle(cx, cy, radius), rim, 6)
    bench.plate(hoop(cx, cy, radius - 8, radius - 11), Paint("20242a"), 1.5, sunken=True, outline=False)
    bench.rivets([_around(cx, cy, radius - 5.5, 15 + 30 * i) for i in range(12)], rim, 2.0)
    bench.plate(circle(cx, cy, radius - 13), well, 5, sunken=True)
    bench.glow(hoop(cx, cy, radius - 14.2, radius - 15.4), glow, 5, 0.5)


def beacon(bench, cx, cy, r, metal, enamel, glow):
    """Allied: a shield with three rising chevrons between swept fins."""
    for i, (reach, angle) in enumerate(((0.98, 62), (0.92, 84), (0.78, 106))):
        root_a, root_b = _around(cx, cy, r * 0.34, angle - 12), _around(cx, cy, r * 0.34, angle + 16)
        tip = _around(cx, cy, r * reach, angle)
        low = _around(cx, cy, r * (reach - 0.2), angle + 13)
        fin = [root_a, tip, low, root_b]
        for points in (fin, both_ways(fin, cx)):
            bench.shadow(polygon(points), 4, 0.5)
            bench.plate(polygon(points), metal, 2.5)
    shield = [(0, -0.84), (0.30, -0.66), (0.56, -0.62), (0.52, 0.16), (0.30, 0.56), (0, 0.86)]
    whole = lambda k: [
        (cx + x * r * k, cy + y * r * k) for x, y in shield + [(-x, y) for x, y in shield[-2:0:-1]]
    ]
    bench.shadow(polygon(whole(1)), 8, 0.7)
    bench.plate(polygon(whole(1.0)), metal, 4)
    bench.plate(polygon(whole(0.82)), enamel, 2, sunken=True)
    for k in range(3):
        y, w = cy + r * (-0.28 + 0.27 * k), r * (0.36 - 0.03 * k)
        chevron = [
            (cx, y - r * 0.16), (cx + w, y + r * 0.12), (cx + w, y + r * 0.27), (cx, y),
            (cx - w, y + r * 0.27), (cx - w, y + r * 0.12),
        ]
        bench.plate(polygon(chevron), metal, 2.2)
    bench.glow(circle(cx, cy - r * 0.58, 2.6), glow, 4, 1.0)


def foundry(bench, cx, cy, r, metal, enamel, glow):
    """Soviet: an anvil before a rising sun of sparks, inside a cogwheel."""
    teeth = []
    for i in range(14):
        for part, radius in ((-9, 0.80), (-6.4, 0.97), (6.4, 0.97), (9, 0.80)):
            teeth.append(_around(cx, cy, r * radius, i * 360 / 14 + part))
    bench.shadow(polygon(teeth), 6, 0.7)
    bench.plate(polygon(teeth), metal, 3)
    bench.plate(circle(cx, cy, r * 0.66), enamel, 3, sunken=True)
    for i in range(9):
        angle = -80 + 20 * i
        a, b = _around(cx, cy + r * 0.12, r * 0.66, angle - 4), _around(
            cx, cy + r * 0.12, r * 0.66, angle + 4
        )
        root = _around(cx, cy + r * 0.12, r * 0.22, angle)
        ray = [
            p if math.hypot(p[0] - cx, p[1] - cy) < r * 0.6 else (
                cx + (p[0] - cx) * 0.88, cy + (p[1] - cy) * 0.88
            )
            for p in (root, a, b)
        ]
        bench.plate(polygon(ray), Paint("c08a30", 0.03, 0.5), 1.5, outline=False)
    anvil = [
        (-0.54, -0.10), (0.34, -0.10), (0.34, -0.02), (0.52, -0.06), (0.36, 0.13), (0.16, 0.17), (0.13, 0.34),
        (0.32, 0.40), (0.32, 0.52), (-0.32, 0.52), (-0.32, 0.40), (-0.13, 0.34), (-0.16, 0.17), (-0.38, 0.12),
        (-0.50, 0.02),
    ]
    body = [(cx + x * r, cy + y * r) for x, y in anvil]
    bench.shadow(polygon(body), 6, 0.8)
    bench.plate(polygon(body), Paint("8c8078", 0.05, 0.6), 3)
    spark = [_around(cx, cy - r * 0.24, r * (0.22 if i % 2 == 0 else 0.07), 45 * i) for i in range(8)]
    bench.glow(polygon(spark), glow, 5, 0.9)


def watcher(bench, cx, cy, r, metal, enamel, glow):
    """Yuri: a slit eye in a three-lobed frame, thought spreading from it in rings."""
    lobes = [(_around(cx, cy, r * 0.42, 120 * i), r * 0.50) for i in range(3)]

    def trefoil(k):
        def draw(c):
            for (x, y), size in lobes:
                c.arc(x, y, size * k, 0, 2 * math.pi)
                c.fill()
            c.arc(cx, cy, r * 0.4 * k, 0, 2 * math.pi)
            c.fill()
        return draw

    bench.shadow(trefoil(1), 8, 0.7)
    bench.plate(trefoil(1.0), metal, 4)
    bench.plate(trefoil(0.84), enamel, 3, sunken=True)
    for i in range(3):
        x, y = lobes[i][0]
        for k in (0.30, 0.17):
            bench.plate(hoop(x, y, r * k + 1.6, r * k - 1.6), metal, 1.4, outline=False)
        bench.glow(circle(x, y, 2.4), glow, 4, 0.9)

    def lens(k):
        def draw(c):
            w, h = r * 0.56 * k, r * 0.36 * k
            c.move_to(cx - w, cy)
            c.curve_to(cx - w * 0.4, cy - h * 1.25, cx + w * 0.4, cy - h * 1.25, cx + w, cy)
            c.curve_to(cx + w * 0.4, cy + h * 1.25, cx - w * 0.4, cy + h * 1.25, cx - w, cy)
            c.fill()
        return draw

    bench.shadow(lens(1.05), 6, 0.8)
    bench.plate(lens(1.05), metal, 3)
    bench.plate(lens(0.84), Paint("100818", 0.02, 0.1), 2, sunken=True)
    bench.plate(circle(cx, cy, r * 0.235), Paint("6c2ca0", 0.02, 0.8), 8, dome=True)
    bench.glow(hoop(cx, cy, r * 0.20, r * 0.165), glow, 3, 0.35)
    slit = [(cx, cy - r * 0.2), (cx + r * 0.045, cy), (cx, cy + r * 0.2), (cx - r * 0.045, cy)]
    bench.fill(polygon(slit), "000000")
    bench.fill(circle(cx - r * 0.08, cy - r * 0.09, r * 0.035), "f0e8ff", 0.9)
