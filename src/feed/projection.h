// The map projection of the sectors: Lambert azimuthal equal-area, spherical form, centre 50 N 100 W, radius
// 6370997 m. Source: J. P. Snyder, Map Projections - A Working Manual, USGS Professional Paper 1395, 1987.
#pragma once

namespace skyloft {

struct MapPoint {
  double x, y;  // metres east and north of the centre
};
struct GeoPoint {
  double latitude, longitude;  // degrees, north and east positive
};

// Degrees become radians by the constant 0.017453292, with no more digits. There is no place for the point
// opposite to the centre.
MapPoint LocationToMap(double longitude, double latitude);
// The other way round; raises for a point off the map.
GeoPoint MapToLocation(double x, double y);
// The place of a location of the user.
MapPoint LocationOnMap(int slot);

}  // namespace skyloft
