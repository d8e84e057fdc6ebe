#include "pages/route_report.h"

#include <cmath>

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "feed/addresses.h"
#include "feed/forecast.h"
#include "feed/point_forecast.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "forms/route_scope_form.h"
#include "pages/fragments.h"
#include "platform/files.h"
#include "settings/settings.h"
#include "weather/periods.h"
#include "weather/sky.h"

namespace skyloft {
namespace {

constexpr double kMilesPerDegree = 69.1;
constexpr double kDegreesPerRadian = 57.3;
constexpr double kMilesPerHour = 60;

struct StopRow {
  std::string distance, arrival;
  PointForecast hour;
};

std::string SkyPicture(const StopRow& stop) {
  if (stop.hour.Ic.empty()) return "";
  return "<img border=\"0\" src=\"" + IconPath(stop.hour.Ic) + "\" width=\"40\" height=\"30\">";
}

struct Column {
  const char* heading;
  const char* width;  // pixels
  std::string (*value)(const StopRow&);
};
const Column kColumns[] = {
    {"Location", "200", [](const StopRow& stop) { return stop.hour.city_state; }},
    {"Distance (mi)", "60", [](const StopRow& stop) { return stop.distance; }},
    {"Arrival Time", "100", [](const StopRow& stop) { return stop.arrival; }},
    {"Sky", "40", SkyPicture},
    {"Weather", "100", [](const StopRow& stop) { return stop.hour.Desc; }},
    {"Temp (F)", "40", [](const StopRow& stop) { return stop.hour.Tf; }},
    {"Dewp (F)", "40", [](const StopRow& stop) { return stop.hour.Df; }},
    {"RH (%)", "40", [](const StopRow& stop) { return stop.hour.Rh; }},
    {"Fslk (F)", "40", [](const StopRow& stop) { return stop.hour.At; }},
    {"Wdir", "40", [](const StopRow& stop) { return stop.hour.Wd; }},
    {"Wspd (mph)", "40", [](const StopRow& stop) { return stop.hour.Ws; }},
};

// The division around the body is part of the page.
std::string PageHead() {
  return Lines({
      "<html>",
      "<head>",
      "<title>Location</title>",
      "<style type=\"text/css\">",
      "TD {",
      "font-family: Tahoma;",
      "font-size: 11px;",
      "color: #FFFFFF;",
      "}",
      "</style>",
      std::string("<link rel=\"stylesheet\" type=\"text/css\" href=\"") + kStyleSheet + "\">",
      "</head>",
      "<div>",
      "<body bgcolor=\"#FFFFFF\">",
      "<div align=\"left\">",
      "<table border=\"1\" cellpadding=\"0\" cellspacing=\"0\" width=\"740\">",
      "<tr>",
      "<td align=\"center\" bgcolor=\"#FFFFFF\" style=\"border: none; color: #000000\">",
      "&nbsp;<b><font face=\"Arial\" size=\"5\">Skyloft RouteScope</font></b>",
      "</td>",
      "</tr>",
      "</table>",
      "<table border=\"1\" width=\"740\" cellpadding=\"0\" cellspacing=\"0\">",
  });
}

std::string CellStart(const Column& column) {
  return std::string("<td valign=\"middle\" align=\"center\" width=\"") + column.width + "\" height=\"30\"";
}

std::string HeadingRow() {
  std::string row = Lines({"<tr>"});
  for (const Column& column : kColumns) {
    row += Lines({CellStart(column) +
                  " bgcolor=\"#000080\"><b><font face=\"Arial\" size=\"2\" color=\"#FFFFFF\">" +
                  column.heading + "</font></b></td>"});
  }
  return row + Lines({"</tr>"});
}

// A cell's tag is left open before that of its font, which is meant.
std::string Row(const StopRow& stop) {
  std::string row = Lines({"<tr>"});
  for (const Column& column : kColumns) {
    row += Lines({CellStart(column) + " <font face=\"Arial\" size=\"2\" color=\"#000000\">" +
                  column.value(stop) + "</font></b></td>"});
  }
  return row + Lines({"</tr>"});
}

// Whole miles from the stop before.
double LegMiles(const RouteList& latitude, const RouteList& longitude, int stop) {
  if (stop == 1) return 0;
  const double dy = kMilesPerDegree * (latitude[stop] - latitude[stop - 1]);
  const double dx = kMilesPerDegree * (longitude[stop] - longitude[stop - 1]) *
                    std::cos(latitude[stop - 1] / kDegreesPerRadian);
  return RoundHalfEven(SquareRoot(dx * dx + dy * dy), 0);
}

// The wind comes as degrees; what has no digit is a compass text already.
std::string Compass(const std::string& wind) {
  const bool degrees = wind.find_first_of("0123456789") != std::string::npos;
  return degrees ? GetWindDirection(LenientNumber(wind)) : wind;
}

void AppendStops(std::string& page, const RouteList& latitude, const RouteList& longitude, int count) {
  double miles = 0;
  double hours = 0;
  Date time = ReadDate(ForecastHour[MainForm.LocationSelection.ListIndex()][Periods.HourIndex].Lt);
  for (int i = 1; i <= count; ++i) {
    const double leg = LegMiles(latitude, longitude, i);
    const double leg_hours = leg / kMilesPerHour;
    const double waiting = LenientNumber(MainForm.ImagePoints[i - 1].Tag.Get());
    time = DateAdd(DateUnit::Seconds, RoundHalfEven(leg_hours * 3600 + waiting), time);
    miles += leg;
    hours += leg_hours;
    RouteScopeForm.Label3.Caption = NumberText(miles) + " miles";
    RouteScopeForm.Label4.Caption = NumberText(RoundHalfEven(hours, 1)) + " hours";
    if (!MainForm.Http.Idle()) break;
    StopRow stop = {
        NumberText(leg), Format(time, "h:nn am/pm ddd"),
        QueryPointForecast(NumberText(latitude[i]), NumberText(longitude[i]), time, MidnightHour::Twelve)};
    stop.hour.Wd = Compass(stop.hour.Wd);
    page += Row(stop);
    MainForm.ProgressBar.SetPosition(count, i);
  }
}

}  // namespace

std::string RouteReportPath() { return Settings.InstallPath + "\\temp\\routescope.htm"; }

void GetForecastRT(const RouteList& latitude, const RouteList& longitude, int count) {
  std::string page = PageHead() + HeadingRow();
  MainForm.ProgressBar.SetPosition(count, 0);
  MainForm.ProductTitle.Caption = "Generating RouteScope";
  Guarded([&] {
    AppendStops(page, latitude, longitude, count);
    page += Lines({"</table>", "</div>", "</body>", "</html>"});
    MainForm.ProductTitle.Caption = "RouteScope";
  });
  Guarded([&] { WriteFile(RouteReportPath(), page); });
}

}  // namespace skyloft
