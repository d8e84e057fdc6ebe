#include "feedserver/places.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "base/values.h"

namespace skyloft::feed {
namespace {

// Towns of every zone of the country. Sources: United States Census Bureau gazetteer (places and counties),
// National Weather Service (offices), NEXRAD site list of the Radar Operations Center (radars).
constexpr std::array<Place, 12> kPlaces = {{
    {"66044",
     "Lawrence",
     "KS",
     "Kansas",
     "Douglas",
     "785",
     {38.9717, -95.2353},
     -6,
     true,
     "TOP",
     {"KTWX", {38.997, -96.233}},
     "Lawrence Municipal Airport",
     4},
    {"33131",
     "Miami",
     "FL",
     "Florida",
     "Miami-Dade",
     "305",
     {25.7647, -80.1893},
     -5,
     true,
     "MFL",
     {"KAMX", {25.611, -80.413}},
     "Miami International Airport",
     15},
    {"80202",
     "Denver",
     "CO",
     "Colorado",
     "Denver",
     "303",
     {39.7525, -104.9995},
     -7,
     true,
     "BOU",
     {"KFTG", {39.787, -104.546}},
     "Denver International Airport",
     11},
    {"98101",
     "Seattle",
     "WA",
     "Washington",
     "King",
     "206",
     {47.6114, -122.3348},
     -8,
     true,
     "SEW",
     {"KATX", {48.195, -122.496}},
     "Seattle Boeing Field",
     0},
    {"04101",
     "Portland",
     "ME",
     "Maine",
     "Cumberland",
     "207",
     {43.6606, -70.2589},
     -5,
     true,
     "GYX",
     {"KGYX", {43.891, -70.256}},
     "Portland International Jetport",
     7},
    {"85003",
     "Phoenix",
     "AZ",
     "Arizona",
     "Maricopa",
     "602",
     {33.4511, -112.0774},
     -7,
     false,
     "PSR",
     {"KIWA", {33.289, -111.670}},
     "Phoenix Sky Harbor Airport",
     14},
    {"99501",
     "Anchorage",
     "AK",
     "Alaska",
     "Anchorage",
     "907",
     {61.2165, -149.8775},
     -9,
     true,
     "AFC",
     {"PAHG", {60.726, -151.351}},
     "Anchorage Merrill Field",
     17},
    {"96813",
     "Honolulu",
     "HI",
     "Hawaii",
     "Honolulu",
     "808",
     {21.3136, -157.8500},
     -10,
     false,
     "HFO",
     {"PHMO", {21.133, -157.180}},
     "Honolulu International Airport",
     13},
    {"00901",
     "San Juan",
     "PR",
     "Puerto Rico",
     "San Juan",
     "787",
     {18.4655, -66.1057},
     -4,
     false,
     "SJU",
     {"TJUA", {18.116, -66.078}},
     "Luis Munoz Marin Airport",
     18},
    {"60601",
     "Chicago",
     "IL",
     "Illinois",
     "Cook",
     "312",
     {41.8858, -87.6229},
     -6,
     true,
     "LOT",
     {"KLOT", {41.604, -88.085}},
     "Chicago Midway Airport",
     9},
    {"10001",
     "New York",
     "NY",
     "New York",
     "New York",
     "212",
     {40.7506, -73.9972},
     -5,
     true,
     "OKX",
     {"KOKX", {40.866, -72.864}},
     "Central Park",
     2},
    {"90012",
     "Los Angeles",
     "CA",
     "California",
     "Los Angeles",
     "213",
     {34.0614, -118.2385},
     -8,
     true,
     "LOX",
     {"KVTX", {34.412, -119.179}},
     "Los Angeles Downtown",
     5},
}};

template <class Matches>
const Place* FindFirst(Matches matches) {
  const auto* found = std::find_if(kPlaces.begin(), kPlaces.end(), matches);
  return found == kPlaces.end() ? nullptr : found;
}

// Grows with the distance on the sphere: the square of the chord.
double ChordSquared(Point a, Point b) {
  constexpr double radian = std::numbers::pi / 180;
  const double north = std::sin((a.latitude - b.latitude) * radian / 2);
  const double east = std::sin((a.longitude - b.longitude) * radian / 2);
  return north * north + std::cos(a.latitude * radian) * std::cos(b.latitude * radian) * east * east;
}

// The `number`-th Sunday of a month, midnight.
Date SundayOf(int year, int month, int number) {
  const int weekday = PartsOf(MakeDate(year, month, 1)).weekday;
  return MakeDate(year, month, 1 + (8 - weekday) % 7 + 7 * (number - 1));
}

}  // namespace

std::span<const Place> Places() { return kPlaces; }

const Place* FindPlace(std::string_view postal_code) {
  return FindFirst([&](const Place& place) { return place.postal_code == TrimText(postal_code); });
}

const Place* FindPlace(std::string_view city, std::string_view state) {
  const std::string wanted_city = UpperCase(TrimText(city)), wanted_state = UpperCase(TrimText(state));
  return FindFirst([&](const Place& place) {
    return UpperCase(place.city) == wanted_city && place.state == wanted_state;
  });
}

const RadarSite* FindRadarSite(std::string_view code) {
  const Place* const place =
      FindFirst([&](const Place& candidate) { return candidate.radar.code == UpperCase(code); });
  return place ? &place->radar : nullptr;
}

const Place& NearestPlace(Point point) {
  return *std::ranges::min_element(kPlaces, {},
                                   [&](const Place& place) { return ChordSquared(place.point, point); });
}

bool IsDaylightTime(const Place& place, Date gmt) {
  if (!place.has_daylight_time) return false;
  const Date standard = DateAdd(DateUnit::Hours, place.gmt_offset, gmt);
  const int year = PartsOf(standard).year;
  const Date begin = DateAdd(DateUnit::Hours, 2, SundayOf(year, 3, 2));
  const Date end = DateAdd(DateUnit::Hours, 1, SundayOf(year, 11, 1));  // 2 AM of daylight time
  return begin <= standard && standard < end;
}

Date LocalTime(const Place& place, Date gmt) {
  return DateAdd(DateUnit::Hours, place.gmt_offset + (IsDaylightTime(place, gmt) ? 1 : 0), gmt);
}

Date GmtOf(const Place& place, Date local) {
  const Date standard = DateAdd(DateUnit::Hours, -place.gmt_offset, local);
  const Date daylight = DateAdd(DateUnit::Hours, -1, standard);
  return LocalTime(place, daylight) == local ? daylight : standard;
}

}  // namespace skyloft::feed
