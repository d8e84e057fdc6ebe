#include "pages/hourly_planner.h"

#include "feed/addresses.h"
#include "feed/forecast.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

const std::string kWhite = "      <td valign='middle' align='center' bgcolor='#FFFFFF'";

class HourlyPlanner : public Station {
 protected:
  // Two locations, the second selected; every value of an hour or period names its field and place.
  HourlyPlanner() {
    SetUpLocations(2);
    Settings.Location = "1";
    for (int h = 0; h < kForecastHours; ++h) {
      const std::string n = std::to_string(h);
      const std::string clock =
          (h % 12 < 9 ? "0" : "") + std::to_string(h % 12 + 1) + ":00" + (h < 12 ? "AM" : "PM");
      ForecastHour[1][h] = {.Ut = "",
                            .Lt = "Mar 07 2003 " + clock,
                            .Desc = "",
                            .Ic = "ic" + n,
                            .Tf = "tf" + n,
                            .Df = "df" + n,
                            .Rh = "rh" + n,
                            .Wd = "wd" + n,
                            .Ws = "ws" + n,
                            .At = "at" + n,
                            .Rn = "rn" + n,
                            .Sn = "sn" + n};
    }
    for (int j = 0; j < kPeriods; ++j) {
      const std::string n = std::to_string(j);
      ForecastPeriod[1][j] = {.Date = "",
                              .Day = "day" + n,
                              .Icon = "icon" + n,
                              .Sky = "sky" + n,
                              .Label = "High:",
                              .Temperature = "temp" + n,
                              .FeelsLike = "fslk" + n,
                              .Wind = "wind" + n,
                              .Rain = "rain" + n,
                              .Snow = "snow" + n};
    }
  }

  static std::string Head() {
    return "<html><head><meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>"
           "<title>Weather Planner</title>"
           "<style type='text/css'>TD{font-family: Tahoma;font-size: 11px;}</style>"
           "<link rel='stylesheet' type='text/css' href='" +
           std::string(kStyleSheet) +
           "'></head>"
           "<body bgcolor='#000000' scroll='no' border='0' topmargin='10' leftmargin='6'>";
  }
  static std::string Band(const std::string& cell) {
    return "<div align='left'>  <table border='0' width='540' cellspacing='0' cellpadding='0' "
           "bgcolor='#000000'>"
           "    <tr>" +
           cell + "'>&nbsp;</td>    </tr>  </table></div>";
  }
  // A row of the hour table: a label, then the hours from `first` on as opening, value, closing.
  template <class Value>
  static std::string Hours(const std::string& label, const std::string& opening, const std::string& closing,
                           int first, Value value) {
    std::string row =
        "    <tr>      <td valign='middle' align='center' bgcolor='#99CCFF' width='40'>"
        "<font color='#000000'>" +
        label + "</td>";
    for (int h = first; h < first + 12; ++h) row += opening + value(h) + closing;
    return row + "    </tr>";
  }
  static std::string HourTable(int first) {
    const auto named = [&](const std::string& label, const std::string& field) {
      return Hours(label, kWhite + ">", "</td>", first, [&](int h) { return field + std::to_string(h); });
    };
    return "<div align='left'>  <table border='1' width='540' cellspacing='0' cellpadding='0'>" +
           Hours("Time", "      <td valign='middle' align='center' bgcolor='#FFFFCC'><b>", "</b></td>", first,
                 [](int h) {
                   return (h % 12 < 9 ? "0" : "") + std::to_string(h % 12 + 1) + (h < 12 ? " AM" : " PM");
                 }) +
           Hours("Sky&nbsp;",
                 "      <td bgcolor='#FFFFFF'><img border='0' src='file:", "' width='40' height='30'></td>",
                 first, [](int h) { return "ic" + std::to_string(h); }) +
           Hours("Temp", kWhite + "><b>", "</b></td>", first,
                 [](int h) { return "tf" + std::to_string(h); }) +
           named("Fslk", "at") + named("Dewp", "df") + named("Rhum", "rh") + named("Wdir", "wd") +
           named("Wspd", "ws") + named("Rain", "rn") + named("Snow", "sn") + "  </table></div>";
  }
  template <class Cell>
  static std::string PeriodRow(std::initializer_list<const char*> widths, Cell cell) {
    std::string row = "    <tr>";
    int j = 0;
    for (const char* width : widths) row += cell(std::string(width), std::to_string(j++));
    return row + "    </tr>";
  }
  static std::string PeriodTable() {
    const auto names = {"103", "101", "102", "102", "102"};
    const auto values = {"103", "101", "103", "101", "103"};
    const auto severe = {"103", "101", "103", "103", "103"};
    const auto blue = [](const std::string& width, const std::string& label) {
      return kWhite + " width='" + width + "'><font color='#000080'>" + label + "</font>";
    };
    using Text = const std::string&;
    return "<div align='left'>  <table border='1' width='540' height='85' cellspacing='0' cellpadding='0'>" +
           PeriodRow(names,
                     [](Text w, Text n) {
                       return "      <td width='" + w +
                              "' height='13' bgcolor='#FFFFCC' align='center'><b>day" + n + "</b></td>";
                     }) +
           PeriodRow(names,
                     [](Text w, Text n) {
                       return "      <td width='" + w +
                              "' height='43' bgcolor='#FFFFFF' align='center'><img border='0' "
                              "src='file:icon" +
                              n + "' width='40' height='30'><br>        sky" + n + "</td>";
                     }) +
           PeriodRow(values,
                     [&](Text w, Text n) {
                       return blue(w, "Temp:") + "        <font color='#000000'><b>temp" + n +
                              "</b></font></td>";
                     }) +
           PeriodRow(values,
                     [&](Text w, Text n) { return blue(w, "Fslk:") + "        fslk" + n + "</td>"; }) +
           PeriodRow(values,
                     [&](Text w, Text n) { return blue(w, "Wind:") + "        wind" + n + "</td>"; }) +
           PeriodRow(values,
                     [&](Text w, Text n) {
                       return blue(w, "Rain:&nbsp;") + "<font color='green'><b>rain" + n +
                              "</b>&nbsp;</font></td>";
                     }) +
           PeriodRow(values,
                     [&](Text w, Text n) {
                       return blue(w, "Snow:&nbsp;") + "<font color='blue'><b>snow" + n +
                              "</b>&nbsp;</font></td>";
                     }) +
           PeriodRow(severe, [&](Text w, Text) { return blue(w, "Severe:&nbsp;") + "</td>"; }) +
           "  </table></div>";
  }
};

