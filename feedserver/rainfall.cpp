#include "feedserver/rainfall.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyloft::feed {
namespace {

// The value that a share of 0 to 0.5 of a normal distribution exceeds.
double ValueExceededBy(double share) {
  const double t = std::sqrt(-2 * std::log(share));
  return t -
         (2.515517 + t * (0.802853 + t * 0.010328)) / (1 + t * (1.432788 + t * (0.189269 + t * 0.001308)));
}

}  // namespace

double Rainfall::Rate(double wetness) const {
  const double excess = std::max(0.0, wetness - threshold);
  const double rate = strength * excess * excess;
  return rate < 0.01 ? 0 : rate;
}

Rainfall RainfallOf(double rate, double wet_rate) {
  const double share = std::clamp(rate / wet_rate, 0.002, 0.45);
  const double threshold = ValueExceededBy(share);
  const double density = std::exp(-threshold * threshold / 2) / std::sqrt(2 * std::numbers::pi);
  const double mean_square = (1 + threshold * threshold) * share - threshold * density;
  return {threshold, rate / mean_square};
}

}  // namespace skyloft::feed
