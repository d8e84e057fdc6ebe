// The projection of the maps: Lambert azimuthal equal-area on a sphere of 6370997 m, centre 50 N 100 W.
// Source: J. P. Snyder, Map Projections - A Working Manual, USGS Professional Paper 1395, 1987, chapter 24.
#pragma once

#include "feedserver/weather.h"

namespace skyloft::feed {

// Metres east and north of the centre.
struct MapPoint {
  double x = 0, y = 0;
};

MapPoint Project(Point point);
Point Unproject(MapPoint point);

}  // namespace skyloft::feed
