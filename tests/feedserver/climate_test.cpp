#include "feedserver/climate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "feedserver/places.h"
#include "feedserver/weather.h"

namespace skyloft::feed {
namespace {

// Towns that the table of the climate is not made of. Source: U.S. Climate Normals 1991-2020 and records of
// the stations of these towns, National Centers for Environmental Information, NOAA; rounded.
struct Town {
  const char* name;
  const char* postal_code;
  double january_high, january_low, july_high, july_low;  // Fahrenheit
  double inches;                                          // of water a year
  double winter_share;                                    // of them from October to March
  double record_low, record_high;
};
constexpr Town kTowns[] = {{"Lawrence", "66044", 40, 20, 90, 68, 39.9, 0.31, -25, 114},
                           {"Miami", "33131", 76, 61, 91, 77, 67.4, 0.30, 27, 100},
                           {"Denver", "80202", 45, 19, 90, 60, 14.5, 0.25, -29, 105},
                           {"Seattle", "98101", 48, 38, 78, 57, 39.3, 0.76, 0, 108},
                           {"PortlandInMaine", "04101", 32, 16, 79, 60, 48.1, 0.52, -39, 103},
                           {"Phoenix", "85003", 68, 46, 107, 85, 7.2, 0.61, 16, 122},
                           {"Anchorage", "99501", 23, 11, 66, 53, 16.4, 0.39, -38, 90},
                           {"Honolulu", "96813", 80, 67, 88, 75, 16.4, 0.72, 52, 95},
                           {"SanJuan", "00901", 83, 72, 89, 78, 57, 0.44, 60, 98},
                           {"Chicago", "60601", 32, 19, 85, 66, 37.9, 0.38, -27, 105},
                           {"NewYork", "10001", 40, 28, 85, 70, 49.5, 0.47, -15, 106},
                           {"LosAngeles", "90012", 68, 49, 84, 65, 14.3, 0.91, 28, 113}};

class TownClimate : public testing::TestWithParam<Town> {
 protected:
  Point Middle() const { return FindPlace(GetParam().postal_code)->point; }

  // Thirty years, each of another seed: `check` takes the time and the seed.
  template <class Check>
  static void ForYears(int month, int days, int step_hours, Check check) {
    for (int year = 1990; year < 2020; ++year) {
      const Date first = MakeDate(year, month, 1);
      for (int hour = 0; hour < days * 24; hour += step_hours)
        check(DateAdd(DateUnit::Hours, hour, first), static_cast<std::uint64_t>(year));
    }
  }

