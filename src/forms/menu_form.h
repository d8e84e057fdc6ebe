// The pop-up menus. The form itself is never shown.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct MenuFormControls : Form {
  MenuFormControls() : Form("MenuForm", "", Border::None) {}

  // The menu of the tray icons and of the main window.
  MenuItem Options{this, "Options", "Options", nullptr};
  MenuItem AddLocation{this, "AddLocation", "Add Location", &Options};
  MenuItem DeleteLocation{this, "DeleteLocation", "Delete Location", &Options};
  ControlArray<MenuItem, 10> DeleteLocationTitle{this, "DeleteLocationTitle", &DeleteLocation};
  MenuItem EditLocation{this, "EditLocation", "Edit Location", &Options};
  ControlArray<MenuItem, 10> EditLocationTitle{this, "EditLocationTitle", &EditLocation};
  MenuItem SetTrayLocation{this, "SetTrayLocation", "Set Tray Location", &Options};
  ControlArray<MenuItem, 10> TrayLocationTitle{this, "TrayLocationTitle", &SetTrayLocation};
  MenuItem Line1{this, "Line1", "-", &Options};
  MenuItem SystemSettings{this, "SystemSettings", "System Settings", &Options};
  MenuItem Share{this, "Share", "Share Skyloft", &Options};
  MenuItem TechnicalSupport{this, "TechnicalSupport", "Technical Support", &Options};
  MenuItem MonthlyNewsletter{this, "MonthlyNewsletter", "Monthly Newsletter", &Options};
  MenuItem Line2{this, "Line2", "-", &Options};
  MenuItem ShowSkyloft{this, "ShowSkyloft", "Show Skyloft", &Options};
  MenuItem ShowTicker{this, "ShowTicker", "Show Ticker", &Options};
  MenuItem Line3{this, "Line3", "-", &Options};
  MenuItem ExitSkyloft{this, "ExitSkyloft", "Exit Skyloft", &Options};

  // The menu of the route map.
  MenuItem RouteScope{this, "RouteScope", "RouteScope", nullptr};
  MenuItem AddStop{this, "AddStop", "Add Stop", &RouteScope};

  // The menu of the ticker bar.
  MenuItem Ticker{this, "Ticker", "Ticker", nullptr};
  MenuItem ShowSkyloft2{this, "ShowSkyloft2", "Show Skyloft", &Ticker};
  MenuItem HideTicker{this, "HideTicker", "Hide Ticker", &Ticker};
  MenuItem ScreenPosition{this, "ScreenPosition", "Top Screen Position", &Ticker};
  MenuItem AlwaysOnTop{this, "AlwaysOnTop", "Always Foreground", &Ticker};
  MenuItem Customize{this, "Customize", "Customize", &Ticker};
  MenuItem ShowCurrentConditions{this, "ShowCurrentConditions", "Show Current Conditions", &Customize};
  MenuItem ShowHourlyForecast{this, "ShowHourlyForecast", "Show Hourly Forecast", &Customize};
  MenuItem Show3DayForecast{this, "Show3DayForecast", "Show 3-Day Forecast", &Customize};
  MenuItem ShowAlmanac{this, "ShowAlmanac", "Show Almanac", &Customize};

  // A menu that is never opened.
  MenuItem SponsorMessageNormal{this, "SponsorMessageNormal", "Sponsor Message Normal", nullptr};
  MenuItem SponsorMessageAlert{this, "SponsorMessageAlert", "Sponsor Message Alert", nullptr};
  MenuItem SponsorMessageUrgent{this, "SponsorMessageUrgent", "Sponsor Message Urgent", nullptr};
};

extern MenuFormControls MenuForm;

}  // namespace skyloft
