#include "station.h"

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
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
#include "forms/setup_wizard_form.h"
#include "forms/system_font_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
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
  Bulletins = {};
  PersonalAlertsState = {};
  Start = {};
  Chrome = {};
  Catalogues = {};
  Browser = {};
  Periods = {};
  ForecastPeriod = {};
  Refresh = {};
  TickerRotation = {};
  HostAddress.WebHost = "www.skyloft.example";
  HostTable.forecastserver = "forecast.skyloft.example/";
  ApplySkin();
  ConnectForms();
}

void Station::SetUpLocations(int count) {
  for (int i = 0; i < count; ++i) {
    LocationProfile[ProfileRow::ZipCode][i] = std::to_string(10000 + i);
    LocationProfile[ProfileRow::Title][i] = "Town " + std::to_string(i);
    MainForm.LocationSelection.AddItem("Town " + std::to_string(i));
  }
  Settings.Location = "0";
  Settings.LocationIndexMax = std::to_string(count - 1);
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
