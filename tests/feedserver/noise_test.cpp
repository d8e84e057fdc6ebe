#include "feedserver/noise.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace skyloft::feed {
namespace {

constexpr Pattern kPattern{1, 14, 60};
const Date kNoon = MakeDate(2003, 3, 7, 12, 0, 0);

// Calls `check` with noises and points that have little to do with each other.
template <class Check>
void ForManyPoints(Check check) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    const Noise noise(DateAdd(DateUnit::Hours, 25 * seed, kNoon), seed);
    for (int i = 0; i < 100; ++i) check(noise, Point{-60 + 13.7 * (i % 10), -170 + 33.3 * (i / 10)});
  }
}

TEST(Noise, IsNearlyNormal) {
  double sum = 0, squares = 0;
  int count = 0, over_one = 0, over_two = 0;
  ForManyPoints([&](const Noise& noise, Point point) {
    const double value = noise.Value(kPattern, point);
    sum += value;
    squares += value * value;
    ++count;
    over_one += value > 1;
    over_two += value > 2;
  });
  EXPECT_NEAR(sum / count, 0, 0.03);
  EXPECT_NEAR(squares / count, 1, 0.05);
  EXPECT_NEAR(over_one, 0.159 * count, 0.015 * count);  // the shares of the normal distribution
  EXPECT_NEAR(over_two, 0.0228 * count, 0.005 * count);
}

TEST(Noise, VariesAtCornersAsMuchAsBetweenThem) {
  double at_corners = 0, between = 0;
  int count = 0;
  for (unsigned seed = 1; seed <= 4000; ++seed, ++count) {
    const Noise noise(Date{0}, seed);  // a corner of the time, too
    at_corners += std::pow(noise.Value(kPattern, {0, 0}), 2);
    between += std::pow(noise.Value(kPattern, {7, 7}), 2);
  }
  EXPECT_NEAR(at_corners / count, 1, 0.1);
  EXPECT_NEAR(between / count, 1, 0.1);
}

TEST(Noise, SlopeIsThatOfTheValues) {
  constexpr double step = 1e-4;
  ForManyPoints([&](const Noise& noise, Point point) {
    const auto value = [&](double north, double east) {
      return noise.Value(kPattern, {point.latitude + north, point.longitude + east});
    };
    const Noise::Slope slope = noise.SlopeAt(kPattern, point);
    EXPECT_EQ(slope.value, value(0, 0));
    EXPECT_NEAR(slope.east, (value(0, step) - value(0, -step)) / (2 * step), 1e-4);
    EXPECT_NEAR(slope.north, (value(step, 0) - value(-step, 0)) / (2 * step), 1e-4);
  });
}

// Forty kilometres an hour at forty degrees north are 11.3 degrees a day.
TEST(Noise, TravelsEastwardAtFortyKilometresAnHour) {
  const double degree = 111.2 * std::cos(40 * std::numbers::pi / 180);  // kilometres of longitude
  constexpr int hours = 6;
  double with_it = 0, staying = 0;
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    const Noise before(kNoon, seed), after(DateAdd(DateUnit::Hours, hours, kNoon), seed);
    for (int longitude = -120; longitude <= -70; ++longitude) {
      const double was = before.Value({2, 3, 60}, {40, 1.0 * longitude});
      with_it += std::pow(after.Value({2, 3, 60}, {40, longitude + 40.0 * hours / degree}) - was, 2);
      staying += std::pow(after.Value({2, 3, 60}, {40, 1.0 * longitude}) - was, 2);
    }
  }
  EXPECT_LT(with_it, 0.1 * staying);
}

TEST(Noise, SeedsAndChannelsHaveNothingToDoWithEachOther) {
  double seeds = 0, channels = 0;
  int count = 0;
  ForManyPoints([&](const Noise& noise, Point point) {
    const double value = noise.Value(kPattern, point);
    seeds += value * Noise(kNoon, static_cast<std::uint64_t>(1000 + count)).Value(kPattern, point);
    channels += value * noise.Value({2, 14, 60}, point);
    ++count;
  });
  EXPECT_NEAR(seeds / count, 0, 0.05);
  EXPECT_NEAR(channels / count, 0, 0.05);
}

}  // namespace
}  // namespace skyloft::feed
