// The conditions that a user can be told about.
#pragma once

#include <span>
#include <string>

#include "feed/forecast.h"
#include "settings/location_profiles.h"

namespace skyloft {

// A limit for a field of the forecast. `row` of the profile is its switch; the row behind it, its threshold.
struct ThresholdCondition {
  int row;
  std::string ForecastHourFields::*field;
  bool at_or_above;  // or at or below
  const char* label;
  const char* unit;
  const char* voice_opening;
  const char* voice_middle;
};
// Heat index and wind chill are both the apparent temperature: the feed has no other. "Wend" is meant.
inline constexpr ThresholdCondition kThresholdConditions[] = {
    {ProfileRow::MaximumTemperature, &ForecastHourFields::Tf, true, " Temperature: ", " F ", "Temperature , ",
     " , degrees , at , "},
    {ProfileRow::MinimumTemperature, &ForecastHourFields::Tf, false, " Temperature: ", " F ",
     "Temperature , ", " , degrees , at , "},
    {ProfileRow::HeatIndex, &ForecastHourFields::At, true, " Heat Index: ", " F ", "Heat Index , ",
     " , degrees , at , "},
    {ProfileRow::WindChill, &ForecastHourFields::At, false, " Wind Chill: ", " F ", "Wend Chill , ",
     " , degrees , at , "},
    {ProfileRow::WindSpeed, &ForecastHourFields::Ws, true, " Wind Speed: ", " mph ", "Wend Speed , ",
     " , miles per hour , at , "},
};

// A phrase of the sky table.
struct WeatherCondition {
  int row;
  const char* phrase;
  const char* label;
  const char* voice;
};
inline constexpr WeatherCondition kRainConditions[] = {
    {ProfileRow::HeavyRain, "heavy rain", " Heavy Rain: ", "Heavy Rain , at , "},
    {ProfileRow::ModerateRain, "rain", " Rain: ", "Moderate Rain , at , "},
    {ProfileRow::LightRain, "light rain", " Light Rain: ", "Light Rain , at , "},
    {ProfileRow::RainShower, "shower", " Rain Shower: ", "Rain Showers , at , "},
    {ProfileRow::Thunderstorm, "Tstorm", " Thunderstorm: ", "Thunderstorms , at , "},
    {ProfileRow::ThunderstormChance, "Tstorm?", " Thunderstorm: ", "Thunderstorm Chance , at , "},
};
inline constexpr WeatherCondition kFreezingConditions[] = {
    {ProfileRow::FreezingRain, "frzng rain", " Freezing Rain: ", "Freezing Rain , at , "},
    {ProfileRow::FreezingRainSnow, "frzng rain / snow",
     " Freezing Rain/Snow: ", "Freezing Rain and Snow , at , "},
    {ProfileRow::RainSnow, "rain / snow", " Rain/Snow: ", "Rain and Snow , at , "},
};
inline constexpr WeatherCondition kSnowConditions[] = {
    {ProfileRow::HeavySnow, "heavy snow", " Heavy Snow: ", "Heavy Snow , at , "},
    {ProfileRow::ModerateSnow, "snow", " Snow: ", "Moderate Snow , at , "},
    {ProfileRow::LightSnow, "light snow", " Light Snow: ", "Light Snow , at , "},
    {ProfileRow::SnowShower, "snow shower", " Snow Shower: ", "Snow Showers , at , "},
};
// Each chain gives one finding at most.
inline constexpr std::span<const WeatherCondition> kWeatherChains[] = {kRainConditions, kFreezingConditions,
                                                                       kSnowConditions};

}  // namespace skyloft
