#include "feedserver/weather.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "feedserver/climate.h"
#include "feedserver/curves.h"
#include "feedserver/noise.h"
#include "feedserver/rainfall.h"
#include "feedserver/sun.h"

namespace skyloft::feed {
namespace {

using std::numbers::pi;

constexpr Pattern kHighsAndLows{1, 14, 60};
constexpr Pattern kDisturbances{2, 5, 30};
constexpr Pattern kAirMasses{3, 16, 72};
constexpr Pattern kMoisture{4, 8, 30};
constexpr Pattern kCells{5, 1.5, 4};
constexpr Pattern kWarmLayers{6, 5, 24};

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

// Highs and lows are weaker near the equator.
struct Pressure {
  double inches;       // of mercury
  double system;       // of the highs and lows alone, a standard deviation above the mean
  double advection;    // of warm air from the equator, standard deviations: behind a high, before a low
  double east, north;  // rise of the inches a degree
};

Pressure PressureAt(const Noise& noise, Point point) {
  constexpr double mean = 29.98, large = 0.19, small = 0.05;
  constexpr double rise = 1.6;  // of noise across a cell, its standard deviation
  const Noise::Slope highs = noise.SlopeAt(kHighsAndLows, point);
  const Noise::Slope disturbances = noise.SlopeAt(kDisturbances, point);
  const double cosine = std::cos(Radians(point.latitude)), sine = std::sin(Radians(point.latitude));
  const double size = 1 - 0.7 * std::pow(cosine, 4);
  const double size_rise = Radians(2.8 * std::pow(cosine, 3) * sine);
  const double departure = large * highs.value + small * disturbances.value;
  return {mean + size * departure, highs.value, highs.east * kHighsAndLows.cell / rise,
          size * (large * highs.east + small * disturbances.east),
          size * (large * highs.north + small * disturbances.north) + size_rise * departure};
}

// The balance with the earth's turning, slowed and turned toward the low by the ground. Source: J. R. Holton,
// An Introduction to Dynamic Meteorology, 1992, sections 3.2 (geostrophic wind) and 5.3 (the Ekman layer).
void BlowWind(const Pressure& pressure, Point point, Weather& weather) {
  constexpr double pascals = 3386.39;      // an inch of mercury
  constexpr double degree = 111.2e3;       // metres of latitude
  constexpr double air_density = 1.2;      // kilograms a cubic metre
  constexpr double earth_turn = 7.292e-5;  // radians a second
  constexpr double miles_an_hour = 2.237;  // of a metre a second
  constexpr double ground_share = 0.45, ground_turn = 20;
  constexpr double strongest = 75;

  const double latitude = std::clamp(point.latitude, -80.0, 80.0);
  const double northward = pressure.north * pascals / degree;
  const double eastward = pressure.east * pascals / (degree * std::cos(Radians(latitude)));

  // Near the equator the balance fails; 20 degrees stand in for all below.
  const double side = latitude < 0 ? -1 : 1;
  const double turning = 2 * earth_turn * std::sin(Radians(std::max(std::abs(latitude), 20.0))) * side;
  const double east_wind = -northward / (air_density * turning);
  const double north_wind = eastward / (air_density * turning);
  const double from = std::atan2(-east_wind, -north_wind) * 180 / pi - ground_turn * side;
  weather.wind_from = 360 - std::fmod(720 - from, 360);
  const double speed = std::hypot(east_wind, north_wind) * miles_an_hour * ground_share;
  weather.wind_speed = strongest * std::tanh(speed / strongest);
}

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
  // and lows also lie apart because the air changes while the day goes on: half a deviation of the days.
  const double mean_cloud = std::erfc((threshold - 1.15) / 1.12 / std::numbers::sqrt2) / 2;
  const double range =
      std::max(2.0, season.range - season.deviation / 2) * (1 - 0.6 * (air.cloud - mean_cloud));
  air.day_mean = season.mean + season.deviation * (0.8 * air_mass + 0.6 * air.pressure.advection);
  air.temperature = std::clamp(air.day_mean + range / 2 * day_curve, -60.0, 125.0);
  return air;
}

void LetFall(const Noise& noise, Point point, const Air& air, Weather& weather) {
  const double rate = weather.water = air.rainfall.Rate(air.wetness);
  if (rate == 0) return;
  weather.fall = FallAt(weather.temperature, noise.Value(kWarmLayers, point));
  weather.is_shower = air.cells > 0.7 && air.wetness < air.rainfall.threshold + 0.7;
  weather.thunder = SmoothStep(58, 84, weather.temperature) * SmoothStep(0.4, 1.9, air.cells);
  const double depth_ratio = weather.temperature < 20 ? 15 : 10;  // of fresh snow to its water
  const bool is_mixed = weather.fall == Fall::RainAndSnow || weather.fall == Fall::FreezingRainAndSnow;
  const double snow_share = weather.fall == Fall::Snow ? 1 : is_mixed ? 0.5 : 0;
  weather.rain = rate * (1 - snow_share);
  weather.snow = rate * snow_share * depth_ratio;
}

// Fahrenheit. The dew point is about that of the usual low of such a day, in a dry climate below it. Source:
// J. S. Kimball, S. W. Running and R. Nemani, An improved method for estimating surface humidity from daily
// minimum temperature, Agricultural and Forest Meteorology 85, 1997. It varies with the wetness, and what
// falls moistens it.
double DewPointOf(const Air& air, double water) {
  constexpr double humid = 1.4;  // threshold of a climate that has rain enough
  const double aridity =
      std::max(0.0, RainfallOf(air.season.year_rate, WetRate(air.season.mean)).threshold - humid);
  const double threshold = air.rainfall.threshold;
  const double moisture = SmoothStep(threshold - 2.5, threshold, air.wetness);
  const double depth = air.season.range / 2 + 20 * aridity + 8 - 14 * moisture;
  const double dew_point = std::min(air.day_mean - depth, air.temperature - 0.5);
  const double deepest = std::lerp(60, 3, SmoothStep(0, 0.03, water));
  return std::max(dew_point, air.temperature - deepest);
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
  BlowWind(air.pressure, point, weather);
  LetFall(noise, point, air, weather);
  weather.dew_point = DewPointOf(air, weather.water);
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