  struct Extremes {
    double high, low;
  };
  // The means of the highs and of the lows of the days of a month, of the town's own standard time.
  Extremes UsualOf(int month) const {
    const Place place = *FindPlace(GetParam().postal_code);
    double highs = 0, lows = 0, high = 0, low = 0;
    int days = 0, hours = 0;
    ForYears(month, 30, 1, [&](Date local, std::uint64_t seed) {
      const double now = WeatherAt(place.point, GmtOf(place, local), seed).temperature;
      high = hours == 0 ? now : std::max(high, now);
      low = hours == 0 ? now : std::min(low, now);
      if (++hours < 24) return;
      highs += high, lows += low, ++days, hours = 0;
    });
    return {highs / days, lows / days};
  }
};

constexpr double kNear = 6;  // Fahrenheit

TEST_P(TownClimate, UsualHighsAndLowsAreThoseOfTheTown) {
  const Extremes january = UsualOf(1), july = UsualOf(7);
  EXPECT_NEAR(january.high, GetParam().january_high, kNear);
  EXPECT_NEAR(january.low, GetParam().january_low, kNear);
  EXPECT_NEAR(july.high, GetParam().july_high, kNear);
  EXPECT_NEAR(july.low, GetParam().july_low, kNear);
}

TEST_P(TownClimate, NormalsAreThoseOfTheTown) {
  const Normals january = NormalsAt(Middle(), MakeDate(2003, 1, 16, 18));
  const Normals july = NormalsAt(Middle(), MakeDate(2003, 7, 16, 18));
  EXPECT_NEAR(january.high, GetParam().january_high, kNear);
  EXPECT_NEAR(january.low, GetParam().january_low, kNear);
  EXPECT_NEAR(july.high, GetParam().july_high, kNear);
  EXPECT_NEAR(july.low, GetParam().july_low, kNear);
}

TEST_P(TownClimate, WaterOfTheYearIsThatOfTheTown) {
  constexpr int step = 3;  // hours
  double sum = 0, winter = 0;
  ForYears(1, 365, step, [&](Date now, std::uint64_t seed) {
    const double water = WaterAt(Middle(), now, seed) * step;
    const int month = PartsOf(now).month;
    sum += water;
    if (month >= 10 || month <= 3) winter += water;
  });
  EXPECT_LT(sum / 30, GetParam().inches * 1.6);
  EXPECT_GT(sum / 30, GetParam().inches / 1.6);
  EXPECT_NEAR(winter / sum, GetParam().winter_share, 0.12);
}

TEST_P(TownClimate, ThirtyYearsStayNearTheRecords) {
  constexpr double beyond = 12;  // Fahrenheit
  double high = -1000, low = 1000;
  for (const int month : {1, 7}) {
    ForYears(month, 62, 3, [&](Date now, std::uint64_t seed) {
      const double temperature = WeatherAt(Middle(), now, seed).temperature;
      high = std::max(high, temperature);
      low = std::min(low, temperature);
    });
  }
  EXPECT_GT(low, GetParam().record_low - beyond);
  EXPECT_LT(high, GetParam().record_high + beyond);
  // Nor is it always as usual.
  EXPECT_LT(low, GetParam().january_low - 7);
  EXPECT_GT(high, GetParam().july_high + 2);
}

TEST_P(TownClimate, HoursChangeAsRealOnesDo) {
  std::vector<double> changes;
  int wet = 0, hours = 0, foggy = 0;
  double wind = 0;
  for (std::uint64_t seed = 1; seed <= 3; ++seed) {
    double last = NAN;
    for (int hour = 0; hour < 365 * 24; ++hour) {
      const Weather weather = WeatherAt(Middle(), DateAdd(DateUnit::Hours, hour, MakeDate(2003, 1, 1)), seed);
      if (hour > 0) changes.push_back(std::abs(weather.temperature - last));
      last = weather.temperature;
      wet += weather.water > 0;
      foggy += weather.is_fog;
      wind += weather.wind_speed;
      ++hours;
    }
  }
  std::ranges::sort(changes);
  EXPECT_LT(changes[changes.size() * 99 / 100], 8);
  EXPECT_LT(changes.back(), 25);
  EXPECT_GT(changes[changes.size() / 2], 0.3);
  EXPECT_GT(100.0 * wet / hours, 0.7);
  EXPECT_LT(100.0 * wet / hours, 10.5);
  EXPECT_LT(100.0 * foggy / hours, 6);
  EXPECT_NEAR(wind / hours, 9, 4);
}

INSTANTIATE_TEST_SUITE_P(Towns, TownClimate, testing::ValuesIn(kTowns),
                         [](const auto& test) { return test.param.name; });

TEST(Climate, IsThatOfItsStations) {
  const struct {
    const char* name;
    Point point;
    double january, july, inches, winter_share;  // Fahrenheit, the mean of high and low; stations.csv
  } cases[] = {{"Fargo", {46.93, -96.81}, 9.5, 71.5, 24, 0.24},
               {"Atlanta", {33.63, -84.44}, 45, 81, 50.4, 0.50},
               {"Fresno", {36.78, -119.72}, 48, 83.5, 11, 0.87},
               {"Fairbanks", {64.80, -147.88}, -8, 63, 11.7, 0.34},
               {"Key West", {24.56, -81.76}, 70.5, 85.5, 40.6, 0.36}};
  for (const auto& c : cases) {
    const Climate climate = ClimateAt(c.point);
    EXPECT_NEAR(climate.mean - climate.swing, c.january, 3) << c.name;
    EXPECT_NEAR(climate.mean + climate.swing, c.july, 3) << c.name;
    EXPECT_NEAR(climate.inches, c.inches, 0.2 * c.inches) << c.name;
    EXPECT_NEAR(climate.winter_share, c.winter_share, 0.05) << c.name;
  }
}

TEST(Climate, CoolsWithTheHeightOfTheLand) {
  // Flagstaff and Phoenix; Leadville and the plains below it.
  EXPECT_LT(ClimateAt({35.2, -111.65}).mean, ClimateAt({33.45, -112.07}).mean - 20);
  EXPECT_LT(ClimateAt({39.25, -106.3}).mean, ClimateAt({39.25, -101}).mean - 8);
}

TEST(Climate, CoastsHaveMilderSeasonsThanTheInland) {
  EXPECT_LT(ClimateAt({40.8, -124.1}).swing + 8, ClimateAt({40.8, -115.8}).swing);  // Eureka, Elko
  EXPECT_LT(ClimateAt({41.3, -70.8}).swing + 4, ClimateAt({41.5, -93.7}).swing);  // the Vineyard, Des Moines
}

TEST(Climate, DesertsAreDryAndTheGulfCoastIsWet) {
  EXPECT_LT(ClimateAt({36.5, -116.9}).inches, 8);  // Death Valley
  EXPECT_LT(ClimateAt({33.6, -114.6}).inches, 6);  // Blythe
  EXPECT_GT(ClimateAt({30.2, -85.7}).inches, 50);  // Panama City
  EXPECT_GT(ClimateAt({30.4, -89.1}).inches, 50);  // Gulfport
}

TEST(Climate, HasNoStepAnywhere) {
  constexpr double step = 0.05;  // degrees
  const auto expect_near = [](Point first, Point second) {
    const Climate a = ClimateAt(first), b = ClimateAt(second);
    ASSERT_NEAR(a.mean, b.mean, 3) << second.latitude << ' ' << second.longitude;
    ASSERT_NEAR(a.swing, b.swing, 1.5) << second.latitude << ' ' << second.longitude;
    ASSERT_NEAR(a.winter_range, b.winter_range, 1.5) << second.latitude << ' ' << second.longitude;
    ASSERT_NEAR(a.summer_range, b.summer_range, 1.5) << second.latitude << ' ' << second.longitude;
    ASSERT_NEAR(std::log(a.inches), std::log(b.inches), 0.15) << second.latitude << ' ' << second.longitude;
    ASSERT_NEAR(a.winter_share, b.winter_share, 0.03) << second.latitude << ' ' << second.longitude;
  };
  for (int line = -179; line < 180; line += 3) {
    for (double way = -90; way + step <= 90; way += step) {
      expect_near({way, 1.0 * line}, {way + step, 1.0 * line});
      expect_near({line / 2.0, 2 * way}, {line / 2.0, 2 * way + step});
    }
  }
}

// Wherever one node of the net gives way to the next.
TEST(Climate, GoesOnSmoothlyBetweenTheNodesOfItsNet) {
  constexpr double step = 0.001;  // degrees
  for (double north = 25; north < 49; north += 0.5) {
    for (double west = -124; west < -70; west += 0.5) {
      const double middle = west + 0.3, between = north + 0.3;
      ASSERT_NEAR(ClimateAt({between, west - step}).mean, ClimateAt({between, west + step}).mean, 0.2)
          << between << ' ' << west;
      ASSERT_NEAR(ClimateAt({north - step, middle}).mean, ClimateAt({north + step, middle}).mean, 0.2)
          << north << ' ' << middle;
    }
  }
}

TEST(Climate, IsPossibleEverywhere) {
  for (double latitude = -90; latitude <= 90; latitude += 0.7) {
    for (double longitude = -180; longitude <= 180; longitude += 0.7) {
      const Climate climate = ClimateAt({latitude, longitude});
      ASSERT_GE(climate.swing, 0) << latitude << ' ' << longitude;
      ASSERT_GT(climate.winter_range, 1) << latitude << ' ' << longitude;
      ASSERT_GT(climate.summer_range, 1) << latitude << ' ' << longitude;
      ASSERT_GT(climate.inches, 1) << latitude << ' ' << longitude;
      ASSERT_LT(climate.inches, 250) << latitude << ' ' << longitude;
      ASSERT_GE(climate.winter_share, 0) << latitude << ' ' << longitude;
      ASSERT_LE(climate.winter_share, 1) << latitude << ' ' << longitude;
      ASSERT_GT(climate.mean - climate.swing, -35) << latitude << ' ' << longitude;
      ASSERT_LT(climate.mean + climate.swing, 100) << latitude << ' ' << longitude;
    }
  }
}

}  // namespace
}  // namespace skyloft::feed
