#include "feedserver/wind.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace skyloft::feed {
namespace {

// Air whose pressure rises so many hectopascals in a hundred kilometres.
Pressure Slope(Point point, double eastward, double northward) {
  constexpr double inches = 1 / 33.8639, hundreds = 1.112;  // of a hectopascal; of kilometres in a degree
  const double shrink = std::cos(point.latitude * std::numbers::pi / 180);
  return {30, 0, 0, eastward * inches * hundreds * shrink, northward * inches * hundreds};
}

TEST(Wind, LeavesTheLowAtItsLeftInTheNorthAndAtItsRightInTheSouthAndTurnsTowardIt) {
  const struct {
    double latitude, eastward, northward, from;
  } cases[] = {{45, 0, 1, 70},   {45, 0, -1, 250},  {45, 1, 0, 160}, {45, -1, 0, 340},
               {-45, 0, 1, 290}, {-45, 0, -1, 110}, {-45, 1, 0, 20}, {-45, -1, 0, 200}};
  for (const auto& c : cases) {
    const Point point{c.latitude, -100};
    EXPECT_NEAR(WindOf(Slope(point, c.eastward, c.northward), point).from, c.from, 1e-6)
        << c.latitude << ' ' << c.eastward << ' ' << c.northward;
  }
}

// A hectopascal in a hundred kilometres is a wind of 8 metres a second at 45 degrees, above the ground.
TEST(Wind, IsTwoFifthsOfThatAboveTheGroundAndNeverAHurricane) {
  const Point point{45, -100};
  EXPECT_NEAR(WindOf(Slope(point, 1, 0), point).speed, 8.08 * 2.237 * 0.4, 0.1);
  EXPECT_NEAR(WindOf(Slope(point, 2, 0), point).speed, 2 * 8.08 * 2.237 * 0.4, 0.4);
  EXPECT_LT(WindOf(Slope(point, 20, 20), point).speed, 75);
  EXPECT_GT(WindOf(Slope(point, 20, 20), point).speed, 70);
}

TEST(Wind, IsThatOfThePressureAround) {
  constexpr double step = 1e-3;
  const Noise noise(MakeDate(2003, 3, 7, 18), 7);
  for (double latitude = -75; latitude <= 75; latitude += 12.5) {
    for (double longitude = -175; longitude < 180; longitude += 25) {
      const auto inches = [&](double north, double east) {
        return PressureAt(noise, {latitude + north, longitude + east}).inches;
      };
      const Pressure pressure = PressureAt(noise, {latitude, longitude});
      EXPECT_NEAR(pressure.north, (inches(step, 0) - inches(-step, 0)) / (2 * step), 1e-5);
      EXPECT_NEAR(pressure.east, (inches(0, step) - inches(0, -step)) / (2 * step), 1e-5);
    }
  }
}

TEST(Wind, HighsAndLowsAreWeakNearTheEquator) {
  double north = 0, equator = 0;
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    const Noise noise(MakeDate(2003, 3, 7), seed);
    north += std::pow(PressureAt(noise, {50, 0}).inches - 29.98, 2);
    equator += std::pow(PressureAt(noise, {0, 0}).inches - 29.98, 2);
  }
  EXPECT_NEAR(std::sqrt(north / 200), 0.17, 0.03);  // inches of mercury
  EXPECT_NEAR(std::sqrt(equator / 200), 0.06, 0.015);
}

}  // namespace
}  // namespace skyloft::feed
