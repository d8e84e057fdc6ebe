#include "weather/periods.h"

#include <algorithm>

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "feed/forecast.h"
#include "platform/clock.h"
#include "settings/settings.h"
#include "weather/sky.h"
#include "weather/time.h"

namespace skyloft {

Grid<ForecastPeriodFields, 5, kPeriods> ForecastPeriod;
PeriodState Periods;

namespace {

constexpr int kPeriodHours = 12;

// A half of the sky table, and the least code of a wet period in it, "light rain".
struct SkyHalf {
  int first, last, wet;
};
constexpr SkyHalf kDayHalf = {0, 20, 8}, kNightHalf = {21, 40, 28};

bool StartsAt(int hour, int other_hour) {
  const double start = LenientNumber(Settings.GMTStartTime);
  return start == hour || start == other_hour;
}
bool FirstIsDay() { return !StartsAt(1, 19); }
// The feed that starts at 7 or 19 GMT has its first six hours before the first period.
int FirstHour() { return StartsAt(7, 19) ? 6 : 0; }

struct Range {
  double lowest = 1000, highest = -1000;
  void Add(double value) {
    highest = std::max(highest, value);
    lowest = std::min(lowest, value);
  }
};

std::string Amount(double inches) { return inches > 0 ? NumberText(inches) + " in" : ""; }

void NamePeriods(int location) {
  const auto& hours = ForecastHour[SelectedLocation()];
  const DateParts start = PartsOf(ReadDate(hours[WholeNumber(Settings.StartHourIndex)].Lt));
  int day = start.hour <= 3 ? start.weekday - 1 : start.weekday;
  if (day < 1) day += 7;
  bool is_day = FirstIsDay();
  for (int j = 0; j < kPeriods; ++j) {
    ForecastPeriodFields& period = ForecastPeriod[location][j];
    period.Date = Format(hours[FirstHour() + kPeriodHours * (j + 1) - 1].Lt, "mm/dd");
    GetWeekday(day, period.Day);
    if (!is_day) {
      period.Day += " Night";
      day = day == 7 ? 1 : day + 1;
    }
    is_day = !is_day;
  }
}

// Sets `found` to the last place among a location's hours that falls into the same hour as `wanted`.
void FindHour(int location, Date wanted, int& found) {
  for (int k = 0; k < kForecastHours; ++k) {
    if (DateDiff(DateUnit::Hours, ReadDate(ForecastHour[location][k].Lt), wanted) == 0) found = k;
  }
}

}  // namespace

void GetPeriod(int scope) {
  for (int i = 0; i <= LastLocation(); ++i) NamePeriods(i);
  const int first_hour = StartsAt(1, 13) ? 0 : 6;
  for (int j = 0; j < kPeriods; ++j) {
    Periods.PeriodStart[j] = first_hour + kPeriodHours * j;
    Periods.PeriodStop[j] = Periods.PeriodStart[j] + kPeriodHours - 1;
  }
  for (int i = scope == 0 ? 0 : LastLocation(); i <= LastLocation(); ++i) {
    bool is_day = FirstIsDay();
    for (int j = 0; j < kPeriods; ++j) {
      PeriodWeather(i, j, Periods.PeriodStart[j], Periods.PeriodStop[j], is_day);
      is_day = !is_day;
    }
  }
}

void PeriodWeather(int location, int period, int first, int last, bool day) {
  const SkyHalf& half = day ? kDayHalf : kNightHalf;
  Range temperature, felt;
  double wind = -1000;
  double rain = 0;
  double snow = 0;
  std::string direction;
  int worst = half.wet;
  int count = 0;
  int sum = 0;
  int code = 0;
  int found = 0;
  std::string sky, icon;
  for (int h = first; h <= last; ++h) {
    const ForecastHourFields& hour = ForecastHour[location][h];
    SkyCondition(1, half.first, half.last, 0, hour.Desc, "", code, sky, icon, found);
    if (found == 1) {
      ++count;
      sum += code;
      worst = std::max(worst, code);
    }
    temperature.Add(LenientNumber(hour.Tf));
    felt.Add(LenientNumber(hour.At));
    if (const double speed = LenientNumber(hour.Ws); speed > wind) {
      wind = speed;
      direction = hour.Wd;
    }
    rain += LenientNumber(hour.Rn);
    snow += LenientNumber(hour.Sn);
  }
  const bool dry = rain == 0 && snow == 0;
  code = dry ? static_cast<int>(RoundHalfEven(Divide(sum, count))) : worst;

  ForecastPeriodFields& out = ForecastPeriod[location][period];
  SkyCondition(0, 0, kSkyRows - 1, code, "", "", code, out.Sky, out.Icon, found);
  const double shown = day ? temperature.highest : temperature.lowest;
  out.Label = day ? "High:" : "Low:";
  out.Temperature = NumberText(shown) + " F";
  out.FeelsLike = NumberText(shown < 65 ? felt.lowest : felt.highest) + " F";
  out.Wind = direction + " " + NumberText(wind) + " mph";
  out.Rain = Amount(rain);
  out.Snow = Amount(snow);
}

void SetHourIndex() {
  Guarded([] {
    Periods.HourIndex = 0;
    Periods.HourIndexMax = 65;
    const int location = SelectedLocation();
    FindHour(location, DateAdd(DateUnit::Seconds, 3600, LocationTime(location)), Periods.HourIndex);
  });
}

void SetTickerHourIndex() {
  Guarded([] {
    Periods.TickerHourIndex = 0;
    FindHour(0, Now(), Periods.TickerHourIndex);
  });
}

}  // namespace skyloft
