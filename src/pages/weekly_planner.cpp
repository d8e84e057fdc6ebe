#include "pages/weekly_planner.h"

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "feed/forecast.h"
#include "forms/main_form.h"
#include "pages/extended_planner.h"
#include "settings/settings.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr std::int64_t kHalfDay = 43200;  // seconds
constexpr const char* kStampForm = "mmm dd yyyy hh:mmAM/PM";

std::string WithoutLast(const std::string& text, int count) {
  return std::string(LeftText(text, static_cast<int>(text.size()) - count));
}

std::string Stamp(Date date) { return Format(date, kStampForm); }

std::string AmountOrDash(const std::string& text) { return LenientNumber(text) > 0 ? text : "-"; }

void FillNearColumn(ExtendedColumns& columns, int c, const ForecastPeriodFields& period) {
  if (c % 2 == 0) columns.Date[c / 2] = period.Date;
  columns.Day[c] = period.Day;
  columns.Icon[c] = period.Icon;
  columns.Sky[c] = period.Sky;
  columns.Temperature[c] = WithoutLast(period.Temperature, 1);
  columns.Rain[c] = period.Rain.empty() ? "-" : period.Rain;
  columns.Snow[c] = period.Snow.empty() ? "-" : period.Snow;
  columns.Wind[c] = WithoutLast(period.Wind, 3);
}

// A stamp at 00 GMT closes a day, one at 12 GMT a night; the name is that of the day twelve hours before.
void FillFarColumn(ExtendedColumns& columns, int c, const ForecastDayFields& day, std::int64_t offset,
                   const std::string& hourly_speed) {
  const Date closing = ReadDate(day.Ut);
  const Date local = DateAdd(DateUnit::Seconds, offset, closing);
  const std::string name = Format(DateAdd(DateUnit::Seconds, -kHalfDay, local), "ddd");
  const bool is_day = PartsOf(closing).hour == 0;
  if (c % 2 == 0) columns.Date[c / 2] = Format(local, "mm/dd");
  columns.Icon[c] = day.Ic;
  columns.Sky[c] = day.Desc;
  columns.Day[c] = is_day ? name : name + " night";
  columns.Temperature[c] = is_day ? day.Th : day.Tl;
  columns.Rain[c] = AmountOrDash(day.Rn);
  columns.Snow[c] = AmountOrDash(day.Sn);
  columns.Wind[c] = day.Wd + " " + hourly_speed;
}

// The stamp of the first far column: it lies behind the last near period, whose last hour is `last`. "" finds
// nothing.
std::string FirstFarStamp(Date last) {
  switch (PartsOf(last).hour) {
    case 0:
    case 12: return Stamp(DateAdd(DateUnit::Seconds, kHalfDay, last));
    case 6:
    case 18: return Stamp(DateAdd(DateUnit::Seconds, kHalfDay / 2, last));
    default: return "";
  }
}

ExtendedColumns JoinColumns() {
  const int location = SelectedLocation();
  const auto& hours = ForecastHour[location];
  const std::int64_t offset = DateDiff(DateUnit::Seconds, ReadDate(hours[0].Ut), ReadDate(hours[0].Lt));
  const int first_hour = PartsOf(ReadDate(hours[WholeNumber(Settings.StartHourIndex)].Ut)).hour;
  const Date last = ReadDate(hours[WholeNumber(Settings.StopHourIndex)].Ut);
  // Column 0 is a day: a first period that is a night is left out.
  const int skipped = first_hour == 1 || first_hour == 7 ? 1 : 0;
  const int near_columns = kPeriods - skipped;
  GetPeriod(0);
  ExtendedColumns columns;
  for (int c = 0; c < near_columns; ++c) FillNearColumn(columns, c, ForecastPeriod[location][c + skipped]);

  std::string wanted = FirstFarStamp(last);
  int c = near_columns;
  for (int d = 0; d <= 24 - near_columns; ++d) {
    const ForecastDayFields& day = ForecastDay[location][d];
    if (Format(day.Ut, kStampForm) != wanted || wanted.empty()) continue;
    FillFarColumn(columns, c++, day, offset, hours[d].Ws);
    wanted = Stamp(DateAdd(DateUnit::Seconds, kHalfDay, ReadDate(day.Ut)));
  }
  return columns;
}

}  // namespace

void WeatherPlannerWeekly() {
  Guarded([] {
    const ExtendedColumns columns = JoinColumns();
    const std::string folder = Settings.InstallPath + "\\backgrounds\\";
    MainForm.Display2.Document = BuildExtendedPage(folder + "weeklya.jpg", folder + "weeklyn.jpg", columns);
    MainForm.TimeSelection.Clear();
    MainForm.TimeSelection.AddItem(columns.Date[0] + " thru " + columns.Date[11]);
    MainForm.ProgressBar.SetPosition(Periods.HourIndexMax, 0);
  });
}

}  // namespace skyloft
