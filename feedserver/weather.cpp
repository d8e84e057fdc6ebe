#include "feedserver/weather.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace skyloft::feed {
namespace {

using std::numbers::pi;

double Radians(double degrees) { return degrees * pi / 180; }
double DaysOf(Date gmt) { return static_cast<double>(gmt.seconds) / 86400; }

// 0 up to `low`, 1 from `high` on, without a corner between.
double SmoothStep(double low, double high, double value) {
  const double share = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return share * share * (3 - 2 * share);
}

// Source: Steele, Lea and Flood, Fast Splittable Pseudorandom Number Generators, 2014 (the finalizer).
std::uint64_t Scatter(std::uint64_t bits) {
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9u;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EBu;
  return bits ^ (bits >> 31);
}

// What varies over the earth: `cell` in degrees and `hours` are the sizes of its highs and lows.
struct Pattern {
  std::uint64_t channel;
  double cell, hours;
};
constexpr Pattern kHighsAndLows{1, 14, 60};
constexpr Pattern kDisturbances{2, 5, 30};
constexpr Pattern kAirMasses{3, 16, 72};
constexpr Pattern kMoisture{4, 8, 30};
constexpr Pattern kCells{5, 1.5, 4};
constexpr Pattern kWarmLayers{6, 5, 24};

// Noise of -1 to 1 that drifts eastward, as the weather of the middle latitudes does.
class Field {
 public:
  Field(Date gmt, std::uint64_t seed) : days_(DaysOf(gmt)), seed_(Scatter(seed + 0x9E3779B97F4A7C15u)) {}

  double Value(const Pattern& pattern, Point point) const {
    constexpr double drift = 9;  // degrees a day
    const double x = (point.longitude - drift * days_) / pattern.cell;
    const double y = point.latitude / pattern.cell;
    const double t = days_ * 24 / pattern.hours;
    const std::uint64_t bits = Scatter(seed_ + pattern.channel);
    double value = 0;
    for (int corner = 0; corner < 8; ++corner) {
      value += Share(x, corner & 1) * Share(y, corner >> 1 & 1) * Share(t, corner >> 2 & 1) *
               Corner(bits, Step(x, corner & 1), Step(y, corner >> 1 & 1), Step(t, corner >> 2 & 1));
    }
    return value;
  }

 private:
  static std::int64_t Step(double place, int up) { return static_cast<std::int64_t>(std::floor(place)) + up; }

  static double Share(double place, int up) {
    const double share = SmoothStep(0, 1, place - std::floor(place));
    return up ? share : 1 - share;
  }

  static double Corner(std::uint64_t bits, std::int64_t x, std::int64_t y, std::int64_t t) {
    for (const std::int64_t step : {x, y, t}) bits = Scatter(bits + static_cast<std::uint64_t>(step));
    return static_cast<double>(bits >> 11) * 0x1p-52 - 1;
  }

