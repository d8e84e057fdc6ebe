#include "pages/hourly_planner.h"

#include "base/values.h"
#include "browser/images.h"
#include "feed/forecast.h"
#include "forms/main_form.h"
#include "pages/fragments.h"
#include "pages/planner_parts.h"
#include "settings/settings.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr std::string_view kLabel =
    "      <td valign='middle' align='center' bgcolor='#99CCFF' width='40'><font color='#000000'>";
constexpr std::string_view kPlain = "      <td valign='middle' align='center' bgcolor='#FFFFFF'>";
constexpr std::string_view kPlainEnd = "</td>";

constexpr struct HourRow : PlannerRow {
  std::string ForecastHourFields::*field;
} kHourRows[] = {
    {{"Temp", "      <td valign='middle' align='center' bgcolor='#FFFFFF'><b>", "</b></td>"},
     &ForecastHourFields::Tf},
    {{"Fslk", kPlain, kPlainEnd}, &ForecastHourFields::At},
    {{"Dewp", kPlain, kPlainEnd}, &ForecastHourFields::Df},
    {{"Rhum", kPlain, kPlainEnd}, &ForecastHourFields::Rh},
    {{"Wdir", kPlain, kPlainEnd}, &ForecastHourFields::Wd},
    {{"Wspd", kPlain, kPlainEnd}, &ForecastHourFields::Ws},
    {{"Rain", kPlain, kPlainEnd}, &ForecastHourFields::Rn},
    {{"Snow", kPlain, kPlainEnd}, &ForecastHourFields::Sn},
};
constexpr PlannerRow kTimeRow = {"Time", "      <td valign='middle' align='center' bgcolor='#FFFFCC'><b>",
                                 "</b></td>"};
constexpr PlannerRow kSkyRow = {
    "Sky&nbsp;", "      <td bgcolor='#FFFFFF'><img border='0' src='file:", "' width='40' height='30'></td>"};

// The hour and the half of the day: "Mar 07 2003 02:00PM" is "02 PM".
std::string HourText(const std::string& time) {
  const std::string_view end = RightText(time, 7);
  return std::string(LeftText(end, 2)) + " " + std::string(LeftText(MiddleText(end, 6), 2));
}

void AppendHours(std::string& page) {
  const auto& hours = ForecastHour[SelectedLocation()];
  const auto hour = [&](int column) -> const ForecastHourFields& {
    return hours[Periods.HourIndex + column];
  };
  OpenPlannerTable(page, "cellspacing='0' cellpadding='0'");
  AppendPlannerRow(page, kTimeRow, kLabel, [&](int column) { return HourText(hour(column).Lt); });
  AppendPlannerRow(page, kSkyRow, kLabel, [&](int column) { return std::string_view(hour(column).Ic); });
  for (const HourRow& row : kHourRows) {
    AppendPlannerRow(page, row, kLabel,
                     [&](int column) { return std::string_view(hour(column).*(row.field)); });
  }
  ClosePlannerTable(page);
}

// The widths of a row's five cells differ from row to row, which is meant.
using Widths = std::string_view[kPeriods];
constexpr Widths kNameWidths = {"103", "101", "102", "102", "102"};
constexpr Widths kValueWidths = {"103", "101", "103", "101", "103"};
constexpr Widths kSevereWidths = {"103", "101", "103", "103", "103"};

// One row of the periods: each cell is opened, its width put in, and up to two fields (nullptr for none)
// printed.
struct PeriodRow {
  const Widths& widths;
  std::string_view before_width, after_width;
  std::string ForecastPeriodFields::*first;
  std::string_view between;
  std::string ForecastPeriodFields::*second;
  std::string_view closing;
};
constexpr std::string_view kName = "      <td width='";
constexpr std::string_view kValue = "      <td valign='middle' align='center' bgcolor='#FFFFFF' width='";
constexpr PeriodRow kPeriodRows[] = {
    {kNameWidths, kName, "' height='13' bgcolor='#FFFFCC' align='center'><b>", &ForecastPeriodFields::Day, "",
     nullptr, "</b></td>"},
    {kNameWidths, kName,
     "' height='43' bgcolor='#FFFFFF' align='center'><img border='0' src='file:", &ForecastPeriodFields::Icon,
     "' width='40' height='30'><br>        ", &ForecastPeriodFields::Sky, "</td>"},
    {kValueWidths, kValue, "'><font color='#000080'>Temp:</font>        <font color='#000000'><b>",
     &ForecastPeriodFields::Temperature, "", nullptr, "</b></font></td>"},
    {kValueWidths, kValue, "'><font color='#000080'>Fslk:</font>        ", &ForecastPeriodFields::FeelsLike,
     "", nullptr, "</td>"},
    {kValueWidths, kValue, "'><font color='#000080'>Wind:</font>        ", &ForecastPeriodFields::Wind, "",
     nullptr, "</td>"},
    {kValueWidths, kValue, "'><font color='#000080'>Rain:&nbsp;</font><font color='green'><b>",
     &ForecastPeriodFields::Rain, "", nullptr, "</b>&nbsp;</font></td>"},
    {kValueWidths, kValue, "'><font color='#000080'>Snow:&nbsp;</font><font color='blue'><b>",
     &ForecastPeriodFields::Snow, "", nullptr, "</b>&nbsp;</font></td>"},
    // Always empty.
    {kSevereWidths, kValue, "'><font color='#000080'>Severe:&nbsp;</font></td>", nullptr, "", nullptr, ""},
};

std::string_view TextOf(const ForecastPeriodFields& period, std::string ForecastPeriodFields::*field) {
  return field ? std::string_view(period.*field) : std::string_view();
}

void AppendPeriods(std::string& page) {
  const auto& periods = ForecastPeriod[SelectedLocation()];
  OpenPlannerTable(page, "height='85' cellspacing='0' cellpadding='0'");
  for (const PeriodRow& row : kPeriodRows) {
    OpenRow(page);
    for (int j = 0; j < kPeriods; ++j) {
      const ForecastPeriodFields& period = periods[j];
      Append(page, {row.before_width, row.widths[j], row.after_width, TextOf(period, row.first), row.between,
                    TextOf(period, row.second), row.closing});
    }
    CloseRow(page);
  }
  ClosePlannerTable(page);
}

}  // namespace

std::string BuildPlannerPage(const std::string& hourly_band, const std::string& daily_band) {
  std::string page;
  page.reserve(32768);
  AppendPlannerHead(page, "Weather Planner", {});
  AppendFirstBand(page, hourly_band);
  AppendHours(page);
  AppendSecondBand(page, daily_band);
  AppendPeriods(page);
  AppendPlannerEnd(page);
  return page;
}

void WeatherPlanner() {
  std::string hourly_band, daily_band;
  Background(hourly_band, daily_band);
  MainForm.Display2.Document = BuildPlannerPage(hourly_band, daily_band);
  MainForm.ProgressBar.SetPosition(Periods.HourIndexMax, Periods.HourIndex);
}

}  // namespace skyloft
