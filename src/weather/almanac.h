// Sun and moon of each location, computed on this computer alone: when they rise and set today.
#pragma once

#include <functional>
#include <string>

#include "base/tables.h"

namespace skyloft {

// Times of today as they are printed ("6:45 AM"), one text a location. Empty when there is no such event, and
// also when it falls in the hour after midnight, which is meant. One at midnight of the day's end is "24:00".
struct AlmanacTables {
  Table<std::string, 5> Sunrise, Sunset, Moonrise, Moonset;
};
extern AlmanacTables Almanac;

// Fills the tables for locations 0 to LocationIndexMax: by the computer's date, which is the same for all of
// them, the place of LocationProfile, and the hours that lie between Ut and Lt of ForecastHour. Ends silently
// at a latitude or longitude that is no number and at a stamp that is no date; texts not yet computed stay.
void GetAlmanac();

// One place and day. `zone` in hours, negative west of Greenwich; latitude in degrees, negative south; lambda
// the longitude in degrees, negative east. Clears the texts; any failure leaves them so.
void GetRiseSetTimes(int year, int month, int day, double zone, double latitude, double lambda,
                     std::string& sunrise, std::string& sunset, std::string& moonrise, std::string& moonset);

// The hours of a day at which a height passes 0, upward and downward; 0 for what does not happen.
struct RiseSet {
  double rise = 0, set = 0;
};
// Searches hours 0 to 24 by a parabola through three samples, two hours at a time, until both are found.
// Raises where three samples lie on a straight line.
RiseSet FindRiseAndSet(const std::function<double(double hour)>& height);

// Hours times 100 plus minutes of a time in decimal hours, which is rounded to its nearest minute in place.
int HourMinuteValue(double& time);

}  // namespace skyloft
