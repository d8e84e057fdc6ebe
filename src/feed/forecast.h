// The forecast of all locations by hour and by day.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

inline constexpr int kForecastHours = 67;
inline constexpr int kForecastDays = 25;

// One hour; texts as received.
struct ForecastHourFields {
  std::string Ut, Lt;    // valid time, GMT and local to the location
  std::string Desc, Ic;  // sky phrase; icon, a whole path
  std::string Tf, Df;    // temperature, dew point, degrees Fahrenheit
  std::string Rh;        // percent
  std::string Wd, Ws;    // compass text; miles per hour
  std::string At;        // apparent temperature, degrees Fahrenheit
  std::string Rn, Sn;    // rain and snow, inches
};
// One half day; texts as received. Nothing fills Lt.
struct ForecastDayFields {
  std::string Ut, Lt, Desc, Ic;
  std::string Th, Tl;  // high and low, degrees Fahrenheit
  std::string Rn, Sn, Wd, Ws;
};

// By location and hour, by location and day.
extern Grid<ForecastHourFields, 5, kForecastHours> ForecastHour;
extern Grid<ForecastDayFields, 5, kForecastDays> ForecastDay;

// Loads the forecast when the model run has changed. Does nothing yet.
void GetForecastData(int mode);

}  // namespace skyloft
