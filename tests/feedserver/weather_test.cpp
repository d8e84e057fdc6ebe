#include "feedserver/weather.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace skyloft::feed {
namespace {

const Date kNoon = MakeDate(2003, 3, 7, 18, 0, 0);

TEST(Weather, WindChillIsThatOfThePublishedChart) {
  // The chart of the National Weather Service, whole degrees.
  const struct {
    double temperature, wind, chill;
  } cases[] = {{40, 5, 36}, {30, 10, 21}, {20, 30, 1}, {0, 15, -19}, {-45, 60, -98}};
  for (const auto& c : cases) EXPECT_NEAR(WindChill(c.temperature, c.wind), c.chill, 0.51) << c.temperature;
  EXPECT_EQ(WindChill(51, 20), 51);
  EXPECT_EQ(WindChill(20, 2), 20);
}

TEST(Weather, HeatIndexIsThatOfThePublishedChart) {
  const struct {
    double temperature, humidity, index;
  } cases[] = {{80, 40, 80}, {90, 70, 106}, {100, 50, 118}, {86, 90, 105}, {110, 40, 136}};
  for (const auto& c : cases)
    EXPECT_NEAR(HeatIndex(c.temperature, c.humidity), c.index, 0.6) << c.temperature;
  EXPECT_EQ(HeatIndex(79, 90), 79);
  EXPECT_EQ(HeatIndex(95, 39), 95);
}

TEST(Weather, HumidityFollowsFromTheDewPoint) {
  EXPECT_EQ(RelativeHumidity(50, 50), 100);
  // 30 and 20 degrees Celsius: 2339 over 4246 pascals in the steam tables
  EXPECT_NEAR(RelativeHumidity(86, 68), 55.1, 0.2);
}

// Calls `check` with the weather of points all over the earth, through a year.
template <class Check>
void ForManyWeathers(Check check) {
  for (int latitude = -90; latitude <= 90; latitude += 15) {
    for (int longitude = -180; longitude <= 180; longitude += 24) {
      for (int month = 1; month <= 12; ++month) {
        const Point point{latitude + 0.3 * (latitude < 0 ? 1 : -1), static_cast<double>(longitude)};
        check(WeatherAt(point, MakeDate(2003, month, 3 + month, month * 2 - 1), 7));
      }
    }
  }
}

TEST(Weather, StaysWithinItsLimits) {
  ForManyWeathers([](const Weather& weather) {
    EXPECT_GE(weather.temperature, -60);
    EXPECT_LE(weather.temperature, 125);
    EXPECT_LE(weather.dew_point, weather.temperature);
    EXPECT_GT(weather.humidity, 0);
    EXPECT_LE(weather.humidity, 100);
    EXPECT_GT(weather.wind_from, 0);
    EXPECT_LE(weather.wind_from, 360);
    EXPECT_GE(weather.wind_speed, 0);
    EXPECT_LE(weather.wind_speed, 75);
    EXPECT_GT(weather.pressure, 29);
    EXPECT_LT(weather.pressure, 31);
    EXPECT_GE(weather.visibility, 0.1);
    EXPECT_LE(weather.visibility, 10);
    EXPECT_TRUE(std::isfinite(weather.apparent));
  });
}

TEST(Weather, WhatFallsFitsTheTemperature) {
  int falls = 0, dry = 0;
  ForManyWeathers([&](const Weather& weather) {
    ++(weather.fall == Fall::None ? dry : falls);
    EXPECT_EQ(weather.fall == Fall::None, weather.rain == 0 && weather.snow == 0);
    EXPECT_TRUE(weather.snow == 0 || weather.temperature <= 37);
    EXPECT_TRUE(weather.fall != Fall::Rain || weather.temperature > 32.5);
    EXPECT_TRUE(weather.fall != Fall::FreezingRain || weather.temperature <= 32.5);
    EXPECT_TRUE(!weather.is_fog || weather.visibility < 2);
  });
  EXPECT_GT(falls, 50);
  EXPECT_GT(dry, 5 * falls / 2);  // fair weather is the rule
}

TEST(Weather, WaterIsThatOfRainAndSnow) {
  for (int latitude = 20; latitude <= 70; ++latitude) {
    for (int longitude = -130; longitude <= -60; longitude += 5) {
      const Point point{static_cast<double>(latitude), static_cast<double>(longitude)};
      const Weather weather = WeatherAt(point, kNoon, 8);
      const double snow_ratio = weather.temperature < 20 ? 15 : 10;  // inches of snow to one of water
      EXPECT_NEAR(weather.water, weather.rain + weather.snow / snow_ratio, 1e-12)
          << latitude << ' ' << longitude;
      EXPECT_EQ(weather.water, WaterAt(point, kNoon, 8));
    }
  }
}

TEST(Weather, WhatFallsMoistensTheAirAndNoAirIsMoisterThanThatOfTheWarmestSeas) {
  int soaked = 0;
  ForManyWeathers([&](const Weather& weather) {
    EXPECT_LE(weather.dew_point, 84);
    if (weather.water < 0.05) return;
    ++soaked;
    EXPECT_GE(weather.dew_point, std::min(84.0, weather.temperature - 5) - 1e-9);
  });
  EXPECT_GT(soaked, 20);
}

TEST(Weather, SummersOfTheGulfCoastAreDampAndThoseOfTheDesertDry) {
  const auto mean_dew_point = [](Point point) {
    double sum = 0;
    int hours = 0;
    for (std::uint64_t seed = 1; seed <= 10; ++seed) {
      for (int hour = 0; hour < 30 * 24; hour += 5, ++hours)
        sum += WeatherAt(point, DateAdd(DateUnit::Hours, hour, MakeDate(2003, 7, 1)), seed).dew_point;
    }
    return sum / hours;
  };
  // The dew points of July in NOAA's hourly normals: Mobile 73, Topeka 67, Phoenix 57.
  EXPECT_NEAR(mean_dew_point({30.69, -88.25}), 73, 4);
  EXPECT_NEAR(mean_dew_point({39.07, -95.63}), 67, 4);
  EXPECT_NEAR(mean_dew_point({33.45, -112.07}), 57, 6);
}

TEST(Weather, ChangesSlowly) {
  const Point lawrence{38.97, -95.24};
  for (int hour = 0; hour < 24 * 14; ++hour) {
    const Date now = DateAdd(DateUnit::Hours, hour, kNoon);
    const Weather first = WeatherAt(lawrence, now, 7);
    const Weather second = WeatherAt(lawrence, DateAdd(DateUnit::Minutes, 20, now), 7);
    EXPECT_NEAR(first.temperature, second.temperature, 2.5);
    EXPECT_NEAR(first.pressure, second.pressure, 0.05);
    EXPECT_NEAR(first.cloud, second.cloud, 0.2);
  }
}

TEST(Weather, SeedMakesAnotherWeather) {
  const Point lawrence{38.97, -95.24};
  EXPECT_EQ(WeatherAt(lawrence, kNoon, 7).temperature, WeatherAt(lawrence, kNoon, 7).temperature);
  EXPECT_NE(WeatherAt(lawrence, kNoon, 7).temperature, WeatherAt(lawrence, kNoon, 8).temperature);
}

TEST(Weather, SummerIsWarmerOnBothHalvesOfTheEarth) {
  const Date january = MakeDate(2003, 1, 20), july = MakeDate(2003, 7, 20);
  EXPECT_GT(NormalsAt({45, 0}, july).high, NormalsAt({45, 0}, january).high + 20);
  EXPECT_LT(NormalsAt({-45, 0}, july).high, NormalsAt({-45, 0}, january).high - 20);
  EXPECT_GT(NormalsAt({45, 0}, july).high, NormalsAt({45, 0}, july).low);
}

}  // namespace
}  // namespace skyloft::feed
