#include "feedserver/noise.h"

#include <cmath>
#include <numbers>

#include "feedserver/sun.h"

namespace skyloft::feed {
namespace {

// Source: Steele, Lea and Flood, Fast Splittable Pseudorandom Number Generators, 2014 (the finalizer).
std::uint64_t Scatter(std::uint64_t bits) {
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9u;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBu;
  return bits ^ (bits >> 31);
}
std::uint64_t Scatter(std::uint64_t bits, std::int64_t step) {
  return Scatter(bits + static_cast<std::uint64_t>(step));
}

// The sum of four even chances is nearly normal. Source: J. O. Irwin, Biometrika 19, 1927.
double Chance(std::uint64_t bits) {
  constexpr double middle = 2 * 65535.0, deviation = 65536 / std::numbers::sqrt3;
  const std::uint64_t sum = (bits & 0xFFFF) + (bits >> 16 & 0xFFFF) + (bits >> 32 & 0xFFFF) + (bits >> 48);
  return (static_cast<double>(sum) - middle) / deviation;
}

}  // namespace

Noise::Noise(Date gmt, std::uint64_t seed) : days_(DaysOf(gmt)), seed_(Scatter(seed + 0x9E3779B97F4A7C15u)) {}

Noise::Axis::Axis(double place) : corner(static_cast<std::int64_t>(std::floor(place))) {
  const double u = place - static_cast<double>(corner);
  share[1] = u * u * (3 - 2 * u);
  share[0] = 1 - share[1];
  rise = 6 * u * (1 - u);
  variance = share[0] * share[0] + share[1] * share[1];
}

Noise::Mixture Noise::Mix(const Pattern& pattern, Point point) const {
  constexpr double bend = 0.35, waves = 1.9;  // cells; radians a cell
  const double x = (point.longitude - kDrift * days_) / pattern.cell, y = point.latitude / pattern.cell;
  Mixture mixture{Axis(x + bend * std::sin(waves * y)), Axis(y + bend * std::sin(waves * x)),
                  Axis(days_ * 24 / pattern.hours),     bend * waves * std::cos(waves * y),
                  bend * waves * std::cos(waves * x),   {}};
  const std::uint64_t bits = Scatter(seed_ + pattern.channel);
  for (const int later : {0, 1}) {
    const std::uint64_t at_time = Scatter(bits, mixture.t.corner + later);
    for (const int upper : {0, 1}) {
      const std::uint64_t in_row = Scatter(at_time, mixture.y.corner + upper);
      for (const int right : {0, 1}) {
        const double chance = Chance(Scatter(in_row, mixture.x.corner + right));
        mixture.corners[static_cast<std::size_t>(2 * upper + right)] +=
            mixture.t.share[static_cast<std::size_t>(later)] * chance;
      }
    }
  }
  return mixture;
}

double Noise::Mixture::Value() const {
  const double sum = y.share[0] * (x.share[0] * corners[0] + x.share[1] * corners[1]) +
                     y.share[1] * (x.share[0] * corners[2] + x.share[1] * corners[3]);
  return sum / std::sqrt(x.variance * y.variance * t.variance);
}

Noise::Slope Noise::SlopeAt(const Pattern& pattern, Point point) const {
  const Mixture mixture = Mix(pattern, point);
  const auto& [x, y, t, x_bend, y_bend, corners] = mixture;
  const double deviation = std::sqrt(x.variance * y.variance * t.variance);
  const double value = mixture.Value();
  // The quotient's rule: the mixture rises, and so does the deviation that it is divided by.
  const auto rise = [&](const Axis& axis, double difference) {
    const double deviation_rise = axis.rise * (axis.share[1] - axis.share[0]) / axis.variance;
    return axis.rise * difference / deviation - value * deviation_rise;
  };
  const double along_x =
      rise(x, y.share[0] * (corners[1] - corners[0]) + y.share[1] * (corners[3] - corners[2]));
  const double along_y =
      rise(y, x.share[0] * (corners[2] - corners[0]) + x.share[1] * (corners[3] - corners[1]));
  return {value, (along_x + along_y * y_bend) / pattern.cell, (along_x * x_bend + along_y) / pattern.cell};
}

}  // namespace skyloft::feed
