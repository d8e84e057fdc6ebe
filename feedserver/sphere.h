// Distances on the sphere, for those who look for what is nearest.
#pragma once

#include <cmath>
#include <numbers>

#include "feedserver/weather.h"

namespace skyloft::feed {

constexpr double kRadian = std::numbers::pi / 180;  // of a degree

// A point as a vector of length 1 from the middle of the earth.
struct Direction {
  double x, y, z;
};

inline Direction DirectionOf(Point point) {
  const double latitude = point.latitude * kRadian, longitude = point.longitude * kRadian;
  return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
          std::sin(latitude)};
}

// The cosine of the angle between them: 1 for the same point, -1 for the other side of the earth.
inline double Nearness(const Direction& a, const Direction& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

}  // namespace skyloft::feed
