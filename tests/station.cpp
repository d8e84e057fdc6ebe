#include "station.h"

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "browser/images.h"
#include "browser/route_map.h"
#include "browser/selection.h"
#include "core/chrome.h"
#include "core/mainform.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "feed/transport.h"
#include "forms/forms.h"
#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/route_scope_form.h"
#include "forms/route_scope_options_form.h"
#include "forms/setup_wizard_form.h"
#include "forms/system_font_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "setup/wizard.h"
#include "ticker/messages.h"
#include "ticker/ticker.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft {

Station::Station() {
  MainForm = {};
  InitializingForm = {};
  TickerForm = {};
  SetupWizardForm = {};
  SystemOptionsForm = {};
  SystemFontForm = {};
  MenuForm = {};
  RouteScopeForm = {};
  RouteScopeOptionsForm = {};
  Doubles = {};
  Settings = {};
  Transport = {};
  HostTable = {};
  HostAddress = {};
  ObservationRecord = {};
  Observations = {};
  ForecastHour = {};
  ForecastDay = {};
  Almanac = {};
  LocationProfile = {};
  FrameUrl = {};
  FramePath = {};
  Bulletins = {};
  PersonalAlertsState = {};
  Start = {};
  Chrome = {};
  Catalogues = {};
  Browser = {};
  Route = {};
  Periods = {};
  ForecastPeriod = {};
  Refresh = {};
  TickerRotation = {};
  Messages = {};
  Wizard = {};
  HostAddress.WebHost = "www.skyloft.example";
  HostTable.forecastserver = "forecast.skyloft.example/";
  ApplySkin();
  ConnectForms();
}

void Station::SetUpLocations(int count) {
  for (int i = 0; i < count; ++i) {
    LocationProfile[ProfileRow::ZipCode][i] = std::to_string(10000 + i);
    LocationProfile[ProfileRow::Title][i] = "Town " + std::to_string(i);
    LocationProfile[ProfileRow::NEXRADServer][i] = "radar.skyloft.example";
    LocationProfile[ProfileRow::NEXRADLocation][i] = "KTW" + std::to_string(i);
    MainForm.LocationSelection.AddItem("Town " + std::to_string(i));
  }
  Settings.Location = "0";
  Settings.LocationIndexMax = std::to_string(count - 1);
}

void Station::SetUpForecast(const std::string& first_gmt, int zone) {
  const Date first = ReadDate(first_gmt);
  const int start = PartsOf(first).hour;
  const bool late = start == 7 || start == 19;
  Settings.GMTStartTime = std::to_string(start);
  Settings.StartHourIndex = late ? "6" : "0";
  Settings.StopHourIndex = late ? "65" : "59";
  const auto stamp = [](Date date) { return Format(date, "mmm dd yyyy hh:mmAM/PM"); };
  for (int location = 0; location <= LastLocation(); ++location) {
    for (int h = 0; h < 66; ++h) {
      const Date gmt = DateAdd(DateUnit::Hours, h, first);
      ForecastHour[location][h] = {.Ut = stamp(gmt),
                                   .Lt = stamp(DateAdd(DateUnit::Hours, zone, gmt)),
                                   .Desc = "partly cloudy",
                                   .Ic = "C:\\icons\\hour.gif",
                                   .Tf = "40",
                                   .Df = "30",
                                   .Rh = "60",
                                   .Wd = " NE",
                                   .Ws = "5",
                                   .At = "38",
                                   .Rn = "0",
                                   .Sn = "0"};
    }
    for (int d = 0; d < kForecastDays; ++d) {
      const Date gmt = DateAdd(DateUnit::Hours, 72 - start % 12 + 12 * d, first);
      ForecastDay[location][d] = {.Ut = stamp(gmt),
                                  .Lt = "",
                                  .Desc = "cloudy",
                                  .Ic = "C:\\icons\\day.gif",
                                  .Th = "45",
                                  .Tl = "35",
                                  .Rn = "0",
                                  .Sn = "0",
                                  .Wd = "  S",
                                  .Ws = "9"};
    }
  }
}

std::string Reply(const std::string& elements) { return "<r>" + elements + "</r>"; }

std::string Element(const std::string& tag, const std::string& text) {
  return "<" + tag + ">" + text + "</" + tag + ">";
}

std::string MetaReply(const std::vector<std::string>& stamps, const std::string& model) {
  std::string elements;
  for (const std::string& stamp : stamps) elements += Element("Obs_TS_UTC", stamp);
  return Reply(elements + Element("Model_TS_UTC", model) + Element("Model_TS_UTC_Trip", model));
}

std::string CurrentBlock(const std::string& city, int temperature) {
  const std::string number = std::to_string(temperature);
  return Element("City", "Station of " + city) + Element("State", "XX") + Element("City", city) +
         Element("State", "KS") + Element("Lt", "Mar 07 2003 02:00PM") + Element("SkyID", "3") +
         Element("Desc", "partly cloudy") + Element("Ic", "sprtcloud.gif") + Element("Tf", number) +
         Element("At", "67") + Element("Df", "50") + Element("Rh", "55") + Element("Wd", "205") +
         Element("Ws", "12") + Element("Vi", "10") + Element("Avg_H", "71") + Element("Avg_L", "49") +
         Element("Slp", "29.92");
}

}  // namespace skyloft
