#include "pages/conditions.h"

#include "core/tray.h"
#include "feed/addresses.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "pages/fragments.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

// The head of the small pages, up to the table's first row.
void AppendHead(std::string& page, const std::string& title) {
  const std::string rule = "{font-family: Tahoma;font-size: 11px;}";
  Append(page, {
                   "<html>",
                   "<head>",
                   "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>",
                   "<title>" + title + "</title>",
                   "<style type='text/css'>",
                   "body { overflow:hidden; }",
                   "TD" + rule,
                   "P" + rule,
                   "</style>",
                   "<link rel='stylesheet' type='text/css' href='",
                   kStyleSheet,
                   "'>",
                   "</head>",
                   "<body topmargin='0' leftmargin='0' bgcolor='#000000'>",
                   "<div align='left'>",
                   "  <table border='0' width='150' cellspacing='0' cellpadding='2'>",
               });
}

// What the two small pages differ in, and their values.
struct SmallPage {
  std::string title;
  std::string kind;           // first word of the heading
  std::string under_heading;  // in the heading's cell
  std::string icon, sky, temperature, dewpoint, feels_like, humidity, wind_direction, wind_speed;
  std::string below_wind;
};

std::string BuildSmallPage(const SmallPage& page) {
  std::string text;
  AppendHead(text, page.title);
  Append(text,
         {
             "    <tr>",
             "          <TD vAlign=center align=middle bgColor=#ffffcc><B>" + page.kind,
             "            Conditions</B></BR>" + page.under_heading + "</font></TD>",
             "    </tr>",
             "    <tr>",
             "          <TD bgColor=#003399",
             "            <P align=center><FONT color=#ffffff><IMG height=30",
             "            src='file:" + page.icon + "' width=40 align=absMiddle border=0>  <B>" + page.sky,
             "            <BR>Temperature</B>: " + page.temperature,
             " F<B><BR>Dewpoint</B>: " + page.dewpoint,
             " F<B><BR>Feels",
             "            Like</B>: " + page.feels_like,
             " F<B><BR>Humidity</B>: " + page.humidity,
             " %<B><BR>Wind</B>: " + page.wind_direction + " " + page.wind_speed + " mph",
             page.below_wind,
             "       </FONT></P></TD>",
             "    </tr>",
             "  </table>",
             "</div>",
             "</body>",
             "</html>",
         });
  return text;
}

}  // namespace

std::string BuildCurrentConditionsPage() {
  const int slot = SelectedLocation();
  const ObservationTables& reading = ObservationRecord;
  return BuildSmallPage({
      .title = "Current Conditions Reported At",
      .kind = "Current",
      .under_heading = "",
      .icon = reading.Ic[slot],
      .sky = reading.Desc[slot],
      .temperature = reading.Tf[slot],
      .dewpoint = reading.Df[slot],
      .feels_like = reading.At[slot],
      .humidity = reading.Rh[slot],
      .wind_direction = reading.Wd[slot],
      .wind_speed = reading.Ws[slot],
      .below_wind = "            <BR><B>Pressure</B>: " + reading.Slp[slot] +
                    " in<BR><B>Visibility</B>: " + reading.Vi[slot] + " mi",
  });
}

std::string BuildForecastConditionsPage(const std::string& title, const std::string& time,
                                        const std::string& icon, const std::string& sky,
                                        const std::string& temperature, const std::string& dewpoint,
                                        const std::string& feels_like, const std::string& humidity,
                                        const std::string& wind_direction, const std::string& wind_speed) {
  return BuildSmallPage({
      .title = "Forecast Conditions",
      .kind = "Forecast",
      .under_heading = "</BR>" + title + time + "            ",
      .icon = icon,
      .sky = sky,
      .temperature = temperature,
      .dewpoint = dewpoint,
      .feels_like = feels_like,
      .humidity = humidity,
      .wind_direction = wind_direction,
      .wind_speed = wind_speed,
      .below_wind = "",
  });
}

void CurrentConditions() {
  MainForm.LocationLabel.Caption = LocationProfile[ProfileRow::Title][SelectedLocation()];
  MainForm.WeatherConditionsBanner.Document = BuildCurrentConditionsPage();
  SystemTray();
}

}  // namespace skyloft
