#include "feedserver/sun.h"

#include <gtest/gtest.h>

namespace skyloft::feed {
namespace {

TEST(Sun, StandsWhereTheAlmanacHasIt) {
  EXPECT_NEAR(SunHeight({38.97, -95.24}, MakeDate(2003, 6, 21, 18, 21, 0)), 90 - 38.97 + 23.44, 0.5);
  EXPECT_NEAR(SunHeight({38.97, -95.24}, MakeDate(2003, 12, 21, 18, 21, 0)), 90 - 38.97 - 23.44, 0.5);
  EXPECT_LT(SunHeight({38.97, -95.24}, MakeDate(2003, 6, 21, 6, 0, 0)), 0);
  EXPECT_GT(SunHeight({70, 0}, MakeDate(2003, 6, 21, 0, 0, 0)), 0);  // the midnight sun
}

TEST(Sun, IsWarmestInJulyInTheNorthAndInJanuaryInTheSouth) {
  EXPECT_NEAR(SeasonOf({40, -100}, MakeDate(2003, 7, 20)), 1, 0.01);
  EXPECT_NEAR(SeasonOf({40, -100}, MakeDate(2003, 1, 19)), -1, 0.01);
  EXPECT_NEAR(SeasonOf({-40, -100}, MakeDate(2003, 1, 19)), 1, 0.01);
}

TEST(Sun, ClockIsFourMinutesEarlierForEachDegreeToTheWest) {
  EXPECT_DOUBLE_EQ(SolarHour({0, 0}, MakeDate(2003, 3, 7, 12, 0, 0)), 12);
  EXPECT_DOUBLE_EQ(SolarHour({0, -90}, MakeDate(2003, 3, 7, 18, 0, 0)), 12);
}

}  // namespace
}  // namespace skyloft::feed
