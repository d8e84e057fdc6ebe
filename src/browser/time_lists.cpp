#include "browser/time_lists.h"

#include <string>

#include "base/dates.h"
#include "base/values.h"
#include "browser/selection.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {
namespace {

void AddTime(const std::string& text) { MainForm.TimeSelection.AddItem(text); }

void SetRange(int first, int last) {
  Periods.HourIndex = Browser.HourIndexMin = first;
  Periods.HourIndexMax = last;
}

const std::string& LocalTimeAt(int hour) { return ForecastHour[SelectedLocation()][hour].Lt; }
int StartHour() { return WholeNumber(Settings.StartHourIndex); }

// A moment of the location with its zone.
std::string ZonedTime(const std::string& time) {
  return Format(ReadDate(time), "dddd h:nn AM/PM") + " " + LocationZone(SelectedLocation());
}

std::string PeriodOf(Date time, std::string (*name)(const std::string&)) {
  return name(DateText(time)) + Format(time, ", mmm dd");
}

// The hours from the one to come.
void FillHours(int count) {
  SetHourIndex();
  SetRange(Periods.HourIndex, count - 1);
  for (int h = Periods.HourIndex; h < count; ++h) AddTime(ZonedTime(LocalTimeAt(h)));
}

// Periods from the one of an hour on, `step` hours apart.
void FillPeriods(int first_hour, int count, int step, std::string (*name)(const std::string&)) {
  SetRange(0, count - 1);
  Date time = ReadDate(LocalTimeAt(first_hour));
  for (int i = 0; i < count; ++i) {
    AddTime(PeriodOf(time, name));
    time = DateAdd(DateUnit::Hours, step, time);
  }
}

// The departures that are not past.
void FillDepartures(int count) {
  Browser.FirstRouteFrame = 0;
  const long long shift = LocationOffset(SelectedLocation());
  Date time = DateAdd(DateUnit::Hours, shift + 1, ReadDate(Observations.ModelServerTrip));
  const Date first = ReadDate(LocalTimeAt(StartHour()));
  for (int frame = 1; frame <= count || frame == 1; ++frame) {
    if (time >= first) {
      AddTime(PeriodOf(time, GetWeekDayNightPeriod));
      if (Browser.FirstRouteFrame == 0) Browser.FirstRouteFrame = frame;
    }
    time = DateAdd(DateUnit::Hours, 12, time);
  }
  if (Browser.FirstRouteFrame > 0) SetRange(0, MainForm.TimeSelection.Count() - 1);
}

}  // namespace

bool FillTimes(int code, int count) {
  const int location = SelectedLocation();
  switch (code) {
    case 0:
      SetRange(0, 0);
      AddTime(ZonedTime(ObservationRecord.Lt[location]));
      break;
    case 1:
      SetRange(0, 0);
      AddTime(ZonedTime(LocalTimeAt(StartHour())));
      break;
    case 2:
    case 3: FillHours(count); break;
    case 4: FillPeriods(StartHour(), count, 12, GetWeekDayNightPeriod); break;
    case 5:
    case 6:
    case 7:
    case 8: FillPeriods(11 + 6 * (code - 5), count, 24, GetWeekDayPeriod); break;
    case 9:
      SetRange(0, 1);
      AddTime(ForecastPeriod[location][0].Day + " thru " + ForecastPeriod[location][4].Day);
      break;
    case 10:
      SetRange(0, 1);
      AddTime(ZonedTime(DateText(LocationTime(location))));
      break;
    case 11:
      FillDepartures(count);
      return true;
    default:
      return true;
  }
  return false;
}

}  // namespace skyloft
