// Radar pictures of single sites: what falls around them, drawn in few exact colours that a client replaces.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/dates.h"
#include "feedserver/canvas.h"
#include "feedserver/sites.h"

namespace skyloft::feed {

enum class RadarProduct {
  Reflectivity,       // echoes of now, by intensity
  HourPrecipitation,  // inches of the last hour
  TotalPrecipitation  // inches of the last 24 hours
};

// What belongs to a picture of its own: one of every five minutes.
struct RadarRequest {
  RadarProduct product;
  const RadarSite* site;
};

// The request that a path stands for, "/radar/images/DS.p19r0/SI.ktwx/latest.gif"; nothing for another path
// or a site that is not known.
std::optional<RadarRequest> ReadRadarPath(std::string_view path);
std::string RadarPath(const RadarRequest& request);
// The moment that a picture shows: the last full five minutes.
Date RadarTime(Date now);

// 620 by 620 pixels, 100 to a degree of longitude and 140 to one of latitude. The ground is exactly (0, 0,
// 0), coasts, borders and range rings (0, 139, 0), texts and marks (205, 0, 0); no echo has one of these, nor
// (90, 90, 80) or (255, 75, 75). There is an echo within 230 km of the site wherever a hundredth of an inch
// an hour falls (or fell in the time of the product).
Canvas DrawRadar(const RadarRequest& request, Date now, std::uint64_t seed);
// Where a point lies on it; the site itself is at (322, 308).
Pixel RadarPixel(const RadarSite& site, Point point);

}  // namespace skyloft::feed
