#include "feedserver/sun.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "feedserver/curves.h"

namespace skyloft::feed {

using std::numbers::pi;

double DaysOf(Date gmt) { return static_cast<double>(gmt.seconds) / 86400; }

double SolarHour(Point point, Date gmt) {
  const double day_share = DaysOf(gmt) - std::floor(DaysOf(gmt));
  return day_share * 24 + point.longitude / 15;
}

double SeasonOf(Point point, Date gmt) {
  const double year_share = (DaysOf(gmt) - 201.5 + 2) / 365.2425;  // day 2 is the first of January 1900
  return std::cos(2 * pi * year_share) * (point.latitude < 0 ? -1 : 1);
}

// Source of the declination: P. I. Cooper, The Absorption of Radiation in Solar Stills, Solar Energy 12,
// 1969.
double SunHeight(Point point, Date gmt) {
  const DateParts parts = PartsOf(gmt);
  const double day = static_cast<double>(DateDiff(DateUnit::Hours, MakeDate(parts.year, 1, 1), gmt)) / 24 + 1;
  const double declination = Radians(23.45 * std::sin(2 * pi * (284 + day) / 365));
  const double latitude = Radians(point.latitude);
  const double hour_angle = 2 * pi * (SolarHour(point, gmt) - 12) / 24;
  const double height = std::sin(latitude) * std::sin(declination) +
                        std::cos(latitude) * std::cos(declination) * std::cos(hour_angle);
  return std::asin(std::clamp(height, -1.0, 1.0)) * 180 / pi;
}

}  // namespace skyloft::feed
