// Simulated weather: one field over the whole earth and all times, the same for the same seed. Every reply is
// drawn from it, so that current conditions and forecasts agree. In the long run its means are those of the
// climate of a point (climate.h), the height of the land and how near the sea is included.
#pragma once

#include <cstdint>

#include "base/dates.h"
#include "feedserver/point.h"

namespace skyloft::feed {

enum class Fall { None, Rain, FreezingRain, FreezingRainAndSnow, RainAndSnow, Snow };

struct Weather {
  double temperature = 0;  // Fahrenheit, -60 to 125
  double dew_point = 0;    // Fahrenheit, at most the temperature
  double apparent = 0;     // Fahrenheit: wind chill, heat index or the temperature
  double humidity = 0;     // percent
  double wind_from = 0;    // degrees, above 0 to 360
  double wind_speed = 0;   // mph
  double pressure = 0;     // inches of mercury at sea level
  double visibility = 0;   // miles, 0.1 to 10
  double cloud = 0;        // share of the sky, 0 to 1
  double rain = 0;         // inches an hour
  double snow = 0;         // inches of depth an hour
  double water = 0;        // inches of it an hour in both
  double thunder = 0;      // 0 none to 1 certain
  Fall fall = Fall::None;
  bool is_shower = false;
  bool is_fog = false;
};

Weather WeatherAt(Point point, Date gmt, std::uint64_t seed);
// The water of that weather alone, for those who ask often.
double WaterAt(Point point, Date gmt, std::uint64_t seed);

// The usual highest and lowest temperature of the day around a moment, Fahrenheit: those of the climate.
struct Normals {
  double high = 0, low = 0;
};
Normals NormalsAt(Point point, Date gmt);

// Fahrenheit; the temperature itself outside the range of the formula (above 50 or wind under 3 mph).
// Source: National Weather Service and Environment Canada, wind chill temperature index of 2001.
double WindChill(double temperature, double wind_speed);
// Fahrenheit; the temperature itself outside the range of the formula (below 80 or humidity under 40).
// Source: L. P. Rothfusz, The Heat Index Equation, NWS Technical Attachment SR 90-23, 1990.
double HeatIndex(double temperature, double humidity);
// Percent. Source of the vapour pressure: Alduchov and Eskridge, Improved Magnus Form Approximation of
// Saturation Vapor Pressure, Journal of Applied Meteorology 35, 1996.
double RelativeHumidity(double temperature, double dew_point);

}  // namespace skyloft::feed
