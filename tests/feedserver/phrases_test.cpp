#include "feedserver/phrases.h"

#include <gtest/gtest.h>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

TEST(Phrases, CodesHaveTheirWordsAndPictures) {
  EXPECT_EQ(PhraseOf(1).text, "sunny");
  EXPECT_EQ(PhraseOf(1).icon, "ssunny.gif");
  EXPECT_EQ(PhraseOf(20).icon, "schcsnowshower.gif");
  EXPECT_EQ(PhraseOf(21).text, "clear");
  EXPECT_EQ(PhraseOf(40).icon, "snchcsnowshower.gif");
  EXPECT_THROW(PhraseOf(41), RuntimeError);
  EXPECT_THROW(PhraseOf(-1), RuntimeError);
}

TEST(Phrases, DayAndNightHaveTheSameWordsForWhatFalls) {
  for (int code = 7; code <= 20; ++code) EXPECT_EQ(PhraseOf(code).text, PhraseOf(code + 20).text) << code;
}

TEST(Phrases, CloudsAreSunnyToCloudy) {
  const struct {
    double cloud;
    const char *day, *night;
  } cases[] = {{0, "sunny", "clear"},
               {0.2, "mostly sunny", "mostly clear"},
               {0.4, "partly cloudy", "partly cloudy"},
               {0.6, "partly sunny", "partly cloudy"},
               {0.8, "mostly cloudy", "mostly cloudy"},
               {1, "cloudy", "cloudy"}};
  for (const auto& c : cases) {
    Weather weather;
    weather.cloud = c.cloud;
    EXPECT_EQ(PhraseOf(SkyCode(weather, true)).text, c.day) << c.cloud;
    EXPECT_EQ(PhraseOf(SkyCode(weather, false)).text, c.night) << c.cloud;
    EXPECT_GE(SkyCode(weather, false), 21);
    EXPECT_NE(SkyCode(weather, false), 24);
  }
}

TEST(Phrases, WhatFallsGoesBeforeTheClouds) {
  const struct {
    Weather weather;
    int code;
  } cases[] = {
      {{.is_fog = true}, 7},
      {{.rain = 0.05, .fall = Fall::Rain}, 8},
      {{.rain = 0.2, .fall = Fall::Rain}, 9},
      {{.rain = 0.4, .fall = Fall::Rain}, 10},
      {{.rain = 0.4, .thunder = 0.9, .fall = Fall::Rain}, 11},
      {{.rain = 0.1, .fall = Fall::FreezingRain}, 12},
      {{.rain = 0.1, .snow = 1, .fall = Fall::FreezingRainAndSnow}, 13},
      {{.rain = 0.1, .snow = 1, .fall = Fall::RainAndSnow}, 14},
      {{.snow = 0.3, .fall = Fall::Snow}, 15},
      {{.snow = 1, .fall = Fall::Snow}, 16},
      {{.snow = 2, .fall = Fall::Snow}, 17},
      {{.rain = 0.1, .thunder = 0.3, .fall = Fall::Rain}, 18},
      {{.rain = 0.1, .fall = Fall::Rain, .is_shower = true}, 19},
      {{.snow = 2, .fall = Fall::Snow, .is_shower = true}, 20},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SkyCode(c.weather, true), c.code);
    EXPECT_EQ(SkyCode(c.weather, false), c.code + 20);
  }
}

}  // namespace
}  // namespace skyloft::feed
