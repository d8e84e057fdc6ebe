// Chance that varies over the earth and in time, and travels as the weather of the middle latitudes does.
#pragma once

#include <array>
#include <cstdint>

#include "base/dates.h"
#include "feedserver/point.h"

namespace skyloft::feed {

// Degrees eastward a day: 40 kilometres an hour at 40 degrees north.
inline constexpr double kDrift = 11.25;

// The sizes of highs and lows; patterns of different channels have nothing to do with each other.
struct Pattern {
  std::uint64_t channel;
  double cell, hours;  // degrees; hours
};

// At one moment. A value is nearly normally distributed with the mean 0 and the variance 1, at every point
// alike: it mixes eight chances around, and is divided by what the mixture's variance is. Source of the
// lattice: K. Perlin, An Image Synthesizer, SIGGRAPH 1985.
class Noise {
 public:
  Noise(Date gmt, std::uint64_t seed);

  double Value(const Pattern& pattern, Point point) const { return Mix(pattern, point).Value(); }

  struct Slope {
    double value, east, north;  // the last two a degree of longitude and latitude
  };
  Slope SlopeAt(const Pattern& pattern, Point point) const;

 private:
  // A place between two corners of the lattice, and how both are mixed.
  struct Axis {
    explicit Axis(double place);
    std::int64_t corner;
    std::array<double, 2> share;
    double rise;      // of the upper share
    double variance;  // of the mixture
  };
  // The lattice is bent, so that nothing runs straight along it.
  struct Mixture {
    Axis x, y, t;
    double x_bend, y_bend;          // rise of x along the unbent y, and of y along the unbent x
    std::array<double, 4> corners;  // lower left, lower right, upper left, upper right; mixed in time
    double Value() const;
  };
  Mixture Mix(const Pattern& pattern, Point point) const;

  double days_;
  std::uint64_t seed_;
};

}  // namespace skyloft::feed
