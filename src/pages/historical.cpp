#include "pages/historical.h"

#include <string>

#include "base/values.h"
#include "feed/addresses.h"
#include "feed/observations.h"
#include "pages/fragments.h"
#include "platform/files.h"
#include "settings/settings.h"
#include "weather/sky.h"

namespace skyloft {
namespace {

using Readings = HistoricalReadings;

struct Column {
  const char* width;  // pixels
  const char* heading;
  const char* colour;  // of the value; nullptr for a picture
  std::string (*value)(const Readings&, int row);
};

const Column kColumns[] = {
    {"80", "Time", "#FFFF00", [](const Readings& readings, int row) { return readings.Lt[row]; }},
    {"40", "Sky", nullptr, [](const Readings& readings, int row) { return IconPath(readings.Ic[row]); }},
    {"190", "Weather", "#FFFFFF", [](const Readings& readings, int row) { return readings.Desc[row]; }},
    {"55", "Temp<br>(F)", "#FFFFFF", [](const Readings& readings, int row) { return readings.Tf[row]; }},
    {"55", "Dewp<br>(F)", "#FFFFFF", [](const Readings& readings, int row) { return readings.Df[row]; }},
    {"55", "Rhum<br>(%)", "#FFFFFF", [](const Readings& readings, int row) { return readings.Rh[row]; }},
    {"60", "Wind<br>(mph)", "#FFFFFF",
     [](const Readings& readings, int row) {
       return GetWindDirection(LenientNumber(readings.Wd[row])) + " " + readings.Ws[row];
     }},
    {"46", "Vis<br>(mi)", "#FFFFFF", [](const Readings& readings, int row) { return readings.Vi[row]; }},
};

// The empty first table is part of the page.
std::string PageHead() {
  return Lines({
      "<html>",
      "<head>",
      "<title>Location</title>",
      "<style type='text/css'>",
      "TD {",
      "font-family: Tahoma;",
      "font-size: 11px;",
      "color: #FFFFFF;",
      "}",
      "</style>",
      std::string("<link rel='stylesheet' type='text/css' href='") + kStyleSheet + "'>",
      "</head>",
      "<body bgcolor='#000000'>",
      "<table border='1' cellpadding='0' cellspacing='0' width='512'>",
      "</table>",
      "<div align='center'>",
      "<table border='1' bgcolor='#003399' width='512' cellpadding='0' cellspacing='0'>",
  });
}

std::string CellStart(const Column& column) {
  return std::string("<td valign='middle' align='center' width='") + column.width + "'";
}

std::string Heading(const Column& column) {
  return CellStart(column) + " bgcolor='#000000'><font color='#FFFFFF'>" + column.heading + "</font></td>";
}

std::string Cell(const Column& column, const std::string& value) {
  if (!column.colour) {
    return CellStart(column) + "><img border='0' src=\"" + value + "\" width='40' height='30'></td>";
  }
  return CellStart(column) + "><font color='" + column.colour + "'>" + value + "</font></td>";
}

std::string BuildHistoricalPage(const Readings& readings) {
  std::string page = PageHead() + Lines({"<tr>"});
  for (const Column& column : kColumns) page += Lines({Heading(column)});
  page += Lines({"</tr>"});
  for (int row = 0; row < readings.rows; ++row) {
    page += Lines({"<tr>"});
    for (const Column& column : kColumns) page += Lines({Cell(column, column.value(readings, row))});
    page += Lines({"</tr>"});
  }
  return page + Lines({"</table>", "</div>", "</body>", "</html>"});
}

}  // namespace

void GetHistoricalData() {
  Guarded([] {
    Readings readings;
    QueryHistoricalData(readings);
    if (readings.rows == 0) return;
    WriteFile(Settings.InstallPath + "\\temp\\historical.htm", BuildHistoricalPage(readings));
  });
}

}  // namespace skyloft
