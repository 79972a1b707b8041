#!/usr/bin/env python3
"""Writes the sample outlines beside it: root and tip of a wing as sync DAT files.

The sections are symmetric and cambered four-digit ones from their published formulas, chord 1, from
the trailing edge over the top to the leading edge and back below. Sync points stand at the trailing
edge, at a quarter of the chord above and below, and at the leading edge.
"""

from math import atan, cos, pi, sin, sqrt
from pathlib import Path


def section(camber, place, thickness, segments):
    """Points of a four-digit section with a closed trailing edge; `segments` on each side."""
    def half(x):
        return 5 * thickness * (0.2969 * sqrt(x) - 0.1260 * x - 0.3516 * x ** 2
                                + 0.2843 * x ** 3 - 0.1036 * x ** 4)

    def mean(x):
        if camber == 0:
            return 0.0, 0.0
        side, run = (place, x) if x < place else (1 - place, 1 - x)
        y = camber / side ** 2 * (2 * side * run - run ** 2)
        return y, 2 * camber / side ** 2 * (place - x)

    def point(x, side):
        y, slope = mean(x)
        angle = atan(slope)
        return x - side * half(x) * sin(angle), y + side * half(x) * cos(angle)

    stations = [(1 - cos(pi * i / segments)) / 2 for i in range(segments + 1)]
    top = [point(x, 1) for x in reversed(stations)]
    bottom = [point(x, -1) for x in stations[1:-1]]
    return [(round(x, 6) + 0.0, round(y, 6) + 0.0) for x, y in top + bottom]


def record(first, second=""):
    return f"{first:<21.21}{second:<21.21}\r\n"


def text(value):
    return f"{value:.15G}"


def write(name, description, points, sync):
    lines = [record("Fichero DAT(KMR)2002", description), record("SLATEWORKS")]
    lines += [record(text(x), text(y)) for x, y in points + points[:1]]
    lines += [record("Puntos Sincronismo"), record("")]
    lines += [record(text(points[i][0]), text(points[i][1])) for i in sync]
    path = Path(__file__).parent / name
    path.write_bytes("".join(lines).encode("cp1252"))


def main():
    for name, description, shape, segments in (
            ("raiz.dat", "Raiz 2412", (0.02, 0.4, 0.12), 24),
            ("punta.dat", "Punta 0009", (0.0, 0.0, 0.09), 18)):
        points = section(*shape, segments)
        quarter = min(range(segments), key=lambda i: abs(points[i][0] - 0.25))
        write(name, description, points, [0, quarter, segments, 2 * segments - quarter])


if __name__ == "__main__":
    main()
