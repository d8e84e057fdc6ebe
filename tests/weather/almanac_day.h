// The almanac of one place and day, for its tests.
#pragma once

#include <string>

#include "base/dates.h"
#include "weather/almanac.h"

namespace skyloft {

struct Day {
  std::string sunrise = "old", sunset = "old", moonrise = "old", moonset = "old";
  bool operator==(const Day&) const = default;
};
// Longitude as it is stored: negative west.
inline Day DayAt(double latitude, double longitude, double zone, int year, int month, int day) {
  Day d;
  GetRiseSetTimes(year, month, day, zone, latitude, -longitude, d.sunrise, d.sunset, d.moonrise, d.moonset);
  return d;
}

inline int MinuteOf(const std::string& time) {
  const DateParts parts = PartsOf(ReadDate(time));
  return parts.hour * 60 + parts.minute;
}

}  // namespace skyloft
