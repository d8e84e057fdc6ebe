#include "feedserver/samples.h"

#include <gtest/gtest.h>

#include <cmath>

namespace skyloft::feed {
namespace {

TEST(Samples, AreExactWhereTheQuantityRisesEvenly) {
  const Samples samples(30, 20, 10, [](Pixel pixel) { return 2 * pixel.x - 3 * pixel.y + 7; });
  EXPECT_NEAR(samples.At({10, 10}), 20 - 30 + 7, 1e-9);
  EXPECT_NEAR(samples.At({29, 1}), 58 - 3 + 7, 1e-9);
  std::vector<double> row(30);
  for (const int y : {0, 9, 10, 19}) {
    samples.ReadRow(y, row);
    for (int x = 0; x < 30; ++x)
      EXPECT_NEAR(row[static_cast<std::size_t>(x)], 2 * (x + 0.5) - 3 * (y + 0.5) + 7, 1e-9) << x << ' ' << y;
  }
}

TEST(Samples, FollowWidePeaksAndBendWithoutCorners) {
  const auto wave = [](Pixel pixel) { return std::sin(pixel.x / 25) * std::cos(pixel.y / 25); };
  const Samples samples(200, 160, 8, wave);
  std::vector<double> row(200);
  for (int y = 0; y < 160; ++y) {
    samples.ReadRow(y, row);
    for (int x = 2; x < 200; ++x) {
      const auto at = static_cast<std::size_t>(x);
      EXPECT_NEAR(row[at], wave({x + 0.5, y + 0.5}), 0.04) << x << ' ' << y;
      EXPECT_NEAR(row[at], samples.At({x + 0.5, y + 0.5}), 1e-9) << x << ' ' << y;
      // A second difference is the square of a pixel over 25 and never the jump that a corner makes.
      EXPECT_LT(std::abs(row[at] - 2 * row[at - 1] + row[at - 2]), 1.5 / 625) << x << ' ' << y;
    }
  }
}

TEST(Samples, AreNeverBeyondTheirCorners) {
  const Samples samples(64, 64, 8, [](Pixel pixel) { return pixel.x == 32 && pixel.y == 32 ? 1.0 : 0.0; });
  std::vector<double> row(64);
  double most = 0;
  for (int y = 0; y < 64; ++y) {
    samples.ReadRow(y, row);
    for (const double value : row) {
      EXPECT_GE(value, 0);
      most = std::max(most, value);
    }
  }
  EXPECT_GT(most, 0.4);
  EXPECT_LT(most, 1);
}

}  // namespace
}  // namespace skyloft::feed
