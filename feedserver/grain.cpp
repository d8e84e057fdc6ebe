#include "feedserver/grain.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace skyloft::feed {
namespace {

// Noise of -1 to 1 at a corner of a net.
double Corner(int column, int row, int cell) {
  std::uint32_t bits = static_cast<std::uint32_t>(column) * 73856093u ^
                       static_cast<std::uint32_t>(row) * 19349663u ^ static_cast<std::uint32_t>(cell);
  bits = (bits ^ (bits >> 15)) * 0x2C1B3C6Du;
  bits = (bits ^ (bits >> 12)) * 0x297A2D39u;
  return static_cast<double>(bits ^ (bits >> 15)) * 0x1p-31 - 1;
}

// Noise whose hills are `cell` pixels wide.
double Hills(int x, int y, int cell) {
  const int cells = kGrainSide / cell, left = x / cell, top = y / cell;
  const double across = static_cast<double>(x % cell) / cell, down = static_cast<double>(y % cell) / cell;
  const auto corner = [&](int i, int j) { return Corner((left + i) % cells, (top + j) % cells, cell); };
  return std::lerp(std::lerp(corner(0, 0), corner(1, 0), across),
                   std::lerp(corner(0, 1), corner(1, 1), across), down);
}

std::vector<double> MakeFactors() {
  std::vector<double> factors;
  for (int y = 0; y < kGrainSide; ++y) {
    for (int x = 0; x < kGrainSide; ++x)
      factors.push_back(std::exp2(1.3 * Hills(x, y, 16) + 0.9 * Hills(x, y, 8) + 0.5 * Hills(x, y, 4)));
  }
  return factors;
}

}  // namespace

double GrainAt(int x, int y) {
  static const std::vector<double> factors = MakeFactors();
  constexpr int mask = kGrainSide - 1;
  const int place = (y & mask) * kGrainSide + (x & mask);
  return factors[static_cast<std::size_t>(place)];
}

}  // namespace skyloft::feed