TEST_F(HourlyPlanner, ThePageIsMadeOfItsFragmentsWithoutLineEnds) {
  for (const int first : {0, 5, 55}) {
    Periods.HourIndex = first;
    EXPECT_EQ(
        BuildPlannerPage("C:\\a.jpg", "C:\\b.jpg"),
        Head() +
            Band(
                "      <td valign='middle' align='left' width='540' height='19' background='file:C:\\a.jpg") +
            HourTable(first) +
            Band("      <td valign='middle' align='center' height='19' background='file:C:\\b.jpg") +
            PeriodTable() + "</body></html>");
  }
}

TEST_F(HourlyPlanner, FewerThanTwelveHoursLeftKeepTheOldPage) {
  MainForm.Display2.Document = "the old page";
  Periods.HourIndex = 56;
  EXPECT_THROW(WeatherPlanner(), RuntimeError);
  EXPECT_EQ(MainForm.Display2.Document.Get(), "the old page");
  Periods.HourIndex = 55;
  WeatherPlanner();
  EXPECT_NE(MainForm.Display2.Document.Get(), "the old page");
}

TEST_F(HourlyPlanner, ThePositionBarShowsTheHourOnItsWayToTheLast) {
  Periods.HourIndex = 8;
  Periods.HourIndexMax = 65;
  WeatherPlanner();
  EXPECT_EQ(MainForm.ProgressBar.Max, 65);
  EXPECT_EQ(MainForm.ProgressBar.Value, 8);
}

TEST_F(HourlyPlanner, APeriodWithoutRainPrintsTwoNoBreakSpacesAroundNothing) {
  ForecastPeriod[1][2].Rain = "";
  EXPECT_NE(BuildPlannerPage("", "").find("Rain:&nbsp;</font><font color='green'><b></b>&nbsp;</font></td>"),
            std::string::npos);
}

TEST_F(HourlyPlanner, ValuesPrintAsTheyAreHeldAndAShortTimePrintsWhatItHas) {
  ForecastHour[1][0].Tf = "<b>hostile";
  ForecastHour[1][0].Lt = "5AM";
  const std::string page = BuildPlannerPage("", "");
  EXPECT_NE(page.find("<b><b>hostile</b></td>"), std::string::npos);
  EXPECT_NE(page.find("bgcolor='#FFFFCC'><b>5A </b></td>"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
