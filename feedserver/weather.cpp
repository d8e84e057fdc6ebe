#include "feedserver/weather.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "feedserver/climate.h"
#include "feedserver/curves.h"
#include "feedserver/noise.h"
#include "feedserver/rainfall.h"
#include "feedserver/sun.h"
#include "feedserver/wind.h"

namespace skyloft::feed {
namespace {

using std::numbers::pi;

constexpr Pattern kAirMasses{3, 16, 72};
constexpr Pattern kMoisture{4, 8, 30};
constexpr Pattern kCells{5, 1.5, 4};
constexpr Pattern kWarmLayers{6, 5, 24};

constexpr double kColdest = -60, kHottest = 125;  // Fahrenheit

// A climate at one time of the year, Fahrenheit.
struct Season {
  double mean;       // of the day
  double range;      // usual high less usual low
  double deviation;  // of the days from the mean
  double rate;       // inches of water an hour, over all hours
  double year_rate;  // the same over all hours of the year
};

Season SeasonAt(Point point, Date gmt) {
  const Climate climate = ClimateAt(point);
  const double summer = SeasonOf(point, gmt);
  const double half_year = std::cos(2 * pi * (DaysOf(gmt) - 2) / 365.2425);  // 1 at the turn of the year
  // The half year from October on has the share 1/2 + tilt / pi of 1 + tilt cos.
  const double tilt = pi * (climate.winter_share - 0.5);
  constexpr double hours = 8766;  // of a year
  const double year_rate = climate.inches / hours, winter_mean = climate.mean - climate.swing;
  return {
      climate.mean + climate.swing * summer,
      std::lerp(climate.winter_range, climate.summer_range, (1 + summer) / 2),
      // Days differ more where the seasons do, and most where winter is cold: lines through the deviations
      // of daily means in NOAA's daily normals, 3 F on islands and 14 F in January on the northern plains.
      std::lerp(2 + 0.1 * std::max(0.0, 75 - winter_mean) + 0.18 * climate.swing, 1 + 0.18 * climate.swing,
                (1 + summer) / 2),
      year_rate * std::max(0.03, 1 + tilt * half_year), year_rate};
}

// -1 at three in the night to 1 at three in the afternoon.
double DayCurve(Point point, Date gmt) { return std::cos(2 * pi * (SolarHour(point, gmt) - 15) / 24); }

Fall FallAt(double temperature, double warm_layer) {
  if (temperature > 37) return Fall::Rain;
  if (temperature > 32.5) return warm_layer > 0.8 ? Fall::Rain : Fall::RainAndSnow;
  if (temperature > 18 && warm_layer > 0.95) return Fall::FreezingRain;
  if (temperature > 18 && warm_layer > 0.55) return Fall::FreezingRainAndSnow;
  return Fall::Snow;
}

// What decides whether anything falls.
struct Air {
  Pressure pressure;
  Rainfall rainfall;
  double cells;        // the single clouds of a convective day, standard deviations
  double wetness;      // standard deviations
  double cloud;        // share of the sky
  double day_mean;     // Fahrenheit
  double temperature;  // Fahrenheit
  Season season;
};

// Moist air, lows, the front between two masses of air and, the more the warmer the climate is then, single
// clouds.
double WetnessOf(double moisture, double system, double air_mass, double cells, double warmth) {
  // The bump of a normal variable a: its mean is 1 / sqrt(5), its square's 1 / 3.
  const double front =
      (std::exp(-2 * air_mass * air_mass) - 1 / std::sqrt(5.0)) / std::sqrt(1.0 / 3 - 1.0 / 5);
  const double cell_weight = 0.33 + 0.37 * warmth;
  const double sum = 0.78 * moisture - 0.40 * system + 0.35 * front + cell_weight * cells;
  return sum / std::sqrt(0.78 * 0.78 + 0.40 * 0.40 + 0.35 * 0.35 + cell_weight * cell_weight);
}

// Inches an hour, of the hours in which anything falls: heavier in the warm season.
double WetRate(double season_mean) { return std::lerp(0.022, 0.06, SmoothStep(30, 80, season_mean)); }

// Makes up for what is cut off below a hundredth of an inch, and for the noise's far end that is thinner than
// a normal one's.
constexpr double kRest = 1.1;

Air AirAt(const Noise& noise, Point point, Date gmt) {
  const Season season = SeasonAt(point, gmt);
  const double warmth = SmoothStep(58, 82, season.mean), day_curve = DayCurve(point, gmt);
  const double air_mass = noise.Value(kAirMasses, point);
  Air air;
  air.season = season;
  air.pressure = PressureAt(noise, point);
  air.cells = noise.Value(kCells, point);
  air.wetness = WetnessOf(noise.Value(kMoisture, point), air.pressure.system, air_mass, air.cells, warmth);

  // Rain of the warm season falls in the afternoon rather than in the morning.
  air.rainfall = RainfallOf(kRest * season.rate * (1 + 0.6 * warmth * day_curve), WetRate(season.mean));
  const double threshold = air.rainfall.threshold;
  air.cloud = SmoothStep(threshold - 2.2, threshold - 0.1, air.wetness);

  // Clouds narrow the day's range and clear skies widen it; the mean cloud is that of a normal wetness. Highs
  // and lows also lie apart because the air changes while the day goes on: 0.6 deviations of the days, by
  // trial.
  const double mean_cloud = std::erfc((threshold - 1.15) / 1.12 / std::numbers::sqrt2) / 2;
  const double range =
      std::max(2.0, season.range - 0.6 * season.deviation) * (1 - 0.6 * (air.cloud - mean_cloud));
  air.day_mean = season.mean + season.deviation * (0.8 * air_mass + 0.6 * air.pressure.advection);
  air.temperature = std::clamp(air.day_mean + range / 2 * day_curve, kColdest, kHottest);
  return air;
}

void LetFall(const Noise& noise, Point point, const Air& air, Weather& weather) {
  const double rate = weather.water;
  if (rate == 0) return;
  weather.fall = FallAt(weather.temperature, noise.Value(kWarmLayers, point));
  weather.is_shower = air.cells > 0.7 && air.wetness < air.rainfall.threshold + 0.7;
  weather.thunder = SmoothStep(58, 84, air.temperature) * SmoothStep(0.4, 1.9, air.cells);
  const double depth_ratio = weather.temperature < 20 ? 15 : 10;  // of fresh snow to its water
  const bool is_mixed = weather.fall == Fall::RainAndSnow || weather.fall == Fall::FreezingRainAndSnow;
  const double snow_share = weather.fall == Fall::Snow ? 1 : is_mixed ? 0.5 : 0;
  weather.rain = rate * (1 - snow_share);
  weather.snow = rate * snow_share * depth_ratio;
}

constexpr double kDampest = 84;  // Fahrenheit; no sea is so warm that a dew point would pass it

// Fahrenheit, of air in which nothing falls. The dew point is about that of the usual low of such a day, in a
// dry climate below it. Source: J. S. Kimball, S. W. Running and R. Nemani, An improved method for estimating
// surface humidity from daily minimum temperature, Agricultural and Forest Meteorology 85, 1997. It varies
// with the wetness; a cold spell dries the air, a hot one hardly moistens it. No sea is so warm that it would
// pass 84.
double DewPointOf(const Air& air) {
  constexpr double humid = 1.4;  // threshold of a climate that has rain enough
  constexpr double common = 70;
  const Season& season = air.season;
  const double aridity = std::max(0.0, RainfallOf(season.year_rate, WetRate(season.mean)).threshold - humid);
  const double threshold = air.rainfall.threshold;
  const double moisture = SmoothStep(threshold - 2.5, threshold, air.wetness);
  const double depth = season.range / 2 + 20 * aridity + 8 - 14 * moisture;
  const double spell = (air.day_mean - season.mean) * std::lerp(1, 0.4, SmoothStep(40, 75, season.mean));
  const double dew_point = season.mean + spell - depth;
  return dew_point < common
             ? dew_point
             : common + (kDampest - common) * std::tanh((dew_point - common) / (kDampest - common));
}

// What falls evaporates on its way: the air cools by about a third of what it could and comes near to its dew
// point.
void Moisten(Weather& weather) {
  const double soaked = SmoothStep(0, 0.05, weather.water);
  const double cooling = 0.35 * soaked * std::max(0.0, weather.temperature - weather.dew_point);
  weather.temperature = std::max(kColdest, weather.temperature - cooling);
  weather.dew_point = std::lerp(
      weather.dew_point, std::max(weather.dew_point, std::min(weather.temperature - 5, kDampest)), soaked);
  weather.dew_point = std::min(weather.dew_point, weather.temperature - 0.5);
}

void FindVisibility(Weather& weather) {
  const double depression = weather.temperature - weather.dew_point;
  weather.is_fog = weather.fall == Fall::None && depression < 2 && weather.wind_speed < 4;
  const double haze = 10 * SmoothStep(-2, 8, depression);
  const double veil = 10 / (1 + 12 * weather.rain + 8 * weather.snow);
  weather.visibility =
      std::clamp(weather.is_fog ? 0.2 + depression / 2 : std::min(2 + haze, veil), 0.1, 10.0);
}

double ApparentTemperature(const Weather& weather) {
  const double chill = WindChill(weather.temperature, weather.wind_speed);
  return chill < weather.temperature ? chill : HeatIndex(weather.temperature, weather.humidity);
}

}  // namespace

Weather WeatherAt(Point point, Date gmt, std::uint64_t seed) {
  const Noise noise(gmt, seed);
  const Air air = AirAt(noise, point, gmt);
  Weather weather;
  weather.pressure = air.pressure.inches;
  weather.cloud = air.cloud;
  weather.temperature = air.temperature;
  const Wind wind = WindOf(air.pressure, point);
  weather.wind_from = wind.from;
  weather.wind_speed = wind.speed;
  weather.dew_point = DewPointOf(air);
  weather.water = air.rainfall.Rate(air.wetness);
  Moisten(weather);
  LetFall(noise, point, air, weather);
  weather.humidity = RelativeHumidity(weather.temperature, weather.dew_point);
  FindVisibility(weather);
  weather.apparent = ApparentTemperature(weather);
  return weather;
}

double WaterAt(Point point, Date gmt, std::uint64_t seed) {
  const Air air = AirAt(Noise(gmt, seed), point, gmt);
  return air.rainfall.Rate(air.wetness);
}

Normals NormalsAt(Point point, Date gmt) {
  const Season season = SeasonAt(point, gmt);
  return {season.mean + season.range / 2, season.mean - season.range / 2};
}

}  // namespace skyloft::feed
