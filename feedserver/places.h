// The towns that the server knows, and the clock there.
#pragma once

#include <span>
#include <string_view>

#include "base/dates.h"
#include "feedserver/weather.h"

namespace skyloft::feed {

struct RadarSite {
  std::string_view code;  // four letters: "KTWX"
  Point point;
};

struct Place {
  std::string_view postal_code, city, state, state_name, county, area_code;
  Point point;
  int gmt_offset;            // standard time, hours; negative in the west
  bool has_daylight_time;    // whether the clocks change in summer
  std::string_view office;   // of the National Weather Service
  RadarSite radar;           // the nearest of the NEXRAD network
  std::string_view station;  // where the weather is observed
  int minute;                // of the observations past the full hour, past 20 and past 40
};

std::span<const Place> Places();
// Null when there is no such place. City and state are compared without case and outer blanks.
const Place* FindPlace(std::string_view postal_code);
const Place* FindPlace(std::string_view city, std::string_view state);
// Null when no place has it; case does not matter.
const RadarSite* FindRadarSite(std::string_view code);
// The place nearest to a point.
const Place& NearestPlace(Point point);

// Whether the clocks of a place show daylight time: from the second Sunday of March to the first Sunday of
// November, 2 AM on the clock. Source: Energy Policy Act of 2005, in force since 2007; taken for all years.
bool IsDaylightTime(const Place& place, Date gmt);
Date LocalTime(const Place& place, Date gmt);
// The moment at which the place's clock shows that time; of an hour that comes twice the first.
Date GmtOf(const Place& place, Date local);

}  // namespace skyloft::feed
