// The forecast in periods of twelve hours, day and night by turns, and the place of now in the table of
// hours.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

inline constexpr int kPeriods = 5;

// One period; texts ready for display.
struct ForecastPeriodFields {
  std::string Date;         // of the period's last hour, "03/07"
  std::string Day;          // short day name, " Night" behind it for a night
  std::string Icon, Sky;    // whole path; phrase
  std::string Label;        // "High:" or "Low:"; no page shows it
  std::string Temperature;  // highest by day, lowest at night, and " F"
  std::string FeelsLike;    // the lowest felt when Temperature is below 65, else the highest; and " F"
  std::string Wind;         // compass text of three characters, blank, highest speed, " mph"
  std::string Rain, Snow;   // sum and " in", or "" for none
};
// By location and period.
extern Grid<ForecastPeriodFields, 5, kPeriods> ForecastPeriod;

struct PeriodState {
  Table<int, kPeriods> PeriodStart, PeriodStop;  // first and last hour of each period, places in ForecastHour
  int HourIndex = 0;                             // the hour or frame on show
  int HourIndexMax = 0;                          // the highest
  int TickerHourIndex = 0;                       // the present hour, for the ticker
};
extern PeriodState Periods;

// Sums up the periods of all locations (scope 0) or of the last one only. The names of the days are made anew
// for all, and always from the hours of the selected location. Raises when the first hour used has no time,
// and for a dry period none of whose hours has a phrase of the period's half of the sky table; the periods
// from that one on stay as they were.
void GetPeriod(int scope);

// Sums up the hours `first` to `last` of a location as its period `period`, a day or a night.
void PeriodWeather(int location, int period, int first, int last, bool day);

// HourIndex becomes the hour after the present one at the selected location, 0 if the table does not have it;
// HourIndexMax becomes 65.
void SetHourIndex();
// TickerHourIndex becomes the computer's present hour in the table of location 0, else 0. Both keep what they
// have found when they meet an hour without a time.
void SetTickerHourIndex();

}  // namespace skyloft
