// The map of the client: where it takes a point to lie on a picture of a sector.
#pragma once

#include <cmath>

namespace skyloft::feed {

struct ClientPoint {
  double x, y;
};

// Lambert azimuthal equal-area, centre 50 N 100 W, in metres (Snyder 1987, equations 22-4 and 24-2), with the
// client's radian.
inline ClientPoint ClientMap(double latitude, double longitude) {
  constexpr double radian = 0.017453292, radius = 6370997;
  const double phi = latitude * radian, centre = 50 * radian, lambda = (longitude + 100) * radian;
  const double cosine =
      std::sin(centre) * std::sin(phi) + std::cos(centre) * std::cos(phi) * std::cos(lambda);
  const double k = radius * std::sqrt(2 / (1 + cosine));
  return {k * std::cos(phi) * std::sin(lambda),
          k * (std::cos(centre) * std::sin(phi) - std::sin(centre) * std::cos(phi) * std::cos(lambda))};
}

}  // namespace skyloft::feed
