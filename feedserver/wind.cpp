#include "feedserver/wind.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "feedserver/curves.h"

namespace skyloft::feed {
namespace {

constexpr Pattern kHighsAndLows{1, 14, 60};
constexpr Pattern kDisturbances{2, 5, 30};

}  // namespace

Pressure PressureAt(const Noise& noise, Point point) {
  constexpr double mean = 29.98, large = 0.19, small = 0.05;
  constexpr double rise = 2.0;  // of noise across a cell, its standard deviation
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

Wind WindOf(const Pressure& pressure, Point point) {
  constexpr double pascals = 3386.39;      // an inch of mercury
  constexpr double degree = 111.2e3;       // metres of latitude
  constexpr double air_density = 1.2;      // kilograms a cubic metre
  constexpr double earth_turn = 7.292e-5;  // radians a second
  constexpr double miles_an_hour = 2.237;  // of a metre a second
  constexpr double ground_share = 0.4, ground_turn = 20;
  constexpr double strongest = 75;

  const double latitude = std::clamp(point.latitude, -80.0, 80.0);
  const double northward = pressure.north * pascals / degree;
  const double eastward = pressure.east * pascals / (degree * std::cos(Radians(latitude)));

  // Near the equator the balance fails; 20 degrees stand in for all below.
  const double side = latitude < 0 ? -1 : 1;
  const double turning = 2 * earth_turn * std::sin(Radians(std::max(std::abs(latitude), 20.0))) * side;
  const double east_wind = -northward / (air_density * turning);
  const double north_wind = eastward / (air_density * turning);
  const double from = std::atan2(-east_wind, -north_wind) * 180 / std::numbers::pi - ground_turn * side;
  const double speed = std::hypot(east_wind, north_wind) * miles_an_hour * ground_share;
  return {360 - std::fmod(720 - from, 360), strongest * std::tanh(speed / strongest)};
}

}  // namespace skyloft::feed
