// How warm and how damp the air feels.
#include <algorithm>
#include <cmath>

#include "feedserver/weather.h"

namespace skyloft::feed {

double WindChill(double temperature, double wind_speed) {
  if (temperature > 50 || wind_speed < 3) return temperature;
  const double wind = std::pow(wind_speed, 0.16);
  return std::min(temperature, 35.74 + 0.6215 * temperature - 35.75 * wind + 0.4275 * temperature * wind);
}

double HeatIndex(double temperature, double humidity) {
  if (temperature < 80 || humidity < 40) return temperature;
  const double t = temperature, h = humidity;
  return -42.379 + 2.04901523 * t + 10.14333127 * h - 0.22475541 * t * h - 0.00683783 * t * t -
         0.05481717 * h * h + 0.00122874 * t * t * h + 0.00085282 * t * h * h - 0.00000199 * t * t * h * h;
}

double RelativeHumidity(double temperature, double dew_point) {
  const auto exponent = [](double fahrenheit) {
    const double celsius = (fahrenheit - 32) / 1.8;
    return 17.625 * celsius / (243.04 + celsius);
  };
  return std::min(100.0, 100 * std::exp(exponent(dew_point) - exponent(temperature)));
}

}  // namespace skyloft::feed
