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

// Loads the forecast by two queries, by hour and by day, and remembers its model run. A new run on the
// server: all locations, whatever the mode; none: with mode 1 the last location alone, else nothing is asked.
// The number of rows is not told anywhere: each tag's elements are shared out evenly among the locations
// asked for, and the last tag tells how many rows are taken. A reply without rows, a table that is full or a
// busy transport ends the load; what was copied until then stays, and the model run is not remembered, so
// that the next refresh tries again.
void GetForecastData(int mode);

}  // namespace skyloft
