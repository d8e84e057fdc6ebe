// Curves that formulas of the weather share.
#pragma once

#include <algorithm>
#include <numbers>

namespace skyloft::feed {

inline double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

// 0 up to `low`, 1 from `high` on, without a corner between.
inline double SmoothStep(double low, double high, double value) {
  const double share = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return share * share * (3 - 2 * share);
}

}  // namespace skyloft::feed