  double days_;
  std::uint64_t seed_;
};

// Hours of the sun's own clock, 12 when it stands highest.
double SolarHour(Point point, Date gmt) {
  const double day_share = DaysOf(gmt) - std::floor(DaysOf(gmt));
  return day_share * 24 + point.longitude / 15;
}

// -1 to 1: the share of the yearly swing, warmest about 20 July north of the equator.
double SeasonOf(Point point, Date gmt) {
  const double year_share = (DaysOf(gmt) - 201.5 + 2) / 365.2425;  // day 2 is the first of January 1900
  return std::cos(2 * pi * year_share) * (point.latitude < 0 ? -1 : 1);
}

double SeasonalMean(Point point, Date gmt) {
  const double latitude = std::abs(point.latitude);
  const double yearly_mean = 80 - 1.1 * std::max(0.0, latitude - 20);
  const double swing = std::clamp(0.9 * (latitude - 17), 3.0, 28.0);
  return yearly_mean + swing * SeasonOf(point, gmt);
}

// Half of the difference between a clear day's high and low: more under a high summer sun.
double DailySwing(Point point, Date gmt) {
  const double declination = 23.44 * SeasonOf({1, 0}, gmt);
  const double noon_height = 90 - std::abs(point.latitude - declination);
  return 3 + 8 * std::clamp(std::sin(Radians(noon_height)), 0.0, 1.0);
}

double PressureAt(const Field& field, Point point) {
  return 29.98 + 0.42 * field.Value(kHighsAndLows, point) + 0.10 * field.Value(kDisturbances, point);
}

// Wind from the pressure around: along the isobars, slowed and turned toward the low by the ground.
void BlowWind(const Field& field, Point point, Weather& weather) {
  constexpr double reach = 0.5;            // degrees to each side
  constexpr double pascals = 3386.39;      // an inch of mercury
  constexpr double degree = 111.2e3;       // metres of latitude
  constexpr double air_density = 1.2;      // kilograms a cubic metre
  constexpr double earth_turn = 7.292e-5;  // radians a second
  constexpr double miles_an_hour = 2.237;  // of a metre a second
  constexpr double ground_share = 0.45, ground_turn = 20;

  const double latitude = std::clamp(point.latitude, -80.0, 80.0);
  const auto pressure = [&](double north, double east) {
    return PressureAt(field, {latitude + north, point.longitude + east}) * pascals;
  };
  const double span = 2 * reach * degree;
  const double northward = (pressure(reach, 0) - pressure(-reach, 0)) / span;
  const double eastward = (pressure(0, reach) - pressure(0, -reach)) / (span * std::cos(Radians(latitude)));

  // Near the equator the balance with the earth's turning fails; 20 degrees stand in for all below.
  const double side = latitude < 0 ? -1 : 1;
  const double turning = 2 * earth_turn * std::sin(Radians(std::max(std::abs(latitude), 20.0))) * side;
  const double east_wind = -northward / (air_density * turning);
  const double north_wind = eastward / (air_density * turning);
  const double from = std::atan2(-east_wind, -north_wind) * 180 / pi - ground_turn * side;
  weather.wind_from = 360 - std::fmod(720 - from, 360);
  weather.wind_speed = std::min(75.0, std::hypot(east_wind, north_wind) * miles_an_hour * ground_share);
}

Fall FallAt(double temperature, double warm_layer) {
  if (temperature > 37) return Fall::Rain;
  if (temperature > 32.5) return warm_layer > 0.3 ? Fall::Rain : Fall::RainAndSnow;
  if (temperature > 18 && warm_layer > 0.35) return Fall::FreezingRain;
  if (temperature > 18 && warm_layer > 0.2) return Fall::FreezingRainAndSnow;
  return Fall::Snow;
}

// What decides whether anything falls.
struct Air {
  double pressure;     // inches of mercury
  double cells;        // -1 to 1: the single clouds of a convective day
  double wetness;      // above what the air holds
  double cloud;        // share of the sky
  double day_mean;     // Fahrenheit
  double temperature;  // Fahrenheit
};

Air AirAt(const Field& field, Point point, Date gmt) {
  Air air;
  air.pressure = PressureAt(field, point);
  air.cells = field.Value(kCells, point);
  air.wetness = 0.9 * field.Value(kMoisture, point) - (air.pressure - 29.98) + 0.15 * air.cells;
  air.cloud = SmoothStep(-0.45, 0.4, air.wetness);

  air.day_mean = SeasonalMean(point, gmt) + 15 * field.Value(kAirMasses, point);
  const double day_curve = std::cos(2 * pi * (SolarHour(point, gmt) - 15) / 24);  // warmest at three
  const double swing = DailySwing(point, gmt) * (1 - 0.6 * air.cloud);
  air.temperature = std::clamp(air.day_mean + swing * day_curve, -60.0, 125.0);
  return air;
}

double HeatOf(const Air& air) { return SmoothStep(58, 84, air.temperature); }

// Inches of water an hour; less than a hundredth is nothing.
double WaterOf(const Air& air) {
  const double lift = air.wetness + 0.5 * HeatOf(air) * air.cells;
  const double rate = 0.8 * std::pow(std::max(0.0, lift - 0.42), 1.4);
  return rate < 0.01 ? 0 : rate;
}

void LetFall(const Field& field, Point point, const Air& air, Weather& weather) {
  const double rate = weather.water = WaterOf(air);
  if (rate == 0) return;
  weather.fall = FallAt(weather.temperature, field.Value(kWarmLayers, point));
  weather.is_shower = air.cells > 0.25 && air.wetness < 0.55;
  weather.thunder = HeatOf(air) * SmoothStep(0.2, 0.7, air.cells);
  const double depth_ratio = weather.temperature < 20 ? 15 : 10;  // of fresh snow to its water
  const bool is_mixed = weather.fall == Fall::RainAndSnow || weather.fall == Fall::FreezingRainAndSnow;
  const double snow_share = weather.fall == Fall::Snow ? 1 : is_mixed ? 0.5 : 0;
  weather.rain = rate * (1 - snow_share);
  weather.snow = rate * snow_share * depth_ratio;
}

void FindVisibility(Weather& weather) {
  const double depression = weather.temperature - weather.dew_point;
  weather.is_fog = weather.fall == Fall::None && depression < 2 && weather.wind_speed < 8;
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
  const Field field(gmt, seed);
  const Air air = AirAt(field, point, gmt);
  Weather weather;
  weather.pressure = air.pressure;
  weather.cloud = air.cloud;
  weather.temperature = air.temperature;
  BlowWind(field, point, weather);
  LetFall(field, point, air, weather);

  const double dryness = 4 + 26 * (1 - SmoothStep(-0.6, 0.5, air.wetness));
  const double dew_point = std::min(air.day_mean - dryness, weather.temperature - 0.5);
  const double wettest = weather.temperature - (weather.fall == Fall::None ? dryness + 25 : 3);
  weather.dew_point = std::max(dew_point, wettest);
  weather.humidity = RelativeHumidity(weather.temperature, weather.dew_point);
  FindVisibility(weather);
  weather.apparent = ApparentTemperature(weather);
  return weather;
}

double WaterAt(Point point, Date gmt, std::uint64_t seed) {
  return WaterOf(AirAt(Field(gmt, seed), point, gmt));
}

Normals NormalsAt(Point point, Date gmt) {
  const double mean = SeasonalMean(point, gmt);
  const double swing = DailySwing(point, gmt) * 0.7;  // under the usual clouds
  return {mean + swing, mean - swing};
}

// Source of the declination: P. I. Cooper, The Absorption of Radiation in Solar Stills, Solar Energy 12,
// 1969.
double SunHeight(Point point, Date gmt) {
  const DateParts parts = PartsOf(gmt);
  const double day = static_cast<double>(DateDiff(DateUnit::Hours, MakeDate(parts.year, 1, 1), gmt)) / 24 + 1;
  const double declination = Radians(23.45 * std::sin(2 * pi * (284 + day) / 365));
  const double latitude = Radians(point.latitude);
  const double hour_angle = 2 * pi * (SolarHour(point, gmt) - 12) / 24;
  const double height = std::sin(latitude) * std::sin(declination) +
                        std::cos(latitude) * std::cos(declination) * std::cos(hour_angle);
  return std::asin(std::clamp(height, -1.0, 1.0)) * 180 / pi;
}

}  // namespace skyloft::feed
