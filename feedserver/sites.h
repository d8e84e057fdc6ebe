// The radar sites and the forecast offices of the country.
#pragma once

#include <span>
#include <string_view>

#include "feedserver/weather.h"

namespace skyloft::feed {

struct RadarSite {
  std::string_view code;  // four letters: "KTWX"
  Point point;
};

struct Office {
  std::string_view code;  // three letters: "TOP"
  Point point;
};

// By their codes.
std::span<const RadarSite> RadarSites();
std::span<const Office> Offices();

// Null when there is none; case does not matter.
const RadarSite* FindRadarSite(std::string_view code);
// The nearest ones, wherever the borders run.
const RadarSite& NearestRadarSite(Point point);
const Office& NearestOffice(Point point);

}  // namespace skyloft::feed
