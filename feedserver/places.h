// The towns that the server knows, which are all that have a postal code, and the clock there.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"
#include "feedserver/sites.h"
#include "feedserver/weather.h"

namespace skyloft::feed {

// Its texts last as long as the program.
struct Place {
  std::string_view postal_code, city, state, state_name, county, area_code;
  Point point;
  int gmt_offset;           // standard time, hours; negative in the west
  bool has_daylight_time;   // whether the clocks change in summer
  std::string_view office;  // of the National Weather Service, the nearest one
  const RadarSite* radar;   // of the NEXRAD network, the nearest one but for a few towns
  int minute;               // of the observations past the full hour, past 20 and past 40
};

std::size_t PlaceCount();
Place PlaceAt(std::size_t index);  // below their number; by their postal codes
// Empty when there is no such place. Outer blanks do not count.
std::optional<Place> FindPlace(std::string_view postal_code);
// The lowest postal code of a town. Neither case nor blanks count, and "Saint", "Fort" and "Mount" may be
// written "St.", "Ft." and "Mt.".
std::optional<Place> FindPlace(std::string_view city, std::string_view state);
// The place nearest to a point; of several there the one with the lowest postal code.
Place NearestPlace(Point point);

// Towns that lie all over the county of a place, one in its middle first; the same for all places of a
// county.
std::vector<Place> TownsOverCounty(const Place& place);

// Where the weather of a place is observed: "Lawrence Municipal Airport". Most are made up.
std::string StationOf(const Place& place);

// Whether the clocks of a place show daylight time, which begins and ends at 2 AM on the clock: since 2007
// from the second Sunday of March to the first Sunday of November, before from the first Sunday of April to
// the last Sunday of October. The rule of 1987 is taken for the years before it too, and which places have
// daylight time is as of 2026. Sources: Energy Policy Act of 2005, section 110; Public Law 99-359 of 1986
// (Uniform Time Act).
bool IsDaylightTime(const Place& place, Date gmt);
Date LocalTime(const Place& place, Date gmt);
// The moment at which the place's clock shows that time; of an hour that comes twice the first.
Date GmtOf(const Place& place, Date local);

}  // namespace skyloft::feed
