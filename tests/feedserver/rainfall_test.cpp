#include "feedserver/rainfall.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace skyloft::feed {
namespace {

// Wetness after the normal distribution: what falls of it on the average, and in which share of the time.
struct Outcome {
  double mean, share;
};
Outcome OutcomeOf(const Rainfall& rainfall) {
  constexpr double step = 0.001;
  Outcome outcome{0, 0};
  for (double wetness = -6; wetness < 8; wetness += step) {
    const double density = std::exp(-wetness * wetness / 2) / std::sqrt(2 * std::numbers::pi);
    outcome.mean += rainfall.Rate(wetness) * density * step;
    outcome.share += (wetness > rainfall.threshold) * density * step;
  }
  return outcome;
}

TEST(Rainfall, HasTheSumAndTheShareOfWetHoursThatAreAskedFor) {
  const struct {
    double rate, wet_rate;
  } cases[] = {{0.006, 0.03}, {0.0045, 0.05}, {0.0008, 0.05}, {0.012, 0.06}, {0.0002, 0.06}};
  for (const auto& c : cases) {
    const Outcome outcome = OutcomeOf(RainfallOf(c.rate, c.wet_rate));
    EXPECT_NEAR(outcome.share, c.rate / c.wet_rate, 0.05 * c.rate / c.wet_rate) << c.rate;
    EXPECT_LT(outcome.mean, 1.02 * c.rate) << c.rate;
    EXPECT_GT(outcome.mean, 0.85 * c.rate) << c.rate;  // what is below a hundredth does not fall
  }
}

TEST(Rainfall, IsAHundredthOfAnInchAtLeast) {
  const Rainfall rainfall{1, 0.25};
  EXPECT_EQ(rainfall.Rate(0.5), 0);
  EXPECT_EQ(rainfall.Rate(1.19), 0);
  EXPECT_NEAR(rainfall.Rate(1.21), 0.011, 0.0001);
  EXPECT_NEAR(rainfall.Rate(3), 1, 1e-12);
}

TEST(Rainfall, StaysWithinBoundsWhereItHardlyEverOrAlwaysRains) {
  const Rainfall desert = RainfallOf(1e-6, 0.06);
  EXPECT_GT(desert.threshold, 2.5);
  const Rainfall forest = RainfallOf(0.5, 0.03);  // more than the wet hours could bring
  EXPECT_GT(forest.threshold, 0);
  EXPECT_LT(forest.threshold, 0.2);
}

}  // namespace
}  // namespace skyloft::feed
